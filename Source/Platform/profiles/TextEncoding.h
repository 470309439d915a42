// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The bytes of a profile file as text and back. Nothing depends on a locale. Internal to the layer.

#include <string>
#include <string_view>

namespace vq::platform {

/// The text in UTF-8, without a mark and without null characters.
///
/// A mark says what the bytes are: UTF-16 of little end, or UTF-8. Without one they are UTF-8 when they can be, and
/// otherwise of the system's code page. What is no character becomes U+FFFD.
std::string textOfBytes(std::string_view bytes);

/// Text of ASCII characters as it is; any other in UTF-16 of little end behind a mark, which the profile functions of
/// Windows read as well.
std::string bytesOfText(std::string_view text);

std::string toUtf8(std::wstring_view text);
std::wstring fromUtf8(std::string_view text);

} // namespace vq::platform
