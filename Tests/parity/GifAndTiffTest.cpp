// SPDX-License-Identifier: MIT
#include "parity/Encoders.h"
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

#include <memory>

namespace vq::test {
namespace {

/// Saved to a stream and read from it again. The position is at the end in between.
class Reread
{
public:
    Reread(Gdiplus::Bitmap& bitmap, DWORD encoder)
    {
        const CLSID id = encoderId(encoder);
        EXPECT_EQ(bitmap.Save(m_stream.get(), &id, nullptr), Gdiplus::Ok);
        EXPECT_EQ(m_stream.position(), m_stream.seek(0, STREAM_SEEK_END));
        m_bitmap = std::make_unique<Gdiplus::Bitmap>(m_stream.get());
    }

    Gdiplus::Bitmap& bitmap() { return *m_bitmap; }

private:
    MemoryStream m_stream;
    std::unique_ptr<Gdiplus::Bitmap> m_bitmap;
};

bool isOfKind(Gdiplus::Bitmap& bitmap, const GUID& expected)
{
    GUID format{};
    bitmap.GetRawFormat(&format);
    return format == expected;
}

TEST(TiffFiles, Of32BitsKeepEveryPixel)
{
    TestPicture picture(4, 2, {0x00FF00FF, 0x01FF00FF, 0x80123456, 0xFF123456, 0, 0xFFFFFFFF, 0x7F808080, 0xFF000000});
    Reread reread(picture.bitmap, kTiff);
    ASSERT_EQ(reread.bitmap().GetLastStatus(), Gdiplus::Ok);
    EXPECT_EQ(reread.bitmap().GetPixelFormat(), PixelFormat32bppARGB);
    EXPECT_TRUE(isOfKind(reread.bitmap(), Gdiplus::ImageFormatTIFF));
    EXPECT_EQ(TestPicture::pixelsOf(reread.bitmap()), picture.all());
}

TEST(TiffFiles, Of24BitsReadBackAs24Bits)
{
    Gdiplus::Bitmap bitmap(3, 1, PixelFormat24bppRGB);
    bitmap.SetPixel(0, 0, Gdiplus::Color(0xFF8A2BE2));
    bitmap.SetPixel(2, 0, Gdiplus::Color(0xFFFFFFFF));
    Reread reread(bitmap, kTiff);
    EXPECT_EQ(reread.bitmap().GetPixelFormat(), PixelFormat24bppRGB);
    EXPECT_EQ(TestPicture::pixelsOf(reread.bitmap()), row({0xFF8A2BE2, 0xFF000000, 0xFFFFFFFF}));
}

TEST(TiffFiles, OfAll32BitFormatsReadBackWithAlpha)
{
    for (const Gdiplus::PixelFormat format : {PixelFormat32bppRGB, PixelFormat32bppPARGB}) {
        Gdiplus::Bitmap bitmap(1, 1, format);
        bitmap.SetPixel(0, 0, Gdiplus::Color(0xFF8A2BE2));
        Reread reread(bitmap, kTiff);
        EXPECT_EQ(TestPicture::pixelsOf(reread.bitmap()), row({0xFF8A2BE2})) << format;
        if (differsHere("TIFF of 32bppRGB and 32bppPARGB"))
            continue;
        EXPECT_EQ(reread.bitmap().GetPixelFormat(), PixelFormat32bppARGB) << format;
    }
}

TEST(TiffFiles, KeepTheResolution)
{
    TestPicture picture(2, 2, 0xFF102030);
    picture.bitmap.SetResolution(300, 72.5f);
    Reread reread(picture.bitmap, kTiff);
    EXPECT_NEAR(reread.bitmap().GetHorizontalResolution(), 300, 1e-3);
    EXPECT_NEAR(reread.bitmap().GetVerticalResolution(), 72.5, 1e-3);
}

TEST(TiffFiles, ThroughAFileKeepEveryPixel)
{
    TestPicture picture(2, 2, {0x00FF00FF, 0xFF000000, 0x80123456, 0xFF123456});
    const TemporaryFile file(L"saved.tif");
    const CLSID tiff = encoderId(kTiff);
    ASSERT_EQ(picture.bitmap.Save(file.path(), &tiff, nullptr), Gdiplus::Ok);
    Gdiplus::Bitmap decoded(file.path());
    EXPECT_EQ(TestPicture::pixelsOf(decoded), picture.all());
}

/// A picture of one row whose samples are given, without compression.
std::string tiffFile(int photometric, int samples, int bits, int width, const std::string& content)
{
    constexpr int kShort = 3;
    constexpr int kLong = 4;
    std::string file("II*\0\0\0\0\0", 8);
    const auto put = [&](unsigned value, int size) {
        for (int i = 0; i < size; ++i)
            file.push_back(static_cast<char>(value >> 8 * i));
    };
    file += content;
    file.resize((file.size() + 1) / 2 * 2);
    const auto bitsAt = static_cast<unsigned>(file.size());
    for (int i = 0; i < samples; ++i)
        put(static_cast<unsigned>(bits), 2);
    const auto paletteAt = static_cast<unsigned>(file.size());
    const unsigned colours = photometric == 3 ? 1u << bits : 0;
    for (unsigned channel = 0; channel < 3; ++channel)
        for (unsigned i = 0; i < colours; ++i)
            put(i == channel ? 0xFFFF : 0, 2); // red, green, blue, then black
    const auto directory = static_cast<unsigned>(file.size());
    for (int i = 0; i < 4; ++i)
        file[static_cast<std::size_t>(4 + i)] = static_cast<char>(directory >> 8 * i);
    put(photometric == 3 ? 10 : 9, 2);
    const auto entry = [&](unsigned tag, int type, unsigned count, unsigned value) {
        put(tag, 2);
        put(static_cast<unsigned>(type), 2);
        put(count, 4);
        put(value, 4);
    };
    entry(256, kLong, 1, static_cast<unsigned>(width));
    entry(257, kLong, 1, 1);
    const unsigned twoBits = static_cast<unsigned>(bits) * 0x10001;
    entry(258, kShort, static_cast<unsigned>(samples),
          samples > 2    ? bitsAt
          : samples == 2 ? twoBits
                         : static_cast<unsigned>(bits));
    entry(259, kShort, 1, 1);
    entry(262, kShort, 1, static_cast<unsigned>(photometric));
    entry(273, kLong, 1, 8);
    entry(277, kShort, 1, static_cast<unsigned>(samples));
    entry(278, kLong, 1, 1);
    entry(279, kLong, 1, static_cast<unsigned>(content.size()));
    if (photometric == 3)
        entry(320, kShort, 3 * colours, paletteAt);
    put(0, 4);
    return file;
}

/// The formats are those that Wine's conformance tests, run on Windows, list.
TEST(TiffFiles, OfEveryKindHaveTheFormatThatFits)
{
    const struct
    {
        int photometric, samples, bits;
        Gdiplus::PixelFormat format;
        std::string content;
        Row pixels;
    } cases[] = {
        {2, 3, 8, PixelFormat24bppRGB, "\x01\x02\x03\xFF\x80\x10", row({0xFF010203, 0xFFFF8010})},
        {2, 4, 8, PixelFormat32bppARGB, "\x01\x02\x03\x80\xFF\x80\x10\xFF", row({0x80010203, 0xFFFF8010})},
        {1, 1, 1, PixelFormat1bppIndexed, "\x40", row({0xFF000000, 0xFFFFFFFF})},
        {1, 1, 8, PixelFormat8bppIndexed, "\x10\xFE", row({0xFF101010, 0xFFFEFEFE})},
        {3, 1, 4, PixelFormat4bppIndexed, "\x21", row({0xFF0000FF, 0xFF00FF00})},
        {3, 1, 8, PixelFormat8bppIndexed, "\x02\x01", row({0xFF0000FF, 0xFF00FF00})},
    };
    for (const auto& kind : cases) {
        SCOPED_TRACE(testing::Message() << kind.photometric << ' ' << kind.samples << " x " << kind.bits);
        const MemoryStream stream(tiffFile(kind.photometric, kind.samples, kind.bits, 2, kind.content));
        Gdiplus::Bitmap bitmap(stream.get());
        EXPECT_EQ(bitmap.GetLastStatus(), Gdiplus::Ok);
        EXPECT_EQ(bitmap.GetPixelFormat(), kind.format);
        EXPECT_EQ(TestPicture::pixelsOf(bitmap), kind.pixels);
    }
    const MemoryStream deep(tiffFile(2, 3, 16, 1, std::string("\x00\x00\xFF\xFF\x00\x00", 6)));
    const auto expected = differsHere("TIFF of 16-bit samples") ? PixelFormat32bppARGB : PixelFormat48bppRGB;
    EXPECT_EQ(Gdiplus::Bitmap(deep.get()).GetPixelFormat(), expected);
    const MemoryStream odd(tiffFile(2, 3, 24, 1, std::string(9, '\0')));
    EXPECT_NE(Gdiplus::Bitmap(odd.get()).GetLastStatus(), Gdiplus::Ok);
}

/// 2 x 1: red, then index 0, which is white and may be transparent.
std::string gifFile(bool transparent, int frames = 1)
{
    std::string file("GIF89a\2\0\1\0\xF0\0\0\xFF\xFF\xFF\xFF\0\0", 19);
    for (int i = 0; i < frames; ++i) {
        if (transparent)
            file += std::string("\x21\xF9\4\1\0\0\0\0", 8);
        file += std::string("\x2C\0\0\0\0\2\0\1\0\0", 10);
        file += std::string("\2\2\x0C\x0A\0", 5); // codes of three bits: clear, 1, 0, end
    }
    return file + ";";
}

TEST(GifFiles, HaveEightBits)
{
    const MemoryStream stream(gifFile(false));
    Gdiplus::Bitmap bitmap(stream.get());
    ASSERT_EQ(bitmap.GetLastStatus(), Gdiplus::Ok);
    EXPECT_EQ(bitmap.GetPixelFormat(), PixelFormat8bppIndexed);
    EXPECT_TRUE(isOfKind(bitmap, Gdiplus::ImageFormatGIF));
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFFFF0000, 0xFFFFFFFF}));
}

