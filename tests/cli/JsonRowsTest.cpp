#include "cli/JsonRows.h"

#include "tests/cli/RowsUnderTest.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace veltrix::cli {
namespace {

using Json = nlohmann::ordered_json;

TEST(JsonRows, ArrayOfAnObjectARow) {
    const Json rows =
        Json::parse(test::rowsAs(Format::Json, {{"Zoemer"}, {"LED 1", 1}},
                                 {{1, {{50, true}, {0, true}}}, {30, {{-7, true}, {}}}}));
    EXPECT_EQ(rows, Json::parse(R"([{"tick": 1, "Zoemer": 50, "LED 1": 0},
                                    {"tick": 30, "Zoemer": -7, "LED 1": null}])"));
}

TEST(JsonRows, NoRowsMakeAnEmptyArray) {
    EXPECT_EQ(Json::parse(test::rowsAs(Format::Json, {{"A"}}, {})), Json::array());
}

TEST(JsonRows, AnyNameIsAKey) {
    const std::string name = "één \"\\\n";
    const Json rows = Json::parse(test::rowsAs(Format::Json, {{name}}, {{1, {{5, true}}}}));
    EXPECT_EQ(rows.at(0).at(name), 5);
}

} // namespace
} // namespace veltrix::cli
