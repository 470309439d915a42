// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Scene colours: what start-up puts into each row.

#include "VQDraw/VQDrawProperty.h"
#include "VQDraw/preferences/TableRows.h"

namespace vq {

/// What the four floats of a row are.
enum class Meaning {
    Colour,   ///< red, green, blue, alpha
    Position, ///< x, y, z, w
    Number,   ///< one number, the others are of no use
};

struct SceneInitial
{
    Meaning meaning;
    std::size_t count; ///< how many of the values start-up sets
    std::array<float, 4> values;
};

struct SceneColour
{
    eDrawPropertyColor id;
    const wchar_t* name;
    SceneInitial initial;
};

/// Whole numbers are 255ths.
constexpr float channel(int value)
{
    return static_cast<float>(value) / 255.0f;
}
constexpr float channel(float value)
{
    return value;
}

template <typename Red, typename Green, typename Blue, typename Alpha>
constexpr SceneInitial rgba(Red red, Green green, Blue blue, Alpha alpha)
{
    return {Meaning::Colour, 4, {channel(red), channel(green), channel(blue), channel(alpha)}};
}

template <typename Red, typename Green, typename Blue>
constexpr SceneInitial rgb(Red red, Green green, Blue blue)
{
    return rgba(red, green, blue, 255);
}

/// A light infinitely far away: w is 0.
constexpr SceneInitial directionTo(float x, float y, float z)
{
    return {Meaning::Position, 4, {x, y, z, 0}};
}

constexpr SceneInitial number(float value)
{
    return {Meaning::Number, 1, {value}};
}

inline constexpr SceneInitial kNoSceneDefault{Meaning::Colour, 0, {}};

// clang-format off
#define ROW(id, ...) SceneColour{id, L"" #id, __VA_ARGS__} // the name cannot differ from the enumerator
inline constexpr std::array kSceneColours{
    ROW(DPC_LIGHT0AMBIENT,                             rgb(0.05f, 0.05f, 0.05f)),
    ROW(DPC_LIGHT0DIFFUSE,                             rgb(204, 204, 204)),
    ROW(DPC_LIGHT0SPECULAR,                            rgb(51, 51, 51)),
    ROW(DPC_LIGHT0POS,                                 directionTo(0, 10000, 10000)),
    ROW(DPC_LIGHT1AMBIENT,                             rgb(0.01f, 0.01f, 0.01f)),
    ROW(DPC_LIGHT1DIFFUSE,                             rgb(0.25f, 0.25f, 0.25f)),
    ROW(DPC_LIGHT1SPECULAR,                            rgb(0.05f, 0.05f, 0.05f)),
    ROW(DPC_LIGHT1POS,                                 directionTo(-10000, 0, 0)),
    ROW(DPC_LIGHT2AMBIENT,                             rgb(0.01f, 0.01f, 0.01f)),
    ROW(DPC_LIGHT2DIFFUSE,                             rgb(0.25f, 0.25f, 0.25f)),
    ROW(DPC_LIGHT2SPECULAR,                            rgb(0.05f, 0.05f, 0.05f)),
    ROW(DPC_LIGHT2POS,                                 directionTo(10000, 0, 0)),
    ROW(DPC_LIGHT3AMBIENT,                             rgb(0.01f, 0.01f, 0.01f)),
    ROW(DPC_LIGHT3DIFFUSE,                             rgb(0.25f, 0.25f, 0.25f)),
    ROW(DPC_LIGHT3SPECULAR,                            rgb(0.05f, 0.05f, 0.05f)),
    ROW(DPC_LIGHT3POS,                                 directionTo(0, -10000, 10000)),
    ROW(DPC_BACKGROUND,                                rgb(180, 180, 180)),
    ROW(DPC_PROFILEVIEW_BG_COL,                        rgb(255, 255, 255)),
    ROW(DPC_GRID,                                      rgb(75, 75, 75)),
    ROW(DPC_COLORMATAMBIENT,                           rgb(30, 30, 30)),
    ROW(DPC_COLORMATDIFFUSE,                           kNoSceneDefault),
    ROW(DPC_COLORMATSPECULAR,                          rgb(70, 70, 70)),
    ROW(DPC_SELECTEDENTITY,                            rgb(0, 255, 255)),
    ROW(DPC_DEACTIVATE_SELECTEDENTITY,                 rgb(76, 178, 76)),
    ROW(DPC_HIGHLIGHT,                                 rgb(238, 36, 56)),
    ROW(DPC_TEMPENTITY,                                rgba(255, 255, 87, 0.65f)),
    ROW(DPC_SECTION,                                   rgb(255, 87, 192)),
    ROW(DPC_ERROR,                                     rgb(255, 0, 0)),
    ROW(DPC_BACKFACE_USERDEFINE,                       rgb(216, 0, 0)),
    ROW(DPC_BOUNDARY_USERDEFINE,                       rgb(216, 0, 0)),
    ROW(DPC_PREVIEW,                                   rgba(248, 171, 17, 102)),
    ROW(DPC_DISABLE,                                   rgb(165, 165, 165)),
    ROW(DPC_MARKER,                                    rgb(127, 76, 0)),
    ROW(DPC_MARKING_LINE,                              rgb(102, 51, 204)),
    ROW(DPC_CURSOR_TEXT,                               rgb(255, 255, 255)),
    ROW(DPC_CURSOR_TEXT_SHADOW,                        rgb(0, 0, 0)),
    ROW(DPC_REFPOINT,                                  rgb(255, 255, 255)),
    ROW(DPC_REFVECTOR,                                 rgb(255, 255, 255)),
    ROW(DPC_REFPLANE,                                  rgb(255, 255, 255)),
    ROW(DPC_REFCOORDINATE,                             rgb(255, 255, 255)),
    ROW(DPC_REFPOLYLINE,                               rgb(255, 255, 255)),
    ROW(DPC_REFCIRCLE,                                 rgb(210, 210, 0)),
    ROW(DPC_REFSLOT,                                   rgb(196, 175, 0)),
    ROW(DPC_REFRECTANGLE,                              rgb(217, 196, 0)),
    ROW(DPC_REFREGULARPOLYGON,                         rgb(183, 165, 0)),
    ROW(DPC_REFCYLINDER,                               rgb(151, 209, 37)),
    ROW(DPC_REFCONE,                                   rgb(140, 191, 34)),
    ROW(DPC_REFSPHERE,                                 rgb(168, 221, 61)),
    ROW(DPC_REFTORUS,                                  rgb(171, 221, 66)),
    ROW(DPC_REFGEOM_FITRESULT,                         rgb(0, 255, 255)),
    ROW(DPC_BODYEDGE,                                  rgb(10, 15, 20)),
    ROW(DPC_CURVE,                                     rgb(0, 0, 255)),
    ROW(DPC_CURVE_NODE,                                rgb(0, 114, 190)),
    ROW(DPC_CURVE_NODE_JOINED,                         rgb(153, 139, 221)),
    ROW(DPC_CURVE_NODE_SEAM,                           rgb(178, 102, 0)),
    ROW(DPC_CURVE_NODE_HAS_PARENT,                     rgb(255, 87, 192)),
    ROW(DPC_CURVE_NODE_BENDING_PREVIEW,                rgb(0, 255, 255)),
    ROW(DPC_CURVE_NODE_BENDING_RANGE,                  rgb(0, 255, 255)),
    ROW(DPC_CURVE_TANGENT,                             rgb(27, 93, 163)),
    ROW(DPC_CURVE_CURVATURE,                           rgb(249, 188, 102)),
    ROW(DPC_CURVE_MIDPT,                               rgb(255, 127, 63)),
    ROW(DPC_CURVE_CONSTRAINT,                          rgb(0, 227, 80)),
    ROW(DPC_CURVE_CONSTRAINT_CURVATURE,                rgb(127, 151, 25)),
    ROW(DPC_CURVE_EDITING,                             rgb(248, 171, 17)),
    ROW(DPC_CURVE_PENCIL,                              rgba(248, 171, 17, 102)),
    ROW(DPC_CURVE_SPLIT_CURVE,                         rgb(0, 255, 255)),
    ROW(DPC_CURVE_CUR_SPLIT_CURVE,                     rgba(211, 34, 60, 102)),
    ROW(DPC_CURVE_SPLIT_PT_START,                      rgb(255, 0, 0)),
    ROW(DPC_CURVE_SPLIT_PT_END,                        rgb(0, 0, 255)),
    ROW(DPC_CURVE_SPLIT_PT,                            rgb(25, 229, 178)),
    ROW(DPC_CURVE_SECTION_PLANE,                       rgba(211, 34, 60, 102)),
    ROW(DPC_CURVE_SECTION_PREVIEW,                     rgb(248, 171, 17)),
    ROW(DPC_CURVE_PENCIL_AC_RANGE,                     rgb(178, 178, 0)),
    ROW(DPC_CURVE_INSERT_NODE_PREVIEW,                 rgb(0, 25, 204)),
    ROW(DPC_CURVE_JOIN_PREVIEW_CIRCLE,                 rgb(254, 255, 25)),
    ROW(DPC_CURVE_DEFORM,                              rgb(0, 0, 225)),
    ROW(DPC_CURVE_CONVERT_ENTITY,                      rgb(0, 0, 0)),
    ROW(DPC_CURVE_CONTROL_POINT,                       rgb(192, 192, 192)),
    ROW(DPC_2D_SKETCH_CONSTRAINT_UNDER_DEFINED,        rgb(0, 0, 225)),
    ROW(DPC_2D_SKETCH_CONSTRAINT_FULL_DEFINED,         rgb(0, 0, 0)),
    ROW(DPC_2D_SKETCH_CONSTRAINT_OVER_DEFINED,         rgb(225, 0, 0)),
    ROW(DPC_2D_SKETCH_DIMENSION_DRIVEN,                rgb(255, 0, 0)),
    ROW(DPC_2D_SKETCH_SELECT,                          rgb(0, 255, 255)),
    ROW(DPC_2D_SKETCH_PRESELECT,                       rgb(255, 255, 25)),
    ROW(DPC_2D_SKETCH_DIMENSION,                       rgb(0, 0, 0)),
    ROW(DPC_2D_SKETCH_SNAP_AUX_LINE,                   rgb(128, 0, 0)),
    ROW(DPC_2D_SKETCH_SNAP_HINT_ENTITY,                rgb(255, 255, 25)),
    ROW(DPC_2D_SKETCH_POLYLINE,                        rgba(217, 0, 136, 0.7f)),
    ROW(DPC_2D_SKETCH_POLYLINE_PRESELECT,              rgb(255, 255, 25)),
    ROW(DPC_2D_SKETCH_POLYLINE_SELECT,                 rgb(0, 255, 255)),
    ROW(DPC_2D_SKETCH_POLYLINE_UNDEFINED_TYPE_SEGMENT, rgb(0, 0, 0)),
    ROW(DPC_2D_SKETCH_POLYLINE_LINE_TYPE_SEGMENT,      rgb(5, 198, 11)),
    ROW(DPC_2D_SKETCH_POLYLINE_CIRCLE_TYPE_SEGMENT,    rgb(255, 255, 0)),
    ROW(DPC_2D_SKETCH_POLYLINE_FREEFORM_TYPE_SEGMENT,  rgb(0, 0, 255)),
    ROW(DPC_2D_SKETCH_BOUNDARY_POINT,                  rgb(141, 255, 141)),
    ROW(DPC_2D_SKETCH_APPLIED_AUX_TANGENT,             rgb(0, 227, 80)),
    ROW(DPC_2D_SKETCH_UNAPPLIED_AUX_TANGENT,           rgb(27, 93, 163)),
    ROW(DPC_2D_SKETCH_CONSTRAINT,                      rgb(0, 227, 80)),
    ROW(DPC_2D_SKETCH_SECTION_POINT,                   rgba(0, 0, 0, 102)),
    ROW(DPC_MANIPULATOR_X_DIR,                         rgb(221, 0, 0)),
    ROW(DPC_MANIPULATOR_Y_DIR,                         rgb(0, 221, 0)),
    ROW(DPC_MANIPULATOR_Z_DIR,                         rgb(0, 0, 221)),
    ROW(DPC_MANIPULATOR_PLANE,                         rgba(0, 255, 255, 102)),
    ROW(DPC_MANIPULATOR_HIGH,                          rgb(255, 255, 0)),
    ROW(DPC_MANIPULATOR_GRAY,                          rgba(191, 191, 191, 102)),
    ROW(DPC_MANIPULATOR_BALL,                          rgba(0, 255, 255, 102)),
    ROW(DPC_TOLERANCE_COLOR,                           rgb(7, 170, 7)),
    ROW(DPC_TEXTUREMAT_AMBIENT,                        rgb(60, 60, 60)),
    ROW(DPC_TEXTUREMAT_DIFFUSE,                        rgb(255, 255, 255)),
    ROW(DPC_TEXTUREMAT_SPECULAR,                       rgb(255, 255, 255)),
    ROW(DPC_TEXTUREMAT_SHININESS,                      number(40)),
    ROW(DPC_DEFINED_SELECTITEM,                        kNoSceneDefault),
    ROW(DPC_CONIC_FILLET_R1,                           rgb(0.5f, 0.5f, 51)),
    ROW(DPC_CONIC_FILLET_R2,                           rgb(51, 0.5f, 0.5f)),
    ROW(DPC_GDT_ANCHOR,                                rgba(51, 51, 51, 0.5f)),
    ROW(DPC_ANNOTATION_PANE,                           rgba(0, 0, 0, 51)),
    ROW(DPC_FAIL,                                      rgb(204, 0, 0)),
    ROW(DPC_PASS,                                      rgb(0, 0.785f, 0)),
    ROW(DPC_WARNING,                                   rgb(0.94902f, 204, 0.04706f)),
    ROW(DPC_NORESULT,                                  rgb(102, 153, 204)),
    ROW(DPC_2ND_HIGHLIGHT,                             rgb(255, 0.75f, 0.25f)),
    ROW(DPC_2ND_SELECTEDENTITY,                        rgb(0.25f, 0.75f, 255)),
    ROW(DPC_TAG,                                       rgb(255, 168, 222)),
    ROW(DPC_NOTE,                                      rgb(255, 227, 128)),
    ROW(DPC_MEASURE,                                   rgb(255, 227, 128)),
    ROW(DPC_IGNORE_RESULT,                             rgb(255, 255, 255)),
    ROW(DPC_GDT_TZ_COLOR,                              rgb(100, 200, 100)),
    ROW(DPC_GDT_SCAN_COLOR,                            rgb(0, 0, 250)),
    ROW(DPC_GDT_SCAN_DATA_COLOR,                       rgb(196, 196, 196)),
    ROW(DPC_GDT_SCAN_GEOM_GRID_COLOR,                  rgb(250, 192, 0)),
    ROW(DPC_SCANPAIR_SEARCH_INTERSECTION,              rgb(0, 192, 0)),
    ROW(DPC_SCANPAIR_SEARCH_FITTING,                   rgb(255, 39, 39)),
    ROW(DPC_WARNING_MAX_ANGLE_DEVIATION,               rgb(255, 0, 0)),
    ROW(DPC_MEASURE_CALIPER,                           rgb(128, 128, 128)),
    ROW(DPC_KZV_TOLERANCE_COLOR,                       rgb(10, 213, 10)),
    ROW(DPC_PROBEPOINT,                                rgb(51, 51, 255)),
    ROW(DPC_LIVE_INSPECT_UNPROBED_FACE,                rgb(100, 132, 242)),
    ROW(DPC_LIVE_INSPECT_UNPROBED_EDGE,                rgb(146, 0, 255)),
    ROW(DPC_LIVE_INSPECT_BASE_PLANE,                   rgb(255, 0, 0)),
    ROW(DPC_LIVE_INSPECT_BASE_PLANE_CANDI,             rgb(166, 0, 0)),
    ROW(DPC_LIVE_INSPECT_PROBED_FACE,                  rgb(141, 141, 224)),
    ROW(DPC_LIVE_INSPECT_PROBED_EDGE,                  rgb(12, 41, 128)),
    ROW(DPC_LIVE_INSPECT_PROBED_REFGEOM,               rgb(141, 141, 224)),
    ROW(DPC_LIVE_INSPECT_UNPROBED_REFGEOM,             rgb(100, 132, 242)),
    ROW(DPC_CURVE_OPEN_CONTOUR_LINE,                   rgb(0, 0, 225)),
    ROW(DPC_CURVE_CLOSED_CONTOUR_LINE,                 rgb(255, 127, 64)),
    ROW(DPC_CURVE_PATCH_LINE,                          rgb(0, 100, 0)),
    ROW(DPC_CONTOUR_REGION,                            rgb(255, 0, 0)),
    ROW(DPC_CURVE_CONTROL_POINT_JOINED,                rgb(153, 139, 221)),
    ROW(DPC_CURVE_CONTROL_POINT_SEAM,                  rgb(178, 102, 0)),
    ROW(DPC_CURVE_CONTROL_POINT_HAS_PARENT,            rgb(255, 87, 192)),
    ROW(DPC_CURVE_FIXED_CONTROL_POINT,                 rgb(0, 0, 0)),
    ROW(DPC_FIXED_CONNECTOR,                           rgb(75, 75, 75)),
    ROW(DPC_MOVABLE_CONNECTOR,                         rgb(76, 178, 76)),
    ROW(DPC_START_CONNECTOR,                           rgb(190, 75, 10)),
    ROW(DPC_SELECTION_TOOL,                            rgb(238, 36, 56)),
};
#undef ROW
// clang-format on
static_assert(kSceneColours.size() == DPC_END && everyRowStandsAtItsId(kSceneColours));
inline constexpr auto kSceneColourNames = namesOf(kSceneColours, L"DPC_END");

} // namespace vq
