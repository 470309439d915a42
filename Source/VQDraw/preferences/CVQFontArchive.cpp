// SPDX-License-Identifier: MIT
// Fonts in archives.
#include "VQDraw/VQFont.h"

#include "VQDraw/preferences/FontFields.h"
#include "vqCommonBase/VQArchive.h"

#include <array>
#include <bit>
#include <cstddef>

static_assert(std::endian::native == std::endian::little, "stored with the low byte first, as it lies in memory");

namespace {

/// A record from its bytes. What stands in the place of a bool may be any byte.
template <typename Font>
Font readRecord(CVQArchive& archive)
{
    static_assert(sizeof(bool) == 1);
    std::array<BYTE, sizeof(Font)> bytes;
    archive.Read(bytes.data(), sizeof(Font));
    BYTE& shadow = bytes[offsetof(Font, m_bShadow)];
    shadow = shadow != 0;
    return std::bit_cast<Font>(bytes);
}

CString faceOf(const LOGFONTA& font)
{
    const auto* const end = std::ranges::find(font.lfFaceName, '\0');
    return {font.lfFaceName, static_cast<int>(end - font.lfFaceName)};
}

/// All but the height.
void take(LOGFONTW& font, const LOGFONTA& narrow)
{
    font.lfWidth = narrow.lfWidth;
    font.lfEscapement = narrow.lfEscapement;
    font.lfOrientation = narrow.lfOrientation;
    font.lfWeight = narrow.lfWeight;
    font.lfItalic = narrow.lfItalic;
    font.lfUnderline = narrow.lfUnderline;
    font.lfStrikeOut = narrow.lfStrikeOut;
    font.lfCharSet = narrow.lfCharSet;
    font.lfOutPrecision = narrow.lfOutPrecision;
    font.lfClipPrecision = narrow.lfClipPrecision;
    font.lfQuality = narrow.lfQuality;
    font.lfPitchAndFamily = narrow.lfPitchAndFamily;
    vq::platform::setFaceName(font, faceOf(narrow).GetString());
}

} // namespace

void CVQFont::Read(CVQArchive* archive, bool wide)
{
    if (!archive)
        return;
    if (wide) {
        *this = readRecord<CVQFont>(*archive);
        m_LogFont.lfFaceName[LF_FACESIZE - 1] = 0;
        return;
    }
    const auto narrow = readRecord<CVQFontAForRead>(*archive);
    take(m_LogFont, narrow.m_LogFont);
    m_uiColor = narrow.m_uiColor;
    m_bShadow = narrow.m_bShadow;
    m_iNominalSize = narrow.m_iNominalSize;
    vq::setHeights(*this);
}

void CVQFont::Write(CVQArchive* archive)
{
    if (!archive)
        return;
    auto bytes = std::bit_cast<std::array<BYTE, sizeof(CVQFont)>>(*this);
    std::fill(bytes.begin() + offsetof(CVQFont, m_bShadow) + 1, bytes.begin() + offsetof(CVQFont, m_iNominalSize),
              BYTE{0}); // padding, which may hold anything
    archive->Write(bytes.data(), sizeof bytes);
}
