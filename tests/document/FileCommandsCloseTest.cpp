#include "tests/document/FileCommandsTest.h"

#include <cstdint>
#include <string>
#include <system_error>
#include <vector>

namespace veltrix::test {
namespace {

TEST_F(FileCommandsTest, ClosingAnUnchangedBoardEndsTheProgramUnasked) {
    start();
    commands.mnuSluiten_Click();
    EXPECT_TRUE(program.ended);
    program.ended = false;
    EXPECT_EQ(cancelOfUnload(), 0);
    EXPECT_TRUE(program.ended);
    EXPECT_TRUE(user.asked.empty());
}

TEST_F(FileCommandsTest, ClosingAndCancellingKeepsTheProgram) {
    start();
    edit();
    user.answers = {Answer::Cancel, Answer::Cancel};
    commands.mnuSluiten_Click();
    EXPECT_EQ(cancelOfUnload(), 1);
    EXPECT_FALSE(program.ended);
    EXPECT_EQ(user.asked, (std::vector{saveQuestion, saveQuestion}));
    EXPECT_TRUE(user.dialogs.empty());
}

TEST_F(FileCommandsTest, ClosingWithoutSavingEndsTheProgram) {
    start();
    edit();
    user.answers = {Answer::No};
    commands.mnuSluiten_Click();
    EXPECT_TRUE(program.ended);
    program.ended = false;
    user.answers = {Answer::No};
    EXPECT_EQ(cancelOfUnload(), 0);
    EXPECT_TRUE(program.ended);
    EXPECT_TRUE(user.dialogs.empty());
}

TEST_F(FileCommandsTest, ClosingAndSavingAsksForAFileAndKeepsTheProgram) {
    start(makeDocument("oud.vtx"));
    edit();
    user.answers = {Answer::Yes};
    user.file = path("nieuw.vtx");
    commands.mnuSluiten_Click();
    EXPECT_EQ(user.dialogs, std::vector<std::string>{saveDialog}) << "though there is a document";
    EXPECT_EQ(commands.Path(), path("nieuw.vtx"));
    EXPECT_FALSE(program.ended);

    user.answers = {Answer::Yes};
    user.file = path("nog een.vtx");
    EXPECT_EQ(cancelOfUnload(), 1);
    EXPECT_EQ(bytesOf(folder.Path() / "nog een.vtx"), documentOf(board));
    EXPECT_FALSE(program.ended);
}

TEST_F(FileCommandsTest, ClosingAndSavingNowhereKeepsTheProgram) {
    start();
    edit();
    user.answers = {Answer::Yes, Answer::Yes};
    commands.mnuSluiten_Click();
    EXPECT_EQ(cancelOfUnload(), 1);
    EXPECT_FALSE(program.ended);
    EXPECT_EQ(user.dialogs.size(), 2u);
}

TEST_F(FileCommandsTest, ClosingAndFailingToSaveKeepsTheWindow) {
    start();
    edit();
    user.answers = {Answer::Yes, Answer::Yes};
    user.file = path("geen map/bord.vtx");
    EXPECT_THROW(commands.mnuSluiten_Click(), std::system_error);
    std::int32_t Cancel = 0;
    EXPECT_THROW(commands.Form_Unload(Cancel), std::system_error);
    EXPECT_EQ(Cancel, 1);
    EXPECT_FALSE(program.ended);
}

} // namespace
} // namespace veltrix::test
