#include "board/Rect.h"

#include "tests/support/NumberRange.h"

#include <gtest/gtest.h>

namespace veltrix::test {
namespace {

constexpr Rect rect{10, 20, 30, 40};

TEST(Rect, WithoutWidthOrHeightItIsEmpty) {
    EXPECT_FALSE(rect.Empty());
    EXPECT_TRUE(Rect().Empty());
    EXPECT_TRUE((Rect{10, 20, 0, 40}).Empty());
    EXPECT_TRUE((Rect{10, 20, 30, -1}).Empty());
}

TEST(Rect, NeighboursDoNotOverlap) {
    EXPECT_TRUE(rect.Overlaps({39, 59, 5, 5}));
    EXPECT_FALSE(rect.Overlaps({40, 59, 5, 5}));
    EXPECT_FALSE(rect.Overlaps({39, 60, 5, 5}));
    EXPECT_FALSE(rect.Overlaps({5, 20, 5, 40}));
}

TEST(Rect, AnEmptyOneOverlapsNothing) {
    EXPECT_FALSE(rect.Overlaps({20, 30, 0, 5}));
    EXPECT_FALSE((Rect{20, 30, 0, 5}).Overlaps(rect));
}

TEST(Rect, TheIntersectionIsWhatBothCover) {
    EXPECT_EQ(rect.Intersected({0, 50, 100, 100}), (Rect{10, 50, 30, 10}));
    EXPECT_EQ(rect.Intersected(rect), rect);
    EXPECT_TRUE(rect.Intersected({100, 100, 5, 5}).Empty());
}

TEST(Rect, AnIntersectionAtTheEndOfTheRangeDoesNotOverflow) {
    EXPECT_EQ((Rect{most - 1, 0, most, 1}).Intersected({0, 0, most, 1}), (Rect{most - 1, 0, 1, 1}));
    EXPECT_TRUE((Rect{least, 0, 10, 1}).Intersected({0, 0, most, 1}).Empty());
}

TEST(Rect, TheUnionCoversBothAndNothingBeyond) {
    EXPECT_EQ(rect.United({0, 30, 5, 5}), (Rect{0, 20, 40, 40}));
    EXPECT_EQ(rect.United({35, 55, 10, 10}), (Rect{10, 20, 35, 45}));
    EXPECT_EQ(rect.United({15, 25, 1, 1}), rect);
}

} // namespace
} // namespace veltrix::test
