// SPDX-License-Identifier: MIT
#include "drawing/Picture.h"

#include "drawing/Scene.h"

#include <opencv2/imgcodecs.hpp>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <exception>
#include <functional>
#include <numeric>

namespace vq::bench {

namespace {

constexpr int kSquare = 40; // divides both sides of the picture
constexpr int kColumns = kWidth / kSquare;
constexpr int kRows = kHeight / kSquare;

/// What a pixel adds to alpha and premultiplied colours of the background, in 255ths.
int inkOf(std::uint32_t pixel, std::uint32_t background)
{
    const auto channel = [](std::uint32_t argb, int shift) {
        const int alpha = static_cast<int>(argb >> 24);
        return shift == 24 ? alpha : static_cast<int>(argb >> shift & 0xFF) * alpha / 255;
    };
    int sum = 0;
    for (int shift = 0; shift < 32; shift += 8)
        sum += std::abs(channel(pixel, shift) - channel(background, shift));
    return sum;
}

} // namespace

Ink inkOf(const Picture& picture, std::uint32_t background)
{
    Ink squares(kColumns * kRows);
    for (std::size_t i = 0; i < picture.size(); ++i) {
        if (picture[i] != background)
            squares[i / kWidth / kSquare * kColumns + i % kWidth / kSquare] += inkOf(picture[i], background);
    }
    return squares;
}

double distance(const Ink& ink, const Ink& reference)
{
    const double apart = std::transform_reduce(ink.begin(), ink.end(), reference.begin(), 0.0, std::plus{},
                                               [](double a, double b) { return std::abs(a - b); });
    return apart / std::max(std::accumulate(reference.begin(), reference.end(), 0.0), 1.0);
}

std::uint32_t unpremultiplied(std::uint32_t pixel)
{
    const std::uint32_t alpha = pixel >> 24;
    if (alpha == 0)
        return 0;
    std::uint32_t result = alpha << 24;
    for (int shift = 0; shift < 24; shift += 8)
        result |= std::min(((pixel >> shift & 0xFF) * 255 + alpha / 2) / alpha, 255U) << shift;
    return result;
}

bool savePng(const Picture& picture, const std::filesystem::path& file)
{
    cv::Mat matrix(kHeight, kWidth, CV_8UC4); // blue, green, red, alpha in memory
    std::copy(picture.begin(), picture.end(), matrix.ptr<std::uint32_t>());
    try {
        return cv::imwrite(file.string(), matrix);
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace vq::bench
