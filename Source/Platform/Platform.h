// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Everything above this folder is written once, against Windows names, and includes this file and nothing of the
/// system. The framework classes (`CString`, `CArray`, `CDC` ...) are the project's own on both systems.

#include "Platform/DecodedPixels.h"
#include "Platform/DisplayScale.h"
#include "Platform/Export.h"
#include "Platform/FaceName.h"
#include "Platform/KnownFolders.h"
#include "Platform/PixelMemory.h"
#include "Platform/ProfileFile.h"
#include "Platform/ReplacementFile.h"
#include "Platform/System.h"
#include "Platform/UserRegistry.h"
#include "Platform/afx/Afx.h"
