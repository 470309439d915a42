// SPDX-License-Identifier: MIT
#include "Platform/win32/Numbers.h"

#include <algorithm>
#include <limits>

namespace {

// 240 steps round the circle of hues, sixths of 40; 240 steps of luminance and saturation.
constexpr int kFullTurn = 240;
constexpr int kSixth = 40;
constexpr int kFull = 240;
constexpr int kHueOfGrey = 160;

int saturationOf(int luminance, int difference, int sum)
{
    const int divisor = luminance <= kFull / 2 ? sum : 510 - sum;
    return (difference * kFull + divisor / 2) / divisor;
}

int hueOf(int red, int green, int blue, int largest, int difference)
{
    const auto distance = [=](int channel) { return ((largest - channel) * kSixth + difference / 2) / difference; };
    int hue = 0;
    if (red == largest)
        hue = distance(blue) - distance(green);
    else if (green == largest)
        hue = 2 * kSixth + distance(red) - distance(blue);
    else
        hue = 4 * kSixth + distance(green) - distance(red);
    if (hue < 0)
        return hue + kFullTurn;
    return hue > kFullTurn ? hue - kFullTurn : hue;
}

void store(WORD* place, int value)
{
    if (place)
        *place = static_cast<WORD>(value);
}

} // namespace

int MulDiv(int number, int numerator, int denominator)
{
    if (denominator == 0)
        return -1;
    const std::int64_t product = std::int64_t{number} * numerator; // at most 2^62
    const bool negative = (product < 0) != (denominator < 0);
    const std::int64_t divisor = denominator < 0 ? -std::int64_t{denominator} : denominator;
    const std::int64_t magnitude = ((product < 0 ? -product : product) + divisor / 2) / divisor;
    if (magnitude > std::numeric_limits<int>::max())
        return -1;
    return static_cast<int>(negative ? -magnitude : magnitude);
}

// Microsoft documents the ranges only; the integer formula gives the results of its routine for every colour that was
// compared.
void ColorRGBToHLS(COLORREF colour, WORD* hue, WORD* luminance, WORD* saturation)
{
    const int red = GetRValue(colour);
    const int green = GetGValue(colour);
    const int blue = GetBValue(colour);
    const int largest = std::max({red, green, blue});
    const int smallest = std::min({red, green, blue});
    const int difference = largest - smallest;
    const int sum = largest + smallest;
    const int light = (sum * kFull + 255) / 510;

    store(luminance, light);
    store(saturation, difference == 0 ? 0 : saturationOf(light, difference, sum));
    store(hue, difference == 0 ? kHueOfGrey : hueOf(red, green, blue, largest, difference));
}
