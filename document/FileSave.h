#pragma once

#include "document/SaveCalls.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace veltrix {

/// Overwrites the beginning of a file, or makes a new one, so that whoever looks, also after a
/// power cut, finds the old file or the new one, each of them whole.
///
/// The new content, with what the old file has beyond it, is written to a file of its own in the
/// same folder, which then takes the old one's name and rights. Links are followed. Where no second
/// file can be made, or none that would be the same to everybody else (a folder or a device that
/// allows it not, a file of several names), the file itself is written.
///
/// A save that is killed leaves its second file behind; the next save of the same file removes it.
class FileSave {
public:
    /// `calls` must outlive the save.
    explicit FileSave(SaveCalls& calls) noexcept : calls_(calls) {}

    FileSave(const FileSave&) = delete;
    FileSave& operator=(const FileSave&) = delete;

    ~FileSave() { Abandon(); }

    /// Makes ready to write a file (UTF-8 path), after abandoning one that was begun. Throws
    /// std::system_error, with nothing begun, when it cannot be written.
    void Begin(const std::string& path);

    [[nodiscard]] bool Begun() const noexcept { return original_ || temporary_; }

    /// Writes the file that was begun. Throws std::system_error when that fails; the old file is
    /// then what it was, or, where the file itself had to be written, as far as it can be.
    void Commit(std::string_view content);

    /// Leaves everything as it was before Begin.
    void Abandon() noexcept;

private:
    void createTemporary();
    void replaceOriginal(std::string_view content);
    void copyTail(std::uint64_t from);
    void writeInPlace(std::string_view content);
    void closeOriginal() noexcept;

    SaveCalls& calls_;
    std::string path_;
    std::filesystem::path target_;
    std::filesystem::path temporaryPath_;
    std::optional<SaveCalls::File> original_;
    std::optional<SaveCalls::File> temporary_; // none where there can be no second file
};

} // namespace veltrix
