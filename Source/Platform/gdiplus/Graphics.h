// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Drawing on pictures and device contexts.

#include "Platform/gdiplus/Bitmap.h"
#include "Platform/gdiplus/Brush.h"
#include "Platform/gdiplus/Font.h"
#include "Platform/gdiplus/StringFormat.h"

#include <memory>

namespace vq::gdiplus {
class GraphicsState;
class Polylines;
enum class FillRule;
} // namespace vq::gdiplus

namespace Gdiplus {

class GraphicsPath;
class ImageAttributes;
class Pen;
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
    /// Memory for the pixels is taken when they are first drawn on or read: when it cannot be had, those calls fail
    /// and `ReleaseHDC` answers `OutOfMemory`, although the context is given back and what was drawn is copied.
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

    Status FillRectangles(const Brush* brush, const RectF* rects, INT count);
    Status FillRectangles(const Brush* brush, const Rect* rects, INT count);
    Status FillEllipse(const Brush* brush, const RectF& rect);
    Status FillEllipse(const Brush* brush, REAL x, REAL y, REAL width, REAL height);
    Status FillEllipse(const Brush* brush, const Rect& rect);
    Status FillEllipse(const Brush* brush, INT x, INT y, INT width, INT height);
    Status FillPie(const Brush* brush, const RectF& rect, REAL startAngle, REAL sweepAngle);
    Status FillPie(const Brush* brush, REAL x, REAL y, REAL width, REAL height, REAL startAngle, REAL sweepAngle);
    Status FillPie(const Brush* brush, const Rect& rect, REAL startAngle, REAL sweepAngle);
    Status FillPie(const Brush* brush, INT x, INT y, INT width, INT height, REAL startAngle, REAL sweepAngle);
    Status FillPolygon(const Brush* brush, const PointF* points, INT count);
    Status FillPolygon(const Brush* brush, const PointF* points, INT count, FillMode fillMode);
    Status FillPolygon(const Brush* brush, const Point* points, INT count);
    Status FillPolygon(const Brush* brush, const Point* points, INT count, FillMode fillMode);
    /// Open figures are closed.
    Status FillPath(const Brush* brush, const GraphicsPath* path);

    /// Without smoothing a pen of one pixel lights, on every whole position of the longer axis, the nearest pixel, both
    /// ends included; wider pens, and all pens with smoothing, cover the area that the pen sweeps. A line from a point
    /// to itself is nothing. A figure is drawn as one shape: what it covers twice is composited once. Coordinates that
    /// are no numbers: `ValueOverflow`.
    Status DrawLine(const Pen* pen, const PointF& pt1, const PointF& pt2);
    Status DrawLine(const Pen* pen, REAL x1, REAL y1, REAL x2, REAL y2);
    Status DrawLine(const Pen* pen, const Point& pt1, const Point& pt2);
    Status DrawLine(const Pen* pen, INT x1, INT y1, INT x2, INT y2);
    /// At least two points.
    Status DrawLines(const Pen* pen, const PointF* points, INT count);
    Status DrawLines(const Pen* pen, const Point* points, INT count);
    Status DrawBezier(const Pen* pen, const PointF& pt1, const PointF& pt2, const PointF& pt3, const PointF& pt4);
    Status DrawBezier(const Pen* pen, REAL x1, REAL y1, REAL x2, REAL y2, REAL x3, REAL y3, REAL x4, REAL y4);
    Status DrawBezier(const Pen* pen, const Point& pt1, const Point& pt2, const Point& pt3, const Point& pt4);
    Status DrawBezier(const Pen* pen, INT x1, INT y1, INT x2, INT y2, INT x3, INT y3, INT x4, INT y4);
    /// 4, 7, 10 .. points.
    Status DrawBeziers(const Pen* pen, const PointF* points, INT count);
    Status DrawBeziers(const Pen* pen, const Point* points, INT count);
    /// A width or height of 0 or less draws nothing; so for rectangles.
    Status DrawArc(const Pen* pen, const RectF& rect, REAL startAngle, REAL sweepAngle);
    Status DrawArc(const Pen* pen, REAL x, REAL y, REAL width, REAL height, REAL startAngle, REAL sweepAngle);
    Status DrawArc(const Pen* pen, const Rect& rect, REAL startAngle, REAL sweepAngle);
    Status DrawArc(const Pen* pen, INT x, INT y, INT width, INT height, REAL startAngle, REAL sweepAngle);
    Status DrawPie(const Pen* pen, const RectF& rect, REAL startAngle, REAL sweepAngle);
    Status DrawPie(const Pen* pen, REAL x, REAL y, REAL width, REAL height, REAL startAngle, REAL sweepAngle);
    Status DrawPie(const Pen* pen, const Rect& rect, REAL startAngle, REAL sweepAngle);
    Status DrawPie(const Pen* pen, INT x, INT y, INT width, INT height, REAL startAngle, REAL sweepAngle);
    Status DrawRectangle(const Pen* pen, const RectF& rect);
    Status DrawRectangle(const Pen* pen, REAL x, REAL y, REAL width, REAL height);
    Status DrawRectangle(const Pen* pen, const Rect& rect);
    Status DrawRectangle(const Pen* pen, INT x, INT y, INT width, INT height);
    Status DrawRectangles(const Pen* pen, const RectF* rects, INT count);
    Status DrawRectangles(const Pen* pen, const Rect* rects, INT count);
    Status DrawEllipse(const Pen* pen, const RectF& rect);
    Status DrawEllipse(const Pen* pen, REAL x, REAL y, REAL width, REAL height);
    Status DrawEllipse(const Pen* pen, const Rect& rect);
    Status DrawEllipse(const Pen* pen, INT x, INT y, INT width, INT height);
    /// At least three points.
    Status DrawPolygon(const Pen* pen, const PointF* points, INT count);
    Status DrawPolygon(const Pen* pen, const Point* points, INT count);
    Status DrawPath(const Pen* pen, const GraphicsPath* path);

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

