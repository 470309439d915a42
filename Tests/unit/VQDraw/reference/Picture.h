// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What the pixel routines are judged by: pictures as plain lists, numbers as 32-bit signed arithmetic. Standard
/// library only, nothing of the library under test. Slow and obvious on purpose.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vq::reference {

using Number = std::int32_t; // every calculation, unless it says otherwise
using Word = std::uint32_t;  // a pixel, 0xAARRGGBB

enum Channel : unsigned { Blue, Green, Red, Alpha };

struct Picture
{
    Number width = 0;
    Number height = 0;
    std::vector<Word> pixels; // row by row from the top

    Picture() = default;
    Picture(Number columns, Number rows)
        : width(columns), height(rows), pixels(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows))
    {
    }

    bool isEmpty() const { return pixels.empty(); }
    std::size_t index(Number x, Number y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x);
    }
    Word& at(Number x, Number y) { return pixels.at(index(x, y)); }
    Word at(Number x, Number y) const { return pixels.at(index(x, y)); }
};

/// The low 32 bits as a signed number.
constexpr Number wrapped(std::int64_t value)
{
    return static_cast<Number>(static_cast<std::uint32_t>(value));
}

constexpr Number sum(Number a, Number b)
{
    return wrapped(std::int64_t{a} + b);
}

constexpr Number difference(Number a, Number b)
{
    return wrapped(std::int64_t{a} - b);
}

constexpr Number product(Number a, Number b)
{
    return wrapped(std::int64_t{a} * b);
}

constexpr Number lowByte(Number value)
{
    return value & 0xFF;
}

constexpr Number channel(Word pixel, unsigned which)
{
    return static_cast<Number>(pixel >> (8 * which) & 0xFF);
}

/// Stores the low 8 bits of a value.
constexpr void setChannel(Word& pixel, unsigned which, Number value)
{
    pixel = (pixel & ~(Word{0xFF} << (8 * which))) | static_cast<Word>(lowByte(value)) << (8 * which);
}

/// Moves a channel toward `target` by weight / 256; not yet cut to a byte.
constexpr Number moved(Number old, Number target, Number weight)
{
    return sum(product(difference(target, old), weight), old * 256) >> 8;
}

/// Alpha after a weight was added, as the low byte stores it: 256 and more is 255, a negative sum wraps round.
constexpr Number raisedAlpha(Number old, Number weight)
{
    const Number total = sum(old, weight);
    return total >= 256 ? 255 : lowByte(total);
}

/// Blends the colour (red, green, blue) into a pixel with a weight.
constexpr void blend(Word& pixel, Number red, Number green, Number blue, Number weight)
{
    setChannel(pixel, Blue, moved(channel(pixel, Blue), blue, weight));
    setChannel(pixel, Green, moved(channel(pixel, Green), green, weight));
    setChannel(pixel, Red, moved(channel(pixel, Red), red, weight));
    setChannel(pixel, Alpha, raisedAlpha(channel(pixel, Alpha), weight));
}

struct Rectangle
{
    Number left, top, right, bottom;
};

} // namespace vq::reference
