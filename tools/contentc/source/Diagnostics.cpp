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
    return place + (diagnostic.severity == Severity::Warning ? "warning: " : "") + diagnostic.message;
}

void Diagnostics::error(const SourcePlace& place, std::string message) {
    m_found.push_back({place, Severity::Error, std::move(message)});
}

void Diagnostics::warning(const SourcePlace& place, std::string message) {
    m_found.push_back({place, Severity::Warning, std::move(message)});
}

bool Diagnostics::hasErrors() const {
    return std::ranges::any_of(m_found, [](const Diagnostic& d) { return d.severity == Severity::Error; });
}

std::vector<Diagnostic> Diagnostics::sorted() const {
    std::vector<Diagnostic> sorted = m_found;
    std::ranges::sort(sorted, comesBefore);
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    return sorted;
}

}  // namespace contentc
