// SPDX-License-Identifier: MIT
#include "FileSupport.h"
#include "support/ImageAccess.h"

namespace vq::test {
namespace {

std::string beginningOf(const FileContent& bytes, std::size_t count)
{
    return textOf(
        FileContent(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(std::min(count, bytes.size()))));
}

/// Saves a picture as `name` + `ending` and gives the file of that name + `written`.
FileContent saved(const wchar_t* ending, const wchar_t* written)
{
    const TemporaryFile base(L"saved");
    const FileBeside expected(base, written);
    const FileBeside asked(base, ending);
    CVQDIB image(5, 4);
    image.Clear(RGB(200, 100, 50));
    EXPECT_TRUE(image.Save(asked.path()));
    EXPECT_TRUE(leavesNothingBehind(expected.path()));
    if (asked.path() != std::wstring(expected.path())) {
        EXPECT_FALSE(asked.exists());
    }
    return expected.read();
}

TEST(Save, ChoosesTheFormatByTheLastFourCharacters)
{
    EXPECT_EQ(beginningOf(saved(L".bmp", L".bmp"), 2), "BM");
    EXPECT_EQ(beginningOf(saved(L".jpg", L".jpg"), 3), "\xFF\xD8\xFF");
    EXPECT_EQ(beginningOf(saved(L".png", L".png"), 4), "\x89PNG");
    const std::string tiff = beginningOf(saved(L".tiff", L".tiff"), 2);
    EXPECT_TRUE(tiff == "II" || tiff == "MM") << tiff;
    if (!differsHere("GIF of a 32-bit picture")) {
        EXPECT_EQ(beginningOf(saved(L".gif", L".gif"), 4), "GIF8");
    }
}

TEST(Save, TakesLettersOfEitherSize)
{
    EXPECT_EQ(beginningOf(saved(L".BMP", L".BMP"), 2), "BM");
    EXPECT_EQ(beginningOf(saved(L".JpG", L".JpG"), 3), "\xFF\xD8\xFF");
    const std::string tiff = beginningOf(saved(L".TIFF", L".TIFF"), 2);
    EXPECT_TRUE(tiff == "II" || tiff == "MM") << tiff;
}

TEST(Save, AppendsPngToEveryOtherEnding)
{
    for (const wchar_t* ending : {L"", L".", L".tif", L".jpeg", L".dat", L".png.", L"bmp"})
        EXPECT_EQ(beginningOf(saved(ending, (std::wstring(ending) + L".png").c_str()), 4), "\x89PNG");
}

TEST(Save, KnowsTiffWithoutADot)
{
    const std::string tiff = beginningOf(saved(L"tiff", L"tiff"), 2);
    EXPECT_TRUE(tiff == "II" || tiff == "MM") << tiff;
}

TEST(Save, RefusesAnEmptyPathOnly)
{
    CVQDIB image(2, 2);
    EXPECT_FALSE(image.Save(L""));
    const TemporaryFile missing(L"folder");
    EXPECT_TRUE(image.Save((std::wstring(missing.path()) + L"/missing/picture.png").c_str()));
}

TEST(Save, OfAnEmptyImageWritesNoFile)
{
    const TemporaryFile base(L"empty");
    const FileBeside file(base, L".png");
    CVQDIB empty(1, 1);
    VQTestAccess::destroy(empty);
    EXPECT_TRUE(empty.Save(file.path()));
    EXPECT_FALSE(file.exists());
    EXPECT_FALSE(empty.Save(L""));
}

TEST(Save, LeavesTheOldFileWhenTheNewOneCannotBeWritten)
{
    const TemporaryFile base(L"kept");
    const FileBeside file(base, L".png");
    CVQDIB image(3, 3);
    image.Save(file.path());
    const FileContent old = file.read();
    SetFileAttributesW(file.path(), FILE_ATTRIBUTE_READONLY);
    image.Clear(RGB(1, 2, 3));
    EXPECT_TRUE(image.Save(file.path()));
    EXPECT_EQ(file.read(), old);
    EXPECT_TRUE(leavesNothingBehind(file.path()));
    SetFileAttributesW(file.path(), FILE_ATTRIBUTE_NORMAL);
}

TEST(Save, LeavesTheOldFileWhenTheEncoderRunsOutOfMemory)
{
    const TemporaryFile base(L"memory");
    const FileBeside file(base, L".png");
    CVQDIB image(3, 3);
    image.Save(file.path());
    const FileContent old = file.read();
    image.Clear(RGB(1, 2, 3));
    {
        const vq::platform::ScopedAllocationFailure noMemory; // of our own layer; GDI+ has memory of its own
        EXPECT_TRUE(image.Save(file.path()));
    }
    EXPECT_FALSE(old.empty());
    EXPECT_TRUE(leavesNothingBehind(file.path()));
    if (!runsUnderWine()) {
        EXPECT_EQ(file.read(), old);
    }
}

TEST(Save, OverwritesAFolderNever)
{
    const TemporaryFile base(L"folder");
    const std::wstring folder = std::wstring(base.path()) + L".png";
    ASSERT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
    CVQDIB image(3, 3);
    EXPECT_TRUE(image.Save(folder.c_str()));
    EXPECT_TRUE(GetFileAttributesW(folder.c_str()) & FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_TRUE(leavesNothingBehind(folder.c_str()));
    RemoveDirectoryW(folder.c_str());
}

TEST(Save, TakesBothSeparators)
{
    const TemporaryFile base(L"separated");
    const FileBeside file(base, L".png");
    CVQDIB image(3, 3);
    for (const wchar_t* separator : {L"/", L"\\"}) {
        CString path(file.path());
        path.Replace(L"/", separator);
        path.Replace(L"\\", separator);
        EXPECT_TRUE(image.Save(path));
        EXPECT_TRUE(file.exists());
        DeleteFileW(file.path());
    }
}

TEST(Save, StoresNamesBeyondAscii)
{
    const TemporaryFile base(L"Gr\u00F6\u00DFe \u4E2D");
    const FileBeside file(base, L".png");
    CVQDIB image(3, 3);
    EXPECT_TRUE(image.Save(file.path()));
    EXPECT_TRUE(file.exists());
    CVQDIB loaded(file.path());
    EXPECT_EQ(loaded.GetWidth(), 3);
}

TEST(Save, PngKeepsEveryPixel)
{
    const TemporaryFile base(L"exact");
    const FileBeside file(base, L".png");
    CVQDIB image(33, 17);
    paintMixed(image);
    image.Save(file.path());
    CVQDIB loaded(file.path());
    EXPECT_EQ(loaded.GetWidth(), 33);
    if (runsUnderWine())
        paint(image, sturdyPixels(33 * 17, 3)); // GDI+ rounds partly transparent colours when it draws
    image.Save(file.path());
    loaded.Load(file.path());
    EXPECT_TRUE(shows(loaded, clearedWhereTransparent(pixels(image))));
}

TEST(Save, TiffKeepsEveryPixel)
{
    const TemporaryFile base(L"exact");
    const FileBeside file(base, L".tiff");
    CVQDIB image(33, 17);
    paint(image, sturdyPixels(33 * 17, 3));
    image.Save(file.path());
    CVQDIB loaded(file.path());
    EXPECT_TRUE(shows(loaded, pixels(image)));
}

TEST(Save, BmpKeepsColoursWith32BitsAPixel)
{
    const TemporaryFile base(L"bits");
    const FileBeside file(base, L".bmp");
    CVQDIB image(5, 3);
    fillRandom(image, 3);
    image.Save(file.path());
    CVQDIB loaded(file.path());
    EXPECT_TRUE(shows(loaded, opaque(pixels(image))));
    if (differsHere("bits of a saved BMP"))
        return;
    const FileContent bytes = file.read();
    EXPECT_EQ(bytes.at(28), 32);
    EXPECT_FALSE(loaded.LoadBMP(file.path())) << "the library's own reader takes 24 bits only";
}

/// The first quantisation table of a JPEG file, 64 bytes.
FileContent quantisation(const FileContent& jpeg)
{
    const std::string marker("\xFF\xDB\x00\x43\x00", 5);
    const std::string text = textOf(jpeg);
    const std::size_t at = text.find(marker);
    return at == std::string::npos ? FileContent()
                                   : FileContent(jpeg.begin() + static_cast<std::ptrdiff_t>(at + 5),
                                                 jpeg.begin() + static_cast<std::ptrdiff_t>(at + 69));
}

TEST(Save, JpegHasQuality100)
{
    const TemporaryFile base(L"quality");
    const FileBeside file(base, L".jpg");
    CVQDIB image(32, 32);
    fillRandom(image, 3);
    image.Save(file.path());
    if (differsHere("quality of a JPEG"))
        return;
    EXPECT_EQ(quantisation(file.read()), FileContent(64, 1)) << "every step of quality 100 is 1";
}

TEST(Save, JpegDropsAlpha)
{
    const TemporaryFile base(L"alpha");
    const FileBeside file(base, L".jpg");
    CVQDIB image(16, 16);
    image.Clear(BYTE{200}, BYTE{100}, BYTE{50}, BYTE{10});
    image.Save(file.path());
    CVQDIB loaded(file.path());
    const ULONG pixel = loaded.GetColor(8, 8);
    EXPECT_EQ(pixel >> 24, 255u);
    EXPECT_NEAR(static_cast<int>(pixel >> 16 & 0xFF), 200, 2);
    EXPECT_NEAR(static_cast<int>(pixel >> 8 & 0xFF), 100, 2);
    EXPECT_NEAR(static_cast<int>(pixel & 0xFF), 50, 2);
}

TEST(Save, GifKeepsTheColoursOfItsPalette)
{
    if (differsHere("GIF of a 32-bit picture"))
        return;
    const TemporaryFile base(L"palette");
    const FileBeside file(base, L".gif");
    CVQDIB image(4, 1);
    paint(image, {0xFF000000, 0xFFFFFFFF, 0xFFFF0000, 0xFF0000FF});
    image.Save(file.path());
    CVQDIB loaded(file.path());
    EXPECT_TRUE(shows(loaded, {0xFF000000, 0xFFFFFFFF, 0xFFFF0000, 0xFF0000FF}));
}

TEST(Save, MayReplaceTheFileThatTheImageCameFrom)
{
    const TemporaryFile base(L"again");
    const FileBeside file(base, L".png");
    CVQDIB image(3, 3);
    image.Clear(RGB(1, 2, 3));
    image.Save(file.path());
    CVQDIB loaded(file.path());
    loaded.Clear(RGB(4, 5, 6));
    loaded.Save(file.path());
    image.Load(file.path());
    EXPECT_EQ(image.GetColor(1, 1), 0xFF040506u);
}

TEST(EncoderClsid, FindsTheFiveFormats)
{
    const std::pair<const wchar_t*, DWORD> expected[] = {{L"image/bmp", kBmp},
                                                         {L"image/jpeg", kJpeg},
                                                         {L"image/gif", kGif},
                                                         {L"image/tiff", kTiff},
                                                         {L"image/png", kPng}};
    int index = 0;
    for (const auto& [mimeType, number] : expected) {
        CLSID clsid{};
        EXPECT_EQ(CVQDIB::GetEncoderClsid(mimeType, &clsid), index++);
        EXPECT_TRUE(clsid == encoderId(number));
    }
}

TEST(EncoderClsid, IsNotFoundWhenMemoryCannotHoldTheList)
{
    CLSID clsid = encoderId(42);
    const vq::platform::ScopedAllocationFailure noMemory;
    EXPECT_EQ(CVQDIB::GetEncoderClsid(L"image/png", &clsid), -1);
    EXPECT_TRUE(clsid == encoderId(42));
}

TEST(EncoderClsid, ComparesLetterByLetter)
{
    CLSID clsid = encoderId(42);
    for (const wchar_t* unknown : {L"image/PNG", L"image/png ", L"png", L"", L"image/webp"})
        EXPECT_EQ(CVQDIB::GetEncoderClsid(unknown, &clsid), -1);
    EXPECT_EQ(CVQDIB::GetEncoderClsid(nullptr, &clsid), -1);
    EXPECT_TRUE(clsid == encoderId(42));
    EXPECT_EQ(CVQDIB::GetEncoderClsid(L"image/png", nullptr), -1);
}

} // namespace
} // namespace vq::test
