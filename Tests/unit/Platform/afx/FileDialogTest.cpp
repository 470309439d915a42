// SPDX-License-Identifier: MIT
#include "Platform/afx/FileDialog.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace vq::test {
namespace {

using afx::FileDialogRequest;

/// Answers dialogs while it lives, and notes the last request.
class Provider
{
public:
    explicit Provider(const CString& answer)
    {
        afx::setFileDialogProvider([this, answer](const FileDialogRequest& request) {
            last = request;
            return answer;
        });
    }
    ~Provider() { afx::setFileDialogProvider({}); }
    Provider(const Provider&) = delete;
    Provider& operator=(const Provider&) = delete;

    std::optional<FileDialogRequest> last;
};

constexpr DWORD kFlags = OFN_FILEMUSTEXIST | OFN_LONGNAMES;
constexpr const wchar_t* kFilter = L"Texts(*.txt)|*.txt|All Files (*.*)|*.*||";

TEST(FileDialog, AsksTheProvider)
{
    Provider provider(L"C:\\folder.d\\name.kmt");
    CFileDialog dialog(TRUE, L".kmt", L"first.kmt", kFlags, kFilter);
    ASSERT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), L"C:\\folder.d\\name.kmt");
    EXPECT_EQ(dialog.GetFileName(), L"name.kmt");
    EXPECT_EQ(dialog.GetFileTitle(), L"name");
    EXPECT_EQ(dialog.GetFileExt(), L"kmt");
    EXPECT_TRUE(provider.last->opensFile);
    EXPECT_EQ(provider.last->defaultExtension, L".kmt");
    EXPECT_EQ(provider.last->fileName, L"first.kmt");
    EXPECT_EQ(provider.last->filter, kFilter);
    EXPECT_EQ(provider.last->flags & kFlags, kFlags);
}

TEST(FileDialog, IsCancelledByAnEmptyPath)
{
    Provider provider(L"");
    CFileDialog dialog(FALSE, nullptr, L"first");
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetPathName(), L"first");
    EXPECT_FALSE(provider.last->opensFile);
    EXPECT_EQ(dialog.GetFileExt(), L"");
}

TEST(FileDialog, TakesLongPathsIntoABufferOfItsCaller)
{
    const std::wstring path = L"/" + std::wstring(1000, L'x');
    const Provider provider(path.c_str());
    CFileDialog small(TRUE);
    EXPECT_EQ(small.DoModal(), IDCANCEL);
    EXPECT_EQ(small.GetPathName(), L"");

    std::wstring buffer(16384, L'\0');
    CFileDialog large(TRUE);
    large.m_ofn.lpstrFile = buffer.data();
    large.m_ofn.nMaxFile = static_cast<DWORD>(buffer.size());
    EXPECT_EQ(large.DoModal(), IDOK);
    EXPECT_EQ(large.GetPathName(), path.c_str());
}

TEST(FileDialog, BeginsWithAsMuchOfANameAsFits)
{
    const CFileDialog dialog(TRUE, nullptr, std::wstring(1000, L'x').c_str());
    EXPECT_EQ(dialog.GetPathName().GetLength(), MAX_PATH - 1);
}

TEST(FileDialog, HasItsFilterAsTheSystemTakesIt)
{
    const CFileDialog dialog(TRUE, nullptr, nullptr, 0, L"A|*.a|B|*.b||");
    const std::wstring expected(L"A\0*.a\0B\0*.b\0\0", 14);
    EXPECT_EQ(std::wstring(dialog.m_ofn.lpstrFilter, expected.size()), expected);
    EXPECT_EQ(CFileDialog(TRUE).m_ofn.lpstrFilter, nullptr);
}

} // namespace
} // namespace vq::test
