// SPDX-License-Identifier: MIT
#pragma once

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

private:
    float m_height = 0;
};

} // namespace vqview
