// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace vqview {

struct OffScreenOptions
{
    std::filesystem::path model;  ///< shown before the script begins; may be empty
    std::filesystem::path script; ///< what to do
    std::filesystem::path folder; ///< where the pictures go, and their page
    int width = 1280, height = 800;
};

/// Plays a script without a window: its pictures and their captions go to a page, what it prints to the standard
/// output, what went wrong to that of errors. @return the program's exit status.
int runOffScreen(const OffScreenOptions& options);

} // namespace vqview
