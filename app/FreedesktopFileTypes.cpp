#include "app/FreedesktopFileTypes.h"

#include "board/AppPath.h"

#include <algorithm>
#include <exception>
#include <fstream>
#include <iterator>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace veltrix {

namespace {

namespace fs = std::filesystem;

constexpr const char* entryName = "applications/veltrix.desktop";

constexpr const char* mimeType = R"(<?xml version="1.0" encoding="UTF-8"?>
<mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">
  <mime-type type="application/x-veltrix">
    <comment>Veltrix board</comment>
    <comment xml:lang="nl">Veltrix-bord</comment>
    <glob pattern="*.vtx"/>
  </mime-type>
</mime-info>
)";

struct Icon {
    const char* source; // of the program's pictures, without the size
    const char* target; // in the folder of a size
};

constexpr Icon icons[] = {
    {"images2/veltrix", "apps/veltrix.png"},
    {"images1/doc", "mimetypes/application-x-veltrix.png"},
};
constexpr int iconSizes[] = {16, 24, 32, 48, 64, 128, 256};

std::optional<std::string> contentOf(const fs::path& file) {
    std::error_code unknown;
    if (!fs::is_regular_file(file, unknown)) // reading a folder would throw
        return std::nullopt;
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

enum class Outcome { Failed, Same, Written };

/// Lets a file have this content.
Outcome write(const fs::path& file, const std::string& content) {
    if (contentOf(file) == content)
        return Outcome::Same;
    std::error_code failed;
    fs::create_directories(file.parent_path(), failed);
    // A desktop that looks at the folder meanwhile must not see half a file.
    fs::path half = file;
    half += ".veltrix-new";
    std::ofstream stream(half, std::ios::binary | std::ios::trunc);
    stream << content;
    stream.close();
    if (stream)
        fs::rename(half, file, failed);
    if (stream && !failed)
        return Outcome::Written;
    fs::remove(half, failed);
    return Outcome::Failed;
}

/// Whether an index does not know the file. It may never have been made, for want of the program
/// that makes it.
bool isOutdated(const fs::path& index, Outcome file) {
    std::error_code ignored;
    return file == Outcome::Written || (file == Outcome::Same && !fs::exists(index, ignored));
}

/// Text as the value of a key: the backslash escapes.
std::string keyValue(std::string_view text) {
    std::string value;
    for (const char unit : text) {
        if (unit == '\\')
            value += '\\';
        value += unit;
    }
    return value;
}

/// A path as the command of a desktop entry. It is read in two steps: as a value, and that as
/// words.
std::string command(std::string_view path) {
    std::string word;
    for (const char unit : path) {
        if (std::string_view("\"`$\\").find(unit) != std::string_view::npos)
            word += '\\';
        if (unit == '%') // begins a field code
            word += '%';
        word += unit;
    }
    // Quotes are allowed around every word, but the simplest of desktops do not know of them.
    const bool plain = path.find_first_of(" \t\"'\\><~|&;$*?#()`") == std::string_view::npos;
    return plain ? word : '"' + keyValue(word) + '"';
}

bool liesIn(const fs::path& file, const fs::path& folder) {
    return std::mismatch(folder.begin(), folder.end(), file.begin(), file.end()).first ==
           folder.end();
}

} // namespace

FreedesktopFileTypes::FreedesktopFileTypes(fs::path program, fs::path dataHome,
                                           std::vector<fs::path> dataFolders)
    : program_(std::move(program)),
      dataHome_(std::move(dataHome)),
      dataFolders_(std::move(dataFolders)) {}

std::vector<FreedesktopFileTypes::Index> FreedesktopFileTypes::Write() const noexcept {
    try {
        // A command has one line.
        if (Utf8FromPath(program_).find('\n') != std::string::npos || installedForAll())
            return {};
        const bool newIcons = writeIcons();
        std::vector<Index> indexes;
        if (const fs::path folder = dataHome_ / "mime";
            isOutdated(folder / "mime.cache", write(folder / "packages/veltrix.xml", mimeType)))
            indexes.push_back({"update-mime-database", folder});
        if (const fs::path folder = dataHome_ / "applications";
            isOutdated(folder / "mimeinfo.cache", write(dataHome_ / entryName, DesktopEntry())))
            indexes.push_back({"update-desktop-database", folder});
        if (newIcons) {
            // The folder's time tells the desktop that what it remembers of the icons is old.
            std::error_code ignored;
            fs::last_write_time(dataHome_ / "icons/hicolor", fs::file_time_type::clock::now(),
                                ignored);
        }
        return indexes;
    } catch (const std::exception&) {
        return {};
    }
}

std::string FreedesktopFileTypes::DesktopEntry() const {
    const std::string program = Utf8FromPath(program_);
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Version=1.1\n"
           "Name=Veltrix\n"
           "GenericName=Trainer board simulator\n"
           "GenericName[nl]=Simulator van het systeembord\n"
           "Comment=Build control systems on a simulated trainer board\n"
           "Comment[nl]=Bouw regelsystemen op een gesimuleerd systeembord\n"
           "Exec=" +
           command(program) +
           " %f\n"
           "TryExec=" +
           keyValue(program) +
           "\n"
           "Icon=veltrix\n"
           "Terminal=false\n"
           "Categories=Education;Electronics;\n"
           "MimeType=application/x-veltrix;\n"
           "StartupWMClass=veltrix\n";
}

bool FreedesktopFileTypes::installedForAll() const {
    std::error_code ignored;
    // An entry of the user's own hides that of all users, so it has to be kept right.
    if (fs::exists(dataHome_ / entryName, ignored))
        return false;
    return std::any_of(dataFolders_.begin(), dataFolders_.end(), [&](const fs::path& folder) {
        // /usr/share holds the entries of the programs that lie in /usr.
        const fs::path prefix = (folder / "..").lexically_normal().parent_path();
        return prefix.has_relative_path() && liesIn(program_, prefix) &&
               fs::exists(folder / entryName, ignored);
    });
}

bool FreedesktopFileTypes::writeIcons() const {
    bool written = false;
    for (const int size : iconSizes) {
        const std::string pixels = std::to_string(size);
        std::string sizeFolder = pixels;
        sizeFolder.append("x").append(pixels);
        const fs::path folder = dataHome_ / "icons/hicolor" / sizeFolder;
        for (const Icon& icon : icons) {
            const auto content = contentOf(program_.parent_path() /
                                           (std::string(icon.source) + "-" + pixels + ".png"));
            if (content)
                written |= write(folder / icon.target, *content) == Outcome::Written;
        }
    }
    return written;
}

} // namespace veltrix
