// SPDX-License-Identifier: MIT
#include "VQDraw/preferences/TextLines.h"

#include <array>
#include <cwchar>
#include <string_view>

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LittleMark = "\xFF\xFE";
constexpr std::string_view kUtf16BigMark = "\xFE\xFF";

/// How many bytes a character of UTF-8 has by its first one; 1 for a byte that cannot be a first one.
constexpr std::size_t lengthByLead(unsigned char lead)
{
    if (lead < 0xC2)
        return 1;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 1;
}

constexpr bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0) == 0x80;
}

/// Empty when the bytes are no character.
std::wstring decoded(std::string_view character)
{
    std::array<wchar_t, 2> units{};
    const int count =
        MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, character.data(), static_cast<int>(character.size()),
                            units.data(), static_cast<int>(units.size()));
    return {units.data(), static_cast<std::size_t>(count)};
}

} // namespace

namespace vq {

TextLines::TextLines(std::FILE* file, int limit) : m_file(file), m_limit(limit), m_encoding(encodingOf(file)) {}

TextLines::Encoding TextLines::encodingOf(std::FILE* file)
{
    if (std::fwide(file, 0) > 0)
        return Encoding::Wide;
    const long position = std::ftell(file); // -1 where there are no positions: nothing has been read, so far as we know
    if (position <= 0 || std::fseek(file, 0, SEEK_SET) != 0)
        return encodingByMark();
    const Encoding encoding = encodingByMark();
    m_bytes.clear();
    std::fseek(file, position, SEEK_SET);
    return encoding;
}

/// Takes the mark; bytes that are none are kept.
TextLines::Encoding TextLines::encodingByMark()
{
    const auto begins = [this](std::string_view mark) {
        while (m_bytes.size() < mark.size() && mark.starts_with(m_bytes)) {
            const int byte = std::getc(m_file);
            if (byte == EOF)
                return false;
            m_bytes.push_back(static_cast<char>(byte));
        }
        if (!m_bytes.starts_with(mark))
            return false;
        m_bytes.erase(0, mark.size());
        return true;
    };
    if (begins(kUtf16LittleMark))
        return Encoding::Utf16Little;
    if (begins(kUtf16BigMark))
        return Encoding::Utf16Big;
    begins(kUtf8Mark);
    return Encoding::Utf8;
}

std::optional<unsigned char> TextLines::nextByte()
{
    if (!m_bytes.empty()) {
        const auto kept = static_cast<unsigned char>(m_bytes.front());
        m_bytes.erase(0, 1);
        return kept;
    }
    const int byte = std::getc(m_file);
    return byte == EOF ? std::nullopt : std::optional(static_cast<unsigned char>(byte));
}

std::optional<wchar_t> TextLines::nextFromUtf8()
{
    const auto lead = nextByte();
    if (!lead)
        return std::nullopt;
    const std::size_t length = lengthByLead(*lead);
    if (length == 1)
        return static_cast<wchar_t>(*lead);

    std::string character(1, static_cast<char>(*lead));
    while (character.size() < length) {
        const auto byte = nextByte();
        if (!byte)
            break;
        character.push_back(static_cast<char>(*byte));
        if (!isContinuation(*byte))
            break;
    }
    m_units = decoded(character);
    if (m_units.empty()) {
        m_bytes.insert(0, character, 1); // all behind the first byte may be characters
        return static_cast<wchar_t>(*lead);
    }
    const wchar_t first = m_units.front();
    m_units.erase(0, 1);
    return first;
}

/// Pairs of surrogates stay as they are: whoever stores text joins them.
std::optional<wchar_t> TextLines::nextFromUtf16()
{
    const auto first = nextByte();
    const auto second = nextByte();
    if (!first || !second)
        return std::nullopt;
    const bool isLittle = m_encoding == Encoding::Utf16Little;
    return static_cast<wchar_t>(isLittle ? *second << 8 | *first : *first << 8 | *second);
}

std::optional<wchar_t> TextLines::nextUnit()
{
    if (!m_units.empty()) {
        const wchar_t kept = m_units.front();
        m_units.erase(0, 1);
        return kept;
    }
    if (m_encoding == Encoding::Utf8)
        return nextFromUtf8();
    if (m_encoding != Encoding::Wide)
        return nextFromUtf16();
    const std::wint_t character = std::fgetwc(m_file);
    return character == WEOF ? std::nullopt : std::optional(static_cast<wchar_t>(character));
}

std::optional<wchar_t> TextLines::next()
{
    const auto unit = nextUnit();
    if (!unit || *unit != L'\r')
        return unit;
    const auto behind = nextUnit();
    if (!behind || *behind == L'\n')
        return behind ? behind : unit;
    m_units.insert(m_units.begin(), *behind);
    return unit;
}

bool TextLines::read(CString& line)
{
    m_piece.clear();
    while (m_piece.size() + 1 < static_cast<std::size_t>(m_limit)) {
        const auto unit = next();
        if (!unit)
            break;
        m_piece.push_back(*unit);
        if (*unit == L'\n')
            break;
    }
    if (m_piece.empty() || std::ferror(m_file))
        return false;
    line = m_piece.c_str(); // up to a null character
    return true;
}

} // namespace vq
