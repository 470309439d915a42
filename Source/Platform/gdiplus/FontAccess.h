// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// From the classes of fonts to the engine's fonts and back. Not part of the interface.

#include "Platform/gdiplus/Enums.h"
#include "Platform/gdiplus/text/Font.h"

namespace vq::gdiplus {

/// The face and the style of a font, at a size.
FontDescription styled(const FontDescription& family, INT style, float size);

/// The font of a family at any size, for what does not depend on it; null when it cannot be opened.
std::shared_ptr<const Font> openSample(const FontDescription& family, INT style);

/// The family of a font: its face alone, in the spelling that the font has. What stands in for another face goes by the
/// name of that.
FontDescription familyOf(const Font& font);

/// The sum of FontStyle values.
INT styleOf(const FontDescription& font);

/// Face and style as a record, without a size.
LOGFONTW recordOf(const FontDescription& font);

} // namespace vq::gdiplus
