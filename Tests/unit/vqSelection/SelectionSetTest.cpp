// SPDX-License-Identifier: MIT
#include "unit/vqSelection/Scene.h"

#include <gmock/gmock.h>

namespace {

using namespace vq::test;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(CVQSelectionSet, HasNothingSelectedAtFirst)
{
    const CVQSelectionSet none;
    EXPECT_EQ(none.GetSize(), 0u);
    EXPECT_EQ(none.GetWords(), nullptr);
    EXPECT_EQ(none.GetWordCount(), 0u);
    const CVQSelectionSet set(100);
    EXPECT_EQ(set.GetSize(), 100u);
    EXPECT_EQ(set.GetCount(), 0u);
    EXPECT_FALSE(set.IsSelected(99));
}

TEST(CVQSelectionSet, SelectsAndDeselectsSinglePoints)
{
    CVQSelectionSet set(130);
    for (const std::size_t index : {0u, 63u, 64u, 129u})
        set.Select(index, true);
    EXPECT_THAT(indicesOf(set), ElementsAre(0, 63, 64, 129));
    set.Select(64, false);
    set.Select(64, false);
    EXPECT_THAT(indicesOf(set), ElementsAre(0, 63, 129));
    EXPECT_EQ(set.GetCount(), 3u);
}

TEST(CVQSelectionSet, LeavesAloneWhatIsBeyondItsSize)
{
    CVQSelectionSet set(70);
    set.Select(70, true);
    set.Select(100000, true);
    EXPECT_EQ(set, CVQSelectionSet(70));
    EXPECT_FALSE(set.IsSelected(70));
    EXPECT_FALSE(set.IsSelected(~std::size_t{0}));
}

TEST(CVQSelectionSet, KeepsBitsBeyondItsSizeClearAroundWholeWords)
{
    for (const std::size_t size : {0u, 1u, 63u, 64u, 65u, 127u, 128u, 129u}) {
        CVQSelectionSet set(size);
        set.SelectAll();
        EXPECT_EQ(set.GetCount(), size);
        EXPECT_EQ(set.GetWordCount(), (size + 63) / 64);
        CVQSelectionSet inverted(size);
        inverted.Invert();
        EXPECT_EQ(inverted, set) << size;
        inverted.Invert();
        EXPECT_EQ(inverted, CVQSelectionSet(size)) << size;
        set.Clear();
        EXPECT_EQ(set, CVQSelectionSet(size)) << size;
    }
}

TEST(CVQSelectionSet, IsOfNoPointsOnceItHasBeenMoved)
{
    CVQSelectionSet set(100);
    set.SelectAll();
    CVQSelectionSet taken(std::move(set));
    EXPECT_EQ(taken.GetCount(), 100u);
    EXPECT_EQ(set.GetSize(), 0u); // NOLINT: what is left is promised
    EXPECT_FALSE(set.IsSelected(0));
    set = std::move(taken);
    EXPECT_EQ(set.GetCount(), 100u);
    EXPECT_EQ(taken.GetSize(), 0u); // NOLINT
    EXPECT_EQ(taken.GetWords(), nullptr);
}

TEST(CVQSelectionSet, ShowsItsBitsAsWords)
{
    const CVQSelectionSet set = setOf(65, {0, 5, 63, 64});
    ASSERT_EQ(set.GetWordCount(), 2u);
    EXPECT_EQ(set.GetWords()[0], 0x8000000000000021u);
    EXPECT_EQ(set.GetWords()[1], 1u);
}

TEST(CVQSelectionSet, GrowsByPointsThatAreNotSelected)
{
    CVQSelectionSet set(63);
    set.SelectAll();
    EXPECT_TRUE(set.Resize(200));
    EXPECT_EQ(set.GetCount(), 63u);
    EXPECT_TRUE(set.IsSelected(62));
    EXPECT_FALSE(set.IsSelected(63));
}

TEST(CVQSelectionSet, ForgetsWhatItShrinksBy)
{
    CVQSelectionSet set(200);
    set.SelectAll();
    EXPECT_TRUE(set.Resize(65));
    EXPECT_TRUE(set.Resize(200));
    EXPECT_EQ(set.GetCount(), 65u);
}

TEST(CVQSelectionSet, RefusesMorePointsThanIndicesCanName)
{
    if constexpr (sizeof(std::size_t) > 4) {
        CVQSelectionSet set = setOf(10, {3});
        EXPECT_FALSE(set.Resize((std::size_t{1} << 32) + 1));
        EXPECT_EQ(set, setOf(10, {3}));
    }
}

TEST(CVQSelectionSet, ReplacesTheListItIsAskedFor)
{
    std::vector<std::uint32_t> indices{7, 8};
    setOf(10, {2}).GetSelected(indices);
    EXPECT_THAT(indices, ElementsAre(2));
    CVQSelectionSet().GetSelected(indices);
    EXPECT_THAT(indices, IsEmpty());
}

TEST(CVQSelectionSet, EqualsWhatHasTheSameSizeAndPoints)
{
    EXPECT_EQ(setOf(10, {2, 3}), setOf(10, {3, 2}));
    EXPECT_NE(setOf(10, {2}), setOf(10, {3}));
    EXPECT_NE(setOf(10, {2}), setOf(11, {2}));
}

} // namespace
