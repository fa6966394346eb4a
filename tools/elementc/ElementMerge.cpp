#include "tools/elementc/ElementMerge.h"

#include <algorithm>
#include <array>

namespace elementc {

namespace {

constexpr std::array<std::string_view, 9> correctable{"symbol",     "name",       "electronegativity",
                                                      "ionisation", "affinity",   "melting",
                                                      "boiling",    "discovered", "configuration"};

Result<void> correct(Records& records, const SourceRow& correction) {
    const int number = numberOf(correction.fields);
    const std::string name(field(correction.fields, "field"));
    if (number == 0) return Failure{correction.place + ": no atomic number"};
    if (std::ranges::find(correctable, name) == correctable.end()) {
        return Failure{correction.place + ": no field \"" + name + '"'};
    }
    const std::string_view value = field(correction.fields, "value");
    value.empty() ? void(records[number].erase(name)) : void(records[number][name] = value);
    return {};
}

Result<void> join(Records& records, const SourceRow& row) {
    const auto found = records.find(numberOf(row.fields));
    if (found == records.end()) return Failure{row.place + ": no such element"};
    if (field(found->second, "symbol") != field(row.fields, "symbol")) {
        return Failure{row.place + ": this is not the symbol of element " + std::to_string(found->first)};
    }
    if (found->second.contains("family")) return Failure{row.place + ": the second row of this element"};
    found->second.insert(row.fields.begin(), row.fields.end());
    return {};
}

/// Whether the symbol that a correction names is the corrected element's.
bool namesItsElement(const Records& records, const SourceRow& correction) {
    const auto found = records.find(numberOf(correction.fields));
    return found != records.end() && field(found->second, "symbol") == field(correction.fields, "symbol");
}

}  // namespace

Result<Records> mergeElements(Records bodr, std::span<const SourceRow> corrections,
                              std::span<const SourceRow> own) {
    for (const SourceRow& correction : corrections) {
        if (const auto done = correct(bodr, correction); !done) return done.failure();
    }
    for (const SourceRow& correction : corrections) {
        if (!namesItsElement(bodr, correction)) {
            return Failure{correction.place + ": number and symbol do not agree"};
        }
    }
    for (const SourceRow& row : own) {
        if (const auto done = join(bodr, row); !done) return done.failure();
    }
    for (int number = 1; number <= elementCount; ++number) {
        if (!bodr[number].contains("family")) {
            return Failure{"no row for element " + std::to_string(number)};
        }
    }
    return bodr;
}

}  // namespace elementc
