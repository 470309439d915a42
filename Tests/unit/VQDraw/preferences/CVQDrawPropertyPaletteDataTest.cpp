// SPDX-License-Identifier: MIT
#include "StoredPreferences.h"

#include "parity/Encoders.h"

#include <clocale>
#include <cmath>
#include <cwchar>
#include <limits>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

class MaterialFile : public Preferences
{
protected:
    /// Whether reading it succeeded.
    bool load(const std::string& content) const
    {
        m_file.write(content);
        std::FILE* file = _wfopen(m_file.path(), L"rb");
        const bool result = Store::LoadMaterialConfigData(file);
        std::fclose(file);
        return result;
    }

    std::string saved() const
    {
        std::FILE* file = _wfopen(m_file.path(), L"wb");
        EXPECT_TRUE(Store::WriteMaterialConfigData(file));
        std::fclose(file);
        const std::vector<BYTE> content = m_file.read();
        return {content.begin(), content.end()};
    }

    const TemporaryFile m_file{L"materials"};
};

CVQMaterial material(float shininess, float alpha, const std::array<float, 9>& colours)
{
    CVQMaterial made;
    std::copy_n(&colours[0], 3, made.m_fAmbient);
    std::copy_n(&colours[3], 3, made.m_fDiffuse);
    std::copy_n(&colours[6], 3, made.m_fSpecular);
    made.m_fShininess = shininess;
    made.m_fAlpha = alpha;
    return made;
}

const std::string kHeader = "; Tarvinel Material Infomation file\n\n\n";
const std::string kTwoMaterials = kHeader + "MAT_0_START\n"
                                            "MAT_0_SHINESS=30.0000\n"
                                            "MAT_0_ALPHA=1.0000\n"
                                            "MAT_0_AMBIENTR=0.1000\n"
                                            "MAT_0_AMBIENTG=0.2000\n"
                                            "MAT_0_AMBIENTB=0.3000\n"
                                            "MAT_0_DIFFUSER=0.4000\n"
                                            "MAT_0_DIFFUSEG=0.5000\n"
                                            "MAT_0_DIFFUSEB=0.6000\n"
                                            "MAT_0_SPECULARR=0.7000\n"
                                            "MAT_0_SPECULARG=0.8000\n"
                                            "MAT_0_SPECULARB=0.9000\n"
                                            "MAT_0_END\n"
                                            "MAT_1_START\n"
                                            "MAT_1_SHINESS=-2.5000\n"
                                            "MAT_1_ALPHA=0.2500\n"
                                            "MAT_1_AMBIENTR=1.0000\n"
                                            "MAT_1_AMBIENTG=0.0000\n"
                                            "MAT_1_AMBIENTB=0.0001\n"
                                            "MAT_1_DIFFUSER=1.0000\n"
                                            "MAT_1_DIFFUSEG=0.0000\n"
                                            "MAT_1_DIFFUSEB=0.3333\n"
                                            "MAT_1_SPECULARR=12345.6787\n"
                                            "MAT_1_SPECULARG=0.0000\n"
                                            "MAT_1_SPECULARB=0.6667\n"
                                            "MAT_1_END\n";

std::vector<CVQMaterial> twoMaterials()
{
    return {material(30, 1, {0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f}),
            material(-2.5f, 0.25f, {1, 0, 0.0001f, 1, 0, 0.3333f, 12345.6787f, 0, 0.6667f})};
}

void setPalette(const std::vector<CVQMaterial>& materials)
{
    Store::m_arrPalletMaterial.RemoveAll();
    for (const CVQMaterial& one : materials)
        Store::m_arrPalletMaterial.Add(one);
}

std::vector<CVQMaterial> palette()
{
    return StoredPreferences::now().palette;
}

TEST_F(MaterialFile, IsWrittenLineByLine)
{
    setPalette(twoMaterials());
    EXPECT_EQ(saved(), kTwoMaterials);
}

