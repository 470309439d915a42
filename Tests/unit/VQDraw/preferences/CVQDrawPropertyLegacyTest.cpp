// SPDX-License-Identifier: MIT
#include "ExpectedPreferences.h"
#include "Resolution.h"
#include "StoredPreferences.h"

#include "VQDraw/VQDrawingAPI.h"
#include "parity/Encoders.h"

#include <clocale>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

class LegacyPreferences : public Preferences
{
protected:
    void SetUp() override
    {
        Preferences::SetUp();
        scribble();
        m_expected = StoredPreferences::now();
    }

    static int read(const std::string& content)
    {
        const TemporaryFile file(L"vqPreference.kpf");
        file.write(content);
        return Store::ReadPreferenceFromFileLegacy(file.path());
    }

    /// Whether the preferences are the expected ones after the file has been read.
    bool becomesExpected(const std::string& content)
    {
        EXPECT_NE(read(content), 0);
        return StoredPreferences::now() == m_expected;
    }

    StoredPreferences m_expected = StoredPreferences::now();
};

std::string ascii(const wchar_t* name)
{
    const std::wstring wide = name;
    return {wide.begin(), wide.end()};
}

std::string numbered(std::initializer_list<const char*> tags, int first)
{
    std::string lines;
    for (const char* tag : tags)
        lines += "<" + std::string(tag) + ">" + std::to_string(first++) + "\n";
    return lines;
}

/// `<kind>`, the name, and what is given for the rest but for the closing line.
std::string block(const std::string& kind, const std::string& name, const std::string& lines)
{
    return "<" + kind + ">\n" + name + "\n" + lines + "</" + kind + ">\n";
}

bool isLightPosition(int number)
{
    return number == 3 || number == 7 || number == 11 || number == 15;
}

TEST_F(LegacyPreferences, HoldEverySceneColour)
{
    std::string content;
    for (const auto& row : kExpectedSceneColours) {
        std::array<float, 4>& values = m_expected.colours[row.id];
        if (isLightPosition(row.number)) {
            content += block("DPC", ascii(row.name), numbered({"X", "Y", "Z", "W"}, row.number));
            for (std::size_t i = 0; i < 4; ++i)
                values[i] = static_cast<float>(row.number + static_cast<int>(i));
        } else {
            content += block("DPC", ascii(row.name), numbered({"Red", "Green", "Blue", "Alpha"}, row.number));
            for (std::size_t i = 0; i < 3; ++i)
                values[i] = static_cast<float>((row.number + static_cast<int>(i)) / 255.0); // alpha stays
        }
    }
    EXPECT_TRUE(becomesExpected(content));
}

TEST_F(LegacyPreferences, HoldEverySize)
{
    std::string content;
    for (const auto& row : kExpectedSizes) {
        content += block("DPS", ascii(row.name), "<Size>" + std::to_string(row.number) + ".5\n");
        m_expected.sizes[row.id] = static_cast<float>(row.number) + 0.5f;
    }
    EXPECT_TRUE(becomesExpected(content));
}

TEST_F(LegacyPreferences, HoldEveryColourAndAlphaOfControls)
{
    std::string content;
    for (const auto& row : kExpectedControlColours) {
        content += block("UIDPC", ascii(row.name), numbered({"Red", "Green", "Blue"}, 200 + row.number));
        m_expected.controlColours[row.id] =
            CVQColor(static_cast<BYTE>(200 + row.number), static_cast<BYTE>(201 + row.number),
                     static_cast<BYTE>(202 + row.number), 255);
    }
    for (const auto& row : kExpectedAlphas) {
        content += block("UIAlpha", ascii(row.name), numbered({"Alpha"}, 100 + row.number));
        m_expected.controlAlphas[row.id] = static_cast<BYTE>(100 + row.number);
    }
    EXPECT_TRUE(becomesExpected(content));
}

