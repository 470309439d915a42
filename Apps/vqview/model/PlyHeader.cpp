// SPDX-License-Identifier: MIT
#include "vqview/model/PlyHeader.h"

#include "vqview/model/TextScan.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vqview {

namespace {

template <typename Value>
using Named = std::pair<std::string_view, Value>;

constexpr std::array<Named<PlyType>, 16> kTypes{{
    {"char", PlyType::Int8},
    {"int8", PlyType::Int8},
    {"uchar", PlyType::UInt8},
    {"uint8", PlyType::UInt8},
    {"short", PlyType::Int16},
    {"int16", PlyType::Int16},
    {"ushort", PlyType::UInt16},
    {"uint16", PlyType::UInt16},
    {"int", PlyType::Int32},
    {"int32", PlyType::Int32},
    {"uint", PlyType::UInt32},
    {"uint32", PlyType::UInt32},
    {"float", PlyType::Float32},
    {"float32", PlyType::Float32},
    {"double", PlyType::Float64},
    {"float64", PlyType::Float64},
}};

constexpr std::array<Named<PlyEncoding>, 3> kEncodings{{
    {"ascii", PlyEncoding::Text},
    {"binary_little_endian", PlyEncoding::LittleEndian},
    {"binary_big_endian", PlyEncoding::BigEndian},
}};

template <typename Value, std::size_t kCount>
std::optional<Value> valueOf(const std::array<Named<Value>, kCount>& table, std::string_view name)
{
    const auto found = std::ranges::find(table, name, &Named<Value>::first);
    return found == table.end() ? std::nullopt : std::optional(found->second);
}

bool takeElement(Words& words, std::vector<PlyElement>& elements)
{
    PlyElement element;
    element.name = words.next();
    std::string_view word = words.next();
    std::int64_t count = 0;
    if (!takeInteger(word, count) || !word.empty() || count < 0)
        return false;
    element.count = static_cast<std::uint64_t>(count);
    elements.push_back(std::move(element));
    return true;
}

/// property TYPE NAME, or property list COUNT-TYPE TYPE NAME.
bool takeProperty(Words& words, std::vector<PlyElement>& elements)
{
    PlyProperty property;
    std::string_view word = words.next();
    if (word == "list") {
        property.countType = valueOf(kTypes, words.next());
        if (!property.countType)
            return false;
        word = words.next();
    }
    const auto type = valueOf(kTypes, word);
    property.name = words.next();
    if (!type || property.name.empty() || elements.empty())
        return false;
    property.type = *type;
    elements.back().properties.push_back(std::move(property));
    return true;
}

bool takeEncoding(Words& words, std::optional<PlyEncoding>& encoding)
{
    encoding = valueOf(kEncodings, words.next());
    return encoding.has_value();
}

} // namespace

std::string readPlyHeader(std::string_view bytes, PlyHeader& header)
{
    Progress unwatched;
    // Binary numbers behind the header hold any byte.
    Lines lines(bytes, unwatched, lineEndOf(bytes.substr(0, bytes.find("end_header"))));
    std::optional<PlyEncoding> encoding;
    std::string_view line;
    if (!lines.next(line) || Words(line).next() != "ply")
        return "it does not begin with \"ply\"";
    while (lines.next(line)) {
        Words words(line);
        const std::string_view keyword = words.next();
        if (keyword == "end_header") {
            header.size = std::min(lines.offset(), bytes.size());
            header.encoding = encoding.value_or(PlyEncoding::Text);
            return encoding ? std::string() : "its header names no format";
        }
        if (keyword == "format" && !takeEncoding(words, encoding))
            return inLine(lines.number(), "the format is none of ascii and both binary ones");
        if (keyword == "element" && !takeElement(words, header.elements))
            return inLine(lines.number(), "an element is not a name and a count");
        if (keyword == "property" && !takeProperty(words, header.elements))
            return inLine(lines.number(), "a property is not a type and a name");
    }
    return "its header does not end";
}

} // namespace vqview
