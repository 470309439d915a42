// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Small scans as text and bytes, and files of them.

#include "vqview/model/Readers.h"

#include <gmock/gmock.h>

#include <bit>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace vqview::test {

/// A file in a folder of its own, which goes with the object.
class ScanFile
{
public:
    ScanFile(const std::filesystem::path& name, std::string_view bytes)
    {
        const auto time = std::filesystem::file_time_type::clock::now().time_since_epoch().count();
        m_folder = std::filesystem::temp_directory_path() /
                   ("vqview_" + std::to_string(reinterpret_cast<std::uintptr_t>(this)) + "_" + std::to_string(time));
        std::filesystem::create_directory(m_folder);
        m_path = m_folder / name;
        write(bytes);
    }
    ~ScanFile()
    {
        std::error_code error;
        std::filesystem::remove_all(m_folder, error);
    }
    ScanFile(const ScanFile&) = delete;
    ScanFile& operator=(const ScanFile&) = delete;

    void write(std::string_view bytes)
    {
        std::ofstream file(m_path, std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        EXPECT_TRUE(file.good());
    }
    const std::filesystem::path& path() const { return m_path; }
    const std::filesystem::path& folder() const { return m_folder; }

private:
    std::filesystem::path m_folder, m_path;
};

/// Numbers as bytes one after the other, in the order of bytes that is named.
template <std::endian kOrder, typename... Numbers>
std::string bytesOf(Numbers... numbers)
{
    std::string bytes;
    const auto append = [&bytes](auto number) {
        auto raw = std::bit_cast<std::array<char, sizeof number>>(number);
        if (kOrder != std::endian::native)
            std::ranges::reverse(raw);
        bytes.append(raw.data(), raw.size());
    };
    (append(numbers), ...);
    return bytes;
}

template <typename... Numbers>
std::string littleEndian(Numbers... numbers)
{
    return bytesOf<std::endian::little>(numbers...);
}

template <typename... Numbers>
std::string bigEndian(Numbers... numbers)
{
    return bytesOf<std::endian::big>(numbers...);
}

/// What a reader makes of a text.
struct Read
{
    RawMesh mesh;
    std::string failure;
};

inline Read readAs(ScanFormat format, std::string_view bytes)
{
    Read made;
    Progress progress;
    made.failure = read(format, bytes, made.mesh, progress);
    return made;
}

} // namespace vqview::test

namespace vqview {

inline void PrintTo(const Point3& point, std::ostream* out)
{
    *out << '(' << point.x << ", " << point.y << ", " << point.z << ')';
}

} // namespace vqview
