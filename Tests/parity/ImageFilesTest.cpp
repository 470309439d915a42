// SPDX-License-Identifier: MIT
#include "parity/Encoders.h"
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

#include <cwchar>
#include <memory>

namespace vq::test {
namespace {

TEST(ImageEncoders, AreBmpJpegGifTiffAndPngInThatOrder)
{
    UINT count = 0;
    UINT size = 0;
    ASSERT_EQ(Gdiplus::GetImageEncodersSize(&count, &size), Gdiplus::Ok);
    ASSERT_EQ(count, 5u);
    ASSERT_GE(size, count * sizeof(Gdiplus::ImageCodecInfo));
    std::vector<BYTE> memory(size);
    auto* encoders = reinterpret_cast<Gdiplus::ImageCodecInfo*>(memory.data());
    ASSERT_EQ(Gdiplus::GetImageEncoders(count, size, encoders), Gdiplus::Ok);

    const std::pair<DWORD, const wchar_t*> expected[] = {
        {kBmp, L"image/bmp"}, {kJpeg, L"image/jpeg"}, {kGif, L"image/gif"},
        {kTiff, L"image/tiff"}, {kPng, L"image/png"},
    };
    for (UINT i = 0; i < count; ++i) {
        EXPECT_STREQ(encoders[i].MimeType, expected[i].second);
        EXPECT_TRUE(encoders[i].Clsid == encoderId(expected[i].first)) << i;
        EXPECT_TRUE(encoders[i].Flags & Gdiplus::ImageCodecFlagsEncoder);
        EXPECT_GE(encoders[i].SigCount, 1u);
    }
    EXPECT_TRUE(encoders[4].FormatID == Gdiplus::ImageFormatPNG);
    EXPECT_NE(Gdiplus::GetImageEncoders(count + 1, size, encoders), Gdiplus::Ok);
    EXPECT_NE(Gdiplus::GetImageEncoders(count, size, nullptr), Gdiplus::Ok);
    EXPECT_NE(Gdiplus::GetImageEncodersSize(nullptr, &size), Gdiplus::Ok);
}

/// What a bitmap answers that was to be read from something that is no picture.
const Gdiplus::Status kUndecodable =
    differsHere("bitmap from a bad file") ? Gdiplus::GenericError : Gdiplus::InvalidParameter;

TEST(ImageFiles, WhatCannotBeDecodedBreaksTheBitmap)
{
    const TemporaryFile file(L"text.png");
    file.write("This is no picture.\n");
    Gdiplus::Bitmap bitmap(file.path());
    EXPECT_EQ(bitmap.GetLastStatus(), kUndecodable);
    EXPECT_EQ(bitmap.GetWidth(), 0u);
    EXPECT_EQ(bitmap.GetHeight(), 0u);
    Gdiplus::Color colour(0x12345678);
    EXPECT_EQ(bitmap.GetPixel(0, 0, &colour), Gdiplus::InvalidParameter);
    EXPECT_EQ(colour.GetValue(), 0x12345678u);
    TestPicture target(2, 2);
    EXPECT_EQ(target.graphics.DrawImage(&bitmap, 0, 0), Gdiplus::InvalidParameter);
    EXPECT_FALSE(bitmap.Clone());
    EXPECT_EQ(bitmap.RotateFlip(Gdiplus::Rotate90FlipNone), Gdiplus::InvalidParameter);
}

TEST(ImageFiles, MissingFilesAndEmptyStreamsBreakTheBitmap)
{
    const TemporaryFile missing(L"missing.png");
    EXPECT_EQ(Gdiplus::Bitmap(missing.path()).GetLastStatus(), kUndecodable);
    const MemoryStream empty;
    EXPECT_EQ(Gdiplus::Bitmap(empty.get()).GetLastStatus(), kUndecodable);
    const MemoryStream text("no picture");
    EXPECT_EQ(Gdiplus::Bitmap(text.get()).GetLastStatus(), kUndecodable);
    EXPECT_EQ(Gdiplus::Bitmap(static_cast<IStream*>(nullptr)).GetLastStatus(), Gdiplus::InvalidParameter);
}

TEST(ImageFiles, ImageFromABadFileIsOutOfMemory)
{
    if (differsHere("image from a bad file"))
        return;
    const TemporaryFile file(L"bad.png");
    EXPECT_EQ(Gdiplus::Image(file.path()).GetLastStatus(), Gdiplus::OutOfMemory);
    file.write("no picture");
    EXPECT_EQ(Gdiplus::Image(file.path()).GetLastStatus(), Gdiplus::OutOfMemory);
}

TEST(ImageFiles, PngThroughAStreamKeepsEveryPixel)
{
    TestPicture picture(4, 1, {0x00FF00FF, 0x01FF00FF, 0x80123456, 0xFF123456});
    const MemoryStream stream;
    const CLSID png = encoderId(kPng);
    ASSERT_EQ(picture.bitmap.Save(stream.get(), &png, nullptr), Gdiplus::Ok);
    EXPECT_EQ(stream.position(), stream.seek(0, STREAM_SEEK_END));

    // The position at the end does not matter: the whole stream is read.
    Gdiplus::Bitmap decoded(stream.get());
    ASSERT_EQ(decoded.GetLastStatus(), Gdiplus::Ok);
    EXPECT_EQ(TestPicture::pixelsOf(decoded), picture.all());
    EXPECT_EQ(decoded.GetPixelFormat(), PixelFormat32bppARGB);
    GUID format{};
    decoded.GetRawFormat(&format);
    EXPECT_TRUE(format == Gdiplus::ImageFormatPNG);
    EXPECT_NEAR(decoded.GetHorizontalResolution(), 96.012, 0.001);
}

TEST(ImageFiles, DecodedPictureIntoARectangleIsExact)
{
    TestPicture picture(40, 1);
    for (int x = 0; x < 40; ++x)
        picture.set(x, 0, x % 2 ? 0xFFFFFFFF : 0xFF000000);
    const MemoryStream stream;
    const CLSID png = encoderId(kPng);
    picture.bitmap.Save(stream.get(), &png, nullptr);
    Gdiplus::Bitmap decoded(stream.get());

    TestPicture target(40, 1);
    target.graphics.DrawImage(&decoded, Gdiplus::Rect(0, 0, 40, 1));
    EXPECT_EQ(target.all(), picture.all());

    TestPicture atPoint(40, 1);
    atPoint.graphics.DrawImage(&decoded, 0, 0); // 96.012 dpi: scaled by 0.99988
    EXPECT_NE(atPoint.all(), picture.all());
}

TEST(ImageFiles, PngFileKeepsEveryPixel)
{
    TestPicture picture(2, 2, {0x00FF00FF, 0xFF000000, 0x80123456, 0xFF123456});
    const TemporaryFile file(L"saved.png");
    const CLSID png = encoderId(kPng);
    ASSERT_EQ(picture.bitmap.Save(file.path(), &png, nullptr), Gdiplus::Ok);
    Gdiplus::Bitmap decoded(file.path());
    EXPECT_EQ(TestPicture::pixelsOf(decoded), picture.all());
}

TEST(ImageFiles, JpegDropsAlphaAndKeepsStraightColours)
{
    TestPicture picture(16, 16, 0x80FF8000);
    const MemoryStream stream;
    const CLSID jpeg = encoderId(kJpeg);
    ASSERT_EQ(picture.bitmap.Save(stream.get(), &jpeg, nullptr), Gdiplus::Ok);
    Gdiplus::Bitmap decoded(stream.get());
    EXPECT_EQ(decoded.GetPixelFormat(), PixelFormat24bppRGB);
    for (const Argb pixel : TestPicture::pixelsOf(decoded))
        EXPECT_THAT(pixel, Near(0xFFFF8000, 4));
}

/// Saved as JPEG with that quality.
std::vector<BYTE> jpegOf(Gdiplus::Bitmap& bitmap, LONG quality)
{
    Gdiplus::EncoderParameters parameters{};
    parameters.Count = 1;
    parameters.Parameter[0].Guid = Gdiplus::EncoderQuality;
    parameters.Parameter[0].NumberOfValues = 1;
    parameters.Parameter[0].Type = Gdiplus::EncoderParameterValueTypeLong;
    parameters.Parameter[0].Value = &quality;
    const MemoryStream stream;
    const CLSID jpeg = encoderId(kJpeg);
    EXPECT_EQ(bitmap.Save(stream.get(), &jpeg, &parameters), Gdiplus::Ok);
    return stream.bytes();
}

TEST(ImageFiles, QualityOfAJpegIsHonoured)
{
    TestPicture picture(32, 32);
    for (int i = 0; i < 32 * 32; ++i)
        picture.set(i % 32, i / 32, 0xFF000000u | static_cast<std::uint32_t>(i * 2654435761u) >> 8);
    const auto best = jpegOf(picture.bitmap, 100);
    const auto worst = jpegOf(picture.bitmap, 1);
    if (differsHere("quality of a JPEG"))
        return;
    EXPECT_GT(best.size(), 2 * worst.size());
}

TEST(ImageFiles, BmpHoldsStraightColoursAndReadsBackOpaque)
{
    TestPicture picture(3, 2, {0x80102030, 0xFF405060, 0x00708090, 0xFFA0B0C0, 0xFFFFFFFF, 0xFF000000});
    const MemoryStream stream;
    const CLSID bmp = encoderId(kBmp);
    ASSERT_EQ(picture.bitmap.Save(stream.get(), &bmp, nullptr), Gdiplus::Ok);
    Gdiplus::Bitmap decoded(stream.get());
    if (differsHere("bits of a saved BMP"))
        return;
    EXPECT_EQ(decoded.GetPixelFormat(), PixelFormat32bppRGB);
    Row expected = picture.all();
    for (Argb& pixel : expected)
        pixel.value |= 0xFF000000;
    EXPECT_EQ(TestPicture::pixelsOf(decoded), expected);
}

TEST(ImageFiles, UnknownEncodersAndImpossiblePathsFail)
{
    TestPicture picture(2, 2);
    const TemporaryFile file(L"unknown.png");
    const CLSID unknown = encoderId(99);
    EXPECT_EQ(picture.bitmap.Save(file.path(), &unknown, nullptr), Gdiplus::UnknownImageFormat);
    const CLSID png = encoderId(kPng);
    const std::wstring nowhere = std::wstring(file.path()) + L"/missing/picture.png";
    EXPECT_NE(picture.bitmap.Save(nowhere.c_str(), &png, nullptr), Gdiplus::Ok);
    EXPECT_EQ(picture.bitmap.GetLastStatus() == Gdiplus::Ok, false);
    EXPECT_EQ(picture.bitmap.Save(file.path(), nullptr, nullptr), Gdiplus::InvalidParameter);
    EXPECT_EQ(picture.bitmap.Save(static_cast<IStream*>(nullptr), &png, nullptr), Gdiplus::InvalidParameter);
}

TEST(ImageFiles, DecodedBitmapCanBeWrittenTo)
{
    TestPicture picture(2, 1, 0xFF405060);
    const MemoryStream stream;
    const CLSID jpeg = encoderId(kJpeg);
    picture.bitmap.Save(stream.get(), &jpeg, nullptr);
    Gdiplus::Bitmap decoded(stream.get());
    EXPECT_EQ(decoded.SetPixel(0, 0, Gdiplus::Color(0xFFFFFFFF)), Gdiplus::Ok);
    Gdiplus::Graphics graphics(&decoded);
    const Gdiplus::SolidBrush brush{Gdiplus::Color(0xFF00FF00)};
    EXPECT_EQ(graphics.FillRectangle(&brush, 1, 0, 1, 1), Gdiplus::Ok);
    EXPECT_EQ(TestPicture::pixelsOf(decoded), row({0xFFFFFFFF, 0xFF00FF00}));
}

} // namespace
} // namespace vq::test
