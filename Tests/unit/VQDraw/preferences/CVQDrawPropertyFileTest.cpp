// SPDX-License-Identifier: MIT
// Preferences in their file: every key, and what is read back.
#include "ExpectedPreferences.h"
#include "StoredPreferences.h"

#include "VQDraw/VQDrawingAPI.h"
#include "support/TemporaryFolder.h"
#include "vqCommonBase/VQProcess.h"
#include "vqCommonBase/VQRegistry.h"
#include "vqCommonBase/VQShellAPI.h"

#include <clocale>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <random>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

class PreferenceFile : public Preferences
{
protected:
    CString path() const { return m_path.c_str(); }
    void write(std::string_view bytes) const { writeBytes(m_path, bytes); }
    std::string text() const
    {
        std::string text = bytesOfFile(m_path);
        std::erase(text, '\r');
        return text;
    }

    const TemporaryFolder m_folder{L"Pr\u00E9f\u00E9rences \u4E2D"};
    const std::wstring m_path = m_folder / L"vqPreference.kpf";
};

std::string asciiOf(const std::wstring& name)
{
    return {name.begin(), name.end()};
}

/// Fonts whose every field tells its row.
void numberFonts()
{
    for (int i = 0; i < DPF_END; ++i) {
        CVQFont& font = Store::m_Font[i];
        font.m_uiColor = 0x00FF0000u + static_cast<COLORREF>(i);
        font.m_iNominalSize = -11 - i;
        font.m_LogFont.lfWeight = 400 + i;
        font.m_LogFont.lfItalic = static_cast<BYTE>(i % 2);
        font.m_LogFont.lfCharSet = static_cast<BYTE>(200 + i);
        font.m_LogFont.lfPitchAndFamily = 34;
        font.m_bShadow = i % 2 == 1;
        platform::setFaceName(font.m_LogFont, L"Face " + std::to_wstring(i));
    }
}

/// Heights follow from the nominal size and the screen.
void leaveHeightsAside(StoredPreferences& stored)
{
    for (CVQFont& font : stored.fonts) {
        font.m_LogFont.lfHeight = 0;
        font.m_iPointHeight = 0;
    }
}

/// Values that a file gives back exactly: multiples of 1/255, opaque colours, any other floats.
void fillAtRandom(unsigned seed)
{
    std::mt19937 random(seed);
    const auto below = [&](unsigned count) { return static_cast<int>(random() % count); };
    const auto channels = [&](float(&row)[4]) {
        std::ranges::generate(row, [&] { return static_cast<float>(below(256)) / 255.0f; });
    };
    const auto colour = [&] { return CVQColor(static_cast<BYTE>(below(256)), static_cast<BYTE>(below(256)), 7); };
    const auto real = [&] { return static_cast<float>(below(1'000'000)) / 777.0f - 300; };

    for (auto& row : Store::m_fColor)
        channels(row);
    for (const int row : {DPC_LIGHT0POS, DPC_LIGHT1POS, DPC_LIGHT2POS, DPC_LIGHT3POS})
        std::ranges::generate(Store::m_fColor[row], real);
    std::ranges::generate(Store::m_fSize, real);
    std::ranges::generate(Store::m_ucUICtrlAlpha, [&] { return static_cast<BYTE>(below(256)); });
    std::ranges::generate(Store::m_UICtrlColor, colour);
    std::ranges::generate(Store::m_ReportColor, colour);
    for (CVQMaterial& material : Store::m_Material) {
        channels(material.m_fAmbient);
        channels(material.m_fDiffuse);
        channels(material.m_fSpecular);
        material.m_fShininess = real();
        material.m_fAlpha = real();
    }
    numberFonts();
    for (CVQFont& font : Store::m_Font)
        font.m_iNominalSize = -below(40);
}

