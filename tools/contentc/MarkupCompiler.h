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

/// The value of `{{data}}` on a page that is prepared before it is shown: the marker of the data folder.
inline constexpr std::string_view dataFolderMarker = "\x05..";

/// Turns the marks of page lines into the markers that page preparation works on: `{{name}}` into the value
/// of that mark, `[[key|words]]` into a glossary link.
class MarkupCompiler {
  public:
    /// `glossary` allows links to glossary terms. They work only on pages that are prepared before they are
    /// shown.
    MarkupCompiler(MarkValues values, bool glossary, References& references, Diagnostics& diagnostics);

    /// The line with its marks replaced. Unknown and unclosed marks and malformed links are reported.
    TextLine compile(const TextLine& line);

  private:
    void compileMark();
    void openLink();
    void closeLink(std::size_t words);
    void take(std::size_t length);
    void noteDataPath();
    void finish();
    void error(const Message& message, MessageValues values = {});

    MarkValues values_;
    bool glossary_;
    References& references_;
    Diagnostics& diagnostics_;

    // The line being compiled.
    SourcePlace place_;
    std::string_view rest_;
    std::string result_;
    /// Where the words of the open link start in the result.
    std::optional<std::size_t> linkWords_;
    /// How many '~' of the result belong to link delimiters and not to the text.
    int linkDelimiters_ = 0;
};

/// The NAME of a line that consists of `{{mark NAME}}` only. The name has letters, digits, '-' and '_'.
/// Nothing for any other line.
std::optional<std::string_view> nameInMarkLine(std::string_view line, std::string_view mark);

}  // namespace contentc
