// SPDX-License-Identifier: MIT
#include "Platform/afx/FormatNumber.h"

#include "Platform/afx/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace vq::afx {
namespace {

/// A double has at most 1074 binary places, hence at most 1074 decimal ones: further digits are zeros.
constexpr int kMeaningfulPrecision = 1100;
/// 309 digits before the point, sign, point and exponent beside the precision.
constexpr std::size_t kLongestFloat = kMeaningfulPrecision + 330;

std::string signOf(const FormatField& field, bool isNegative)
{
    return isNegative ? "-" : field.plus ? "+" : field.blank ? " " : "";
}

void capitalise(std::string& text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char character) { return static_cast<char>(toUpper(static_cast<wchar_t>(character))); });
}

std::string toText(double magnitude, std::chars_format format, int precision)
{
    std::array<char, kLongestFloat> buffer;
    const auto end = precision < 0 ? std::to_chars(buffer.begin(), buffer.end(), magnitude, format)
                                   : std::to_chars(buffer.begin(), buffer.end(), magnitude, format, precision);
    return {buffer.begin(), end.ptr};
}

/// Cuts the text at its exponent, if it has one.
NumberText split(std::string text, char exponentMark, std::int64_t trailingZeros)
{
    const std::size_t mark = std::min(text.find(exponentMark), text.size());
    return {.digits = text.substr(0, mark), .trailingZeros = trailingZeros, .suffix = text.substr(mark)};
}

/// %g with its zeros: the rules of C for choosing between %e and %f.
NumberText generalWithZeros(double magnitude, int precision, std::int64_t trailingZeros)
{
    const std::string scientific = toText(magnitude, std::chars_format::scientific, precision - 1);
    int exponent = 0;
    const char* sign = scientific.data() + scientific.find('e') + 1;
    std::from_chars(*sign == '+' ? sign + 1 : sign, scientific.data() + scientific.size(), exponent);
    if (exponent < -4 || exponent >= precision)
        return split(scientific, 'e', trailingZeros);
    return {.digits = toText(magnitude, std::chars_format::fixed, precision - 1 - exponent),
            .trailingZeros = trailingZeros};
}

NumberText finiteFloat(const FormatField& field, wchar_t conversion, double magnitude)
{
    const int asked = field.precision < 0 ? 6 : field.precision;
    const int precision = std::min(asked, kMeaningfulPrecision);
    const std::int64_t further = asked - precision;
    switch (conversion) {
    case L'f':
        return {.digits = toText(magnitude, std::chars_format::fixed, precision), .trailingZeros = further};
    case L'e':
        return split(toText(magnitude, std::chars_format::scientific, precision), 'e', further);
    case L'g':
        if (field.alternate)
            return generalWithZeros(magnitude, std::max(precision, 1), further);
        return split(toText(magnitude, std::chars_format::general, precision), 'e', 0);
    default:
        return split(toText(magnitude, std::chars_format::hex, std::min(field.precision, precision)), 'p',
                     field.precision < 0 ? 0 : further);
    }
}

} // namespace

NumberText formatInteger(const FormatField& field, wchar_t conversion, std::uint64_t magnitude, bool isNegative)
{
    const int base = toLower(conversion) == L'x' ? 16 : conversion == L'o' ? 8 : 10;
    std::array<char, 24> buffer;
    const auto end = std::to_chars(buffer.begin(), buffer.end(), magnitude, base);
    NumberText text;
    if (magnitude != 0 || field.precision != 0)
        text.digits.assign(buffer.begin(), end.ptr);
    if (conversion == L'd')
        text.prefix = signOf(field, isNegative);
    if (base == 16 && field.alternate && magnitude != 0)
        text.prefix = "0x";
    text.leadingZeros = std::max<std::int64_t>(0, field.precision - static_cast<std::int64_t>(text.digits.size()));
    if (base == 8 && field.alternate && text.leadingZeros == 0 && !text.digits.starts_with('0'))
        text.leadingZeros = 1;
    if (conversion == L'X') {
        capitalise(text.prefix);
        capitalise(text.digits);
    }
    return text;
}

NumberText formatFloat(const FormatField& field, wchar_t conversion, double value)
{
    const wchar_t kind = toLower(conversion);
    NumberText text;
    if (std::isfinite(value)) {
        text = finiteFloat(field, kind, std::fabs(value));
        if (field.alternate && text.digits.find('.') == std::string::npos)
            text.digits += '.';
    } else {
        text = {.digits = std::isnan(value) ? "nan" : "inf", .isFinite = false};
    }
    text.prefix = signOf(field, std::signbit(value));
    if (kind == L'a' && text.isFinite)
        text.prefix += "0x";
    if (kind != conversion)
        for (std::string* piece : {&text.prefix, &text.digits, &text.suffix})
            capitalise(*piece);
    return text;
}

} // namespace vq::afx
