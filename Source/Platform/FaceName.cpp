// SPDX-License-Identifier: MIT
#include "Platform/FaceName.h"

#include <algorithm>
#include <iterator>

namespace vq::platform {

#if defined(_WIN32)

void setFaceName(LOGFONTW& font, std::wstring_view name)
{
    constexpr std::size_t kRoom = LF_FACESIZE - 1;
    name = name.substr(0, name.find(L'\0'));
    std::size_t length = std::min(name.size(), kRoom);
    if (length < name.size() && IS_HIGH_SURROGATE(name[length - 1]))
        --length;
    std::ranges::copy(name.substr(0, length), font.lfFaceName);
    std::fill(font.lfFaceName + length, std::end(font.lfFaceName), L'\0');
}

std::wstring faceName(const LOGFONTW& font)
{
    return {std::begin(font.lfFaceName), std::find(std::begin(font.lfFaceName), std::end(font.lfFaceName), L'\0')};
}

#else

void setFaceName(LOGFONTW& font, std::wstring_view name)
{
    win32::setFaceName(font, name);
}

std::wstring faceName(const LOGFONTW& font)
{
    return win32::faceName(font);
}

#endif

} // namespace vq::platform
