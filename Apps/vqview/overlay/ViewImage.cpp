// SPDX-License-Identifier: MIT
#include "vqview/overlay/ViewImage.h"

#include "vqview/overlay/StateGuard.h"

#include <algorithm>

namespace vqview {

namespace {

// In the core since OpenGL 1.2; the headers of 1.1 know it by the name of the extension or not at all.
constexpr GLenum kBgra = 0x80E1;
constexpr LONG kBandRows = 32;
constexpr std::array<double, 16> kIdentity{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

/// Pixels of images are words whose bytes are blue, green, red, alpha, without padding.
void resetPixelTransfer()
{
    for (const GLenum setting :
         {GL_UNPACK_SWAP_BYTES, GL_UNPACK_LSB_FIRST, GL_UNPACK_ROW_LENGTH, GL_UNPACK_SKIP_ROWS, GL_UNPACK_SKIP_PIXELS,
          GL_PACK_SWAP_BYTES, GL_PACK_LSB_FIRST, GL_PACK_ROW_LENGTH, GL_PACK_SKIP_ROWS, GL_PACK_SKIP_PIXELS})
        glPixelStorei(setting, 0);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    for (const GLenum scale : {GL_RED_SCALE, GL_GREEN_SCALE, GL_BLUE_SCALE, GL_ALPHA_SCALE})
        glPixelTransferf(scale, 1);
    for (const GLenum bias : {GL_RED_BIAS, GL_GREEN_BIAS, GL_BLUE_BIAS, GL_ALPHA_BIAS})
        glPixelTransferf(bias, 0);
    glPixelTransferi(GL_MAP_COLOR, 0);
}

void blendByAlphaAlone()
{
    for (const GLenum test : {GL_ALPHA_TEST, GL_DEPTH_TEST, GL_STENCIL_TEST, GL_SCISSOR_TEST, GL_FOG, GL_LIGHTING,
                              GL_TEXTURE_1D, GL_TEXTURE_2D, GL_COLOR_LOGIC_OP, GL_DITHER})
        glDisable(test);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_FALSE);
}

bool isSeen(ULONG pixel)
{
    return pixel >> 24 != 0;
}

/// The smallest rectangle around what is not transparent in some rows of an image, within its first columns.
CRect seenPart(CVQDIB& image, LONG firstRow, LONG lastRow, LONG columns)
{
    CRect seen(columns, lastRow, 0, firstRow);
    for (LONG y = firstRow; y < lastRow; ++y) {
        const ULONG* const row = image.GetImageBuffer(0, y);
        ULONG any = 0;
        for (LONG x = 0; x < columns; ++x)
            any |= row[x];
        if (!isSeen(any))
            continue;
        const ULONG* const end = row + columns;
        const auto reversed = std::find_if(std::make_reverse_iterator(end), std::make_reverse_iterator(row), isSeen);
        seen.left = std::min(seen.left, static_cast<LONG>(std::find_if(row, end, isSeen) - row));
        seen.right = std::max(seen.right, static_cast<LONG>(reversed.base() - row));
        seen.top = std::min(seen.top, y);
        seen.bottom = y + 1;
    }
    return seen;
}

/// The raster position stands in the upper left corner before and after.
void drawPart(CVQDIB& image, const CRect& part)
{
    const auto move = [](LONG x, LONG y) {
        glBitmap(0, 0, 0, 0, static_cast<float>(x), static_cast<float>(-y), nullptr);
    };
    move(part.left, part.top);
    glDrawPixels(part.Width(), part.Height(), kBgra, GL_UNSIGNED_BYTE, image.GetImageBuffer(part.left, part.top));
    move(-part.left, -part.top);
}

} // namespace

void drawOver(CVQDIB& image, const SVQGLVariables& view)
{
    const int* const port = view.m_iViewport;
    const LONG columns = std::min<LONG>(image.GetWidth(), port[2]);
    const LONG rows = std::min<LONG>(image.GetHeight(), port[3]);
    if (!image.GetImageBuffer() || columns < 1 || rows < 1)
        return;
    const StateGuard guard;
    blendByAlphaAlone();
    resetPixelTransfer();
    glPixelStorei(GL_UNPACK_ROW_LENGTH, image.GetWidth());
    glPixelZoom(1, -1); // rows of an image run downwards
    glViewport(port[0], port[1], port[2], port[3]);
    loadMatrices(kIdentity.data(), kIdentity.data());
    glRasterPos2f(-1, 1);
    for (LONG y = 0; y < rows; y += kBandRows) {
        const CRect part = seenPart(image, y, std::min(y + kBandRows, rows), columns);
        if (part.left < part.right)
            drawPart(image, part);
    }
}

void copyFrame(CVQDIB& image, const SVQGLVariables& view)
{
    const int* const port = view.m_iViewport;
    if (port[2] < 1 || port[3] < 1)
        return;
    if (image.GetWidth() != port[2] || image.GetHeight() != port[3])
        image.Resize(port[2], port[3]);
    if (!image.GetImageBuffer())
        return;
    const StateGuard guard;
    resetPixelTransfer();
    glReadPixels(port[0], port[1], port[2], port[3], kBgra, GL_UNSIGNED_BYTE, image.GetImageBuffer());
    image.FlipVertical();
    image.ClearAlpha(255);
}

} // namespace vqview
