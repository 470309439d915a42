// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Linear gradients in fractions of whole numbers, one pixel at a time: what the shader is held against.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace vq::test {

/// A position in sixteenths, and the colour there: `eighths` of the second and the rest of the first.
struct ExactStop
{
    int sixteenths;
    std::uint32_t first, second;
    int eighths;
};

class ExactGradient
{
public:
    std::vector<ExactStop> stops; ///< in order, from 0 to 16
    bool isMirrored = false;
    bool inLinearLight = false;

    /// The colour at the position `distance` / `length`, at any distance.
    std::uint32_t at(std::int64_t distance, std::int64_t length) const
    {
        const std::int64_t period = isMirrored ? 2 * length : length;
        std::int64_t rest = (distance % period + period) % period;
        if (rest > length)
            rest = period - rest;
        std::size_t i = stops.size() - 2;
        while (stops[i].sixteenths * length > 16 * rest || stops[i].sixteenths == stops[i + 1].sixteenths)
            --i;
        const std::int64_t whole = (stops[i + 1].sixteenths - stops[i].sixteenths) * length;
        const std::int64_t part = 16 * rest - stops[i].sixteenths * length;
        return mixed({{{stops[i].first, (8 - stops[i].eighths) * (whole - part)},
                       {stops[i].second, stops[i].eighths * (whole - part)},
                       {stops[i + 1].first, (8 - stops[i + 1].eighths) * part},
                       {stops[i + 1].second, stops[i + 1].eighths * part}}},
                     8 * whole);
    }

private:
    struct Weighted
    {
        std::uint32_t colour;
        std::int64_t weight;
    };

    /// The nearest integer of a fraction, halves upwards.
    static std::int64_t rounded(std::int64_t numerator, std::int64_t denominator)
    {
        return (2 * numerator + denominator) / (2 * denominator);
    }

    /// Light 0 .. 65535 of a byte, or of a place between two.
    static double lightOf(double code)
    {
        return 65535 * (code <= 0.04045 * 255 ? code / 255 / 12.92 : std::pow((code / 255 + 0.055) / 1.055, 2.4));
    }

    std::int64_t decoded(std::uint32_t byte) const
    {
        static const auto light = tabulated([](int code) { return lightOf(code); });
        return inLinearLight ? std::lround(light[byte]) : byte;
    }

    std::uint32_t encoded(std::int64_t amount) const
    {
        static const auto middles = tabulated([](int code) { return lightOf(code + 0.5); });
        const auto byte = std::ranges::upper_bound(middles, static_cast<double>(amount)) - middles.begin();
        return static_cast<std::uint32_t>(inLinearLight ? byte : amount);
    }

    template <typename Function>
    static std::array<double, 256> tabulated(Function function)
    {
        std::array<double, 256> values;
        for (int code = 0; code < 256; ++code)
            values[static_cast<std::size_t>(code)] = function(code);
        return values;
    }

    std::uint32_t mixed(const std::array<Weighted, 4>& colours, std::int64_t whole) const
    {
        std::int64_t alpha = 0;
        for (const auto& [colour, weight] : colours)
            alpha += (colour >> 24) * weight;
        std::uint32_t result = static_cast<std::uint32_t>(rounded(alpha, whole)) << 24;
        if (result == 0)
            return 0;
        for (const int shift : {0, 8, 16}) {
            std::int64_t amount = 0;
            for (const auto& [colour, weight] : colours)
                amount += decoded(colour >> shift & 0xFF) * (colour >> 24) * weight;
            result |= encoded(rounded(amount, alpha)) << shift;
        }
        return result;
    }
};

} // namespace vq::test
