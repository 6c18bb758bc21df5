#include "document/FileSave.h"

#include "tests/document/MemoryDisk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

namespace veltrix {
namespace {

using test::MemoryDisk;

const std::string oldContent = "what was there before";
const std::string shortContent = "NEW";
const std::string longContent = "a new content that is longer than the old one";

std::string expectedAfter(const std::optional<std::string>& before, const std::string& content) {
    if (!before || before->size() < content.size())
        return content;
    return content + before->substr(content.size());
}

/// Whether the save went through.
bool save(MemoryDisk& disk, const std::string& content) {
    try {
        FileSave save(disk);
        save.Begin("bord.vtx");
        save.Commit(content);
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

struct Case {
    std::string name;
    std::optional<std::string> before;
    std::string content;
    bool replaceable = true;
};

const Case cases[] = {
    {"a new file", std::nullopt, shortContent},
    {"a shorter content", oldContent, shortContent},
    {"a longer content", oldContent, longContent},
    {"an empty content", oldContent, ""},
};

const Case casesInPlace[] = {
    {"a shorter content in place", oldContent, shortContent, false},
    {"a longer content in place", oldContent, longContent, false},
};

MemoryDisk diskFor(const Case& example) {
    MemoryDisk disk;
    if (example.before)
        disk.Put("bord.vtx", *example.before);
    disk.replaceable = example.replaceable;
    return disk;
}

template <typename Check>
void forAllCases(Check check) {
    for (const Case& example : cases)
        check(example);
    for (const Case& example : casesInPlace)
        check(example);
}

TEST(FileSave, WritesTheBeginningAndKeepsTheTail) {
    forAllCases([](const Case& example) {
        MemoryDisk disk = diskFor(example);
        EXPECT_TRUE(save(disk, example.content)) << example.name;
        EXPECT_EQ(disk.At("bord.vtx"), expectedAfter(example.before, example.content))
            << example.name;
        EXPECT_EQ(disk.Names(), 1u) << example.name;
        EXPECT_EQ(disk.openFiles, 0) << example.name;
    });
}

TEST(FileSave, APowerCutAtAnyMomentLeavesTheOldFileOrTheNewOne) {
    for (const Case& example : cases) {
        MemoryDisk disk = diskFor(example);
        const std::string after = expectedAfter(example.before, example.content);
        int moments = 0;
        disk.whenCalled = [&] {
            ++moments;
            for (const std::optional<std::string>& left : disk.AfterPowerCut("bord.vtx"))
                EXPECT_TRUE(left == example.before || left == after)
                    << example.name << " after " << disk.calls.back() << ": "
                    << left.value_or("nothing");
        };
        EXPECT_TRUE(save(disk, example.content));
        EXPECT_GE(moments, 8);
    }
}

TEST(FileSave, AfterASaveThePowerMayGo) {
    forAllCases([](const Case& example) {
        MemoryDisk disk = diskFor(example);
        EXPECT_TRUE(save(disk, example.content));
        for (const std::optional<std::string>& left : disk.AfterPowerCut("bord.vtx"))
            EXPECT_EQ(left, expectedAfter(example.before, example.content)) << example.name;
    });
}

TEST(FileSave, AnyCallMayFailOnceAndTheOldFileIsWholeOrTheNewOne) {
    const std::pair<std::errc, const char*> reasons[] = {
        {std::errc::io_error, "broken"},
        {std::errc::no_space_on_device, "full"},
        {std::errc::permission_denied, "forbidden"},
        {std::errc::read_only_file_system, "read only"},
    };
    for (const auto& [reason, name] : reasons) {
        for (const Case& example : cases) {
            const std::string after = expectedAfter(example.before, example.content);
            for (int failing = 1;; ++failing) {
                MemoryDisk disk = diskFor(example);
                disk.failing = failing;
                disk.reason = reason;
                const bool saved = save(disk, example.content);
                const auto calls = static_cast<int>(disk.calls.size());
                SCOPED_TRACE(example.name + ", " + name + ", call " + std::to_string(failing) +
                             " of " + std::to_string(calls));
                EXPECT_EQ(disk.At("bord.vtx"), saved ? after : example.before);
                EXPECT_EQ(disk.Names(), saved || example.before ? 1u : 0u);
                EXPECT_EQ(disk.openFiles, 0);
                if (failing > calls)
                    break;
            }
        }
    }
}

TEST(FileSave, ADiskThatIsPulledOutLeavesTheOldFileOrTheNewOne) {
    for (const Case& example : cases) {
        for (int failing = 1; failing < 30; ++failing) {
            MemoryDisk disk = diskFor(example);
            disk.failing = failing;
            disk.forEver = true;
            save(disk, example.content);
            const std::optional<std::string> left = disk.At("bord.vtx");
            EXPECT_TRUE(left == example.before ||
                        left == expectedAfter(example.before, example.content))
                << example.name << ", from call " << failing;
            EXPECT_EQ(disk.openFiles, 0);
        }
    }
}

/// The number of the first call of that name in a save that goes well.
int numberOf(const std::string& name, const Case& example) {
    MemoryDisk disk = diskFor(example);
    EXPECT_TRUE(save(disk, example.content));
    const auto found = std::find(disk.calls.begin(), disk.calls.end(), name);
    EXPECT_NE(found, disk.calls.end()) << name;
    return static_cast<int>(found - disk.calls.begin()) + 1;
}

TEST(FileSave, AFileThatCannotGrowInPlaceStaysWhatItWas) {
    for (const char* const name : {"Write", "Flush"}) {
        MemoryDisk disk = diskFor(casesInPlace[1]);
        disk.failing = numberOf(name, casesInPlace[1]);
        disk.reason = std::errc::no_space_on_device;
        EXPECT_FALSE(save(disk, longContent));
        EXPECT_EQ(disk.At("bord.vtx"), oldContent) << name;
        EXPECT_EQ(disk.openFiles, 0);
    }
}

TEST(FileSave, InPlaceTheFileGrowsBeforeItIsOverwritten) {
    MemoryDisk disk = diskFor(casesInPlace[1]);
    bool grew = false;
    disk.whenCalled = [&] {
        const std::string now = *disk.At("bord.vtx");
        grew = grew || (now.size() == longContent.size() &&
                        now.compare(0, oldContent.size(), oldContent) == 0);
    };
    EXPECT_TRUE(save(disk, longContent));
    EXPECT_TRUE(grew);
    EXPECT_EQ(disk.At("bord.vtx"), longContent);
}

TEST(FileSave, ARefusedSecondFileMeansWritingInPlace) {
    for (const std::errc reason :
         {std::errc::permission_denied, std::errc::operation_not_permitted,
          std::errc::read_only_file_system, std::errc::filename_too_long}) {
        MemoryDisk disk = diskFor(cases[1]);
        disk.reason = reason;
        disk.failing = 4;
        EXPECT_TRUE(save(disk, shortContent));
        EXPECT_EQ(disk.calls[3], "Create");
        EXPECT_EQ(std::count(disk.calls.begin(), disk.calls.end(), "Rename"), 0);
        EXPECT_EQ(disk.At("bord.vtx"), expectedAfter(oldContent, shortContent));
    }
}

TEST(FileSave, ASecondFileThatCannotTakeTheNameMeansWritingInPlace) {
    for (const std::errc reason : {std::errc::permission_denied, std::errc::device_or_resource_busy,
                                   std::errc::cross_device_link}) {
        MemoryDisk refusing = diskFor(cases[1]);
        refusing.reason = reason;
        refusing.failing = numberOf("Rename", cases[1]);
        EXPECT_TRUE(save(refusing, shortContent));
        EXPECT_EQ(refusing.At("bord.vtx"), expectedAfter(oldContent, shortContent));
        EXPECT_EQ(refusing.Names(), 1u);
        EXPECT_EQ(refusing.openFiles, 0);
    }
}

TEST(FileSave, ABrokenDiskIsNoReasonToWriteInPlace) {
    for (const char* const name : {"Create", "Write", "Flush", "Rename"}) {
        MemoryDisk disk = diskFor(cases[1]);
        disk.failing = numberOf(name, cases[1]);
        EXPECT_FALSE(save(disk, shortContent)) << name;
        EXPECT_EQ(disk.At("bord.vtx"), oldContent) << name;
    }
}

TEST(FileSave, ANewFileIsNeverWrittenInPlace) {
    MemoryDisk disk;
    disk.reason = std::errc::permission_denied;
    disk.failing = 3;
    EXPECT_FALSE(save(disk, shortContent));
    EXPECT_EQ(disk.calls[2], "Create");
    EXPECT_EQ(disk.Names(), 0u);
}

TEST(FileSave, FollowsALinkToTheFileItself) {
    MemoryDisk disk;
    disk.Put("echt.vtx", oldContent);
    disk.Link("bord.vtx", "echt.vtx");
    EXPECT_TRUE(save(disk, shortContent));
    EXPECT_EQ(disk.At("echt.vtx"), expectedAfter(oldContent, shortContent));
    EXPECT_EQ(disk.At("bord.vtx"), std::nullopt);
}

TEST(FileSave, WhatIsOnTheWayIsNotSeenUnderTheName) {
    MemoryDisk disk = diskFor(cases[1]);
    FileSave save(disk);
    save.Begin("bord.vtx");
    EXPECT_TRUE(save.Begun());
    EXPECT_EQ(disk.At("bord.vtx"), oldContent);
    EXPECT_EQ(disk.At(".bord.vtx.veltrix-new"), "");
    save.Abandon();
    EXPECT_FALSE(save.Begun());
    EXPECT_EQ(disk.At("bord.vtx"), oldContent);
    EXPECT_EQ(disk.Names(), 1u);
    EXPECT_EQ(disk.openFiles, 0);
}

TEST(FileSave, BeginningAnotherAbandonsTheFirst) {
    MemoryDisk disk;
    disk.Put("a.vtx", oldContent);
    FileSave save(disk);
    save.Begin("a.vtx");
    save.Begin("b.vtx");
    save.Commit(shortContent);
    EXPECT_EQ(disk.At("a.vtx"), oldContent);
    EXPECT_EQ(disk.At("b.vtx"), shortContent);
    EXPECT_EQ(disk.Names(), 2u);
    EXPECT_FALSE(save.Begun());
}

TEST(FileSave, AFileThatTooManySaveAtOnceIsWrittenInPlace) {
    MemoryDisk disk = diskFor(cases[1]);
    disk.busy = true;
    EXPECT_TRUE(save(disk, shortContent));
    EXPECT_EQ(disk.At("bord.vtx"), expectedAfter(oldContent, shortContent));
    EXPECT_EQ(std::count(disk.calls.begin(), disk.calls.end(), "Create"), 16);
    MemoryDisk empty;
    empty.busy = true;
    EXPECT_FALSE(save(empty, shortContent));
}

TEST(FileSave, TheSecondFileOfALongNameHasRoomForItsOwn) {
    MemoryDisk disk;
    std::string name;
    for (int i = 0; i < 84; ++i)
        name += "\u20AC"; // three bytes
    std::string second;
    disk.whenCalled = [&] {
        if (disk.calls.back() != "Create")
            return;
        std::string shortened;
        for (int i = 0; i < 66; ++i)
            shortened += "\u20AC";
        EXPECT_EQ(disk.At("map/." + shortened + ".veltrix-new"), "");
    };
    FileSave save(disk);
    save.Begin("map/" + name);
    save.Commit(shortContent);
    EXPECT_EQ(disk.At("map/" + name), shortContent);
}

TEST(FileSave, TheErrorNamesTheFileThatTheUserKnows) {
    for (const int failing : {1, 5}) {
        MemoryDisk disk = diskFor(cases[1]);
        disk.failing = failing;
        try {
            FileSave save(disk);
            save.Begin("bord.vtx");
            save.Commit(shortContent);
            FAIL() << failing;
        } catch (const std::system_error& error) {
            EXPECT_EQ(error.code(), std::errc::io_error);
            EXPECT_EQ(std::string(error.what()).find("bord.vtx"), 0u);
        }
    }
}

} // namespace
} // namespace veltrix