TEST(GifFiles, MayBeTransparentNonetheless)
{
    const MemoryStream stream(gifFile(true));
    Gdiplus::Bitmap bitmap(stream.get());
    EXPECT_EQ(bitmap.GetPixelFormat(), PixelFormat8bppIndexed);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFFFF0000, 0x00FFFFFF}));

    const std::unique_ptr<Gdiplus::Bitmap> clone(bitmap.Clone());
    EXPECT_EQ(clone->GetPixelFormat(), PixelFormat8bppIndexed);
    EXPECT_EQ(TestPicture::pixelsOf(*clone), row({0xFFFF0000, 0x00FFFFFF}));

    TestPicture target(2, 1, 0xFF123456);
    target.graphics.DrawImage(&bitmap, Gdiplus::Rect(0, 0, 2, 1));
    EXPECT_EQ(target.all(), row({0xFFFF0000, 0xFF123456}));

    EXPECT_EQ(bitmap.RotateFlip(Gdiplus::RotateNoneFlipX), Gdiplus::Ok);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap).at(0).value >> 24, 0u);
}

TEST(GifFiles, OfAnimationsAreTheFirstFrameIn32Bits)
{
    const MemoryStream stream(gifFile(false, 2));
    Gdiplus::Bitmap bitmap(stream.get());
    EXPECT_EQ(bitmap.GetPixelFormat(), PixelFormat32bppARGB);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFFFF0000, 0xFFFFFFFF}));
}

