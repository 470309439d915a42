// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQMath.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

/// How far a float is from an exact value, in units of the last place of the float nearest to it.
double unitsOff(float actual, long double exact)
{
    const float nearest = std::fabs(static_cast<float>(exact));
    const float unit = std::nextafter(nearest, 2.0f) - nearest;
    return static_cast<double>(std::fabs(actual - exact) / unit);
}

TEST(CVQMath, AnglesOfZeroAreExact)
{
    EXPECT_EQ(CVQMath::FastSin(0), 0.0f);
    EXPECT_TRUE(std::signbit(CVQMath::FastSin(-0.0f)));
    EXPECT_EQ(CVQMath::FastCos(0), 1.0f);
    EXPECT_EQ(CVQMath::FastCos(-0.0f), 1.0f);
}

TEST(CVQMath, IsWithinHalfAUnitOfTheExactValue)
{
    std::mt19937 random(5);
    double worst = 0;
    for (const float limit : {1e-30f, 1e-3f, 1.0f, 7.0f, 1000.0f, 1e5f, 1e9f, 3e38f}) {
        std::uniform_real_distribution<float> angles(-limit, limit);
        for (int i = 0; i < 20000; ++i) {
            const float angle = angles(random);
            worst = std::max(worst, unitsOff(CVQMath::FastSin(angle), std::sin(static_cast<long double>(angle))));
            worst = std::max(worst, unitsOff(CVQMath::FastCos(angle), std::cos(static_cast<long double>(angle))));
        }
        EXPECT_LT(worst, 0.51) << limit;
    }
}

TEST(CVQMath, IsExactAroundEveryQuarterTurn)
{
    for (int quarter = -2000; quarter <= 2000; ++quarter) {
        float angle = static_cast<float>(quarter * 1.57079632679489661923);
        for (const float target : {-1e6f, 1e6f}) {
            const float beside = std::nextafter(angle, target);
            EXPECT_LT(unitsOff(CVQMath::FastSin(beside), std::sin(static_cast<long double>(beside))), 0.51) << beside;
            EXPECT_LT(unitsOff(CVQMath::FastCos(beside), std::cos(static_cast<long double>(beside))), 0.51) << beside;
            EXPECT_LE(std::fabs(CVQMath::FastCos(beside)), 1.0f);
            EXPECT_LE(std::fabs(CVQMath::FastSin(beside)), 1.0f);
        }
    }
}

TEST(CVQMath, IsOddAndEven)
{
    for (float angle = 0; angle < 100; angle += 0.37f) {
        EXPECT_EQ(CVQMath::FastSin(-angle), -CVQMath::FastSin(angle)) << angle;
        EXPECT_EQ(CVQMath::FastCos(-angle), CVQMath::FastCos(angle)) << angle;
    }
}

TEST(CVQMath, AnAngleThatIsNotFiniteGivesNoNumber)
{
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float angle : {infinity, -infinity, std::nanf("")}) {
        EXPECT_TRUE(std::isnan(CVQMath::FastSin(angle)));
        EXPECT_TRUE(std::isnan(CVQMath::FastCos(angle)));
    }
}

} // namespace
