// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"
#include "parity/KnownDifferences.h"
#include "support/GdiplusEnvironment.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <algorithm>
#include <memory>
#include <type_traits>

namespace vq::test {
namespace {

using Access = VQTestAccess;

constexpr ULONG kRed = 0xFFFF0000;

void expectEmpty(CVQDIB& image)
{
    EXPECT_EQ(Access::pixelBuffer(image), nullptr);
    EXPECT_EQ(Access::bitmap(image), nullptr);
    EXPECT_EQ(Access::graphics(image), nullptr);
    EXPECT_EQ(Access::rowOffsets(image), nullptr);
    EXPECT_EQ(image.GetWidth(), 0);
    EXPECT_EQ(image.GetHeight(), 0);
    EXPECT_EQ(image.GetSize(), 0);
    EXPECT_EQ(image.GetSizeInByte(), 0);
}

void expectInitialState(CVQDIB& image)
{
    EXPECT_EQ(Access::printX(image), 0);
    EXPECT_EQ(Access::printY(image), 0);
    EXPECT_EQ(Access::shadowX(image), 1);
    EXPECT_EQ(Access::shadowY(image), 1);
    EXPECT_EQ(Access::shadowColour(image), 0u);
    EXPECT_EQ(Access::spareWord(image), 0u);
    EXPECT_EQ(Access::flags(image), 6u);
}

void expectSystemFont(const LOGFONTW& font)
{
    LOGFONTW expected{};
    ASSERT_EQ(GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof expected, &expected),
              static_cast<int>(sizeof expected));
    EXPECT_EQ(font.lfHeight, expected.lfHeight);
    EXPECT_EQ(font.lfWidth, expected.lfWidth);
    EXPECT_EQ(font.lfEscapement, expected.lfEscapement);
    EXPECT_EQ(font.lfOrientation, expected.lfOrientation);
    EXPECT_EQ(font.lfWeight, expected.lfWeight);
    EXPECT_EQ(font.lfItalic, expected.lfItalic);
    EXPECT_EQ(font.lfUnderline, expected.lfUnderline);
    EXPECT_EQ(font.lfStrikeOut, expected.lfStrikeOut);
    EXPECT_EQ(font.lfCharSet, expected.lfCharSet);
    EXPECT_EQ(font.lfOutPrecision, expected.lfOutPrecision);
    EXPECT_EQ(font.lfClipPrecision, expected.lfClipPrecision);
    EXPECT_EQ(font.lfQuality, expected.lfQuality);
    EXPECT_EQ(font.lfPitchAndFamily, expected.lfPitchAndFamily);
    EXPECT_TRUE(std::equal(std::begin(font.lfFaceName), std::end(font.lfFaceName), std::begin(expected.lfFaceName)));
}

void expectOpaqueWhite(const Gdiplus::SolidBrush* brush)
{
    ASSERT_NE(brush, nullptr);
    Gdiplus::Color colour(0);
    EXPECT_EQ(brush->GetColor(&colour), Gdiplus::Ok);
    EXPECT_EQ(colour.GetValue(), 0xFFFFFFFFu);
}

/// A picture of GDI+'s own with typed pixels.
void paintBitmap(Gdiplus::Bitmap& bitmap, const Pixels& content)
{
    const UINT width = bitmap.GetWidth();
    for (std::size_t i = 0; i < content.size(); ++i) {
        const auto x = static_cast<INT>(i % width);
        const auto y = static_cast<INT>(i / width);
        ASSERT_EQ(bitmap.SetPixel(x, y, Gdiplus::Color(content[i])), Gdiplus::Ok);
    }
}

TEST(CVQDIBConstruction, HasNoVirtualOperations)
{
    EXPECT_FALSE(std::is_polymorphic_v<CVQDIB>);
}

TEST(CVQDIBConstruction, MakesAClearedImageOfTheSize)
{
    CVQDIB image(3, 2);

    EXPECT_EQ(image.GetWidth(), 3);
    EXPECT_EQ(image.GetHeight(), 2);
    EXPECT_TRUE(shows(image, Pixels(6, 0)));
}

TEST(CVQDIBConstruction, PutsEveryMemberIntoItsInitialState)
{
    CVQDIB image(3, 2);

    expectInitialState(image);
    expectSystemFont(Access::font(image));
    expectOpaqueWhite(Access::textBrush(image));
}

TEST(CVQDIBConstruction, EveryConstructorMakesTheWhiteTextBrushAndTheSystemFont)
{
    CVQDIB original(2, 2);
    Gdiplus::Bitmap bitmap(2, 2);
    CVQDIB fromReference(original);
    CVQDIB fromPointer(&original);
    CVQDIB fromNothing(static_cast<CVQDIB*>(nullptr));
    CVQDIB fromBitmap(&bitmap);

    for (CVQDIB* image : {&fromReference, &fromPointer, &fromNothing, &fromBitmap}) {
        expectInitialState(*image);
        expectSystemFont(Access::font(*image));
        expectOpaqueWhite(Access::textBrush(*image));
    }
}

TEST(CVQDIBConstruction, RaisesSizesBelowOneToOne)
{
    CVQDIB nothing(0, 0);
    CVQDIB narrow(-5, 3);
    CVQDIB flat(4, -2147483647 - 1);

    EXPECT_EQ(nothing.GetWidth(), 1);
    EXPECT_EQ(nothing.GetHeight(), 1);
    EXPECT_EQ(narrow.GetWidth(), 1);
    EXPECT_EQ(narrow.GetHeight(), 3);
    EXPECT_EQ(flat.GetWidth(), 4);
    EXPECT_EQ(flat.GetHeight(), 1);
}

TEST(CVQDIBConstruction, CopyHasTheSizeOfItsOriginalAndNoneOfItsPixels)
{
    CVQDIB original(3, 2);
    paint(original, Pixels(6, kRed));

    CVQDIB byReference(original);
    CVQDIB byPointer(&original);

    for (CVQDIB* copy : {&byReference, &byPointer}) {
        EXPECT_EQ(copy->GetWidth(), 3);
        EXPECT_EQ(copy->GetHeight(), 2);
        EXPECT_TRUE(shows(*copy, Pixels(6, 0)));
    }
    EXPECT_TRUE(shows(original, Pixels(6, kRed)));
}

TEST(CVQDIBConstruction, CopyTakesNoStateFromItsOriginal)
{
    CVQDIB original(3, 2);
    Access::flags(original) = 1;
    Access::shadowColour(original) = 0x123456;
    Access::printX(original) = 9;
    Access::font(original).lfHeight = -77;

    CVQDIB copy(original);

    expectInitialState(copy);
    expectSystemFont(Access::font(copy));
}

TEST(CVQDIBConstruction, CopyOfAnEmptyImageIsOneClearedPixel)
{
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));

    CVQDIB byReference(empty);
    CVQDIB byPointer(&empty);

    for (CVQDIB* copy : {&byReference, &byPointer}) {
        EXPECT_EQ(copy->GetWidth(), 1);
        EXPECT_EQ(copy->GetHeight(), 1);
        EXPECT_TRUE(shows(*copy, {0}));
    }
}

