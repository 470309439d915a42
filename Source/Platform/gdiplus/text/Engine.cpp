// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/Engine.h"

#include "Platform/gdiplus/text/GlyphRenderer.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace vq::gdiplus {
namespace {

/// No destructor and no dynamic initialisation: the library may be unloaded at any time.
struct Process
{
    std::mutex lock;
    Engine* engine = nullptr;
    std::uint64_t nextFont = 1; // goes on when the engine is released, since fonts stay
};
constinit Process process;

[[gnu::destructor]] void releaseAtUnload()
{
    releaseTextEngine();
}

/// A text that takes more than this share of the budget would drive too many others out.
constexpr std::size_t kLongTextShare = 8;

std::size_t mix(std::size_t hash, std::size_t value)
{
    return (hash ^ value) * 0x9E3779B97F4A7C15U + (hash >> 29);
}

/// The whole cell is asked for: the nearest em, in whole pixels as GDI has them.
float emFor(const FontDescription& description, const FontMetrics& metrics)
{
    if (description.sizeRule == SizeRule::Em)
        return description.size;
    const double cell = metrics.ascent + metrics.descent;
    return static_cast<float>(
        std::max(1.0, std::round(static_cast<double>(description.size) * metrics.unitsPerEm / cell)));
}

bool isPossible(float pixels)
{
    return pixels > 0 && pixels <= kLargestEm; // no number is neither
}

/// What a typeface depends on.
FontDescription withoutSize(FontDescription description)
{
    FontDescription typeface;
    typeface.face = description.face;
    typeface.fontClass = description.fontClass;
    typeface.bold = description.bold;
    typeface.italic = description.italic;
    return typeface;
}

} // namespace

Engine::FontView::FontView(const FontDescription& font) : description(&font)
{
    std::size_t value = std::bit_cast<std::uint32_t>(font.size);
    for (const char16_t unit : font.faceName())
        value = mix(value, unit);
    for (const bool style : {font.bold, font.italic, font.underline, font.strikeout})
        value = mix(value, style ? 1 : 0);
    hash = spread(value);
}

Engine::TextView::TextView(std::uint64_t fontId, bool runsLeft, std::wstring_view characters)
    : font(fontId), rightToLeft(runsLeft), text(characters)
{
    std::size_t value = fontId * 2 + (runsLeft ? 1 : 0);
    for (const wchar_t character : characters)
        value = mix(value, static_cast<std::uint32_t>(character));
    hash = spread(value);
}

Typeface& Engine::typefaceOf(const FontDescription& description)
{
    const FontDescription key = withoutSize(description);
    if (auto* typeface = m_typefaces.find(FontView(key)))
        return **typeface;
    return *m_typefaces.insert(key, std::make_unique<Typeface>(m_fontList.fontsFor(key), m_faces), 1);
}

std::shared_ptr<const Font> Engine::makeFont(const FontDescription& description)
{
    const Typeface& typeface = typefaceOf(description);
    const auto face = typeface.usable() ? typeface.face(Typeface::kBase, m_faces) : nullptr;
    if (!face)
        return nullptr;
    const FontMetrics metrics = face->metrics();
    const float em = emFor(description, metrics);
    if (!isPossible(em))
        return nullptr;
    const FontCandidate& base = typeface.candidate(Typeface::kBase);
    return std::make_shared<const Font>(Font{description, metrics, em, base.family, base.asked, process.nextFont++});
}

std::shared_ptr<const Font> Engine::font(const FontDescription& description)
{
    if (!isPossible(description.size))
        return nullptr;
    if (const auto* font = m_fonts.find(FontView(description)))
        return *font;
    auto font = makeFont(description);
    return font ? m_fonts.insert(description, std::move(font), 1) : nullptr;
}

const ShapedText& Engine::shaped(const Font& font, std::wstring_view text, bool rightToLeft)
{
    const TextView view(font.id, rightToLeft, text);
    if (const ShapedText* found = m_texts.find(view))
        return *found;
    Typeface& typeface = typefaceOf(font.description);
    ShapedText result = typeface.usable() ? m_shaper.shape(font, typeface, m_faces, text, rightToLeft) : ShapedText{};
    const std::size_t cost = result.bytes() + sizeof(TextKey) + text.size() * sizeof(wchar_t);
    if (cost > kTextBytes / kLongTextShare)
        return m_longText = std::move(result);
    return m_texts.insert({font.id, rightToLeft, std::wstring(text)}, std::move(result), cost);
}

void Engine::endOfCall()
{
    constexpr std::size_t kEntriesKept = 4096;
    m_longText = {};
    if (lines.capacity() > kEntriesKept)
        std::vector<TextLine>().swap(lines);
    if (slices.capacity() > kEntriesKept)
        std::vector<Slice>().swap(slices);
}

const GlyphImage& Engine::glyph(Face& face, std::uint32_t glyph, const GlyphStyle& style, int subpixelX, int subpixelY)
{
    const std::uint32_t bits = static_cast<std::uint32_t>(style.rendering) | style.contrast << 2 |
                               static_cast<std::uint32_t>(subpixelX) << 6 | static_cast<std::uint32_t>(subpixelY) << 8 |
                               (style.colour ? 1U << 10 : 0) | (style.emboldened ? 1U << 11 : 0) |
                               (style.slanted ? 1U << 12 : 0);
    const GlyphKey key{face.id(), glyph, std::bit_cast<std::uint32_t>(style.em), bits};
    if (const GlyphImage* found = m_glyphs.find(GlyphView(key)))
        return *found;
    GlyphImage image = renderGlyph(face, glyph, style, {subpixelX, subpixelY}, kEverywhere);
    const std::size_t cost = image.bytes() + sizeof(GlyphKey);
    return m_glyphs.insert(key, std::move(image), cost);
}

EngineLock::EngineLock() : m_lock(process.lock)
{
    if (!process.engine)
        process.engine = new Engine;
    m_engine = process.engine;
}

std::shared_ptr<const Font> openFont(const FontDescription& description) noexcept
{
    try {
        return EngineLock()->font(description);
    } catch (const std::exception&) {
        return nullptr;
    }
}

void releaseTextEngine() noexcept
{
    const std::lock_guard lock(process.lock);
    if (!process.engine)
        return;
    delete process.engine;
    process.engine = nullptr;
    finishFontconfig();
}

} // namespace vq::gdiplus
