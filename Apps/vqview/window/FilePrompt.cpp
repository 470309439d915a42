// SPDX-License-Identifier: MIT
#include "vqview/window/FilePrompt.h"

#include "vqview/session/Session.h"
#include "vqview/text/Text.h"
#include "vqview/window/Completion.h"
#include "vqview/window/Popups.h"

#include <imgui.h>
#include <imgui_stdlib.h>

#include <system_error>

namespace vqview {

namespace {

using std::filesystem::path;

constexpr const char* kPopup = "File";
constexpr float kPathWidth = 34; // in heights of the text
constexpr int kCompletionsShown = 8;
constexpr std::size_t kMostCompletions = 200;

bool openScan(Session& session, const path& file)
{
    session.open(file);
    return true; // the session tells what becomes of it
}

bool loadPreferences(Session& session, const path& file)
{
    const bool isRead = CVQDrawProperty::ReadPreferenceFromFile(textOfPath(file)) == 1;
    session.preferencesChanged();
    return isRead;
}

bool loadLegacyPreferences(Session& session, const path& file)
{
    const bool isRead = CVQDrawProperty::ReadPreferenceFromFileLegacy(textOfPath(file)) == 1;
    session.preferencesChanged();
    return isRead;
}

/// Lets the library's file dialog, which it opens for palettes, answer with a path.
class AnsweredDialog
{
public:
    explicit AnsweredDialog(const path& file)
    {
        vq::afx::setFileDialogProvider(
            [answer = textOfPath(file)](const vq::afx::FileDialogRequest&) { return answer; });
    }
    ~AnsweredDialog() { vq::afx::setFileDialogProvider({}); }
    AnsweredDialog(const AnsweredDialog&) = delete;
    AnsweredDialog& operator=(const AnsweredDialog&) = delete;
};

bool loadPalette(Session&, const path& file)
{
    const AnsweredDialog dialog(file);
    return CVQDrawProperty::LoadMaterialConfig(true);
}

bool savePalette(Session&, const path& file)
{
    const AnsweredDialog dialog(file);
    return CVQDrawProperty::SaveMaterialConfig(true);
}

struct Task
{
    const char* title;
    const char* verb;
    const char* suggested;
    bool writes;
    bool tellsItself; ///< what became of it
    bool (*perform)(Session&, const path&);
};

constexpr std::array<Task, static_cast<std::size_t>(FileTask::End)> kTasks{{
    {"Open a scan or a document", "Open", "", false, true, openScan},
    {"Save the view as a picture", "Save", "view.png", true, true,
     [](Session& session, const path& file) { return session.savePicture(file); }},
    {"Save a report", "Save", "report.png", true, true,
     [](Session& session, const path& file) { return session.saveReport(file); }},
    {"Save a document", "Save", "document.vqd", true, true,
     [](Session& session, const path& file) { return session.saveDocument(file); }},
    {"Load preferences", "Load", "", false, false, loadPreferences},
    {"Load preferences of the legacy layout", "Load", "", false, false, loadLegacyPreferences},
    {"Load the palette of materials", "Load", "materials.kmt", false, false, loadPalette},
    {"Save the palette of materials", "Save", "materials.kmt", true, false, savePalette},
}};

const Task& taskOf(FileTask task)
{
    return kTasks[static_cast<std::size_t>(task)];
}

} // namespace

FilePrompt::FilePrompt()
{
    std::ranges::transform(kTasks, m_paths.begin(), &Task::suggested);
}

std::string& FilePrompt::typed()
{
    return m_paths[static_cast<std::size_t>(m_task)];
}

void FilePrompt::ask(FileTask task)
{
    m_task = task;
    m_isAsked = true;
}

void FilePrompt::draw(Session& session)
{
    const bool isNew = std::exchange(m_isAsked, false);
    if (isNew) {
        m_completed = typed();
        m_completions = completionsOf(m_completed, kMostCompletions);
        ImGui::OpenPopup(kPopup);
    }
    const ImVec2 display = ImGui::GetIO().DisplaySize;
    ImGui::SetNextWindowPos({display.x / 2, display.y / 4}, ImGuiCond_Always, {0.5f, 0});
    if (!ImGui::BeginPopup(kPopup))
        return;
    closeByEscape();
    ImGui::TextUnformatted(taskOf(m_task).title);
    if (isNew)
        ImGui::SetKeyboardFocusHere();
    drawPath(session);
    drawCompletions();
    ImGui::EndPopup();
}

void FilePrompt::drawPath(Session& session)
{
    const Task& task = taskOf(m_task);
    ImGui::SetNextItemWidth(kPathWidth * ImGui::GetFontSize());
    bool isGiven = ImGui::InputText("##path", &typed(), ImGuiInputTextFlags_EnterReturnsTrue);
    std::error_code ignored; // what cannot be asked is no file
    const bool isFile = std::filesystem::is_regular_file(pathOf(typed()), ignored);
    const bool isPossible = isFile || (task.writes && !typed().empty() && !typed().ends_with('/'));
    ImGui::SameLine();
    ImGui::BeginDisabled(!isPossible);
    isGiven |= ImGui::Button(task.writes && isFile ? "Replace" : task.verb);
    ImGui::EndDisabled();
    ImGui::SameLine();
    if (ImGui::Button("Cancel"))
        ImGui::CloseCurrentPopup();
    if (isGiven && isPossible)
        finish(session);
}

void FilePrompt::drawCompletions()
{
    if (m_completed != typed()) {
        m_completed = typed();
        m_completions = completionsOf(m_completed, kMostCompletions);
    }
    const float height = kCompletionsShown * ImGui::GetTextLineHeightWithSpacing();
    if (ImGui::BeginChild("##completions", {0, height})) {
        for (const std::string& completion : m_completions) {
            if (ImGui::Selectable(completion.c_str(), false, ImGuiSelectableFlags_DontClosePopups))
                typed() = completion;
        }
    }
    ImGui::EndChild();
}

void FilePrompt::finish(Session& session)
{
    const Task& task = taskOf(m_task);
    const bool worked = task.perform(session, pathOf(typed()));
    if (!task.tellsItself)
        session.say(std::string(task.title) + (worked ? ": done" : ": failed: ") + (worked ? "" : typed()));
    ImGui::CloseCurrentPopup();
}

} // namespace vqview
