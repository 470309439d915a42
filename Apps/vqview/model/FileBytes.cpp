// SPDX-License-Identifier: MIT
#include "vqview/model/FileBytes.h"

#include <algorithm>
#include <fstream>
#include <limits>
#include <new>

namespace vqview {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kPieceSize = 1 << 22;

/// In bytes. Linux promises more memory than it has, and ends whoever uses it; elsewhere there is no such file, and an
/// allocation fails when memory is short.
std::uintmax_t availableMemory()
{
    std::ifstream file("/proc/meminfo");
    for (std::string name; file >> name;) {
        std::uintmax_t kilobytes = 0;
        if (name == "MemAvailable:" && file >> kilobytes)
            return kilobytes * 1024;
    }
    return std::numeric_limits<std::uintmax_t>::max();
}

} // namespace

std::string whyNoFile(const fs::path& path)
{
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (status.type() == fs::file_type::not_found)
        return "is not there";
    if (fs::is_directory(status))
        return "is a folder";
    if (fs::exists(status) && !fs::is_regular_file(status))
        return "is not a file";
    const std::uintmax_t size = fs::file_size(path, error);
    if (error)
        return "cannot be opened";
    if (size == 0)
        return "is empty";
    // What is read, and about as much again for what is made of it.
    return size > availableMemory() / 2 ? "is too large for this computer's memory" : std::string();
}

std::string FileBytes::read(const fs::path& path, Progress& progress)
{
    if (std::string why = whyNoFile(path); !why.empty())
        return why;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return "cannot be opened";
    const auto size = static_cast<std::size_t>(fs::file_size(path));
    m_bytes = std::make_unique_for_overwrite<char[]>(size);
    while (m_size < size && progress.report(static_cast<double>(m_size), static_cast<double>(size))) {
        const std::size_t piece = std::min(kPieceSize, size - m_size);
        file.read(m_bytes.get() + m_size, static_cast<std::streamsize>(piece));
        m_size += static_cast<std::size_t>(file.gcount());
        if (!file)
            return "cannot be read to its end";
    }
    return {};
}

} // namespace vqview
