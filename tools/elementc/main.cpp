#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>

#include "tools/elementc/BodrReader.h"
#include "tools/elementc/ElementMerge.h"
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

Result<std::string> compile(const std::string& bodrFile, const std::string& ownFile,
                            const std::string& correctionsFile) {
    const auto xml = contentsOf(bodrFile);
    const auto ownText = contentsOf(ownFile);
    const auto correctionsText = contentsOf(correctionsFile);
    if (!xml || !ownText || !correctionsText) return Failure{"a source cannot be read"};
    auto bodr = readBodr(*xml, bodrFile);
    if (!bodr) return bodr.failure();
    const auto own = readTable(*ownText, ownFile);
    if (!own) return own.failure();
    const auto corrections = readTable(*correctionsText, correctionsFile);
    if (!corrections) return corrections.failure();
    const auto merged = mergeElements(*std::move(bodr), *corrections, *own);
    if (!merged) return merged.failure();
    return writeTable(*merged);
}

int run(const std::string& bodrFile, const std::string& ownFile, const std::string& correctionsFile,
        const std::string& outputFile) {
    const auto table = compile(bodrFile, ownFile, correctionsFile);
    if (!table) return fail(table.failure().message);
    std::ofstream out(outputFile, std::ios::binary);
    out << *table;
    out.close();
    return out ? 0 : fail(outputFile + " cannot be written");
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 5) {
        std::cerr << "usage: elementc ELEMENTS.XML ELEMENTS.TSV CORRECTIONS.TSV OUTPUT.CPP\n";
        return 2;
    }
    return run(argv[1], argv[2], argv[3], argv[4]);
}
