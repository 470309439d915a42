// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Wide strings to bytes and back. A `wchar_t` holds a whole code point here; pairs of surrogates, as Windows text has
/// them, are understood wherever a wide string is read.

#include "Platform/win32/Gdi.h"

#include <string>
#include <string_view>

/// The system's code page for byte strings: Windows-1252, whatever the locale is.
constexpr UINT CP_ACP = 0;
constexpr UINT CP_UTF8 = 65001;

constexpr DWORD MB_PRECOMPOSED = 0x01;
constexpr DWORD MB_COMPOSITE = 0x02;
constexpr DWORD MB_USEGLYPHCHARS = 0x04;
constexpr DWORD MB_ERR_INVALID_CHARS = 0x08;
constexpr DWORD WC_DISCARDNS = 0x10;
constexpr DWORD WC_SEPCHARS = 0x20;
constexpr DWORD WC_DEFAULTCHAR = 0x40;
constexpr DWORD WC_COMPOSITECHECK = 0x0200;
constexpr DWORD WC_ERR_INVALID_CHARS = 0x80;
constexpr DWORD WC_NO_BEST_FIT_CHARS = 0x0400;

/// Converts `bytes` bytes, or up to and including the terminator for -1, and returns how many wide characters that
/// makes; with `capacity` 0 it only counts. Bytes that are no UTF-8 become U+FFFD, or fail the call under
/// MB_ERR_INVALID_CHARS. 0 on failure: ERROR_INVALID_PARAMETER (also for a code page other than the two above),
/// ERROR_INSUFFICIENT_BUFFER, ERROR_INVALID_FLAGS, ERROR_NO_UNICODE_TRANSLATION.
VQPLATFORM_API int MultiByteToWideChar(UINT codePage, DWORD flags, LPCSTR text, int bytes, LPWSTR buffer, int capacity);

/// The way back, with the same return values. What the code page lacks becomes `*defaultChar` or '?', and
/// `*usedDefaultChar` tells so; characters are never replaced by similar ones. Lone surrogates become U+FFFD in UTF-8,
/// or fail the call under WC_ERR_INVALID_CHARS; both default-character arguments must be null for UTF-8.
VQPLATFORM_API int WideCharToMultiByte(UINT codePage, DWORD flags, LPCWSTR text, int characters, LPSTR buffer,
                                       int capacity, LPCSTR defaultChar, LPBOOL usedDefaultChar);

namespace vq::win32 {

/// Pairs of surrogates are joined; lone surrogates and numbers that are no code point become U+FFFD.
VQPLATFORM_API std::string toUtf8(std::wstring_view text);

/// Bytes that are no UTF-8 become U+FFFD.
VQPLATFORM_API std::wstring fromUtf8(std::string_view text);

/// Stores a face name in the record's 16-bit units: as much as fits beside the terminator, no pair of surrogates cut in
/// half, unused units 0.
VQPLATFORM_API void setFaceName(LOGFONTW& font, std::wstring_view name);

/// The face name up to its terminator, at most 32 units.
VQPLATFORM_API std::wstring faceName(const LOGFONTW& font);

} // namespace vq::win32
