#include "tests/document/FileCommandsTest.h"

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace veltrix::test {
namespace {

TEST_F(FileCommandsTest, SavingWritesTheBoardToItsDocumentUnasked) {
    start(makeDocument("test.vtx"));
    edit();
    commands.mnuBewaren_Click();
    EXPECT_EQ(bytesOf(folder.Path() / "test.vtx"), documentOf(board));
    EXPECT_TRUE(user.asked.empty());
    EXPECT_TRUE(user.dialogs.empty());
    EXPECT_EQ(history.steps.size(), 3u) << "a saved board still counts as changed";
}

TEST_F(FileCommandsTest, SavingAShorterDocumentKeepsTheTail) {
    const std::string document = makeDocument("test.vtx");
    const std::string before = bytesOf(folder.Path() / "test.vtx");
    start(document);
    board.Lines.Remove(1);
    commands.mnuBewaren_Click();
    EXPECT_EQ(bytesOf(folder.Path() / "test.vtx"), documentOf(board) + before.substr(52));
    commands.OpenDocument(document);
    EXPECT_EQ(board.Lines.Count(), 0);
}

TEST_F(FileCommandsTest, SavingWithoutADocumentAsksForOne) {
    start();
    user.file = path("nieuw.vtx");
    commands.mnuBewaren_Click();
    EXPECT_EQ(user.dialogs, std::vector<std::string>{saveDialog});
    EXPECT_EQ(bytesOf(folder.Path() / "nieuw.vtx"), documentOf(board));
    EXPECT_EQ(commands.Path(), path("nieuw.vtx"));
}

TEST_F(FileCommandsTest, SavingAsMakesTheFileTheDocument) {
    start(makeDocument("oud.vtx"));
    edit();
    user.file = path("caf\u00E9 \u4E2D.vtx");
    commands.mnuBewarenAls_Click();
    EXPECT_EQ(user.dialogs, std::vector<std::string>{saveDialog});
    EXPECT_EQ(bytesOf(PathFromUtf8(*user.file)), documentOf(board));
    EXPECT_NE(bytesOf(folder.Path() / "oud.vtx"), documentOf(board));
    EXPECT_EQ(commands.Path(), *user.file);
    EXPECT_EQ(user.FileName(), *user.file);
    EXPECT_EQ(window.caption, "Veltrix versie 2.0 - caf\u00E9 \u4E2D.vtx");
    EXPECT_TRUE(window.saveEnabled);
    EXPECT_TRUE(user.asked.empty());
}

TEST_F(FileCommandsTest, ANameWithoutAnExtensionGetsOne) {
    start();
    const std::pair<std::string, std::string> names[] = {{"bord", "bord.vtx"},
                                                         {"mijn bord", "mijn bord.vtx"},
                                                         {"bord.bak", "bord.bak"},
                                                         {"bord.VTX", "bord.VTX"}};
    for (const auto& [chosen, made] : names) {
        user.file = path(chosen);
        commands.mnuBewarenAls_Click();
        EXPECT_EQ(commands.Path(), path(made));
        EXPECT_TRUE(std::filesystem::exists(folder.Path() / made)) << made;
    }
    EXPECT_EQ(namesIn(folder.Path()).size(), 4u);
}

TEST_F(FileCommandsTest, ADotInAFolderIsNoExtension) {
    start();
    std::filesystem::create_directory(folder.Path() / "klas.3");
    user.file = path("klas.3") + "/bord";
    commands.mnuBewarenAls_Click();
    EXPECT_TRUE(std::filesystem::exists(folder.Path() / "klas.3" / "bord.vtx"));
}

TEST_F(FileCommandsTest, ChoosingNoFileToSaveToChangesNothing) {
    start();
    edit();
    for (const std::optional<std::string>& none :
         {std::optional<std::string>(), std::optional<std::string>("")}) {
        user.file = none;
        commands.mnuBewarenAls_Click();
        EXPECT_EQ(commands.Path(), "");
        EXPECT_FALSE(window.saveEnabled);
        EXPECT_TRUE(namesIn(folder.Path()).empty());
    }
}

TEST_F(FileCommandsTest, AFileThatExistsIsOverwrittenAfterAsking) {
    start();
    edit();
    user.file = makeDocument("oud.vtx");
    user.answers = {Answer::Yes};
    commands.mnuBewarenAls_Click();
    const std::vector<Asked> expected{{"Weet u zeker dat u oud.vtx wilt overschrijven?",
                                       "Veltrix versie 2.0", Buttons::YesNo, Icon::None}};
    EXPECT_EQ(user.asked, expected);
    EXPECT_EQ(bytesOf(folder.Path() / "oud.vtx").substr(0, documentOf(board).size()),
              documentOf(board));
    EXPECT_EQ(commands.Path(), path("oud.vtx"));
}

TEST_F(FileCommandsTest, AFileThatExistsStaysWhenTheAnswerIsNo) {
    start();
    edit();
    const std::string old = bytesOf(PathFromUtf8(makeDocument("oud.vtx")));
    user.file = path("oud"); // the question is about the name with its extension
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        user.answers = {answer};
        commands.mnuBewarenAls_Click();
        EXPECT_EQ(user.asked.back().text, "Weet u zeker dat u oud.vtx wilt overschrijven?");
        EXPECT_EQ(bytesOf(folder.Path() / "oud.vtx"), old);
        EXPECT_EQ(commands.Path(), "");
        EXPECT_EQ(window.caption, "Veltrix versie 2.0");
        EXPECT_FALSE(window.saveEnabled);
    }
}

TEST_F(FileCommandsTest, ASaveThatFailsLeavesDocumentCaptionAndMenu) {
    start();
    edit();
    const std::string before = documentOf(board);
    std::filesystem::create_directory(folder.Path() / "map.vtx");
    for (const std::string& impossible : {path("map.vtx"), path("geen map/bord.vtx")}) {
        user.file = impossible;
        EXPECT_THROW(commands.mnuBewarenAls_Click(), std::system_error) << impossible;
        EXPECT_EQ(commands.Path(), "");
        EXPECT_EQ(user.FileName(), "");
        EXPECT_EQ(window.caption, "Veltrix versie 2.0");
        EXPECT_FALSE(window.saveEnabled);
        EXPECT_EQ(documentOf(board), before);
        EXPECT_TRUE(history.Changed());
    }
    EXPECT_EQ(namesIn(folder.Path()).size(), 1u);
    EXPECT_TRUE(user.asked.empty()) << "a folder is not overwritten";
}

TEST_F(FileCommandsTest, ASaveToADocumentWhoseFolderIsGoneThrows) {
    std::filesystem::create_directory(folder.Path() / "stick");
    start(makeDocument("stick/bord.vtx"));
    edit();
    std::filesystem::remove_all(folder.Path() / "stick");
    EXPECT_THROW(commands.mnuBewaren_Click(), std::system_error);
    EXPECT_EQ(commands.Path(), path("stick/bord.vtx"));
    EXPECT_TRUE(window.saveEnabled);
    EXPECT_EQ(board.Lines.Count(), 2);
}

TEST_F(FileCommandsTest, ABoardThatNoFileCanHoldLeavesTheOldFile) {
    const std::string document = makeDocument("oud.vtx");
    const std::string old = bytesOf(folder.Path() / "oud.vtx");
    start(document);
    board.AddLine("\u2603", "Zoemer");
    EXPECT_THROW(commands.mnuBewaren_Click(), std::overflow_error);
    EXPECT_EQ(bytesOf(folder.Path() / "oud.vtx"), old);
    EXPECT_EQ(namesIn(folder.Path()).size(), 1u);
}

} // namespace
} // namespace veltrix::test
