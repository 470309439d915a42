// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/window/Tables.h"

#include <VQDraw/VQDraw.h>

#include <string>
#include <string_view>

namespace vqview {

/// @name A font preference as the panel shows it
/// @{
std::string faceOf(const CVQFont& font);
/// A face that is too long is cut, never within a character.
void setFace(CVQFont& font, std::string_view utf8);

/// In pixels at 96 dots per inch, without the sign by which a font's record tells heights of characters from cells'.
int heightOf(const CVQFont& font);
/// Sets nominal size, height and point height, the latter two for the screen's resolution. At least 1.
void setHeight(CVQFont& font, int height);

Value fontColourOf(const CVQFont& font);
void setFontColour(CVQFont& font, const Value& value);
/// @}

/// Gives all fonts of the preferences their heights anew, for a screen whose resolution has changed.
void followScreenResolution();

} // namespace vqview
