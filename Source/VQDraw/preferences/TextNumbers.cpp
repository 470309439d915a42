// SPDX-License-Identifier: MIT
#include "VQDraw/preferences/TextNumbers.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace {

struct SignedText
{
    bool isNegative;
    std::string magnitude; // from the first character that is no sign
};

/// As much of the text as could be part of a number.
SignedText signedText(CString text)
{
    text.TrimLeft();
    const CString number = text.SpanIncluding(L"0123456789+-.eE");
    std::string characters;
    for (int i = 0; i < number.GetLength(); ++i)
        characters.push_back(static_cast<char>(number[i])); // ASCII
    const bool hasSign = characters.starts_with('-') || characters.starts_with('+');
    return {characters.starts_with('-'), characters.substr(hasSign ? 1 : 0)};
}

constexpr std::int64_t kTooLarge = std::numeric_limits<int>::max() + std::int64_t{1};

/// The digits at the beginning as a number, `kTooLarge` when it is as large or larger.
std::int64_t magnitudeOf(std::string_view text)
{
    if (text.find_first_of("0123456789") != 0)
        return 0; // not to take a sign
    std::int64_t value = 0;
    const auto error = std::from_chars(text.data(), text.data() + text.size(), value).ec;
    return error == std::errc::result_out_of_range ? kTooLarge : std::min(value, kTooLarge);
}

std::int64_t exponentOf(std::string_view text)
{
    const bool isNegative = text.starts_with('-');
    const std::int64_t magnitude = magnitudeOf(text.substr(isNegative || text.starts_with('+') ? 1 : 0));
    return isNegative ? -magnitude : magnitude;
}

/// Of a number that no double can be near to: infinite when it is large, 0 when it is small.
double limitOf(std::string_view number)
{
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view digits = number.substr(0, mark);
    const std::size_t point = std::min(digits.find('.'), digits.size());
    const std::size_t first = std::min(digits.find_first_of("123456789"), digits.size());
    const auto power = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    const std::int64_t exponent = mark < number.size() ? exponentOf(number.substr(mark + 1)) : 0;
    return power + exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
}

} // namespace

int vq::integerOf(const CString& text)
{
    const auto [isNegative, magnitude] = signedText(text);
    const std::int64_t value = magnitudeOf(magnitude);
    return static_cast<int>(isNegative ? -value : std::min(value, kTooLarge - 1));
}

double vq::realOf(const CString& text)
{
    const auto [isNegative, magnitude] = signedText(text);
    double value = 0;
    if (magnitude.find_first_of("0123456789.") != 0)
        return 0; // nothing, another sign, or an exponent's mark
    const auto [end, error] = std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), value);
    if (error == std::errc::result_out_of_range)
        value = limitOf({magnitude.data(), end});
    return isNegative ? -value : value;
}
