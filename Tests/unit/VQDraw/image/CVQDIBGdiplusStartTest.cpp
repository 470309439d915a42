// SPDX-License-Identifier: MIT
#include "support/GdiplusEnvironment.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

namespace vq::test {
namespace {

using Access = VQTestAccess;

TEST(CVQDIBGdiplusStart, KeepsATokenWhileGdiplusRuns)
{
    EXPECT_NE(Access::gdiplusToken(), 0u);
}

TEST(CVQDIBGdiplusStart, CanBeShutDownAndStartedAgain)
{
    {
        const GdiplusStopped stopped;
    }

    CVQDIB image(2, 2);
    image.GetGraphics()->Clear(Gdiplus::Color(0xFF010203));

    EXPECT_TRUE(shows(image, Pixels(4, 0xFF010203)));
    EXPECT_NE(Access::gdiplusToken(), 0u);
}

TEST(CVQDIBGdiplusStart, ShutDownWithoutAStartAnswersOne)
{
    const GdiplusStopped stopped;
    Access::gdiplusToken() = 0;

    EXPECT_EQ(CVQDIB::ShutdownGDIPlus(), 1);
}

TEST(CVQDIBGdiplusStart, ImagesOfAnEarlierSessionAreReplacedByNewOnes)
{
    for (int session = 0; session < 3; ++session) {
        {
            CVQDIB image(8, 8);
            image.Rotate(Gdiplus::Rotate90FlipNone);
            EXPECT_EQ(image.GetSize(), 64);
        }
        const GdiplusStopped stopped;
    }
}

} // namespace
} // namespace vq::test
