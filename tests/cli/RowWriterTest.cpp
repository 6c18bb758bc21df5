#include "cli/RowWriter.h"

#include "tests/cli/RowsUnderTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veltrix::cli {
namespace {

using testing::StartsWith;

TEST(RowWriter, IsThatOfTheFormat) {
    EXPECT_THAT(test::rowsAs(Format::Csv, {{"A"}}, {}), StartsWith("tick,A\n"));
    EXPECT_THAT(test::rowsAs(Format::Json, {{"A"}}, {}), StartsWith("["));
    EXPECT_THAT(test::rowsAs(Format::Vcd, {{"A"}}, {}), StartsWith("$"));
}

} // namespace
} // namespace veltrix::cli
