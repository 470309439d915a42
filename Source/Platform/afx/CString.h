// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Export.h"
#include "Platform/System.h"

#include <compare>
#include <cstdarg>
#include <type_traits>

namespace vq::afx {

/// What stands in memory before the characters of a `CString`.
struct TextHeader
{
    int length;
    int capacity; ///< characters without the terminator; 0 only for the empty text that all share
};

} // namespace vq::afx

/// A string of wide characters with a terminator behind it: the framework's `CString` in a Unicode build.
///
/// - An object is one pointer, to the characters. Each has characters of its own; an empty one owns no memory.
/// - A null pointer is an empty text wherever a text is taken.
/// - Narrow text is in the system's code page (`CP_ACP`).
/// - Comparisons and searches see the text up to a null character in it, as those of the framework do.
/// - Nothing depends on the C locale: without regard to case means A to Z, white space is what Unicode calls so.
/// - An index outside the text, or a negative count where one is not called allowed, throws `CInvalidArgException*`; a
///   text beyond 2^31 - 2 characters or beyond memory throws `CMemoryException*`. The string is then as it was.
/// - Arguments may point into the string that they change.
class VQPLATFORM_API CString
{
public:
    using XCHAR = wchar_t;
    using PXSTR = LPTSTR;
    using PCXSTR = LPCTSTR;
    using YCHAR = char;
    using PCYSTR = LPCSTR;

    CString() noexcept;
    CString(const CString& other);
    CString(CString&& other) noexcept;
    CString(LPCTSTR text);
    CString(LPCSTR text);
    explicit CString(const unsigned char* text);
    /// `length` characters, null characters among them; null only with a length of 0.
    CString(LPCTSTR text, int length);
    /// `length` bytes in the system's code page.
    CString(LPCSTR text, int length);
    /// `repeat` times the same character; none for a `repeat` of 0 or less.
    explicit CString(wchar_t character, int repeat = 1);
    explicit CString(char character, int repeat = 1);
    ~CString();

    CString& operator=(const CString& other);
    CString& operator=(CString&& other) noexcept;
    CString& operator=(LPCTSTR text);
    CString& operator=(LPCSTR text);
    CString& operator=(const unsigned char* text);
    CString& operator=(wchar_t character);
    CString& operator=(char character);

    // Access.
    int GetLength() const noexcept { return header().length; }
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    /// Gives the memory back.
    void Empty() noexcept;
    /// The terminator may be read too, at the index `GetLength()`.
    wchar_t GetAt(int index) const;
    wchar_t operator[](int index) const { return GetAt(index); }
    void SetAt(int index, wchar_t character);
    LPCTSTR GetString() const noexcept { return m_text; }
    operator LPCTSTR() const noexcept { return m_text; }

    // Direct writing: what GetBuffer gives is valid until the next change; ReleaseBuffer ends it.
    LPTSTR GetBuffer();
    /// Room for `length` characters and a terminator, or more; the text stays.
    LPTSTR GetBuffer(int length);
    /// Sets the length at once; characters beyond the old text are null.
    LPTSTR GetBufferSetLength(int length);
    /// The text ends after `length` characters, or for -1 at the first null character.
    void ReleaseBuffer(int length = -1);
    void ReleaseBufferSetLength(int length);
    void Preallocate(int length);
    int GetAllocLength() const noexcept { return header().capacity; }
    void FreeExtra();
    /// Cuts the text; a length beyond the text is refused.
    void Truncate(int length);
    void SetString(LPCTSTR text);
    void SetString(LPCTSTR text, int length);

    // Appending.
    void Append(LPCTSTR text);
    void Append(LPCTSTR text, int length);
    void Append(const CString& text);
    void AppendChar(wchar_t character);
    CString& operator+=(const CString& text);
    CString& operator+=(LPCTSTR text);
    CString& operator+=(LPCSTR text);
    CString& operator+=(wchar_t character);
    CString& operator+=(char character);

    // Comparing: below 0, 0, above 0.
    int Compare(LPCTSTR other) const noexcept;
    int CompareNoCase(LPCTSTR other) const noexcept;
    /// As `Compare`: the order of no language.
    int Collate(LPCTSTR other) const noexcept { return Compare(other); }
    int CollateNoCase(LPCTSTR other) const noexcept { return CompareNoCase(other); }

