// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

/// The module object: prepares the library when a host loads it, and takes it down when the host unloads it.
class CVQDrawApp : public CWinApp
{
public:
    /// Does not start GDI+, which is the host's to do. @return TRUE, always.
    BOOL InitInstance() override;
    int ExitInstance() override;
};
