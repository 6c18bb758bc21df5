#include "cli/BoardFile.h"

#include "tests/cli/BareSimulation.h"
#include "tests/cli/Cli.h"
#include "tests/cli/Documents.h"
#include "tests/cli/Faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace veltrix::cli {
namespace {

using testing::StartsWith;

struct BoardFileTest : testing::Test, test::BareSimulation {
    Board& board() { return simulation.TheBoard(); }

    test::Files files;
};

TEST_F(BoardFileTest, ReadsADocument) {
    const std::string path =
        files.Add("één.vtx", test::Document{.wires = {{"Zoemer", "Invertor Uitgang"}},
                                            .counter = 3,
                                            .sensor1 = 1,
                                            .sensor2 = 2,
                                            .pulse = 10,
                                            .comparator = 20,
                                            .voltage = 30,
                                            .button1 = true}
                                 .Bytes());
    ReadBoard(path, board());
    ASSERT_EQ(board().Lines.Count(), 1);
    EXPECT_EQ(board().Lines.Item(1)->naam1, "Zoemer");
    EXPECT_EQ(board().Display.Value(), 3);
    EXPECT_EQ(board().Knobs.VariableVoltage, 30);
    EXPECT_TRUE(board().PushButtons[0].Value());
}

TEST_F(BoardFileTest, FaultyDocumentLeavesTheBoardAsItWas) {
    board().AddLine("Zoemer", "Invertor Uitgang");
    const std::string path = files.Add(
        "b.vtx",
        test::Document{.wires = {{"a", "b"}}, .count = 5, .counter = 3, .comparator = 20}.Bytes());
    EXPECT_THAT(test::faultOf([&] { ReadBoard(path, board()); }), StartsWith(path + ": "));
    EXPECT_EQ(board().Lines.Count(), 1);
    EXPECT_EQ(board().Display.Value(), 0);
    EXPECT_EQ(board().Knobs.Comparator, 0);
}

TEST_F(BoardFileTest, FileThatCannotBeReadIsAFault) {
    for (const char* name : {"weg.vtx", "weg/weg.vtx"})
        EXPECT_EQ(test::faultOf([&] { ReadBoard(files.Path(name), board()); }),
                  files.Path(name) + ": No such file or directory");
    EXPECT_EQ(test::faultOf([&] { ReadBoard(files.Path(""), board()); }),
              files.Path("") + ": Is a directory");
}

TEST_F(BoardFileTest, WritesWhatItReads) {
    const std::string bytes =
        test::Document{.wires = {{"Zoemer", "\x80 5"}, {"", "Sensor 1 Uit Geel"}},
                       .counter = 9,
                       .sensor1 = -7,
                       .sensor2 = 2,
                       .pulse = 51,
                       .comparator = -1,
                       .voltage = 30}
            .Bytes();
    ReadBoard(files.Add("a.vtx", bytes), board());
    WriteBoard(files.Path("één.vtx"), board());
    EXPECT_EQ(test::bytesOf(PathFromUtf8(files.Path("één.vtx"))), bytes);
}

TEST_F(BoardFileTest, FileThatCannotBeWrittenIsAFault) {
    EXPECT_EQ(test::faultOf([&] { WriteBoard(files.Path("weg/b.vtx"), board()); }),
              files.Path("weg/b.vtx") + ": No such file or directory");
    EXPECT_EQ(test::faultOf([&] { WriteBoard("/dev/full", board()); }),
              "/dev/full: No space left on device");
}

} // namespace
} // namespace veltrix::cli
