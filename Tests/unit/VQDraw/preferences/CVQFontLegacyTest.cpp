// SPDX-License-Identifier: MIT
#include "Resolution.h"
#include "StoredPreferences.h"

#include "parity/Encoders.h"

#include <cwchar>

namespace vq::test::cvqFontLegacyTests {
namespace {

/// A record none of whose values is 0.
CVQFont someFont()
{
    CVQFont font;
    font.m_LogFont.lfHeight = -77;
    font.m_LogFont.lfWeight = 300;
    font.m_LogFont.lfItalic = 9;
    font.m_LogFont.lfCharSet = 9;
    font.m_LogFont.lfPitchAndFamily = 9;
    platform::setFaceName(font.m_LogFont, L"Old");
    font.m_iPointHeight = 88;
    font.m_uiColor = 0x112233;
    font.m_bShadow = true;
    font.m_iNominalSize = -66;
    return font;
}

class OpenFile
{
public:
    explicit OpenFile(const TemporaryFile& file, const wchar_t* mode = L"rb") : m_file(_wfopen(file.path(), mode)) {}
    ~OpenFile() { std::fclose(m_file); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    operator std::FILE*() const { return m_file; }

private:
    std::FILE* m_file;
};

CVQFont read(const std::string& content)
{
    const TemporaryFile file(L"font");
    file.write(content);
    const OpenFile stream(file);
    CVQFont font = someFont();
    font.ReadFromFileLegacy(stream);
    return font;
}

std::wstring faceOf(const std::string& content)
{
    return platform::faceName(read(content).m_LogFont);
}

TEST(LegacyFont, HasATagForEveryValue)
{
    const CVQFont font = read("<Color>255\n<lfHeight>-16\n<lfWeight>700\n<lfItalic>1\n<lfCharSet>129\n"
                              "<lfPitchAndFamily>34\n<lfFaceName>Tahoma\n<bShadow>0\n</Font>\n");
    EXPECT_EQ(font.m_uiColor, 255u);
    EXPECT_EQ(font.m_iNominalSize, -16);
    EXPECT_EQ(font.m_LogFont.lfWeight, 700);
    EXPECT_EQ(font.m_LogFont.lfItalic, 1);
    EXPECT_EQ(font.m_LogFont.lfCharSet, 129);
    EXPECT_EQ(font.m_LogFont.lfPitchAndFamily, 34);
    EXPECT_EQ(platform::faceName(font.m_LogFont), L"Tahoma");
    EXPECT_FALSE(font.m_bShadow);
}

TEST(LegacyFont, KeepsItsHeightsWhenTheClosingTagIsRead)
{
    CVQFont expected = someFont();
    expected.m_uiColor = 255;
    expected.m_iNominalSize = -16;
    EXPECT_TRUE(isSame(read("<Color>255\n<lfHeight>-16\n</Font>"), expected));
    EXPECT_TRUE(isSame(read("<Color>255\n<lfHeight>-16\n</FONT>\n<Color>1\n"), expected));
    EXPECT_TRUE(isSame(read("<Color>255\n<lfHeight>-16\n\t</font>\t\n"), expected));
}

TEST(LegacyFont, SuitsTheScreenWhenTheFileEndsWithoutTheClosingTag)
{
    for (const float factor : {1.0f, 1.5f}) {
        const DisplayScale scale(factor);
        CVQFont expected = someFont();
        expected.m_uiColor = 255;
        expected.m_iNominalSize = -16;
        expected.m_LogFont.lfHeight = pixelHeight(-16);
        expected.m_iPointHeight = pointHeight(-16);
        EXPECT_TRUE(isSame(read("<Color>255\n<lfHeight>-16\n"), expected));
        EXPECT_TRUE(isSame(read("<Color>255\n<lfHeight>-16\n </Font>\n"), expected)) << "a blank is not trimmed";
    }
}

TEST(LegacyFont, OfAnEmptyFileSuitsTheScreenToo)
{
    EXPECT_EQ(read("").m_LogFont.lfHeight, pixelHeight(-66));
    EXPECT_EQ(read("").m_iPointHeight, pointHeight(-66));
}

TEST(LegacyFont, OfNoFileStaysAsItIs)
{
    CVQFont font = someFont();
    font.ReadFromFileLegacy(nullptr);
    EXPECT_TRUE(isSame(font, someFont()));
}

TEST(LegacyFont, LosesWhatOccursInTheTagAtTheBeginningOfAFace)
{
    EXPECT_EQ(faceOf("<lfFaceName>cambria\n"), L"bria"); // c, a and m occur in it, b does not
    EXPECT_EQ(faceOf("<lfFaceName>Cambria\n"), L"Cambria");
    EXPECT_EQ(faceOf("<lfFaceName>leaf name\n"), L" name");
    EXPECT_EQ(faceOf("<lfFaceName>Name\n"), L"") << "nothing but letters of the tag";
    EXPECT_EQ(faceOf("<lfFaceName>\n"), L"");
}

TEST(LegacyFont, TakesZeroWhenABlankStandsBeforeTheTag)
{
    EXPECT_EQ(read("  <lfWeight>700\n").m_LogFont.lfWeight, 0);
    EXPECT_EQ(read("\t\t<lfWeight>700\t\n").m_LogFont.lfWeight, 700) << "tabs are trimmed";
    EXPECT_EQ(read("<lfWeight> 700\n").m_LogFont.lfWeight, 700) << "white space before a number is none of the tag";
    EXPECT_EQ(read("x<lfWeight>700\n").m_LogFont.lfWeight, 0);
    EXPECT_EQ(read("t<lfWeight>700\n").m_LogFont.lfWeight, 700) << "t is one of the tag's characters";
}

TEST(LegacyFont, TakesTheFirstTagInTheReadersOrder)
{
    CVQFont expected = someFont();
    expected.m_uiColor = 5;
    EXPECT_TRUE(isSame(read("<Color>5<lfWeight>6\n</Font>"), expected));
    EXPECT_TRUE(isSame(read("<lfWeight><Color>5\n</Font>"), [] {
        CVQFont font = someFont();
        font.m_uiColor = 0; // its value begins at the first f, which is none of the tag
        return font;
    }()));
    EXPECT_EQ(read("<lfFaceName>A<lfPitchAndFamily>3\n").m_LogFont.lfPitchAndFamily, 0) << "and not the face";
    EXPECT_EQ(faceOf("<lfFaceName>A<lfPitchAndFamily>3\n"), L"Old");
    EXPECT_EQ(faceOf("<bShadow>1<lfFaceName>\n"), L"bShadow>1<lfFaceName>") << "the face comes before the shadow";
}

TEST(LegacyFont, TakesTagsInTheirOwnLettersOnly)
{
    EXPECT_EQ(read("<color>5\n<COLOR>5\n<Color 5\nColor>5\n").m_uiColor, 0x112233u);
}

TEST(LegacyFont, KeepsTheLowBytesOfSmallValues)
{
    const CVQFont font = read("<lfItalic>258\n<lfCharSet>-1\n<lfPitchAndFamily>4660\n<bShadow>-7\n");
    EXPECT_EQ(font.m_LogFont.lfItalic, 2);
    EXPECT_EQ(font.m_LogFont.lfCharSet, 255);
    EXPECT_EQ(font.m_LogFont.lfPitchAndFamily, 0x34);
    EXPECT_TRUE(font.m_bShadow);
}

TEST(LegacyFont, CutsALongFace)
{
    EXPECT_EQ(faceOf("<lfFaceName>Tzyxwvutsrqponmlkjihgfedcba0123456789\n"), L"Tzyxwvutsrqponmlkjihgfedcba0123"); // 31
}

TEST(LegacyFont, ReadsTheEncodingsOfTextFiles)
{
    using namespace std::string_literals;
    EXPECT_EQ(faceOf("<lfFaceName>B\xC3\xBC\xE2\x82\xAC\n"), L"B\u00FC\u20AC");
    EXPECT_EQ(faceOf("\xEF\xBB\xBF<lfFaceName>B\xC3\xBC\n"), L"B\u00FC");
    EXPECT_EQ(faceOf("<lfFaceName>B\xFC\xE2\x82x\n"), L"B\u00FC\u00E2\u0082x") << "no UTF-8: Latin-1";
    EXPECT_EQ(faceOf("\xFF\xFE"
                     "<\0l\0f\0F\0a\0c\0e\0N\0a\0m\0e\0>\0B\0\xFC\0\xAC\x20\n\0"s),
              L"B\u00FC\u20AC");
    EXPECT_EQ(faceOf("\xFE\xFF"
                     "\0<\0l\0f\0F\0a\0c\0e\0N\0a\0m\0e\0>\0B\0\xFC\x20\xAC\0\n"s),
              L"B\u00FC\u20AC");
}

TEST(LegacyFont, EndsItsLinesInEitherWay)
{
    const CVQFont font = read("<Color>5\r\n<lfFaceName>Tahoma\r\n<lfWeight>300\r\n</Font>\r\n");
    EXPECT_EQ(font.m_uiColor, 5u);
    EXPECT_EQ(platform::faceName(font.m_LogFont), L"Tahoma");
    EXPECT_EQ(font.m_LogFont.lfHeight, -77) << "the closing tag was found";
}

TEST(LegacyFont, LeavesWhatFollowsTheClosingTagInTheStream)
{
    const TemporaryFile file(L"font");
    for (const std::string lineEnd : {"\n", "\r\n"}) {
        file.write("<Font>" + lineEnd + "<Color>7" + lineEnd + "</Font>" + lineEnd + "next" + lineEnd);
        const OpenFile stream(file);
        char text[20] = {};
        ASSERT_TRUE(std::fgets(text, sizeof text, stream));
        CVQFont font = someFont();
        font.ReadFromFileLegacy(stream);
        EXPECT_EQ(font.m_uiColor, 7u);
        ASSERT_TRUE(std::fgets(text, sizeof text, stream));
        EXPECT_EQ(text, "next" + lineEnd);
    }
}

TEST(LegacyFont, IsReadInTheMiddleOfUtf16)
{
    using namespace std::string_literals;
    const TemporaryFile file(L"font");
    file.write("\xFF\xFE"
               "x\0\n\0<\0C\0o\0l\0o\0r\0>\0"
               "7\0\n\0"s);
    const OpenFile stream(file);
    ASSERT_EQ(std::fseek(stream, 6, SEEK_SET), 0);
    CVQFont font = someFont();
    font.ReadFromFileLegacy(stream);
    EXPECT_EQ(font.m_uiColor, 7u);
}

TEST(LegacyFont, IsReadFromAStreamThatItsHostReadsAsWideCharacters)
{
    const TemporaryFile file(L"font");
    file.write("<Font>\n<Color>7\n</Font>\nnext\n");
    const OpenFile stream(file, L"r");
    wchar_t text[20] = {};
    ASSERT_TRUE(std::fgetws(text, 20, stream));
    CVQFont font = someFont();
    font.ReadFromFileLegacy(stream);
    EXPECT_EQ(font.m_uiColor, 7u);
    ASSERT_TRUE(std::fgetws(text, 20, stream));
    EXPECT_STREQ(text, L"next\n");
}

TEST(LegacyFont, ReadsLongLinesInPieces)
{
    const std::string tag = "<Color>5";
    EXPECT_EQ(read(std::string(199, ' ') + tag + "\n").m_uiColor, 5u) << "a piece of its own: 199 characters are read";
    EXPECT_EQ(read(std::string(198, ' ') + tag + "\n").m_uiColor, 0x112233u) << "the tag is cut in two";
    EXPECT_EQ(read(std::string(191, '\t') + tag + "\n").m_uiColor, 5u);
    EXPECT_EQ(read(std::string(192, '\t') + tag + "\n").m_uiColor, 0u) << "its value is in the next piece";
    EXPECT_EQ(read(std::string(5'000'000, 'x') + "\n" + tag).m_uiColor, 5u);
    EXPECT_EQ(read(std::string(199, '\t') + "\n</Font>\n").m_LogFont.lfHeight, -77) << "pieces without any text";
}

} // namespace
} // namespace vq::test::cvqFontLegacyTests
