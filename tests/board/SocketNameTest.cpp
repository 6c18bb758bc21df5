#include "board/SocketName.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace veltrix {
namespace {

TEST(SocketName, EqualTextsAreTheSameNameAndOthersAreNot) {
    const SocketName a = "Zoemer";
    const SocketName b = std::string("Zoemer");
    EXPECT_EQ(a, b);
    EXPECT_EQ(a.Id(), b.Id());
    EXPECT_FALSE(a == SocketName("zoemer"));
    EXPECT_FALSE(a == SocketName("Zoemer "));
    EXPECT_NE(a.Id(), SocketName("zoemer").Id());
}

TEST(SocketName, ReadsAndComparesLikeAString) {
    const SocketName name = "EN-poort Uit";
    const std::string& text = name;
    EXPECT_EQ(text, "EN-poort Uit");
    EXPECT_TRUE(name == "EN-poort Uit");
    EXPECT_TRUE(name == std::string("EN-poort Uit"));
    EXPECT_TRUE(name == std::string_view("EN-poort Uit"));
    EXPECT_FALSE(name == "EN-poort");
}

TEST(SocketName, TheEmptyNameNeedsNoNumber) {
    const SocketName none;
    EXPECT_TRUE(none.empty());
    EXPECT_EQ(none.Id(), 0U);
    EXPECT_EQ(none.Text(), "");
    EXPECT_EQ(SocketName(""), none);
    EXPECT_FALSE(SocketName("x").empty());
}

TEST(SocketName, AnyTextIsAName) {
    const std::string odd("a\0b|\xC3\xA9", 6);
    const SocketName name = odd;
    EXPECT_EQ(name.Text(), odd);
    EXPECT_FALSE(name == SocketName("a"));
}

TEST(SocketName, AllCopiesShareTheNumberUntilTheLastIsGone) {
    SocketName last;
    std::uint32_t number = 0;
    {
        const SocketName first = "only here";
        number = first.Id();
        const std::vector<SocketName> copies(5, first);
        last = copies.back();
    }
    EXPECT_EQ(last.Id(), number);
    EXPECT_EQ(last.Text(), "only here");
}

TEST(SocketName, NumbersAreUsedAgainSoThatTheTableDoesNotGrow) {
    const std::uint32_t number = SocketName("passing by 0").Id();
    for (int i = 1; i < 1000; ++i)
        EXPECT_EQ(SocketName("passing by " + std::to_string(i)).Id(), number);
}

TEST(SocketName, AssigningANameToItselfKeepsIt) {
    SocketName name = "held once";
    const std::uint32_t number = name.Id();
    SocketName& alias = name;
    name = alias;
    EXPECT_EQ(name.Text(), "held once");
    name = std::move(alias);
    EXPECT_EQ(name.Text(), "held once");
    EXPECT_EQ(name.Id(), number);
}

TEST(SocketName, ANameMovesOnAndLeavesNothingToReleaseTwice) {
    SocketName from = "travels";
    const SocketName to = std::move(from);
    EXPECT_EQ(to.Text(), "travels");
    EXPECT_TRUE(from.empty()); // NOLINT(bugprone-use-after-move): what is left is what is shown
    from = "used again";
    EXPECT_EQ(from.Text(), "used again");

    SocketName target = "old";
    target = std::move(from);
    EXPECT_EQ(target.Text(), "used again");
    EXPECT_EQ(to.Text(), "travels");
}

TEST(SocketName, AssigningLetsTheOldNameGo) {
    SocketName name = "goes";
    const std::uint32_t number = name.Id();
    const SocketName other = "stays";
    name = other;
    EXPECT_EQ(SocketName("takes its place").Id(), number);
}

TEST(SocketName, ManyNamesAtOnceKeepTheirTexts) {
    std::vector<SocketName> names;
    for (int i = 0; i < 5000; ++i)
        names.emplace_back("socket " + std::to_string(i));
    names.erase(names.begin(), names.begin() + 2500);
    for (int i = 0; i < 2500; ++i)
        names.emplace_back("later " + std::to_string(i));
    EXPECT_EQ(names[0].Text(), "socket 2500");
    EXPECT_EQ(names[2499].Text(), "socket 4999");
    EXPECT_EQ(names[2500].Text(), "later 0");
    EXPECT_EQ(names.back().Text(), "later 2499");
    EXPECT_EQ(SocketName("later 77"), names[2577]);
}

} // namespace
} // namespace veltrix
