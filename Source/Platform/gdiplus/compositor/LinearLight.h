// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Bytes of the sRGB curve (IEC 61966-2-1) as 16-bit amounts of light, and back. Everything is computed by the
/// compiler.

#include "Platform/gdiplus/compositor/PixelView.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace vq::gdiplus::linearlight {

/// Newton's method; `value` is in 1e-4 .. 1, where 40 steps from 1 are enough for every bit.
constexpr double fifthRoot(double value)
{
    double root = 1;
    for (int step = 0; step < 40; ++step)
        root -= (root - value / (root * root * root * root)) / 5;
    return root;
}

/// Light of a code value, both 0 .. 1: the standard's line near black, its power of 2.4 above.
constexpr double lightOf(double code)
{
    if (code <= 0.04045)
        return code / 12.92;
    const double base = (code + 0.055) / 1.055;
    return base * base * fifthRoot(base * base);
}

constexpr double kFullLight = 65535;

constexpr auto makeLight()
{
    std::array<std::uint16_t, 256> light{};
    for (std::size_t code = 0; code < light.size(); ++code)
        light[code] = static_cast<std::uint16_t>(lightOf(static_cast<double>(code) / 255) * kFullLight + 0.5);
    return light;
}

/// Entry c is the smallest amount of light that is nearer to c + 1 than to c, measured along the curve.
constexpr auto makeThresholds()
{
    std::array<std::uint32_t, 256> thresholds{};
    for (std::size_t code = 0; code < 255; ++code) {
        const double exact = lightOf((static_cast<double>(code) + 0.5) / 255) * kFullLight;
        const auto whole = static_cast<std::uint32_t>(exact);
        thresholds[code] = whole < exact ? whole + 1 : whole;
    }
    thresholds[255] = 0x10000;
    return thresholds;
}

inline constexpr std::array<std::uint16_t, 256> kLight = makeLight();
inline constexpr std::array<std::uint32_t, 256> kThresholds = makeThresholds();

/// Steps of 16 are finer than any distance between two thresholds (at least 19), so one comparison corrects the entry.
inline constexpr unsigned kStepBits = 4;
inline constexpr std::size_t kSteps = 0x10000 >> kStepBits;

constexpr auto makeFirstCodes()
{
    std::array<Channel, kSteps> codes{};
    unsigned code = 0;
    for (std::size_t step = 0; step < codes.size(); ++step) {
        while (kThresholds[code] <= step << kStepBits)
            ++code;
        codes[step] = static_cast<Channel>(code);
    }
    return codes;
}

inline constexpr std::array<Channel, kSteps> kFirstCodes = makeFirstCodes();

/// Light 0 .. 65535 of a byte.
constexpr std::uint32_t decode(std::uint32_t code)
{
    return kLight[code];
}

/// The byte whose light is nearest along the curve to an amount of 0 .. 65535; the inverse of `decode`.
constexpr std::uint32_t encode(std::uint32_t light)
{
    const std::uint32_t code = kFirstCodes[light >> kStepBits];
    return code + (light >= kThresholds[code] ? 1U : 0U);
}

} // namespace vq::gdiplus::linearlight
