// SPDX-License-Identifier: MIT
// Files that are cut, damaged or lie about their size. Whatever comes, a decoder answers with a picture that holds
// together or with none; AddressSanitizer watches, as each file lies in a block of exactly its size.
#include "Platform/gdiplus/codecs/Bmp.h"
#include "Platform/gdiplus/codecs/Codecs.h"
#include "Platform/gdiplus/codecs/Gif.h"
#include "Platform/gdiplus/codecs/Jpeg.h"
#include "Platform/gdiplus/codecs/Png.h"
#include "Platform/gdiplus/codecs/Tiff.h"
#include "unit/Platform/gdiplus/codecs/BmpFiles.h"
#include "unit/Platform/gdiplus/codecs/GifFiles.h"
#include "unit/Platform/gdiplus/codecs/JpegFiles.h"
#include "unit/Platform/gdiplus/codecs/PngFiles.h"
#include "unit/Platform/gdiplus/codecs/TiffFiles.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include <malloc.h>

namespace vq::test::hostileFilesTests {
namespace {

using gdiplus::decodePicture;
using gdiplus::Picture;

struct Sample
{
    std::string name;
    Bytes file;
};

PngContent pngContent(int colourType, int depth, int channels)
{
    PngContent content{.width = 7, .height = 5, .colourType = colourType, .depth = depth};
    for (std::uint32_t y = 0; y < 5; ++y)
        content.rows.push_back(randomBytes(static_cast<std::size_t>((7 * channels * depth + 7) / 8), y));
    return content;
}

GifContent gifContent(int frames, bool interlaced)
{
    GifContent content{.screenWidth = 9, .screenHeight = 8, .left = 1, .top = 2, .width = 7, .height = 6};
    content.indices = randomBytes(42, 1);
    for (std::uint8_t& index : content.indices)
        index &= 3;
    content.palette = fourGifColours();
    content.transparent = 2;
    content.interlaced = interlaced;
    content.frames = frames;
    return content;
}

std::vector<Sample> gifSamples()
{
    const Pixels pixels = randomPixels(20 * 10, 1);
    return {{"gif", gifFile(gifContent(1, false))},
            {"gif animation", gifFile(gifContent(2, true))},
            {"gif encoded", bytesOf(*gdiplus::encodeGif(viewOf(pixels, 20)))}};
}

std::vector<Sample> tiffSamples()
{
    TiffContent plain{.width = 7, .height = 5, .bits = 4, .rowsPerStrip = 2, .orientation = ORIENTATION_RIGHTTOP};
    plain.photometric = PHOTOMETRIC_PALETTE;
    plain.palette.resize(3 * 16, 0x8000);
    plain.blocks = {randomBytes(8, 1), randomBytes(8, 2), randomBytes(4, 3)};
    TiffContent tiles{.width = 20, .height = 5, .samples = 4, .photometric = PHOTOMETRIC_RGB};
    tiles.extraSample = EXTRASAMPLE_ASSOCALPHA;
    tiles.tileWidth = tiles.tileHeight = 16;
    tiles.compression = COMPRESSION_LZW;
    tiles.predictor = PREDICTOR_HORIZONTAL;
    tiles.blocks = {smoothSamples(16, 16, 4), smoothSamples(16, 16, 4)};
    TiffContent planes{.width = 9, .height = 4, .bits = 16, .samples = 3, .photometric = PHOTOMETRIC_RGB};
    planes.planes = PLANARCONFIG_SEPARATE;
    planes.compression = COMPRESSION_ADOBE_DEFLATE;
    planes.blocks = {smoothSamples(18, 4, 1), smoothSamples(18, 4, 1), smoothSamples(18, 4, 1)};
    TiffContent fax{.width = 40, .height = 12, .bits = 1, .photometric = PHOTOMETRIC_MINISWHITE};
    fax.compression = COMPRESSION_CCITTFAX4;
    fax.blocks = {smoothSamples(5, 12, 1)};
    TiffContent oldFax = fax;
    oldFax.compression = COMPRESSION_CCITTFAX3;
    TiffContent photograph{.width = 16, .height = 16, .samples = 3, .photometric = PHOTOMETRIC_YCBCR};
    photograph.compression = COMPRESSION_JPEG;
    photograph.blocks = {smoothSamples(16, 16, 3)};
    TiffContent bytes{.width = 12, .height = 6, .samples = 3, .photometric = PHOTOMETRIC_RGB};
    bytes.compression = COMPRESSION_PACKBITS;
    bytes.blocks = {smoothSamples(12, 6, 3)};
    TiffContent inks{.width = 4, .height = 4, .samples = 4, .photometric = PHOTOMETRIC_SEPARATED};
    inks.blocks = {randomBytes(64, 4)};
    return {{"tiff plain", tiffFile(plain)},
            {"tiff tiles", compressedTiffFile(tiles)},
            {"tiff planes", compressedTiffFile(planes)},
            {"tiff fax", compressedTiffFile(fax)},
            {"tiff old fax", compressedTiffFile(oldFax)},
            {"tiff photograph", compressedTiffFile(photograph)},
            {"tiff bytes", compressedTiffFile(bytes)},
            {"tiff inks", tiffFile(inks)}};
}

std::vector<Sample> samples()
{
    PngContent palette = pngContent(PNG_COLOR_TYPE_PALETTE, 4, 1);
    palette.interlaced = true;
    palette.palette.assign(16, {1, 2, 3});
    palette.paletteAlpha = {0, 128};
    PngContent colours = pngContent(PNG_COLOR_TYPE_RGB_ALPHA, 8, 4);
    colours.hasResolution = true;
    JpegContent photograph{.width = 19, .height = 17, .samples = smoothSamples(19, 17, 3)};
    JpegContent progressive = photograph;
    progressive.progressive = true;
    JpegContent inks{.width = 9, .height = 9, .input = JCS_CMYK, .stored = JCS_YCCK, .samples = smoothSamples(9, 9, 4)};
    std::vector<Sample> all{{"png colours", pngFile(colours)},
                            {"png palette", pngFile(palette)},
                            {"png grey", pngFile(pngContent(PNG_COLOR_TYPE_GRAY, 16, 1))},
                            {"jpeg", jpegFile(photograph)},
                            {"jpeg progressive", jpegFile(progressive)},
                            {"jpeg inks", jpegFile(inks)},
                            {"bmp 24", bmp24()},
                            {"bmp rle 8", bmpRle8()},
                            {"bmp rle 4", bmpRle4()},
                            {"bmp v5", bmpV5()}};
    for (const auto& more : {gifSamples(), tiffSamples()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

/// Decodes from a block of exactly the file's size and reads every pixel.
std::optional<Picture> decoded(std::span<const std::uint8_t> file)
{
    const auto block = std::make_unique<std::uint8_t[]>(file.size());
    std::copy(file.begin(), file.end(), block.get());
    std::optional<Picture> picture = decodePicture({block.get(), file.size()});
    if (!picture)
        return picture;
    EXPECT_TRUE(gdiplus::isPictureSize(picture->width, picture->height));
    EXPECT_GT(picture->dpiX, 0);
    EXPECT_GT(picture->dpiY, 0);
    bool opaque = true;
    const std::size_t count = static_cast<std::size_t>(picture->width) * static_cast<std::size_t>(picture->height);
    for (std::size_t i = 0; i < count; ++i)
        opaque = opaque && picture->pixels[i] >= 0xFF000000;
    EXPECT_TRUE(opaque || gdiplus::mayBeTransparent(picture->format));
    return picture;
}

class HostileFiles : public testing::TestWithParam<Sample>
{
protected:
    const Bytes& file() const { return GetParam().file; }
    bool isJpeg() const { return GetParam().name.starts_with("jpeg"); }
};

TEST_P(HostileFiles, AreGoodBeforeTheyAreDamaged)
{
    EXPECT_TRUE(decoded(file()));
}

TEST_P(HostileFiles, CutAtAnyByteGiveTheWholePictureOrNone)
{
    const auto whole = decoded(file());
    ASSERT_TRUE(whole);
    for (std::size_t length = 0; length < file().size(); ++length) {
        const auto picture = decoded(std::span(file()).first(length));
        if (!picture)
            continue;
        EXPECT_EQ(picture->width, whole->width) << length;
        EXPECT_EQ(picture->height, whole->height) << length;
        const bool mayBeGreyBelow = isJpeg();
        EXPECT_TRUE(mayBeGreyBelow || pixelsOf(*picture) == pixelsOf(*whole)) << length;
    }
}

TEST_P(HostileFiles, WithAnyByteChangedAreHarmless)
{
    for (std::size_t position = 0; position < file().size(); ++position)
        for (const int flip : {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0xFF}) {
            Bytes changed = file();
            changed[position] ^= static_cast<std::uint8_t>(flip);
            decoded(changed);
        }
}

/// One to eight changes: bytes overwritten, extreme numbers put in, pieces cut out, doubled or moved.
Bytes mutated(Bytes file, std::mt19937& generator)
{
    const auto below = [&](std::size_t limit) { return limit == 0 ? 0 : generator() % limit; };
    for (auto changes = 1 + below(8); changes > 0 && file.size() >= 8; --changes) {
        const auto at = static_cast<std::ptrdiff_t>(below(file.size() - 4));
        const auto length = static_cast<std::ptrdiff_t>(
            1 + below(std::min<std::size_t>(32, file.size() - static_cast<std::size_t>(at))));
        switch (below(5)) {
        case 0:
            file[static_cast<std::size_t>(at)] = static_cast<std::uint8_t>(generator());
            break;
        case 1: {
            constexpr std::uint32_t kExtremes[] = {0,          1,          0x7FFF,     0xFFFF,
                                                   0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, 0x01000000};
            put32(file, static_cast<std::size_t>(at), kExtremes[below(std::size(kExtremes))]);
            break;
        }
        case 2:
            file.erase(file.begin() + at, file.begin() + at + length);
            break;
        case 3: {
            const Bytes piece(file.begin() + at, file.begin() + at + length);
            file.insert(file.begin() + static_cast<std::ptrdiff_t>(below(file.size())), piece.begin(), piece.end());
            break;
        }
        default:
            file.resize(file.size() - below(file.size() / 4));
            break;
        }
    }
    return file;
}

TEST_P(HostileFiles, WithRandomDamageAreHarmless)
{
    for (std::uint32_t seed = 0; seed < 4000; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 generator(seed);
        decoded(mutated(file(), generator));
    }
}

/// While it lives, fresh memory holds this byte instead of whatever was there. (Sanitizers fill memory by themselves.)
class ScopedMemoryFill
{
public:
    explicit ScopedMemoryFill(int byte) { mallopt(M_PERTURB, ~byte & 0xFF); }
    ~ScopedMemoryFill() { mallopt(M_PERTURB, 0); }
    ScopedMemoryFill(const ScopedMemoryFill&) = delete;
    ScopedMemoryFill& operator=(const ScopedMemoryFill&) = delete;
};

TEST_P(HostileFiles, ShowNothingOfWhatMemoryHeldBefore)
{
    const auto decodedOver = [](const Bytes& changed, int byte) {
        const ScopedMemoryFill fill(byte);
        const auto picture = decodePicture(changed);
        return picture ? pixelsOf(*picture) : Pixels{};
    };
    for (std::size_t position = 0; position < file().size(); ++position)
        for (const int flip : {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40, 0x80, 0xFF}) {
            Bytes changed = file();
            changed[position] ^= static_cast<std::uint8_t>(flip);
            ASSERT_EQ(decodedOver(changed, 0x11), decodedOver(changed, 0xEE))
                << "byte " << position << ", flip " << flip;
        }
}

TEST_P(HostileFiles, PrintNothing)
{
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    for (std::uint32_t seed = 0; seed < 300; ++seed) {
        std::mt19937 generator(seed);
        (void)decodePicture(mutated(file(), generator));
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

/// Lets the first, the second ... allocation fail until `work` succeeds without one failing.
void failEachAllocation(const std::function<bool()>& work, int atLeast)
{
    constexpr int kEnough = 1000;
    for (int successes = 0; successes < kEnough; ++successes) {
        const platform::ScopedAllocationFailure failure(successes);
        if (work()) {
            EXPECT_GE(successes, atLeast);
            return;
        }
    }
    FAIL() << "never succeeds";
}

TEST_P(HostileFiles, GiveNoPictureWhenAnyAllocationFails)
{
    failEachAllocation([&] { return decoded(file()).has_value(); }, 1);
}

INSTANTIATE_TEST_SUITE_P(Kinds, HostileFiles, testing::ValuesIn(samples()), [](const auto& kind) {
    std::string name = kind.param.name;
    std::erase(name, ' ');
    return name;
});

TEST(Encoders, GiveNoFileWhenAnyAllocationFails)
{
    const Pixels pixels = randomPixels(100 * 100, 1);
    failEachAllocation([&] { return gdiplus::encodePng(viewOf(pixels, 100)).has_value(); }, 3);
    failEachAllocation([&] { return gdiplus::encodeJpeg(viewOf(pixels, 100), 100).has_value(); }, 1);
    failEachAllocation([&] { return gdiplus::encodeBmp(viewOf(pixels, 100)).has_value(); }, 1);
    failEachAllocation([&] { return gdiplus::encodeGif(viewOf(pixels, 100)).has_value(); }, 2);
    const auto tiff = [&] { return gdiplus::encodeTiff(viewOf(pixels, 100), gdiplus::TiffSamples::Rgba).has_value(); };
    failEachAllocation(tiff, 2);
}

TEST(AbsurdSizes, OfPngAreRefused)
{
    Bytes file = pngFile(pngContent(PNG_COLOR_TYPE_RGB_ALPHA, 8, 4));
    for (const auto& [width, height] : {std::pair{0x7FFFFFFFu, 0x7FFFFFFFu},
                                        {0xFFFFFFFFu, 1u},
                                        {0u, 1u},
                                        {1'000'000u, 1'000'000u},
                                        {1'000'001u, 1u},
                                        {65535u, 65535u},
                                        {16384u, 16384u},
                                        {500u, 500u}}) {
        putBigEndian32(file, 16, width);
        putBigEndian32(file, 20, height);
        EXPECT_FALSE(decoded(file)) << width << " x " << height;
    }
}

TEST(AbsurdSizes, OfJpegAreRefused)
{
    Bytes file = jpegFile({.samples = smoothSamples(8, 8, 3)});
    const std::size_t frame = positionOf(file, "\xFF\xC0");
    for (const auto& [width, height] : {std::pair{65535, 65535}, {65500, 65500}, {20000, 20000}, {0, 8}, {8, 0}}) {
        file.at(frame + 5) = static_cast<std::uint8_t>(height >> 8);
        file.at(frame + 6) = static_cast<std::uint8_t>(height);
        file.at(frame + 7) = static_cast<std::uint8_t>(width >> 8);
        file.at(frame + 8) = static_cast<std::uint8_t>(width);
        EXPECT_FALSE(decoded(file)) << width << " x " << height;
    }
}

TEST(AbsurdSizes, OfBmpAreRefused)
{
    for (Bytes file : {bmp24(), bmpRle8(), bmpRle4(), bmpV5()})
        for (const auto& [width, height] : {std::pair{0x7FFFFFFFu, 0x7FFFFFFFu},
                                            {0x7FFFFFFFu, 0x80000001u},
                                            {16384u, 16384u},
                                            {1'000'000u, 1u},
                                            {1u, 1'000'000u},
                                            {65536u, 65536u},
                                            {0x40000000u, 4u}}) {
            put32(file, 18, width);
            put32(file, 22, height);
            EXPECT_FALSE(decoded(file)) << width << " x " << height;
        }
}

TEST(AbsurdSizes, OfGifAreRefused)
{
    for (const auto& [width, height] : {std::pair{65535, 65535}, {16384, 16384}, {2000, 2000}}) {
        GifContent screen = gifContent(1, false);
        screen.screenWidth = width;
        screen.screenHeight = height;
        EXPECT_FALSE(decoded(gifFile(screen))) << width << " x " << height;
        GifContent frame = gifContent(1, false);
        frame.width = width;
        frame.height = height;
        EXPECT_FALSE(decoded(gifFile(frame))) << width << " x " << height;
        GifContent place = gifContent(1, false);
        place.left = width;
        place.top = height;
        EXPECT_FALSE(decoded(gifFile(place))) << width << " x " << height;
    }
}

TEST(AbsurdSizes, OfTiffAreRefused)
{
    for (const auto& [width, height] : {std::pair{0x7FFFFFFF, 0x7FFFFFFF},
                                        {-1, -1},
                                        {-1, 1},
                                        {1, -1},
                                        {0, 1},
                                        {1, 0},
                                        {16384, 16384},
                                        {1'000'000, 268},
                                        {268, 1'000'000},
                                        {3000, 3000}})
        for (const int compression : {COMPRESSION_NONE, COMPRESSION_LZW, COMPRESSION_CCITTFAX4, COMPRESSION_JPEG})
            for (const int rowsPerStrip : {1, 0x7FFFFFFF}) {
                TiffContent content{.width = width, .height = height, .bits = 1, .compression = compression};
                content.rowsPerStrip = rowsPerStrip;
                content.blocks = {Bytes(20)};
                EXPECT_FALSE(decoded(tiffFile(content))) << width << " x " << height;
            }
}

TEST(AbsurdSizes, OfTilesSamplesAndResolutionsAreRefusedOrHarmless)
{
    TiffContent content{.width = 1, .height = 1, .blocks = {Bytes(20)}};
    for (const auto& [width, height] : {std::pair{16, 0x7FFFFFF0}, {0x7FFFFFF0, 16}, {-16, -16}, {16384, 16384}}) {
        content.tileWidth = width;
        content.tileHeight = height;
        EXPECT_FALSE(decoded(tiffFile(content))) << width << " x " << height;
    }
    content.tileWidth = 0;
    content.samples = 60000;
    content.extraSample = EXTRASAMPLE_UNSPECIFIED;
    decoded(tiffFile(content));
}

/// LZW codes of nine bits: 256, which clears the table, again and again, then a single 0 and the end.
Bytes lzwOfOneByte(std::size_t clears)
{
    std::vector<bool> bits;
    const auto put = [&](unsigned code) {
        for (int bit = 8; bit >= 0; --bit)
            bits.push_back((code >> bit & 1) != 0);
    };
    for (std::size_t i = 0; i < clears; ++i)
        put(256);
    put(0);
    put(257);
    Bytes bytes((bits.size() + 15) / 16 * 2);
    for (std::size_t i = 0; i < bits.size(); ++i)
        bytes[i / 8] |= static_cast<std::uint8_t>(bits[i] ? 0x80 >> i % 8 : 0);
    return bytes;
}

TEST(AbsurdSizes, StripsThatShareBytesAreNoEndlessWork)
{
    constexpr std::uint32_t kStrips = 60'000;
    const Bytes strip = lzwOfOneByte(180'000);
    TiffContent content{.width = 1, .height = kStrips, .compression = COMPRESSION_LZW, .rowsPerStrip = 1};
    content.blocks.assign(kStrips, Bytes());
    content.blocks[0] = strip;
    Bytes file = tiffFile(content); // the tables of offsets and lengths lie behind the strip
    for (std::uint32_t i = 0; i < kStrips; ++i) {
        put32(file, 8 + strip.size() + 4 * i, 8);
        put32(file, 8 + strip.size() + 4 * (kStrips + i), static_cast<std::uint32_t>(strip.size()));
    }
    ASSERT_EQ(tiffTags(file).at(TIFFTAG_STRIPOFFSETS).back(), 8u);
    ASSERT_EQ(tiffTags(file).at(TIFFTAG_STRIPBYTECOUNTS).back(), strip.size());
    EXPECT_FALSE(decoded(file));

    content.height = 1;
    content.blocks.resize(1);
    EXPECT_TRUE(decoded(tiffFile(content))) << "one of them is a picture";
}

} // namespace
} // namespace vq::test::hostileFilesTests
