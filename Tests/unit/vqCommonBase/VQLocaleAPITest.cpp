// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQLocaleAPI.h"

#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>
#include <random>

namespace {

namespace fs = std::filesystem;

/// A module in a folder of its own, so that satellites can be put beside it.
class LocalisedModule : public ::testing::Test
{
protected:
    void SetUp() override
    {
        wchar_t name[85] = {};
        ASSERT_GT(GetUserDefaultLocaleName(name, 85), 0);
        language = name;
        folder = fs::temp_directory_path() / ("vq-locale-" + std::to_string(std::random_device()()));
        fs::create_directories(folder);
        const fs::path original = LOCALE_MODULE;
        const fs::path copy = folder / original.filename();
        fs::copy_file(original, copy, fs::copy_options::overwrite_existing);
        stem = copy.stem().wstring();
        ending = copy.extension().wstring();
        module = LoadLibraryExW(copy.wstring().c_str(), nullptr, 0);
        ASSERT_NE(module, nullptr);
    }

    void TearDown() override
    {
        FreeLibrary(module);
        std::error_code ignored; // a satellite in use cannot be removed on every system
        fs::remove_all(folder, ignored);
    }

    void putSatellite(const std::wstring& tag)
    {
        fs::copy_file(LOCALE_SATELLITE, folder / (stem + L"." + tag + ending), fs::copy_options::overwrite_existing);
    }

    std::wstring language;
    fs::path folder;
    std::wstring stem, ending;
    HINSTANCE module = nullptr;
    AFX_MODULE_STATE state{};
};

TEST_F(LocalisedModule, WithoutASatelliteKeepsItsOwnResources)
{
    EXPECT_FALSE(CVQLocaleAPI::GetInstance()->LoadCurrentLocaleResource(module, &state));
    EXPECT_EQ(state.m_hCurrentResourceHandle, nullptr);
}

TEST_F(LocalisedModule, TakesResourcesFromTheSatelliteOfTheUsersLanguage)
{
    putSatellite(language);
    EXPECT_TRUE(CVQLocaleAPI::GetInstance()->LoadCurrentLocaleResource(module, &state));
    EXPECT_NE(state.m_hCurrentResourceHandle, nullptr);
}

TEST_F(LocalisedModule, FallsBackToTheLanguageWithoutItsRegion)
{
    putSatellite(language.substr(0, language.find(L'-')));
    EXPECT_TRUE(CVQLocaleAPI::GetInstance()->LoadCurrentLocaleResource(module, &state));
}

TEST_F(LocalisedModule, GetsTheSameSatelliteWhenAskedAgain)
{
    putSatellite(language);
    AFX_MODULE_STATE second{};
    EXPECT_TRUE(CVQLocaleAPI::GetInstance()->LoadCurrentLocaleResource(module, &state));
    EXPECT_TRUE(CVQLocaleAPI::GetInstance()->LoadCurrentLocaleResource(module, &second));
    EXPECT_EQ(state.m_hCurrentResourceHandle, second.m_hCurrentResourceHandle);
}

TEST_F(LocalisedModule, RefusesNullArguments)
{
    EXPECT_FALSE(CVQLocaleAPI::GetInstance()->LoadCurrentLocaleResource(nullptr, &state));
    EXPECT_FALSE(CVQLocaleAPI::GetInstance()->LoadCurrentLocaleResource(module, nullptr));
}

TEST(NumbersOfTextFiles, NeedNoOtherLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    const CString forNumbers = std::setlocale(LC_NUMERIC, nullptr);
    for (const int form : {0, 1, -1})
        EXPECT_EQ(CVQLocaleAPI::GetInstance()->GetChangeBeforeLanguageName(form), forNumbers);
    EXPECT_EQ(before, std::setlocale(LC_ALL, nullptr));
}

} // namespace
