// SPDX-License-Identifier: MIT
// Fonts in the legacy layout of preference files.
#include "VQDraw/preferences/FontFields.h"
#include "VQDraw/preferences/LegacyLines.h"
#include "VQDraw/preferences/TextNumbers.h"

namespace {

void readLine(CVQFont& font, const CString& line)
{
    const auto* const place = std::ranges::find_if(
        vq::kLegacySearch, [&](std::size_t field) { return vq::hasTag(line, vq::kFontFields[field].key); });
    if (place == vq::kLegacySearch.end())
        return;
    const vq::FontField& field = vq::kFontFields[*place];
    const CString value = vq::valueBehind(field.key, line);
    if (field.type == vq::FieldType::Face)
        vq::platform::setFaceName(font.m_LogFont, value.GetString());
    else
        field.setNumber(font, vq::integerOf(value));
}

} // namespace

void vq::readLegacyFont(TextLines& lines, CVQFont& font)
{
    CString line;
    while (readLegacyLine(lines, line)) {
        if (line.CompareNoCase(L"</Font>") == 0)
            return; // deliberate: the heights stay
        readLine(font, line);
    }
    setHeights(font);
}

void CVQFont::ReadFromFileLegacy(std::FILE* file)
{
    if (!file)
        return;
    vq::TextLines lines(file, vq::kLegacyLineLimit);
    vq::readLegacyFont(lines, *this);
}