TEST(CVQDIBConstruction, NullPointersLeaveTheImageEmpty)
{
    CVQDIB fromImage(static_cast<CVQDIB*>(nullptr));
    CVQDIB fromBitmap(static_cast<Gdiplus::Bitmap*>(nullptr));

    expectEmpty(fromImage);
    expectEmpty(fromBitmap);
}

TEST(CVQDIBConstruction, ABrokenBitmapLeavesTheImageEmpty)
{
    Gdiplus::Bitmap broken(L"no-such-folder/no-such-picture.png");

    CVQDIB image(&broken);

    expectEmpty(image);
    expectInitialState(image);
}

TEST(CVQDIBConstruction, TakesTheBitmapsSizeAndPixels)
{
    const Pixels content = {0xFFFF0000, 0x8000FF00, 0x00000000, 0xFF0000FF, 0xFFFFFFFF, 0x80FF00FF};
    Gdiplus::Bitmap bitmap(3, 2);
    paintBitmap(bitmap, content);

    CVQDIB image(&bitmap);

    EXPECT_EQ(image.GetWidth(), 3);
    EXPECT_EQ(image.GetHeight(), 2);
    EXPECT_TRUE(shows(image, content));
}

TEST(CVQDIBConstruction, TakesABitmapWithoutAlphaAsOpaque)
{
    const Pixels content = {0xFF102030, 0xFFFFFFFF, 0xFF000000, 0xFF00FF80};
    using namespace Gdiplus; // Windows has no scope for its pixel formats
    Bitmap bitmap(2, 2, PixelFormat24bppRGB);
    paintBitmap(bitmap, content);

    CVQDIB image(&bitmap);

    EXPECT_TRUE(shows(image, content));
}

