// SPDX-License-Identifier: MIT
#include "Platform/Export.h"

extern "C" VQ_EXPORT int marker()
{
    return 1;
}
