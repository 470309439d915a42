// SPDX-License-Identifier: MIT
#include "support/Gallery.h"

#include <algorithm>
#include <fstream>
#include <utility>

namespace {

constexpr std::string_view kSectionEnding = ".section.html";

constexpr std::string_view kPageBegin = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>VQDraw at work</title><style>
body { font: 15px/1.5 sans-serif; max-width: 72rem; margin: 2rem auto; padding: 0 1rem; color: #222 }
section { display: grid; grid-template-columns: repeat(auto-fill, minmax(20rem, 1fr)); gap: 1.5rem }
h2 { grid-column: 1 / -1; margin-bottom: 0 }
figure { margin: 0 }
img { max-width: 100%; background: repeating-conic-gradient(#ccc 0 25%, #fff 0 50%) 0 0 / 16px 16px }
figcaption { color: #555 }
</style></head><body><h1>VQDraw at work</h1>
)";
constexpr std::string_view kPageEnd = "</body></html>\n";

std::string read(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool write(const std::filesystem::path& file, std::string_view text)
{
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    return static_cast<bool>(stream.flush());
}

bool isThere(const std::filesystem::path& file)
{
    std::error_code error;
    return std::filesystem::exists(file, error);
}

} // namespace

Gallery::Gallery(std::filesystem::path folder, std::string section, std::string title)
    : m_folder(std::move(folder)), m_section(std::move(section)), m_title(std::move(title))
{
    std::error_code error; // where there is no folder, nothing can be added to it
    std::filesystem::create_directories(m_folder, error);
}

bool Gallery::add(CVQDIB& picture, const std::string& name, const std::string& caption)
{
    const std::string file = m_section + "-" + name + ".png";
    m_entries.push_back({file, caption});
    std::error_code error; // saving does not tell: a picture that was there before must not speak for this one
    std::filesystem::remove(m_folder / file, error);
    return picture.Save((m_folder / file).wstring().c_str()) && isThere(m_folder / file);
}

bool Gallery::finish() const
{
    std::string section = "<section><h2>" + m_title + "</h2>\n";
    for (const Entry& entry : m_entries)
        section += "<figure><a href=\"" + entry.file + "\"><img src=\"" + entry.file + "\" alt=\"\"></a><figcaption>" +
                   entry.caption + "</figcaption></figure>\n";
    section += "</section>\n";
    if (!write(m_folder / (m_section + std::string(kSectionEnding)), section))
        return false;

    std::vector<std::filesystem::path> sections;
    for (const auto& entry : std::filesystem::directory_iterator(m_folder))
        if (entry.path().filename().string().ends_with(kSectionEnding))
            sections.push_back(entry.path());
    std::sort(sections.begin(), sections.end());

    std::string page(kPageBegin);
    for (const auto& file : sections)
        page += read(file);
    page += kPageEnd;
    return write(m_folder / "index.html", page);
}
