#include "board/SpriteTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace veltrix {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;
using Kind = SpriteTree::Kind;

TEST(SpriteTree, ANodeIsFoundByItsNumberUntilItIsErased) {
    SpriteTree tree;
    const std::int32_t index = tree.Make(Kind::Sprite);
    const std::int32_t number = tree.NumberOf(index);
    EXPECT_EQ(tree.Find(number), index);
    EXPECT_EQ(tree.Count(), 1);
    tree.Erase(index);
    EXPECT_EQ(tree.Find(number), SpriteTree::None);
    EXPECT_EQ(tree.Count(), 0);
}

TEST(SpriteTree, AnIndexIsUsedAgainUnderFiveHundredElevenOtherNumbers) {
    SpriteTree tree;
    const std::int32_t index = tree.Make(Kind::Sprite);
    const std::int32_t number = tree.NumberOf(index);
    for (int uses = 1; uses < 512; ++uses) {
        tree.Erase(index);
        ASSERT_EQ(tree.Make(Kind::Sprite), index);
        ASSERT_NE(tree.NumberOf(index), number);
        ASSERT_EQ(tree.Find(number), SpriteTree::None);
    }
    EXPECT_EQ(tree.Size(), 1U);
}

TEST(SpriteTree, NumbersAreNeverZeroAndNeverSharedByTwo) {
    SpriteTree tree;
    std::vector<std::int32_t> numbers;
    for (std::size_t i = 0; i < 300; ++i) {
        numbers.push_back(tree.NumberOf(tree.Make(Kind::Sprite)));
        if (i % 5 == 0)
            tree.Erase(tree.Find(numbers[i / 2]));
    }
    std::sort(numbers.begin(), numbers.end());
    EXPECT_GT(numbers.front(), 0);
    EXPECT_EQ(std::adjacent_find(numbers.begin(), numbers.end()), numbers.end());
}

TEST(SpriteTree, NumbersThatNoNodeEverHadAreNotFound) {
    SpriteTree tree;
    tree.Make(Kind::Group);
    for (const std::int32_t number : {0, -1, 2, 1 << 22, 1 << 30})
        EXPECT_EQ(tree.Find(number), SpriteTree::None) << number;
}

TEST(SpriteTree, ErasingTakesEverythingAttachedAlong) {
    SpriteTree tree;
    const std::int32_t group = tree.Make(Kind::Group);
    const std::int32_t child = tree.Make(Kind::Group);
    const std::int32_t grandchild = tree.Make(Kind::Sprite);
    const std::int32_t other = tree.Make(Kind::Sprite);
    tree.SetParent(child, group);
    tree.SetParent(grandchild, child);
    tree.Erase(group);
    EXPECT_THAT(tree.Order(), ElementsAre(other));
}

TEST(SpriteTree, ErasingTheChildrenLeavesTheNode) {
    SpriteTree tree;
    const std::int32_t group = tree.Make(Kind::Group);
    for (int i = 0; i < 3; ++i)
        tree.SetParent(tree.Make(Kind::Sprite), group);
    tree.EraseChildren(group);
    EXPECT_EQ(tree.FirstChildOf(group), SpriteTree::None);
    EXPECT_THAT(tree.Order(), ElementsAre(group));
}

TEST(SpriteTree, TheOrderGoesByLevelThenByAgeWithChildrenAboveTheirParent) {
    SpriteTree tree;
    const std::int32_t high = tree.Make(Kind::Sprite);
    const std::int32_t old = tree.Make(Kind::Sprite);
    const std::int32_t young = tree.Make(Kind::Sprite);
    const std::int32_t child = tree.Make(Kind::Sprite);
    tree.SetLevel(high, 1);
    tree.SetParent(child, old);
    EXPECT_THAT(tree.Order(), ElementsAre(old, child, young, high));
    tree.SetLevel(high, -1);
    EXPECT_THAT(tree.Order(), ElementsAre(high, old, child, young));
    tree.Erase(young);
    EXPECT_THAT(tree.Order(), ElementsAre(high, old, child));
}

TEST(SpriteTree, ChildrenLieAboveTheirParentWhateverTheirLevel) {
    SpriteTree tree;
    const std::int32_t parent = tree.Make(Kind::Sprite);
    const std::int32_t child = tree.Make(Kind::Sprite);
    tree.SetParent(child, parent);
    tree.SetLevel(child, -10);
    EXPECT_THAT(tree.Order(), ElementsAre(parent, child));
}

