// SPDX-License-Identifier: MIT
#pragma once

#include "support/ImageAccess.h"

/// The private pixel routines of the image class.
template <typename Image>
struct VQTestAccess::PixelRoutines
{
    static int clip(Image& dst, LONG& dx, LONG& dy, Image& src, LONG& sx, LONG& sy, LONG& w, LONG& h)
    {
        return Image::RectangularRegionClip(dst, dx, dy, src, sx, sy, w, h);
    }

    static auto copyDefault() { return &Image::CopyDefault; }
    static auto copySse2() { return &Image::CopySSE2; }
    static auto pasteDefault() { return &Image::PasteDefault; }
    static auto pasteSse2() { return &Image::PasteSSE2; }

    static auto addDefault() { return &Image::AddDefault; }
    static auto addSse2() { return &Image::AddSSE2; }
    static auto subtractDefault() { return &Image::SubtractDefault; }
    static auto subtractSse2() { return &Image::SubtractSSE2; }
    static auto multiplyDefault() { return &Image::MultiplyDefault; }
    static auto multiplySse2() { return &Image::MultiplySSE2; }
    static auto multiplySse3() { return &Image::MultiplySSE3; }
    static auto screenDefault() { return &Image::ScreenDefault; }
    static auto screenSse2() { return &Image::ScreenSSE2; }
    static auto lightenDefault() { return &Image::LightenDefault; }
    static auto lightenSse2() { return &Image::LightenSSE2; }
    static auto darkenDefault() { return &Image::DarkenDefault; }
    static auto darkenSse2() { return &Image::DarkenSSE2; }
    static auto differenceDefault() { return &Image::DifferenceDefault; }
    static auto differenceSse2() { return &Image::DifferenceSSE2; }

    static auto invertDefault() { return &Image::InvertDefault; }
    static auto invertSse2() { return &Image::InvertSSE2; }
    static auto convertToGrayDefault() { return &Image::ConvertToGrayDefault; }
    static auto convertToGraySse2() { return &Image::ConvertToGraySSE2; }
    static auto convertToGraySsse3() { return &Image::ConvertToGraySSSE3; }
    static auto quantizeDefault() { return &Image::QuantizeDefault; }
    static auto quantizeSse2() { return &Image::QuantizeSSE2; }
    static auto equalizeDefault() { return &Image::EqualizeDefault; }
    static auto equalizeSse2() { return &Image::EqualizeSSE2; }
};
