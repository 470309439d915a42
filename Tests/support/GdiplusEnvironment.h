// SPDX-License-Identifier: MIT
#pragma once

#include "VQDraw/VQDIB.h"

#include <gtest/gtest.h>

namespace vq::test {

/// Starts GDI+ as a host does before the first test and shuts it down after the last one. The program registers it.
class GdiplusEnvironment : public testing::Environment
{
public:
    void SetUp() override;
    void TearDown() override;
};

/// GDI+ is down while this lives. No image may be alive when it begins.
class GdiplusStopped
{
public:
    GdiplusStopped() { EXPECT_EQ(CVQDIB::ShutdownGDIPlus(), 1); }
    ~GdiplusStopped() { EXPECT_EQ(CVQDIB::InitializeGDIPlus(), 1); }
    GdiplusStopped(const GdiplusStopped&) = delete;
    GdiplusStopped& operator=(const GdiplusStopped&) = delete;
};

} // namespace vq::test
