// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// How shapes come into images.

#include "Platform/Platform.h"
#include "VQDraw/VQDIB.h"
#include "VQDraw/draw/TextArguments.h"

#include <cstdint>

namespace vq {

/// The image writes in this colour as long as it lives; afterwards in its own, opaque.
class TextColour
{
public:
    TextColour(CVQDIB& image, COLORREF colour) : m_image(image), m_former(image.GetTextColor())
    {
        m_image.SetTextColor(colour, 255);
    }
    ~TextColour() { m_image.SetTextColor(m_former, 255); }
    TextColour(const TextColour&) = delete;
    TextColour& operator=(const TextColour&) = delete;

private:
    CVQDIB& m_image;
    COLORREF m_former;
};

/// The nearest point that there is: far out of sight it does not matter where.
inline CPoint moved(const CPoint& point, std::int64_t dx, std::int64_t dy)
{
    return {toCoordinate(point.x + dx), toCoordinate(point.y + dy)};
}

/// 4 x 4 pixels, where both edges count 5 x 5.
inline CRect squareAround(const CPoint& point)
{
    return {moved(point, -2, -2), moved(point, 2, 2)};
}

inline void drawLine(CVQDIB& image, const CPoint& from, const CPoint& to, COLORREF colour, LONG alpha)
{
    image.Line(from.x, from.y, to.x, to.y, colour, alpha, 1, false);
}

inline void drawSquare(CVQDIB& image, const CPoint& centre, COLORREF colour, LONG alpha)
{
    CRect square = squareAround(centre);
    image.DrawRect(square, colour, alpha);
}

} // namespace vq
