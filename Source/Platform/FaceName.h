// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"
#include "Platform/System.h"

#include <string>
#include <string_view>

namespace vq::platform {

/// Stores a face name in a font's record, whose units have 16 bits on every system: as much as fits beside the
/// terminator, no pair of surrogates cut in half, unused units 0. The name ends at a null character in it.
VQPLATFORM_API void setFaceName(LOGFONTW& font, std::wstring_view name);

/// The face name up to its terminator; of a record without one all 32 units.
VQPLATFORM_API std::wstring faceName(const LOGFONTW& font);

} // namespace vq::platform
