// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Drawing on pictures and device contexts.

#include "Platform/gdiplus/Bitmap.h"
#include "Platform/gdiplus/Brush.h"

#include <memory>

namespace vq::gdiplus {
class GraphicsState;
}

namespace Gdiplus {

class ImageAttributes;
using ImageAbort = BOOL(CALLBACK*)(VOID*);
using DrawImageAbort = ImageAbort;

/// A surface to draw on, with its settings. Pixel (i, j) has its centre at (i, j) unless the pixel offset mode is Half
/// or HighQuality. The picture drawn on stays alive as long as the graphics does; memory of the caller must.
/// While a device context is handed out (`GetHDC`) every call answers `ObjectBusy`.
class VQPLATFORM_API Graphics : public GdiplusBase
{
    friend class Bitmap;

public:
    /// `InvalidParameter` for a null or broken picture.
    Graphics(Image* image);
    /// Draws on what is selected into the context at the time of each call. `OutOfMemory` for a context that is none,
    /// as GDI+ answers.
    Graphics(HDC hdc);
    ~Graphics();
    Graphics(const Graphics&) = delete;
    Graphics& operator=(const Graphics&) = delete;

    static Graphics* FromImage(Image* image);
    static Graphics* FromHDC(HDC hdc);

    VOID Flush(FlushIntention intention = FlushIntentionFlush);

    /// A device context with the size of the picture that can only be written to: what is drawn there reaches the
    /// picture, opaque, with `ReleaseHDC`. Pixels that stay untouched keep colour and alpha; so does a pixel that is
    /// drawn in exactly the colour the context is prepared with, red 13, green 11, blue 12, as with GDI+.
    /// For a graphics on a device context, that context.
    HDC GetHDC();
    VOID ReleaseHDC(HDC hdc);

    Status SetRenderingOrigin(INT x, INT y);
    Status GetRenderingOrigin(INT* x, INT* y) const;
    Status SetCompositingMode(CompositingMode compositingMode);
    CompositingMode GetCompositingMode() const;
    /// HighQuality and GammaCorrected blend partly transparent colours in linear light.
    Status SetCompositingQuality(CompositingQuality compositingQuality);
    CompositingQuality GetCompositingQuality() const;
    /// Default and HighSpeed read back as None, HighQuality as AntiAlias, as GDI+ answers.
    Status SetSmoothingMode(SmoothingMode smoothingMode);
    SmoothingMode GetSmoothingMode() const;
    /// Default and LowQuality read back as Bilinear, HighQuality as HighQualityBicubic, as GDI+ answers. All modes but
    /// NearestNeighbor sample bilinearly.
    Status SetInterpolationMode(InterpolationMode interpolationMode);
    InterpolationMode GetInterpolationMode() const;
    Status SetPixelOffsetMode(PixelOffsetMode pixelOffsetMode);
    PixelOffsetMode GetPixelOffsetMode() const;
    Status SetTextRenderingHint(TextRenderingHint newMode);
    TextRenderingHint GetTextRenderingHint() const;
    /// 0 .. 12.
    Status SetTextContrast(UINT contrast);
    UINT GetTextContrast() const;
    Status SetPageUnit(Unit unit);
    Unit GetPageUnit() const;
    /// More than 0 and at most 10^9, or not a number, as GDI+ accepts.
    Status SetPageScale(REAL scale);
    REAL GetPageScale() const;
    REAL GetDpiX() const;
    REAL GetDpiY() const;

    /// Sets every pixel, whatever the compositing mode.
    Status Clear(const Color& color);

    /// Lights the pixels whose centre is inside: left and top edges belong to the rectangle, right and bottom do not.
    /// A width or height of 0 or less fills nothing.
    Status FillRectangle(const Brush* brush, const RectF& rect);
    Status FillRectangle(const Brush* brush, REAL x, REAL y, REAL width, REAL height);
    Status FillRectangle(const Brush* brush, const Rect& rect);
    Status FillRectangle(const Brush* brush, INT x, INT y, INT width, INT height);

    /// The forms with a point draw in physical size: scaled by the resolution of the surface over that of the picture.
    Status DrawImage(Image* image, const PointF& point);
    Status DrawImage(Image* image, REAL x, REAL y);
    Status DrawImage(Image* image, const Point& point);
    Status DrawImage(Image* image, INT x, INT y);
    /// The forms with a target rectangle ignore resolutions. A width or height of 0 draws nothing, a negative one
    /// mirrors.
    Status DrawImage(Image* image, const RectF& rect);
    Status DrawImage(Image* image, REAL x, REAL y, REAL width, REAL height);
    Status DrawImage(Image* image, const Rect& rect);
    Status DrawImage(Image* image, INT x, INT y, INT width, INT height);
    /// What a source rectangle covers outside the picture is transparent.
    Status DrawImage(Image* image, REAL x, REAL y, REAL srcx, REAL srcy, REAL srcwidth, REAL srcheight, Unit srcUnit);
    Status DrawImage(Image* image, INT x, INT y, INT srcx, INT srcy, INT srcwidth, INT srcheight, Unit srcUnit);
    /// Image attributes and callback are null.
    Status DrawImage(Image* image, const RectF& destRect, REAL srcx, REAL srcy, REAL srcwidth, REAL srcheight,
                     Unit srcUnit, const ImageAttributes* imageAttributes = nullptr, DrawImageAbort callback = nullptr,
                     VOID* callbackData = nullptr);
    Status DrawImage(Image* image, const Rect& destRect, INT srcx, INT srcy, INT srcwidth, INT srcheight, Unit srcUnit,
                     const ImageAttributes* imageAttributes = nullptr, DrawImageAbort callback = nullptr,
                     VOID* callbackData = nullptr);
    Status DrawImage(Image* image, const RectF& destRect, const RectF& sourceRect, Unit srcUnit,
                     const ImageAttributes* imageAttributes = nullptr);

    /// The last failure since this was asked before; asking forgets it.
    Status GetLastStatus() const;

private:
    Status setStatus(Status status) const;
    template <typename Work>
    Status withState(Work work) const;
    template <typename Value, typename Reader>
    Value read(Value fallback, Reader reader) const;
    Status fill(const Brush* brush, double x, double y, double width, double height);
    Status drawPart(Image* image, const RectF& target, const RectF& source, Unit sourceUnit);
    Status drawAt(Image* image, const PointF& point, const RectF* source, Unit sourceUnit);

    std::unique_ptr<vq::gdiplus::GraphicsState> m_state;
    mutable Status m_lastStatus;
};

} // namespace Gdiplus
