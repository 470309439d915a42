// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

/// GDI+ runs while this lives, and outlives every image made in its scope.
struct GdiPlus
{
    const bool started = CVQDIB::InitializeGDIPlus() == 1;
    ~GdiPlus() { CVQDIB::ShutdownGDIPlus(); }
};
