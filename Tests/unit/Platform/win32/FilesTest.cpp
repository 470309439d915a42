// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vq::test::filesTests {
namespace {

constexpr DWORD kNone = INVALID_FILE_ATTRIBUTES;

/// A new folder below the one for temporary files, and files in it that go with the test.
class Files : public ::testing::Test
{
protected:
    Files()
    {
        wchar_t temporary[MAX_PATH];
        GetTempPathW(MAX_PATH, temporary);
        for (int number = 0; number < 1000 && folder.empty(); ++number) {
            const std::wstring name = std::wstring(temporary) + L"vq win32 \u00E9 " + std::to_wstring(number);
            if (CreateDirectoryW(name.c_str(), nullptr))
                folder = name;
        }
    }

    ~Files() override
    {
        for (const std::wstring& file : m_made) {
            SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
            if (!DeleteFileW(file.c_str()))
                RemoveDirectoryW(file.c_str());
        }
        EXPECT_TRUE(RemoveDirectoryW(folder.c_str()));
    }

    /// A path in the folder; what is there at the end is removed.
    std::wstring path(const wchar_t* name)
    {
        m_made.push_back(folder + L"\\" + name);
        return m_made.back();
    }

    std::wstring makeFile(const wchar_t* name, const char* content = "content")
    {
        const std::wstring file = path(name);
        std::FILE* stream = _wfopen(file.c_str(), L"wb");
        EXPECT_NE(stream, nullptr);
        std::fputs(content, stream);
        std::fclose(stream);
        return file;
    }

    static std::string contentOf(const std::wstring& file)
    {
        std::string content(100, '\0');
        std::FILE* stream = _wfopen(file.c_str(), L"rb");
        content.resize(stream ? std::fread(content.data(), 1, content.size(), stream) : 0);
        if (stream)
            std::fclose(stream);
        return content;
    }

    static DWORD attributesOf(const std::wstring& file) { return GetFileAttributesW(file.c_str()); }

    std::wstring folder;

private:
    std::vector<std::wstring> m_made;
};

template <typename Call>
DWORD errorOf(Call call)
{
    SetLastError(ERROR_SUCCESS);
    EXPECT_FALSE(call());
    return GetLastError();
}

TEST_F(Files, HaveAttributes)
{
    const std::wstring file = makeFile(L"a.txt");
    EXPECT_EQ(attributesOf(folder), DWORD{FILE_ATTRIBUTE_DIRECTORY});
    EXPECT_EQ(attributesOf(folder + L"/"), DWORD{FILE_ATTRIBUTE_DIRECTORY});
    EXPECT_EQ(attributesOf(file) & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY), 0u);
    EXPECT_NE(attributesOf(file), kNone);
}

TEST_F(Files, AreFoundUnderBothSeparators)
{
    makeFile(L"a.txt");
    EXPECT_NE(attributesOf(folder + L"/a.txt"), kNone);
    EXPECT_NE(attributesOf(folder + L"\\a.txt"), kNone);
}

TEST_F(Files, MissingOrOnAMissingWayAreToldApart)
{
    EXPECT_EQ(attributesOf(path(L"none")), kNone);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_EQ(attributesOf(path(L"none\\a.txt")), kNone);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_PATH_NOT_FOUND});
    EXPECT_EQ(attributesOf(makeFile(L"a.txt") + L"/b"), kNone);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_PATH_NOT_FOUND});
    EXPECT_EQ(attributesOf(L""), kNone);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_PATH_NOT_FOUND});
    EXPECT_EQ(GetFileAttributesW(nullptr), kNone);
}

TEST_F(Files, BecomeReadOnlyAndWritableAgain)
{
    const std::wstring file = makeFile(L"a.txt");
    EXPECT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY));
    EXPECT_TRUE(attributesOf(file) & FILE_ATTRIBUTE_READONLY);
    EXPECT_TRUE(SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL));
    EXPECT_FALSE(attributesOf(file) & FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(errorOf([&] { return SetFileAttributesW(path(L"none").c_str(), FILE_ATTRIBUTE_READONLY); }),
              DWORD{ERROR_FILE_NOT_FOUND});
}

TEST_F(Files, FoldersAreMadeOneAtATime)
{
    const std::wstring inner = path(L"inner");
    EXPECT_TRUE(CreateDirectoryW(inner.c_str(), nullptr));
    EXPECT_EQ(errorOf([&] { return CreateDirectoryW(inner.c_str(), nullptr); }), DWORD{ERROR_ALREADY_EXISTS});
    EXPECT_EQ(errorOf([&] { return CreateDirectoryW(path(L"x/y").c_str(), nullptr); }), DWORD{ERROR_PATH_NOT_FOUND});
    EXPECT_EQ(errorOf([&] { return CreateDirectoryW(makeFile(L"a.txt").c_str(), nullptr); }),
              DWORD{ERROR_ALREADY_EXISTS});
    EXPECT_EQ(errorOf([&] { return RemoveDirectoryW(folder.c_str()); }), DWORD{ERROR_DIR_NOT_EMPTY});
}

