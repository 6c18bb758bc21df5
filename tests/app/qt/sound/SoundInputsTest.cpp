#include "app/qt/sound/SoundInputs.h"

#include <gtest/gtest.h>

namespace veltrix {
namespace {

TEST(SoundInputs, NothingIsKnownBeforeTheServerWasAsked) {
    SoundInputs inputs;
    EXPECT_LT(inputs.Count(), 0);
    inputs.Update({});
    EXPECT_EQ(inputs.Count(), 0);
}

TEST(SoundInputs, AnInputThatIsNotThereIsOfNoUse) {
    SoundInputs inputs;
    inputs.Update({});
    for (const std::int32_t i : {-1, 0, 1, 6}) {
        EXPECT_EQ(inputs.Name(i), "") << i;
        EXPECT_FALSE(inputs.Valid(i)) << i;
        EXPECT_EQ(inputs.Level(i), 0) << i;
        inputs.Want(i);
        EXPECT_TRUE(inputs.Wanted(i).isNull()) << i;
        EXPECT_FALSE(inputs.SetFailed(i, true)) << i;
    }
}

TEST(SoundInputs, LevelsAreHandedOver) {
    SoundInputs inputs;
    inputs.SetLevel(1, 17);
    inputs.SetLevel(5, 32768);
    inputs.SetLevel(6, 9);
    EXPECT_EQ(inputs.Level(1), 17);
    EXPECT_EQ(inputs.Level(2), 0);
    EXPECT_EQ(inputs.Level(5), 32768);
}

} // namespace
} // namespace veltrix
