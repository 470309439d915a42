// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/FontList.h"

#include "Platform/gdiplus/text/FaceNames.h"

#include <optional>
#include <string_view>

namespace vq::gdiplus {
namespace {

const FcChar8* bytes(const char* text)
{
    return reinterpret_cast<const FcChar8*>(text);
}

const char* text(const FcPattern* pattern, const char* property)
{
    FcChar8* value = nullptr;
    if (FcPatternGetString(pattern, property, 0, &value) != FcResultMatch)
        return "";
    return reinterpret_cast<const char*>(value);
}

int number(const FcPattern* pattern, const char* property, int fallback)
{
    int value = fallback;
    return FcPatternGetInteger(pattern, property, 0, &value) == FcResultMatch ? value : fallback;
}

bool holds(const FcPattern* pattern, const char* property)
{
    FcBool value = FcFalse;
    return FcPatternGetBool(pattern, property, 0, &value) == FcResultMatch && value == FcTrue;
}

/// Vertical writing is asked for by an @ before the name; it is not done, the face is the same.
std::u16string_view withoutVerticalMark(std::u16string_view face)
{
    return face.starts_with(u'@') ? face.substr(1) : face;
}

std::string utf8(std::u16string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        FcChar32 character = text[i];
        const bool pair = (character & 0xFC00) == 0xD800 && i + 1 < text.size() && (text[i + 1] & 0xFC00) == 0xDC00;
        if (pair)
            character = 0x10000 + ((character & 0x3FF) << 10) + (text[++i] & 0x3FFU);
        else if ((character & 0xF800) == 0xD800)
            character = 0xFFFD;
        FcChar8 encoded[FC_UTF8_MAX_LEN];
        const int length = FcUcs4ToUtf8(character, encoded);
        result.append(reinterpret_cast<const char*>(encoded), static_cast<std::size_t>(length));
    }
    return result;
}

/// Fonts may have several family names, those of other languages among them.
bool hasFamily(const FcPattern* font, const std::string& family)
{
    FcChar8* name = nullptr;
    for (int i = 0; FcPatternGetString(font, FC_FAMILY, i, &name) == FcResultMatch; ++i)
        if (FcStrCmpIgnoreCase(name, bytes(family.c_str())) == 0)
            return true;
    return false;
}

PatternHandle patternFor(const FontDescription& description)
{
    PatternHandle pattern(FcPatternCreate());
    if (!pattern)
        return pattern;
    const std::u16string_view face = withoutVerticalMark(description.faceName());
    if (!face.empty())
        FcPatternAddString(pattern.get(), FC_FAMILY, bytes(utf8(face).c_str()));
    for (const char* family : substitutesFor(face))
        FcPatternAddString(pattern.get(), FC_FAMILY, bytes(family));
    FcPatternAddString(pattern.get(), FC_FAMILY, bytes(genericFamily(face, description.fontClass)));
    FcPatternAddInteger(pattern.get(), FC_WEIGHT, description.bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(pattern.get(), FC_SLANT, description.italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    return pattern;
}

/// Only what GDI+ would take: outlines in TrueType or OpenType files, and fonts of coloured pictures in such files. A
/// variable font counts by its named instances.
std::optional<FontCandidate> candidateFrom(const FcPattern* font, const FontDescription& description)
{
    const std::string_view format = text(font, FC_FONTFORMAT);
    const bool colour = holds(font, FC_COLOR);
    if ((format != "TrueType" && format != "CFF") || (!colour && !holds(font, FC_SCALABLE)) || holds(font, FC_VARIABLE))
        return std::nullopt;
    const char* file = text(font, FC_FILE);
    FcCharSet* characters = nullptr;
    if (!*file || FcPatternGetCharSet(font, FC_CHARSET, 0, &characters) != FcResultMatch)
        return std::nullopt;

    FontCandidate candidate{};
    candidate.file = file;
    candidate.index = number(font, FC_INDEX, 0);
    candidate.family = text(font, FC_FAMILY);
    candidate.characters = characters;
    candidate.asked = hasFamily(font, utf8(withoutVerticalMark(description.faceName())));
    candidate.colour = colour;
    candidate.emboldened =
        description.bold && !colour && number(font, FC_WEIGHT, FC_WEIGHT_REGULAR) < FC_WEIGHT_DEMIBOLD;
    candidate.slanted = description.italic && !colour && number(font, FC_SLANT, FC_SLANT_ROMAN) == FC_SLANT_ROMAN;
    return candidate;
}

} // namespace

FontChain FontList::fontsFor(const FontDescription& description) const
{
    FontChain chain;
    const PatternHandle pattern = patternFor(description);
    if (!m_configuration || !pattern || !FcConfigSubstitute(m_configuration.get(), pattern.get(), FcMatchPattern))
        return chain;
    FcDefaultSubstitute(pattern.get());

    FcResult result = FcResultNoMatch;
    FcCharSet* characters = nullptr;
    chain.fonts.reset(FcFontSort(m_configuration.get(), pattern.get(), FcFalse, &characters, &result));
    chain.characters.reset(characters);
    if (!chain.fonts || !characters)
        return chain;
    for (int i = 0; i < chain.fonts->nfont; ++i)
        if (const auto candidate = candidateFrom(chain.fonts->fonts[i], description))
            chain.candidates.push_back(*candidate);
    return chain;
}

} // namespace vq::gdiplus
