// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Device contexts to draw on and to read from.

#include "Platform/Platform.h"
#include "support/Pictures.h"

namespace vq::test {

/// A memory device context with a 32-bit top-down section selected, whose pixels can be read at any time.
class MemoryContext
{
public:
    /// Every pixel becomes `fill`, 0xAARRGGBB.
    MemoryContext(LONG width, LONG height, ULONG fill = 0) : m_context(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        info.bmiHeader.biCompression = BI_RGB;
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(m_context, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        EXPECT_NE(m_bitmap, nullptr);
        m_pixels = static_cast<ULONG*>(bits);
        m_count = static_cast<std::size_t>(width * height);
        m_before = SelectObject(m_context, m_bitmap);
        paint(Pixels(m_count, fill));
    }

    ~MemoryContext()
    {
        SelectObject(m_context, m_before);
        DeleteObject(m_bitmap);
        DeleteDC(m_context);
    }

    MemoryContext(const MemoryContext&) = delete;
    MemoryContext& operator=(const MemoryContext&) = delete;

    HDC handle() const { return m_context; }

    void paint(const Pixels& content)
    {
        flush();
        for (std::size_t i = 0; i < m_count; ++i)
            m_pixels[i] = content[i];
    }

    /// 0x00RRGGBB: drawing on contexts leaves no promise about the fourth byte.
    Pixels colours() const
    {
        flush();
        Pixels result(m_pixels, m_pixels + m_count);
        for (ULONG& pixel : result)
            pixel &= 0x00FFFFFF;
        return result;
    }

private:
    /// GDI collects calls; one that returns a colour makes it carry them out.
    void flush() const { GetPixel(m_context, 0, 0); }

    HDC m_context;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
    ULONG* m_pixels = nullptr;
    std::size_t m_count = 0;
};

/// The colours (0x00RRGGBB) of a part of a context, whatever the context is.
inline Pixels coloursOf(HDC source, int x, int y, int width, int height)
{
    MemoryContext copy(width, height);
    BitBlt(copy.handle(), 0, 0, width, height, source, x, y, SRCCOPY);
    return copy.colours();
}

} // namespace vq::test
