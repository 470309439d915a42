// SPDX-License-Identifier: MIT
#include "StoredBytes.h"
#include "StoredPreferences.h"

#include "VQDraw/VQDrawingAPI.h"
#include "vqMessage/VQMessage.h"

#include <functional>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

class StoredPreferenceBlocks : public Preferences
{
};

/// A value of its own for every place of a table, exact in a float.
float real(std::size_t place)
{
    return static_cast<float>(place) * 0.25f - 3;
}

StoredBytes sceneBlock(std::uint32_t colours, std::uint32_t sizes)
{
    StoredBytes bytes;
    bytes.number(colours);
    for (std::size_t i = 0; i < colours * 4; ++i)
        bytes.real(real(i));
    bytes.number(sizes);
    for (std::size_t i = 0; i < sizes; ++i)
        bytes.real(-real(i));
    return bytes;
}

CVQColor colour(std::size_t row)
{
    const auto first = static_cast<BYTE>(row * 4 + 1);
    return {first, static_cast<BYTE>(first + 1), static_cast<BYTE>(first + 2), static_cast<BYTE>(first + 3)};
}

/// 1, 2, 3, ... in as many rows of four as the count says.
StoredBytes colourBlock(std::uint32_t count)
{
    StoredBytes bytes;
    bytes.number(count);
    for (unsigned i = 1; i <= count * 4; ++i)
        bytes.byte(i);
    return bytes;
}

StoredBytes controlBlock()
{
    StoredBytes bytes = colourBlock(15);
    bytes.number(15);                               // once more
    bytes.byte(0xA1).byte(0xA2).byte(0xA3).byte(0); // controls, managers, floating dialogs, padding
    bytes.number(0x04030201);                       // the palette's cursor
    bytes.byte(0xA3).byte(0).byte(0x01).byte(0x02); // the inner bytes again
    return bytes;
}

StoredBytes materialBlock()
{
    StoredBytes bytes;
    for (std::size_t i = 0; i < 10 * 14; ++i)
        bytes.real(real(i));
    return bytes;
}

CVQMaterial material(std::size_t row)
{
    CVQMaterial expected;
    std::size_t place = row * 14;
    for (auto* const rgba : {&expected.m_fAmbient, &expected.m_fDiffuse, &expected.m_fSpecular})
        for (float& value : *rgba)
            value = real(place++);
    expected.m_fShininess = real(place++);
    expected.m_fAlpha = real(place);
    return expected;
}

StoredBytes fontBlock(std::uint32_t count)
{
    StoredBytes bytes;
    bytes.number(count);
    for (std::uint32_t i = 0; i < count; ++i) {
        bytes.number(-static_cast<int>(i)).number(0).number(0).number(0).number(400 + i).number(0).number(0);
        bytes.text("Face" + std::to_string(i), 2, 64).number(50 + i).number(0x010203 + i);
        bytes.byte(i % 2).byte(0).byte(0).byte(0).number(-20 - static_cast<int>(i));
    }
    return bytes;
}

CVQFont font(std::size_t row)
{
    const int number = static_cast<int>(row);
    CVQFont expected;
    expected.m_LogFont.lfHeight = -number;
    expected.m_LogFont.lfWeight = 400 + number;
    platform::setFaceName(expected.m_LogFont, L"Face" + std::to_wstring(number));
    expected.m_iPointHeight = 50 + number;
    expected.m_uiColor = 0x010203 + static_cast<COLORREF>(number);
    expected.m_bShadow = number % 2 == 1;
    expected.m_iNominalSize = -20 - number;
    return expected;
}

using Transfer = void (*)(CVQArchive*);

std::vector<BYTE> written(Transfer write)
{
    CVQMemoryArchive archive;
    write(&archive);
    return contentOf(archive);
}

/// What has not been read.
std::size_t read(Transfer transfer, const StoredBytes& bytes)
{
    CVQMemoryArchive archive = bytes.archive();
    transfer(&archive);
    return bytes.size() - archive.GetPosition();
}

void setScene(StoredPreferences& expected, std::size_t colours, std::size_t sizes)
{
    for (std::size_t i = 0; i < colours * 4; ++i)
        expected.colours[i / 4][i % 4] = real(i);
    for (std::size_t i = 0; i < sizes; ++i)
        expected.sizes[i] = -real(i);
}

