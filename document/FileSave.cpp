#include "document/FileSave.h"

#include "board/AppPath.h"

#include <system_error>

namespace veltrix {

namespace {

/// Saves of one file that may run at the same time. Their second files have fixed names, so that
/// what killed saves leave behind does not pile up.
constexpr int mostSavesAtOnce = 16;

/// Leaves room for what is put around it: names end at 255 bytes on most systems.
std::string shortened(std::string name) {
    constexpr std::size_t most = 200;
    if (name.size() <= most)
        return name;
    std::size_t end = most;
    while (end > 0 && (static_cast<unsigned char>(name[end]) & 0xC0) == 0x80)
        --end; // not in the middle of a character
    return name.substr(0, end);
}

std::filesystem::path temporaryPath(const std::filesystem::path& target, int number) {
    std::string name = "." + shortened(Utf8FromPath(target.filename())) + ".veltrix-new";
    if (number > 1)
        name += "-" + std::to_string(number);
    return target.parent_path() / PathFromUtf8(name);
}

/// Whether a second file was refused for what it is, and not because something is broken or full.
/// Only then may the old file itself be written: in all other cases that could fail halfway too.
bool refused(const std::error_code& reason) {
    return reason == std::errc::permission_denied || reason == std::errc::operation_not_permitted ||
           reason == std::errc::read_only_file_system || reason == std::errc::filename_too_long ||
           reason == std::errc::device_or_resource_busy || reason == std::errc::cross_device_link ||
           reason == std::errc::operation_not_supported;
}

} // namespace

void FileSave::Begin(const std::string& path) {
    Abandon();
    path_ = path;
    try {
        target_ = calls_.Follow(PathFromUtf8(path));
        original_ = calls_.OpenToWrite(target_);
        if (!original_ && !target_.has_filename())
            throw std::system_error(std::make_error_code(std::errc::no_such_file_or_directory));
        if (!original_ || calls_.IsReplaceable(*original_))
            createTemporary();
    } catch (const std::system_error& error) {
        Abandon();
        throw std::system_error(error.code(), path);
    } catch (...) {
        Abandon();
        throw;
    }
}

void FileSave::Commit(std::string_view content) {
    try {
        if (temporary_)
            replaceOriginal(content);
        else
            writeInPlace(content);
    } catch (const std::system_error& error) {
        Abandon();
        throw std::system_error(error.code(), path_);
    } catch (...) {
        Abandon();
        throw;
    }
    Abandon();
}

void FileSave::Abandon() noexcept {
    closeOriginal();
    if (!temporary_)
        return;
    try {
        calls_.Remove(*temporary_, temporaryPath_);
    } catch (const std::system_error&) {
        // It stays behind like that of a killed save, for the next one to remove.
    }
    calls_.Close(*temporary_);
    temporary_.reset();
}

void FileSave::createTemporary() {
    try {
        for (int number = 1; number <= mostSavesAtOnce && !temporary_; ++number) {
            temporaryPath_ = temporaryPath(target_, number);
            temporary_ = calls_.Create(temporaryPath_, original_);
        }
        if (!temporary_)
            throw std::system_error(std::make_error_code(std::errc::device_or_resource_busy));
    } catch (const std::system_error& error) {
        if (!original_ || !refused(error.code()))
            throw;
    }
}

void FileSave::replaceOriginal(std::string_view content) {
    calls_.Write(*temporary_, 0, content);
    const bool existed = original_.has_value();
    if (existed)
        copyTail(content.size());
    calls_.Flush(*temporary_);
    closeOriginal(); // some systems let nobody take the name of an open file
    try {
        calls_.Rename(*temporary_, temporaryPath_, target_);
    } catch (const std::system_error& error) {
        if (existed && refused(error.code()))
            original_ = calls_.OpenToWrite(target_);
        if (!original_)
            throw;
        writeInPlace(content);
        return;
    }
    calls_.Close(*temporary_);
    temporary_.reset();
    try {
        calls_.FlushFolder(target_);
    } catch (const std::system_error&) {
        // The new file is whole and in its place. All that a power cut can do now is to bring the
        // old one back, which is whole too.
    }
}

void FileSave::copyTail(std::uint64_t from) {
    constexpr std::size_t most = 65536;
    for (;;) {
        const std::string part = calls_.Read(*original_, from, most);
        if (part.empty())
            return;
        calls_.Write(*temporary_, from, part);
        from += part.size();
    }
}

void FileSave::writeInPlace(std::string_view content) {
    // What makes the file longer goes first: where there is no room for it, the old file is easily
    // restored.
    const std::uint64_t oldSize = calls_.Size(*original_);
    if (content.size() > oldSize) {
        const auto kept = static_cast<std::size_t>(oldSize);
        try {
            calls_.Write(*original_, oldSize, content.substr(kept));
            calls_.Flush(*original_);
        } catch (const std::system_error& error) {
            try {
                calls_.Truncate(*original_, oldSize);
            } catch (const std::system_error&) {
                // What comes after a document does no harm.
            }
            throw;
        }
        content = content.substr(0, kept);
    }
    if (content.empty())
        return;
    calls_.Write(*original_, 0, content);
    calls_.Flush(*original_);
}

void FileSave::closeOriginal() noexcept {
    if (original_)
        calls_.Close(*original_);
    original_.reset();
}

} // namespace veltrix
