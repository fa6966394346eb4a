#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace kalyxo {

/// What the lines rewritten so far held.
struct PageNotes {
    bool video = false;
    bool molecule = false;
    std::string videoText;  ///< the last line with a video, from the video's address on
};

/// Rewrites single lines of a content page, newline included.
class LineRewriter {
  public:
    /// Copies a molecule file beside the prepared page and returns its name there; empty when it cannot.
    using MoleculeCopier = std::function<std::string_view(const std::string& file)>;

    LineRewriter(std::string_view dataFolder, MoleculeCopier copyMolecule)
        : m_dataFolder(dataFolder), m_copyMolecule(std::move(copyMolecule)) {}

    /// Whether rewriting could change the line, or it holds a NUL. Any other line is passed on as it is.
    static bool Concerns(std::string_view line);

    void Rewrite(std::string& line, PageNotes& notes) const;

  private:
    void insertVideo(std::string& line, PageNotes& notes) const;
    void insertMolecule(std::string& line, PageNotes& notes) const;
    void insertDataFolder(std::string& line, std::size_t marker) const;

    std::string_view m_dataFolder;
    MoleculeCopier m_copyMolecule;
};

}  // namespace kalyxo
