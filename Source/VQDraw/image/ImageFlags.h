// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace vq {

/// Bits of an image's flags.
inline constexpr std::uint32_t kTextShadow = 1;
inline constexpr std::uint32_t kAntialias = 2;
inline constexpr std::uint32_t kAutomaticShadowColour = 4;

} // namespace vq
