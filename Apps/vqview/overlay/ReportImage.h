// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace vqview {

struct Model;

/// What a report tells. Texts are UTF-8.
struct ReportContent
{
    std::string title;                       ///< cut with an ellipsis where it does not fit; without it no title box
    std::vector<std::string> lines;          ///< facts; what stands behind a tab is lined up at the right
    std::string valueName;                   ///< heading of the colour bar
    std::span<const float> values;           ///< what is not finite does not count; without any no colour bar
    std::span<const std::uint32_t> selected; ///< indices of values, each once; those beyond do not count
    std::string unit;                        ///< of the values, named in the heading and with their mean; may be empty
};

/// Number of points, triangles, edges and selected points, and the sizes of the bounds, as `ReportContent::lines`.
std::vector<std::string> factsOf(const Model& model, std::size_t selectedCount);

/// Draws a report over what is there, usually an image of the window's size that has been cleared: the title with the
/// facts in the upper left corner, and in the upper right one the colour bar with a histogram along it. Colours and
/// fonts are those of `CVQDrawProperty`.
///
/// The rows of `drawStatus` and `drawNotice` at the bottom stay free. What does not fit is left out, in this order: the
/// legend below the colour bar, the histogram, the facts, the colour bar, the title. Nothing overlaps.
///
/// Where a hundredth of the values at either end takes up most of their range, bar and histogram show that of the
/// others.
///
/// @param scale pixels that a unit of text and lines takes, above 0: 1, 1.25, 2 ...
void drawReport(CVQDIB& image, const ReportContent& content, float scale);

} // namespace vqview
