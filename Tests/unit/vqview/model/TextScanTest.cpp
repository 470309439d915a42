// SPDX-License-Identifier: MIT
#include "vqview/model/TextScan.h"

#include <gmock/gmock.h>

#include <clocale>
#include <cmath>
#include <limits>

namespace {

using namespace vqview;

float numberOf(std::string_view text)
{
    float value = 0;
    EXPECT_TRUE(Words(text).number(value)) << text;
    return value;
}

TEST(TextScan, ReadsNumbersInEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* const locale : {"C", "de_DE.UTF-8", "de_DE.utf8", "de_DE", "German"}) {
        if (!std::setlocale(LC_ALL, locale))
            continue;
        EXPECT_EQ(numberOf("1.5"), 1.5F) << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(TextScan, MakesOfNumbersBeyondTheTypeInfinityOrZero)
{
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(numberOf("1e39"), kInfinity);
    EXPECT_EQ(numberOf("-1e999"), -kInfinity);
    EXPECT_EQ(numberOf("+" + std::string(400, '9')), kInfinity);
    EXPECT_EQ(numberOf("1e-60"), 0);
    EXPECT_EQ(numberOf("0." + std::string(400, '0') + "1"), 0);
    EXPECT_TRUE(std::isnan(numberOf("nan")));
}

std::vector<std::string> linesOf(std::string_view text)
{
    Progress unwatched;
    Lines lines(text, unwatched);
    std::vector<std::string> found;
    for (std::string_view line; lines.next(line);)
        found.emplace_back(line);
    EXPECT_EQ(lines.number(), found.size());
    return found;
}

TEST(TextScan, PartsLinesAtCarriageReturnsWhereThereAreNoLineFeeds)
{
    EXPECT_THAT(linesOf("a b\r\rc\r"), testing::ElementsAre("a b", "", "c"));
    EXPECT_THAT(linesOf("a b\r\n\r\nc"), testing::ElementsAre("a b\r", "\r", "c"));
    EXPECT_THAT(linesOf("a\rb\nc\n"), testing::ElementsAre("a\rb", "c"));
    EXPECT_THAT(linesOf("a b"), testing::ElementsAre("a b"));
    EXPECT_THAT(linesOf(""), testing::IsEmpty());
}

TEST(TextScan, CountsLinesOfEverySystem)
{
    for (const std::string_view text : {"a\nb\nc", "a\rb\rc"})
        EXPECT_EQ(lineAt(text, text.find('c')), 3);
    EXPECT_EQ(lineAt("a\r\nb\r\nc", 6), 3);
}

TEST(TextScan, TakesNothingForANumberThatHasMoreBehindIt)
{
    float value = 0;
    EXPECT_FALSE(Words("1.0x").number(value));
    EXPECT_FALSE(Words("").number(value));
    EXPECT_FALSE(Words("-").number(value));
    EXPECT_FALSE(Words("0x10").number(value));
}

} // namespace
