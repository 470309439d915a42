// SPDX-License-Identifier: MIT
// Whole-image operations: values typed by hand, and every pair of bytes.
#include "RoutineAccess.h"
#include "support/Pictures.h"

namespace vq::test {
namespace {

using Routines = VQTestAccess::PixelRoutines<CVQDIB>;

/// A picture of one row and its change by `act`.
template <typename Act>
Pixels changed(const Pixels& before, Act act)
{
    CVQDIB image(static_cast<int>(before.size()), 1);
    paint(image, before);
    act(image);
    return pixels(image);
}

template <typename Act>
Pixels combined(const Pixels& before, const Pixels& source, Act act)
{
    CVQDIB other(static_cast<int>(source.size()), 1);
    paint(other, source);
    return changed(before, [&](CVQDIB& image) { act(image, other); });
}

TEST(CVQDIBAddEdges, AddedToItselfDoublesAndClampsAlphaToo)
{
    EXPECT_EQ(changed({0x80C0FF40}, [](CVQDIB& i) { i.Add(); }), (Pixels{0xFFFFFF80}));
}

TEST(CVQDIBSubtractEdges, AnOpaqueSourceClearsAlpha)
{
    EXPECT_EQ(combined({0xFF102030, 0x80FFFFFF}, {0xFF011101, 0xFF000000}, [](CVQDIB& i, CVQDIB& s) { i.Subtract(s); }),
              (Pixels{0x000F0F2F, 0x00FFFFFF}));
}

TEST(CVQDIBMultiplyEdges, WhiteDarkensEveryChannelButZeroByOneStep)
{
    const auto multiply = [](CVQDIB& i, CVQDIB& s) { i.Multiply(s); };

    EXPECT_EQ(combined({0xFF01C000, 0x00000000}, {0xFFFFFFFF, 0xFFFFFFFF}, multiply), (Pixels{0xFE00BF00, 0x00000000}));
    EXPECT_EQ(changed({0xFFFF8010}, [](CVQDIB& i) { i.Multiply(); }), (Pixels{0xFEFE4001}));
}

TEST(CVQDIBMultiplyEdges, TheUnusedVariantDoesNothing)
{
    EXPECT_EQ(combined({0x12345678}, {0x80808080}, [](CVQDIB& i, CVQDIB& s) { Routines::multiplySse3()(i, s); }),
              (Pixels{0x12345678}));
    EXPECT_EQ(CVQDIB::pfMultiply, Routines::multiplyDefault());
}

TEST(CVQDIBScreenEdges, BlackOnBlackIsOneAndWhiteStaysWhite)
{
    EXPECT_EQ(combined({0x40000000, 0x40FF00FF, 0x400055AA}, {0xFF000000, 0x00AABBFF, 0xFFFFFFFF},
                       [](CVQDIB& i, CVQDIB& s) { i.Screen(s); }),
              (Pixels{0x40010101, 0x40FFBCFF, 0x40FFFFFF}));
}

TEST(CVQDIBDifferenceEdges, IsAbsoluteAndKeepsAlpha)
{
    EXPECT_EQ(combined({0x4010FF80}, {0xFF20007F}, [](CVQDIB& i, CVQDIB& s) { i.Difference(s); }),
              (Pixels{0x4010FF01}));
}

TEST(CVQDIBLightenEdges, TakesTheLargerOfDestinationAndScaledSource)
{
    const auto by = [](LONG level) { return [level](CVQDIB& i, CVQDIB& s) { i.Lighten(s, level); }; };
    const Pixels before{0x10204060};
    const Pixels source{0xFFFF4020};

    EXPECT_EQ(combined(before, source, by(255)), (Pixels{0x10FF4060}));
    EXPECT_EQ(combined(before, source, by(0)), before);
    EXPECT_EQ(combined(before, source, by(127)), (Pixels{0x107F4060}));
    EXPECT_EQ(combined(before, {0x00808080}, by(511)), before); // 128 x 2 = 256, of which the low byte is 0
    EXPECT_EQ(combined(before, {0x00818181}, by(511)), before); // 129 x 2 = 258 counts as 2
    EXPECT_EQ(combined(before, {0x007F7F7F}, by(511)), (Pixels{0x10FEFEFE}));
}

TEST(CVQDIBDarkenEdges, AtFullLevelIsTheMinimum)
{
    EXPECT_EQ(combined({0x10204060}, {0xFFFF4020}, [](CVQDIB& i, CVQDIB& s) { i.Darken(s, 255); }),
              (Pixels{0x10204020}));
}

TEST(CVQDIBDarkenEdges, AtHalfLevelMovesHalfWayWhereTheHalvesDiffer)
{
    const auto darken = [](CVQDIB& i, CVQDIB& s) { i.Darken(s, 127); };

    EXPECT_EQ(combined({0x10C8C8C8}, {0x00640AC7}, darken), (Pixels{0x109669C7}));
    EXPECT_EQ(combined({0x10C9C9C9}, {0x00C8CACB}, darken), (Pixels{0x10C9C9C9})); // the halves are equal or larger
}

TEST(CVQDIBDarkenEdges, ByALevelSubtractsAndKeepsAlpha)
{
    EXPECT_EQ(changed({0x281EC828}, [](CVQDIB& i) { i.Darken(LONG{40}); }), (Pixels{0x2800A000}));
    EXPECT_EQ(changed({0x28FF00F0}, [](CVQDIB& i) { i.Darken(LONG{-16}); }), (Pixels{0x280F1000})); // wraps round
    EXPECT_EQ(changed({0x28FF00F0}, [](CVQDIB& i) { i.Darken(LONG{256}); }), (Pixels{0x28000000}));
}

TEST(CVQDIBQuantizeEdges, ClearsTheLowBitsOfAllFourChannels)
{
    EXPECT_EQ(changed({0xFFFFFFFF}, [](CVQDIB& i) { i.Quantize(3); }), (Pixels{0xF8F8F8F8}));
    EXPECT_EQ(changed({0x12345678}, [](CVQDIB& i) { i.Quantize(8); }), (Pixels{0x12345678}));
    EXPECT_EQ(changed({0x12345678}, [](CVQDIB& i) { i.Quantize(0); }), (Pixels{0x12345678}));
    EXPECT_EQ(changed({0xFF7F80C1}, [](CVQDIB& i) { i.Quantize(-1); }), (Pixels{0x80008080})); // as 7
}

TEST(CVQDIBConvertToGrayEdges, WeighsTheColoursAndTruncates)
{
    EXPECT_EQ(changed({0x80FF0000, 0xFF00FF00, 0x000000FF, 0x10FFFFFF}, [](CVQDIB& i) { i.ConvertToGray(); }),
              (Pixels{0x804C4C4C, 0xFF959595, 0x001D1D1D, 0x10FFFFFF}));
}

TEST(CVQDIBConvertToGrayEdges, ARectangleTakesThePlainMean)
{
    EXPECT_EQ(changed({0x80FF0000, 0x40FF0100}, [](CVQDIB& i) { i.ConvertToGray(CRect(0, 0, 1, 0)); }),
              (Pixels{0x80555555, 0x40555555}));
}

TEST(CVQDIBConvertToGrayEdges, ARectangleIsNormalisedAndHoldsItsEdges)
{
    CVQDIB image(8, 8);
    fillRandom(image, 1);
    Pixels expected = pixels(image);
    for (std::size_t y = 2; y <= 5; ++y)
        for (std::size_t x = 2; x <= 5; ++x) {
            ULONG& p = expected[8 * y + x];
            p = (p & 0xFF000000) | ((p & 0xFF) + (p >> 8 & 0xFF) + (p >> 16 & 0xFF)) / 3 * 0x010101;
        }

    image.ConvertToGray(CRect(5, 5, 2, 2));

    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBConvertToGrayEdges, RectanglesBesideTheImageDoNothing)
{
    CVQDIB image(8, 8);
    fillRandom(image, 1);
    const Pixels before = pixels(image);

    for (const CRect& beside :
         {CRect(-5, 0, -1, 7), CRect(0, -5, 7, -1), CRect(8, 0, 12, 7), CRect(0, 8, 7, 12), CRect(-1, -1, -9, -9)})
        image.ConvertToGray(beside);

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBConvertToGrayEdges, ARectangleBeyondTheRightEdgeIsCut)
{
    CVQDIB image(3, 2);
    paint(image, Pixels(6, 0x40030201));

    image.ConvertToGray(CRect(2, 1, 9, 9));

    EXPECT_TRUE(shows(image, {0x40030201, 0x40030201, 0x40030201, 0x40030201, 0x40030201, 0x40020202}));
}

TEST(CVQDIBEqualizeEdges, StretchesBlueAndDropsTheOtherColours)
{
    EXPECT_EQ(changed({0x10FFFF0A, 0x2000001E, 0x30123414}, [](CVQDIB& i) { i.Equalize(); }),
              (Pixels{0x10000000, 0x20FFFFFF, 0x307F7F7F}));
}

TEST(CVQDIBEqualizeEdges, EqualBlueChangesNothing)
{
    const Pixels before{0x10FFFF0A, 0x2000000A, 0x3012340A};

    EXPECT_EQ(changed(before, [](CVQDIB& i) { i.Equalize(); }), before);
    EXPECT_EQ(changed({0x10FFFF0A}, [](CVQDIB& i) { i.Equalize(); }), (Pixels{0x10FFFF0A}));
}

TEST(CVQDIBEmbossEdges, ChangesNothing)
{
    EXPECT_EQ(changed({0x12345678, 0, 0xFFFFFFFF}, [](CVQDIB& i) { i.Emboss(); }), (Pixels{0x12345678, 0, 0xFFFFFFFF}));
}

/// Destination byte x, source byte y, in every channel, alpha included.
class EveryPairOfBytes : public testing::Test
{
protected:
    void SetUp() override
    {
        for (LONG y = 0; y < 256; ++y)
            for (LONG x = 0; x < 256; ++x) {
                m_image(x, y) = static_cast<ULONG>(x) * 0x01010101;
                m_source(x, y) = static_cast<ULONG>(y) * 0x01010101;
            }
    }

