// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Progress.h"
#include "vqview/model/RawMesh.h"

#include <filesystem>
#include <string>

namespace vqview {

/// Reads the kinds of file that vqview has no reader of its own for, with a library where it was built with one. What
/// the scene places several times comes several times; what has no faces are points.
/// @return what is wrong, as a sentence that goes on after the file's name ("is damaged: ..."); empty when nothing is,
///         and when `progress` was cancelled.
std::string readMeshFile(const std::filesystem::path& path, RawMesh& mesh, Progress& progress);

} // namespace vqview
