// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Bitmaps of 32 bits per pixel. A bitmap that cannot be had is null, with ERROR_INVALID_PARAMETER, ERROR_NOT_SUPPORTED
/// or ERROR_NOT_ENOUGH_MEMORY.

#include "Platform/win32/Gdi.h"

/// A zeroed bitmap of the kind that belongs to the context: 32 bits per pixel, or monochrome when a monochrome bitmap
/// is selected there. A width or height of 0 gives the monochrome 1 x 1 stock bitmap; negative sizes fail.
VQPLATFORM_API HBITMAP CreateCompatibleBitmap(HDC context, int width, int height);

/// A bitmap of one plane and 1 or 32 bits per pixel, filled from `bits` (rows from the top, each a multiple of 2 bytes
/// long), or zeroed. Nothing draws on monochrome bitmaps.
VQPLATFORM_API HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits);

/// A zeroed bitmap whose pixels the host may use at `*bits` until it is deleted: 32 bits per pixel, BI_RGB, or
/// BI_BITFIELDS with the same order of channels. A negative height puts the top row first. `section` must be null, the
/// usage and the offset are not used. On failure `*bits` is null.
VQPLATFORM_API HBITMAP CreateDIBSection(HDC context, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                                        DWORD offset);

/// Copies rows of a bitmap to `bits`, which is laid out as `info` says: 32 bits per pixel, BI_RGB or BI_BITFIELDS. Rows
/// are counted from the bottom, also where the header's height is negative; the header's picture lies at the bitmap's
/// top left, and what it has beyond the bitmap becomes 0. Returns the rows taken from the bitmap.
///
/// Without `bits` it fills in the header: completely, returning the bitmap's height, when its bits per pixel are 0;
/// otherwise the size of the image only.
VQPLATFORM_API int GetDIBits(HDC context, HBITMAP bitmap, UINT firstRow, UINT rows, LPVOID bits, BITMAPINFO* info,
                             UINT usage);

/// The way back: `bits` begins with the first of the rows. Rows and columns outside the bitmap are left out. Returns
/// the rows given, limited for bottom-up headers to the header's height.
VQPLATFORM_API int SetDIBits(HDC context, HBITMAP bitmap, UINT firstRow, UINT rows, const void* bits,
                             const BITMAPINFO* info, UINT usage);
