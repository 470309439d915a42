// SPDX-License-Identifier: MIT
#include "vqview/model/LoadThread.h"

#include "unit/vqview/model/ScanFiles.h"

#include <chrono>
#include <thread>

namespace {

using namespace vqview;
using namespace vqview::test;
using testing::HasSubstr;

/// Points on a line, a hundred thousand of them a megabyte or so.
std::string cloud(int count)
{
    std::string text;
    for (int i = 0; i < count; ++i)
        text += std::to_string(i) + ".125 2 3\n";
    return text;
}

/// Polls like a host's frames until there is an outcome, a minute at most.
std::optional<ReadOutcome> outcomeOf(LoadThread& loading)
{
    for (int frame = 0; frame < 60'000; ++frame) {
        if (std::optional<ReadOutcome> outcome = loading.poll())
            return outcome;
        EXPECT_TRUE(loading.isLoading());
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return std::nullopt;
}

TEST(LoadThread, TellsTheOutcomeOnce)
{
    const ScanFile file("cloud.xyz", cloud(1000));
    LoadThread loading;
    EXPECT_FALSE(loading.isLoading());
    EXPECT_FALSE(loading.poll());
    loading.start(file.path());
    EXPECT_TRUE(loading.isLoading());
    const auto outcome = outcomeOf(loading);
    ASSERT_TRUE(outcome && outcome->model) << outcome->message;
    EXPECT_EQ(outcome->model->positions.size(), 1000);
    EXPECT_FALSE(loading.isLoading());
    EXPECT_FALSE(loading.poll());
    EXPECT_EQ(loading.progress(), 0);
}

TEST(LoadThread, TellsWhatIsWrong)
{
    LoadThread loading;
    loading.start("/no such folder/cloud.xyz");
    const auto outcome = outcomeOf(loading);
    ASSERT_TRUE(outcome);
    EXPECT_FALSE(outcome->model);
    EXPECT_EQ(outcome->message, "cloud.xyz is not there.");
}

TEST(LoadThread, ProgressGrowsFromZeroToOne)
{
    const ScanFile file("cloud.xyz", cloud(100'000));
    LoadThread loading;
    loading.start(file.path());
    double last = 0;
    std::optional<ReadOutcome> outcome;
    while (!outcome) {
        const double now = loading.progress();
        EXPECT_GE(now, last);
        EXPECT_LE(now, 1);
        last = now;
        std::this_thread::yield();
        outcome = loading.poll();
    }
    EXPECT_TRUE(outcome->model);
}

TEST(LoadThread, StopsWhenCancelled)
{
    const ScanFile file("cloud.xyz", cloud(300'000));
    LoadThread loading;
    loading.start(file.path());
    loading.cancel();
    const auto outcome = outcomeOf(loading);
    ASSERT_TRUE(outcome);
    EXPECT_FALSE(outcome->model);
    EXPECT_THAT(outcome->message, HasSubstr("cancelled"));
}

TEST(LoadThread, TellsOnlyOfTheLastThatWasStarted)
{
    const ScanFile large("large.xyz", cloud(300'000)), small("small.xyz", cloud(10));
    LoadThread loading;
    for (int i = 0; i < 5; ++i)
        loading.start(large.path());
    loading.start(small.path());
    const auto outcome = outcomeOf(loading);
    ASSERT_TRUE(outcome && outcome->model) << outcome->message;
    EXPECT_EQ(outcome->model->title, "small.xyz");
    EXPECT_FALSE(loading.poll());
}

TEST(LoadThread, MayGoWhileItReads)
{
    const ScanFile file("cloud.xyz", cloud(300'000));
    for (int i = 0; i < 20; ++i) {
        LoadThread loading;
        loading.start(file.path());
    }
}

} // namespace
