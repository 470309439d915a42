// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Whole files and streams.

#include "Platform/gdiplus/codecs/FileBytes.h"
#include "Platform/win32/Win32.h"

#include <optional>

namespace vq::gdiplus {

/// The bytes of a file. Memory grows with what arrives. Empty when the file cannot be read in full.
std::optional<FileBytes> readFile(LPCWSTR path);

/// The bytes of a stream from its beginning to its end.
std::optional<FileBytes> readStream(IStream& stream);

/// Writes a file of another name in the same folder and gives it the name, so that a failure, a full disk or a crash
/// leaves an old file whole. A link is followed; permissions of an old file are kept; one that nobody may write stays.
[[nodiscard]] bool replaceFile(LPCWSTR path, std::span<const std::uint8_t> bytes);

/// Writes at the stream's position.
[[nodiscard]] bool writeStream(IStream& stream, std::span<const std::uint8_t> bytes);

} // namespace vq::gdiplus
