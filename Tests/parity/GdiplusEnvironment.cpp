// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <gtest/gtest.h>

namespace {

/// GDI+ is started as long as tests run.
class GdiplusEnvironment : public testing::Environment
{
public:
    void SetUp() override
    {
        const Gdiplus::GdiplusStartupInput input;
        ASSERT_EQ(Gdiplus::GdiplusStartup(&m_token, &input, nullptr), Gdiplus::Ok);
    }
    void TearDown() override { Gdiplus::GdiplusShutdown(m_token); }

private:
    ULONG_PTR m_token = 0;
};

const auto* const environment = testing::AddGlobalTestEnvironment(new GdiplusEnvironment);

} // namespace