TEST_F(MaterialFile, IsReadLineByLine)
{
    StoredPreferences expected = StoredPreferences::now();
    expected.palette = twoMaterials();
    EXPECT_TRUE(load(kTwoMaterials));
    EXPECT_TRUE(StoredPreferences::now() == expected);
}

TEST_F(MaterialFile, OfAnEmptyPaletteIsTheHeader)
{
    EXPECT_EQ(saved(), kHeader);
    setPalette(twoMaterials());
    EXPECT_TRUE(load(kHeader));
    EXPECT_TRUE(palette().empty());
    EXPECT_EQ(Store::m_arrPalletMaterial.GetData(), nullptr) << "its memory has been given back";
}

TEST_F(MaterialFile, ReplacesThePalette)
{
    setPalette(twoMaterials());
    EXPECT_TRUE(load(kTwoMaterials));
    EXPECT_EQ(palette(), twoMaterials());
    EXPECT_TRUE(load(""));
    EXPECT_TRUE(palette().empty());
}

TEST_F(MaterialFile, HoldsNoAlphasOfColours)
{
    CVQMaterial seeThrough;
    seeThrough.m_fAmbient[3] = seeThrough.m_fDiffuse[3] = seeThrough.m_fSpecular[3] = 0.5f;
    setPalette({seeThrough});
    load(saved());
    ASSERT_EQ(palette().size(), 1u);
    EXPECT_EQ(palette()[0], CVQMaterial()) << "they are as made";
}

TEST_F(MaterialFile, RestoresNumbersOfFourDecimals)
{
    std::vector<CVQMaterial> materials;
    for (int i = 0; i <= 10000; i += 7)
        materials.push_back(material(static_cast<float>(i) / 10000.0f, 1, {}));
    setPalette(materials);
    load(saved());
    EXPECT_EQ(palette(), materials);
}

