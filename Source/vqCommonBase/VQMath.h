// SPDX-License-Identifier: MIT
#pragma once

#include "vqCommonBase/Export.h"

/// Sine and cosine for geometry on screen: the same bits on every system for angles up to 1e5 on either side of 0,
/// which the C libraries do not promise.
///
/// The result is within 0.51 units in the last place of the exact one, 0 and 1 come out exactly for an angle of 0, and
/// no result lies outside -1 .. 1. An angle that is not finite gives a result that is not a number.
class VQCOMMONBASE_API CVQMath
{
public:
    static float FastSin(float radians);
    static float FastCos(float radians);
};
