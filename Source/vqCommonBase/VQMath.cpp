// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQMath.h"

#include <cmath>

namespace {

/// Up to here the number of quarter turns has 16 bits, and its product with the first constant below is exact.
constexpr float kLargestReduced = 1e5f;

constexpr double kQuarterTurn = 0x1.921FB544p+0;           // pi / 2 in 33 bits
constexpr double kQuarterTurnRest = 0x1.0B4611A626331p-34; // what is left of it

// Taylor series: on -pi/4 .. pi/4 the first terms left out are below 7e-12 and 4e-13.
constexpr double sineOf(double x)
{
    const double square = x * x;
    return x *
           (1 + square * (-1.0 / 6 +
                          square * (1.0 / 120 + square * (-1.0 / 5040 + square * (1.0 / 362880 - square / 39916800)))));
}

constexpr double cosineOf(double x)
{
    const double square = x * x;
    return 1 + square * (-1.0 / 2 +
                         square * (1.0 / 24 +
                                   square * (-1.0 / 720 +
                                             square * (1.0 / 40320 + square * (-1.0 / 3628800 + square / 479001600)))));
}

/// The sine of an angle that lies `quarters` quarter turns further.
double turnedSine(double radians, int quarters)
{
    const double exactTurns = radians / (kQuarterTurn + kQuarterTurnRest);
    const int turns = static_cast<int>(exactTurns + (exactTurns < 0 ? -0.5 : 0.5));
    const double rest = (radians - turns * kQuarterTurn) - turns * kQuarterTurnRest;
    const int quadrant = (turns + quarters) & 3;
    const double value = quadrant & 1 ? cosineOf(rest) : sineOf(rest);
    return quadrant & 2 ? -value : value;
}

bool isReduced(float radians)
{
    return std::fabs(radians) <= kLargestReduced;
}

} // namespace

float CVQMath::FastSin(float radians)
{
    return static_cast<float>(isReduced(radians) ? turnedSine(radians, 0) : std::sin(double{radians}));
}

float CVQMath::FastCos(float radians)
{
    return static_cast<float>(isReduced(radians) ? turnedSine(radians, 1) : std::cos(double{radians}));
}
