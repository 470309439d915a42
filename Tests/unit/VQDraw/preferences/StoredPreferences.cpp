// SPDX-License-Identifier: MIT
#include "StoredPreferences.h"

#include <cstring>

namespace vq::test {

namespace {

using Store = CVQDrawProperty;

const StoredPreferences atStart = StoredPreferences::now();

template <typename Table, typename Copy>
void take(const Table& table, Copy& copy)
{
    static_assert(sizeof table == sizeof copy);
    std::copy(std::begin(table), std::end(table), copy.begin());
}

template <typename Copy, typename Table>
void put(const Copy& copy, Table& table)
{
    std::copy(copy.begin(), copy.end(), std::begin(table));
}

} // namespace

bool isSame(const CVQFont& a, const CVQFont& b)
{
    return std::memcmp(&a.m_LogFont, &b.m_LogFont, sizeof a.m_LogFont) == 0 && a.m_iPointHeight == b.m_iPointHeight &&
           a.m_uiColor == b.m_uiColor && a.m_bShadow == b.m_bShadow && a.m_iNominalSize == b.m_iNominalSize;
}

StoredPreferences StoredPreferences::now()
{
    StoredPreferences stored;
    for (std::size_t i = 0; i < stored.colours.size(); ++i)
        take(Store::m_fColor[i], stored.colours[i]);
    take(Store::m_fSize, stored.sizes);
    take(Store::m_ucUICtrlAlpha, stored.controlAlphas);
    stored.floatDialogAlpha = Store::m_ucFloatDialogAlpha;
    stored.paletteCursor = Store::m_iMaterialCount;
    for (INT_PTR i = 0; i < Store::m_arrPalletMaterial.GetSize(); ++i)
        stored.palette.push_back(Store::m_arrPalletMaterial[i]);
    take(Store::m_UICtrlColor, stored.controlColours);
    take(Store::m_Font, stored.fonts);
    take(Store::m_Material, stored.materials);
    take(Store::m_HistogramColor, stored.histogramColours);
    take(Store::m_ReportColor, stored.reportColours);
    return stored;
}

void StoredPreferences::restore() const
{
    for (std::size_t i = 0; i < colours.size(); ++i)
        put(colours[i], Store::m_fColor[i]);
    put(sizes, Store::m_fSize);
    put(controlAlphas, Store::m_ucUICtrlAlpha);
    Store::m_ucFloatDialogAlpha = floatDialogAlpha;
    Store::m_iMaterialCount = paletteCursor;
    Store::m_arrPalletMaterial.RemoveAll();
    for (const CVQMaterial& material : palette)
        Store::m_arrPalletMaterial.Add(material);
    put(controlColours, Store::m_UICtrlColor);
    put(fonts, Store::m_Font);
    put(materials, Store::m_Material);
    put(histogramColours, Store::m_HistogramColor);
    put(reportColours, Store::m_ReportColor);
}

bool StoredPreferences::operator==(const StoredPreferences& other) const
{
    return colours == other.colours && sizes == other.sizes && controlAlphas == other.controlAlphas &&
           floatDialogAlpha == other.floatDialogAlpha && paletteCursor == other.paletteCursor &&
           palette == other.palette && controlColours == other.controlColours &&
           std::ranges::equal(fonts, other.fonts, isSame) && materials == other.materials &&
           histogramColours == other.histogramColours && reportColours == other.reportColours;
}

void scribble()
{
    constexpr CVQColor kColour(1, 2, 3, 4);
    CVQMaterial material;
    std::ranges::fill(material.m_fAmbient, 0.125f);
    std::ranges::fill(material.m_fDiffuse, 0.125f);
    std::ranges::fill(material.m_fSpecular, 0.125f);
    material.m_fShininess = 1;
    material.m_fAlpha = 0.125f;
    CVQFont font;
    std::memset(&font.m_LogFont, 0x55, sizeof font.m_LogFont);
    font.m_iPointHeight = 99;
    font.m_uiColor = 0x123456;
    font.m_bShadow = true;
    font.m_iNominalSize = 99;

    for (auto& row : Store::m_fColor)
        std::ranges::fill(row, 0.125f);
    std::ranges::fill(Store::m_fSize, 0.125f);
    std::ranges::fill(Store::m_ucUICtrlAlpha, BYTE{1});
    Store::m_ucFloatDialogAlpha = 1;
    Store::m_iMaterialCount = 7;
    Store::m_arrPalletMaterial.Add(material);
    std::ranges::fill(Store::m_UICtrlColor, kColour);
    std::ranges::fill(Store::m_Font, font);
    std::ranges::fill(Store::m_Material, material);
    std::ranges::fill(Store::m_HistogramColor, kColour);
    std::ranges::fill(Store::m_ReportColor, kColour);
}

void Preferences::SetUp()
{
    preferencesAtStart().restore();
}

const StoredPreferences& preferencesAtStart()
{
    return atStart;
}

} // namespace vq::test
