// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/GraphicsAccess.h"
#include "Platform/gdiplus/HotkeyText.h"
#include "Platform/gdiplus/brushes/Painter.h"
#include "Platform/gdiplus/text/Text.h"

#include <cwchar>
#include <limits>
#include <optional>
#include <string_view>

namespace Gdiplus {

using vq::gdiplus::Canvas;
using vq::gdiplus::FloatRect;
using vq::gdiplus::GraphicsState;
using vq::gdiplus::HotkeyText;
using vq::gdiplus::Painter;
using vq::gdiplus::TextMeasure;

namespace {

/// Puts a brush on glyphs.
class BrushSink final : public vq::gdiplus::GlyphSink
{
public:
    explicit BrushSink(const Painter& painter) : m_painter(painter), m_plain(painter.plainColour()) {}

    void expect(const vq::gdiplus::PixelRect& rectangle) noexcept override
    {
        for (int y = rectangle.top; y < rectangle.bottom; ++y)
            m_painter.expect(rectangle.left, y, rectangle.right - rectangle.left);
    }

    void glyph(const vq::gdiplus::GlyphCoverage& glyph) noexcept override
    {
        if (m_plain)
            return plainGlyph(glyph, *m_plain);
        for (int row = 0; row < glyph.height; ++row)
            m_painter.run(glyph.x, glyph.y + row, coverageOf(glyph, row));
    }

    void colourGlyph(int x, int y, const vq::gdiplus::ConstPixelView& pixels) noexcept override
    {
        for (int row = 0; row < pixels.height; ++row)
            m_painter.picture(x, y + row, {pixels.row(row), static_cast<std::size_t>(pixels.width)});
    }

    void rectangle(const vq::gdiplus::PixelRect& rectangle) noexcept override
    {
        for (int y = rectangle.top; y < rectangle.bottom; ++y)
            m_painter.run(rectangle.left, y, rectangle.right - rectangle.left);
    }

private:
    static std::span<const vq::gdiplus::Channel> coverageOf(const vq::gdiplus::GlyphCoverage& glyph, int row)
    {
        return {glyph.row(row), static_cast<std::size_t>(glyph.width)};
    }

    /// The painter finds its way anew for each row, which takes as long as the few pixels there.
    void plainGlyph(const vq::gdiplus::GlyphCoverage& glyph, vq::gdiplus::Pixel colour) const
    {
        const Canvas& canvas = m_painter.canvas();
        for (int row = 0; row < glyph.height; ++row)
            compositeColour(canvas.run(glyph.x, glyph.y + row, glyph.width), colour, coverageOf(glyph, row),
                            canvas.blend);
    }

