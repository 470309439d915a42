// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/LinearLight.h"

#include <gtest/gtest.h>

#include <cmath>

namespace vq::gdiplus::linearlight {

TEST(LinearLight, FollowsTheStandardsCurve)
{
    for (std::uint32_t code = 0; code < 256; ++code) {
        const double value = code / 255.0;
        const double light = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        ASSERT_EQ(decode(code), static_cast<std::uint32_t>(std::lround(65535 * light))) << code;
    }
}

TEST(LinearLight, ComesBackAsTheNearestByteOfEveryAmount)
{
    for (std::uint32_t light = 0; light < 65536; ++light) {
        const double value = light / 65535.0;
        const double code = value <= 0.0031308 ? value * 12.92 : 1.055 * std::pow(value, 1 / 2.4) - 0.055;
        ASSERT_EQ(encode(light), static_cast<std::uint32_t>(std::lround(255 * code))) << light;
    }
}

TEST(LinearLight, RestoresEveryByte)
{
    for (std::uint32_t code = 0; code < 256; ++code)
        ASSERT_EQ(encode(decode(code)), code);
}

} // namespace vq::gdiplus::linearlight
