// SPDX-License-Identifier: MIT
#include "unit/VQDraw/draw/text/TextPictures.h"

namespace vq::test {
namespace {

struct Script
{
    const char* name;
    const wchar_t* text;
    bool certain; ///< DejaVu Sans has it
};

const Script kScripts[] = {
    {"Latin", L"\u00C4pfel", true},
    {"Cyrillic", L"\u0411\u0443\u043A\u0432\u044B", true},
    {"Greek", L"\u0393\u03C1\u03AC\u03BC\u03BC\u03B1", true},
    {"Arabic", L"\u0633\u0644\u0627\u0645", true},
    {"Hebrew", L"\u05E9\u05DC\u05D5\u05DD", true},
    {"Thai", L"\u0E20\u0E32\u0E29\u0E32\u0E44\u0E17\u0E22", false},
    {"Chinese", L"\u4E2D\u6587\u5B57", false},
    {"Japanese", L"\u3053\u3068\u3070", false},
    {"Korean", L"\uD55C\uAD6D\uC5B4", false},
    {"Devanagari", L"\u0939\u093F\u0928\u094D\u0926\u0940", false},
    {"Emoji", L"\U0001F600", false},
    {"EmojiFamily", L"\U0001F468\u200D\U0001F469\u200D\U0001F467", false},
    {"Flag", L"\U0001F1E9\U0001F1EA", false},
    {"Mixed", L"a \u05D0 \u0628 1 \u4E2D", true},
    {"Mathematics", L"\u2211\u222B\u221A", true},
};

class CVQDIBTextScripts : public testing::TestWithParam<Script>
{
};

INSTANTIATE_TEST_SUITE_P(All, CVQDIBTextScripts, testing::ValuesIn(kScripts),
                         [](const auto& script) { return script.param.name; });

/// What no font covers is a box, which is ink as well; under Wine it may be nothing.
TEST_P(CVQDIBTextScripts, LeaveInkByEveryMember)
{
    for (const auto hint : {Gdiplus::TextRenderingHintSingleBitPerPixelGridFit,
                            Gdiplus::TextRenderingHintAntiAliasGridFit, Gdiplus::TextRenderingHintAntiAlias}) {
        const ScopedHint scoped(hint);
        CVQDIB image(300, 120);
        setSans(image, -20);
        const CSize size = image.GetTextSize(GetParam().text);
        EXPECT_GT(size.cy, 0);
        image.TextOutW(0, 0, GetParam().text);
        if (GetParam().certain || !runsUnderWine()) {
            EXPECT_GT(size.cx, 20 / 3);
            EXPECT_FALSE(isBlank(image));
        }
        image.EnableTextShadow(true);
        RECT rect{0, 30, 299, 59};
        image.DrawTextW(GetParam().text, &rect, 1);
        image.TextBox(5, 60, GetParam().text, RGB(1, 2, 3), 255, RGB(4, 5, 6), 1, 2, 2);
        image.GotoXY(5, 90);
        image.print(L"%s\n", GetParam().text);
    }
}

TEST_P(CVQDIBTextScripts, FitIntoWhatTheyMeasure)
{
    if (runsUnderWine() && !GetParam().certain)
        return;
    CVQDIB image(300, 80);
    setSans(image, -20);
    const CSize size = image.GetTextSize(GetParam().text);
    image.TextOutW(20, 20, GetParam().text);
    const auto ink = inkOf(image);
    ASSERT_TRUE(ink);
    EXPECT_GE(ink->left, 20 - 3);
    EXPECT_LE(ink->right, 20 + size.cx + 3);
}

/// Lone halves of pairs, what is no character, marks without a letter, a very long word, directions that never end.
TEST(CVQDIBTextOddities, AreHarmless)
{
    CVQDIB image(200, 60);
    setSans(image, -12);
    const std::wstring word(3000, L'w');
    const std::wstring marks(300, L'\u0301');
    const std::wstring directions(300, L'\u202E');
    const std::wstring lines(300, L'\n');
    const wchar_t high[] = {0xD83D, 0};
    const wchar_t low[] = {L'a', 0xDE00, 0};
    const wchar_t none[] = {0xFFFF, 0xFFFE, 1, 0x7F, 0};
    for (const wchar_t* text : {word.c_str(), marks.c_str(), directions.c_str(), lines.c_str(), high, low, none}) {
        const CSize size = image.GetTextSize(text);
        EXPECT_GE(size.cx, 0);
        EXPECT_GE(size.cy, 0);
        image.TextOutW(3, 3, text);
        RECT rect{0, 0, 99, 59};
        image.DrawTextW(text, &rect, 5);
        image.DrawTextW(text, &rect, 5, CArray<COLORREF, const COLORREF&>());
        image.print(L"%s", text);
    }
}

} // namespace
} // namespace vq::test
