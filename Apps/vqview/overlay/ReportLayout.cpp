// SPDX-License-Identifier: MIT
#include "vqview/overlay/ReportLayout.h"

#include "vqview/overlay/Notices.h"

#include <algorithm>

namespace vqview {

namespace {

using namespace report;

constexpr float kMargin = 12;     // lengths are in units
constexpr float kGap = 12;        // between the two columns
constexpr float kColumnGap = 16;  // from a label to its value
constexpr float kUsualCard = 176; // at least, where there is room
constexpr float kBar = 14;
constexpr float kHistogram = 104;
constexpr float kLongestTitle = 280; // that widen their boxes
constexpr float kLongestHeading = 200;
constexpr float kPartGap = 8;
constexpr float kBin = 6;
constexpr float kLowestPlot = 66;
constexpr float kHighestPlot = 300;
constexpr float kPlotShare = 0.45F; // of the room
constexpr LONG kTitleEms = 5;       // that are always shown
constexpr int kMostTicks = 12;
constexpr float kTickLines = 1.7F; // of text, from one tick to the next

/// What is shown; the order in which parts are left out is that of `kLevels`.
struct Level
{
    bool title, bar, facts, histogram, legend;
};

constexpr std::array kLevels{
    Level{true, true, true, true, true},     Level{true, true, true, true, false},
    Level{true, true, true, false, false},   Level{true, true, false, false, false},
    Level{true, false, false, false, false},
};

LONG widestOf(const std::vector<ReportTexts::Row>& rows, const TextStyle& style, float scale)
{
    LONG widest = 0;
    for (const ReportTexts::Row& row : rows) {
        const LONG gap = row.value.IsEmpty() ? 0 : pixels(kColumnGap, scale);
        widest = std::max(widest, style.widthOf(row.label) + gap + style.widthOf(row.value));
    }
    return widest;
}

LONG heightOf(std::size_t rows, const TextStyle& style, float scale)
{
    const LONG count = static_cast<LONG>(rows);
    return count == 0 ? 0 : count * style.lineHeight() + (count - 1) * pixels(kRowGap, scale);
}

/// Computes a layout for one level after the other.
class Composer
{
public:
    Composer(const CSize& image, const ReportTexts& texts, const Statistics& statistics, float scale)
        : m_texts(texts), m_statistics(statistics), m_scale(scale),
          m_room(px(kMargin), px(kMargin), image.cx - px(kMargin), image.cy - noticeRows(scale))
    {
    }

    /// @return false where a part does not fit.
    bool compose(const Level& level, ReportLayout& layout) const
    {
        layout = {};
        const bool hasChart = level.bar && m_statistics.count > 0;
        if (hasChart && !composeChart(level, layout))
            return false;
        const LONG right = hasChart ? layout.chart.left - px(kGap) : m_room.right;
        return composeCard(level, right, layout);
    }

private:
    LONG px(float units) const { return pixels(units, m_scale); }

    bool composeCard(const Level& level, LONG right, ReportLayout& layout) const
    {
        const bool hasTitle = level.title && !m_texts.title.IsEmpty();
        const bool hasFacts = level.facts && !m_texts.facts.empty();
        if (!hasTitle && !hasFacts)
            return true;
        const LONG titleWidth = hasTitle ? std::min(m_texts.titleStyle.widthOf(m_texts.title), px(kLongestTitle)) : 0;
        const LONG factsWidth = hasFacts ? widestOf(m_texts.facts, m_texts.factStyle, m_scale) : 0;
        const LONG leastTitle = std::min(titleWidth, -m_texts.titleStyle.font.lfHeight * kTitleEms);
        const LONG room = right - m_room.left - 2 * px(kPadding);
        if (std::max(leastTitle, factsWidth) > room)
            return false;
        const LONG width = std::min(std::max({titleWidth, factsWidth, px(kUsualCard)}), room) + 2 * px(kPadding);
        LONG y = m_room.top;
        const auto part = [&](LONG height) {
            y += height;
            return CRect(m_room.left, y - height, m_room.left + width, y);
        };
        if (hasTitle)
            layout.title = part(m_texts.titleStyle.lineHeight() + 2 * px(kTitlePadding));
        if (hasFacts)
            layout.facts =
                part(heightOf(m_texts.facts.size(), m_texts.factStyle, m_scale) + 2 * px(kPadding) - px(kRowGap));
        return y <= m_room.bottom;
    }

    /// How high the parts of the chart are; half a line of the numbers stands out of the plot at both ends.
    struct ChartHeights
    {
        LONG edge, heading, half, legend, above, below;
    };

