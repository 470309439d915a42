// SPDX-License-Identifier: MIT
#include "Resolution.h"
#include "StoredBytes.h"
#include "StoredPreferences.h"

#include <cstring>

namespace vq::test {
namespace {

constexpr std::size_t kShadowAt = 92 + 4 + 4; // of the wide record

/// What a record holds before its face: five numbers and eight bytes.
StoredBytes logicalFont()
{
    StoredBytes bytes;
    bytes.number(-16).number(2).number(-3).number(4).number(700);
    bytes.byte(1).byte(2).byte(3).byte(129).byte(4).byte(5).byte(6).byte(34);
    return bytes;
}

StoredBytes wideRecord()
{
    StoredBytes bytes = logicalFont();
    bytes.text("Tahoma", 2, 64).number(12).number(0x00563412).byte(1).byte(0).byte(0).byte(0).number(-13);
    return bytes;
}

StoredBytes narrowRecord(std::string_view face)
{
    StoredBytes bytes = logicalFont();
    bytes.text(face, 1, 32).number(99).number(0x00563412).byte(1).byte(0).byte(0).byte(0).number(-13);
    return bytes;
}

void expectLogicalFont(const LOGFONTW& font)
{
    EXPECT_EQ(font.lfWidth, 2);
    EXPECT_EQ(font.lfEscapement, -3);
    EXPECT_EQ(font.lfOrientation, 4);
    EXPECT_EQ(font.lfWeight, 700);
    EXPECT_EQ(font.lfItalic, 1);
    EXPECT_EQ(font.lfUnderline, 2);
    EXPECT_EQ(font.lfStrikeOut, 3);
    EXPECT_EQ(font.lfCharSet, 129);
    EXPECT_EQ(font.lfOutPrecision, 4);
    EXPECT_EQ(font.lfClipPrecision, 5);
    EXPECT_EQ(font.lfQuality, 6);
    EXPECT_EQ(font.lfPitchAndFamily, 34);
}

CVQFont read(const StoredBytes& bytes, bool wide)
{
    CVQMemoryArchive archive = bytes.archive();
    CVQFont font;
    font.Read(&archive, wide);
    EXPECT_EQ(archive.GetPosition(), bytes.size());
    return font;
}

TEST(StoredFont, IsReadAsItIs)
{
    ASSERT_EQ(wideRecord().size(), 108u);
    const CVQFont font = read(wideRecord(), true);
    expectLogicalFont(font.m_LogFont);
    EXPECT_EQ(font.m_LogFont.lfHeight, -16);
    EXPECT_EQ(platform::faceName(font.m_LogFont), L"Tahoma");
    EXPECT_EQ(font.m_iPointHeight, 12);
    EXPECT_EQ(font.m_uiColor, 0x00563412u);
    EXPECT_TRUE(font.m_bShadow);
    EXPECT_EQ(font.m_iNominalSize, -13);
}

TEST(StoredFont, IsWrittenAsItIsRead)
{
    CVQFont font = read(wideRecord(), true);
    CVQMemoryArchive archive;
    font.Write(&archive);
    EXPECT_EQ(contentOf(archive), wideRecord().bytes());
}

TEST(StoredFont, HasZerosForItsPadding)
{
    CVQFont font;
    std::memset(static_cast<void*>(&font), 0xAB, sizeof font);
    font.m_bShadow = true;
    CVQMemoryArchive archive;
    font.Write(&archive);
    ASSERT_EQ(archive.GetSize(), 108u);
    EXPECT_EQ(std::vector<BYTE>(archive.GetBuffer() + kShadowAt, archive.GetBuffer() + kShadowAt + 5),
              (std::vector<BYTE>{1, 0, 0, 0, 0xAB}));
}

TEST(StoredFont, HasAShadowForEveryByteThatIsNotZero)
{
    for (const unsigned shadow : {1u, 2u, 0x80u, 0xFFu}) {
        StoredBytes bytes = wideRecord();
        bytes[kShadowAt] = static_cast<BYTE>(shadow);
        CVQFont font = read(bytes, true);
        EXPECT_TRUE(font.m_bShadow);
        CVQMemoryArchive archive;
        font.Write(&archive);
        EXPECT_EQ(contentOf(archive), wideRecord().bytes()) << "stored as 1";
    }
    StoredBytes bytes = wideRecord();
    bytes[kShadowAt] = 0;
    bytes[kShadowAt + 1] = 0xFF;
    EXPECT_FALSE(read(bytes, true).m_bShadow) << "padding is none of it";
}

TEST(StoredFont, EndsItsFaceWhateverIsStored)
{
    StoredBytes bytes = logicalFont();
    bytes.text("0123456789012345678901234567890123456789", 2, 64).number(0).number(0).number(0).number(0);
    const CVQFont font = read(bytes, true);
    EXPECT_EQ(platform::faceName(font.m_LogFont), L"0123456789012345678901234567890"); // 31
    EXPECT_EQ(font.m_LogFont.lfFaceName[31], 0);
}

TEST(NarrowStoredFont, SuitsTheScreenThatItIsReadOn)
{
    ASSERT_EQ(narrowRecord("Tahoma").size(), 76u);
    for (const float factor : {1.0f, 2.0f}) {
        const DisplayScale scale(factor);
        const CVQFont font = read(narrowRecord("Tahoma"), false);
        expectLogicalFont(font.m_LogFont);
        EXPECT_EQ(font.m_LogFont.lfHeight, pixelHeight(-13)) << "and not what is stored";
        EXPECT_EQ(font.m_iPointHeight, pointHeight(-13)) << "and not what is stored";
        EXPECT_EQ(platform::faceName(font.m_LogFont), L"Tahoma");
        EXPECT_EQ(font.m_uiColor, 0x00563412u);
        EXPECT_TRUE(font.m_bShadow);
        EXPECT_EQ(font.m_iNominalSize, -13);
    }
}

TEST(NarrowStoredFont, HasAFaceInTheSystemsCodePage)
{
    wchar_t expected[3] = {};
    ASSERT_EQ(MultiByteToWideChar(CP_ACP, 0, "\x80\xFC", 2, expected, 2), 2);
    EXPECT_EQ(platform::faceName(read(narrowRecord("\x80\xFC"), false).m_LogFont), expected);
    EXPECT_EQ(platform::faceName(read(narrowRecord(""), false).m_LogFont), L"");
    EXPECT_EQ(platform::faceName(read(narrowRecord("01234567890123456789012345678901"), false).m_LogFont),
              L"0123456789012345678901234567890")
        << "32 characters without a terminator";
}

TEST(NarrowStoredFont, HasAShadowForEveryByteThatIsNotZero)
{
    StoredBytes bytes = narrowRecord("Tahoma");
    bytes[60 + 4 + 4] = 0x40;
    EXPECT_TRUE(read(bytes, false).m_bShadow);
    bytes[60 + 4 + 4] = 0;
    EXPECT_FALSE(read(bytes, false).m_bShadow);
}

TEST(StoredFont, ThatIsCutThrowsAndChangesNothing)
{
    for (const bool wide : {true, false}) {
        const StoredBytes bytes = wide ? wideRecord() : narrowRecord("Tahoma");
        for (std::size_t length = 0; length < bytes.size(); ++length) {
            CVQMemoryArchive archive = bytes.archive(length);
            CVQFont font;
            font.m_iNominalSize = 7;
            const CVQFont before = font;
            EXPECT_EQ(causeOf([&] { font.Read(&archive, wide); }), CArchiveException::endOfFile) << length;
            EXPECT_TRUE(isSame(font, before)) << length;
        }
    }
}

TEST(StoredFont, OfNoArchiveStaysAsItIs)
{
    CVQFont font = read(wideRecord(), true);
    const CVQFont before = font;
    font.Read(nullptr, true);
    font.Read(nullptr, false);
    font.Write(nullptr);
    EXPECT_TRUE(isSame(font, before));
}

} // namespace
} // namespace vq::test
