// SPDX-License-Identifier: MIT
#include "unit/VQDraw/draw/text/TextPictures.h"

#include <limits>

namespace vq::test {
namespace {

using Access = VQTestAccess;

class CVQDIBPrint : public testing::Test
{
protected:
    CVQDIBPrint()
    {
        for (CVQDIB* image : {&m_image, &m_expected})
            setSans(*image, -16);
    }

    void expectCursor(LONG x, LONG y)
    {
        EXPECT_EQ(Access::printX(m_image), x);
        EXPECT_EQ(Access::printY(m_image), y);
    }

    void write(const wchar_t* text, LONG x, LONG y)
    {
        const CSize size = m_expected.GetTextSize(text);
        RECT rect{x, y, x + size.cx, y + size.cy};
        m_expected.DrawTextW(text, &rect, 0);
    }

    CVQDIB m_image{200, 100};
    CVQDIB m_expected{200, 100};
};

TEST_F(CVQDIBPrint, WritesAtTheCursorAndMovesItBehindTheText)
{
    m_image.GotoXY(10, 20);
    m_image.print(L"one");
    const LONG width = m_image.GetTextSize(L"one").cx;
    expectCursor(10 + width, 20);
    m_image.print(L"two");
    expectCursor(10 + width + m_image.GetTextSize(L"two").cx, 20);

    write(L"one", 10, 20);
    write(L"two", 10 + width, 20);
    EXPECT_FALSE(isBlank(m_image));
    EXPECT_TRUE(sameImages(m_image, m_expected));
}

TEST_F(CVQDIBPrint, EndsALineBackWhereItBeganAndLowerByTheHeightOfASpace)
{
    const LONG line = m_image.GetTextSize(L" ").cy;
    m_image.GotoXY(10, 20);
    m_image.print(L"one\n");
    expectCursor(10, 20 + line);
    m_image.print(L"two");
    m_image.print(L"three\n");
    expectCursor(10 + m_image.GetTextSize(L"two").cx, 20 + 2 * line);
    EXPECT_GT(line, 10);
}

TEST_F(CVQDIBPrint, FormatsAsCStringDoes)
{
    m_image.print(L"%s %d %.2f %c %%", L"wide", -7, 1.5, L'x');
    write(L"wide -7 1.50 x %", 0, 0);
    EXPECT_TRUE(sameImages(m_image, m_expected));
}

TEST_F(CVQDIBPrint, OfAnEmptyResultMovesNothing)
{
    m_image.GotoXY(10, 20);
    m_image.print(L"");
    m_image.print(L"%s", L"");
    m_image.print(nullptr);
    expectCursor(10, 20);
    EXPECT_TRUE(isBlank(m_image));
}

TEST_F(CVQDIBPrint, OfALineFeedAloneMovesDownOnly)
{
    m_image.GotoXY(10, 20);
    m_image.print(L"\n");
    expectCursor(10, 20 + m_image.GetTextSize(L" ").cy);
    EXPECT_TRUE(isBlank(m_image));
}

TEST_F(CVQDIBPrint, WritesSeveralLinesInOneCall)
{
    m_image.print(L"one\ntwo");
    write(L"one\ntwo", 0, 0);
    EXPECT_TRUE(sameImages(m_image, m_expected));
    expectCursor(m_image.GetTextSize(L"one\ntwo").cx, 0);
}

TEST_F(CVQDIBPrint, NeverBreaksALineByItself)
{
    m_image.print(L"words in a row");
    EXPECT_LT(inkOf(m_image)->Height(), 20);
}

TEST_F(CVQDIBPrint, StopsAtTheLastCoordinate)
{
    if (differsHere("text far outside the picture"))
        return;
    constexpr int kHighest = std::numeric_limits<int>::max();
    m_image.GotoXY(kHighest - 1, kHighest - 1);
    m_image.print(L"one");
    m_image.print(L"two\n");
    expectCursor(kHighest, kHighest);
}

} // namespace
} // namespace vq::test
