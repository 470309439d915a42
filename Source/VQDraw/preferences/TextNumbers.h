// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Numbers at the beginning of a text, in decimals, behind white space and a sign, whatever the locale is. A text that
/// begins with no number is 0; what follows the number does not matter.

#include "Platform/Platform.h"

namespace vq {

/// Limited to what an `int` holds.
int integerOf(const CString& text);

/// With a point, and an exponent behind `e` or `E`, if any. A number that is too large for a double is infinite.
double realOf(const CString& text);

} // namespace vq
