// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace vqview {

class Session;

/// Plays a script in the view as it is. Pictures go to the current folder, what it prints to the standard output, what
/// went wrong to that of errors.
void playScript(Session& session, const std::filesystem::path& script);

} // namespace vqview
