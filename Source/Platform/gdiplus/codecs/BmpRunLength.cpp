// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/BmpRunLength.h"

#include <algorithm>

namespace vq::gdiplus::bmp {
namespace {

using Bytes = std::span<const std::uint8_t>;

// What follows a count of 0. Anything larger is a number of literal pixels.
constexpr std::uint8_t kEndOfLine = 0;
constexpr std::uint8_t kEndOfBitmap = 1;
constexpr std::uint8_t kMove = 2;

/// The pen that runs and literal pixels move from left to right.
class Pen
{
public:
    Pen(const Header& header, const PixelView& target) : m_header(header), m_target(target) {}

    bool isBelowPicture() const { return m_line >= m_header.height; }
    bool hasFilledPicture() const
    {
        return isBelowPicture() || (m_line == m_header.height - 1 && m_column == m_header.width);
    }

    /// Draws `count` pixels whose palette indices `index(i)` tells.
    template <typename Index>
    void draw(int count, Index index)
    {
        count = std::min(count, m_header.width - m_column);
        Pixel* row = m_target.row(m_header.topRowFirst ? m_line : m_header.height - 1 - m_line);
        for (int i = 0; i < count; ++i)
            row[m_column + i] = m_header.palette[index(i)];
        m_column += count;
    }

    void nextLine() { move(-m_column, 1); }

    void move(int columns, int lines)
    {
        m_column = std::min(m_column + columns, m_header.width);
        m_line = std::min(m_line + lines, m_header.height);
    }

private:
    const Header& m_header;
    const PixelView& m_target;
    int m_column = 0;
    int m_line = 0; // in the order of the file
};

/// The palette index of pixel `i` in packed data: a byte, or half of one with the left pixel in the high half.
std::uint8_t packedIndex(Bytes packed, bool halves, int i)
{
    const auto position = static_cast<std::size_t>(i);
    if (!halves)
        return packed[position];
    const std::uint8_t pair = packed[position / 2];
    return i % 2 == 0 ? pair >> 4 : pair & 0x0F;
}

} // namespace

bool decodeRunLength(const Header& header, PixelView target)
{
    for (int y = 0; y < header.height; ++y)
        std::fill_n(target.row(y), header.width, header.palette[0]);

    const bool halves = header.storage == Storage::RunLength4;
    Pen pen(header, target);
    Bytes rest = header.pixelData;
    while (!pen.isBelowPicture() && rest.size() >= 2) {
        const Bytes code = rest.first(2);
        rest = rest.subspan(2);
        if (code[0] != 0) {
            pen.draw(code[0], [&](int i) { return packedIndex(code.last(1), halves, halves ? i % 2 : 0); });
        } else if (code[1] == kEndOfLine) {
            pen.nextLine();
        } else if (code[1] == kEndOfBitmap) {
            return true;
        } else if (code[1] == kMove) {
            if (rest.size() < 2)
                return false;
            pen.move(rest[0], rest[1]);
            rest = rest.subspan(2);
        } else {
            const std::size_t used = halves ? (code[1] + std::size_t{1}) / 2 : code[1];
            if (rest.size() < used)
                return false;
            pen.draw(code[1], [&](int i) { return packedIndex(rest, halves, i); });
            rest = rest.subspan(std::min(used + used % 2, rest.size())); // padded to 16 bits
        }
    }
    return pen.hasFilledPicture();
}

} // namespace vq::gdiplus::bmp
