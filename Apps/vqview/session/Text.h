// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace vqview {

/// UTF-8 as the library takes text; what is no UTF-8 becomes replacement characters.
CString wide(std::string_view utf8);

/// @name Paths, whatever bytes they are of: nothing is thrown
/// @{
/// As the library takes them.
CString wide(const std::filesystem::path& path);
/// As they are shown, UTF-8.
std::string shown(const std::filesystem::path& path);
/// From what was shown, or typed.
std::filesystem::path pathOf(std::string_view utf8);
/// @}

/// 1234567 as "1,234,567".
std::string counted(std::size_t number);

} // namespace vqview
