// SPDX-License-Identifier: MIT
#include "parity/Pixels.h"
#include "unit/Platform/gdiplus/GdiplusSession.h"
#include "unit/Platform/gdiplus/frames/HeapUse.h"
#include "unit/Platform/gdiplus/frames/MixedScene.h"

#include <cstdlib>

namespace vq::test {
namespace {

using namespace Gdiplus;

/// A picture that was drawn on often enough for everything that is kept between frames to be there.
class Frames : public GdiplusTest
{
protected:
    TestPicture m_picture{kFrameWidth, kFrameHeight, 0xFFFFFFFF};
};

class FramesOfKeptObjects : public Frames, public testing::WithParamInterface<ScenePart>
{
protected:
    SceneObjects m_objects;
};

std::string nameOf(const testing::TestParamInfo<ScenePart>& info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(Drawing, FramesOfKeptObjects, testing::ValuesIn(sceneParts().begin(), sceneParts().end()),
                         nameOf);

TEST_P(FramesOfKeptObjects, TakeNoMemoryAfterTheFirst)
{
    ASSERT_EQ(GetParam().draw(m_picture.graphics, m_objects), Ok);
    const HeapUse use = heapUseOf([&] { GetParam().draw(m_picture.graphics, m_objects); });
    EXPECT_EQ(use.taken, 0) << use;
    EXPECT_EQ(use.kept, 0) << "memory of an earlier frame was given back";
}

TEST_P(FramesOfKeptObjects, AreTheSameWhenRepeated)
{
    GetParam().draw(m_picture.graphics, m_objects);
    const Row first = m_picture.all();
    TestPicture again(kFrameWidth, kFrameHeight, 0xFFFFFFFF);
    GetParam().draw(again.graphics, m_objects);
    EXPECT_EQ(again.all(), first);
    EXPECT_NE(first, TestPicture(kFrameWidth, kFrameHeight, 0xFFFFFFFF).all()) << "nothing was drawn";
}

/// A frame as the image class draws it: every object made for it.
void drawWithOwnObjects(TestPicture& picture)
{
    const SceneObjects objects;
    ASSERT_EQ(drawScene(picture.graphics, objects), Ok);
}

TEST_F(Frames, OfTheirOwnObjectsLeaveNothingBehind)
{
    constexpr int kFrames = 1000;
    drawWithOwnObjects(m_picture);
    drawWithOwnObjects(m_picture); // now every table has the size that two frames need
    const HeapUse one = heapUseOf([&] { drawWithOwnObjects(m_picture); });
    const HeapUse all = heapUseOf([&] {
        for (int i = 0; i < kFrames; ++i)
            drawWithOwnObjects(m_picture);
    });
    EXPECT_EQ(all.kept, 0) << all;
    EXPECT_EQ(all.taken, kFrames * one.taken) << "some frames take more than others";
}

TEST_F(Frames, OfTheirOwnObjectsTakeMemoryForTheObjectsOnly)
{
    drawWithOwnObjects(m_picture);
    const HeapUse ofObjects = heapUseOf([] { const SceneObjects objects; });
    const HeapUse ofFrame = heapUseOf([&] { drawWithOwnObjects(m_picture); });
    EXPECT_EQ(ofFrame.taken, ofObjects.taken) << ofFrame;
}

TEST_F(Frames, OnTwoPicturesInTurnTakeNoMemory)
{
    const SceneObjects objects;
    TestPicture other(2 * kFrameWidth, kFrameHeight);
    const auto drawBoth = [&] {
        EXPECT_EQ(drawScene(m_picture.graphics, objects), Ok);
        EXPECT_EQ(drawScene(other.graphics, objects), Ok);
    };
    drawBoth();
    const HeapUse use = heapUseOf(drawBoth);
    EXPECT_EQ(use.taken, 0) << use;
}

TEST(HeapUse, CountsBlocksOfEveryAllocator)
{
    int* volatile ofNew = nullptr; // volatile, or the compiler leaves pairs out
    void* volatile ofMalloc = nullptr;
    void* volatile ofCalloc = nullptr;
    void* volatile aligned = nullptr;
    const HeapUse taken = heapUseOf([&] {
        ofNew = new int(1);
        ofMalloc = std::malloc(100);
        ofCalloc = std::calloc(100, 1);
        aligned = std::aligned_alloc(64, 128);
    });
    const HeapUse given = heapUseOf([&] {
        delete ofNew;
        std::free(ofMalloc);
        std::free(ofCalloc);
        std::free(aligned);
    });
    EXPECT_EQ(taken.taken, 4);
    EXPECT_EQ(taken.kept, 4);
    EXPECT_EQ(given.taken, 0);
    EXPECT_EQ(given.kept, -4);
}

} // namespace
} // namespace vq::test
