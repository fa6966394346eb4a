#include "tools/contentc/CompletenessCheck.h"

#include <algorithm>
#include <array>
#include <string>

#include "tools/contentc/ToolCompiler.h"
#include "tools/contentc/source/ContentMessages.h"
#include "tools/contentc/source/PageText.h"

namespace contentc {
namespace {

constexpr std::ptrdiff_t maxTopicWords = 900;
constexpr std::string_view quizLine = "{{tool quiz}}";

bool hasLineWith(const PageSource& page, std::string_view text) {
    return std::ranges::any_of(
        page.body, [text](const TextLine& line) { return line.text.find(text) != std::string::npos; });
}

bool hasMedia(const PageSource& page) {
    constexpr std::array<std::string_view, 4> signs{"<IMG ", "{{molecule ", "{{video ", "{{tool "};
    return std::ranges::any_of(page.body, [&signs](const TextLine& line) {
        return line.text != quizLine && std::ranges::any_of(signs, [&line](std::string_view sign) {
                   return line.text.find(sign) != std::string::npos;
               });
    });
}

/// The words of the text, without those of quizzes.
std::ptrdiff_t countOfWords(const PageSource& page) {
    std::vector<TextLine> read;
    bool isQuiz = false;
    for (const TextLine& line : page.body) {
        if (line.text == quizLine) isQuiz = true;
        if (!isQuiz) read.push_back(line);
        if (line.text == endLine) isQuiz = false;
    }
    const std::string text = visibleText(read);
    std::ptrdiff_t words = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isLetter(text[i]) && (i + 1 == text.size() || !isLetter(text[i + 1]))) ++words;
    }
    return words;
}

void checkTopic(const PageSource& topic, Diagnostics& diagnostics) {
    if (!hasLineWith(topic, quizLine)) diagnostics.warning(topic.place, say::topicWithoutQuiz);
    if (topic.classes.empty()) diagnostics.warning(topic.place, say::topicWithoutClass);
    if (!hasMedia(topic)) diagnostics.warning(topic.place, say::topicWithoutMedia);
    if (const auto words = countOfWords(topic); words > maxTopicWords)
        diagnostics.warning(topic.place, say::topicIsTooLong, {words, maxTopicWords});
}

}  // namespace

void checkCompleteness(const Content& content, Diagnostics& diagnostics) {
    for (const PageSource& page : content.pages) {
        if (page.kind == PageKind::topic) checkTopic(page, diagnostics);
    }
}

}  // namespace contentc
