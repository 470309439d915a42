// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace vq::test::stringsTests {
namespace {

std::wstring toWide(UINT codePage, std::string_view bytes, DWORD flags = 0)
{
    std::wstring text(64, L'#');
    const int length =
        MultiByteToWideChar(codePage, flags, bytes.data(), static_cast<int>(bytes.size()), text.data(), 64);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::string toBytes(UINT codePage, std::wstring_view text, DWORD flags = 0)
{
    std::string bytes(64, '#');
    const int length = WideCharToMultiByte(codePage, flags, text.data(), static_cast<int>(text.size()), bytes.data(),
                                           64, nullptr, nullptr);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

template <typename Call>
DWORD errorOf(Call call)
{
    SetLastError(ERROR_SUCCESS);
    EXPECT_EQ(call(), 0);
    return GetLastError();
}

TEST(Utf8, IsReadAndWritten)
{
    EXPECT_EQ(toWide(CP_UTF8, "a\xC3\xA9\xE2\x82\xAC"), L"a\u00E9\u20AC");
    EXPECT_EQ(toBytes(CP_UTF8, L"a\u00E9\u20AC"), "a\xC3\xA9\xE2\x82\xAC");
}

// The longest beginning that could have become a character counts as one (The Unicode Standard, chapter 3, U+FFFD
// substitution of maximal subparts).
TEST(Utf8, ReplacesWhatIsInvalid)
{
    EXPECT_EQ(toWide(CP_UTF8, "\x80"), L"\uFFFD");
    EXPECT_EQ(toWide(CP_UTF8, "\xC0\x80"), L"\uFFFD\uFFFD");
    EXPECT_EQ(toWide(CP_UTF8, "\xE2\x82"), L"\uFFFD");
    EXPECT_EQ(toWide(CP_UTF8, "\xE2\x82x"), L"\uFFFDx");
    EXPECT_EQ(toWide(CP_UTF8, "\xF0\x9F\x98"), L"\uFFFD");
    EXPECT_EQ(toWide(CP_UTF8, "\xF1\x80\xC3\xA9"), L"\uFFFD\u00E9");
    EXPECT_EQ(toWide(CP_UTF8, "\xFF\xFE"), L"\uFFFD\uFFFD");
    EXPECT_EQ(toWide(CP_UTF8, "\xF8\x88\x80\x80\x80"), L"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD");
}

TEST(Utf8, FailsOnRequestWhenInvalid)
{
    wchar_t buffer[8];
    char bytes[8];
    const wchar_t lone[]{0xD800, L'x', 0};
    EXPECT_EQ(errorOf([&] { return MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, "a\x80", 2, buffer, 8); }),
              DWORD{ERROR_NO_UNICODE_TRANSLATION});
    EXPECT_EQ(errorOf([&] {
                  return WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, lone, -1, bytes, 8, nullptr, nullptr);
              }),
              DWORD{ERROR_NO_UNICODE_TRANSLATION});
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, "ab", 2, buffer, 8), 2);
}

TEST(Utf8, JoinsPairsOfSurrogatesAndReplacesLoneOnes)
{
    const wchar_t pair[]{0xD83D, 0xDE00};
    EXPECT_EQ(toBytes(CP_UTF8, {pair, 2}), "\xF0\x9F\x98\x80");
    EXPECT_EQ(toBytes(CP_UTF8, {pair, 1}), "\xEF\xBF\xBD");
    EXPECT_EQ(toBytes(CP_UTF8, {pair + 1, 1}), "\xEF\xBF\xBD");
}

TEST(Windows1252, HasItsOwnCharactersBetween80And9F)
{
    EXPECT_EQ(toWide(1252, "\x80\x82\x8E\x99\x9F"), L"\u20AC\u201A\u017D\u2122\u0178");
    EXPECT_EQ(toBytes(1252, L"\u20AC\u201A\u017D\u2122\u0178"), "\x80\x82\x8E\x99\x9F");
}

