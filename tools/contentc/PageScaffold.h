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

/// Reads a scaffold. Nothing, with a message, when it lacks `{{body}}` or one of the further `placeholders`.
std::optional<PageScaffold> readScaffold(const SourceFile& file,
                                         std::initializer_list<std::string_view> placeholders,
                                         Diagnostics& diagnostics);

/// The bare HTML page around the body of a page that nothing prepares.
PageScaffold plainScaffold();

}  // namespace contentc
