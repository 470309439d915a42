// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Small calculations.

#include "Platform/win32/Types.h"

/// number * numerator / denominator, exact in 64 bits and rounded to the nearest integer, halves away from zero.
/// -1 when the denominator is 0 or the result's magnitude is above 2147483647.
VQPLATFORM_API int MulDiv(int number, int numerator, int denominator);

/// Hue, luminance and saturation of a colour in integers, hue 0 .. 239, the others 0 .. 240; greys have hue 160 and
/// saturation 0. Null outputs are left out.
VQPLATFORM_API void ColorRGBToHLS(COLORREF colour, WORD* hue, WORD* luminance, WORD* saturation);
