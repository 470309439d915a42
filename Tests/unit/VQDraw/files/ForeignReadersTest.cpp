// SPDX-License-Identifier: MIT
// What the image class writes, read by other people's programs.
#include "ForeignPrograms.h"

namespace vq::test {
namespace {

class WrittenFile : public testing::Test
{
protected:
    WrittenFile() { paintMixed(image); }

    std::string saved(const std::string& name)
    {
        const std::string file = folder.file(name);
        EXPECT_TRUE(image.Save(pathOf(file)));
        return file;
    }

    /// What `identify` says: format, size, bits a channel, channels.
    static std::string identified(const std::string& file)
    {
        return run("identify -format '%m %w %h %z %[channels]' '" + file + "'").text;
    }

    static std::string described(const std::string& file) { return run("file -b '" + file + "'").text; }

    CVQDIB image{61, 47};
    const WorkFolder folder;
};

TEST_F(WrittenFile, PngIsRgbaOfTheSamePixels)
{
    const std::string file = saved("picture.png");
    EXPECT_EQ(identified(file), "PNG 61 47 8 srgba");
    EXPECT_EQ(described(file), "PNG image data, 61 x 47, 8-bit/color RGBA, non-interlaced\n");
    EXPECT_EQ(run("pngfix --quiet '" + file + "' 2>&1").status, 0);
    EXPECT_TRUE(samePixels(decodedByMagick(file), pixels(image), 61));
}

TEST_F(WrittenFile, PngOfAnArchiveIsTheSame)
{
    CVQMemoryArchive archive;
    image.WriteFile(&archive);
    const std::string file = folder.file("embedded.png");
    std::FILE* out = std::fopen(file.c_str(), "wb");
    std::fwrite(archive.GetBuffer() + 4, 1, archive.GetSize() - 4, out);
    std::fclose(out);
    EXPECT_EQ(run("pngfix --quiet '" + file + "' 2>&1").status, 0);
    EXPECT_TRUE(samePixels(decodedByMagick(file), pixels(image), 61));
}

TEST_F(WrittenFile, PngOfManySizesIsSound)
{
    for (const int width : {1, 7, 300})
        for (const int height : {1, 5}) {
            image.Resize(width, height);
            fillRandom(image, 4);
            const std::string file = saved("size.png");
            EXPECT_EQ(run("pngfix --quiet '" + file + "' 2>&1").status, 0) << width << " x " << height;
            EXPECT_TRUE(samePixels(decodedByMagick(file), pixels(image), width));
        }
}

TEST_F(WrittenFile, TiffIsRgbaOfTheSamePixels)
{
    const std::string file = saved("picture.tiff");
    EXPECT_EQ(identified(file), "TIFF 61 47 8 srgba");
    EXPECT_NE(described(file).find("TIFF image data, little-endian"), std::string::npos);
    EXPECT_TRUE(samePixels(decodedByMagick(file), pixels(image), 61));
}

TEST_F(WrittenFile, BmpHas32BitsOfTheSamePixels)
{
    const std::string file = saved("picture.bmp");
    EXPECT_EQ(identified(file).substr(0, 12), "BMP3 61 47 8");
    EXPECT_NE(described(file).find("61 x 47 x 32"), std::string::npos);
    EXPECT_TRUE(samePixels(opaque(decodedByMagick(file)), opaque(pixels(image)), 61));
}

TEST_F(WrittenFile, GifHasTheSizeAndAPaletteOf256Colours)
{
    image.Clear(RGB(255, 0, 0));
    image.Clear(CRect(0, 0, 20, 20), RGB(0, 0, 255), 255);
    const std::string file = saved("picture.gif");
    EXPECT_EQ(identified(file).substr(0, 12), "GIF 61 47 8 ");
    EXPECT_NE(described(file).find("GIF image data"), std::string::npos);
    EXPECT_TRUE(samePixels(decodedByMagick(file), pixels(image), 61));
}

TEST_F(WrittenFile, GifOfAPhotographIsReadAlike)
{
    const std::string file = saved("picture.gif");
    CVQDIB loaded(pathOf(file));
    EXPECT_EQ(largestDifference(decodedByMagick(file), pixels(loaded)), 0);
}

TEST_F(WrittenFile, JpegHasQuality100)
{
    for (LONG y = 0; y < 47; ++y)
        for (LONG x = 0; x < 61; ++x)
            image(x, y) = 0xFF000000u | static_cast<ULONG>(4 * x) << 16 | static_cast<ULONG>(5 * y) << 8 | 128u;
    const std::string file = saved("picture.jpg");
    EXPECT_EQ(identified(file), "JPEG 61 47 8 srgb");
    EXPECT_EQ(run("identify -format '%Q %[jpeg:sampling-factor]' '" + file + "'").text, "100 2x2,1x1,1x1");
    EXPECT_LE(largestDifference(decodedByMagick(file), pixels(image)), 4);
}

/// ImageMagick notes that the file is longer than the header says, which dumps do deliberately, and reads it.
TEST_F(WrittenFile, DumpsAreWindowsBitmaps)
{
    const std::string file = folder.file("dump.bmp");
    EXPECT_TRUE(image.DumpToBMP(pathOf(file)));
    EXPECT_NE(described(file).find("61 x -47 x 32"), std::string::npos) << described(file);
    EXPECT_TRUE(samePixels(opaque(pixelsOf(decodedBytes(file))), opaque(pixels(image)), 61));
    EXPECT_TRUE(image.DumpAlphaToBMP(pathOf(file)));
    Pixels greys = pixels(image);
    for (ULONG& pixel : greys)
        pixel = 0xFF000000 | (pixel >> 24) * 0x010101;
    EXPECT_TRUE(samePixels(opaque(pixelsOf(decodedBytes(file))), greys, 61));
}

TEST_F(WrittenFile, StreamsOfAllFormatsAreRead)
{
    constexpr const char* kFormats[] = {"BMP3", "JPEG", "GIF", "TIFF", "PNG"};
    for (int format = 0; format < CVQDIB::IFT_END; ++format) {
        const std::string file = folder.file("stream");
        std::FILE* out = std::fopen(file.c_str(), "wb");
        EXPECT_TRUE(
            CVQDIB::WriteFileFromBitmap(image.GetBitmap(), out, static_cast<CVQDIB::eImageFormatType>(format), false));
        std::fclose(out);
        EXPECT_EQ(identified(file).substr(0, identified(file).find(" 8 ")), std::string(kFormats[format]) + " 61 47");
    }
}

} // namespace
} // namespace vq::test
