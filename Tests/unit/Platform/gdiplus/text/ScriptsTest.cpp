// SPDX-License-Identifier: MIT
// Writing of many kinds. What a machine has no font for is only drawn; what it has one for must not come out as boxes.
#include "Platform/gdiplus/text/Characters.h"
#include "Platform/gdiplus/text/Engine.h"
#include "unit/Platform/gdiplus/text/TextSupport.h"

#include <fontconfig/fontconfig.h>
#include <gtest/gtest.h>

namespace {

using namespace vq::test;

bool someFontHas(std::wstring_view text, bool colour = false)
{
    const PatternHandle pattern(FcPatternCreate());
    FcCharSet* characters = FcCharSetCreate();
    for (const wchar_t c : text)
        if (!needsNoGlyph(static_cast<char32_t>(c)))
            FcCharSetAddChar(characters, static_cast<FcChar32>(c));
    FcPatternAddCharSet(pattern.get(), FC_CHARSET, characters);
    if (colour)
        FcPatternAddBool(pattern.get(), FC_COLOR, FcTrue);
    FcCharSetDestroy(characters);
    FcObjectSet* properties = FcObjectSetBuild(FC_FILE, nullptr);
    const ConfigurationHandle configuration(FcInitLoadConfigAndFonts());
    const FontSetHandle fonts(FcFontList(configuration.get(), pattern.get(), properties));
    FcObjectSetDestroy(properties);
    return fonts && fonts->nfont > 0;
}

bool showsBoxes(const Font& font, std::wstring_view text)
{
    const EngineLock engine;
    return std::ranges::any_of(engine->shaped(font, text, false).glyphs,
                               [](const ShapedGlyph& g) { return g.glyph == 0; });
}

class Scripts : public testing::TestWithParam<const wchar_t*>
{
};

INSTANTIATE_TEST_SUITE_P(Samples, Scripts,
                         testing::Values(L"\x0395\x03BB\x03BB\x03B7\x03BD\x03B9\x03BA\x03AC",       // Greek
                                         L"\x041A\x0438\x0440\x0438\x043B\x043B\x0438\x0446\x0430", // Cyrillic
                                         L"\x05E9\x05DC\x05D5\x05DD",                               // Hebrew
                                         L"\x0627\x0644\x0639\x0631\x0628\x064A\x0629",             // Arabic
                                         L"\x0939\x093F\x0928\x094D\x0926\x0940",                   // Devanagari
                                         L"\x0BA4\x0BAE\x0BBF\x0BB4\x0BCD",                         // Tamil
                                         L"\x0E44\x0E17\x0E22",                                     // Thai
                                         L"\xD55C\xAD6D\xC5B4",                                     // Hangul
                                         L"\x65E5\x672C\x8A9E\x304B\x306A",                         // Han, Hiragana
                                         L"\x4E2D\x6587\x5B57\x7B26",                               // Han
                                         L"\x10D0\x10E0",                                           // Georgian
                                         L"\x1780\x17D2\x179A",                                     // Khmer
                                         L"\x12A0\x121B",                                           // Ethiopic
                                         L"\x10348\x1033F",   // Gothic, beyond 16 bits
                                         L"\x1D504\x1D52B",   // mathematical letters, beyond 16 bits
                                         L"\x1F600\x1F680")); // emoji

TEST_P(Scripts, ShowNoBoxesWhereAFontIsInstalled)
{
    const auto font = sans(20);

    EXPECT_FALSE(someFontHas(GetParam()) && showsBoxes(*font, GetParam()));
    const Recorder recorder = drawn(*font, GetParam());
    EXPECT_FALSE(recorder.shapes.empty() && recorder.pictures.empty());
}

TEST(Emoji, ArePicturesWhereAFontOfPicturesIsInstalled)
{
    const Recorder recorder = drawn(*sans(20), L"a\x1F600");

    ASSERT_EQ(recorder.pictures.size(), someFontHas(L"\x1F600", true) ? 1U : 0U);
    for (const auto& picture : recorder.pictures) {
        EXPECT_GT(picture.x, 10); // behind the letter
        EXPECT_NEAR(picture.width, 25, 3);
        for (const Pixel pixel : picture.pixels)
            EXPECT_TRUE(pixel >> 24 == 0 || pixel >> 24 == 255); // two levels
    }
}

TEST(Emoji, HaveSoftEdgesInGreyText)
{
    const Recorder recorder = drawn(*sans(20), L"\x1F600", kNoRect, {}, GlyphRendering::SmoothGrey);

    for (const auto& picture : recorder.pictures)
        EXPECT_TRUE(std::ranges::any_of(picture.pixels, [](Pixel p) { return p >> 24 != 0 && p >> 24 != 255; }));
}

TEST(Emoji, OfSeveralCharactersAreOne)
{
    const auto font = sans(20);
    if (!someFontHas(L"\x1F1E9\x1F1EA\x1F468\x1F469\x1F467\x1F44D\x1F3FD", true))
        return;

    EXPECT_EQ(drawn(*font, L"\x1F1E9\x1F1EA").pictures.size(), 1U);                    // a flag
    EXPECT_EQ(drawn(*font, L"\x1F468\x200D\x1F469\x200D\x1F467").pictures.size(), 1U); // a family
    EXPECT_EQ(drawn(*font, L"\x1F44D\x1F3FD").pictures.size(), 1U);                    // a skin tone
    EXPECT_EQ(measured(*font, L"\x1F468\x200D\x1F469\x200D\x1F467").charactersFitted, 5U);
}

TEST(Emoji, FollowTheVariationSelector)
{
    const auto font = sans(20);
    const bool pictures = someFontHas(L"\x263A", true);

    EXPECT_EQ(drawn(*font, L"\x263A").pictures.size(), 0U);
    EXPECT_EQ(drawn(*font, L"\x263A\xFE0F").pictures.size(), pictures ? 1U : 0U);
    EXPECT_EQ(drawn(*font, L"\x1F600\xFE0E").pictures.size(), 0U); // DejaVu Sans has the face in outlines
}

TEST(Emoji, AreDividedNowhereByWrapping)
{
    const std::wstring_view family = L"\x1F468\x200D\x1F469\x200D\x1F467";
    const auto font = sans(20);
    if (!someFontHas(family, true))
        return;

    EXPECT_EQ(measured(*font, family, {0, 0, 1, 0}).linesFilled, 1U);
}

TEST(EmojiPresentation, IsThatOfTheUnicodeData)
{
    for (const char32_t c : {U'\x231A', U'\x26BD', U'\x1F600', U'\x1FAF6', U'\x1F1E6'})
        EXPECT_TRUE(vq::gdiplus::hasEmojiPresentation(c));
    for (const char32_t c : {U'a', U'\xA9', U'\x2122', U'\x263A', U'\x2764', U'\x1F321', U'\x10FFFF'})
        EXPECT_FALSE(vq::gdiplus::hasEmojiPresentation(c));
}

TEST(MixedDirections, RunFromLeftToRightAsAWhole)
{
    // Logical "A", alef, "B": the Latin letters keep their places around the Hebrew one.
    const auto font = sans(20);
    const Recorder recorder = drawn(*font, L"A\x05D0"
                                           L"B");

    ASSERT_EQ(recorder.shapes.size(), 3U);
    EXPECT_TRUE(recorder.shapes[0].looksLike(drawn(*font, L"A").shapes[0]));
    EXPECT_TRUE(recorder.shapes[2].looksLike(drawn(*font, L"B").shapes[0]));
}

TEST(MixedDirections, RunFromRightToLeftAsAWholeWhereTheFormatSaysSo)
{
    // Logical "A", alef, "B", full stop: each stands left of the one before it.
    const auto font = sans(20);
    TextFormat format;
    format.rightToLeft = true;
    const Recorder recorder = drawn(*font,
                                    L"A\x05D0"
                                    L"B.",
                                    {0, 0, 300, 0}, format);

    ASSERT_EQ(recorder.shapes.size(), 4U);
    EXPECT_TRUE(recorder.shapes[0].looksLike(drawn(*font, L".").shapes[0]));
    EXPECT_TRUE(recorder.shapes[1].looksLike(drawn(*font, L"B").shapes[0]));
    EXPECT_TRUE(recorder.shapes[2].looksLike(drawn(*font, L"\x05D0").shapes[0]));
    EXPECT_TRUE(recorder.shapes[3].looksLike(drawn(*font, L"A").shapes[0]));
    EXPECT_EQ(drawn(*font, L"A\x05D0"
                           L"B.")
                  .shapes.size(),
              4U); // the same text the other way round is another one
    EXPECT_TRUE(drawn(*font, L"A\x05D0"
                             L"B.")
                    .shapes[0]
                    .looksLike(drawn(*font, L"A").shapes[0]));
}

TEST(MixedDirections, KeepNumbersInTheirOrder)
{
    // Logical alef, "1", "2", bet shows as bet, "1", "2", alef.
    const auto font = sans(20);
    const Recorder recorder = drawn(*font, L"\x05D0"
                                           L"12\x05D1");

    ASSERT_EQ(recorder.shapes.size(), 4U);
    EXPECT_TRUE(recorder.shapes[0].looksLike(drawn(*font, L"\x05D1").shapes[0]));
    EXPECT_TRUE(recorder.shapes[1].looksLike(drawn(*font, L"1").shapes[0]));
    EXPECT_TRUE(recorder.shapes[2].looksLike(drawn(*font, L"2").shapes[0]));
    EXPECT_TRUE(recorder.shapes[3].looksLike(drawn(*font, L"\x05D0").shapes[0]));
}

} // namespace
