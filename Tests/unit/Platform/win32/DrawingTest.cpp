// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <gmock/gmock.h>
#include <limits>
#include <random>
#include <vector>

namespace vq::test::drawingTests {
namespace {

using ::testing::ElementsAre;
using Pixels = std::vector<DWORD>;

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

/// A memory context with a section; pixels are numbered 0x11000000 + index, row by row from the top.
class Picture
{
public:
    enum class Rows { TopDown, BottomUp };

    Picture(int width, int height, Rows rows = Rows::TopDown)
        : m_width(width), m_height(height), m_rows(rows), context(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = rows == Rows::TopDown ? -height : height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_bits = static_cast<DWORD*>(bits);
        m_initial = SelectObject(context, bitmap);
        number();
    }
    ~Picture()
    {
        SelectObject(context, m_initial);
        DeleteObject(bitmap);
        DeleteDC(context);
    }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    void number()
    {
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x)
                at(x, y) = 0x11000000 + static_cast<DWORD>(y * m_width + x);
    }

    /// GDI may keep drawing back; a call that returns a colour makes it carry that out.
    DWORD& at(int x, int y)
    {
        GetPixel(context, 0, 0);
        return m_bits[(m_rows == Rows::TopDown ? y : m_height - 1 - y) * m_width + x];
    }

    /// The indices of the pixels, without 0x11000000; other pixels as they are.
    Pixels content()
    {
        Pixels result;
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x)
                result.push_back(at(x, y) >> 24 == 0x11 ? at(x, y) & 0xFFFFFF : at(x, y));
        return result;
    }

    BOOL copy(int x, int y, int width, int height, Picture& source, int sourceX, int sourceY)
    {
        return BitBlt(context, x, y, width, height, source.context, sourceX, sourceY, SRCCOPY);
    }

private:
    int m_width;
    int m_height;
    Rows m_rows;
    DWORD* m_bits = nullptr;
    HGDIOBJ m_initial = nullptr;

public:
    HDC context;
    HBITMAP bitmap = nullptr;
};

TEST(BitBlt, CopiesAllFourBytesOfABlock)
{
    Picture source(3, 3);
    Picture target(3, 3);
    target.at(0, 0) = target.at(2, 2) = 0xABCDEF01;
    source.at(0, 0) = 0x00123456;
    source.at(1, 0) = 0xFF654321;

    EXPECT_TRUE(target.copy(1, 1, 2, 1, source, 0, 0));

    EXPECT_THAT(target.content(), ElementsAre(0xABCDEF01, 1, 2, 3, 0x00123456, 0xFF654321, 6, 7, 0xABCDEF01));
}

TEST(BitBlt, CopiesWhatLiesInsideBothSurfaces)
{
    Picture source(4, 3);
    Picture target(4, 3);
    EXPECT_TRUE(target.copy(0, 0, 4, 3, source, 2, -1));
    EXPECT_THAT(target.content(), ElementsAre(0, 1, 2, 3, 2, 3, 6, 7, 6, 7, 10, 11));

    target.number();
    EXPECT_TRUE(target.copy(-1, -2, 4, 3, source, 1, 0));
    EXPECT_THAT(target.content(), ElementsAre(10, 11, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11));

    target.number();
    EXPECT_TRUE(target.copy(100, 100, 5, 5, source, 0, 0));
    EXPECT_TRUE(target.copy(0, 0, 5, 5, source, 100, 100));
    EXPECT_TRUE(target.copy(1, 1, 0, 0, source, 0, 0));
    EXPECT_EQ(target.content(), source.content());
}

TEST(BitBlt, CopiesBetweenRowsInBothOrders)
{
    Picture topDown(3, 2);
    Picture bottomUp(3, 2, Picture::Rows::BottomUp);
    bottomUp.at(0, 0) = 0x11000064;
    EXPECT_TRUE(topDown.copy(0, 0, 3, 2, bottomUp, 0, 0));
    EXPECT_THAT(topDown.content(), ElementsAre(100, 1, 2, 3, 4, 5));
    topDown.at(2, 1) = 0x110000C8;
    EXPECT_TRUE(bottomUp.copy(0, 0, 3, 2, topDown, 0, 0));
    EXPECT_THAT(bottomUp.content(), ElementsAre(100, 1, 2, 3, 4, 200));
}

