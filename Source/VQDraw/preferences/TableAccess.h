// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Rows of a table by an index that may be any number.

#include <cstddef>

namespace vq {

/// Null outside the table.
template <typename Row, std::size_t size>
Row* rowAt(Row (&table)[size], std::ptrdiff_t index)
{
    return index >= 0 && index < static_cast<std::ptrdiff_t>(size) ? &table[index] : nullptr;
}

/// A default-constructed value outside the table.
template <typename Row, std::size_t size>
Row valueAt(Row (&table)[size], std::ptrdiff_t index)
{
    const Row* const row = rowAt(table, index);
    return row ? *row : Row();
}

/// Nothing outside the table.
template <typename Row, std::size_t size>
void setAt(Row (&table)[size], std::ptrdiff_t index, const Row& value)
{
    if (Row* const row = rowAt(table, index))
        *row = value;
}

} // namespace vq
