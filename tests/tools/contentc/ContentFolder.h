#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/TestFolder.h"
#include "tools/contentc/ContentCompiler.h"

/// A molecule of one atom, as a file.
inline const std::string sampleMolecule =
    "water\n\n\n  1  0  0  0  0  0  0  0  0  0999 V2000\n    0.0 0.0 0.0 O\nM  END\n";
/// How a PNG file begins.
inline const std::string samplePng = "\x89PNG\r\n\x1A\n";

/// A temporary folder with content sources that compile without a message; tests change files and compile.
class ContentFolder {
  public:
    ContentFolder();

    /// The folder of the sources; beside it tests may write what they like.
    std::filesystem::path sources() const { return root_ / "content"; }
    std::filesystem::path beside(const std::string& name) const { return root_ / name; }

    void write(const std::string& file, const std::string& text) const {
        root_.write("content/" + file, text);
    }
    void remove(const std::string& file) const { std::filesystem::remove_all(sources() / file); }

    /// Compiles; afterwards `messages` holds what there was to say, with files named as in the sources.
    std::optional<contentc::OutputFiles> compile(contentc::Checks checks = contentc::Checks::usual);
    /// The bytes of one compiled file; empty when there is none.
    std::string compiled(const std::string& path);

    std::vector<std::string> messages;

  private:
    TestFolder root_;
};

/// The whole file; empty when it cannot be read.
std::string readAll(const std::filesystem::path& file);

/// The files below a folder with their bytes, as `path: bytes`, sorted.
std::vector<std::string> listAll(const std::filesystem::path& folder);
