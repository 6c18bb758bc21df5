#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace veltrix {

/// The calls on the file system that a save is made of, each as small as what can fail by itself.
/// They throw std::system_error.
class SaveCalls {
public:
    /// An open file.
    enum class File : std::intptr_t {};

    virtual ~SaveCalls() = default;

    /// The file that is written when `path` is: the end of the links that begin there. It need not
    /// exist.
    virtual std::filesystem::path Follow(const std::filesystem::path& path) = 0;

    /// Opens what exists for writing, and for reading where that is allowed too; nothing when
    /// nothing has that name.
    virtual std::optional<File> OpenToWrite(const std::filesystem::path& path) = 0;

    /// Whether a file of its own could take its place without anybody noticing: it is a regular
    /// file, it has one name only, and all of it can be read.
    virtual bool IsReplaceable(File file) = 0;

    virtual std::uint64_t Size(File file) = 0;

    /// Makes an empty file that belongs to this save while it is open; nothing when it belongs to
    /// another save. What a killed save left under the name is removed. The file is one that
    /// others may use as they may use `like`.
    virtual std::optional<File> Create(const std::filesystem::path& path,
                                       std::optional<File> like) = 0;

    /// At most `most` bytes from `offset` on; none only at the end.
    virtual std::string Read(File file, std::uint64_t offset, std::size_t most) = 0;

    /// All of `bytes` or an error.
    virtual void Write(File file, std::uint64_t offset, std::string_view bytes) = 0;

    virtual void Truncate(File file, std::uint64_t size) = 0;

    /// Returns when the content is where a power cut cannot reach it.
    virtual void Flush(File file) = 0;

    /// Gives an open file that Create made the name `to`, in one step for whoever looks, in place
    /// of the file that has it now.
    virtual void Rename(File file, const std::filesystem::path& from,
                        const std::filesystem::path& to) = 0;

    /// Takes the name from an open file that Create made.
    virtual void Remove(File file, const std::filesystem::path& path) = 0;

    virtual void Close(File file) noexcept = 0;

    /// Returns when the names in the folder of `path` are where a power cut cannot reach them.
    virtual void FlushFolder(const std::filesystem::path& path) = 0;
};

/// The calls of the system that the program runs on.
[[nodiscard]] SaveCalls& PlatformSaveCalls();

} // namespace veltrix
