#include "document/clsKorvelWFile.h"
#include "tests/document/Files.h"
#include "tests/document/Saves.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <system_error>

namespace veltrix::test {
namespace {

namespace fs = std::filesystem;

TEST(SaveCallsNames, ALinkStaysALinkAndItsFileIsWritten) {
    const OneFile file;
    const fs::path folder = file.folder.Path();
    fs::create_directory(folder / "map");
    putBytes(folder / "map" / "echt.vtx", oldContent);
    fs::create_symlink("map/tussen.vtx", file.path);
    fs::create_symlink(folder / "map" / "echt.vtx", folder / "map" / "tussen.vtx");
    saveNumber(file.text);
    EXPECT_TRUE(fs::is_symlink(file.path));
    EXPECT_TRUE(fs::is_symlink(folder / "map" / "tussen.vtx"));
    EXPECT_EQ(bytesOf(folder / "map" / "echt.vtx"), newContent);
    EXPECT_EQ(namesIn(folder).size(), 2u);
    EXPECT_EQ(namesIn(folder / "map").size(), 2u);
}

TEST(SaveCallsNames, ALinkToNothingMakesWhatItLinksTo) {
    const OneFile file;
    fs::create_symlink("echt.vtx", file.path);
    saveNumber(file.text);
    EXPECT_TRUE(fs::is_symlink(file.path));
    EXPECT_EQ(bytesOf(file.folder.Path() / "echt.vtx"), newContent.substr(0, 4));
}

TEST(SaveCallsNames, LinksInARingAreAnError) {
    const OneFile file;
    fs::create_symlink("ander.vtx", file.path);
    fs::create_symlink("bord.vtx", file.folder.Path() / "ander.vtx");
    EXPECT_EQ(errorOfSaving(file.text), std::errc::too_many_symbolic_link_levels);
}

TEST(SaveCallsNames, AFileOfTwoNamesKeepsBoth) {
    const OneFile file;
    putBytes(file.path, oldContent);
    fs::create_hard_link(file.path, file.folder.Path() / "ander.vtx");
    saveNumber(file.text);
    EXPECT_EQ(bytesOf(file.folder.Path() / "ander.vtx"), newContent);
    EXPECT_EQ(fs::hard_link_count(file.path), 2u);
}

TEST(SaveCallsNames, AFileThatVanishesWhileItIsWrittenIsThereAgain) {
    const OneFile file;
    putBytes(file.path, oldContent);
    SaveCalls& calls = PlatformSaveCalls();
    const SaveCalls::File open = *calls.OpenToWrite(file.path);
    EXPECT_TRUE(calls.IsReplaceable(open));
    fs::remove(file.path);
    EXPECT_TRUE(calls.IsReplaceable(open)) << "what is written into it would be lost";
    calls.Close(open);
    putBytes(file.path, oldContent);
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    writer.writeLong(1);
    fs::remove(file.path);
    writer.CloseFile();
    EXPECT_EQ(bytesOf(file.path), newContent);
}

TEST(SaveCallsNames, WhatAKilledSaveLeftIsRemoved) {
    const OneFile file;
    putBytes(file.path, oldContent);
    const fs::path left = file.folder.Path() / ".bord.vtx.veltrix-new";
    putBytes(left, "half of someth");
    fs::permissions(left, fs::perms::owner_read);
    saveNumber(file.text);
    EXPECT_EQ(bytesOf(file.path), newContent);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsNames, WhatStandsThereWithoutBeingAFileIsLeftAlone) {
    const OneFile file;
    putBytes(file.path, oldContent);
    const fs::path folder = file.folder.Path();
    putBytes(folder / "ander.txt", "untouched");
    fs::create_symlink("ander.txt", folder / ".bord.vtx.veltrix-new");
    fs::create_directory(folder / ".bord.vtx.veltrix-new-2");
    saveNumber(file.text);
    EXPECT_EQ(bytesOf(file.path), newContent);
    EXPECT_EQ(bytesOf(folder / "ander.txt"), "untouched");
    EXPECT_EQ(namesIn(folder).size(), 4u);
}

TEST(SaveCallsNames, TwoSavesOfOneFileDoNotDisturbEachOther) {
    const OneFile file;
    putBytes(file.path, oldContent);
    clsKorvelWFile first;
    first.OpenFile(file.text);
    first.writeLong(0x31313131);
    clsKorvelWFile second;
    second.OpenFile(file.text);
    second.writeLong(0x32323232);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 3u);
    second.CloseFile();
    EXPECT_EQ(bytesOf(file.path), "2222EFGH");
    first.CloseFile();
    EXPECT_EQ(bytesOf(file.path), "1111EFGH");
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
}

TEST(SaveCallsNames, TheLongestNameThatASystemKnowsCanBeSaved) {
    const OneFile file(std::string(251, 'a') + ".vtx");
    saveNumber(file.text);
    putBytes(file.path, oldContent);
    saveNumber(file.text);
    EXPECT_EQ(bytesOf(file.path), newContent);
    EXPECT_EQ(namesIn(file.folder.Path()).size(), 1u);
    EXPECT_EQ(errorOfSaving(Utf8FromPath(file.folder.Path() / std::string(256, 'a'))),
              std::errc::filename_too_long);
}

TEST(SaveCallsNames, ANameInTheCurrentFolderNeedsNoFolder) {
    const OneFile file;
    const fs::path before = fs::current_path();
    fs::current_path(file.folder.Path());
    saveNumber("bord.vtx");
    fs::current_path(before);
    EXPECT_EQ(bytesOf(file.path).size(), 4u);
}

} // namespace
} // namespace veltrix::test
