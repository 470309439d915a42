// SPDX-License-Identifier: MIT
#include "vqview/overlay/Notices.h"
#include "unit/vqview/overlay/OverlayFixture.h"
#include "vqview/overlay/Panels.h"
#include "vqview/text/Text.h"

namespace vqview::test::noticesTests {
namespace {

class Notices : public StoreTest
{
};

constexpr std::array<std::pair<int, int>, 4> kSizes{{{320, 200}, {640, 480}, {1280, 800}, {3840, 2160}}};
constexpr std::array kScales{1.0F, 1.25F, 2.0F};
constexpr const char* kLongText = "A status that is so long that it may not fit into a small window, whatever it says";

bool isInside(const CRect& box, const CVQDIB& image)
{
    return box.left >= 0 && box.top >= 0 && box.right <= image.GetWidth() && box.bottom <= image.GetHeight();
}

TEST_F(Notices, LieInTheImageAndNotOverOneAnother)
{
    for (const auto& [width, height] : kSizes)
        for (const float scale : kScales) {
            SCOPED_TRACE(testing::Message() << width << " x " << height << " at " << scale);
            Canvas image(width, height);
            const std::array boxes{drawStatus(image, kLongText, scale), drawNotice(image, kLongText, scale),
                                   drawKeys(image, scale)};
            for (std::size_t i = 0; i < boxes.size(); ++i) {
                EXPECT_TRUE(isInside(boxes[i], image)) << i;
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_FALSE(CRect().IntersectRect(boxes[i], boxes[j])) << i << " and " << j;
            }
            EXPECT_GE(boxes[0].top, height - noticeRows(scale));
            EXPECT_GE(boxes[1].top, height - noticeRows(scale));
        }
}

TEST_F(Notices, StandLeftAndInTheMiddle)
{
    Canvas image(1000, 500);
    const CRect status = drawStatus(image, "Box", 1);
    const CRect notice = drawNotice(image, "Saved", 1);
    EXPECT_LT(status.right, 100);
    EXPECT_NEAR((notice.left + notice.right) / 2.0, 500, 1);
    EXPECT_LT(notice.bottom, status.top);
}

TEST_F(Notices, OfNothingAreNone)
{
    Canvas image(300, 200);
    EXPECT_TRUE(drawStatus(image, "", 1).IsRectEmpty());
    EXPECT_TRUE(drawNotice(image, "", 1).IsRectEmpty());
    EXPECT_TRUE(isBlank(image));
}

TEST_F(Notices, WithoutRoomAreNone)
{
    for (const int size : {1, 10, 20}) {
        Canvas image(size, size);
        EXPECT_TRUE(drawStatus(image, kLongText, 1).IsRectEmpty()) << size;
        EXPECT_TRUE(drawNotice(image, kLongText, 1).IsRectEmpty()) << size;
        EXPECT_TRUE(drawKeys(image, 1).IsRectEmpty()) << size;
        EXPECT_TRUE(isBlank(image)) << size;
    }
}

TEST_F(Notices, TakeColourAndFontOfControls)
{
    Canvas image(600, 200);
    const CRect usual = drawStatus(image, "Status", 1);
    const std::vector<ULONG> before = wordsOf(image);

    Store::SetVQColor(DPC_UI_CTRL_TEXT, CVQColor(255, 0, 0));
    image.Clear(Gdiplus::Color(0));
    drawStatus(image, "Status", 1);
    EXPECT_NE(wordsOf(image), before);

    CVQFont font = Store::GetFont(DPF_UI_CTRL_FONT);
    font.m_iNominalSize = -30;
    Store::SetFont(DPF_UI_CTRL_FONT, font);
    const CRect larger = drawStatus(image, "Status", 1);
    EXPECT_GT(larger.Height(), usual.Height());
    EXPECT_GT(larger.Width(), usual.Width());
}

TEST_F(Notices, ListAllKeysInTwoColumnsWhereThereIsRoom)
{
    Canvas wide(1600, 1000);
    Canvas narrow(420, 1000);
    const CRect two = drawKeys(wide, 1);
    const CRect one = drawKeys(narrow, 1);
    EXPECT_GT(two.Width(), one.Width());
    EXPECT_LT(two.Height(), one.Height());
    EXPECT_NEAR((two.left + two.right) / 2.0, 800, 1);
    const BYTE alpha = wide.GetA(two.left + 3, two.top + two.Height() / 2);
    EXPECT_GE(alpha, Store::m_ucUICtrlAlpha[DPC_UI_MGR_ALPHA]);
    EXPECT_LT(alpha, 255);
}

TEST(TextStyle, CutsWithAnEllipsisWhatDoesNotFit)
{
    const TextStyle style = styleOf(DPF_UI_CTRL_FONT, 1);
    const CString text = L"A line of text";
    const LONG width = style.widthOf(text);
    EXPECT_STREQ(style.fitted(text, width), text);
    const CString cut = style.fitted(text, width - 1);
    EXPECT_LT(cut.GetLength(), text.GetLength() + 1);
    EXPECT_EQ(cut[cut.GetLength() - 1], L'\x2026');
    EXPECT_LE(style.widthOf(cut), width - 1);
    EXPECT_TRUE(style.fitted(text, 1).IsEmpty());
    EXPECT_TRUE(style.fitted(L"", 0).IsEmpty());
}

TEST(TextStyle, ReadsUtf8)
{
    EXPECT_STREQ(textOf("\xC3\xA4\xE2\x82\xAC"), L"\x00E4\x20AC");
    EXPECT_TRUE(textOf("").IsEmpty());
    EXPECT_NE(textOf("a\xFF"
                     "b")
                  .Find(L'\xFFFD'),
              -1);
}

} // namespace
} // namespace vqview::test::noticesTests
