// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What has been drawn on a small picture that was transparent before, in forms that a test can write down.

#include "parity/Pixels.h"
#include "support/Sha256.h"

#include <cmath>
#include <initializer_list>
#include <string>
#include <vector>

namespace vq::test {

constexpr std::uint32_t kRed = 0xFFFF0000;
using Found = TestPicture::Found;

/// Whole numbers in ascending order: columns of a row, or rows of a column.
using Places = std::vector<int>;

inline Places fromTo(int first, int last)
{
    Places places;
    for (int i = first; i <= last; ++i)
        places.push_back(i);
    return places;
}

inline int widthOf(const TestPicture& picture)
{
    return static_cast<int>(picture.row(0).size());
}

inline int heightOf(const TestPicture& picture)
{
    return static_cast<int>(picture.all().size()) / widthOf(picture);
}

/// The columns of a row whose pixels are not zero.
inline Places columnsDrawn(const TestPicture& picture, int y)
{
    Places places;
    for (int x = 0; x < widthOf(picture); ++x)
        if (picture.at(x, y).value != 0)
            places.push_back(x);
    return places;
}

/// The rows of a column whose pixels are not zero.
inline Places rowsDrawn(const TestPicture& picture, int x)
{
    Places places;
    for (int y = 0; y < heightOf(picture); ++y)
        if (picture.at(x, y).value != 0)
            places.push_back(y);
    return places;
}

/// The picture as text, a line a row: '#' where something has been drawn, '.' elsewhere.
inline std::string drawn(const TestPicture& picture)
{
    std::string text;
    for (int y = 0; y < heightOf(picture); ++y) {
        for (const Argb pixel : picture.row(y))
            text += pixel.value != 0 ? '#' : '.';
        text += '\n';
    }
    return text;
}

/// The text of a picture, from its rows.
inline std::string rows(std::initializer_list<const char*> rows)
{
    std::string text;
    for (const char* row : rows)
        text.append(row).push_back('\n');
    return text;
}

inline int pixelsDrawn(const TestPicture& picture)
{
    return static_cast<int>(picture.all().size()) - picture.find(0).count;
}

/// Nothing but untouched pixels and pixels of one colour, which a shape painted once leaves.
inline void expectOnly(const TestPicture& picture, std::uint32_t colour)
{
    EXPECT_EQ(picture.find(colour).count, pixelsDrawn(picture)) << drawn(picture);
    EXPECT_GT(picture.find(colour).count, 0);
}

/// The digest of the pixels' bytes, blue first, row by row.
inline std::string digestOf(const TestPicture& picture)
{
    std::vector<std::uint8_t> bytes;
    for (const Argb pixel : picture.all())
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<std::uint8_t>(pixel.value >> shift));
    return sha256(bytes);
}

} // namespace vq::test
