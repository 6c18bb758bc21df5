#include "document/DocumentFault.h"

#include "tests/document/Documents.h"
#include "tests/support/TestBoard.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <random>
#include <stdexcept>
#include <string>
#include <system_error>

namespace veltrix::test {
namespace {

std::optional<std::string> faultOf(const std::string& bytes) {
    static const OneFile file; // some tests ask for hundreds of documents
    putBytes(file.path, bytes);
    return FindDocumentFault(file.text);
}

std::string twoWires() {
    TestBoard test;
    wire(test.board, "Sensor 1 Uit Geel", "LED 1 Ingang");
    wire(test.board, "Drukknop 1 Uit Geel", "Zoemer");
    return documentOf(test.board);
}

TEST(DocumentFault, AWholeDocumentHasNone) {
    TestBoard test;
    EXPECT_EQ(faultOf(documentOf(test.board)), std::nullopt);
    EXPECT_EQ(faultOf(twoWires()), std::nullopt);
}

TEST(DocumentFault, BytesBehindTheDocumentAreNone) {
    EXPECT_EQ(faultOf(twoWires() + "tail"), std::nullopt);
    EXPECT_EQ(faultOf(with(twoWires(), field::Count, 1)), std::nullopt);
}

TEST(DocumentFault, LengthsThatCannotBeAreNone) {
    std::string bytes = twoWires();
    for (const std::size_t offset : {2u, 8u, 48u})
        bytes = with(bytes, offset, -1);
    EXPECT_EQ(faultOf(bytes), std::nullopt);
}

TEST(DocumentFault, NamesThatNoSocketHasAreNone) {
    TestBoard test;
    test.board.AddLine("Stopcontact \u20AC", "");
    EXPECT_EQ(faultOf(documentOf(test.board)), std::nullopt);
}

TEST(DocumentFault, AnEmptyFile) {
    EXPECT_EQ(faultOf(""), "the file is empty");
}

TEST(DocumentFault, AFileThatIsNoDocument) {
    EXPECT_EQ(faultOf("PK\3\4 and so on"),
              "no document chunk at byte 0: the type there is 19280 instead of -9510");
    EXPECT_EQ(faultOf("PK"), "no document chunk at byte 0: the type there is 19280 instead of "
                             "-9510");
}

TEST(DocumentFault, AForeignChunkInPlaceOfTheSettings) {
    std::string bytes = twoWires();
    bytes[6] = 7;
    EXPECT_EQ(faultOf(bytes),
              "no settings chunk at byte 6: the type there is 4103 instead of 4096");
}

TEST(DocumentFault, AForeignChunkInPlaceOfTheWires) {
    std::string bytes = twoWires();
    bytes[field::WiresChunk + 1] = 0;
    EXPECT_EQ(faultOf(bytes), "no wires chunk at byte 46: the type there is 0 instead of 8192");
}

TEST(DocumentFault, ANegativeNumberOfWires) {
    EXPECT_EQ(faultOf(with(twoWires(), field::Count, -1)), "the number of wires at byte 16 is -1");
}

TEST(DocumentFault, MoreWiresThanTheFileHolds) {
    const std::string bytes = twoWires();
    EXPECT_EQ(faultOf(with(bytes, field::Count, std::numeric_limits<std::int32_t>::max())),
              "the number of wires at byte 16 is 2147483647, but the file ends after 2 of them, at "
              "byte " +
                  std::to_string(bytes.size()));
}

TEST(DocumentFault, ACounterReadingThatIsNoDigit) {
    EXPECT_EQ(faultOf(with(twoWires(), field::Counter, 10)),
              "the counter reading at byte 20 is 10, not 0 to 9");
    EXPECT_EQ(faultOf(with(twoWires(), field::Counter, -1)),
              "the counter reading at byte 20 is -1, not 0 to 9");
}

TEST(DocumentFault, AFileCutOffAtAnyByteNamesThatByte) {
    const std::string bytes = twoWires();
    for (std::size_t size = 1; size < bytes.size(); ++size) {
        const std::optional<std::string> fault = faultOf(bytes.substr(0, size));
        ASSERT_TRUE(fault) << size;
        EXPECT_NE(fault->find("at byte " + std::to_string(size)), std::string::npos) << *fault;
        EXPECT_EQ(fault->find('\n'), std::string::npos);
    }
}

TEST(DocumentFault, AFileCutOffSaysInWhat) {
    const std::string bytes = twoWires();
    EXPECT_EQ(faultOf(bytes.substr(0, 1)),
              "the file ends inside the head of the document chunk, at byte 1");
    EXPECT_EQ(faultOf(bytes.substr(0, 5)),
              "the file ends inside the head of the document chunk, at byte 5");
    EXPECT_EQ(faultOf(bytes.substr(0, 6)),
              "the settings chunk is missing: the file ends at byte 6");
    EXPECT_EQ(faultOf(bytes.substr(0, 45)), "the file ends inside the settings, at byte 45");
    EXPECT_EQ(faultOf(bytes.substr(0, 46)), "the wires chunk is missing: the file ends at byte 46");
    EXPECT_EQ(faultOf(bytes.substr(0, 60)), "the file ends inside wire 1, at byte 60");
    EXPECT_EQ(faultOf(bytes.substr(0, bytes.size() - 1)),
              "the file ends inside wire 2, at byte " + std::to_string(bytes.size() - 1));
    // Between the two names, where the first one is whole.
    EXPECT_EQ(faultOf(bytes.substr(0, 70)), "the file ends inside wire 1, at byte 70");
}

TEST(DocumentFault, WhatHasNoFaultIsReadAndWrittenBackAsItWas) {
    const std::string whole = twoWires();
    std::mt19937 random(20260202); // the same bytes in every run
    int without = 0;
    TestBoard test;
    for (int file = 0; file < 500; ++file) {
        std::string bytes = whole;
        bytes[random() % bytes.size()] = static_cast<char>(random());
        if (faultOf(bytes))
            continue;
        ++without;
        ASSERT_NO_THROW(loadFile(test.board, bytes)) << file;
        // The settings but for the reserved field and the two booleans, and then the wires.
        const std::string again = documentOf(test.board);
        EXPECT_EQ(again.substr(field::Counter, 24), bytes.substr(field::Counter, 24)) << file;
        EXPECT_EQ(again.substr(field::Wires),
                  bytes.substr(field::Wires, again.size() - field::Wires))
            << file;
    }
    EXPECT_GT(without, 100);
}

TEST(DocumentFault, AFileThatCannotBeReadIsAnError) {
    const OneFile file;
    EXPECT_THROW(static_cast<void>(FindDocumentFault(file.text)), std::system_error);
    EXPECT_THROW(static_cast<void>(FindDocumentFault(Utf8FromPath(file.folder.Path()))),
                 std::system_error);
}

} // namespace
} // namespace veltrix::test
