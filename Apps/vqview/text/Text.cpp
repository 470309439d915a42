// SPDX-License-Identifier: MIT
#include "vqview/text/Text.h"

#include <algorithm>
#include <limits>
#include <type_traits>

namespace vqview {

namespace {

template <typename Text>
int lengthOf(const Text& text)
{
    return static_cast<int>(std::min<std::size_t>(text.size(), std::numeric_limits<int>::max() / 8));
}

/// The standard library's own conversions of paths throw at what is no Unicode: a path is taken as the system has it.
constexpr bool kPathsAreWide = std::is_same_v<std::filesystem::path::value_type, wchar_t>;

template <typename Native>
std::string utf8OfNative(const Native& native)
{
    if constexpr (kPathsAreWide)
        return utf8Of(std::wstring_view(native));
    else
        return native;
}

template <typename Path>
Path pathOfUtf8(std::string_view utf8)
{
    if constexpr (kPathsAreWide)
        return Path(wideOf(utf8));
    else
        return Path(utf8);
}

} // namespace

std::string utf8Of(std::wstring_view text)
{
    const int length = lengthOf(text);
    const int bytes =
        length == 0 ? 0 : WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(bytes), '\0');
    if (bytes != 0)
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), bytes, nullptr, nullptr);
    return result;
}

std::wstring wideOf(std::string_view utf8)
{
    const int length = lengthOf(utf8);
    const int characters = length == 0 ? 0 : MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
    std::wstring result(static_cast<std::size_t>(characters), L'\0');
    if (characters != 0)
        MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, result.data(), characters);
    return result;
}

std::string utf8Of(const std::filesystem::path& path)
{
    return utf8OfNative(path.native());
}

std::filesystem::path pathOf(std::string_view utf8)
{
    return pathOfUtf8<std::filesystem::path>(utf8);
}

CString textOf(std::string_view utf8)
{
    return wideOf(utf8).c_str();
}

CString textOfPath(const std::filesystem::path& path)
{
    return textOf(utf8Of(path));
}

std::string counted(std::size_t number)
{
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > 3;)
        text.insert(place -= 3, 1, ',');
    return text;
}

} // namespace vqview
