// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Fonts that start-up sets. They come into being in the order of the table.

#include "VQDraw/VQDrawProperty.h"
#include "VQDraw/preferences/TableRows.h"

#include <optional>
#include <variant>

namespace vq {

/// How a font's height in pixels follows from the screen's dots per inch.
enum class HeightRule {
    Scaled,    ///< the nominal size, as large on every screen
    Shrinking, ///< 15 * 72 / dots per inch, deliberately: 11 at 96, 8 at 144
};

struct SegoeUi
{
    HeightRule height;
    LONG weight;
    COLORREF colour;
    int nominalSize;
};

/// A copy of the controls' font.
struct LikeControls
{
    double scale; ///< of height and nominal size
    std::optional<COLORREF> colour;
    bool shadow;
};

/// As `CVQDrawProperty::InitFontInfo` makes it.
struct LikeSystem
{
};

struct PreferredFont
{
    eDrawPropertyFont id;
    const wchar_t* name;
    std::variant<SegoeUi, LikeControls, LikeSystem> initial;
};

// clang-format off
#define ROW(id, ...) PreferredFont{id, L"" #id, __VA_ARGS__} // the name cannot differ from the enumerator
inline constexpr std::array kFonts{
    ROW(DPF_UI_CTRL_FONT,     SegoeUi{HeightRule::Scaled,    FW_NORMAL, RGB(255, 255, 255), -11}),
    ROW(DPF_WIDGET_FONT,      SegoeUi{HeightRule::Scaled,    FW_BOLD,   RGB(255, 255, 255), -16}),
    ROW(DPF_WG_DIM_FONT,      SegoeUi{HeightRule::Shrinking, FW_NORMAL, RGB(0, 0, 0),       -11}),
    ROW(DPF_WG_PF_FONT,       SegoeUi{HeightRule::Shrinking, FW_BOLD,   RGB(0, 0, 128),     -13}),
    ROW(DPF_WG_ANNOT_FONT,    LikeControls{1.0, std::nullopt, true}),
    ROW(DPF_GDT_ANNOT_FONT,   LikeControls{1.5, RGB(0, 0, 0), false}),
    ROW(DPF_COLORBAR_FONT,    LikeSystem()),
    ROW(DPF_MEASUREMENT_FONT, LikeSystem()),
};
#undef ROW
// clang-format on
static_assert(kFonts.size() == DPF_END && everyRowStandsAtItsId(kFonts));
inline constexpr auto kFontNames = namesOf(kFonts, L"DPF_END");

/// Makes all of them for the screen's resolution.
void setPreferredFonts();

} // namespace vq
