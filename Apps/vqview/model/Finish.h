// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Progress.h"
#include "vqview/model/RawMesh.h"

#include <memory>
#include <string>

namespace vqview {

struct FinishedModel
{
    std::shared_ptr<const Model> model; ///< null when cancelled
    std::size_t droppedPoints = 0;      ///< with a coordinate that is not finite
    std::size_t droppedTriangles = 0;   ///< with such a point, one that is not there, or two equal corners
};

/// Makes a model of what a reader has found: equal corners joined, what cannot be shown left out, and normals, edges
/// and bounds computed. Normals that a file gives are only a cloud's.
/// @throws std::length_error when points are more than indices can name
FinishedModel finish(RawMesh&& mesh, std::string title, Progress& progress);

} // namespace vqview
