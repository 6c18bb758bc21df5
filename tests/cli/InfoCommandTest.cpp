#include "cli/InfoCommand.h"

#include "tests/cli/Cli.h"
#include "tests/cli/Documents.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace veltrix::cli {
namespace {

using Json = nlohmann::ordered_json;

TEST(InfoCommand, WritesSettingsAndWires) {
    test::Files files;
    const test::Document document{.wires = {{"Zoemer", "Invertor Uitgang"}, {"\xE9\xE9n", "\x80"}},
                                  .counter = 7,
                                  .sensor1 = 1,
                                  .sensor2 = 2,
                                  .pulse = 11,
                                  .comparator = 12,
                                  .voltage = 13,
                                  .button1 = true};
    const test::Outcome outcome = test::cli({"info", files.Add("b.vtx", document.Bytes())});
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(Json::parse(outcome.output), Json::parse(R"({
        "settings": {
            "Teller": 7,
            "Sensor 1": 1,
            "Sensor 2": 2,
            "Puls Generator Regelaar": 11,
            "Comparator Regelaar": 12,
            "Var. Spanning Regelaar": 13,
            "Drukknop 1": 1,
            "Drukknop 2": 0
        },
        "wires": [
            {"naam1": "Zoemer", "naam2": "Invertor Uitgang"},
            {"naam1": "één", "naam2": "€"}
        ]
    })"));
}

TEST(InfoCommand, EmptyBoardHasNoWires) {
    test::Files files;
    const test::Outcome outcome = test::cli({"info", files.Add("b.vtx", test::Document{}.Bytes())});
    EXPECT_EQ(Json::parse(outcome.output).at("wires"), Json::array());
}

TEST(InfoCommand, LevelsOutOfRangeAreShownAsTheyAre) {
    test::Files files;
    const test::Document document{
        .wires = {}, .sensor1 = INT32_MIN, .pulse = INT32_MAX, .comparator = -1};
    const Json settings =
        Json::parse(test::cli({"info", files.Add("b.vtx", document.Bytes())}).output)
            .at("settings");
    EXPECT_EQ(settings.at("Sensor 1"), INT32_MIN);
    EXPECT_EQ(settings.at("Puls Generator Regelaar"), INT32_MAX);
    EXPECT_EQ(settings.at("Comparator Regelaar"), -1);
}

TEST(InfoCommand, EveryByteOfANameMakesValidJson) {
    test::Files files;
    std::string name;
    for (int byte = 1; byte < 256; ++byte)
        name += static_cast<char>(byte);
    const test::Outcome outcome =
        test::cli({"info", files.Add("b.vtx", test::Document{.wires = {{name, name}}}.Bytes())});
    const Json wires = Json::parse(outcome.output).at("wires");
    EXPECT_EQ(wires.at(0).at("naam1"), wires.at(0).at("naam2"));
}

} // namespace
} // namespace veltrix::cli
