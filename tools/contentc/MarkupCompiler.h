#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "tools/contentc/source/References.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// The texts that stand for the marks `{{name}}`, by name.
using MarkValues = std::map<std::string, std::string, std::less<>>;

/// The value of `{{data}}` on a page that is prepared before it is shown: the placeholder of the data folder.
inline constexpr std::string_view kDataFolderMarker = "\x05..";

/// Turns the marks of page lines into the markers that page preparation works on: `{{name}}` into the value
/// of that mark, `[[key|words]]` into a glossary link.
class MarkupCompiler {
  public:
    /// Without `glossary` links are refused, for pages that nothing prepares.
    MarkupCompiler(MarkValues values, bool glossary, References& references, Diagnostics& diagnostics);

    /// The line with its marks replaced. Unknown and unclosed marks and malformed links are reported.
    TextLine compile(const TextLine& line);

  private:
    void compileMark();
    void openLink();
    void closeLink();
    void take(std::size_t length);
    void noteDataPath();
    void finish();
    void error(std::string message);

    MarkValues m_values;
    bool m_glossary;
    References& m_references;
    Diagnostics& m_diagnostics;

    // The line being compiled.
    SourcePlace m_place;
    std::string_view m_rest;
    std::string m_result;
    /// Where the words of the open link start in the result.
    std::optional<std::size_t> m_linkWords;
    /// The '~' in the result that are not of the text.
    int m_linkDelimiters = 0;
};

/// The name in a line that is nothing but `{{mark NAME}}`, of letters a to z, digits, '-' and '_'. Nothing
/// for any other line.
std::optional<std::string_view> nameInMarkLine(std::string_view line, std::string_view mark);

}  // namespace contentc