std::string expectedFile()
{
    const std::filesystem::path data = std::filesystem::path(VQDRAW_SOURCE_DIR) / "Tests/unit/VQDraw/preferences/data";
    std::ifstream file(data / "vqPreference.kpf", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST_F(PreferenceFile, HasEveryKeyOfTheTable)
{
    const std::string expected = expectedFile();
    ASSERT_FALSE(expected.empty());
    numberFonts();
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    EXPECT_EQ(text(), expected);
}

TEST_F(PreferenceFile, GivesBackWhatWasWritten)
{
    fillAtRandom(1);
    StoredPreferences written = StoredPreferences::now();
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    fillAtRandom(2);
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    StoredPreferences read = StoredPreferences::now();
    leaveHeightsAside(written);
    leaveHeightsAside(read);
    // Some things are not in the file.
    written.colours[DPC_TEXTUREMAT_SHININESS] = read.colours[DPC_TEXTUREMAT_SHININESS];
    EXPECT_TRUE(read == written);
}

TEST_F(PreferenceFile, LeavesAloneWhatItDoesNotHold)
{
    scribble();
    const StoredPreferences written = StoredPreferences::now();
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    preferencesAtStart().restore();
    Store::m_fColor[DPC_TEXTUREMAT_SHININESS][0] = 77;
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    const StoredPreferences& start = preferencesAtStart();
    EXPECT_EQ(Store::m_fColor[DPC_TEXTUREMAT_SHININESS][0], 77.0f);
    EXPECT_EQ(Store::m_ucFloatDialogAlpha, start.floatDialogAlpha);
    EXPECT_EQ(StoredPreferences::now().histogramColours, start.histogramColours);
    EXPECT_TRUE(StoredPreferences::now().palette.empty());
    EXPECT_EQ(StoredPreferences::now().sizes, written.sizes);
}

TEST_F(PreferenceFile, RoundsColoursTo255ths)
{
    Store::m_fColor[DPC_TEMPENTITY][3] = 0.65f;
    Store::m_fColor[DPC_GRID][0] = 0.5f;
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    EXPECT_EQ(Store::m_fColor[DPC_TEMPENTITY][3], 165 / 255.0f);
    EXPECT_EQ(Store::m_fColor[DPC_GRID][0], 127 / 255.0f);
}

TEST_F(PreferenceFile, CutsChannelsOutsideTheirRangeToEightBits)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const std::array<float, 4> strange{2.0f, -1.0f, nan, 1e20f}; // 510, -255, none, 2147483647
    std::ranges::copy(strange, Store::m_fColor[DPC_GRID]);
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    EXPECT_EQ(CVQRegistry::GetProfileUINT(L"<DPC>", L"DPC_GRID", 0, path()), 0xFF0001FEu);
}

TEST_F(PreferenceFile, OfSizesOnlyChangesSizesOnly)
{
    write("[<DPS>]\nDPS_VERTEX=7.25\n");
    scribble(); // floats that are no multiples of 1/255, colours that are not opaque
    StoredPreferences expected = StoredPreferences::now();
    expected.sizes[DPS_VERTEX] = 7.25f;
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    StoredPreferences read = StoredPreferences::now();
    leaveHeightsAside(expected);
    leaveHeightsAside(read);
    EXPECT_TRUE(read == expected);
}

TEST_F(PreferenceFile, KeepsValuesWhoseTextIsNoNumber)
{
    write("[<DPC>]\nDPC_GRID=red\n[<DPS>]\nDPS_VERTEX=1,5\n[<UIDPC>]\nDPC_UI_CTRL_BG=\n[<UIAlpha>]\nDPC_UI_CTRL_ALPHA="
          "x\n");
    const StoredPreferences before = StoredPreferences::now();
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    const StoredPreferences after = StoredPreferences::now();
    EXPECT_EQ(after.colours, before.colours);
    EXPECT_EQ(after.sizes, before.sizes);
    EXPECT_EQ(after.controlColours, before.controlColours);
    EXPECT_EQ(after.controlAlphas, before.controlAlphas);
}

TEST_F(PreferenceFile, MayHoldTheNumberZero)
{
    write("[<DPC>]\nDPC_GRID=0\n[<UIDPC>]\nDPC_UI_CTRL_BG=0\nDPC_REPORT_BACKGROUND_COLOR=0\n[<UIAlpha>]\nDPC_UI_CTRL_"
          "ALPHA=511\n");
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    EXPECT_EQ(StoredPreferences::now().colours[DPC_GRID], (std::array<float, 4>{}));
    EXPECT_EQ(Store::m_UICtrlColor[DPC_UI_CTRL_BG], CVQColor(0, 0, 0));
    EXPECT_EQ(Store::m_ReportColor[DPC_REPORT_BACKGROUND_COLOR], CVQColor(0, 0, 0));
    EXPECT_EQ(Store::m_ucUICtrlAlpha[DPC_UI_CTRL_ALPHA], 255); // of which the low byte counts
}

TEST_F(PreferenceFile, ThatIsMissingChangesNothing)
{
    scribble();
    const StoredPreferences before = StoredPreferences::now();
    EXPECT_EQ(Store::ReadPreferenceFromFile(path()), 0);
    EXPECT_EQ(Store::ReadPreferenceFromFile(CString()), 0);
    EXPECT_TRUE(StoredPreferences::now() == before);
}

TEST_F(PreferenceFile, GivesItsColourToTheSelectionShapes)
{
    write("[<DPC>]\nDPC_SELECTION_TOOL=4278387474\n"); // 0xFF030312
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    EXPECT_EQ(CVQDrawingAPI::DragBox()->GetColor(), 0x030312u);
    EXPECT_EQ(CVQDrawingAPI::DragCircle()->GetColor(), 0x030312u);
    EXPECT_EQ(CVQDrawingAPI::DragLine()->GetColor(), 0x030312u);
    EXPECT_EQ(CVQDrawingAPI::DragPolygon()->GetColor(), 0x030312u);
    preferencesAtStart().restore();
    CVQDrawingAPI::UpdateSelectionColor();
}

TEST_F(PreferenceFile, KeepsWhatOthersHaveWrittenIntoIt)
{
    write("; mine\n\n[Other]\nkey = value\n\n[<DPS>]\nDPS_VERTEX=9\nDPS_NEW=1\n; the end\n");
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    EXPECT_TRUE(
        text().starts_with("; mine\n\n[Other]\nkey=value\n\n[<DPS>]\nDPS_VERTEX=2\nDPS_NEW=1\nDPS_FACEEDGE=1\n"));
    EXPECT_NE(text().find("; the end\n"), std::string::npos);
}

TEST_F(PreferenceFile, TakesOverWhatTheLegacyLayoutHeld)
{
    write("<DPS>\nDPS_VERTEX\n<Size>8\n</DPS>\n<DPS>\nDPS_CURVE\n<Size>9\n</DPS>\n[<DPS>]\nDPS_CURVE=3\n");
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    EXPECT_EQ(Store::GetSize(DPS_VERTEX), 8.0f);
    EXPECT_EQ(Store::GetSize(DPS_CURVE), 3.0f);
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    EXPECT_TRUE(text().starts_with("<DPS>\nDPS_VERTEX\n<Size>8\n</DPS>\n")); // what is newer counts more
    Store::SetSize(DPS_VERTEX, 0);
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    EXPECT_EQ(Store::GetSize(DPS_VERTEX), 8.0f);
}

TEST_F(PreferenceFile, HoldsFacesInAnyScript)
{
    const std::wstring face = L"\u660E\u671D \u00E9";
    platform::setFaceName(Store::m_Font[DPF_WIDGET_FONT].m_LogFont, face);
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    EXPECT_TRUE(bytesOfFile(m_path).starts_with("\xFF\xFE"));
    preferencesAtStart().restore();
    ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    EXPECT_EQ(platform::faceName(Store::m_Font[DPF_WIDGET_FONT].m_LogFont), face);
    EXPECT_EQ(Store::GetSize(DPS_2D_SKETCH_AUX_LINE), 0.5f);
}

TEST_F(PreferenceFile, IsTheSameUnderALocaleWithADecimalComma)
{
    numberFonts();
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* const locale : {"de_DE.UTF-8", "German"})
        std::setlocale(LC_ALL, locale);
    EXPECT_EQ(Store::WritePreferenceToFile(path()), 1);
    EXPECT_EQ(text(), expectedFile());
    Store::SetSize(DPS_2D_SKETCH_AUX_LINE, 7);
    EXPECT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    EXPECT_EQ(Store::GetSize(DPS_2D_SKETCH_AUX_LINE), 0.5f);
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(PreferenceFile, CutAnywhereGivesBackAllThatStandsBeforeTheCut)
{
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    const std::string whole = bytesOfFile(m_path);
    const std::size_t begin = whole.find("[<DPS>]");
    const std::size_t end = whole.find("[<UIDPC>]");
    for (std::size_t cut = begin; cut < end; cut += 7) {
        write(whole.substr(0, cut));
        std::ranges::fill(Store::m_fSize, -1.0f);
        ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
        for (const auto& [id, number, name, value] : kExpectedSizes) {
            const std::size_t line = whole.find("\n" + asciiOf(name) + "=", begin) + 1;
            const bool isWhole = whole.find('\n', line) <= cut;
            if (isWhole || line >= cut) {
                ASSERT_EQ(Store::m_fSize[id], isWhole ? value : -1.0f) << name << " cut at " << cut;
            }
        }
    }
}

TEST_F(PreferenceFile, OfNoiseIsRead)
{
    std::mt19937 random(1);
    ASSERT_EQ(Store::WritePreferenceToFile(path()), 1);
    const std::string whole = bytesOfFile(m_path);
    for (int round = 0; round < 100; ++round) {
        std::string noise = whole;
        for (auto change = random() % 2000; change > 0; --change)
            noise[random() % noise.size()] = static_cast<char>(random() % 256);
        write(noise);
        ASSERT_EQ(Store::ReadPreferenceFromFile(path()), 1);
    }
}

class PreferencePlaces : public PreferenceFile
{
protected:
    PreferencePlaces()
    {
        for (const std::wstring& folder : {m_program, m_documents})
            EXPECT_TRUE(CreateDirectoryW(folder.c_str(), nullptr));
        CVQProcess::SetBootPath(m_program.c_str());
        CVQProcess::SetMyDocumentPath(m_documents.c_str());
    }
    ~PreferencePlaces() override
    {
        CVQProcess::SetBootPath(L"");
        CVQProcess::SetMyDocumentPath(L"");
    }

    const std::wstring m_program = m_folder / L"program";
    const std::wstring m_documents = m_folder / L"documents";
    const CString m_ofMachine = (m_program + L"\\Configure\\vqPreference.kpf").c_str();
    const CString m_ofUser = (m_documents + L"\\Configure\\vqPreference.kpf").c_str();
};

TEST_F(PreferencePlaces, AreBelowTheFoldersOfTheProgramAndOfTheUser)
{
    EXPECT_EQ(Store::GetDisplayFileFullPath(1), m_ofMachine);
    EXPECT_EQ(Store::GetDisplayFileFullPath(-1), m_ofMachine);
    EXPECT_EQ(Store::GetDisplayFileFullPath(0), m_ofUser);
}

TEST_F(PreferencePlaces, GetAFileOfTheMachineWhenItHasNone)
{
    Store::SetSize(DPS_VERTEX, 7.5f);
    EXPECT_EQ(Store::ReadPreferenceFromFile(), m_ofMachine);
    EXPECT_TRUE(CVQShellAPI::IsPathExist(m_ofMachine));
    EXPECT_FALSE(CVQShellAPI::IsPathExist(m_ofUser));
    EXPECT_EQ(CVQRegistry::GetProfileFLOAT(L"<DPS>", L"DPS_VERTEX", 0, m_ofMachine), 7.5f);
    Store::SetSize(DPS_VERTEX, 1);
    EXPECT_EQ(Store::ReadPreferenceFromFile(), m_ofMachine);
    EXPECT_EQ(Store::GetSize(DPS_VERTEX), 7.5f);
}

TEST_F(PreferencePlaces, ReadTheUsersFileFirst)
{
    Store::SetSize(DPS_VERTEX, 7.5f);
    EXPECT_EQ(Store::WritePreferenceToFile(0), m_ofUser);
    Store::SetSize(DPS_VERTEX, 1);
    EXPECT_EQ(Store::ReadPreferenceFromFile(), m_ofUser);
    EXPECT_EQ(Store::GetSize(DPS_VERTEX), 7.5f);
    EXPECT_EQ(CVQRegistry::GetProfileFLOAT(L"<DPS>", L"DPS_VERTEX", 0, m_ofMachine), 1.0f); // written before that
}

TEST_F(PreferencePlaces, AreMadeWritableByTheFormThatKnowsThem)
{
    ASSERT_EQ(Store::WritePreferenceToFile(1), m_ofMachine);
    ASSERT_TRUE(SetFileAttributesW(m_ofMachine, FILE_ATTRIBUTE_READONLY));
    Store::SetSize(DPS_VERTEX, 7.5f);
    EXPECT_EQ(Store::WritePreferenceToFile(m_ofMachine), 0);
    EXPECT_EQ(CVQRegistry::GetProfileFLOAT(L"<DPS>", L"DPS_VERTEX", 0, m_ofMachine), 2.0f);
    EXPECT_EQ(Store::WritePreferenceToFile(1), m_ofMachine);
    EXPECT_EQ(CVQRegistry::GetProfileFLOAT(L"<DPS>", L"DPS_VERTEX", 0, m_ofMachine), 7.5f);
}

TEST_F(PreferencePlaces, ThatCannotBeWrittenGiveNoPath)
{
    CVQProcess::SetBootPath((m_program + L"/missing").c_str());
    CVQProcess::SetMyDocumentPath((m_program + L"/missing").c_str());
    EXPECT_TRUE(Store::WritePreferenceToFile(1).IsEmpty());
    EXPECT_TRUE(Store::WritePreferenceToFile(0).IsEmpty());
    EXPECT_TRUE(Store::ReadPreferenceFromFile().IsEmpty());
    EXPECT_EQ(Store::WritePreferenceToFile(CString((m_program + L"/other/vqPreference.kpf").c_str())), 0);
    EXPECT_EQ(Store::WritePreferenceToFile(CString()), 0);
    EXPECT_FALSE(CVQShellAPI::IsPathExist((m_program + L"/other").c_str()));
}

TEST_F(PreferencePlaces, AreSavedByAGuardThatIsThereAlready)
{
    {
        const CVQRegistry::FileScope scope(path());
        EXPECT_EQ(Store::WritePreferenceToFile(path()), 1);
        EXPECT_FALSE(CVQShellAPI::IsPathExist(path()));
    }
    EXPECT_TRUE(CVQShellAPI::IsPathExist(path()));
}

} // namespace
} // namespace vq::test
