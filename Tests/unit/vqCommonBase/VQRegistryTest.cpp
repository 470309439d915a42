// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQRegistry.h"

#include "support/TemporaryFolder.h"

#include <bit>
#include <clocale>
#include <cmath>
#include <limits>
#include <random>
#include <thread>

namespace vq::test {
namespace {

using Registry = CVQRegistry;

class RegistryFiles : public testing::Test
{
protected:
    ~RegistryFiles() override { Registry::SetRegistryFile(L""); }

    std::string text() const
    {
        std::string text = bytesOfFile(m_path);
        std::erase(text, '\r');
        return text;
    }
    int number(LPCTSTR key) const { return Registry::GetProfileINT(L"s", key, -1, file()); }
    LPCTSTR file() const { return m_path.c_str(); }

    const TemporaryFolder m_folder{L"Registre \u00E9"};
    const std::wstring m_path = m_folder / L"profile.kpf";
};

TEST_F(RegistryFiles, GiveBackNumbersAndTexts)
{
    EXPECT_TRUE(Registry::WriteProfileINT(L"s", L"int", std::numeric_limits<int>::min(), file()));
    EXPECT_TRUE(Registry::WriteProfileUINT(L"s", L"uint", std::numeric_limits<UINT>::max(), file()));
    EXPECT_TRUE(Registry::WriteProfileFLOAT(L"s", L"float", 0.1f, file()));
    EXPECT_TRUE(Registry::WriteProfileSTR(L"s", L"str", L" caf\u00E9 ", file()));
    EXPECT_TRUE(Registry::WriteProfileSTR(L"s", L"null", nullptr, file()));
    EXPECT_EQ(Registry::GetProfileINT(L"s", L"int", 5, file()), std::numeric_limits<int>::min());
    EXPECT_EQ(Registry::GetProfileUINT(L"s", L"uint", 5, file()), std::numeric_limits<UINT>::max());
    EXPECT_EQ(Registry::GetProfileFLOAT(L"s", L"float", 5, file()), 0.1f);
    EXPECT_EQ(Registry::GetProfileSTR(L"s", L"str", L"5", file()), L" caf\u00E9 ");
    EXPECT_EQ(Registry::GetProfileSTR(L"s", L"null", L"5", file()), L"");
}

TEST_F(RegistryFiles, AreWrittenInPlainDigits)
{
    Registry::FileScope scope(file());
    Registry::WriteProfileINT(L"s", L"a", -11, file());
    Registry::WriteProfileUINT(L"s", L"b", 4278190080u, file());
    Registry::WriteProfileFLOAT(L"s", L"c", 2.5f, file());
    Registry::WriteProfileFLOAT(L"s", L"d", 2, file());
    Registry::WriteProfileFLOAT(L"s", L"e", 0.1f, file());
    Registry::WriteProfileSTR(L"s", L"f", L"Segoe UI", file());
    ASSERT_TRUE(scope.Save());
    EXPECT_EQ(text(), "[s]\na=-11\nb=4278190080\nc=2.5\nd=2\ne=0.1\nf=Segoe UI\n");
}

TEST_F(RegistryFiles, GiveTheFallbackForWhatIsMissingOrNoNumber)
{
    writeBytes(m_path, "[s]\ntext=x\nempty=\ntail=1x\ncomma=1,5\nlarge=4294967296\nsmall=-2147483649\nhuge=1e99\n");
    for (const wchar_t* const key : {L"missing", L"text", L"empty", L"tail", L"comma", L"large", L"small"}) {
        EXPECT_EQ(Registry::GetProfileINT(L"s", key, 7, file()), 7) << key;
        EXPECT_EQ(Registry::GetProfileUINT(L"s", key, 7, file()), 7u) << key;
    }
    for (const wchar_t* const key : {L"missing", L"text", L"empty", L"tail", L"comma", L"huge"})
        EXPECT_EQ(Registry::GetProfileFLOAT(L"s", key, 7, file()), 7.0f) << key;
    EXPECT_EQ(Registry::GetProfileSTR(L"s", L"missing", L"7", file()), L"7");
    EXPECT_EQ(Registry::GetProfileSTR(L"s", L"missing", nullptr, file()), L"");
    EXPECT_EQ(Registry::GetProfileINT(nullptr, nullptr, 7, file()), 7);
}

TEST_F(RegistryFiles, ReadNumbersOfBothSigns)
{
    writeBytes(m_path, "[s]\na=-1\nb= 4294967295 \n");
    EXPECT_EQ(Registry::GetProfileUINT(L"s", L"a", 0, file()), 4294967295u);
    EXPECT_EQ(Registry::GetProfileINT(L"s", L"b", 0, file()), -1);
    EXPECT_EQ(Registry::GetProfileFLOAT(L"s", L"a", 0, file()), -1.0f);
}

TEST_F(RegistryFiles, GiveBackTheSameFloat)
{
    std::vector<float> values{0.0f,
                              -0.0f,
                              1.0f / 3,
                              std::numeric_limits<float>::min(),
                              std::numeric_limits<float>::denorm_min(),
                              std::numeric_limits<float>::max(),
                              std::numeric_limits<float>::lowest(),
                              std::numeric_limits<float>::infinity(),
                              -std::numeric_limits<float>::infinity()};
    std::mt19937 random(1);
    while (values.size() < 5000) {
        const float value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (!std::isnan(value))
            values.push_back(value);
    }
    const Registry::FileScope scope(file());
    for (const float value : values) {
        ASSERT_TRUE(Registry::WriteProfileFLOAT(L"s", L"f", value, file()));
        const float read = Registry::GetProfileFLOAT(L"s", L"f", 7, file());
        ASSERT_EQ(std::bit_cast<std::uint32_t>(read), std::bit_cast<std::uint32_t>(value)) << value;
    }
    ASSERT_TRUE(Registry::WriteProfileFLOAT(L"s", L"f", std::numeric_limits<float>::quiet_NaN(), file()));
    EXPECT_TRUE(std::isnan(Registry::GetProfileFLOAT(L"s", L"f", 7, file())));
}

TEST_F(RegistryFiles, AreTheSameUnderEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* const locale : {"C", "de_DE.UTF-8", "German"}) {
        std::setlocale(LC_ALL, locale);
        ASSERT_TRUE(Registry::WriteProfileFLOAT(L"s", L"f", 1234567.5f, file()));
        EXPECT_EQ(text(), "[s]\nf=1234567.5\n") << locale;
        EXPECT_EQ(Registry::GetProfileFLOAT(L"s", L"f", 0, file()), 1234567.5f) << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(RegistryFiles, TakeBothSeparators)
{
    const CString other = m_folder.path() + L"\\profile.kpf";
    const Registry::FileScope scope(file());
    ASSERT_TRUE(Registry::WriteProfileINT(L"s", L"a", 1, file()));
    EXPECT_EQ(Registry::GetProfileINT(L"s", L"a", 0, other), 1);
}

TEST_F(RegistryFiles, SayWhenTheyCannotBeWritten)
{
    const std::wstring missing = m_folder / L"missing/profile.kpf";
    EXPECT_FALSE(Registry::WriteProfileINT(L"s", L"a", 1, missing.c_str()));
    EXPECT_FALSE(Registry::WriteProfileSTR(L"s", L"a\n", L"x", file()));
    EXPECT_FALSE(Registry::WriteProfileSTR(L"s", L"a", L"x\ny", file()));
    Registry::FileScope scope(missing.c_str());
    EXPECT_TRUE(Registry::WriteProfileINT(L"s", L"a", 1, missing.c_str()));
    EXPECT_FALSE(scope.Save());
}

TEST_F(RegistryFiles, CanStandForTheRegistry)
{
    Registry::SetRegistryFile(m_path.c_str());
    EXPECT_TRUE(Registry::WriteProfileINT(L"s", L"a", 1));
    EXPECT_TRUE(Registry::WriteProfileSTR(L"s", L"Source\\VQDraw\\DrawProperty_STR_strOpenPath", L"C:\\x"));
    EXPECT_EQ(Registry::GetProfileINT(L"s", L"a", 0), 1);
    EXPECT_EQ(Registry::GetProfileINT(L"s", L"a", 0, L""), 1);
    EXPECT_EQ(number(L"a"), 1);
    EXPECT_EQ(Registry::GetProfileSTR(L"s", L"Source\\VQDraw\\DrawProperty_STR_strOpenPath", L""), L"C:\\x");
    {
        const Registry::FileScope scope(L"");
        EXPECT_TRUE(Registry::WriteProfileINT(L"s", L"a", 2));
        EXPECT_EQ(Registry::GetProfileINT(L"s", L"a", 0), 2);
    }
    EXPECT_EQ(number(L"a"), 2);
}

TEST(UsersRegistry, GivesBackNumbersAndTexts)
{
    constexpr const wchar_t* kSection = L"Test of the registry";
    EXPECT_TRUE(Registry::WriteProfileINT(kSection, L"int", -11));
    EXPECT_TRUE(Registry::WriteProfileUINT(kSection, L"uint", 4294967295u));
    EXPECT_TRUE(Registry::WriteProfileFLOAT(kSection, L"float", 0.1f));
    EXPECT_TRUE(Registry::WriteProfileSTR(kSection, L"str", L"caf\u00E9 \u4E2D"));
    EXPECT_TRUE(Registry::WriteProfileSTR(kSection, L"long", CString(L'x', 5000)));
    EXPECT_EQ(Registry::GetProfileINT(kSection, L"int", 0), -11);
    EXPECT_EQ(Registry::GetProfileUINT(kSection, L"int", 0), 4294967285u);
    EXPECT_EQ(Registry::GetProfileUINT(kSection, L"uint", 0), 4294967295u);
    EXPECT_EQ(Registry::GetProfileFLOAT(kSection, L"float", 0), 0.1f);
    EXPECT_EQ(Registry::GetProfileSTR(kSection, L"str", L""), L"caf\u00E9 \u4E2D");
    EXPECT_EQ(Registry::GetProfileSTR(kSection, L"long", L"").GetLength(), 5000);
    EXPECT_EQ(Registry::GetProfileSTR(kSection, L"uint", L""), L"4294967295");
    EXPECT_EQ(Registry::GetProfileINT(kSection, L"missing", 5), 5);
    EXPECT_EQ(Registry::GetProfileINT(kSection, L"str", 5), 5);
    Registry::FileScope scope(L"");
    EXPECT_TRUE(scope.Save());
}

TEST_F(RegistryFiles, AreSavedOnceByAGuard)
{
    writeBytes(m_path, "[s]\na=1\n");
    {
        const Registry::FileScope scope(file());
        EXPECT_TRUE(Registry::WriteProfileINT(L"s", L"a", 2, file()));
        EXPECT_TRUE(Registry::WriteProfileINT(L"s", L"b", 3, file()));
        EXPECT_EQ(number(L"a"), 2);
        EXPECT_EQ(text(), "[s]\na=1\n");
    }
    EXPECT_EQ(text(), "[s]\na=2\nb=3\n");
    EXPECT_EQ(bytesOfFile(m_path + L".bak"), "[s]\na=1\n"); // one save, not two
}

TEST_F(RegistryFiles, AreNotTouchedByAGuardThatOnlyReads)
{
    {
        Registry::FileScope scope(file());
        EXPECT_EQ(number(L"a"), -1);
        EXPECT_TRUE(scope.Save());
    }
    EXPECT_TRUE(m_folder.names().empty());
}

TEST_F(RegistryFiles, AreSavedByTheOutermostGuard)
{
    {
        Registry::FileScope outer(file());
        {
            Registry::FileScope inner(file());
            Registry::WriteProfileINT(L"s", L"a", 1, file());
            EXPECT_TRUE(inner.Save());
        }
        EXPECT_EQ(number(L"a"), 1);
        EXPECT_TRUE(m_folder.names().empty());
        Registry::WriteProfileINT(L"s", L"b", 2, file());
    }
    EXPECT_EQ(text(), "[s]\na=1\nb=2\n");
}

TEST_F(RegistryFiles, ArePutAsideByGuardsOfTheirOwn)
{
    const std::wstring other = m_folder / L"other.kpf";
    {
        const Registry::FileScope scope(file());
        const Registry::FileScope second(other.c_str());
        Registry::WriteProfileINT(L"s", L"a", 1, file());
        Registry::WriteProfileINT(L"s", L"a", 2, other.c_str());
    }
    EXPECT_EQ(number(L"a"), 1);
    EXPECT_EQ(Registry::GetProfileINT(L"s", L"a", 0, other.c_str()), 2);
}

TEST_F(RegistryFiles, StayWhenAnExceptionEndsAGuard)
{
    try {
        const Registry::FileScope scope(file());
        Registry::WriteProfileINT(L"s", L"a", 1, file());
        throw 1;
    } catch (int) {
    }
    EXPECT_TRUE(m_folder.names().empty());
}

TEST_F(RegistryFiles, ShowOtherThreadsWhatIsSaved)
{
    const Registry::FileScope scope(file());
    Registry::WriteProfileINT(L"s", L"a", 1, file());
    int seen = 0;
    std::thread([&] {
        seen = number(L"a");
        Registry::WriteProfileINT(L"s", L"b", 2, file());
    }).join();
    EXPECT_EQ(seen, -1);
    EXPECT_EQ(number(L"b"), -1); // a guard's copy is its own
    EXPECT_EQ(text(), "[s]\nb=2\n");
}

TEST_F(RegistryFiles, KeepTheValuesOfAllThreads)
{
    constexpr int kThreads = 4;
    constexpr int kRounds = 10;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&, thread] {
            for (int round = 0; round < kRounds; ++round) {
                const std::wstring key = std::to_wstring(thread) + L"_" + std::to_wstring(round);
                const Registry::FileScope scope(file());
                Registry::WriteProfileINT(L"s", key.c_str(), round, file());
                Registry::WriteProfileINT(L"t", key.c_str(), round, file());
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (int thread = 0; thread < kThreads; ++thread) {
        for (int round = 0; round < kRounds; ++round) {
            const std::wstring key = std::to_wstring(thread) + L"_" + std::to_wstring(round);
            EXPECT_EQ(number(key.c_str()), round);
            EXPECT_EQ(Registry::GetProfileINT(L"t", key.c_str(), -1, file()), round);
        }
    }
}

} // namespace
} // namespace vq::test
