// SPDX-License-Identifier: MIT
#include "vqview/window/Toolbar.h"

#include "vqview/session/Session.h"
#include "vqview/window/FilePrompt.h"
#include "vqview/window/Popups.h"
#include "vqview/window/Style.h"

#include <imgui.h>

#include <array>
#include <optional>

namespace vqview {

namespace {

struct ToolButton
{
    Tool tool;
    const char* label;
    const char* help;
};

constexpr std::array<ToolButton, static_cast<std::size_t>(Tool::End)> kTools{{
    {Tool::Look, "Look", "Turn the view"},
    {Tool::Box, "Box", "Select in a rectangle"},
    {Tool::Circle, "Circle", "Select around a point"},
    {Tool::Band, "Band", "Select along a line with a width"},
    {Tool::Lasso, "Lasso", "Select in an outline drawn in one go"},
    {Tool::Polygon, "Polygon", "Select in an outline clicked corner by corner"},
    {Tool::Measure, "Measure", "Pick points and the distance between them"},
}};

struct SideItem
{
    Side side;
    const char* label;
};

constexpr std::array<SideItem, 6> kSides{{
    {Side::Front, "From the front"},
    {Side::Back, "From the back"},
    {Side::Right, "From the right"},
    {Side::Left, "From the left"},
    {Side::Top, "From the top"},
    {Side::Bottom, "From the bottom"},
}};

struct ShownItem
{
    bool Shown::*flag;
    const char* label;
};

constexpr std::array<ShownItem, 6> kShown{{
    {&Shown::faces, "Faces"},
    {&Shown::edges, "Edges"},
    {&Shown::vertices, "Vertices"},
    {&Shown::labels, "Labels"},
    {&Shown::report, "Colour bar, histogram and title"},
    {&Shown::keys, "Keys"},
}};

struct FileButton
{
    FileTask task;
    const char* label;
    const char* help;
};

constexpr FileButton kOpen{FileTask::OpenScan, "Open", "Open a scan or a document"};
constexpr std::array<FileButton, 3> kSaving{{
    {FileTask::SavePicture, "Picture", "Save the view as a picture"},
    {FileTask::SaveReport, "Report", "Save view, labels, colour bar and histogram as one picture"},
    {FileTask::SaveDocument, "Document", "Save preferences, report and selection in one file"},
}};

enum class Chosen { No, Yes };
enum class Possible { No, Yes };

/// Puts buttons side by side, and goes on in a new line where the next one would reach beyond the window.
class Flow
{
public:
    bool button(const char* label, const char* help, Chosen chosen = Chosen::No, Possible possible = Possible::Yes)
    {
        place(ImGui::CalcTextSize(label).x + 2 * ImGui::GetStyle().FramePadding.x);
        const bool isChosen = chosen == Chosen::Yes;
        if (isChosen)
            pushChosen();
        ImGui::BeginDisabled(possible == Possible::No);
        const bool isPressed = ImGui::Button(label);
        ImGui::EndDisabled();
        if (isChosen)
            ImGui::PopStyleColor(4);
        if (ImGui::IsItemHovered(ImGuiHoveredFlags_AllowWhenDisabled))
            ImGui::SetTooltip("%s", help);
        return isPressed;
    }

    /// Space between groups of buttons.
    void gap() { m_gap = ImGui::GetFontSize() * 0.7f; }

private:
    void place(float width)
    {
        const float space = ImGui::GetStyle().ItemSpacing.x + m_gap;
        const float right = ImGui::GetWindowPos().x + ImGui::GetWindowContentRegionMax().x;
        if (!m_isFirst && ImGui::GetItemRectMax().x + space + width <= right)
            ImGui::SameLine(0, space);
        m_isFirst = false;
        m_gap = 0;
    }

    static void pushChosen()
    {
        for (const ImGuiCol index : {ImGuiCol_Button, ImGuiCol_ButtonHovered, ImGuiCol_ButtonActive})
            ImGui::PushStyleColor(index, Style::chosen());
        ImGui::PushStyleColor(ImGuiCol_Text, Style::onChosen());
    }

