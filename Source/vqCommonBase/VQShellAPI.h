// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "vqCommonBase/Export.h"

class VQCOMMONBASE_API CVQShellAPI
{
public:
    /// Whether a file or folder of that path exists. An empty path does not.
    static bool IsPathExist(const CString& path);
};
