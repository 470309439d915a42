// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// @file
/// Numbers as printf writes them, without a locale.

namespace vq::afx {

/// A conversion between its '%' and its letter.
struct FormatField
{
    bool left = false;      ///< '-'
    bool plus = false;      ///< '+'
    bool blank = false;     ///< ' '
    bool alternate = false; ///< '#'
    bool zero = false;      ///< '0'
    int width = 0;
    int precision = -1; ///< -1: none was given
};

/// A number in pieces, so that zeros are counted and not stored: prefix, leading zeros, digits, trailing zeros, suffix.
struct NumberText
{
    std::string prefix = {}; ///< sign, 0x
    std::int64_t leadingZeros = 0;
    std::string digits = {};
    std::int64_t trailingZeros = 0;
    std::string suffix = {}; ///< exponent
    bool isFinite = true;
};

/// `conversion` is one of d u o x X; `isNegative` only for d.
NumberText formatInteger(const FormatField& field, wchar_t conversion, std::uint64_t magnitude, bool isNegative);

/// `conversion` is one of e f g a and their capitals.
NumberText formatFloat(const FormatField& field, wchar_t conversion, double value);

} // namespace vq::afx
