#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/base/Result.h"
#include "platform/registry/RegistryNode.h"

namespace platform {

/// The first line of a registry file.
inline constexpr std::string_view regFileHeader = "Windows Registry Editor Version 5.00";

/// Reads the text of a registry file into a tree.
class RegFileReader {
  public:
    /// `text` is UTF-8 without a byte order mark and outlives the reader.
    explicit RegFileReader(std::string_view text) : text_(text) {}

    /// The tree. For a damaged text the failure says "γραμμή N: " and what is wrong there. Called once.
    Result<RegistryNode> read();

  private:
    bool readAll();
    bool checkEncoding();
    bool readHeader();
    bool readLine();
    bool readKey();
    bool readValue();
    bool readData(const std::string& name);
    bool readDword(const std::string& name);
    bool readOther(const std::string& name);
    bool endLine();

    std::optional<std::string> readQuoted();
    std::string_view restOfLine() const;
    void skipBlanks();
    bool take(std::string_view expected);
    std::size_t line() const;
    bool fail(std::string problem);

    std::string_view text_;
    std::size_t at_ = 0;
    RegistryNode tree_;
    RegistryNode* key_ = nullptr;  ///< the key whose values are being read
    std::string problem_;
};

}  // namespace platform
