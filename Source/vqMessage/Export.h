// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"

#if defined(vqMessage_EXPORTS)
#define VQMESSAGE_API VQ_EXPORT
#else
#define VQMESSAGE_API VQ_IMPORT
#endif
