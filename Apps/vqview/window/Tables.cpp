// SPDX-License-Identifier: MIT
#include "vqview/window/Tables.h"

#include "vqview/text/Text.h"
#include "vqview/window/Colours.h"

#include <VQDraw/VQDraw.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vqview {

namespace {

using Store = CVQDrawProperty;

constexpr Value kNoValue{};
constexpr float kLargestByte = 255;
constexpr float kLargestShininess = 128; // of OpenGL

template <CString (*Name)(int)>
std::string nameOf(int row)
{
    return utf8Of(std::wstring_view(Name(row)));
}

template <Kind Of>
Shape always(int)
{
    return {Of};
}

unsigned char byteOf(float number)
{
    return static_cast<unsigned char>(std::lround(std::clamp(number, 0.0f, kLargestByte)));
}

// Scene colours

bool isDirection(int row)
{
    return row == DPC_LIGHT0POS || row == DPC_LIGHT1POS || row == DPC_LIGHT2POS || row == DPC_LIGHT3POS;
}

Shape sceneShape(int row)
{
    if (isDirection(row))
        return {Kind::Direction};
    if (row == DPC_TEXTUREMAT_SHININESS)
        return {Kind::Number, kLargestShininess, 1};
    return {Kind::ColourAndAlpha};
}

Value sceneColour(int row)
{
    const float* stored = Store::GetColor(static_cast<eDrawPropertyColor>(row));
    return stored ? Value{stored[0], stored[1], stored[2], stored[3]} : kNoValue;
}

void setSceneColour(int row, const Value& value)
{
    Value stored = sceneShape(row).kind == Kind::ColourAndAlpha ? clamped(value) : value;
    Store::SetColorARGB(static_cast<eDrawPropertyColor>(row), stored.data());
}

// Sizes

Value size(int row)
{
    return {Store::GetSize(static_cast<eDrawPropertySize>(row))};
}

void setSize(int row, const Value& value)
{
    Store::SetSize(static_cast<eDrawPropertySize>(row), std::max(value[0], 0.0f));
}

// Controls

Value controlColour(int row)
{
    return valueOf(Store::GetVQColor(static_cast<eControlDrawPropertyColor>(row)));
}

void setControlColour(int row, const Value& value)
{
    Store::SetVQColor(static_cast<eControlDrawPropertyColor>(row), opaqueColourOf(value));
    if (row == DPC_UI_CTRL_BG)
        Store::SetUIColorRelatives();
}

/// The two of the table and behind them the one of floating dialogs, which has no table.
constexpr int kAlphas = DPC_UI_ALPHA_END + 1;

unsigned char* alphaAt(int row)
{
    if (row < 0 || row >= kAlphas)
        return nullptr;
    return row == DPC_UI_ALPHA_END ? &Store::m_ucFloatDialogAlpha : &Store::m_ucUICtrlAlpha[row];
}

std::string alphaName(int row)
{
    return row == DPC_UI_ALPHA_END ? "FloatDialog" : nameOf<&Store::GetUICtrlAlphaEnumNoToEnumString>(row);
}

Shape alphaShape(int)
{
    return {Kind::Number, kLargestByte, 0};
}

Value alpha(int row)
{
    const unsigned char* stored = alphaAt(row);
    return stored ? Value{static_cast<float>(*stored)} : kNoValue;
}

void setAlpha(int row, const Value& value)
{
    if (unsigned char* stored = alphaAt(row))
        *stored = byteOf(value[0]);
}

// Reports

Value reportColour(int row)
{
    return valueOf(Store::GetReportColor(static_cast<eDrawPropertyReportColor>(row)));
}

void setReportColour(int row, const Value& value)
{
    Store::SetReportColor(static_cast<eDrawPropertyReportColor>(row), opaqueColourOf(value));
}

/// Of these four the library knows no names.
constexpr std::array<const char*, DPC_HIST_COLOR_END> kHistogramNames{"DPC_HIST_INTOLERANCE", "DPC_HIST_OUTTOLERANCE",
                                                                      "DPC_HIST_AVERAGE", "DPC_HIST_BACKGROUND"};

bool isHistogramRow(int row)
{
    return row >= 0 && row < DPC_HIST_COLOR_END;
}

std::string histogramName(int row)
{
    return isHistogramRow(row) ? kHistogramNames[static_cast<std::size_t>(row)] : std::string();
}

Value histogramColour(int row)
{
    return isHistogramRow(row) ? valueOf(Store::m_HistogramColor[row]) : kNoValue;
}

void setHistogramColour(int row, const Value& value)
{
    if (isHistogramRow(row))
        Store::m_HistogramColor[row] = opaqueColourOf(value);
}

constexpr std::array<Table, static_cast<std::size_t>(TableOf::End)> kTables{{
    {"Colours and lights", DPC_END, nameOf<&Store::GetDPCEnumNoToEnumString>, sceneShape, sceneColour, setSceneColour},
    {"Pixels, degrees and ratios", DPS_END, nameOf<&Store::GetDPSEnumNoToEnumString>, always<Kind::Number>, size,
     setSize},
    {"Colours", DPC_UI_COLOR_END, nameOf<&Store::GetUICtrlDPCEnumNoToEnumString>, always<Kind::Colour>, controlColour,
     setControlColour},
    {"How opaque", kAlphas, alphaName, alphaShape, alpha, setAlpha},
    {"Tables", DPC_REPORT_COLOR_END, nameOf<&Store::GetReportDPCEnumNoToEnumString>, always<Kind::Colour>, reportColour,
     setReportColour},
    {"Histogram", DPC_HIST_COLOR_END, histogramName, always<Kind::Colour>, histogramColour, setHistogramColour},
}};

} // namespace

const Table& table(TableOf which)
{
    return kTables[static_cast<std::size_t>(which)];
}

} // namespace vqview
