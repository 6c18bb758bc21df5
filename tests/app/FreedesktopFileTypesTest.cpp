#include "app/FreedesktopFileTypes.h"

#include "tests/document/Files.h"
#include "tests/support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace veltrix::test {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr int sizes[] = {16, 24, 32, 48, 64, 128, 256};

/// Writes a file, in a folder that need not be there.
void put(const fs::path& file, const std::string& content) {
    fs::create_directories(file.parent_path());
    putBytes(file, content);
}

/// Every file below a folder with its content.
std::map<std::string, std::string> filesOf(const fs::path& folder) {
    std::map<std::string, std::string> files;
    if (fs::exists(folder))
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            if (entry.is_regular_file())
                files[fs::relative(entry.path(), folder).string()] = bytesOf(entry.path());
    return files;
}

struct FreedesktopFileTypesTest : testing::Test {
    FreedesktopFileTypesTest() {
        for (const int size : sizes) {
            const std::string end = "-" + std::to_string(size) + ".png";
            put(Program().parent_path() / ("images2/veltrix" + end), "window icon" + end);
            put(Program().parent_path() / ("images1/doc" + end), "document icon" + end);
        }
    }

    [[nodiscard]] fs::path Program() const { return folder.Path() / "apps/veltrix"; }

    [[nodiscard]] fs::path Home() const { return folder.Path() / "home/.local/share"; }

    std::vector<FreedesktopFileTypes::Index> Write() const {
        return FreedesktopFileTypes(Program(), Home(), dataFolders).Write();
    }

    /// What the programs that make the indexes leave.
    void MakeIndexes() const {
        put(Home() / "mime/mime.cache", "");
        put(Home() / "applications/mimeinfo.cache", "");
    }

    [[nodiscard]] std::string Exec(const std::string& program) const {
        const std::string entry = FreedesktopFileTypes(program, Home(), {}).DesktopEntry();
        const std::size_t begin = entry.find("\nExec=") + 1;
        return entry.substr(begin, entry.find('\n', begin) - begin);
    }

    TempFolder folder;
    std::vector<fs::path> dataFolders;
};

TEST_F(FreedesktopFileTypesTest, WritesTheTypeTheEntryAndTheIcons) {
    Write();
    auto files = filesOf(Home());
    EXPECT_THAT(files, SizeIs(2 + 2 * std::size(sizes)));
    EXPECT_THAT(files["mime/packages/veltrix.xml"], HasSubstr("type=\"application/x-veltrix\""));
    EXPECT_THAT(files["mime/packages/veltrix.xml"], HasSubstr("<glob pattern=\"*.vtx\"/>"));
    const std::string& entry = files["applications/veltrix.desktop"];
    EXPECT_THAT(entry, HasSubstr("\nExec=" + Program().string() + " %f\n"));
    EXPECT_THAT(entry, HasSubstr("\nTryExec=" + Program().string() + "\n"));
    EXPECT_THAT(entry, HasSubstr("\nMimeType=application/x-veltrix;\n"));
    EXPECT_EQ(files["icons/hicolor/48x48/apps/veltrix.png"], "window icon-48.png");
    EXPECT_EQ(files["icons/hicolor/256x256/mimetypes/application-x-veltrix.png"],
              "document icon-256.png");
}

TEST_F(FreedesktopFileTypesTest, TellsWhichIndexesAreOld) {
    const auto indexes = Write();
    ASSERT_THAT(indexes, SizeIs(2));
    EXPECT_EQ(indexes[0].Program, "update-mime-database");
    EXPECT_EQ(indexes[0].Folder, Home() / "mime");
    EXPECT_EQ(indexes[1].Program, "update-desktop-database");
    EXPECT_EQ(indexes[1].Folder, Home() / "applications");
}

TEST_F(FreedesktopFileTypesTest, WhatIsRightIsNotWrittenAgain) {
    Write();
    MakeIndexes();
    const fs::file_time_type past = fs::file_time_type::clock::now() - std::chrono::hours(1);
    for (const auto& entry : fs::recursive_directory_iterator(Home()))
        fs::last_write_time(entry.path(), past);
    EXPECT_THAT(Write(), IsEmpty());
    for (const auto& entry : fs::recursive_directory_iterator(Home()))
        EXPECT_EQ(fs::last_write_time(entry.path()), past) << entry.path();
}

TEST_F(FreedesktopFileTypesTest, AnIndexThatWasNeverMadeIsAskedForAgain) {
    Write();
    EXPECT_THAT(Write(), SizeIs(2));
}

