// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

namespace vqview {

/// The colour of a value by its place in the range, 0 the least .. 1 the most: from blue by green and yellow to red.
/// Places beyond are those of the ends; what is not a number is grey.
CVQColor rampColour(float place);

} // namespace vqview
