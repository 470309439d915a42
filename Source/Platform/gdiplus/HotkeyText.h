// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/Enums.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vq::gdiplus {

/// A text as it is laid out: without the marks of its hotkeys where these are shown or hidden. A mark is a single '&';
/// of two one remains. Takes memory only for a text that is changed.
class HotkeyText
{
public:
    HotkeyText(std::wstring_view text, Gdiplus::HotkeyPrefix prefix);
    HotkeyText(const HotkeyText&) = delete;
    HotkeyText& operator=(const HotkeyText&) = delete;

    std::wstring_view text() const { return m_marks.empty() ? m_original : m_stripped; }
    /// The characters of `text()` that are underlined.
    std::span<const std::size_t> underlined() const { return m_underlined; }
    /// How many characters of the original text belong to the first `count` of `text()`.
    std::size_t originalCount(std::size_t count) const;

private:
    std::wstring_view m_original;
    std::wstring m_stripped;
    std::vector<std::size_t> m_marks; ///< where marks were, as places in the stripped text
    std::vector<std::size_t> m_underlined;
};

} // namespace vq::gdiplus
