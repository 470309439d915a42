// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Code points out of and into UTF-8 and UTF-16. Internal to this folder.

#include <array>
#include <cstddef>
#include <string_view>

namespace vq::win32 {

constexpr char32_t kReplacement = 0xFFFD;

constexpr bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}
constexpr bool isCodePoint(char32_t value)
{
    return value <= 0x10FFFF && !isHighSurrogate(value) && !isLowSurrogate(value);
}
constexpr char32_t joinSurrogates(char32_t high, char32_t low)
{
    return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
}

/// One step through a text: what was found, or U+FFFD and not valid. `length` units were used, at least 1.
struct Decoded
{
    char32_t codePoint;
    std::size_t length;
    bool valid;
};

/// The first code point of a text that is not empty. What is not valid is as long as its longest beginning that could
/// have become valid, as Unicode recommends and Windows does.
Decoded decodeUtf8(std::string_view text);

/// The same for units of 16 or 32 bits: pairs of surrogates are joined, lone ones and numbers past the last code point
/// are not valid.
template <typename Unit>
Decoded decodeUnits(std::basic_string_view<Unit> text)
{
    const auto first = static_cast<char32_t>(text[0]);
    if (isCodePoint(first))
        return {first, 1, true};
    if (isHighSurrogate(first) && text.size() > 1 && isLowSurrogate(static_cast<char32_t>(text[1])))
        return {joinSurrogates(first, static_cast<char32_t>(text[1])), 2, true};
    return {kReplacement, 1, false};
}

/// The bytes or units of one valid code point.
template <typename Unit, std::size_t capacity>
struct Encoded
{
    std::array<Unit, capacity> units;
    std::size_t length;

    std::basic_string_view<Unit> view() const { return {units.data(), length}; }
};

Encoded<char, 4> encodeUtf8(char32_t codePoint);
Encoded<char16_t, 2> encodeUtf16(char32_t codePoint);

} // namespace vq::win32
