// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace vqview {

class Session;

struct WindowOptions
{
    int width = 1280; ///< in units of 1/96 inch, which are pixels where the display's scale is 1
    int height = 800;
    std::filesystem::path model; ///< read once the window is there; may be empty
    /// Played once the scan is there; its pictures go to the current folder. The size of the view is the window's.
    std::filesystem::path script;
    bool echo = false; ///< prints what the status line says and how the view is looked at, whenever that changes
};

/// Opens a window with an OpenGL context, a tool bar and a panel of preferences, and lets it live until it is closed,
/// by Ctrl+Q as well.
///
/// The display's scale becomes the scale of the whole process (`CVQDisplayAPI`) and follows the window from monitor to
/// monitor. With its context go all OpenGL objects, so that nothing may be drawn afterwards.
///
/// @return 0; 1 when there is no display or no OpenGL, with a line on the standard error stream that says which.
int showWindow(Session& session, const WindowOptions& options);

} // namespace vqview
