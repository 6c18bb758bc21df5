#include "document/BoardDocument.h"

#include "document/CodePage1252.h"
#include "document/clsKorvelWFile.h"
#include "tests/document/Allocations.h"
#include "tests/document/Documents.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace veltrix {
namespace {

using test::documentOf;
using test::longBytes;
using test::TestBoard;
using test::with;
namespace field = test::field;

/// Every setting another one than on a new board, each of its own value.
void turnEverything(Board& board) {
    board.Display.SetValue(7);
    board.Sensors[0].SetValue(1);
    board.Sensors[1].SetValue(2);
    board.Knobs.PulseGenerator = 11;
    board.Knobs.Comparator = 22;
    board.Knobs.VariableVoltage = 33;
    board.PushButtons[0].SetValue(true);
    board.PushButtons[1].SetValue(false);
}

void expectTurned(const Board& board) {
    EXPECT_EQ(board.Display.Value(), 7);
    EXPECT_EQ(board.Sensors[0].Value(), 1);
    EXPECT_EQ(board.Sensors[1].Value(), 2);
    EXPECT_EQ(board.Knobs.PulseGenerator, 11);
    EXPECT_EQ(board.Knobs.Comparator, 22);
    EXPECT_EQ(board.Knobs.VariableVoltage, 33);
    EXPECT_TRUE(board.PushButtons[0].Value());
    EXPECT_FALSE(board.PushButtons[1].Value());
}

void addThreeWires(Board& board) {
    test::wire(board, "Drukknop 1 Uit Geel", "LED 1 Ingang");
    test::wire(board, "LED 1 Ingang", "LED 2 Ingang");
    test::wire(board, "Sensor 1 Uit Geel", "Zoemer");
}

std::vector<std::pair<std::string, std::string>> wiresOf(const Board& board) {
    std::vector<std::pair<std::string, std::string>> wires;
    for (const auto& line : board.Lines)
        wires.emplace_back(line->naam1.Text(), line->naam2.Text());
    return wires;
}

const std::string bothReaders[] = {"file", "memory"};

void load(const std::string& reader, Board& board, const std::string& bytes) {
    if (reader == "file")
        test::loadFile(board, bytes);
    else
        test::loadMemory(board, bytes);
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
    test::wire(test.board, "Sensor 1 Uit Geel", "LED 1 Ingang");
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
    test::loadFile(second.board, bytes);
    EXPECT_EQ(second.board.Lines.Item(1)->naam1, naam);
    EXPECT_EQ(documentOf(second.board), bytes);
}

TEST(BoardDocument, ANameThatTheFileCannotHoldIsAnError) {
    TestBoard test;
    test.board.AddLine("\u2603", "Zoemer");
    clsKorvelRWRam ram;
    EXPECT_THROW(WriteTo(test.board, ram), std::overflow_error);
}

TEST(BoardDocument, WiresArePlacedByTheCatalogueInColourOne) {
    TestBoard test;
    addThreeWires(test.board);
    TestBoard read;
    test::loadFile(read.board, documentOf(test.board));
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
    test::loadFile(read.board, documentOf(test.board));
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
    test::loadMemory(test.board, empty);
    EXPECT_EQ(test.surface.CountAll(), sprites);
}

TEST(BoardDocument, AnotherFirstChunkLeavesTheSettingsAndNoWires) {
    for (const std::string& reader : bothReaders) {
        for (const std::string& bytes :
             {std::string(), std::string(200, '\0'), std::string("\x00\x10", 2) + longBytes(34),
              std::string("PK\3\4"), std::string("\xDA"), std::string(70000, '\xDB')}) {
            if (reader == "memory" && bytes.size() > clsKorvelRWRam::Size)
                continue;
            TestBoard test;
            turnEverything(test.board);
            addThreeWires(test.board);
            load(reader, test.board, bytes);
            expectTurned(test.board);
            EXPECT_EQ(test.board.Lines.Count(), 0);
        }
    }
}

TEST(BoardDocument, AForeignChunkBeforeTheSettingsHidesEverything) {
    TestBoard source;
    addThreeWires(source.board);
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    turnEverything(test.board);
    test::loadFile(test.board, bytes.substr(0, 6) + std::string("\x07\x00", 2) + longBytes(0) +
                                   bytes.substr(6));
    expectTurned(test.board);
    EXPECT_EQ(test.board.Lines.Count(), 0);
}

TEST(BoardDocument, AForeignChunkBeforeTheWiresHidesTheWires) {
    TestBoard source;
    turnEverything(source.board);
    addThreeWires(source.board);
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    test::loadFile(test.board, bytes.substr(0, field::WiresChunk) + std::string("\x07\x00", 2) +
                                   longBytes(0) + bytes.substr(field::WiresChunk));
    expectTurned(test.board);
    EXPECT_EQ(test.board.Lines.Count(), 0);
}

TEST(BoardDocument, WiresWithoutSettingsAreNotCountedAndNotRead) {
    TestBoard source;
    addThreeWires(source.board);
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    turnEverything(test.board);
    test::loadFile(test.board, bytes.substr(0, 6) + bytes.substr(field::WiresChunk));
    expectTurned(test.board);
    EXPECT_EQ(test.board.Lines.Count(), 0);
}

TEST(BoardDocument, LengthsAndTheReservedFieldAreNotLookedAt) {
    TestBoard source;
    turnEverything(source.board);
    addThreeWires(source.board);
    std::string bytes = documentOf(source.board);
    for (const std::size_t offset : {2u, 8u, 12u, 48u})
        bytes = with(bytes, offset, -1);
    TestBoard test;
    test::loadFile(test.board, bytes);
    expectTurned(test.board);
    EXPECT_EQ(test.board.Lines.Count(), 3);
}

TEST(BoardDocument, WhatFollowsTheWiresIsNotRead) {
    TestBoard source;
    addThreeWires(source.board);
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    test::loadFile(test.board, bytes + "the tail of a longer document");
    EXPECT_EQ(documentOf(test.board), bytes);
}

TEST(BoardDocument, AByteOtherThanAllBitsTurnsAPushButtonOff) {
    TestBoard source;
    source.board.PushButtons[0].SetValue(true);
    TestBoard test;
    for (int byte = 0; byte < 256; ++byte) {
        std::string bytes = documentOf(source.board);
        bytes[field::PushButton1] = static_cast<char>(byte);
        test.board.PushButtons[0].SetValue(true);
        test::loadMemory(test.board, bytes);
        EXPECT_EQ(test.board.PushButtons[0].Value(), byte == 255) << byte;
    }
}

TEST(BoardDocument, SettingsFarOutOfRangeAreStoredAsTheyAre) {
    TestBoard source;
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    source.board.Sensors[0].SetValue(most);
    source.board.Sensors[1].SetValue(least);
    source.board.Knobs = {least, most, -1};
    TestBoard test;
    test::loadFile(test.board, documentOf(source.board));
    EXPECT_EQ(test.board.Sensors[0].Value(), most);
    EXPECT_EQ(test.board.Sensors[1].Value(), least);
    EXPECT_EQ(test.board.Knobs.Comparator, least);
    EXPECT_EQ(test.board.Knobs.VariableVoltage, most);
    EXPECT_EQ(test.board.Knobs.PulseGenerator, -1);
}

TEST(BoardDocument, ACounterReadingThatIsNoDigitStopsTheReadingWhereItStands) {
    TestBoard source;
    turnEverything(source.board);
    addThreeWires(source.board);
    for (const std::int32_t reading : {10, -1, std::numeric_limits<std::int32_t>::min(),
                                       std::numeric_limits<std::int32_t>::max()}) {
        for (const std::string& reader : bothReaders) {
            TestBoard test;
            addThreeWires(test.board);
            EXPECT_THROW(
                load(reader, test.board, with(documentOf(source.board), field::Counter, reading)),
                std::out_of_range);
            EXPECT_EQ(test.board.Lines.Count(), 0);
            EXPECT_EQ(test.board.Sensors[0].Value(), 0);
        }
    }
}

TEST(BoardDocument, ANegativeCountMakesNoWires) {
    TestBoard source;
    addThreeWires(source.board);
    for (const std::int32_t count : {-1, std::numeric_limits<std::int32_t>::min()}) {
        for (const std::string& reader : bothReaders) {
            TestBoard test;
            load(reader, test.board, with(documentOf(source.board), field::Count, count));
            EXPECT_EQ(test.board.Lines.Count(), 0);
        }
    }
}

TEST(BoardDocument, ACountBelowTheStoredPairsReadsTheFirst) {
    TestBoard source;
    addThreeWires(source.board);
    TestBoard test;
    test::loadFile(test.board, with(documentOf(source.board), field::Count, 2));
    ASSERT_EQ(test.board.Lines.Count(), 2);
    EXPECT_EQ(test.board.Lines.Item(2)->naam2, "LED 2 Ingang");
}

TEST(BoardDocument, WiresPastTheStoredPairsHaveEmptyNames) {
    TestBoard source;
    test::wire(source.board, "Sensor 1 Uit Geel", "LED 1 Ingang");
    for (const std::string& reader : bothReaders) {
        TestBoard test;
        load(reader, test.board, with(documentOf(source.board), field::Count, 3));
        ASSERT_EQ(test.board.Lines.Count(), 3) << reader;
        EXPECT_EQ(test.board.Lines.Item(1)->naam2, "LED 1 Ingang");
        for (const std::int32_t i : {2, 3}) {
            EXPECT_TRUE(test.board.Lines.Item(i)->naam1.empty());
            EXPECT_TRUE(test.board.Lines.Item(i)->naam2.empty());
        }
    }
}

TEST(BoardDocument, AHugeCountMakesNoMoreWiresThanTheBytesCouldHold) {
    TestBoard source;
    test::wire(source.board, "Sensor 1 Uit Geel", "LED 1 Ingang");
    const std::string bytes =
        with(documentOf(source.board), field::Count, std::numeric_limits<std::int32_t>::max());
    TestBoard file;
    test::loadFile(file.board, bytes);
    EXPECT_EQ(file.board.Lines.Count(), 31 / 2);
    TestBoard memory;
    // The block has an end where a file has zeros.
    EXPECT_THROW(test::loadMemory(memory.board, bytes), std::out_of_range);
    EXPECT_EQ(memory.board.Lines.Count(), 1 + (64001 - 52 - 31) / 2);
}

TEST(BoardDocument, AThousandWiresComeBackInTheirOrder) {
    TestBoard source;
    for (int i = 0; i < 1000; ++i)
        source.board.AddLine("a" + std::to_string(i), "b" + std::to_string(i));
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    test::loadFile(test.board, bytes);
    EXPECT_EQ(test.board.Lines.Count(), 1000);
    EXPECT_EQ(documentOf(test.board), bytes);
}

TEST(BoardDocument, ABoardTooLargeForMemoryFailsAndIsWrittenToAFileNevertheless) {
    TestBoard source;
    for (int i = 0; i < 5000; ++i)
        source.board.AddLine("Sensor 1 Uit Geel", "LED 1 Ingang");
    clsKorvelRWRam ram;
    EXPECT_THROW(WriteTo(source.board, ram), std::out_of_range);
    const test::OneFile file;
    clsKorvelWFile writer;
    writer.OpenFile(file.text);
    WriteTo(source.board, writer);
    writer.CloseFile();
    TestBoard test;
    test::loadFile(test.board, test::bytesOf(file.path));
    EXPECT_EQ(test.board.Lines.Count(), 5000);
}

/// How many wires a file of `size` bytes has room for after its heads.
std::int32_t roomFor(std::size_t size) {
    return size < field::Wires ? 0 : static_cast<std::int32_t>((size - field::Wires) / 2);
}

TEST(BoardDocument, AFileCutOffAtAnyByteIsReadAsFarAsItGoes) {
    TestBoard source;
    turnEverything(source.board);
    addThreeWires(source.board);
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        SCOPED_TRACE(size);
        test.board.Display.SetValue(0);
        test.board.PushButtons[0].SetValue(false);
        ASSERT_NO_THROW(test::loadFile(test.board, bytes.substr(0, size)));
        EXPECT_EQ(test.board.Lines.Count(), std::min(3, roomFor(size)));
        EXPECT_EQ(test.board.Display.Value(), size >= field::Counter + 1 ? 7 : 0);
        EXPECT_EQ(test.board.PushButtons[0].Value(), size > field::PushButton1);
        for (const auto& line : test.board.Lines)
            EXPECT_NE(bytes.find(line->naam1.Text()), std::string::npos);
    }
}

