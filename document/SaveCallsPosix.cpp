#include "document/SaveCalls.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <system_error>
#include <unistd.h>
#include <vector>
#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace veltrix {

namespace {

[[noreturn]] void fail(int reason = errno) {
    throw std::system_error(reason, std::generic_category());
}

/// Calls once more when a signal came in between.
template <typename Call>
auto uninterrupted(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

int open(const std::filesystem::path& path, int flags, mode_t mode = 0) {
    return uninterrupted([&] { return ::open(path.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode); });
}

int descriptor(SaveCalls::File file) {
    return static_cast<int>(file);
}

struct stat factsOf(int file) {
    struct stat facts {};

    if (::fstat(file, &facts) != 0)
        fail();
    return facts;
}

/// Whether the name belongs to this very file (still).
bool isNamed(int file, const std::filesystem::path& path) {
    struct stat facts {};

    struct stat named {};

    return ::fstat(file, &facts) == 0 && ::lstat(path.c_str(), &named) == 0 &&
           facts.st_dev == named.st_dev && facts.st_ino == named.st_ino;
}

/// The lock says that a save is alive; the system takes it away when the process ends.
bool lock(int file) {
    return uninterrupted([file] { return ::flock(file, LOCK_EX | LOCK_NB); }) == 0;
}

/// Makes a new file one that no other save takes for abandoned. False when one has just done so; on
/// a system that has no locks nothing is ever taken for abandoned.
bool claim(int file) {
    return (lock(file) || errno != EWOULDBLOCK) && factsOf(file).st_nlink != 0;
}

/// Removes what a killed save left. False when it belongs to a save that runs, or to nobody who
/// could be asked.
bool removeAbandoned(const std::filesystem::path& path) {
    const int file = open(path, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    if (file < 0)
        return errno == ENOENT;
    const bool removed = lock(file) && isNamed(file, path) && ::unlink(path.c_str()) == 0;
    ::close(file);
    return removed;
}

#ifdef __linux__
void copyAccessList(int from, int to) {
    constexpr const char* name = "system.posix_acl_access";
    const ssize_t size = ::fgetxattr(from, name, nullptr, 0);
    if (size < 0 && errno != ENODATA && errno != ENOTSUP)
        fail();
    if (size <= 0) {
        // The folder may have given the new file a list that the old one has not.
        ::fremovexattr(to, name);
        return;
    }
    std::vector<char> list(static_cast<std::size_t>(size));
    const ssize_t read = ::fgetxattr(from, name, list.data(), list.size());
    if (read < 0 || ::fsetxattr(to, name, list.data(), static_cast<std::size_t>(read), 0) != 0)
        fail();
}
#else
void copyAccessList(int /*from*/, int /*to*/) {}
#endif

void copyRights(int from, int to) {
    constexpr mode_t modeBits = 07777;
    const struct stat old = factsOf(from);
    const struct stat made = factsOf(to);
    if ((old.st_uid != made.st_uid || old.st_gid != made.st_gid) &&
        ::fchown(to, old.st_uid, old.st_gid) != 0)
        fail();
    copyAccessList(from, to);
    // File systems without such rights refuse to set them, even to what they are.
    if (((old.st_mode ^ factsOf(to).st_mode) & modeBits) != 0 &&
        ::fchmod(to, old.st_mode & modeBits) != 0)
        fail();
}

class PosixSaveCalls : public SaveCalls {
public:
    std::filesystem::path Follow(const std::filesystem::path& path) override {
        std::error_code unknown; // opening the file will tell
        const auto facts = std::filesystem::status(path, unknown);
        // The system follows links to devices and pipes itself, also to those that have no name.
        if (std::filesystem::exists(facts) && !std::filesystem::is_regular_file(facts))
            return path;
        constexpr int mostLinks = 40;
        std::filesystem::path end = path;
        for (int links = 0; links < mostLinks; ++links) {
            if (!std::filesystem::is_symlink(std::filesystem::symlink_status(end, unknown)))
                return end;
            end = end.parent_path() / std::filesystem::read_symlink(end);
        }
        fail(ELOOP);
    }

    std::optional<File> OpenToWrite(const std::filesystem::path& path) override {
        struct stat facts {};

        if (::stat(path.c_str(), &facts) != 0) {
            if (errno == ENOENT)
                return std::nullopt;
            fail();
        }
        // A pipe that nobody reads must not keep the program waiting.
        const bool regular = S_ISREG(facts.st_mode);
        int file = open(path, regular ? O_RDWR : O_WRONLY | O_NONBLOCK);
        if (file < 0 && errno == EACCES && regular)
            file = open(path, O_WRONLY);
        if (file < 0)
            fail();
        if (!regular)
            ::fcntl(file, F_SETFL, O_WRONLY);
        return File{file};
    }

    bool IsReplaceable(File file) override {
        const struct stat facts = factsOf(descriptor(file));
        // Without any name it was replaced itself since it was opened.
        return S_ISREG(facts.st_mode) && facts.st_nlink <= 1 &&
               (::fcntl(descriptor(file), F_GETFL) & O_ACCMODE) == O_RDWR;
    }

    std::uint64_t Size(File file) override {
        return static_cast<std::uint64_t>(factsOf(descriptor(file)).st_size);
    }

    std::optional<File> Create(const std::filesystem::path& path,
                               std::optional<File> like) override {
        // Nobody may read over our shoulder before the rights are copied.
        const mode_t mode = like ? 0600 : 0666;
        constexpr int flags = O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW;
        int file = open(path, flags, mode);
        if (file < 0 && errno == EEXIST) {
            if (!removeAbandoned(path))
                return std::nullopt;
            file = open(path, flags, mode);
        }
        if (file < 0) {
            if (errno == EEXIST)
                return std::nullopt;
            fail();
        }
        try {
            if (!claim(file)) {
                ::close(file);
                return std::nullopt;
            }
            if (like)
                copyRights(descriptor(*like), file);
        } catch (...) {
            ::unlink(path.c_str());
            ::close(file);
            throw;
        }
        return File{file};
    }

    std::string Read(File file, std::uint64_t offset, std::size_t most) override {
        std::string bytes(most, '\0');
        const ssize_t read = uninterrupted([&] {
            return ::pread(descriptor(file), bytes.data(), bytes.size(),
                           static_cast<off_t>(offset));
        });
        if (read < 0)
            fail();
        bytes.resize(static_cast<std::size_t>(read));
        return bytes;
    }

    void Write(File file, std::uint64_t offset, std::string_view bytes) override {
        const int to = descriptor(file);
        while (!bytes.empty()) {
            ssize_t written = uninterrupted([&] {
                return ::pwrite(to, bytes.data(), bytes.size(), static_cast<off_t>(offset));
            });
            if (written < 0 && errno == ESPIPE) // a pipe or a terminal
                written = uninterrupted([&] { return ::write(to, bytes.data(), bytes.size()); });
            if (written < 0)
                fail();
            bytes.remove_prefix(static_cast<std::size_t>(written));
            offset += static_cast<std::uint64_t>(written);
        }
    }

    void Truncate(File file, std::uint64_t size) override {
        if (uninterrupted(
                [&] { return ::ftruncate(descriptor(file), static_cast<off_t>(size)); }) != 0)
            fail();
    }

    void Flush(File file) override { flush(descriptor(file)); }

    void Rename(File /*file*/, const std::filesystem::path& from,
                const std::filesystem::path& to) override {
        if (::rename(from.c_str(), to.c_str()) != 0)
            fail();
    }

    void Remove(File /*file*/, const std::filesystem::path& path) override {
        if (::unlink(path.c_str()) != 0)
            fail();
    }

    void Close(File file) noexcept override { ::close(descriptor(file)); }

    void FlushFolder(const std::filesystem::path& path) override {
        const std::filesystem::path folder = path.parent_path();
        const int file = open(folder.empty() ? "." : folder, O_RDONLY | O_DIRECTORY);
        if (file < 0)
            fail();
        try {
            flush(file);
        } catch (...) {
            ::close(file);
            throw;
        }
        ::close(file);
    }

private:
    static void flush(int file) {
        const int result = uninterrupted([file] { return ::fsync(file); });
        // A device that keeps nothing has nothing to flush.
        if (result != 0 && errno != EINVAL && errno != ENOTSUP && errno != ENOSYS)
            fail();
    }
};

} // namespace

SaveCalls& PlatformSaveCalls() {
    static PosixSaveCalls calls;
    return calls;
}

} // namespace veltrix
