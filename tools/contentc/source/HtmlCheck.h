#pragma once

#include <set>
#include <string>
#include <vector>

#include "tools/contentc/source/References.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// Reports tags of a finished page that are not closed, close nothing or close something else. Those that
/// HTML lets an author leave out may be left out.
void checkHtml(const std::vector<TextLine>& lines, Diagnostics& diagnostics);

/// The classes that the tags of a text name.
std::vector<Reference> classesUsed(const std::vector<TextLine>& lines);

/// The names of classes in a style sheet.
std::set<std::string> classesIn(std::string_view styles);

}  // namespace contentc
