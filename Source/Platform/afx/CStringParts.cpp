// SPDX-License-Identifier: MIT
// Comparing, searching and taking parts.
#include "Platform/afx/CString.h"

#include "Platform/afx/Exceptions.h"
#include "Platform/afx/Text.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

using vq::afx::orEmpty;
using vq::afx::toLower;

namespace {

int indexOf(LPCTSTR found, LPCTSTR begin) noexcept
{
    return found ? static_cast<int>(found - begin) : -1;
}

} // namespace

int CString::Compare(LPCTSTR other) const noexcept
{
    return std::wcscmp(m_text, orEmpty(other));
}

int CString::CompareNoCase(LPCTSTR other) const noexcept
{
    LPCTSTR mine = m_text;
    LPCTSTR theirs = orEmpty(other);
    while (*mine && toLower(*mine) == toLower(*theirs)) {
        ++mine;
        ++theirs;
    }
    const auto order = toLower(*mine) <=> toLower(*theirs);
    return order < 0 ? -1 : order > 0;
}

CString CString::Left(int count) const
{
    return {m_text, std::clamp(count, 0, GetLength())};
}

CString CString::Mid(int first) const
{
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const
{
    const int begin = std::clamp(first, 0, GetLength());
    return {m_text + begin, std::clamp(count, 0, GetLength() - begin)};
}

CString CString::Right(int count) const
{
    const int length = std::clamp(count, 0, GetLength());
    return {m_text + GetLength() - length, length};
}

CString CString::SpanIncluding(LPCTSTR characters) const
{
    return Left(static_cast<int>(std::wcsspn(m_text, orEmpty(characters))));
}

CString CString::SpanExcluding(LPCTSTR characters) const
{
    return Left(static_cast<int>(std::wcscspn(m_text, orEmpty(characters))));
}

CString CString::Tokenize(LPCTSTR separators, int& start) const
{
    if (start < 0)
        AfxThrowInvalidArgException();
    separators = orEmpty(separators);
    if (start < GetLength() && !*separators)
        return Mid(start);
    if (start < GetLength()) {
        const int begin = start + static_cast<int>(std::wcsspn(m_text + start, separators));
        const int length = static_cast<int>(std::wcscspn(m_text + begin, separators));
        if (begin < GetLength()) {
            start = begin + length + 1;
            return Mid(begin, length);
        }
    }
    start = -1;
    return {};
}

int CString::Find(wchar_t character, int start) const noexcept
{
    if (start < 0 || start >= GetLength())
        return -1;
    return indexOf(std::wcschr(m_text + start, character), m_text);
}

int CString::Find(LPCTSTR text, int start) const noexcept
{
    if (!text || start < 0 || start > GetLength())
        return -1;
    const std::size_t found = std::wstring_view(m_text + start).find(text); // wcsstr differs about empty text
    return found == std::wstring_view::npos ? -1 : start + static_cast<int>(found);
}

int CString::ReverseFind(wchar_t character) const noexcept
{
    return indexOf(std::wcsrchr(m_text, character), m_text);
}

int CString::FindOneOf(LPCTSTR characters) const noexcept
{
    return indexOf(std::wcspbrk(m_text, orEmpty(characters)), m_text);
}
