// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Files for a test, in a folder of their own.

#include "Platform/Platform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vq::test {

/// A folder below the one for temporary files. It goes with the object, and what is in it too.
class TemporaryFolder
{
public:
    /// The folder's name ends with `name`.
    explicit TemporaryFolder(const std::wstring& name = L"folder")
    {
        wchar_t folder[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, folder);
        const auto time = std::filesystem::file_time_type::clock::now().time_since_epoch().count();
        m_path = folder + (L"vq_" + std::to_wstring(reinterpret_cast<std::uintptr_t>(this)) + L"_" +
                           std::to_wstring(time) + L"_" + name);
        EXPECT_TRUE(CreateDirectoryW(m_path.c_str(), nullptr));
    }
    ~TemporaryFolder()
    {
        namespace fs = std::filesystem;
        std::error_code error;
        for (const auto& entry : fs::recursive_directory_iterator(native(), error))
            fs::permissions(entry.path(), fs::perms::owner_write, fs::perm_options::add, error);
        fs::remove_all(native(), error);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    CString path() const { return m_path.c_str(); }
    CString path(const wchar_t* name) const { return (*this / name).c_str(); }
    std::wstring operator/(const std::wstring& name) const { return m_path + L"/" + name; }

    /// The names of its files, sorted.
    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(native()))
            found.push_back(entry.path().filename().string());
        std::ranges::sort(found);
        return found;
    }

private:
    std::filesystem::path native() const
    {
        std::u8string bytes(4 * m_path.size(), u8'\0');
        const int count = WideCharToMultiByte(CP_UTF8, 0, m_path.data(), static_cast<int>(m_path.size()),
                                              reinterpret_cast<char*>(bytes.data()), static_cast<int>(bytes.size()),
                                              nullptr, nullptr);
        bytes.resize(static_cast<std::size_t>(count));
        return bytes;
    }

    std::wstring m_path;
};

inline void writeBytes(const std::wstring& path, std::string_view bytes)
{
    std::FILE* const file = _wfopen(path.c_str(), L"wb");
    ASSERT_TRUE(file);
    EXPECT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), file), bytes.size());
    EXPECT_EQ(std::fclose(file), 0);
}

/// Nothing when there is no such file.
inline std::string bytesOfFile(const std::wstring& path)
{
    std::string bytes;
    if (std::FILE* const file = _wfopen(path.c_str(), L"rb")) {
        char buffer[4096];
        while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file))
            bytes.append(buffer, count);
        std::fclose(file);
    }
    return bytes;
}

} // namespace vq::test
