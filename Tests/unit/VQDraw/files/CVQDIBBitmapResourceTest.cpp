// SPDX-License-Identifier: MIT
#include "FileSupport.h"
#include "support/ImageAccess.h"

namespace vq::test {
namespace {

constexpr UINT kResource = 4711; // resource.bmp, 3 x 2 pixels
const Pixels kPicture{0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF, 0xFF000000, 0xFF102030};

TEST(BitmapResource, OfTheProgramIsFoundByItsNumber)
{
    CVQDIB image(1, 1);
    EXPECT_TRUE(image.LoadBitmapW(kResource, true));
    EXPECT_EQ(image.GetWidth(), 3);
    EXPECT_EQ(image.GetHeight(), 2);
    EXPECT_TRUE(shows(image, kPicture));
}

TEST(BitmapResource, WithoutResizingFillsTheTopLeftCorner)
{
    CVQDIB larger(4, 3);
    larger.Clear(RGB(1, 2, 3));
    EXPECT_TRUE(larger.LoadBitmapW(kResource, false));
    EXPECT_TRUE(shows(larger, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFF010203, 0xFFFFFFFF, 0xFF000000, 0xFF102030,
                               0xFF010203, 0xFF010203, 0xFF010203, 0xFF010203, 0xFF010203}));
    CVQDIB smaller(2, 1);
    EXPECT_TRUE(smaller.LoadBitmapW(kResource, false));
    EXPECT_TRUE(shows(smaller, {0xFFFF0000, 0xFF00FF00}));
}

TEST(BitmapResource, ThatDoesNotExistLeavesTheImage)
{
    CVQDIB image(1, 1);
    image.Clear(RGB(1, 2, 3));
    for (const UINT number : {0u, 1u, 4712u, 65535u})
        EXPECT_FALSE(image.LoadBitmapW(number, true)) << number;
    EXPECT_TRUE(shows(image, {0xFF010203}));
}

TEST(BitmapObject, IsCopiedOpaque)
{
    CVQDIB source(2, 2);
    paint(source, {0xFF102030, 0xFF405060, 0xFFFFFFFF, 0xFF000000});
    CBitmap bitmap;
    bitmap.Attach(source.GetBitmapHandle());
    CVQDIB image(9, 9);
    EXPECT_TRUE(image.LoadBitmapW(&bitmap, true));
    EXPECT_TRUE(shows(image, pixels(source)));
    image.Clear(RGB(1, 2, 3));
    EXPECT_TRUE(image.LoadBitmapW(&bitmap, false));
    EXPECT_EQ(image.GetColor(1, 0), 0xFF405060u);
    EXPECT_TRUE(bitmap.GetSafeHandle()) << "the bitmap stays its owner's";
}

TEST(BitmapObject, KeepsAllColours)
{
    // A device context of an image takes a colour for "nothing drawn": 13, 11, 12 and kin.
    const Pixels colours{0xFF0D0B0C, 0xFF0C0B0D, 0xFF0B0C0D, 0xFF0C0D0B, 0xFF000000, 0xFFFFFFFF};
    CVQDIB source(3, 2);
    paint(source, colours);
    CBitmap bitmap;
    bitmap.Attach(source.GetBitmapHandle());
    CVQDIB image(1, 1);
    EXPECT_TRUE(image.LoadBitmapW(&bitmap, true));
    EXPECT_TRUE(shows(image, colours));
}

TEST(BitmapObject, NullOrWithoutABitmapIsFalse)
{
    CVQDIB image(1, 1);
    image.Clear(RGB(1, 2, 3));
    EXPECT_FALSE(image.LoadBitmapW(static_cast<CBitmap*>(nullptr), true));
    CBitmap none;
    EXPECT_FALSE(image.LoadBitmapW(&none, true));
    EXPECT_TRUE(shows(image, {0xFF010203}));
}

TEST(BitmapObject, OntoAnEmptyImageWithoutResizingDoesNothing)
{
    CVQDIB source(2, 2);
    CBitmap bitmap;
    bitmap.Attach(source.GetBitmapHandle());
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    EXPECT_TRUE(empty.LoadBitmapW(&bitmap, false));
    EXPECT_EQ(empty.GetSize(), 0);
    EXPECT_TRUE(empty.LoadBitmapW(&bitmap, true));
    EXPECT_EQ(empty.GetSize(), 4);
}

} // namespace
} // namespace vq::test
