// SPDX-License-Identifier: MIT
// Files and documents that nobody has written so: whatever they hold, they are read, or refused, and nothing breaks.
#include "StoredBytes.h"
#include "StoredPreferences.h"

#include "parity/Encoders.h"

#include <random>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

constexpr unsigned kSeed = 20240607;
constexpr int kRounds = 1500;

class HostilePreferences : public Preferences
{
protected:
    std::size_t upTo(std::size_t largest) { return std::uniform_int_distribution<std::size_t>(0, largest)(m_random); }
    char anyByte() { return static_cast<char>(upTo(255)); }

    /// Some of the words in any order, with bytes changed, taken away and put in.
    std::string anyText(const std::vector<std::string>& words)
    {
        std::string text;
        for (std::size_t i = upTo(60); i > 0; --i)
            text += words[upTo(words.size() - 1)] + (upTo(5) > 0 ? "\n" : "");
        for (std::size_t i = upTo(6); i > 0 && !text.empty(); --i) {
            const std::size_t place = upTo(text.size() - 1);
            switch (upTo(3)) {
            case 0:
                text[place] = anyByte();
                break;
            case 1:
                text.erase(place, upTo(3));
                break;
            case 2:
                text.insert(place, upTo(400), anyByte());
                break;
            default:
                text.insert(0, upTo(1) ? "\xFF\xFE" : "\xFE\xFF");
                break;
            }
        }
        return text;
    }

    std::mt19937 m_random{kSeed};
    const TemporaryFile m_file{L"hostile"};
};

TEST_F(HostilePreferences, OfTheLegacyLayoutAreRead)
{
    const std::vector<std::string> words{"<DPC>",
                                         "</DPC>",
                                         "DPC_GRID",
                                         "DPC_LIGHT0POS",
                                         "<Red>255",
                                         "<Green>1e9",
                                         "<Blue>99999999999",
                                         "<X>1e400",
                                         "<W>-1e39",
                                         "<FloatDialog>",
                                         "77",
                                         "<DPS>",
                                         "DPS_VERTEX",
                                         "<Size>5",
                                         "</DPS>",
                                         "<UIDPC>",
                                         "DPC_UI_CTRL_BG",
                                         "</UIDPC>",
                                         "<UIAlpha>",
                                         "DPC_UI_MGR_ALPHA",
                                         "<Alpha>3000000000",
                                         "</UIAlpha>",
                                         "<Material>",
                                         "DPM_BODY",
                                         "<Ambient>",
                                         "</Ambient>",
                                         "</Material>",
                                         "<Font>",
                                         "DPF_WIDGET_FONT",
                                         "<lfHeight>-2147483648",
                                         "<lfFaceName>\xF0\x9F\x98\x80\xED\xA0\x80\xFF",
                                         "<bShadow>2",
                                         "</Font>",
                                         "<ReportDPC>",
                                         "</ReportDPC>"};
    for (int round = 0; round < kRounds; ++round) {
        m_file.write(anyText(words));
        EXPECT_EQ(Store::ReadPreferenceFromFileLegacy(m_file.path()), 1) << "seed " << kSeed << ", round " << round;
    }
}

TEST_F(HostilePreferences, OfMaterialFilesAreRead)
{
    const std::vector<std::string> words{"MAT_0_START", "MAT_0_SHINESS=30.0000", "ALPHA=1e400", "AMBIENTR",  "END",
                                         "DIFFUSEG==_", "SPECULARB=-1e-400",     "_END_",       "; \xC3\x28"};
    for (int round = 0; round < kRounds; ++round) {
        const std::string text = anyText(words);
        m_file.write(text);
        std::FILE* file = _wfopen(m_file.path(), L"rb");
        EXPECT_TRUE(Store::LoadMaterialConfigData(file)) << "seed " << kSeed << ", round " << round;
        std::fclose(file);
        EXPECT_LE(Store::GetMaterialSize(), static_cast<std::int64_t>(text.size() / 3 + 1));
    }
}

TEST_F(HostilePreferences, OfDocumentsAreReadOrRefused)
{
    const std::array readers{Store::Read,     Store::ReadUIColor,        Store::ReadDPMaterial,
                             Store::ReadFont, Store::ReadHistogramColor, Store::ReadReportColor};
    for (int round = 0; round < kRounds; ++round) {
        StoredBytes bytes;
        bytes.number(static_cast<std::uint32_t>(upTo(1) ? upTo(200) : upTo(0xFFFFFFFF)));
        for (std::size_t i = upTo(3500); i > 0; --i)
            bytes.byte(static_cast<unsigned char>(anyByte()));
        CVQMemoryArchive archive = bytes.archive();
        const int cause = causeOf([&] { readers[upTo(readers.size() - 1)](&archive); });
        EXPECT_TRUE(cause == -1 || cause == CArchiveException::endOfFile) << "seed " << kSeed << ", round " << round;
        for (const CVQFont& font : Store::m_Font)
            EXPECT_EQ(font.m_LogFont.lfFaceName[LF_FACESIZE - 1], 0);
        CVQMaterial material;
        EXPECT_FALSE(Store::GetNextMaterial(material)) << "an empty palette, whatever its cursor";
    }
}

} // namespace
} // namespace vq::test