TEST_F(StoredPreferenceBlocks, HoldSceneColoursAndSizes)
{
    StoredPreferences expected = StoredPreferences::now();
    setScene(expected, 156, 50);

    EXPECT_EQ(read(Store::Read, sceneBlock(156, 50)), 0u);

    EXPECT_TRUE(StoredPreferences::now() == expected);
    ASSERT_EQ(sceneBlock(156, 50).size(), 4u + 2496 + 4 + 200);
    EXPECT_EQ(written(Store::Write), sceneBlock(156, 50).bytes());
}

TEST_F(StoredPreferenceBlocks, OfOlderVersionsLeaveTheLastScenesAsTheyAre)
{
    for (const auto& [colours, sizes] : {std::pair{100u, 30u}, {0u, 50u}, {156u, 0u}, {0u, 0u}}) {
        preferencesAtStart().restore();
        StoredPreferences expected = StoredPreferences::now();
        setScene(expected, colours, sizes);
        EXPECT_EQ(read(Store::Read, sceneBlock(colours, sizes)), 0u);
        EXPECT_TRUE(StoredPreferences::now() == expected) << colours << ' ' << sizes;
    }
}

TEST_F(StoredPreferenceBlocks, AreReadAsFarAsATableGoes)
{
    StoredPreferences expected = StoredPreferences::now();
    setScene(expected, 0, 50);
    EXPECT_EQ(read(Store::Read, sceneBlock(0, 53)), 12u) << "the surplus is left in the archive";
    EXPECT_TRUE(StoredPreferences::now() == expected);

    for (std::size_t i = 0; i < 4; ++i)
        expected.histogramColours[i] = expected.reportColours[i] = colour(i);
    EXPECT_EQ(read(Store::ReadHistogramColor, colourBlock(6)), 8u);
    EXPECT_EQ(read(Store::ReadReportColor, colourBlock(6)), 8u);
    EXPECT_TRUE(StoredPreferences::now() == expected);
}

TEST_F(StoredPreferenceBlocks, HaveCountsWithoutASign)
{
    StoredBytes bytes = colourBlock(4);
    for (std::size_t i = 0; i < 4; ++i)
        bytes[i] = 0xFF;
    EXPECT_EQ(read(Store::ReadHistogramColor, bytes), 0u);
    EXPECT_EQ(Store::m_HistogramColor[3], colour(3));
}

TEST_F(StoredPreferenceBlocks, HoldHistogramColours)
{
    StoredPreferences expected = StoredPreferences::now();
    for (std::size_t i = 0; i < 4; ++i)
        expected.histogramColours[i] = colour(i);
    EXPECT_EQ(read(Store::ReadHistogramColor, colourBlock(4)), 0u);
    EXPECT_TRUE(StoredPreferences::now() == expected);
    EXPECT_EQ(written(Store::WriteHistogramColor), colourBlock(4).bytes());
}

TEST_F(StoredPreferenceBlocks, OfOlderVersionsLeaveTheLastHistogramColoursAsTheyAre)
{
    StoredPreferences expected = StoredPreferences::now();
    for (std::size_t i = 0; i < 2; ++i)
        expected.histogramColours[i] = colour(i);
    EXPECT_EQ(read(Store::ReadHistogramColor, colourBlock(2)), 0u);
    EXPECT_TRUE(StoredPreferences::now() == expected);
}

TEST_F(StoredPreferenceBlocks, HoldReportColours)
{
    StoredPreferences expected = StoredPreferences::now();
    for (std::size_t i = 0; i < 4; ++i)
        expected.reportColours[i] = colour(i);
    EXPECT_EQ(read(Store::ReadReportColor, colourBlock(4)), 0u);
    EXPECT_TRUE(StoredPreferences::now() == expected);
    EXPECT_EQ(written(Store::WriteReportColor), colourBlock(4).bytes());
}

void setControls(StoredPreferences& expected)
{
    for (std::size_t i = 0; i < 15; ++i)
        expected.controlColours[i] = colour(i);
    expected.controlAlphas = {0xA1, 0xA2};
    expected.floatDialogAlpha = 0xA3;
    expected.paletteCursor = 0x04030201;
}

TEST_F(StoredPreferenceBlocks, HoldControlColoursAlphasAndThePalettesCursor)
{
    StoredPreferences expected = StoredPreferences::now();
    setControls(expected);
    EXPECT_EQ(read(Store::ReadUIColor, controlBlock()), 0u);
    EXPECT_TRUE(StoredPreferences::now() == expected);
    ASSERT_EQ(controlBlock().size(), 80u);
    EXPECT_EQ(written(Store::WriteUIColor), controlBlock().bytes());
}

