// SPDX-License-Identifier: MIT
#include "vqview/overlay/Notices.h"

#include "vqview/overlay/Panels.h"
#include "vqview/text/Text.h"

#include <algorithm>

namespace vqview {

namespace {

constexpr float kMargin = 12; // to the image's edges; lengths are in units
constexpr float kGap = 8;     // between status and notice
constexpr float kPaddingX = 10;
constexpr float kPaddingY = 4;
constexpr float kCorner = 7;

TextStyle controlStyle(float scale)
{
    TextStyle style = styleOf(DPF_UI_CTRL_FONT, scale);
    style.colour = CVQDrawProperty::GetVQColor(DPC_UI_CTRL_TEXT).GetCOLORREF();
    return style;
}

PanelFill controlFill()
{
    const CVQColor colour =
        withAlpha(CVQDrawProperty::GetVQColor(DPC_UI_CTRL_BG), CVQDrawProperty::m_ucUICtrlAlpha[DPC_UI_MGR_ALPHA]);
    constexpr CVQColor kLighter(14, 14, 14);
    constexpr CVQColor kDarker(22, 22, 22);
    return {colour + kLighter, colour - kDarker};
}

LONG boxHeight(const TextStyle& style, float scale)
{
    return style.lineHeight() + 2 * pixels(kPaddingY, scale);
}

/// A box with a line, whose lower edge is at `bottom`.
CRect drawBox(CVQDIB& image, const std::string& text, LONG bottom, Align align, float scale)
{
    const TextStyle style = controlStyle(scale);
    const LONG padding = pixels(kPaddingX, scale);
    const LONG margin = pixels(kMargin, scale);
    const CString line = style.fitted(textOf(text), image.GetWidth() - 2 * (margin + padding));
    const LONG height = boxHeight(style, scale);
    if (line.IsEmpty() || bottom - height < 0 || bottom > image.GetHeight())
        return {};
    const LONG width = style.widthOf(line) + 2 * padding;
    const LONG left = align == Align::Left ? margin : (image.GetWidth() - width) / 2;
    const CRect box(left, bottom - height, left + width, bottom);
    dropShadow(image, box, pixels(kCorner, scale), scale);
    fillRounded(image, box, pixels(kCorner, scale), Corners::All, controlFill());
    drawLine(image, style, line, box.left + padding, box.right - padding, box.top + pixels(kPaddingY, scale));
    return box;
}

} // namespace

CRect drawStatus(CVQDIB& image, const std::string& text, float scale)
{
    return drawBox(image, text, image.GetHeight() - pixels(kMargin, scale), Align::Left, scale);
}

CRect drawNotice(CVQDIB& image, const std::string& text, float scale)
{
    const LONG above = pixels(kMargin, scale) + boxHeight(controlStyle(scale), scale) + pixels(kGap, scale);
    return drawBox(image, text, image.GetHeight() - above, Align::Centre, scale);
}

LONG noticeRows(float scale)
{
    return pixels(kMargin, scale) + 2 * (boxHeight(controlStyle(scale), scale) + pixels(kGap, scale));
}

} // namespace vqview
