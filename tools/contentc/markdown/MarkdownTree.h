#pragma once

#include <cmark-gfm.h>

#include <memory>
#include <string_view>
#include <vector>

#include "tools/contentc/source/Diagnostics.h"

namespace contentc {

/// A parsed Markdown text.
using MarkdownTree = std::unique_ptr<cmark_node, void (*)(cmark_node*)>;

/// Parses CommonMark with tables, in UTF-8. An empty text when its parts stand in too many others; that is
/// reported at `place`.
MarkdownTree parseMarkdown(std::string_view text, const SourcePlace& place, Diagnostics& diagnostics);

/// The children of a node, in order.
std::vector<cmark_node*> childrenOf(cmark_node* node);

/// The text of a node: of text, code and raw HTML.
std::string_view literalOf(cmark_node* node);

/// Whether the node is a table, a row or a cell, which have no constants.
bool isTable(cmark_node* node);

}  // namespace contentc
