// SPDX-License-Identifier: MIT
#include "vqview/window/Popups.h"

#include <imgui.h>

namespace vqview {

bool isPopupOpen()
{
    return ImGui::IsPopupOpen(nullptr, ImGuiPopupFlags_AnyPopupId | ImGuiPopupFlags_AnyPopupLevel);
}

/// Dear ImGui does so only where its windows are walked through by keys, and then takes all keys from the view.
void closeByEscape()
{
    if (ImGui::IsKeyPressed(ImGui::GetKeyIndex(ImGuiKey_Escape), false))
        ImGui::CloseCurrentPopup();
}

} // namespace vqview
