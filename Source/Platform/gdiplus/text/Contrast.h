// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/compositor/PixelView.h"

#include <array>
#include <cstddef>

namespace vq::gdiplus {

/// The largest value of GDI+'s TextContrast.
inline constexpr unsigned kHighestContrast = 12;

namespace detail {

constexpr double power(double base, unsigned exponent)
{
    double result = 1;
    for (; exponent > 0; --exponent)
        result *= base;
    return result;
}

/// The curve coverage ^ (1 / gamma) with gamma = (10 + contrast) / 10, on bytes: the largest c whose lower half step
/// (c - 1/2) / 255 is not above it, that is ((c - 1/2) / 255) ^ (10 + contrast) <= (coverage / 255) ^ 10.
constexpr auto makeContrastTables()
{
    std::array<std::array<Channel, 256>, kHighestContrast + 1> tables{};
    for (unsigned contrast = 0; contrast <= kHighestContrast; ++contrast) {
        unsigned level = 0;
        for (unsigned coverage = 0; coverage < 256; ++coverage) {
            const double wanted = power(coverage / 255.0, 10);
            while (level < 255 && power((level + 0.5) / 255.0, 10 + contrast) <= wanted)
                ++level;
            tables[contrast][coverage] = static_cast<Channel>(level);
        }
    }
    return tables;
}

} // namespace detail

/// What grey coverage becomes before it is blended, by TextContrast and coverage. Microsoft documents a range of 0 ..
/// 12 with a default of 4 for the property, and 1000 .. 2200 with a default of 1400 for the system's setting of the
/// same name, a gamma in thousandths: so contrast c is taken as a gamma of 1 + c / 10. 0 leaves coverage as it is.
inline constexpr auto kContrastTables = detail::makeContrastTables();

static_assert(kContrastTables[0][128] == 128);
static_assert(kContrastTables[4][0] == 0 && kContrastTables[4][255] == 255);

} // namespace vq::gdiplus
