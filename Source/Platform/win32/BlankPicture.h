// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// A picture of one colour that costs nothing where nobody looks. Not part of the Win32 interface.

#include "Platform/PixelMemory.h"
#include "Platform/win32/Surface.h"

#include <mutex>
#include <optional>

namespace vq::win32 {

/// Rows from `first` up to `end`.
struct RowSpan
{
    std::int64_t first = 0;
    std::int64_t end = 0;

    bool isEmpty() const { return first >= end; }
};

/// Memory is taken when rows are first asked for, and rows are filled with the colour then: those asked for and what
/// lies between them. Any thread may ask; the pixels themselves are not guarded.
class BlankPicture
{
public:
    /// A size that fits in memory, above 0 both ways. The colour is that of every pixel, with its alpha.
    BlankPicture(LONG width, LONG height, DWORD colour);

    LONG width() const { return m_width; }
    LONG height() const { return m_height; }
    bool hasSize(LONG width, LONG height) const { return width == m_width && height == m_height; }

    /// The picture with the rows asked for, as far as there are such, ready for reading and writing; its other rows are
    /// not to be touched. It may have no memory when none of its rows is asked for. Empty when memory cannot be had.
    std::optional<Surface> open(RowSpan asked);

    /// The rows that may have got other colours: those opened since the last `clear`.
    RowSpan opened() const;
    /// Whether memory could not be had since the last `clear`.
    bool hasFailed() const;
    /// Makes the whole picture blank. Its memory stays with it.
    void clear();

private:
    bool takeMemory();
    void fill(std::int64_t first, std::int64_t end);

    const LONG m_width;
    const LONG m_height;
    const DWORD m_colour;
    mutable std::mutex m_lock; ///< guards everything below
    platform::PixelMemory<DWORD> m_memory;
    RowSpan m_opened;
    bool m_failed = false;
};

} // namespace vq::win32
