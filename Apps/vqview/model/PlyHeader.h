// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vqview {

enum class PlyType : std::uint8_t { Int8, UInt8, Int16, UInt16, Int32, UInt32, Float32, Float64 };

enum class PlyEncoding { Text, LittleEndian, BigEndian };

/// One value, or where there is a type of counts a list of them.
struct PlyProperty
{
    std::string name;
    PlyType type = PlyType::Int8;
    std::optional<PlyType> countType;
};

struct PlyElement
{
    std::string name;
    std::uint64_t count = 0; ///< as the file says, not as it is
    std::vector<PlyProperty> properties;
};

struct PlyHeader
{
    PlyEncoding encoding = PlyEncoding::Text;
    std::vector<PlyElement> elements;
    std::size_t size = 0; ///< in bytes: the elements begin behind it
};

/// @return what is wrong; empty when nothing is.
std::string readPlyHeader(std::string_view bytes, PlyHeader& header);

} // namespace vqview