TEST_F(LegacyPreferences, HoldEveryColourOfReports)
{
    std::string content;
    for (const auto& row : kExpectedReportColours) {
        content += block("ReportDPC", ascii(row.name), numbered({"Red", "Green", "Blue"}, 10 * row.number));
        m_expected.reportColours[row.id] =
            CVQColor(static_cast<BYTE>(10 * row.number), static_cast<BYTE>(10 * row.number + 1),
                     static_cast<BYTE>(10 * row.number + 2), 255);
    }
    EXPECT_TRUE(becomesExpected(content));
}

TEST_F(LegacyPreferences, HoldNoColoursOfHistograms)
{
    EXPECT_TRUE(becomesExpected(block("DPC", "DPC_HIST_AVERAGE", "<Red>9\n") +
                                block("ReportDPC", "DPC_HIST_AVERAGE", "<Red>9\n")));
}

TEST_F(LegacyPreferences, HoldEveryMaterial)
{
    std::string content;
    for (const auto& row : kExpectedMaterials) {
        const auto colour = [&](const std::string& part, int first) {
            return "<" + part + ">\n" + numbered({"Red", "Green", "Blue"}, first + row.number) + "</" + part + ">\n";
        };
        content += block("Material", ascii(row.name),
                         "<Shiness>" + std::to_string(row.number) + ".5\n<Alpha>0.25\n" + colour("Ambient", 20) +
                             colour("Diffuse", 40) + colour("Specular", 60));
        CVQMaterial& material = m_expected.materials[row.id];
        for (int i = 0; i < 3; ++i) {
            material.m_fAmbient[i] = static_cast<float>((20 + row.number + i) / 255.0);
            material.m_fDiffuse[i] = static_cast<float>((40 + row.number + i) / 255.0);
            material.m_fSpecular[i] = static_cast<float>((60 + row.number + i) / 255.0);
        }
        material.m_fAmbient[3] = material.m_fDiffuse[3] = material.m_fSpecular[3] = material.m_fAlpha = 0.25f;
        material.m_fShininess = static_cast<float>(row.number) + 0.5f;
    }
    EXPECT_TRUE(becomesExpected(content));
}

TEST_F(LegacyPreferences, HoldEveryFont)
{
    std::string content;
    for (const auto& row : kExpectedFonts) {
        content += block("Font", ascii(row.name), "<Color>" + std::to_string(row.number) + "\n<lfHeight>-20\n");
        m_expected.fonts[row.id].m_uiColor = static_cast<COLORREF>(row.number);
        m_expected.fonts[row.id].m_iNominalSize = -20; // and the heights stay
    }
    EXPECT_TRUE(becomesExpected(content));
}

TEST_F(LegacyPreferences, TakeZeroForWhatAColourDoesNotMention)
{
    m_expected.colours[DPC_GRID] = {static_cast<float>(51 / 255.0), 0, static_cast<float>(102 / 255.0), 0.125f};
    m_expected.colours[DPC_LIGHT0POS] = {5, 0, 0, 0};
    m_expected.controlColours[DPC_UI_CTRL_BG] = CVQColor(0, 7, 0, 255);
    m_expected.reportColours[DPC_REPORT_TEXT_COLOR] = CVQColor(0, 0, 0, 255);
    m_expected.controlAlphas[DPC_UI_MGR_ALPHA] = 0;
    EXPECT_TRUE(
        becomesExpected(block("DPC", "DPC_GRID", "<Red>51\n<Blue>102\n") + block("DPC", "DPC_LIGHT0POS", "<X>5\n") +
                        block("UIDPC", "DPC_UI_CTRL_BG", "<Green>7\n") +
                        block("ReportDPC", "DPC_REPORT_TEXT_COLOR", "") + block("UIAlpha", "DPC_UI_MGR_ALPHA", "")));
}

