// SPDX-License-Identifier: MIT
// Changing strings in place.
#include "Platform/afx/CString.h"

#include "PrintCString.h"

#include <clocale>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace vq::test::cStringEditTests {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();
constexpr LPCTSTR kNull = nullptr;

TEST(CStringCase, ChangesAToZOnly)
{
    EXPECT_EQ(CString(L"aZ09@[`{\u00E4\u0130").MakeUpper(), L"AZ09@[`{\u00E4\u0130");
    EXPECT_EQ(CString(L"Az09@[`{\u00C4\u0130").MakeLower(), L"az09@[`{\u00C4\u0130");
    EXPECT_EQ(CString().MakeUpper(), L"");
}

TEST(CStringCase, DoesNotDependOnTheLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C.utf8", "tr_TR.UTF-8", "de_DE.UTF-8", "German"}) {
        if (!std::setlocale(LC_ALL, locale))
            continue;
        EXPECT_EQ(CString(L"I\u00C4").MakeLower(), L"i\u00C4") << locale;
        EXPECT_EQ(CString(L"i\u00E4").MakeUpper(), L"I\u00E4") << locale;
        EXPECT_NE(CString(L"\u00C4").CompareNoCase(L"\u00E4"), 0) << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(CStringReversing, TurnsTheTextRound)
{
    EXPECT_EQ(CString(L"abc").MakeReverse(), L"cba");
    EXPECT_EQ(CString().MakeReverse(), L"");
}

TEST(CStringTrimming, CutsWhiteSpaceFromTheEnds)
{
    EXPECT_EQ(CString(L" \t\r\n\v\f a b \u00A0\u3000\u2009").Trim(), L"a b");
    EXPECT_EQ(CString(L"  a ").TrimLeft(), L"a ");
    EXPECT_EQ(CString(L"  a ").TrimRight(), L"  a");
    EXPECT_EQ(CString(L" \n ").Trim(), L"");
    EXPECT_EQ(CString().Trim(), L"");
    EXPECT_EQ(CString(L"\u200Ba").Trim(), L"\u200Ba") << "a space without width is no white space";
}

TEST(CStringTrimming, CutsOneCharacterFromTheEnds)
{
    EXPECT_EQ(CString(L"xxaxx").Trim(L'x'), L"a");
    EXPECT_EQ(CString(L"xxaxx").TrimLeft(L'x'), L"axx");
    EXPECT_EQ(CString(L"xxaxx").TrimRight(L'x'), L"xxa");
}

TEST(CStringTrimming, CutsCharactersOfASetNotAPrefix)
{
    EXPECT_EQ(CString(L"<Color>color").TrimLeft(L"<Color>"), L"color") << "a small c is not in the set";
    EXPECT_EQ(CString(L"<lfFaceName>cambria").TrimLeft(L"<lfFaceName>"), L"bria");
    EXPECT_EQ(CString(L"\t12\n\n").Trim(L"\n\t"), L"12");
    EXPECT_EQ(CString(L"abcab").TrimRight(L"ab"), L"abc");
    EXPECT_EQ(CString(L"abab").Trim(L"ab"), L"");
    EXPECT_EQ(CString(L" a ").Trim(L""), L" a ");
    EXPECT_EQ(CString(L" a ").Trim(kNull), L" a ");
}

TEST(CStringTrimming, AcceptsASetThatIsTheStringItself)
{
    CString text(L"abcab");
    EXPECT_EQ(text.Trim(text.GetString() + 3), L"c");
}

TEST(CStringInserting, PutsTextBeforeAnIndexThatIsLimitedToTheText)
{
    CString text(L"bd");
    EXPECT_EQ(text.Insert(1, L'c'), 3);
    EXPECT_EQ(text.Insert(kLeast, L"a"), 4);
    EXPECT_EQ(text.Insert(kMost, L"e"), 5);
    EXPECT_EQ(text, L"abcde");
    EXPECT_EQ(text.Insert(2, kNull), 5);
    EXPECT_EQ(text.Insert(2, L""), 5);
    EXPECT_EQ(text, L"abcde");
}

TEST(CStringInserting, ItselfIntoTheMiddle)
{
    CString text(L"ab");
    text.Preallocate(100);
    text.Insert(1, text);
    EXPECT_EQ(text, L"aabb");
    text.Insert(3, text.GetString() + 2);
    EXPECT_EQ(text, L"aabbbb");
}

TEST(CStringDeleting, RemovesWhatTheTextHasOfTheRange)
{
    CString text(L"abcdef");
    EXPECT_EQ(text.Delete(1), 5);
    EXPECT_EQ(text.Delete(2, 2), 3);
    EXPECT_EQ(text, L"acf");
    EXPECT_EQ(text.Delete(3, 5), 3);
    EXPECT_EQ(text.Delete(1, 0), 3);
    EXPECT_EQ(text.Delete(1, kLeast), 3);
    EXPECT_EQ(text.Delete(2, kMost), 2);
    EXPECT_EQ(text.Delete(-5, 1), 1);
    EXPECT_EQ(text, L"c");
    EXPECT_EQ(CString().Delete(0, 1), 0);
}

TEST(CStringRemoving, CountsTheCharacters)
{
    CString text(L"banana");
    EXPECT_EQ(text.Remove(L'a'), 3);
    EXPECT_EQ(text, L"bnn");
    EXPECT_EQ(text.Remove(L'x'), 0);
    EXPECT_EQ(CString().Remove(L'a'), 0);
}

TEST(CStringReplacing, Characters)
{
    CString text(L"a/b/c");
    EXPECT_EQ(text.Replace(L'/', L'\\'), 2);
    EXPECT_EQ(text, L"a\\b\\c");
    EXPECT_EQ(text.Replace(L'x', L'y'), 0);
    EXPECT_EQ(text.Replace(L'a', L'a'), 0);
}

TEST(CStringReplacing, TextByShorterLongerAndNone)
{
    CString text(L"one two one");
    EXPECT_EQ(text.Replace(L"one", L"three"), 2);
    EXPECT_EQ(text, L"three two three");
    EXPECT_EQ(text.Replace(L"three", L"1"), 2);
    EXPECT_EQ(text, L"1 two 1");
    EXPECT_EQ(text.Replace(L"1", kNull), 2);
    EXPECT_EQ(text, L" two ");
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    EXPECT_EQ(text.Replace(kNull, L"x"), 0);
}

TEST(CStringReplacing, DoesNotLookIntoWhatItPutIn)
{
    CString text(L"aaa");
    EXPECT_EQ(text.Replace(L"a", L"aa"), 3);
    EXPECT_EQ(text, L"aaaaaa");
    EXPECT_EQ(text.Replace(L"aa", L"a"), 3);
    EXPECT_EQ(text, L"aaa");
    EXPECT_EQ(text.Replace(L"aa", text), 1);
    EXPECT_EQ(text, L"aaaa");
}

/// Random edits of a string and of a std::wstring side by side.
TEST(CStringEditing, AgreesWithTheStandardLibrary)
{
    const std::uint32_t seed = 20240611;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&](std::size_t limit) { return static_cast<int>(random() % (limit + 1)); };
    CString text;
    std::wstring expected;
    for (int step = 0; step < 20000; ++step) {
        const int at = below(expected.size());
        const int count = below(expected.size() - static_cast<std::size_t>(at));
        const auto from = static_cast<std::size_t>(at);
        const std::wstring part = expected.substr(from, static_cast<std::size_t>(count));
        switch (expected.size() > 300 ? 0 : random() % 4) {
        case 0:
            text.Delete(at, count);
            expected.erase(from, part.size());
            break;
        case 1:
            text.Insert(at, text.Mid(at, count));
            expected.insert(from, part);
            break;
        case 2:
            text.Insert(at, static_cast<wchar_t>(L'a' + step % 26));
            expected.insert(from, 1, static_cast<wchar_t>(L'a' + step % 26));
            break;
        default:
            text.Append(text.GetString() + at, count);
            expected += part;
        }
        ASSERT_EQ(text, expected.c_str()) << "step " << step;
        ASSERT_EQ(text.GetLength(), static_cast<int>(expected.size()));
    }
}

} // namespace
} // namespace vq::test::cStringEditTests
