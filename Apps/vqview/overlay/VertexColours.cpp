// SPDX-License-Identifier: MIT
#include "vqview/overlay/VertexColours.h"

#include "vqview/overlay/ColourRamp.h"
#include "vqview/overlay/Histogram.h"

#include <algorithm>
#include <cmath>

namespace vqview {

void coloursOf(std::span<const float> values, std::vector<CVQColor>& colours)
{
    const Statistics statistics = withoutTails(values, statisticsOf(values));
    colours.resize(values.size());
    std::ranges::transform(values, colours.begin(), [&](float value) {
        return rampColour(std::isfinite(value) ? static_cast<float>(statistics.placeOf(value)) : value - value);
    });
}

} // namespace vqview
