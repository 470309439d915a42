// SPDX-License-Identifier: MIT
// Life cycle and addressing of the image.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/GraphicsSettings.h"
#include "VQDraw/image/ImageFlags.h"
#include "VQDraw/image/ImageSize.h"
#include "VQDraw/image/KeptFont.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace {

LOGFONTW defaultFont()
{
    LOGFONTW font{};
    GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    return font;
}

/// Null while GDI+ is not running.
Gdiplus::SolidBrush* makeTextBrush()
{
    auto brush = std::make_unique<Gdiplus::SolidBrush>(Gdiplus::Color(Gdiplus::Color::White));
    return brush->GetLastStatus() == Gdiplus::Ok ? brush.release() : nullptr;
}

} // namespace

CVQDIB::CVQDIB(int width, int height)
{
    Initialize();
    Create(width, height);
}

CVQDIB::CVQDIB(CVQDIB& other) : CVQDIB(other.m_iWidth, other.m_iHeight) {}

CVQDIB::CVQDIB(CVQDIB* other)
{
    Initialize();
    if (other)
        Create(other->m_iWidth, other->m_iHeight);
}

CVQDIB::CVQDIB(Gdiplus::Bitmap* bitmap)
{
    Initialize();
    if (!bitmap)
        return;
    const auto width = static_cast<INT>(bitmap->GetWidth());
    const auto height = static_cast<INT>(bitmap->GetHeight());
    if (width < 1 || height < 1 || !Create(width, height))
        return;
    const CSingleLock lock(&_critSect, TRUE);
    const vq::SourceCopy mode(*m_pGraphics);
    const vq::HighQuality quality(*m_pGraphics);
    DrawWhole(*bitmap);
}

/// Exchanges pixels, bitmap and graphics with another image; what belongs to text and drawing stays with each.
void CVQDIB::ExchangePicture(CVQDIB& other)
{
    const CSingleLock lock(&_critSect, TRUE);
    std::swap(m_pImageBuffer, other.m_pImageBuffer);
    std::swap(m_pBitmap, other.m_pBitmap);
    std::swap(m_pGraphics, other.m_pGraphics);
    std::swap(m_pRowOffset, other.m_pRowOffset);
    std::swap(m_iPixelCount, other.m_iPixelCount);
    std::swap(m_iByteSize, other.m_iByteSize);
    std::swap(m_iWidth, other.m_iWidth);
    std::swap(m_iHeight, other.m_iHeight);
    InitializeGraphics();
    other.InitializeGraphics();
}

/// Draws a picture of the image's size pixel on pixel: the forms of DrawImage that take a point would scale it by its
/// resolution.
void CVQDIB::DrawWhole(Gdiplus::Bitmap& picture)
{
    m_pGraphics->DrawImage(&picture, Gdiplus::Rect(0, 0, m_iWidth, m_iHeight), 0, 0, m_iWidth, m_iHeight,
                           Gdiplus::UnitPixel);
}

CVQDIB::~CVQDIB()
{
    Destroy();
    delete m_pTextBrush;
    delete m_pKeptFont;
}

CVQDIB& CVQDIB::operator=(const CVQDIB& other)
{
    if (this == &other)
        return *this;
    m_uiFlags = other.m_uiFlags;
    m_uiShadowColor = other.m_uiShadowColor;
    m_uiSpare = other.m_uiSpare;
    m_iShadowX = other.m_iShadowX;
    m_iShadowY = other.m_iShadowY;
    if (!other.m_pImageBuffer)
        Create(0, 0);
    else if (Allocate(other.m_iWidth, other.m_iHeight, vq::platform::allocateRaw))
        std::copy_n(other.m_pImageBuffer, other.m_iPixelCount, m_pImageBuffer);
    return *this;
}

void CVQDIB::Initialize()
{
    m_pImageBuffer = nullptr;
    m_pBitmap = nullptr;
    m_pGraphics = nullptr;
    m_pTextBrush = makeTextBrush();
    m_pRowOffset = nullptr;
    m_iPixelCount = 0;
    m_iByteSize = 0;
    m_iWidth = 0;
    m_iHeight = 0;
    m_iPrintX = 0;
    m_iPrintY = 0;
    m_iShadowX = 1;
    m_iShadowY = 1;
    m_LogFont = defaultFont();
    m_uiShadowColor = 0;
    m_uiSpare = 0;
    m_uiFlags = vq::kAntialias | vq::kAutomaticShadowColour;
    m_pKeptFont = nullptr;
}

