// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQShellAPI.h"

bool CVQShellAPI::IsPathExist(const CString& path)
{
    return !path.IsEmpty() && GetFileAttributesW(path) != INVALID_FILE_ATTRIBUTES;
}