TEST(GifFiles, ThatAreCutBreakTheBitmap)
{
    const std::string file = gifFile(false);
    const MemoryStream stream(file.substr(0, file.size() - 4));
    EXPECT_NE(Gdiplus::Bitmap(stream.get()).GetLastStatus(), Gdiplus::Ok);
}

TEST(GifFiles, OfOtherPicturesAreReducedToEightBits)
{
    if (differsHere("GIF of a 32-bit picture"))
        return;
    for (const Gdiplus::PixelFormat format :
         {PixelFormat24bppRGB, PixelFormat32bppRGB, PixelFormat32bppARGB, PixelFormat32bppPARGB}) {
        Gdiplus::Bitmap bitmap(9, 7, format);
        bitmap.SetPixel(4, 3, Gdiplus::Color(0xFFFF0000));
        Reread reread(bitmap, kGif);
        ASSERT_EQ(reread.bitmap().GetLastStatus(), Gdiplus::Ok) << format;
        EXPECT_EQ(reread.bitmap().GetPixelFormat(), PixelFormat8bppIndexed) << format;
        EXPECT_TRUE(isOfKind(reread.bitmap(), Gdiplus::ImageFormatGIF));
        Gdiplus::Color red;
        reread.bitmap().GetPixel(4, 3, &red);
        EXPECT_EQ(red.GetA(), 255) << format;
        EXPECT_GE(red.GetR(), 248) << format;
        EXPECT_EQ(red.GetG(), 0) << format;
        EXPECT_EQ(red.GetB(), 0) << format;
    }
}

} // namespace
} // namespace vq::test