TEST(SpriteTree, LevelsCountAmongTheChildrenOfOneParent) {
    SpriteTree tree;
    const std::int32_t low = tree.Make(Kind::Group);
    const std::int32_t high = tree.Make(Kind::Group);
    const std::int32_t quiet = tree.Make(Kind::Sprite);
    const std::int32_t loud = tree.Make(Kind::Sprite);
    tree.SetLevel(high, 1);
    tree.SetParent(quiet, high);
    tree.SetParent(loud, low);
    tree.SetLevel(loud, 100);
    EXPECT_THAT(tree.Order(), ElementsAre(low, loud, high, quiet));
    tree.SetLevel(low, 2);
    EXPECT_THAT(tree.Order(), ElementsAre(high, quiet, low, loud));
}

TEST(SpriteTree, AttachingDoesNotMakeANodeYounger) {
    SpriteTree tree;
    const std::int32_t group = tree.Make(Kind::Group);
    const std::int32_t old = tree.Make(Kind::Sprite);
    const std::int32_t young = tree.Make(Kind::Sprite);
    tree.SetParent(young, group);
    tree.SetParent(old, group);
    EXPECT_THAT(tree.Order(), ElementsAre(group, old, young));
}

TEST(SpriteTree, AnAncestorIsNotAttachedToItsDescendant) {
    SpriteTree tree;
    const std::int32_t group = tree.Make(Kind::Group);
    const std::int32_t child = tree.Make(Kind::Group);
    const std::int32_t grandchild = tree.Make(Kind::Group);
    tree.SetParent(child, group);
    tree.SetParent(grandchild, child);
    for (const std::int32_t ancestor : {group, child, grandchild})
        tree.SetParent(ancestor, grandchild);
    EXPECT_EQ(tree[group].parent, SpriteTree::None);
    EXPECT_EQ(tree[child].parent, group);
    EXPECT_EQ(tree[grandchild].parent, child);
    EXPECT_THAT(tree.Order(), ElementsAre(group, child, grandchild));
}

TEST(SpriteTree, ANodeIsShownWhileEverythingAboveItIs) {
    SpriteTree tree;
    const std::int32_t group = tree.Make(Kind::Group);
    const std::int32_t child = tree.Make(Kind::Sprite);
    tree.SetParent(child, group);
    EXPECT_TRUE(tree.Shown(child));
    tree[group].state = spriteState::Hidden;
    EXPECT_FALSE(tree.Shown(child));
    tree[group].state = spriteState::Shown;
    tree[child].state = spriteState::Leaving;
    EXPECT_FALSE(tree.Shown(child));
    EXPECT_TRUE(tree.Shown(group));
}

TEST(SpriteTree, PlacesAddUpFromTheOutermostParent) {
    SpriteTree tree;
    const std::int32_t group = tree.Make(Kind::Group);
    const std::int32_t child = tree.Make(Kind::Sprite);
    tree.SetParent(child, group);
    tree[group].place = {10, 20, 0, 0};
    tree[child].place = {-3, 4, 7, 8};
    EXPECT_EQ(tree.BoardRect(child), (Rect{7, 24, 7, 8}));
}

TEST(SpriteTree, WhatIsMadeTouchedOrErasedIsNotedOnce) {
    SpriteTree tree;
    const std::int32_t group = tree.Make(Kind::Group);
    const std::int32_t child = tree.Make(Kind::Sprite);
    const std::int32_t other = tree.Make(Kind::Sprite);
    tree.SetParent(child, group);
    EXPECT_THAT(tree.Touched(), UnorderedElementsAre(group, child, other));
    tree.ClearTouched();
    EXPECT_TRUE(tree.Touched().empty());
    tree.Touch(child);
    tree.TouchTree(group);
    EXPECT_THAT(tree.Touched(), UnorderedElementsAre(group, child));
    tree.ClearTouched();
    tree.Erase(other);
    EXPECT_EQ(tree.Make(Kind::Sprite), other);
    EXPECT_THAT(tree.Touched(), ElementsAre(other));
    tree.ClearTouched();
    tree.TouchAll();
    EXPECT_THAT(tree.Touched(), UnorderedElementsAre(group, child, other));
}

TEST(SpriteTree, WhatChangesItsPlaceInTheOrderGetsAnotherRankWithAllThatHangsOnIt) {
    SpriteTree tree;
    const std::int32_t group = tree.Make(Kind::Group);
    const std::int32_t child = tree.Make(Kind::Sprite);
    tree.SetParent(child, group);
    const std::uint64_t before = tree[child].rank;
    tree.SetLevel(group, 0); // no change
    EXPECT_EQ(tree[child].rank, before);
    tree.SetLevel(group, 3);
    EXPECT_NE(tree[child].rank, before);
}

} // namespace
} // namespace veltrix
