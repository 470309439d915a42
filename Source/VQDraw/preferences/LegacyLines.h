// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Lines of the legacy layout of preference files: tags, and values behind them.

#include "VQDraw/preferences/TextLines.h"

namespace vq {

/// Characters of a line with its terminator; the pieces of a longer one are lines.
inline constexpr int kLegacyLineLimit = 200;

/// The next line without line feeds and tabs at its ends. False at the end and when the system reports a failure.
[[nodiscard]] inline bool readLegacyLine(TextLines& lines, CString& line)
{
    if (!lines.read(line))
        return false;
    line.Trim(L"\n\t");
    return true;
}

/// A tag may stand anywhere in a line.
inline bool hasTag(const CString& line, const wchar_t* tag)
{
    return line.Find(tag) >= 0;
}

/// What remains without all characters of the tag at the left, which is more than the tag, or less.
inline CString valueBehind(const wchar_t* tag, CString line)
{
    return line.TrimLeft(tag);
}

} // namespace vq
