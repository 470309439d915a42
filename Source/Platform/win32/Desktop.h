// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The screen of a system without one. Internal to this folder.

#include "Platform/win32/Surface.h"

namespace vq::win32 {

constexpr LONG kDesktopWidth = 1920;
constexpr LONG kDesktopHeight = 1080;

/// One for the process, black at first; it takes memory when it is first wanted. Empty when that cannot be had. The
/// caller holds `gdiLock`.
std::optional<Surface> desktopSurface();

} // namespace vq::win32
