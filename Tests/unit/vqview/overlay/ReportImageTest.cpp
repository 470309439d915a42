// SPDX-License-Identifier: MIT
#include "vqview/overlay/ReportImage.h"
#include "unit/vqview/overlay/OverlayFixture.h"
#include "vqview/overlay/ColourRamp.h"
#include "vqview/overlay/ReportLayout.h"

#include <cmath>
#include <limits>
#include <numeric>

namespace vqview::test::reportImageTests {
namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;

class ReportImage : public StoreTest
{
public:
    ReportImage()
    {
        content.title = "Scan";
        content.lines = {"Points\t3"};
        content.valueName = "Height";
    }

    void draw(const std::vector<float>& values, const std::vector<std::uint32_t>& selected = {})
    {
        content.values = values;
        content.selected = selected;
        statistics = statisticsOf(values);
        layout = layoutOf({kWidth, kHeight}, reportTexts(content, statistics, selected.size(), 1), statistics, 1);
        image.Clear(Gdiplus::Color(0));
        drawReport(image, content, 1);
    }
    /// How many pixels from its left a bar of the histogram has in one ink; bins count from the bottom.
    LONG inked(LONG bin, ULONG word)
    {
        const LONG y = layout.histogram.bottom - bin * layout.binHeight - 2;
        return countOf(image, word, {layout.histogram.left, y, layout.histogram.right, y + 1});
    }
    LONG bins() const { return layout.histogram.Height() / layout.binHeight; }

