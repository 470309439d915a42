// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

namespace vq {

inline constexpr int kStandardDotsPerInch = 96;

/// Vertical dots per inch of the screen; the standard resolution where there is no screen to ask. The library may be
/// loaded there, so this must not throw, as the framework's class would.
inline int screenDotsPerInch()
{
    const HDC screen = GetWindowDC(nullptr);
    if (!screen)
        return kStandardDotsPerInch;
    const int dotsPerInch = GetDeviceCaps(screen, LOGPIXELSY);
    ReleaseDC(nullptr, screen);
    return dotsPerInch > 0 ? dotsPerInch : kStandardDotsPerInch;
}

} // namespace vq
