#include "tests/tools/contentc/ContentFolder.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "tools/contentc/render/MakeMedia.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* samplePage =
    "<HTML>\n<TITLE>{{title}}</TITLE>\n<LINK HREF=\"{{data}}style\\kalyxo.css\">\n"
    "<BODY CLASS=\"{{section}}\">\n<P>{{sectionname}}</P>\n{{body}}\n</BODY></HTML>\n";

constexpr const char* sampleMoleculePage =
    "<HTML>\n<TITLE>{{title}}</TITLE>\n3\n4\n5\n6\n7\n8\n9\n10\n<BODY "
    "CLASS=\"{{section}}\">\n<TABLE><TR><TD>\n"
    "<EMBED SRC=\"{{molfile}}\" WIDTH=340 "
    "HEIGHT=290\n14\nSPIN=true\n>\n</TD></TR></TABLE>{{moleculecaption}}\n{{body}}\n</HTML>\n";

}  // namespace

ContentFolder::ContentFolder() {
    write("start.md", "title: Kalyxo\n---\n<P>Welcome</P>\n");
    write("style.css", "P { }\n");
    write("templates/page.html", samplePage);
    write("templates/molecule.html", sampleMoleculePage);
    const std::pair<const char*, const char*> starts[] = {
        {"react", "170070"},   {"struct", "370001"},   {"source", "290000"}, {"uses", "400000"},
        {"history", "320000"}, {"elemcomp", "410000"}, {"concept", "450000"}};
    for (const auto& [section, number] : starts) {
        write(std::string("pages/") + section + '/' + number + ".md",
              std::string("title: Start of ") + section + "\nkind: start\n---\n<P>...</P>\n");
    }
    write("pages/elemcomp/410010.md", "title: Αέρια\nsummary: S\norder: 1\n---\n<P>[[υδρογόνο]]</P>\n");
    write("pages/elemcomp/10001.md", "title: Υδρογόνο\nkind: entry\ntopic: 410010\n---\n<P>H</P>\n");
    write("pages/struct/370010.md",
          "title: Νερό\nsummary: S\n---\n{{molecule water}}\n<P>H<SUB>2</SUB>O</P>\n");
    write("glossary/hydrogen.md", "# υδρογόνο\nΤο πρώτο στοιχείο.\n");
    write("molecules/water.mol", sampleMolecule);
}

std::optional<contentc::OutputFiles> ContentFolder::compile(contentc::Checks checks) {
    contentc::Diagnostics diagnostics;
    const auto folders = contentc::SourceFolders{sources(), {beside("built")}, {beside("built")}};
    contentc::SourceTree tree = contentc::readSourceTree(folders, diagnostics);
    contentc::pretendMedia(tree);
    auto files = contentc::compileContent(tree, diagnostics, checks);
    const std::string prefix = sources().generic_string() + '/';
    messages.clear();
    for (const contentc::Diagnostic& diagnostic : diagnostics.sorted()) {
        std::string line = contentc::toLine(diagnostic);
        for (std::size_t at = 0; (at = line.find(prefix, at)) != std::string::npos;)
            line.erase(at, prefix.size());
        messages.push_back(line);
    }
    return files;
}

std::string ContentFolder::compiled(const std::string& path) {
    const auto files = compile();
    if (!files) return {};
    for (const auto& [key, file] : files->files()) {
        if (file.path == path) return file.bytes;
    }
    return {};
}

std::string readAll(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> listAll(const fs::path& folder) {
    std::vector<std::string> files;
    if (!fs::exists(folder)) return files;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        files.push_back(entry.path().lexically_relative(folder).generic_string() + ": " +
                        readAll(entry.path()));
    }
    std::ranges::sort(files);
    return files;
}
