// SPDX-License-Identifier: MIT
#include "Platform/win32/Strings.h"

#include "Platform/win32/Errors.h"
#include "Platform/win32/Unicode.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <cwchar>
#include <limits>
#include <optional>

namespace {

using namespace vq::win32;

constexpr UINT kWindows1252 = 1252;

// Windows-1252 for the bytes 0x80 .. 0x9F; the others are Latin-1. Five bytes without a character stand for the control
// codes of the same number.
constexpr std::array<wchar_t, 32> kWindows1252Middle{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

wchar_t fromWindows1252(char byte)
{
    const auto number = static_cast<unsigned char>(byte);
    return number >= 0x80 && number < 0xA0 ? kWindows1252Middle[number - 0x80u] : static_cast<wchar_t>(number);
}

std::optional<char> toWindows1252(wchar_t character)
{
    const auto number = static_cast<char32_t>(character);
    if (number < 0x80 || (number >= 0xA0 && number <= 0xFF))
        return static_cast<char>(number);
    const auto place = std::ranges::find(kWindows1252Middle, character);
    if (place == kWindows1252Middle.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (place - kWindows1252Middle.begin()));
}

/// Stores what fits and counts the rest.
template <typename Unit>
class Output
{
public:
    Output(Unit* buffer, int capacity) : m_buffer(buffer), m_capacity(capacity) {}

    void put(Unit unit)
    {
        if (m_count < m_capacity)
            m_buffer[m_count] = unit;
        ++m_count;
    }

    /// The return value of the conversion functions.
    int result() const
    {
        if (m_count > std::numeric_limits<int>::max()) {
            SetLastError(ERROR_INVALID_PARAMETER);
            return 0;
        }
        if (m_capacity > 0 && m_count > m_capacity) {
            SetLastError(ERROR_INSUFFICIENT_BUFFER);
            return 0;
        }
        return static_cast<int>(m_count);
    }

private:
    Unit* m_buffer;
    std::int64_t m_capacity;
    std::int64_t m_count = 0;
};

int fail(DWORD error)
{
    SetLastError(error);
    return 0;
}

bool isKnown(UINT codePage)
{
    return codePage == CP_ACP || codePage == kWindows1252 || codePage == CP_UTF8;
}

bool argumentsMakeSense(const void* text, int length, const void* buffer, int capacity)
{
    return text && length != 0 && capacity >= 0 && (buffer || capacity == 0) && text != buffer;
}

constexpr DWORD kToWideFlags = MB_PRECOMPOSED | MB_COMPOSITE | MB_USEGLYPHCHARS | MB_ERR_INVALID_CHARS;
constexpr DWORD kToBytesFlags =
    WC_COMPOSITECHECK | WC_DISCARDNS | WC_SEPCHARS | WC_DEFAULTCHAR | WC_ERR_INVALID_CHARS | WC_NO_BEST_FIT_CHARS;

int utf8ToWide(std::string_view text, bool strict, Output<wchar_t> output)
{
    while (!text.empty()) {
        const Decoded next = decodeUtf8(text);
        if (strict && !next.valid)
            return fail(ERROR_NO_UNICODE_TRANSLATION);
        output.put(static_cast<wchar_t>(next.codePoint));
        text.remove_prefix(next.length);
    }
    return output.result();
}

int wideToUtf8(std::wstring_view text, bool strict, Output<char> output)
{
    while (!text.empty()) {
        const Decoded next = decodeUnits(text);
        if (strict && !next.valid)
            return fail(ERROR_NO_UNICODE_TRANSLATION);
        const auto encoded = encodeUtf8(next.codePoint);
        for (const char byte : encoded.view())
            output.put(byte);
        text.remove_prefix(next.length);
    }
    return output.result();
}

int windows1252ToWide(std::string_view text, Output<wchar_t> output)
{
    for (const char byte : text)
        output.put(fromWindows1252(byte));
    return output.result();
}

int wideToWindows1252(std::wstring_view text, char defaultChar, LPBOOL usedDefaultChar, Output<char> output)
{
    bool usedDefault = false;
    for (const wchar_t character : text) {
        const std::optional<char> byte = toWindows1252(character);
        usedDefault |= !byte;
        output.put(byte.value_or(defaultChar));
    }
    if (usedDefaultChar)
        *usedDefaultChar = usedDefault;
    return output.result();
}

} // namespace

int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int bytes, LPWSTR buffer, int capacity)
{
    if (!isKnown(codePage) || !argumentsMakeSense(text, bytes, buffer, capacity))
        return fail(ERROR_INVALID_PARAMETER);
    if (flags & ~kToWideFlags)
        return fail(ERROR_INVALID_FLAGS);

    const std::size_t length = bytes < 0 ? std::strlen(text) + 1 : static_cast<std::size_t>(bytes);
    const Output<wchar_t> output(buffer, capacity);
    if (codePage == CP_UTF8)
        return utf8ToWide({text, length}, flags & MB_ERR_INVALID_CHARS, output);
    return windows1252ToWide({text, length}, output);
}

int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, int characters, LPSTR buffer, int capacity,
                        LPCSTR defaultChar, LPBOOL usedDefaultChar)
{
    if (!isKnown(codePage) || !argumentsMakeSense(text, characters, buffer, capacity))
        return fail(ERROR_INVALID_PARAMETER);
    if (codePage == CP_UTF8 && (defaultChar || usedDefaultChar))
        return fail(ERROR_INVALID_PARAMETER);
    if (flags & ~kToBytesFlags)
        return fail(ERROR_INVALID_FLAGS);

    const std::size_t length = characters < 0 ? std::wcslen(text) + 1 : static_cast<std::size_t>(characters);
    const Output<char> output(buffer, capacity);
    if (codePage == CP_UTF8)
        return wideToUtf8({text, length}, flags & WC_ERR_INVALID_CHARS, output);
    return wideToWindows1252({text, length}, defaultChar ? *defaultChar : '?', usedDefaultChar, output);
}

namespace vq::win32 {

std::string toUtf8(std::wstring_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    while (!text.empty()) {
        const Decoded next = decodeUnits(text);
        const auto encoded = encodeUtf8(next.codePoint);
        bytes.append(encoded.view());
        text.remove_prefix(next.length);
    }
    return bytes;
}

std::wstring fromUtf8(std::string_view text)
{
    std::wstring characters;
    characters.reserve(text.size());
    while (!text.empty()) {
        const Decoded next = decodeUtf8(text);
        characters.push_back(static_cast<wchar_t>(next.codePoint));
        text.remove_prefix(next.length);
    }
    return characters;
}

void setFaceName(LOGFONTW& font, std::wstring_view name)
{
    name = name.substr(0, name.find(L'\0'));
    constexpr std::size_t kRoom = LF_FACESIZE - 1;
    std::size_t used = 0;
    while (!name.empty()) {
        const Decoded next = decodeUnits(name);
        const auto units = encodeUtf16(next.codePoint);
        if (used + units.length > kRoom)
            break;
        std::ranges::copy(units.view(), font.lfFaceName + used);
        used += units.length;
        name.remove_prefix(next.length);
    }
    std::fill(font.lfFaceName + used, std::end(font.lfFaceName), u'\0');
}

std::wstring faceName(const LOGFONTW& font)
{
    std::u16string_view units(font.lfFaceName, LF_FACESIZE);
    units = units.substr(0, units.find(u'\0'));
    std::wstring name;
    while (!units.empty()) {
        const Decoded next = decodeUnits(units);
        name.push_back(static_cast<wchar_t>(next.codePoint));
        units.remove_prefix(next.length);
    }
    return name;
}

} // namespace vq::win32
