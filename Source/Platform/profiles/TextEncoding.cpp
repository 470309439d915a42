// SPDX-License-Identifier: MIT
#include "Platform/profiles/TextEncoding.h"

#include "Platform/System.h"
#include "Platform/win32/Unicode.h"

#include <algorithm>

namespace vq::platform {
namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

template <typename Unit>
bool isAscii(std::basic_string_view<Unit> text)
{
    return std::ranges::all_of(text, [](Unit unit) { return static_cast<char32_t>(unit) < 0x80; });
}

/// Whether bytes are UTF-8. A character may be cut off at their end, when others show what they are.
bool isUtf8(std::string_view bytes)
{
    bool hasOthers = false;
    while (!bytes.empty()) {
        const win32::Decoded next = win32::decodeUtf8(bytes);
        if (!next.valid)
            return hasOthers && next.length == bytes.size();
        hasOthers |= next.length > 1;
        bytes.remove_prefix(next.length);
    }
    return true;
}

/// Valid UTF-8 of whatever was meant to be.
std::string repaired(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const win32::Decoded next = win32::decodeUtf8(bytes);
        text.append(win32::encodeUtf8(next.codePoint).view());
        bytes.remove_prefix(next.length);
    }
    return text;
}

/// Half a unit at the end is no character.
std::string textOfUtf16(std::string_view bytes)
{
    std::u16string units(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < units.size(); ++i) {
        const auto low = static_cast<unsigned char>(bytes[2 * i]);
        const auto high = static_cast<unsigned char>(bytes[2 * i + 1]);
        units[i] = static_cast<char16_t>(low | high << 8);
    }
    std::string text;
    text.reserve(units.size());
    for (std::u16string_view rest = units; !rest.empty();) {
        const win32::Decoded next = win32::decodeUnits(rest);
        text.append(win32::encodeUtf8(next.codePoint).view());
        rest.remove_prefix(next.length);
    }
    return text;
}

/// Of texts of a profile, far below 2^31 characters.
std::wstring wideOf(UINT codePage, std::string_view bytes)
{
    if (isAscii(bytes))
        return {bytes.begin(), bytes.end()};
    const int length = static_cast<int>(bytes.size());
    std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(codePage, 0, bytes.data(), length, nullptr, 0)),
                      L'\0');
    MultiByteToWideChar(codePage, 0, bytes.data(), length, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string decoded(std::string_view bytes)
{
    if (bytes.starts_with(kUtf16Mark))
        return textOfUtf16(bytes.substr(kUtf16Mark.size()));
    if (bytes.starts_with(kUtf8Mark))
        return repaired(bytes.substr(kUtf8Mark.size()));
    if (isAscii(bytes))
        return std::string(bytes);
    if (isUtf8(bytes))
        return repaired(bytes);
    return toUtf8(wideOf(CP_ACP, bytes));
}

} // namespace

std::string textOfBytes(std::string_view bytes)
{
    std::string text = decoded(bytes);
    if (text.find('\0') == std::string::npos)
        return text;
    std::string whole;
    whole.reserve(text.size());
    const auto replacement = win32::encodeUtf8(win32::kReplacement);
    for (const char byte : text) {
        if (byte == '\0')
            whole.append(replacement.view());
        else
            whole.push_back(byte);
    }
    return whole;
}

std::string bytesOfText(std::string_view text)
{
    if (isAscii(text))
        return std::string(text);
    std::string bytes(kUtf16Mark);
    bytes.reserve(2 * text.size() + kUtf16Mark.size());
    while (!text.empty()) {
        const win32::Decoded next = win32::decodeUtf8(text);
        const auto encoded = win32::encodeUtf16(next.codePoint);
        for (const char16_t unit : encoded.view()) {
            bytes.push_back(static_cast<char>(unit & 0xFF));
            bytes.push_back(static_cast<char>(unit >> 8));
        }
        text.remove_prefix(next.length);
    }
    return bytes;
}

std::string toUtf8(std::wstring_view text)
{
    if (isAscii(text)) {
        std::string bytes(text.size(), '\0');
        std::ranges::transform(text, bytes.begin(), [](wchar_t character) { return static_cast<char>(character); });
        return bytes;
    }
    const int length = static_cast<int>(text.size());
    const auto convert = [&](char* buffer, int capacity) {
        return WideCharToMultiByte(CP_UTF8, 0, text.data(), length, buffer, capacity, nullptr, nullptr);
    };
    std::string bytes(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    convert(bytes.data(), static_cast<int>(bytes.size()));
    return bytes;
}

std::wstring fromUtf8(std::string_view text)
{
    return wideOf(CP_UTF8, text);
}

} // namespace vq::platform
