// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

namespace vq::bench {

/// A share of the time of one contestant: 0 where nothing is asked.
struct Bound
{
    std::string_view of;
    double ratio = 0;
};

/// What we allow ourselves for a picture of 3840 x 2160 pixels.
struct Target
{
    std::string_view work;
    Bound must;
    Bound aim = {};
    double mustOfBaseline = 0; // where the build for every processor is allowed more
};

// clang-format off
inline constexpr std::array kTargets = {
    Target{"Copy",                 {"memcpy", 1.1},  {"memcpy", 0.9}},
    Target{"Clear",                {"memset", 1.1}},
    Target{"ClearAlpha",           {"memset", 1.1}},
    Target{"Paste(photograph)",    {"cairo", 0.5},   {"limit", 1.0}, 1.1},
    Target{"Paste(overlay)",       {"cairo", 0.85},  {"cairo", 0.6}},
    Target{"Blend(source, a)",     {"Qt", 0.65},     {"limit", 1.0}},
    Target{"Blend(colour, a)",     {"Qt", 0.85},     {"limit", 1.0}},
    Target{"Add",                  {"OpenCV", 1.05}},
    Target{"Subtract",             {"OpenCV", 1.05}},
    Target{"Lighten(source, 255)", {"OpenCV", 1.05}},
    Target{"Darken(source, 255)",  {"OpenCV", 1.05}},
    Target{"Difference",           {"OpenCV", 1.05}},
    Target{"Multiply",             {"limit", 1.1}},
    Target{"Screen",               {"limit", 1.1}},
    Target{"Invert",               {"OpenCV", 1.05}},
    Target{"Quantize(3)",          {"OpenCV", 1.05}},
    Target{"Darken(40)",           {"OpenCV", 1.05}},
    Target{"SaturateAlphaChannel", {"OpenCV", 1.05}},
    Target{"ExchangeRB",           {"OpenCV", 1.0}},
    Target{"ConvertToGray",        {"OpenCV", 0.6},  {"OpenCV", 0.4}},
    Target{"Equalize",             {"OpenCV", 0.5}},
    Target{"Smooth3x3",            {"OpenCV", 0.3},  {"OpenCV", 0.15}},
    Target{"Smooth(1)",            {"OpenCV", 0.5},  {"OpenCV", 0.3}},
    Target{"Smooth(15)",           {"OpenCV", 0.5},  {"OpenCV", 0.3}},
    Target{"Smooth(100)",          {"OpenCV", 0.5},  {"OpenCV", 0.3}},
    Target{"Median",               {"OpenCV", 1.3},  {"OpenCV", 1.0}},
    Target{"Laplacian",            {"OpenCV", 0.4},  {"OpenCV", 0.25}},
    Target{"Mosaic(16)",           {"OpenCV", 0.7}},
    Target{"FlipVertical",         {"OpenCV", 1.05}},
    Target{"Rotate(90)",           {"OpenCV", 0.6},  {"OpenCV", 0.4}},
    Target{"Resize(half, kept)",   {"OpenCV", 1.1}},
    Target{"CopyWithScale(half)",  {"pixman", 1.5},  {"pixman", 1.0}},
    Target{"CopyWithScale(3/2)",   {"pixman", 1.5},  {"pixman", 1.0}},
};
// clang-format on

} // namespace vq::bench
