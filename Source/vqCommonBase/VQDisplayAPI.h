// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "vqCommonBase/Export.h"

/// The display that the host draws on.
class VQCOMMONBASE_API CVQDisplayAPI
{
public:
    /// How much larger things are drawn than at 96 dots per inch: 1.5 on a display of 144. What the host has set, or
    /// else what the system says of its screen, 1 where it has none.
    static float GetScaleFactor();
    /// Factors that are not finite or not above 0 are refused. Takes effect at once, for the whole process; where the
    /// system has no screen of its own, device contexts report 96 dots per inch times this factor, rounded.
    static void SetScaleFactor(float factor);
};
