// SPDX-License-Identifier: MIT
#include "Platform/win32/Win32.h"

namespace {

/// Uses everything that takes memory until the library is unloaded, and cleans up behind itself only what is a host's
/// to clean up: the last of it while the library is on its way out.
class Guest
{
public:
    Guest()
    {
        const HDC screen = GetDC(nullptr);
        SetPixel(screen, 5, 5, RGB(1, 2, 3));
        m_context = CreateCompatibleDC(screen);
        m_bitmap = CreateCompatibleBitmap(screen, 100, 100);
        m_initial = SelectObject(m_context, m_bitmap);
        BitBlt(m_context, 0, 0, 100, 100, screen, 0, 0, SRCCOPY);
        for (int index = 0; index < 32; ++index)
            GetStockObject(index);
        ReleaseDC(nullptr, screen);
        m_fixed = GlobalAlloc(GPTR, 1000);
        CreateStreamOnHGlobal(nullptr, TRUE, &m_stream);
        m_stream->Write("abc", 3, nullptr);
        SetLastError(ERROR_SUCCESS);
    }

    ~Guest()
    {
        m_stream->Release();
        GlobalFree(m_fixed);
        SelectObject(m_context, m_initial);
        DeleteObject(m_bitmap);
        DeleteDC(m_context);
    }

    Guest(const Guest&) = delete;
    Guest& operator=(const Guest&) = delete;

private:
    HDC m_context = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_initial = nullptr;
    HGLOBAL m_fixed = nullptr;
    IStream* m_stream = nullptr;
};

const Guest guest;

} // namespace
