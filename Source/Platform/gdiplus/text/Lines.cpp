// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/Lines.h"

#include <algorithm>
#include <cmath>

namespace vq::gdiplus {
namespace {

/// One line on its way through the text.
class LineBuilder
{
public:
    LineBuilder(std::span<const Character> characters, std::size_t first, const LineLimits& limits)
        : m_characters(characters), m_limits(limits), m_line{first, first, first, 0}, m_lastPlace(m_line)
    {
    }

    TextLine build();
    bool wasCut() const { return m_cut; }

private:
    std::size_t clusterEnd(std::size_t first) const;
    double widthAfter(std::size_t cluster) const;
    bool fits(double width) const;
    TextLine brokenBefore(std::size_t cluster);

    std::span<const Character> m_characters;
    const LineLimits& m_limits;
    TextLine m_line;      // what is known to stand on the line; hanging spaces behind it are not
    TextLine m_lastPlace; // the line had it ended at the last allowed place; without a character at first
    double m_place = 0;   // behind the spaces
    bool m_cut = false;
};

std::size_t LineBuilder::clusterEnd(std::size_t first) const
{
    std::size_t end = first + 1;
    while (end < m_characters.size() && m_characters[end].is(Character::kContinues))
        ++end;
    return end;
}

double LineBuilder::widthAfter(std::size_t cluster) const
{
    if (m_characters[cluster].is(Character::kTab))
        return nextTabStop(m_place, m_limits.em);
    return m_place + m_characters[cluster].width;
}

/// In single precision, as the widths that callers get and hand back: a text fits into its own measure.
bool LineBuilder::fits(double width) const
{
    return static_cast<float>(width + m_limits.margins) <= m_limits.width;
}

TextLine LineBuilder::brokenBefore(std::size_t cluster)
{
    m_cut = true;
    const bool atPlaces = m_limits.wraps || m_limits.trimming == TextTrimming::Word;
    if (atPlaces && m_lastPlace.next > m_line.first)
        return m_lastPlace;
    m_line.next = cluster;
    return m_line;
}

TextLine LineBuilder::build()
{
    std::size_t cluster = m_line.first;
    while (cluster < m_characters.size()) {
        const Character& character = m_characters[cluster];
        const std::size_t end = clusterEnd(cluster);
        if (character.is(Character::kLineBreak)) {
            m_line.next = end;
            return m_line;
        }
        const double width = widthAfter(cluster);
        if (!character.is(Character::kSpace)) {
            const bool mayBeEmpty = !m_limits.wraps;
            const bool mustFit = m_limits.wraps || m_limits.trimming != TextTrimming::None;
            if (mustFit && !fits(width) && (mayBeEmpty || cluster > m_line.first))
                return brokenBefore(cluster);
        }
        if (!character.is(Character::kSpace) || m_limits.countsTrailingSpaces) {
            m_line.end = end;
            m_line.width = width;
        }
        m_place = width;
        m_line.next = end;
        if (m_characters[end - 1].is(Character::kBreakAfter))
            m_lastPlace = m_line;
        cluster = end;
    }
    return m_line;
}

} // namespace

double nextTabStop(double place, double em)
{
    const double distance = kTabStopInEms * em;
    return (std::floor(place / distance) + 1) * distance;
}

void breakLines(std::span<const Character> characters, const LineLimits& limits, std::vector<TextLine>& lines)
{
    lines.clear();
    for (std::size_t first = 0; first < characters.size() && lines.size() < limits.lines;) {
        LineBuilder builder(characters, first, limits);
        lines.push_back(builder.build());
        first = lines.back().next;
        if (builder.wasCut() && !limits.wraps)
            break;
    }
}

} // namespace vq::gdiplus
