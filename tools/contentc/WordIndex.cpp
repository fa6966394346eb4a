#include "tools/contentc/WordIndex.h"

#include <algorithm>
#include <map>

#include "tools/contentc/GreekStemmer.h"
#include "tools/contentc/source/PageText.h"
#include "tools/contentc/source/Parallel.h"

namespace contentc {
namespace {

using Words = std::set<std::string>;

class WordIndexMaker {
  public:
    explicit WordIndexMaker(const Content& content) : content_(content), ofPages_(content.pages.size()) {
        inParallel(content.pages.size(), pagesForThread,
                   [this](std::size_t i) { ofPages_[i] = wordsOf(content_.pages[i]); });
        std::set<std::string_view> onPages;
        for (const Words& words : ofPages_) onPages.insert(words.begin(), words.end());
        for (const TermSource& term : content.terms) ofTerms_[term.key] = wordsOfTerm(term, onPages);
    }

    WordIndex run() {
        for (const formats::Section& section : formats::sectionTable()) {
            for (const PageSource* topic : topicsOf(content_, section)) {
                addPage(*topic, topic->number, 0);
                for (const PageSource* entry : entriesOf(content_, *topic))
                    addPage(*entry, topic->number, entry->number);
            }
        }
        index_.words.assign(words_.begin(), words_.end());
        addAlternatives();
        addFirstLetters();
        return std::move(index_);
    }

  private:
    void addPage(const PageSource& page, std::int32_t pageId, std::int32_t itemCode) {
        const Words& own = ofPages_[static_cast<std::size_t>(&page - content_.pages.data())];
        std::set<std::string_view> words(own.begin(), own.end());
        addTermsOf(page, words);
        for (const std::string_view each : words) {
            const std::string word(each);
            if (content_.words.stopWords.contains(word) || word.size() > formats::maxIndexedWord) continue;
            words_.insert(word);
            index_.occurrences.push_back({word, pageId, itemCode, page.section->code});
        }
    }

    /// Adds the words of the terms that the page links.
    void addTermsOf(const PageSource& page, std::set<std::string_view>& words) const {
        for (const TextLine& line : page.body) {
            for (std::size_t at = 0; (at = line.text.find("[[", at)) != std::string::npos;) {
                at += 2;
                const auto term =
                    ofTerms_.find(std::string_view(line.text).substr(at, line.text.find('|', at) - at));
                if (term != ofTerms_.end()) words.insert(term->second.begin(), term->second.end());
            }
        }
    }

    /// Its names, and those words of its text by which no page would be found.
    static Words wordsOfTerm(const TermSource& term, const std::set<std::string_view>& onPages) {
        std::string text;
        for (const std::string& line : term.definition) text += line + '\n';
        Words words = wordsOf(text);
        std::erase_if(words, [&onPages](const std::string& word) { return onPages.contains(word); });
        words.merge(wordsOf(term.term));
        for (const std::string& form : term.forms) words.merge(wordsOf(form));
        return words;
    }

    void addAlternatives() {
        std::int32_t group = 0;
        for (std::vector<std::string>& forms : groupForms(words_, content_.words.formGroups)) {
            std::erase_if(forms, [](const auto& form) { return form.size() > formats::maxAlternative; });
            if (forms.size() < 2) continue;
            ++group;
            for (const std::string& form : forms) index_.alternatives.push_back({group, form});
        }
    }

    void addFirstLetters() {
        for (std::uint32_t i = 0; i < index_.words.size(); ++i) {
            const char letter = index_.words[i].front();
            auto& letters = index_.firstLetters;
            if (letters.empty() || letters.back().letter != letter) letters.push_back({letter, i});
        }
    }

    const Content& content_;
    /// In the order of the pages.
    std::vector<Words> ofPages_;
    /// By the keys of the terms.
    std::map<std::string_view, Words> ofTerms_;
    Words words_;
    WordIndex index_;
};

}  // namespace

WordIndex makeWordIndex(const Content& content) { return WordIndexMaker(content).run(); }

std::vector<std::vector<std::string>> groupForms(const std::set<std::string>& words,
                                                 const std::vector<std::vector<std::string>>& formGroups) {
    // The key of an author's group is its first word with a '=' before it, which no stem has.
    std::map<std::string_view, std::string> keys;
    for (const std::vector<std::string>& group : formGroups) {
        for (const std::string& word : group) keys[word] = '=' + group.front();
    }
    const GreekStemmer stemmer;
    std::map<std::string, std::vector<std::string>> byKey;
    for (const std::string& word : words) {
        const auto key = keys.find(word);
        byKey[key == keys.end() ? stemmer.stemOf(word) : key->second].push_back(word);
    }
    std::vector<std::vector<std::string>> groups;
    groups.reserve(byKey.size());
    for (auto& [key, forms] : byKey) groups.push_back(std::move(forms));
    std::ranges::sort(groups);
    return groups;
}

}  // namespace contentc
