// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What happens to one pixel. These are the meaning; CompositeRow.h applies them to rows, faster and with the same
/// bits.
///
/// Colours are straight. Each channel, alpha included, is the nearest integer of the exact real-valued result, halves
/// upwards: alpha is not rounded before colours are divided by it.

#include "Platform/gdiplus/compositor/Blend.h"
#include "Platform/gdiplus/compositor/LinearLight.h"
#include "Platform/gdiplus/compositor/PixelView.h"

#include <cstdint>

namespace vq::gdiplus {

constexpr std::uint32_t alphaOf(Pixel pixel)
{
    return pixel >> 24;
}
constexpr std::uint32_t redOf(Pixel pixel)
{
    return pixel >> 16 & 0xFF;
}
constexpr std::uint32_t greenOf(Pixel pixel)
{
    return pixel >> 8 & 0xFF;
}
constexpr std::uint32_t blueOf(Pixel pixel)
{
    return pixel & 0xFF;
}

constexpr Pixel packed(std::uint32_t alpha, std::uint32_t red, std::uint32_t green, std::uint32_t blue)
{
    return alpha << 24 | red << 16 | green << 8 | blue;
}

/// The nearest integer of numerator / denominator, halves upwards. numerator + denominator / 2 stays below 2^32.
constexpr std::uint32_t roundedQuotient(std::uint32_t numerator, std::uint32_t denominator)
{
    return (numerator + denominator / 2) / denominator;
}

/// The nearest integer of value / 255 for 0 .. 65025; there are no halves, 255 being odd.
constexpr std::uint32_t dividedBy255(std::uint32_t value)
{
    const std::uint32_t raised = value + 128;
    return (raised + (raised >> 8)) >> 8;
}

/// The alpha that is left of `alpha` where coverage / 255 of a pixel is covered.
constexpr std::uint32_t effectiveAlpha(std::uint32_t alpha, std::uint32_t coverage)
{
    return dividedBy255(alpha * coverage);
}

constexpr Pixel withCoverage(Pixel source, Channel coverage)
{
    return (source & ~kAlphaBits) | effectiveAlpha(alphaOf(source), coverage) << 24;
}

/// Channels mixed as the bytes that they are.
struct StoredLight
{
    static constexpr std::uint32_t decode(std::uint32_t code) { return code; }
    static constexpr std::uint32_t encode(std::uint32_t light) { return light; }
};

/// Channels mixed as amounts of light, 16 bits each.
struct LinearLight
{
    static constexpr std::uint32_t decode(std::uint32_t code) { return linearlight::decode(code); }
    static constexpr std::uint32_t encode(std::uint32_t light) { return linearlight::encode(light); }
};

/// Two pixels mixed by weights that carry their alphas and add up to 255 times the alpha of the result, 1 .. 65025.
/// Products stay below 65535 * 65025 < 2^32.
template <typename Light>
constexpr Pixel mixed(Pixel first, std::uint32_t firstWeight, Pixel second, std::uint32_t secondWeight)
{
    const std::uint32_t whole = firstWeight + secondWeight;
    const auto channel = [=](std::uint32_t a, std::uint32_t b) {
        return Light::encode(roundedQuotient(Light::decode(a) * firstWeight + Light::decode(b) * secondWeight, whole));
    };
    return packed(dividedBy255(whole), channel(redOf(first), redOf(second)), channel(greenOf(first), greenOf(second)),
                  channel(blueOf(first), blueOf(second)));
}

/// Source over destination: alpha s + d * (255 - s) / 255, colours weighted by s and d * (255 - s) / 255.
/// A source of alpha 0 leaves the destination untouched, one of 255 replaces it, and over alpha 0 the source stands
/// alone.
template <typename Light>
constexpr Pixel sourceOver(Pixel destination, Pixel source)
{
    const std::uint32_t alpha = alphaOf(source);
    if (alpha == 0)
        return destination;
    return mixed<Light>(destination, alphaOf(destination) * (255 - alpha), source, alpha * 255);
}

/// A pixel of alpha 0 has no colour.
constexpr Pixel sourceCopy(Pixel source)
{
    return alphaOf(source) == 0 ? 0 : source;
}

/// Where coverage is partial, `SourceCopy` replaces that share of the pixel: the mean of old and new.
constexpr Pixel sourceCopy(Pixel destination, Pixel source, Channel coverage)
{
    if (coverage == 0)
        return destination;
    const std::uint32_t kept = alphaOf(destination) * (255U - coverage);
    const std::uint32_t added = alphaOf(source) * coverage;
    return kept + added == 0 ? 0 : sourceCopy(mixed<StoredLight>(destination, kept, source, added));
}

constexpr Pixel composite(Pixel destination, Pixel source, Blend blend)
{
    switch (blend) {
    case Blend::SourceOver:
        return sourceOver<StoredLight>(destination, source);
    case Blend::SourceOverLinearLight:
        return sourceOver<LinearLight>(destination, source);
    case Blend::SourceCopy:
        break;
    }
    return sourceCopy(source);
}

constexpr Pixel composite(Pixel destination, Pixel source, Channel coverage, Blend blend)
{
    if (blend == Blend::SourceCopy)
        return sourceCopy(destination, source, coverage);
    return composite(destination, withCoverage(source, coverage), blend);
}

static_assert(composite(0xA0000000, 0xA0FFFFFF, Blend::SourceOver) == 0xDCBABABA);
static_assert(composite(0xA0000000, 0xA0FFFFFF, Blend::SourceOverLinearLight) == 0xDCDEDEDE);

} // namespace vq::gdiplus
