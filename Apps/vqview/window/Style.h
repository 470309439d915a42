// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/window/Layout.h"

struct ImVec4;

namespace vqview {

/// How bar and panel look: with the colours that the preferences have for controls, at the display's scale.
class Style
{
public:
    /// Once a frame, before it begins. Makes text anew where the display's scale has changed.
    void follow(const Layout& layout);
    /// How many of Dear ImGui's units 1/96 inch takes.
    float unit() const { return m_unit; }

    /// With what is chosen of several: the background and the text on it.
    static ImVec4 chosen();
    static ImVec4 onChosen();

private:
    float m_unit = 0;
    float m_scale = 0;
};

} // namespace vqview
