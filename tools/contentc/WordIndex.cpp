#include "tools/contentc/WordIndex.h"

#include <algorithm>
#include <map>

#include "tools/contentc/GreekStemmer.h"
#include "tools/contentc/source/PageText.h"

namespace contentc {
namespace {

class WordIndexMaker {
  public:
    explicit WordIndexMaker(const Content& content) : m_content(content) {}

    WordIndex run() {
        for (const formats::Section& section : formats::sectionTable()) {
            for (const PageSource* topic : topicsOf(m_content, section)) {
                addPage(*topic, topic->number, 0);
                for (const PageSource* entry : entriesOf(m_content, *topic))
                    addPage(*entry, topic->number, entry->number);
            }
        }
        m_index.words.assign(m_words.begin(), m_words.end());
        addAlternatives();
        addFirstLetters();
        return std::move(m_index);
    }

  private:
    void addPage(const PageSource& page, std::int32_t pageId, std::int32_t itemCode) {
        for (const std::string& word : wordsOf(page)) {
            if (m_content.words.stopWords.contains(word) || word.size() > formats::maxIndexedWord) continue;
            m_words.insert(word);
            m_index.occurrences.push_back({word, pageId, itemCode, page.section->code});
        }
    }

    void addAlternatives() {
        std::int32_t group = 0;
        for (std::vector<std::string>& forms : groupForms(m_words, m_content.words.formGroups)) {
            std::erase_if(forms, [](const auto& form) { return form.size() > formats::maxAlternative; });
            if (forms.size() < 2) continue;
            ++group;
            for (const std::string& form : forms) m_index.alternatives.push_back({group, form});
        }
    }

    void addFirstLetters() {
        for (std::uint32_t i = 0; i < m_index.words.size(); ++i) {
            const char letter = m_index.words[i].front();
            auto& letters = m_index.firstLetters;
            if (letters.empty() || letters.back().letter != letter) letters.push_back({letter, i});
        }
    }

    const Content& m_content;
    std::set<std::string> m_words;
    WordIndex m_index;
};

}  // namespace

WordIndex makeWordIndex(const Content& content) { return WordIndexMaker(content).run(); }

std::vector<std::vector<std::string>> groupForms(const std::set<std::string>& words,
                                                 const std::vector<std::vector<std::string>>& formGroups) {
    // A group of the author has his first word as its key, marked so that no stem is the same.
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
    for (auto& [key, forms] : byKey) groups.push_back(std::move(forms));
    std::ranges::sort(groups);
    return groups;
}

}  // namespace contentc
