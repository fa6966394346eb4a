#pragma once

#include <memory>
#include <string>
#include <string_view>

struct sb_stemmer;

namespace contentc {

/// Cuts the endings off Greek words, with the Snowball project's rules.
class GreekStemmer {
  public:
    GreekStemmer();

    /// The stem of a lower-case word, in UTF-8. A word with other than Greek letters is its own stem.
    std::string stemOf(std::string_view word) const;

  private:
    struct Delete {
        void operator()(sb_stemmer* stemmer) const;
    };
    std::unique_ptr<sb_stemmer, Delete> stemmer_;
};

}  // namespace contentc
