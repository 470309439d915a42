// SPDX-License-Identifier: MIT
#pragma once

#include "vqCommonBase/VQDisplayAPI.h"

#include <cmath>

namespace vq::test {

/// A scale of the display while it lives, where the screen is not the system's.
class DisplayScale
{
public:
    explicit DisplayScale(float factor) { CVQDisplayAPI::SetScaleFactor(factor); }
    ~DisplayScale() { CVQDisplayAPI::SetScaleFactor(m_before); }
    DisplayScale(const DisplayScale&) = delete;
    DisplayScale& operator=(const DisplayScale&) = delete;

private:
    float m_before = CVQDisplayAPI::GetScaleFactor();
};

inline int screenResolution()
{
    return CWindowDC().GetDeviceCaps(LOGPIXELSY);
}

/// A nominal size at this screen's resolution, halves away from 0.
inline LONG pixelHeight(int nominalSize)
{
    return static_cast<LONG>(std::lround(nominalSize * screenResolution() / 96.0));
}

inline int pointHeight(int nominalSize)
{
    return static_cast<int>(-std::lround(nominalSize * screenResolution() / 72.0));
}

} // namespace vq::test
