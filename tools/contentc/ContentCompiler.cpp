#include "tools/contentc/ContentCompiler.h"

#include <algorithm>

#include "formats/PageNumber.h"
#include "tools/contentc/ContentChecks.h"
#include "tools/contentc/ElementScript.h"
#include "tools/contentc/IndexFiles.h"
#include "tools/contentc/PageCompiler.h"
#include "tools/contentc/PageScaffold.h"
#include "tools/contentc/source/Content.h"
#include "tools/contentc/source/DataSetSource.h"

namespace contentc {
namespace {

class ContentCompilation {
  public:
    ContentCompilation(const SourceTree& tree, Diagnostics& diagnostics)
        : m_tree(tree), m_diagnostics(diagnostics), m_content(readContent(tree, diagnostics)) {}

    OutputFiles run() {
        addPages();
        addTerms();
        addStyle();
        addDataSets(m_tree.dataSets, m_outputs, m_diagnostics);
        addCopies("images\\", m_tree.pictures);
        addCopies("mol\\", m_tree.molecules);
        addCopies("video\\", m_tree.videos);
        addTools();
        checkDrawings();
        checkContent(m_content, m_tree.root, m_diagnostics);
        checkReferences(m_references, m_content, m_outputs, m_diagnostics);
        if (!m_diagnostics.hasErrors()) addIndexFiles(m_content, m_outputs, m_diagnostics);
        return std::move(m_outputs);
    }

  private:
    void addPages() {
        if (m_content.startPage) addPage(*m_content.startPage, "a.htm", plainScaffold());
        if (m_content.helpPage) addPage(*m_content.helpPage, "help.htm", plainScaffold());
        const auto pageScaffold = scaffold(m_tree.pageTemplate, "page.html", {"title", "section"});
        const auto moleculeScaffold = usesMolecules() ? scaffold(m_tree.moleculeTemplate, "molecule.html",
                                                                 {"title", "section", "molfile"})
                                                      : std::nullopt;
        for (const PageSource& page : m_content.pages) {
            const auto& around = page.scaffold == PageTemplate::Molecule ? moleculeScaffold : pageScaffold;
            // Where the scaffold is wrong, the bodies still are to be looked through.
            if (const auto path = formats::pagePath(page.number))
                addPage(page, *path, around.value_or(PageScaffold{}));
        }
    }

    void addPage(const PageSource& page, const std::string& path, const PageScaffold& around) {
        m_outputs.add(path, compilePage(page, around, m_references, m_diagnostics), page.place,
                      m_diagnostics);
    }

    bool usesMolecules() const {
        return std::ranges::any_of(
            m_content.pages, [](const PageSource& page) { return page.scaffold == PageTemplate::Molecule; });
    }

    std::optional<PageScaffold> scaffold(const std::optional<SourceFile>& file, const std::string& name,
                                         std::initializer_list<std::string_view> placeholders) {
        if (file) return readScaffold(*file, placeholders, m_diagnostics);
        m_diagnostics.error({(m_tree.root / "templates" / name).generic_string()}, "missing");
        return std::nullopt;
    }

    void addTerms() {
        for (const TermSource& term : m_content.terms) {
            m_outputs.add("glossary\\" + term.key + ".htm", glossaryFile(term), term.place, m_diagnostics);
        }
    }

    void addStyle() {
        if (!m_tree.style) return;
        std::string bytes;
        for (const TextLine& line : readLines(*m_tree.style, m_diagnostics)) bytes += line.text + "\r\n";
        m_outputs.add("style\\kalyxo.css", std::move(bytes), m_tree.style->place(), m_diagnostics);
    }

    void addCopies(const std::string& folder, const std::vector<SourceFile>& files) {
        for (const SourceFile& file : files) {
            m_outputs.add(folder + file.name(), file.bytes, file.place(), m_diagnostics);
        }
    }

    void addTools() {
        if (m_tree.tools.empty()) return;
        for (const SourceFile& file : m_tree.tools) {
            if (file.path.extension() == ".txt") continue;
            const std::string folder = file.path.parent_path().filename().string();
            m_outputs.add("tools\\" + folder + '\\' + file.name(), file.bytes, file.place(), m_diagnostics);
        }
        m_outputs.add("tools\\shared\\elements.js", elementScript(),
                      {(m_tree.root / "tools").generic_string()}, m_diagnostics);
    }

    void checkDrawings() {
        for (const SourceFile& drawing : m_tree.drawings) {
            const std::string picture = drawing.stem() + ".png";
            if (m_outputs.contains("images\\" + picture)) continue;
            m_diagnostics.error(drawing.place(),
                                "no image folder has the rendered picture '" + picture + '\'');
        }
    }

    const SourceTree& m_tree;
    Diagnostics& m_diagnostics;
    Content m_content;
    References m_references;
    OutputFiles m_outputs;
};

}  // namespace

std::optional<OutputFiles> compileContent(const SourceTree& tree, Diagnostics& diagnostics) {
    OutputFiles outputs = ContentCompilation(tree, diagnostics).run();
    if (diagnostics.hasErrors()) return std::nullopt;
    return outputs;
}

}  // namespace contentc
