// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Materials of surfaces that start-up sets.

#include "VQDraw/VQDrawProperty.h"
#include "VQDraw/preferences/TableRows.h"

#include <optional>

namespace vq {

using Rgb = std::array<int, 3>; // 255ths

struct SurfaceMaterial
{
    eDrawPropertyMaterial id;
    const wchar_t* name;
    Rgb ambient;
    Rgb diffuse;
    Rgb specular;
    std::optional<float> alphaOfColours; ///< of each of the three; without a value start-up leaves them as they are
    float shininess;
    float alpha;
};

inline constexpr std::optional<float> kAsMade;

// clang-format off
#define ROW(id, ...) SurfaceMaterial{id, L"" #id, __VA_ARGS__} // the name cannot differ from the enumerator
inline constexpr std::array kSurfaceMaterials{
    ROW(DPM_BODY,              { 60,  60,  64}, {190, 194, 209}, {221, 221, 221}, kAsMade, 30,    1),
    ROW(DPM_DISABLE_REGION,    {137, 137, 137}, {140, 140, 140}, {127, 127, 127}, 0.5f,    19.2f, 0.5f),
    ROW(DPM_REGION_PLANE,      { 58,  77, 121}, { 88, 137, 255}, {  0,   0,   0}, 0.5f,    0,     1),
    ROW(DPM_REGION_CYLINDER,   {190,  83,   0}, {253, 121,  37}, {253, 164, 107}, 0.5f,    70,    1),
    ROW(DPM_REGION_CONE,       {190,  96,   0}, {253, 145,  37}, {253, 183, 112}, 0.5f,    70,    1),
    ROW(DPM_REGION_SPHERE,     {211, 141,   1}, {253, 181,  37}, {253, 200,  94}, 0.5f,    70,    1),
    ROW(DPM_REGION_TORUS,      {242, 184,  58}, {247, 209, 127}, {248, 217, 150}, 0.5f,    70,    1),
    ROW(DPM_REGION_REVOLUTION, {237, 161,  83}, {244, 209, 172}, {  0,   0,   0}, 0.5f,    70,    1),
    ROW(DPM_REGION_FREEFORM,   { 45,  45,  45}, {160, 160, 160}, {  0,   0,   0}, 0.5f,    0,     1),
    ROW(DPM_SURF_BODY,         {157, 153,  32}, {232, 227, 131}, {228, 236, 126}, kAsMade, 70,    1),
};
#undef ROW
// clang-format on
static_assert(kSurfaceMaterials.size() == DPM_END && everyRowStandsAtItsId(kSurfaceMaterials));
inline constexpr auto kSurfaceMaterialNames = namesOf(kSurfaceMaterials, L"DPM_END");

} // namespace vq
