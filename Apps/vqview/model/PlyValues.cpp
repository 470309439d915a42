// SPDX-License-Identifier: MIT
#include "vqview/model/PlyValues.h"

#include "vqview/model/FromBytes.h"

#include <array>

namespace vqview {

namespace {

constexpr std::array<std::uint8_t, 8> kSizes{1, 1, 2, 2, 4, 4, 4, 8};

} // namespace

PlyTextValues::PlyTextValues(std::string_view bytes, std::size_t begin)
    : m_bytes(bytes), m_begin(begin), m_words(bytes.substr(begin), '\n')
{
}

bool PlyTextValues::next(PlyType type, double& value)
{
    m_isShort = m_words.isAtEnd();
    if (type != PlyType::Float32)
        return m_words.number(value);
    float number = 0;
    const bool isNumber = m_words.number(number);
    value = double{number};
    return isNumber;
}

std::string PlyTextValues::place() const
{
    return "line " + std::to_string(lineAt(m_bytes, offset()));
}

PlyBinaryValues::PlyBinaryValues(std::string_view bytes, std::size_t begin, std::endian order)
    : m_bytes(bytes), m_offset(begin), m_order(order)
{
}

bool PlyBinaryValues::next(PlyType type, double& value)
{
    const std::size_t size = kSizes[static_cast<std::size_t>(type)];
    m_isShort = m_bytes.size() - m_offset < size;
    if (m_isShort)
        return false;
    value = decoded(type, m_bytes.data() + m_offset);
    m_offset += size;
    return true;
}

std::string PlyBinaryValues::place() const
{
    return "byte " + std::to_string(m_offset);
}

double PlyBinaryValues::decoded(PlyType type, const char* at) const
{
    switch (type) {
    case PlyType::Int8:
        return fromBytes<std::int8_t>(at, m_order);
    case PlyType::UInt8:
        return fromBytes<std::uint8_t>(at, m_order);
    case PlyType::Int16:
        return fromBytes<std::int16_t>(at, m_order);
    case PlyType::UInt16:
        return fromBytes<std::uint16_t>(at, m_order);
    case PlyType::Int32:
        return fromBytes<std::int32_t>(at, m_order);
    case PlyType::UInt32:
        return fromBytes<std::uint32_t>(at, m_order);
    case PlyType::Float32:
        return double{fromBytes<float>(at, m_order)};
    case PlyType::Float64:
        return fromBytes<double>(at, m_order);
    }
    return 0;
}

} // namespace vqview
