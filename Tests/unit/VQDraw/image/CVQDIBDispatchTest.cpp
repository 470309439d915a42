// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <tuple>

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

auto allSlots()
{
    return std::tuple(CVQDIB::pfCopy, CVQDIB::pfPaste, CVQDIB::pfQuantize, CVQDIB::pfConvertToGray, CVQDIB::pfEqualize,
                      CVQDIB::pfMultiply, CVQDIB::pfLighten, CVQDIB::pfDarken, CVQDIB::pfDifference, CVQDIB::pfInvert,
                      CVQDIB::pfScreen, CVQDIB::pfAdd, CVQDIB::pfSubtract, CVQDIB::pfEmboss,
                      CVQDIB::DrawCircleSelection);
}

TEST(CVQDIBDispatch, SwitchingToAndFroChangesNothing)
{
    const auto before = allSlots();

    CVQDIB::EnableSIMD();
    CVQDIB::DisableSIMD();
    EXPECT_EQ(allSlots(), before);

    CVQDIB::DisableSIMD();
    CVQDIB::EnableSIMD();
    EXPECT_EQ(allSlots(), before);
}

TEST(CVQDIBDispatch, ASwitchRestoresWhatAHostPutIntoASlot)
{
    const auto before = allSlots();
    CVQDIB::pfAdd = nullptr;
    CVQDIB::pfPaste = nullptr;
    CVQDIB::pfQuantize = nullptr;
    CVQDIB::DrawCircleSelection = nullptr;

    CVQDIB::EnableSIMD();

    EXPECT_EQ(allSlots(), before);
}

int slotCalls = 0;

TEST(CVQDIBDispatch, PublicMembersGoThroughTheirSlots)
{
    const auto pair = [](CVQDIB&, CVQDIB&) { ++slotCalls; };
    const auto pairAndLevel = [](CVQDIB&, CVQDIB&, LONG) { ++slotCalls; };
    const auto single = [](CVQDIB&) { ++slotCalls; };
    CVQDIB::pfAdd = CVQDIB::pfSubtract = CVQDIB::pfMultiply = CVQDIB::pfScreen = CVQDIB::pfDifference = pair;
    CVQDIB::pfLighten = CVQDIB::pfDarken = pairAndLevel;
    CVQDIB::pfInvert = CVQDIB::pfConvertToGray = CVQDIB::pfEqualize = single;
    CVQDIB::pfQuantize = [](CVQDIB&, LONG) { ++slotCalls; };
    CVQDIB::pfCopy = [](CVQDIB&, CVQDIB&, LONG, LONG, LONG, LONG, LONG, LONG) { ++slotCalls; };
    CVQDIB::pfPaste = [](CVQDIB*, CVQDIB*, LONG, LONG, LONG, LONG, LONG, LONG) { ++slotCalls; };
    CVQDIB image(2, 2);
    CVQDIB other(2, 2);
    slotCalls = 0;

    image.Copy(other), image.Copy(&other), image.Copy(other, 1, 1), image.Copy(&other, 1, 1, 0, 0, 1, 1);
    image.Paste(other), image.Paste(&other), image.Paste(other, 1, 1), image.Paste(&other, 1, 1, 0, 0, 1, 1);
    EXPECT_EQ(slotCalls, 8);
    image.Add(), image.Add(other), image.Add(&other), image.Subtract(other), image.Subtract(&other);
    image.Multiply(), image.Multiply(other), image.Multiply(&other), image.Screen(other), image.Screen(&other);
    EXPECT_EQ(slotCalls, 18);
    image.Difference(other), image.Lighten(&other, 255), image.Darken(other, 255);
    image.Invert(), image.ConvertToGray(), image.Equalize(), image.Quantize(3);
    EXPECT_EQ(slotCalls, 25);
    image.Darken(3);
    image.ConvertToGray(CRect(0, 0, 1, 1));
    EXPECT_EQ(slotCalls, 25) << "these two have no slot";
    CVQDIB::EnableSIMD();
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
