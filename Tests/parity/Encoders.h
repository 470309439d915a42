// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Pictures through files and streams, for tests.

#include "Platform/Platform.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace vq::test {

/// {557CF4nn-1A04-11D3-9A73-0000F81EF32E}
inline CLSID encoderId(DWORD number)
{
    return {0x557CF400 + number, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
}

constexpr DWORD kBmp = 0;
constexpr DWORD kJpeg = 1;
constexpr DWORD kGif = 2;
constexpr DWORD kTiff = 5;
constexpr DWORD kPng = 6;

/// A growing stream in memory.
class MemoryStream
{
public:
    MemoryStream() { CreateStreamOnHGlobal(nullptr, TRUE, &m_stream); }
    explicit MemoryStream(const std::string& content) : MemoryStream()
    {
        ULONG written = 0;
        m_stream->Write(content.data(), static_cast<ULONG>(content.size()), &written);
    }
    ~MemoryStream() { m_stream->Release(); }
    MemoryStream(const MemoryStream&) = delete;
    MemoryStream& operator=(const MemoryStream&) = delete;

    IStream* get() const { return m_stream; }

    std::uint64_t position() const { return seek(0, STREAM_SEEK_CUR); }
    std::uint64_t seek(std::int64_t move, DWORD origin) const
    {
        LARGE_INTEGER distance{};
        distance.QuadPart = move;
        ULARGE_INTEGER position{};
        m_stream->Seek(distance, origin, &position);
        return position.QuadPart;
    }

    std::vector<BYTE> bytes() const
    {
        std::vector<BYTE> content(static_cast<std::size_t>(seek(0, STREAM_SEEK_END)));
        seek(0, STREAM_SEEK_SET);
        ULONG read = 0;
        m_stream->Read(content.data(), static_cast<ULONG>(content.size()), &read);
        content.resize(read);
        return content;
    }

private:
    IStream* m_stream = nullptr;
};

/// A name for a file in the folder for temporary files, and that file's end.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::wstring& name)
    {
        wchar_t folder[MAX_PATH] = {};
        GetTempPathW(MAX_PATH, folder);
        m_path = std::wstring(folder) + L"vq_" + std::to_wstring(reinterpret_cast<std::uintptr_t>(this)) + L"_" + name;
    }
    ~TemporaryFile() { DeleteFileW(m_path.c_str()); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const wchar_t* path() const { return m_path.c_str(); }

    void write(const std::string& content) const
    {
        std::FILE* file = _wfopen(path(), L"wb");
        ASSERT_TRUE(file);
        std::fwrite(content.data(), 1, content.size(), file);
        std::fclose(file);
    }

    std::vector<BYTE> read() const
    {
        std::vector<BYTE> content;
        if (std::FILE* file = _wfopen(path(), L"rb")) {
            for (int c = std::fgetc(file); c != EOF; c = std::fgetc(file))
                content.push_back(static_cast<BYTE>(c));
            std::fclose(file);
        }
        return content;
    }

private:
    std::wstring m_path;
};

} // namespace vq::test
