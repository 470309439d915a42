// SPDX-License-Identifier: MIT
// What the engine costs and holds: memory, threads, texts that mean no good.
#include "support/SharedLibrary.h"
#include "unit/Platform/gdiplus/text/TextSupport.h"

#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace {

using namespace vq::test;

/// Counts and keeps nothing, so that all memory is the engine's.
class Counter final : public GlyphSink
{
public:
    std::size_t glyphs = 0;

    void glyph(const GlyphCoverage&) noexcept override { ++glyphs; }
    void colourGlyph(int, int, const ConstPixelView&) noexcept override { ++glyphs; }
    void rectangle(const PixelRect&) noexcept override { ++glyphs; }
};

std::size_t drawScene()
{
    static constexpr const wchar_t* kTexts[] = {L"Label 12.5 mm", L"two\nlines",      L"\x05E9\x05DC\x05D5\x05DD 12",
                                                L"\x65E5\x672C",  L"\x1F600 e\x0301", L"wrapped at its spaces"};
    Counter counter;
    for (const float em : {9.0F, 11.0F, 16.0F, 300.0F})
        for (const wchar_t* text : kTexts)
            for (const auto rendering :
                 {GlyphRendering::TwoLevel, GlyphRendering::HintedGrey, GlyphRendering::SmoothGrey}) {
                FontDescription description = described(kSans, em);
                description.bold = em > 10;
                description.underline = em > 12;
                const auto font = openFont(description);
                const FloatRect layout{10.3F, 5, em == 9 ? 60.0F : 0.0F, 0};
                measureText(*font, text, layout, {});
                drawText(counter, *font, text, layout, {}, {rendering, 4, {0, 0, 500, 400}});
            }
    return counter.glyphs;
}

TEST(TextEngine, TakesNoMemoryForASceneThatItHasDrawnBefore)
{
    const std::size_t glyphs = drawScene();
    ASSERT_GT(glyphs, 100U);
    drawScene();

    const std::size_t before = bytesInUse();
    for (int i = 0; i < 100; ++i)
        ASSERT_EQ(drawScene(), glyphs);
    EXPECT_LE(bytesInUse(), before);
}

TEST(TextEngine, StaysWithinItsBudgetWhateverIsDrawn)
{
    const auto font = sans(11);
    Counter counter;
    const auto drawLabels = [&](int first) {
        for (int i = first; i < first + 20000; ++i)
            drawText(counter, *font, std::to_wstring(i), kNoRect, {}, {GlyphRendering::TwoLevel, 4, kCanvas});
    };
    drawLabels(0);

    const std::size_t before = bytesInUse();
    drawLabels(20000);
    constexpr std::size_t kSlack = std::size_t{4} << 20;
    EXPECT_LE(bytesInUse(), before + kSlack);
}

TEST(TextEngine, GivesEverythingBackAndStartsAfresh)
{
    const auto font = sans(17);
    const float width = widthOf(*font, L"again");
    drawScene();

    releaseTextEngine();
    releaseTextEngine();

    EXPECT_EQ(widthOf(*font, L"again"), width); // the font outlives the engine
    EXPECT_EQ(sans(17)->em, font->em);
}

TEST(TextEngine, LeavesNothingBehindHoweverOftenItStarts)
{
    for (int i = 0; i < 3; ++i) {
        drawScene();
        releaseTextEngine();
    }
    const std::size_t before = bytesInUse();
    for (int i = 0; i < 5; ++i) {
        drawScene();
        releaseTextEngine();
    }
    constexpr std::size_t kSlack = 64 * 1024; // the C library's own stock of freed blocks, still filling up
    EXPECT_LE(bytesInUse(), before + kSlack);
}

TEST(TextEngine, ServesEightThreadsAtOnce)
{
    const std::size_t glyphs = drawScene();
    std::vector<std::size_t> results(8);
    std::vector<std::thread> threads;
    for (std::size_t& result : results)
        threads.emplace_back([&result] {
            for (int i = 0; i < 5; ++i)
                result = drawScene();
        });
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(results, std::vector<std::size_t>(8, glyphs));
}

TEST(TextEngine, CopesWithVeryLongTexts)
{
    const auto font = sans(11);
    for (const wchar_t c : {L'a', L' ', L'\n', L'\x05D0', L'\x0301', L'\x202E', L'\xE000'}) {
        const std::wstring text(c == L'a' ? 1'000'000 : 100'000, c);
        Counter counter;
        EXPECT_TRUE(drawText(counter, *font, text, {0, 0, 300, 0}, {}, {GlyphRendering::TwoLevel, 4, kCanvas}));
        EXPECT_EQ(measured(*font, text).charactersFitted, text.size());
    }
}

TEST(TextEngine, SurvivesEveryCharacterNextToEveryKindOfNeighbour)
{
    // In particular regional indicators, at which libunibreak 1.1 stops the process, and U+FFFF, its end of text.
    const auto font = sans(11);
    std::wstring text;
    for (int c = 0; c < 0x110400; c += c < 0x3400 || (c > 0x1F000 && c < 0x20000) ? 1 : 257) {
        text += static_cast<wchar_t>(c);
        if (c % 7 == 0)
            text += L" \x05D0";
    }
    Counter counter;
    for (const float width : {0.0F, 200.0F})
        EXPECT_TRUE(drawText(counter, *font, text, {0, 0, width, 0}, {}, {GlyphRendering::TwoLevel, 4, kCanvas}));
    EXPECT_EQ(measured(*font, text).linesFilled, measured(*font, text, {0, 0, 0, 1e6F}).linesFilled);
}

} // namespace
