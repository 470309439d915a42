// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/window/FontPanel.h"
#include "vqview/window/MaterialPanel.h"

#include <string>

namespace vqview {

class FilePrompt;
class Session;

/// The preferences, at the right side of the window: what is changed in them is seen at once.
class Panel
{
public:
    /// Once a frame. Position and size are in Dear ImGui's units.
    void draw(Session& session, FilePrompt& prompt, float left, float top, float width, float height);

private:
    bool drawTabs(FilePrompt& prompt);

    std::string m_search;
    MaterialPanel m_materials;
    FontPanel m_fonts;
};

} // namespace vqview
