// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"

namespace vq::platform {

/// How much larger than 96 dots per inch the display is: what was set, or else what the system says of its screen.
VQPLATFORM_API float displayScale();
/// Factors that are not finite or not above 0 are refused. Where the system has no screen of its own, the resolution
/// that device contexts report follows.
VQPLATFORM_API void setDisplayScale(float factor);

} // namespace vq::platform