TEST_F(Files, AreDeletedUnlessTheyAreFoldersOrReadOnly)
{
    const std::wstring file = makeFile(L"a.txt");
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(errorOf([&] { return DeleteFileW(file.c_str()); }), DWORD{ERROR_ACCESS_DENIED});
    SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_TRUE(DeleteFileW(file.c_str()));
    EXPECT_EQ(attributesOf(file), kNone);
    EXPECT_EQ(errorOf([&] { return DeleteFileW(file.c_str()); }), DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_EQ(errorOf([&] { return DeleteFileW(folder.c_str()); }), DWORD{ERROR_ACCESS_DENIED});
}

TEST_F(Files, MoveToANewName)
{
    const std::wstring from = makeFile(L"from.txt", "new");
    const std::wstring to = path(L"to.txt");
    EXPECT_TRUE(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH));
    EXPECT_EQ(attributesOf(from), kNone);
    EXPECT_EQ(contentOf(to), "new");
    EXPECT_TRUE(MoveFileExW(to.c_str(), to.c_str(), 0));
    EXPECT_EQ(contentOf(to), "new");
}

TEST_F(Files, ReplaceOthersOnRequestOnly)
{
    const std::wstring from = makeFile(L"from.txt", "new");
    const std::wstring to = makeFile(L"to.txt", "old");
    EXPECT_EQ(errorOf([&] { return MoveFileExW(from.c_str(), to.c_str(), 0); }), DWORD{ERROR_ALREADY_EXISTS});
    EXPECT_EQ(contentOf(to), "old");

    EXPECT_TRUE(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
    EXPECT_EQ(contentOf(to), "new");
    EXPECT_EQ(attributesOf(from), kNone);
}

TEST_F(Files, StayWhereTheyAreWhenTheyCannotMove)
{
    const std::wstring from = makeFile(L"from.txt", "new");
    const std::wstring inner = path(L"inner");
    CreateDirectoryW(inner.c_str(), nullptr);
    EXPECT_EQ(errorOf([&] { return MoveFileExW(from.c_str(), inner.c_str(), MOVEFILE_REPLACE_EXISTING); }),
              DWORD{ERROR_ACCESS_DENIED});
    EXPECT_EQ(errorOf([&] { return MoveFileExW(from.c_str(), path(L"x/y").c_str(), MOVEFILE_REPLACE_EXISTING); }),
              DWORD{ERROR_PATH_NOT_FOUND});
    EXPECT_EQ(errorOf([&] { return MoveFileExW(path(L"none").c_str(), from.c_str(), MOVEFILE_REPLACE_EXISTING); }),
              DWORD{ERROR_FILE_NOT_FOUND});
    EXPECT_EQ(contentOf(from), "new");
}

TEST_F(Files, AreOpenedWithWideNames)
{
    const std::wstring file = makeFile(L"\u00E9\u20AC\u4E00.txt", "abc");
    EXPECT_EQ(contentOf(file), "abc");
    EXPECT_EQ(_wfopen(path(L"none").c_str(), L"rb"), nullptr);
    EXPECT_EQ(_wfopen(folder.c_str(), L"rb"), nullptr);
}

TEST(GetTempPath, TellsItsLengthAndEndsWithASeparator)
{
    wchar_t path[MAX_PATH]{};
    const DWORD length = GetTempPathW(MAX_PATH, path);
    EXPECT_EQ(length, std::wstring(path).size());
    EXPECT_TRUE(path[length - 1] == L'/' || path[length - 1] == L'\\');
    EXPECT_EQ(GetTempPathW(1, path), length + 1);
    EXPECT_EQ(GetTempPathW(0, nullptr), length + 1);
}

TEST(GetModuleFileName, NamesTheProgram)
{
    wchar_t path[1000]{};
    const DWORD length = GetModuleFileNameW(nullptr, path, 1000);
    EXPECT_EQ(length, std::wstring(path).size());
    EXPECT_NE(std::wstring(path).find(L"win32Tests"), std::wstring::npos);
    EXPECT_NE(GetFileAttributesW(path), kNone);

    wchar_t again[1000]{};
    EXPECT_EQ(GetModuleFileNameW(GetModuleHandleW(nullptr), again, 1000), length);
    EXPECT_STREQ(again, path);
}

TEST(GetModuleFileName, CutsWhatDoesNotFit)
{
    wchar_t path[1000]{};
    GetModuleFileNameW(nullptr, path, 1000);
    wchar_t cut[4]{L'#', L'#', L'#', L'#'};
    EXPECT_EQ(GetModuleFileNameW(nullptr, cut, 3), 3u);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INSUFFICIENT_BUFFER});
    EXPECT_EQ(std::wstring(cut, 2), std::wstring(path, 2));
    EXPECT_EQ(cut[3], L'#');
}

TEST(GetModuleHandleEx, FindsTheModuleOfAnAddress)
{
    static const int here = 0;
    constexpr DWORD kFlags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE module = nullptr;
    EXPECT_TRUE(GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(&here), &module));
    EXPECT_EQ(module, GetModuleHandleW(nullptr));

    int onTheStack = 0;
    EXPECT_FALSE(GetModuleHandleExW(kFlags, reinterpret_cast<LPCWSTR>(&onTheStack), &module));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_MOD_NOT_FOUND});
    EXPECT_EQ(module, nullptr);
}

} // namespace
} // namespace vq::test::filesTests
