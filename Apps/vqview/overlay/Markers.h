// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Model.h"

#include <VQDraw/VQDraw.h>

#include <span>
#include <vector>

namespace vqview {

enum class MarkerKind {
    Sphere, ///< round `at`
    Disk,   ///< at `at`, facing along `direction`
    Line    ///< from `at` to `to`; hidden parts shine through
};

/// Something small that marks a place of the scan.
struct Marker
{
    MarkerKind kind = MarkerKind::Sphere;
    Point3 at{};
    Point3 direction{0, 0, 1};                          ///< of a disk, of any length above 0
    Point3 to{};                                        ///< of a line
    eDrawPropertyMaterial material = DPM_REGION_SPHERE; ///< of spheres and disks; lines are in `DPC_MEASURE`
};

/// Spheres at picked points and lines from each to the next, as the measuring tool shows them.
void addMeasureMarkers(std::span<const Point3> picked, std::vector<Marker>& markers);

/// Draws markers into the frame of the current OpenGL context, with its depth, lit by the store's four lights. Spheres
/// and disks have the radius, in model units; lines are as wide as `DPS_PROBE_LINE` says, times the scale. All state
/// is afterwards as before.
void drawMarkers(std::span<const Marker> markers, const SVQGLVariables& view, float radius, float scale = 1);

/// Draws the edges of a box, hidden by what is before them. Nothing of an empty one.
void drawBounds(const Bounds& bounds, const SVQGLVariables& view, float scale = 1);

} // namespace vqview
