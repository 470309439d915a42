// SPDX-License-Identifier: MIT
#include "vqview/session/Text.h"

#include <type_traits>
#include <vector>

namespace vqview {

namespace {

/// The standard library's own conversions throw at what is no Unicode. They are needed nowhere: a path is wide where
/// the system's paths are, and UTF-8 otherwise.
constexpr bool kPathsAreWide = std::is_same_v<std::filesystem::path::value_type, wchar_t>;

template <typename Native>
CString wideOf(const Native& native)
{
    if constexpr (kPathsAreWide)
        return CString(native.c_str());
    else
        return wide(std::string_view(native));
}

template <typename Native>
std::string shownOf(const Native& native)
{
    if constexpr (kPathsAreWide) {
        const int length = static_cast<int>(native.size());
        const int count = WideCharToMultiByte(CP_UTF8, 0, native.data(), length, nullptr, 0, nullptr, nullptr);
        std::string utf8(static_cast<std::size_t>(std::max(count, 0)), '\0');
        WideCharToMultiByte(CP_UTF8, 0, native.data(), length, utf8.data(), count, nullptr, nullptr);
        return utf8;
    } else {
        return native;
    }
}

template <typename Path>
Path pathOfText(std::string_view utf8)
{
    if constexpr (kPathsAreWide)
        return Path(std::wstring(static_cast<const wchar_t*>(wide(utf8))));
    else
        return Path(utf8);
}

} // namespace

CString wide(std::string_view utf8)
{
    const int bytes = static_cast<int>(std::min<std::size_t>(utf8.size(), 0x10000));
    const int count = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, nullptr, 0);
    if (count <= 0)
        return {};
    std::vector<wchar_t> text(static_cast<std::size_t>(count) + 1);
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), bytes, text.data(), count);
    return CString(text.data());
}

CString wide(const std::filesystem::path& path)
{
    return wideOf(path.native());
}

std::string shown(const std::filesystem::path& path)
{
    return shownOf(path.native());
}

std::filesystem::path pathOf(std::string_view utf8)
{
    return pathOfText<std::filesystem::path>(utf8);
}

std::string counted(std::size_t number)
{
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > 3;)
        text.insert(place -= 3, 1, ',');
    return text;
}

} // namespace vqview
