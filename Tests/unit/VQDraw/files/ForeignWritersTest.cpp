// SPDX-License-Identifier: MIT
// What ImageMagick writes, read by the image class and compared with ImageMagick's own decoding.
#include "ForeignPrograms.h"

#include <fstream>
#include <ostream>
#include <string_view>
#include <utility>

namespace vq::test {
namespace {

struct Variant
{
    std::string_view name;
    const char* options; // between the picture and the file
    const char* file;
    int tolerance = 0;
};

void PrintTo(const Variant& variant, std::ostream* out)
{
    *out << variant.options << ' ' << variant.file;
}

// clang-format off
constexpr Variant kVariants[] = {
    {"Bmp1", "-alpha off -monochrome -type bilevel", "bmp3:a.bmp"},
    {"Bmp4", "-alpha off +dither -colors 14 -define bmp:format=bmp3 -type palette", "bmp3:a.bmp"},
    {"Bmp8", "-alpha off -colors 200 -type palette", "bmp3:a.bmp"},
    {"Bmp8Grey", "-alpha off -colorspace gray -type palette", "bmp3:a.bmp"},
    {"Bmp8Rle", "-alpha off -colors 200 -type palette -compress RLE", "bmp3:a.bmp"},
    {"Bmp16", "-alpha off -define bmp:subtype=RGB565", "bmp:a.bmp", 4},
    {"Bmp15", "-alpha off -define bmp:subtype=RGB555", "bmp:a.bmp", 4},
    {"Bmp24", "-alpha off", "bmp3:a.bmp"},
    {"Bmp24OldHeader", "-alpha off", "bmp2:a.bmp"},
    {"Bmp24LongHeader", "-alpha off", "bmp:a.bmp"},
    {"Jpeg", "-alpha off -quality 90", "a.jpg", 1},
    {"JpegWorst", "-alpha off -quality 1", "a.jpg", 1},
    {"JpegProgressive", "-alpha off -interlace JPEG -quality 90", "a.jpg", 1},
    {"JpegWithoutSubsampling", "-alpha off -sampling-factor 1x1", "a.jpg", 1},
    {"JpegHalvedAcross", "-alpha off -sampling-factor 2x1", "a.jpg", 1},
    {"JpegGrey", "-alpha off -colorspace gray", "a.jpg", 1},
    {"JpegOfFourInks", "-alpha off -colorspace CMYK", "a.jpg", 2},
    {"JpegOfColoursAsTheyAre", "-alpha off -colorspace RGB -set colorspace RGB", "a.jpg", 80},
    {"JpegWithArithmeticCoding", "-alpha off -define jpeg:arithmetic-coding=on", "a.jpg", 1},
    {"Png32", "", "png32:a.png"},
    {"Png24", "-alpha off", "png24:a.png"},
    {"PngInterlaced", "-interlace PNG", "png32:a.png"},
    {"PngPalette", "-alpha off -colors 200", "png8:a.png"},
    {"PngPaletteOf16", "-alpha off +dither -colors 14 -define png:bit-depth=4", "png8:a.png"},
    {"PngPaletteInterlaced", "-alpha off -colors 200 -interlace PNG", "png8:a.png"},
    {"PngPaletteTransparent", "-channel A -threshold 50% +channel -colors 100", "png8:a.png"},
    {"Png48", "-alpha off -depth 16", "png48:a.png", 1},
    {"Png64", "-depth 16", "png64:a.png", 1},
    {"PngGrey", "-alpha off -colorspace gray -define png:color-type=0 -depth 8", "a.png"},
    {"PngGrey16", "-alpha off -colorspace gray -depth 16 -define png:color-type=0 -define png:bit-depth=16", "a.png", 1},
    {"PngGrey4", "-alpha off -colorspace gray -define png:color-type=0 -depth 4", "a.png"},
    {"PngGrey2", "-alpha off -colorspace gray -define png:color-type=0 -depth 2", "a.png"},
    {"PngGrey1", "-alpha off -monochrome -define png:color-type=0 -depth 1", "a.png"},
    {"PngGreyAlpha", "-colorspace gray -define png:color-type=4", "a.png"},
    {"PngOfEveryFilter", "-define png:compression-filter=5 -define png:compression-level=9", "png32:a.png"},
    {"Gif", "-alpha off -colors 256", "a.gif"},
    {"GifInterlaced", "-alpha off -colors 100 -interlace GIF", "a.gif"},
    {"GifTransparent", "-channel A -threshold 50% +channel -colors 100", "a.gif"},
    {"GifOfTwoColours", "-alpha off -monochrome", "a.gif"},
    {"GifOldVersion", "-alpha off -colors 256", "gif87:a.gif"},
    {"GifAnimation", "-alpha off -colors 64 ( -clone 0 -negate ) ( -clone 0 -flip ) -delay 10 -loop 0", "a.gif"},
    {"TiffPlain", "-compress none", "a.tiff"},
    {"TiffLzw", "-compress LZW", "a.tiff"},
    {"TiffZip", "-compress Zip", "a.tiff"},
    {"TiffZipPredicted", "-compress Zip -define tiff:predictor=2", "a.tiff"},
    {"TiffRle", "-compress RLE", "a.tiff"},
    {"TiffJpeg", "-alpha off -compress JPEG -quality 90", "a.tiff", 3},
    {"TiffFax3", "-alpha off -monochrome -compress Fax", "a.tiff"},
    {"TiffFax4", "-alpha off -monochrome -compress Group4", "a.tiff"},
    {"TiffTiled", "-compress none -define tiff:tile-geometry=16x16", "a.tiff"},
    {"TiffTiledLzw", "-compress LZW -define tiff:tile-geometry=32x16", "a.tiff"},
    {"TiffInStrips", "-compress LZW -define tiff:rows-per-strip=5", "a.tiff"},
    {"TiffInPlanes", "-alpha off -interlace Plane", "a.tiff"},
    {"TiffBigEndian", "-endian MSB -compress LZW", "a.tiff"},
    {"Tiff16", "-depth 16 -compress LZW", "a.tiff", 1},
    {"TiffPalette", "-alpha off -colors 200 -type palette", "a.tiff", 1},
    {"TiffGrey", "-alpha off -colorspace gray", "a.tiff"},
    {"TiffGrey16", "-alpha off -colorspace gray -depth 16", "a.tiff", 1},
    {"TiffBilevel", "-alpha off -monochrome -compress none", "a.tiff"},
    {"TiffWhiteIsZero", "-alpha off -monochrome -define quantum:polarity=min-is-white", "a.tiff"},
    {"TiffOfFourInks", "-alpha off -colorspace CMYK", "a.tiff", 2},
    {"TiffOfManyPages", "-compress LZW ( -clone 0 -negate ) ( -clone 0 -flip )", "a.tiff"},
    {"TiffOfAnotherResolution", "-units PixelsPerInch -density 300x72", "a.tiff"},
    {"PngOfAnotherResolution", "-units PixelsPerInch -density 300x72", "png32:a.png"},
    {"JpegOfAnotherResolution", "-alpha off -units PixelsPerInch -density 300x72", "a.jpg", 1},
};
// clang-format on

/// A picture with smooth parts, noise, one with colours only, and every alpha.
void paintSource(CVQDIB& image)
{
    fillRandom(image, 9);
    for (LONG y = 0; y < image.GetHeight(); ++y)
        for (LONG x = 0; x < image.GetWidth(); ++x)
            if (x + y < 70)
                image(x, y) = 0xFF000000u | static_cast<ULONG>(4 * x) << 16 | static_cast<ULONG>(5 * y) << 8 | 200u;
}

std::string shellQuoted(const std::string& options)
{
    std::string result;
    for (const char letter : options) {
        if (letter == '(' || letter == ')')
            result += '\\';
        result += letter;
    }
    return result;
}

constexpr int kWidth = 61;
constexpr int kHeight = 47;

/// The file of a variant, and what it is written by.
struct Target
{
    std::string path;
    std::string prefix; // of ImageMagick's format, with its colon
};

Target targetOf(const Variant& variant, const WorkFolder& folder)
{
    const std::string file = variant.file;
    const std::size_t colon = file.find(':');
    const std::size_t dot = file.find('.');
    return {folder.file(std::string(variant.name) + file.substr(dot)),
            colon == std::string::npos ? "" : file.substr(0, colon + 1)};
}

/// All variants are written, two at a time, and decoded at once: starting ImageMagick takes most of the time.
class ForeignFile : public testing::TestWithParam<Variant>
{
protected:
    static void SetUpTestSuite()
    {
        folder = new WorkFolder;
        CVQDIB source(kWidth, kHeight);
        paintSource(source);
        const std::string sourceFile = folder->file("source.png");
        source.Save(pathOf(sourceFile));
        std::string commands;
        std::string files;
        for (const Variant& variant : kVariants) {
            const Target target = targetOf(variant, *folder);
            commands += "convert '" + sourceFile + "' " + shellQuoted(variant.options) + " " + target.prefix + "'" +
                        target.path + "'\n";
            files += " '" + target.path + "[0]'";
        }
        std::ofstream(folder->file("commands")) << commands;
        EXPECT_EQ(run("tr '\\n' '\\0' <'" + folder->file("commands") + "' | xargs -0 -n 1 -P 2 sh -c 2>&1").status, 0);
        decoded = pixelsOf(run("convert" + files + " -colorspace sRGB -depth 8 BGRA:- 2>/dev/null"));
    }

