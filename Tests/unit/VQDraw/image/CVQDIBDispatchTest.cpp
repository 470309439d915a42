// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

namespace vq::test {
namespace {

using Access = VQTestAccess;

TEST(LibraryModule, HasStartedOnceTheLibraryIsLoaded)
{
    EXPECT_GE(AfxGetModuleRuns().started, 1);
    EXPECT_EQ(AfxGetModuleRuns().stopped, 0);
}

TEST(CVQDIBDispatch, HoldsThePortableRoutinesOnceTheLibraryIsLoaded)
{
    EXPECT_EQ(CVQDIB::pfEmboss, Access::embossDefault());
}

TEST(CVQDIBDispatch, BothSwitchesStoreThePortableRoutines)
{
    for (void (*const fillTable)() : {&CVQDIB::EnableSIMD, &CVQDIB::DisableSIMD}) {
        Access::embossSlot() = nullptr;

        fillTable();

        EXPECT_EQ(CVQDIB::pfEmboss, Access::embossDefault());
    }
}

TEST(CVQDIBDispatch, SwitchingToAndFroChangesNothing)
{
    const auto before = CVQDIB::pfEmboss;

    CVQDIB::EnableSIMD();
    CVQDIB::DisableSIMD();
    EXPECT_EQ(CVQDIB::pfEmboss, before);

    CVQDIB::DisableSIMD();
    CVQDIB::EnableSIMD();
    EXPECT_EQ(CVQDIB::pfEmboss, before);
}

int embossCalls = 0;
CVQDIB* embossedImage = nullptr;

TEST(CVQDIBDispatch, EmbossGoesThroughItsSlot)
{
    CVQDIB image(2, 2);
    embossCalls = 0;
    CVQDIB::pfEmboss = [](CVQDIB& target) {
        ++embossCalls;
        embossedImage = &target;
    };

    image.Emboss();
    CVQDIB::EnableSIMD();

    EXPECT_EQ(embossCalls, 1);
    EXPECT_EQ(embossedImage, &image);
}

TEST(CVQDIBEmboss, LeavesEveryPixelUnchangedByEveryWayIn)
{
    CVQDIB image(17, 5);
    fillRandom(image, 1);
    const Pixels before = pixels(image);

    image.Emboss();
    EXPECT_TRUE(shows(image, before));
    CVQDIB::pfEmboss(image);
    EXPECT_TRUE(shows(image, before));
    Access::embossDefault()(image);
    EXPECT_TRUE(shows(image, before));
    Access::embossSse2()(image);
    EXPECT_TRUE(shows(image, before));
}

} // namespace
} // namespace vq::test
