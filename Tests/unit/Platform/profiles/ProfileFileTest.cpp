// SPDX-License-Identifier: MIT
#include "Platform/ProfileFile.h"

#include "support/TemporaryFolder.h"

#include <clocale>

namespace vq::test {
namespace {

using platform::ProfileFile;

/// A name, so that an empty text can be told from none.
constexpr const wchar_t* kNone = L"(none)";

std::wstring valueOf(const std::wstring& path, LPCWSTR section, LPCWSTR key)
{
    return ProfileFile(path.c_str()).value(section, key).value_or(kNone);
}

bool store(const std::wstring& path, LPCWSTR section, LPCWSTR key, const std::wstring& value)
{
    ProfileFile file(path.c_str());
    return file.setValue(section, key, value) && file.save();
}

class ProfileFiles : public testing::Test
{
protected:
    /// The value of [s] k= in a file of these bytes.
    std::wstring readIn(std::string_view bytes) const
    {
        writeBytes(m_path, bytes);
        return valueOf(m_path, L"s", L"k");
    }

    const TemporaryFolder m_folder{L"Pr\u00E9f\u00E9rences \u4E2D"};
    const std::wstring m_path = m_folder / L"profile.kpf";
};

TEST_F(ProfileFiles, GiveBackWhatWasSaved)
{
    ASSERT_TRUE(store(m_path, L"<DPC>", L"DPC_GRID", L"4294967295"));
    ASSERT_TRUE(store(m_path, L"DPC_LIGHT0POS", L"<X>", L"0.5"));
    EXPECT_EQ(valueOf(m_path, L"<DPC>", L"DPC_GRID"), L"4294967295");
    EXPECT_EQ(valueOf(m_path, L"DPC_LIGHT0POS", L"<X>"), L"0.5");
    EXPECT_EQ(valueOf(m_path, L"<DPC>", L"<X>"), kNone);
    EXPECT_EQ(valueOf(m_path, L"none", L"<X>"), kNone);
}

TEST_F(ProfileFiles, AreEmptyWhereThereIsNone)
{
    EXPECT_EQ(valueOf(m_path, L"s", L"k"), kNone);
    ProfileFile file(m_path.c_str());
    EXPECT_FALSE(file.hasChanges());
    EXPECT_TRUE(file.save());
    EXPECT_TRUE(m_folder.names().empty());
}

TEST_F(ProfileFiles, AreReadInEveryEncoding)
{
    EXPECT_EQ(readIn("[s]\nk=a\xC3\xA9\xE4\xB8\xAD\n"), L"a\u00E9\u4E2D");
    EXPECT_EQ(readIn("\xEF\xBB\xBF[s]\nk=a\xC3\xA9\n"), L"a\u00E9");
    constexpr std::string_view kUtf16("\xFF\xFE[\0s\0]\0\r\0\n\0k\0=\0\xE9\0\x2D\x4E", 20);
    EXPECT_EQ(readIn(kUtf16), L"\u00E9\u4E2D");
    EXPECT_EQ(readIn("[s]\nk=caf\xE9 \x80\n"), L"caf\u00E9 \u20AC"); // neither has a mark: Windows-1252
}

TEST_F(ProfileFiles, ArePlainTextForAsciiAndOtherwiseUtf16WithAMark)
{
    ASSERT_TRUE(store(m_path, L"s", L"k", L"plain"));
    std::string plain = bytesOfFile(m_path);
    std::erase(plain, '\r');
    EXPECT_EQ(plain, "[s]\nk=plain\n");

    writeBytes(m_path, "[s]\n");
    ASSERT_TRUE(store(m_path, L"s", L"k", L"\u00E9"));
    EXPECT_EQ(bytesOfFile(m_path), std::string("\xFF\xFE[\0s\0]\0\n\0k\0=\0\xE9\0\n\0", 18));
    EXPECT_EQ(valueOf(m_path, L"s", L"k"), L"\u00E9");

    ASSERT_TRUE(store(m_path, L"s", L"k", L"e"));
    EXPECT_EQ(bytesOfFile(m_path), "[s]\nk=e\n");
}

TEST_F(ProfileFiles, HoldCharactersBeyondTheFirstPlane)
{
    const std::wstring face = sizeof(wchar_t) == 4 ? std::wstring(1, static_cast<wchar_t>(0x1F600)) : L"\xD83D\xDE00";
    ASSERT_TRUE(store(m_path, L"s", L"k", face));
    EXPECT_EQ(valueOf(m_path, L"s", L"k"), face);
}

TEST_F(ProfileFiles, KeepEveryLineThatIsNotChanged)
{
    constexpr std::string_view kBefore = "; head\n"
                                         "\n"
                                         "stray = before all sections\n"
                                         "no key at all\n"
                                         "   ; indented comment\n"
                                         "[First] ; behind the name\n"
                                         "unknown=1\n"
                                         "known=2\n"
                                         "\n"
                                         "\n"
                                         "# other comment\n"
                                         "unknown too=3\n"
                                         "=no key\n"
                                         "[unfinished\n"
                                         "[Second]\n"
                                         "; nothing else\n"
                                         "[first]\n"
                                         "known=does not count\n"
                                         "; the end\n";
    writeBytes(m_path, kBefore);
    EXPECT_EQ(valueOf(m_path, L"FIRST", L"Known"), L"2");
    ASSERT_TRUE(store(m_path, L"first", L"KNOWN", L"changed"));
    std::string expected(kBefore);
    expected.replace(expected.find("known=2"), 7, "known=changed");
    expected.replace(expected.find("stray = b"), 9, "stray=b"); // blanks around the sign are nobody's
    EXPECT_EQ(bytesOfFile(m_path), expected);
}

TEST_F(ProfileFiles, PutNewKeysAtTheEndOfTheirSection)
{
    writeBytes(m_path, "[a]\nx=1\n[b]\ny=2\n");
    ASSERT_TRUE(store(m_path, L"a", L"z", L"3"));
    ASSERT_TRUE(store(m_path, L"c", L"w", L"4"));
    EXPECT_EQ(bytesOfFile(m_path), "[a]\nx=1\nz=3\n[b]\ny=2\n\n[c]\nw=4\n");
}

TEST_F(ProfileFiles, KeepTheEndsOfLines)
{
    for (const char* const text : {"[s]\r\na=1\r\n", "[s]\na=1\n"}) {
        writeBytes(m_path, text);
        ASSERT_TRUE(store(m_path, L"s", L"a", L"1"));
        EXPECT_EQ(bytesOfFile(m_path), text);
    }
    EXPECT_EQ(readIn("[s]\rk=1\r"), L"1");
}

TEST_F(ProfileFiles, TakeTheFirstOfSeveralKeys)
{
    EXPECT_EQ(readIn("[s]\nk=1\nK=2\n[S]\nk=3\n"), L"1");
}

TEST_F(ProfileFiles, CutBlanksAndOnePairOfQuotationMarks)
{
    EXPECT_EQ(readIn("[s]\n  k \t=\t a b  \n"), L"a b");
    EXPECT_EQ(readIn("[s]\nk=\" a \"\n"), L" a ");
    EXPECT_EQ(readIn("[s]\nk='a'\n"), L"a");
    EXPECT_EQ(readIn("[s]\nk=\"a'\n"), L"\"a'");
    EXPECT_EQ(readIn("[s]\nk=a ; b\n"), L"a ; b");
    EXPECT_EQ(readIn("[s]\nk=\n"), L"");
    EXPECT_EQ(readIn("[s]\nk\n"), kNone);
}

TEST_F(ProfileFiles, GiveBackTextsThatHaveBlanksOrQuotationMarks)
{
    for (const wchar_t* const text :
         {L"", L" ", L" a", L"a\t", L"\"a\"", L"'a'", L"\"", L"\"\"", L"a=b", L"[a]", L"; a", L"<<<END", L"a\x01z"}) {
        ASSERT_TRUE(store(m_path, L"s", L"k", text));
        EXPECT_EQ(valueOf(m_path, L"s", L"k"), text);
    }
}

TEST_F(ProfileFiles, RefuseWhatNoLineCanHold)
{
    ProfileFile file(m_path.c_str());
    for (const wchar_t* const name : {L"", L" a", L"a ", L"a\nb", L"a\rb", L"\x02"}) {
        EXPECT_FALSE(file.setValue(name, L"k", L"v"));
        EXPECT_FALSE(file.setValue(L"s", name, L"v"));
    }
    EXPECT_FALSE(file.setValue(L"a]", L"k", L"v"));
    for (const wchar_t* const key : {L"a=b", L"=a", L"; a", L"#a", L"[a"})
        EXPECT_FALSE(file.setValue(L"s", key, L"v"));
    EXPECT_FALSE(file.setValue(L"s", L"k", L"a\n[b]"));
    EXPECT_FALSE(file.setValue(L"s", L"k", L"a\rb=c"));
    EXPECT_FALSE(file.setValue(nullptr, L"k", L"v"));
    EXPECT_FALSE(file.setValue(L"s", nullptr, L"v"));
    EXPECT_FALSE(file.hasChanges());
    EXPECT_FALSE(file.value(nullptr, L"k"));
    EXPECT_FALSE(file.value(L"s", nullptr));
}

TEST_F(ProfileFiles, KeepTheLastOneBesideTheNewOne)
{
    const std::wstring backup = m_path + L".bak";
    ASSERT_TRUE(store(m_path, L"s", L"k", L"1"));
    EXPECT_EQ(m_folder.names().size(), 1u); // there was none to keep
    ASSERT_TRUE(store(m_path, L"s", L"k", L"2"));
    EXPECT_EQ(valueOf(backup, L"s", L"k"), L"1");
    ASSERT_TRUE(store(m_path, L"s", L"k", L"2"));
    EXPECT_EQ(valueOf(backup, L"s", L"k"), L"1"); // nothing was changed: nothing is lost
    ASSERT_TRUE(store(m_path, L"s", L"k", L"3"));
    EXPECT_EQ(valueOf(backup, L"s", L"k"), L"2");
    EXPECT_EQ(m_folder.names(), (std::vector<std::string>{"profile.kpf", "profile.kpf.bak"}));
}

TEST_F(ProfileFiles, KeepWhatOthersHaveSavedMeanwhile)
{
    ProfileFile slow(m_path.c_str());
    ASSERT_TRUE(slow.setValue(L"s", L"slow", L"1"));
    ASSERT_TRUE(store(m_path, L"s", L"quick", L"2"));
    ASSERT_TRUE(slow.save());
    EXPECT_EQ(valueOf(m_path, L"s", L"slow"), L"1");
    EXPECT_EQ(valueOf(m_path, L"s", L"quick"), L"2");
}

TEST_F(ProfileFiles, CanBeSavedAgainAfterFurtherChanges)
{
    ProfileFile file(m_path.c_str());
    ASSERT_TRUE(file.setValue(L"s", L"a", L"1"));
    ASSERT_TRUE(file.save());
    ASSERT_TRUE(file.setValue(L"s", L"b", L"2"));
    ASSERT_TRUE(file.setValue(L"s", L"b", L"3"));
    ASSERT_TRUE(file.save());
    EXPECT_EQ(valueOf(m_path, L"s", L"a"), L"1");
    EXPECT_EQ(valueOf(m_path, L"s", L"b"), L"3");
}

TEST_F(ProfileFiles, StayWhenTheyCannotBeWritten)
{
    ASSERT_TRUE(store(m_path, L"s", L"k", L"old"));
    ASSERT_TRUE(SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_READONLY));
    ProfileFile file(m_path.c_str());
    ASSERT_TRUE(file.setValue(L"s", L"k", L"new"));
    EXPECT_FALSE(file.save());
    EXPECT_TRUE(file.hasChanges());
    EXPECT_EQ(valueOf(m_path, L"s", L"k"), L"old");
    EXPECT_EQ(m_folder.names().size(), 1u);

