// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Colours of histograms and reports that start-up sets.

#include "VQDraw/VQDrawProperty.h"
#include "VQDraw/preferences/TableRows.h"

namespace vq {

struct HistogramColour
{
    eHistogramColor id;
    const wchar_t* name;
    CVQColor initial;
};

struct ReportColour
{
    eDrawPropertyReportColor id;
    const wchar_t* name;
    CVQColor initial;
};

// The name cannot differ from the enumerator.
// clang-format off
#define ROW(id, initial) HistogramColour{id, L"" #id, initial}
inline constexpr std::array kHistogramColours{
    ROW(DPC_HIST_INTOLERANCE,  CVQColor(0, 0, 0)),
    ROW(DPC_HIST_OUTTOLERANCE, CVQColor(255, 255, 255)),
    ROW(DPC_HIST_AVERAGE,      CVQColor(255, 0, 0)),
    ROW(DPC_HIST_BACKGROUND,   CVQColor(255, 255, 255)),
};
#undef ROW

#define ROW(id, initial) ReportColour{id, L"" #id, initial}
inline constexpr std::array kReportColours{
    ROW(DPC_REPORT_GRIDLINE_COLOR,         CVQColor(0, 0, 0)),
    ROW(DPC_REPORT_BACKGROUND_COLOR,       CVQColor(79, 129, 189)),
    ROW(DPC_REPORT_TEXT_COLOR,             CVQColor(0, 0, 0)),
    ROW(DPC_REPORT_SELECTION_MARKER_COLOR, CVQColor(82, 128, 211)),
};
#undef ROW
// clang-format on
static_assert(kHistogramColours.size() == DPC_HIST_COLOR_END && everyRowStandsAtItsId(kHistogramColours));
static_assert(kReportColours.size() == DPC_REPORT_COLOR_END && everyRowStandsAtItsId(kReportColours));
inline constexpr auto kHistogramColourNames = namesOf(kHistogramColours, L"DPC_HIST_COLOR_END");
inline constexpr auto kReportColourNames = namesOf(kReportColours, L"DPC_REPORT_COLOR_END");

} // namespace vq