TEST_F(StoredPreferenceBlocks, OfOlderVersionsLeaveTheLastControlColoursAsTheyAre)
{
    StoredPreferences expected = StoredPreferences::now();
    for (std::size_t i = 0; i < 9; ++i)
        expected.controlColours[i] = colour(i);
    expected.controlAlphas = {1, 2};
    expected.floatDialogAlpha = 3;
    expected.paletteCursor = 5;
    StoredBytes bytes = colourBlock(9);
    bytes.number(9).byte(1).byte(2).byte(3).byte(0).number(5).byte(3).byte(0).byte(5).byte(0);
    EXPECT_EQ(read(Store::ReadUIColor, bytes), 0u);
    EXPECT_TRUE(StoredPreferences::now() == expected);
}

TEST_F(StoredPreferenceBlocks, TakeTheLastBytesOfTheAlphasOverTheFirst)
{
    StoredBytes bytes = colourBlock(0);
    bytes.number(15).byte(1).byte(2).byte(3).byte(0).number(0x44332211).byte(9).byte(7).byte(0xEE).byte(0xFF);
    read(Store::ReadUIColor, bytes);
    EXPECT_EQ(Store::m_ucFloatDialogAlpha, 9);
    EXPECT_EQ(Store::m_iMaterialCount, 0x4433FFEE);
}

TEST_F(StoredPreferenceBlocks, WithASecondCountOfOneHoldNoCursorBeforeTheLastBytes)
{
    Store::m_iMaterialCount = 0x44332211;
    StoredBytes bytes = colourBlock(0);
    bytes.number(1).byte(1).byte(2).byte(3).byte(0).byte(9).byte(0).byte(0xEE).byte(0xFF);
    EXPECT_EQ(read(Store::ReadUIColor, bytes), 0u);
    EXPECT_EQ(std::to_array(Store::m_ucUICtrlAlpha), (std::array<BYTE, 2>{1, 2}));
    EXPECT_EQ(Store::m_ucFloatDialogAlpha, 9);
    EXPECT_EQ(Store::m_iMaterialCount, 0x4433FFEE);
}

TEST_F(StoredPreferenceBlocks, WithASecondCountOfZeroHoldTheLastBytesOnly)
{
    Store::m_iMaterialCount = 0x44332211;
    const auto alphas = std::to_array(Store::m_ucUICtrlAlpha);
    StoredBytes bytes = colourBlock(0);
    bytes.number(0).byte(9).byte(0).byte(0xEE).byte(0xFF);
    EXPECT_EQ(read(Store::ReadUIColor, bytes), 0u);
    EXPECT_EQ(std::to_array(Store::m_ucUICtrlAlpha), alphas);
    EXPECT_EQ(Store::m_ucFloatDialogAlpha, 9);
    EXPECT_EQ(Store::m_iMaterialCount, 0x4433FFEE);
}

TEST_F(StoredPreferenceBlocks, OfControlsArePostedToTheApplicationWhenRead)
{
    struct Posted
    {
        int target;
        UINT message;
        bool operator==(const Posted&) const = default;
    };
    std::vector<Posted> posted;
    CVQMessage::SetHandler([&](int target, UINT message, WPARAM first, LPARAM second) {
        EXPECT_TRUE(first == 0 && second == 0);
        posted.push_back({target, message});
    });

    read(Store::ReadUIColor, controlBlock());
    written(Store::WriteUIColor);
    read(Store::ReadHistogramColor, colourBlock(4));
    CVQMemoryArchive cut = controlBlock().archive(79);
    EXPECT_EQ(causeOf([&] { Store::ReadUIColor(&cut); }), CArchiveException::endOfFile);

    CVQMessage::SetHandler({});
    EXPECT_EQ(posted, (std::vector{Posted{1, CVQMessage::m_VQMsg[2]}}));
}

TEST_F(StoredPreferenceBlocks, HoldMaterialsWithoutACount)
{
    StoredPreferences expected = StoredPreferences::now();
    for (std::size_t i = 0; i < 10; ++i)
        expected.materials[i] = material(i);
    EXPECT_EQ(read(Store::ReadDPMaterial, materialBlock()), 0u);
    EXPECT_TRUE(StoredPreferences::now() == expected);
    EXPECT_EQ(written(Store::WriteDPMaterial), materialBlock().bytes());
}

