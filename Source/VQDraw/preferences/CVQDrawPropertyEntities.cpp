// SPDX-License-Identifier: MIT
// Colours by what the geometry database and the tolerance checks call things.
#include "VQDraw/VQDrawProperty.h"

#include "VQDraw/preferences/EntityColours.h"

#include <algorithm>
#include <cstdint>

namespace {

eDrawPropertyColor colourOf(eVQCalcTolResult result)
{
    const std::int64_t number = result; // any number, whose sum need not be an int
    if (result == VQ_TOL_IGNORED)
        return DPC_IGNORE_RESULT;
    return static_cast<eDrawPropertyColor>(std::clamp<std::int64_t>(DPC_FAIL + number, -1, DPC_END));
}

} // namespace

eDrawPropertyColor CVQDrawProperty::GetDrawPropOfEntity(eGDBEntityType type)
{
    const auto row = std::ranges::find(vq::kEntityColours, type, &vq::EntityColour::type);
    return row == vq::kEntityColours.end() ? DPC_END : row->colour;
}

float* CVQDrawProperty::Get4fvOfEntity(eGDBEntityType type)
{
    return GetColor(GetDrawPropOfEntity(type));
}

CVQColor CVQDrawProperty::GetColorOfEntity(eGDBEntityType type)
{
    return GetDPCVQColor(GetDrawPropOfEntity(type));
}

void CVQDrawProperty::Set4fvOfEntity(eGDBEntityType type, const float* rgba)
{
    if (float* const row = Get4fvOfEntity(type); row && rgba)
        std::copy_n(rgba, 4, row);
}

float* CVQDrawProperty::GetResultColor(eVQCalcTolResult result)
{
    return GetColor(colourOf(result));
}

CVQColor CVQDrawProperty::GetResultVQColor(eVQCalcTolResult result)
{
    return GetDPCVQColor(colourOf(result));
}
