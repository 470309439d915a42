// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace vqview {

/// The library's texts are wide, those of the window UTF-8.
std::string utf8Of(std::wstring_view text);
std::wstring wideOf(std::string_view utf8);

std::string utf8Of(const std::filesystem::path& path);
std::filesystem::path pathOf(std::string_view utf8);
CString textOf(const std::filesystem::path& path);

} // namespace vqview
