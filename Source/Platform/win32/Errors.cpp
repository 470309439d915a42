// SPDX-License-Identifier: MIT
#include "Platform/win32/Errors.h"

namespace {
constinit thread_local DWORD lastError = ERROR_SUCCESS;
}

DWORD GetLastError()
{
    return lastError;
}

void SetLastError(DWORD error)
{
    lastError = error;
}
