// SPDX-License-Identifier: MIT
#include "Platform/win32/BlankPicture.h"

#include <algorithm>
#include <utility>

namespace vq::win32 {

BlankPicture::BlankPicture(LONG width, LONG height, DWORD colour) : m_width(width), m_height(height), m_colour(colour)
{
}

std::optional<Surface> BlankPicture::open(RowSpan asked)
{
    const RowSpan rows{std::max<std::int64_t>(asked.first, 0), std::min<std::int64_t>(asked.end, m_height)};
    const std::scoped_lock lock(m_lock);
    if (!rows.isEmpty()) {
        if (!takeMemory())
            return std::nullopt;
        if (m_opened.isEmpty())
            m_opened = {rows.first, rows.first};
        fill(rows.first, std::exchange(m_opened.first, std::min(m_opened.first, rows.first)));
        fill(m_opened.end, rows.end);
        m_opened.end = std::max(m_opened.end, rows.end);
    }
    const auto stride = static_cast<std::ptrdiff_t>(m_width) * static_cast<std::ptrdiff_t>(sizeof(DWORD));
    return Surface{reinterpret_cast<BYTE*>(m_memory.get()), stride, m_width, m_height};
}

RowSpan BlankPicture::opened() const
{
    const std::scoped_lock lock(m_lock);
    return m_opened;
}

bool BlankPicture::hasFailed() const
{
    const std::scoped_lock lock(m_lock);
    return m_failed;
}

void BlankPicture::clear()
{
    const std::scoped_lock lock(m_lock);
    m_opened = {};
    m_failed = false;
}

bool BlankPicture::takeMemory()
{
    if (m_memory)
        return true;
    const std::size_t count = static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height);
    m_memory.reset(static_cast<DWORD*>(platform::allocateRaw(count * sizeof(DWORD))));
    m_failed = m_failed || !m_memory;
    return m_memory != nullptr;
}

void BlankPicture::fill(std::int64_t first, std::int64_t end)
{
    if (first < end)
        std::fill(m_memory.get() + first * m_width, m_memory.get() + end * m_width, m_colour);
}

} // namespace vq::win32
