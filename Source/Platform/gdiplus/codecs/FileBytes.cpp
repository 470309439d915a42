// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/FileBytes.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vq::gdiplus {
namespace {

constexpr std::size_t kSmallestCapacity = 4096;

} // namespace

bool FileBytes::reserve(std::size_t capacity) noexcept
{
    if (capacity <= m_capacity)
        return true;
    platform::PixelMemory<std::uint8_t> larger(static_cast<std::uint8_t*>(platform::allocateRaw(capacity)));
    if (!larger)
        return false;
    if (m_size > 0)
        std::memcpy(larger.get(), m_bytes.get(), m_size);
    m_bytes = std::move(larger);
    m_capacity = capacity;
    return true;
}

bool FileBytes::append(std::span<const std::uint8_t> bytes) noexcept
{
    if (bytes.empty())
        return true;
    // Two blocks in one address space: neither sum nor product passes its end.
    const std::size_t needed = m_size + bytes.size();
    if (needed > m_capacity && !reserve(std::max({needed, 2 * m_capacity, kSmallestCapacity})))
        return false;
    std::memcpy(m_bytes.get() + m_size, bytes.data(), bytes.size());
    m_size = needed;
    return true;
}

void FileBytes::overwrite(std::size_t position, std::span<const std::uint8_t> bytes) noexcept
{
    std::copy(bytes.begin(), bytes.end(), m_bytes.get() + position);
}

} // namespace vq::gdiplus
