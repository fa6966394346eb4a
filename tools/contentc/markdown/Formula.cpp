#include "tools/contentc/markdown/Formula.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/text/CodePageTable.h"
#include "tools/contentc/markdown/BodyMessages.h"
#include "tools/contentc/markdown/Typography.h"
#include "tools/contentc/source/EscapeHtml.h"

namespace contentc {
namespace {

constexpr std::string_view unbreakable = "\u00A0";

/// Signs that are written with several characters; the longer first.
constexpr std::array<std::pair<std::string_view, std::string_view>, 9> signs{{{"<=>", "\u21CC"},
                                                                              {"<->", "\u2194"},
                                                                              {"->", "\u2192"},
                                                                              {"<-", "\u2190"},
                                                                              {"<=", "\u2264"},
                                                                              {">=", "\u2265"},
                                                                              {"+-", "\u00B1"},
                                                                              {"\\$", "$"},
                                                                              {"#", "\u2261"}}};

// Each pair of braces in another costs stack.
constexpr int maxBraces = 16;

Formula compileBraces(std::string_view source, int depth);

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isLetter(char32_t c) {
    return (c >= U'a' && c <= U'z') || (c >= U'A' && c <= U'Z') || (c >= 0x370 && c < 0x400);
}

class FormulaCompilation {
  public:
    FormulaCompilation(std::string_view source, int depth) : source_(source), depth_(depth) {}

    Formula run() {
        while (at_ < source_.size()) step();
        return {std::move(html_), fault_};
    }

  private:
    /// What the part before the current place ends in.
    enum class Before { start, blank, digit, letter, closing, script, sign };

    void step() {
        const std::string_view rest = source_.substr(at_);
        const char c = rest.front();
        if ((c == '^' || c == '_') && takeNuclide()) return;
        if (c == '^') return takeScript("SUP");
        if (c == '_') return takeScript("SUB");
        if (isDigit(c)) return takeDigits();
        if (c == ' ') return takeBlank();
        if (takeSign(rest)) return;
        if (c == '-') return takeHyphen();
        if (c == '*') return put("\u00B7", 1, Before::sign);
        takeCharacter(rest);
    }

    /// The mass and atomic number before a symbol, `^14_6C`.
    bool takeNuclide() {
        if (before_ != Before::start && before_ != Before::blank && before_ != Before::sign) return false;
        const std::size_t begin = at_;
        std::string high;
        std::string low;
        while (at_ < source_.size() && (source_[at_] == '^' || source_[at_] == '_')) {
            std::string& number = source_[at_] == '^' ? high : low;
            ++at_;
            number = takeRun();
        }
        if (high.empty() || low.empty()) {
            at_ = begin;
            return false;
        }
        html_ += "<SPAN CLASS=\"nuclide\"><SUP>" + high + "</SUP><SUB>" + low + "</SUB></SPAN>";
        before_ = Before::script;
        return true;
    }

    void takeScript(const std::string& tag) {
        const bool lowers = tag == "SUB";
        ++at_;
        std::string inner;
        if (at_ < source_.size() && source_[at_] == '{') {
            inner = takeBraces();
        } else {
            inner = takeRun();
            if (inner.empty()) inner = takeLetter();
        }
        if (inner.empty()) fail(lowers ? say::nothingToLower : say::nothingToLift);
        html_.append("<").append(tag).append(">").append(inner).append("</").append(tag).append(">");
        before_ = Before::script;
    }

    /// Digits and signs.
    std::string takeRun() {
        std::string run;
        for (; at_ < source_.size(); ++at_) {
            const char c = source_[at_];
            if (isDigit(c) || c == '+') {
                run += c;
            } else if (c == '-' && !source_.substr(at_).starts_with("->")) {
                run += "\u2212";
            } else if (source_.substr(at_).starts_with("\u2212")) {
                run += "\u2212";
                at_ += 2;
            } else {
                break;
            }
        }
        return run;
    }

    std::string takeLetter() {
        if (at_ >= source_.size()) return {};
        const auto character = platform::codepage::decodeUtf8(source_, at_);
        if (!isLetter(character.value) && source_[at_] != '*') return {};
        const std::string letter(source_.substr(at_, character.length));
        at_ += character.length;
        return letter;
    }

