// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What all drawing objects have in common, fonts, brushes and stock objects. Handles are checked: a stale, null or
/// foreign one gives FALSE, 0 or null.

#include "Platform/win32/Gdi.h"

// Stock objects.
constexpr int WHITE_BRUSH = 0;
constexpr int LTGRAY_BRUSH = 1;
constexpr int GRAY_BRUSH = 2;
constexpr int DKGRAY_BRUSH = 3;
constexpr int BLACK_BRUSH = 4;
constexpr int NULL_BRUSH = 5;
constexpr int HOLLOW_BRUSH = NULL_BRUSH;
constexpr int WHITE_PEN = 6;
constexpr int BLACK_PEN = 7;
constexpr int NULL_PEN = 8;
constexpr int OEM_FIXED_FONT = 10;
constexpr int ANSI_FIXED_FONT = 11;
constexpr int ANSI_VAR_FONT = 12;
constexpr int SYSTEM_FONT = 13;
constexpr int DEVICE_DEFAULT_FONT = 14;
constexpr int SYSTEM_FIXED_FONT = 16;
constexpr int DEFAULT_GUI_FONT = 17;

// Kinds of objects.
constexpr UINT OBJ_PEN = 1;
constexpr UINT OBJ_BRUSH = 2;
constexpr UINT OBJ_DC = 3;
constexpr UINT OBJ_FONT = 6;
constexpr UINT OBJ_BITMAP = 7;
constexpr UINT OBJ_MEMDC = 10;

/// A font, brush or pen that belongs to the system; null for an index without one.
VQPLATFORM_API HGDIOBJ GetStockObject(int index);

/// Describes an object: LOGFONTW, BITMAP or DIBSECTION, LOGBRUSH, LOGPEN. Returns the bytes written, 0 on failure; for
/// a null buffer the bytes a full description has. A font's or brush's description may be cut short by a smaller
/// `bytes`, a bitmap's or pen's may not; bitmaps made by `CreateDIBSection` fill a DIBSECTION when there is room for
/// it.
VQPLATFORM_API int GetObjectW(HANDLE object, int bytes, LPVOID buffer);

/// One of OBJ_...; 0 for what is no live object.
VQPLATFORM_API DWORD GetObjectType(HGDIOBJ object);

/// Frees an object. Stock objects stay, with TRUE. A bitmap selected into a context stays, with FALSE; a font, brush or
/// pen that is selected loses its handle at once and lives on in the context.
VQPLATFORM_API BOOL DeleteObject(HGDIOBJ object);

/// The face name is cut at its 31st unit; everything else is kept as it is.
VQPLATFORM_API HFONT CreateFontIndirectW(const LOGFONTW* font);
VQPLATFORM_API HBRUSH CreateSolidBrush(COLORREF colour);
