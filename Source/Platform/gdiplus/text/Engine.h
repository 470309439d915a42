// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/FaceStore.h"
#include "Platform/gdiplus/text/GlyphCache.h"
#include "Platform/gdiplus/text/Lines.h"
#include "Platform/gdiplus/text/Shaper.h"
#include "Platform/gdiplus/text/Text.h"

#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace vq::gdiplus {

/// Everything that is kept between calls. Used under the lock of `EngineLock`. Members throw std::bad_alloc.
class Engine
{
public:
    std::shared_ptr<const Font> font(const FontDescription& description);

    /// The glyphs of a text, until the next call of this member.
    const ShapedText& shaped(const Font& font, std::wstring_view text, bool rightToLeft);

    /// A glyph that fits the cache; stays until the next call of this member.
    const GlyphImage& glyph(Face& face, std::uint32_t glyph, const GlyphStyle& style, int subpixelX, int subpixelY);

    /// Lets go of what a long text has taken.
    void endOfCall();

    /// Working memory of a call.
    std::vector<TextLine> lines;
    struct Slice
    {
        const ShapedRun* run;
        std::uint32_t firstGlyph, endGlyph;
    };
    std::vector<Slice> slices;

private:
    struct FontView
    {
        explicit FontView(const FontDescription& font);
        bool operator==(const FontDescription& other) const { return *description == other; }

        const FontDescription* description;
        std::size_t hash;
    };
    struct TextKey
    {
        std::uint64_t font;
        bool rightToLeft;
        std::wstring text;
    };
    struct TextView
    {
        TextView(std::uint64_t fontId, bool runsLeft, std::wstring_view characters);
        explicit TextView(const TextKey& key) : TextView(key.font, key.rightToLeft, key.text) {}
        bool operator==(const TextKey& key) const
        {
            return font == key.font && rightToLeft == key.rightToLeft && text == key.text;
        }

        std::uint64_t font;
        bool rightToLeft;
        std::wstring_view text;
        std::size_t hash;
    };

    static constexpr std::size_t kFontsKept = 128;
    static constexpr std::size_t kTypefacesKept = 32;
    static constexpr std::size_t kTextBytes = std::size_t{4} << 20;
    static constexpr std::size_t kGlyphBytes = std::size_t{8} << 20;

    Typeface& typefaceOf(const FontDescription& description);
    std::shared_ptr<const Font> makeFont(const FontDescription& description);

    FontList m_fontList;
    FaceStore m_faces; // outlives all faces that the members below hold
    Shaper m_shaper;
    LruCache<FontDescription, FontView, std::shared_ptr<const Font>> m_fonts{kFontsKept};
    LruCache<FontDescription, FontView, std::unique_ptr<Typeface>> m_typefaces{kTypefacesKept};
    LruCache<TextKey, TextView, ShapedText> m_texts{kTextBytes};
    GlyphCache m_glyphs{kGlyphBytes};
    ShapedText m_longText; // the last one that was too long to be kept
};

/// The engine of the process, locked. Made when it is first asked for.
class EngineLock
{
public:
    /// Throws std::bad_alloc.
    EngineLock();
    Engine* operator->() const { return m_engine; }
    Engine& operator*() const { return *m_engine; }

private:
    std::lock_guard<std::mutex> m_lock;
    Engine* m_engine;
};

} // namespace vq::gdiplus
