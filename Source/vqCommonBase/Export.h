// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"

#if defined(vqCommonBase_EXPORTS)
#define VQCOMMONBASE_API VQ_EXPORT
#else
#define VQCOMMONBASE_API VQ_IMPORT
#endif
