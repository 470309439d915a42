// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <filesystem>
#include <optional>
#include <string>

/// @file
/// What those who let scripts play have in common.

namespace vqview {

class Session;

/// The text of a script; nothing when there is no such file.
std::optional<std::string> scriptOf(const std::filesystem::path& file);

/// Makes `picture` what a script keeps: the report, or the frame as the user sees it.
void drawKept(Session& session, bool isReport, CVQDIB& picture);

} // namespace vqview
