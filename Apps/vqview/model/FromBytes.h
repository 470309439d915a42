// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace vqview {

/// A number of which the bytes stand in a file, the lowest first unless `order` says otherwise.
template <typename Number>
Number fromBytes(const char* bytes, std::endian order = std::endian::little)
{
    std::array<char, sizeof(Number)> ordered;
    std::memcpy(ordered.data(), bytes, sizeof(Number));
    if (order != std::endian::native)
        std::ranges::reverse(ordered);
    return std::bit_cast<Number>(ordered);
}

} // namespace vqview
