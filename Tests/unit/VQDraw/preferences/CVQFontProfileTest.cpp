// SPDX-License-Identifier: MIT
#include "Resolution.h"
#include "StoredPreferences.h"

#include "support/TemporaryFolder.h"
#include "vqCommonBase/VQRegistry.h"

namespace vq::test::cvqFontProfileTests {
namespace {

CVQFont someFont()
{
    CVQFont font;
    font.m_LogFont.lfHeight = -77;
    font.m_LogFont.lfWidth = 7;
    font.m_LogFont.lfWeight = 300;
    font.m_LogFont.lfItalic = 1;
    font.m_LogFont.lfCharSet = 129;
    font.m_LogFont.lfPitchAndFamily = 34;
    platform::setFaceName(font.m_LogFont, L"G\u00FCnther \u4E00");
    font.m_iPointHeight = 88;
    font.m_uiColor = 0xFF112233;
    font.m_bShadow = true;
    font.m_iNominalSize = -66;
    return font;
}

/// The same with other values, wherever one is stored in a preference file.
CVQFont otherFont()
{
    CVQFont font = someFont();
    font.m_LogFont.lfWeight = 500;
    font.m_LogFont.lfItalic = 0;
    font.m_LogFont.lfCharSet = 2;
    font.m_LogFont.lfPitchAndFamily = 3;
    platform::setFaceName(font.m_LogFont, L"Other");
    font.m_uiColor = 5;
    font.m_bShadow = false;
    font.m_iNominalSize = -30;
    return font;
}

CVQFont atThisResolution(CVQFont font)
{
    font.m_LogFont.lfHeight = pixelHeight(font.m_iNominalSize);
    font.m_iPointHeight = pointHeight(font.m_iNominalSize);
    return font;
}

class FontInPreferenceFile : public testing::Test
{
protected:
    CVQFont read(CVQFont font) const
    {
        font.ReadFromFile(L"DPF_WIDGET_FONT", m_file);
        return font;
    }
    void write(CVQFont font) const { font.WriteToFile(L"DPF_WIDGET_FONT", m_file); }
    void put(const wchar_t* key, const wchar_t* value) const
    {
        EXPECT_TRUE(CVQRegistry::WriteProfileSTR(L"DPF_WIDGET_FONT", key, value, m_file));
    }

    TemporaryFolder m_folder;
    CString m_backup = m_folder.path(L"preferences.kpf.bak");
    CString m_file = m_folder.path(L"preferences.kpf");
};

TEST_F(FontInPreferenceFile, HasEightValues)
{
    write(someFont());
    const auto text = [this](const wchar_t* key) {
        return CVQRegistry::GetProfileSTR(L"DPF_WIDGET_FONT", key, L"missing", m_file);
    };
    EXPECT_EQ(text(L"<Color>"), L"4279312947"); // unsigned
    EXPECT_EQ(text(L"<lfHeight>"), L"-66");     // the nominal size
    EXPECT_EQ(text(L"<lfWeight>"), L"300");
    EXPECT_EQ(text(L"<lfItalic>"), L"1");
    EXPECT_EQ(text(L"<lfFaceName>"), L"G\u00FCnther \u4E00");
    EXPECT_EQ(text(L"<lfCharSet>"), L"129");
    EXPECT_EQ(text(L"<lfPitchAndFamily>"), L"34");
    EXPECT_EQ(text(L"<bShadow>"), L"1");
}

TEST_F(FontInPreferenceFile, HasItsValuesInOrder)
{
    CVQFont font = someFont();
    platform::setFaceName(font.m_LogFont, L"Tahoma"); // ASCII: the file is plain text
    write(font);
    std::FILE* file = _wfopen(m_file, L"rb");
    ASSERT_TRUE(file);
    std::string content(1000, '\0');
    content.resize(std::fread(content.data(), 1, content.size(), file));
    std::fclose(file);
    std::size_t place = 0;
    for (const char* key : {"[DPF_WIDGET_FONT]", "<Color>", "<lfHeight>", "<lfWeight>", "<lfItalic>", "<lfFaceName>",
                            "<lfCharSet>", "<lfPitchAndFamily>", "<bShadow>"}) {
        const std::size_t next = content.find(key, place);
        ASSERT_NE(next, std::string::npos) << key;
        place = next;
    }
}

TEST_F(FontInPreferenceFile, ComesBackAsItWasForTheScreenItIsReadOn)
{
    for (const float factor : {1.0f, 1.25f, 2.0f}) {
        const DisplayScale scale(factor);
        write(someFont());
        EXPECT_TRUE(isSame(read(otherFont()), atThisResolution(someFont())));
        write(otherFont());
        EXPECT_TRUE(isSame(read(someFont()), atThisResolution(otherFont())));
    }
}

TEST_F(FontInPreferenceFile, KeepsWhatIsMissing)
{
    EXPECT_TRUE(isSame(read(someFont()), atThisResolution(someFont()))) << "without a file";
    put(L"<lfWeight>", L"900");
    CVQFont expected = atThisResolution(someFont());
    expected.m_LogFont.lfWeight = 900;
    EXPECT_TRUE(isSame(read(someFont()), expected));
    put(L"<lfHeight>", L"-10");
    expected.m_iNominalSize = -10;
    EXPECT_TRUE(isSame(read(someFont()), atThisResolution(expected)));
}

TEST_F(FontInPreferenceFile, KeepsAFaceThatNoTextCanHold)
{
    CVQFont font = someFont();
    font.m_LogFont.lfFaceName[0] = 0xD800; // half a pair
    font.m_LogFont.lfFaceName[1] = 'x';
    EXPECT_TRUE(isSame(read(font), atThisResolution(font)));
}

TEST_F(FontInPreferenceFile, KeepsTheLowBytesOfSmallValues)
{
    put(L"<lfItalic>", L"258");
    put(L"<lfCharSet>", L"4294967295");
    put(L"<lfPitchAndFamily>", L"4660");
    put(L"<bShadow>", L"256");
    CVQFont expected = atThisResolution(otherFont());
    expected.m_LogFont.lfItalic = 2;
    expected.m_LogFont.lfCharSet = 255;
    expected.m_LogFont.lfPitchAndFamily = 0x34;
    expected.m_bShadow = true;
    EXPECT_TRUE(isSame(read(otherFont()), expected));
}

TEST_F(FontInPreferenceFile, CutsALongFace)
{
    put(L"<lfFaceName>", L"0123456789012345678901234567890123456789");
    EXPECT_EQ(platform::faceName(read(someFont()).m_LogFont), L"0123456789012345678901234567890"); // 31
    put(L"<lfFaceName>", L"");
    EXPECT_EQ(platform::faceName(read(someFont()).m_LogFont), L"");
}

TEST_F(FontInPreferenceFile, IsSavedOnceWithWhatElseAGuardSaves)
{
    {
        const CVQRegistry::FileScope scope(m_file);
        write(someFont());
        EXPECT_EQ(GetFileAttributesW(m_file), INVALID_FILE_ATTRIBUTES) << "not yet";
        EXPECT_TRUE(isSame(read(otherFont()), atThisResolution(someFont())));
    }
    EXPECT_TRUE(isSame(read(otherFont()), atThisResolution(someFont())));
}

class FontInRegistry : public testing::Test
{
protected:
    void SetUp() override { CVQRegistry::SetRegistryFile(m_file); }
    void TearDown() override { CVQRegistry::SetRegistryFile(L""); }

