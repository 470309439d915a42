// SPDX-License-Identifier: MIT
#pragma once

namespace vq {

/// A null pointer is an empty text.
constexpr bool isEmptyText(const wchar_t* text)
{
    return !text || !*text;
}

} // namespace vq
