// SPDX-License-Identifier: MIT
#pragma once

#include "vqview/model/PlyHeader.h"
#include "vqview/model/TextScan.h"

#include <bit>

namespace vqview {

/// What stands behind the header of a file with text, value by value.
class PlyTextValues
{
public:
    PlyTextValues(std::string_view bytes, std::size_t begin);

    /// Every value comes as double, which holds all of them; text of a float is rounded once, to float.
    /// @return false when there is none, or something else.
    bool next(PlyType type, double& value);
    /// Whether next() has failed because the file has ended.
    bool isShort() const { return m_isShort; }
    std::size_t offset() const { return m_begin + m_words.offset(); }
    /// "line 7"
    std::string place() const;

private:
    std::string_view m_bytes;
    std::size_t m_begin;
    Words m_words;
    bool m_isShort = false;
};

/// The same of a binary file.
class PlyBinaryValues
{
public:
    PlyBinaryValues(std::string_view bytes, std::size_t begin, std::endian order);

    bool next(PlyType type, double& value);
    bool isShort() const { return m_isShort; }
    std::size_t offset() const { return m_offset; }
    /// "byte 700"
    std::string place() const;

private:
    double decoded(PlyType type, const char* at) const;

    std::string_view m_bytes;
    std::size_t m_offset;
    std::endian m_order;
    bool m_isShort = false;
};

} // namespace vqview
