#include "tools/contentc/source/Diagnostics.h"

#include <algorithm>
#include <tuple>

namespace contentc {
namespace {

bool comesBefore(const Diagnostic& a, const Diagnostic& b) {
    const auto key = [](const Diagnostic& d) {
        return std::tie(d.place.file, d.place.line, d.severity, d.message);
    };
    return key(a) < key(b);
}

}  // namespace

std::string toLine(const Diagnostic& diagnostic) {
    const std::string place = diagnostic.place.file + ':' + std::to_string(diagnostic.place.line) + ": ";
    return place + (diagnostic.severity == Severity::warning ? "warning: " : "") + diagnostic.message;
}

void Diagnostics::error(const SourcePlace& place, std::string message) {
    found_.push_back({place, Severity::error, std::move(message)});
}

void Diagnostics::warning(const SourcePlace& place, std::string message) {
    found_.push_back({place, Severity::warning, std::move(message)});
}

bool Diagnostics::hasErrors() const {
    return std::ranges::any_of(found_, [](const Diagnostic& d) { return d.severity == Severity::error; });
}

std::vector<Diagnostic> Diagnostics::sorted() const {
    std::vector<Diagnostic> sorted = found_;
    std::ranges::sort(sorted, comesBefore);
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    return sorted;
}

}  // namespace contentc