TEST_F(LegacyPreferences, TakeMinusOneForASizeOrAnAlphaOfAMaterialThatIsNotMentioned)
{
    m_expected.sizes[DPS_VERTEX] = 5;
    m_expected.sizes[DPS_GDT_ARROW] = -1; // that of the block before is not carried over
    CVQMaterial& body = m_expected.materials[DPM_BODY];
    body.m_fAlpha = body.m_fAmbient[3] = body.m_fDiffuse[3] = body.m_fSpecular[3] = -1;
    m_expected.sizes[DPS_CURVE] = -1;
    CVQMaterial& torus = m_expected.materials[DPM_REGION_TORUS];
    torus.m_fAlpha = torus.m_fAmbient[3] = torus.m_fDiffuse[3] = torus.m_fSpecular[3] = 0.75f;
    EXPECT_TRUE(becomesExpected(block("DPS", "DPS_VERTEX", "<Size>5\n") + block("DPS", "DPS_GDT_ARROW", "") +
                                block("Material", "DPM_BODY", "") +
                                block("Material", "DPM_REGION_TORUS", "<Alpha>0.75\n") +
                                block("DPS", "DPS_CURVE", "")));
}

TEST_F(LegacyPreferences, KeepWhatAMaterialDoesNotMentionButItsAlpha)
{
    CVQMaterial& cone = m_expected.materials[DPM_REGION_CONE];
    cone.m_fDiffuse[1] = static_cast<float>(127.5 / 255.0);
    cone.m_fAlpha = cone.m_fAmbient[3] = cone.m_fDiffuse[3] = cone.m_fSpecular[3] = 1;
    EXPECT_TRUE(becomesExpected(block("Material", "DPM_REGION_CONE",
                                      "<Alpha>1\n<Diffuse>\n<Green>127.5\n</Diffuse>\n<Specular>\n</Specular>\n")));
}

TEST_F(LegacyPreferences, KeepPartsOfAMaterialApart)
{
    CVQMaterial& cone = m_expected.materials[DPM_REGION_CONE];
    cone.m_fAmbient[0] = 1;
    cone.m_fAlpha = cone.m_fAmbient[3] = cone.m_fDiffuse[3] = cone.m_fSpecular[3] = 0.5f;
    EXPECT_TRUE(becomesExpected(block("Material", "DPM_REGION_CONE",
                                      "<Alpha>0.5\n<Red>9\n"  // of no part
                                      "<AMBIENT>\n<Red>255\n" // in either case
                                      "<Alpha>0.25\n<Shiness>3\n</Diffuse>\n</aMBIENT>\n<Red>9\n")));
}

TEST_F(LegacyPreferences, ReadIntegersAsSuchAndCutThem)
{
    m_expected.colours[DPC_GRID] = {static_cast<float>(300 / 255.0), static_cast<float>(-51 / 255.0),
                                    static_cast<float>(1 / 255.0), 0.125f};
    m_expected.controlColours[DPC_UI_CTRL_BG] = CVQColor(255, 0, 1, 255); // as CVQColor limits them
    m_expected.controlAlphas[DPC_UI_CTRL_ALPHA] = 0x2C;                   // 300
    EXPECT_TRUE(becomesExpected(block("DPC", "DPC_GRID", "<Red>300\n<Green>-51\n<Blue>1.9\n") +
                                block("UIDPC", "DPC_UI_CTRL_BG", "<Red>300\n<Green>-51\n<Blue>1.9\n") +
                                block("UIAlpha", "DPC_UI_CTRL_ALPHA", "<Alpha>300\n")));
}

TEST_F(LegacyPreferences, StripTheCharactersOfATagFromItsLine)
{
    m_expected.sizes[DPS_VERTEX] = 5;
    m_expected.sizes[DPS_CURVE] = 0;
    m_expected.sizes[DPS_GDT_ARROW] = 7;
    EXPECT_TRUE(becomesExpected(block("DPS", "DPS_VERTEX", "zeSiS<Size>Size 5\n") // what is left is " 5"
                                + block("DPS", "DPS_CURVE", "  <Size>5\n")        // a blank is none of the tag
                                + block("DPS", "DPS_GDT_ARROW", "\t<Size> 7 \t\n")));
}

