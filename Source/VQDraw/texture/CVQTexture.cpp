// SPDX-License-Identifier: MIT
// Life cycle of the texture, painting and archives.
#include "VQDraw/VQTexture.h"

#include "VQDraw/image/EncodedPicture.h"
#include "VQDraw/image/ImageSize.h"
#include "VQDraw/image/PixelFormulas.h"
#include "VQDraw/image/StartUpOrder.h"

#include <algorithm>
#include <utility>
#include <vector>

VQ_START_ORDER(vq::kTextureLock) CCriticalSection CVQTexture::m_criticalSection;

CVQTexture::CVQTexture(int nWidth, int nHeight)
{
    Initialize();
    Create(nWidth, nHeight);
}

CVQTexture::CVQTexture(const CVQTexture& other)
{
    Initialize();
    *this = other;
}

CVQTexture& CVQTexture::operator=(const CVQTexture& other)
{
    const CSingleLock lock(&m_criticalSection, TRUE);
    m_lWidth = other.m_lWidth;
    m_lHeight = other.m_lHeight;
    m_lSize = other.m_lSize;
    m_pTexel = other.m_pTexel;
    m_bAntialias = other.m_bAntialias;
    m_owner = other.m_owner;
    return *this;
}

CVQTexture::~CVQTexture()
{
    Destroy();
}

void CVQTexture::Initialize()
{
    m_lWidth = 0;
    m_lHeight = 0;
    m_lSize = 0;
    m_pTexel = nullptr;
    m_bAntialias = false;
}

void CVQTexture::Destroy()
{
    const CSingleLock lock(&m_criticalSection, TRUE);
    m_owner.reset();
    Initialize();
}

bool CVQTexture::Create(int nWidth, int nHeight)
{
    constexpr int kLeast = 4;
    return Allocate(std::max(nWidth, kLeast), std::max(nHeight, kLeast));
}

/// Texels of a size that is positive, all 0, in place of the old ones.
bool CVQTexture::Allocate(LONG width, LONG height)
{
    Destroy();
    if (!vq::isRepresentable(width, height))
        return false;
    const CSingleLock lock(&m_criticalSection, TRUE);
    const std::size_t size = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    vq::platform::PixelMemory<LONG> texels(static_cast<LONG*>(vq::platform::allocateZeroed(size * sizeof(LONG))));
    if (!texels)
        return false;
    m_owner = std::move(texels);
    m_pTexel = m_owner.get();
    m_lWidth = width;
    m_lHeight = height;
    m_lSize = static_cast<LONG>(size);
    return true;
}

bool CVQTexture::Resize(LONG nWidth, LONG nHeight)
{
    return Create(nWidth, nHeight);
}

LONG& CVQTexture::operator()(LONG x, LONG y)
{
    const ULONG index = static_cast<ULONG>(y) * static_cast<ULONG>(m_lWidth) + static_cast<ULONG>(x);
    return m_pTexel[static_cast<LONG>(index)];
}

void CVQTexture::Clear(LONG lColor, BYTE byMask)
{
    const auto texel = static_cast<LONG>(vq::pixelFromColorRef(static_cast<ULONG>(lColor), byMask));
    std::fill_n(m_pTexel, m_lSize, texel);
}

void CVQTexture::ClearMask(BYTE byMask)
{
    std::transform(m_pTexel, m_pTexel + m_lSize, m_pTexel, [byMask](LONG texel) {
        return static_cast<LONG>(vq::withAlpha(static_cast<ULONG>(texel), byMask));
    });
}

/// `paint(graphics, path, colour)` draws the polygon on the texels without blending.
template <typename Paint>
void CVQTexture::PaintRegion(const CPoint* points, int count, LONG colour, BYTE mask, Paint paint)
{
    if (!m_pTexel || !points || count < 1)
        return;
    std::vector<Gdiplus::Point> corners(static_cast<std::size_t>(count));
    std::transform(points, points + count, corners.begin(),
                   [](const CPoint& point) { return Gdiplus::Point(point.x, point.y); });
    Gdiplus::Bitmap bitmap(m_lWidth, m_lHeight, static_cast<INT>(m_lWidth * sizeof(LONG)), PixelFormat32bppARGB,
                           GetByteTexelBuffer());
    Gdiplus::Graphics graphics(&bitmap);
    graphics.SetSmoothingMode(m_bAntialias ? Gdiplus::SmoothingModeAntiAlias : Gdiplus::SmoothingModeNone);
    graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    Gdiplus::GraphicsPath path(Gdiplus::FillModeAlternate);
    path.AddPolygon(corners.data(), count);
    paint(graphics, path, Gdiplus::Color(ULONG{mask} << 24 | static_cast<ULONG>(colour)));
}

