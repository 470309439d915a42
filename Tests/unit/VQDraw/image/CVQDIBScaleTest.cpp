// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

namespace vq::test {
namespace {

TEST(CVQDIBScale, CopyReplacesTheWholeImageByDefault)
{
    CVQDIB source(2, 2);
    source.Clear(BYTE{10}, BYTE{20}, BYTE{30}, BYTE{128});
    CVQDIB image(2, 2);
    image.Clear(COLORREF{0xFFFFFF});

    image.CopyWithScale(&source);

    EXPECT_TRUE(shows(image, Pixels(4, 0x800A141E)));
}

TEST(CVQDIBScale, AnEnlargedOpaquePictureKeepsItsColourInside)
{
    CVQDIB source(4, 4);
    source.Clear(COLORREF{RGB(200, 100, 50)});
    CVQDIB image(32, 32);

    image.CopyWithScale(&source, 4, 4, 24, 24);
    EXPECT_EQ(image(14, 14), 0xFFC86432u);
    EXPECT_EQ(image(0, 0), 0u);
    EXPECT_EQ(image(31, 31), 0u);

    image.Clear(COLORREF{0});
    image.PasteWithScale(&source, 4, 4, 24, 24);
    EXPECT_EQ(image(14, 14), 0xFFC86432u);
    EXPECT_EQ(image(0, 0), 0xFF000000u);

    image.Clear(COLORREF{0});
    image.PasteWithScaleFloat(&source, 4.5f, 4.5f, 23.5f, 23.5f);
    EXPECT_EQ(image(14, 14), 0xFFC86432u);
    EXPECT_EQ(image(0, 0), 0xFF000000u);
}

TEST(CVQDIBScale, PastingTransparencyLeavesWhatIsThere)
{
    CVQDIB source(4, 4);
    CVQDIB image(8, 8);
    fillRandom(image, 1);
    const Pixels before = pixels(image);

    image.PasteWithScale(&source);
    image.PasteWithScaleFloat(&source, 0, 0, 8, 8);

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBScale, LeavesTheGraphicsWithItsDefaults)
{
    CVQDIB source(2, 2);
    CVQDIB image(4, 4);

    image.CopyWithScale(&source);
    EXPECT_EQ(image.GetGraphics()->GetCompositingMode(), Gdiplus::CompositingModeSourceOver);
    EXPECT_EQ(image.GetGraphics()->GetCompositingQuality(), Gdiplus::CompositingQualityDefault);
    image.PasteWithScale(&source);
    EXPECT_EQ(image.GetGraphics()->GetCompositingMode(), Gdiplus::CompositingModeSourceOver);
    EXPECT_EQ(image.GetGraphics()->GetCompositingQuality(), Gdiplus::CompositingQualityDefault);
}

TEST(CVQDIBScale, NullAndEmptyImagesChangeNothing)
{
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    CVQDIB image(4, 4);
    fillRandom(image, 1);
    const Pixels before = pixels(image);
    for (CVQDIB* source : {static_cast<CVQDIB*>(nullptr), &empty}) {
        image.CopyWithScale(source);
        image.CopyWithScale(source, 0, 0, 2, 2);
        image.PasteWithScale(source);
        image.PasteWithScale(source, 0, 0, 2, 2);
        image.PasteWithScaleFloat(source, 0, 0, 2, 2);
    }
    empty.CopyWithScale(&image);
    empty.PasteWithScale(&image);
    empty.PasteWithScaleFloat(&image, 0, 0, 2, 2);

    EXPECT_TRUE(shows(image, before));
    EXPECT_EQ(empty.GetImageBuffer(), nullptr);
}

} // namespace
} // namespace vq::test
