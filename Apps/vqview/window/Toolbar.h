// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace vqview {

class FilePrompt;
class Session;

/// Tools and actions, as many lines as they need, and how far reading a scan has come.
class Toolbar
{
public:
    /// Once a frame, over the whole width. `showsPanel` is switched by a button.
    void draw(Session& session, FilePrompt& prompt, bool& showsPanel);
    /// In Dear ImGui's units, of what was drawn last.
    float height() const { return m_height; }
    /// Left, top, right and bottom of what stands elsewhere in the window; all 0 when nothing does.
    const std::array<float, 4>& elsewhere() const { return m_elsewhere; }

private:
    float m_height = 0;
    std::array<float, 4> m_elsewhere{};
};

} // namespace vqview
