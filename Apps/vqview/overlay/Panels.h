// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <span>
#include <string>

namespace vqview {

/// A length in units, at 96 dots per inch, as whole pixels of an image that is drawn larger by `scale`.
LONG pixels(float units, float scale);

/// How a text is drawn into an image.
struct TextStyle
{
    LOGFONTW font;
    COLORREF colour;
    bool hasShadow;

    LONG lineHeight() const;
    /// What a line takes from the first letter's left to the last one's right, about.
    LONG widthOf(const CString& text) const;
    /// The text, or as much of its beginning as fits with an ellipsis behind it; empty where not even that fits.
    CString fitted(const CString& text, LONG width) const;
};

/// A font of the store and its colour. Its height follows its nominal size, which is kept in bounds: a size of 0 from a
/// file would show nothing, one of thousands would cover all.
TextStyle styleOf(eDrawPropertyFont font, float scale);

enum class Align { Left, Centre, Right };

/// Draws a line of text between two columns, the upper edge of the line at `y`. The image keeps style and colour.
void drawLine(CVQDIB& image, const TextStyle& style, const CString& text, LONG left, LONG right, LONG y,
              Align align = Align::Left);

/// Fills of a rounded box, from the top down.
struct PanelFill
{
    CVQColor top, bottom;
};

enum class Corners { All, Top, Bottom };

/// Pixels of `image` in a rectangle, whose right and bottom edges lie outside, by GDI+.
void fillRounded(CVQDIB& image, const CRect& box, LONG radius, Corners corners, const PanelFill& fill);

/// A soft shadow below a rounded box.
void dropShadow(CVQDIB& image, const CRect& box, LONG radius, float scale);

CVQColor withAlpha(CVQColor colour, int alpha);
/// 0: all of the first .. 1: all of the second; alpha is that of the first.
CVQColor mixed(const CVQColor& first, const CVQColor& second, float share);
/// How bright a colour is seen, 0 .. 1.
float brightnessOf(const CVQColor& colour);

} // namespace vqview