    bool m_isFirst = true;
    float m_gap = 0;
};

Possible possible(bool is)
{
    return is ? Possible::Yes : Possible::No;
}

Chosen chosen(bool is)
{
    return is ? Chosen::Yes : Chosen::No;
}

void drawTools(Flow& flow, Session& session)
{
    for (const ToolButton& tool : kTools) {
        if (flow.button(tool.label, tool.help, chosen(session.tool() == tool.tool)))
            session.setTool(tool.tool);
    }
    flow.gap();
    const bool through = session.selectsThrough();
    if (flow.button("Visible", "Select what is not hidden by other parts", chosen(!through)))
        session.setSelectsThrough(false);
    if (flow.button("Through", "Select what is hidden as well", chosen(through)))
        session.setSelectsThrough(true);
    flow.gap();
}

void drawSelection(Flow& flow, Session& session)
{
    if (flow.button("Undo", "Take back the last selection", Chosen::No, possible(session.canUndo())))
        session.undo();
    if (flow.button("Redo", "Select again what was taken back", Chosen::No, possible(session.canRedo())))
        session.redo();
    if (flow.button("Select", "Select all, nothing, or the rest"))
        ImGui::OpenPopup("select");
    if (ImGui::BeginPopup("select")) {
        closeByEscape();
        if (ImGui::MenuItem("All"))
            session.selectAll();
        if (ImGui::MenuItem("Nothing"))
            session.selectNone();
        if (ImGui::MenuItem("What is not selected"))
            session.invertSelection();
        ImGui::EndPopup();
    }
    flow.gap();
}

void drawViewMenu(Session& session)
{
    for (const ShownItem& item : kShown) {
        bool& isShown = session.shown().*item.flag;
        if (ImGui::Selectable(item.label, isShown, ImGuiSelectableFlags_DontClosePopups))
            isShown = !isShown;
    }
    ImGui::Separator();
    for (const SideItem& item : kSides) {
        if (ImGui::MenuItem(item.label))
            session.lookAlong(item.side);
    }
}

void drawView(Flow& flow, Session& session)
{
    if (flow.button("Fit", "Show all of the scan"))
        session.fit();
    const bool isOrthographic = session.isOrthographic();
    if (flow.button("Orthographic", "Draw without perspective", chosen(isOrthographic)))
        session.setOrthographic(!isOrthographic);
    if (flow.button("View", "What is shown, and from where"))
        ImGui::OpenPopup("view");
    if (ImGui::BeginPopup("view")) {
        closeByEscape();
        drawViewMenu(session);
        ImGui::EndPopup();
    }
    flow.gap();
}

void drawFiles(Flow& flow, FilePrompt& prompt, bool hasModel)
{
    if (flow.button(kOpen.label, kOpen.help))
        prompt.ask(kOpen.task);
    for (const FileButton& file : kSaving) {
        if (flow.button(file.label, file.help, Chosen::No, possible(hasModel)))
            prompt.ask(file.task);
    }
    flow.gap();
}

/// At the centre of the window's lower edge, while a scan is read. @return its sides
std::array<float, 4> drawProgress(Session& session)
{
    const ImVec2 display = ImGui::GetIO().DisplaySize;
    ImGui::SetNextWindowPos({display.x / 2, display.y - ImGui::GetFontSize()}, ImGuiCond_Always, {0.5F, 1});
    ImGui::Begin("##progress", nullptr,
                 ImGuiWindowFlags_NoDecoration | ImGuiWindowFlags_AlwaysAutoResize | ImGuiWindowFlags_NoSavedSettings |
                     ImGuiWindowFlags_NoFocusOnAppearing);
    ImGui::ProgressBar(static_cast<float>(session.progress()), {ImGui::GetFontSize() * 16, 0});
    ImGui::SameLine();
    if (ImGui::Button("Cancel"))
        session.cancelLoading();
    const ImVec2 at = ImGui::GetWindowPos(), size = ImGui::GetWindowSize();
    ImGui::End();
    return {at.x, at.y, at.x + size.x, at.y + size.y};
}

} // namespace

void Toolbar::draw(Session& session, FilePrompt& prompt, bool& showsPanel)
{
    ImGui::SetNextWindowPos({0, 0});
    ImGui::SetNextWindowSize({ImGui::GetIO().DisplaySize.x, m_height});
    constexpr ImGuiWindowFlags kFixed = ImGuiWindowFlags_NoDecoration | ImGuiWindowFlags_NoMove |
                                        ImGuiWindowFlags_NoSavedSettings | ImGuiWindowFlags_NoBringToFrontOnFocus |
                                        ImGuiWindowFlags_NoScrollWithMouse;
    ImGui::Begin("##tools", nullptr, kFixed);
    Flow flow;
    drawTools(flow, session);
    drawSelection(flow, session);
    drawView(flow, session);
    drawFiles(flow, prompt, session.model() != nullptr);
    if (flow.button("Preferences", "Colours, sizes, materials and fonts", chosen(showsPanel)))
        showsPanel = !showsPanel;
    m_height = ImGui::GetCursorPosY() - ImGui::GetStyle().ItemSpacing.y + ImGui::GetStyle().WindowPadding.y;
    ImGui::End();
    m_elsewhere = session.isLoading() ? drawProgress(session) : std::array<float, 4>();
}

} // namespace vqview
