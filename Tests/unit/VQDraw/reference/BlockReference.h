// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Copy, paste and blend, one pixel at a time. A source may be the destination itself.

#include "Picture.h"

namespace vq::reference {

/// A block of a transfer. Wide, because the arguments may be any 32-bit numbers.
struct Block
{
    std::int64_t dx, dy, sx, sy, w, h;

    bool isNothing() const { return w <= 0 || h <= 0; }
};

/// Clips a block to both pictures; false when it lies wholly outside one of them.
bool clip(Block& block, const Picture& dst, const Picture& src);

void copy(Picture& dst, const Picture& src, Block block);
void paste(Picture& dst, const Picture& src, Block block);

void blend(Picture& dst, const Picture& src);
void blend(Picture& dst, const Picture& src, Number weight);
void blendColour(Picture& dst, Number red, Number green, Number blue, Number weight);
/// The colour is 0x00BBGGRR; its top byte joins the weight.
void blendColorRef(Picture& dst, Word colour, Number alpha);

} // namespace vq::reference
