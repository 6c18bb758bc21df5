#include "document/BoardDocument.h"

#include "document/CodePage1252.h"
#include "document/clsKorvelWFile.h"
#include "tests/document/Documents.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace veltrix::test {
namespace {

std::vector<std::pair<std::string, std::string>> wiresOf(const Board& board) {
    std::vector<std::pair<std::string, std::string>> wires;
    for (const auto& line : board.Lines)
        wires.emplace_back(line->naam1.Text(), line->naam2.Text());
    return wires;
}

TEST(BoardDocument, AnEmptyBoardTakes52Bytes) {
    TestBoard test;
    const std::string zeros(34, '\0');
    EXPECT_EQ(documentOf(test.board), "\xDA\xDA" + longBytes(46) + std::string("\x00\x10", 2) +
                                          longBytes(34) + zeros + std::string("\x00\x20", 2) +
                                          longBytes(0));
}

TEST(BoardDocument, TheSettingsStandInTheirOrder) {
    TestBoard test;
    turnEverything(test.board);
    addThreeWires(test.board);
    EXPECT_EQ(documentOf(test.board).substr(12, 34),
              longBytes(0) + longBytes(3) + longBytes(7) + longBytes(1) + longBytes(2) +
                  longBytes(11) + longBytes(22) + longBytes(33) + "\xFF" + std::string(1, '\0'));
}

TEST(BoardDocument, AWireAddsItsTwoNamesToTheDocument) {
    TestBoard test;
    wire(test.board, "Sensor 1 Uit Geel", "LED 1 Ingang");
    const std::string bytes = documentOf(test.board);
    EXPECT_EQ(bytes.size(), 52u + 31u);
    EXPECT_EQ(bytes.substr(2, 4), longBytes(46 + 31));
    EXPECT_EQ(bytes.substr(field::WiresChunk), std::string("\x00\x20", 2) + longBytes(31) +
                                                   std::string("Sensor 1 Uit Geel") + '\0' +
                                                   "LED 1 Ingang" + '\0');
}

TEST(BoardDocument, AnEmptyBoardRestoresEverySetting) {
    TestBoard empty;
    turnEverything(empty.board);
    const std::string bytes = documentOf(empty.board);
    for (const std::string& reader : bothReaders) {
        TestBoard test;
        addThreeWires(test.board);
        load(reader, test.board, bytes);
        EXPECT_EQ(test.board.Lines.Count(), 0) << reader;
        expectTurned(test.board);
    }
}

TEST(BoardDocument, WritingReadingAndWritingGivesTheSameBytes) {
    TestBoard first;
    turnEverything(first.board);
    addThreeWires(first.board);
    const std::string bytes = documentOf(first.board);
    for (const std::string& reader : bothReaders) {
        TestBoard second;
        load(reader, second.board, bytes);
        EXPECT_EQ(documentOf(second.board), bytes) << reader;
        EXPECT_EQ(wiresOf(second.board), wiresOf(first.board)) << reader;
    }
}

TEST(BoardDocument, EveryByteOfANameComesBack) {
    TestBoard first;
    std::string naam;
    for (int byte = 1; byte < 256; ++byte)
        AppendCharacter(naam, static_cast<std::uint8_t>(byte));
    first.board.AddLine(naam, "Zoemer");
    const std::string bytes = documentOf(first.board);
    EXPECT_EQ(bytes.size(), 52u + 256u + 7u);
    TestBoard second;
    loadFile(second.board, bytes);
    EXPECT_EQ(second.board.Lines.Item(1)->naam1, naam);
    EXPECT_EQ(documentOf(second.board), bytes);
}

TEST(BoardDocument, WiresArePlacedByTheCatalogueInColourOne) {
    TestBoard test;
    addThreeWires(test.board);
    TestBoard read;
    loadFile(read.board, documentOf(test.board));
    const clsLine& line = *read.board.Lines.Item(1);
    EXPECT_EQ(line.X1(), 98);
    EXPECT_EQ(line.Y1(), 179);
    EXPECT_EQ(line.X2(), 322);
    EXPECT_EQ(line.Y2(), 41);
    EXPECT_EQ(line.Color(), 1);
    EXPECT_EQ(line.Valid1(), -1);
    EXPECT_EQ(line.Valid2(), -1);
}

TEST(BoardDocument, AnUnknownSocketMakesAWireAtTheOrigin) {
    TestBoard test;
    test.board.AddLine("Stopcontact", "zoemer");
    TestBoard read;
    loadFile(read.board, documentOf(test.board));
    ASSERT_EQ(read.board.Lines.Count(), 1);
    EXPECT_EQ(read.board.Lines.Item(1)->naam1, "Stopcontact");
    EXPECT_EQ(read.board.Lines.Item(1)->X1(), 0);
    EXPECT_EQ(read.board.Lines.Item(1)->Y2(), 0);
}

TEST(BoardDocument, ReadingTakesTheOldWiresOffTheSurface) {
    TestBoard test;
    const std::string empty = documentOf(test.board);
    const std::int32_t sprites = test.surface.CountAll();
    addThreeWires(test.board);
    EXPECT_GT(test.surface.CountAll(), sprites);
    loadMemory(test.board, empty);
    EXPECT_EQ(test.surface.CountAll(), sprites);
}

TEST(BoardDocument, WhatFollowsTheWiresIsNotRead) {
    TestBoard source;
    addThreeWires(source.board);
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    loadFile(test.board, bytes + "the tail of a longer document");
    EXPECT_EQ(documentOf(test.board), bytes);
}

TEST(BoardDocument, SettingsFarOutOfRangeAreStoredAsTheyAre) {
    TestBoard source;
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    source.board.Sensors[0].SetValue(most);
    source.board.Sensors[1].SetValue(least);
    source.board.Knobs = {least, most, -1};
    TestBoard test;
    loadFile(test.board, documentOf(source.board));
    EXPECT_EQ(test.board.Sensors[0].Value(), most);
    EXPECT_EQ(test.board.Sensors[1].Value(), least);
    EXPECT_EQ(test.board.Knobs.Comparator, least);
    EXPECT_EQ(test.board.Knobs.VariableVoltage, most);
    EXPECT_EQ(test.board.Knobs.PulseGenerator, -1);
}

TEST(BoardDocument, AThousandWiresComeBackInTheirOrder) {
    TestBoard source;
    for (int i = 0; i < 1000; ++i)
        source.board.AddLine("a" + std::to_string(i), "b" + std::to_string(i));
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    loadFile(test.board, bytes);
    EXPECT_EQ(test.board.Lines.Count(), 1000);
    EXPECT_EQ(documentOf(test.board), bytes);
}

TEST(BoardDocument, ABoardTooLargeForMemoryFailsAndIsWrittenToAFileNevertheless) {
    TestBoard source;
    for (int i = 0; i < 5000; ++i)
        source.board.AddLine("Sensor 1 Uit Geel", "LED 1 Ingang");
    clsKorvelRWRam ram;
    EXPECT_THROW(WriteTo(source.board, ram), std::out_of_range);
    const OneFile file;
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    WriteTo(source.board, writer);
    writer.CloseFile();
    TestBoard test;
    loadFile(test.board, bytesOf(file.path));
    EXPECT_EQ(test.board.Lines.Count(), 5000);
}

TEST(BoardDocument, ReadingLeavesTheOpenKnobAsItIs) {
    TestBoard source;
    turnEverything(source.board);
    TestBoard test;
    test.board.Knob.naam = "Comparator Regelaar";
    test.board.Knob.Move(10, 10);
    test.board.Knob.SetValue(44);
    loadFile(test.board, documentOf(source.board));
    EXPECT_TRUE(test.board.Knob.Visible());
    EXPECT_EQ(test.board.Knob.Value(), 44);
    EXPECT_EQ(test.board.Knobs.Comparator, 22);
}

} // namespace
} // namespace veltrix::test
