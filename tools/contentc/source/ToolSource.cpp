#include "tools/contentc/source/ToolSource.h"

namespace contentc {

Tools readTools(const std::vector<SourceFile>& files, Diagnostics& diagnostics) {
    Tools tools;
    std::map<std::string, std::set<std::string>> settings;
    for (const SourceFile& file : files) {
        const std::string folder = file.path.parent_path().filename().string();
        if (file.name() == "face.js") tools[folder];
        if (file.name() != "settings.txt") continue;
        for (const TextLine& line : readLines(file, diagnostics))
            settings[folder].emplace(trimmed(line.text));
    }
    for (auto& [name, its] : tools) its = settings[name];
    return tools;
}

}  // namespace contentc