TEST_F(LegacyPreferences, TakeTheLastOfTwoLinesAndTheFirstOfTwoTags)
{
    m_expected.colours[DPC_GRID] = {static_cast<float>(2 / 255.0), static_cast<float>(3 / 255.0), 0, 0.125f};
    EXPECT_TRUE(becomesExpected(block("DPC", "DPC_GRID", "<Red>1\n<Green>3<Blue>4\n<Red>2\n")));
}

TEST_F(LegacyPreferences, PassOverBlocksOfUnknownNames)
{
    std::string content;
    for (const std::string kind : {"DPC", "DPS", "UIDPC", "UIAlpha", "Material", "ReportDPC"})
        for (const std::string name : {"DPC_END", "dpc_grid", "", "DPC_GRID "})
            content += block(kind, name, "<DPS>\nDPS_VERTEX\n<Size>5\n</DPS>\n<Red>1\n<Alpha>1\n<X>1\n");
    // What ends the blocks is the first closing line of their kind: that of <DPS> is the inner one.
    EXPECT_TRUE(becomesExpected(content));
    EXPECT_TRUE(becomesExpected(block("Font", "DPF_END", "<Color>5\n<Size>5\n")));
}

TEST_F(LegacyPreferences, TakeTheLineBehindTheOpeningOneForTheName)
{
    EXPECT_TRUE(becomesExpected("<DPS>\n\nDPS_VERTEX\n<Size>5\n</DPS>\n")) << "an empty name";
    EXPECT_TRUE(becomesExpected("<DPS>\n</DPS>\n<DPS>\nDPS_VERTEX\n<Size>5\n</DPS>\n")) << "a block in a block";
    m_expected.sizes[DPS_VERTEX] = 5;
    EXPECT_TRUE(becomesExpected("<DPS>\n\tDPS_VERTEX\t\n<Size>5\n</DPS>\n"));
}

TEST_F(LegacyPreferences, HaveNoUseForUnfinishedBlocks)
{
    const std::string blocks[]{
        block("DPC", "DPC_GRID", "<Red>1\n"),
        block("DPS", "DPS_VERTEX", "<Size>1\n"),
        block("UIDPC", "DPC_UI_CTRL_BG", "<Red>1\n"),
        block("UIAlpha", "DPC_UI_CTRL_ALPHA", "<Alpha>9\n"),
        block("Material", "DPM_BODY", "<Alpha>1\n<Ambient>\n<Red>1\n</Ambient>\n"),
        block("ReportDPC", "DPC_REPORT_TEXT_COLOR", "<Red>1\n"),
    };
    for (const std::string& content : blocks) {
        for (std::size_t length = 0; length + 2 < content.size(); ++length) // before the last >
            EXPECT_TRUE(becomesExpected(content.substr(0, length))) << content << length;
        EXPECT_NE(read(content), 0);
        EXPECT_FALSE(StoredPreferences::now() == m_expected) << content;
        m_expected.restore();
    }
    EXPECT_TRUE(becomesExpected("<Material>\nDPM_BODY\n<Ambient>\n<Red>1\n</Material>\n")) << "an unfinished part";
}

TEST_F(LegacyPreferences, LetAFontEndWithTheFile)
{
    CVQFont& font = m_expected.fonts[DPF_WIDGET_FONT];
    font.m_uiColor = 5;
    font.m_iNominalSize = -20;
    font.m_LogFont.lfHeight = pixelHeight(-20);
    font.m_iPointHeight = pointHeight(-20);
    EXPECT_TRUE(becomesExpected("<Font>\nDPF_WIDGET_FONT\n<Color>5\n<lfHeight>-20\n"));
    m_expected.restore();
    EXPECT_TRUE(becomesExpected("<Font>\n")) << "no name";
}

TEST_F(LegacyPreferences, GoOnBehindAFont)
{
    m_expected.fonts[DPF_WIDGET_FONT].m_uiColor = 5;
    m_expected.fonts[DPF_GDT_ANNOT_FONT].m_uiColor = 6;
    m_expected.sizes[DPS_VERTEX] = 5;
    EXPECT_TRUE(becomesExpected(block("Font", "DPF_WIDGET_FONT", "<Color>5\n") +
                                block("Font", "DPF_GDT_ANNOT_FONT", "<Color>6\n") +
                                block("DPS", "DPS_VERTEX", "<Size>5\n")));
}

