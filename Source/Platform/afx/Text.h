// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/System.h"

#include <algorithm>
#include <array>

/// @file
/// Properties of characters that no locale changes.

namespace vq::afx {

constexpr LPCTSTR orEmpty(LPCTSTR text) noexcept
{
    return text ? text : L"";
}

constexpr wchar_t toLower(wchar_t character) noexcept
{
    return character >= L'A' && character <= L'Z' ? static_cast<wchar_t>(character + (L'a' - L'A')) : character;
}

constexpr wchar_t toUpper(wchar_t character) noexcept
{
    return character >= L'a' && character <= L'z' ? static_cast<wchar_t>(character - (L'a' - L'A')) : character;
}

/// The characters with the property White_Space in Unicode's PropList.txt.
constexpr bool isWhiteSpace(wchar_t character) noexcept
{
    struct Range
    {
        wchar_t first, last;
    };
    constexpr std::array kRanges{Range{L'\t', L'\r'},   Range{L' ', L' '},     Range{0x85, 0x85},
                                 Range{0xA0, 0xA0},     Range{0x1680, 0x1680}, Range{0x2000, 0x200A},
                                 Range{0x2028, 0x2029}, Range{0x202F, 0x202F}, Range{0x205F, 0x205F},
                                 Range{0x3000, 0x3000}};
    return std::any_of(kRanges.begin(), kRanges.end(),
                       [=](Range range) { return character >= range.first && character <= range.last; });
}

} // namespace vq::afx
