// SPDX-License-Identifier: MIT
#include "Platform/afx/Format.h"

#include "Platform/afx/Exceptions.h"
#include "Platform/afx/FormatNumber.h"
#include "Platform/afx/Text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <limits>
#include <new>
#include <string_view>
#include <utility>

namespace vq::afx {
namespace {

constexpr int kIntMax = std::numeric_limits<int>::max();

enum class TextKind { AsLetterSays, Narrow, Wide };

/// What may stand between a conversion's precision and its letter.
struct SizePrefix
{
    std::wstring_view text;
    int bits = 32; ///< of an integer
    TextKind kind = TextKind::AsLetterSays;
    bool isLongDouble = false;
};

constexpr int kPointerBits = 8 * static_cast<int>(sizeof(void*));

/// A longer prefix stands before one that it begins with; the empty one at the end is found when no other is. `l` is 32
/// bits wide, like Windows' `long`, on every system.
constexpr std::array kSizePrefixes{
    SizePrefix{L"I64", 64},
    SizePrefix{L"I32", 32},
    SizePrefix{L"I", kPointerBits},
    SizePrefix{L"hh", 8},
    SizePrefix{L"h", 16, TextKind::Narrow},
    SizePrefix{L"ll", 64},
    SizePrefix{L"l", 32, TextKind::Wide},
    SizePrefix{L"w", 32, TextKind::Wide},
    SizePrefix{L"j", 64},
    SizePrefix{L"z", kPointerBits},
    SizePrefix{L"t", kPointerBits},
    SizePrefix{L"L", 32, TextKind::AsLetterSays, true},
    SizePrefix{L""},
};

/// Reads one format and writes what it says. It is used once.
class Formatter
{
public:
    Formatter(CString& output, LPCTSTR format, va_list arguments) : m_output(output), m_next(format)
    {
        va_copy(m_arguments, arguments);
    }
    ~Formatter() { va_end(m_arguments); }
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    void run()
    {
        while (*m_next) {
            const std::size_t length = std::wcscspn(m_next, L"%");
            write(m_next, static_cast<std::int64_t>(length));
            m_next += length;
            if (*m_next)
                convert();
        }
    }

private:
    void convert()
    {
        ++m_next;
        m_field = {};
        readFlags();
        m_field.width = readWidth();
        m_field.precision = readPrecision();
        const SizePrefix size = readSize();
        if (*m_next)
            convertAs(*m_next++, size);
    }

    void readFlags()
    {
        for (;; ++m_next)
            switch (*m_next) {
            case L'-':
                m_field.left = true;
                break;
            case L'+':
                m_field.plus = true;
                break;
            case L' ':
                m_field.blank = true;
                break;
            case L'#':
                m_field.alternate = true;
                break;
            case L'0':
                m_field.zero = true;
                break;
            default:
                return;
            }
    }

    int readNumber()
    {
        std::int64_t number = 0;
        for (; *m_next >= L'0' && *m_next <= L'9'; ++m_next)
            number = std::min<std::int64_t>(number * 10 + (*m_next - L'0'), kIntMax);
        return static_cast<int>(number);
    }

    int readWidth()
    {
        if (*m_next != L'*')
            return readNumber();
        ++m_next;
        const int width = va_arg(m_arguments, int);
        m_field.left = m_field.left || width < 0;
        return width < -kIntMax ? kIntMax : std::abs(width);
    }

    int readPrecision()
    {
        if (*m_next != L'.')
            return -1;
        ++m_next;
        if (*m_next != L'*')
            return readNumber();
        ++m_next;
        return std::max(va_arg(m_arguments, int), -1);
    }

    SizePrefix readSize()
    {
        const SizePrefix* prefix = kSizePrefixes.data();
        while (std::wcsncmp(m_next, prefix->text.data(), prefix->text.size()) != 0)
            ++prefix;
        m_next += prefix->text.size();
        return *prefix;
    }

    void convertAs(wchar_t conversion, const SizePrefix& size)
    {
        const auto isOneOf = [=](std::wstring_view letters) { return letters.find(conversion) != letters.npos; };
        if (isOneOf(L"di"))
            return writeSigned(size.bits);
        if (isOneOf(L"uoxX"))
            return writeUnsigned(conversion, size.bits);
        if (isOneOf(L"eEfFgGaA"))
            return writeFloat(conversion, size.isLongDouble);
        if (isOneOf(L"sS"))
            return writeText(isWide(conversion, size.kind));
        if (isOneOf(L"cC"))
            return writeCharacter(isWide(conversion, size.kind));
        if (conversion == L'p')
            return writePointer();
        if (conversion == L'n')
            va_arg(m_arguments, void*);
        else
            write(&conversion, 1);
    }

    static bool isWide(wchar_t conversion, TextKind kind)
    {
        return kind == TextKind::Wide || (kind == TextKind::AsLetterSays && toLower(conversion) == conversion);
    }

    /// The low `bits` of the next argument, moved to the high end.
    std::uint64_t nextInteger(int bits)
    {
        if (bits == 64)
            return va_arg(m_arguments, std::uint64_t);
        return std::uint64_t{va_arg(m_arguments, unsigned)} << (64 - bits);
    }

