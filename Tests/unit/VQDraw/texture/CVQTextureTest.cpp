// SPDX-License-Identifier: MIT
#include "VQDraw/VQTexture.h"

#include "parity/KnownDifferences.h"
#include "support/Locks.h"

#include <gtest/gtest.h>

#include <limits>

namespace vq::test::cvqTextureTests {
namespace {

/// The protected members at hand.
class OpenTexture : public CVQTexture
{
public:
    using CVQTexture::Create;
    using CVQTexture::CVQTexture;
    using CVQTexture::Destroy;
    using CVQTexture::Initialize;
    using CVQTexture::m_criticalSection;
    using CVQTexture::m_pTexel;
};

using Texels = std::vector<LONG>;

Texels texels(CVQTexture& texture)
{
    return {texture.GetTexelBuffer(), texture.GetTexelBuffer() + texture.GetSize()};
}

LONG texel(ULONG value)
{
    return static_cast<LONG>(value);
}

/// A picture in letters: '.' for 0, anything else for `painted`.
Texels drawn(const std::vector<std::string>& rows, ULONG painted)
{
    Texels result;
    for (const std::string& row : rows)
        for (const char letter : row)
            result.push_back(letter == '.' ? 0 : texel(painted));
    return result;
}

TEST(Texture, IsAtLeastFourByFour)
{
    CVQTexture texture(2, 3);
    EXPECT_EQ(texture.GetWidth(), 4);
    EXPECT_EQ(texture.GetHeight(), 4);
    EXPECT_EQ(texture.GetSize(), 16);
    EXPECT_EQ(texture.GetSizeInByte(), 64);
    EXPECT_EQ(texels(texture), Texels(16, 0));
    EXPECT_FALSE(texture.IsEnableAntialias());
    CVQTexture negative(-5, 7);
    EXPECT_EQ(negative.GetWidth(), 4);
    EXPECT_EQ(negative.GetHeight(), 7);
}

TEST(Texture, LaysTexelsRowByRowFromTheTop)
{
    CVQTexture texture(5, 4);
    texture(3, 2) = 0x12345678;
    EXPECT_EQ(texture[13], 0x12345678);
    EXPECT_EQ(texture.GetTexelBuffer()[13], 0x12345678);
    EXPECT_EQ(texture.GetByteTexelBuffer()[4 * 13], 0x78);
    EXPECT_EQ(texture.GetByteTexelBuffer()[4 * 13 + 3], 0x12);
    EXPECT_EQ(&texture(-2, 3), &texture[13]) << "coordinates are not checked";
    constexpr LONG kTurn = 1 << 30; // 5 * 2^30 wraps round to 2^30
    EXPECT_EQ(&texture(13 - kTurn, kTurn), &texture[13]);
}

TEST(Texture, ClearExchangesRedAndBlue)
{
    CVQTexture texture(4, 4);
    texture.Clear(0x000000FF, 0x80);
    EXPECT_EQ(texels(texture), Texels(16, texel(0x80FF0000)));
    texture.Clear(texel(0xAA123456), 0x00);
    EXPECT_EQ(texels(texture), Texels(16, 0x00563412)) << "the top byte is dropped";
}

TEST(Texture, ClearMaskKeepsColours)
{
    CVQTexture texture(4, 5);
    for (LONG i = 0; i < texture.GetSize(); ++i)
        texture[static_cast<ULONG>(i)] = texel(0xFF102030u + static_cast<ULONG>(i));
    texture.ClearMask(0);
    for (LONG i = 0; i < texture.GetSize(); ++i)
        EXPECT_EQ(texture[static_cast<ULONG>(i)], 0x00102030 + i);
    texture.ClearMask(0xFE);
    EXPECT_EQ(texture[7], texel(0xFE102037));
}

TEST(Texture, ResizeLosesTexelsAndAntialiasing)
{
    CVQTexture texture(4, 4);
    texture.Clear(0x00FFFFFF, 0xFF);
    texture.EnableAntialias(true);
    EXPECT_TRUE(texture.IsEnableAntialias());
    EXPECT_TRUE(texture.Resize(6, 5));
    EXPECT_EQ(texture.GetWidth(), 6);
    EXPECT_EQ(texture.GetHeight(), 5);
    EXPECT_FALSE(texture.IsEnableAntialias());
    EXPECT_EQ(texels(texture), Texels(30, 0));
    EXPECT_TRUE(texture.Resize(1, 1));
    EXPECT_EQ(texture.GetSize(), 16);
}

TEST(Texture, ThatCannotBeHadIsEmptyAndHarmless)
{
    OpenTexture texture(4, 4);
    constexpr LONG kMost = std::numeric_limits<LONG>::max();
    for (const auto& [width, height] : {std::pair{65536, 65536}, {kMost, kMost}, {4, kMost}, {kMost / 4 + 1, 4}}) {
        texture.EnableAntialias(true);
        EXPECT_FALSE(texture.Resize(width, height)) << width << " x " << height;
        EXPECT_EQ(texture.GetSize(), 0);
        EXPECT_EQ(texture.GetSizeInByte(), 0);
        EXPECT_FALSE(texture.IsEnableAntialias());
        EXPECT_EQ(texture.GetTexelBuffer(), nullptr);
    }
    {
        const vq::platform::ScopedAllocationFailure noMemory;
        EXPECT_FALSE(texture.Resize(4, 4));
    }
    CPoint corners[] = {CPoint(0, 0), CPoint(3, 0), CPoint(0, 3)};
    texture.Clear(1, 1);
    texture.ClearMask(1);
    texture.ClearRgn(corners, 3, 1, 1);
    texture.ClearRgnPath(corners, 3, 1, 1, 1);
    EXPECT_TRUE(texture.Create(4, 4));
    EXPECT_EQ(texels(texture), Texels(16, 0));
}

TEST(Texture, CreateDestroyAndInitializeSetAllFields)
{
    OpenTexture texture(5, 6);
    texture.EnableAntialias(true);
    texture.Destroy();
    EXPECT_EQ(texture.GetWidth(), 0);
    EXPECT_EQ(texture.GetHeight(), 0);
    EXPECT_EQ(texture.GetSize(), 0);
    EXPECT_EQ(texture.m_pTexel, nullptr);
    EXPECT_FALSE(texture.IsEnableAntialias());
    texture.Destroy();
    EXPECT_TRUE(texture.Create(0, 9));
    EXPECT_EQ(texture.GetSize(), 36);
    texture.Initialize();
    EXPECT_EQ(texture.GetSize(), 0);
    EXPECT_EQ(texture.m_pTexel, nullptr);
}

TEST(Texture, TheLockCanBeTakenWhileTexturesAreMade)
{
    OpenTexture::m_criticalSection.Lock();
    OpenTexture texture(4, 4);
    EXPECT_EQ(texture.GetSize(), 16);
    OpenTexture::m_criticalSection.Unlock();
}

TEST(Texture, WaitsForTheLockToMakeAndToDropItsBuffer)
{
    CCriticalSection& lock = OpenTexture::m_criticalSection;
    auto* texture = new OpenTexture(4, 4);
    EXPECT_TRUE(waitsForTheLock(lock, [] { const CVQTexture other(4, 4); }));
    EXPECT_TRUE(waitsForTheLock(lock, [&] { texture->Resize(5, 5); }));
    EXPECT_TRUE(waitsForTheLock(lock, [&] { texture->Destroy(); }));
    EXPECT_TRUE(waitsForTheLock(lock, [&] { delete texture; }));
}

TEST(Texture, PaintsWithoutTheLock)
{
    OpenTexture texture(8, 8);
    CPoint corners[] = {CPoint(1, 1), CPoint(5, 1), CPoint(5, 5)};
    EXPECT_TRUE(finishesWhileLocked(OpenTexture::m_criticalSection, std::chrono::seconds(5), [&] {
        texture.Clear(0x00FFFFFF, 1);
        texture.ClearMask(2);
        texture.ClearRgn(corners, 3, 0x00FFFFFF, 3);
        texture.ClearRgnPath(corners, 3, 1, 0x00FFFFFF, 3);
    }));
    EXPECT_EQ(texture(7, 7), 0x02FFFFFF);
    EXPECT_EQ(texture(5, 3), 0x03FFFFFF);
}

TEST(TextureAssignment, SharesTheBuffer)
{
    CVQTexture first(4, 4);
    first.EnableAntialias(true);
    CVQTexture second(8, 8);
    second = first;
    EXPECT_EQ(second.GetWidth(), 4);
    EXPECT_EQ(second.GetSize(), 16);
    EXPECT_TRUE(second.IsEnableAntialias());
    EXPECT_EQ(second.GetTexelBuffer(), first.GetTexelBuffer());
    first.Clear(0x00FFFFFF, 1);
    EXPECT_EQ(second[15], 0x01FFFFFF);
}

TEST(TextureAssignment, TheLastOwnerFreesTheBuffer)
{
    CVQTexture last(4, 4);
    {
        CVQTexture first(5, 5);
        first.Clear(0x00FFFFFF, 1);
        last = first;
        const CVQTexture third(first);
    }
    EXPECT_EQ(texels(last), Texels(25, 0x01FFFFFF));
    CVQTexture other(last);
    last.Resize(4, 4);
    EXPECT_EQ(texels(other), Texels(25, 0x01FFFFFF));
    EXPECT_EQ(texels(last), Texels(16, 0));
    const CVQTexture& same = other;
    other = same;
    EXPECT_EQ(texels(other), Texels(25, 0x01FFFFFF));
}

TEST(TextureRegion, FillsAPolygonWithTheColourAsItStands)
{
    CVQTexture texture(6, 5);
    CPoint corners[] = {CPoint(1, 1), CPoint(4, 1), CPoint(4, 4), CPoint(1, 4)};
    texture.ClearRgn(corners, 4, 0x000000FF, 0x80);
    EXPECT_EQ(texels(texture), drawn({"......", ".###..", ".###..", ".###..", "......"}, 0x800000FF));
}

TEST(TextureRegion, ReplacesAndDoesNotBlend)
{
    CVQTexture texture(4, 4);
    texture.Clear(0x00FFFFFF, 0xFF);
    CPoint corners[] = {CPoint(0, 0), CPoint(2, 0), CPoint(2, 2), CPoint(0, 2)};
    texture.ClearRgn(corners, 4, 0x00102030, 0x01);
    EXPECT_EQ(texture(1, 1), 0x01102030);
    EXPECT_EQ(texture(2, 2), texel(0xFFFFFFFF));
    texture.ClearRgn(corners, 4, 0x00102030, 0x00);
    EXPECT_EQ(texture(1, 1) >> 24, 0);
}

TEST(TextureRegion, AddsTheTopByteOfTheColourToTheMask)
{
    CVQTexture texture(4, 4);
    CPoint corners[] = {CPoint(0, 0), CPoint(3, 0), CPoint(3, 3), CPoint(0, 3)};
    texture.ClearRgn(corners, 4, texel(0xF0102030), 0x0F);
    EXPECT_EQ(texture(1, 1), texel(0xFF102030));
}

TEST(TextureRegion, OfMask0LosesItsColours)
{
    CVQTexture texture(4, 4);
    texture.Clear(0x00FFFFFF, 0xFF);
    CPoint corners[] = {CPoint(0, 0), CPoint(2, 0), CPoint(2, 2), CPoint(0, 2)};
    texture.ClearRgn(corners, 4, 0x00102030, 0);
    EXPECT_EQ(texture(1, 1), 0);
    EXPECT_EQ(texture(3, 3), static_cast<LONG>(0xFFFFFFFF));
    texture.ClearRgnPath(corners, 4, 1, 0x01102030, 0);
    EXPECT_EQ(texture(2, 0), 0x01102030) << "the colour's top byte is a mask too";
}

TEST(TextureRegion, LeavesOutWhatItEnclosesTwice)
{
    CVQTexture texture(7, 7);
    CPoint corners[] = {CPoint(0, 0), CPoint(6, 0), CPoint(6, 6), CPoint(0, 6), CPoint(0, 0),
                        CPoint(2, 2), CPoint(4, 2), CPoint(4, 4), CPoint(2, 4), CPoint(2, 2)};
    texture.ClearRgn(corners, 10, 0x00FFFFFF, 0xFF);
    EXPECT_EQ(texels(texture),
              drawn({"######.", "######.", "##..##.", "##..##.", "######.", "######.", "......."}, 0xFFFFFFFF));
}

TEST(TextureRegion, IsCutToTheTexture)
{
    CVQTexture texture(4, 4);
    CPoint corners[] = {CPoint(-1000, -1000), CPoint(1000, -1000), CPoint(1000, 1000), CPoint(-1000, 1000)};
    texture.ClearRgn(corners, 4, 0x00FFFFFF, 0xFF);
    EXPECT_EQ(texels(texture), Texels(16, -1));
}

TEST(TextureRegion, SmoothsItsEdgesWhenAskedTo)
{
    CVQTexture hard(8, 8);
    CVQTexture smooth(8, 8);
    smooth.EnableAntialias(true);
    CPoint corners[] = {CPoint(1, 1), CPoint(6, 2), CPoint(3, 6)};
    hard.ClearRgn(corners, 3, 0x00FFFFFF, 0xFF);
    smooth.ClearRgn(corners, 3, 0x00FFFFFF, 0xFF);
    const auto isPartly = [](LONG value) { return value != 0 && value != -1; };
    EXPECT_TRUE(std::ranges::none_of(texels(hard), isPartly));
    if (!differsHere("smoothed outlines")) {
        EXPECT_TRUE(std::ranges::any_of(texels(smooth), isPartly));
    }
}

TEST(TextureRegion, OfNoPointsPaintsNothing)
{
    CVQTexture texture(4, 4);
    CPoint corners[] = {CPoint(0, 0), CPoint(3, 0), CPoint(3, 3)};
    for (const int count : {0, -1, 1, 2}) {
        texture.ClearRgn(corners, count, 0x00FFFFFF, 0xFF);
        texture.ClearRgnPath(corners, count, 1, 0x00FFFFFF, 0xFF);
    }
    texture.ClearRgn(nullptr, 3, 0x00FFFFFF, 0xFF);
    texture.ClearRgnPath(nullptr, 3, 1, 0x00FFFFFF, 0xFF);
    EXPECT_EQ(texels(texture), Texels(16, 0));
}

TEST(TextureOutline, IsClosedAndOfTheColourAsItStands)
{
    CVQTexture texture(6, 5);
    CPoint corners[] = {CPoint(1, 1), CPoint(4, 1), CPoint(4, 3), CPoint(1, 3)};
    texture.ClearRgnPath(corners, 4, 1, 0x000000FF, 0x80);
    EXPECT_EQ(texels(texture), drawn({"......", ".####.", ".#..#.", ".####.", "......"}, 0x800000FF));
}

TEST(TextureOutline, LiesHalfOnEachSideOfThePolygon)
{
    CVQTexture texture(10, 10);
    CPoint corners[] = {CPoint(3, 3), CPoint(7, 3), CPoint(7, 7), CPoint(3, 7)};
    texture.ClearRgnPath(corners, 4, 2, 0x00FFFFFF, 0xFF);
    EXPECT_EQ(texels(texture), drawn({"..........", "..........", "..######..", "..######..", "..##..##..",
                                      "..##..##..", "..######..", "..######..", "..........", ".........."},
                                     0xFFFFFFFF));
}

TEST(TextureOutline, ReplacesAndDoesNotBlend)
{
    CVQTexture texture(6, 5);
    texture.Clear(0x00FFFFFF, 0xFF);
    CPoint corners[] = {CPoint(1, 1), CPoint(4, 1), CPoint(4, 3), CPoint(1, 3)};
    texture.ClearRgnPath(corners, 4, 1, 0x00102030, 0x01);
    EXPECT_EQ(texture(2, 1), 0x01102030);
    EXPECT_EQ(texture(4, 2), 0x01102030);
    EXPECT_EQ(texture(0, 0), texel(0xFFFFFFFF));
    if (!differsHere("outlines under SourceCopy")) {
        EXPECT_EQ(texture(2, 2), texel(0xFFFFFFFF));
    }
    texture.ClearRgnPath(corners, 4, 1, texel(0xF0102030), 0x0F);
    EXPECT_EQ(texture(2, 1), texel(0xFF102030)) << "the top byte of the colour is added to the mask";
}

TEST(TextureOutline, IsSmoothWhenAskedTo)
{
    if (differsHere("smoothed outlines"))
        return;
    CVQTexture texture(9, 9);
    CPoint corners[] = {CPoint(1, 1), CPoint(7, 2), CPoint(3, 7)};
    const auto isPartly = [](LONG value) { return value != 0 && value != -1; };
    texture.ClearRgnPath(corners, 3, 1, 0x00FFFFFF, 0xFF);
    EXPECT_TRUE(std::ranges::none_of(texels(texture), isPartly));
    texture.EnableAntialias(true);
    texture.ClearRgnPath(corners, 3, 1, 0x00FFFFFF, 0xFF);
    EXPECT_TRUE(std::ranges::any_of(texels(texture), isPartly));
}

TEST(TextureOutline, OfANegativeWidthIsOneWide)
{
    CVQTexture one(6, 5);
    CVQTexture negative(6, 5);
    CPoint corners[] = {CPoint(1, 1), CPoint(4, 1), CPoint(4, 3), CPoint(1, 3)};
    one.ClearRgnPath(corners, 4, 1, 0x00FFFFFF, 0xFF);
    negative.ClearRgnPath(corners, 4, -7, 0x00FFFFFF, 0xFF);
    EXPECT_EQ(texels(one), texels(negative));
}

} // namespace
} // namespace vq::test::cvqTextureTests
