// SPDX-License-Identifier: MIT
// Copying blocks of pixels, and how a block is cut to two images.
#include "VQDraw/VQDIB.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace {

LONG limitedToLong(std::int64_t value)
{
    return static_cast<LONG>(
        std::clamp<std::int64_t>(value, std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()));
}

/// One axis of a block: `size` pixels from `source` on go to `destination` on. In 64 bits, so that no sum overflows.
/// What is cut at a negative source position does not move the destination, deliberately.
/// @return whether the block reaches both images; its size may be 0 or negative nevertheless.
bool clipAxis(LONG& destination, LONG destinationSize, LONG& source, LONG sourceSize, LONG& size)
{
    std::int64_t d = destination;
    std::int64_t s = source;
    std::int64_t n = size;
    if (d >= destinationSize)
        return false;
    if (d < 0) {
        s -= d;
        n += d;
        d = 0;
    }
    if (s < 0) {
        n += s;
        s = 0;
    }
    if (s >= sourceSize)
        return false;
    n = std::min({n, destinationSize - d, sourceSize - s});
    destination = limitedToLong(d);
    source = limitedToLong(s);
    size = limitedToLong(n);
    return true;
}

} // namespace

/// Cuts a block to both images, in place.
/// @return 1 when something may remain to transfer: w or h may be 0 or negative. 0 when the block lies outside; what
/// the arguments hold then has no meaning.
int CVQDIB::RectangularRegionClip(CVQDIB& dst, LONG& dx, LONG& dy, CVQDIB& src, LONG& sx, LONG& sy, LONG& w, LONG& h)
{
    return clipAxis(dx, dst.m_iWidth, sx, src.m_iWidth, w) && clipAxis(dy, dst.m_iHeight, sy, src.m_iHeight, h);
}

void CVQDIB::CopyDefault(CVQDIB& dst, CVQDIB& src, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    const CSingleLock lock(&_critSect, TRUE);
    if (!RectangularRegionClip(dst, dx, dy, src, sx, sy, w, h) || w <= 0 || h <= 0)
        return;
    const std::size_t rowBytes = static_cast<std::size_t>(w) * kPixelBytes;
    if (&dst != &src && w == dst.m_iWidth && w == src.m_iWidth) { // one block, which the C library streams if large
        std::memcpy(dst.GetImageBuffer(0, dy), src.GetImageBuffer(0, sy), rowBytes * static_cast<std::size_t>(h));
        return;
    }
    for (LONG row = 0; row < h; ++row) // the rows of one image may overlap
        std::memmove(dst.GetImageBuffer(dx, dy + row), src.GetImageBuffer(sx, sy + row), rowBytes);
}

void CVQDIB::Copy(CVQDIB& source)
{
    Copy(source, 0, 0);
}

void CVQDIB::Copy(CVQDIB* source)
{
    Copy(source, 0, 0);
}

void CVQDIB::Copy(CVQDIB& source, LONG x, LONG y)
{
    Copy(source, x, y, 0, 0, source.m_iWidth, source.m_iHeight);
}

void CVQDIB::Copy(CVQDIB* source, LONG x, LONG y)
{
    if (source)
        Copy(*source, x, y);
}

void CVQDIB::Copy(CVQDIB& source, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    pfCopy(*this, source, dx, dy, sx, sy, w, h);
}

void CVQDIB::Copy(CVQDIB* source, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    if (source)
        Copy(*source, dx, dy, sx, sy, w, h);
}
