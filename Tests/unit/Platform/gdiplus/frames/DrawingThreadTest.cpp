// SPDX-License-Identifier: MIT
#include "parity/Pixels.h"
#include "unit/Platform/gdiplus/GdiplusSession.h"
#include "unit/Platform/gdiplus/frames/MixedScene.h"

#include <latch>
#include <optional>
#include <thread>
#include <vector>

namespace vq::test {
namespace {

using namespace Gdiplus;

constexpr int kThreads = 8;
constexpr int kFrames = 25;

Row pictureOf(int frames)
{
    TestPicture picture(kFrameWidth, kFrameHeight, 0xFFFFFFFF);
    const SceneObjects objects;
    for (int i = 0; i < frames; ++i) {
        if (drawScene(picture.graphics, objects) != Ok)
            return {};
    }
    return picture.all();
}

/// The pictures of threads that begin at the same time, each with objects of its own.
std::vector<Row> picturesOfThreads(int frames)
{
    std::vector<Row> pictures(kThreads);
    std::latch begin(kThreads);
    std::vector<std::jthread> threads;
    for (Row& picture : pictures) {
        threads.emplace_back([&] {
            begin.arrive_and_wait();
            picture = pictureOf(frames);
        });
    }
    threads.clear();
    return pictures;
}

class DrawingThreads : public GdiplusTest
{
};

TEST_F(DrawingThreads, DrawWhatOneDraws)
{
    const std::vector<Row> cold = picturesOfThreads(1); // caches are filled by all of them at once
    const Row alone = pictureOf(1);
    ASSERT_FALSE(alone.empty());
    EXPECT_THAT(cold, testing::Each(testing::Eq(alone)));
}

TEST_F(DrawingThreads, KeepDrawingWhatOneDraws)
{
    const Row alone = pictureOf(kFrames);
    ASSERT_FALSE(alone.empty());
    EXPECT_THAT(picturesOfThreads(kFrames), testing::Each(testing::Eq(alone)));
}

} // namespace
} // namespace vq::test