TEST_F(StoredPreferenceBlocks, HoldFonts)
{
    StoredPreferences expected = StoredPreferences::now();
    for (std::size_t i = 0; i < 8; ++i)
        expected.fonts[i] = font(i);
    EXPECT_EQ(read(Store::ReadFont, fontBlock(8)), 0u);
    EXPECT_TRUE(StoredPreferences::now() == expected);
    ASSERT_EQ(fontBlock(8).size(), 4u + 8 * 108);
    EXPECT_EQ(written(Store::WriteFont), fontBlock(8).bytes());
}

TEST_F(StoredPreferenceBlocks, OfMoreFontsThanThereAreAreReadToTheirEnd)
{
    StoredPreferences expected = StoredPreferences::now();
    for (std::size_t i = 0; i < 8; ++i)
        expected.fonts[i] = font(i);
    EXPECT_EQ(read(Store::ReadFont, fontBlock(11)), 0u);
    EXPECT_TRUE(StoredPreferences::now() == expected);
}

TEST_F(StoredPreferenceBlocks, OfFewerFontsLeaveTheLastAsTheyAre)
{
    StoredPreferences expected = StoredPreferences::now();
    for (std::size_t i = 0; i < 3; ++i)
        expected.fonts[i] = font(i);
    EXPECT_EQ(read(Store::ReadFont, fontBlock(3)), 0u);
    EXPECT_TRUE(StoredPreferences::now() == expected);
}

TEST_F(StoredPreferenceBlocks, OfFontsWithoutEndStopWithTheArchive)
{
    StoredBytes bytes = fontBlock(9);
    for (std::size_t i = 0; i < 4; ++i)
        bytes[i] = 0xFF;
    CVQMemoryArchive archive = bytes.archive();
    EXPECT_EQ(causeOf([&] { Store::ReadFont(&archive); }), CArchiveException::endOfFile);
    EXPECT_TRUE(isSame(Store::m_Font[7], font(7)));
}

TEST_F(StoredPreferenceBlocks, FollowEachOtherInOneArchive)
{
    constexpr std::array<Transfer, 6> kWriters{Store::Write,     Store::WriteUIColor,        Store::WriteDPMaterial,
                                               Store::WriteFont, Store::WriteHistogramColor, Store::WriteReportColor};
    constexpr std::array<Transfer, 6> kReaders{Store::Read,     Store::ReadUIColor,        Store::ReadDPMaterial,
                                               Store::ReadFont, Store::ReadHistogramColor, Store::ReadReportColor};
    scribble();
    Store::m_arrPalletMaterial.RemoveAll();
    for (CVQFont& stored : Store::m_Font)
        stored.m_LogFont.lfFaceName[31] = 0;
    const StoredPreferences expected = StoredPreferences::now();
    CVQMemoryArchive archive;
    for (const Transfer write : kWriters)
        write(&archive);

    preferencesAtStart().restore();
    archive.SeekToBegin();
    for (const Transfer transfer : kReaders)
        transfer(&archive);

    EXPECT_EQ(archive.GetPosition(), archive.GetSize());
    EXPECT_TRUE(StoredPreferences::now() == expected);
}

/// What reading the first `length` bytes of a block leaves behind.
struct Cut
{
    Transfer transfer;
    StoredBytes bytes;
    std::function<void(StoredPreferences&, std::size_t length)> expect;
};

