// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Codecs.h"

#include "Platform/gdiplus/codecs/FileBytes.h"
#include "unit/Platform/gdiplus/codecs/BmpFiles.h"
#include "unit/Platform/gdiplus/codecs/GifFiles.h"
#include "unit/Platform/gdiplus/codecs/JpegFiles.h"
#include "unit/Platform/gdiplus/codecs/PngFiles.h"
#include "unit/Platform/gdiplus/codecs/TiffFiles.h"

#include <gtest/gtest.h>

namespace vq::test {
namespace {

using gdiplus::decodePicture;
using gdiplus::FileFormat;
using gdiplus::fileFormat;

TEST(DecodePicture, TellsTheFormatFromTheFirstBytes)
{
    const Bytes png = pngFile({.rows = {{1, 2, 3}}});
    const Bytes jpeg = jpegFile({.samples = smoothSamples(8, 8, 3)});
    const Bytes gif = gifFile({.indices = {0, 1, 2, 3}, .palette = fourGifColours()});
    const Bytes tiff = tiffFile({.width = 4, .blocks = {{0, 1, 2, 3}}});

    EXPECT_EQ(fileFormat(png), FileFormat::Png);
    EXPECT_EQ(fileFormat(jpeg), FileFormat::Jpeg);
    EXPECT_EQ(fileFormat(gif), FileFormat::Gif);
    EXPECT_EQ(fileFormat(tiff), FileFormat::Tiff);
    EXPECT_EQ(fileFormat(bmp24()), FileFormat::Bmp);
    EXPECT_EQ(decodePicture(png)->width, 1);
    EXPECT_EQ(decodePicture(jpeg)->width, 8);
    EXPECT_EQ(decodePicture(gif)->width, 2);
    EXPECT_EQ(decodePicture(tiff)->width, 4);
    EXPECT_EQ(decodePicture(bmp24())->width, 3);
}

TEST(DecodePicture, RefusesWhatIsNoPicture)
{
    const std::string_view text = "This is a text file, not a picture.";
    EXPECT_FALSE(decodePicture({}));
    EXPECT_FALSE(decodePicture(Bytes{'B'}));
    EXPECT_FALSE(decodePicture(Bytes(1000, 0)));
    EXPECT_FALSE(decodePicture(Bytes(text.begin(), text.end())));
}

TEST(PictureSize, IsLimitedBeforeMemoryIsTaken)
{
    EXPECT_TRUE(gdiplus::isPictureSize(1, 1));
    EXPECT_TRUE(gdiplus::isPictureSize(1'000'000, 268));
    EXPECT_TRUE(gdiplus::isPictureSize(16384, 16384));
    EXPECT_FALSE(gdiplus::isPictureSize(16384, 16385));
    EXPECT_FALSE(gdiplus::isPictureSize(1'000'001, 1));
    EXPECT_FALSE(gdiplus::isPictureSize(0, 1));
    EXPECT_FALSE(gdiplus::isPictureSize(1, -1));
    EXPECT_FALSE(gdiplus::allocatePicture(std::int64_t{1} << 62, std::int64_t{1} << 62));
}

TEST(FileBytes, HoldWhatWasAppendedInOrder)
{
    gdiplus::FileBytes file;
    Bytes expected;
    for (std::uint32_t i = 0; i < 200; ++i) {
        const Bytes piece = randomBytes(i, i);
        ASSERT_TRUE(file.append(piece));
        expected = expected + piece;
    }
    EXPECT_EQ(bytesOf(file), expected);
}

TEST(FileBytes, KeepTheirContentWhenMemoryRunsOut)
{
    gdiplus::FileBytes file;
    ASSERT_TRUE(file.append(Bytes{1, 2, 3}));
    {
        const platform::ScopedAllocationFailure failure;
        EXPECT_FALSE(file.append(Bytes(100'000)));
        EXPECT_FALSE(file.reserve(100'000));
    }
    EXPECT_EQ(bytesOf(file), (Bytes{1, 2, 3}));
    EXPECT_TRUE(file.append(Bytes{4}));
    EXPECT_EQ(bytesOf(file), (Bytes{1, 2, 3, 4}));
}

} // namespace
} // namespace vq::test
