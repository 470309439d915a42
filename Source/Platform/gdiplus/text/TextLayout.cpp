// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/TextLayout.h"

#include <algorithm>
#include <cmath>

namespace vq::gdiplus {
namespace {

float limitOf(float side)
{
    return side > 0 && std::isfinite(side) ? side : 0;
}

TextAlignment mirrored(TextAlignment alignment)
{
    switch (alignment) {
    case TextAlignment::Near:
        return TextAlignment::Far;
    case TextAlignment::Far:
        return TextAlignment::Near;
    case TextAlignment::Center:
        break;
    }
    return TextAlignment::Center;
}

/// How far a block moves in the room that it has: not at all, by half or by all that is left.
double shifted(TextAlignment alignment, double free)
{
    switch (alignment) {
    case TextAlignment::Center:
        return free / 2;
    case TextAlignment::Far:
        return free;
    case TextAlignment::Near:
        break;
    }
    return 0;
}

/// A pixel belongs to an area when its centre does, which lies at whole numbers: the first from `edge` on.
int firstPixel(double edge)
{
    constexpr double kFar = kEverywhere.right;
    return static_cast<int>(std::clamp(std::ceil(edge), -kFar, kFar));
}

} // namespace

TextLayout::TextLayout(Engine& engine, const Font& font, std::wstring_view text, const FloatRect& layout,
                       const TextFormat& format)
    : m_engine(engine), m_font(font),
      m_text(engine.shaped(font, text, format.rightToLeft)), m_layout{layout.x, layout.y, limitOf(layout.width),
                                                                      limitOf(layout.height)},
      m_format(format)
{
    breakLines(m_text.characters, limits(), m_engine.lines);
}

TextLayout::~TextLayout()
{
    m_engine.endOfCall();
}

LineLimits TextLayout::limits() const
{
    LineLimits limits{};
    limits.em = m_font.em;
    limits.margins = 2 * margin();
    limits.width = m_layout.width > 0 ? m_layout.width : std::numeric_limits<float>::infinity();
    limits.lines = mostLines();
    limits.wraps = !m_format.noWrap;
    limits.countsTrailingSpaces = m_format.countsTrailingSpaces;
    limits.trimming = m_format.trimming;
    return limits;
}

/// Those that begin in the rectangle, the first in any case, or those that fit into it whole.
std::size_t TextLayout::mostLines() const
{
    constexpr double kMost = 1e9;
    constexpr double kHair = 1.0 / 1024; // pixels: heights come back from callers in single precision
    const double spacing = m_font.pixels(m_font.metrics.lineSpacing);
    double lines = kMost;
    if (m_layout.height > 0 && m_format.wholeLines)
        lines = std::floor((m_layout.height + kHair - cellHeight()) / spacing) + 1;
    else if (m_layout.height > 0 && !m_format.noClip)
        lines = std::max(1.0, std::ceil(m_layout.height / spacing));
    return static_cast<std::size_t>(std::clamp(lines, 0.0, kMost));
}

TextAlignment TextLayout::alignment() const
{
    return m_format.rightToLeft ? mirrored(m_format.alignment) : m_format.alignment;
}

double TextLayout::blockHeight() const
{
    const auto further = static_cast<double>(lines().size()) - 1;
    return cellHeight() + further * m_font.pixels(m_font.metrics.lineSpacing);
}

TextMeasure TextLayout::measure() const
{
    if (lines().empty())
        return {{m_layout.x, m_layout.y, 0, 0}, 0, 0};
    double textWidth = 0;
    for (const TextLine& line : lines())
        textWidth = std::max(textWidth, line.width);
    auto width = static_cast<float>(textWidth + 2 * margin());
    auto height = static_cast<float>(blockHeight() + (m_format.margins ? kExtraHeightInEms * m_font.em : 0));
    if (!m_format.noClip && m_layout.width > 0)
        width = std::min(width, m_layout.width);
    if (!m_format.noClip && m_layout.height > 0)
        height = std::min(height, m_layout.height);
    const double x = m_layout.x + shifted(alignment(), m_layout.width - width);
    const double y = m_layout.y + shifted(m_format.lineAlignment, m_layout.height - height);

    const std::size_t fitted = lines().back().next;
    const auto pairs =
        std::count_if(m_text.characters.begin(), m_text.characters.begin() + static_cast<std::ptrdiff_t>(fitted),
                      [](const Character& c) { return c.is(Character::kPair); });
    return {{static_cast<float>(x), static_cast<float>(y), width, height},
            fitted + static_cast<std::size_t>(pairs),
            lines().size()};
}

double TextLayout::left(const TextLine& line) const
{
    const double free = m_layout.width - line.width - 2 * margin();
    return m_layout.x + margin() + shifted(alignment(), free);
}

double TextLayout::baseline(std::size_t lineNumber) const
{
    const double top = m_layout.y + shifted(m_format.lineAlignment, m_layout.height - blockHeight());
    return top + static_cast<double>(lineNumber) * m_font.pixels(m_font.metrics.lineSpacing) +
           m_font.pixels(m_font.metrics.ascent);
}

PixelRect TextLayout::clip() const
{
    PixelRect clip = kEverywhere;
    if (m_format.noClip)
        return clip;
    if (m_layout.width > 0) {
        clip.left = firstPixel(m_layout.x);
        clip.right = firstPixel(static_cast<double>(m_layout.x) + m_layout.width);
    }
    if (m_layout.height > 0) {
        clip.top = firstPixel(m_layout.y);
        clip.bottom = firstPixel(static_cast<double>(m_layout.y) + m_layout.height);
    }
    return clip;
}

std::optional<TextMeasure> measureText(const Font& font, std::wstring_view text, const FloatRect& layout,
                                       const TextFormat& format) noexcept
{
    try {
        const EngineLock engine;
        return TextLayout(*engine, font, text, layout, format).measure();
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace vq::gdiplus
