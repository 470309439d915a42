// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Colours and alphas of controls that start-up sets.

#include "VQDraw/VQDrawProperty.h"
#include "VQDraw/preferences/TableRows.h"

#include <variant>

namespace vq {

/// Red, green and blue of a scene colour.
struct OfScene
{
    eDrawPropertyColor id;
};

/// The background of controls less a colour.
struct Darker
{
    COLORREF step;
};

/// The background of controls and a colour.
struct Lighter
{
    COLORREF step;
};

/// Without a value: start-up leaves the colour as it is.
using ControlInitial = std::variant<std::monostate, CVQColor, OfScene, Darker, Lighter>;
inline constexpr ControlInitial kNoControlDefault;

struct ControlColour
{
    eControlDrawPropertyColor id;
    const wchar_t* name;
    ControlInitial initial;
};

struct ControlAlpha
{
    eControlDrawPropertyAlpha id;
    const wchar_t* name;
    unsigned char initial;
};

// The name cannot differ from the enumerator.
// clang-format off
#define ROW(id, initial) ControlColour{id, L"" #id, initial}
inline constexpr std::array kControlColours{
    ROW(DPC_UI_CTRL_ENABLE,          CVQColor(255, 255, 255)),
    ROW(DPC_UI_CTRL_DISABLE,         CVQColor(179, 179, 179)),
    ROW(DPC_UI_CTRL_BG,              CVQColor(76, 76, 75)),
    ROW(DPC_UI_CTRL_TEXT,            CVQColor(255, 255, 255)),
    ROW(DPC_UI_UICONTROL_CLEAR,      CVQColor(84, 84, 84)),
    ROW(DPC_UI_EDIT_BG,              Darker{0x101010}),
    ROW(DPC_UI_BUTTON_BG,            Lighter{0x202020}),
    ROW(DPC_UI_SCROLL_TH_BG,         Lighter{0x202020}),
    ROW(DPC_WIDGET_TEXT,             CVQColor(255, 255, 255)),
    ROW(DPC_WG_DIM_TEXT,             OfScene{DPC_2D_SKETCH_DIMENSION}),
    ROW(DPC_WG_PF_TEXT,              CVQColor(0, 0, 128)),
    ROW(DPC_UI_CTRL_SELECT,          CVQColor(240, 180, 0)),
    ROW(DPC_UI_CTRL_REQUIRED_SELECT, CVQColor(192, 0, 0)),
    ROW(DPC_COLORBAR_TEXT,           kNoControlDefault),
    ROW(DPC_MEASUREMENT_TEXT,        kNoControlDefault),
};
#undef ROW

#define ROW(id, initial) ControlAlpha{id, L"" #id, initial}
inline constexpr std::array kControlAlphas{
    ROW(DPC_UI_CTRL_ALPHA, 180),
    ROW(DPC_UI_MGR_ALPHA,  218),
};
#undef ROW
// clang-format on
static_assert(kControlColours.size() == DPC_UI_COLOR_END && everyRowStandsAtItsId(kControlColours));
static_assert(kControlAlphas.size() == DPC_UI_ALPHA_END && everyRowStandsAtItsId(kControlAlphas));
inline constexpr auto kControlColourNames = namesOf(kControlColours, L"DPC_UI_COLOR_END");
inline constexpr auto kControlAlphaNames = namesOf(kControlAlphas, L"DPC_UI_ALPHA_END");

inline constexpr unsigned char kFloatDialogAlpha = 255;

} // namespace vq
