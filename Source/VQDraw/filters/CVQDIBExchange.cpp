// SPDX-License-Identifier: MIT
// Exchanging single colours.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/BlendRows.h"

#include <algorithm>
#include <array>

namespace {

/// Pixels that are searched together: most blocks hold none of the colours.
constexpr LONG kBlock = 64;

struct ColourPairs
{
    const COLORREF* from; // 0x00RRGGBB
    const COLORREF* to;   // 0x00BBGGRR
    std::size_t count;
    LONG alpha;
};

bool contains(const ULONG* pixels, std::size_t count, ULONG wanted)
{
    unsigned hits = 0; // no early way out: the loop stays free of branches
    for (std::size_t i = 0; i < count; ++i)
        hits |= static_cast<unsigned>(pixels[i] == wanted);
    return hits != 0;
}

void exchangeBlock(ULONG* pixels, std::size_t count, const ColourPairs& pairs)
{
    std::array<ULONG, kBlock> before;
    std::copy_n(pixels, count, before.begin());
    for (std::size_t pair = 0; pair < pairs.count; ++pair) {
        const ULONG wanted = pairs.from[pair] | vq::kAlphaBits;
        if (!contains(before.data(), count, wanted))
            continue;
        const vq::Tint tint = vq::tintFromColorRef(pairs.to[pair], pairs.alpha);
        for (std::size_t i = 0; i < count; ++i)
            pixels[i] = before[i] == wanted ? vq::tinted(pixels[i], tint) : pixels[i];
    }
}

} // namespace

/// The bitmap says which part of the picture is searched: nothing when it cannot be asked.
int CVQDIB::ExchangePairs(const COLORREF* from, const COLORREF* to, std::size_t count, LONG alpha)
{
    if (!m_pBitmap || !m_pImageBuffer)
        return 0;
    const auto width = std::min(static_cast<LONG>(m_pBitmap->GetWidth()), m_iWidth);
    const auto height = std::min(static_cast<LONG>(m_pBitmap->GetHeight()), m_iHeight);
    const ColourPairs pairs{from, to, count, alpha};
    for (LONG y = 0; y < height; ++y) {
        ULONG* row = GetImageBuffer(0, y);
        for (LONG x = 0; x < width; x += kBlock)
            exchangeBlock(row + x, static_cast<std::size_t>(std::min(width - x, kBlock)), pairs);
    }
    return 1;
}

int CVQDIB::ExchangeColor(const COLORREF& from, const COLORREF& to, LONG alpha)
{
    return ExchangePairs(&from, &to, 1, alpha);
}

int CVQDIB::ExchangeColors(const CArray<COLORREF, const COLORREF&>& from, const CArray<COLORREF, const COLORREF&>& to,
                           LONG alpha)
{
    if (from.GetSize() != to.GetSize())
        return 0;
    return ExchangePairs(from.GetData(), to.GetData(), static_cast<std::size_t>(from.GetSize()), alpha);
}
