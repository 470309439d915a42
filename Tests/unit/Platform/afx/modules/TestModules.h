// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"

#if defined(TESTMODULES_EXPORTS)
#define TESTMODULES_API VQ_EXPORT
#else
#define TESTMODULES_API VQ_IMPORT
#endif