TEST_F(LegacyPreferences, HoldTheAlphaOfFloatingDialogsOnALineOfItsOwn)
{
    const std::pair<std::string, int> alphas[]{{"77\n", 77}, {"-1\n", 1},   {"", 1},        {"\n", 0},
                                               {"x\n", 0},   {"300", 0x2C}, {"-2\n", 0xFE}, {"<Alpha>5\n", 0}};
    for (const auto& [line, alpha] : alphas) {
        Store::m_ucFloatDialogAlpha = 1;
        m_expected.floatDialogAlpha = static_cast<BYTE>(alpha);
        EXPECT_TRUE(becomesExpected("<FloatDialog>\n" + line)) << line;
    }
}

TEST_F(LegacyPreferences, OpenBlocksInEitherCaseButInNoOtherWay)
{
    m_expected.sizes[DPS_VERTEX] = 5;
    EXPECT_TRUE(becomesExpected("\t<dPs>\t\nDPS_VERTEX\n<Size>5\n</Dps>\n"));
    EXPECT_TRUE(becomesExpected(" <DPS>\nDPS_CURVE\n<Size>5\n</DPS>\n"));
    EXPECT_TRUE(becomesExpected("<DPS> \nDPS_CURVE\n<Size>5\n</DPS>\n"));
    EXPECT_TRUE(becomesExpected("x<DPS>\nDPS_CURVE\n<Size>5\n</DPS>\n"));
    EXPECT_TRUE(becomesExpected("<DPS>\nDPS_CURVE\n<Size>5\n </DPS>\n</DPS>x\n")) << "never closed";
    m_expected.sizes[DPS_CURVE] = -1;
    EXPECT_TRUE(becomesExpected("<DPS>\nDPS_CURVE\n<size>5\n</DPS>\n")) << "a property's tag has its own letters";
}

TEST_F(LegacyPreferences, AreNotFoundInCurrentFiles)
{
    std::string content =
        "[<DPC>]\nDPC_GRID=4278190080\n[DPC_LIGHT0POS]\n<X>=1.5\n[<DPS>]\nDPS_VERTEX=9\n"
        "[<UIDPC>]\nDPC_UI_CTRL_BG=255\n[<UIAlpha>]\nDPC_UI_CTRL_ALPHA=9\n"
        "[DPM_BODY]\n<Shiness>=9\n<Alpha>=9\n<Ambient>=9\n[DPF_UI_CTRL_FONT]\n<Color>=9\n<lfHeight>=9\n";
    EXPECT_TRUE(becomesExpected(content));
    std::string utf16 = "\xFF\xFE";
    for (const char letter : content)
        utf16 += {letter, '\0'};
    EXPECT_TRUE(becomesExpected(utf16));
}

TEST_F(LegacyPreferences, MayBeEncodedInEveryWay)
{
    const std::string content =
        block("DPS", "DPS_VERTEX", "<Size>5\n") + block("Font", "DPF_WIDGET_FONT", "<Color>5\n");
    m_expected.sizes[DPS_VERTEX] = 5;
    m_expected.fonts[DPF_WIDGET_FONT].m_uiColor = 5;
    std::string little = "\xFF\xFE";
    std::string big = "\xFE\xFF";
    std::string windows;
    for (const char letter : content) {
        little += {letter, '\0'};
        big += {'\0', letter};
        windows += letter == '\n' ? "\r\n" : std::string(1, letter);
    }
    const StoredPreferences before = StoredPreferences::now();
    for (const std::string& encoded :
         {content, little, big, windows, "\xEF\xBB\xBF" + content, "\xE4\xF6\xFC\n" + content,
          content.substr(0, content.size() - 1), little.substr(0, little.size() - 2)}) {
        before.restore();
        EXPECT_TRUE(becomesExpected(encoded)) << encoded;
    }
}

