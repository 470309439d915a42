// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <array>
#include <string>

namespace vqview {

struct KeyRow
{
    const char* key; ///< UTF-8, as what it does
    const char* effect;
};

// clang-format off
inline constexpr std::array kKeyRows{
    KeyRow{"Left drag",               "Turn the view"},
    KeyRow{"Right drag",              "Turn the view with every tool"},
    KeyRow{"Middle or Shift+left",    "Move the view"},
    KeyRow{"Wheel",                   "Go to what is under the mouse"},
    KeyRow{"F, Enter",                "Fit the scan into the view"},
    KeyRow{"1  3  7  9",              "Front, right, top, opposite side"},
    KeyRow{"5",                       "Perspective or orthographic"},
    KeyRow{"E  D  T",                 "Edges, points, labels"},
    KeyRow{"O  N",                    "Report, its next values"},
    KeyRow{"F12",                     "Save a picture"},
    KeyRow{"H",                       "These keys"},
    KeyRow{"B  C  L",                 "Select by box, circle, line"},
    KeyRow{"A  P",                    "Select by lasso, polygon"},
    KeyRow{"Enter, right click",      "Close the polygon"},
    KeyRow{"Backspace",               "Take back the last corner"},
    KeyRow{"M  V",                    "Measure, look"},
    KeyRow{"X",                       "What is visible, or all through"},
    KeyRow{"Ctrl, Shift",             "Add, subtract"},
    KeyRow{"Ctrl+Z, Ctrl+Y",          "Undo, redo"},
    KeyRow{"Ctrl+A, Ctrl+I",          "Select all, turn over"},
    KeyRow{"Escape",                  "Drop the shape, select nothing"},
};
// clang-format on

/// @name Texts for the user, over what is there
/// In rounded boxes of the colours and the font of controls; cut with an ellipsis where the image is too narrow.
/// @return the box that was drawn; empty, with nothing drawn, for an empty text or where there is no room for a line.
/// @{
/// One line in the lower left corner.
CRect drawStatus(CVQDIB& image, const std::string& text, float scale);
/// One line at the centre of the row above the status line.
CRect drawNotice(CVQDIB& image, const std::string& text, float scale);
/// The list of keys in the middle of the image, above the rows of status and notice: in two columns, or one where two
/// do not fit. The font is smaller where the whole list fits then, though by no more than three tenths; otherwise what
/// does not fit is left out from the end. It would lie over a report, which is better not drawn meanwhile.
CRect drawKeys(CVQDIB& image, float scale);
/// @}

/// How many pixels at the bottom of an image the rows of status and notice take, with their distances.
LONG noticeRows(float scale);

} // namespace vqview
