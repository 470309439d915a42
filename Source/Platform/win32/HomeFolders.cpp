// SPDX-License-Identifier: MIT
#include "Platform/win32/HomeFolders.h"

#include "Platform/win32/Strings.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <pwd.h>
#include <string_view>
#include <unistd.h>

namespace vq::win32 {
namespace {

std::string environment(const char* name)
{
    const char* const value = std::getenv(name);
    return value ? value : "";
}

std::string withoutSeparator(std::string path)
{
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

std::string homeFolder()
{
    std::string home = environment("HOME");
    if (!home.empty())
        return withoutSeparator(std::move(home));
    passwd entry{};
    passwd* found = nullptr;
    char texts[4096];
    getpwuid_r(getuid(), &entry, texts, sizeof texts, &found);
    return found ? found->pw_dir : "/";
}

/// Of a line such as `XDG_DOCUMENTS_DIR="$HOME/Documents"` the folder; empty for any other line.
std::string documentsOf(std::string_view line)
{
    constexpr std::string_view kName = "XDG_DOCUMENTS_DIR=\"";
    constexpr std::string_view kHome = "$HOME";
    if (!line.starts_with(kName))
        return {};
    line.remove_prefix(kName.size());
    line = line.substr(0, line.find('"'));
    if (line.starts_with(kHome))
        return homeFolder() + std::string(line.substr(kHome.size()));
    return line.starts_with('/') ? std::string(line) : std::string();
}

std::string namedDocuments()
{
    std::ifstream file(configurationFolder() + "/user-dirs.dirs");
    std::string folder;
    for (std::string line; std::getline(file, line);) {
        if (std::string named = documentsOf(line); !named.empty())
            folder = withoutSeparator(std::move(named)); // the last one counts: it is a script of the shell
    }
    return folder;
}

} // namespace

std::wstring documentsFolder(bool make)
{
    const std::string folder = namedDocuments();
    std::error_code error;
    if (make && !folder.empty())
        std::filesystem::create_directories(folder, error);
    return fromUtf8(std::filesystem::is_directory(folder, error) ? folder : homeFolder());
}

std::string configurationFolder()
{
    const std::string chosen = environment("XDG_CONFIG_HOME");
    return chosen.starts_with('/') ? withoutSeparator(chosen) : homeFolder() + "/.config"; // others count as none
}

} // namespace vq::win32
