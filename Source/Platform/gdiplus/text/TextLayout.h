// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/Engine.h"

#include <limits>

namespace vq::gdiplus {

/// A text divided into lines in its rectangle. The lines lie in the engine.
class TextLayout
{
public:
    TextLayout(Engine& engine, const Font& font, std::wstring_view text, const FloatRect& layout,
               const TextFormat& format);
    TextLayout(const TextLayout&) = delete;
    TextLayout& operator=(const TextLayout&) = delete;
    ~TextLayout();

    TextMeasure measure() const;

    const ShapedText& text() const { return m_text; }
    const std::vector<TextLine>& lines() const { return m_engine.lines; }

    /// Where the text of a line begins, and its base line, both in pixels and not rounded.
    double left(const TextLine& line) const;
    double baseline(std::size_t lineNumber) const;

    /// The pixels of the rectangle, without bounds on a side where it has no size; all when nothing is clipped.
    PixelRect clip() const;

private:
    LineLimits limits() const;
    std::size_t mostLines() const;
    TextAlignment alignment() const;
    double margin() const { return m_format.margins ? kMarginInEms * m_font.em : 0; }
    double cellHeight() const { return m_font.pixels(m_font.metrics.ascent + m_font.metrics.descent); }
    double blockHeight() const;

    Engine& m_engine;
    const Font& m_font;
    const ShapedText& m_text;
    FloatRect m_layout; // a side that is not limited is 0
    TextFormat m_format;
};

} // namespace vq::gdiplus
