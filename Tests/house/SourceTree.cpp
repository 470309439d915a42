// SPDX-License-Identifier: MIT
#include "house/SourceTree.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <regex>
#include <stdexcept>

namespace vq::house {

namespace {

constexpr std::array<std::string_view, 9> kFolders{"Source", "Apps",  "Examples", "Tests", "Bench",
                                                   "Docs",   "cmake", ".ci",      "."};
constexpr std::array<std::string_view, 9> kTextExtensions{".h",  ".cpp", ".cmake", ".txt", ".md",
                                                          ".in", ".map", ".json",  ""};

bool isText(const std::filesystem::path& path)
{
    return std::ranges::find(kTextExtensions, path.extension().string()) != kTextExtensions.end();
}

SourceFile read(const std::filesystem::path& root, const std::filesystem::path& path)
{
    SourceFile file{path.lexically_relative(root).generic_string(), {}};
    std::ifstream stream(path, std::ios::binary);
    for (std::string line; std::getline(stream, line);) {
        file.endsWithLineFeed = !stream.eof();
        file.lines.push_back(std::move(line));
    }
    return file;
}

template <typename Iterator>
void readAll(std::vector<SourceFile>& files, const std::filesystem::path& root, const std::filesystem::path& folder)
{
    for (const auto& entry : Iterator(folder)) {
        if (entry.is_regular_file() && isText(entry.path()))
            files.push_back(read(root, entry.path()));
    }
}

} // namespace

bool SourceFile::isBelow(std::string_view folder) const
{
    return path.starts_with(folder);
}

bool SourceFile::isCpp() const
{
    return path.ends_with(".h") || path.ends_with(".cpp");
}

std::vector<SourceFile> projectFiles()
{
    using std::filesystem::directory_iterator;
    using std::filesystem::recursive_directory_iterator;

    const std::filesystem::path root = std::filesystem::path(VQDRAW_SOURCE_DIR).lexically_normal();
    if (!std::filesystem::is_directory(root / "Source"))
        throw std::runtime_error("no project at " + root.string());
    std::vector<SourceFile> files;
    for (std::string_view folder : kFolders) {
        if (folder == ".")
            readAll<directory_iterator>(files, root, root);
        else if (std::filesystem::is_directory(root / folder))
            readAll<recursive_directory_iterator>(files, root, root / folder);
    }
    std::ranges::sort(files, {}, &SourceFile::path);
    return files;
}

bool Include::isBelow(std::string_view folder) const
{
    return header.starts_with(folder);
}

std::vector<Include> includesOf(const SourceFile& file)
{
    static const std::regex kInclude(R"(^\s*#\s*include\s*(["<])([^">]+)[">].*)");
    std::vector<Include> includes;
    std::smatch match;
    for (std::size_t i = 0; i < file.lines.size(); ++i) {
        if (std::regex_match(file.lines[i], match, kInclude))
            includes.push_back({i + 1, match[2], match[1] == "\""});
    }
    return includes;
}

std::string listed(const Faults& faults)
{
    std::string text;
    for (const std::string& sentence : faults)
        text += sentence + '\n';
    return text;
}

std::string fault(const SourceFile& file, std::size_t line, std::string_view sentence)
{
    return file.path + ":" + std::to_string(line) + ": " + std::string(sentence);
}

} // namespace vq::house
