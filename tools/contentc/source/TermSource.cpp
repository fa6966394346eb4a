#include "tools/contentc/source/TermSource.h"

#include <algorithm>
#include <cstdint>
#include <set>

#include "platform/text/CodePage1253.h"
#include "platform/text/GreekLiteral.h"
#include "tools/contentc/source/HeadMessages.h"
#include "tools/contentc/source/NameKey.h"

namespace contentc {
namespace {

using namespace platform::literals;

constexpr std::size_t keyLength = 8;
// The program's buffers: the rest of a longer first line would become part of the definition, and a longer
// line further down would become two.
constexpr std::size_t maxTerm = 48;
constexpr std::size_t maxLine = 4997;
// The program shows no definition shorter than this.
constexpr std::size_t minDefinition = 5;
// Between two lines of the text shown stand CR and LF.
constexpr std::size_t lineEndSize = 2;

void checkDefinition(const TermSource& term, Diagnostics& diagnostics) {
    std::size_t shown = 0;
    for (const std::string& text : term.definition) {
        shown += text.size() + (shown > 0 ? lineEndSize : 0);
        if (text.size() > maxLine) diagnostics.error(term.place, say::lineIsTooLong, {maxLine});
    }
    if (shown < minDefinition) diagnostics.error(term.place, say::definitionIsTooShort);
}

void checkTerm(const TermSource& term, Diagnostics& diagnostics) {
    if (term.term.size() > maxTerm) diagnostics.error(term.place, say::termIsTooLong, {maxTerm});
    checkDefinition(term, diagnostics);
}

/// The terms of a file. Lines of one paragraph are joined.
class TermFile {
  public:
    TermFile(const SourceFile& file, Diagnostics& diagnostics)
        : lines_(readLines(file, diagnostics)), diagnostics_(diagnostics) {}

    std::vector<TermSource> read() {
        for (const TextLine& line : lines_) {
            const std::string_view text = trimmed(line.text);
            if (text.starts_with("# ")) {
                beginTerm(text.substr(2), line.place);
            } else if (text.empty()) {
                inParagraph_ = false;
            } else if (terms_.empty()) {
                diagnostics_.error(line.place, say::termBegins);
            } else {
                addText(text);
            }
        }
        for (const TermSource& term : terms_) checkTerm(term, diagnostics_);
        return std::move(terms_);
    }

  private:
    void beginTerm(std::string_view names, const SourcePlace& place) {
        TermSource term{place, {}, {}, {}, {}};
        while (!names.empty()) {
            const std::size_t end = std::min(names.find('|'), names.size());
            const std::string name(trimmed(names.substr(0, end)));
            names.remove_prefix(std::min(end + 1, names.size()));
            if (name.empty()) continue;
            if (term.term.empty()) {
                term.term = name;
            } else {
                term.forms.push_back(name);
            }
        }
        if (term.term.empty()) diagnostics_.error(place, say::termWithoutName);
        terms_.push_back(std::move(term));
        inParagraph_ = false;
    }

    void addText(std::string_view text) {
        std::vector<std::string>& lines = terms_.back().definition;
        if (inParagraph_) {
            lines.back().append(" ").append(text);
        } else {
            lines.emplace_back(text);
        }
        inParagraph_ = true;
    }

    std::vector<TextLine> lines_;
    Diagnostics& diagnostics_;
    std::vector<TermSource> terms_;
    bool inParagraph_ = false;
};

/// A letter in Latin, or what comes closest in one letter; 0 for other characters.
char latinLetter(char c) {
    constexpr std::string_view greek = "αβγδεζηθικλμνξοπρστυφχψω"_gr;
    constexpr std::string_view latin = "abgdezhuiklmnjoprstyfxcw";
    if (const std::size_t at = greek.find(c); at != std::string_view::npos) return latin[at];
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ? c : '\0';
}

/// The first four letters of the name, so that a key can be recognised, and four signs of its hash.
std::string keyOf(const std::string& name, std::uint32_t attempt) {
    constexpr std::string_view signs = "0123456789abcdefghijklmnopqrstuvwxyz";
    constexpr std::size_t half = keyLength / 2;
    const std::string folded = nameKey(name);
    std::string key;
    for (const char c : folded) {
        const char letter = latinLetter(c);
        if (letter != '\0' && key.size() < half) key.push_back(letter);
    }
    key.resize(half, '0');
    std::uint32_t hash = 2166136261U + attempt;
    for (const char c : folded) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
    constexpr auto base = static_cast<std::uint32_t>(signs.size());
    for (; key.size() < keyLength; hash /= base) key.push_back(signs[hash % base]);
    return key;
}

}  // namespace

std::vector<TermSource> readTerms(const SourceFile& file, Diagnostics& diagnostics) {
    return TermFile(file, diagnostics).read();
}

void giveKeys(std::vector<TermSource>& terms) {
    // In an order that does not depend on the files in which the terms lie.
    std::vector<TermSource*> inOrder;
    inOrder.reserve(terms.size());
    for (TermSource& term : terms) inOrder.push_back(&term);
    std::ranges::stable_sort(inOrder, {}, [](const TermSource* term) { return nameKey(term->term); });
    std::set<std::string> taken;
    for (TermSource* term : inOrder) {
        for (std::uint32_t attempt = 0; term->key.empty(); ++attempt) {
            std::string key = keyOf(term->term, attempt);
            if (taken.insert(key).second) term->key = std::move(key);
        }
    }
}

TermIndex::TermIndex(const std::vector<TermSource>& terms) {
    for (const TermSource& term : terms) {
        byName_.try_emplace(nameKey(term.term), &term);
    }
    for (const TermSource& term : terms) {
        for (const std::string& form : term.forms) byName_.try_emplace(nameKey(form), &term);
    }
}

const TermSource* TermIndex::find(std::string_view name) const {
    const auto found = byName_.find(nameKey(name));
    return found == byName_.end() ? nullptr : found->second;
}

std::vector<std::string> TermIndex::names() const {
    std::vector<std::string> names;
    for (const auto& [key, term] : byName_) {
        names.push_back(platform::toUtf8(term->term));
        for (const std::string& form : term->forms) names.push_back(platform::toUtf8(form));
    }
    return names;
}

void TermIndex::check(const std::vector<TermSource>& terms, Diagnostics& diagnostics) {
    std::map<std::string, const TermSource*> named;
    for (const TermSource& term : terms) {
        std::vector<std::string> names = term.forms;
        names.push_back(term.term);
        for (const std::string& name : names) {
            const auto [first, isNew] = named.try_emplace(nameKey(name), &term);
            if (isNew || first->second == &term) continue;
            diagnostics.error(
                term.place, say::termIsCalledSoToo,
                {platform::toUtf8(name), shownFile(first->second->place.file), first->second->place.line});
        }
    }
}

std::string glossaryFile(const TermSource& term) {
    std::string bytes = term.term + "\r\n";
    for (const std::string& line : term.definition) bytes += line + "\r\n";
    return bytes;
}

}  // namespace contentc
