// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <filesystem>
#include <string>
#include <vector>

/// Pictures with captions, collected on one page: `index.html` in a folder that several programs may add to.
class Gallery
{
public:
    /// `section` names the files of this program and orders it among the others; `title` stands above its pictures.
    Gallery(std::filesystem::path folder, std::string section, std::string title);

    /// Writes the picture as PNG. @return false when it could not be written.
    bool add(CVQDIB& picture, const std::string& name, const std::string& caption);

    /// Writes this program's section and makes the page anew from all sections in the folder. @return false when a
    /// file could not be written.
    bool finish() const;

    const std::filesystem::path& folder() const { return m_folder; }

private:
    struct Entry
    {
        std::string file;
        std::string caption;
    };

    std::filesystem::path m_folder;
    std::string m_section;
    std::string m_title;
    std::vector<Entry> m_entries;
};
