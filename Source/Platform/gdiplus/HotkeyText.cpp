// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/HotkeyText.h"

#include <algorithm>

namespace vq::gdiplus {

HotkeyText::HotkeyText(std::wstring_view text, Gdiplus::HotkeyPrefix prefix) : m_original(text)
{
    if (prefix == Gdiplus::HotkeyPrefixNone || text.find(L'&') == std::wstring_view::npos)
        return;
    bool marked = false;
    for (const wchar_t character : text) {
        if (character == L'&' && !marked) {
            m_marks.push_back(m_stripped.size());
            marked = true;
            continue;
        }
        if (marked && character != L'&' && prefix == Gdiplus::HotkeyPrefixShow)
            m_underlined.push_back(m_stripped.size());
        m_stripped += character;
        marked = false;
    }
}

std::size_t HotkeyText::originalCount(std::size_t count) const
{
    if (count == text().size())
        return m_original.size();
    const auto before = std::ranges::lower_bound(m_marks, count) - m_marks.begin();
    return count + static_cast<std::size_t>(before);
}

} // namespace vq::gdiplus
