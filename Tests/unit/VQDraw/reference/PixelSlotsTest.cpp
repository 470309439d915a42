// SPDX-License-Identifier: MIT
// The dispatch slots of the pixel routines: what they hold and who calls through them.
#include "RoutineAccess.h"
#include "support/Pictures.h"

#include <array>

namespace vq::test {
namespace {

using Routines = VQTestAccess::PixelRoutines<CVQDIB>;

/// Both switches put the routine into an emptied slot.
template <typename Slot>
void expectRestored(Slot& slot, Slot routine, const char* name)
{
    EXPECT_EQ(slot, routine) << name;
    for (void (*const fillTable)() : {&CVQDIB::EnableSIMD, &CVQDIB::DisableSIMD}) {
        slot = nullptr;
        fillTable();
        EXPECT_EQ(slot, routine) << name;
    }
    slot = routine; // for the tests that follow a failure
}

TEST(PixelSlots, HoldThePortableRoutinesWhicheverSwitchRanLast)
{
    expectRestored(CVQDIB::pfCopy, Routines::copyDefault(), "pfCopy");
    expectRestored(CVQDIB::pfPaste, Routines::pasteDefault(), "pfPaste");
    expectRestored(CVQDIB::pfQuantize, Routines::quantizeDefault(), "pfQuantize");
    expectRestored(CVQDIB::pfConvertToGray, Routines::convertToGrayDefault(), "pfConvertToGray");
    expectRestored(CVQDIB::pfEqualize, Routines::equalizeDefault(), "pfEqualize");
    expectRestored(CVQDIB::pfMultiply, Routines::multiplyDefault(), "pfMultiply");
    expectRestored(CVQDIB::pfLighten, Routines::lightenDefault(), "pfLighten");
    expectRestored(CVQDIB::pfDarken, Routines::darkenDefault(), "pfDarken");
    expectRestored(CVQDIB::pfDifference, Routines::differenceDefault(), "pfDifference");
    expectRestored(CVQDIB::pfInvert, Routines::invertDefault(), "pfInvert");
    expectRestored(CVQDIB::pfScreen, Routines::screenDefault(), "pfScreen");
    expectRestored(CVQDIB::pfAdd, Routines::addDefault(), "pfAdd");
    expectRestored(CVQDIB::pfSubtract, Routines::subtractDefault(), "pfSubtract");
    expectRestored(CVQDIB::pfEmboss, VQTestAccess::embossDefault(), "pfEmboss");
    expectRestored(CVQDIB::DrawCircleSelection, VQTestAccess::circleSelectionDefault(), "DrawCircleSelection");
}

/// What the routine in a slot was called with.
struct Recorded
{
    CVQDIB* dst = nullptr;
    CVQDIB* src = nullptr;
    std::array<LONG, 6> numbers{};
    int calls = 0;
};
Recorded recorded;

void recordTwo(CVQDIB& dst, CVQDIB& src)
{
    recorded = {&dst, &src, {}, recorded.calls + 1};
}

void recordTwoAndLevel(CVQDIB& dst, CVQDIB& src, LONG level)
{
    recorded = {&dst, &src, {level}, recorded.calls + 1};
}

void recordOne(CVQDIB& image)
{
    recorded = {&image, nullptr, {}, recorded.calls + 1};
}

void recordOneAndLevel(CVQDIB& image, LONG level)
{
    recorded = {&image, nullptr, {level}, recorded.calls + 1};
}

void recordCopy(CVQDIB& dst, CVQDIB& src, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    recorded = {&dst, &src, {dx, dy, sx, sy, w, h}, recorded.calls + 1};
}

void recordPaste(CVQDIB* dst, CVQDIB* src, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    recorded = {dst, src, {dx, dy, sx, sy, w, h}, recorded.calls + 1};
}

class CallsThroughSlots : public testing::Test
{
protected:
    void SetUp() override
    {
        recorded = {};
        CVQDIB::pfCopy = recordCopy;
        CVQDIB::pfPaste = recordPaste;
        CVQDIB::pfLighten = CVQDIB::pfDarken = recordTwoAndLevel;
        CVQDIB::pfAdd = CVQDIB::pfSubtract = CVQDIB::pfMultiply = CVQDIB::pfScreen = CVQDIB::pfDifference = recordTwo;
        CVQDIB::pfInvert = CVQDIB::pfConvertToGray = CVQDIB::pfEqualize = recordOne;
        CVQDIB::pfQuantize = recordOneAndLevel;
    }
    void TearDown() override { CVQDIB::EnableSIMD(); }

