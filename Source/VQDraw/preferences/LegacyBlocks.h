// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Blocks of the legacy layout of preference files: what may stand between an opening and a closing line.

#include "VQDraw/preferences/LegacyLines.h"

#include <array>
#include <cstddef>
#include <optional>
#include <span>

namespace vq {

enum class LegacyNumber { Integer, Real };

struct LegacyProperty
{
    const wchar_t* tag;
    LegacyNumber number;
    std::size_t slot; ///< where its value goes
};

/// The numbers of a block by slot; without a value: not mentioned. The last of those that are mentioned twice counts.
inline constexpr std::size_t kLegacySlots = 11;
using LegacyValues = std::array<std::optional<double>, kLegacySlots>;

struct LegacyLayout
{
    const wchar_t* opening; ///< the closing line is this with a slash
    std::span<const LegacyProperty> properties;
    std::span<const LegacyLayout> parts; ///< blocks within it
};

/// In either case of letters, the whole line.
bool opens(const LegacyLayout& layout, const CString& line);

/// Reads what follows the opening line up to the closing one. False when the file ends before.
[[nodiscard]] bool readLegacyBlock(TextLines& lines, const LegacyLayout& layout, LegacyValues& values);

} // namespace vq
