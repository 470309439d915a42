// SPDX-License-Identifier: MIT
#include "vqview/overlay/ReportImage.h"

#include "vqview/overlay/ColourRamp.h"
#include "vqview/overlay/ReportLayout.h"

#include <algorithm>
#include <cmath>

namespace vqview {

namespace {

using namespace report;

constexpr int kCardAlpha = 236;
constexpr int kBarsAlpha = 130;
constexpr int kGridAlpha = 34;
constexpr int kFrameAlpha = 110;

/// A report while it is drawn.
struct Page
{
    CVQDIB& image;
    const ReportLayout& layout;
    const ReportTexts& texts;
    const Statistics& statistics;
    const Histogram& histogram;
    float scale;

    LONG px(float units) const { return pixels(units, scale); }
    LONG hairline() const { return std::max<LONG>(px(1), 1); }
    /// The row of a value along the colour bar, whose least value is at the bottom.
    LONG rowOf(double value) const
    {
        const double fromTop = (1 - statistics.placeOf(value)) * (layout.bar.Height() - 1);
        return layout.bar.top + static_cast<LONG>(std::lround(fromTop));
    }
    void fill(const CRect& rect, const CVQColor& colour, int alpha) const
    {
        if (rect.Width() > 0 && rect.Height() > 0)
            image.FillRect(rect, colour.GetCOLORREF(), alpha);
    }
    /// A level line, its middle at `y`.
    void fillLine(LONG left, LONG right, LONG y, LONG width, const CVQColor& colour, int alpha) const
    {
        const LONG top = y - (width - 1) / 2;
        fill({left, top, right, top + width}, colour, alpha);
    }
};

/// The background of facts: near white under dark text, near black under bright text.
CVQColor factsFill()
{
    constexpr float kTint = 0.88F;
    const CVQColor background = CVQDrawProperty::GetReportColor(DPC_REPORT_BACKGROUND_COLOR);
    const bool isDarkText = brightnessOf(CVQDrawProperty::GetReportColor(DPC_REPORT_TEXT_COLOR)) < 0.5F;
    return withAlpha(mixed(background, isDarkText ? CVQColor::White : CVQColor::Black, kTint), kCardAlpha);
}

void drawRows(const Page& page, const std::vector<ReportTexts::Row>& rows, const CRect& box)
{
    const TextStyle& style = page.texts.factStyle;
    LONG y = box.top;
    for (const ReportTexts::Row& row : rows) {
        drawLine(page.image, style, row.label, box.left, box.right, y);
        drawLine(page.image, style, row.value, box.left, box.right, y, Align::Right);
        y += style.lineHeight() + page.px(kRowGap);
    }
}

void drawTitle(const Page& page)
{
    const CRect& box = page.layout.title;
    if (box.IsRectEmpty())
        return;
    constexpr float kLighter = 0.18F;
    constexpr float kDarker = 0.28F;
    const CVQColor colour = withAlpha(CVQDrawProperty::GetReportColor(DPC_REPORT_BACKGROUND_COLOR), 255);
    fillRounded(page.image, box, page.px(kCorner), page.layout.facts.IsRectEmpty() ? Corners::All : Corners::Top,
                {mixed(colour, CVQColor::White, kLighter), mixed(colour, CVQColor::Black, kDarker)});
    const LONG left = box.left + page.px(kPadding);
    const LONG right = box.right - page.px(kPadding);
    const TextStyle& style = page.texts.titleStyle;
    drawLine(page.image, style, style.fitted(page.texts.title, right - left), left, right,
             box.top + page.px(kTitlePadding));
}

void drawCard(const Page& page)
{
    CRect card;
    card.UnionRect(page.layout.title, page.layout.facts);
    if (card.IsRectEmpty())
        return;
    dropShadow(page.image, card, page.px(kCorner), page.scale);
    drawTitle(page);
    CRect facts = page.layout.facts;
    if (facts.IsRectEmpty())
        return;
    const CVQColor fill = factsFill();
    fillRounded(page.image, facts, page.px(kCorner), page.layout.title.IsRectEmpty() ? Corners::All : Corners::Bottom,
                {fill, fill});
    facts.DeflateRect(page.px(kPadding), page.px(kPadding) - page.px(kRowGap));
    drawRows(page, page.texts.facts, facts);
}

void drawColours(const Page& page)
{
    const CRect& bar = page.layout.bar;
    for (LONG y = bar.top; y < bar.bottom; ++y) {
        const float fromTop = static_cast<float>(y - bar.top) / static_cast<float>(std::max(bar.Height() - 1, 1));
        page.fill({bar.left, y, bar.right, y + 1}, rampColour(1 - fromTop), 255);
    }
}

void drawAxis(const Page& page)
{
    const CRect& axis = page.layout.axis;
    const CVQColor ink = CVQDrawProperty::GetVQColor(DPC_COLORBAR_TEXT);
    const CVQColor grid = CVQDrawProperty::GetReportColor(DPC_REPORT_GRIDLINE_COLOR);
    const TextStyle& style = page.texts.axisStyle;
    for (const double value : page.layout.ticks.values) {
        const LONG y = page.rowOf(value);
        page.fillLine(axis.right - page.px(kTick), axis.right, y, page.hairline(), ink, kFrameAlpha);
        page.fillLine(page.layout.histogram.left, page.layout.histogram.right, y, page.hairline(), grid, kGridAlpha);
        drawLine(page.image, style, tickText(value, page.layout.ticks), axis.left, axis.right - 2 * page.px(kTick),
                 y - style.lineHeight() / 2, Align::Right);
    }
}

/// At least a pixel where there is anything at all.
LONG barLength(std::size_t count, std::size_t highest, LONG width)
{
    if (count == 0)
        return 0;
    const double share = static_cast<double>(count) / static_cast<double>(highest);
    return std::max<LONG>(static_cast<LONG>(std::lround(share * width)), 1);
}

void drawBars(const Page& page)
{
    const CRect& box = page.layout.histogram;
    if (box.IsRectEmpty())
        return;
    const CVQColor ink = CVQDrawProperty::m_HistogramColor[DPC_HIST_INTOLERANCE];
    const CVQColor marker = CVQDrawProperty::GetReportColor(DPC_REPORT_SELECTION_MARKER_COLOR);
    for (std::size_t bin = 0; bin < page.histogram.all.size(); ++bin) {
        const LONG bottom = box.bottom - static_cast<LONG>(bin) * page.layout.binHeight;
        const LONG top = bottom - page.layout.binHeight + page.hairline();
        const LONG all = barLength(page.histogram.all[bin], page.histogram.highest, box.Width());
        const LONG selected = barLength(page.histogram.selected[bin], page.histogram.highest, box.Width());
        page.fill({box.left, top, box.left + selected, bottom}, marker, 255);
        page.fill({box.left + selected, top, box.left + all, bottom}, ink, kBarsAlpha);
    }
}

void drawMean(const Page& page)
{
    if (page.layout.histogram.IsRectEmpty())
        return;
    page.fillLine(page.layout.bar.left, page.layout.histogram.right, page.rowOf(page.statistics.mean),
                  std::max<LONG>(page.px(1.5F), 1), CVQDrawProperty::m_HistogramColor[DPC_HIST_AVERAGE], 255);
}

void drawLegend(const Page& page)
{
    CRect box = page.layout.legend;
    if (box.IsRectEmpty())
        return;
    const TextStyle& style = page.texts.factStyle;
    const LONG size = page.px(kSwatch);
    const LONG row = style.lineHeight() + page.px(kRowGap);
    const LONG top = box.top + (style.lineHeight() - size) / 2;
    const auto swatch = [&](LONG index, LONG height, const CVQColor& colour, int alpha) {
        const LONG y = top + index * row + (size - height) / 2;
        page.fill({box.left, y, box.left + size, y + height}, colour, alpha);
    };
    swatch(0, size, CVQDrawProperty::m_HistogramColor[DPC_HIST_INTOLERANCE], kBarsAlpha);
    swatch(1, size, CVQDrawProperty::GetReportColor(DPC_REPORT_SELECTION_MARKER_COLOR), 255);
    swatch(2, std::max<LONG>(page.px(1.5F), 1), CVQDrawProperty::m_HistogramColor[DPC_HIST_AVERAGE], 255);
    box.left += size + page.px(kSwatchGap);
    drawRows(page, page.texts.legend, box);
}

void drawChart(const Page& page)
{
    const CRect& chart = page.layout.chart;
    if (chart.IsRectEmpty())
        return;
    const CVQColor fill = withAlpha(CVQDrawProperty::m_HistogramColor[DPC_HIST_BACKGROUND], kCardAlpha);
    dropShadow(page.image, chart, page.px(kCorner), page.scale);
    fillRounded(page.image, chart, page.px(kCorner), Corners::All, {fill, fill});
    const CRect& heading = page.layout.heading;
    const TextStyle& style = page.texts.headingStyle;
    drawLine(page.image, style, style.fitted(page.texts.heading, heading.Width()), heading.left, heading.right,
             heading.top);
    drawColours(page);
    drawAxis(page);
    drawBars(page);
    drawMean(page);
    drawLegend(page);
}

std::size_t selectedCountOf(const ReportContent& content)
{
    return static_cast<std::size_t>(
        std::count_if(content.selected.begin(), content.selected.end(), [&content](std::uint32_t index) {
            return index < content.values.size() && std::isfinite(content.values[index]);
        }));
}

} // namespace

void drawReport(CVQDIB& image, const ReportContent& content, float scale)
{
    const Statistics statistics = withoutTails(content.values, statisticsOf(content.values));
    const ReportTexts texts = reportTexts(content, statistics, selectedCountOf(content), scale);
    const ReportLayout layout = layoutOf({image.GetWidth(), image.GetHeight()}, texts, statistics, scale);
    Histogram histogram;
    if (!layout.histogram.IsRectEmpty())
        histogram = histogramOf(content.values, content.selected, statistics,
                                static_cast<std::size_t>(layout.histogram.Height() / layout.binHeight));
    const Page page{image, layout, texts, statistics, histogram, scale};
    drawCard(page);
    drawChart(page);
}

} // namespace vqview
