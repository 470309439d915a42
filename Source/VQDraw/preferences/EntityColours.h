// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Which scene colour the entities of the geometry database are drawn with. Types without a row have none.

#include "VQDraw/VQDrawProperty.h"

#include <array>

namespace vq {

struct EntityColour
{
    eGDBEntityType type;
    eDrawPropertyColor colour;
};

// clang-format off
inline constexpr auto kEntityColours = std::to_array<EntityColour>({
    {GDB_PLANAR_POINT,          DPC_REFPOINT},
    {GDB_PLANAR_VECTOR,         DPC_REFVECTOR},
    {GDB_PLANAR_CIRCLE,         DPC_REFCIRCLE},
    {GDB_PLANAR_SLOT,           DPC_REFSLOT},
    {GDB_PLANAR_RECTANGLE,      DPC_REFRECTANGLE},
    {GDB_PLANAR_REGULARPOLYGON, DPC_REFREGULARPOLYGON},
    {GDB_POINT,                 DPC_REFPOINT},
    {GDB_VECTOR,                DPC_REFVECTOR},
    {GDB_PLANE,                 DPC_REFPLANE},
    {GDB_CIRCLE,                DPC_REFCIRCLE},
    {GDB_SLOT,                  DPC_REFSLOT},
    {GDB_RECTANGLE,             DPC_REFRECTANGLE},
    {GDB_REGULARPOLYGON,        DPC_REFREGULARPOLYGON},
    {GDB_CYLINDER,              DPC_REFCYLINDER},
    {GDB_CONE,                  DPC_REFCONE},
    {GDB_SPHERE,                DPC_REFSPHERE},
    {GDB_TORUS,                 DPC_REFTORUS},
    {GDB_COORDINATE,            DPC_REFCOORDINATE},
    {GDB_POLYLINE,              DPC_REFPOLYLINE},
    {GDB_PROBEPOINT,            DPC_PROBEPOINT},
});
// clang-format on

} // namespace vq