    ReportContent content;
    Statistics statistics;
    ReportLayout layout;
    Canvas image{kWidth, kHeight};
};

TEST_F(ReportImage, HasTheBarsOfItsHistogram)
{
    Store::SetReportColor(DPC_REPORT_SELECTION_MARKER_COLOR, CVQColor(1, 200, 3));
    const ULONG marker = opaque(CVQColor(1, 200, 3));
    // All in the lowest bin and half as many in the highest, all of them selected.
    draw({0, 0, 0, 0, 8, 8}, {0, 1, 2, 3, 4, 5});
    EXPECT_EQ(inked(0, marker), layout.histogram.Width());
    EXPECT_EQ(inked(bins() - 1, marker), std::lround(layout.histogram.Width() / 2.0));
    EXPECT_EQ(inked(bins() / 4, marker), 0);
}

TEST_F(ReportImage, HasTheSelectedShareInAColourOfItsOwn)
{
    Store::SetReportColor(DPC_REPORT_SELECTION_MARKER_COLOR, CVQColor(1, 200, 3));
    draw({0, 0, 0, 0, 8, 8}, {0});
    EXPECT_EQ(inked(0, opaque(CVQColor(1, 200, 3))), std::lround(layout.histogram.Width() / 4.0));
}

TEST_F(ReportImage, HasTheColoursOfTheRampAlongTheBar)
{
    draw({0, 1});
    const LONG x = layout.bar.right - 1;
    EXPECT_EQ(image.GetColor(x, layout.bar.top), opaque(rampColour(1)));
    EXPECT_EQ(image.GetColor(x, layout.bar.bottom - 1), opaque(rampColour(0)));
}

TEST_F(ReportImage, HasALineAtTheMean)
{
    Store::m_HistogramColor[DPC_HIST_AVERAGE] = CVQColor(250, 1, 250);
    draw({0, 0, 0, 10});
    const LONG row = layout.bar.top + static_cast<LONG>(std::lround(0.75 * (layout.bar.Height() - 1)));
    const ULONG ink = opaque(CVQColor(250, 1, 250));
    LONG nearest = kHeight;
    for (LONG y = layout.bar.top; y < layout.bar.bottom; ++y)
        if (image.GetColor(layout.histogram.right - 1, y) == ink)
            nearest = std::min<LONG>(nearest, std::abs(y - row));
    EXPECT_EQ(nearest, 0);
}

TEST_F(ReportImage, TakesItsColoursFromTheStore)
{
    Store::SetReportColor(DPC_REPORT_TEXT_COLOR, CVQColor(0, 0, 0));
    draw({0, 1});
    const std::vector<ULONG> usual = wordsOf(image);
    const auto changes = [&](auto change) {
        change();
        draw({0, 1});
        const bool isOther = wordsOf(image) != usual;
        return isOther;
    };
    EXPECT_TRUE(changes([] { Store::SetReportColor(DPC_REPORT_TEXT_COLOR, CVQColor(90, 0, 0)); }));
    Store::SetReportColor(DPC_REPORT_TEXT_COLOR, CVQColor(0, 0, 0));
    EXPECT_FALSE(changes([] {}));
    EXPECT_TRUE(changes([] { Store::m_HistogramColor[DPC_HIST_BACKGROUND] = CVQColor(0, 90, 0); }));
    Store::m_HistogramColor[DPC_HIST_BACKGROUND] = CVQColor(255, 255, 255);
    EXPECT_TRUE(changes([] { Store::SetVQColor(DPC_COLORBAR_TEXT, CVQColor(90, 0, 90)); }));
}

TEST_F(ReportImage, TakesItsFontsFromTheStore)
{
    draw({0, 1});
    const CRect before = layout.title;
    CVQFont font = Store::GetFont(DPF_WIDGET_FONT);
    font.m_iNominalSize *= 2;
    Store::SetFont(DPF_WIDGET_FONT, font);
    draw({0, 1});
    EXPECT_GT(layout.title.Height(), before.Height());
}

TEST_F(ReportImage, IsDrawnWithoutTheFontsOfTheStore)
{
    for (CVQFont& font : Store::m_Font) {
        font = CVQFont();
        std::copy_n(L"No such face", 13, font.m_LogFont.lfFaceName);
    }
    draw({0, 1});
    EXPECT_FALSE(layout.title.IsRectEmpty());
    EXPECT_FALSE(isBlank(image));
}

TEST_F(ReportImage, StaysWithItsShadowsAroundItsBoxes)
{
    draw({0, 1, 2});
    CRect card;
    card.UnionRect(layout.title, layout.facts);
    constexpr LONG kShadow = 14; // three times the blur of 4, and 2 that the shadow is lower
    card.InflateRect(kShadow, kShadow);
    CRect chart = layout.chart;
    chart.InflateRect(kShadow, kShadow);
    for (LONG y = 0; y < kHeight; ++y)
        for (LONG x = 0; x < kWidth; ++x)
            ASSERT_TRUE(image.GetColor(x, y) == 0 || card.PtInRect({x, y}) || chart.PtInRect({x, y})) << x << ", " << y;
}

TEST_F(ReportImage, HasRoundCorners)
{
    draw({0, 1});
    const CRect& box = layout.title;
    EXPECT_LT(image.GetA(box.left, box.top), 128);
    EXPECT_EQ(image.GetA(box.left + box.Width() / 2, box.top + 1), 255);
    const CRect& chart = layout.chart;
    EXPECT_LT(image.GetA(chart.right - 1, chart.bottom - 1), 200);
    EXPECT_GT(image.GetA(chart.right - 3, chart.top + chart.Height() / 2), 220);
}

TEST_F(ReportImage, OfNothingIsBlank)
{
    content = {};
    draw({});
    EXPECT_TRUE(isBlank(image));
}

TEST_F(ReportImage, OfUnknownValuesIsTheOneWithout)
{
    draw({});
    const std::vector<ULONG> without = wordsOf(image);
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
    draw({kNaN, std::numeric_limits<float>::infinity(), kNaN}, {0, 1, 2, 3});
    EXPECT_EQ(wordsOf(image), without);
}

TEST_F(ReportImage, OfOneValueHasItInTheMiddle)
{
    draw({42});
    EXPECT_FALSE(layout.chart.IsRectEmpty());
    ASSERT_EQ(layout.ticks.values.size(), 1u);
    EXPECT_STREQ(tickText(layout.ticks.values[0], layout.ticks), L"42.0");
}

TEST_F(ReportImage, OfStrangeTextsIsDrawn)
{
    content.title = "\xFF\xFE not UTF-8 \xC3";
    content.lines = {"", "\t", "a\tb\tc", std::string(5000, 'x'), "\xE2\x82\xAC\t\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D"};
    draw({0, 1});
    EXPECT_FALSE(layout.title.IsRectEmpty());
}

TEST_F(ReportImage, IsDrawnIntoImagesOfAnySize)
{
    const std::vector<float> values{0, 1};
    content.values = values;
    for (const float scale : {0.001F, 0.5F, 1.0F, 3.0F})
        for (const int size : {1, 2, 17, 100, 199}) {
            Canvas small(size, size);
            drawReport(small, content, scale);
        }
}

TEST_F(ReportImage, OfAMillionValuesIsWhole)
{
    std::vector<float> values(1'000'000);
    std::iota(values.begin(), values.end(), 0.0F);
    draw(values, {1, 2, 3});
    EXPECT_EQ(statistics.count, values.size());
    EXPECT_FALSE(layout.legend.IsRectEmpty());
}

} // namespace
} // namespace vqview::test::reportImageTests
