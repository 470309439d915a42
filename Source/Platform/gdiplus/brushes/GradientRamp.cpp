// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/brushes/GradientRamp.h"

#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <algorithm>

namespace vq::gdiplus {
namespace {

bool haveOneAlpha(std::span<const GradientStop> stops)
{
    const std::uint32_t alpha = alphaOf(stops.front().first);
    return std::ranges::all_of(
        stops, [=](const GradientStop& stop) { return alphaOf(stop.first) == alpha && alphaOf(stop.second) == alpha; });
}

double withinUnit(double factor)
{
    return factor > 0 ? std::min(factor, 1.0) : 0; // also what is no number
}

Amounts amountsOf(Pixel colour, const GradientRamp& ramp)
{
    const double alpha = alphaOf(colour);
    const auto amount = [&](std::uint32_t channel) {
        const double light = ramp.isLight ? LinearLight::decode(channel) : channel;
        return ramp.isMultiplied ? light * alpha : light;
    };
    return {alpha, amount(redOf(colour)), amount(greenOf(colour)), amount(blueOf(colour))};
}

Amounts amountsOf(const GradientStop& stop, const GradientRamp& ramp)
{
    const Amounts first = amountsOf(stop.first, ramp);
    const Amounts second = amountsOf(stop.second, ramp);
    const double factor = withinUnit(stop.factor);
    Amounts mixed;
    for (std::size_t i = 0; i < mixed.size(); ++i)
        mixed[i] = first[i] + (second[i] - first[i]) * factor;
    return mixed;
}

GradientPiece pieceBetween(double begin, const Amounts& start, double end, const Amounts& finish)
{
    GradientPiece piece{begin, end, start, {}};
    for (std::size_t i = 0; i < start.size(); ++i)
        piece.slope[i] = (finish[i] - start[i]) / (end - begin);
    return piece;
}

} // namespace

GradientRamp makeRamp(std::span<const GradientStop> stops, bool inLinearLight)
{
    GradientRamp ramp{{}, !haveOneAlpha(stops), inLinearLight};
    double position = 0;
    Amounts amounts = amountsOf(stops.front(), ramp);
    for (const GradientStop& stop : stops.subspan(1)) {
        if (!(position <= stop.position && stop.position <= 1))
            continue;
        const Amounts reached = amountsOf(stop, ramp);
        if (position < stop.position)
            ramp.pieces.push_back(pieceBetween(position, amounts, stop.position, reached));
        position = stop.position;
        amounts = reached;
    }
    if (position < 1)
        ramp.pieces.push_back(pieceBetween(position, amounts, 1, amounts));
    return ramp;
}

} // namespace vq::gdiplus
