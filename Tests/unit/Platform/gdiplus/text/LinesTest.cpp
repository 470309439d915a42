// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/Lines.h"

#include <limits>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace vq::test::linesTests {
namespace {

using namespace vq::gdiplus;

constexpr double kEm = 6; // margins of 1 on each side
constexpr float kMargins = 2;

/// Letters are 10 wide and spaces 5; a line may end behind a space; / is a line break, > a tab, ' belongs to the letter
/// before it.
std::vector<Character> charactersOf(std::string_view text)
{
    std::vector<Character> characters;
    for (const char c : text) {
        Character character{10, 0};
        if (c == ' ')
            character = {5, Character::kSpace | Character::kBreakAfter};
        if (c == '/')
            character = {0, Character::kLineBreak};
        if (c == '>')
            character = {5, Character::kSpace | Character::kTab | Character::kBreakAfter};
        if (c == '\'')
            character = {0, Character::kContinues};
        characters.push_back(character);
    }
    return characters;
}

/// The visible part of each line.
std::vector<std::string_view> linesOf(std::string_view text, const LineLimits& limits)
{
    const std::vector<Character> characters = charactersOf(text);
    std::vector<TextLine> lines;
    breakLines(characters, limits, lines);
    std::vector<std::string_view> visible;
    for (const TextLine& line : lines)
        visible.push_back(text.substr(line.first, line.end - line.first));
    return visible;
}

TextLine onlyLine(std::string_view text, const LineLimits& limits)
{
    const std::vector<Character> characters = charactersOf(text);
    std::vector<TextLine> lines;
    breakLines(characters, limits, lines);
    return lines.size() == 1 ? lines.front() : TextLine{};
}

using Texts = std::vector<std::string_view>;
constexpr float kWide = std::numeric_limits<float>::infinity();

LineLimits limit(float textWidth, bool wraps = true)
{
    constexpr std::size_t kAny = std::numeric_limits<std::size_t>::max();
    return {kEm, kMargins, textWidth + kMargins, kAny, wraps, false, TextTrimming::Character};
}

TEST(Lines, AnEmptyTextHasNone)
{
    EXPECT_EQ(linesOf("", limit(kWide)), Texts{});
}

TEST(Lines, EndAtLineBreaks)
{
    EXPECT_EQ(linesOf("a/b", limit(kWide)), (Texts{"a", "b"}));
    EXPECT_EQ(linesOf("a//b", limit(kWide)), (Texts{"a", "", "b"}));
    EXPECT_EQ(linesOf("/a", limit(kWide)), (Texts{"", "a"}));
}

TEST(Lines, ALineBreakAtTheEndOpensNoLine)
{
    EXPECT_EQ(linesOf("a/", limit(kWide)), Texts{"a"});
    EXPECT_EQ(onlyLine("a/", limit(kWide)).next, 2U);
    EXPECT_EQ(linesOf("a//", limit(kWide)), (Texts{"a", ""}));
}

TEST(Lines, CountLeadingSpacesButNotTrailingOnes)
{
    EXPECT_EQ(onlyLine("  a  ", limit(kWide)).width, 20);
    EXPECT_EQ(onlyLine("   ", limit(kWide)).width, 0);
    EXPECT_EQ(onlyLine("a b", limit(kWide)).width, 25);
}

TEST(Lines, WrapAtSpacesWhichHang)
{
    EXPECT_EQ(linesOf("aa bb", limit(44.9F)), (Texts{"aa", "bb"}));
    EXPECT_EQ(linesOf("aa bb", limit(45)), Texts{"aa bb"});
    EXPECT_EQ(linesOf("aa    bb", limit(20)), (Texts{"aa", "bb"}));
}

TEST(Lines, BreakAWordThatIsTooWideBetweenItsLetters)
{
    EXPECT_EQ(linesOf("aaaaa", limit(20)), (Texts{"aa", "aa", "a"}));
    EXPECT_EQ(linesOf("a bbbb", limit(20)), (Texts{"a", "bb", "bb"}));
}

TEST(Lines, HoldOneLetterHoweverNarrowTheyAre)
{
    EXPECT_EQ(linesOf("abc", limit(1)), (Texts{"a", "b", "c"}));
}

TEST(Lines, NeverDivideALetterAndItsAccents)
{
    EXPECT_EQ(linesOf("a'b'", limit(10)), (Texts{"a'", "b'"}));
}

TEST(Lines, GoOnToTheNextTabStop)
{
    EXPECT_EQ(onlyLine("a>b", limit(kWide)).width, 4 * kEm + 10);
    EXPECT_EQ(onlyLine("aaa>b", limit(kWide)).width, 8 * kEm + 10);
}

TEST(Lines, WithoutWrappingAreCutBeforeTheFirstLetterThatDoesNotFit)
{
    EXPECT_EQ(linesOf("aaaa", limit(25, false)), Texts{"aa"});
    EXPECT_EQ(onlyLine("aa aa", limit(20, false)).next, 3U);
    EXPECT_EQ(linesOf("aaa", limit(5, false)), Texts{""});
}

TEST(Lines, WithoutWrappingStillEndAtLineBreaksUntilOneIsCut)
{
    EXPECT_EQ(linesOf("a/b", limit(25, false)), (Texts{"a", "b"}));
    EXPECT_EQ(linesOf("aaa/b", limit(25, false)), Texts{"aa"});
}

TEST(Lines, WithoutTrimmingAreLaidOutWhole)
{
    LineLimits limits = limit(25, false);
    limits.trimming = TextTrimming::None;

    EXPECT_EQ(linesOf("aaaa/b", limits), (Texts{"aaaa", "b"}));
}

TEST(Lines, TrimmedAtWordsEndBeforeTheFirstThatDoesNotFit)
{
    LineLimits limits = limit(50, false);
    limits.trimming = TextTrimming::Word;

    EXPECT_EQ(linesOf("aa bbb cc", limits), (Texts{"aa"}));
    EXPECT_EQ(linesOf("aaaaaaa", limits), (Texts{"aaaaa"})); // no word fits
}

TEST(Lines, CountTrailingSpacesWhereTheyAreToldTo)
{
    LineLimits limits = limit(kWide);
    limits.countsTrailingSpaces = true;

    EXPECT_EQ(onlyLine("aa  ", limits).width, 30);
    EXPECT_EQ(onlyLine("aa  ", limit(kWide)).width, 20);
}

TEST(Lines, StopAtTheirNumber)
{
    LineLimits limits = limit(20);
    limits.lines = 2;

    EXPECT_EQ(linesOf("aa bb cc", limits), (Texts{"aa", "bb"}));
}

} // namespace
} // namespace vq::test::linesTests
