// SPDX-License-Identifier: MIT
#include "FileSupport.h"
#include "support/ImageAccess.h"
#include "support/Locks.h"

#include <limits>

namespace vq::test {
namespace {

/// Whether the archive throws for want of bytes.
template <typename Transfer>
bool endsTooEarly(Transfer transfer)
{
    try {
        transfer();
    } catch (CArchiveException* error) {
        const bool isEnd = error->m_cause == CArchiveException::endOfFile;
        error->Delete();
        return isEnd;
    }
    return false;
}

class ImageInArchive : public testing::Test
{
protected:
    ImageInArchive() { paint(image, content); }

    const Pixels content = sturdyPixels(12 * 5, 1);
    CVQDIB image{12, 5};
    CVQDIB read{2, 2};
    CVQMemoryArchive archive;
};

TEST_F(ImageInArchive, ComesBackPixelForPixel)
{
    EXPECT_TRUE(image.WriteFile(&archive));
    archive.SeekToBegin();
    EXPECT_TRUE(read.ReadFile(&archive));
    EXPECT_EQ(read.GetWidth(), 12);
    EXPECT_TRUE(shows(read, content));
    EXPECT_EQ(archive.GetPosition(), archive.GetSize());
}

TEST_F(ImageInArchive, KeepsStraightColoursWhereverAlphaIsNotZero)
{
    paintMixed(image);
    image.WriteFile(&archive);
    archive.SeekToBegin();
    read.ReadFile(&archive);
    if (!runsUnderWine()) { // GDI+ rounds partly transparent colours when it draws
        EXPECT_TRUE(shows(read, clearedWhereTransparent(pixels(image))));
    }
}

TEST_F(ImageInArchive, IsALengthAndAPngFile)
{
    image.WriteFile(&archive);
    const FileContent bytes = contentOf(archive);
    ASSERT_GT(bytes.size(), 12u);
    EXPECT_EQ(numberAt(bytes, 0), bytes.size() - 4);
    EXPECT_EQ(textOf(FileContent(bytes.begin() + 4, bytes.begin() + 12)), "\x89PNG\r\n\x1A\n");
    EXPECT_EQ(textOf(FileContent(bytes.end() - 8, bytes.end() - 4)), "IEND");
}

TEST_F(ImageInArchive, StandsBesideOthers)
{
    CVQDIB second(1, 1);
    second.Clear(RGB(1, 2, 3));
    archive.Write("<", 1);
    image.WriteFile(&archive);
    second.WriteFile(&archive);
    archive.Write(">", 1);
    archive.SeekToBegin();
    char mark = 0;
    archive.Read(&mark, 1);
    EXPECT_EQ(mark, '<');
    EXPECT_TRUE(read.ReadFile(&archive));
    EXPECT_TRUE(shows(read, content));
    EXPECT_TRUE(read.ReadFile(&archive));
    EXPECT_TRUE(shows(read, {0xFF010203}));
    archive.Read(&mark, 1);
    EXPECT_EQ(mark, '>');
}

TEST_F(ImageInArchive, ThatIsEmptyIsALengthOf0)
{
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    EXPECT_TRUE(empty.WriteFile(&archive));
    EXPECT_EQ(contentOf(archive), FileContent(4, 0));
    archive.SeekToBegin();
    EXPECT_FALSE(image.ReadFile(&archive));
    EXPECT_TRUE(shows(image, content));
    Gdiplus::Bitmap* bitmap = nullptr;
    EXPECT_TRUE(CVQDIB::WriteFileFromBitmap(bitmap, &archive));
    EXPECT_EQ(contentOf(archive), FileContent(8, 0));
}

TEST_F(ImageInArchive, MayBeOfAnyFormat)
{
    for (const DWORD number : {kBmp, kJpeg, kTiff, kPng}) {
        const MemoryStream stream;
        const CLSID encoder = encoderId(number);
        Gdiplus::Bitmap grey(8, 8, PixelFormat24bppRGB);
        grey.SetPixel(0, 0, Gdiplus::Color(0xFF000000));
        ASSERT_EQ(grey.Save(stream.get(), &encoder, nullptr), Gdiplus::Ok);
        FileContent block;
        const auto file = stream.bytes();
        appendNumber(block, file.size(), 4);
        block.insert(block.end(), file.begin(), file.end());
        CVQMemoryArchive foreign(block.data(), block.size());
        EXPECT_TRUE(read.ReadFile(&foreign)) << number;
        EXPECT_TRUE(shows(read, Pixels(64, 0xFF000000))) << number;
    }
}

TEST_F(ImageInArchive, OfAnotherResolutionIsNotResampled)
{
    Gdiplus::Bitmap stripes(40, 1, PixelFormat32bppARGB);
    for (int x = 0; x < 40; ++x)
        stripes.SetPixel(x, 0, Gdiplus::Color(x % 2 ? 0xFFFFFFFF : 0xFF000000));
    stripes.SetResolution(300, 72);
    EXPECT_TRUE(CVQDIB::WriteFileFromBitmap(&stripes, &archive));
    archive.SeekToBegin();
    read.ReadFile(&archive);
    EXPECT_EQ(read.GetWidth(), 40);
    for (int x = 0; x < 40; ++x)
        EXPECT_EQ(read.GetColor(x, 0), x % 2 ? 0xFFFFFFFF : 0xFF000000) << x;
}

TEST_F(ImageInArchive, CutOffAnywhereThrowsAndLeavesTheImage)
{
    image.WriteFile(&archive);
    read.Clear(RGB(1, 2, 3));
    for (std::size_t length = 0; length < archive.GetSize(); ++length) {
        CVQMemoryArchive cut(archive.GetBuffer(), length);
        EXPECT_TRUE(endsTooEarly([&] { read.ReadFile(&cut); })) << length;
        Gdiplus::Bitmap* bitmap = image.GetBitmap();
        cut.SeekToBegin();
        EXPECT_TRUE(endsTooEarly([&] { CVQDIB::ReadFileToBitmap(&cut, bitmap); })) << length;
        EXPECT_EQ(bitmap, nullptr);
    }
    EXPECT_TRUE(shows(read, Pixels(4, 0xFF010203)));
}

/// An archive that counts what it was asked for and has no end.
class EndlessArchive : public CVQArchive
{
public:
    void Write(const void*, UINT) override { AfxThrowArchiveException(CArchiveException::readOnly); }
    void Read(void* data, UINT bytes) override
    {
        largest = std::max(largest, bytes);
        if (position > 1'000'000)
            AfxThrowArchiveException(CArchiveException::endOfFile);
        std::fill_n(static_cast<BYTE*>(data), bytes, BYTE{0xFF});
        position += bytes;
    }
    UINT largest = 0;
    std::uint64_t position = 0;
};

TEST_F(ImageInArchive, IsReadPieceByPieceWhateverItsLengthClaims)
{
    EndlessArchive endless; // claims 4 GiB
    EXPECT_TRUE(endsTooEarly([&] { read.ReadFile(&endless); }));
    EXPECT_LE(endless.largest, 1u << 20);
}

TEST_F(ImageInArchive, ThatCannotBeDecodedIsPassedOver)
{
    FileContent block;
    appendNumber(block, 100'000, 4);
    block.resize(100'004, 'x');
    CVQMemoryArchive bad(block.data(), block.size());
    EXPECT_FALSE(image.ReadFile(&bad));
    EXPECT_EQ(bad.GetPosition(), bad.GetSize());
    EXPECT_TRUE(shows(image, content));
    bad.SeekToBegin();
    Gdiplus::Bitmap* bitmap = image.GetBitmap();
    EXPECT_FALSE(CVQDIB::ReadFileToBitmap(&bad, bitmap));
    EXPECT_EQ(bitmap, nullptr);
}

TEST_F(ImageInArchive, ThatMemoryCannotHoldLeavesTheImage)
{
    image.WriteFile(&archive);
    read.Clear(RGB(1, 2, 3));
    for (int allowed = 0; allowed < 12; ++allowed) {
        archive.SeekToBegin();
        bool isRead = false;
        {
            const vq::platform::ScopedAllocationFailure noMemory(allowed);
            isRead = read.ReadFile(&archive);
        }
        EXPECT_EQ(archive.GetPosition(), archive.GetSize());
        if (isRead)
            break;
        EXPECT_TRUE(shows(read, Pixels(4, 0xFF010203))) << allowed;
    }
}

TEST_F(ImageInArchive, LeavesTheImagesSettings)
{
    image.WriteFile(&archive);
    archive.SeekToBegin();
    read.EnableAntialias(false);
    read.SetFontSize(-33);
    VQTestAccess::shadowX(read) = 5;
    EXPECT_TRUE(read.ReadFile(&archive));
    EXPECT_EQ(read.GetFontSize(), -33);
    EXPECT_EQ(VQTestAccess::shadowX(read), 5);
    EXPECT_FALSE(read.IsEnableAntialias());
    EXPECT_EQ(read.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeNone);
    EXPECT_EQ(read.GetGraphics()->GetCompositingMode(), Gdiplus::CompositingModeSourceOver);
}

TEST_F(ImageInArchive, IsWrittenAndDecodedWithoutTheLock)
{
    Gdiplus::Bitmap* bitmap = nullptr;
    EXPECT_TRUE(finishesWhileLocked(std::chrono::seconds(5), [&] {
        image.WriteFile(&archive);
        archive.SeekToBegin();
        CVQDIB::ReadFileToBitmap(&archive, bitmap);
    }));
    ASSERT_TRUE(bitmap);
    EXPECT_EQ(bitmap->GetWidth(), 12u);
    delete bitmap;
}

TEST_F(ImageInArchive, ThatCannotBeEncodedIsALengthOf0AndNotTold)
{
    Gdiplus::Bitmap broken(L"no such file");
    EXPECT_TRUE(CVQDIB::WriteFileFromBitmap(&broken, &archive));
    EXPECT_EQ(contentOf(archive), FileContent(4, 0));
}

TEST_F(ImageInArchive, WithoutAnArchiveIsFalse)
{
    EXPECT_FALSE(image.ReadFile(nullptr));
    EXPECT_FALSE(image.WriteFile(nullptr));
    EXPECT_TRUE(shows(image, content));
    Gdiplus::Bitmap* bitmap = image.GetBitmap();
    EXPECT_FALSE(CVQDIB::ReadFileToBitmap(static_cast<CVQArchive*>(nullptr), bitmap));
    EXPECT_EQ(bitmap, nullptr);
    bitmap = image.GetBitmap();
    EXPECT_FALSE(CVQDIB::ReadFileToBitmap(static_cast<std::FILE*>(nullptr), bitmap));
    EXPECT_EQ(bitmap, nullptr);
    EXPECT_FALSE(CVQDIB::WriteFileFromBitmap(image.GetBitmap(), nullptr, CVQDIB::IFT_PNG, true));
}

/// The bytes that a bitmap makes in a stream of the C library.
class BitmapInStream : public testing::Test
{
protected:
    FileContent written(CVQDIB::eImageFormatType format, bool writeLength)
    {
        std::FILE* out = _wfopen(file.path(), L"wb");
        isTold = CVQDIB::WriteFileFromBitmap(image.GetBitmap(), out, format, writeLength);
        std::fclose(out);
        return file.read();
    }

    void SetUp() override { image.Clear(RGB(200, 100, 50)); }

    CVQDIB image{9, 9};
    const TemporaryFile file{L"stream"};
    bool isTold = false;
};

TEST_F(BitmapInStream, HasAnyOfTheFiveFormats)
{
    const std::pair<CVQDIB::eImageFormatType, std::string> expected[] = {
        {CVQDIB::IFT_BMP, "BM"}, {CVQDIB::IFT_JPEG, "\xFF\xD8"}, {CVQDIB::IFT_PNG, "\x89P"}};
    for (const auto& [format, signature] : expected) {
        const FileContent bytes = written(format, false);
        EXPECT_TRUE(isTold);
        EXPECT_EQ(textOf(bytes).substr(0, 2), signature);
    }
    const std::string tiff = textOf(written(CVQDIB::IFT_TIFF, false)).substr(0, 2);
    EXPECT_TRUE(tiff == "II" || tiff == "MM");
    if (!differsHere("GIF of a 32-bit picture")) {
        EXPECT_EQ(textOf(written(CVQDIB::IFT_GIF, false)).substr(0, 3), "GIF");
    }
}

static_assert(CVQDIB::IFT_BMP == 0 && CVQDIB::IFT_JPEG == 1 && CVQDIB::IFT_GIF == 2 && CVQDIB::IFT_TIFF == 3 &&
              CVQDIB::IFT_PNG == 4);

/// Without parameters the encoder's quality is 75, of which every step of the first table is larger than 1: the
/// standard's first steps, 16 and 11, become 8 and 6.
TEST_F(BitmapInStream, IsAJpegFileOfTheEncodersOwnQuality)
{
    const std::string jpeg = textOf(written(CVQDIB::IFT_JPEG, false));
    const std::size_t table = jpeg.find(std::string("\xFF\xDB\x00\x43\x00", 5));
    ASSERT_NE(table, std::string::npos);
    EXPECT_EQ(jpeg.substr(table + 5, 2), "\x08\x06");
}

TEST_F(BitmapInStream, HasItsLengthBeforeItWhenAskedFor)
{
    const FileContent without = written(CVQDIB::IFT_PNG, false);
    const FileContent with = written(CVQDIB::IFT_PNG, true);
    ASSERT_EQ(with.size(), without.size() + 4);
    EXPECT_EQ(numberAt(with, 0), without.size());
    EXPECT_TRUE(std::equal(without.begin(), without.end(), with.begin() + 4));
}

TEST_F(BitmapInStream, OfNoKnownFormatIsNotWritten)
{
    for (const int format : {-1, 5, 99, std::numeric_limits<int>::min()}) {
        EXPECT_TRUE(written(static_cast<CVQDIB::eImageFormatType>(format), true).empty());
        EXPECT_FALSE(isTold);
    }
}

TEST_F(BitmapInStream, ThatCannotBeEncodedIsNotWrittenAndNotTold)
{
    Gdiplus::Bitmap broken(L"no such file");
    std::FILE* out = _wfopen(file.path(), L"wb");
    EXPECT_TRUE(CVQDIB::WriteFileFromBitmap(nullptr, out, CVQDIB::IFT_PNG, true));
    EXPECT_TRUE(CVQDIB::WriteFileFromBitmap(&broken, out, CVQDIB::IFT_PNG, true));
    std::fclose(out);
    EXPECT_TRUE(file.read().empty());
}

TEST_F(BitmapInStream, ComesBack)
{
    written(CVQDIB::IFT_PNG, true);
    std::FILE* in = _wfopen(file.path(), L"rb");
    Gdiplus::Bitmap* bitmap = nullptr;
    EXPECT_TRUE(CVQDIB::ReadFileToBitmap(in, bitmap));
    ASSERT_TRUE(bitmap);
    CVQDIB read(bitmap);
    delete bitmap;
    EXPECT_TRUE(shows(read, pixels(image)));
    EXPECT_FALSE(CVQDIB::ReadFileToBitmap(in, bitmap)) << "at the end of the stream";
    EXPECT_EQ(bitmap, nullptr);
    std::fclose(in);
}

TEST_F(BitmapInStream, CutOffAnywhereGivesNone)
{
    const std::string whole = textOf(written(CVQDIB::IFT_PNG, true));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        file.write(whole.substr(0, length));
        std::FILE* in = _wfopen(file.path(), L"rb");
        Gdiplus::Bitmap* bitmap = image.GetBitmap();
        EXPECT_FALSE(CVQDIB::ReadFileToBitmap(in, bitmap)) << length;
        EXPECT_EQ(bitmap, nullptr);
        std::fclose(in);
    }
}

} // namespace
} // namespace vq::test