TEST_F(StoredPreferenceBlocks, ThatAreCutThrowAndAreReadUpToTheLastWholeOne)
{
    const std::vector<Cut> cuts{
        {Store::Read, sceneBlock(156, 50),
         [](StoredPreferences& expected, std::size_t length) { setScene(expected, length < 2500 ? 0 : 156, 0); }},
        {Store::ReadUIColor, controlBlock(),
         [](StoredPreferences& expected, std::size_t length) {
             StoredPreferences all = expected;
             setControls(all);
             if (length >= 64)
                 expected.controlColours = all.controlColours;
             if (length >= 76)
                 expected = all;
         }},
        {Store::ReadDPMaterial, materialBlock(),
         [](StoredPreferences& expected, std::size_t length) {
             for (std::size_t i = 0; i < length / 56; ++i)
                 expected.materials[i] = material(i);
         }},
        {Store::ReadFont, fontBlock(8),
         [](StoredPreferences& expected, std::size_t length) {
             for (std::size_t i = 0; 4 + (i + 1) * 108 <= length; ++i)
                 expected.fonts[i] = font(i);
         }},
        {Store::ReadHistogramColor, colourBlock(4), [](StoredPreferences&, std::size_t) {}},
        {Store::ReadReportColor, colourBlock(4), [](StoredPreferences&, std::size_t) {}},
    };
    for (const Cut& cut : cuts) {
        for (std::size_t length = 0; length < cut.bytes.size(); ++length) {
            preferencesAtStart().restore();
            StoredPreferences expected = StoredPreferences::now();
            cut.expect(expected, length);
            CVQMemoryArchive archive = cut.bytes.archive(length);
            EXPECT_EQ(causeOf([&] { cut.transfer(&archive); }), CArchiveException::endOfFile) << length;
            EXPECT_TRUE(StoredPreferences::now() == expected) << (&cut - cuts.data()) << " at " << length;
        }
    }
}

TEST_F(StoredPreferenceBlocks, OfNoArchiveChangeNothing)
{
    for (const Transfer transfer :
         {Store::Read, Store::Write, Store::ReadUIColor, Store::WriteUIColor, Store::ReadDPMaterial,
          Store::WriteDPMaterial, Store::ReadFont, Store::WriteFont, Store::ReadHistogramColor,
          Store::WriteHistogramColor, Store::ReadReportColor, Store::WriteReportColor})
        transfer(nullptr);
    EXPECT_TRUE(StoredPreferences::now() == preferencesAtStart());
}

/// Shapes as the library's start makes them, after a test that deletes them.
class SelectionColour : public Preferences
{
protected:
    void TearDown() override
    {
        CVQDrawingAPI::Initialize();
        Preferences::TearDown();
    }
};

StoredBytes blockWithSelectionColour(float red, float green, float blue)
{
    StoredBytes bytes;
    bytes.number(156);
    for (int i = 0; i < 155 * 4; ++i)
        bytes.real(0);
    bytes.real(red).real(green).real(blue).real(1).number(0);
    return bytes;
}

TEST_F(SelectionColour, OfADocumentIsThatOfTheShapes)
{
    read(Store::Read, blockWithSelectionColour(1.0f, 0.5f, 0.25f)); // 255, 127.5, 63.75: truncated
    EXPECT_EQ(CVQDrawingAPI::DragBox()->GetColor(), RGB(255, 127, 63));
    EXPECT_EQ(CVQDrawingAPI::DragCircle()->GetColor(), RGB(255, 127, 63));
    EXPECT_EQ(CVQDrawingAPI::DragPolygon()->GetColor(), RGB(255, 127, 63));
    EXPECT_EQ(CVQDrawingAPI::DragLine()->GetColor(), RGB(255, 127, 63));
}

TEST_F(SelectionColour, IsCutToEightBits)
{
    read(Store::Read, blockWithSelectionColour(2.0f, -1.0f, 0.0f)); // 510, -255
    EXPECT_EQ(CVQDrawingAPI::DragBox()->GetColor(), RGB(510 & 0xFF, -255 & 0xFF, 0));
}

TEST_F(SelectionColour, OfADocumentThatEndsBehindItIsThatOfTheShapes)
{
    const StoredBytes whole = blockWithSelectionColour(1.0f, 0.5f, 0.25f);
    CVQMemoryArchive archive = whole.archive(whole.size() - 4); // no count of sizes
    EXPECT_EQ(causeOf([&] { Store::Read(&archive); }), CArchiveException::endOfFile);
    EXPECT_EQ(CVQDrawingAPI::DragBox()->GetColor(), RGB(255, 127, 63));
    EXPECT_EQ(CVQDrawingAPI::DragLine()->GetColor(), RGB(255, 127, 63));
}

TEST_F(SelectionColour, OfADocumentNeedsNoShapes)
{
    CVQDrawingAPI::Destroy();
    read(Store::Read, blockWithSelectionColour(1, 0, 0));
    EXPECT_EQ(CVQDrawingAPI::DragBox(), nullptr);
    EXPECT_EQ(Store::m_fColor[DPC_SELECTION_TOOL][0], 1.0f);
}

} // namespace
} // namespace vq::test
