// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Archives byte by byte.

#include "vqCommonBase/VQArchive.h"

#include <bit>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vq::test {

/// Bytes of an archive as they are written down: numbers with the low byte first.
class StoredBytes
{
public:
    StoredBytes& byte(unsigned value)
    {
        m_bytes.push_back(static_cast<BYTE>(value));
        return *this;
    }
    StoredBytes& number(std::uint32_t value)
    {
        for (int shift = 0; shift < 32; shift += 8)
            byte(value >> shift & 0xFF);
        return *this;
    }
    StoredBytes& number(int value) { return number(static_cast<std::uint32_t>(value)); }
    StoredBytes& real(float value) { return number(std::bit_cast<std::uint32_t>(value)); }
    /// Characters of `width` bytes each, in `room` bytes, the rest of which is 0.
    StoredBytes& text(std::string_view characters, std::size_t width, std::size_t room)
    {
        const std::size_t end = m_bytes.size() + room;
        for (const char character : characters) {
            byte(static_cast<unsigned char>(character));
            m_bytes.resize(m_bytes.size() + width - 1);
        }
        m_bytes.resize(end);
        return *this;
    }

    std::size_t size() const { return m_bytes.size(); }
    BYTE& operator[](std::size_t index) { return m_bytes[index]; }
    CVQMemoryArchive archive() const { return CVQMemoryArchive(m_bytes.data(), m_bytes.size()); }
    /// The first of the bytes.
    CVQMemoryArchive archive(std::size_t bytes) const { return CVQMemoryArchive(m_bytes.data(), bytes); }
    const std::vector<BYTE>& bytes() const { return m_bytes; }

private:
    std::vector<BYTE> m_bytes;
};

inline std::vector<BYTE> contentOf(const CVQMemoryArchive& archive)
{
    return {archive.GetBuffer(), archive.GetBuffer() + archive.GetSize()};
}

/// The cause that `transfer` throws, -1 when it throws nothing.
template <typename Transfer>
int causeOf(Transfer transfer)
{
    try {
        transfer();
    } catch (CArchiveException* error) {
        const int cause = error->m_cause;
        error->Delete();
        return cause;
    }
    return -1;
}

} // namespace vq::test
