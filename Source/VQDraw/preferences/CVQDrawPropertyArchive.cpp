// SPDX-License-Identifier: MIT
// Display preferences in document archives. Every table is one block of rows as they lie in memory.
#include "VQDraw/VQDrawProperty.h"

#include "VQDraw/preferences/SelectionColour.h"
#include "vqCommonBase/VQArchive.h"
#include "vqMessage/VQMessage.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <span>
#include <type_traits>

static_assert(std::endian::native == std::endian::little, "stored with the low byte first, as it lies in memory");

namespace {

using Store = CVQDrawProperty;

static_assert(sizeof Store::m_fColor == 156 * 16 && sizeof Store::m_fSize == 50 * 4);
static_assert(sizeof Store::m_UICtrlColor == 15 * 4 && sizeof Store::m_HistogramColor == 4 * 4);
static_assert(sizeof Store::m_ReportColor == 4 * 4 && std::size(Store::m_Font) == 8);

template <typename Row, std::size_t rows>
constexpr std::uint32_t countOf(const Row (&)[rows])
{
    return rows;
}

std::uint32_t readCount(CVQArchive& archive)
{
    std::uint32_t count = 0;
    archive.Read(&count, sizeof count);
    return count;
}

void writeCount(CVQArchive& archive, std::uint32_t count)
{
    archive.Write(&count, sizeof count);
}

template <typename Row, std::size_t rows>
void writeTable(CVQArchive& archive, const Row (&table)[rows])
{
    static_assert(std::is_trivially_copyable_v<Row>);
    writeCount(archive, countOf(table));
    archive.Write(table, sizeof table);
}

/// Rows beyond the stored count stay; so do all when the archive is too short.
template <typename Row, std::size_t rows>
void readTable(CVQArchive& archive, Row (&table)[rows])
{
    static_assert(std::is_trivially_copyable_v<Row>);
    const std::uint32_t count = std::min(readCount(archive), countOf(table));
    std::array<BYTE, sizeof table> stored;
    const std::size_t bytes = count * sizeof(Row);
    archive.Read(stored.data(), static_cast<UINT>(bytes));
    std::memcpy(table, stored.data(), bytes);
}

/// What stands behind the controls' colours, as older versions had it in memory and stored it: alphas of controls,
/// managers and floating dialogs, an unused byte, the cursor of the palette. A second block repeats the inner bytes.
struct ControlAlphas
{
    BYTE control = Store::m_ucUICtrlAlpha[DPC_UI_CTRL_ALPHA];
    BYTE manager = Store::m_ucUICtrlAlpha[DPC_UI_MGR_ALPHA];
    BYTE floatDialog = Store::m_ucFloatDialogAlpha;
    BYTE unused = 0;
    std::int32_t paletteCursor = Store::m_iMaterialCount;
};
static_assert(sizeof(ControlAlphas) == 8 && sizeof(Store::m_iMaterialCount) == 4);

using AlphaBytes = std::array<BYTE, sizeof(ControlAlphas)>;
constexpr UINT kAlphaUnit = 4;         // bytes for one of the count
constexpr UINT kAlphaUnits = 2;        // of the whole block
constexpr std::size_t kRepeatedAt = 2; // from the floating dialogs on
static_assert(kAlphaUnit * kAlphaUnits == sizeof(AlphaBytes));

/// Replaces bytes of what the tables hold now by stored ones.
void readAlphas(CVQArchive& archive, std::size_t first, UINT count)
{
    auto bytes = std::bit_cast<AlphaBytes>(ControlAlphas());
    archive.Read(bytes.data() + first, count);
    const auto alphas = std::bit_cast<ControlAlphas>(bytes);
    Store::m_ucUICtrlAlpha[DPC_UI_CTRL_ALPHA] = alphas.control;
    Store::m_ucUICtrlAlpha[DPC_UI_MGR_ALPHA] = alphas.manager;
    Store::m_ucFloatDialogAlpha = alphas.floatDialog;
    Store::m_iMaterialCount = alphas.paletteCursor;
}

} // namespace

void CVQDrawProperty::Write(CVQArchive* archive)
{
    if (!archive)
        return;
    writeTable(*archive, m_fColor);
    writeTable(*archive, m_fSize);
}

void CVQDrawProperty::Read(CVQArchive* archive)
{
    if (!archive)
        return;
    const vq::SelectionColourHandOver atTheEnd;
    readTable(*archive, m_fColor);
    readTable(*archive, m_fSize);
}

void CVQDrawProperty::WriteUIColor(CVQArchive* archive)
{
    if (!archive)
        return;
    writeTable(*archive, m_UICtrlColor);
    writeCount(*archive, countOf(m_UICtrlColor)); // not that of the alphas: documents hold it so
    const auto bytes = std::bit_cast<AlphaBytes>(ControlAlphas());
    archive->Write(bytes.data(), sizeof bytes);
    archive->Write(bytes.data() + kRepeatedAt, kAlphaUnit);
}

void CVQDrawProperty::ReadUIColor(CVQArchive* archive)
{
    if (!archive)
        return;
    readTable(*archive, m_UICtrlColor);
    readAlphas(*archive, 0, std::min(readCount(*archive), kAlphaUnits) * kAlphaUnit);
    readAlphas(*archive, kRepeatedAt, kAlphaUnit);
    CVQMessage::Post(1, CVQMessage::m_VQMsg[2], 0, 0);
}

void CVQDrawProperty::WriteDPMaterial(CVQArchive* archive)
{
    for (const CVQMaterial& material : m_Material)
        material.WriteFile(archive);
}

void CVQDrawProperty::ReadDPMaterial(CVQArchive* archive)
{
    for (CVQMaterial& material : m_Material)
        material.ReadFile(archive);
}

void CVQDrawProperty::WriteFont(CVQArchive* archive)
{
    if (!archive)
        return;
    writeCount(*archive, countOf(m_Font));
    for (CVQFont& font : m_Font)
        font.Write(archive);
}

void CVQDrawProperty::ReadFont(CVQArchive* archive)
{
    if (!archive)
        return;
    const std::uint32_t count = readCount(*archive);
    CVQFont surplus;
    for (std::uint32_t i = 0; i < count; ++i)
        (i < countOf(m_Font) ? m_Font[i] : surplus).Read(archive, true);
}

void CVQDrawProperty::WriteHistogramColor(CVQArchive* archive)
{
    if (archive)
        writeTable(*archive, m_HistogramColor);
}

void CVQDrawProperty::ReadHistogramColor(CVQArchive* archive)
{
    if (archive)
        readTable(*archive, m_HistogramColor);
}

void CVQDrawProperty::WriteReportColor(CVQArchive* archive)
{
    if (archive)
        writeTable(*archive, m_ReportColor);
}

void CVQDrawProperty::ReadReportColor(CVQArchive* archive)
{
    if (archive)
        readTable(*archive, m_ReportColor);
}
