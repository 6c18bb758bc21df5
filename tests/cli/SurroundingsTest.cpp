#include "cli/Surroundings.h"

#include <gtest/gtest.h>

namespace veltrix::cli {
namespace {

TEST(Surroundings, StartWithClockPointerAndSoundAtZero) {
    Surroundings around;
    EXPECT_EQ(around.Timer(), 0.0F);
    EXPECT_EQ(around.BoardPosition(), (Point{0, 0}));
    EXPECT_EQ(around.GetVolume(), 0);
    EXPECT_FALSE(around.OverBareMainWindow());
}

TEST(Surroundings, AreWhatTheyArePutTo) {
    Surroundings around;
    around.Seconds = 1.5F;
    around.PointerAt = {-3, 400};
    around.SoundLevel = 50;
    EXPECT_EQ(around.Timer(), 1.5F);
    EXPECT_EQ(around.BoardPosition(), (Point{-3, 400}));
    EXPECT_EQ(around.GetVolume(), 50);
}

} // namespace
} // namespace veltrix::cli
