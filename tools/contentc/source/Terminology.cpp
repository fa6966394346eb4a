#include "tools/contentc/source/Terminology.h"

#include <algorithm>
#include <map>

#include "platform/text/CodePage1253.h"
#include "platform/text/GreekLiteral.h"
#include "tools/contentc/source/ContentMessages.h"
#include "tools/contentc/source/PageText.h"
#include "tools/contentc/source/Parallel.h"

namespace contentc {
namespace {

using namespace platform::literals;

constexpr char openingQuote = "«"_gr[0];
constexpr char closingQuote = "»"_gr[0];

std::size_t endOfWord(std::string_view text, std::size_t at) {
    while (at < text.size() && isLetter(text[at])) ++at;
    return at;
}

/// The words of a list, in code page 1253 and small letters.
class Terminology {
  public:
    Terminology(const SourceFile& list, Diagnostics& diagnostics) {
        for (const TextLine& line : readLines(list, diagnostics)) {
            const std::string_view text = trimmed(line.text);
            if (!text.empty() && !text.starts_with('#')) add(text, line.place, diagnostics);
        }
    }

    void check(const TextLine& line, Diagnostics& diagnostics) const {
        const std::string lower = platform::toLower(line.text);
        for (std::size_t at = 0; at < lower.size();) {
            const std::size_t end = endOfWord(lower, at);
            if (end > at) checkAt(line, lower, at, diagnostics);
            at = std::max(end, at + 1);
        }
    }

  private:
    struct Term {
        std::string wrong;
        std::string right;
    };

    void add(std::string_view text, const SourcePlace& place, Diagnostics& diagnostics) {
        const std::size_t bar = text.find('|');
        const Term term{platform::toLower(trimmed(text.substr(0, bar))),
                        bar == std::string_view::npos ? "" : std::string(trimmed(text.substr(bar + 1)))};
        if (term.wrong.empty() || term.right.empty()) {
            diagnostics.error(place, say::notATerminologyLine);
        } else {
            byFirstWord_[term.wrong.substr(0, endOfWord(term.wrong, 0))].push_back(term);
        }
    }

    void checkAt(const TextLine& line, std::string_view lower, std::size_t at,
                 Diagnostics& diagnostics) const {
        const auto terms = byFirstWord_.find(lower.substr(at, endOfWord(lower, at) - at));
        if (terms == byFirstWord_.end()) return;
        for (const Term& term : terms->second) {
            const std::size_t end = at + term.wrong.size();
            if (!lower.substr(at).starts_with(term.wrong) || endOfWord(lower, end) != end) continue;
            const bool isSpokenOf =
                at > 0 && lower[at - 1] == openingQuote && end < lower.size() && lower[end] == closingQuote;
            if (isSpokenOf) continue;
            const std::string_view written = std::string_view(line.text).substr(at, term.wrong.size());
            diagnostics
                .warning(placeOfBytes(written, line), say::otherWordIsUsed, {platform::toUtf8(written)})
                .suggest(say::writeInstead, {platform::toUtf8(term.right)});
        }
    }

    std::map<std::string, std::vector<Term>, std::less<>> byFirstWord_;
};

void checkPage(const PageSource& page, const Terminology& terminology, Diagnostics& diagnostics) {
    terminology.check(page.title, diagnostics);
    terminology.check(page.summary, diagnostics);
    for (const TextLine& line : page.markdown)
        terminology.check({platform::fromUtf8(line.text), line.place}, diagnostics);
}

/// The names of terms and what else they are called may be any words.
void checkTexts(const SourceFile& terms, const Terminology& terminology, Diagnostics& diagnostics) {
    Diagnostics toldBefore;
    for (const TextLine& line : readLines(terms, toldBefore)) {
        if (!line.text.starts_with('#')) terminology.check(line, diagnostics);
    }
}

}  // namespace

void checkTerminology(const SourceTree& tree, const Content& content, Diagnostics& diagnostics) {
    if (!tree.terminology) return;
    const Terminology terminology(*tree.terminology, diagnostics);
    const std::string own = (tree.root / "").generic_string();
    std::vector<Diagnostics> found(content.pages.size());
    inParallel(content.pages.size(), pagesForThread, [&](std::size_t i) {
        const PageSource& page = content.pages[i];
        if (page.place.file.starts_with(own)) checkPage(page, terminology, found[i]);
    });
    for (Diagnostics& ofPage : found) diagnostics.add(std::move(ofPage));
    for (const SourceFile& file : tree.terms) {
        if (file.layer == 0) checkTexts(file, terminology, diagnostics);
    }
}

}  // namespace contentc
