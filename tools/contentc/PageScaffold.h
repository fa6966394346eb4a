#pragma once

#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// The HTML around a page's body, split at `{{body}}`.
struct PageScaffold {
    std::vector<TextLine> head;
    std::vector<TextLine> foot;
};

/// Reads a scaffold. Reported, with nothing returned, when it lacks `{{body}}` or one of the `placeholders`.
std::optional<PageScaffold> readScaffold(const SourceFile& file,
                                         std::initializer_list<std::string_view> placeholders,
                                         Diagnostics& diagnostics);

/// The HTML around the body of the start page. It lies hidden behind the main menu, so it has no style sheet.
PageScaffold startScaffold();

/// The HTML around the body of the help page.
PageScaffold helpScaffold();

}  // namespace contentc
