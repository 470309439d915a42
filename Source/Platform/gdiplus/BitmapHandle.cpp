// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/BitmapHandle.h"

namespace vq::gdiplus {
namespace {

/// No carry leaves a channel: round(c * a / 255) + round(b * (255 - a) / 255) is at most 255.
Pixel overBackground(Pixel pixel, Pixel background)
{
    const Pixel under = premultiplied((background & ~kAlphaBits) | (255 - alphaOf(pixel)) << 24);
    return premultiplied(pixel) + (under & ~kAlphaBits);
}

} // namespace

HBITMAP createHandle(const PixelStore& store, Pixel background)
{
    const StraightPixels pixels(store);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = store.width;
    info.bmiHeader.biHeight = store.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (!bitmap)
        return nullptr;

    const std::ptrdiff_t stride = static_cast<std::ptrdiff_t>(store.width) * static_cast<std::ptrdiff_t>(sizeof(Pixel));
    const PixelView section{static_cast<std::uint8_t*>(bits) + (store.height - 1) * stride, -stride, store.width,
                            store.height};
    for (int y = 0; y < store.height; ++y) {
        const Pixel* from = pixels.view().row(y);
        Pixel* to = section.row(y);
        for (int x = 0; x < store.width; ++x)
            to[x] = overBackground(from[x], background);
    }
    return bitmap;
}

} // namespace vq::gdiplus
