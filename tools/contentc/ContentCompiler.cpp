#include "tools/contentc/ContentCompiler.h"

#include <algorithm>

#include "formats/PageNumber.h"
#include "tools/contentc/CardMakers.h"
#include "tools/contentc/ContentChecks.h"
#include "tools/contentc/ElementScript.h"
#include "tools/contentc/IndexFiles.h"
#include "tools/contentc/PageCompiler.h"
#include "tools/contentc/PageScaffold.h"
#include "tools/contentc/markdown/BodyCompiler.h"
#include "tools/contentc/source/CommonMessages.h"
#include "tools/contentc/source/Content.h"
#include "tools/contentc/source/DataSetSource.h"
#include "tools/contentc/source/MediaChecks.h"
#include "tools/contentc/source/Parallel.h"

namespace contentc {
namespace {

class ContentCompilation {
  public:
    ContentCompilation(const SourceTree& tree, Diagnostics& diagnostics)
        : tree_(tree), diagnostics_(diagnostics), content_(readContent(tree, diagnostics)) {
        checkClasses(tree_, content_, diagnostics_);
        compileBodies();
    }

    OutputFiles run() {
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
        checkUnused(tree_, references_, diagnostics_);
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
        inParallel(bodies.size(), [&](std::size_t i) { compileBody(*bodies[i], context, found[i]); });
        for (Diagnostics& ofBody : found) diagnostics_.add(std::move(ofBody));
    }

    void addPages() {
        if (content_.startPage) addPage(*content_.startPage, "a.htm", plainScaffold());
        if (content_.helpPage) addPage(*content_.helpPage, "help.htm", plainScaffold());
        const auto pageScaffold = scaffold(tree_.pageTemplate, "page.html", {"title", "section"});
        const auto moleculeScaffold = usesMolecules() ? scaffold(tree_.moleculeTemplate, "molecule.html",
                                                                 {"title", "section", "molfile"})
                                                      : std::nullopt;
        for (const PageSource& page : content_.pages) {
            const auto& around = page.scaffold == PageTemplate::molecule ? moleculeScaffold : pageScaffold;
            // With a wrong scaffold the bodies are still compiled, to find the errors in them.
            if (const auto path = formats::pagePath(page.number))
                addPage(page, *path, around.value_or(PageScaffold{}));
        }
    }

    void addPage(const PageSource& page, const std::string& path, const PageScaffold& around) {
        outputs_.add(path, compilePage(page, around, references_, diagnostics_), page.place, diagnostics_);
    }

    bool usesMolecules() const {
        return std::ranges::any_of(
            content_.pages, [](const PageSource& page) { return page.scaffold == PageTemplate::molecule; });
    }

    std::optional<PageScaffold> scaffold(const std::optional<SourceFile>& file, const std::string& name,
                                         std::initializer_list<std::string_view> placeholders) {
        if (file) return readScaffold(*file, placeholders, diagnostics_);
        diagnostics_.error({(tree_.root / "templates" / name).generic_string()}, say::isMissing);
        return std::nullopt;
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

std::optional<OutputFiles> compileContent(const SourceTree& tree, Diagnostics& diagnostics) {
    OutputFiles outputs = ContentCompilation(tree, diagnostics).run();
    if (diagnostics.hasErrors()) return std::nullopt;
    return outputs;
}

}  // namespace contentc
