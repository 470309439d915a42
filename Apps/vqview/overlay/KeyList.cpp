// SPDX-License-Identifier: MIT
#include "vqview/overlay/Notices.h"
#include "vqview/overlay/Panels.h"
#include "vqview/text/Text.h"

#include <algorithm>

namespace vqview {

namespace {

constexpr float kMargin = 12; // lengths are in units
constexpr float kPadding = 16;
constexpr float kRowGap = 3;
constexpr float kGap = 14;       // from a key to what it does
constexpr float kColumnGap = 32; // from one column to the next
constexpr float kCorner = 10;
constexpr float kShrink = 0.9F; // from one size of the font to the next
constexpr float kSmallest = 0.7F;

/// Where the list's parts lie.
struct KeyGrid
{
    LONG keyWidth = 0, effectWidth = 0;
    LONG rowHeight = 0;
    LONG columns = 1;
    LONG rows = 0; ///< a column
    bool isWhole = false;

    LONG width(float scale) const
    {
        const LONG column = keyWidth + pixels(kGap, scale) + effectWidth;
        return columns * column + (columns - 1) * pixels(kColumnGap, scale) + 2 * pixels(kPadding, scale);
    }
    LONG height(float scale) const { return rows * rowHeight - pixels(kRowGap, scale) + 2 * pixels(kPadding, scale); }
};

struct KeyStyles
{
    TextStyle key, effect;
};

KeyStyles stylesOf(float scale)
{
    KeyStyles styles{styleOf(DPF_UI_CTRL_FONT, scale), styleOf(DPF_UI_CTRL_FONT, scale)};
    styles.key.colour = CVQDrawProperty::GetVQColor(DPC_UI_CTRL_SELECT).GetCOLORREF();
    styles.effect.colour = CVQDrawProperty::GetVQColor(DPC_UI_CTRL_TEXT).GetCOLORREF();
    return styles;
}

/// Two columns where they fit into the room, otherwise one, with as many rows as fit, and effects cut to the width.
KeyGrid gridFor(const CSize& room, const KeyStyles& styles, float scale)
{
    constexpr LONG kCount = static_cast<LONG>(kKeyRows.size());
    KeyGrid grid;
    for (const KeyRow& row : kKeyRows) {
        grid.keyWidth = std::max(grid.keyWidth, styles.key.widthOf(textOf(row.key)));
        grid.effectWidth = std::max(grid.effectWidth, styles.effect.widthOf(textOf(row.effect)));
    }
    grid.rowHeight = styles.key.lineHeight() + pixels(kRowGap, scale);
    const LONG fitting = (room.cy - 2 * pixels(kPadding, scale) + pixels(kRowGap, scale)) / grid.rowHeight;
    grid.columns = 2;
    if (grid.width(scale) > room.cx)
        grid.columns = 1;
    grid.rows = std::clamp<LONG>(fitting, 0, (kCount + grid.columns - 1) / grid.columns);
    const LONG excess = std::max<LONG>(grid.width(scale) - room.cx, 0);
    grid.effectWidth -= excess;
    grid.isWhole = excess == 0 && grid.rows * grid.columns >= kCount;
    return grid;
}

/// The largest at which the whole list fits; the given one where it never does.
float fontScaleFor(const CSize& room, float scale)
{
    for (float smaller = scale; smaller > scale * kSmallest; smaller *= kShrink)
        if (gridFor(room, stylesOf(smaller), scale).isWhole)
            return smaller;
    return scale;
}

void drawRow(CVQDIB& image, const KeyStyles& styles, const KeyGrid& grid, const KeyRow& row, CPoint at, float scale)
{
    const LONG effect = at.x + grid.keyWidth + pixels(kGap, scale);
    drawLine(image, styles.key, textOf(row.key), at.x, at.x + grid.keyWidth, at.y);
    drawLine(image, styles.effect, styles.effect.fitted(textOf(row.effect), grid.effectWidth), effect,
             effect + grid.effectWidth, at.y);
}

void drawRows(CVQDIB& image, const KeyStyles& styles, const KeyGrid& grid, const CRect& box, float scale)
{
    const LONG padding = pixels(kPadding, scale);
    const LONG columnStep = (box.Width() - 2 * padding + pixels(kColumnGap, scale)) / grid.columns;
    const LONG count = std::min<LONG>(grid.rows * grid.columns, static_cast<LONG>(kKeyRows.size()));
    for (LONG i = 0; i < count; ++i)
        drawRow(image, styles, grid, kKeyRows[static_cast<std::size_t>(i)],
                {box.left + padding + i / grid.rows * columnStep, box.top + padding + i % grid.rows * grid.rowHeight},
                scale);
}

void drawPanel(CVQDIB& image, const CRect& box, float scale)
{
    const CVQColor colour =
        withAlpha(CVQDrawProperty::GetVQColor(DPC_UI_CTRL_BG), CVQDrawProperty::m_ucUICtrlAlpha[DPC_UI_MGR_ALPHA]);
    constexpr CVQColor kDarker(30, 30, 30);
    dropShadow(image, box, pixels(kCorner, scale), scale);
    fillRounded(image, box, pixels(kCorner, scale), Corners::All, {colour - kDarker, colour - kDarker});
}

} // namespace

CRect drawKeys(CVQDIB& image, float scale)
{
    const LONG margin = pixels(kMargin, scale);
    const CSize room(image.GetWidth() - 2 * margin, image.GetHeight() - noticeRows(scale) - margin);
    const KeyStyles styles = stylesOf(fontScaleFor(room, scale));
    const KeyGrid grid = gridFor(room, styles, scale);
    if (grid.rows < 1 || grid.effectWidth < grid.rowHeight)
        return {};
    const CSize size(grid.width(scale), grid.height(scale));
    const CRect box(CPoint(margin + (room.cx - size.cx) / 2, margin + (room.cy - size.cy) / 2), size);
    drawPanel(image, box, scale);
    drawRows(image, styles, grid, box, scale);
    return box;
}

} // namespace vqview
