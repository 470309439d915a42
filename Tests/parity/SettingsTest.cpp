// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

#include <bit>
#include <limits>
#include <memory>

namespace vq::test {
namespace {

using namespace Gdiplus;

TEST(Settings, FreshGraphicsHasTheDefaults)
{
    Bitmap bitmap(2, 2);
    const Graphics graphics(&bitmap);
    EXPECT_EQ(graphics.GetCompositingMode(), CompositingModeSourceOver);
    EXPECT_EQ(graphics.GetCompositingQuality(), CompositingQualityDefault);
    EXPECT_EQ(graphics.GetInterpolationMode(), InterpolationModeBilinear);
    EXPECT_EQ(graphics.GetPixelOffsetMode(), PixelOffsetModeDefault);
    EXPECT_EQ(graphics.GetTextRenderingHint(), TextRenderingHintSystemDefault);
    EXPECT_EQ(graphics.GetTextContrast(), 4u);
    EXPECT_EQ(graphics.GetPageUnit(), UnitDisplay);
    EXPECT_EQ(graphics.GetPageScale(), 1.0f);
    EXPECT_EQ(graphics.GetDpiX(), 96.0f);
    EXPECT_EQ(graphics.GetDpiY(), 96.0f);
    INT x = 7;
    INT y = 7;
    EXPECT_EQ(graphics.GetRenderingOrigin(&x, &y), Ok);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
    if (!differsHere("smoothing mode read back")) {
        EXPECT_EQ(graphics.GetSmoothingMode(), SmoothingModeNone);
    }
}

TEST(Settings, InterpolationModesReadBackAsWhatTheyStandFor)
{
    Bitmap bitmap(2, 2);
    Graphics graphics(&bitmap);
    const std::pair<InterpolationMode, InterpolationMode> modes[] = {
        {InterpolationModeDefault, InterpolationModeBilinear},
        {InterpolationModeLowQuality, InterpolationModeBilinear},
        {InterpolationModeHighQuality, InterpolationModeHighQualityBicubic},
        {InterpolationModeBicubic, InterpolationModeBicubic},
        {InterpolationModeNearestNeighbor, InterpolationModeNearestNeighbor},
        {InterpolationModeHighQualityBilinear, InterpolationModeHighQualityBilinear},
    };
    for (const auto& [set, read] : modes) {
        EXPECT_EQ(graphics.SetInterpolationMode(set), Ok);
        EXPECT_EQ(graphics.GetInterpolationMode(), read) << set;
    }
}

TEST(Settings, SmoothingModesReadBackAsWhatTheyStandFor)
{
    if (differsHere("smoothing mode read back"))
        return;
    Bitmap bitmap(2, 2);
    Graphics graphics(&bitmap);
    const std::pair<SmoothingMode, SmoothingMode> modes[] = {
        {SmoothingModeDefault, SmoothingModeNone},         {SmoothingModeHighSpeed, SmoothingModeNone},
        {SmoothingModeHighQuality, SmoothingModeAntiAlias}, {SmoothingModeNone, SmoothingModeNone},
        {SmoothingModeAntiAlias, SmoothingModeAntiAlias},
    };
    for (const auto& [set, read] : modes) {
        EXPECT_EQ(graphics.SetSmoothingMode(set), Ok);
        EXPECT_EQ(graphics.GetSmoothingMode(), read) << set;
    }
}

TEST(Settings, WhatIsOutOfRangeIsInvalidAndChangesNothing)
{
    Bitmap bitmap(2, 2);
    Graphics graphics(&bitmap);
    graphics.SetTextRenderingHint(TextRenderingHintAntiAlias);
    for (const int hint : {6, 100, -1})
        EXPECT_EQ(graphics.SetTextRenderingHint(std::bit_cast<TextRenderingHint>(hint)), InvalidParameter) << hint;
    EXPECT_EQ(graphics.GetTextRenderingHint(), TextRenderingHintAntiAlias);

    graphics.SetInterpolationMode(InterpolationModeNearestNeighbor);
    for (const int mode : {8, -1})
        EXPECT_EQ(graphics.SetInterpolationMode(std::bit_cast<InterpolationMode>(mode)), InvalidParameter) << mode;
    EXPECT_EQ(graphics.GetInterpolationMode(), InterpolationModeNearestNeighbor);

    EXPECT_EQ(graphics.SetPageUnit(UnitWorld), InvalidParameter);
    EXPECT_EQ(graphics.SetPageScale(0), InvalidParameter);
    EXPECT_EQ(graphics.SetPageScale(-1), InvalidParameter);
    EXPECT_EQ(graphics.GetPageUnit(), UnitDisplay);
    EXPECT_EQ(graphics.GetPageScale(), 1.0f);
}

TEST(Settings, MoreThatIsOutOfRange)
{
    if (differsHere("values of settings"))
        return;
    Bitmap bitmap(2, 2);
    Graphics graphics(&bitmap);
    EXPECT_EQ(graphics.SetTextContrast(13), InvalidParameter);
    EXPECT_EQ(graphics.SetPageScale(std::numeric_limits<REAL>::infinity()), InvalidParameter);
    EXPECT_EQ(graphics.SetSmoothingMode(SmoothingModeInvalid), InvalidParameter);
    EXPECT_EQ(graphics.SetPixelOffsetMode(PixelOffsetModeInvalid), InvalidParameter);
    EXPECT_EQ(graphics.SetCompositingMode(std::bit_cast<CompositingMode>(2)), InvalidParameter);
    EXPECT_EQ(graphics.GetTextContrast(), 4u);
}

TEST(Settings, AreKept)
{
    Bitmap bitmap(2, 2);
    Graphics graphics(&bitmap);
    EXPECT_EQ(graphics.SetCompositingMode(CompositingModeSourceCopy), Ok);
    EXPECT_EQ(graphics.SetCompositingQuality(CompositingQualityHighQuality), Ok);
    EXPECT_EQ(graphics.SetPixelOffsetMode(PixelOffsetModeHalf), Ok);
    EXPECT_EQ(graphics.SetTextContrast(12), Ok);
    EXPECT_EQ(graphics.SetRenderingOrigin(-3, 6), Ok);
    EXPECT_EQ(graphics.SetPageUnit(UnitMillimeter), Ok);
    EXPECT_EQ(graphics.SetPageScale(2.5f), Ok);
    EXPECT_EQ(graphics.GetCompositingMode(), CompositingModeSourceCopy);
    EXPECT_EQ(graphics.GetCompositingQuality(), CompositingQualityHighQuality);
    EXPECT_EQ(graphics.GetPixelOffsetMode(), PixelOffsetModeHalf);
    EXPECT_EQ(graphics.GetTextContrast(), 12u);
    EXPECT_EQ(graphics.GetPageUnit(), UnitMillimeter);
    EXPECT_EQ(graphics.GetPageScale(), 2.5f);
    INT x = 0;
    INT y = 0;
    graphics.GetRenderingOrigin(&x, &y);
    EXPECT_EQ(x, -3);
    EXPECT_EQ(y, 6);
}

TEST(Settings, PageUnitAndScaleEnlargeWhatIsDrawn)
{
    TestPicture picture(12, 12);
    picture.graphics.SetPageUnit(UnitInch);
    picture.graphics.SetPageScale(1.0f / 48);
    picture.fill(0xFFFF0000, 1, 2, 2, 3);
    EXPECT_EQ(picture.find(0xFFFF0000), (TestPicture::Found{2, 4, 5, 9, 24}));
}

TEST(SolidBrush, KeepsItsColour)
{
    SolidBrush brush{Color(0x80112233)};
    Color colour;
    EXPECT_EQ(brush.GetColor(&colour), Ok);
    EXPECT_EQ(colour.GetValue(), 0x80112233u);
    EXPECT_EQ(brush.SetColor(Color(0xFF445566)), Ok);
    const std::unique_ptr<Brush> clone(brush.Clone());
    ASSERT_TRUE(clone);
    EXPECT_EQ(clone->GetType(), BrushTypeSolidColor);
    static_cast<SolidBrush&>(*clone).GetColor(&colour);
    EXPECT_EQ(colour.GetValue(), 0xFF445566u);
    EXPECT_EQ(brush.GetColor(nullptr), InvalidParameter);
}

TEST(Color, PartsAndConversions)
{
    const Color colour(0x12, 0x34, 0x56, 0x78);
    EXPECT_EQ(colour.GetValue(), 0x12345678u);
    EXPECT_EQ(colour.GetA(), 0x12);
    EXPECT_EQ(colour.GetR(), 0x34);
    EXPECT_EQ(colour.GetG(), 0x56);
    EXPECT_EQ(colour.GetB(), 0x78);
    EXPECT_EQ(colour.ToCOLORREF(), RGB(0x34, 0x56, 0x78));
    EXPECT_EQ(Color().GetValue(), 0xFF000000u);
    EXPECT_EQ(Color(1, 2, 3).GetValue(), 0xFF010203u);
    Color fromGdi;
    fromGdi.SetFromCOLORREF(RGB(1, 2, 3));
    EXPECT_EQ(fromGdi.GetValue(), 0xFF010203u);
    EXPECT_EQ(Color(Color::CornflowerBlue).GetValue(), 0xFF6495EDu);
}

TEST(Startup, ChecksItsArguments)
{
    ULONG_PTR token = 0;
    GdiplusStartupInput input;
    EXPECT_EQ(GdiplusStartup(nullptr, &input, nullptr), InvalidParameter);
    EXPECT_EQ(GdiplusStartup(&token, nullptr, nullptr), InvalidParameter);
    input.GdiplusVersion = 0;
    EXPECT_EQ(GdiplusStartup(&token, &input, nullptr), UnsupportedGdiplusVersion);
    const GdiplusStartupInput quiet(nullptr, TRUE);
    EXPECT_EQ(GdiplusStartup(&token, &quiet, nullptr), InvalidParameter);
    EXPECT_EQ(token, 0u);
}

TEST(Startup, IsCounted)
{
    ULONG_PTR token = 0;
    const GdiplusStartupInput input;
    ASSERT_EQ(GdiplusStartup(&token, &input, nullptr), Ok);
    EXPECT_NE(token, 0u);
    GdiplusShutdown(token);
    EXPECT_EQ(Bitmap(2, 2, PixelFormat32bppARGB).GetLastStatus(), Ok);
}

} // namespace
} // namespace vq::test
