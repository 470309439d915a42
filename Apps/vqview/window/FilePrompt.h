// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace vqview {

class Session;

/// What files are asked for.
enum class FileTask {
    OpenScan,
    SavePicture,
    SaveReport,
    SaveDocument,
    LoadPreferences,
    LoadLegacyPreferences,
    LoadPalette,
    SavePalette,
    End
};

/// Asks for a file's path, helps typing it, and does with the file what it was asked for.
class FilePrompt
{
public:
    FilePrompt();

    /// Opens with the path that was given last for the task.
    void ask(FileTask task);
    /// Once a frame, outside of other windows.
    void draw(Session& session);

private:
    void drawPath(Session& session);
    void drawCompletions();
    void finish(Session& session);
    std::string& typed();

    FileTask m_task = FileTask::OpenScan;
    bool m_isAsked = false;
    std::array<std::string, static_cast<std::size_t>(FileTask::End)> m_paths;
    std::vector<std::string> m_completions;
    std::string m_completed; ///< what they are completions of
};

} // namespace vqview
