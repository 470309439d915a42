// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQProcess.h"
#include "vqCommonBase/VQShellAPI.h"

#include <gtest/gtest.h>

namespace vq::test {
namespace {

TEST(CVQProcess, StartsInTheFolderOfTheProgram)
{
    wchar_t program[1000] = {};
    ASSERT_GT(GetModuleFileNameW(nullptr, program, 1000), 0u);
    const CString folder = CVQProcess::GetBootPath();
    EXPECT_TRUE(CVQShellAPI::IsPathExist(folder));
    EXPECT_EQ(CString(program).Left(folder.GetLength()), folder);
    EXPECT_EQ(CString(program).Mid(folder.GetLength() + 1).FindOneOf(L"\\/"), -1);
}

TEST(CVQProcess, KnowsAFolderForDocuments)
{
    EXPECT_TRUE(CVQShellAPI::IsPathExist(CVQProcess::GetMyDocumentPath(true)));
    EXPECT_EQ(CVQProcess::GetMyDocumentPath(false), CVQProcess::GetMyDocumentPath(true));
}

TEST(CVQProcess, TakesFoldersFromItsHost)
{
    const CString boot = CVQProcess::GetBootPath();
    const CString documents = CVQProcess::GetMyDocumentPath(false);
    CVQProcess::SetBootPath(L"/a\u00E9");
    CVQProcess::SetMyDocumentPath(L"C:\\b");
    EXPECT_EQ(CVQProcess::GetBootPath(), L"/a\u00E9");
    EXPECT_EQ(CVQProcess::GetMyDocumentPath(false), L"C:\\b");
    EXPECT_EQ(CVQProcess::GetMyDocumentPath(true), L"C:\\b");
    CVQProcess::SetBootPath(L"");
    CVQProcess::SetMyDocumentPath(L"");
    EXPECT_EQ(CVQProcess::GetBootPath(), boot);
    EXPECT_EQ(CVQProcess::GetMyDocumentPath(false), documents);
}

} // namespace
} // namespace vq::test
