#include <algorithm>
#include <memory>

#include "fuzz/Target.h"
#include "tools/drive/script/CommandLine.h"
#include "tools/drive/script/ComponentValues.h"
#include "tools/drive/script/KeyName.h"
#include "tools/drive/script/Request.h"
#include "tools/drive/script/WindowName.h"
#include "tools/drive/script/Words.h"

namespace {

using platform::TypeCode;

void readWords(const std::vector<std::string>& words) {
    for (const std::string& word : words) {
        (void)drive::keyStrokeOf(word);
        (void)drive::windowNameOf(word);
    }
    constexpr TypeCode types[] = {TypeCode::i2,   TypeCode::i4,      TypeCode::boolean, TypeCode::booleanRef,
                                  TypeCode::text, TypeCode::variant, TypeCode::none};
    const std::size_t count = std::min(words.size(), std::size(types));
    for (std::size_t from = 0; from < count; ++from) {
        const auto given = std::span(types).subspan(from, count - from);
        const auto values = drive::componentArguments(given, std::span(words).first(count - from));
        for (const auto& value : values ? values->values : std::vector<platform::Variant>())
            (void)drive::variantJson(value);
    }
}

void answer(const std::vector<std::string>& words) {
    const auto request = std::make_shared<drive::Request>(words);
    for (std::size_t i = 0; i < request->argumentCount(); ++i)
        request->set(request->argument(i).c_str(), words.front());
    const std::string line = drive::toLine(request->answer());
    fuzz::require(line.find('\n') == line.npos, "an answer is one line");
    fuzz::require(drive::Json::accept(line), "an answer is JSON");
}

}  // namespace

/// A script of the scripted desktop: its lines as words, and these as what commands take.
void fuzz::tryInput(std::string_view input) {
    while (!input.empty()) {
        const std::string_view line = input.substr(0, input.find('\n'));
        input.remove_prefix(std::min(line.size() + 1, input.size()));
        const auto words = drive::splitWords(line);
        if (!words || words->empty()) continue;
        readWords(*words);
        answer(*words);
        std::vector<const char*> arguments;
        for (const std::string& word : *words) arguments.push_back(word.c_str());
        (void)drive::taskOf(arguments);
    }
}
