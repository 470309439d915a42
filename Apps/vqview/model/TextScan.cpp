// SPDX-License-Identifier: MIT
#include "vqview/model/TextScan.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>

namespace vqview {

namespace {

constexpr std::size_t kReportedBytes = 1 << 16;
constexpr std::size_t kSearchedBytes = 1 << 16; // for a line feed: the first line is hardly longer

std::string_view withoutCarriageReturn(std::string_view line)
{
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

/// Of a number that the type cannot hold. It is tiny when its exponent says so or, without one, its whole part is 0.
template <typename Float>
Float beyondRange(std::string_view number)
{
    const bool isNegative = number.starts_with('-');
    const std::size_t exponent = number.find_first_of("eE");
    const bool isTiny = exponent == std::string_view::npos ? number.find_first_of("123456789.") == number.find('.')
                                                           : number.substr(exponent + 1).starts_with('-');
    const Float magnitude = isTiny ? Float{0} : std::numeric_limits<Float>::infinity();
    return isNegative ? -magnitude : magnitude;
}

template <typename Float>
const char* parse(const char* begin, const char* end, Float& value)
{
    if (begin != end && *begin == '+') // std::from_chars takes no plus
        ++begin;
    const auto [stop, error] = std::from_chars(begin, end, value);
    if (error == std::errc::result_out_of_range)
        value = beyondRange<Float>({begin, stop});
    return error == std::errc::invalid_argument ? nullptr : stop;
}

} // namespace

char lineEndOf(std::string_view text)
{
    const std::string_view begin = text.substr(0, kSearchedBytes);
    return begin.find('\n') == std::string_view::npos && begin.find('\r') != std::string_view::npos ? '\r' : '\n';
}

bool Lines::next(std::string_view& line)
{
    if (m_offset >= m_text.size())
        return false;
    if (m_offset >= m_reported) {
        m_reported = m_offset + kReportedBytes;
        if (!m_progress.report(static_cast<double>(m_offset), static_cast<double>(m_text.size())))
            return false;
    }
    const char* const begin = m_text.data() + m_offset;
    const void* const end = std::memchr(begin, m_lineEnd, m_text.size() - m_offset);
    const std::size_t length =
        end ? static_cast<std::size_t>(static_cast<const char*>(end) - begin) : m_text.size() - m_offset;
    line = {begin, length};
    m_offset += length + 1;
    ++m_number;
    return true;
}

bool Lines::nextJoined(std::string_view& line)
{
    if (!next(line))
        return false;
    if (!withoutCarriageReturn(line).ends_with('\\'))
        return true;
    m_joined.clear();
    do {
        line = withoutCarriageReturn(line);
        const bool goesOn = line.ends_with('\\');
        m_joined += line.substr(0, line.size() - (goesOn ? 1 : 0));
        m_joined += ' ';
        if (!goesOn)
            break;
    } while (next(line));
    line = m_joined;
    return true;
}

void Words::skip()
{
    while (m_at != m_end && isSeparator(*m_at))
        ++m_at;
}

std::string_view Words::next()
{
    skip();
    const char* const begin = m_at;
    while (m_at != m_end && !isSeparator(*m_at))
        ++m_at;
    return {begin, m_at};
}

bool Words::isAtEnd()
{
    skip();
    return m_at == m_end;
}

template <typename Float>
static bool numberOf(std::string_view word, Float& value)
{
    return !word.empty() && parse(word.data(), word.data() + word.size(), value) == word.data() + word.size();
}

bool Words::number(float& value)
{
    return numberOf(next(), value);
}

bool Words::number(double& value)
{
    return numberOf(next(), value);
}

bool takeInteger(std::string_view& word, std::int64_t& value)
{
    const char* const begin = word.data() + (word.starts_with('+') ? 1 : 0);
    const auto [stop, error] = std::from_chars(begin, word.data() + word.size(), value);
    if (error != std::errc{})
        return false;
    word.remove_prefix(static_cast<std::size_t>(stop - word.data()));
    return true;
}

std::size_t lineAt(std::string_view text, std::size_t offset)
{
    return 1 + static_cast<std::size_t>(std::ranges::count(text.substr(0, offset), lineEndOf(text)));
}

std::string inLine(std::size_t line, std::string_view sentence)
{
    return "line " + std::to_string(line) + ": " + std::string(sentence);
}

bool beginsWith(std::string_view text, std::string_view lower)
{
    const auto isEqual = [](char a, char b) { return a == b || (a >= 'A' && a <= 'Z' && a - 'A' + 'a' == b); };
    return text.size() >= lower.size() &&
           std::equal(lower.begin(), lower.end(), text.begin(), [&](char b, char a) { return isEqual(a, b); });
}

} // namespace vqview
