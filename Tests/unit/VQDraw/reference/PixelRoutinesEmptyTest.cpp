// SPDX-License-Identifier: MIT
// Images without pixels, null pointers, sources that are too small: nothing happens and nothing is lost.
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <cstdlib>
#include <functional>

namespace vq::test {
namespace {

using Access = VQTestAccess;
using OneImage = std::function<void(CVQDIB&)>;
using TwoImages = std::function<void(CVQDIB&, CVQDIB&)>;
using FromPointer = std::function<void(CVQDIB&, CVQDIB*)>;

std::vector<OneImage> onOneImage()
{
    return {
        [](CVQDIB& i) { i.Blend(LONG{1}, LONG{2}, LONG{3}, LONG{4}); },
        [](CVQDIB& i) { i.Blend(COLORREF{0x123456}, LONG{99}); },
        [](CVQDIB& i) { i.Add(); },
        [](CVQDIB& i) { i.Multiply(); },
        [](CVQDIB& i) { i.Darken(LONG{5}); },
        [](CVQDIB& i) { i.Invert(); },
        [](CVQDIB& i) { i.ConvertToGray(); },
        [](CVQDIB& i) { i.ConvertToGray(CRect(0, 0, 0, 0)); },
        [](CVQDIB& i) { i.ConvertToGray(CRect(-9, -9, 9, 9)); },
        [](CVQDIB& i) { i.Quantize(3); },
        [](CVQDIB& i) { i.Equalize(); },
        [](CVQDIB& i) { i.Emboss(); },
        [](CVQDIB& i) { i.Smooth2x2(); },
        [](CVQDIB& i) { i.Smooth3x3(); },
        [](CVQDIB& i) { i.Smooth3x3(-5, 5); },
        [](CVQDIB& i) { i.Smooth3x3(-5, -5, 5, 5); },
        [](CVQDIB& i) { i.Smooth3x3(CRect(-5, -5, 5, 5)); },
        [](CVQDIB& i) { i.Smooth(0); },
        [](CVQDIB& i) { i.Smooth(3); },
        [](CVQDIB& i) { i.AlphaSmooth3x3(); },
        [](CVQDIB& i) { i.Median(nullptr); },
        [](CVQDIB& i) { i.Laplacian(0); },
        [](CVQDIB& i) { i.Mosaic(0); },
        [](CVQDIB& i) { i.Mosaic(2); },
        [](CVQDIB& i) { i.BuildFractalMap(1, 2, 3, 4); },
        [](CVQDIB& i) { CVQDIB::pfInvert(i); },
        [](CVQDIB& i) { CVQDIB::pfConvertToGray(i); },
        [](CVQDIB& i) { CVQDIB::pfQuantize(i, 3); },
        [](CVQDIB& i) { CVQDIB::pfEqualize(i); },
    };
}

std::vector<TwoImages> onTwoImages()
{
    return {
        [](CVQDIB& d, CVQDIB& s) { d.Copy(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Copy(s, -1, 0); },
        [](CVQDIB& d, CVQDIB& s) { d.Copy(s, 0, 0, 0, 0, 3, 3); },
        [](CVQDIB& d, CVQDIB& s) { d.Copy(s, -1, -1, -1, -1, 9, 9); },
        [](CVQDIB& d, CVQDIB& s) { d.Paste(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Paste(s, -1, 0); },
        [](CVQDIB& d, CVQDIB& s) { d.Paste(s, 0, 0, 0, 0, 3, 3); },
        [](CVQDIB& d, CVQDIB& s) { d.Paste(s, -1, -1, -1, -1, 9, 9); },
        [](CVQDIB& d, CVQDIB& s) { d.Blend(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Blend(s, LONG{9}); },
        [](CVQDIB& d, CVQDIB& s) { d.Add(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Subtract(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Multiply(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Screen(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Difference(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Lighten(s, 255); },
        [](CVQDIB& d, CVQDIB& s) { d.Darken(s, 255); },
        [](CVQDIB& d, CVQDIB& s) { d.CopyWithScale(&s); },
        [](CVQDIB& d, CVQDIB& s) { d.CopyWithScale(&s, 0, 0, 3, 3); },
        [](CVQDIB& d, CVQDIB& s) { d.PasteWithScale(&s); },
        [](CVQDIB& d, CVQDIB& s) { d.PasteWithScale(&s, 0, 0, 3, 3); },
        [](CVQDIB& d, CVQDIB& s) { d.PasteWithScaleFloat(&s, 0, 0, 3, 3); },
    };
}

std::vector<FromPointer> fromPointer()
{
    return {
        [](CVQDIB& d, CVQDIB* s) { d.Copy(s); },
        [](CVQDIB& d, CVQDIB* s) { d.Copy(s, 1, 1); },
        [](CVQDIB& d, CVQDIB* s) { d.Copy(s, 0, 0, 0, 0, 3, 3); },
        [](CVQDIB& d, CVQDIB* s) { d.Paste(s); },
        [](CVQDIB& d, CVQDIB* s) { d.Paste(s, 1, 1); },
        [](CVQDIB& d, CVQDIB* s) { d.Paste(s, 0, 0, 0, 0, 3, 3); },
        [](CVQDIB& d, CVQDIB* s) { d.Blend(s); },
        [](CVQDIB& d, CVQDIB* s) { d.Blend(s, LONG{9}); },
        [](CVQDIB& d, CVQDIB* s) { d.Add(s); },
        [](CVQDIB& d, CVQDIB* s) { d.Subtract(s); },
        [](CVQDIB& d, CVQDIB* s) { d.Multiply(s); },
        [](CVQDIB& d, CVQDIB* s) { d.Screen(s); },
        [](CVQDIB& d, CVQDIB* s) { d.Difference(s); },
        [](CVQDIB& d, CVQDIB* s) { d.Lighten(s, 255); },
        [](CVQDIB& d, CVQDIB* s) { d.Darken(s, 255); },
        [](CVQDIB& d, CVQDIB* s) { d.CopyWithScale(s); },
        [](CVQDIB& d, CVQDIB* s) { d.CopyWithScale(s, 0, 0, 3, 3); },
        [](CVQDIB& d, CVQDIB* s) { d.PasteWithScale(s); },
        [](CVQDIB& d, CVQDIB* s) { d.PasteWithScale(s, 0, 0, 3, 3); },
        [](CVQDIB& d, CVQDIB* s) { d.PasteWithScaleFloat(s, 0, 0, 3, 3); },
    };
}

TEST(EmptyImages, StayEmptyUnderEveryRoutine)
{
    for (const OneImage& act : onOneImage()) {
        CVQDIB image(3, 3);
        Access::destroy(image);

        act(image);

        EXPECT_EQ(image.GetSize(), 0);
        EXPECT_EQ(image.GetImageBuffer(), nullptr);
    }
}

TEST(EmptyImages, TakeNothingFromASource)
{
    CVQDIB source(3, 3);
    fillRandom(source, 1);
    const Pixels before = pixels(source);
    for (const TwoImages& act : onTwoImages()) {
        CVQDIB image(3, 3);
        Access::destroy(image);

        act(image, source);
        act(image, image);

        EXPECT_EQ(image.GetSize(), 0);
    }
    EXPECT_TRUE(shows(source, before));
}

TEST(EmptyImages, AreNoSource)
{
    std::size_t number = 0;
    for (const TwoImages& act : onTwoImages()) {
        CVQDIB image(3, 3);
        CVQDIB source(3, 3);
        fillRandom(image, 1);
        const Pixels before = pixels(image);
        Access::destroy(source);

        act(image, source);

        EXPECT_TRUE(shows(image, before)) << "operation " << number;
        ++number;
    }
}

TEST(EmptyImages, ExchangeNoColours)
{
    CVQDIB image(3, 3);
    Access::destroy(image);
    const CArray<ULONG, const ULONG&> none;

    EXPECT_EQ(image.ExchangeColor(0, 1, 255), 0);
    EXPECT_EQ(image.ExchangeColors(none, none, 255), 0);
}

TEST(EmptyImages, DrawNoNumbersForAFractalMap)
{
    CVQDIB image(3, 3);
    Access::destroy(image);
    std::srand(9);
    const int first = std::rand();
    std::srand(9);

    image.BuildFractalMap(1, 2, 3, 4);

    EXPECT_EQ(std::rand(), first);
}

TEST(EmptyImages, LeaveTheMediansRectangleAlone)
{
    CVQDIB image(3, 3);
    Access::destroy(image);
    CRect area(9, 9, 1, 1);

    image.Median(&area);

    EXPECT_EQ(area, CRect(9, 9, 1, 1));
}

TEST(NullSources, ChangeNothing)
{
    std::size_t number = 0;
    for (const FromPointer& act : fromPointer()) {
        CVQDIB image(3, 3);
        fillRandom(image, 1);
        const Pixels before = pixels(image);

        act(image, nullptr);

        EXPECT_TRUE(shows(image, before)) << "operation " << number;
        ++number;
    }
}

TEST(SourcesOfFewerPixels, ChangeNothingInOperationsByIndex)
{
    const TwoImages operations[] = {
        [](CVQDIB& d, CVQDIB& s) { d.Add(s); },         [](CVQDIB& d, CVQDIB& s) { d.Subtract(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Multiply(s); },    [](CVQDIB& d, CVQDIB& s) { d.Screen(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Difference(s); },  [](CVQDIB& d, CVQDIB& s) { d.Lighten(s, 255); },
        [](CVQDIB& d, CVQDIB& s) { d.Darken(s, 255); }, [](CVQDIB& d, CVQDIB& s) { CVQDIB::pfAdd(d, s); },
    };
    for (const CSize size : {CSize(5, 3), CSize(1, 1), CSize(15, 1), CSize(3, 5)})
        for (const TwoImages& act : operations) {
            CVQDIB image(4, 4);
            CVQDIB source(size.cx, size.cy);
            fillRandom(image, 1);
            fillRandom(source, 2);
            const Pixels before = pixels(image);

            act(image, source);

            EXPECT_TRUE(shows(image, before)) << size.cx << " x " << size.cy;
        }
}

TEST(SourcesOfAnotherShape, ArePairedByIndex)
{
    CVQDIB image(2, 2);
    CVQDIB source(5, 1);
    paint(image, {1, 2, 3, 4});
    paint(source, {10, 20, 30, 40, 50});

    image.Add(source);

    EXPECT_TRUE(shows(image, {11, 22, 33, 44}));
}

} // namespace
} // namespace vq::test
