// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQDisplayAPI.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

/// Sets the factor for one test.
class CVQDisplayAPITest : public testing::Test
{
protected:
    void TearDown() override { CVQDisplayAPI::SetScaleFactor(m_before); }

    float m_before = CVQDisplayAPI::GetScaleFactor();
};

TEST_F(CVQDisplayAPITest, AnswersWhatTheScreenSaysUntilTheHostSetsAFactor)
{
    const HDC screen = GetDC(nullptr);
    const float expected = static_cast<float>(GetDeviceCaps(screen, LOGPIXELSX)) / 96.0f;
    ReleaseDC(nullptr, screen);
    EXPECT_EQ(m_before, expected);

    CVQDisplayAPI::SetScaleFactor(1.75f);
    EXPECT_EQ(CVQDisplayAPI::GetScaleFactor(), 1.75f);
}

TEST_F(CVQDisplayAPITest, RefusesWhatIsNoScale)
{
    CVQDisplayAPI::SetScaleFactor(1.5f);
    for (const float refused : {0.0f, -1.0f, std::nanf(""), std::numeric_limits<float>::infinity()})
        CVQDisplayAPI::SetScaleFactor(refused);
    EXPECT_EQ(CVQDisplayAPI::GetScaleFactor(), 1.5f);
}

} // namespace
