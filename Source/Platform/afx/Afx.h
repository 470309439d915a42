// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The framework classes in use, with MFC's names and semantics, written on Win32 calls. One header a subject.

#include "Platform/afx/Array.h"
#include "Platform/afx/CString.h"
#include "Platform/afx/DeviceContexts.h"
#include "Platform/afx/Exceptions.h"
#include "Platform/afx/FileDialog.h"
#include "Platform/afx/GdiObjects.h"
#include "Platform/afx/Geometry.h"
#include "Platform/afx/Module.h"
#include "Platform/afx/Object.h"
#include "Platform/afx/Rect.h"
#include "Platform/afx/Synchronisation.h"
