// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/overlay/Histogram.h"
#include "vqview/overlay/Panels.h"
#include "vqview/overlay/ReportImage.h"

#include <array>
#include <vector>

namespace vqview {

/// Texts of a report and the fonts that they are set in.
struct ReportTexts
{
    struct Row
    {
        CString label, value; ///< the value is lined up at the right
    };

    TextStyle titleStyle, factStyle, headingStyle, axisStyle;
    CString title, heading;
    std::vector<Row> facts;
    std::vector<Row> legend; ///< all, selected, mean
};

ReportTexts reportTexts(const ReportContent& content, const Statistics& statistics, std::size_t selectedCount,
                        float scale);

/// Where a report's parts lie in an image, in pixels. Parts that are left out are empty.
struct ReportLayout
{
    CRect title; ///< a box with round corners; those at the bottom are plain where facts follow
    CRect facts; ///< joins the title, if there is one
    CRect chart; ///< the box around all that follow
    CRect heading;
    CRect axis;      ///< of the numbers
    CRect bar;       ///< of the colours
    CRect histogram; ///< as high as the bar
    CRect legend;
    LONG binHeight = 0; ///< of which the bar's height is a multiple
    Ticks ticks;
};

ReportLayout layoutOf(const CSize& image, const ReportTexts& texts, const Statistics& statistics, float scale);

/// A number of the axis, in powers of its exponent.
CString tickText(double value, const Ticks& ticks);

/// Lengths in units that layout and drawing share.
namespace report {
inline constexpr float kPadding = 12;
inline constexpr float kTitlePadding = 7; // above and below the title
inline constexpr float kRowGap = 2;
inline constexpr float kTick = 4;
inline constexpr float kSwatch = 8;
inline constexpr float kSwatchGap = 6;
inline constexpr float kCorner = 8;
} // namespace report

} // namespace vqview
