#pragma once

#include <initializer_list>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// The `name: value` lines at the head of a page source. Each field has an English and a Greek name; here the
/// English one counts.
class PageHeader {
  public:
    /// The line between header and body.
    static constexpr std::string_view lastLine = "---";

    /// Reads the lines up to the one between header and body. Lines that are no fields and fields named
    /// twice are reported. A missing `---` is reported too; then there is no header.
    static std::optional<PageHeader> read(const SourceFile& file, const std::vector<TextLine>& lines,
                                          Diagnostics& diagnostics);

    /// Reports each field that is not one of `known`.
    void allowOnly(std::initializer_list<std::string_view> known, Diagnostics& diagnostics) const;

    /// Null when the page does not have the field.
    const TextLine* find(std::string_view name) const;

    /// Like `find`, but a missing or empty field is reported.
    const TextLine* require(std::string_view name, Diagnostics& diagnostics) const;

    /// A field's name in UTF-8, in Greek when the header has Greek names.
    std::string shownName(std::string_view name) const;

  private:
    explicit PageHeader(SourcePlace end) : end_(std::move(end)) {}

    struct Field {
        TextLine value;
        SourcePlace namePlace;
    };

    void add(const TextLine& line, Diagnostics& diagnostics);

    std::map<std::string, Field, std::less<>> fields_;
    bool isGreek_ = false;
    /// The line `---`, where a missing field is reported.
    SourcePlace end_;
};

}  // namespace contentc