    // Parts. Indices and counts are limited to the text; negative ones count as 0.
    CString Left(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;
    CString Right(int count) const;
    /// The longest beginning made of characters of the set only.
    CString SpanIncluding(LPCTSTR characters) const;
    /// The longest beginning without any character of the set.
    CString SpanExcluding(LPCTSTR characters) const;
    /// The next piece between characters of the set, looking from `start`; empty pieces are skipped. `start` moves
    /// behind the character that ended the piece, and becomes -1, with an empty result, when there is no further one.
    /// An empty set gives the rest of the text and leaves `start`. A negative `start` is refused.
    CString Tokenize(LPCTSTR separators, int& start) const;

    // Searching: an index, -1 when nothing is found or `start` lies outside the text.
    int Find(wchar_t character, int start = 0) const noexcept;
    int Find(LPCTSTR text, int start = 0) const noexcept;
    int ReverseFind(wchar_t character) const noexcept;
    int FindOneOf(LPCTSTR characters) const noexcept;

    // Changing.
    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    CString& Trim();
    CString& Trim(wchar_t character);
    /// Cuts characters of the set from both ends.
    CString& Trim(LPCTSTR characters);
    CString& TrimLeft();
    CString& TrimLeft(wchar_t character);
    CString& TrimLeft(LPCTSTR characters);
    CString& TrimRight();
    CString& TrimRight(wchar_t character);
    CString& TrimRight(LPCTSTR characters);
    /// Inserts before `index`, which is limited to the text. Returns the new length.
    int Insert(int index, wchar_t character);
    int Insert(int index, LPCTSTR text);
    /// Removes what the text has of the range. Returns the new length.
    int Delete(int index, int count = 1);
    /// Removes every such character and returns how many there were.
    int Remove(wchar_t character);
    /// Replaces from left to right, not looking into what was put in, and returns how often.
    int Replace(wchar_t oldCharacter, wchar_t newCharacter);
    int Replace(LPCTSTR oldText, LPCTSTR newText);

    /// Formats as Microsoft's wide `printf` does, the same on every system: `%s %ls` and `%c %lc` take wide text, `%S
    /// %hs` and `%C %hc` narrow; `l` means 32 bits, `ll` and `I64` 64; the decimal point is a point. `%n` writes
    /// nothing. A `CString` may be passed as it is.
    template <typename... Arguments>
    void Format(LPCTSTR format, const Arguments&... arguments)
    {
        formatValues(format, passed(arguments)...);
    }
    template <typename... Arguments>
    void AppendFormat(LPCTSTR format, const Arguments&... arguments)
    {
        appendValues(format, passed(arguments)...);
    }
    void FormatV(LPCTSTR format, va_list arguments);
    void AppendFormatV(LPCTSTR format, va_list arguments);

    friend VQPLATFORM_API CString operator+(const CString& first, const CString& second);
    friend VQPLATFORM_API CString operator+(const CString& first, LPCTSTR second);
    friend VQPLATFORM_API CString operator+(LPCTSTR first, const CString& second);
    friend VQPLATFORM_API CString operator+(const CString& first, wchar_t second);
    friend VQPLATFORM_API CString operator+(wchar_t first, const CString& second);
    friend VQPLATFORM_API CString operator+(const CString& first, char second);
    friend VQPLATFORM_API CString operator+(char first, const CString& second);

    friend bool operator==(const CString& first, const CString& second) noexcept { return first.Compare(second) == 0; }
    friend bool operator==(const CString& first, LPCTSTR second) noexcept { return first.Compare(second) == 0; }
    friend std::strong_ordering operator<=>(const CString& first, const CString& second) noexcept
    {
        return first.Compare(second) <=> 0;
    }
    friend std::strong_ordering operator<=>(const CString& first, LPCTSTR second) noexcept
    {
        return first.Compare(second) <=> 0;
    }

private:
    static LPCTSTR passed(const CString& text) noexcept { return text.m_text; }
    template <typename T>
    static std::decay_t<const T&> passed(const T& value) noexcept
    {
        static_assert(std::is_trivially_copyable_v<std::decay_t<const T&>>, "printf knows no objects but CString");
        return value;
    }
    void formatValues(LPCTSTR format, ...);
    void appendValues(LPCTSTR format, ...);

    vq::afx::TextHeader& header() noexcept { return reinterpret_cast<vq::afx::TextHeader*>(m_text)[-1]; }
    const vq::afx::TextHeader& header() const noexcept
    {
        return reinterpret_cast<const vq::afx::TextHeader*>(m_text)[-1];
    }
    static int lengthOf(LPCTSTR text);
    void setLength(int length) noexcept;
    void reserve(int capacity);
    void splice(int at, int removed, LPCTSTR inserted, int count);
    void assignNarrow(LPCSTR text, int bytes);
    template <typename Predicate>
    void trimLeftWhile(Predicate predicate);
    template <typename Predicate>
    void trimRightWhile(Predicate predicate) noexcept;

    wchar_t* m_text;
};
using CStringW = CString;

static_assert(sizeof(CString) == sizeof(void*));
