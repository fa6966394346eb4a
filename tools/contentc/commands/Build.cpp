#include "tools/contentc/commands/Build.h"

#include <algorithm>
#include <iostream>
#include <vector>

#include "tools/contentc/ContentCompiler.h"
#include "tools/contentc/DataFolderWriter.h"
#include "tools/contentc/commands/CommandMessages.h"
#include "tools/contentc/commands/ProgressBar.h"
#include "tools/contentc/render/MakeMedia.h"

namespace contentc {
namespace {

class Building {
  public:
    explicit Building(const Options& options) : options_(options), language_(localeLanguage()) {}

    bool check() {
        SourceTree tree = readSourceTree(options_.sources, diagnostics_);
        pretendMedia(tree);
        const auto files =
            compileContent(tree, diagnostics_, options_.complete ? Checks::complete : Checks::usual);
        if (!files || !mayBeUsed()) return tell(false, {say::allIsRight, {}});
        MessageValues values = counts(tree, *files);
        const auto warnings = std::ssize(diagnostics_.sorted());
        if (warnings == 0) return tell(true, {say::allIsRight, std::move(values)});
        values.emplace_back(warnings);
        return tell(true, {say::areOnlyWarnings, std::move(values)});
    }

    bool build() {
        SourceTree tree = readSourceTree(options_.sources, diagnostics_);
        make(tree);
        const auto files = compileContent(tree, diagnostics_);
        if (!files || !mayBeUsed()) return tell(false, {say::isBuilt, {}});
        MessageValues values = counts(tree, *files);
        values.emplace_back(options_.output.generic_string());
        return tell(writeDataFolder(*files, options_.output, diagnostics_),
                    {say::isBuilt, std::move(values)});
    }

  private:
    void make(SourceTree& tree) {
        const MadeFiles made(options_.cache);
        ProgressBar bar(Phrase{say::makingMedia, {}}.in(language_));
        makeMedia(
            tree, made, [&bar](std::size_t done, std::size_t all) { bar.show(done, all); }, diagnostics_);
        made.deleteOld();
    }

    bool mayBeUsed() const {
        return !diagnostics_.hasErrors() && (!options_.strict || diagnostics_.sorted().empty());
    }

    static MessageValues counts(const SourceTree& tree, const OutputFiles& files) {
        std::size_t pages = 0;
        for (const SectionFolder& section : tree.sections) pages += section.pages.size();
        const auto isTerm = [](const auto& file) { return file.first.starts_with("glossary"); };
        return {pages, std::ranges::count_if(files.files(), isTerm)};
    }

    bool tell(bool succeeded, const Phrase& success) const {
        const std::vector<Diagnostic> found = diagnostics_.sorted();
        for (const Diagnostic& diagnostic : found) std::cerr << toLine(diagnostic, language_) << '\n';
        const auto errors = std::ranges::count(found, Severity::error, &Diagnostic::severity);
        const auto warnings = std::ssize(found) - errors;
        if (succeeded) {
            std::cout << success.in(language_) << '\n';
        } else if (errors == 0) {
            std::cerr << Phrase{say::warningsCount, {warnings}}.in(language_) << '\n';
        } else {
            std::cerr << Phrase{say::thereWereErrors, {errors, warnings}}.in(language_) << '\n';
        }
        std::cout.flush();
        return succeeded;
    }

    const Options& options_;
    Language language_;
    Diagnostics diagnostics_;
};

}  // namespace

bool checkFolder(const Options& options) { return Building(options).check(); }

bool buildFolder(const Options& options) { return Building(options).build(); }

}  // namespace contentc
