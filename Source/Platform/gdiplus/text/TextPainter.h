// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/GlyphRenderer.h"
#include "Platform/gdiplus/text/TextLayout.h"

namespace vq::gdiplus {

/// Delivers a layout glyph by glyph.
class TextPainter
{
public:
    TextPainter(Engine& engine, GlyphSink& sink, const Font& font, const TextDrawing& drawing,
                const TextLayout& layout);

    void paint();

private:
    /// A place on the surface: a pixel and the quarters of one beyond it.
    struct Place
    {
        int x, y;
        Subpixel subpixel;
    };

    void paintLine(const TextLine& line, double left, double baseline);
    void findSlices(const TextLine& line);
    void orderSlices();
    double paintSlice(const Engine::Slice& slice, double left, double pen, double baseline);
    void paintGlyph(const ShapedRun& run, std::uint32_t glyph, double x, double y);
    void underline(double left, double right, double baseline);
    void deliver(const GlyphImage& image, int x, int y);
    void paintStroke(double left, double right, double baseline, int top, int thickness);
    bool isNear(double x, double y) const;
    Place placeOf(double x, double y) const;

    Engine& m_engine;
    GlyphSink& m_sink;
    const Font& m_font;
    const TextLayout& m_layout;
    GlyphStyle m_style;
    PixelRect m_visible;
    double m_reach;                        // how far from its place a glyph may have pixels
    std::size_t m_firstRun = 0;            // of the next line
    std::vector<std::size_t> m_underlined; // characters of the text, ascending
};

} // namespace vq::gdiplus
