// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/TextPainter.h"

#include "Platform/gdiplus/text/Contrast.h"

#include <algorithm>
#include <cmath>

namespace vq::gdiplus {
namespace {

/// Larger glyphs are drawn anew each time, the visible part of them: one would push thousands of labels' glyphs out.
constexpr float kLargestKeptEm = 256;

/// Glyphs reach at most this far from their place, in ems: the widest ligatures of the Arabic and Indic fonts at hand
/// stay below 12, and a picture or a stack of accents below 4.
constexpr double kReachInEms = 20;

/// Halves upwards. std::floor would be a call of the mathematics library on the baseline processor.
int nearestPixel(double position)
{
    const double raised = position + 0.5;
    const int truncated = static_cast<int>(raised);
    return truncated - (raised < truncated ? 1 : 0);
}

/// The characters that stand for wide ones, both ascending.
std::vector<std::size_t> charactersAt(std::span<const std::size_t> wide, const std::vector<Character>& characters)
{
    std::vector<std::size_t> result;
    auto next = wide.begin();
    std::size_t place = 0;
    for (std::size_t i = 0; i < characters.size() && next != wide.end(); ++i) {
        place += characters[i].is(Character::kPair) ? 2 : 1;
        if (*next < place)
            result.push_back(i);
        while (next != wide.end() && *next < place)
            ++next;
    }
    return result;
}

/// Where a label of a line begins to be drawn, if it is one: its capitals, a little more than half an em wide each.
PixelRect guessedPlace(const Font& font, std::wstring_view text, const FloatRect& layout, const TextFormat& format)
{
    constexpr float kLargestEm = 32; // beyond, pixels are fetched as fast as they are drawn
    constexpr std::size_t kLongestLabel = 32;
    constexpr float kFarthest = kEverywhere.right / 2;
    const bool isNear = format.alignment == TextAlignment::Near && format.lineAlignment == TextAlignment::Near;
    const bool isSane = std::fabs(layout.x) < kFarthest && std::fabs(layout.y) < kFarthest;
    if (!isNear || !isSane || font.em > kLargestEm || text.size() > kLongestLabel)
        return {0, 0, 0, 0};
    const auto em = static_cast<int>(font.em);
    const int left = static_cast<int>(layout.x) + em / 6;
    const int baseline = static_cast<int>(layout.y) + static_cast<int>(font.pixels(font.metrics.ascent));
    return {left, baseline - em * 3 / 4, left + static_cast<int>(text.size()) * em * 5 / 8, baseline};
}

std::ptrdiff_t offset(int row, int column, int width)
{
    return static_cast<std::ptrdiff_t>(row) * width + column;
}

} // namespace

TextPainter::TextPainter(Engine& engine, GlyphSink& sink, const Font& font, const TextDrawing& drawing,
                         const TextLayout& layout)
    : m_engine(engine), m_sink(sink), m_font(font),
      m_layout(layout), m_style{font.em, drawing.rendering, std::min(drawing.contrast, kHighestContrast), false, false,
                                false},
      m_visible(commonPart(commonPart(layout.clip(), drawing.visible), kEverywhere)), m_reach(kReachInEms * font.em),
      m_underlined(charactersAt(drawing.underlined, layout.text().characters))
{
}

void TextPainter::paint()
{
    if (m_visible.empty())
        return;
    for (std::size_t i = 0; i < m_layout.lines().size(); ++i) {
        const double baseline = m_layout.baseline(i);
        if (baseline - m_reach > m_visible.bottom)
            return;
        const TextLine& line = m_layout.lines()[i];
        if (baseline + m_reach >= m_visible.top)
            paintLine(line, m_layout.left(line), baseline);
    }
}

void TextPainter::paintLine(const TextLine& line, double left, double baseline)
{
    findSlices(line);
    orderSlices();
    double pen = left;
    for (const Engine::Slice& slice : m_engine.slices)
        pen = paintSlice(slice, left, pen, baseline);
    const FontMetrics& metrics = m_font.metrics;
    if (m_font.description.underline)
        underline(left, left + line.width, baseline);
    if (m_font.description.strikeout)
        paintStroke(left, left + line.width, baseline, metrics.strikeoutTop, metrics.strikeoutThickness);
}

/// The parts of the runs that stand on the line. Lines come in order, so the search goes on where it ended.
void TextPainter::findSlices(const TextLine& line)
{
    m_engine.slices.clear();
    const std::vector<ShapedRun>& runs = m_layout.text().runs;
    const std::vector<ShapedGlyph>& glyphs = m_layout.text().glyphs;
    while (m_firstRun < runs.size() && runs[m_firstRun].endCharacter <= line.first)
        ++m_firstRun;
    for (std::size_t i = m_firstRun; i < runs.size() && runs[i].firstCharacter < line.end; ++i) {
        const ShapedRun& run = runs[i];
        const auto before = [&](std::size_t character) { // glyphs left of those that belong to `character` and on
            const auto position = std::partition_point(
                glyphs.begin() + run.firstGlyph, glyphs.begin() + run.endGlyph, [&](const ShapedGlyph& glyph) {
                    return run.runsLeft() ? glyph.character >= character : glyph.character < character;
                });
            return static_cast<std::uint32_t>(position - glyphs.begin());
        };
        std::uint32_t first = before(run.runsLeft() ? line.end : line.first);
        std::uint32_t end = before(run.runsLeft() ? line.first : line.end);
        if (first < end)
            m_engine.slices.push_back({&run, first, end});
    }
}

/// Rule L2 of the bidirectional algorithm: from the highest level to the lowest odd one, reverse every stretch at that
/// level or higher.
void TextPainter::orderSlices()
{
    auto& slices = m_engine.slices;
    const auto levelOf = [](const Engine::Slice& slice) { return slice.run->level; };
    if (std::ranges::all_of(slices, [&](const auto& slice) { return levelOf(slice) == 0; }))
        return;
    int level = std::ranges::max(slices, {}, levelOf).run->level;
    for (; level > 0; --level) {
        const auto isDeep = [&](const Engine::Slice& slice) { return levelOf(slice) >= level; };
        for (auto first = std::ranges::find_if(slices, isDeep); first != slices.end();) {
            const auto end = std::find_if_not(first, slices.end(), isDeep);
            std::reverse(first, end);
            first = std::find_if(end, slices.end(), isDeep);
        }
    }
}

/// Returns where the next slice begins.
double TextPainter::paintSlice(const Engine::Slice& slice, double left, double pen, double baseline)
{
    const ShapedRun& run = *slice.run;
    const double scale = static_cast<double>(m_font.em) / run.face->unitsPerEm();
    m_style.colour = run.colour;
    m_style.emboldened = run.emboldened;
    m_style.slanted = run.slanted;
    for (std::uint32_t i = slice.firstGlyph; i < slice.endGlyph; ++i) {
        const ShapedGlyph& glyph = m_layout.text().glyphs[i];
        if (m_layout.text().characters[glyph.character].is(Character::kTab)) {
            pen = left + nextTabStop(pen - left, m_font.em);
            continue;
        }
        paintGlyph(run, glyph.glyph, pen + glyph.right * scale, baseline - glyph.up * scale);
        const double next = pen + glyph.advance * scale;
        if (std::ranges::binary_search(m_underlined, std::size_t{glyph.character}))
            underline(pen, next, baseline);
        pen = next;
    }
    return pen;
}

bool TextPainter::isNear(double x, double y) const
{
    return x >= m_visible.left - m_reach && x <= m_visible.right + m_reach && y >= m_visible.top - m_reach &&
           y <= m_visible.bottom + m_reach;
}

TextPainter::Place TextPainter::placeOf(double x, double y) const
{
    if (m_style.rendering != GlyphRendering::SmoothGrey || m_style.colour)
        return {nearestPixel(x), nearestPixel(y), {}};
    const int quartersX = nearestPixel(x * kSubpixels);
    const int quartersY = nearestPixel(y * kSubpixels);
    const int pixelX = quartersX >> kSubpixelBits; // rounds down on both sides of 0
    const int pixelY = quartersY >> kSubpixelBits;
    return {pixelX, pixelY, {quartersX - pixelX * kSubpixels, quartersY - pixelY * kSubpixels}};
}

void TextPainter::paintGlyph(const ShapedRun& run, std::uint32_t glyph, double x, double y)
{
    if (!isNear(x, y))
        return;
    const Place place = placeOf(x, y);
    if (m_font.em <= kLargestKeptEm) {
        deliver(m_engine.glyph(*run.face, glyph, m_style, place.subpixel.x, place.subpixel.y), place.x, place.y);
        return;
    }
    const PixelRect region{m_visible.left - place.x, m_visible.top - place.y, m_visible.right - place.x,
                           m_visible.bottom - place.y};
    deliver(renderGlyph(*run.face, glyph, m_style, place.subpixel, region), place.x, place.y);
}

void TextPainter::deliver(const GlyphImage& image, int x, int y)
{
    const int left = x + image.left;
    const int top = y + image.top;
    const PixelRect part = commonPart({left, top, left + image.width, top + image.height}, m_visible);
    if (part.empty())
        return;
    const std::ptrdiff_t first = offset(part.top - top, part.left - left, image.width);
    const int width = part.right - part.left;
    const int height = part.bottom - part.top;
    if (image.colours.empty()) {
        m_sink.glyph({part.left, part.top, width, height, image.width, image.coverage.data() + first});
        return;
    }
    const auto* pixels = reinterpret_cast<const std::uint8_t*>(image.colours.data() + first);
    m_sink.colourGlyph(part.left, part.top,
                       {pixels, image.width * static_cast<std::ptrdiff_t>(sizeof(Pixel)), width, height});
}

void TextPainter::underline(double left, double right, double baseline)
{
    paintStroke(left, right, baseline, m_font.metrics.underlineTop, m_font.metrics.underlineThickness);
}

/// On whole pixels, one thick at least.
void TextPainter::paintStroke(double left, double right, double baseline, int top, int thickness)
{
    const double y = baseline - m_font.pixels(top);
    if (!(y >= m_visible.top - m_reach && y <= m_visible.bottom + m_reach))
        return;
    const double from = std::clamp(left, m_visible.left - 1.0, m_visible.right + 1.0);
    const double to = std::clamp(right, m_visible.left - 1.0, m_visible.right + 1.0);
    const int firstRow = nearestPixel(y);
    const int rows = std::max(1, nearestPixel(m_font.pixels(thickness)));
    const PixelRect stroke = commonPart({nearestPixel(from), firstRow, nearestPixel(to), firstRow + rows}, m_visible);
    if (!stroke.empty())
        m_sink.rectangle(stroke);
}

bool drawText(GlyphSink& sink, const Font& font, std::wstring_view text, const FloatRect& layout,
              const TextFormat& format, const TextDrawing& drawing) noexcept
{
    if (!std::isfinite(layout.x) || !std::isfinite(layout.y))
        return true;
    try {
        sink.expect(commonPart(guessedPlace(font, text, layout, format), drawing.visible));
        const EngineLock engine;
        const TextLayout lines(*engine, font, text, layout, format);
        TextPainter(*engine, sink, font, drawing, lines).paint();
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace vq::gdiplus
