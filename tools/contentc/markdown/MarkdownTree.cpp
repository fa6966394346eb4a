#include "tools/contentc/markdown/MarkdownTree.h"

#include <cmark-gfm-core-extensions.h>

#include "tools/contentc/markdown/BodyMessages.h"

namespace contentc {
namespace {

// Each level costs stack where the tree is written.
constexpr int maxDepth = 100;

bool isTooDeep(cmark_node* root) {
    int depth = 0;
    for (cmark_node* node = root; node;) {
        if (cmark_node* child = cmark_node_first_child(node)) {
            if (++depth > maxDepth) return true;
            node = child;
            continue;
        }
        for (; node && !cmark_node_next(node); --depth) node = cmark_node_parent(node);
        if (node) node = cmark_node_next(node);
    }
    return false;
}

MarkdownTree parse(std::string_view text) {
    // Once, also when pages are compiled side by side.
    static const bool isRegistered = (cmark_gfm_core_extensions_ensure_registered(), true);
    static_cast<void>(isRegistered);
    const std::unique_ptr<cmark_parser, void (*)(cmark_parser*)> parser(cmark_parser_new(CMARK_OPT_DEFAULT),
                                                                        cmark_parser_free);
    cmark_parser_attach_syntax_extension(parser.get(), cmark_find_syntax_extension("table"));
    cmark_parser_feed(parser.get(), text.data(), text.size());
    MarkdownTree tree(cmark_parser_finish(parser.get()), cmark_node_free);
    cmark_consolidate_text_nodes(tree.get());
    return tree;
}

}  // namespace

MarkdownTree parseMarkdown(std::string_view text, const SourcePlace& place, Diagnostics& diagnostics) {
    MarkdownTree tree = parse(text);
    if (!isTooDeep(tree.get())) return tree;
    diagnostics.error(place, say::nestedTooDeep);
    return parse({});
}

std::vector<cmark_node*> childrenOf(cmark_node* node) {
    std::vector<cmark_node*> children;
    for (cmark_node* child = cmark_node_first_child(node); child; child = cmark_node_next(child))
        children.push_back(child);
    return children;
}

std::string_view literalOf(cmark_node* node) {
    const char* literal = cmark_node_get_literal(node);
    return literal ? std::string_view(literal) : std::string_view();
}

bool isTable(cmark_node* node) { return std::string_view(cmark_node_get_type_string(node)) == "table"; }

}  // namespace contentc
