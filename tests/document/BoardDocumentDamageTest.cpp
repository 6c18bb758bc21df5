#include "document/BoardDocument.h"

#include "document/clsKorvelRFile.h"
#include "tests/document/Allocations.h"
#include "tests/document/Documents.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>

namespace veltrix::test {
namespace {

TEST(BoardDocumentDamage, AnotherFirstChunkLeavesTheSettingsAndNoWires) {
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

TEST(BoardDocumentDamage, AForeignChunkBeforeTheSettingsHidesEverything) {
    TestBoard source;
    addThreeWires(source.board);
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    turnEverything(test.board);
    loadFile(test.board,
             bytes.substr(0, 6) + std::string("\x07\x00", 2) + longBytes(0) + bytes.substr(6));
    expectTurned(test.board);
    EXPECT_EQ(test.board.Lines.Count(), 0);
}

TEST(BoardDocumentDamage, AForeignChunkBeforeTheWiresHidesTheWires) {
    TestBoard source;
    turnEverything(source.board);
    addThreeWires(source.board);
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    loadFile(test.board, bytes.substr(0, field::WiresChunk) + std::string("\x07\x00", 2) +
                             longBytes(0) + bytes.substr(field::WiresChunk));
    expectTurned(test.board);
    EXPECT_EQ(test.board.Lines.Count(), 0);
}

TEST(BoardDocumentDamage, WiresWithoutSettingsAreNotCountedAndNotRead) {
    TestBoard source;
    addThreeWires(source.board);
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    turnEverything(test.board);
    loadFile(test.board, bytes.substr(0, 6) + bytes.substr(field::WiresChunk));
    expectTurned(test.board);
    EXPECT_EQ(test.board.Lines.Count(), 0);
}

TEST(BoardDocumentDamage, LengthsAndTheReservedFieldAreNotLookedAt) {
    TestBoard source;
    turnEverything(source.board);
    addThreeWires(source.board);
    std::string bytes = documentOf(source.board);
    for (const std::size_t offset : {2u, 8u, 12u, 48u})
        bytes = with(bytes, offset, -1);
    TestBoard test;
    loadFile(test.board, bytes);
    expectTurned(test.board);
    EXPECT_EQ(test.board.Lines.Count(), 3);
}

TEST(BoardDocumentDamage, AByteOtherThanAllBitsTurnsAPushButtonOff) {
    TestBoard source;
    source.board.PushButtons[0].SetValue(true);
    TestBoard test;
    for (int byte = 0; byte < 256; ++byte) {
        std::string bytes = documentOf(source.board);
        bytes[field::PushButton1] = static_cast<char>(byte);
        test.board.PushButtons[0].SetValue(true);
        loadMemory(test.board, bytes);
        EXPECT_EQ(test.board.PushButtons[0].Value(), byte == 255) << byte;
    }
}

TEST(BoardDocumentDamage, ACounterReadingThatIsNoDigitStopsTheReadingWhereItStands) {
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

TEST(BoardDocumentDamage, ANegativeCountMakesNoWires) {
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

TEST(BoardDocumentDamage, ACountBelowTheStoredPairsReadsTheFirst) {
    TestBoard source;
    addThreeWires(source.board);
    TestBoard test;
    loadFile(test.board, with(documentOf(source.board), field::Count, 2));
    ASSERT_EQ(test.board.Lines.Count(), 2);
    EXPECT_EQ(test.board.Lines.Item(2)->naam2, "LED 2 Ingang");
}

TEST(BoardDocumentDamage, WiresPastTheStoredPairsHaveEmptyNames) {
    TestBoard source;
    wire(source.board, "Sensor 1 Uit Geel", "LED 1 Ingang");
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

TEST(BoardDocumentDamage, AHugeCountMakesNoMoreWiresThanTheBytesCouldHold) {
    TestBoard source;
    wire(source.board, "Sensor 1 Uit Geel", "LED 1 Ingang");
    const std::string bytes =
        with(documentOf(source.board), field::Count, std::numeric_limits<std::int32_t>::max());
    TestBoard file;
    loadFile(file.board, bytes);
    EXPECT_EQ(file.board.Lines.Count(), 31 / 2);
    TestBoard memory;
    // The block has an end where a file has zeros.
    EXPECT_THROW(loadMemory(memory.board, bytes), std::out_of_range);
    EXPECT_EQ(memory.board.Lines.Count(), 1 + (64001 - 52 - 31) / 2);
}

/// How many wires a file of `size` bytes has room for after its heads.
std::int32_t roomFor(std::size_t size) {
    return size < field::Wires ? 0 : static_cast<std::int32_t>((size - field::Wires) / 2);
}

TEST(BoardDocumentDamage, AFileCutOffAtAnyByteIsReadAsFarAsItGoes) {
    TestBoard source;
    turnEverything(source.board);
    addThreeWires(source.board);
    const std::string bytes = documentOf(source.board);
    TestBoard test;
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        SCOPED_TRACE(size);
        test.board.Display.SetValue(0);
        test.board.PushButtons[0].SetValue(false);
        ASSERT_NO_THROW(loadFile(test.board, bytes.substr(0, size)));
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
        loadFile(board, bytes);
    } catch (const std::out_of_range&) {
        EXPECT_EQ(board.Lines.Count(), 0);
    }
    EXPECT_LE(board.Lines.Count(), roomFor(bytes.size()));
}

TEST(BoardDocumentDamage, RandomBytesAreReadSafely) {
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

TEST(BoardDocumentDamage, DamagedDocumentsAreReadSafely) {
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

TEST(BoardDocumentDamage, MemoryIsBoundedByTheSizeOfTheFile) {
    // What an empty wire costs: its record, its place in the list, its group on the surface.
    constexpr std::size_t mostForAWire = 1024;
    constexpr std::size_t fixed = 65536;
    TestBoard source;
    const std::string head =
        with(documentOf(source.board), field::Count, std::numeric_limits<std::int32_t>::max());
    for (const std::size_t size : {0u, 1000u, 100000u}) {
        TestBoard test;
        const OneFile file;
        putBytes(file.path, head + std::string(size, '\0'));
        clsKorvelRFile reader;
        reader.OpenFile(file.text);
        const PeakMemory memory;
        ReadFrom(test.board, reader);
        EXPECT_EQ(test.board.Lines.Count(), static_cast<std::int32_t>(size / 2));
        EXPECT_LE(memory.Bytes(), fixed + size / 2 * mostForAWire);
    }
}

} // namespace
} // namespace veltrix::test
