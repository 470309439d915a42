// SPDX-License-Identifier: MIT
#include "vqview/window/Completion.h"

#include "vqview/text/Text.h"

#include <algorithm>
#include <system_error>

namespace vqview {

namespace {

namespace fs = std::filesystem;

struct Found
{
    bool isFile;
    std::string text;

    friend auto operator<=>(const Found&, const Found&) = default;
};

bool goesOn(const std::string& name, const std::string& begun)
{
    return name.starts_with(begun) && (!name.starts_with('.') || begun.starts_with('.'));
}

} // namespace

std::vector<std::string> completionsOf(const std::string& typed, std::size_t most)
{
    const std::size_t slash = typed.find_last_of('/');
    const std::string folder = slash == std::string::npos ? std::string() : typed.substr(0, slash + 1);
    const std::string begun = typed.substr(folder.size());
    std::vector<Found> all;
    std::error_code error;
    fs::directory_iterator entry(folder.empty() ? fs::path(".") : pathOf(folder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code ignored; // what cannot be asked is no folder
        const bool isFolder = entry->is_directory(ignored);
        const std::string name = utf8Of(entry->path().filename());
        if (goesOn(name, begun))
            all.push_back({!isFolder, folder + name + (isFolder ? "/" : "")});
    }
    const std::size_t count = std::min(most, all.size());
    std::ranges::partial_sort(all, all.begin() + static_cast<std::ptrdiff_t>(count));
    std::vector<std::string> result;
    std::ranges::transform(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(count), std::back_inserter(result),
                           &Found::text);
    return result;
}

} // namespace vqview
