// SPDX-License-Identifier: MIT
#include "vqview/overlay/ReportLayout.h"
#include "unit/vqview/overlay/OverlayFixture.h"
#include "vqview/overlay/Notices.h"
#include "vqview/overlay/VertexValues.h"

namespace vqview::test::reportLayoutTests {
namespace {

constexpr std::array kWidths{320, 400, 640, 1024, 1920, 3840};
constexpr std::array kHeights{200, 300, 480, 768, 1080, 2160};
constexpr std::array kScales{1.0F, 1.25F, 2.0F};

ReportContent usualContent()
{
    ReportContent content;
    content.title = "A scan with a rather long name.ply";
    content.lines = {"Points\t35,947", "Triangles\t69,451", "Edges\t104,288", "Selected\t12", "Width\t155.700 mm"};
    content.valueName = "Height";
    content.unit = "mm";
    return content;
}

constexpr Statistics kUsual{-123.4, 987.6, 100, 5};

ReportLayout layoutIn(LONG width, LONG height, float scale)
{
    return layoutOf({width, height}, reportTexts(usualContent(), kUsual, 3, scale), kUsual, scale);
}

bool isWithin(const CRect& inner, const CRect& outer)
{
    return inner.IsRectEmpty() || (inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
                                   inner.bottom <= outer.bottom);
}

bool overlap(const CRect& a, const CRect& b)
{
    CRect common;
    return common.IntersectRect(a, b) != FALSE;
}

/// Calls `check(layout, width, height, scale)` for windows of all sizes and scales.
template <typename Check>
void forAllWindows(Check check)
{
    for (const int width : kWidths)
        for (const int height : kHeights)
            for (const float scale : kScales) {
                SCOPED_TRACE(testing::Message() << width << " x " << height << " at " << scale);
                check(layoutIn(width, height, scale), width, height, scale);
            }
}

class ReportLayoutTest : public StoreTest
{
};

TEST_F(ReportLayoutTest, StaysInTheImageAboveTheRowsOfNotices)
{
    forAllWindows([](const ReportLayout& layout, LONG width, LONG height, float scale) {
        const CRect room(0, 0, width, height - noticeRows(scale));
        EXPECT_TRUE(isWithin(layout.title, room));
        EXPECT_TRUE(isWithin(layout.facts, room));
        EXPECT_TRUE(isWithin(layout.chart, room));
    });
}

TEST_F(ReportLayoutTest, OverlapsNowhere)
{
    forAllWindows([](const ReportLayout& layout, LONG, LONG, float) {
        const std::array boxes{layout.title, layout.facts, layout.chart};
        const std::array parts{layout.heading, layout.axis, layout.bar, layout.histogram, layout.legend};
        for (std::size_t i = 0; i < boxes.size(); ++i)
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(overlap(boxes[i], boxes[j])) << i << " and " << j;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            EXPECT_TRUE(isWithin(parts[i], layout.chart)) << i;
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(overlap(parts[i], parts[j])) << i << " and " << j;
        }
    });
}

TEST_F(ReportLayoutTest, LeavesPartsOutInTheirOrder)
{
    forAllWindows([](const ReportLayout& layout, LONG, LONG, float) {
        const std::array shown{!layout.title.IsRectEmpty(), !layout.chart.IsRectEmpty(), !layout.facts.IsRectEmpty(),
                               !layout.histogram.IsRectEmpty(), !layout.legend.IsRectEmpty()};
        EXPECT_TRUE(std::is_sorted(shown.rbegin(), shown.rend())); // none without those before it
    });
}

TEST_F(ReportLayoutTest, ShowsAllWhereThereIsRoomAndSomethingInTheSmallestWindow)
{
    for (const float scale : kScales)
        EXPECT_FALSE(layoutIn(1920, 1080, scale).legend.IsRectEmpty()) << scale;
    EXPECT_FALSE(layoutIn(320, 200, 1).title.IsRectEmpty());
    EXPECT_FALSE(layoutIn(320, 200, 1).chart.IsRectEmpty());
}

TEST_F(ReportLayoutTest, HasWholeBinsAlongTheBar)
{
    forAllWindows([](const ReportLayout& layout, LONG, LONG, float) {
        if (layout.histogram.IsRectEmpty())
            return;
        EXPECT_EQ(layout.histogram.top, layout.bar.top);
        EXPECT_EQ(layout.histogram.bottom, layout.bar.bottom);
        EXPECT_EQ(layout.bar.Height() % layout.binHeight, 0);
    });
}

TEST_F(ReportLayoutTest, KeepsTheNumbersOfTheAxisApart)
{
    forAllWindows([](const ReportLayout& layout, LONG, LONG, float scale) {
        const std::vector<double>& ticks = layout.ticks.values;
        if (ticks.size() < 2)
            return;
        const double step = (ticks[1] - ticks[0]) / (kUsual.most - kUsual.least) * layout.bar.Height();
        EXPECT_GE(step, styleOf(DPF_COLORBAR_FONT, scale).lineHeight());
    });
}

TEST_F(ReportLayoutTest, GrowsWithTheScale)
{
    const ReportLayout once = layoutIn(1000, 1000, 1);
    const ReportLayout twice = layoutIn(2000, 2000, 2);
    EXPECT_EQ(twice.title.TopLeft(), CPoint(2 * once.title.left, 2 * once.title.top));
    EXPECT_EQ(twice.bar.Width(), 2 * once.bar.Width());
    EXPECT_EQ(2000 - twice.chart.right, 2 * (1000 - once.chart.right));
}

TEST_F(ReportLayoutTest, OfEveryFontOfTheStoreOverlapsNowhere)
{
    for (const int size : {-1, 0, 9, -24, 100000}) {
        for (CVQFont& font : Store::m_Font)
            font.m_iNominalSize = size;
        forAllWindows([](const ReportLayout& layout, LONG width, LONG height, float scale) {
            EXPECT_FALSE(overlap(layout.facts, layout.chart));
            EXPECT_FALSE(overlap(layout.title, layout.chart));
            EXPECT_FALSE(overlap(layout.axis, layout.bar));
            EXPECT_TRUE(isWithin(layout.chart, {0, 0, width, height - noticeRows(scale)}));
        });
    }
}

TEST_F(ReportLayoutTest, OfNoValuesHasNoChart)
{
    const ReportLayout layout = layoutOf({1000, 800}, reportTexts(usualContent(), {}, 0, 1), {}, 1);
    EXPECT_TRUE(layout.chart.IsRectEmpty());
    EXPECT_FALSE(layout.facts.IsRectEmpty());
}

TEST_F(ReportLayoutTest, OfNothingIsEmpty)
{
    const ReportLayout layout = layoutOf({1000, 800}, reportTexts({}, {}, 0, 1), {}, 1);
    EXPECT_TRUE(layout.title.IsRectEmpty() && layout.facts.IsRectEmpty() && layout.chart.IsRectEmpty());
}

TEST_F(ReportLayoutTest, NamesUnitAndPowerInTheHeading)
{
    const ReportContent content = usualContent();
    EXPECT_STREQ(reportTexts(content, kUsual, 0, 1).heading, L"Height (mm)");
    EXPECT_STREQ(reportTexts(content, {0, 5e6, 1, 2}, 0, 1).heading, L"Height (10^6 mm)");
    ReportContent plain = content;
    plain.unit.clear();
    EXPECT_STREQ(reportTexts(plain, kUsual, 0, 1).heading, L"Height");
    EXPECT_STREQ(reportTexts(plain, kUsual, 0, 1).legend.back().value, L"100.0");
}

TEST_F(ReportLayoutTest, NamesTheUnitOfEveryValueInTheHeadingAndBehindTheMean)
{
    for (const auto& [value, heading, mean] :
         {std::tuple(VertexValue::Height, L"Height (mm)", L"0.25 mm"),
          std::tuple(VertexValue::Distance, L"Distance from centre (mm)", L"0.25 mm"),
          std::tuple(VertexValue::Curvature, L"Curvature (1/mm)", L"0.25 1/mm")}) {
        ReportContent content;
        content.valueName = rowOf(value).name;
        content.unit = rowOf(value).unit;
        const ReportTexts texts = reportTexts(content, {-0.5, 0.5, 0.25, 4}, 0, 1);
        EXPECT_STREQ(texts.heading, heading);
        EXPECT_STREQ(texts.legend.back().value, mean);
    }
}

TEST_F(ReportLayoutTest, WritesTicksInTheirPower)
{
    EXPECT_STREQ(tickText(1234.5, {{}, 1, 0}), L"1,234.5");
    EXPECT_STREQ(tickText(2e6, {{}, 0, 6}), L"2");
    EXPECT_STREQ(tickText(-0.0, {{}, 0, 0}), L"0");
}

TEST_F(ReportLayoutTest, TakesFactsFromTheScan)
{
    Model model;
    model.positions = {{0, 0, 0}, {1.5F, 0, 0}, {0, 2, 0.25F}};
    model.triangles = {{0, 1, 2}};
    model.edges = {{0, 1}, {1, 2}, {0, 2}};
    model.bounds = boundsOf(model.positions);
    const std::vector<std::string> facts = factsOf(model, 2);
    const std::vector<std::string> expected{"Points\t3",          "Triangles\t1",        "Edges\t3",
                                            "Selected\t2",        "Width (x)\t1.500 mm", "Height (y)\t2.000 mm",
                                            "Depth (z)\t0.250 mm"};
    EXPECT_EQ(facts, expected);
}

} // namespace
} // namespace vqview::test::reportLayoutTests
