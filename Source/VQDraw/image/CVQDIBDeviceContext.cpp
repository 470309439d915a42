// SPDX-License-Identifier: MIT
// GDI+ for the process and for the image, bitmap handles, device contexts.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/ImageFlags.h"
#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>

constinit ULONG_PTR CVQDIB::m_gdiplusToken = 0;
constinit Gdiplus::TextRenderingHint CVQDIB::m_RenderingHint = Gdiplus::TextRenderingHintSingleBitPerPixelGridFit;

int CVQDIB::InitializeGDIPlus()
{
    if (m_gdiplusToken != 0)
        return 1;
    const Gdiplus::GdiplusStartupInput input;
    return GdiplusStartup(&m_gdiplusToken, &input, nullptr) == Gdiplus::Ok;
}

int CVQDIB::ShutdownGDIPlus()
{
    ReleaseMeasuring();
    Gdiplus::GdiplusShutdown(m_gdiplusToken);
    m_gdiplusToken = 0;
    return 1;
}

void CVQDIB::InitializeGraphics()
{
    if (!m_pGraphics)
        return;
    Gdiplus::TextRenderingHint hint;
    GetRenderingHint(hint);
    m_pGraphics->SetTextRenderingHint(hint);
    EnableAntialias(IsEnableAntialias());
}

void CVQDIB::EnableAntialias(bool on)
{
    m_uiFlags = on ? m_uiFlags | vq::kAntialias : m_uiFlags & ~vq::kAntialias;
    if (m_pGraphics)
        m_pGraphics->SetSmoothingMode(on ? Gdiplus::SmoothingModeAntiAlias : Gdiplus::SmoothingModeNone);
}

bool CVQDIB::IsEnableAntialias() const
{
    return (m_uiFlags & vq::kAntialias) != 0;
}

HBITMAP CVQDIB::GetBitmapHandle()
{
    HBITMAP handle = nullptr;
    if (m_pBitmap)
        m_pBitmap->GetHBITMAP(Gdiplus::Color(Gdiplus::Color::Black), &handle);
    return handle;
}

BITMAPINFO CVQDIB::GetBitmapInfo() const
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = m_iWidth;
    info.bmiHeader.biHeight = -m_iHeight;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    info.bmiHeader.biSizeImage = static_cast<DWORD>(m_iByteSize); // modulo 2^32 for images of 4 GiB and more
    return info;
}

void CVQDIB::Update(HDC target)
{
    Update(target, 0, 0);
}

void CVQDIB::Update(HDC target, int x, int y)
{
    Update(target, x, y, 0, 0, m_iWidth, m_iHeight);
}

/// A destination rectangle of the block's own size: the point forms of DrawImage would scale by the device's
/// resolution.
void CVQDIB::Update(HDC target, int x, int y, int sx, int sy, int w, int h)
{
    if (!m_pBitmap)
        return;
    Gdiplus::Graphics graphics(target);
    graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    graphics.DrawImage(m_pBitmap, Gdiplus::Rect(x, y, w, h), sx, sy, w, h, Gdiplus::UnitPixel);
}

void CVQDIB::Update(CDC* target)
{
    Update(target ? target->m_hDC : nullptr);
}

void CVQDIB::Update(const CDC& target)
{
    Update(target.m_hDC);
}

void CVQDIB::Update(CDC* target, int x, int y)
{
    Update(target ? target->m_hDC : nullptr, x, y);
}

void CVQDIB::Update(const CDC& target, int x, int y)
{
    Update(target.m_hDC, x, y);
}

void CVQDIB::Update(CDC* target, int x, int y, int sx, int sy, int w, int h)
{
    Update(target ? target->m_hDC : nullptr, x, y, sx, sy, w, h);
}

void CVQDIB::Update(const CDC& target, int x, int y, int sx, int sy, int w, int h)
{
    Update(target.m_hDC, x, y, sx, sy, w, h);
}

void CVQDIB::Copy(HDC source, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    if (!m_pGraphics)
        return;
    const HDC target = m_pGraphics->GetHDC();
    BitBlt(target, dx, dy, w, h, source, sx, sy, SRCCOPY);
    m_pGraphics->ReleaseHDC(target);
}

void CVQDIB::DumpToDesktop(int x, int y)
{
    const HDC screen = GetDC(nullptr);
    Update(screen, x, y);
    ReleaseDC(nullptr, screen);
}

void CVQDIB::DumpAlphaToDesktop(LONG x, LONG y)
{
    if (!m_pImageBuffer)
        return;
    CVQDIB grey(m_iWidth, m_iHeight);
    if (!grey.m_pImageBuffer)
        return;
    std::transform(m_pImageBuffer, m_pImageBuffer + m_iPixelCount, grey.m_pImageBuffer, vq::alphaAsGrey);
    grey.DumpToDesktop(x, y);
}
