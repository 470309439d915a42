// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/Shaper.h"

#include "Platform/gdiplus/text/Characters.h"
#include "Platform/gdiplus/text/Emboldening.h"

#include <algorithm>
#include <array>
#include <new>

namespace vq::gdiplus {
namespace {

/// Working memory for more characters than this is not kept.
constexpr std::size_t kLongTextCharacters = 16384;

constexpr hb_feature_t off(hb_tag_t tag)
{
    return {tag, 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END};
}

/// What GDI+ does not do in scripts that can be written letter by letter: a text is as wide as its letters.
constexpr std::array kOrnaments{off(HB_TAG('k', 'e', 'r', 'n')), off(HB_TAG('l', 'i', 'g', 'a')),
                                off(HB_TAG('c', 'l', 'i', 'g')), off(HB_TAG('c', 'a', 'l', 't'))};

bool isWrittenLetterByLetter(hb_script_t script)
{
    return script == HB_SCRIPT_LATIN || script == HB_SCRIPT_GREEK || script == HB_SCRIPT_CYRILLIC ||
           script == HB_SCRIPT_COMMON;
}

/// Tabs are wide spaces; other controls must not show up as boxes.
char32_t shapedAs(char32_t c)
{
    if (c == '\t')
        return ' ';
    return isControl(c) ? kWordJoiner : c;
}

} // namespace

Shaper::Shaper() : m_buffer(hb_buffer_create()) {}

ShapedText Shaper::shape(const Font& font, Typeface& typeface, FaceStore& faces, std::wstring_view text,
                         bool rightToLeft)
{
    ShapedText result;
    m_job = {&font, &typeface, &faces, rightToLeft, &result};
    readCharacters(text, m_codePoints, result.characters);
    for (std::size_t first = 0; first < m_codePoints.size();) {
        const auto from = m_codePoints.begin() + static_cast<std::ptrdiff_t>(first);
        const auto end =
            static_cast<std::size_t>(std::find_if(from, m_codePoints.end(), isLineBreak) - m_codePoints.begin());
        std::transform(from, m_codePoints.begin() + static_cast<std::ptrdiff_t>(end), from, shapedAs);
        shapeParagraph(first, end);
        first = end + 1;
    }
    if (text.size() > kLongTextCharacters)
        release();
    return result;
}

void Shaper::release()
{
    m_buffer.reset(hb_buffer_create());
    m_itemiser = {};
    m_codePoints = {};
    m_items = {};
}

void Shaper::shapeParagraph(std::size_t first, std::size_t end)
{
    if (first == end)
        return;
    const std::span<const char32_t> paragraph(m_codePoints.data() + first, end - first);
    for (std::size_t i = first; i < end; ++i)
        m_job.result->characters[i].flags |= Character::kContinues; // until a glyph begins there
    m_itemiser.itemise(paragraph, m_job.rightToLeft, *m_job.typeface, m_items);
    for (const Item& item : m_items)
        shapeItem(first, paragraph, item);
    m_job.result->characters[first].flags &= static_cast<std::uint8_t>(~Character::kContinues);
}

void Shaper::shapeItem(std::size_t offset, std::span<const char32_t> paragraph, const Item& item)
{
    const FontCandidate& candidate = m_job.typeface->candidate(item.font);
    ShapedRun run{};
    run.face = m_job.typeface->face(item.font, *m_job.faces);
    if (!run.face)
        return;
    run.colour = candidate.colour;
    run.emboldened = candidate.emboldened;
    run.slanted = candidate.slanted;
    run.level = item.level;
    run.firstCharacter = static_cast<std::uint32_t>(offset + item.first);
    run.endCharacter = static_cast<std::uint32_t>(offset + item.end);

    hb_buffer_t* const buffer = m_buffer.get();
    hb_buffer_clear_contents(buffer);
    hb_buffer_set_direction(buffer, run.runsLeft() ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer, item.script);
    // Clusters come as offsets in the paragraph; the text around the item tells how its ends join.
    hb_buffer_add_codepoints(buffer, reinterpret_cast<const hb_codepoint_t*>(paragraph.data()),
                             static_cast<int>(paragraph.size()), static_cast<unsigned>(item.first),
                             static_cast<int>(item.end - item.first));
    const bool plain = isWrittenLetterByLetter(item.script);
    hb_shape(run.face->shaping(), buffer, kOrnaments.data(), plain ? kOrnaments.size() : 0);
    if (!hb_buffer_allocation_successful(buffer))
        throw std::bad_alloc();
    const auto shift = static_cast<std::uint32_t>(offset);
    run.firstGlyph = static_cast<std::uint32_t>(m_job.result->glyphs.size());
    takeGlyphs(run, shift);
    run.endGlyph = static_cast<std::uint32_t>(m_job.result->glyphs.size());
    m_job.result->runs.push_back(std::move(run));
}

void Shaper::takeGlyphs(const ShapedRun& run, std::uint32_t offset)
{
    unsigned count = 0;
    const hb_glyph_info_t* infos = hb_buffer_get_glyph_infos(m_buffer.get(), &count);
    const hb_glyph_position_t* places = hb_buffer_get_glyph_positions(m_buffer.get(), &count);
    const double scale = static_cast<double>(m_job.font->em) / run.face->unitsPerEm();
    const int thicker = run.emboldened ? emboldeningOf(run.face->unitsPerEm()) : 0;
    ShapedText& text = *m_job.result;
    if (text.glyphs.empty()) // most texts are of one item
        text.glyphs.reserve(count);
    for (unsigned i = 0; i < count; ++i) {
        const std::uint32_t character = offset + infos[i].cluster;
        const int advance = places[i].x_advance + (places[i].x_advance > 0 ? thicker : 0);
        text.glyphs.push_back({infos[i].codepoint, character, advance, places[i].x_offset, places[i].y_offset});
        Character& cluster = text.characters[character];
        cluster.width += static_cast<float>(advance * scale);
        cluster.flags &= static_cast<std::uint8_t>(~Character::kContinues);
    }
}

} // namespace vq::gdiplus
