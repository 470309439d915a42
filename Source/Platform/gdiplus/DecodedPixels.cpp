// SPDX-License-Identifier: MIT
#include "Platform/DecodedPixels.h"

#include "Platform/gdiplus/ImageAccess.h"

namespace vq::platform {

struct PixelTaker
{
    static DecodedPixels take(Gdiplus::Image& image)
    {
        if (!image.m_pixels || image.m_pixels.use_count() > 1)
            return {};
        gdiplus::PixelStore& store = *image.m_pixels;
        const bool isDense = store.stride == store.width * static_cast<std::ptrdiff_t>(sizeof(ULONG));
        if (!store.memory || !store.isStraight() || !isDense || store.lock)
            return {};
        DecodedPixels taken{PixelMemory<ULONG>(reinterpret_cast<ULONG*>(store.memory.release())),
                            store.layout == gdiplus::Layout::Straight};
        image.m_pixels.reset();
        return taken;
    }
};

DecodedPixels takePixels(Gdiplus::Bitmap& bitmap)
{
    return PixelTaker::take(bitmap);
}

} // namespace vq::platform
