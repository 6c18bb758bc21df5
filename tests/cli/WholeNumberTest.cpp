#include "cli/WholeNumber.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace veltrix::cli {
namespace {

TEST(WholeNumber, TakesTheWholeText) {
    EXPECT_EQ(WholeNumber<std::int32_t>("0"), 0);
    EXPECT_EQ(WholeNumber<std::int32_t>("007"), 7);
    EXPECT_EQ(WholeNumber<std::int32_t>("-12"), -12);
    for (const char* text : {"", "-", "+1", " 1", "1 ", "1.0", "1e3", "0x1", "een"})
        EXPECT_FALSE(WholeNumber<std::int32_t>(text).has_value()) << text;
}

TEST(WholeNumber, TakesWhatFits) {
    EXPECT_EQ(WholeNumber<std::int32_t>("-2147483648"), INT32_MIN);
    EXPECT_FALSE(WholeNumber<std::int32_t>("2147483648").has_value());
    EXPECT_EQ(WholeNumber<std::int64_t>("9223372036854775807"), INT64_MAX);
    EXPECT_FALSE(WholeNumber<std::int64_t>("9223372036854775808").has_value());
}

} // namespace
} // namespace veltrix::cli
