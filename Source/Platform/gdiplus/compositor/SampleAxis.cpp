// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/SampleAxis.h"

#include <algorithm>
#include <cmath>

namespace vq::gdiplus {

namespace {

constexpr int kFractionBits = 16;
constexpr std::int64_t kOne = std::int64_t{1} << kFractionBits;

bool isUsable(Extent extent)
{
    return std::isfinite(extent.position) && std::isfinite(extent.length) && extent.length != 0;
}

/// The first pixel whose centre is not before `position`, within 0 .. canvasLength.
int firstPixelFrom(double position, double centre, int canvasLength)
{
    const double pixel = std::ceil(position - centre);
    return static_cast<int>(std::clamp(pixel, 0.0, static_cast<double>(canvasLength)));
}

} // namespace

std::optional<SampleAxis> SampleAxis::create(Extent target, Extent source, int canvasLength, int imageLength,
                                             bool halfPixelOffset)
{
    if (!isUsable(target) || !isUsable(source) || canvasLength <= 0 || imageLength <= 0)
        return std::nullopt;

    SampleAxis axis;
    axis.m_target = target.position;
    axis.m_source = source.position;
    axis.m_scale = double{source.length} / double{target.length}; // finite: floats leave doubles room
    axis.m_centre = halfPixelOffset ? 0.5 : 0;
    axis.m_imageLength = imageLength;

    const double otherEnd = axis.m_target + double{target.length};
    axis.m_begin = firstPixelFrom(std::min(axis.m_target, otherEnd), axis.m_centre, canvasLength);
    axis.m_end = firstPixelFrom(std::max(axis.m_target, otherEnd), axis.m_centre, canvasLength);
    if (axis.m_begin >= axis.m_end)
        return std::nullopt;
    return axis;
}

std::int64_t SampleAxis::fixedAt(int pixel) const
{
    const double position = m_source + (pixel + m_centre - m_target) * m_scale - m_centre;
    const double drawnIn = std::clamp(position, -1.0, static_cast<double>(m_imageLength));
    return static_cast<std::int64_t>(std::floor(drawnIn * static_cast<double>(kOne) + 0.5));
}

SamplePosition SampleAxis::at(int pixel) const
{
    const std::int64_t fixed = fixedAt(pixel);
    return {static_cast<int>(fixed >> kFractionBits), static_cast<std::uint16_t>(fixed & (kOne - 1))};
}

Reach SampleAxis::reachAt(int pixel) const
{
    const SamplePosition position = at(pixel);
    if (position.index >= m_imageLength || (position.index < 0 && position.fraction == 0))
        return Reach::Outside;
    return position.index >= 0 && position.index + 1 < m_imageLength ? Reach::Inside : Reach::Edge;
}

int SampleAxis::nearestAt(int pixel) const
{
    return static_cast<int>((fixedAt(pixel) + kOne / 2) >> kFractionBits);
}

bool SampleAxis::hasWholePositions() const
{
    return m_scale == std::floor(m_scale) && at(m_begin).fraction == 0;
}

} // namespace vq::gdiplus