/// Reads what may be anything: it is read, or refused with the one error that a board has for it.
void expectSafe(Board& board, const std::string& bytes) {
    try {
        test::loadFile(board, bytes);
    } catch (const std::out_of_range&) {
        EXPECT_EQ(board.Lines.Count(), 0);
    }
    EXPECT_LE(board.Lines.Count(), roomFor(bytes.size()));
}

TEST(BoardDocument, RandomBytesAreReadSafely) {
    TestBoard test;
    std::mt19937 random(20260131); // the same bytes in every run
    for (int file = 0; file < 500; ++file) {
        std::string bytes(random() % 300, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        if (file % 2 == 0 && bytes.size() >= 2)
            bytes.replace(0, 2, "\xDA\xDA");
        SCOPED_TRACE(file);
        expectSafe(test.board, bytes);
    }
}

TEST(BoardDocument, DamagedDocumentsAreReadSafely) {
    TestBoard source;
    turnEverything(source.board);
    addThreeWires(source.board);
    const std::string whole = documentOf(source.board);
    TestBoard test;
    std::mt19937 random(20260201); // the same bytes in every run
    for (int file = 0; file < 1000; ++file) {
        std::string bytes = whole;
        for (int times = 0; times <= file % 4; ++times)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        SCOPED_TRACE(file);
        expectSafe(test.board, bytes);
    }
}

TEST(BoardDocument, MemoryIsBoundedByTheSizeOfTheFile) {
    // What an empty wire costs: its record, its place in the list, its group on the surface.
    constexpr std::size_t mostForAWire = 1024;
    constexpr std::size_t fixed = 65536;
    TestBoard source;
    const std::string head =
        with(documentOf(source.board), field::Count, std::numeric_limits<std::int32_t>::max());
    for (const std::size_t size : {0u, 1000u, 100000u}) {
        TestBoard test;
        const test::OneFile file;
        test::putBytes(file.path, head + std::string(size, '\0'));
        clsKorvelRFile reader;
        reader.OpenFile(file.text);
        const test::PeakMemory memory;
        ReadFrom(test.board, reader);
        EXPECT_EQ(test.board.Lines.Count(), static_cast<std::int32_t>(size / 2));
        EXPECT_LE(memory.Bytes(), fixed + size / 2 * mostForAWire);
    }
}

} // namespace
} // namespace veltrix
