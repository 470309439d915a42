// SPDX-License-Identifier: MIT
// What stands in a frame and in a report, by comparing pictures that differ in one thing.
#include "Stage.h"

#include "vqview/overlay/ReportLayout.h"

#include <cmath>

namespace vqview::test {
namespace {

class Pictures : public SessionTest
{
public:
    Pictures()
    {
        session.show(bunny());
        session.shown() = {.labels = false, .report = false};
    }

    std::vector<ULONG> frame()
    {
        session.drawTo(m_picture);
        return words();
    }
    std::vector<ULONG> report()
    {
        session.drawReportTo(m_picture);
        return words();
    }
    std::vector<ULONG> words()
    {
        return {m_picture.GetImageBuffer(), m_picture.GetImageBuffer() + m_picture.GetSize()};
    }
    static bool differ(const std::vector<ULONG>& one, const std::vector<ULONG>& other, const CRect& where)
    {
        for (LONG y = where.top; y < where.bottom; ++y)
            for (LONG x = where.left; x < where.right; ++x)
                if (const auto i = static_cast<std::size_t>(y * kWidth + x); one[i] != other[i])
                    return true;
        return false;
    }
    static const CRect& whole()
    {
        static const CRect all(0, 0, kWidth, kHeight);
        return all;
    }
    /// Where the parts of the report stand, by its own layout.
    ReportLayout layout()
    {
        ReportContent content;
        content.title = session.model()->title;
        content.lines = factsOf(*session.model(), session.selectedCount());
        content.valueName = rowOf(session.value()).name;
        content.unit = rowOf(session.value()).unit;
        std::vector<float> values;
        valuesOf(*session.model(), session.value(), values);
        const Statistics statistics = statisticsOf(values);
        return layoutOf({kWidth, kHeight}, reportTexts(content, statistics, session.selectedCount(), 1), statistics, 1);
    }

