#include "board/clsSnaps.h"

#include "tests/support/NumberRange.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

namespace veltrix::test {
namespace {

struct Row {
    const char* naam;
    std::int32_t x;
    std::int32_t y;
    std::int32_t Radius;
    std::int32_t Connectable;
    std::int32_t soort;
};

/// What is printed on the board, in the order of the hit test.
constexpr Row catalogue[] = {
    {"Sensor 1", 44, 49, 24, 0, 2},
    {"Sensor 2", 44, 102, 24, 0, 2},
    {"Geluids Sensor", 31, 145, 10, 0, 2},
    {"Sensor 1 Uit Geel", 98, 50, 10, -1, 2},
    {"Sensor 2 Uit Geel", 98, 101, 10, -1, 2},
    {"Geluids Sensor Uit Geel", 98, 144, 10, -1, 2},
    {"Drukknop 1 Uit Geel", 98, 179, 10, -1, 2},
    {"Drukknop 2 Uit Geel", 98, 214, 10, -1, 2},
    {"Var. Spanning Uit Geel", 98, 256, 10, -1, 2},
    {"Puls Generator Uit Geel", 98, 295, 10, -1, 2},
    {"Transistor In", 133, 41, 10, -1, 1},
    {"EN-poort Ingang 1", 133, 110, 10, -1, 1},
    {"EN-poort Ingang 2", 133, 145, 10, -1, 1},
    {"Geheugen Set (In)", 134, 180, 10, -1, 1},
    {"Geheugen Reset (In)", 134, 215, 10, -1, 1},
    {"Transistor Uit", 199, 41, 10, -1, 2},
    {"EN-poort Uit", 199, 128, 10, -1, 2},
    {"Geheugen Uit", 200, 198, 10, -1, 2},
    {"Comparator In", 222, 42, 10, -1, 1},
    {"Comparator Uit", 287, 41, 10, -1, 2},
    {"OF-poort Ingang 1", 222, 111, 10, -1, 1},
    {"OF-poort Ingang 2", 222, 145, 10, -1, 1},
    {"OF-poort Uit", 287, 128, 10, -1, 2},
    {"Invertor Ingang", 222, 197, 10, -1, 1},
    {"Invertor Uitgang", 288, 197, 10, -1, 2},
    {"LED 1 Ingang", 322, 41, 10, -1, 1},
    {"LED 2 Ingang", 322, 75, 10, -1, 1},
    {"LED 3 Ingang", 323, 110, 10, -1, 1},
    {"LED 4 Ingang", 323, 145, 10, -1, 1},
    {"Zoemer", 323, 197, 10, -1, 1},
    {"Relais Controle (In)", 323, 245, 10, -1, 1},
    {"Relais Ingang 1 (in/uit)", 368, 246, 10, -1, 3},
    {"Relais Ingang 2 (in/uit)", 393, 245, 10, -1, 3},
    {"Relais Uitgang 1 (in/uit)", 369, 285, 10, -1, 3},
    {"Relais Uitgang 2 (in/uit)", 394, 285, 10, -1, 3},
    {"Pulsenteller Uitgang 1", 288, 250, 10, -1, 2},
    {"Pulsenteller Uitgang 2", 266, 249, 10, -1, 2},
    {"Pulsenteller Uitgang 4", 244, 249, 10, -1, 2},
    {"Pulsenteller Uitgang 8", 222, 250, 10, -1, 2},
    {"Pulsenteller Tel pulsen (In)", 133, 249, 10, -1, 1},
    {"Pulsenteller Teller aan/uit (In)", 133, 281, 10, -1, 1},
    {"Pulsenteller Reset (In)", 134, 305, 10, -1, 1},
    {"AD-omzetter In", 30, 336, 10, -1, 1},
    {"AD-omzetter Uitgang 8", 51, 335, 10, -1, 2},
    {"AD-omzetter Uitgang 4", 70, 335, 10, -1, 2},
    {"AD-omzetter Uitgang 2", 87, 335, 10, -1, 2},
    {"AD-omzetter Uitgang 1", 104, 335, 10, -1, 2},
    {"Drukknop 1", 30, 180, 10, 0, 0},
    {"Drukknop 2", 29, 214, 10, 0, 0},
    {"Var. Spanning In Zwart", 31, 256, 10, -1, 0},
    {"Var. Spanning Regelaar", 63, 256, 10, 0, 0},
    {"Puls Generator Regelaar", 64, 296, 10, 0, 0},
    {"Pulsenteller Reset Drukknop", 200, 305, 10, 0, 0},
    {"Comparator Regelaar", 266, 72, 10, 0, 0},
};

TEST(clsSnaps, TheCatalogueIsWhatIsPrintedOnTheBoard) {
    const clsSnaps snaps;
    std::int32_t number = 0;
    for (const Row& row : catalogue) {
        SCOPED_TRACE(row.naam);
        EXPECT_EQ(snaps.GetSnapItemName(++number), row.naam);
        EXPECT_EQ(snaps.GetXbyName(row.naam), row.x);
        EXPECT_EQ(snaps.GetYbyName(row.naam), row.y);
        EXPECT_EQ(snaps.GetConnectablebyName(row.naam), row.Connectable);
        EXPECT_EQ(snaps.GetSoortbyName(row.naam), row.soort);
    }
    EXPECT_EQ(number, 54);
    EXPECT_EQ(snaps.GetSnapCount(), 54);
}

TEST(clsSnaps, PositionsBehindTheLastSnapAreEmptyAndThoseBehindTheArrayAreErrors) {
    const clsSnaps snaps;
    EXPECT_EQ(snaps.GetSnapItemName(54), "Comparator Regelaar");
    EXPECT_EQ(snaps.GetSnapItemName(55), "");
    EXPECT_EQ(snaps.GetSnapItemName(100), "");
    EXPECT_EQ(snaps.GetSnapItemName(0), "");
    EXPECT_THROW((void)snaps.GetSnapItemName(101), std::out_of_range);
    EXPECT_THROW((void)snaps.GetSnapItemName(-1), std::out_of_range);
}

TEST(clsSnaps, ANameThatNoSnapHasReadsAsZero) {
    const clsSnaps snaps;
    for (const char* naam : {"sensor 1 uit geel", "Sensor 1 Uit Geel ", "Luidspreker", ""}) {
        SCOPED_TRACE(naam);
        EXPECT_EQ(snaps.GetXbyName(naam), 0);
        EXPECT_EQ(snaps.GetYbyName(naam), 0);
        EXPECT_EQ(snaps.GetConnectablebyName(naam), 0);
        EXPECT_EQ(snaps.GetSoortbyName(naam), 0);
    }
}

/// The first snap of the table whose square, without its edge, holds the position.
std::string firstThatHolds(std::int32_t x, std::int32_t y) {
    for (const Row& row : catalogue)
        if (std::abs(x - row.x) < row.Radius && std::abs(y - row.y) < row.Radius)
            return row.naam;
    return {};
}

TEST(clsSnaps, EveryPixelBelongsToTheFirstSnapInWhoseOpenSquareItLies) {
    const clsSnaps snaps;
    for (std::int32_t y = -1; y <= 376; ++y)
        for (std::int32_t x = -1; x <= 415; ++x)
            ASSERT_EQ(snaps.GetSnapName(x, y), firstThatHolds(x, y)) << x << ", " << y;
}

TEST(clsSnaps, PositionsFarOutsideTheBoardHitNothing) {
    const clsSnaps snaps;
    EXPECT_EQ(snaps.GetSnapName(least, least), "");
    EXPECT_EQ(snaps.GetSnapName(most, most), "");
}

TEST(clsSnaps, AnAddedSnapIsFoundWithItsRadiusRounded) {
    clsSnaps snaps;
    snaps.AddSnap(1000, 2000, 2.5F, "even", true, false, 3);
    EXPECT_EQ(snaps.GetSnapCount(), 55);
    EXPECT_EQ(snaps.GetSnapItemName(55), "even");
    EXPECT_EQ(snaps.GetConnectablebyName("even"), -1);
    EXPECT_EQ(snaps.GetSoortbyName("even"), 3);
    EXPECT_EQ(snaps.GetSnapName(1001, 2001), "even");
    EXPECT_EQ(snaps.GetSnapName(1002, 2000), "");
    snaps.AddSnap(3000, 2000, 3.5F, "odd");
    EXPECT_EQ(snaps.GetSnapName(3003, 2000), "odd");
    EXPECT_EQ(snaps.GetSnapName(3004, 2000), "");
    EXPECT_EQ(snaps.GetConnectablebyName("odd"), 0);
    EXPECT_EQ(snaps.GetSoortbyName("odd"), 0);
}

TEST(clsSnaps, OfTwoSnapsWithOneNameTheFirstAnswers) {
    clsSnaps snaps;
    snaps.AddSnap(1000, 2000, 10, "Zoemer", true, false, 2);
    EXPECT_EQ(snaps.GetXbyName("Zoemer"), 323);
    EXPECT_EQ(snaps.GetSoortbyName("Zoemer"), 1);
    EXPECT_EQ(snaps.GetSnapName(1000, 2000), "Zoemer");
}

TEST(clsSnaps, ThereIsRoomForAHundredSnaps) {
    clsSnaps snaps;
    for (std::int32_t i = 55; i <= 100; ++i)
        snaps.AddSnap(0, 1000 * i, 10, "snap " + std::to_string(i));
    EXPECT_EQ(snaps.GetSnapCount(), 100);
    EXPECT_EQ(snaps.GetSnapItemName(100), "snap 100");
    EXPECT_THROW(snaps.AddSnap(0, 0, 10, "one too many"), std::out_of_range);
    EXPECT_EQ(snaps.GetSnapName(0, 100000), "snap 100");
}

TEST(clsSnaps, AZoneThatLeavesTheNumberRangeOnAnySideIsAnError) {
    for (const Point& centre : {Point{least, 0}, {most, 0}, {0, least}, {0, most}}) {
        clsSnaps snaps;
        snaps.AddSnap(centre.x, centre.y, 1, "edge");
        EXPECT_THROW((void)snaps.GetSnapName(centre.x, centre.y), std::overflow_error)
            << centre.x << ", " << centre.y;
    }
}

TEST(clsSnaps, ARadiusThatIsNoWholeNumberOfTheRangeIsAnErrorAndAddsNothing) {
    clsSnaps snaps;
    EXPECT_THROW(snaps.AddSnap(0, 0, 3e9F, "too wide"), std::overflow_error);
    EXPECT_EQ(snaps.GetSnapCount(), 54);
}

} // namespace
} // namespace veltrix::test
