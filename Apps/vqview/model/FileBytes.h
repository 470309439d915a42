// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/Progress.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace vqview {

/// A whole file in memory.
class FileBytes
{
public:
    /// @return what is wrong, as a sentence that goes on after the file's name ("is a folder"); empty when nothing is.
    ///         When cancelled, only some bytes are there.
    std::string read(const std::filesystem::path& path, Progress& progress);
    std::string_view view() const { return {m_bytes.get(), m_size}; }

private:
    std::unique_ptr<char[]> m_bytes;
    std::size_t m_size = 0;
};

/// Why a path cannot be read as a file; empty when it can, or nothing speaks against it.
std::string whyNoFile(const std::filesystem::path& path);

} // namespace vqview