TEST(CVQDIBConstruction, DoesNotScaleABitmapOfAnotherResolution)
{
    const Pixels content = {0xFF102030, 0xFFFFFFFF, 0xFF000000, 0xFF00FF80, 0xFF0000FF, 0xFFFF0000};
    Gdiplus::Bitmap bitmap(3, 2);
    paintBitmap(bitmap, content);
    ASSERT_EQ(bitmap.SetResolution(48, 144), Gdiplus::Ok);

    CVQDIB image(&bitmap);

    EXPECT_EQ(image.GetWidth(), 3);
    EXPECT_TRUE(shows(image, content));
}

TEST(CVQDIBConstruction, LeavesTheGraphicsBlendingAsUsualAfterTakingABitmap)
{
    Gdiplus::Bitmap bitmap(2, 2);
    CVQDIB fresh(2, 2);
    fresh.GetGraphics()->SetCompositingQuality(Gdiplus::CompositingQualityDefault);

    CVQDIB image(&bitmap);

    ASSERT_NE(image.GetGraphics(), nullptr);
    EXPECT_EQ(image.GetGraphics()->GetCompositingMode(), Gdiplus::CompositingModeSourceOver);
    EXPECT_EQ(image.GetGraphics()->GetCompositingQuality(), fresh.GetGraphics()->GetCompositingQuality());
}

TEST(CVQDIBConstruction, LeavesTheBitmapToItsOwner)
{
    Gdiplus::Bitmap bitmap(2, 1);
    paintBitmap(bitmap, {0xFF112233, 0xFF445566});
    {
        CVQDIB image(&bitmap);
        image.GetImageBuffer()[0] = 0;
    }

    Gdiplus::Color colour(0);
    EXPECT_EQ(bitmap.GetPixel(0, 0, &colour), Gdiplus::Ok);
    EXPECT_EQ(colour.GetValue(), 0xFF112233u);
}

TEST(CVQDIBConstruction, InitializeForgetsTheImageAndRestoresTheInitialState)
{
    CVQDIB image(3, 2);
    Access::destroy(image);
    delete Access::textBrush(image);
    Access::textBrush(image) = nullptr;
    Access::flags(image) = 0xFF;
    Access::shadowColour(image) = 0xABCDEF;
    Access::spareWord(image) = 5;
    Access::shadowX(image) = Access::shadowY(image) = -4;
    Access::printX(image) = Access::printY(image) = 40;
    Access::font(image).lfHeight = 123;

    Access::initialize(image);

    expectEmpty(image);
    expectInitialState(image);
    expectSystemFont(Access::font(image));
    expectOpaqueWhite(Access::textBrush(image));
}

TEST(CVQDIBConstruction, AnImageMadeBeforeGdiplusStartsIsEmptyAndIsMadeLater)
{
    std::unique_ptr<CVQDIB> image;
    {
        const GdiplusStopped stopped;
        image = std::make_unique<CVQDIB>(3, 2);
        if (!differsHere("calls before start-up")) {
            expectEmpty(*image);
            expectInitialState(*image);
            expectSystemFont(Access::font(*image));
        }
        Access::destroy(*image);
    }
    Gdiplus::Color colour;
    const Gdiplus::SolidBrush* brush = Access::textBrush(*image);
    EXPECT_TRUE(brush == nullptr || brush->GetColor(&colour) == Gdiplus::Ok) << "a brush that cannot draw was kept";

    EXPECT_EQ(image->Resize(3, 2), 1);

    EXPECT_TRUE(shows(*image, Pixels(6, 0)));
}

} // namespace
} // namespace vq::test
