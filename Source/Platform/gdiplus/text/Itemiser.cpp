// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/Characters.h"
#include "Platform/gdiplus/text/Paragraph.h"

#include <algorithm>
#include <limits>

namespace vq::gdiplus {
namespace {

bool isMark(char32_t c)
{
    switch (hb_unicode_general_category(hb_unicode_funcs_get_default(), c)) {
    case HB_UNICODE_GENERAL_CATEGORY_NON_SPACING_MARK:
    case HB_UNICODE_GENERAL_CATEGORY_SPACING_MARK:
    case HB_UNICODE_GENERAL_CATEGORY_ENCLOSING_MARK:
        return true;
    default:
        return false;
    }
}

/// Whether a character has to come from the same font as those of its cluster before it.
bool joinsCluster(std::span<const char32_t> cluster, char32_t c)
{
    const char32_t last = cluster.back();
    if (c < 0x0300)
        return false;
    if (c == kJoiner || isEmojiModifier(c) || isMark(c))
        return true;
    if (last == kJoiner && mayBePictograph(c))
        return mayBePictograph(cluster.front());
    return isRegionalIndicator(c) && cluster.size() == 1 && isRegionalIndicator(last);
}

std::size_t clusterLength(std::span<const char32_t> text)
{
    constexpr std::size_t kLongest = 64; // far above any writing; keeps the search for a font short
    std::size_t length = 1;
    while (length < std::min(text.size(), kLongest) && joinsCluster(text.first(length), text[length]))
        ++length;
    return length;
}

bool isOfNoScript(hb_script_t script)
{
    return script == HB_SCRIPT_COMMON || script == HB_SCRIPT_INHERITED || script == HB_SCRIPT_UNKNOWN;
}

} // namespace

/// The direction of paragraphs does not depend on what they hold: GDI+'s format says it.
void Itemiser::findLevels(std::span<const char32_t> paragraph, bool rightToLeft)
{
    const FriBidiLevel level = rightToLeft ? 1 : 0;
    m_levels.assign(paragraph.size(), level);
    constexpr std::size_t kLongest = std::numeric_limits<FriBidiStrIndex>::max();
    if (paragraph.size() > kLongest || (!rightToLeft && std::ranges::none_of(paragraph, affectsDirection)))
        return;

    static_assert(sizeof(char32_t) == sizeof(FriBidiChar));
    const auto* text = reinterpret_cast<const FriBidiChar*>(paragraph.data());
    const auto length = static_cast<FriBidiStrIndex>(paragraph.size());
    m_types.resize(paragraph.size());
    m_brackets.resize(paragraph.size());
    fribidi_get_bidi_types(text, length, m_types.data());
    fribidi_get_bracket_types(text, length, m_types.data(), m_brackets.data());
    FriBidiParType direction = rightToLeft ? FRIBIDI_PAR_RTL : FRIBIDI_PAR_LTR;
    const FriBidiLevel highest =
        fribidi_get_par_embedding_levels_ex(m_types.data(), m_brackets.data(), length, &direction, m_levels.data());
    if (highest == 0) // out of memory
        m_levels.assign(paragraph.size(), level);
}

/// Characters that several scripts share take that of the text before them, at the beginning that of the text after.
void Itemiser::findScripts(std::span<const char32_t> paragraph)
{
    hb_unicode_funcs_t* const unicode = hb_unicode_funcs_get_default();
    m_scripts.resize(paragraph.size());
    hb_script_t current = HB_SCRIPT_COMMON;
    for (std::size_t i = 0; i < paragraph.size(); ++i) {
        const hb_script_t own = hb_unicode_script(unicode, paragraph[i]);
        if (!isOfNoScript(own))
            current = own;
        m_scripts[i] = current;
    }
    const auto first = std::ranges::find_if(m_scripts, [](hb_script_t s) { return s != HB_SCRIPT_COMMON; });
    if (first != m_scripts.end())
        std::fill(m_scripts.begin(), first, *first);
}

void Itemiser::findFonts(std::span<const char32_t> paragraph, Typeface& typeface)
{
    m_fonts.resize(paragraph.size());
    Typeface::Choice font = Typeface::kBase;
    for (std::size_t i = 0; i < paragraph.size();) {
        const std::size_t length = clusterLength(paragraph.subspan(i));
        font = typeface.choose(paragraph.subspan(i, length), font);
        std::fill_n(m_fonts.begin() + static_cast<std::ptrdiff_t>(i), length, font);
        i += length;
    }
}

void Itemiser::itemise(std::span<const char32_t> paragraph, bool rightToLeft, Typeface& typeface,
                       std::vector<Item>& items)
{
    findLevels(paragraph, rightToLeft);
    findScripts(paragraph);
    findFonts(paragraph, typeface);
    items.clear();
    for (std::size_t i = 0; i < paragraph.size(); ++i) {
        const auto level = static_cast<std::uint8_t>(m_levels[i]);
        const bool goesOn = !items.empty() && items.back().level == level && items.back().script == m_scripts[i] &&
                            items.back().font == m_fonts[i];
        if (goesOn)
            items.back().end = i + 1;
        else
            items.push_back({i, i + 1, level, m_scripts[i], m_fonts[i]});
    }
}

} // namespace vq::gdiplus
