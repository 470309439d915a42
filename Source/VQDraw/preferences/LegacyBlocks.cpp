// SPDX-License-Identifier: MIT
#include "VQDraw/preferences/LegacyBlocks.h"

#include "VQDraw/preferences/TextNumbers.h"

#include <algorithm>

namespace {

/// The first of the properties whose tag stands in the line.
void readProperty(std::span<const vq::LegacyProperty> properties, const CString& line, vq::LegacyValues& values)
{
    const auto property = std::ranges::find_if(
        properties, [&](const vq::LegacyProperty& candidate) { return vq::hasTag(line, candidate.tag); });
    if (property == properties.end())
        return;
    const CString value = vq::valueBehind(property->tag, line);
    values[property->slot] = property->number == vq::LegacyNumber::Integer ? vq::integerOf(value) : vq::realOf(value);
}

} // namespace

bool vq::opens(const LegacyLayout& layout, const CString& line)
{
    return line.CompareNoCase(layout.opening) == 0;
}

bool vq::readLegacyBlock(TextLines& lines, const LegacyLayout& layout, LegacyValues& values)
{
    CString closing = layout.opening;
    closing.Insert(1, L'/');
    for (CString line; readLegacyLine(lines, line);) {
        if (line.CompareNoCase(closing) == 0)
            return true;
        const auto part =
            std::ranges::find_if(layout.parts, [&](const LegacyLayout& candidate) { return opens(candidate, line); });
        if (part == layout.parts.end())
            readProperty(layout.properties, line, values);
        else if (!readLegacyBlock(lines, *part, values))
            return false;
    }
    return false;
}
