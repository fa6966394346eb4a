#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace controls::select {

/// A part of a title, in bytes of code page 1253.
struct Span {
    std::size_t start = 0;
    std::size_t length = 0;

    bool operator==(const Span&) const = default;
};

/// The words that the reader has typed. A title passes when it holds all of them, anywhere and in any order,
/// without regard to letter case and accents.
class TitleFilter {
  public:
    /// Lets every title pass.
    TitleFilter() = default;
    /// Takes the words of a text in code page 1253.
    explicit TitleFilter(std::string_view text);

    /// Whether the filter has any word.
    bool active() const { return !words_.empty(); }

    /// Whether a title passes; `folded` is the title as `platform::fold` gives it.
    bool passes(std::string_view folded) const;

    /// The parts of a folded title that match the words, in order and without overlap.
    std::vector<Span> spans(std::string_view folded) const;

  private:
    std::vector<std::string> words_;
};

}  // namespace controls::select
