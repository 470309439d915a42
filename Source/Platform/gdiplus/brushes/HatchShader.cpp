// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/brushes/HatchShader.h"

#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <algorithm>
#include <cstdint>

namespace vq::gdiplus {
namespace {

/// The cells of GDI+ by the number of their style: a byte for each row from the top, its highest bit on the left; bits
/// are set where the foreground is.
// clang-format off
constexpr std::array<std::uint64_t, 53> kCells{
    0xFF00000000000000, // Horizontal
    0x8080808080808080, // Vertical
    0x0000000000000000, // ForwardDiagonal: smoothed, computed below
    0x0000000000000000, // BackwardDiagonal: smoothed, computed below
    0xFF80808080808080, // Cross
    0x0000000000000000, // DiagonalCross: smoothed, computed below
    0x8000000008000000, // 05Percent
    0x8000080080000800, // 10Percent
    0x8800220088002200, // 20Percent
    0x8822882288228822, // 25Percent
    0xAA44AA11AA44AA11, // 30Percent
    0xAA55AA51AA55AA15, // 40Percent
    0xAA55AA55AA55AA55, // 50Percent
    0xEE55BB55EE55BB55, // 60Percent
    0x77DD77DD77DD77DD, // 70Percent
    0x77FFDDFF77FFDDFF, // 75Percent
    0xEFFFFEFFEFFFFEFF, // 80Percent
    0xFFFFFFF7FFFFFF7F, // 90Percent
    0x8844221188442211, // LightDownwardDiagonal
    0x1122448811224488, // LightUpwardDiagonal
    0xCC663399CC663399, // DarkDownwardDiagonal
    0x3366CC993366CC99, // DarkUpwardDiagonal
    0xC1E070381C0E0783, // WideDownwardDiagonal
    0x83070E1C3870E0C1, // WideUpwardDiagonal
    0x8888888888888888, // LightVertical
    0xFF000000FF000000, // LightHorizontal
    0x5555555555555555, // NarrowVertical
    0xFF00FF00FF00FF00, // NarrowHorizontal
    0xCCCCCCCCCCCCCCCC, // DarkVertical
    0xFFFF0000FFFF0000, // DarkHorizontal
    0x0000884422110000, // DashedDownwardDiagonal
    0x0000112244880000, // DashedUpwardDiagonal
    0xF00000000F000000, // DashedHorizontal
    0x8080808008080808, // DashedVertical
    0x8008400210012004, // SmallConfetti
    0xB130031BD8C00C8D, // LargeConfetti
    0x8142241881422418, // ZigZag
    0x001825C0001825C0, // Wave
    0x0102040818244281, // DiagonalBrick
    0xFF808080FF080808, // HorizontalBrick
    0x8854224588142251, // Weave
    0xAA55AA55F0F0F0F0, // Plaid
    0x0010081000800180, // Divot
    0xAA00800080008000, // DottedGrid
    0x8000220008002200, // DottedDiamond
    0x038448300C020101, // Shingle
    0xFF66FF99FF66FF99, // Trellis
    0x77898F8F7798F8F8, // Sphere
    0xFF888888FF888888, // SmallGrid
    0x9966669999666699, // SmallCheckerBoard
    0xF0F0F0F00F0F0F0F, // LargeCheckerBoard
    0x8244281028448201, // OutlinedDiamond
    0x10387CFE7C381000, // SolidDiamond
};
// clang-format on

constexpr int kForwardDiagonal = 2;
constexpr int kBackwardDiagonal = 3;
constexpr int kDiagonalCross = 5;

/// How much a pixel has of the foreground, in 255ths: on a smoothed diagonal line, beside it, and further away.
/// `distance` is counted along the row, modulo 8.
constexpr Channel onSmoothedLine(unsigned distance)
{
    switch (distance % 8) {
    case 0:
        return 234;
    case 1:
    case 7:
        return 64;
    default:
        return 0;
    }
}

/// The share of the foreground at pixel (x, y) of a style's cell, in 255ths.
constexpr Channel foregroundShare(int style, unsigned x, unsigned y)
{
    const Channel downwards = onSmoothedLine(x - y);
    const Channel upwards = onSmoothedLine(x + y + 1);
    switch (style) {
    case kForwardDiagonal:
        return downwards;
    case kBackwardDiagonal:
        return upwards;
    case kDiagonalCross:
        return std::max(downwards, upwards);
    default:
        return kCells[static_cast<std::size_t>(style)] >> (63 - 8 * y - x) & 1 ? 255 : 0;
    }
}

} // namespace

HatchShader::HatchShader(int style, Pixel foreground, Pixel background, int originX, int originY)
    : m_originX(static_cast<unsigned>(originX)), m_originY(static_cast<unsigned>(originY))
{
    for (unsigned y = 0; y < kSize; ++y)
        for (unsigned x = 0; x < kSize; ++x)
            m_cell[y][x] = sourceCopy(background, foreground, foregroundShare(style, x, y));
}

void HatchShader::shade(std::span<Pixel> row, int x, int y) const
{
    const auto& cell = m_cell[(static_cast<unsigned>(y) - m_originY) % kSize];
    std::array<Pixel, kSize> turned = cell;
    std::ranges::rotate(turned, turned.begin() + (static_cast<unsigned>(x) - m_originX) % kSize);
    std::size_t first = 0;
    for (; first + kSize <= row.size(); first += kSize)
        std::ranges::copy(turned, row.begin() + static_cast<std::ptrdiff_t>(first));
    std::copy_n(turned.begin(), row.size() - first, row.begin() + static_cast<std::ptrdiff_t>(first));
}

} // namespace vq::gdiplus
