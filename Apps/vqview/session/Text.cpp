// SPDX-License-Identifier: MIT
#include "vqview/session/Text.h"

#include <vector>

namespace vqview {

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

std::string shown(const std::filesystem::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string counted(std::size_t number)
{
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > 3;)
        text.insert(place -= 3, 1, ',');
    return text;
}

} // namespace vqview
