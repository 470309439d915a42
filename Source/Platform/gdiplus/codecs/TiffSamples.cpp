// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/TiffSamples.h"

#include <algorithm>
#include <cstring>

namespace vq::gdiplus::tiff {
namespace {

/// A sample as it is stored; those of less than a byte lie from the upper bits on.
template <int bits>
unsigned storedSample(const std::uint8_t* stored, std::size_t index)
{
    if constexpr (bits == 16) {
        std::uint16_t sample = 0; // libtiff has turned the bytes into this machine's order
        std::memcpy(&sample, stored + 2 * index, 2);
        return sample;
    } else if constexpr (bits == 8) {
        return stored[index];
    } else {
        constexpr std::size_t kPerByte = 8 / bits;
        const std::size_t placesLeft = kPerByte - 1 - index % kPerByte;
        return static_cast<unsigned>(stored[index / kPerByte] >> (placesLeft * bits)) & ((1u << bits) - 1);
    }
}

/// Scaled so that all ones are 255: of 16 bits the nearest integer of sample / 257.
template <int bits>
Pixel byteOf(unsigned sample)
{
    if constexpr (bits == 16)
        return (sample * 255 + 32895) >> 16;
    else
        return sample * (255 / ((1u << bits) - 1));
}

/// One sample of every pixel of a row.
struct Channel
{
    std::size_t first;
    std::size_t step;
    Pixel weight; ///< where its byte goes; a grey goes to three places
    unsigned flip;
};

template <int bits>
void addChannel(const Channel& channel, const std::uint8_t* stored, std::span<Pixel> row)
{
    std::size_t index = channel.first;
    for (Pixel& pixel : row) {
        pixel += (byteOf<bits>(storedSample<bits>(stored, index)) ^ channel.flip) * channel.weight;
        index += channel.step;
    }
}

template <int bits>
void addSamples(const Layout& layout, int plane, const std::uint8_t* stored, std::span<Pixel> row)
{
    constexpr Pixel kColourWeights[] = {0x010000, 0x000100, 0x000001};
    constexpr Pixel kGreyWeight = 0x010101;
    constexpr Pixel kAlphaWeight = 0x01000000;
    const auto step = layout.separatePlanes ? 1 : static_cast<std::size_t>(layout.samples);
    const unsigned flip = layout.colours == Colours::WhiteIsZero ? 0xFF : 0;
    const auto add = [&](int sample, Pixel weight, unsigned channelFlip) {
        if (!layout.separatePlanes)
            addChannel<bits>({static_cast<std::size_t>(sample), step, weight, channelFlip}, stored, row);
        else if (sample == plane)
            addChannel<bits>({0, step, weight, channelFlip}, stored, row);
    };
    for (int sample = 0; sample < layout.colourSamples(); ++sample)
        add(sample, layout.colours == Colours::Rgb ? kColourWeights[sample] : kGreyWeight, flip);
    if (layout.hasAlpha())
        add(layout.colourSamples(), kAlphaWeight, 0);
}

template <int bits>
void lookUp(const Layout& layout, const std::uint8_t* stored, std::span<Pixel> row)
{
    if (layout.samples == 1) { // twice as fast as with a step
        for (std::size_t x = 0; x < row.size(); ++x)
            row[x] = layout.palette[storedSample<bits>(stored, x)];
        return;
    }
    const auto step = layout.separatePlanes ? 1 : static_cast<std::size_t>(layout.samples);
    for (std::size_t x = 0; x < row.size(); ++x)
        row[x] = layout.palette[storedSample<bits>(stored, x * step)];
}

template <int bits>
void addRowOf(const Layout& layout, int plane, const std::uint8_t* stored, std::span<Pixel> row)
{
    if (!layout.isLookedUp())
        return addSamples<bits>(layout, plane, stored, row);
    if constexpr (bits <= 8)
        lookUp<bits>(layout, stored, row);
}

} // namespace

void prepare(const Layout& layout, PixelView target)
{
    if (layout.isLookedUp())
        return;
    for (int y = 0; y < target.height; ++y)
        std::fill_n(target.row(y), target.width, layout.hasAlpha() ? 0 : kAlphaBits);
}

int planesToRead(const Layout& layout)
{
    return layout.separatePlanes ? layout.colourSamples() + (layout.hasAlpha() ? 1 : 0) : 1;
}

std::int64_t rowBytes(const Layout& layout)
{
    return (layout.blockWidth * (layout.separatePlanes ? 1 : layout.samples) * layout.bits + 7) / 8;
}

void addRow(const Layout& layout, int plane, const std::uint8_t* stored, std::span<Pixel> row)
{
    switch (layout.bits) {
    case 1:
        return addRowOf<1>(layout, plane, stored, row);
    case 2:
        return addRowOf<2>(layout, plane, stored, row);
    case 4:
        return addRowOf<4>(layout, plane, stored, row);
    case 8:
        return addRowOf<8>(layout, plane, stored, row);
    default:
        return addRowOf<16>(layout, plane, stored, row);
    }
}

} // namespace vq::gdiplus::tiff
