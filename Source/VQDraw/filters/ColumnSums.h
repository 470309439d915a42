// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Sums of the bytes that stand above each other in some rows. Standard library only.

#include "VQDraw/image/PixelFormulas.h"

#include <cstddef>

namespace vq {

/// columns[i] += times * row[i].
template <typename Column>
void addRow(Column* columns, const Channel* row, std::size_t count, Column times = 1)
{
    for (std::size_t i = 0; i < count; ++i)
        columns[i] = static_cast<Column>(columns[i] + static_cast<Column>(times * row[i]));
}

template <typename Column>
void subtractRow(Column* columns, const Channel* row, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        columns[i] = static_cast<Column>(columns[i] - row[i]);
}

/// Both at once: moves the rows that are summed on by one.
template <typename Column>
void exchangeRow(Column* columns, const Channel* entering, const Channel* leaving, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        columns[i] = static_cast<Column>(columns[i] + entering[i] - leaving[i]);
}

} // namespace vq
