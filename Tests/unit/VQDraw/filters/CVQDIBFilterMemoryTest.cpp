// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "support/Pictures.h"

#include <functional>
#include <new>

namespace vq::test {
namespace {

using vq::platform::ScopedAllocationFailure;

const std::function<void(CVQDIB&)> kFiltersWithMemory[] = {
    [](CVQDIB& image) { image.Smooth3x3(); },     [](CVQDIB& image) { image.Smooth(1); },
    [](CVQDIB& image) { image.Smooth(200); },     [](CVQDIB& image) { image.AlphaSmooth3x3(); },
    [](CVQDIB& image) { image.Median(nullptr); }, [](CVQDIB& image) { image.Laplacian(0); },
};

TEST(CVQDIBFilters, ThrowBeforeAnythingHasChangedWhenMemoryIsShort)
{
    CVQDIB image(9, 8);
    fillRandom(image, 1);
    const Pixels before = pixels(image);
    for (const auto& filter : kFiltersWithMemory) {
        {
            const ScopedAllocationFailure memoryIsShort;
            EXPECT_THROW(filter(image), std::bad_alloc);
        }
        EXPECT_TRUE(shows(image, before));
    }
}

TEST(CVQDIBFilters, LeaveMediansRectangleWhenMemoryIsShort)
{
    CVQDIB image(9, 8);
    CRect rect(5, 5, 2, 2);
    {
        const ScopedAllocationFailure memoryIsShort;
        EXPECT_THROW(image.Median(&rect), std::bad_alloc);
    }
    EXPECT_EQ(rect, CRect(5, 5, 2, 2));
}

TEST(CVQDIBFilters, TakeMemoryOnce)
{
    for (const auto& filter : kFiltersWithMemory) {
        CVQDIB image(9, 8);
        const ScopedAllocationFailure onlyOne(1);
        EXPECT_NO_THROW(filter(image));
    }
}

TEST(CVQDIBFilters, DoNothingToAnEmptyImage)
{
    CVQDIB image(static_cast<CVQDIB*>(nullptr));
    CRect rect(3, 3, 1, 1);

    for (const auto& filter : kFiltersWithMemory)
        filter(image);
    image.Smooth2x2();
    image.Smooth3x3(0, 9);
    image.Smooth3x3(CRect(0, 0, 9, 9));
    image.Median(&rect);
    image.Mosaic(2);

    EXPECT_EQ(image.GetImageBuffer(), nullptr);
    EXPECT_EQ(rect, CRect(3, 3, 1, 1));
}

} // namespace
} // namespace vq::test
