// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Files of the image class, byte by byte, for its tests.

#include "parity/Encoders.h"
#include "parity/KnownDifferences.h"
#include "support/Pictures.h"
#include "vqCommonBase/VQArchive.h"

#include <string>
#include <string_view>

namespace vq::test {

using FileContent = std::vector<BYTE>;

inline std::string textOf(const FileContent& bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// Appends a number of `count` bytes, the lowest first.
inline void appendNumber(FileContent& bytes, std::uint64_t number, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<BYTE>(number >> 8 * i));
}

inline std::uint32_t numberAt(const FileContent& bytes, std::size_t at)
{
    return bytes.at(at) | static_cast<std::uint32_t>(bytes.at(at + 1)) << 8 |
           static_cast<std::uint32_t>(bytes.at(at + 2)) << 16 | static_cast<std::uint32_t>(bytes.at(at + 3)) << 24;
}

/// The fields of a Windows bitmap that the tests vary.
struct WindowsBitmapFile
{
    std::int32_t width;
    std::int32_t height;
    Pixels pixels; // from the top; alpha is not stored
    std::uint16_t signature = 0x4D42;
    std::uint16_t bits = 24;
    std::uint32_t gap = 0; // bytes between the headers and the pixels

    std::string bytes() const
    {
        FileContent file;
        appendNumber(file, signature, 2);
        appendNumber(file, 0, 4); // readers do not look at it
        appendNumber(file, 0, 4);
        appendNumber(file, 54 + gap, 4);
        appendNumber(file, 40, 4);
        appendNumber(file, static_cast<std::uint32_t>(width), 4);
        appendNumber(file, static_cast<std::uint32_t>(height), 4);
        appendNumber(file, 1, 2);
        appendNumber(file, bits, 2);
        file.resize(54 + gap, 0);
        const auto columns = static_cast<std::size_t>(width);
        for (std::size_t end = pixels.size(); end >= columns && end > 0; end -= columns) {
            for (std::size_t i = end - columns; i < end; ++i)
                appendNumber(file, pixels[i], 3);
            file.resize((file.size() - 54 - gap + 3) / 4 * 4 + 54 + gap, 0);
        }
        return textOf(file);
    }
};

inline Pixels opaque(Pixels content)
{
    for (ULONG& pixel : content)
        pixel |= 0xFF000000;
    return content;
}

/// The pixels that `Load` makes of a saved picture: where alpha is 0 nothing is left.
inline Pixels clearedWhereTransparent(Pixels content)
{
    for (ULONG& pixel : content)
        pixel = pixel >> 24 ? pixel : 0;
    return content;
}

/// A file beside a temporary one, which goes with it.
class FileBeside
{
public:
    FileBeside(const TemporaryFile& file, const wchar_t* ending) : m_path(std::wstring(file.path()) + ending) {}
    ~FileBeside() { DeleteFileW(m_path.c_str()); }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;

    const wchar_t* path() const { return m_path.c_str(); }
    bool exists() const { return GetFileAttributesW(path()) != INVALID_FILE_ATTRIBUTES; }
    FileContent read() const
    {
        FileContent content;
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

/// Whether a new file was left behind that never came to its place.
inline bool leavesNothingBehind(const wchar_t* path)
{
    return GetFileAttributesW((std::wstring(path) + L".new0").c_str()) == INVALID_FILE_ATTRIBUTES;
}

inline FileContent contentOf(const CVQMemoryArchive& archive)
{
    return {archive.GetBuffer(), archive.GetBuffer() + archive.GetSize()};
}

/// A picture with every kind of alpha, the same on every system.
inline void paintMixed(CVQDIB& image, std::uint32_t seed = 7)
{
    fillRandom(image, seed);
    for (std::int64_t i = 0; i < image.GetSize(); i += 5)
        image[i] |= 0xFF000000;
    for (std::int64_t i = 1; i < image.GetSize(); i += 5)
        image[i] &= 0x00FFFFFF;
}

} // namespace vq::test