    /// Draws `length` characters, or as many as there are before the first null; -1 stands for all of these. Text
    /// begins a sixth of an em beside the point or the rectangle's edge, its first cell at the upper edge; a width or
    /// height of 0 does not limit. Without a format the fresh one counts. How glyphs become pixels is up to the text
    /// rendering hint and contrast alone: smoothing and pixel offset have no say. `InvalidParameter` under SourceCopy.
    Status DrawString(const WCHAR* string, INT length, const Font* font, const RectF& layoutRect,
                      const StringFormat* stringFormat, const Brush* brush);
    Status DrawString(const WCHAR* string, INT length, const Font* font, const PointF& origin, const Brush* brush);
    Status DrawString(const WCHAR* string, INT length, const Font* font, const PointF& origin,
                      const StringFormat* stringFormat, const Brush* brush);

    /// The room that the text takes up, an eighth of an em below it included; an empty text takes none. Needs no
    /// pixels: a fresh memory context will do. `codepointsFitted` is given the wide characters on the lines, those of
    /// line breaks and hanging spaces too.
    Status MeasureString(const WCHAR* string, INT length, const Font* font, const RectF& layoutRect,
                         const StringFormat* stringFormat, RectF* boundingBox, INT* codepointsFitted = nullptr,
                         INT* linesFilled = nullptr) const;
    Status MeasureString(const WCHAR* string, INT length, const Font* font, const SizeF& layoutRectSize,
                         const StringFormat* stringFormat, SizeF* size, INT* codepointsFitted = nullptr,
                         INT* linesFilled = nullptr) const;
    Status MeasureString(const WCHAR* string, INT length, const Font* font, const PointF& origin,
                         const StringFormat* stringFormat, RectF* boundingBox) const;
    Status MeasureString(const WCHAR* string, INT length, const Font* font, const RectF& layoutRect,
                         RectF* boundingBox) const;
    Status MeasureString(const WCHAR* string, INT length, const Font* font, const PointF& origin,
                         RectF* boundingBox) const;

    /// The last failure since this was asked before; asking forgets it.
    Status GetLastStatus() const;

private:
    Status setStatus(Status status) const;
    template <typename Work>
    Status withState(Work work) const;
    template <typename Value, typename Reader>
    Value read(Value fallback, Reader reader) const;
    Status fill(const Brush* brush, double x, double y, double width, double height);
    template <typename MakeShape>
    Status strokeShape(const Pen* pen, MakeShape makeShape);
    template <typename MakeShape>
    Status fillShape(const Brush* brush, vq::gdiplus::FillRule rule, MakeShape makeShape);
    template <typename PointType>
    Status drawPoints(const Pen* pen, const PointType* points, INT count, INT least, BYTE type, bool close);
    template <typename PointType>
    Status fillPoints(const Brush* brush, const PointType* points, INT count, FillMode fillMode);
    Status drawPart(Image* image, const RectF& target, const RectF& source, Unit sourceUnit);
    Status drawAt(Image* image, const PointF& point, const RectF* source, Unit sourceUnit);

    std::unique_ptr<vq::gdiplus::GraphicsState> m_state;
    mutable Status m_lastStatus;
};

} // namespace Gdiplus
