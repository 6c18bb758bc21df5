#include "document/clsKorvelWFile.h"
#include "tests/document/Files.h"
#include "tests/document/SystemCalls.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace veltrix {
namespace {

using test::bytesOf;
using test::OneFile;
using test::putBytes;
using test::SystemCalls;

const std::string oldContent(100, 'o');

/// Whether a save went through in which one system call failed; none for 0.
bool saved(const std::string& path, int failing, int error, int& calls) {
    bool whole = true;
    SystemCalls::Watch(failing, error);
    try {
        clsKorvelWFile file;
        file.OpenFile(path);
        file.writeLong(0x6E6E6E6E);
        file.CloseFile();
    } catch (const std::system_error&) {
        whole = false;
    }
    calls = SystemCalls::Stop();
    return whole;
}

struct Case {
    const char* name = "";
    std::optional<std::string> before;
    std::string after;
    std::function<void(const OneFile&)> prepare = [](const OneFile&) {};
};

const Case cases[] = {
    {"a new file", std::nullopt, "nnnn"},
    {"an old file", oldContent, "nnnn" + oldContent.substr(4)},
    {"behind a link", oldContent, "nnnn" + oldContent.substr(4),
     [](const OneFile& file) {
         const std::filesystem::path real = file.folder.Path() / "echt.vtx";
         std::filesystem::rename(file.path, real);
         std::filesystem::create_symlink("echt.vtx", file.path);
     }},
    {"with what a killed save left", oldContent, "nnnn" + oldContent.substr(4),
     [](const OneFile& file) {
         putBytes(file.folder.Path() / ".bord.vtx.veltrix-new", "half of it");
     }},
    {"of two names", oldContent, "nnnn" + oldContent.substr(4),
     [](const OneFile& file) {
         std::filesystem::create_hard_link(file.path, file.folder.Path() / "ander.vtx");
     }},
};

TEST(SaveCallsFault, AnySystemCallOfASaveMayFailAndTheFileIsWhole) {
    const std::pair<int, const char*> errors[] = {
        {EIO, "EIO"}, {EACCES, "EACCES"}, {EINTR, "EINTR"}};
    for (const Case& example : cases) {
        int failedOfEio = 0;
        for (const auto& [error, name] : errors) {
            int calls = 0;
            int failed = 0;
            for (int failing = 1; failing <= calls + 1; ++failing) {
                const OneFile file;
                if (example.before)
                    putBytes(file.path, *example.before);
                example.prepare(file);
                const std::size_t names = test::namesIn(file.folder.Path()).size();
                const std::size_t open = test::namesIn("/proc/self/fd").size();
                const bool whole = saved(file.text, failing, error, calls);
                SCOPED_TRACE(std::string(example.name) + ", " + name + " from call " +
                             std::to_string(failing) + " of " + std::to_string(calls));
                failed += whole ? 0 : 1;
                if (whole || example.before) {
                    const std::string left = bytesOf(file.path);
                    EXPECT_TRUE(left == example.after || (!whole && left == example.before))
                        << left;
                } else {
                    EXPECT_FALSE(std::filesystem::exists(file.path));
                }
                EXPECT_LE(test::namesIn(file.folder.Path()).size(),
                          names + (whole && !example.before ? 1u : 0u));
                EXPECT_EQ(test::namesIn("/proc/self/fd").size(), open);
                if (error != EIO)
                    continue;
                // The fault is over: the next save finds nothing in its way.
                int ignored = 0;
                EXPECT_TRUE(saved(file.text, 0, 0, ignored));
                EXPECT_EQ(bytesOf(file.path), example.after);
            }
            EXPECT_GE(calls, 5) << example.name;
            if (error == EIO) {
                EXPECT_GE(failed, 3) << example.name;
                failedOfEio = failed;
            }
            if (error == EINTR) { // that many calls are simply made once more
                EXPECT_LT(failed, failedOfEio) << example.name;
            }
        }
    }
}

} // namespace
} // namespace veltrix
