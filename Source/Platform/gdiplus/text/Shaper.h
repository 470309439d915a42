// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/Paragraph.h"

#include <string_view>

namespace vq::gdiplus {

/// Turns texts into glyphs and widths. Keeps its working memory, unless a text was very long.
class Shaper
{
public:
    Shaper();

    /// Throws std::bad_alloc.
    ShapedText shape(const Font& font, Typeface& typeface, FaceStore& faces, std::wstring_view text, bool rightToLeft);

private:
    void shapeParagraph(std::size_t first, std::size_t end);
    void shapeItem(std::size_t offset, std::span<const char32_t> paragraph, const Item& item);
    void takeGlyphs(const ShapedRun& run, std::uint32_t offset);
    void release();

    struct Job
    {
        const Font* font;
        Typeface* typeface;
        FaceStore* faces;
        bool rightToLeft;
        ShapedText* result;
    };

    Job m_job{};
    BufferHandle m_buffer;
    Itemiser m_itemiser;
    std::vector<char32_t> m_codePoints;
    std::vector<Item> m_items;
};

} // namespace vq::gdiplus
