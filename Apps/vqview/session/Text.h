// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace vqview {

/// UTF-8 as the library takes text; what is no UTF-8 becomes replacement characters.
CString wide(std::string_view utf8);

/// A path as the library takes it.
inline CString wide(const std::filesystem::path& path)
{
    return CString(path.wstring().c_str());
}

/// A path as it is shown, UTF-8.
std::string shown(const std::filesystem::path& path);

/// 1234567 as "1,234,567".
std::string counted(std::size_t number);

} // namespace vqview
