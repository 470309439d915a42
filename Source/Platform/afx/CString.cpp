// SPDX-License-Identifier: MIT
#include "Platform/afx/CString.h"

#include "Platform/afx/Exceptions.h"
#include "Platform/afx/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <functional>
#include <limits>
#include <new>
#include <utility>

using vq::afx::orEmpty;
using vq::afx::TextHeader;

namespace {

constexpr int kLongest = std::numeric_limits<int>::max() - 1;
constexpr int kSmallestCapacity = 7;

struct EmptyText
{
    TextHeader header{0, 0};
    wchar_t terminator = 0;
};
static_assert(offsetof(EmptyText, terminator) == sizeof(TextHeader));

constexpr EmptyText kEmptyText;

/// Never written, although its type would allow it: whoever writes reserves memory of his own first.
wchar_t* emptyText() noexcept
{
    return const_cast<wchar_t*>(&kEmptyText.terminator);
}

wchar_t* allocate(int capacity)
{
    const std::size_t bytes = sizeof(TextHeader) + (static_cast<std::size_t>(capacity) + 1) * sizeof(wchar_t);
    void* memory = ::operator new(bytes, std::nothrow);
    if (!memory)
        AfxThrowMemoryException();
    auto* header = ::new (memory) TextHeader{0, capacity};
    auto* text = reinterpret_cast<wchar_t*>(header + 1);
    *text = L'\0';
    return text;
}

void release(wchar_t* text) noexcept
{
    auto* header = reinterpret_cast<TextHeader*>(text) - 1;
    if (header->capacity != 0)
        ::operator delete(header);
}

int checkedLength(std::int64_t length)
{
    if (length > kLongest)
        AfxThrowMemoryException();
    return static_cast<int>(length);
}

void refuseUnless(bool condition)
{
    if (!condition)
        AfxThrowInvalidArgException();
}

CString joined(LPCTSTR first, int firstLength, LPCTSTR second, int secondLength)
{
    CString text;
    text.Preallocate(checkedLength(std::int64_t{firstLength} + secondLength));
    text.Append(first, firstLength);
    text.Append(second, secondLength);
    return text;
}

} // namespace

CString::CString() noexcept : m_text(emptyText()) {}

CString::CString(const CString& other) : CString(other.m_text, other.GetLength()) {}

CString::CString(CString&& other) noexcept : m_text(std::exchange(other.m_text, emptyText())) {}

CString::CString(LPCTSTR text) : CString(text, lengthOf(text)) {}

CString::CString(LPCSTR text) : CString()
{
    *this = text;
}

CString::CString(const unsigned char* text) : CString(reinterpret_cast<LPCSTR>(text)) {}

CString::CString(LPCTSTR text, int length) : CString()
{
    SetString(text, length);
}

CString::CString(LPCSTR text, int length) : CString()
{
    refuseUnless(length >= 0 && (text || length == 0));
    assignNarrow(text, length);
}

CString::CString(wchar_t character, int repeat) : CString()
{
    if (repeat > 0)
        std::wmemset(GetBufferSetLength(repeat), character, static_cast<std::size_t>(repeat));
}

CString::CString(char character, int repeat) : CString(CString(&character, 1).GetAt(0), repeat) {}

CString::~CString()
{
    release(m_text);
}

CString& CString::operator=(const CString& other)
{
    if (this != &other)
        splice(0, GetLength(), other.m_text, other.GetLength());
    return *this;
}

CString& CString::operator=(CString&& other) noexcept
{
    std::swap(m_text, other.m_text);
    return *this;
}

CString& CString::operator=(LPCTSTR text)
{
    SetString(text);
    return *this;
}

CString& CString::operator=(LPCSTR text)
{
    assignNarrow(text, text ? checkedLength(static_cast<std::int64_t>(std::strlen(text))) : 0);
    return *this;
}

CString& CString::operator=(const unsigned char* text)
{
    return *this = reinterpret_cast<LPCSTR>(text);
}

CString& CString::operator=(wchar_t character)
{
    SetString(&character, 1);
    return *this;
}

CString& CString::operator=(char character)
{
    assignNarrow(&character, 1);
    return *this;
}

void CString::Empty() noexcept
{
    release(std::exchange(m_text, emptyText()));
}

wchar_t CString::GetAt(int index) const
{
    refuseUnless(index >= 0 && index <= GetLength());
    return m_text[index];
}

void CString::SetAt(int index, wchar_t character)
{
    refuseUnless(index >= 0 && index < GetLength());
    m_text[index] = character;
}

LPTSTR CString::GetBuffer()
{
    return GetBuffer(GetLength());
}

LPTSTR CString::GetBuffer(int length)
{
    Preallocate(length);
    return m_text;
}

LPTSTR CString::GetBufferSetLength(int length)
{
    Preallocate(length);
    const int oldLength = GetLength();
    if (length > oldLength)
        std::wmemset(m_text + oldLength, L'\0', static_cast<std::size_t>(length - oldLength));
    setLength(length);
    return m_text;
}

void CString::ReleaseBuffer(int length)
{
    const int capacity = header().capacity;
    if (length == -1)
        length = static_cast<int>(std::find(m_text, m_text + capacity, L'\0') - m_text);
    ReleaseBufferSetLength(length);
}

