// SPDX-License-Identifier: MIT
#include "support/GdiplusEnvironment.h"

#include "support/ImageAccess.h"

namespace vq::test {

void GdiplusEnvironment::SetUp()
{
    EXPECT_EQ(VQTestAccess::gdiplusToken(), 0u) << "loading the library starts GDI+";

    ASSERT_EQ(CVQDIB::InitializeGDIPlus(), 1);

    EXPECT_NE(VQTestAccess::gdiplusToken(), 0u);
}

void GdiplusEnvironment::TearDown()
{
    EXPECT_EQ(CVQDIB::ShutdownGDIPlus(), 1);
}

namespace {
[[maybe_unused]] const auto* const kRegistered = testing::AddGlobalTestEnvironment(new GdiplusEnvironment);
} // namespace

} // namespace vq::test