    /// The call arrived once, with these images and numbers.
    void expectCall(CVQDIB* src, const std::array<LONG, 6>& numbers)
    {
        EXPECT_EQ(recorded.calls, 1);
        EXPECT_EQ(recorded.dst, &m_image);
        EXPECT_EQ(recorded.src, src);
        EXPECT_EQ(recorded.numbers, numbers);
        recorded = {};
    }

    CVQDIB m_image{9, 8};
    CVQDIB m_source{5, 4};
};

TEST_F(CallsThroughSlots, CopyAndPasteNameTheirBlock)
{
    m_image.Copy(m_source);
    expectCall(&m_source, {0, 0, 0, 0, 5, 4});
    m_image.Copy(&m_source);
    expectCall(&m_source, {0, 0, 0, 0, 5, 4});
    m_image.Copy(m_source, -2, 3);
    expectCall(&m_source, {-2, 3, 0, 0, 5, 4});
    m_image.Copy(&m_source, -2, 3);
    expectCall(&m_source, {-2, 3, 0, 0, 5, 4});
    m_image.Copy(m_source, 1, 2, 3, 4, 5, 6);
    expectCall(&m_source, {1, 2, 3, 4, 5, 6});
    m_image.Copy(&m_source, 1, 2, 3, 4, 5, 6);
    expectCall(&m_source, {1, 2, 3, 4, 5, 6});
    m_image.Paste(m_source);
    expectCall(&m_source, {0, 0, 0, 0, 5, 4});
    m_image.Paste(&m_source);
    expectCall(&m_source, {0, 0, 0, 0, 5, 4});
    m_image.Paste(m_source, -2, 3);
    expectCall(&m_source, {-2, 3, 0, 0, 5, 4});
    m_image.Paste(&m_source, -2, 3);
    expectCall(&m_source, {-2, 3, 0, 0, 5, 4});
    m_image.Paste(m_source, 1, 2, 3, 4, 5, 6);
    expectCall(&m_source, {1, 2, 3, 4, 5, 6});
    m_image.Paste(&m_source, 1, 2, 3, 4, 5, 6);
    expectCall(&m_source, {1, 2, 3, 4, 5, 6});
}

TEST_F(CallsThroughSlots, TwoImageOperationsHandOverBothImages)
{
    CVQDIB source(9, 8);
    m_image.Add(source);
    expectCall(&source, {});
    m_image.Add(&source);
    expectCall(&source, {});
    m_image.Subtract(source);
    expectCall(&source, {});
    m_image.Multiply(source);
    expectCall(&source, {});
    m_image.Screen(source);
    expectCall(&source, {});
    m_image.Difference(source);
    expectCall(&source, {});
    m_image.Lighten(source, -7);
    expectCall(&source, {-7});
    m_image.Darken(&source, 300);
    expectCall(&source, {300});
}

TEST_F(CallsThroughSlots, OperationsWithoutASourceUseTheImageItself)
{
    m_image.Add();
    expectCall(&m_image, {});
    m_image.Multiply();
    expectCall(&m_image, {});
}

TEST_F(CallsThroughSlots, ToneOperationsHandOverTheImage)
{
    m_image.Invert();
    expectCall(nullptr, {});
    m_image.ConvertToGray();
    expectCall(nullptr, {});
    m_image.Equalize();
    expectCall(nullptr, {});
    m_image.Quantize(11);
    expectCall(nullptr, {11});
}

TEST_F(CallsThroughSlots, DarkeningByALevelAndGreyRectanglesDoNotUseThem)
{
    m_image.Darken(LONG{3});
    m_image.ConvertToGray(CRect(0, 0, 3, 3));
    m_image.Blend(m_image);

    EXPECT_EQ(recorded.calls, 0);
}

} // namespace
} // namespace vq::test
