// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Names of Windows faces and what stands in for them.

#include "Platform/gdiplus/text/FontDescription.h"

#include <span>
#include <string_view>

namespace vq::gdiplus {

/// Whether two face names are the same when the case of ASCII letters does not count.
bool sameFace(std::u16string_view first, std::u16string_view second);

/// Families (UTF-8) to try in order when the face itself is not held, the nearest in width and look first. Empty for a
/// face that is not known; an empty name and the names of the user interface have the same list.
std::span<const char* const> substitutesFor(std::u16string_view face);

/// The generic family (fontconfig's) that ends every list.
const char* genericFamily(std::u16string_view face, FontClass fontClass);

} // namespace vq::gdiplus
