#include "document/ChunkStack.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace veltrix {
namespace {

TEST(ChunkStack, TheChunkOpenedLastIsTheInnermost) {
    ChunkStack chunks;
    EXPECT_EQ(chunks.LengthField(), 0);
    chunks.Open(2);
    chunks.Open(8);
    EXPECT_EQ(chunks.LengthField(), 8);
    chunks.Close();
    EXPECT_EQ(chunks.LengthField(), 2);
    chunks.Close();
    EXPECT_EQ(chunks.LengthField(), 0);
}

TEST(ChunkStack, HoldsAHundredChunks) {
    ChunkStack chunks;
    for (std::int32_t depth = 1; depth <= 100; ++depth)
        chunks.Open(depth);
    EXPECT_EQ(chunks.LengthField(), 100);
    EXPECT_THROW(chunks.Open(101), std::out_of_range);
    EXPECT_THROW(static_cast<void>(chunks.LengthField()), std::out_of_range)
        << "the chunk that does not fit is the innermost nevertheless";
    chunks.Close();
    EXPECT_EQ(chunks.LengthField(), 100);
}

TEST(ChunkStack, ClosedMoreOftenThanOpenedItHasNoInnermost) {
    ChunkStack chunks;
    chunks.Close();
    EXPECT_THROW(static_cast<void>(chunks.LengthField()), std::out_of_range);
    chunks.Open(5);
    EXPECT_EQ(chunks.LengthField(), 5) << "in the entry below the outermost";
}

TEST(ChunkStack, ResetClosesAllAndKeepsTheEntries) {
    ChunkStack chunks;
    chunks.Close();
    chunks.Open(5);
    chunks.Open(7);
    chunks.Reset();
    EXPECT_EQ(chunks.LengthField(), 5);
}

} // namespace
} // namespace veltrix
