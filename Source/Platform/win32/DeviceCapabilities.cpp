// SPDX-License-Identifier: MIT
#include "Platform/win32/ContextObject.h"
#include "Platform/win32/Desktop.h"
#include "Platform/win32/DeviceContexts.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <limits>

using namespace vq::win32;

namespace {

constexpr float kStandardResolution = 96;

constinit std::atomic<float> scaleFactor{1};

struct Capability
{
    int index;
    int value;
};

// Lengths in millimetres are those of the screen at 96 dots per inch; the aspect is that of square pixels.
constexpr std::array kCapabilities{
    Capability{DRIVERVERSION, 0x4000},
    Capability{TECHNOLOGY, DT_RASDISPLAY},
    Capability{HORZSIZE, 508},
    Capability{VERTSIZE, 286},
    Capability{HORZRES, kDesktopWidth},
    Capability{VERTRES, kDesktopHeight},
    Capability{BITSPIXEL, 32},
    Capability{PLANES, 1},
    Capability{NUMCOLORS, -1},
    Capability{RASTERCAPS, RC_BITBLT | RC_BITMAP64 | RC_GDI20_OUTPUT | RC_DI_BITMAP},
    Capability{ASPECTX, 36},
    Capability{ASPECTY, 36},
    Capability{ASPECTXY, 51},
    Capability{SIZEPALETTE, 0},
    Capability{COLORRES, 24},
    Capability{VREFRESH, 60},
    Capability{DESKTOPVERTRES, kDesktopHeight},
    Capability{DESKTOPHORZRES, kDesktopWidth},
    Capability{SHADEBLENDCAPS, 0},
};

int resolution()
{
    const double dotsPerInch = std::round(double{kStandardResolution} * displayScaleFactor());
    return static_cast<int>(std::min<double>(dotsPerInch, std::numeric_limits<int>::max()));
}

} // namespace

int GetDeviceCaps(HDC context, int capability)
{
    const std::scoped_lock lock(gdiLock);
    if (!find<Context>(context))
        return 0;
    if (capability == LOGPIXELSX || capability == LOGPIXELSY)
        return resolution();
    const auto row = std::ranges::find(kCapabilities, capability, &Capability::index);
    return row == kCapabilities.end() ? 0 : row->value;
}

namespace vq::win32 {

void setDisplayScaleFactor(float factor)
{
    if (std::isfinite(factor) && factor > 0)
        scaleFactor = factor;
}

float displayScaleFactor()
{
    return scaleFactor;
}

} // namespace vq::win32
