// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Model.h"
#include "vqview/model/Progress.h"

#include <filesystem>
#include <memory>
#include <string>

namespace vqview {

/// What came of reading a scan. Without a model the message says why; beside one it says what of the file was left
/// out and whether it is too large to be shown, and is empty when neither is so. Sentences in UTF-8 for the user.
struct ReadOutcome
{
    std::shared_ptr<const Model> model;
    std::string message;
};

/// Reads a scan: OBJ, OFF, PLY, STL, XYZ, and what the mesh library reads where there is one. The extension says of
/// which kind a file is; where it says nothing or the file is otherwise, its content does. Nothing is thrown.
ReadOutcome readModel(const std::filesystem::path& path, Progress& progress);

} // namespace vqview
