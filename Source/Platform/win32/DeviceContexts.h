// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Device contexts over bitmaps and over the screen, which is a picture in memory of 1920 x 1080 pixels here.

#include "Platform/win32/Gdi.h"

// Capabilities.
constexpr int DRIVERVERSION = 0;
constexpr int TECHNOLOGY = 2;
constexpr int HORZSIZE = 4;
constexpr int VERTSIZE = 6;
constexpr int HORZRES = 8;
constexpr int VERTRES = 10;
constexpr int BITSPIXEL = 12;
constexpr int PLANES = 14;
constexpr int NUMCOLORS = 24;
constexpr int RASTERCAPS = 38;
constexpr int ASPECTX = 40;
constexpr int ASPECTY = 42;
constexpr int ASPECTXY = 44;
constexpr int LOGPIXELSX = 88;
constexpr int LOGPIXELSY = 90;
constexpr int SIZEPALETTE = 104;
constexpr int COLORRES = 108;
constexpr int VREFRESH = 116;
constexpr int DESKTOPVERTRES = 117;
constexpr int DESKTOPHORZRES = 118;
constexpr int SHADEBLENDCAPS = 120;

constexpr int DT_RASDISPLAY = 1;
constexpr int RC_BITBLT = 0x0001;
constexpr int RC_BITMAP64 = 0x0008;
constexpr int RC_GDI20_OUTPUT = 0x0010;
constexpr int RC_DI_BITMAP = 0x0080;

/// A context over memory. It starts with a monochrome bitmap of 1 x 1 selected, on which nothing can be drawn.
VQPLATFORM_API HDC CreateCompatibleDC(HDC context);

/// A context of the screen, for the driver "DISPLAY"; the other arguments are not used.
VQPLATFORM_API HDC CreateDCW(LPCWSTR driver, LPCWSTR device, LPCWSTR port, const void* mode);

/// A context of the screen, for null or the desktop window; other windows do not exist. To be given back.
VQPLATFORM_API HDC GetDC(HWND window);
VQPLATFORM_API HDC GetWindowDC(HWND window);
VQPLATFORM_API int ReleaseDC(HWND window, HDC context);
VQPLATFORM_API BOOL DeleteDC(HDC context);
VQPLATFORM_API HWND GetDesktopWindow();

/// Returns the object of the same kind that was selected before; null, and nothing changes, for a bitmap that is
/// selected in another context, for a bitmap into a context of the screen, and for what is no drawing object.
VQPLATFORM_API HGDIOBJ SelectObject(HDC context, HGDIOBJ object);

/// What is selected of a kind, one of OBJ_BITMAP, OBJ_FONT, OBJ_BRUSH, OBJ_PEN.
VQPLATFORM_API HGDIOBJ GetCurrentObject(HDC context, UINT kind);

/// The screen's figures, whatever context asks. The resolution is 96 dots per inch times the display's scale factor. 0
/// for what is not known.
VQPLATFORM_API int GetDeviceCaps(HDC context, int capability);

namespace vq::win32 {

/// How much larger than 96 dots per inch the display is. Factors that are not finite or not above 0 are refused.
VQPLATFORM_API void setDisplayScaleFactor(float factor);
VQPLATFORM_API float displayScaleFactor();

} // namespace vq::win32
