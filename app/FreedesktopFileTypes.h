#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace veltrix {

/// What the free desktops (freedesktop.org) of one user know of board documents: their MIME type
/// with its icon, and the entry of the program that opens them. They are files, which the desktop
/// learns of when the folders' indexes are brought up to date.
class FreedesktopFileTypes {
public:
    /// An index, and the program and folder that make it.
    struct Index {
        std::string Program;
        std::filesystem::path Folder;
    };

    /// `program` is the path of the running program, beside which the icons lie. `dataHome` is
    /// where the user keeps such files; `dataFolders` is where those of all users are.
    FreedesktopFileTypes(std::filesystem::path program, std::filesystem::path dataHome,
                         std::vector<std::filesystem::path> dataFolders);

    /// Writes what is not there yet or differs. Gives the indexes that need making anew. A file
    /// that cannot be written is left alone. Does nothing for a program that was installed for all
    /// users, with an entry of its own.
    std::vector<Index> Write() const noexcept;

    /// The entry of the program, as its file holds it.
    [[nodiscard]] std::string DesktopEntry() const;

private:
    [[nodiscard]] bool installedForAll() const;
    bool writeIcons() const;

    std::filesystem::path program_;
    std::filesystem::path dataHome_;
    std::vector<std::filesystem::path> dataFolders_;
};

} // namespace veltrix
