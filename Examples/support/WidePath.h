// SPDX-License-Identifier: MIT
#pragma once

#include <VQDraw/VQDraw.h>

#include <filesystem>

/// A path as the library takes it. Unlike `path::wstring` this does not depend on the locale, under "C" of which that
/// throws at every letter beyond ASCII.
inline CString widePath(const std::filesystem::path& path)
{
    const std::u8string name = path.u8string();
    const int bytes = static_cast<int>(name.size());
    const auto* const text = reinterpret_cast<const char*>(name.data());
    std::wstring wide(name.size(), L'\0');
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, text, bytes, wide.data(), static_cast<int>(wide.size()))));
    return CString(wide.c_str());
}
