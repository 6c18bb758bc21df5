#include "board/Collection.h"

#include <gtest/gtest.h>

#include <string>

namespace veltrix {
namespace {

Collection<std::string> abc() {
    Collection<std::string> letters;
    for (const char* letter : {"a", "b", "c"})
        letters.Add(std::make_shared<std::string>(letter));
    return letters;
}

std::string walked(const Collection<std::string>& letters) {
    std::string all;
    for (const auto& letter : letters)
        all += *letter;
    return all;
}

TEST(Collection, StartsEmpty) {
    const Collection<std::string> letters;
    EXPECT_EQ(letters.Count(), 0);
    EXPECT_EQ(walked(letters), "");
}

TEST(Collection, KeepsTheOrderOfAddingAndCountsFromOne) {
    const Collection<std::string> letters = abc();
    EXPECT_EQ(letters.Count(), 3);
    EXPECT_EQ(*letters.Item(1), "a");
    EXPECT_EQ(*letters.Item(3), "c");
    EXPECT_EQ(walked(letters), "abc");
}

TEST(Collection, WhatFollowsARemovedItemMovesUp) {
    Collection<std::string> letters = abc();
    letters.Remove(2);
    EXPECT_EQ(walked(letters), "ac");
    EXPECT_EQ(*letters.Item(2), "c");
    letters.Remove(2);
    letters.Remove(1);
    EXPECT_EQ(letters.Count(), 0);
}

TEST(Collection, PositionsOutsideItAreErrorsAndChangeNothing) {
    Collection<std::string> letters = abc();
    for (const std::int32_t index : {0, 4, -1, -2147483647 - 1, 2147483647}) {
        EXPECT_THROW((void)letters.Item(index), std::out_of_range) << index;
        EXPECT_THROW(letters.Remove(index), std::out_of_range) << index;
    }
    EXPECT_EQ(walked(letters), "abc");
}

TEST(Collection, AnItemLivesOnWhileSomebodyElseHoldsIt) {
    Collection<std::string> letters = abc();
    const std::shared_ptr<std::string> held = letters.Item(1);
    const std::weak_ptr<std::string> unheld = letters.Item(2);
    letters.Remove(1);
    letters.Remove(1);
    EXPECT_EQ(*held, "a");
    EXPECT_TRUE(unheld.expired());
}

} // namespace
} // namespace veltrix
