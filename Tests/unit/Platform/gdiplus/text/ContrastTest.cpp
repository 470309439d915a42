// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/Contrast.h"

#include <cmath>

#include <gtest/gtest.h>

namespace {

using namespace vq::gdiplus;

TEST(Contrast, ZeroLeavesCoverageAsItIs)
{
    for (unsigned coverage = 0; coverage < 256; ++coverage)
        EXPECT_EQ(kContrastTables[0][coverage], coverage);
}

TEST(Contrast, RaisesCoverageToTheReciprocalOfItsGamma)
{
    for (unsigned contrast = 0; contrast <= kHighestContrast; ++contrast)
        for (unsigned coverage = 0; coverage < 256; ++coverage) {
            const double exact = 255 * std::pow(coverage / 255.0, 10.0 / (10 + contrast));
            EXPECT_NEAR(kContrastTables[contrast][coverage], exact, 0.5001) << contrast << ' ' << coverage;
        }
}

} // namespace
