// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQFileAPI.h"
#include "vqCommonBase/VQShellAPI.h"

#include "parity/Encoders.h"

namespace vq::test {
namespace {

TEST(FileApi, OpensFilesToWriteAndToRead)
{
    const TemporaryFile file(L"opened");
    for (const int share : {0, _SH_DENYNO}) {
        std::FILE* out = CVQFileAPI::Instance()->Open(file.path(), L"wb", share);
        ASSERT_TRUE(out);
        EXPECT_NE(std::fputc('x', out), EOF);
        CVQFileAPI::Close(out);
        std::FILE* in = CVQFileAPI::Instance()->Open(file.path(), L"rb", share);
        ASSERT_TRUE(in);
        EXPECT_EQ(std::fgetc(in), 'x');
        CVQFileAPI::Close(in);
    }
}

TEST(FileApi, TakesBothSeparators)
{
    const TemporaryFile file(L"separated");
    file.write("x");
    CString path(file.path());
    for (const wchar_t* separator : {L"/", L"\\"}) {
        path.Replace(L"/", separator);
        path.Replace(L"\\", separator);
        std::FILE* in = CVQFileAPI::Instance()->Open(path, L"rb");
        EXPECT_TRUE(in);
        CVQFileAPI::Close(in);
    }
}

TEST(FileApi, GivesNullForWhatCannotBeOpened)
{
    const TemporaryFile missing(L"missing");
    EXPECT_FALSE(CVQFileAPI::Instance()->Open(missing.path(), L"rb"));
    EXPECT_FALSE(CVQFileAPI::Instance()->Open(L"", L"wb"));
    EXPECT_FALSE(CVQFileAPI::Instance()->Open(missing.path(), nullptr));
    EXPECT_FALSE(CVQFileAPI::Instance()->Open(missing.path(), L""));
    CVQFileAPI::Close(nullptr);
    EXPECT_EQ(CVQFileAPI::Instance(), CVQFileAPI::Instance());
}

TEST(ShellApi, TellsWhetherAPathExists)
{
    const TemporaryFile file(L"exists");
    EXPECT_FALSE(CVQShellAPI::IsPathExist(file.path()));
    file.write("");
    EXPECT_TRUE(CVQShellAPI::IsPathExist(file.path()));
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    EXPECT_TRUE(CVQShellAPI::IsPathExist(folder));
    EXPECT_FALSE(CVQShellAPI::IsPathExist(L""));
}

} // namespace
} // namespace vq::test
