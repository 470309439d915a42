// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <filesystem>

namespace vqview {

/// Writes a picture in the format that the ending says, and as a PNG, ".png" added, where it says none. An old file is
/// replaced when the new one is whole. @return where it stands; empty when it cannot be written.
std::filesystem::path writePicture(CVQDIB& picture, const std::filesystem::path& path);

} // namespace vqview
