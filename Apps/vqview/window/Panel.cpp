// SPDX-License-Identifier: MIT
#include "vqview/window/Panel.h"

#include "vqview/session/Session.h"
#include "vqview/text/Text.h"
#include "vqview/window/FilePrompt.h"
#include "vqview/window/Rows.h"

#include <imgui.h>
#include <imgui_stdlib.h>

#include <array>
#include <cfloat>

namespace vqview {

namespace {

constexpr int kOfThisUser = 0; // among the places of the preference file

struct Tab
{
    const char* title;
    std::array<TableOf, 2> tables; ///< End: none
};

constexpr std::array<Tab, 4> kTabs{{
    {"Scene", {TableOf::SceneColours, TableOf::End}},
    {"Sizes", {TableOf::Sizes, TableOf::End}},
    {"Controls", {TableOf::ControlColours, TableOf::ControlAlphas}},
    {"Report", {TableOf::ReportColours, TableOf::HistogramColours}},
}};

void save(Session& session)
{
    const CString path = CVQDrawProperty::WritePreferenceToFile(kOfThisUser);
    if (path.IsEmpty())
        return session.say("The preferences could not be written");
    std::string shown = utf8Of(std::wstring_view(path));
    std::ranges::replace(shown, '\\', '/'); // the library's paths have either
    session.say("Preferences saved: " + shown);
}

void drawFiles(Session& session, FilePrompt& prompt)
{
    if (ImGui::Button("Save"))
        save(session);
    ImGui::SameLine();
    if (ImGui::Button("Load..."))
        prompt.ask(FileTask::LoadPreferences);
    ImGui::SameLine();
    if (ImGui::Button("Load legacy..."))
        prompt.ask(FileTask::LoadLegacyPreferences);
    ImGui::SameLine();
    if (ImGui::Button("Defaults")) {
        CVQDrawProperty::Initialize();
        session.setExchangesKeys(false);
        session.preferencesChanged();
    }
}

bool drawTables(const Tab& tab, const std::string& search)
{
    bool isChanged = false;
    const float top = ImGui::GetCursorPosY();
    for (const TableOf which : tab.tables) {
        if (which != TableOf::End)
            isChanged |= drawTable(table(which), search);
    }
    if (ImGui::GetCursorPosY() == top)
        ImGui::TextDisabled("No name has that in it");
    return isChanged;
}

/// A tab whose rows scroll below it. @return whether `rows`, which draws them, has changed something.
template <typename Rows>
bool drawTab(const char* title, Rows rows)
{
    if (!ImGui::BeginTabItem(title))
        return false;
    ImGui::BeginChild("##rows");
    const bool isChanged = rows();
    ImGui::EndChild();
    ImGui::EndTabItem();
    return isChanged;
}

} // namespace

bool Panel::drawTabs(FilePrompt& prompt)
{
    bool isChanged = false;
    if (!ImGui::BeginTabBar("##tables"))
        return false;
    for (const Tab& tab : kTabs)
        isChanged |= drawTab(tab.title, [&] { return drawTables(tab, m_search); });
    isChanged |= drawTab("Materials", [&] { return m_materials.draw(prompt); });
    isChanged |= drawTab("Fonts", [&] { return m_fonts.draw(); });
    ImGui::EndTabBar();
    return isChanged;
}

void Panel::draw(Session& session, FilePrompt& prompt, float left, float top, float width, float height)
{
    ImGui::SetNextWindowPos({left, top});
    ImGui::SetNextWindowSize({width, height});
    constexpr ImGuiWindowFlags kFixed = ImGuiWindowFlags_NoDecoration | ImGuiWindowFlags_NoMove |
                                        ImGuiWindowFlags_NoSavedSettings | ImGuiWindowFlags_NoBringToFrontOnFocus;
    ImGui::Begin("##preferences", nullptr, kFixed);
    drawFiles(session, prompt);
    bool isExchanged = session.exchangesKeys();
    if (ImGui::Checkbox("Exchange Ctrl and Shift", &isExchanged))
        session.setExchangesKeys(isExchanged);
    ImGui::SetNextItemWidth(-FLT_MIN);
    ImGui::InputTextWithHint("##search", "Search by name", &m_search);
    if (drawTabs(prompt))
        session.preferencesChanged();
    ImGui::End();
}

} // namespace vqview
