// SPDX-License-Identifier: MIT
#include "Platform/ProfileFile.h"

#include "support/TemporaryFolder.h"

#include <random>

namespace vq::test {
namespace {

using platform::ProfileFile;

class HostileProfiles : public testing::Test
{
protected:
    const TemporaryFolder m_folder{L"hostile"};
    const std::wstring m_path = m_folder / L"profile.kpf";
};

constexpr std::array<const wchar_t*, 5> kKeys{L"one", L"two", L"three", L"\u00E9", L"\u00E9\u00E9"};

std::string plainProfile()
{
    return "; head\n[<A>]\none=11\ntwo=22\nthree=33\n\xC3\xA9=44\n\xC3\xA9\xC3\xA9=55\n";
}

std::string asUtf16(const std::string& text)
{
    std::string bytes = "\xFF\xFE";
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\xC3') {
            bytes += std::string("\xE9\0", 2);
            ++i;
        } else {
            bytes += text[i];
            bytes += '\0';
        }
    }
    return bytes;
}

/// How many of the keys, from the first on, have their value; none after them may have any but a cut one.
std::size_t wholeKeys(const ProfileFile& file)
{
    std::size_t count = 0;
    while (count < kKeys.size() &&
           file.value(L"<A>", kKeys[count]) == std::wstring(2, static_cast<wchar_t>(L'1' + count)))
        ++count;
    return count;
}

TEST_F(HostileProfiles, LoseNoKeyBeforeACut)
{
    for (const bool isWide : {false, true}) {
        const std::string whole = isWide ? asUtf16(plainProfile()) : plainProfile();
        const std::size_t unit = isWide ? 2 : 1;
        for (std::size_t cut = 0; cut <= whole.size(); ++cut) {
            writeBytes(m_path, whole.substr(0, cut));
            std::size_t expected = 0;
            for (const char* const value : {"=11", "=22", "=33", "=44", "=55"}) {
                const std::string bytes = isWide ? asUtf16(value).substr(2) : value;
                expected += whole.find(bytes) + 3 * unit <= cut;
            }
            ProfileFile file(m_path.c_str());
            EXPECT_EQ(wholeKeys(file), expected) << "cut at " << cut;

            ASSERT_TRUE(file.setValue(L"<A>", L"new", L"v"));
            ASSERT_TRUE(file.save());
            EXPECT_GE(wholeKeys(ProfileFile(m_path.c_str())), expected) << "cut at " << cut;
        }
    }
}

TEST_F(HostileProfiles, MayHaveLinesOfAMegabyte)
{
    const std::string line(std::size_t{1} << 20, 'x');
    for (const std::string& strange : {line, "[" + line + "]", "[" + line, line + "=", "k=" + line, "; " + line}) {
        writeBytes(m_path, "[s]\na=1\n" + strange + "\n[t]\nb=2\n");
        ProfileFile file(m_path.c_str());
        EXPECT_EQ(file.value(L"s", L"a"), L"1");
        EXPECT_EQ(file.value(L"t", L"b"), L"2");
        ASSERT_TRUE(file.setValue(L"s", L"a", L"3"));
        ASSERT_TRUE(file.save());
        EXPECT_EQ(bytesOfFile(m_path), "[s]\na=3\n" + strange + "\n[t]\nb=2\n");
    }
}

TEST_F(HostileProfiles, OfNoiseKeepTheKeysInFrontOfIt)
{
    std::mt19937 random(1); // NOLINT: every run the same
    for (int round = 0; round < 100; ++round) {
        std::string noise(random() % 2000, '\0');
        for (char& byte : noise)
            byte = static_cast<char>(random() % 256);
        writeBytes(m_path, "[s]\na=1\n" + noise);
        ProfileFile file(m_path.c_str());
        ASSERT_EQ(file.value(L"s", L"a"), L"1") << "round " << round;
        ASSERT_TRUE(file.setValue(L"t", L"b", L"2"));
        ASSERT_TRUE(file.save());
        const ProfileFile again(m_path.c_str());
        ASSERT_EQ(again.value(L"s", L"a"), L"1") << "round " << round;
        ASSERT_EQ(again.value(L"t", L"b"), L"2") << "round " << round;

        writeBytes(m_path, noise);
        ProfileFile pure(m_path.c_str());
        ASSERT_TRUE(pure.setValue(L"t", L"b", L"2"));
        ASSERT_TRUE(pure.save());
    }
}

TEST_F(HostileProfiles, OfStructureAloneStayTheSameWhenSavedTwice)
{
    std::mt19937 random(2);
    constexpr std::string_view kSigns = "[]=;#\n\r \t\"ab\x01\x02";
    for (int round = 0; round < 500; ++round) {
        std::string text(random() % 60, '\0');
        for (char& byte : text)
            byte = kSigns[random() % kSigns.size()];
        writeBytes(m_path, text);
        std::string saved[2];
        for (std::string& bytes : saved) {
            ProfileFile file(m_path.c_str());
            ASSERT_TRUE(file.setValue(L"key", L"b", L"2"));
            ASSERT_TRUE(file.save());
            bytes = bytesOfFile(m_path);
        }
        ASSERT_EQ(saved[0], saved[1]) << "round " << round << " of " << testing::PrintToString(text);
        ASSERT_EQ(ProfileFile(m_path.c_str()).value(L"key", L"b"), L"2");
    }
}

TEST_F(HostileProfiles, KeepAllLinesOfStructureAlone)
{
    const auto lettersOf = [](std::string text) {
        std::erase_if(text, [](char c) { return c == '\n' || c == '\r' || c == ' ' || c == '\t'; });
        return text;
    };
    std::mt19937 random(3);
    constexpr std::string_view kSigns = "[]=;#\n\n ab\x01\x02";
    for (int round = 0; round < 500; ++round) {
        std::string text(random() % 60, '\0');
        for (char& byte : text)
            byte = kSigns[random() % kSigns.size()];
        writeBytes(m_path, text);
        ProfileFile file(m_path.c_str());
        ASSERT_TRUE(file.setValue(L"key", L"b", L"2"));
        ASSERT_TRUE(file.save());
        ASSERT_EQ(lettersOf(bytesOfFile(m_path)), lettersOf(text) + "[key]b=2")
            << "round " << round << " of " << testing::PrintToString(text);
    }
}

TEST_F(HostileProfiles, MayHaveAHundredThousandKeys)
{
    std::string text;
    for (int i = 0; i < 100'000; ++i)
        text += "[s" + std::to_string(i % 1000) + "]\nk" + std::to_string(i) + "=1\nk=1\n";
    writeBytes(m_path, text);
    ProfileFile file(m_path.c_str());
    EXPECT_EQ(file.value(L"s999", L"k999"), L"1");
    ASSERT_TRUE(file.setValue(L"s1", L"k", L"2"));
    EXPECT_TRUE(file.save());
}

TEST_F(HostileProfiles, LargerThanAnyoneNeedsAreNeitherReadNorReplaced)
{
    std::FILE* const out = _wfopen(m_path.c_str(), L"wb");
    ASSERT_TRUE(out);
    std::fputs("[s]\nk=1\n", out);
    ASSERT_EQ(std::fseek(out, 64 << 20, SEEK_SET), 0); // a hole
    std::fputs("\n", out);
    ASSERT_EQ(std::fclose(out), 0);
    ProfileFile file(m_path.c_str());
    EXPECT_FALSE(file.value(L"s", L"k"));
    ASSERT_TRUE(file.setValue(L"s", L"k", L"2"));
    EXPECT_FALSE(file.save());
}

} // namespace
} // namespace vq::test
