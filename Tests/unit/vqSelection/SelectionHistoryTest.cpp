// SPDX-License-Identifier: MIT
#include "unit/vqSelection/Scene.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace vq::test;

TEST(CVQSelectionHistory, HasNothingToUndoAtFirst)
{
    CVQSelectionHistory history;
    CVQSelectionSet set = setOf(10, {3});
    EXPECT_FALSE(history.CanUndo());
    EXPECT_FALSE(history.CanRedo());
    EXPECT_FALSE(history.Undo(set));
    EXPECT_FALSE(history.Redo(set));
    EXPECT_EQ(set, setOf(10, {3}));
    EXPECT_EQ(history.GetBytes(), 0u);
}

TEST(CVQSelectionHistory, GoesBackAndForth)
{
    const CVQSelectionSet first = setOf(100, {1});
    const CVQSelectionSet second = setOf(100, {1, 70});
    CVQSelectionHistory history;
    history.Record(first, second);
    CVQSelectionSet set = second;
    EXPECT_TRUE(history.Undo(set));
    EXPECT_EQ(set, first);
    EXPECT_FALSE(history.CanUndo());
    EXPECT_TRUE(history.Redo(set));
    EXPECT_EQ(set, second);
    EXPECT_FALSE(history.CanRedo());
}

TEST(CVQSelectionHistory, DropsWhatWasUndoneWithTheNextChange)
{
    CVQSelectionHistory history;
    history.Record(setOf(10, {}), setOf(10, {1}));
    history.Record(setOf(10, {1}), setOf(10, {1, 2}));
    CVQSelectionSet set = setOf(10, {1, 2});
    history.Undo(set);
    history.Record(setOf(10, {1}), setOf(10, {5}));
    EXPECT_FALSE(history.CanRedo());
    set = setOf(10, {5});
    history.Undo(set);
    history.Undo(set);
    EXPECT_EQ(set, setOf(10, {}));
}

TEST(CVQSelectionHistory, TakesNoStepWhereNothingChanged)
{
    CVQSelectionHistory history;
    history.Record(setOf(10, {}), setOf(10, {1}));
    CVQSelectionSet set = setOf(10, {1});
    history.Undo(set);
    history.Record(set, set);
    EXPECT_TRUE(history.CanRedo());
    EXPECT_FALSE(history.CanUndo());
}

TEST(CVQSelectionHistory, BeginsAnewWithOtherPoints)
{
    CVQSelectionHistory history;
    history.Record(setOf(10, {}), setOf(10, {1}));
    CVQSelectionSet other(11);
    EXPECT_FALSE(history.Undo(other)) << "the steps are of ten points";
    EXPECT_TRUE(history.CanUndo());
    history.Record(setOf(20, {}), setOf(20, {2}));
    CVQSelectionSet set = setOf(20, {2});
    EXPECT_TRUE(history.Undo(set));
    EXPECT_FALSE(history.CanUndo());
    EXPECT_FALSE(history.Redo(other));
    history.Record(setOf(20, {}), setOf(30, {}));
    EXPECT_FALSE(history.CanUndo());
    EXPECT_FALSE(history.CanRedo());
    EXPECT_EQ(history.GetBytes(), 0u);
}

TEST(CVQSelectionHistory, TakesLittleForASmallChangeOfManyPoints)
{
    CVQSelectionHistory history;
    history.Record(CVQSelectionSet(1000000), setOf(1000000, {500000}));
    EXPECT_LT(history.GetBytes(), 300u);
    history.Clear();
    EXPECT_EQ(history.GetBytes(), 0u);
    EXPECT_FALSE(history.CanUndo());
}

TEST(CVQSelectionHistory, LetsTheOldestStepsGoBeyondItsLimit)
{
    CVQSelectionHistory history(25); // a step of one point among 64 takes a head and a word: 9 bytes
    CVQSelectionSet set(64);
    for (std::size_t i = 0; i < 5; ++i) {
        CVQSelectionSet next = set;
        next.Select(i, true);
        history.Record(set, next);
        set = next;
        EXPECT_LE(history.GetBytes(), 25u);
    }
    while (history.Undo(set)) {
    }
    EXPECT_EQ(set, setOf(64, {0, 1, 2})) << "two steps are left";
}

TEST(CVQSelectionHistory, KeepsTheNewestStepWhateverItsSize)
{
    CVQSelectionHistory history(0);
    history.Record(setOf(64, {}), setOf(64, {1}));
    history.Record(setOf(64, {1}), setOf(64, {2}));
    CVQSelectionSet set = setOf(64, {2});
    EXPECT_TRUE(history.Undo(set));
    EXPECT_EQ(set, setOf(64, {1}));
    EXPECT_FALSE(history.CanUndo());
}

TEST(CVQSelectionHistory, FollowsAListOfSnapshots)
{
    std::minstd_rand random(4);
    for (const std::size_t size : {1u, 63u, 64u, 65u, 10000u}) {
        CVQSelectionHistory history;
        std::vector<CVQSelectionSet> snapshots{CVQSelectionSet(size)};
        std::size_t now = 0;
        CVQSelectionSet set = snapshots[0];
        for (int step = 0; step < 400; ++step) {
            switch (random() % 3) {
            case 0: {
                CVQSelectionSet next = set;
                next.Invert();
                for (int i = 0; i < 20; ++i)
                    next.Select(random() % size, random() % 2 == 0);
                if (next == set)
                    break;
                history.Record(set, next);
                set = next;
                snapshots.resize(++now);
                snapshots.push_back(next);
                break;
            }
            case 1:
                EXPECT_EQ(history.CanUndo(), now > 0);
                if (history.Undo(set))
                    --now;
                break;
            default:
                EXPECT_EQ(history.CanRedo(), now + 1 < snapshots.size());
                if (history.Redo(set))
                    ++now;
            }
            ASSERT_EQ(set, snapshots[now]);
        }
    }
}

} // namespace
