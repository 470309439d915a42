// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace vqview {

/// The library's texts are wide, those of the user interface and of files UTF-8. What is no text of its kind becomes
/// replacement characters.
std::string utf8Of(std::wstring_view text);
std::wstring wideOf(std::string_view utf8);
CString textOf(std::string_view utf8);

/// @name Paths, whatever bytes they are of: nothing is thrown
/// @{
std::string utf8Of(const std::filesystem::path& path);
std::filesystem::path pathOf(std::string_view utf8);
CString textOfPath(const std::filesystem::path& path);
/// @}

/// 1234567 as "1,234,567", in every locale.
std::string counted(std::size_t number);

} // namespace vqview
