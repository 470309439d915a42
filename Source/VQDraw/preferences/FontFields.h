// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What is stored of a font preference under names.

#include "VQDraw/VQFont.h"
#include "VQDraw/preferences/TextLines.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace vq {

enum class FieldType { Integer, Unsigned, Face };

struct FontField
{
    const wchar_t* key;          ///< in preference files; in their legacy layout, the tag
    const wchar_t* registryName; ///< with the slot's number as %d; null: not kept there
    FieldType type;              ///< in preference files; the registry holds all numbers as unsigned ones
    int (*number)(const CVQFont&);
    void (*setNumber)(CVQFont&, int); ///< as of `number`, null for the face
};

/// In the order in which they are written.
inline constexpr std::array kFontFields{
    FontField{L"<Color>", L"UI_Ctrl_FontColor_%d", FieldType::Unsigned,
              [](const CVQFont& font) { return static_cast<int>(font.m_uiColor); },
              [](CVQFont& font, int value) { font.m_uiColor = static_cast<COLORREF>(value); }},
    FontField{L"<lfHeight>", L"UI_Ctrl_FontSize_%d", FieldType::Integer, // the nominal size: it suits every screen
              [](const CVQFont& font) { return font.m_iNominalSize; },
              [](CVQFont& font, int value) { font.m_iNominalSize = value; }},
    FontField{L"<lfWeight>", L"UI_Ctrl_FontWeight_%d", FieldType::Integer,
              [](const CVQFont& font) { return static_cast<int>(font.m_LogFont.lfWeight); },
              [](CVQFont& font, int value) { font.m_LogFont.lfWeight = value; }},
    FontField{L"<lfItalic>", L"UI_Ctrl_FontItalic_%d", FieldType::Integer,
              [](const CVQFont& font) { return int{font.m_LogFont.lfItalic}; },
              [](CVQFont& font, int value) { font.m_LogFont.lfItalic = static_cast<BYTE>(value); }},
    FontField{L"<lfFaceName>", L"UI_Ctrl_FontFace_%d", FieldType::Face, nullptr, nullptr},
    FontField{L"<lfCharSet>", nullptr, FieldType::Unsigned,
              [](const CVQFont& font) { return int{font.m_LogFont.lfCharSet}; },
              [](CVQFont& font, int value) { font.m_LogFont.lfCharSet = static_cast<BYTE>(value); }},
    FontField{L"<lfPitchAndFamily>", nullptr, FieldType::Unsigned,
              [](const CVQFont& font) { return int{font.m_LogFont.lfPitchAndFamily}; },
              [](CVQFont& font, int value) { font.m_LogFont.lfPitchAndFamily = static_cast<BYTE>(value); }},
    FontField{L"<bShadow>", L"UI_Ctrl_FontShade_%d", FieldType::Unsigned,
              [](const CVQFont& font) { return int{font.m_bShadow}; },
              [](CVQFont& font, int value) { font.m_bShadow = value != 0; }},
};

/// In which order a legacy line is searched for the tags: the face after the numbers of the record.
inline constexpr std::array<std::size_t, kFontFields.size()> kLegacySearch{0, 1, 2, 3, 5, 6, 4, 7};

/// Height in pixels and point height by the nominal size and the screen's resolution.
void setHeights(CVQFont& font);

/// As `CVQFont::WriteToFile`. False when a value was not taken; a face name of several lines, which no file can hold,
/// is left out.
bool writeFont(const CVQFont& font, LPCTSTR section, LPCTSTR file);

/// As `CVQFont::ReadFromFileLegacy`, of lines that others read before and after.
void readLegacyFont(TextLines& lines, CVQFont& font);

} // namespace vq