    ASSERT_TRUE(SetFileAttributesW(m_path.c_str(), FILE_ATTRIBUTE_NORMAL));
    EXPECT_TRUE(file.save());
    EXPECT_EQ(valueOf(m_path, L"s", L"k"), L"new");
}

TEST_F(ProfileFiles, AreNotMadeInFoldersThatDoNotExistNorInPlaceOfFolders)
{
    EXPECT_FALSE(store(m_folder / L"missing/profile.kpf", L"s", L"k", L"v"));
    EXPECT_FALSE(store(m_folder.path().GetString(), L"s", L"k", L"v"));
    EXPECT_FALSE(store(L"", L"s", L"k", L"v"));
    ProfileFile none(nullptr);
    EXPECT_TRUE(none.setValue(L"s", L"k", L"v"));
    EXPECT_FALSE(none.save());
}

TEST_F(ProfileFiles, AreTheSameUnderEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* const locale : {"C", "de_DE.UTF-8", "German"}) {
        std::setlocale(LC_ALL, locale);
        ASSERT_TRUE(store(m_path, L"s", L"k", L"\u00E9 1.5"));
        EXPECT_EQ(valueOf(m_path, L"S", L"K"), L"\u00E9 1.5");
    }
    std::setlocale(LC_ALL, before.c_str());
}

} // namespace
} // namespace vq::test
