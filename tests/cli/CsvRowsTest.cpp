#include "cli/CsvRows.h"

#include "tests/cli/RowsUnderTest.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace veltrix::cli {
namespace {

TEST(CsvRows, LineOfNamesThenALineARow) {
    EXPECT_EQ(test::rowsAs(Format::Csv, {{"Relais Ingang 1 (in/uit)"}, {"LED 1", 1}},
                           {{1, {{50, true}, {0, true}}}, {3, {{-7, true}, {1, true}}}}),
              "tick,Relais Ingang 1 (in/uit),LED 1\n1,50,0\n3,-7,1\n");
}

TEST(CsvRows, UnknownIsEmpty) {
    EXPECT_EQ(test::rowsAs(Format::Csv, {{"A"}, {"B"}}, {{1, {{}, {}}}, {2, {{}, {0, true}}}}),
              "tick,A,B\n1,,\n2,,0\n");
}

TEST(CsvRows, NameIsQuotedWhereItMustBe) {
    EXPECT_EQ(test::rowsAs(Format::Csv, {{"a,b"}, {"\"c\""}}, {}), "tick,\"a,b\",\"\"\"c\"\"\"\n");
}

TEST(CsvRows, NumbersMayBeAsLargeAsTheyCome) {
    EXPECT_EQ(test::rowsAs(Format::Csv, {{"A"}, {"B"}},
                           {{INT64_MAX, {{INT32_MAX, true}, {INT32_MIN, true}}}}),
              "tick,A,B\n9223372036854775807,2147483647,-2147483648\n");
}

} // namespace
} // namespace veltrix::cli
