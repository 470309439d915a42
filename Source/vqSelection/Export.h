// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"

#if defined(vqSelection_EXPORTS)
#define VQSELECTION_API VQ_EXPORT
#else
#define VQSELECTION_API VQ_IMPORT
#endif
