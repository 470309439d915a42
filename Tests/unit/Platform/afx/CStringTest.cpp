// SPDX-License-Identifier: MIT
// Making, reading and growing strings, and writing into their buffers.
#include "Platform/afx/CString.h"

#include "Platform/afx/Exceptions.h"
#include "PrintCString.h"

#include <array>
#include <cwchar>
#include <string>
#include <utility>

namespace {

TEST(CStringMaking, StartsEmptyWithATerminator)
{
    const CString text;

    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(text.GetLength(), 0);
    EXPECT_EQ(*text.GetString(), L'\0');
}

TEST(CStringMaking, TakesNullAsEmpty)
{
    EXPECT_TRUE(CString(static_cast<LPCTSTR>(nullptr)).IsEmpty());
    EXPECT_TRUE(CString(static_cast<LPCSTR>(nullptr)).IsEmpty());
    EXPECT_TRUE(CString(static_cast<LPCTSTR>(nullptr), 0).IsEmpty());
    EXPECT_TRUE((CString(L"x") = static_cast<LPCTSTR>(nullptr)).IsEmpty());
    EXPECT_TRUE((CString(L"x") = static_cast<LPCSTR>(nullptr)).IsEmpty());
    EXPECT_EQ(CString(L"x") += static_cast<LPCTSTR>(nullptr), L"x");
}

TEST(CStringMaking, ReadsNarrowTextInTheSystemsCodePage)
{
    EXPECT_EQ(CString("plain"), L"plain");
    EXPECT_EQ(CString("a\xE4\x80", 3), L"a\u00E4\u20AC"); // Windows-1252, also under Wine's default locale
    EXPECT_EQ(CString(reinterpret_cast<const unsigned char*>("bytes")), L"bytes");
}

TEST(CStringMaking, RepeatsACharacter)
{
    EXPECT_EQ(CString(L'-', 3), L"---");
    EXPECT_EQ(CString('x', 2), L"xx");
    EXPECT_EQ(CString(L'q'), L"q");
    EXPECT_TRUE(CString(L'-', 0).IsEmpty());
    EXPECT_TRUE(CString(L'-', -5).IsEmpty());
}

TEST(CStringMaking, KeepsNullCharactersInsideACountedText)
{
    const CString text(L"a\0b", 3);

    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_EQ(text[1], L'\0');
    EXPECT_EQ(text[2], L'b');
    EXPECT_EQ(text[3], L'\0');
}

TEST(CStringMaking, RefusesNegativeLengthsAndNullWithALength)
{
    EXPECT_THROW(CString(L"abc", -1), CInvalidArgException*);
    EXPECT_THROW(CString("abc", -1), CInvalidArgException*);
    EXPECT_THROW(CString(static_cast<LPCTSTR>(nullptr), 1), CInvalidArgException*);
}

TEST(CStringMaking, IsOnePointerToTheCharacters)
{
    const CString text(L"pointer");

    EXPECT_EQ(*reinterpret_cast<const LPCTSTR*>(&text), text.GetString());
}

TEST(CStringMaking, CopiesAreIndependent)
{
    const CString original(L"one");
    CString copy = original;

    copy.SetAt(0, L'O');

    EXPECT_EQ(original, L"one");
    EXPECT_EQ(copy, L"One");
}

TEST(CStringMaking, MovesItsCharacters)
{
    CString source(L"moved");
    const LPCTSTR characters = source.GetString();

    const CString target(std::move(source));

    EXPECT_EQ(target.GetString(), characters);
}

TEST(CStringAssigning, TakesTextAndCharactersOfBothKinds)
{
    CString text;
    EXPECT_EQ(text = L"wide", L"wide");
    EXPECT_EQ(text = "narrow", L"narrow");
    EXPECT_EQ(text = L'w', L"w");
    EXPECT_EQ(text = 'n', L"n");
    EXPECT_EQ(text = CString(L"string"), L"string");
}

TEST(CStringAssigning, ToItselfChangesNothing)
{
    CString text(L"same");
    const CString& itself = text;

    text = itself;
    EXPECT_EQ(text, L"same");

    text = text.GetString();
    EXPECT_EQ(text, L"same");
}

TEST(CStringAssigning, APartOfItself)
{
    CString text(L"abcdef");

    text = text.GetString() + 2;
    EXPECT_EQ(text, L"cdef");

    text.SetString(text.GetString() + 1, 2);
    EXPECT_EQ(text, L"de");
}

TEST(CStringAccess, ReadsTheTerminatorAndRefusesWhatLiesOutside)
{
    CString text(L"abc");

    EXPECT_EQ(text.GetAt(2), L'c');
    EXPECT_EQ(text[3], L'\0');
    EXPECT_THROW(text.GetAt(4), CInvalidArgException*);
    EXPECT_THROW(text.GetAt(-1), CInvalidArgException*);
    EXPECT_THROW(text.SetAt(3, L'x'), CInvalidArgException*);
    EXPECT_THROW(CString().SetAt(0, L'x'), CInvalidArgException*);
    EXPECT_EQ(text, L"abc");
}

TEST(CStringAppending, TakesTextAndCharactersOfBothKinds)
{
    CString text(L"1");
    text += L"2";
    text += "3";
    text += L'4';
    text += '5';
    text += CString(L"6");
    text.AppendChar(L'7');
    text.Append(L"89x", 2);
    text.Append(CString(L"\0z", 2));

    EXPECT_EQ(text.GetLength(), 11);
    EXPECT_EQ(text, L"123456789");
    EXPECT_EQ(text[10], L'z');
}

TEST(CStringAppending, ItselfDoublesTheText)
{
    CString text(L"ab");
    std::wstring expected = L"ab";

    for (int i = 0; i < 10; ++i) {
        text += text;
        expected += expected;
        ASSERT_EQ(text, expected.c_str());
    }
    text.Append(text.GetString() + 1, 3);
    EXPECT_EQ(text, (expected + L"bab").c_str());
}

TEST(CStringAppending, OneCharacterAtATimeMovesTheTextRarely)
{
    CString text;
    int moves = 0;
    LPCTSTR before = text.GetString();
    for (int i = 0; i < 100000; ++i) {
        text.AppendChar(static_cast<wchar_t>(L'a' + i % 26));
        moves += text.GetString() != before;
        before = text.GetString();
    }
    EXPECT_EQ(text.GetLength(), 100000);
    EXPECT_EQ(text[99999], L'a' + 99999 % 26);
    EXPECT_LT(moves, 40) << "each move enlarges the memory by half: log(100000 / 7) / log(1.5) is 24";
}

TEST(CStringJoining, AcceptsTextAndCharactersOnEitherSide)
{
    const CString text(L"m");

    EXPECT_EQ(text + text, L"mm");
    EXPECT_EQ(text + L"r", L"mr");
    EXPECT_EQ(L"l" + text, L"lm");
    EXPECT_EQ(text + L'r', L"mr");
    EXPECT_EQ(L'l' + text, L"lm");
    EXPECT_EQ(text + 'r', L"mr");
    EXPECT_EQ('l' + text, L"lm");
    EXPECT_EQ(text + static_cast<LPCTSTR>(nullptr), L"m");
}

TEST(CStringBuffer, GivesRoomAndKeepsTheText)
{
    CString text(L"abc");
    wchar_t* buffer = text.GetBuffer(100);

    EXPECT_STREQ(buffer, L"abc");
    std::wcscpy(buffer + 3, L"def");
    text.ReleaseBuffer();

    EXPECT_EQ(text, L"abcdef");
    EXPECT_EQ(text.GetLength(), 6);
    EXPECT_GE(text.GetAllocLength(), 100);
}

TEST(CStringBuffer, OfAnEmptyStringMayBeWritten)
{
    CString text;
    *text.GetBuffer() = L'\0';
    text.ReleaseBuffer();
    EXPECT_TRUE(text.IsEmpty());

    text.GetBuffer(1)[0] = L'x';
    text.ReleaseBuffer(1);
    EXPECT_EQ(text, L"x");
    EXPECT_TRUE(CString().IsEmpty()) << "nothing was written into what empty strings share";
}

TEST(CStringBuffer, ReleaseWithALengthCutsOrExtends)
{
    CString text(L"abc");
    std::wcscpy(text.GetBuffer(10), L"0123456789");

    text.ReleaseBuffer(4);
    EXPECT_EQ(text, L"0123");
    text.ReleaseBufferSetLength(0);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_THROW(text.ReleaseBuffer(text.GetAllocLength() + 1), CInvalidArgException*);
    EXPECT_THROW(text.ReleaseBuffer(-2), CInvalidArgException*);
}

TEST(CStringBuffer, ReleaseWithoutATerminatorStopsAtTheEndOfTheMemory)
{
    CString text;
    wchar_t* buffer = text.GetBuffer(8);
    const int room = text.GetAllocLength();
    std::wmemset(buffer, L'x', static_cast<std::size_t>(room) + 1);

    text.ReleaseBuffer();

    EXPECT_EQ(text.GetLength(), room);
    EXPECT_EQ(text.GetString()[room], L'\0');
}

TEST(CStringBuffer, WithASetLengthIsFilledWithNullCharacters)
{
    CString text(L"ab");
    text.GetBufferSetLength(4);

    EXPECT_EQ(text.GetLength(), 4);
    EXPECT_EQ(text[2], L'\0');
    text.GetBufferSetLength(1);
    EXPECT_EQ(text, L"a");
}

TEST(CStringBuffer, RefusesNegativeSizes)
{
    CString text(L"abc");

    EXPECT_THROW(text.GetBuffer(-1), CInvalidArgException*);
    EXPECT_THROW(text.GetBufferSetLength(-1), CInvalidArgException*);
    EXPECT_THROW(text.Preallocate(-1), CInvalidArgException*);
    EXPECT_THROW(text.Truncate(4), CInvalidArgException*);
    EXPECT_EQ(text, L"abc");
}

TEST(CStringMemory, TooLongATextThrowsAndChangesNothing)
{
    CString text(L"abc");
    constexpr int kMost = 0x7FFFFFFF;

    EXPECT_THROW(text.Preallocate(kMost), CMemoryException*);
    EXPECT_THROW(text.Append(L"x", kMost), CMemoryException*); // the sum of both lengths is refused before any access
    EXPECT_EQ(text, L"abc");
}

TEST(CStringMemory, ChangesThatFitStayInPlaceAlsoWithPartsOfTheString)
{
    CString text(L"abcdef");
    text.Preallocate(100);
    const LPCTSTR characters = text.GetString();
    for (int i = 0; i < 1000; ++i) {
        text.Insert(1, text.GetString() + 3);
        text.Truncate(6);
        text = text.GetString() + 1;
        text.Append(text.GetString(), 1);
    }
    EXPECT_EQ(text.GetString(), characters);
}

TEST(CStringMemory, FreeExtraShrinksAndEmptyReleases)
{
    CString text(L"a text of some length");
    text.Preallocate(1000);

    text.FreeExtra();
    EXPECT_EQ(text, L"a text of some length");
    EXPECT_EQ(text.GetAllocLength(), text.GetLength());

    text.Empty();
    EXPECT_EQ(text.GetAllocLength(), 0);
    text.Empty();
    EXPECT_TRUE(text.IsEmpty());
}

TEST(CStringMemory, TruncateKeepsTheBeginning)
{
    CString text(L"abcdef");
    text.Truncate(2);
    EXPECT_EQ(text, L"ab");
    CString empty;
    empty.Truncate(0);
    EXPECT_TRUE(empty.IsEmpty());
}

} // namespace
