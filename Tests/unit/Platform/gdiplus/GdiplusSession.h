// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

#include <gtest/gtest.h>

namespace vq::test {

/// GDI+ is started as long as this lives.
class GdiplusSession
{
public:
    GdiplusSession()
    {
        const Gdiplus::GdiplusStartupInput input;
        EXPECT_EQ(Gdiplus::GdiplusStartup(&m_token, &input, nullptr), Gdiplus::Ok);
    }
    ~GdiplusSession() { Gdiplus::GdiplusShutdown(m_token); }
    GdiplusSession(const GdiplusSession&) = delete;
    GdiplusSession& operator=(const GdiplusSession&) = delete;

private:
    ULONG_PTR m_token = 0;
};

/// A test that runs with GDI+ started.
class GdiplusTest : public testing::Test
{
    GdiplusSession m_session;
};

} // namespace vq::test
