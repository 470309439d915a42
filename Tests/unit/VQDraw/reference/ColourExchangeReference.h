// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Exchange of colours and the fractal map, one pixel at a time.

#include "Picture.h"

namespace vq::reference {

/// `from` is 0x00RRGGBB, `to` is 0x00BBGGRR; the top byte of `to` joins the weight. @return what the member returns
int exchangeColor(Picture& picture, Word from, Word to, Number alpha);
int exchangeColors(Picture& picture, const std::vector<Word>& from, const std::vector<Word>& to, Number alpha);

/// Draws a number of 0 or more.
using Draw = int (*)();

void buildFractalMap(Picture& picture, Number red, Number green, Number blue, Number alpha, Draw draw);

} // namespace vq::reference