    TemporaryFolder m_folder;
    CString m_backup = m_folder.path(L"registry.ini.bak");
    CString m_file = m_folder.path(L"registry.ini");
};

TEST_F(FontInRegistry, HasSixValuesOfASlot)
{
    someFont().WriteRegistry(3);
    const auto number = [](const wchar_t* name) { return CVQRegistry::GetProfileUINT(L"DrawProperty", name, 99); };
    EXPECT_EQ(number(L"UI_Ctrl_FontColor_3"), 0xFF112233u);
    EXPECT_EQ(number(L"UI_Ctrl_FontSize_3"), 0u - 66u); // the nominal size, unsigned as all numbers
    EXPECT_EQ(number(L"UI_Ctrl_FontWeight_3"), 300u);
    EXPECT_EQ(number(L"UI_Ctrl_FontItalic_3"), 1u);
    EXPECT_EQ(CVQRegistry::GetProfileSTR(L"DrawProperty", L"UI_Ctrl_FontFace_3", L""), L"G\u00FCnther \u4E00");
    EXPECT_EQ(number(L"UI_Ctrl_FontShade_3"), 1u);
    EXPECT_EQ(number(L"UI_Ctrl_FontColor_2"), 99u) << "another slot";
    EXPECT_EQ(CVQRegistry::GetProfileSTR(L"DrawProperty", L"UI_Ctrl_FontSize_3", L""), L"4294967230");
}

TEST_F(FontInRegistry, ComesBackSlotBySlotForTheScreenItIsReadOn)
{
    CVQFont expected = otherFont();
    expected.m_LogFont.lfCharSet = someFont().m_LogFont.lfCharSet; // not stored
    expected.m_LogFont.lfPitchAndFamily = someFont().m_LogFont.lfPitchAndFamily;
    someFont().WriteRegistry(0);
    otherFont().WriteRegistry(-1);
    for (const float factor : {1.0f, 1.5f}) {
        const DisplayScale scale(factor);
        CVQFont font = someFont();
        font.ReadRegistry(-1);
        EXPECT_TRUE(isSame(font, atThisResolution(expected)));
        font.ReadRegistry(0);
        EXPECT_TRUE(isSame(font, atThisResolution(someFont())));
    }
}

TEST_F(FontInRegistry, KeepsWhatIsMissing)
{
    CVQFont font = someFont();
    font.ReadRegistry(1);
    EXPECT_TRUE(isSame(font, atThisResolution(someFont())));
    CVQRegistry::WriteProfileUINT(L"DrawProperty", L"UI_Ctrl_FontItalic_1", 257);
    CVQRegistry::WriteProfileUINT(L"DrawProperty", L"UI_Ctrl_FontShade_1", 0);
    font.ReadRegistry(1);
    CVQFont expected = atThisResolution(someFont());
    expected.m_bShadow = false;
    EXPECT_TRUE(isSame(font, expected)) << "257 is 1 in a byte";
}

} // namespace
} // namespace vq::test::cvqFontProfileTests
