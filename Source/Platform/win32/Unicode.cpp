// SPDX-License-Identifier: MIT
#include "Platform/win32/Unicode.h"

namespace vq::win32 {
namespace {

using Byte = unsigned char;

// What may follow a leading byte: how many bytes in all, and the range of the second one, which keeps out overlong
// forms, surrogates and numbers past U+10FFFF (The Unicode Standard, table 3-7).
struct Sequence
{
    std::size_t length;
    Byte secondFrom;
    Byte secondTo;
};

constexpr Sequence sequenceOf(Byte lead)
{
    if (lead < 0x80)
        return {1, 0, 0};
    if (lead < 0xC2)
        return {0, 0, 0};
    if (lead < 0xE0)
        return {2, 0x80, 0xBF};
    if (lead < 0xF0)
        return {3, Byte(lead == 0xE0 ? 0xA0 : 0x80), Byte(lead == 0xED ? 0x9F : 0xBF)};
    if (lead < 0xF5)
        return {4, Byte(lead == 0xF0 ? 0x90 : 0x80), Byte(lead == 0xF4 ? 0x8F : 0xBF)};
    return {0, 0, 0};
}

constexpr std::array<Byte, 5> kLeadBits{0, 0x7F, 0x1F, 0x0F, 0x07};

constexpr char continuation(char32_t codePoint, int shift)
{
    return static_cast<char>(0x80 | (codePoint >> shift & 0x3F));
}

} // namespace

Decoded decodeUtf8(std::string_view text)
{
    const auto lead = static_cast<Byte>(text[0]);
    const Sequence sequence = sequenceOf(lead);
    if (sequence.length == 0)
        return {kReplacement, 1, false};

    char32_t codePoint = lead & kLeadBits[sequence.length];
    for (std::size_t i = 1; i < sequence.length; ++i) {
        const auto byte = i < text.size() ? static_cast<Byte>(text[i]) : Byte{0};
        const Byte from = i == 1 ? sequence.secondFrom : Byte{0x80};
        const Byte to = i == 1 ? sequence.secondTo : Byte{0xBF};
        if (byte < from || byte > to)
            return {kReplacement, i, false};
        codePoint = codePoint << 6 | (byte & 0x3F);
    }
    return {codePoint, sequence.length, true};
}

Encoded<char, 4> encodeUtf8(char32_t codePoint)
{
    if (codePoint < 0x80)
        return {{static_cast<char>(codePoint)}, 1};
    if (codePoint < 0x800)
        return {{static_cast<char>(0xC0 | codePoint >> 6), continuation(codePoint, 0)}, 2};
    if (codePoint < 0x10000)
        return {{static_cast<char>(0xE0 | codePoint >> 12), continuation(codePoint, 6), continuation(codePoint, 0)}, 3};
    return {{static_cast<char>(0xF0 | codePoint >> 18), continuation(codePoint, 12), continuation(codePoint, 6),
             continuation(codePoint, 0)},
            4};
}

Encoded<char16_t, 2> encodeUtf16(char32_t codePoint)
{
    if (codePoint < 0x10000)
        return {{static_cast<char16_t>(codePoint)}, 1};
    const char32_t offset = codePoint - 0x10000;
    return {{static_cast<char16_t>(0xD800 + (offset >> 10)), static_cast<char16_t>(0xDC00 + (offset & 0x3FF))}, 2};
}

} // namespace vq::win32
