#include <algorithm>
#include <string>

#include "formats/DataSetFile.h"
#include "formats/SectionTable.h"
#include "fuzz/Target.h"
#include "platform/text/CodePageTable.h"
#include "tools/contentc/ContentCompiler.h"

namespace {

using contentc::SourceFile;

constexpr const char* pageTemplate =
    "<TITLE>{{title}}</TITLE>\n<BODY CLASS=\"{{section}}\">\n{{sectionname}}\n{{body}}\n</BODY>\n";
constexpr const char* moleculeTemplate =
    "{{title}}<TD>\n{{section}}\n\n\n\n\n\n\n\n\n\n\n<EMBED SRC=\"{{molfile}}\" WIDTH=340 "
    "HEIGHT=290\n\nSPIN=true\n>\n"
    "</TD>\n{{body}}\n";

/// The sources of a folder that compiles, with the parts of the input in the places of some of its files.
class Sources {
  public:
    explicit Sources(std::string_view input) : parts_(fuzz::partsOf(input, 8)) {
        tree_.root = "content";
        tree_.startPage = SourceFile{"content/start.md", "title: T\n---\n"};
        tree_.pageTemplate = file(3, "templates/page.html", pageTemplate);
        tree_.moleculeTemplate = SourceFile{"content/templates/molecule.html", moleculeTemplate};
        tree_.style = SourceFile{"content/style.css", ".num { }\n"};
        tree_.wordForms = file(6, "words/forms.txt", "");
        tree_.families = file(7, "families.txt", "");
        tree_.terms.push_back(file(1, "glossary/terms.md", "# οξύ | οξέα\nΔίνει πρωτόνια.\n"));
        tree_.dataSets.push_back(
            file(2, "datasets/compounds.data",
                 "number: 1\ntitle: T\ncolumn: text | Όνομα\ncolumn: number | Σημείο τήξης\n---\nνερό\t0\n"));
        tree_.drawnDrawings.push_back(file(4, "pictures/p.svg", "<svg width=\"40\" height=\"30\">"));
        tree_.pictures.push_back({"content/pictures/p.svg", "", 0, ".png"});
        tree_.molecules.push_back(file(
            5, "molecules/m.mol", "m\n\n\n  1  0  0  0  0  0  0  0  0  0999 V2000\n    0.0 0.0 0.0 O\n"));
        tree_.tools.push_back({"content/tools/clock/face.js", ""});
        tree_.tools.push_back({"content/tools/clock/settings.txt", "at\n"});
        tree_.tools.push_back({"content/tools/quiz/face.js", ""});
        for (const formats::Section& section : formats::sectionTable()) addSection(section);
    }

    const contentc::SourceTree& tree() const { return tree_; }

  private:
    SourceFile file(std::size_t part, const std::string& name, const std::string& otherwise) const {
        return {"content/" + name, parts_[part].empty() ? otherwise : parts_[part]};
    }

    void addSection(const formats::Section& section) {
        const std::string folder = "content/pages/" + std::string(section.key);
        auto& pages = tree_.sections.emplace_back(SourceFile{folder}, std::vector<SourceFile>{}).pages;
        pages.push_back({folder + '/' + std::to_string(section.startPage) + ".md", "title: S\n---\n"});
        if (section.key == "struct") pages.push_back({folder + "/370010.md", parts_[0]});
        if (section.key == "elemcomp")
            pages.push_back({folder + "/10001.md", "title: Υδρογόνο\ntopic: 410000\n---\nH\n"});
    }

    std::vector<std::string> parts_;
    contentc::SourceTree tree_;
};

bool isUtf8(std::string_view text) {
    using platform::codepage::Utf8Character;
    for (std::size_t at = 0; at < text.size();) {
        const auto character = platform::codepage::decodeUtf8(text, at);
        if (character.value == Utf8Character::malformed) return false;
        at += character.length;
    }
    return true;
}

void checkMessages(const contentc::Diagnostics& diagnostics) {
    for (const contentc::Diagnostic& diagnostic : diagnostics.sorted()) {
        for (const auto language : {contentc::Language::english, contentc::Language::greek}) {
            const std::string line = toLine(diagnostic, language);
            fuzz::require(line.find('\n') == line.npos, "a message is one line");
            fuzz::require(isUtf8(line), "a message is UTF-8");
        }
    }
}

/// Control characters in pages are markers that the program replaces; authors cannot write them.
void checkPage(std::string_view page) {
    const auto isMarker = [](char c) { return c >= '\0' && c < '\t'; };
    for (auto at = std::ranges::find_if(page, isMarker); at != page.end();
         at = std::find_if(at + 1, page.end(), isMarker)) {
        fuzz::require(std::string_view(at + 1, page.end()).starts_with(".."),
                      "only the compiler writes markers");
    }
}

}  // namespace

/// A page, and after it what pages refer to: glossary, data set, template, drawing, molecule, word forms and
/// families of elements.
void fuzz::tryInput(std::string_view input) {
    const Sources sources(input);
    contentc::Diagnostics diagnostics;
    const auto outputs = contentc::compileContent(sources.tree(), diagnostics, contentc::Checks::complete);
    checkMessages(diagnostics);
    if (!outputs) return;
    for (const auto& [key, file] : outputs->files()) {
        if (key.ends_with(".htm")) checkPage(file.bytes);
        require(!key.starts_with("datasets") || formats::decodeDataSet(file.bytes).set.has_value(),
                "a data set without a fault can be read");
    }
}