int CVQDIB::Create(int width, int height)
{
    return Allocate(width, height, vq::platform::allocateZeroed);
}

/// As `Create`, with the pixels as the allocator leaves them.
int CVQDIB::Allocate(int width, int height, void* (*allocator)(std::size_t) noexcept)
{
    Destroy();
    width = std::max(width, 1);
    height = std::max(height, 1);
    if (!vq::isRepresentable(width, height))
        return 0;
    const CSingleLock lock(&_critSect, TRUE);
    const std::size_t bytes = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * kPixelBytes;
    return Adopt(static_cast<ULONG*>(allocator(bytes)), width, height);
}

/// Makes an image over `pixels`, which become the image's own whatever the outcome. The image is empty before, and
/// again when this fails.
bool CVQDIB::Adopt(ULONG* pixels, LONG width, LONG height)
{
    const CSingleLock lock(&_critSect, TRUE);
    m_pImageBuffer = pixels;
    m_pRowOffset =
        static_cast<std::int64_t*>(vq::platform::allocateRaw(static_cast<std::size_t>(height) * sizeof(std::int64_t)));
    if (m_pImageBuffer && m_pRowOffset) {
        const auto stride = static_cast<INT>(width * kPixelBytes);
        m_pBitmap = new Gdiplus::Bitmap(width, height, stride, PixelFormat32bppARGB, GetByteImageBuffer());
        m_pGraphics = new Gdiplus::Graphics(m_pBitmap);
    }
    if (!m_pGraphics || m_pBitmap->GetLastStatus() != Gdiplus::Ok || m_pGraphics->GetLastStatus() != Gdiplus::Ok) {
        Destroy();
        return false;
    }
    m_iWidth = width;
    m_iHeight = height;
    m_iPixelCount = static_cast<std::int64_t>(width) * height;
    m_iByteSize = m_iPixelCount * kPixelBytes;
    for (std::int64_t y = 0; y < height; ++y)
        m_pRowOffset[y] = y * width * kPixelBytes;
    InitializeGraphics();
    return true;
}

void CVQDIB::Destroy()
{
    vq::platform::release(Detach());
}

/// Empties the image and hands its pixels to the caller, who releases them.
ULONG* CVQDIB::Detach()
{
    const CSingleLock lock(&_critSect, TRUE);
    delete std::exchange(m_pGraphics, nullptr);
    delete std::exchange(m_pBitmap, nullptr);
    vq::platform::release(std::exchange(m_pRowOffset, nullptr));
    m_iWidth = 0;
    m_iHeight = 0;
    m_iPixelCount = 0;
    m_iByteSize = 0;
    return std::exchange(m_pImageBuffer, nullptr);
}

std::int64_t CVQDIB::RowOffset(LONG y) const
{
    return HasRow(y) ? m_pRowOffset[y] : y * (m_iWidth * kPixelBytes);
}

std::int64_t CVQDIB::GetOffset(LONG x, LONG y) const
{
    return RowOffset(y) / kPixelBytes + x;
}

std::int64_t CVQDIB::GetByteOffset(LONG x, LONG y) const
{
    return RowOffset(y) + static_cast<std::int32_t>(static_cast<std::uint32_t>(x) * kPixelBytes);
}

namespace {

LONG wrappedOnce(LONG coordinate, LONG size)
{
    if (coordinate < 0)
        return coordinate + size;
    return coordinate >= size ? coordinate - size : coordinate;
}

} // namespace

std::int64_t CVQDIB::GetClippedOffset(LONG x, LONG y) const
{
    return GetOffset(wrappedOnce(x, m_iWidth), wrappedOnce(y, m_iHeight));
}

std::int64_t CVQDIB::GetClippedByteOffset(LONG x, LONG y) const
{
    return GetByteOffset(wrappedOnce(x, m_iWidth), wrappedOnce(y, m_iHeight));
}
