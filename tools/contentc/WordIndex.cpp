#include "tools/contentc/WordIndex.h"

#include <algorithm>
#include <map>

#include "tools/contentc/GreekStemmer.h"
#include "tools/contentc/source/PageText.h"

namespace contentc {
namespace {

class WordIndexMaker {
  public:
    explicit WordIndexMaker(const Content& content) : content_(content) {}

    WordIndex run() {
        for (const PageSource& page : content_.pages) wordsOfPages_.merge(wordsOf(page));
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
        std::set<std::string> words = wordsOf(page);
        for (const TermSource* term : termsOf(page)) words.merge(wordsOfTerm(*term));
        for (const std::string& word : words) {
            if (content_.words.stopWords.contains(word) || word.size() > formats::maxIndexedWord) continue;
            words_.insert(word);
            index_.occurrences.push_back({word, pageId, itemCode, page.section->code});
        }
    }

    /// The terms that the page links.
    std::vector<const TermSource*> termsOf(const PageSource& page) const {
        std::set<std::string_view> keys;
        for (const TextLine& line : page.body) {
            for (std::size_t at = 0; (at = line.text.find("[[", at)) != std::string::npos;) {
                at += 2;
                keys.insert(std::string_view(line.text).substr(at, line.text.find('|', at) - at));
            }
        }
        std::vector<const TermSource*> terms;
        for (const TermSource& term : content_.terms) {
            if (keys.contains(term.key)) terms.push_back(&term);
        }
        return terms;
    }

    /// Its names, and those words of its text by which no page would be found.
    std::set<std::string> wordsOfTerm(const TermSource& term) const {
        std::string text;
        for (const std::string& line : term.definition) text += line + '\n';
        std::set<std::string> words = wordsOf(text);
        std::erase_if(words, [this](const std::string& word) { return wordsOfPages_.contains(word); });
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
    std::set<std::string> wordsOfPages_;
    std::set<std::string> words_;
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
