// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Objects that belong to the system. Internal to this folder.

#include "Platform/win32/GdiTable.h"

namespace vq::win32 {

/// The bitmap of 1 x 1 pixels that a new memory context has selected.
constexpr int kDefaultBitmap = 21;

/// Made when first wanted; null for an index without an object. The caller holds `gdiLock`.
std::shared_ptr<GdiObject> stockObject(int index);

} // namespace vq::win32
