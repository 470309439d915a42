// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"

#if defined(vqGeometry_EXPORTS)
#define VQGEOMETRY_API VQ_EXPORT
#else
#define VQGEOMETRY_API VQ_IMPORT
#endif
