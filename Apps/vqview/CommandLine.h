// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vqview {

struct CommandLine
{
    std::filesystem::path model;
    std::filesystem::path script;
    std::filesystem::path offScreenFolder; ///< empty: a window
    int width = 1280, height = 800;
    bool echoes = false;
    bool isHelp = false;
    std::string fault; ///< what cannot be understood
};

inline constexpr char kUsage[] = R"(vqview [OPTION]... [SCAN]      OBJ, PLY, STL, OFF, XYZ, or a document (.vqd)
  --offscreen FOLDER   no window: plays the script, and puts its pictures and their page into FOLDER
  --script FILE        mouse and keys as text; in a window it is played once the scan is there
  --window-size WxH    in pixels; 1280x800
  --echo               prints what the status line says, and how the scan is looked at, whenever that changes
  --help
)";

CommandLine commandLineOf(const std::vector<std::string_view>& arguments);

} // namespace vqview
