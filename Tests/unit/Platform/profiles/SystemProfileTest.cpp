// SPDX-License-Identifier: MIT
// The system's own functions and ours read each other's files.
#include "Platform/ProfileFile.h"

#include "support/TemporaryFolder.h"

namespace vq::test {
namespace {

using platform::ProfileFile;

class SystemProfiles : public testing::Test
{
protected:
    std::wstring bySystem(LPCWSTR section, LPCWSTR key) const
    {
        wchar_t text[300] = {};
        GetPrivateProfileStringW(section, key, L"(none)", text, static_cast<DWORD>(std::size(text)), m_path.c_str());
        return text;
    }

    const TemporaryFolder m_folder{L"system"};
    const std::wstring m_path = m_folder / L"profile.kpf";
};

const std::vector<std::wstring> kTexts{L"1", L"a b", L" a ", L"\"a\"", L"a;b", L"\u00E9", L"\u4E2D", L"a=b=c", L"[x]"};

TEST_F(SystemProfiles, ReadWhatWeSave)
{
    for (const std::wstring& text : kTexts) {
        ProfileFile file(m_path.c_str());
        ASSERT_TRUE(file.setValue(L"<A>", L"<X>", text));
        ASSERT_TRUE(file.setValue(L"DPM_BODY", L"<Shiness>", text));
        ASSERT_TRUE(file.save());
        EXPECT_EQ(bySystem(L"<A>", L"<X>"), text);
        EXPECT_EQ(bySystem(L"dpm_body", L"<shiness>"), text);
    }
}

TEST_F(SystemProfiles, WriteWhatWeRead)
{
    writeBytes(m_path, "\xFF\xFE"); // so that it stores all characters
    for (const std::wstring& text : kTexts) {
        ASSERT_TRUE(WritePrivateProfileStringW(L"<A>", L"<X>", (L"\"" + text + L"\"").c_str(), m_path.c_str()));
        ASSERT_TRUE(WritePrivateProfileStringW(L"B", L"Y", text.c_str(), m_path.c_str()));
        WritePrivateProfileStringW(nullptr, nullptr, nullptr, m_path.c_str()); // to the disk
        const ProfileFile file(m_path.c_str());
        EXPECT_EQ(file.value(L"<A>", L"<X>"), text);
        EXPECT_EQ(file.value(L"B", L"Y"), bySystem(L"B", L"Y"));
    }
}

TEST_F(SystemProfiles, SeeTheSameInTheSameText)
{
    for (const char* const text :
         {"[s]\r\nk=1\r\n", "[s]\nk=1\n", "; c\r\n[ s ]\r\n k = 1 \r\n", "k=0\r\n[s]\r\nk=\"1\"\r\n",
          "[s]\r\nk='1'\r\nk=2\r\n", "[S]\r\nK=1\r\n[s]\r\nk=2\r\n", "[s]\r\n\r\n;k=0\r\nk=1"}) {
        writeBytes(m_path, text);
        WritePrivateProfileStringW(nullptr, nullptr, nullptr, m_path.c_str()); // forget what was read before
        EXPECT_EQ(bySystem(L"s", L"k"), L"1") << text;
        EXPECT_EQ(ProfileFile(m_path.c_str()).value(L"s", L"k"), L"1") << text;
    }
}

} // namespace
} // namespace vq::test