void CString::ReleaseBufferSetLength(int length)
{
    refuseUnless(length >= 0 && length <= header().capacity);
    setLength(length);
}

void CString::Preallocate(int length)
{
    refuseUnless(length >= 0);
    reserve(checkedLength(length));
}

void CString::FreeExtra()
{
    if (header().capacity > std::max(GetLength(), kSmallestCapacity))
        *this = CString(*this);
}

void CString::Truncate(int length)
{
    refuseUnless(length >= 0 && length <= GetLength());
    setLength(length);
}

void CString::SetString(LPCTSTR text)
{
    splice(0, GetLength(), orEmpty(text), lengthOf(text));
}

void CString::SetString(LPCTSTR text, int length)
{
    refuseUnless(length >= 0 && (text || length == 0));
    splice(0, GetLength(), text, length);
}

void CString::Append(LPCTSTR text)
{
    splice(GetLength(), 0, orEmpty(text), lengthOf(text));
}

void CString::Append(LPCTSTR text, int length)
{
    refuseUnless(length >= 0 && (text || length == 0));
    splice(GetLength(), 0, text, length);
}

void CString::Append(const CString& text)
{
    splice(GetLength(), 0, text.m_text, text.GetLength());
}

void CString::AppendChar(wchar_t character)
{
    splice(GetLength(), 0, &character, 1);
}

CString& CString::operator+=(const CString& text)
{
    Append(text);
    return *this;
}

CString& CString::operator+=(LPCTSTR text)
{
    Append(text);
    return *this;
}

CString& CString::operator+=(LPCSTR text)
{
    return *this += CString(text);
}

CString& CString::operator+=(wchar_t character)
{
    AppendChar(character);
    return *this;
}

CString& CString::operator+=(char character)
{
    return *this += CString(character);
}

CString operator+(const CString& first, const CString& second)
{
    return joined(first, first.GetLength(), second, second.GetLength());
}

CString operator+(const CString& first, LPCTSTR second)
{
    return joined(first, first.GetLength(), second, CString::lengthOf(second));
}

CString operator+(LPCTSTR first, const CString& second)
{
    return joined(first, CString::lengthOf(first), second, second.GetLength());
}

CString operator+(const CString& first, wchar_t second)
{
    return joined(first, first.GetLength(), &second, 1);
}

CString operator+(wchar_t first, const CString& second)
{
    return joined(&first, 1, second, second.GetLength());
}

CString operator+(const CString& first, char second)
{
    return first + CString(second);
}

CString operator+(char first, const CString& second)
{
    return CString(first) + second;
}

int CString::lengthOf(LPCTSTR text)
{
    return checkedLength(static_cast<std::int64_t>(std::wcslen(orEmpty(text))));
}

/// For strings with memory of their own, and for 0 with any.
void CString::setLength(int length) noexcept
{
    if (header().capacity == 0)
        return;
    header().length = length;
    m_text[length] = L'\0';
}

/// Afterwards the string has memory of its own for `capacity` characters.
void CString::reserve(int capacity)
{
    if (header().capacity != 0 && header().capacity >= capacity)
        return;
    wchar_t* text = allocate(std::max(capacity, kSmallestCapacity));
    std::wmemcpy(text, m_text, static_cast<std::size_t>(GetLength()));
    std::swap(text, m_text);
    const int length = reinterpret_cast<const TextHeader*>(text)[-1].length;
    release(text);
    setLength(length);
}

/// Replaces `removed` characters at `at` by `count` others: every change of length comes down to this.
void CString::splice(int at, int removed, LPCTSTR inserted, int count)
{
    const int oldLength = GetLength();
    const int newLength = checkedLength(std::int64_t{oldLength} - removed + count);
    const int capacity = header().capacity;
    const int behind = oldLength - at - removed;
    if (newLength == 0 && capacity == 0)
        return;
    const bool isOwnText = !std::less<>{}(inserted, m_text) && !std::less<>{}(m_text + oldLength, inserted);
    if (newLength <= capacity) {
        const CString aside(inserted, isOwnText ? count : 0);
        std::wmemmove(m_text + at + count, m_text + at + removed, static_cast<std::size_t>(behind));
        std::copy_n(isOwnText ? aside.m_text : inserted, count, m_text + at);
        setLength(newLength);
        return;
    }
    const std::int64_t grown = removed == oldLength ? 0 : capacity * std::int64_t{3} / 2;
    CString result;
    result.reserve(static_cast<int>(std::clamp<std::int64_t>(grown, newLength, kLongest)));
    wchar_t* next = std::copy_n(m_text, at, result.m_text);
    next = std::copy_n(inserted, count, next);
    std::copy_n(m_text + at + removed, behind, next);
    result.setLength(newLength);
    std::swap(m_text, result.m_text);
}

void CString::assignNarrow(LPCSTR text, int bytes)
{
    const int length = bytes > 0 ? MultiByteToWideChar(CP_ACP, 0, text, bytes, nullptr, 0) : 0;
    CString wide;
    if (length > 0)
        MultiByteToWideChar(CP_ACP, 0, text, bytes, wide.GetBufferSetLength(length), length);
    std::swap(m_text, wide.m_text);
}
