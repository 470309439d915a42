// SPDX-License-Identifier: MIT
#include "vqview/overlay/ColourRamp.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vqview {

namespace {

constexpr std::array kStops{CVQColor(38, 84, 201), CVQColor(38, 178, 214), CVQColor(86, 196, 98),
                            CVQColor(246, 211, 69), CVQColor(222, 62, 47)};
constexpr CVQColor kUnknown(128, 128, 128);

BYTE between(BYTE from, BYTE to, float share)
{
    return static_cast<BYTE>(std::lround(static_cast<float>(from) + static_cast<float>(to - from) * share));
}

} // namespace

CVQColor rampColour(float place)
{
    if (std::isnan(place))
        return kUnknown;
    const float position = std::clamp(place, 0.0F, 1.0F) * static_cast<float>(kStops.size() - 1);
    const std::size_t stop = std::min(static_cast<std::size_t>(position), kStops.size() - 2);
    const float share = position - static_cast<float>(stop);
    const CVQColor& from = kStops[stop];
    const CVQColor& to = kStops[stop + 1];
    return {between(from.r, to.r, share), between(from.g, to.g, share), between(from.b, to.b, share)};
}

} // namespace vqview
