// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// What the tables of preferences have in common: a row begins with the enumerator that it stands for and its name.

#include <array>
#include <cstddef>

namespace vq {

template <typename Row, std::size_t size>
constexpr bool everyRowStandsAtItsId(const std::array<Row, size>& table)
{
    for (std::size_t i = 0; i < size; ++i) {
        if (static_cast<std::size_t>(table[i].id) != i)
            return false;
    }
    return true;
}

/// The names of the rows in their order, and behind them that of the enumerator that counts them.
template <typename Row, std::size_t size>
constexpr std::array<const wchar_t*, size + 1> namesOf(const std::array<Row, size>& table, const wchar_t* nameOfCount)
{
    std::array<const wchar_t*, size + 1> names{};
    for (std::size_t i = 0; i < size; ++i)
        names[i] = table[i].name;
    names[size] = nameOfCount;
    return names;
}

} // namespace vq