    std::string takeBraces() {
        int depth = 0;
        std::size_t end = at_;
        for (; end < source_.size(); ++end) {
            if (source_[end] == '{') ++depth;
            if (source_[end] == '}' && --depth == 0) break;
        }
        if (depth != 0) fail(say::braceIsNotClosed);
        const std::string_view inner = source_.substr(at_ + 1, end - at_ - 1);
        at_ = std::min(end + 1, source_.size());
        Formula formula = compileBraces(inner, depth_ + 1);
        if (formula.fault) fail(*formula.fault);
        return std::move(formula.html);
    }

    void takeDigits() {
        const auto end = std::ranges::find_if_not(source_.substr(at_), isDigit);
        const auto length = static_cast<std::size_t>(end - source_.substr(at_).begin());
        const std::string digits(source_.substr(at_, length));
        if (before_ == Before::letter || before_ == Before::closing) {
            put("<SUB>" + digits + "</SUB>", length, Before::script);
        } else {
            put(digits, length, Before::digit);
        }
    }

    /// Keeps coefficients and their formulas together.
    void takeBlank() {
        const std::string_view rest = source_.substr(at_ + 1);
        const bool isTimes = before_ == Before::digit && rest.starts_with("x ");
        if (isTimes) {
            put("\u00A0\u00D7\u00A0", 3, Before::blank);
        } else if (rest.starts_with("- ")) {
            put(" \u2212 ", 3, Before::blank);
        } else {
            const bool isCoefficient = before_ == Before::digit && !rest.empty() &&
                                       isLetter(platform::codepage::decodeUtf8(rest, 0).value);
            put(isCoefficient || joinsNumber(source_, at_) ? unbreakable : " ", 1, Before::blank);
        }
    }

    bool takeSign(std::string_view rest) {
        for (const auto& [written, meant] : signs) {
            if (!rest.starts_with(written)) continue;
            put(meant, written.size(), Before::sign);
            return true;
        }
        return false;
    }

    /// A minus before a number, and a bond between symbols or before the first.
    void takeHyphen() {
        const char next = at_ + 1 < source_.size() ? source_[at_ + 1] : ' ';
        if (at_ == 0 && next >= 'A' && next <= 'Z') return put("\u2013", 1, Before::sign);
        const bool isBehindSymbol =
            before_ == Before::letter || before_ == Before::closing || before_ == Before::script;
        // Names such as C-14 keep their hyphen.
        const std::string_view behindSymbol = isDigit(next) ? "-" : "\u2013";
        put(isBehindSymbol && next != ' ' ? behindSymbol : "\u2212", 1, Before::sign);
    }

    void takeCharacter(std::string_view rest) {
        const auto character = platform::codepage::decodeUtf8(rest, 0);
        const bool isClosing = character.value == U')' || character.value == U']';
        if (character.value == U'{' || character.value == U'}') fail(say::strayBrace);
        const Before kind = isLetter(character.value) ? Before::letter
                            : isClosing               ? Before::closing
                                                      : Before::sign;
        put(escapeHtml(rest.substr(0, character.length)), character.length, kind);
    }

    void put(std::string_view html, std::size_t length, Before kind) {
        html_.append(html);
        at_ += length;
        before_ = kind;
    }

    void fail(const Message& fault) {
        if (!fault_) fault_ = &fault;
    }

    std::string_view source_;
    /// How many pairs of braces the source stands in.
    int depth_;
    std::size_t at_ = 0;
    Before before_ = Before::start;
    std::string html_;
    const Message* fault_ = nullptr;
};

Formula compileBraces(std::string_view source, int depth) {
    if (source.find_first_not_of(' ') == std::string_view::npos) return {{}, &say::emptyFormula};
    if (depth > maxBraces) return {{}, &say::bracesAreTooDeep};
    return FormulaCompilation(source, depth).run();
}

}  // namespace

Formula compileFormula(std::string_view source) { return compileBraces(source, 0); }

}  // namespace contentc
