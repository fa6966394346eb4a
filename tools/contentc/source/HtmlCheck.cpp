#include "tools/contentc/source/HtmlCheck.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <span>

#include "platform/text/CodePage1253.h"
#include "tools/contentc/source/HtmlMessages.h"

namespace contentc {
namespace {

constexpr std::array<std::string_view, 14> emptyTags{"area",  "base",   "br",    "col",  "embed",
                                                     "hr",    "img",    "input", "link", "meta",
                                                     "param", "source", "track", "wbr"};
/// Their ends may be left out.
constexpr std::array<std::string_view, 15> openEndedTags{"p",        "li",     "dt",    "dd",    "td",
                                                         "th",       "tr",     "thead", "tbody", "tfoot",
                                                         "colgroup", "option", "html",  "head",  "body"};
constexpr std::array<std::string_view, 12> inlineTags{"sub", "sup", "b",    "i",     "em",   "strong",
                                                      "a",   "u",   "span", "small", "code", "font"};

bool isOneOf(std::span<const std::string_view> names, std::string_view name) {
    return std::ranges::find(names, name) != names.end();
}

bool isNameLetter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-' || c == '_'; }

/// A tag of a page.
struct HtmlTag {
    std::string name;
    bool isEnd = false;
    SourcePlace place;
};

std::string shown(const HtmlTag& tag) {
    std::string name = tag.name;
    std::ranges::transform(name, name.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return (tag.isEnd ? "</" : "<") + name + '>';
}

/// Which tags are open.
class OpenTags {
  public:
    explicit OpenTags(Diagnostics& diagnostics) : diagnostics_(diagnostics) {}

    void take(HtmlTag tag) {
        if (isOneOf(emptyTags, tag.name)) return;
        if (tag.isEnd) {
            close(tag);
        } else {
            open_.push_back(std::move(tag));
        }
    }

    void end() {
        for (const HtmlTag& tag : open_) reportOpen(tag);
    }

  private:
    void close(const HtmlTag& tag) {
        const auto same = std::ranges::find(open_.rbegin(), open_.rend(), tag.name, &HtmlTag::name);
        if (same == open_.rend()) return closeNothing(tag);
        while (open_.back().name != tag.name) {
            reportOpen(open_.back());
            open_.pop_back();
        }
        open_.pop_back();
    }

    /// `<SUB>4</SUP>` is one mistake, not two.
    void closeNothing(const HtmlTag& tag) {
        const bool isMistyped =
            !open_.empty() && isOneOf(inlineTags, tag.name) && isOneOf(inlineTags, open_.back().name);
        if (!isMistyped) {
            diagnostics_.error(tag.place, say::tagClosesNothing, {shown(tag)});
            return;
        }
        const HtmlTag right{open_.back().name, true, {}};
        diagnostics_.error(tag.place, say::tagClosesOther, {shown(tag), shown(open_.back())})
            .suggest(say::writeInstead, {shown(right)});
        open_.pop_back();
    }

    void reportOpen(const HtmlTag& tag) {
        if (!isOneOf(openEndedTags, tag.name)) {
            const HtmlTag end{tag.name, true, {}};
            diagnostics_.error(tag.place, say::tagIsOpen, {shown(tag)})
                .suggest(say::writeWhereItEnds, {shown(end)});
        }
    }

    Diagnostics& diagnostics_;
    std::vector<HtmlTag> open_;
};

class HtmlReader {
  public:
    explicit HtmlReader(Diagnostics& diagnostics) : open_(diagnostics) {}

    void read(const TextLine& line) {
        place_ = line.place;
        rest_ = line.text;
        while (!rest_.empty()) {
            if (!skipUntil_.empty()) {
                skip();
            } else if (inTag_) {
                readAttributes();
            } else {
                findTag();
            }
        }
    }

    void end() { open_.end(); }
    const std::vector<Reference>& classes() const { return classes_; }

  private:
    void skip() {
        const std::size_t at = platform::toLower(rest_).find(skipUntil_);
        if (at == std::string::npos) {
            rest_ = {};
            return;
        }
        // If the skipped part ends in a tag, as a script does, that tag is read next.
        rest_.remove_prefix(skipUntil_.starts_with('<') ? at : at + skipUntil_.size());
        skipUntil_.clear();
    }

    void findTag() {
        const std::size_t at = std::min(rest_.find('<'), rest_.size());
        rest_.remove_prefix(at);
        if (rest_.empty()) return;
        const bool isEnd = rest_.substr(1).starts_with('/');
        const std::string_view behind = rest_.substr(isEnd ? 2 : 1);
        const auto length =
            static_cast<std::size_t>(std::ranges::find_if_not(behind, isNameLetter) - behind.begin());
        if (rest_.starts_with("<!--")) {
            skipUntil_ = "-->";
        } else if (rest_.starts_with("<!")) {
            skipUntil_ = ">";
        } else if (length > 0 && std::isalpha(static_cast<unsigned char>(behind.front()))) {
            beginTag({platform::toLower(behind.substr(0, length)), isEnd, place_});
            rest_.remove_prefix((isEnd ? 2 : 1) + length);
            return;
        }
        rest_.remove_prefix(1);
    }

    void beginTag(HtmlTag tag) {
        inTag_ = true;
        lastName_ = tag.isEnd ? "" : tag.name;
        open_.take(std::move(tag));
    }

    void readAttributes() {
        if (quote_ != 0) return readValue();
        const char c = rest_.front();
        if (c == '>') {
            inTag_ = false;
            attribute_.clear();
            if (lastName_ == "script" || lastName_ == "style") skipUntil_ = "</" + lastName_;
        } else if (c == '"' || c == '\'') {
            quote_ = c;
        } else if (isNameLetter(c)) {
            readWord();
            return;
        }
        rest_.remove_prefix(1);
    }

    /// The name of an attribute, or a value without quotes.
    void readWord() {
        const auto end = std::ranges::find_if_not(rest_, isNameLetter);
        const auto length = static_cast<std::size_t>(end - rest_.begin());
        attribute_ = platform::toLower(rest_.substr(0, length));
        rest_.remove_prefix(length);
    }

    void readValue() {
        const std::size_t end = std::min(rest_.find(quote_), rest_.size());
        if (attribute_ == "class") noteClasses(rest_.substr(0, end));
        if (end < rest_.size()) {
            quote_ = 0;
            attribute_.clear();
        }
        rest_.remove_prefix(std::min(rest_.size(), end + 1));
    }

    void noteClasses(std::string_view value) {
        for (value = trimmed(value); !value.empty(); value = trimmed(value)) {
            const std::size_t end = std::min(value.find(' '), value.size());
            classes_.push_back({place_, std::string(value.substr(0, end))});
            value.remove_prefix(end);
        }
    }

    std::vector<Reference> classes_;
    OpenTags open_;
    SourcePlace place_;
    std::string_view rest_;
    /// What ends a comment or a script that is being passed over; in small letters.
    std::string skipUntil_;
    bool inTag_ = false;
    char quote_ = 0;
    std::string attribute_;
    /// The name of the tag being read, unless it is an end.
    std::string lastName_;
};

}  // namespace

void checkHtml(const std::vector<TextLine>& lines, Diagnostics& diagnostics) {
    HtmlReader reader(diagnostics);
    for (const TextLine& line : lines) reader.read(line);
    reader.end();
}

std::vector<Reference> classesUsed(const std::vector<TextLine>& lines) {
    Diagnostics ofTags;
    HtmlReader reader(ofTags);
    for (const TextLine& line : lines) reader.read(line);
    return reader.classes();
}

std::set<std::string> classesIn(std::string_view styles) {
    std::set<std::string> classes;
    for (std::size_t dot = styles.find('.'); dot != std::string_view::npos; dot = styles.find('.', dot + 1)) {
        const std::string_view name = styles.substr(dot + 1);
        const auto end = std::ranges::find_if_not(name, isNameLetter);
        if (end != name.begin() && !std::isdigit(static_cast<unsigned char>(name.front())))
            classes.emplace(name.begin(), end);
    }
    return classes;
}

}  // namespace contentc