TEST_F(LegacyPreferences, AreTheSameInEveryLocale)
{
    m_expected.sizes[DPS_VERTEX] = 1.5f;
    m_expected.colours[DPC_LIGHT0POS] = {1.5f, -2, 0, 0};
    const StoredPreferences start = StoredPreferences::now();
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C", "C.UTF-8", "de_DE.UTF-8", "de_DE.utf8", "de_DE", "German"}) {
        if (!std::setlocale(LC_ALL, locale))
            continue;
        start.restore();
        EXPECT_TRUE(becomesExpected(block("DPS", "DPS_VERTEX", "<Size>1.5\n") +
                                    block("DPC", "DPC_LIGHT0POS", "<X>1.5\n<Y>-2,5\n")))
            << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(LegacyPreferences, HaveLinesOfLimitedLength)
{
    m_expected.sizes[DPS_VERTEX] = 5;
    const auto content = [](const std::string& line) { return "<DPS>\nDPS_VERTEX\n" + line + "<Size>5\n</DPS>\n"; };
    EXPECT_TRUE(becomesExpected(content(std::string(199, 'x')))) << "the tag begins a piece of its own";
    EXPECT_TRUE(becomesExpected(content(std::string(2'000'000, 'x') + "\n")));
    m_expected.sizes[DPS_VERTEX] = -1;
    EXPECT_TRUE(becomesExpected(content(std::string(195, 'x')))) << "the tag is cut in two";
    EXPECT_TRUE(becomesExpected("<DPS>\n" + std::string(191, '\t') + "DPS_CURVE\n</DPS>\n")) << "the name is cut";
    m_expected.sizes[DPS_CURVE] = -1;
    EXPECT_TRUE(becomesExpected("<DPS>\n" + std::string(190, '\t') + "DPS_CURVE\n</DPS>\n"));
}

TEST_F(LegacyPreferences, ThatAreMissingChangeNothing)
{
    const TemporaryFile missing(L"missing");
    EXPECT_EQ(Store::ReadPreferenceFromFileLegacy(missing.path()), 0);
    EXPECT_EQ(Store::ReadPreferenceFromFileLegacy(L""), 0);
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    EXPECT_EQ(Store::ReadPreferenceFromFileLegacy(folder), 0) << "a folder";
    EXPECT_TRUE(StoredPreferences::now() == m_expected);
}

TEST_F(LegacyPreferences, OfAnEmptyFileChangeNothing)
{
    EXPECT_TRUE(becomesExpected(""));
    EXPECT_TRUE(becomesExpected(std::string(1000, '\0')));
}

TEST_F(LegacyPreferences, GiveTheShapesTheSelectionColour)
{
    CVQDrawingAPI::SetSelectionColor(RGB(1, 2, 3));
    read(block("DPC", "DPC_SELECTION_TOOL", "<Red>10\n<Green>20\n<Blue>30\n"));
    EXPECT_EQ(CVQDrawingAPI::DragBox()->GetColor(), RGB(10, 20, 30));
    EXPECT_EQ(CVQDrawingAPI::DragCircle()->GetColor(), RGB(10, 20, 30));
    EXPECT_EQ(CVQDrawingAPI::DragPolygon()->GetColor(), RGB(10, 20, 30));
    EXPECT_EQ(CVQDrawingAPI::DragLine()->GetColor(), RGB(10, 20, 30));

    CVQDrawingAPI::SetSelectionColor(RGB(1, 2, 3));
    read("");
    EXPECT_EQ(CVQDrawingAPI::DragBox()->GetColor(), RGB(10, 20, 30)) << "of a file without colours too";

    const TemporaryFile missing(L"missing");
    CVQDrawingAPI::SetSelectionColor(RGB(1, 2, 3));
    Store::ReadPreferenceFromFileLegacy(missing.path());
    EXPECT_EQ(CVQDrawingAPI::DragBox()->GetColor(), RGB(1, 2, 3));

    CVQDrawingAPI::Destroy();
    EXPECT_NE(read(""), 0) << "no shapes";
    CVQDrawingAPI::Initialize();
}

} // namespace
} // namespace vq::test
