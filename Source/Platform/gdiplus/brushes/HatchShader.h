// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/compositor/PixelView.h"

#include <array>
#include <span>

namespace vq::gdiplus {

/// A cell of 8 x 8 pixels, repeated from an origin on the surface in every direction.
class HatchShader
{
public:
    /// `style` is one of the 53 of HatchStyle.
    HatchShader(int style, Pixel foreground, Pixel background, int originX, int originY);

    /// The colours of the pixels from (x, y) to the right.
    void shade(std::span<Pixel> row, int x, int y) const;

private:
    static constexpr unsigned kSize = 8;

    std::array<std::array<Pixel, kSize>, kSize> m_cell;
    unsigned m_originX, m_originY; // modulo the size, as all that is done with them
};

} // namespace vq::gdiplus
