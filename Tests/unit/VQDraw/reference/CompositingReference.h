// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Whole-image operations, one pixel at a time. Two-image operations pair pixels by their index; a source that has
/// fewer pixels than the destination, or none, changes nothing. A source may be the destination itself.

#include "Picture.h"

namespace vq::reference {

void add(Picture& dst, const Picture& src);
void subtract(Picture& dst, const Picture& src);
void multiply(Picture& dst, const Picture& src);
void screen(Picture& dst, const Picture& src);
void differenceOf(Picture& dst, const Picture& src);
void lighten(Picture& dst, const Picture& src, Number level);
void darken(Picture& dst, const Picture& src, Number level);
void darkenBy(Picture& picture, Number level);
void invert(Picture& picture);
void convertToGray(Picture& picture);
void convertToGray(Picture& picture, Rectangle area);
void quantize(Picture& picture, Number bits);
void equalize(Picture& picture);

} // namespace vq::reference
