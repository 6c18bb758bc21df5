#include "tests/document/SystemCalls.h"

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

bool watching = false;
int called = 0;
int failingCall = 0;
int failingError = 0;
mode_t lastCreated = 0;

bool fails() {
    if (!watching || ++called != failingCall)
        return false;
    errno = failingError;
    return true;
}

template <typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

// Functions of these names in the program itself stand before those of the system's library.
#define VELTRIX_WATCHED(result, name, parameters, arguments)                                       \
    extern "C" result name parameters {                                                            \
        static auto* const real = next<result parameters>(#name);                                  \
        return fails() ? -1 : real arguments;                                                      \
    }

VELTRIX_WATCHED(int, stat, (const char* path, struct stat* facts) noexcept, (path, facts))
VELTRIX_WATCHED(int, lstat, (const char* path, struct stat* facts) noexcept, (path, facts))
VELTRIX_WATCHED(int, fstat, (int file, struct stat* facts) noexcept, (file, facts))
VELTRIX_WATCHED(int, flock, (int file, int operation) noexcept, (file, operation))
VELTRIX_WATCHED(int, fchmod, (int file, mode_t mode) noexcept, (file, mode))
VELTRIX_WATCHED(int, fchown, (int file, uid_t user, gid_t group) noexcept, (file, user, group))
VELTRIX_WATCHED(int, ftruncate, (int file, off_t size) noexcept, (file, size))
VELTRIX_WATCHED(int, fsync, (int file), (file))
VELTRIX_WATCHED(int, rename, (const char* from, const char* to) noexcept, (from, to))
VELTRIX_WATCHED(int, unlink, (const char* path) noexcept, (path))
VELTRIX_WATCHED(ssize_t, pread, (int file, void* to, size_t size, off_t at), (file, to, size, at))
VELTRIX_WATCHED(ssize_t, pwrite, (int file, const void* from, size_t size, off_t at),
                (file, from, size, at))
VELTRIX_WATCHED(ssize_t, readlink, (const char* path, char* to, size_t size) noexcept,
                (path, to, size))
VELTRIX_WATCHED(ssize_t, fgetxattr, (int file, const char* name, void* value, size_t size) noexcept,
                (file, name, value, size))
VELTRIX_WATCHED(int, fsetxattr,
                (int file, const char* name, const void* value, size_t size, int flags) noexcept,
                (file, name, value, size, flags))
VELTRIX_WATCHED(int, fremovexattr, (int file, const char* name) noexcept, (file, name))

// A file whose closing fails is closed nevertheless.
extern "C" int close(int file) {
    static auto* const real = next<int(int)>("close");
    const bool failed = fails();
    const int result = real(file);
    if (failed)
        errno = failingError;
    return failed ? -1 : result;
}

extern "C" int open(const char* path, int flags, ...) {
    static auto* const real = next<int(const char*, int, ...)>("open");
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        std::va_list arguments;
        va_start(arguments, flags);
        mode = va_arg(arguments, mode_t);
        va_end(arguments);
        lastCreated = mode;
    }
    return fails() ? -1 : real(path, flags, mode);
}

namespace veltrix::test {

void SystemCalls::Watch(int failing, int error) {
    called = 0;
    failingCall = failing;
    failingError = error;
    watching = true;
}

int SystemCalls::Stop() {
    watching = false;
    return called;
}

unsigned SystemCalls::LastCreated() {
    return lastCreated;
}

} // namespace veltrix::test
