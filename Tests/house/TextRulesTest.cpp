// SPDX-License-Identifier: MIT
#include "house/TextRules.h"

#include <gmock/gmock.h>

namespace {

using namespace vq::house;
using testing::IsEmpty;
using testing::SizeIs;

TEST(Texts, BeginWithTheirLicence)
{
    EXPECT_EQ(listed(faultsInProject(licenceFaults)), "");
}

TEST(Texts, HaveNoTabsNoBlanksAtLineEndsAndNoOverlongLines)
{
    EXPECT_EQ(listed(faultsInProject(blankFaults)), "");
}

TEST(Texts, AreOfAReadableLength)
{
    EXPECT_EQ(listed(faultsInProject(lengthFaults)), "");
}

TEST(Texts, OfHeadersAreGuarded)
{
    EXPECT_EQ(listed(faultsInProject(guardFaults)), "");
}

TEST(Texts, LeaveNothingUndone)
{
    EXPECT_EQ(listed(faultsInProject(leftoverFaults)), "");
}

TEST(Libraries, PrintNothingAndStartOrEndNothing)
{
    EXPECT_EQ(listed(faultsInProject(quietnessFaults)), "");
}

TEST(TextCheck, FindsAMissingLicence)
{
    EXPECT_THAT(licenceFaults({"Source/A.h", {"#pragma once"}}), SizeIs(1));
    EXPECT_THAT(licenceFaults({"Source/A.h", {}}), SizeIs(1));
    EXPECT_THAT(licenceFaults({"test", {"#!/usr/bin/env bash", "set -e"}}), SizeIs(1));
    EXPECT_THAT(licenceFaults({"test", {"#!/usr/bin/env bash", "# SPDX-License-Identifier: MIT"}}), IsEmpty());
}

TEST(TextCheck, FindsTabsBlanksAtTheEndAndLongLines)
{
    EXPECT_THAT(blankFaults({"Source/A.cpp", {"\tint a;"}}), SizeIs(1));
    EXPECT_THAT(blankFaults({"Source/A.cpp", {"int a; "}}), SizeIs(1));
    EXPECT_THAT(blankFaults({"Source/A.cpp", {"int a;\r"}}), SizeIs(1));
    EXPECT_THAT(blankFaults({"Source/A.cpp", {std::string(121, 'a')}}), SizeIs(1));
    EXPECT_THAT(blankFaults({"Source/A.cpp", {"int a;"}, false}), SizeIs(1));
}

TEST(TextCheck, LetsRowsOfAnUnformattedTableBeLong)
{
    const std::string row(200, 'a');

    EXPECT_THAT(blankFaults({"Source/A.h", {"// clang-format off", row, "// clang-format on"}}), IsEmpty());
    EXPECT_THAT(blankFaults({"Source/A.h", {"// clang-format off", "// clang-format on", row}}), SizeIs(1));
}

TEST(TextCheck, CountsCharactersNotBytes)
{
    std::string line;
    for (int i = 0; i < 120; ++i)
        line += "\xC3\xA4";

    EXPECT_THAT(blankFaults({"Source/A.cpp", {line}}), IsEmpty());
}

TEST(TextCheck, FindsAFileThatIsTooLong)
{
    EXPECT_THAT(lengthFaults({"Source/A.cpp", std::vector<std::string>(500)}), IsEmpty());
    EXPECT_THAT(lengthFaults({"Source/A.cpp", std::vector<std::string>(501)}), SizeIs(1));
}

TEST(TextCheck, DoesNotCountAHeadersDocumentation)
{
    std::vector<std::string> lines(500);
    lines.emplace_back("    /// A promise.");

    EXPECT_THAT(lengthFaults({"Source/A.h", lines}), IsEmpty());
    EXPECT_THAT(lengthFaults({"Source/A.cpp", lines}), SizeIs(1));
}

TEST(TextCheck, FindsAHeaderWithoutGuard)
{
    EXPECT_THAT(guardFaults({"Source/A.h", {"int a;"}}), SizeIs(1));
}

TEST(TextCheck, FindsWhatIsLeftUndone)
{
    const std::string note = "// TO"
                             "DO: later"; // in pieces, or the rule would find this file
    const std::string off = "TEST(A, DIS"
                            "ABLED_B)";

    EXPECT_THAT(leftoverFaults({"Source/A.cpp", {note, "int todo;"}}), SizeIs(1));
    EXPECT_THAT(leftoverFaults({"Tests/unit/ATest.cpp", {off}}), SizeIs(1));
}

TEST(TextCheck, FindsNoiseInTheLibraries)
{
    EXPECT_THAT(quietnessFaults({"Source/A.cpp", {"std::cerr << 1;", "std::abort();", "std::threadsafe();"}}),
                SizeIs(2));
    EXPECT_THAT(quietnessFaults({"Examples/A.cpp", {"std::cerr << 1;"}}), IsEmpty());
}

} // namespace
