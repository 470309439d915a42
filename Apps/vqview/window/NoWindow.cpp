// SPDX-License-Identifier: MIT
#include "vqview/window/Window.h"

#include <iostream>

namespace vqview {

int showWindow(Session&, const WindowOptions&)
{
    std::cerr << "vqview: no window: this program was built without GLFW or Dear ImGui\n";
    return 1;
}

} // namespace vqview