    /// Compares byte `b` of every pixel.
    template <typename Formula>
    void expectByte(unsigned b, Formula formula)
    {
        for (LONG s = 0; s < 256; ++s)
            for (LONG d = 0; d < 256; ++d)
                ASSERT_EQ(m_image(d, s) >> (8 * b) & 0xFF, static_cast<ULONG>(formula(d, s)))
                    << "byte " << b << " of " << d << " with " << s;
    }

    template <typename Formula>
    void expectColours(Formula formula)
    {
        for (unsigned b = 0; b < 3; ++b)
            expectByte(b, formula);
        expectByte(3, [](LONG d, LONG) { return d; });
    }

    template <typename Formula>
    void expectAll(Formula formula)
    {
        for (unsigned b = 0; b < 4; ++b)
            expectByte(b, formula);
    }

    CVQDIB m_image{256, 256};
    CVQDIB m_source{256, 256};
};

TEST_F(EveryPairOfBytes, Adds)
{
    m_image.Add(m_source);
    expectAll([](LONG d, LONG s) { return std::min<LONG>(d + s, 255); });
}

TEST_F(EveryPairOfBytes, Subtracts)
{
    m_image.Subtract(m_source);
    expectAll([](LONG d, LONG s) { return std::max<LONG>(d - s, 0); });
}

TEST_F(EveryPairOfBytes, Multiplies)
{
    m_image.Multiply(m_source);
    expectAll([](LONG d, LONG s) { return d * s / 256; });
}

TEST_F(EveryPairOfBytes, Screens)
{
    m_image.Screen(m_source);
    expectColours([](LONG d, LONG s) { return 255 - (255 - d) * (255 - s) / 256; });
}

TEST_F(EveryPairOfBytes, Differs)
{
    m_image.Difference(m_source);
    expectColours([](LONG d, LONG s) { return std::abs(s - d); });
}

TEST_F(EveryPairOfBytes, LightensAtFullLevelToTheMaximum)
{
    m_image.Lighten(m_source, 255);
    expectColours([](LONG d, LONG s) { return std::max(d, s); });
}

TEST_F(EveryPairOfBytes, DarkensAtFullLevelToTheMinimum)
{
    m_image.Darken(m_source, 255);
    expectColours([](LONG d, LONG s) { return std::min(d, s); });
}

TEST_F(EveryPairOfBytes, PastesColoursBySourceAlphaAndAddsAlpha)
{
    m_image.Paste(m_source);
    for (unsigned b = 0; b < 3; ++b)
        expectByte(b, [](LONG d, LONG s) { return (s * s + d * (256 - s)) / 256; });
    expectByte(3, [](LONG d, LONG s) { return std::min<LONG>(d + s, 255); });
}

TEST_F(EveryPairOfBytes, BlendsByEveryWeight)
{
    for (LONG weight = 0; weight <= 255; weight += 5) {
        SetUp();
        m_image.Blend(m_source, weight);
        for (unsigned b = 0; b < 3; ++b)
            expectByte(b, [weight](LONG d, LONG s) { return (s * weight + d * (256 - weight)) / 256; });
        expectByte(3, [weight](LONG d, LONG) { return std::min<LONG>(d + weight, 255); });
    }
}

} // namespace
} // namespace vq::test
