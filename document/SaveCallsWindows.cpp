#include "document/SaveCalls.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>
#include <system_error>
#include <vector>
#include <windows.h>

namespace veltrix {

namespace {

[[noreturn]] void fail(DWORD reason = ::GetLastError()) {
    throw std::system_error(static_cast<int>(reason), std::system_category());
}

void check(BOOL succeeded) {
    if (!succeeded)
        fail();
}

HANDLE handleOf(SaveCalls::File file) {
    return reinterpret_cast<HANDLE>(file);
}

SaveCalls::File fileOf(HANDLE handle) {
    return SaveCalls::File{reinterpret_cast<std::intptr_t>(handle)};
}

DWORD part(std::size_t bytes) {
    constexpr std::size_t most = std::numeric_limits<DWORD>::max();
    return static_cast<DWORD>(std::min(bytes, most));
}

OVERLAPPED at(std::uint64_t offset) {
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(offset);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    return place;
}

/// Who may do what with the file; empty on a disk that has no such lists.
std::vector<std::byte> accessList(HANDLE file) {
    DWORD size = 0;
    ::GetKernelObjectSecurity(file, DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<std::byte> list(size);
    if (!::GetKernelObjectSecurity(file, DACL_SECURITY_INFORMATION, list.data(), size, &size))
        list.clear();
    return list;
}

void copyRights(HANDLE from, HANDLE to, const std::filesystem::path& path) {
    FILE_BASIC_INFO facts{};
    check(::GetFileInformationByHandleEx(from, FileBasicInfo, &facts, sizeof facts));
    FILE_BASIC_INFO wanted{}; // a time of zero stays what it is
    wanted.FileAttributes = facts.FileAttributes;
    check(::SetFileInformationByHandle(to, FileBasicInfo, &wanted, sizeof wanted));
    // Setting the list is a right that many users lack on a server; most files have their folder's.
    std::vector<std::byte> list = accessList(from);
    if (!list.empty() && list != accessList(to))
        check(::SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, list.data()));
}

class WindowsSaveCalls : public SaveCalls {
public:
    std::filesystem::path Follow(const std::filesystem::path& path) override {
        const DWORD attributes = ::GetFileAttributesW(path.c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES ||
            (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
            return path;
        HANDLE const file =
            ::CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                          nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
        if (file == INVALID_HANDLE_VALUE)
            return path;                  // opening it for writing will tell why
        std::vector<wchar_t> name(32768); // the longest there is
        const DWORD length = ::GetFinalPathNameByHandleW(
            file, name.data(), static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED);
        ::CloseHandle(file);
        if (length == 0 || length >= name.size())
            return path;
        return {name.data(), name.data() + length};
    }

    std::optional<File> OpenToWrite(const std::filesystem::path& path) override {
        HANDLE const file = ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE,
                                          FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        if (file != INVALID_HANDLE_VALUE)
            return fileOf(file);
        const DWORD reason = ::GetLastError();
        if (reason == ERROR_FILE_NOT_FOUND)
            return std::nullopt;
        const DWORD attributes = ::GetFileAttributesW(path.c_str());
        if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0)
            throw std::system_error(std::make_error_code(std::errc::is_a_directory));
        fail(reason);
    }

    bool IsReplaceable(File file) override {
        BY_HANDLE_FILE_INFORMATION facts{};
        return ::GetFileType(handleOf(file)) == FILE_TYPE_DISK &&
               ::GetFileInformationByHandle(handleOf(file), &facts) && facts.nNumberOfLinks == 1;
    }

    std::uint64_t Size(File file) override {
        LARGE_INTEGER size{};
        // A device has none.
        return ::GetFileSizeEx(handleOf(file), &size) ? static_cast<std::uint64_t>(size.QuadPart)
                                                      : 0;
    }

    std::optional<File> Create(const std::filesystem::path& path,
                               std::optional<File> like) override {
        // Shared with nobody: what another save has open cannot be opened, and what a killed one
        // left can be.
        HANDLE const file = ::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0,
                                          nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
        if (file == INVALID_HANDLE_VALUE) {
            if (::GetLastError() == ERROR_SHARING_VIOLATION)
                return std::nullopt;
            fail();
        }
        try {
            if (like)
                copyRights(handleOf(*like), file, path);
        } catch (...) {
            remove(file);
            ::CloseHandle(file);
            throw;
        }
        return fileOf(file);
    }

    std::string Read(File file, std::uint64_t offset, std::size_t most) override {
        std::string bytes(most, '\0');
        OVERLAPPED place = at(offset);
        DWORD count = 0;
        if (!::ReadFile(handleOf(file), bytes.data(), part(most), &count, &place) &&
            ::GetLastError() != ERROR_HANDLE_EOF)
            fail();
        bytes.resize(count);
        return bytes;
    }

    void Write(File file, std::uint64_t offset, std::string_view bytes) override {
        while (!bytes.empty()) {
            OVERLAPPED place = at(offset);
            DWORD count = 0;
            check(::WriteFile(handleOf(file), bytes.data(), part(bytes.size()), &count, &place));
            bytes.remove_prefix(count);
            offset += count;
        }
    }

    void Truncate(File file, std::uint64_t size) override {
        FILE_END_OF_FILE_INFO end{};
        end.EndOfFile.QuadPart = static_cast<LONGLONG>(size);
        check(::SetFileInformationByHandle(handleOf(file), FileEndOfFileInfo, &end, sizeof end));
    }

    void Flush(File file) override {
        // A device that keeps nothing has nothing to flush.
        if (!::FlushFileBuffers(handleOf(file)) && ::GetLastError() != ERROR_INVALID_FUNCTION &&
            ::GetLastError() != ERROR_INVALID_HANDLE)
            fail();
    }

    void Rename(File file, const std::filesystem::path& /*from*/,
                const std::filesystem::path& to) override {
        const std::wstring name = std::filesystem::absolute(to).wstring();
        const std::size_t nameBytes = name.size() * sizeof(wchar_t);
        const std::size_t size = sizeof(FILE_RENAME_INFO) + nameBytes;
        // As the structure ends in an array, it is laid over words.
        std::vector<std::uint64_t> words(size / sizeof(std::uint64_t) + 1);
        auto* const info = reinterpret_cast<FILE_RENAME_INFO*>(words.data());
        info->ReplaceIfExists = TRUE;
        info->FileNameLength = static_cast<DWORD>(nameBytes);
        std::memcpy(info->FileName, name.data(), nameBytes);
        check(::SetFileInformationByHandle(handleOf(file), FileRenameInfo, info,
                                           static_cast<DWORD>(size)));
    }

    void Remove(File file, const std::filesystem::path& /*path*/) override {
        check(remove(handleOf(file)));
    }

    void Close(File file) noexcept override { ::CloseHandle(handleOf(file)); }

    void FlushFolder(const std::filesystem::path& /*path*/) override {
        // The file system keeps a journal of its names.
    }

private:
    static BOOL remove(HANDLE file) {
        FILE_DISPOSITION_INFO info{};
        info.DeleteFile = TRUE;
        return ::SetFileInformationByHandle(file, FileDispositionInfo, &info, sizeof info);
    }
};

} // namespace

SaveCalls& PlatformSaveCalls() {
    static WindowsSaveCalls calls;
    return calls;
}

} // namespace veltrix
