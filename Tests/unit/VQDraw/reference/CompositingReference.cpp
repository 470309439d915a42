// SPDX-License-Identifier: MIT
#include "CompositingReference.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace vq::reference {
namespace {

/// Replaces the first `channels` channels of every pixel by formula(d, s), cut to a byte.
template <typename Formula>
void combine(Picture& dst, const Picture& src, unsigned channels, Formula formula)
{
    if (src.pixels.size() < dst.pixels.size())
        return;
    for (std::size_t i = 0; i < dst.pixels.size(); ++i) {
        const Word d = dst.pixels[i];
        const Word s = src.pixels[i];
        for (unsigned c = 0; c < channels; ++c)
            setChannel(dst.pixels[i], c, formula(channel(d, c), channel(s, c)));
    }
}

template <typename Formula>
void transform(Picture& picture, unsigned channels, Formula formula)
{
    for (Word& pixel : picture.pixels)
        for (unsigned c = 0; c < channels; ++c)
            setChannel(pixel, c, formula(channel(pixel, c)));
}

void setGrey(Word& pixel, Number grey)
{
    for (const unsigned c : {Blue, Green, Red})
        setChannel(pixel, c, grey);
}

constexpr unsigned kColours = 3;
constexpr unsigned kAll = 4;

} // namespace

void add(Picture& dst, const Picture& src)
{
    combine(dst, src, kAll, [](Number d, Number s) { return std::min(d + s, 255); });
}

void subtract(Picture& dst, const Picture& src)
{
    combine(dst, src, kAll, [](Number d, Number s) { return std::max(d - s, 0); });
}

void multiply(Picture& dst, const Picture& src)
{
    combine(dst, src, kAll, [](Number d, Number s) { return (d * s) >> 8; });
}

void screen(Picture& dst, const Picture& src)
{
    combine(dst, src, kColours, [](Number d, Number s) { return 255 - (((255 - d) * (255 - s)) >> 8); });
}

void differenceOf(Picture& dst, const Picture& src)
{
    combine(dst, src, kColours, [](Number d, Number s) { return s >= d ? s - d : d - s; });
}

void lighten(Picture& dst, const Picture& src, Number level)
{
    const Number factor = sum(level, 1);
    combine(dst, src, kColours, [factor](Number d, Number s) {
        const Number t = lowByte(product(s, factor) >> 8);
        return t > d ? t : d;
    });
}

void darken(Picture& dst, const Picture& src, Number level)
{
    const Number factor = sum(level, 1);
    combine(dst, src, kColours, [factor](Number d, Number s) {
        const Number ts = lowByte(product(s, factor) >> 8);
        const Number td = lowByte(product(d, factor) >> 8);
        return ts < td ? moved(d, s, factor) : d;
    });
}

void darkenBy(Picture& picture, Number level)
{
    transform(picture, kColours, [level](Number d) { return std::max(difference(d, level), 0); });
}

void invert(Picture& picture)
{
    for (Word& pixel : picture.pixels)
        pixel ^= 0x00FFFFFF;
}

void convertToGray(Picture& picture)
{
    const float greenWeight = std::bit_cast<float>(0x3F1645A2u); // 0.587
    const float blueWeight = std::bit_cast<float>(0x3DE978D5u);  // 0.114
    const float redWeight = std::bit_cast<float>(0x3E991687u);   // 0.299
    for (Word& pixel : picture.pixels) {
        // Each step is stored, so that no compiler joins a product and a sum.
        const volatile float greenPart = static_cast<float>(channel(pixel, Green)) * greenWeight;
        const volatile float bluePart = static_cast<float>(channel(pixel, Blue)) * blueWeight;
        const volatile float redPart = static_cast<float>(channel(pixel, Red)) * redWeight;
        const volatile float twoParts = greenPart + bluePart;
        const volatile float grey = twoParts + redPart;
        setGrey(pixel, static_cast<Number>(grey));
    }
}

void convertToGray(Picture& picture, Rectangle area)
{
    if (area.left > area.right)
        std::swap(area.left, area.right);
    if (area.top > area.bottom)
        std::swap(area.top, area.bottom);
    if (area.left >= picture.width || area.top >= picture.height || area.right < 0 || area.bottom < 0)
        return;
    area.left = std::max(area.left, 0);
    area.top = std::max(area.top, 0);
    area.right = std::min(area.right, picture.width - 1);
    area.bottom = std::min(area.bottom, picture.height - 1);
    for (Number y = area.top; y <= area.bottom; ++y)
        for (Number x = area.left; x <= area.right; ++x) {
            Word& pixel = picture.at(x, y);
            setGrey(pixel, (channel(pixel, Blue) + channel(pixel, Green) + channel(pixel, Red)) / 3);
        }
}

void quantize(Picture& picture, Number bits)
{
    const Number k = bits & 7;
    transform(picture, kAll, [k](Number d) { return (d >> k) << k; });
}

void equalize(Picture& picture)
{
    Number least = 0xFFFFFF;
    Number most = 0;
    for (const Word pixel : picture.pixels) {
        least = std::min(least, channel(pixel, Blue));
        most = std::max(most, channel(pixel, Blue));
    }
    if (picture.isEmpty() || most == least)
        return;
    for (Word& pixel : picture.pixels)
        setGrey(pixel, (channel(pixel, Blue) - least) * 255 / (most - least));
}

} // namespace vq::reference