    static void TearDownTestSuite()
    {
        delete std::exchange(folder, nullptr);
        decoded.clear();
    }

    static inline WorkFolder* folder = nullptr;
    static inline Pixels decoded; // of all variants, one behind the other
};

TEST_P(ForeignFile, IsLoadedAsItsWriterReadsIt)
{
    const Variant& variant = GetParam();
    constexpr std::ptrdiff_t kSize = kWidth * kHeight;
    ASSERT_EQ(decoded.size(), std::size(kVariants) * kSize) << "ImageMagick does not read all of its files";
    const auto index = std::ranges::find(kVariants, variant.name, &Variant::name) - kVariants;
    const Pixels expected(decoded.begin() + index * kSize, decoded.begin() + (index + 1) * kSize);

    CVQDIB loaded(1, 1);
    EXPECT_TRUE(loaded.Load(pathOf(targetOf(variant, *folder).path)));

    EXPECT_EQ(loaded.GetWidth(), kWidth);
    EXPECT_EQ(loaded.GetHeight(), kHeight);
    EXPECT_LE(largestDifference(pixels(loaded), expected), variant.tolerance);
}

INSTANTIATE_TEST_SUITE_P(Variants, ForeignFile, testing::ValuesIn(kVariants),
                         [](const auto& variant) { return std::string(variant.param.name); });

TEST(ForeignWindowsBitmap, IsReadByTheLibrarysOwnReader)
{
    const WorkFolder folder;
    CVQDIB source(61, 47);
    paintSource(source);
    source.Save(pathOf(folder.file("source.png")));
    const std::string file = folder.file("a.bmp");
    ASSERT_EQ(run("convert '" + folder.file("source.png") + "' -alpha off bmp3:'" + file + "'").status, 0);
    CVQDIB loaded(1, 1);
    EXPECT_TRUE(loaded.LoadBMP(pathOf(file)));
    EXPECT_TRUE(samePixels(pixels(loaded), opaque(pixels(source)), 61));
}

} // namespace
} // namespace vq::test
