// SPDX-License-Identifier: MIT
// Pictures from bitmap objects and from the resources of modules.
#include "VQDraw/VQDIB.h"

#include <algorithm>

namespace {

using PixelRows = vq::platform::PixelMemory<ULONG>;

ULONG opaque(ULONG pixel)
{
    return pixel | 0xFF000000;
}

std::size_t offsetOf(LONG row, LONG width)
{
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(width);
}

/// All pixels, rows from the top down; nothing when the bitmap is in use or too large. A device context would take one
/// colour for none.
PixelRows pixelsOf(CBitmap& bitmap, const BITMAP& measures)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = measures.bmWidth;
    info.bmiHeader.biHeight = -measures.bmHeight;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    const auto rows = static_cast<UINT>(measures.bmHeight);
    PixelRows pixels(static_cast<ULONG*>(
        vq::platform::allocateRaw(offsetOf(measures.bmHeight, measures.bmWidth) * sizeof(ULONG))));
    CDC context;
    context.CreateCompatibleDC(nullptr);
    const auto handle = static_cast<HBITMAP>(bitmap.GetSafeHandle());
    if (!pixels || GetDIBits(context.m_hDC, handle, 0, rows, pixels.get(), &info, DIB_RGB_COLORS) == 0)
        return nullptr;
    return pixels;
}

} // namespace

bool CVQDIB::LoadBitmapW(UINT resourceId, bool resize)
{
    const AFX_MODULE_STATE* library = AfxGetStaticModuleState();
    const HINSTANCE modules[] = {library->m_hCurrentResourceHandle, library->m_hCurrentInstanceHandle,
                                 AfxGetResourceHandle()};
    CBitmap bitmap;
    for (const HINSTANCE module : modules)
        if (bitmap.Attach(::LoadBitmapW(module, MAKEINTRESOURCEW(resourceId))))
            return LoadBitmapW(&bitmap, resize);
    return false;
}

bool CVQDIB::LoadBitmapW(CBitmap* bitmap, bool resize)
{
    BITMAP measures{};
    if (!bitmap || !bitmap->GetBitmap(&measures))
        return false;
    if (resize)
        Create(measures.bmWidth, measures.bmHeight);
    const PixelRows pixels = pixelsOf(*bitmap, measures);
    if (!pixels)
        return false;
    const LONG width = std::min<LONG>(measures.bmWidth, m_iWidth);
    const LONG height = std::min<LONG>(measures.bmHeight, m_iHeight);
    for (LONG y = 0; m_pImageBuffer && y < height; ++y) {
        const ULONG* const row = pixels.get() + offsetOf(y, measures.bmWidth);
        std::transform(row, row + width, m_pImageBuffer + offsetOf(y, m_iWidth), opaque);
    }
    return true;
}