    const Painter& m_painter;
    std::optional<vq::gdiplus::Pixel> m_plain;
};

/// The characters that a call means, never past a null; none when there is no text or no such length.
std::optional<std::wstring_view> textOf(const WCHAR* string, INT length)
{
    if (!string || length < -1)
        return std::nullopt;
    return std::wstring_view(string,
                             length == -1 ? std::wcslen(string) : wcsnlen(string, static_cast<std::size_t>(length)));
}

FloatRect inPixels(const GraphicsState& state, const RectF& rect)
{
    const auto [across, down] = state.pageFactors();
    return {rect.X * across, rect.Y * down, rect.Width * across, rect.Height * down};
}

RectF inWorldUnits(const GraphicsState& state, const FloatRect& rect)
{
    const auto [across, down] = state.pageFactors();
    return RectF(rect.x / across, rect.y / down, rect.width / across, rect.height / down);
}

INT toInt(std::size_t count)
{
    return static_cast<INT>(std::min<std::size_t>(count, std::numeric_limits<INT>::max()));
}

RectF withoutSize(const PointF& origin)
{
    return RectF(origin, SizeF());
}

} // namespace

Status Graphics::DrawString(const WCHAR* string, INT length, const Font* font, const RectF& layoutRect,
                            const StringFormat* stringFormat, const Brush* brush)
{
    return withState([&](GraphicsState& state) {
        const auto text = textOf(string, length);
        const auto shader = brush ? brush->shader(state.shading()) : std::nullopt;
        const auto sized = font ? font->on(state) : nullptr;
        if (!text || !shader || !sized || state.settings.compositingMode == CompositingModeSourceCopy)
            return InvalidParameter;
        const StringFormat& format = stringFormat ? *stringFormat : *StringFormat::GenericDefault();
        const HotkeyText content(*text, format.m_settings.hotkeyPrefix);
        return state.draw([&](const Canvas& canvas) {
            const vq::gdiplus::TextDrawing drawing{
                vq::gdiplus::renderingOfHint(state.settings.textRenderingHint),
                state.settings.textContrast,
                {0, 0, canvas.view.width, canvas.view.height},
                content.underlined(),
            };
            const Painter painter(canvas, *shader);
            BrushSink sink(painter);
            const bool isDrawn =
                drawText(sink, *sized, content.text(), inPixels(state, layoutRect), format.textFormat(), drawing);
            return isDrawn ? Ok : OutOfMemory;
        });
    });
}

Status Graphics::DrawString(const WCHAR* string, INT length, const Font* font, const PointF& origin, const Brush* brush)
{
    return DrawString(string, length, font, withoutSize(origin), nullptr, brush);
}

Status Graphics::DrawString(const WCHAR* string, INT length, const Font* font, const PointF& origin,
                            const StringFormat* stringFormat, const Brush* brush)
{
    return DrawString(string, length, font, withoutSize(origin), stringFormat, brush);
}

Status Graphics::MeasureString(const WCHAR* string, INT length, const Font* font, const RectF& layoutRect,
                               const StringFormat* stringFormat, RectF* boundingBox, INT* codepointsFitted,
                               INT* linesFilled) const
{
    return withState([&](const GraphicsState& state) {
        const auto text = textOf(string, length);
        const auto sized = font ? font->on(state) : nullptr;
        if (!text || !sized || !boundingBox)
            return InvalidParameter;
        const StringFormat& format = stringFormat ? *stringFormat : *StringFormat::GenericDefault();
        const HotkeyText content(*text, format.m_settings.hotkeyPrefix);
        const auto measure = measureText(*sized, content.text(), inPixels(state, layoutRect), format.textFormat());
        if (!measure)
            return OutOfMemory;
        *boundingBox = inWorldUnits(state, measure->bounds);
        if (codepointsFitted)
            *codepointsFitted = toInt(content.originalCount(measure->charactersFitted));
        if (linesFilled)
            *linesFilled = toInt(measure->linesFilled);
        return Ok;
    });
}

Status Graphics::MeasureString(const WCHAR* string, INT length, const Font* font, const SizeF& layoutRectSize,
                               const StringFormat* stringFormat, SizeF* size, INT* codepointsFitted,
                               INT* linesFilled) const
{
    if (!size)
        return setStatus(InvalidParameter);
    RectF bounds;
    const Status status = MeasureString(string, length, font, RectF(PointF(), layoutRectSize), stringFormat, &bounds,
                                        codepointsFitted, linesFilled);
    if (status == Ok)
        bounds.GetSize(size);
    return status;
}

Status Graphics::MeasureString(const WCHAR* string, INT length, const Font* font, const PointF& origin,
                               const StringFormat* stringFormat, RectF* boundingBox) const
{
    return MeasureString(string, length, font, withoutSize(origin), stringFormat, boundingBox);
}

Status Graphics::MeasureString(const WCHAR* string, INT length, const Font* font, const RectF& layoutRect,
                               RectF* boundingBox) const
{
    return MeasureString(string, length, font, layoutRect, nullptr, boundingBox);
}

Status Graphics::MeasureString(const WCHAR* string, INT length, const Font* font, const PointF& origin,
                               RectF* boundingBox) const
{
    return MeasureString(string, length, font, withoutSize(origin), nullptr, boundingBox);
}

} // namespace Gdiplus