TEST_F(MaterialFile, IsTheSameInEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C", "C.UTF-8", "de_DE.UTF-8", "de_DE.utf8", "de_DE", "German"}) {
        if (!std::setlocale(LC_ALL, locale))
            continue;
        setPalette(twoMaterials());
        EXPECT_EQ(saved(), kTwoMaterials) << locale;
        load(kTwoMaterials);
        EXPECT_EQ(palette(), twoMaterials()) << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST_F(MaterialFile, DoesNotHeedTheNumbersOfItsMaterials)
{
    load("MAT_0_START\nMAT_0_SHINESS=1\nMAT_0_END\nMAT_0_START\nMAT_0_SHINESS=2\nMAT_0_END\nSHINESS=3\nEND\n");
    ASSERT_EQ(palette().size(), 3u);
    EXPECT_EQ(palette()[0].m_fShininess, 1);
    EXPECT_EQ(palette()[1].m_fShininess, 2);
    EXPECT_EQ(palette()[2].m_fShininess, 3);
}

TEST_F(MaterialFile, CarriesWhatAMaterialDoesNotMentionOverFromTheOneBefore)
{
    load("MAT_0_END\n"
         "MAT_1_SHINESS=30\nMAT_1_DIFFUSEG=0.5\nMAT_1_END\n"
         "MAT_2_ALPHA=0.25\nMAT_2_END\n");
    CVQMaterial second;
    second.m_fShininess = 30;
    second.m_fDiffuse[1] = 0.5f;
    CVQMaterial third = second;
    third.m_fAlpha = 0.25f;
    EXPECT_EQ(palette(), (std::vector{CVQMaterial(), second, third}));
    load("MAT_0_END\n");
    EXPECT_EQ(palette(), (std::vector{CVQMaterial()})) << "nothing is carried into the next file";
}

TEST_F(MaterialFile, NeedsAnEndForEveryMaterial)
{
    load("MAT_0_SHINESS=30\nMAT_0_END\nMAT_1_SHINESS=40\n");
    ASSERT_EQ(palette().size(), 1u);
    load("MAT_0_SHINESS=30\n");
    EXPECT_TRUE(palette().empty());
}

TEST_F(MaterialFile, HasWordsInCapitalsOnly)
{
    load("MAT_0_Shiness=30\nMAT_0_END \nmat_0_end\n MAT_0_SHINESS=20\n SHINESS=10\nSHINES=5\nSHINESSS=6\nEND\n");
    ASSERT_EQ(palette().size(), 1u);
    EXPECT_EQ(palette()[0].m_fShininess, 20) << "a blank belongs to its word";
}

TEST_F(MaterialFile, LeavesAFieldWhoseKeyHasNoValue)
{
    load("SHINESS=7\nSHINESS\nSHINESS=\nSHINESS_\nSHINESS==\n0\nEND\n");
    ASSERT_EQ(palette().size(), 1u);
    EXPECT_EQ(palette()[0].m_fShininess, 7);
}

TEST_F(MaterialFile, TakesWhateverFollowsAKeyForItsValue)
{
    load("SHINESS=7=8_ALPHA==9_END_END\nALPHA=END\nSHINESS_ALPHA_3\nEND\n");
    ASSERT_EQ(palette().size(), 3u) << "one END is a value";
    EXPECT_EQ(palette()[0].m_fShininess, 7);
    EXPECT_EQ(palette()[0].m_fAlpha, 9) << "empty pieces are none";
    EXPECT_EQ(palette()[2].m_fAlpha, 0);
    EXPECT_EQ(palette()[2].m_fShininess, 0) << "ALPHA is its value, and no number";
}

TEST_F(MaterialFile, TakesZeroForWhatIsNoNumber)
{
    for (const std::string text : {"x", "-", "+", ".", "e5", "--1", "+-1", "inf", "nan", "0x10", ",5", "0,5", " x"}) {
        load("SHINESS=7\nSHINESS=" + text + "\nEND\n");
        ASSERT_EQ(palette().size(), 1u);
        EXPECT_EQ(palette()[0].m_fShininess, 0) << text;
    }
}

TEST_F(MaterialFile, TakesNumbersInAllForms)
{
    constexpr float kInfinite = std::numeric_limits<float>::infinity();
    const std::pair<std::string, float> numbers[]{
        {"1", 1},
        {"-1.5", -1.5f},
        {"+1.5", 1.5f},
        {" \t1.5", 1.5f},
        {".5", 0.5f},
        {"5.", 5},
        {"1.5e2", 150},
        {"1.5E+2", 150},
        {"15e-1", 1.5f},
        {"1.5x", 1.5f},
        {"1.5e", 1.5f},
        {"1.5e+", 1.5f},
        {"1.5.5", 1.5f},
        {"1,5", 1},
        {"1e39", kInfinite},
        {"1e400", kInfinite},
        {"-1e400", -kInfinite},
        {"1e-400", 0},
        {"0e9999999999", 0},
        {"00001", 1},
        {"1e99999999999", kInfinite},
        {"1e-99999999999", 0},
        {"0." + std::string(500, '0') + "1", 0},
        {"0." + std::string(500, '0') + "1e501", 1},
        {std::string(400, '9'), kInfinite},
        {std::string(400, '9') + "e-399", 10},
    };
    for (const auto& [text, value] : numbers) {
        load("SHINESS=" + text + "\nEND\n");
        ASSERT_EQ(palette().size(), 1u) << text;
        EXPECT_EQ(palette()[0].m_fShininess, value) << text;
    }
}

TEST_F(MaterialFile, KeepsTheSignOfZero)
{
    load("SHINESS=-0\nALPHA=-1e-400\nEND\n");
    EXPECT_TRUE(std::signbit(palette()[0].m_fShininess));
    EXPECT_TRUE(std::signbit(palette()[0].m_fAlpha));
}

TEST_F(MaterialFile, MayBeEncodedInEveryWay)
{
    std::string little = "\xFF\xFE";
    std::string big = "\xFE\xFF";
    std::string windows;
    for (const char letter : kTwoMaterials) {
        little += {letter, '\0'};
        big += {'\0', letter};
        windows += letter == '\n' ? "\r\n" : std::string(1, letter);
    }
    const std::string withoutLastEnd = kTwoMaterials.substr(0, kTwoMaterials.size() - 1);
    for (const std::string& content : {little, big, windows, "\xEF\xBB\xBF" + kTwoMaterials, withoutLastEnd,
                                       "\xE4\xFF\xC3\xA4\n" + kTwoMaterials, little + "x"}) {
        Store::m_arrPalletMaterial.RemoveAll();
        EXPECT_TRUE(load(content));
        EXPECT_EQ(palette(), twoMaterials());
    }
}

TEST_F(MaterialFile, IsReadOnFromWhereItsStreamStands)
{
    m_file.write("SHINESS=5\nEND\nSHINESS=6\nEND\n");
    std::FILE* file = _wfopen(m_file.path(), L"rb");
    ASSERT_EQ(std::fseek(file, 14, SEEK_SET), 0);
    Store::LoadMaterialConfigData(file);
    std::fclose(file);
    ASSERT_EQ(palette().size(), 1u);
    EXPECT_EQ(palette()[0].m_fShininess, 6);
}

TEST_F(MaterialFile, MayBeAStreamOfWideCharacters)
{
    std::FILE* file = _wfopen(m_file.path(), L"w+b");
    std::fputws(L"\n", file);
    setPalette(twoMaterials());
    EXPECT_TRUE(Store::WriteMaterialConfigData(file));
    std::rewind(file);
    EXPECT_TRUE(Store::LoadMaterialConfigData(file));
    std::fclose(file);
    EXPECT_EQ(palette(), twoMaterials());
}

TEST_F(MaterialFile, ReadsLongLinesInPieces)
{
    const std::string room(1023 - 4, 'x');
    load("SHINESS=7\n" + room + "_END_END\n"); // the second one is in a piece of its own
    EXPECT_EQ(palette().size(), 2u);
    load("SHINESS=7\n" + room + "xEND_END\n");
    EXPECT_EQ(palette().size(), 1u) << "no separator before the first, but before the second";
    load(std::string(1023 - 7, 'x') + "SHINESS=5\nEND\n");
    EXPECT_EQ(palette()[0].m_fShininess, 0) << "no separator before the key";
    load(std::string(1023 - 8, 'x') + "_SHINESS=5\nEND\n");
    EXPECT_EQ(palette()[0].m_fShininess, 0) << "the value is in the next piece";
    load(std::string(1023 - 10, 'x') + "_SHINESS=5678\nEND\n");
    EXPECT_EQ(palette()[0].m_fShininess, 5) << "the rest of the value is in the next piece";
    load(std::string(1023 - 2, 'x') + "END\n");
    EXPECT_TRUE(palette().empty()) << "a word that is cut in two";
    load(std::string(3'000'000, '=') + "END");
    EXPECT_EQ(palette().size(), 1u);
}

TEST_F(MaterialFile, MayHoldManyMaterials)
{
    constexpr int kMany = 500'000;
    std::string content;
    for (int i = 0; i < kMany; ++i)
        content += "END\n";
    EXPECT_TRUE(load(content));
    EXPECT_EQ(Store::GetMaterialSize(), kMany);
}

TEST_F(MaterialFile, EndsALineAtANullCharacter)
{
    using namespace std::string_literals;
    load("SHINESS=5\0SHINESS=6\nEND\n"s);
    ASSERT_EQ(palette().size(), 1u);
    EXPECT_EQ(palette()[0].m_fShininess, 5);
}

TEST_F(MaterialFile, ThatIsNoneLeavesThePalette)
{
    setPalette(twoMaterials());
    EXPECT_FALSE(Store::LoadMaterialConfigData(nullptr));
    EXPECT_FALSE(Store::WriteMaterialConfigData(nullptr));
    EXPECT_EQ(palette(), twoMaterials());
}

TEST_F(MaterialFile, IsNotWrittenWhereNothingCanBe)
{
    m_file.write("");
    std::FILE* file = _wfopen(m_file.path(), L"rb");
    EXPECT_FALSE(Store::WriteMaterialConfigData(file));
    std::fclose(file);
}

} // namespace
} // namespace vq::test
