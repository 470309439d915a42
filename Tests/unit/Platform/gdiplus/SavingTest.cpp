// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/GdiplusSession.h"
#include "parity/Encoders.h"
#include "parity/Pixels.h"

#include <filesystem>
#include <fstream>
#include <memory>

#include <sys/stat.h>
#include <unistd.h>

namespace vq::test {
namespace {

using namespace Gdiplus;
namespace fs = std::filesystem;

class Saving : public GdiplusTest
{
protected:
    Saving() : m_folder(fs::temp_directory_path() / ("vq_saving_" + std::to_string(::getpid())))
    {
        fs::create_directories(m_folder);
    }
    ~Saving() override
    {
        ::chmod(m_folder.c_str(), 0755);
        fs::remove_all(m_folder);
    }

    fs::path path(const char* name) const { return m_folder / name; }

    Status save(Bitmap& bitmap, const fs::path& file, DWORD encoder = kPng) const
    {
        const CLSID id = encoderId(encoder);
        return bitmap.Save(file.wstring().c_str(), &id, nullptr);
    }

    std::vector<std::string> files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(m_folder))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

private:
    fs::path m_folder;
};

TEST_F(Saving, OverTheFileThatThePictureCameFrom)
{
    TestPicture first(2, 1, {0xFF112233, 0xFF445566});
    ASSERT_EQ(save(first.bitmap, path("a.png")), Ok);
    Bitmap loaded(path("a.png").wstring().c_str());
    loaded.SetPixel(0, 0, Color(0xFFABCDEF));
    EXPECT_EQ(save(loaded, path("a.png")), Ok);
    Bitmap again(path("a.png").wstring().c_str());
    EXPECT_EQ(TestPicture::pixelsOf(again), row({0xFFABCDEF, 0xFF445566}));
    EXPECT_EQ(files(), std::vector<std::string>{"a.png"});
}

TEST_F(Saving, KeepsPermissionsAndFollowsLinks)
{
    TestPicture picture(1, 1, 0xFF112233);
    std::ofstream(path("target")) << "old";
    ::chmod(path("target").c_str(), 0640);
    fs::create_symlink(path("target"), path("link"));
    EXPECT_EQ(save(picture.bitmap, path("link")), Ok);
    EXPECT_TRUE(fs::is_symlink(path("link")));
    EXPECT_EQ(fs::status(path("target")).permissions(), fs::perms{0640});
    EXPECT_GT(fs::file_size(path("target")), 3u);
}

TEST_F(Saving, LeavesReadOnlyFilesAndFoldersAlone)
{
    TestPicture picture(1, 1, 0xFF112233);
    std::ofstream(path("kept")) << "old";
    ::chmod(path("kept").c_str(), 0444);
    fs::create_directory(path("folder"));
    EXPECT_EQ(save(picture.bitmap, path("kept")), GenericError);
    EXPECT_EQ(save(picture.bitmap, path("folder")), GenericError);
    EXPECT_EQ(save(picture.bitmap, path("missing") / "a.png"), GenericError);
    EXPECT_EQ(fs::file_size(path("kept")), 3u);
    EXPECT_EQ(files(), (std::vector<std::string>{"folder", "kept"}));
}

TEST_F(Saving, NamesLeftBehindByACrashAreNoHindrance)
{
    TestPicture picture(1, 1, 0xFF112233);
    std::ofstream(path("a.png.new0")) << "left behind";
    EXPECT_EQ(save(picture.bitmap, path("a.png")), Ok);
    EXPECT_EQ(files(), (std::vector<std::string>{"a.png", "a.png.new0"}));
    EXPECT_EQ(fs::file_size(path("a.png.new0")), 11u);
}

TEST_F(Saving, PathsMayHaveBackslashesAndAnyLetters)
{
    TestPicture picture(1, 1, 0xFF112233);
    const CLSID png = encoderId(kPng);
    const std::wstring name = path("").wstring() + L"\\Pr\u00fcfung \u6e2c.png";
    EXPECT_EQ(picture.bitmap.Save(name.c_str(), &png, nullptr), Ok);
    EXPECT_EQ(Bitmap(name.c_str()).GetLastStatus(), Ok);
    EXPECT_EQ(files().size(), 1u);
}

TEST_F(Saving, EveryEncoderWritesWhatItsDecoderReads)
{
    TestPicture picture(2, 2, 0xFF808080);
    for (const DWORD encoder : {kBmp, kJpeg, kGif, kTiff, kPng}) {
        ASSERT_EQ(save(picture.bitmap, path("picture"), encoder), Ok) << encoder;
        Bitmap loaded(path("picture").wstring().c_str());
        EXPECT_EQ(loaded.GetLastStatus(), Ok) << encoder;
        for (const Argb pixel : TestPicture::pixelsOf(loaded))
            EXPECT_THAT(pixel, Near(0xFF808080, 2)) << encoder;
    }
}

/// A stream whose every call fails.
class BrokenStream final : public IStream
{
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE Read(void*, ULONG, ULONG*) override { return STG_E_READFAULT; }
    HRESULT STDMETHODCALLTYPE Write(const void*, ULONG, ULONG*) override { return STG_E_MEDIUMFULL; }
    HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override { return m_seek; }
    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER) override { return E_FAIL; }
    HRESULT STDMETHODCALLTYPE CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override
    {
        return E_FAIL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return E_FAIL; }
    HRESULT STDMETHODCALLTYPE Revert() override { return E_FAIL; }
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_FAIL; }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_FAIL; }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_FAIL; }
    HRESULT STDMETHODCALLTYPE Clone(IStream**) override { return E_FAIL; }

    HRESULT m_seek = E_FAIL;
};

TEST_F(Saving, FailingStreamsFailTheCall)
{
    TestPicture picture(1, 1);
    BrokenStream stream;
    const CLSID png = encoderId(kPng);
    EXPECT_EQ(picture.bitmap.Save(&stream, &png, nullptr), GenericError);
    EXPECT_EQ(Bitmap(&stream).GetLastStatus(), InvalidParameter);
    stream.m_seek = S_OK;
    EXPECT_EQ(Bitmap(&stream).GetLastStatus(), InvalidParameter);
}

TEST_F(Saving, QualityOutOfRangeOrOfAnotherTypeIsHarmless)
{
    TestPicture picture(8, 8, 0xFF336699);
    const CLSID jpeg = encoderId(kJpeg);
    for (LONG quality : {-5, 1000, std::numeric_limits<LONG>::min()}) {
        EncoderParameters parameters{1, {{EncoderQuality, 1, EncoderParameterValueTypeLong, &quality}}};
        const MemoryStream stream;
        EXPECT_EQ(picture.bitmap.Save(stream.get(), &jpeg, &parameters), Ok) << quality;
        parameters.Parameter[0].Type = EncoderParameterValueTypeASCII;
        EXPECT_EQ(picture.bitmap.Save(stream.get(), &jpeg, &parameters), Ok);
        parameters.Parameter[0].Value = nullptr;
        EXPECT_EQ(picture.bitmap.Save(stream.get(), &jpeg, &parameters), Ok);
        parameters.Count = 0;
        EXPECT_EQ(picture.bitmap.Save(stream.get(), &jpeg, &parameters), Ok);
    }
}

} // namespace
} // namespace vq::test
