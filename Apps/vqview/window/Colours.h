// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/window/Tables.h"

#include <VQDraw/VQDraw.h>

#include <algorithm>
#include <cmath>

namespace vqview {

inline Value clamped(const Value& value)
{
    Value result;
    std::ranges::transform(value, result.begin(), [](float channel) { return std::clamp(channel, 0.0f, 1.0f); });
    return result;
}

inline Value valueOf(CVQColor colour)
{
    const auto channel = [](BYTE byte) { return static_cast<float>(byte) / 255.0f; };
    return {channel(colour.r), channel(colour.g), channel(colour.b), channel(colour.a)};
}

/// Rounds, so that a colour which is shown and taken back unchanged stays what it was; `CVQColor::Set4fv` truncates.
inline CVQColor opaqueColourOf(const Value& value)
{
    const auto byte = [](float channel) { return static_cast<int>(std::lround(channel * 255.0f)); };
    const Value channels = clamped(value);
    CVQColor colour;
    colour.Set(byte(channels[0]), byte(channels[1]), byte(channels[2]), 255);
    return colour;
}

} // namespace vqview
