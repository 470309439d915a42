// SPDX-License-Identifier: MIT
// Changing a string in place.
#include "Platform/afx/CString.h"

#include "Platform/afx/Text.h"

#include <algorithm>
#include <cwchar>
#include <string_view>
#include <utility>

using vq::afx::isWhiteSpace;
using vq::afx::orEmpty;

namespace {

auto equals(wchar_t character)
{
    return [character](wchar_t other) { return other == character; };
}

auto isOneOf(LPCTSTR characters)
{
    return
        [set = std::wstring_view(orEmpty(characters))](wchar_t character) { return set.find(character) != set.npos; };
}

} // namespace

CString& CString::MakeUpper()
{
    std::transform(m_text, m_text + GetLength(), m_text, vq::afx::toUpper);
    return *this;
}

CString& CString::MakeLower()
{
    std::transform(m_text, m_text + GetLength(), m_text, vq::afx::toLower);
    return *this;
}

CString& CString::MakeReverse()
{
    std::reverse(m_text, m_text + GetLength());
    return *this;
}

template <typename Predicate>
void CString::trimLeftWhile(Predicate predicate)
{
    const wchar_t* kept = std::find_if_not(m_text, m_text + GetLength(), predicate);
    Delete(0, static_cast<int>(kept - m_text));
}

template <typename Predicate>
void CString::trimRightWhile(Predicate predicate) noexcept
{
    int length = GetLength();
    while (length > 0 && predicate(m_text[length - 1]))
        --length;
    setLength(length);
}

CString& CString::Trim()
{
    return TrimRight().TrimLeft();
}

CString& CString::Trim(wchar_t character)
{
    return TrimRight(character).TrimLeft(character);
}

CString& CString::Trim(LPCTSTR characters)
{
    const CString set(characters); // a copy: it may lie in this string
    return TrimRight(set.GetString()).TrimLeft(set.GetString());
}

CString& CString::TrimLeft()
{
    trimLeftWhile(isWhiteSpace);
    return *this;
}

CString& CString::TrimLeft(wchar_t character)
{
    trimLeftWhile(equals(character));
    return *this;
}

CString& CString::TrimLeft(LPCTSTR characters)
{
    trimLeftWhile(isOneOf(characters));
    return *this;
}

CString& CString::TrimRight()
{
    trimRightWhile(isWhiteSpace);
    return *this;
}

CString& CString::TrimRight(wchar_t character)
{
    trimRightWhile(equals(character));
    return *this;
}

CString& CString::TrimRight(LPCTSTR characters)
{
    trimRightWhile(isOneOf(characters));
    return *this;
}

int CString::Insert(int index, wchar_t character)
{
    splice(std::clamp(index, 0, GetLength()), 0, &character, 1);
    return GetLength();
}

int CString::Insert(int index, LPCTSTR text)
{
    splice(std::clamp(index, 0, GetLength()), 0, orEmpty(text), lengthOf(text));
    return GetLength();
}

int CString::Delete(int index, int count)
{
    const int begin = std::clamp(index, 0, GetLength());
    splice(begin, std::clamp(count, 0, GetLength() - begin), L"", 0);
    return GetLength();
}

int CString::Remove(wchar_t character)
{
    const wchar_t* end = std::remove(m_text, m_text + GetLength(), character);
    const int removed = GetLength() - static_cast<int>(end - m_text);
    setLength(GetLength() - removed);
    return removed;
}

int CString::Replace(wchar_t oldCharacter, wchar_t newCharacter)
{
    if (oldCharacter == newCharacter)
        return 0;
    const auto count = std::count(m_text, m_text + GetLength(), oldCharacter);
    std::replace(m_text, m_text + GetLength(), oldCharacter, newCharacter);
    return static_cast<int>(count);
}

int CString::Replace(LPCTSTR oldText, LPCTSTR newText)
{
    const std::wstring_view text(m_text, static_cast<std::size_t>(GetLength()));
    const std::wstring_view old(orEmpty(oldText));
    if (old.empty())
        return 0;
    CString result;
    int count = 0;
    std::size_t begin = 0;
    for (std::size_t found = text.find(old); found != text.npos; found = text.find(old, begin)) {
        result.Append(text.data() + begin, static_cast<int>(found - begin));
        result.Append(newText);
        begin = found + old.size();
        ++count;
    }
    if (count == 0)
        return 0;
    result.Append(text.data() + begin, static_cast<int>(text.size() - begin));
    std::swap(m_text, result.m_text);
    return count;
}
