// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"

#if defined(VQDraw_EXPORTS)
#define VQDRAW_API VQ_EXPORT
#else
#define VQDRAW_API VQ_IMPORT
#endif
