// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// `sourceOver` for single pixels, the edges of shapes and lines: the same bits, by short ways for the usual cases.

#include "Platform/gdiplus/compositor/CompositingFormulas.h"

namespace vq::gdiplus {

/// `sourceOver` over an opaque pixel: alpha stays, and two channels at a time are mixed in 16 bits each. The largest
/// value on the way, 65025 + 128 + 254, fits.
constexpr Pixel overOpaquePixel(Pixel destination, Pixel source)
{
    constexpr Pixel kLanes = 0x00FF00FF;
    const Pixel alpha = alphaOf(source);
    const auto mix = [=](Pixel d, Pixel s) {
        const Pixel raised = s * alpha + d * (255 - alpha) + 0x00800080;
        return (raised + ((raised >> 8) & kLanes)) >> 8 & kLanes;
    };
    return mix(destination & kLanes, source & kLanes) |
           mix(destination >> 8 & kLanes, (source | kAlphaBits) >> 8 & kLanes) << 8;
}

template <typename Light>
constexpr Pixel overPixel(Pixel destination, Pixel source)
{
    const std::uint32_t alpha = alphaOf(source);
    if (alpha == 0)
        return destination;
    if (alpha == 255 || alphaOf(destination) == 0)
        return source;
    if (alphaOf(destination) != 255)
        return sourceOver<Light>(destination, source);
    const auto channel = [=](std::uint32_t d, std::uint32_t s) {
        return Light::encode(roundedQuotient(Light::decode(d) * (255 - alpha) + Light::decode(s) * alpha, 255));
    };
    return packed(255, channel(redOf(destination), redOf(source)), channel(greenOf(destination), greenOf(source)),
                  channel(blueOf(destination), blueOf(source)));
}

template <>
constexpr Pixel overPixel<StoredLight>(Pixel destination, Pixel source)
{
    const std::uint32_t alpha = alphaOf(source);
    if (alphaOf(destination) == 255)
        return overOpaquePixel(destination, source);
    if (alpha == 0)
        return destination;
    if (alpha == 255 || alphaOf(destination) == 0)
        return source;
    return sourceOver<StoredLight>(destination, source);
}

} // namespace vq::gdiplus