TEST_F(FreedesktopFileTypesTest, OnlyWhatDiffersIsWritten) {
    Write();
    MakeIndexes();
    put(Home() / "applications/veltrix.desktop", "[Desktop Entry]\nName=Something else\n");
    const auto indexes = Write();
    ASSERT_THAT(indexes, SizeIs(1));
    EXPECT_EQ(indexes[0].Program, "update-desktop-database");
    EXPECT_THAT(bytesOf(Home() / "applications/veltrix.desktop"), HasSubstr("Name=Veltrix\n"));
}

TEST_F(FreedesktopFileTypesTest, NewIconsMakeTheThemeNew) {
    Write();
    const fs::path theme = Home() / "icons/hicolor";
    const fs::file_time_type past = fs::file_time_type::clock::now() - std::chrono::hours(1);
    fs::last_write_time(theme, past);
    put(theme / "16x16/apps/veltrix.png", "an older icon");
    Write();
    EXPECT_EQ(bytesOf(theme / "16x16/apps/veltrix.png"), "window icon-16.png");
    EXPECT_GT(fs::last_write_time(theme), past);
}

TEST_F(FreedesktopFileTypesTest, IconsThatTheProgramLacksAreLeftOut) {
    fs::remove_all(Program().parent_path());
    Write();
    EXPECT_THAT(filesOf(Home()), SizeIs(2));
}

TEST_F(FreedesktopFileTypesTest, AHomeThatCannotBeWrittenIsLeftAlone) {
    put(folder.Path() / "home", "a file where the folder should be");
    EXPECT_THAT(Write(), IsEmpty());
    EXPECT_EQ(bytesOf(folder.Path() / "home"), "a file where the folder should be");
}

TEST_F(FreedesktopFileTypesTest, NoHalfFileStaysWhereOneCannotBeReplaced) {
    fs::create_directories(Home() / "applications/veltrix.desktop/not empty");
    const auto indexes = Write();
    EXPECT_THAT(indexes, SizeIs(1)) << "the type was written all the same";
    for (const auto& [name, content] : filesOf(Home()))
        EXPECT_THAT(name, Not(HasSubstr("veltrix-new")));
}

TEST_F(FreedesktopFileTypesTest, TheCommandIsQuotedWhereItNeedsToBe) {
    EXPECT_EQ(Exec("/opt/veltrix"), "Exec=/opt/veltrix %f");
    EXPECT_EQ(Exec("/opt/één/veltrix"), "Exec=/opt/één/veltrix %f");
    EXPECT_EQ(Exec("/opt/100%/veltrix"), "Exec=/opt/100%%/veltrix %f");
    EXPECT_EQ(Exec("/opt/mijn map/veltrix"), "Exec=\"/opt/mijn map/veltrix\" %f");
    EXPECT_EQ(Exec("/opt/a&b's (1)/veltrix"), "Exec=\"/opt/a&b's (1)/veltrix\" %f");
    EXPECT_EQ(Exec("/opt/\"$a`\\/veltrix"), R"(Exec="/opt/\\"\\$a\\`\\\\/veltrix" %f)");
}

TEST_F(FreedesktopFileTypesTest, APathOfTwoLinesIsNotRegistered) {
    EXPECT_THAT(FreedesktopFileTypes("/opt/two\nlines/veltrix", Home(), {}).Write(), IsEmpty());
    EXPECT_THAT(filesOf(Home()), IsEmpty());
}

TEST_F(FreedesktopFileTypesTest, AProgramInstalledForAllHasAnEntryAlready) {
    const fs::path share = folder.Path() / "apps/share";
    put(share / "applications/veltrix.desktop", "[Desktop Entry]\n");
    for (const fs::path& written : {share, share / ""}) {
        dataFolders = {"/nowhere/share", written};
        EXPECT_THAT(Write(), IsEmpty());
        EXPECT_THAT(filesOf(Home()), IsEmpty());
    }
}

TEST_F(FreedesktopFileTypesTest, AnEntryOfAnotherPlaceDoesNotCount) {
    const fs::path share = folder.Path() / "elsewhere/share";
    put(share / "applications/veltrix.desktop", "[Desktop Entry]\n");
    dataFolders = {share};
    EXPECT_THAT(Write(), SizeIs(2));
}

TEST_F(FreedesktopFileTypesTest, AnOldEntryOfTheUserWouldHideThatOfAll) {
    const fs::path share = folder.Path() / "apps/share";
    put(share / "applications/veltrix.desktop", "[Desktop Entry]\n");
    put(Home() / "applications/veltrix.desktop", "[Desktop Entry]\nExec=/gone/veltrix %f\n");
    dataFolders = {share};
    Write();
    EXPECT_THAT(bytesOf(Home() / "applications/veltrix.desktop"),
                HasSubstr("Exec=" + Program().string() + " %f\n"));
}

} // namespace

} // namespace veltrix::test
