// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Lines of text files that nobody vouches for.

#include "Platform/Platform.h"

#include <cstddef>
#include <cstdio>
#include <optional>
#include <string>

namespace vq {

/// Reads a stream line by line, as `fgetws` does with a buffer of `limit` characters: a line of as many or more comes
/// in pieces of `limit - 1`, the line feed at its end, if any, included. So memory does not grow with a line.
///
/// - Text is UTF-16 when the file begins with its mark, otherwise UTF-8 with or without mark; a byte that is no UTF-8
///   is a character of Latin-1. A stream that has been read as wide characters before is read on as such.
/// - CR LF is read as LF. A null character ends what is seen of a piece.
/// - A stream may begin anywhere in a file; nothing behind a line that was read in full is taken from it.
class TextLines
{
public:
    /// `file` must be open for as long as this lives. The limit is at least 2.
    TextLines(std::FILE* file, int limit);

    /// False, and `line` as it was, at the end and when the system reports a failure.
    [[nodiscard]] bool read(CString& line);

private:
    enum class Encoding { Utf8, Utf16Little, Utf16Big, Wide };

    Encoding encodingOf(std::FILE* file);
    Encoding encodingByMark();
    std::optional<unsigned char> nextByte();
    std::optional<wchar_t> nextFromUtf8();
    std::optional<wchar_t> nextFromUtf16();
    std::optional<wchar_t> nextUnit();
    std::optional<wchar_t> next();

    std::FILE* m_file;
    int m_limit;
    std::string m_bytes;  // read, but not yet part of a character
    std::wstring m_units; // of a character, not yet part of a line
    Encoding m_encoding;
    std::wstring m_piece; // its memory serves all lines
};

} // namespace vq
