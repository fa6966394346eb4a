#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// The tools that pages may have, by name, each with the names of its settings.
using Tools = std::map<std::string, std::set<std::string>, std::less<>>;

/// Finds the tools among the files of their folders: each folder with a script `face.js` is one. Its settings
/// are the lines of its `settings.txt`, none when there is no such file.
Tools readTools(const std::vector<SourceFile>& files, Diagnostics& diagnostics);

}  // namespace contentc
