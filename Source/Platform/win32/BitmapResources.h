// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Bitmaps that programs and libraries carry with them, by number.

#include "Platform/win32/Types.h"

/// A new bitmap of 32 bits from the resource `name`, which the caller deletes; null when there is none, or `name` is a
/// text and no MAKEINTRESOURCEW. Which module it is asked from does not matter here: numbers are the process's.
VQPLATFORM_API HBITMAP LoadBitmapW(HINSTANCE module, LPCWSTR name);

namespace vq::win32 {

/// Makes a bitmap file in memory, which must stay as it is, the resource of that number, in place of a former one; null
/// takes it away. False when the memory for the entry cannot be had. The file is looked at when it is loaded.
VQPLATFORM_API bool setBitmapResource(WORD number, const void* file, std::size_t bytes) noexcept;

} // namespace vq::win32
