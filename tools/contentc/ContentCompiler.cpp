#include "tools/contentc/ContentCompiler.h"

#include <algorithm>

#include "formats/PageNumber.h"
#include "tools/contentc/CardMakers.h"
#include "tools/contentc/CompletenessCheck.h"
#include "tools/contentc/ContentChecks.h"
#include "tools/contentc/ElementScript.h"
#include "tools/contentc/IndexFiles.h"
#include "tools/contentc/PageCompiler.h"
#include "tools/contentc/PageScaffold.h"
#include "tools/contentc/SourceColumns.h"
#include "tools/contentc/markdown/BodyCompiler.h"
#include "tools/contentc/source/CommonMessages.h"
#include "tools/contentc/source/Content.h"
#include "tools/contentc/source/DataSetSource.h"
#include "tools/contentc/source/MediaChecks.h"
#include "tools/contentc/source/Parallel.h"
#include "tools/contentc/source/Terminology.h"

namespace contentc {
namespace {

class ContentCompilation {
  public:
    ContentCompilation(const SourceTree& tree, Diagnostics& diagnostics)
        : tree_(tree), diagnostics_(diagnostics), content_(readContent(tree, diagnostics)) {
        checkClasses(tree_, content_, diagnostics_);
        compileBodies();
    }

    OutputFiles run(Checks checks) {
        addPages();
        addTerms();
        addStyle();
        addDataSets(tree_.dataSets, outputs_, diagnostics_);
        addCopies("images\\", tree_.pictures);
        addCopies("mol\\", tree_.molecules);
        addCopies("video\\", tree_.videos);
        addTools();
        checkContent(content_, tree_.root, diagnostics_);
        checkReferences(references_, content_, outputs_, diagnostics_);
        checkMedia(tree_, diagnostics_);
        checkUnused(tree_, content_, references_, diagnostics_);
        checkTerminology(tree_, content_, diagnostics_);
        if (checks == Checks::complete) checkCompleteness(content_, diagnostics_);
        addColumns(content_, diagnostics_);
        if (!diagnostics_.hasErrors()) addIndexFiles(content_, outputs_, diagnostics_);
        return std::move(outputs_);
    }

  private:
    /// Turns the bodies in Markdown into HTML with marks.
    void compileBodies() {
        const TermIndex terms(content_.terms);
        const PageIndex pages(content_.pages);
        const PageRelations relations(content_, pages, diagnostics_);
        const PictureSizes pictures = readPictureSizes(tree_);
        const BodyContext context{
            terms,    pages,    pictures, elementCardMaker(), compoundCardMaker(tree_.dataSets, diagnostics_),
            content_, relations};
        std::vector<PageSource*> bodies;
        for (auto* plain : {&content_.startPage, &content_.helpPage}) {
            if (*plain) bodies.push_back(&**plain);
        }
        for (PageSource& page : content_.pages) bodies.push_back(&page);
        std::vector<Diagnostics> found(bodies.size());
        inParallel(bodies.size(), pagesForThread,
                   [&](std::size_t i) { compileBody(*bodies[i], context, found[i]); });
        for (Diagnostics& ofBody : found) diagnostics_.add(std::move(ofBody));
    }

    /// A page with where it goes and what stands round it.
    struct PageToCompile {
        const PageSource& page;
        std::string path;
        const PageScaffold& around;
    };

    void addPages() {
        const PageScaffold start = startScaffold();
        const PageScaffold help = helpScaffold();
        const auto pageScaffold = scaffold(tree_.pageTemplate, "page.html", {"title", "section"});
        const auto moleculeScaffold = usesMolecules() ? scaffold(tree_.moleculeTemplate, "molecule.html",
                                                                 {"title", "section", "molfile"})
                                                      : PageScaffold{};
        std::vector<PageToCompile> pages;
        if (content_.startPage) pages.push_back({*content_.startPage, "a.htm", start});
        if (content_.helpPage) pages.push_back({*content_.helpPage, "help.htm", help});
        for (const PageSource& page : content_.pages) {
            const bool hasMolecule = page.scaffold == PageTemplate::molecule;
            if (auto path = formats::pagePath(page.number))
                pages.push_back({page, *std::move(path), hasMolecule ? moleculeScaffold : pageScaffold});
        }
        compilePages(pages);
    }

    void compilePages(const std::vector<PageToCompile>& pages) {
        std::vector<std::string> bytes(pages.size());
        std::vector<References> references(pages.size());
        std::vector<Diagnostics> found(pages.size());
        inParallel(pages.size(), pagesForThread, [&](std::size_t i) {
            bytes[i] = compilePage(pages[i].page, pages[i].around, references[i], found[i]);
        });
        for (std::size_t i = 0; i < pages.size(); ++i) {
            references_.add(std::move(references[i]));
            diagnostics_.add(std::move(found[i]));
            outputs_.add(pages[i].path, std::move(bytes[i]), pages[i].page.place, diagnostics_);
        }
    }

    bool usesMolecules() const {
        return std::ranges::any_of(
            content_.pages, [](const PageSource& page) { return page.scaffold == PageTemplate::molecule; });
    }

    /// A wrong scaffold is empty: the bodies are still compiled, to find the errors in them.
    PageScaffold scaffold(const std::optional<SourceFile>& file, const std::string& name,
                          std::initializer_list<std::string_view> placeholders) {
        if (file) return readScaffold(*file, placeholders, diagnostics_).value_or(PageScaffold{});
        diagnostics_.error({(tree_.root / "templates" / name).generic_string()}, say::isMissing);
        return {};
    }

    void addTerms() {
        for (const TermSource& term : content_.terms) {
            outputs_.add("glossary\\" + term.key + ".htm", glossaryFile(term), term.place, diagnostics_);
        }
    }

    void addStyle() {
        if (!tree_.style) return;
        std::string bytes;
        for (const TextLine& line : readLines(*tree_.style, diagnostics_)) bytes += line.text + "\r\n";
        outputs_.add("style\\kalyxo.css", std::move(bytes), tree_.style->place(), diagnostics_);
    }

    void addCopies(const std::string& folder, const std::vector<SourceFile>& files) {
        for (const SourceFile& file : files) {
            outputs_.add(folder + file.name(), file.bytes, file.place(), diagnostics_);
        }
    }

    void addTools() {
        if (tree_.tools.empty()) return;
        for (const SourceFile& file : tree_.tools) {
            if (file.path.extension() == ".txt") continue;
            const std::string folder = file.path.parent_path().filename().string();
            outputs_.add("tools\\" + folder + '\\' + file.name(), file.bytes, file.place(), diagnostics_);
        }
        outputs_.add("tools\\shared\\elements.js", elementScript(), {(tree_.root / "tools").generic_string()},
                     diagnostics_);
    }

    const SourceTree& tree_;
    Diagnostics& diagnostics_;
    Content content_;
    References references_;
    OutputFiles outputs_;
};

}  // namespace

std::optional<OutputFiles> compileContent(const SourceTree& tree, Diagnostics& diagnostics, Checks checks) {
    OutputFiles outputs = ContentCompilation(tree, diagnostics).run(checks);
    if (diagnostics.hasErrors()) return std::nullopt;
    return outputs;
}

}  // namespace contentc
