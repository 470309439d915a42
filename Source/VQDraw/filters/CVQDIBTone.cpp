// SPDX-License-Identifier: MIT
// Tones of one image: inversion, greys, brightness, contrast.
#include "VQDraw/VQDIB.h"

#include "VQDraw/filters/BlendFormulas.h"
#include "VQDraw/filters/ToneFormulas.h"

#include <algorithm>
#include <span>

void CVQDIB::InvertDefault(CVQDIB& image)
{
    vq::transformRow(image.Pixels(), vq::inverted);
}

void CVQDIB::ConvertToGrayDefault(CVQDIB& image)
{
    vq::transformRow(image.Pixels(), vq::weightedGrey);
}

void CVQDIB::QuantizeDefault(CVQDIB& image, LONG n)
{
    vq::transformRow(image.Pixels(), vq::quantized(static_cast<unsigned>(n) & 7));
}

void CVQDIB::EqualizeDefault(CVQDIB& image)
{
    const vq::ChannelRange range = vq::blueRange(std::span<const ULONG>(image.Pixels()));
    if (range.low < range.high)
        vq::transformRow(image.Pixels(), vq::stretched(range));
}

void CVQDIB::Invert()
{
    pfInvert(*this);
}

void CVQDIB::ConvertToGray()
{
    pfConvertToGray(*this);
}

void CVQDIB::ConvertToGray(CRect rect)
{
    rect = ClipInclusive(rect);
    if (rect.left > rect.right)
        return;
    for (LONG y = rect.top; y <= rect.bottom; ++y)
        vq::transformRow(std::span(GetImageBuffer(rect.left, y), GetImageBuffer(rect.right, y) + 1), vq::meanGrey);
}

void CVQDIB::Quantize(LONG n)
{
    pfQuantize(*this, n);
}

void CVQDIB::Equalize()
{
    pfEqualize(*this);
}

void CVQDIB::Darken(LONG level)
{
    if (level >= 0) {
        const auto colours = static_cast<vq::Pixel>(std::min<LONG>(level, 255)) * 0x010101; // nothing from alpha
        vq::combineRowWith(Pixels(), colours, vq::subtract);
    } else {
        vq::transformRow(Pixels(), vq::brightened(level));
    }
}
