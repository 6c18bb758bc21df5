#include "cli/BoardFile.h"

#include "cli/Fault.h"
#include "cli/Simulation.h"
#include "tests/cli/Cli.h"
#include "tests/cli/Documents.h"
#include "tests/support/Logs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace veltrix::cli {
namespace {

using testing::StartsWith;

struct BoardFile : testing::Test {
    Board& board() { return simulation.TheBoard(); }

    static std::string faultOf(const std::function<void()>& act) {
        try {
            act();
        } catch (const Fault& fault) {
            return fault.what();
        }
        return {};
    }

    test::NullLog log;
    Simulation simulation{{}, 1, log};
    test::Files files;
};

TEST_F(BoardFile, ReadsADocument) {
    const std::string path = files.Add(
        "één.vtx",
        test::Document{{{"Zoemer", "Invertor Uitgang"}}, -2, 3, 1, 2, 10, 20, 30, true}.Bytes());
    ReadBoard(path, board());
    ASSERT_EQ(board().Lines.Count(), 1);
    EXPECT_EQ(board().Lines.Item(1)->naam1, "Zoemer");
    EXPECT_EQ(board().Display.Value(), 3);
    EXPECT_EQ(board().Knobs.VariableVoltage, 30);
    EXPECT_TRUE(board().PushButtons[0].Value());
}

TEST_F(BoardFile, FaultyDocumentLeavesTheBoardAsItWas) {
    board().AddLine("Zoemer", "Invertor Uitgang");
    const std::string path =
        files.Add("b.vtx", test::Document{{{"a", "b"}}, 5, 3, 1, 2, 10, 20, 30}.Bytes());
    EXPECT_THAT(faultOf([&] { ReadBoard(path, board()); }), StartsWith(path + ": "));
    EXPECT_EQ(board().Lines.Count(), 1);
    EXPECT_EQ(board().Display.Value(), 0);
    EXPECT_EQ(board().Knobs.Comparator, 0);
}

TEST_F(BoardFile, FileThatCannotBeReadIsAFault) {
    for (const char* name : {"weg.vtx", "weg/weg.vtx"})
        EXPECT_EQ(faultOf([&] { ReadBoard(files.Path(name), board()); }),
                  files.Path(name) + ": No such file or directory");
    EXPECT_EQ(faultOf([&] { ReadBoard(files.Path(""), board()); }),
              files.Path("") + ": Is a directory");
}

TEST_F(BoardFile, WritesWhatItReads) {
    const std::string bytes =
        test::Document{{{"Zoemer", "\x80 5"}, {"", "Sensor 1 Uit Geel"}}, -2, 9, -7, 2, 51, -1, 30}
            .Bytes();
    ReadBoard(files.Add("a.vtx", bytes), board());
    WriteBoard(files.Path("één.vtx"), board());
    EXPECT_EQ(test::bytesOf(PathFromUtf8(files.Path("één.vtx"))), bytes);
}

TEST_F(BoardFile, FileThatCannotBeWrittenIsAFault) {
    EXPECT_EQ(faultOf([&] { WriteBoard(files.Path("weg/b.vtx"), board()); }),
              files.Path("weg/b.vtx") + ": No such file or directory");
    EXPECT_EQ(faultOf([&] { WriteBoard("/dev/full", board()); }),
              "/dev/full: No space left on device");
}

} // namespace
} // namespace veltrix::cli
