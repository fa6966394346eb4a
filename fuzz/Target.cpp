#include "fuzz/Target.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace fuzz {

void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "Not so: %s.\n", what);
    std::abort();
}

std::vector<std::string> partsOf(std::string_view input, std::size_t count) {
    constexpr std::string_view separator = "\n%%\n";
    std::vector<std::string> parts(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t end = i + 1 < count ? input.find(separator) : input.npos;
        parts[i] = input.substr(0, end);
        input.remove_prefix(end == input.npos ? input.size() : end + separator.size());
    }
    return parts;
}

}  // namespace fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::tryInput({reinterpret_cast<const char*>(data), size});
    return 0;
}
