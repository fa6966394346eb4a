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
        for (const std::string& word : wordsOf(page)) {
            if (content_.words.stopWords.contains(word) || word.size() > formats::maxIndexedWord) continue;
            words_.insert(word);
            index_.occurrences.push_back({word, pageId, itemCode, page.section->code});
        }
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
