// SPDX-License-Identifier: MIT
#include "FileSupport.h"
#include "support/ImageAccess.h"
#include "support/Locks.h"

namespace vq::test {
namespace {

/// A PNG file of a picture, with the resolution given.
class PngFile
{
public:
    PngFile(LONG width, const Pixels& content, Gdiplus::REAL dpi = 96) : m_file(L"load.png")
    {
        const LONG height = static_cast<LONG>(content.size()) / width;
        Gdiplus::Bitmap bitmap(width, height, PixelFormat32bppARGB);
        for (std::size_t i = 0; i < content.size(); ++i)
            bitmap.SetPixel(static_cast<INT>(i) % width, static_cast<INT>(i) / width, Gdiplus::Color(content[i]));
        bitmap.SetResolution(dpi, dpi);
        const CLSID png = encoderId(kPng);
        EXPECT_EQ(bitmap.Save(m_file.path(), &png, nullptr), Gdiplus::Ok);
    }
    const wchar_t* path() const { return m_file.path(); }

private:
    TemporaryFile m_file;
};

TEST(Load, TakesThePicture)
{
    const PngFile file(2, {0xFF102030, 0xFF405060, 0xFF708090, 0xFFFFFFFF, 0xFF000000, 0x00000000});
    CVQDIB image(7, 7);
    EXPECT_TRUE(image.Load(file.path()));
    EXPECT_EQ(image.GetWidth(), 2);
    EXPECT_EQ(image.GetHeight(), 3);
    EXPECT_TRUE(shows(image, {0xFF102030, 0xFF405060, 0xFF708090, 0xFFFFFFFF, 0xFF000000, 0x00000000}));
}

TEST(Load, KeepsStraightColoursWhereverAlphaIsNotZero)
{
    const PngFile file(4, {0x01FF00FF, 0x80123456, 0xFE010203, 0x00FF00FF});
    CVQDIB image(file.path());
    EXPECT_EQ(image.GetColor(3, 0), 0u);
    if (!runsUnderWine()) { // GDI+ draws through premultiplied colours
        EXPECT_TRUE(shows(image, {0x01FF00FF, 0x80123456, 0xFE010203, 0x00000000}));
    }
}

TEST(Load, NeverResamplesByTheResolution)
{
    Pixels stripes(40);
    for (std::size_t i = 0; i < stripes.size(); ++i)
        stripes[i] = i % 2 ? 0xFFFFFFFF : 0xFF000000;
    for (const Gdiplus::REAL dpi : {96.0f, 72.0f, 300.0f, 1.0f}) {
        const PngFile file(40, stripes, dpi);
        CVQDIB image(file.path());
        EXPECT_TRUE(shows(image, stripes)) << dpi;
        CVQDIB overBackground(file.path(), RGB(9, 9, 9), 255);
        EXPECT_TRUE(shows(overBackground, stripes)) << dpi;
    }
}

TEST(Load, OfAMissingFileIsFalseAndChangesNothing)
{
    const TemporaryFile missing(L"missing.png");
    CVQDIB image(3, 2);
    image.Clear(RGB(1, 2, 3));
    EXPECT_FALSE(image.Load(missing.path()));
    EXPECT_FALSE(image.Load(L""));
    EXPECT_EQ(image.Load(missing.path(), 0, 0), 0);
    EXPECT_EQ(image.Load(L"", 0, 0), 0);
    EXPECT_TRUE(shows(image, Pixels(6, 0xFF010203)));
}

TEST(Load, OfAFileThatIsNoPictureIsTrueAndLeavesOneClearPixel)
{
    const TemporaryFile text(L"text.png");
    text.write("This is no picture.\n");
    CVQDIB image(3, 2);
    EXPECT_TRUE(image.Load(text.path()));
    EXPECT_EQ(image.GetWidth(), 1);
    EXPECT_TRUE(shows(image, {0}));

    CVQDIB empty(L"");
    EXPECT_FALSE(empty.GetBitmap());
    EXPECT_TRUE(empty.Load(text.path()));
    EXPECT_TRUE(shows(empty, {0}));
}

TEST(Load, OfAFolderOrAnEmptyFileLeavesOneClearPixel)
{
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    CVQDIB image(3, 2);
    EXPECT_TRUE(image.Load(folder));
    EXPECT_TRUE(shows(image, {0}));
    const TemporaryFile nothing(L"nothing");
    nothing.write("");
    EXPECT_TRUE(image.Load(nothing.path()));
    EXPECT_TRUE(shows(image, {0}));
}

TEST(Load, OfAPictureThatMemoryCannotHoldLeavesOneClearPixel)
{
    const PngFile file(2, Pixels(6, 0xFF102030));
    if (runsUnderWine())
        return; // GDI+ has memory of its own
    for (int allowed = 0; allowed < 12; ++allowed) {
        CVQDIB image(3, 2);
        {
            const vq::platform::ScopedAllocationFailure noMemory(allowed);
            EXPECT_TRUE(image.Load(file.path()));
        }
        EXPECT_TRUE(image.GetSize() == 0 || image.GetSize() == 1 || image.GetSize() == 6) << allowed;
        if (image.GetSize() == 6) {
            EXPECT_TRUE(shows(image, Pixels(6, 0xFF102030)));
        }
    }
}

TEST(Load, LeavesTheSettingsOfTheGraphics)
{
    const PngFile file(2, Pixels(6, 0xFF102030));
    CVQDIB image(file.path());
    EXPECT_EQ(image.GetGraphics()->GetCompositingMode(), Gdiplus::CompositingModeSourceOver);
    EXPECT_NE(image.GetGraphics()->GetCompositingQuality(), Gdiplus::CompositingQualityHighQuality);
    image.Load(file.path(), 0, 0);
    EXPECT_NE(image.GetGraphics()->GetCompositingQuality(), Gdiplus::CompositingQualityHighQuality);
}

TEST(Load, KeepsWhatBelongsToText)
{
    const PngFile file(2, Pixels(6, 0xFF102030));
    CVQDIB image(1, 1);
    VQTestAccess::shadowX(image) = 5;
    VQTestAccess::flags(image) = 1;
    image.Load(file.path());
    EXPECT_EQ(VQTestAccess::shadowX(image), 5);
    EXPECT_EQ(VQTestAccess::flags(image), 1u);
}

TEST(LoadOverBackground, ShowsItWhereThePictureIsTransparent)
{
    const PngFile file(3, {0x00000000, 0xFF102030, 0x00FFFFFF});
    CVQDIB image(1, 1);
    EXPECT_EQ(image.Load(file.path(), RGB(1, 2, 3), 77), 1);
    EXPECT_TRUE(shows(image, {0x4D010203, 0xFF102030, 0x4D010203}));
}

TEST(LoadOverBackground, TakesAlphaModulo256AndIgnoresTheTopByteOfTheColour)
{
    const PngFile file(1, {0x00000000});
    CVQDIB image(file.path(), 0xFF000000u | RGB(1, 2, 3), 256 + 16);
    EXPECT_TRUE(shows(image, {0x10010203}));
    image.Load(file.path(), RGB(1, 2, 3), -1);
    EXPECT_TRUE(shows(image, {0xFF010203}));
}

TEST(LoadOverBackground, BlendsInLinearLight)
{
    if (differsHere("linear light"))
        return;
    const PngFile file(1, {0x80FFFFFF});
    CVQDIB image(file.path(), RGB(0, 0, 0), 255);
    // Half of the light of white is 188, where half of its number would be 128.
    EXPECT_NEAR(static_cast<int>(image.GetColor(0, 0) & 0xFF), 188, 1);
}

TEST(LoadOverBackground, OfAFileThatIsNoPictureIsOnePixelOfBackground)
{
    const TemporaryFile text(L"text.png");
    text.write("This is no picture.\n");
    CVQDIB image(3, 3);
    EXPECT_EQ(image.Load(text.path(), RGB(1, 2, 3), 255), 1);
    EXPECT_TRUE(shows(image, {0xFF010203}));
}

TEST(Load, WaitsForTheImagesLockAndSavingDoesNot)
{
    const PngFile file(2, Pixels(6, 0xFF102030));
    CVQDIB image(1, 1);
    const TemporaryFile base(L"locked");
    const FileBeside saved(base, L".png");
    EXPECT_TRUE(waitsForTheLock([&] { image.Load(file.path()); }));
    EXPECT_TRUE(waitsForTheLock([&] { image.Load(file.path(), 0, 0); }));
    EXPECT_TRUE(finishesWhileLocked(std::chrono::seconds(5), [&] { image.Save(saved.path()); }));
}

TEST(Load, LooksForTheFileBeforeItTakesTheLockAndOverABackgroundAfterwards)
{
    const TemporaryFile missing(L"missing.png");
    CVQDIB image(1, 1);
    EXPECT_TRUE(finishesWhileLocked(std::chrono::seconds(5), [&] { image.Load(missing.path()); }));
    EXPECT_TRUE(waitsForTheLock([&] { image.Load(missing.path(), 0, 0); }));
}

TEST(Load, TakesBothSeparators)
{
    const PngFile file(1, {0xFF102030});
    for (const wchar_t* separator : {L"/", L"\\"}) {
        CString path(file.path());
        path.Replace(L"/", separator);
        path.Replace(L"\\", separator);
        CVQDIB image(2, 2);
        EXPECT_TRUE(image.Load(path));
        EXPECT_TRUE(shows(image, {0xFF102030}));
        CVQDIB overBackground(2, 2);
        EXPECT_EQ(overBackground.Load(path, RGB(1, 2, 3), 255), 1);
        EXPECT_TRUE(shows(overBackground, {0xFF102030}));
    }
}

TEST(Load, AppliesTheImagesSettingsToItsNewGraphics)
{
    const PngFile file(2, Pixels(6, 0xFF102030));
    CVQDIB image(1, 1);
    image.EnableAntialias(false);
    for (const bool overBackground : {false, true}) {
        EXPECT_TRUE(overBackground ? image.Load(file.path(), 0, 0) == 1 : image.Load(file.path()));
        EXPECT_FALSE(image.IsEnableAntialias());
        EXPECT_EQ(image.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeNone);
        EXPECT_EQ(image.GetGraphics()->GetTextRenderingHint(), VQTestAccess::renderingHint());
        EXPECT_EQ(image.GetGraphics()->GetCompositingMode(), Gdiplus::CompositingModeSourceOver);
    }
}

TEST(FileConstructors, LoadOrStayEmpty)
{
    const PngFile file(1, {0xFF102030});
    CVQDIB loaded{CString(file.path())};
    EXPECT_TRUE(shows(loaded, {0xFF102030}));
    const TemporaryFile missing(L"missing");
    CVQDIB empty{CString(missing.path())};
    EXPECT_EQ(empty.GetSize(), 0);
    EXPECT_FALSE(empty.GetGraphics());
    CVQDIB emptyToo(missing.path(), RGB(1, 2, 3), 255);
    EXPECT_EQ(emptyToo.GetSize(), 0);
}

} // namespace
} // namespace vq::test
