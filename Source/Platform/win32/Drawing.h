// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Drawing on device contexts. Colours are written with an alpha byte of 0, as all drawing of this interface does.
/// A context that a graphics lent out takes the memory of its picture here: all calls fail, with
/// ERROR_NOT_ENOUGH_MEMORY, when there is none.

#include "Platform/win32/Gdi.h"

constexpr DWORD SRCCOPY = 0x00CC0020;
constexpr DWORD PATCOPY = 0x00F00021;
constexpr DWORD BLACKNESS = 0x00000042;
constexpr DWORD WHITENESS = 0x00FF0062;

constexpr COLORREF CLR_INVALID = 0xFFFFFFFF;

/// SRCCOPY moves all four bytes of every pixel that lies inside both surfaces, in any overlap as if the source had been
/// put aside first. BLACKNESS, WHITENESS (all bits set, alpha too) and PATCOPY (the selected brush) take no source. A
/// size of 0 or less transfers nothing. FALSE for other operations and where a context has no 32-bit pixels.
VQPLATFORM_API BOOL BitBlt(HDC target, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                           DWORD operation);
VQPLATFORM_API BOOL PatBlt(HDC target, int x, int y, int width, int height, DWORD operation);

/// Fills without the right and bottom edge. TRUE also where nothing lies inside the surface.
VQPLATFORM_API int FillRect(HDC context, const RECT* rect, HBRUSH brush);

/// The colour that was set; CLR_INVALID outside the surface.
VQPLATFORM_API COLORREF SetPixel(HDC context, int x, int y, COLORREF colour);
VQPLATFORM_API COLORREF GetPixel(HDC context, int x, int y);
