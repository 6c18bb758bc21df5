#include "document/clsKorvelWFile.h"
#include "tests/document/Files.h"
#include "tests/document/Processes.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <random>
#include <set>
#include <string>
#include <time.h>
#include <unistd.h>
#include <vector>

namespace veltrix {
namespace {

namespace fs = std::filesystem;

const std::string longContent(60000, 'L');
const std::string shortContent(40000, 's');

void save(const std::string& path, const std::string& content) {
    clsKorvelWFile file;
    file.OpenFile(path);
    file.writeString(content);
    file.CloseFile();
}

/// What the file may hold after any number of saves, the tail of a longer stream included.
const std::set<std::string> wholeFiles{longContent + '\0', shortContent + '\0',
                                       shortContent + '\0' +
                                           longContent.substr(shortContent.size() + 1) + '\0'};

/// How many saves the test kills; tests/document/kill-saves asks for many more than ./test does.
int killsWanted() {
    const char* const wanted = std::getenv("VELTRIX_KILLS");
    return wanted == nullptr ? 300 : std::atoi(wanted);
}

std::chrono::nanoseconds timeOfASave(const std::string& path) {
    constexpr int saves = 20;
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < saves; ++i)
        save(path, i % 2 == 0 ? longContent : shortContent);
    return (std::chrono::steady_clock::now() - begin) / saves;
}

/// Saves over and over until it is killed, after a moment of its first sign of life.
void killWhileSaving(const std::string& path, std::chrono::nanoseconds moment) {
    int signs[2] = {};
    ASSERT_EQ(::pipe(signs), 0);
    const pid_t saver = test::start([&] {
        char alive = 'a';
        if (::write(signs[1], &alive, 1) != 1)
            return false;
        for (;;) {
            save(path, longContent);
            save(path, shortContent);
        }
    });
    char alive = 0;
    EXPECT_EQ(::read(signs[0], &alive, 1), 1);
    timespec time{};
    time.tv_nsec = moment.count() % 1000000000;
    time.tv_sec = static_cast<time_t>(moment.count() / 1000000000);
    ::nanosleep(&time, nullptr);
    EXPECT_EQ(::kill(saver, SIGKILL), 0);
    EXPECT_FALSE(test::endedWell(saver)) << "it saves until it is killed";
    ::close(signs[0]);
    ::close(signs[1]);
}

TEST(SaveCallsKill, ASaveKilledAtAnyMomentLeavesAWholeFile) {
    const int kills = killsWanted();
    ASSERT_GT(kills, 0);
    const test::OneFile file;
    const std::chrono::nanoseconds perSave = timeOfASave(file.text);
    const std::random_device::result_type seed = std::random_device()();
    std::mt19937 random(seed);
    std::uniform_int_distribution<std::int64_t> moments(0, 3 * perSave.count());
    int inTheMiddle = 0;
    int without = 0;
    for (int kill = 1; kill <= kills; ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill) + ", seed " + std::to_string(seed));
        // Every other time there is no file before the first save.
        if (kill % 2 == 0)
            fs::remove(file.path);
        const bool existed = fs::exists(file.path);
        killWhileSaving(file.text, std::chrono::nanoseconds(moments(random)));
        if (fs::exists(file.path)) {
            const std::string left = test::bytesOf(file.path);
            ASSERT_EQ(wholeFiles.count(left), 1u) << left.size() << " bytes";
        } else {
            ++without;
            ASSERT_FALSE(existed) << "an old file was lost";
        }
        const std::size_t names = test::namesIn(file.folder.Path()).size();
        const std::size_t leftBehind = names - (fs::exists(file.path) ? 1 : 0);
        ASSERT_LE(leftBehind, 1u) << "what killed saves leave piles up";
        inTheMiddle += leftBehind == 1 ? 1 : 0;
    }
    save(file.text, shortContent);
    EXPECT_EQ(test::namesIn(file.folder.Path()).size(), 1u);
    std::cout << kills << " kills, " << inTheMiddle << " in the middle of a save, " << without
              << " before there was a file" << std::endl;
    EXPECT_GT(inTheMiddle, 0) << "no kill hit a save";
}

TEST(SaveCallsKill, SavesOfOneFileAtOnceLeaveItWholeAndNothingElse) {
    constexpr int savers = 4;
    constexpr int savesEach = 50;
    const test::OneFile file;
    save(file.text, std::string(30000, 'a'));
    std::vector<pid_t> processes;
    for (int saver = 0; saver < savers; ++saver)
        processes.push_back(test::start([&] {
            for (int i = 0; i < savesEach; ++i)
                save(file.text, std::string(30000, static_cast<char>('a' + saver)));
            return true;
        }));
    for (const pid_t process : processes) {
        // Whoever looks while the others still save sees a whole file too.
        for (int look = 0; look < 20; ++look) {
            const std::string seen = test::bytesOf(file.path);
            ASSERT_EQ(seen.size(), 30001u);
            ASSERT_EQ(seen, std::string(30000, seen[0]) + '\0');
        }
        EXPECT_TRUE(test::endedWell(process)) << "each of the saves must go through";
    }
    EXPECT_EQ(test::namesIn(file.folder.Path()).size(), 1u);
}

} // namespace
} // namespace veltrix
