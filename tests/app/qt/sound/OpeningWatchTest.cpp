#include "app/qt/sound/OpeningWatch.h"
#include "tests/app/qt/WaitUntil.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>

namespace veltrix {
namespace {

using test::waitUntil;

std::optional<std::size_t> nextHanging(OpeningWatch& watch) {
    std::optional<std::size_t> hanging;
    EXPECT_TRUE(waitUntil([&] {
        if (!hanging)
            hanging = watch.TakeHanging();
        return hanging.has_value();
    }));
    return hanging;
}

TEST(OpeningWatch, KnowsWhatIsBeingOpened) {
    OpeningWatch watch;
    EXPECT_FALSE(watch.IsOpening(1));
    watch.Begin(1);
    EXPECT_TRUE(watch.IsOpening(1));
    EXPECT_FALSE(watch.IsOpening(OpeningWatch::Output));
    EXPECT_FALSE(watch.TakeHanging()) << "it has only begun";
    watch.End(1);
    EXPECT_FALSE(watch.IsOpening(1));
}

TEST(OpeningWatch, TellsOnceOfWhatDoesNotComeBack) {
    OpeningWatch watch;
    watch.Begin(3);
    watch.Begin(4);
    watch.End(4);
    EXPECT_EQ(nextHanging(watch), 3U);
    EXPECT_FALSE(watch.TakeHanging());
    EXPECT_TRUE(watch.IsOpening(3)) << "nobody else may try it";
    watch.End(3);
    EXPECT_FALSE(watch.IsOpening(3));
    watch.Begin(3);
    EXPECT_EQ(nextHanging(watch), 3U) << "it is told of anew";
}

} // namespace
} // namespace veltrix
