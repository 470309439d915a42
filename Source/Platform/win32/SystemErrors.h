// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Error numbers of the C library as Windows numbers. Internal to this folder.

#include "Platform/win32/Types.h"

namespace vq::win32 {

/// The nearest Windows error; ERROR_GEN_FAILURE for what has none.
DWORD errorOf(int errnoValue);

} // namespace vq::win32