    ChartHeights chartHeights(const Level& level) const
    {
        ChartHeights heights{};
        heights.edge = px(kPadding) - px(kRowGap);
        heights.heading = m_texts.headingStyle.lineHeight();
        heights.half = m_texts.axisStyle.lineHeight() / 2;
        heights.above = heights.edge + heights.heading + px(kRowGap) + heights.half;
        heights.below = heights.half + heights.edge;
        if (level.legend) {
            heights.legend = heightOf(m_texts.legend.size(), m_texts.factStyle, m_scale);
            heights.below += px(kPartGap) + heights.legend;
        }
        return heights;
    }

    /// Whole bins, and at least one; 0 where even the lowest plot does not fit.
    LONG plotHeight(LONG room, LONG binHeight) const
    {
        const LONG wanted = static_cast<LONG>(static_cast<float>(m_room.Height()) * kPlotShare);
        const LONG bins = std::min(room, std::clamp(wanted, px(kLowestPlot), px(kHighestPlot))) / binHeight;
        const LONG least = std::max<LONG>(px(kLowestPlot) / binHeight, 1);
        return bins < least ? 0 : bins * binHeight;
    }

    Ticks ticksAlong(LONG plot) const
    {
        const float apart = static_cast<float>(std::max<LONG>(m_texts.axisStyle.lineHeight(), 1)) * kTickLines;
        const int most = static_cast<int>(static_cast<float>(plot) / apart) + 1;
        return ticksOf(m_statistics.least, m_statistics.most, std::clamp(most, 2, kMostTicks));
    }

    bool composeChart(const Level& level, ReportLayout& layout) const
    {
        const ChartHeights heights = chartHeights(level);
        layout.binHeight = std::max<LONG>(px(kBin), 2);
        const LONG plot = plotHeight(m_room.Height() - heights.above - heights.below, layout.binHeight);
        if (plot == 0)
            return false;
        layout.ticks = ticksAlong(plot);
        const LONG top = m_room.top + heights.above;
        const LONG bottom = top + plot;
        if (!placeColumns(level, top, bottom, layout))
            return false;
        layout.chart.top = m_room.top;
        layout.chart.bottom = bottom + heights.below;
        const LONG left = layout.axis.left;
        const LONG right = layout.chart.right - px(kPadding);
        const LONG headingTop = m_room.top + heights.edge;
        const LONG legendTop = bottom + heights.half + px(kPartGap);
        layout.heading = {left, headingTop, right, headingTop + heights.heading};
        if (level.legend)
            layout.legend = {left, legendTop, right, legendTop + heights.legend};
        return true;
    }

    /// Numbers, colour bar and histogram side by side, at the right of the room.
    bool placeColumns(const Level& level, LONG top, LONG bottom, ReportLayout& layout) const
    {
        LONG axisWidth = 0;
        for (const double value : layout.ticks.values)
            axisWidth = std::max(axisWidth, m_texts.axisStyle.widthOf(tickText(value, layout.ticks)));
        axisWidth += 2 * px(kTick);
        const LONG gap = level.histogram ? px(kTick) : 0;
        LONG inner = axisWidth + px(kBar) + gap + (level.histogram ? px(kHistogram) : 0);
        if (level.legend)
            inner =
                std::max(inner, px(kSwatch) + px(kSwatchGap) + widestOf(m_texts.legend, m_texts.factStyle, m_scale));
        inner = std::max(inner, std::min(m_texts.headingStyle.widthOf(m_texts.heading), px(kLongestHeading)));
        const LONG width = inner + 2 * px(kPadding);
        if (width > m_room.Width())
            return false;
        layout.chart.right = m_room.right;
        layout.chart.left = m_room.right - width;
        LONG x = layout.chart.left + px(kPadding);
        layout.axis = {x, top, x + axisWidth, bottom};
        x += axisWidth;
        layout.bar = {x, top, x + px(kBar), bottom};
        x += px(kBar) + gap;
        if (level.histogram)
            layout.histogram = {x, top, layout.chart.right - px(kPadding), bottom};
        return true;
    }

    const ReportTexts& m_texts;
    const Statistics& m_statistics;
    float m_scale;
    CRect m_room;
};

} // namespace

ReportLayout layoutOf(const CSize& image, const ReportTexts& texts, const Statistics& statistics, float scale)
{
    const Composer composer(image, texts, statistics, scale);
    ReportLayout layout;
    for (const Level& level : kLevels)
        if (composer.compose(level, layout))
            return layout;
    return {};
}

} // namespace vqview
