// SPDX-License-Identifier: MIT
// Display preferences from files of the legacy layout.
#include "VQDraw/VQDrawProperty.h"

#include "VQDraw/preferences/FontFields.h"
#include "VQDraw/preferences/LegacyBlocks.h"
#include "VQDraw/preferences/SceneColours.h"
#include "VQDraw/preferences/SelectionColour.h"
#include "VQDraw/preferences/TableAccess.h"
#include "VQDraw/preferences/TextNumbers.h"
#include "vqCommonBase/VQFileAPI.h"
#include "vqCommonBase/VQShellAPI.h"

#include <algorithm>
#include <array>
#include <memory>

namespace {

using Store = CVQDrawProperty;
using enum vq::LegacyNumber;

// Slots of a block of numbers, and of a material.
enum Slot : std::size_t { kRed, kGreen, kBlue, kAlpha, kX, kY, kZ, kW, kSize = 0 };
enum MaterialSlot : std::size_t { kAmbient, kDiffuse = 3, kSpecular = 6, kMaterialAlpha = 9, kShininess };
static_assert(kShininess + 1 == vq::kLegacySlots);

// Size and alpha were one number of older versions' reader, which each block found as -1.
constexpr double kNoSize = -1;
constexpr double kNoMaterialAlpha = -1;

constexpr std::array kSceneProperties{
    vq::LegacyProperty{L"<Red>", Integer, kRed},   vq::LegacyProperty{L"<Green>", Integer, kGreen},
    vq::LegacyProperty{L"<Blue>", Integer, kBlue}, vq::LegacyProperty{L"<Alpha>", Integer, kAlpha},
    vq::LegacyProperty{L"<X>", Real, kX},          vq::LegacyProperty{L"<Y>", Real, kY},
    vq::LegacyProperty{L"<Z>", Real, kZ},          vq::LegacyProperty{L"<W>", Real, kW},
};
constexpr auto kColourProperties = std::span(kSceneProperties).first<3>();
constexpr auto kAlphaProperties = std::span(kSceneProperties).subspan<kAlpha, 1>();
constexpr std::array kSizeProperties{vq::LegacyProperty{L"<Size>", Real, kSize}};
constexpr std::array kMaterialProperties{vq::LegacyProperty{L"<Shiness>", Real, kShininess}, // so spelt
                                         vq::LegacyProperty{L"<Alpha>", Real, kMaterialAlpha}};

constexpr std::array<vq::LegacyProperty, 3> colourOfMaterial(std::size_t slot)
{
    return {vq::LegacyProperty{L"<Red>", Real, slot}, vq::LegacyProperty{L"<Green>", Real, slot + 1},
            vq::LegacyProperty{L"<Blue>", Real, slot + 2}};
}
constexpr auto kAmbientProperties = colourOfMaterial(kAmbient);
constexpr auto kDiffuseProperties = colourOfMaterial(kDiffuse);
constexpr auto kSpecularProperties = colourOfMaterial(kSpecular);
constexpr std::array kMaterialParts{vq::LegacyLayout{L"<Ambient>", kAmbientProperties, {}},
                                    vq::LegacyLayout{L"<Diffuse>", kDiffuseProperties, {}},
                                    vq::LegacyLayout{L"<Specular>", kSpecularProperties, {}}};

float unitOf(double value)
{
    return static_cast<float>(value) / 255.0f;
}

std::array<float, 3> rgbOf(const vq::LegacyValues& values)
{
    return {unitOf(values[kRed].value_or(0)), unitOf(values[kGreen].value_or(0)), unitOf(values[kBlue].value_or(0))};
}

void storeScene(int index, const vq::LegacyValues& values)
{
    float* const row = Store::GetColor(eDrawPropertyColor(index));
    if (!row)
        return;
    if (vq::kSceneColours[static_cast<std::size_t>(index)].initial.meaning == vq::Meaning::Position)
        std::transform(&values[kX], &values[kW] + 1, row, [](const auto& value) { return float(value.value_or(0)); });
    else
        std::ranges::copy(rgbOf(values), row);
}

void storeSize(int index, const vq::LegacyValues& values)
{
    vq::setAt(Store::m_fSize, index, static_cast<float>(values[kSize].value_or(kNoSize)));
}

template <std::size_t size>
void storeColour(CVQColor (&table)[size], int index, const vq::LegacyValues& values)
{
    CVQColor colour;
    colour.Set3fv(rgbOf(values).data());
    vq::setAt(table, index, colour);
}

void storeControlAlpha(int index, const vq::LegacyValues& values)
{
    vq::setAt(Store::m_ucUICtrlAlpha, index, static_cast<BYTE>(static_cast<int>(values[kAlpha].value_or(0))));
}

void storeMaterialColour(float (&colour)[4], const vq::LegacyValues& values, std::size_t slot, float alpha)
{
    for (std::size_t i = 0; i < 3; ++i)
        if (values[slot + i])
            colour[i] = unitOf(*values[slot + i]);
    colour[3] = alpha;
}

/// What the block does not mention stays, but for the alpha.
void storeMaterial(int index, const vq::LegacyValues& values)
{
    CVQMaterial* const material = vq::rowAt(Store::m_Material, index);
    if (!material)
        return;
    material->m_fShininess = static_cast<float>(values[kShininess].value_or(material->m_fShininess));
    material->m_fAlpha = static_cast<float>(values[kMaterialAlpha].value_or(kNoMaterialAlpha));
    storeMaterialColour(material->m_fAmbient, values, kAmbient, material->m_fAlpha);
    storeMaterialColour(material->m_fDiffuse, values, kDiffuse, material->m_fAlpha);
    storeMaterialColour(material->m_fSpecular, values, kSpecular, material->m_fAlpha);
}

struct Block
{
    vq::LegacyLayout layout;
    int (*indexOf)(CString name);
    void (*store)(int index, const vq::LegacyValues& values); ///< of any index, -1 for an unknown name
};

constexpr std::array kBlocks{
    Block{{L"<DPC>", kSceneProperties, {}}, Store::GetDPCEnumStringToEnumNo, storeScene},
    Block{{L"<DPS>", kSizeProperties, {}}, Store::GetDPSEnumStringToEnumNo, storeSize},
    Block{{L"<UIDPC>", kColourProperties, {}},
          Store::GetUICtrlDPCEnumStringToEnumNo,
          [](int index, const vq::LegacyValues& values) { storeColour(Store::m_UICtrlColor, index, values); }},
    Block{{L"<UIAlpha>", kAlphaProperties, {}}, Store::GetUICtrlAlphaEnumStringToEnumNo, storeControlAlpha},
    Block{{L"<Material>", kMaterialProperties, kMaterialParts}, Store::GetDPMEnumStringToEnumNo, storeMaterial},
    Block{{L"<ReportDPC>", kColourProperties, {}},
          Store::GetReportDPCEnumStringToEnumNo,
          [](int index, const vq::LegacyValues& values) { storeColour(Store::m_ReportColor, index, values); }},
};

void readBlock(vq::TextLines& lines, const Block& block)
{
    CString name;
    vq::LegacyValues values{};
    if (vq::readLegacyLine(lines, name) && vq::readLegacyBlock(lines, block.layout, values))
        block.store(block.indexOf(name), values);
}

void readFloatDialog(vq::TextLines& lines)
{
    constexpr int kNone = -1;
    CString line;
    if (!vq::readLegacyLine(lines, line))
        return;
    const int alpha = vq::integerOf(line);
    if (alpha != kNone)
        Store::m_ucFloatDialogAlpha = static_cast<BYTE>(alpha);
}

/// Takes effect line by line, in contrast to the blocks.
void readFont(vq::TextLines& lines)
{
    CString name;
    if (!vq::readLegacyLine(lines, name))
        return;
    CVQFont unknown;
    CVQFont* const font = vq::rowAt(Store::m_Font, Store::GetDPFEnumStringToEnumNo(name));
    vq::readLegacyFont(lines, font ? *font : unknown);
}

void readOpened(vq::TextLines& lines, const CString& opening)
{
    const auto* const block =
        std::ranges::find_if(kBlocks, [&](const Block& row) { return vq::opens(row.layout, opening); });
    if (block != kBlocks.end())
        readBlock(lines, *block);
    else if (opening.CompareNoCase(L"<FloatDialog>") == 0)
        readFloatDialog(lines);
    else if (opening.CompareNoCase(L"<Font>") == 0)
        readFont(lines);
}

} // namespace

int CVQDrawProperty::ReadPreferenceFromFileLegacy(CString path)
{
    if (!CVQShellAPI::IsPathExist(path))
        return 0;
    const std::unique_ptr<std::FILE, void (*)(std::FILE*)> file(CVQFileAPI::Instance()->Open(path, L"rb", _SH_DENYNO),
                                                                CVQFileAPI::Close);
    if (!file)
        return 0;
    const vq::SelectionColourHandOver atTheEnd;
    vq::TextLines lines(file.get(), vq::kLegacyLineLimit);
    for (CString line; vq::readLegacyLine(lines, line);)
        readOpened(lines, line);
    return 1;
}
