// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The subset of Win32 that is in use, where there is no Windows. One header a subject.

#include "Platform/win32/BitmapResources.h"
#include "Platform/win32/Bitmaps.h"
#include "Platform/win32/DeviceContexts.h"
#include "Platform/win32/Dialogs.h"
#include "Platform/win32/Drawing.h"
#include "Platform/win32/Errors.h"
#include "Platform/win32/Files.h"
#include "Platform/win32/Gdi.h"
#include "Platform/win32/GdiObjects.h"
#include "Platform/win32/GlobalMemory.h"
#include "Platform/win32/Libraries.h"
#include "Platform/win32/Modules.h"
#include "Platform/win32/Numbers.h"
#include "Platform/win32/Rectangles.h"
#include "Platform/win32/Streams.h"
#include "Platform/win32/Strings.h"
#include "Platform/win32/Synchronisation.h"
#include "Platform/win32/Types.h"
