// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The choice of the system itself: real Windows, GDI+ and COM headers on Windows, this project's elsewhere; OpenGL and
/// GLU are the system's on both. Code above this folder includes `Platform/Platform.h`, which brings the framework
/// classes too.

#if defined(_WIN32)
#include <windows.h> // before the others, which build on it

#include <objidl.h>

#include <GL/gl.h>
#include <GL/glu.h>
#include <gdiplus.h>
#include <share.h>
#include <shlwapi.h>
#else
#include "Platform/gdiplus/Gdiplus.h"
#include "Platform/win32/Win32.h"

#include <GL/gl.h>
#include <GL/glu.h>
#endif
