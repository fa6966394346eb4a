#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tools/elementc/BodrReader.h"
#include "tools/elementc/ElementMerge.h"
#include "tools/elementc/IsotopeReader.h"
#include "tools/elementc/IsotopeWriter.h"
#include "tools/elementc/SourceTable.h"
#include "tools/elementc/TableWriter.h"

namespace {

using namespace elementc;

std::optional<std::string> contentsOf(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(in), {});
}

int fail(const std::string& message) {
    std::cerr << "elementc: " << message << '\n';
    return 1;
}

/// The contents of the files, in their order. The failure names the first that cannot be read.
Result<std::vector<std::string>> contentsOfAll(std::span<const std::string> files) {
    std::vector<std::string> texts;
    for (const std::string& file : files) {
        auto text = contentsOf(file);
        if (!text) return Failure{file + " cannot be read"};
        texts.push_back(*std::move(text));
    }
    return texts;
}

/// Compiles the table of elements. `files` are the Blue Obelisk's list, our table and the corrections.
Result<std::string> compileElements(std::span<const std::string> files) {
    const auto texts = contentsOfAll(files);
    if (!texts) return texts.failure();
    auto bodr = readBodr((*texts)[0], files[0]);
    if (!bodr) return bodr.failure();
    const auto own = readTable((*texts)[1], files[1]);
    if (!own) return own.failure();
    const auto corrections = readTable((*texts)[2], files[2]);
    if (!corrections) return corrections.failure();
    const auto merged = mergeElements(*std::move(bodr), *corrections, *own);
    if (!merged) return merged.failure();
    return writeTable(*merged);
}

/// Compiles the table of isotopes, of the same kinds of files.
Result<std::string> compileIsotopes(std::span<const std::string> files) {
    const auto texts = contentsOfAll(files);
    if (!texts) return texts.failure();
    auto bodr = readIsotopes((*texts)[0], files[0]);
    if (!bodr) return bodr.failure();
    const auto own = readTable((*texts)[1], files[1]);
    if (!own) return own.failure();
    const auto corrections = readTable((*texts)[2], files[2]);
    if (!corrections) return corrections.failure();
    const auto corrected = correctIsotopes(*std::move(bodr), *corrections, *own);
    if (!corrected) return corrected.failure();
    return writeIsotopes(*corrected);
}

int write(const Result<std::string>& table, const std::string& outputFile) {
    if (!table) return fail(table.failure().message);
    std::ofstream out(outputFile, std::ios::binary);
    out << *table;
    out.close();
    return out ? 0 : fail(outputFile + " cannot be written");
}

}  // namespace

int main(int argc, char* argv[]) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const bool isElements = !arguments.empty() && arguments[0] == "elements";
    const bool isIsotopes = !arguments.empty() && arguments[0] == "isotopes";
    if (arguments.size() != 5 || isElements == isIsotopes) {
        std::cerr << "usage: elementc elements|isotopes LIST.XML ELEMENTS.TSV CORRECTIONS.TSV OUTPUT.CPP\n";
        return 2;
    }
    const auto files = std::span(arguments).subspan(1, 3);
    return write(isElements ? compileElements(files) : compileIsotopes(files), arguments[4]);
}
