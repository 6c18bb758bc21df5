#include "board/Arithmetic.h"

#include "tests/support/NumberRange.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace veltrix::test {
namespace {

TEST(Arithmetic, ResultsThatFitAreExactAtBothEndsOfTheRange) {
    EXPECT_EQ(CheckedAdd(most - 1, 1), most);
    EXPECT_EQ(CheckedAdd(least, most), -1);
    EXPECT_EQ(CheckedSubtract(least + 1, 1), least);
    EXPECT_EQ(CheckedSubtract(-1, least), most);
}

TEST(Arithmetic, ResultsThatDoNotFitAreErrors) {
    EXPECT_THROW((void)CheckedAdd(most, 1), std::overflow_error);
    EXPECT_THROW((void)CheckedAdd(least, -1), std::overflow_error);
    EXPECT_THROW((void)CheckedSubtract(least, 1), std::overflow_error);
    EXPECT_THROW((void)CheckedSubtract(0, least), std::overflow_error);
}

void check(double value, std::int32_t whole) {
    EXPECT_EQ(RoundToLong(value), whole) << value;
}

TEST(RoundToLong, HalvesGoToTheEvenNumber) {
    check(0.5, 0);
    check(1.5, 2);
    check(2.5, 2);
    check(3.5, 4);
    check(4.5, 4);
    check(5.5, 6);
    check(-0.5, 0);
    check(-1.5, -2);
    check(-2.5, -2);
    check(-3.5, -4);
}

TEST(RoundToLong, EverythingElseGoesToTheNearestNumber) {
    check(0, 0);
    check(3, 3);
    check(-3, -3);
    check(4.499999999, 4);
    check(4.500000001, 5);
    check(-4.499999999, -4);
    check(-4.500000001, -5);
    check(std::nextafter(0.5, 0), 0);
    check(std::nextafter(0.5, 1), 1);
    check(std::nextafter(1.5, 0), 1);
}

TEST(RoundToLong, ReachesBothEndsOfTheRangeAndNotBeyond) {
    EXPECT_EQ(RoundToLong(2147483647.4), most);
    EXPECT_EQ(RoundToLong(-2147483648.5), least);
    EXPECT_THROW((void)RoundToLong(2147483647.5), std::overflow_error);
    EXPECT_THROW((void)RoundToLong(-2147483648.51), std::overflow_error);
    EXPECT_THROW((void)RoundToLong(1e300), std::overflow_error);
    EXPECT_THROW((void)RoundToLong(-std::numeric_limits<double>::infinity()), std::overflow_error);
    EXPECT_THROW((void)RoundToLong(std::numeric_limits<double>::quiet_NaN()), std::overflow_error);
}

} // namespace
} // namespace veltrix::test