    CVQDIB m_picture{1, 1};
};

TEST_F(Pictures, AreOfTheFramesSizeAndOpaque)
{
    for (const std::vector<ULONG>& picture : {frame(), report()}) {
        EXPECT_EQ(m_picture.GetWidth(), kWidth);
        EXPECT_EQ(m_picture.GetHeight(), kHeight);
        EXPECT_TRUE(std::ranges::all_of(picture, [](ULONG word) { return word >> 24 == 255; }));
    }
}

TEST_F(Pictures, AreTheSameTwice)
{
    session.shown() = {.edges = true, .vertices = true, .labels = true, .report = true};
    selectByBox({200, 120}, {440, 360});
    const std::vector<ULONG> first = frame(), firstReport = report();
    EXPECT_EQ(frame(), first);
    EXPECT_EQ(report(), firstReport);
}

TEST_F(Pictures, HaveNoNoticeNoStatusLineAndNoKeys)
{
    const std::vector<ULONG> plain = frame();
    session.say("a notice");
    session.shown().keys = true;
    session.setTool(Tool::Lasso);
    EXPECT_EQ(frame(), plain);
}

TEST_F(Pictures, HaveTheReportWhereItIsShownAndOnlyThere)
{
    const ReportLayout boxes = layout();
    ASSERT_FALSE(boxes.title.IsRectEmpty());
    ASSERT_FALSE(boxes.chart.IsRectEmpty());
    session.lookAlong(Side::Front);
    session.wheel(-20, {320, 240}); // the scan is but a spot
    const std::vector<ULONG> plain = frame();
    session.shown().report = true;
    const std::vector<ULONG> with = frame();
    EXPECT_TRUE(differ(plain, with, boxes.title));
    EXPECT_TRUE(differ(plain, with, boxes.facts));
    EXPECT_TRUE(differ(plain, with, boxes.bar));
    EXPECT_TRUE(differ(plain, with, boxes.histogram));
    EXPECT_FALSE(differ(plain, with, {0, kHeight - 40, kWidth, kHeight}));
}

TEST_F(Pictures, OfAReportHaveItsBoxesWhetherTheyAreShownOrNot)
{
    const ReportLayout boxes = layout();
    const std::vector<ULONG> hidden = report(), plain = frame();
    EXPECT_TRUE(differ(hidden, plain, boxes.title));
    EXPECT_TRUE(differ(hidden, plain, boxes.bar));
    EXPECT_TRUE(differ(hidden, plain, boxes.histogram));
}

TEST_F(Pictures, HaveLabelsWhereTheyAreShown)
{
    const std::vector<ULONG> plain = frame();
    session.shown().labels = true;
    EXPECT_TRUE(differ(plain, frame(), whole()));
    EXPECT_TRUE(differ(report(), frame(), whole()));
}

TEST_F(Pictures, HaveWhatIsSelectedInItsColour)
{
    float colour[4]{0, 1, 0, 1};
    CVQDrawProperty::SetColorARGB(DPC_SELECTEDENTITY, colour);
    session.preferencesChanged();
    const auto greens = [&] { return std::ranges::count(frame(), 0xFF00FF00u); };
    EXPECT_EQ(greens(), 0);
    selectByBox({200, 120}, {440, 360});
    EXPECT_GT(greens(), 1000);
    session.undo();
    EXPECT_EQ(greens(), 0);
}

TEST_F(Pictures, HaveTheInsideOfABoxAtAQuarterOfItsAlphaOverTheScene)
{
    float colour[4]{1, 1, 0, 1};
    CVQDrawProperty::SetColorARGB(DPC_SELECTION_TOOL, colour);
    session.preferencesChanged();
    const std::vector<ULONG> plain = frame();
    session.setTool(Tool::Box);
    session.press(Button::Left, {200, 120}, {});
    session.move({440, 360}, {});
    const std::vector<ULONG> with = frame();
    const double share = std::floor(200 / 4.0) / 255; // a shape's alpha is 200 of 255
    for (const CPoint at : {CPoint(210, 130), CPoint(320, 240), CPoint(300, 300), CPoint(430, 350)}) {
        const auto i = static_cast<std::size_t>(at.y * kWidth + at.x);
        for (const auto& [shift, drawn] : {std::pair(16, 255.0), std::pair(8, 255.0), std::pair(0, 0.0)}) {
            const double before = plain[i] >> shift & 255, after = with[i] >> shift & 255;
            EXPECT_NEAR(after, before + (drawn - before) * share, 1.5) << at.x << " " << at.y << " " << shift;
        }
    }
    EXPECT_FALSE(differ(plain, with, {0, 0, kWidth, 118}));
    EXPECT_FALSE(differ(plain, with, {443, 0, kWidth, kHeight}));
}

TEST_F(Pictures, OfAReportHaveTheShapeThatIsBeingDrawn)
{
    const std::vector<ULONG> plain = report();
    session.setTool(Tool::Circle);
    session.press(Button::Left, {320, 300}, {});
    session.move({380, 300}, {});
    EXPECT_TRUE(differ(plain, report(), {250, 230, 390, 370}));
}

TEST_F(Pictures, AreTheSameInANewContext)
{
    session.shown() = {.edges = true, .labels = true, .report = true};
    selectByBox({200, 120}, {440, 360});
    const std::vector<ULONG> first = frame();
    makeContext(kWidth, kHeight);
    EXPECT_EQ(frame(), first);
    makeContext(kWidth, kHeight);
    EXPECT_EQ(frame(), first);
}

TEST_F(Pictures, FollowTheSize)
{
    const std::vector<ULONG> first = frame();
    makeContext(300, 200);
    frame();
    EXPECT_EQ(m_picture.GetWidth(), 300);
    EXPECT_EQ(m_picture.GetHeight(), 200);
    makeContext(kWidth, kHeight);
    EXPECT_EQ(frame(), first);
}

TEST_F(Pictures, ChangeWithTheValuesThatColourThePoints)
{
    session.shown().report = true;
    const std::vector<ULONG> height = frame();
    session.setValue(VertexValue::Distance);
    EXPECT_TRUE(differ(height, frame(), {200, 150, 440, 350}));
    session.setValue(VertexValue::Height);
    EXPECT_EQ(frame(), height);
}

TEST_F(Pictures, WithoutAScanAreTheBackground)
{
    session.show(nullptr);
    session.shown() = {.labels = true, .report = true};
    const std::vector<ULONG> empty = frame();
    for (LONG y = 0; y < kHeight; ++y)
        for (LONG x = 1; x < kWidth; ++x)
            ASSERT_EQ(empty[static_cast<std::size_t>(y * kWidth + x)], empty[static_cast<std::size_t>(y * kWidth)]);
    EXPECT_EQ(report(), empty);
    session.draw();
}

TEST_F(Pictures, TheReportIsTheSameWhetherItIsShownOrNot)
{
    session.shown().report = true;
    const auto withIt = report();
    session.shown().report = false;
    EXPECT_EQ(report(), withIt) << "the scan has the colours that the bar explains";
    EXPECT_FALSE(session.shown().report);
}

} // namespace
} // namespace vqview::test
