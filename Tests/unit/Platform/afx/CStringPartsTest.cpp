// SPDX-License-Identifier: MIT
// Comparing, searching, taking parts, splitting.
#include "Platform/afx/CString.h"

#include "Platform/afx/Exceptions.h"
#include "PrintCString.h"

#include <limits>
#include <string>
#include <vector>

namespace vq::test::cStringPartsTests {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();
constexpr LPCTSTR kNull = nullptr;

TEST(CStringComparing, OrdersByCharacterNumbers)
{
    const CString text(L"abc");

    EXPECT_EQ(text.Compare(L"abc"), 0);
    EXPECT_LT(text.Compare(L"abd"), 0);
    EXPECT_GT(text.Compare(L"abC"), 0);
    EXPECT_GT(text.Compare(L"ab"), 0);
    EXPECT_LT(text.Compare(L"abcd"), 0);
    EXPECT_GT(text.Compare(kNull), 0);
    EXPECT_EQ(CString().Compare(kNull), 0);
    EXPECT_EQ(text.Collate(L"abc"), 0);
}

TEST(CStringComparing, WithoutCaseMeansAToZOnly)
{
    EXPECT_EQ(CString(L"Ab-Z0").CompareNoCase(L"aB-z0"), 0);
    EXPECT_LT(CString(L"abc").CompareNoCase(L"ABD"), 0);
    EXPECT_GT(CString(L"ABD").CompareNoCase(L"abc"), 0);
    EXPECT_GT(CString(L"abc").CompareNoCase(L"AB"), 0);
    EXPECT_LT(CString(L"AB").CompareNoCase(L"abc"), 0);
    EXPECT_NE(CString(L"\u00C4").CompareNoCase(L"\u00E4"), 0);
    EXPECT_NE(CString(L"[").CompareNoCase(L"{"), 0) << "neighbours of the letters are 32 apart too";
    EXPECT_NE(CString(L"@").CompareNoCase(L"`"), 0);
}

TEST(CStringComparing, OperatorsTakeStringsAndTextOnBothSides)
{
    const CString a(L"a"), b(L"b");

    EXPECT_TRUE(a == CString(L"a") && a == L"a" && L"a" == a);
    EXPECT_TRUE(a != b && a != L"b" && L"b" != a);
    EXPECT_TRUE(a < b && a < L"b" && L"a" < b);
    EXPECT_TRUE(b > a && b > L"a" && L"b" > a);
    EXPECT_TRUE(a <= b && a <= L"a" && L"a" <= a);
    EXPECT_TRUE(b >= a && b >= L"b" && L"b" >= b);
    EXPECT_TRUE(CString() == kNull);
}

TEST(CStringComparing, EndsAtANullCharacter)
{
    EXPECT_EQ(CString(L"a\0b", 3), CString(L"a\0c", 3));
}

TEST(CStringParts, LeftMidRightAreLimitedToTheText)
{
    const CString text(L"abcdef");

    EXPECT_EQ(text.Left(2), L"ab");
    EXPECT_EQ(text.Left(-1), L"");
    EXPECT_EQ(text.Left(kMost), L"abcdef");
    EXPECT_EQ(text.Right(2), L"ef");
    EXPECT_EQ(text.Right(kLeast), L"");
    EXPECT_EQ(text.Right(7), L"abcdef");
    EXPECT_EQ(text.Mid(2), L"cdef");
    EXPECT_EQ(text.Mid(6), L"");
    EXPECT_EQ(text.Mid(kMost), L"");
    EXPECT_EQ(text.Mid(-3), L"abcdef");
    EXPECT_EQ(text.Mid(1, 3), L"bcd");
    EXPECT_EQ(text.Mid(4, kMost), L"ef");
    EXPECT_EQ(text.Mid(kMost, kMost), L"");
    EXPECT_EQ(text.Mid(-1, 2), L"ab");
    EXPECT_EQ(text.Mid(2, -1), L"");
    EXPECT_EQ(CString().Mid(0, 1), L"");
}

TEST(CStringParts, SpansEndAtTheFirstOtherCharacter)
{
    const CString text(L"cabinet");

    EXPECT_EQ(text.SpanIncluding(L"abc"), L"cab");
    EXPECT_EQ(text.SpanIncluding(L"xyz"), L"");
    EXPECT_EQ(text.SpanIncluding(kNull), L"");
    EXPECT_EQ(text.SpanExcluding(L"ni"), L"cab");
    EXPECT_EQ(text.SpanExcluding(L"c"), L"");
    EXPECT_EQ(text.SpanExcluding(kNull), L"cabinet");
}

TEST(CStringSearching, FindsCharactersFromAPosition)
{
    const CString text(L"abcabc");

    EXPECT_EQ(text.Find(L'b'), 1);
    EXPECT_EQ(text.Find(L'b', 2), 4);
    EXPECT_EQ(text.Find(L'x'), -1);
    EXPECT_EQ(text.Find(L'a', 6), -1);
    EXPECT_EQ(text.Find(L'a', -1), -1);
    EXPECT_EQ(text.Find(L'a', kMost), -1);
    EXPECT_EQ(text.ReverseFind(L'b'), 4);
    EXPECT_EQ(text.ReverseFind(L'x'), -1);
    EXPECT_EQ(text.FindOneOf(L"xcb"), 1);
    EXPECT_EQ(text.FindOneOf(L"xyz"), -1);
    EXPECT_EQ(text.FindOneOf(kNull), -1);
    EXPECT_EQ(CString().Find(L'a'), -1);
}

TEST(CStringSearching, FindsTextFromAPosition)
{
    const CString text(L"abcabc");

    EXPECT_EQ(text.Find(L"bc"), 1);
    EXPECT_EQ(text.Find(L"bc", 2), 4);
    EXPECT_EQ(text.Find(L"bcd"), -1);
    EXPECT_EQ(text.Find(L"", 3), 3);
    EXPECT_EQ(text.Find(L"", 6), 6);
    EXPECT_EQ(text.Find(L"", 7), -1);
    EXPECT_EQ(text.Find(L"a", -1), -1);
    EXPECT_EQ(text.Find(kNull), -1);
}

/// The example of Microsoft's documentation of CStringT::Tokenize.
TEST(CStringTokenizing, SplitsTheDocumentedExample)
{
    const CString text(L"%First Second#Third");
    std::vector<CString> tokens;
    int position = 0;

    for (CString token = text.Tokenize(L"% #", position); !token.IsEmpty(); token = text.Tokenize(L"% #", position))
        tokens.push_back(token);

    EXPECT_EQ(tokens, (std::vector<CString>{L"First", L"Second", L"Third"}));
    EXPECT_EQ(position, -1);
}

TEST(CStringTokenizing, PutsThePositionBehindTheSeparatorThatEndedThePiece)
{
    const CString text(L",,ab,,c");
    int position = 0;

    EXPECT_EQ(text.Tokenize(L",", position), L"ab");
    EXPECT_EQ(position, 5);
    EXPECT_EQ(text.Tokenize(L",", position), L"c");
    EXPECT_EQ(position, 8) << "one behind the terminator, where a separator would stand";
    EXPECT_EQ(text.Tokenize(L",", position), L"");
    EXPECT_EQ(position, -1);
    EXPECT_THROW(text.Tokenize(L",", position), CInvalidArgException*);
}

TEST(CStringTokenizing, GivesNothingForSeparatorsOnly)
{
    int position = 0;
    EXPECT_EQ(CString(L";;;").Tokenize(L";", position), L"");
    EXPECT_EQ(position, -1);
    position = 0;
    EXPECT_EQ(CString().Tokenize(L";", position), L"");
    EXPECT_EQ(position, -1);
    position = kMost;
    EXPECT_EQ(CString(L"abc").Tokenize(L";", position), L"");
    EXPECT_EQ(position, -1);
}

TEST(CStringTokenizing, WithoutSeparatorsGivesTheRestAndLeavesThePosition)
{
    const CString text(L"abc");
    for (const LPCTSTR separators : {L"", kNull}) {
        int position = 1;
        EXPECT_EQ(text.Tokenize(separators, position), L"bc");
        EXPECT_EQ(position, 1);
    }
    int position = 3;
    EXPECT_EQ(text.Tokenize(L"", position), L"");
    EXPECT_EQ(position, -1);
}

} // namespace
} // namespace vq::test::cStringPartsTests