TEST(Windows1252, KeepsEveryByteThroughWideCharacters)
{
    std::string all;
    for (int byte = 1; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    for (std::size_t from = 0; from < all.size(); from += 50) {
        const std::string part = all.substr(from, 50);
        EXPECT_EQ(toBytes(1252, toWide(1252, part, MB_ERR_INVALID_CHARS)), part);
    }
}

TEST(Windows1252, SaysWhatItLacks)
{
    char bytes[8]{};
    BOOL lacking = 7;
    EXPECT_EQ(WideCharToMultiByte(1252, 0, L"a\u4E00", -1, bytes, 8, nullptr, &lacking), 3);
    EXPECT_STREQ(bytes, "a?");
    EXPECT_EQ(lacking, TRUE);

    EXPECT_EQ(WideCharToMultiByte(1252, WC_NO_BEST_FIT_CHARS, L"\u0100b", -1, bytes, 8, "#", &lacking), 3);
    EXPECT_STREQ(bytes, "#b");
    EXPECT_EQ(WideCharToMultiByte(1252, 0, L"b", -1, bytes, 8, "#", &lacking), 2);
    EXPECT_EQ(lacking, FALSE);
}

TEST(Conversion, CountsWithoutABuffer)
{
    EXPECT_EQ(MultiByteToWideChar(CP_ACP, 0, "abc", -1, nullptr, 0), 4);
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "\xE2\x82\xAC", 3, nullptr, 0), 1);
    EXPECT_EQ(WideCharToMultiByte(CP_UTF8, 0, L"\u20AC", -1, nullptr, 0, nullptr, nullptr), 4);
}

TEST(Conversion, DoesNotTerminateWhatWasCounted)
{
    wchar_t buffer[4]{L'#', L'#', L'#', L'#'};
    EXPECT_EQ(MultiByteToWideChar(CP_UTF8, 0, "abc", 2, buffer, 4), 2);
    EXPECT_EQ(buffer[1], L'b');
    EXPECT_EQ(buffer[2], L'#');
}

TEST(Conversion, RefusesABufferThatIsTooSmallAndWritesNothingBehindIt)
{
    wchar_t wide[4]{L'#', L'#', L'#', L'#'};
    EXPECT_EQ(errorOf([&] { return MultiByteToWideChar(CP_UTF8, 0, "abc", 3, wide, 2); }),
              DWORD{ERROR_INSUFFICIENT_BUFFER});
    EXPECT_EQ(wide[2], L'#');
    char bytes[4]{'#', '#', '#', '#'};
    EXPECT_EQ(errorOf([&] { return WideCharToMultiByte(CP_UTF8, 0, L"abc", 3, bytes, 2, nullptr, nullptr); }),
              DWORD{ERROR_INSUFFICIENT_BUFFER});
    EXPECT_EQ(bytes[2], '#');
}

TEST(Conversion, RefusesArgumentsThatMakeNoSense)
{
    wchar_t wide[4];
    char bytes[4];
    EXPECT_EQ(errorOf([&] { return MultiByteToWideChar(CP_UTF8, 0, nullptr, 3, wide, 4); }),
              DWORD{ERROR_INVALID_PARAMETER});
    EXPECT_EQ(errorOf([&] { return MultiByteToWideChar(CP_UTF8, 0, "abc", 0, wide, 4); }),
              DWORD{ERROR_INVALID_PARAMETER});
    EXPECT_EQ(errorOf([&] { return MultiByteToWideChar(CP_UTF8, 0, "abc", 3, nullptr, 4); }),
              DWORD{ERROR_INVALID_PARAMETER});
    EXPECT_EQ(errorOf([&] { return MultiByteToWideChar(CP_UTF8, 0, "abc", 3, wide, -1); }),
              DWORD{ERROR_INVALID_PARAMETER});
    EXPECT_EQ(errorOf([&] { return MultiByteToWideChar(77777, 0, "abc", 3, wide, 4); }),
              DWORD{ERROR_INVALID_PARAMETER});
    EXPECT_EQ(errorOf([&] { return MultiByteToWideChar(CP_UTF8, 0x1000, "abc", 3, wide, 4); }),
              DWORD{ERROR_INVALID_FLAGS});
    EXPECT_EQ(errorOf([&] { return WideCharToMultiByte(CP_UTF8, 0, nullptr, 3, bytes, 4, nullptr, nullptr); }),
              DWORD{ERROR_INVALID_PARAMETER});
    EXPECT_EQ(errorOf([&] { return WideCharToMultiByte(CP_UTF8, 0x1000, L"abc", 3, bytes, 4, nullptr, nullptr); }),
              DWORD{ERROR_INVALID_FLAGS});
}

} // namespace
} // namespace vq::test::stringsTests