TEST(BitBlt, CopiesAnOverlappingBlockAsIfPutAsideFirst)
{
    for (const auto rows : {Picture::Rows::TopDown, Picture::Rows::BottomUp})
        for (int dy = -2; dy <= 2; ++dy)
            for (int dx = -2; dx <= 2; ++dx) {
                Picture picture(7, 6, rows);
                const Picture::Rows other = Picture::Rows::TopDown;
                Picture expected(7, 6, other);
                for (int y = 2; y < 4; ++y)
                    for (int x = 2; x < 5; ++x)
                        expected.at(x + dx, y + dy) = 0x11000000 + static_cast<DWORD>(y * 7 + x);

                EXPECT_TRUE(picture.copy(2 + dx, 2 + dy, 3, 2, picture, 2, 2));

                EXPECT_EQ(picture.content(), expected.content()) << dx << ", " << dy;
            }
}

TEST(BitBlt, SurvivesTheLargestArguments)
{
    Picture source(4, 3);
    Picture target(4, 3);
    EXPECT_TRUE(target.copy(kLeast, kLeast, kMost, kMost, source, kMost, kMost));
    EXPECT_TRUE(target.copy(kMost, kMost, kMost, kMost, source, kLeast, kLeast));
    EXPECT_EQ(target.content(), source.content());
}

TEST(BitBlt, RefusesWhatIsNoContext)
{
    Picture picture(2, 2);
    EXPECT_FALSE(BitBlt(nullptr, 0, 0, 1, 1, picture.context, 0, 0, SRCCOPY));
    EXPECT_FALSE(BitBlt(picture.context, 0, 0, 1, 1, nullptr, 0, 0, SRCCOPY));
    EXPECT_THAT(picture.content(), ElementsAre(0, 1, 2, 3));
}

TEST(BitBlt, FillsWithoutASource)
{
    Picture picture(3, 2);
    EXPECT_TRUE(BitBlt(picture.context, 0, 0, 1, 1, nullptr, 0, 0, WHITENESS));
    EXPECT_TRUE(BitBlt(picture.context, 1, 0, 1, 1, nullptr, 0, 0, BLACKNESS));
    EXPECT_TRUE(PatBlt(picture.context, 2, 1, 5, 5, PATCOPY)); // the white brush of a new context
    EXPECT_THAT(picture.content(), ElementsAre(0xFFFFFFFF, 0, 2, 3, 4, 0x00FFFFFF));
}

TEST(PatBlt, PaintsWithTheSelectedBrush)
{
    Picture picture(2, 1);
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    const HGDIOBJ before = SelectObject(picture.context, brush);
    EXPECT_TRUE(PatBlt(picture.context, 0, 0, 1, 1, PATCOPY));
    EXPECT_EQ(picture.at(0, 0), 0x00010203u);
    SelectObject(picture.context, GetStockObject(NULL_BRUSH));
    EXPECT_TRUE(PatBlt(picture.context, 1, 0, 1, 1, PATCOPY));
    EXPECT_EQ(picture.at(1, 0), 0x11000001u);
    SelectObject(picture.context, before);
    DeleteObject(brush);
}

TEST(FillRect, LeavesTheRightAndBottomEdge)
{
    Picture picture(4, 3);
    const HBRUSH brush = CreateSolidBrush(RGB(255, 0, 0));
    const RECT rect{1, 1, 3, 2};
    EXPECT_TRUE(FillRect(picture.context, &rect, brush));
    constexpr DWORD kRed = 0x00FF0000;
    EXPECT_THAT(picture.content(), ElementsAre(0, 1, 2, 3, 4, kRed, kRed, 7, 8, 9, 10, 11));
    const RECT empty{2, 2, 2, 2};
    EXPECT_TRUE(FillRect(picture.context, &empty, brush));
    EXPECT_THAT(picture.content(), ElementsAre(0, 1, 2, 3, 4, kRed, kRed, 7, 8, 9, 10, 11));
    DeleteObject(brush);
}

TEST(SetPixel, WritesTheColourWithAlphaZero)
{
    Picture picture(3, 2);
    EXPECT_EQ(SetPixel(picture.context, 1, 1, RGB(0x33, 0x22, 0x11)), RGB(0x33, 0x22, 0x11));
    EXPECT_EQ(picture.at(1, 1), 0x00332211u);
    EXPECT_EQ(GetPixel(picture.context, 1, 1), RGB(0x33, 0x22, 0x11));
    EXPECT_EQ(GetPixel(picture.context, 2, 1), RGB(0, 0, 5));
}

TEST(GetPixel, IsInvalidOutsideTheSurface)
{
    Picture picture(3, 2);
    EXPECT_EQ(GetPixel(picture.context, 3, 0), CLR_INVALID);
    EXPECT_EQ(GetPixel(picture.context, 0, -1), CLR_INVALID);
    EXPECT_EQ(GetPixel(nullptr, 0, 0), CLR_INVALID);
    EXPECT_EQ(SetPixel(nullptr, 0, 0, 0), CLR_INVALID);
}

} // namespace
} // namespace vq::test::drawingTests
