// SPDX-License-Identifier: MIT
#include "Platform/win32/Errors.h"
#include "Platform/win32/Files.h"
#include "Platform/win32/Modules.h"
#include "Platform/win32/Strings.h"

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using vq::win32::fromUtf8;
using vq::win32::nativePath;

/// A new folder below the one for temporary files; what is in it goes with the test.
class NativeFiles : public ::testing::Test
{
protected:
    ~NativeFiles() override { EXPECT_EQ(std::system(("rm -rf '" + folder + "'").c_str()), 0); }

    static std::string makeFolder()
    {
        std::string name = "/tmp/vq-win32-XXXXXX";
        return mkdtemp(name.data());
    }

    std::string makeFile(const char* name, mode_t mode)
    {
        const std::string path = folder + "/" + name;
        std::FILE* file = std::fopen(path.c_str(), "wb");
        std::fputs(name, file);
        std::fclose(file);
        chmod(path.c_str(), mode);
        return path;
    }

    static mode_t modeOf(const std::string& path)
    {
        struct stat status
        {
        };
        EXPECT_EQ(stat(path.c_str(), &status), 0);
        return status.st_mode & 0777;
    }

    const std::string folder = makeFolder();
};

TEST_F(NativeFiles, AreReadOnlyWhenNobodyMayWriteThem)
{
    EXPECT_EQ(GetFileAttributesW(fromUtf8(makeFile("a", 0444)).c_str()), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(GetFileAttributesW(fromUtf8(makeFile("b", 0464)).c_str()), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(NativeFiles, LoseAndRegainWritePermissionsAndNoOthers)
{
    const std::string path = makeFile("a", 0765);
    const std::wstring wide = fromUtf8(path);
    EXPECT_TRUE(SetFileAttributesW(wide.c_str(), FILE_ATTRIBUTE_HIDDEN));
    EXPECT_EQ(modeOf(path), 0765u);
    EXPECT_TRUE(SetFileAttributesW(wide.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(modeOf(path), 0545u);
    EXPECT_TRUE(SetFileAttributesW(wide.c_str(), FILE_ATTRIBUTE_NORMAL));
    EXPECT_EQ(modeOf(path), 0745u);
    EXPECT_TRUE(SetFileAttributesW(fromUtf8(folder).c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(modeOf(folder), 0700u); // a folder that cannot be written to would keep files out
}

TEST_F(NativeFiles, HaveTheSameNamesUnderEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C", "C.UTF-8", "POSIX"}) {
        std::setlocale(LC_ALL, locale);
        const std::wstring wide = fromUtf8(folder) + L"\\\u00E9\u20AC";
        std::FILE* file = _wfopen(wide.c_str(), L"wb");
        ASSERT_NE(file, nullptr);
        std::fclose(file);
        EXPECT_EQ(access((folder + "/\xC3\xA9\xE2\x82\xAC").c_str(), F_OK), 0) << locale;
        EXPECT_TRUE(DeleteFileW(wide.c_str()));
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(NativeFiles, AreOpenedInAnyModeThatWindowsKnows)
{
    const std::wstring path = fromUtf8(folder) + L"/a.txt";
    for (const wchar_t* mode : {L"wt", L"w+b", L"w, ccs=UTF-16LE", L"ab", L"rt", L"r+"}) {
        std::FILE* file = _wfsopen(path.c_str(), mode, _SH_DENYNO);
        ASSERT_NE(file, nullptr);
        std::fclose(file);
    }
    EXPECT_EQ(_wfopen(path.c_str(), L""), nullptr);
    EXPECT_EQ(_wfopen(nullptr, L"r"), nullptr);
    EXPECT_EQ(_wfopen(path.c_str(), nullptr), nullptr);
}

TEST_F(NativeFiles, ReplaceNoFileThatIsReadOnly)
{
    const std::wstring from = fromUtf8(makeFile("from", 0644));
    const std::wstring to = fromUtf8(makeFile("to", 0444));
    EXPECT_FALSE(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING));
    EXPECT_EQ(GetLastError(), ERROR_ACCESS_DENIED);
    EXPECT_FALSE(MoveFileExW(from.c_str(), nullptr, MOVEFILE_REPLACE_EXISTING));
    EXPECT_FALSE(MoveFileExW(nullptr, to.c_str(), MOVEFILE_REPLACE_EXISTING));
}

TEST(NativePath, TakesBothSeparatorsAndLeavesDriveLettersAlone)
{
    EXPECT_EQ(nativePath(L"a\\b/c\\"), "a/b/c/");
    EXPECT_EQ(nativePath(L"C:\\data\\\u00E9.png"), "C:/data/\xC3\xA9.png");
    EXPECT_EQ(nativePath(L""), "");
    EXPECT_EQ(nativePath(nullptr), "");
}

TEST(GetModuleFileName, TerminatesWhatItCuts)
{
    wchar_t cut[4]{L'#', L'#', L'#', L'#'};
    EXPECT_EQ(GetModuleFileNameW(nullptr, cut, 3), 3u);
    EXPECT_EQ(cut[2], 0);
    EXPECT_EQ(GetModuleFileNameW(nullptr, nullptr, 0), 0u);
    EXPECT_EQ(GetModuleFileNameW(reinterpret_cast<HMODULE>(&cut), cut, 4), 0u);
    EXPECT_EQ(GetLastError(), ERROR_MOD_NOT_FOUND);
}

} // namespace
