// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Small BMP files, byte for byte.

#include "unit/Platform/gdiplus/codecs/Support.h"

namespace vq::test {

/// 3 x 2, rows from the bottom, 96 dpi: red green blue over black white 102030.
inline Bytes bmp24()
{
    return fromHex("42 4D  4E 00 00 00  00 00 00 00  36 00 00 00"
                   "28 00 00 00  03 00 00 00  02 00 00 00  01 00  18 00  00 00 00 00"
                   "18 00 00 00  C4 0E 00 00  C4 0E 00 00  00 00 00 00  00 00 00 00"
                   "00 00 00  FF FF FF  30 20 10  00 00 00"
                   "00 00 FF  00 FF 00  FF 00 00  00 00 00");
}

inline const Pixels kBmp24Pixels{0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFF000000, 0xFFFFFFFF, 0xFF102030};

/// The headers of a file with 40 bytes of information, without resolution; palette, masks and pixels follow.
inline Bytes bmpHeader(int width, int height, int bits, int compression, int pixelOffset, int colours = 0)
{
    Bytes file(54);
    file[0] = 'B';
    file[1] = 'M';
    put32(file, 10, static_cast<std::uint32_t>(pixelOffset));
    put32(file, 14, 40);
    put32(file, 18, static_cast<std::uint32_t>(width));
    put32(file, 22, static_cast<std::uint32_t>(height));
    file[26] = 1;
    file[28] = static_cast<std::uint8_t>(bits);
    put32(file, 30, static_cast<std::uint32_t>(compression));
    put32(file, 46, static_cast<std::uint32_t>(colours));
    return file;
}

inline Bytes operator+(Bytes left, const Bytes& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

constexpr int kRle8 = 1;
constexpr int kRle4 = 2;
constexpr int kBitFields = 3;
constexpr int kAlphaBitFields = 6;

/// Black, red, green, blue as a palette of four entries.
inline Bytes fourColours()
{
    return fromHex("00 00 00 00  00 00 FF 00  00 FF 00 00  FF 00 00 00");
}

/// 4 x 2 of 8 bits, run-length encoded: 1 1 1 2 above 3 0 2 1.
inline Bytes bmpRle8()
{
    return bmpHeader(4, 2, 8, kRle8, 70, 4) + fourColours() + fromHex("00 04 03 00 02 01  00 00  03 01 01 02  00 01");
}

/// The same of 4 bits.
inline Bytes bmpRle4()
{
    return bmpHeader(4, 2, 4, kRle4, 70, 4) + fourColours() + fromHex("00 04 30 21  00 00  03 11 01 20  00 01");
}

inline const Pixels kRunLengthPixels{0xFFFF0000, 0xFFFF0000, 0xFFFF0000, 0xFF00FF00,
                                     0xFF0000FF, 0xFF000000, 0xFF00FF00, 0xFFFF0000};

/// 2 x 1 of 32 bits with a V5 header whose masks include alpha.
inline Bytes bmpV5()
{
    Bytes file = bmpHeader(2, 1, 32, kBitFields, 138);
    put32(file, 14, 124);
    file.resize(138);
    put32(file, 54, 0x00FF0000);
    put32(file, 58, 0x0000FF00);
    put32(file, 62, 0x000000FF);
    put32(file, 66, 0xFF000000);
    return file + fromHex("FF 00 FF 00  56 34 12 80");
}

inline const Pixels kV5Pixels{0x00FF00FF, 0x80123456};

} // namespace vq::test
