// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/brushes/LinearGradient.h"

namespace vq::gdiplus {
namespace {

std::vector<GradientStop> stopsOf(const LinearGradient& gradient)
{
    std::vector<GradientStop> stops;
    const auto [first, second] = gradient.colours;
    for (const ColourEntry& preset : gradient.presets)
        stops.push_back({preset.position, preset.colour, preset.colour, 0});
    if (!stops.empty())
        return stops;
    if (gradient.blend.size() == 1)
        return {{0, first, second, 0}, {1, first, second, 1}};
    for (const BlendEntry& entry : gradient.blend)
        stops.push_back({entry.position, first, second, entry.factor});
    return stops;
}

} // namespace

void LinearGradient::prepare()
{
    ramp = makeRamp(stopsOf(*this), isGammaCorrected);
}

} // namespace vq::gdiplus
