// SPDX-License-Identifier: MIT
// Tones of one image: inversion, greys, brightness, contrast.
#include "VQDraw/VQDIB.h"

#include "VQDraw/filters/BlendFormulas.h"
#include "VQDraw/filters/ToneFormulas.h"

#include <algorithm>
#include <span>

void CVQDIB::InvertDefault(CVQDIB& image)
{
    vq::toneRow(image.Pixels(), vq::inverted);
}

void CVQDIB::ConvertToGrayDefault(CVQDIB& image)
{
    vq::toneRow(image.Pixels(), vq::weightedGrey);
}

void CVQDIB::QuantizeDefault(CVQDIB& image, LONG n)
{
    vq::toneRow(image.Pixels(), vq::quantized(static_cast<unsigned>(n) & 7));
}

void CVQDIB::EqualizeDefault(CVQDIB& image)
{
    const vq::ChannelRange range = vq::blueRange(std::span<const ULONG>(image.Pixels()));
    if (range.low < range.high)
        vq::toneRow(image.Pixels(), vq::stretched(range));
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
        vq::toneRow(std::span(GetImageBuffer(rect.left, y), GetImageBuffer(rect.right, y) + 1), vq::meanGrey);
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
        vq::toneRow(Pixels(), vq::brightened(level));
    }
}
