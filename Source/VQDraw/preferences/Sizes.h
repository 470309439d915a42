// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Widths, point sizes and lengths that start-up sets, in pixels where their name does not say otherwise.

#include "VQDraw/VQDrawProperty.h"
#include "VQDraw/preferences/TableRows.h"

namespace vq {

struct PreferredSize
{
    eDrawPropertySize id;
    const wchar_t* name;
    float initial;
};

// clang-format off
#define ROW(id, initial) PreferredSize{id, L"" #id, initial} // the name cannot differ from the enumerator
inline constexpr std::array kSizes{
    ROW(DPS_FACEEDGE,                                 1),
    ROW(DPS_SHELLBOXLINE,                             1),
    ROW(DPS_VERTEX,                                   2),
    ROW(DPS_PICKEDVERTEX,                             4),
    ROW(DPS_BODYEDGE,                                 1),
    ROW(DPS_BOUNDARY_LOOP,                            2),
    ROW(DPS_REFGEOM_POINT,                            5),
    ROW(DPS_REFGEOM_LINE,                             1),
    ROW(DPS_SECTION_LINE,                             2),
    ROW(DPS_CREASE_ANGLE,                             45),
    ROW(DPS_SELECTED,                                 2),
    ROW(DPS_2D_SKETCH_POINT,                          6),
    ROW(DPS_2D_SKETCH_IMPORTED_ENTITY_LINE,           1.5f),
    ROW(DPS_2D_SKETCH_ENTITY_LINE,                    1.5f),
    ROW(DPS_2D_SKETCH_CONSTRAINT_LINE,                1),
    ROW(DPS_2D_SKETCH_SELECTED_IMPORTED_ENTITY_POINT, 8),
    ROW(DPS_2D_SKETCH_SELECTED_IMPORTED_ENTITY_LINE,  2),
    ROW(DPS_2D_SKETCH_AUX_LINE,                       0.5f),
    ROW(DPS_2D_SKETCH_BOUNDARY_POINT,                 6),
    ROW(DPS_2D_SKETCH_AUX_TANGENT_LINE,               1),
    ROW(DPS_2D_SKETCH_DIM_ASSIST_OVER_LENGTH,         10),
    ROW(DPS_2D_SKETCH_DIM_ARROW_LENGTH,               10),
    ROW(DPS_2D_SKETCH_DIM_ARROW_HL_RATIO,             0.5f),
    ROW(DPS_2D_SKETCH_SPL_TAN_ARROW_LENGTH,           10),
    ROW(DPS_2D_SKETCH_SPL_TAN_ARROW_HL_RATIO,         1),
    ROW(DPS_2D_SKETCH_SECTION_POINT,                  2.5f),
    ROW(DPS_3D_SKETCH_CURVE_BENDING_WINDOW,           0),
    ROW(DPS_CURVE,                                    2),
    ROW(DPS_JOIN_PREVIEW_CIRCLE,                      2),
    ROW(DPS_3D_SKETCH_CURVE_NODE_SCALE,               3),
    ROW(DPS_CURVE_PREVIEW,                            2),
    ROW(DPS_CURVE_SPLIT_PT,                           6),
    ROW(DPS_CURVE_SPLIT_SEGMENT,                      2),
    ROW(DPS_CURVE_CONTROL_POLYGON,                    1),
    ROW(DPS_CURVE_CONTROL_POINT,                      3),
    ROW(DPS_MANIPULATOR_SIZE,                         1),
    ROW(DPS_MANIPULATOR_ENFORCE_SNAP_SIZE,            1),
    ROW(DPS_QC_2D_CURVE,                              1),
    ROW(DPS_QC_3D_CURVE,                              2),
    ROW(DPS_QC_ISO_LINE,                              1),
    ROW(DPS_QC_MFEATURE_POINT,                        5),
    ROW(DPS_GDT_ARROW,                                5),
    ROW(DPS_GDT_TZ_LINE_WIDTH,                        1),
    ROW(DPS_GDT_SCAN_LINE_WIDTH,                      1),
    ROW(DPS_GDT_SCAN_POINT_SIZE,                      2),
    ROW(DPS_GDT_SCAN_DATA_POINTSIZE,                  3),
    ROW(DPS_GDT_SCAN_GEOM_GRID_PT_SIZE,               4),
    ROW(DPS_PROBE_POINT,                              5),
    ROW(DPS_PROBE_LINE,                               1),
    ROW(DPS_COLORMATSHININESS,                        20),
};
#undef ROW
// clang-format on
static_assert(kSizes.size() == DPS_END && everyRowStandsAtItsId(kSizes));
inline constexpr auto kSizeNames = namesOf(kSizes, L"DPS_END");

} // namespace vq
