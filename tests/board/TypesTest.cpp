#include "board/Types.h"

#include <gtest/gtest.h>

namespace veltrix {
namespace {

TEST(Bool16, IsSixteenBitsWideAndTrueIsMinusOne) {
    EXPECT_EQ(sizeof(Bool16), 2U);
    EXPECT_EQ(Bool16(true).AsLong(), -1);
    EXPECT_EQ(Bool16(false).AsLong(), 0);
    EXPECT_EQ(Bool16().AsLong(), 0);
}

TEST(Bool16, ReadsAndWritesLikeABool) {
    Bool16 field;
    EXPECT_FALSE(field);
    field = true;
    EXPECT_TRUE(field);
    const bool read = field;
    EXPECT_TRUE(read);
    field = !field;
    EXPECT_FALSE(field);
}

} // namespace
} // namespace veltrix
