// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/Conversions.h"
#include "Platform/gdiplus/DrawingMemory.h"
#include "Platform/gdiplus/FillRectangle.h"
#include "Platform/gdiplus/GraphicsAccess.h"
#include "Platform/gdiplus/ImageAccess.h"
#include "Platform/gdiplus/compositor/DrawImage.h"

#include <algorithm>
#include <cmath>

namespace Gdiplus {

using vq::gdiplus::Blend;
using vq::gdiplus::Canvas;
using vq::gdiplus::FloatRect;
using vq::gdiplus::GraphicsState;
using vq::gdiplus::Painter;
using vq::gdiplus::SurfaceAlpha;
using vq::gdiplus::toFloat;

namespace {

bool isUnit(Unit unit)
{
    return UnitWorld <= unit && unit <= UnitMillimeter;
}

/// The pixels of 0 .. size - 1 that a stretch may touch, mirrored or not: first, and how many.
std::pair<INT, INT> touched(double begin, double length, int size)
{
    const auto clamped = [size](double value) { return static_cast<INT>(std::clamp<double>(value, 0, size)); };
    if (!std::isfinite(begin) || !std::isfinite(length) || length == 0)
        return {0, 0};
    const double end = begin + length;
    const INT first = clamped(std::floor(std::min(begin, end)));
    return {first, clamped(std::ceil(std::max(begin, end)) + 1) - first};
}

Rect touched(const FloatRect& target, vq::gdiplus::PixelView view)
{
    const auto [x, width] = touched(target.x, target.width, view.width);
    const auto [y, height] = touched(target.y, target.height, view.height);
    return Rect(x, y, width, height);
}

/// Draws a picture and sees to what alpha means on the surface.
void drawPicture(const Canvas& canvas, const FloatRect& target, vq::gdiplus::ConstPixelView image,
                 const FloatRect& source, vq::gdiplus::Sampling sampling, vq::gdiplus::StripMemory& strips)
{
    const bool copies = canvas.blend == Blend::SourceCopy;
    if (canvas.alpha == SurfaceAlpha::Device && !copies)
        makeOpaque(canvas.view, touched(target, canvas.view));
    drawImage(canvas.view, target, image, source, sampling, canvas.blend, canvas.halfPixelOffset, &strips);
    if (canvas.alpha == SurfaceAlpha::Opaque && copies)
        makeOpaque(canvas.view, touched(target, canvas.view));
}

vq::gdiplus::Sampling samplingOf(InterpolationMode mode)
{
    return mode == InterpolationModeNearestNeighbor ? vq::gdiplus::Sampling::Nearest : vq::gdiplus::Sampling::Bilinear;
}

} // namespace

Status Graphics::Clear(const Color& color)
{
    return withState([&](GraphicsState& state) {
        return state.draw(Blend::SourceCopy, [&](const Canvas& canvas) {
            for (int y = 0; y < canvas.view.height; ++y)
                onRun(canvas, canvas.run(0, y, canvas.view.width), [&](std::span<vq::gdiplus::Pixel> run) {
                    compositeColour(run, color.GetValue(), Blend::SourceCopy);
                });
            return Ok;
        });
    });
}

Status Graphics::fill(const Brush* brush, double x, double y, double width, double height)
{
    return withState([&](GraphicsState& state) {
        const vq::gdiplus::ShadingSettings shading = state.shading();
        const auto shader = brush ? brush->shader(shading) : std::nullopt;
        if (!shader)
            return InvalidParameter;
        return state.draw([&](const Canvas& canvas) {
            fillRectangle(canvas, *shader, x * shading.across, y * shading.down, (x + width) * shading.across,
                          (y + height) * shading.down);
            return Ok;
        });
    });
}

Status Graphics::FillRectangle(const Brush* brush, const RectF& rect)
{
    return fill(brush, rect.X, rect.Y, rect.Width, rect.Height);
}

Status Graphics::FillRectangle(const Brush* brush, REAL x, REAL y, REAL width, REAL height)
{
    return fill(brush, x, y, width, height);
}

Status Graphics::FillRectangle(const Brush* brush, const Rect& rect)
{
    return fill(brush, rect.X, rect.Y, rect.Width, rect.Height);
}

Status Graphics::FillRectangle(const Brush* brush, INT x, INT y, INT width, INT height)
{
    return fill(brush, x, y, width, height);
}

/// Both rectangles in units of their own: world units, and `sourceUnit` at the picture's resolution.
Status Graphics::drawPart(Image* image, const RectF& target, const RectF& source, Unit sourceUnit)
{
    return withState([&](GraphicsState& state) {
        if (!image || !image->m_pixels || !isUnit(sourceUnit))
            return InvalidParameter;
        const vq::gdiplus::PixelStore& store = *image->m_pixels;
        const auto [across, down] = state.pageFactors();
        const FloatRect targetPixels{target.X * across, target.Y * down, target.Width * across, target.Height * down};
        const REAL unitsAcross = vq::gdiplus::pixelsPer(sourceUnit, store.resolution.x);
        const REAL unitsDown = vq::gdiplus::pixelsPer(sourceUnit, store.resolution.y);
        const FloatRect sourcePixels{source.X * unitsAcross, source.Y * unitsDown, source.Width * unitsAcross,
                                     source.Height * unitsDown};

        const vq::gdiplus::StraightPixels pixels(store);
        vq::gdiplus::PixelsOrStatus aside; // a picture drawn onto itself
        if (state.overlaps(pixels.view()))
            aside = clonePixels(store);
        if (aside.status != Ok)
            return aside.status;
        const vq::gdiplus::ConstPixelView view = aside.pixels ? aside.pixels->words() : pixels.view();
        return state.draw([&](const Canvas& canvas) {
            drawPicture(canvas, targetPixels, view, sourcePixels, samplingOf(state.settings.interpolationMode),
                        state.memory().strips);
            return Ok;
        });
    });
}

/// In physical size. A null source is the whole picture.
Status Graphics::drawAt(Image* image, const PointF& point, const RectF* source, Unit sourceUnit)
{
    if (!image || !image->m_pixels || !isUnit(sourceUnit))
        return withState([](const GraphicsState&) { return InvalidParameter; });
    const vq::gdiplus::PixelStore& store = *image->m_pixels;
    const RectF part = source ? *source : RectF(0, 0, static_cast<REAL>(store.width), static_cast<REAL>(store.height));
    RectF target;
    const Status status = withState([&](const GraphicsState& state) {
        const auto [dotsX, dotsY] = state.resolution();
        const Unit page = state.settings.pageUnit;
        const auto scale = [&](REAL own, REAL picture) {
            return own / picture * vq::gdiplus::pixelsPer(sourceUnit, picture) / vq::gdiplus::pixelsPer(page, own);
        };
        target = RectF(point.X, point.Y, part.Width * scale(dotsX, store.resolution.x),
                       part.Height * scale(dotsY, store.resolution.y));
        return Ok;
    });
    return status == Ok ? drawPart(image, target, part, sourceUnit) : status;
}

Status Graphics::DrawImage(Image* image, const PointF& point)
{
    return drawAt(image, point, nullptr, UnitPixel);
}

Status Graphics::DrawImage(Image* image, REAL x, REAL y)
{
    return DrawImage(image, PointF(x, y));
}

Status Graphics::DrawImage(Image* image, const Point& point)
{
    return DrawImage(image, toFloat(point));
}

Status Graphics::DrawImage(Image* image, INT x, INT y)
{
    return DrawImage(image, Point(x, y));
}

Status Graphics::DrawImage(Image* image, const RectF& rect)
{
    RectF whole;
    if (image && image->m_pixels)
        whole = toFloat(image->m_pixels->bounds());
    return drawPart(image, rect, whole, UnitPixel);
}

Status Graphics::DrawImage(Image* image, REAL x, REAL y, REAL width, REAL height)
{
    return DrawImage(image, RectF(x, y, width, height));
}

Status Graphics::DrawImage(Image* image, const Rect& rect)
{
    return DrawImage(image, toFloat(rect));
}

Status Graphics::DrawImage(Image* image, INT x, INT y, INT width, INT height)
{
    return DrawImage(image, Rect(x, y, width, height));
}

Status Graphics::DrawImage(Image* image, REAL x, REAL y, REAL srcx, REAL srcy, REAL srcwidth, REAL srcheight,
                           Unit srcUnit)
{
    const RectF source(srcx, srcy, srcwidth, srcheight);
    return drawAt(image, PointF(x, y), &source, srcUnit);
}

Status Graphics::DrawImage(Image* image, INT x, INT y, INT srcx, INT srcy, INT srcwidth, INT srcheight, Unit srcUnit)
{
    const RectF source = toFloat(Rect(srcx, srcy, srcwidth, srcheight));
    return drawAt(image, toFloat(Point(x, y)), &source, srcUnit);
}

Status Graphics::DrawImage(Image* image, const RectF& destRect, REAL srcx, REAL srcy, REAL srcwidth, REAL srcheight,
                           Unit srcUnit, const ImageAttributes*, DrawImageAbort, VOID*)
{
    return drawPart(image, destRect, RectF(srcx, srcy, srcwidth, srcheight), srcUnit);
}

Status Graphics::DrawImage(Image* image, const Rect& destRect, INT srcx, INT srcy, INT srcwidth, INT srcheight,
                           Unit srcUnit, const ImageAttributes*, DrawImageAbort, VOID*)
{
    return drawPart(image, toFloat(destRect), toFloat(Rect(srcx, srcy, srcwidth, srcheight)), srcUnit);
}

Status Graphics::DrawImage(Image* image, const RectF& destRect, const RectF& sourceRect, Unit srcUnit,
                           const ImageAttributes*)
{
    return drawPart(image, destRect, sourceRect, srcUnit);
}

} // namespace Gdiplus
