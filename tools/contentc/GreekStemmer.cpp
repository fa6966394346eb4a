#include "tools/contentc/GreekStemmer.h"

#include <libstemmer.h>

#include <algorithm>

#include "platform/text/CodePage1253.h"

namespace contentc {

void GreekStemmer::Delete::operator()(sb_stemmer* stemmer) const { sb_stemmer_delete(stemmer); }

GreekStemmer::GreekStemmer() : stemmer_(sb_stemmer_new("greek", "UTF_8")) {}

std::string GreekStemmer::stemOf(std::string_view word) const {
    std::string utf8 = platform::toUtf8(word);
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (!stemmer_ || std::ranges::any_of(word, isAscii)) return utf8;
    const auto* const letters = reinterpret_cast<const sb_symbol*>(utf8.data());
    const sb_symbol* const stem = sb_stemmer_stem(stemmer_.get(), letters, static_cast<int>(utf8.size()));
    if (!stem) return utf8;
    return {reinterpret_cast<const char*>(stem), static_cast<std::size_t>(sb_stemmer_length(stemmer_.get()))};
}

}  // namespace contentc
