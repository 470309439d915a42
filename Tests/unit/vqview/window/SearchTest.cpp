// SPDX-License-Identifier: MIT
#include "vqview/window/Search.h"

#include <gmock/gmock.h>

namespace {

using vqview::matches;

TEST(Search, FindsAPartOfANameInEitherCase)
{
    EXPECT_TRUE(matches("DPC_BACKGROUND", "ground"));
    EXPECT_TRUE(matches("DPC_BACKGROUND", "dpc_Back"));
    EXPECT_FALSE(matches("DPC_BACKGROUND", "grid"));
}

TEST(Search, WantsEveryWordInAnyOrder)
{
    EXPECT_TRUE(matches("DPC_LIGHT0POS", "pos light"));
    EXPECT_FALSE(matches("DPC_LIGHT0POS", "pos diffuse"));
}

TEST(Search, FindsEverythingWithoutWords)
{
    EXPECT_TRUE(matches("DPC_LIGHT0POS", ""));
    EXPECT_TRUE(matches("DPC_LIGHT0POS", "   "));
    EXPECT_TRUE(matches("", ""));
}

TEST(Search, PassesOverBlanksAroundWords)
{
    EXPECT_TRUE(matches("DPC_LIGHT0POS", "  pos  light "));
}

TEST(Search, DoesNotFindAWordThatIsLongerThanTheName)
{
    EXPECT_FALSE(matches("GRID", "DPC_GRID"));
    EXPECT_FALSE(matches("", "a"));
}

} // namespace
