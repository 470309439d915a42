// SPDX-License-Identifier: MIT
#include "Platform/DisplayScale.h"

#include "Platform/System.h"

#if defined(_WIN32)

#include <atomic>
#include <cmath>

namespace vq::platform {
namespace {

constexpr float kStandardResolution = 96; // dots per inch

constinit std::atomic<float> chosen{0}; // 0: as the screen is

} // namespace

float displayScale()
{
    if (const float factor = chosen; factor > 0)
        return factor;
    const HDC screen = GetDC(nullptr);
    const int resolution = screen ? GetDeviceCaps(screen, LOGPIXELSX) : 0;
    if (screen)
        ReleaseDC(nullptr, screen);
    return resolution > 0 ? static_cast<float>(resolution) / kStandardResolution : 1.0f;
}

void setDisplayScale(float factor)
{
    if (std::isfinite(factor) && factor > 0)
        chosen = factor;
}

} // namespace vq::platform

#else

namespace vq::platform {

float displayScale()
{
    return win32::displayScaleFactor();
}

void setDisplayScale(float factor)
{
    win32::setDisplayScaleFactor(factor);
}

} // namespace vq::platform

#endif