    void writeSigned(int bits)
    {
        const std::int64_t value = static_cast<std::int64_t>(nextInteger(bits)) >> (64 - bits);
        const auto magnitude = static_cast<std::uint64_t>(value);
        writeNumber(formatInteger(m_field, L'd', value < 0 ? 0 - magnitude : magnitude, value < 0),
                    m_field.precision < 0);
    }

    void writeUnsigned(wchar_t conversion, int bits)
    {
        writeNumber(formatInteger(m_field, conversion, nextInteger(bits) >> (64 - bits), false), m_field.precision < 0);
    }

    void writeFloat(wchar_t conversion, bool isLongDouble)
    {
        const double value =
            isLongDouble ? static_cast<double>(va_arg(m_arguments, long double)) : va_arg(m_arguments, double);
        const NumberText text = formatFloat(m_field, conversion, value);
        writeNumber(text, text.isFinite);
    }

    /// As Microsoft's library: all digits of the address in capitals.
    void writePointer()
    {
        m_field.precision = 2 * static_cast<int>(sizeof(void*));
        m_field.alternate = false;
        writeNumber(formatInteger(m_field, L'X', reinterpret_cast<std::uintptr_t>(va_arg(m_arguments, void*)), false),
                    false);
    }

    void writeNumber(const NumberText& text, bool mayFillWithZeros)
    {
        const auto length = static_cast<std::int64_t>(text.prefix.size() + text.digits.size() + text.suffix.size()) +
                            text.leadingZeros + text.trailingZeros;
        const std::int64_t padding = std::max<std::int64_t>(0, m_field.width - length);
        const bool fill = m_field.zero && !m_field.left && mayFillWithZeros;
        repeat(L' ', m_field.left || fill ? 0 : padding);
        writeNarrow(text.prefix);
        repeat(L'0', text.leadingZeros + (fill ? padding : 0));
        writeNarrow(text.digits);
        repeat(L'0', text.trailingZeros);
        writeNarrow(text.suffix);
        repeat(L' ', m_field.left ? padding : 0);
    }

    void writeText(bool isWideText)
    {
        const void* text = va_arg(m_arguments, const void*);
        if (!text)
            return writePadded(L"(null)", 6);
        if (isWideText) {
            const auto* wide = static_cast<LPCTSTR>(text);
            return writePadded(wide, lengthUpToPrecision(wide));
        }
        const auto* narrow = static_cast<LPCSTR>(text);
        const CString wide(narrow, static_cast<int>(std::min<std::int64_t>(lengthUpToPrecision(narrow), kIntMax)));
        writePadded(wide, wide.GetLength());
    }

    void writeCharacter(bool isWideCharacter)
    {
        const int character = va_arg(m_arguments, int);
        const CString text =
            isWideCharacter ? CString(static_cast<wchar_t>(character)) : CString(static_cast<char>(character));
        m_field.precision = -1;
        writePadded(text, text.GetLength());
    }

    /// Looks at no character behind the precision: the text may end there without a terminator.
    template <typename Character>
    std::int64_t lengthUpToPrecision(const Character* text) const
    {
        std::int64_t length = 0;
        while ((m_field.precision < 0 || length < m_field.precision) && text[length])
            ++length;
        return length;
    }

    void writePadded(LPCTSTR text, std::int64_t length)
    {
        if (m_field.precision >= 0)
            length = std::min<std::int64_t>(length, m_field.precision);
        const std::int64_t padding = std::max<std::int64_t>(0, m_field.width - length);
        repeat(L' ', m_field.left ? 0 : padding);
        write(text, length);
        repeat(L' ', m_field.left ? padding : 0);
    }

    void write(LPCTSTR text, std::int64_t length)
    {
        if (length > kIntMax)
            AfxThrowMemoryException();
        m_output.Append(text, static_cast<int>(length));
    }

    void writeNarrow(std::string_view digits)
    {
        for (const char digit : digits)
            m_output.AppendChar(static_cast<wchar_t>(digit));
    }

    void repeat(wchar_t character, std::int64_t count)
    {
        if (count > kIntMax)
            AfxThrowMemoryException();
        if (count > 0)
            m_output.Append(CString(character, static_cast<int>(count)));
    }

    CString& m_output;
    LPCTSTR m_next;
    va_list m_arguments;
    FormatField m_field;
};

} // namespace

void appendFormatted(CString& output, LPCTSTR format, va_list arguments)
{
    try {
        Formatter(output, format, arguments).run();
    } catch (const std::bad_alloc&) {
        AfxThrowMemoryException();
    }
}

} // namespace vq::afx

void CString::FormatV(LPCTSTR format, va_list arguments)
{
    CString text;
    vq::afx::appendFormatted(text, vq::afx::orEmpty(format), arguments);
    std::swap(m_text, text.m_text);
}

void CString::AppendFormatV(LPCTSTR format, va_list arguments)
{
    CString text;
    text.FormatV(format, arguments);
    Append(text);
}

void CString::formatValues(LPCTSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    FormatV(format, arguments);
    va_end(arguments);
}

void CString::appendValues(LPCTSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    AppendFormatV(format, arguments);
    va_end(arguments);
}