void CVQTexture::ClearRgn(CPoint* pPoints, int nCount, LONG lColor, BYTE byMask)
{
    PaintRegion(pPoints, nCount, lColor, byMask,
                [](Gdiplus::Graphics& graphics, Gdiplus::GraphicsPath& path, Gdiplus::Color colour) {
                    const Gdiplus::SolidBrush brush(colour);
                    graphics.FillPath(&brush, &path);
                });
}

void CVQTexture::ClearRgnPath(CPoint* pPoints, int nCount, int nWidth, LONG lColor, BYTE byMask)
{
    PaintRegion(pPoints, nCount, lColor, byMask,
                [nWidth](Gdiplus::Graphics& graphics, Gdiplus::GraphicsPath& path, Gdiplus::Color colour) {
                    Gdiplus::Pen pen(colour, nWidth < 0 ? 1.0f : static_cast<Gdiplus::REAL>(nWidth));
                    pen.SetAlignment(Gdiplus::PenAlignmentCenter);
                    graphics.DrawPath(&pen, &path);
                });
}

/// The bits themselves: drawing the picture would lose the colours of mask 0.
bool CVQTexture::ReadFile(CVQArchive* archive)
{
    Gdiplus::Bitmap* read = nullptr;
    if (!ReadFileToBitmap(archive, read))
        return false;
    const vq::BitmapOwner bitmap(read);
    const auto width = static_cast<INT>(bitmap->GetWidth());
    const auto height = static_cast<INT>(bitmap->GetHeight());
    CVQTexture fresh(1, 1);
    if (width < 1 || height < 1 || !fresh.Allocate(width, height))
        return false;

    Gdiplus::BitmapData bits{};
    bits.Width = static_cast<UINT>(width);
    bits.Height = static_cast<UINT>(height);
    bits.Stride = static_cast<INT>(width * sizeof(LONG));
    bits.PixelFormat = PixelFormat32bppARGB;
    bits.Scan0 = fresh.m_pTexel;
    const Gdiplus::Rect all(0, 0, width, height);
    if (bitmap->LockBits(&all, Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf, PixelFormat32bppARGB,
                         &bits) != Gdiplus::Ok)
        return false;
    bitmap->UnlockBits(&bits);
    *this = fresh;
    return true;
}

bool CVQTexture::WriteFile(CVQArchive* archive)
{
    if (!m_pTexel)
        return WriteFileFromBitmap(nullptr, archive);
    Gdiplus::Bitmap bitmap(m_lWidth, m_lHeight, static_cast<INT>(m_lWidth * sizeof(LONG)), PixelFormat32bppARGB,
                           GetByteTexelBuffer());
    return WriteFileFromBitmap(&bitmap, archive);
}

int CVQTexture::GetEncoderClsid(const wchar_t* mimeType, CLSID* clsid)
{
    return CVQDIB::GetEncoderClsid(mimeType, clsid);
}

bool CVQTexture::ReadFileToBitmap(CVQArchive* archive, Gdiplus::Bitmap*& bitmap)
{
    return CVQDIB::ReadFileToBitmap(archive, bitmap);
}

bool CVQTexture::ReadFileToBitmap(std::FILE* file, Gdiplus::Bitmap*& bitmap)
{
    return CVQDIB::ReadFileToBitmap(file, bitmap);
}

bool CVQTexture::WriteFileFromBitmap(Gdiplus::Bitmap* bitmap, CVQArchive* archive)
{
    return CVQDIB::WriteFileFromBitmap(bitmap, archive);
}

bool CVQTexture::WriteFileFromBitmap(Gdiplus::Bitmap* bitmap, std::FILE* file, eImageFormatType format,
                                     bool writeLength)
{
    return CVQDIB::WriteFileFromBitmap(bitmap, file, format, writeLength);
}
