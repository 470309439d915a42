// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/LinearGradientAccess.h"

#include <cmath>
#include <numbers>
#include <span>
#include <vector>

namespace Gdiplus {

using vq::gdiplus::BlendEntry;
using vq::gdiplus::LinearGradient;

namespace {

/// What GDI+ asks of positions; those between the ends may be anything.
bool areFromEndToEnd(std::span<const REAL> positions)
{
    return positions.front() == 0 && positions.back() == 1;
}

/// What is no number passes, as in GDI+.
bool isOutsideUnit(REAL value)
{
    return value < 0 || value > 1;
}

/// The positive half of a bell, cut off at two standard deviations: 0 at 0, 1 at 1.
double bell(double position)
{
    return (std::erf((2 * position - 1) * std::numbers::sqrt2) / std::erf(std::numbers::sqrt2) + 1) / 2;
}

/// A blend that rises along `shape` until `focus` and falls from there, in `steps` straight pieces on each side.
template <typename Shape>
std::vector<BlendEntry> risingAndFalling(REAL focus, REAL scale, int steps, Shape shape)
{
    std::vector<BlendEntry> entries;
    const auto factor = [&](int step) { return static_cast<REAL>(double{scale} * shape(double(step) / steps)); };
    const auto along = [&](int step) { return static_cast<REAL>(step) / static_cast<REAL>(steps); };
    if (focus != 0)
        for (int step = 0; step < steps; ++step)
            entries.push_back({factor(step), focus * along(step)});
    entries.push_back({factor(steps), focus});
    if (focus != 1)
        for (int step = steps - 1; step >= 0; --step)
            entries.push_back({factor(step), 1 - (1 - focus) * along(step)});
    return entries;
}

} // namespace

Status LinearGradientBrush::SetBlend(const REAL* blendFactors, const REAL* blendPositions, INT count)
{
    return change([&](LinearGradient& gradient) {
        if (!blendFactors || !blendPositions || count <= 0)
            return InvalidParameter;
        const std::span factors(blendFactors, static_cast<std::size_t>(count));
        const std::span positions(blendPositions, factors.size());
        if (count > 1 && !areFromEndToEnd(positions))
            return InvalidParameter;
        gradient.blend.clear();
        for (std::size_t i = 0; i < factors.size(); ++i)
            gradient.blend.push_back({factors[i], positions[i]});
        gradient.presets.clear();
        return Ok;
    });
}

INT LinearGradientBrush::GetBlendCount() const
{
    INT count = 0;
    read([&](const LinearGradient& gradient) {
        count = static_cast<INT>(gradient.blend.size());
        return Ok;
    });
    return count;
}

Status LinearGradientBrush::GetBlend(REAL* blendFactors, REAL* blendPositions, INT count) const
{
    return read([&](const LinearGradient& gradient) {
        if (!blendFactors || !blendPositions || count <= 0)
            return InvalidParameter;
        if (static_cast<std::size_t>(count) < gradient.blend.size())
            return InsufficientBuffer;
        for (std::size_t i = 0; i < gradient.blend.size(); ++i) {
            blendFactors[i] = gradient.blend[i].factor;
            blendPositions[i] = gradient.blend[i].position;
        }
        return Ok;
    });
}

Status LinearGradientBrush::SetBlendTriangularShape(REAL focus, REAL scale)
{
    return change([&](LinearGradient& gradient) {
        if (isOutsideUnit(focus) || isOutsideUnit(scale))
            return InvalidParameter;
        gradient.blend = risingAndFalling(focus, scale, 1, [](double position) { return position; });
        gradient.presets.clear();
        return Ok;
    });
}

Status LinearGradientBrush::SetBlendBellShape(REAL focus, REAL scale)
{
    return change([&](LinearGradient& gradient) {
        if (isOutsideUnit(focus) || isOutsideUnit(scale))
            return InvalidParameter;
        constexpr int kSteps = 16;
        gradient.blend = risingAndFalling(focus, scale, kSteps, bell);
        gradient.presets.clear();
        return Ok;
    });
}

Status LinearGradientBrush::SetInterpolationColors(const Color* presetColors, const REAL* blendPositions, INT count)
{
    return change([&](LinearGradient& gradient) {
        if (!presetColors || !blendPositions || count < 2)
            return InvalidParameter;
        const std::span colours(presetColors, static_cast<std::size_t>(count));
        const std::span positions(blendPositions, colours.size());
        if (!areFromEndToEnd(positions))
            return InvalidParameter;
        gradient.presets.clear();
        for (std::size_t i = 0; i < colours.size(); ++i)
            gradient.presets.push_back({colours[i].GetValue(), positions[i]});
        return Ok;
    });
}

INT LinearGradientBrush::GetInterpolationColorCount() const
{
    INT count = 0;
    read([&](const LinearGradient& gradient) {
        count = static_cast<INT>(gradient.presets.size());
        return Ok;
    });
    return count;
}

Status LinearGradientBrush::GetInterpolationColors(Color* presetColors, REAL* blendPositions, INT count) const
{
    return read([&](const LinearGradient& gradient) {
        if (!presetColors || !blendPositions || count < 2)
            return InvalidParameter;
        if (gradient.presets.empty())
            return GenericError;
        if (static_cast<std::size_t>(count) < gradient.presets.size())
            return InsufficientBuffer;
        for (std::size_t i = 0; i < gradient.presets.size(); ++i) {
            presetColors[i].SetValue(gradient.presets[i].colour);
            blendPositions[i] = gradient.presets[i].position;
        }
        return Ok;
    });
}

} // namespace Gdiplus
