// SPDX-License-Identifier: MIT
// Files that are cut, damaged or lie about their size. Whatever comes, a decoder answers with a picture that holds
// together or with none; AddressSanitizer watches, as each file lies in a block of exactly its size.
#include "Platform/gdiplus/codecs/Bmp.h"
#include "Platform/gdiplus/codecs/Codecs.h"
#include "Platform/gdiplus/codecs/Jpeg.h"
#include "Platform/gdiplus/codecs/Png.h"
#include "unit/Platform/gdiplus/codecs/BmpFiles.h"
#include "unit/Platform/gdiplus/codecs/JpegFiles.h"
#include "unit/Platform/gdiplus/codecs/PngFiles.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include <malloc.h>

namespace vq::test {
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
    return {{"png colours", pngFile(colours)},
            {"png palette", pngFile(palette)},
            {"png grey", pngFile(pngContent(PNG_COLOR_TYPE_GRAY, 16, 1))},
            {"jpeg", jpegFile(photograph)},
            {"jpeg progressive", jpegFile(progressive)},
            {"jpeg inks", jpegFile(inks)},
            {"bmp 24", bmp24()},
            {"bmp rle 8", bmpRle8()},
            {"bmp rle 4", bmpRle4()},
            {"bmp v5", bmpV5()}};
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
    EXPECT_TRUE(opaque || picture->format == gdiplus::PictureFormat::Argb32);
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
    failEachAllocation([&] { return gdiplus::encodePng(viewOf(pixels, 100)).has_value(); }, 4);
    failEachAllocation([&] { return gdiplus::encodeJpeg(viewOf(pixels, 100), 100).has_value(); }, 1);
    failEachAllocation([&] { return gdiplus::encodeBmp(viewOf(pixels, 100)).has_value(); }, 1);
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

} // namespace
} // namespace vq::test
