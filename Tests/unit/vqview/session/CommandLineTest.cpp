// SPDX-License-Identifier: MIT
#include "vqview/CommandLine.h"

#include "vqview/text/Text.h"

#include <gmock/gmock.h>

namespace vqview::test {
namespace {

using testing::HasSubstr;

TEST(CommandLine, WithoutArgumentsIsAWindowOfTheUsualSize)
{
    const CommandLine line = commandLineOf({});
    EXPECT_EQ(line.fault, "");
    EXPECT_TRUE(line.model.empty());
    EXPECT_TRUE(line.offScreenFolder.empty());
    EXPECT_EQ(line.width, 1280);
    EXPECT_EQ(line.height, 800);
    EXPECT_FALSE(line.isHelp);
    EXPECT_FALSE(line.echoes);
}

TEST(CommandLine, TakesEveryOptionInAnyOrder)
{
    const CommandLine line = commandLineOf(
        {"--window-size", "640x480", "scan.obj", "--offscreen", "out folder", "--echo", "--script", "tour.txt"});
    EXPECT_EQ(line.fault, "");
    EXPECT_EQ(line.model, "scan.obj");
    EXPECT_EQ(line.script, "tour.txt");
    EXPECT_EQ(line.offScreenFolder, "out folder");
    EXPECT_EQ(line.width, 640);
    EXPECT_EQ(line.height, 480);
    EXPECT_TRUE(line.echoes);
    EXPECT_TRUE(commandLineOf({"--help"}).isHelp);
}

TEST(CommandLine, TakesNamesOfEveryScript)
{
    EXPECT_EQ(utf8Of(commandLineOf({"\xC3\xBC.obj"}).model), "\xC3\xBC.obj");
    EXPECT_NO_THROW(commandLineOf({"\xFF.obj"}));
}

TEST(CommandLine, ThatCannotBeUnderstoodSaysWhy)
{
    EXPECT_THAT(commandLineOf({"--nonsense"}).fault, HasSubstr("--nonsense"));
    EXPECT_THAT(commandLineOf({"a.obj", "b.obj"}).fault, HasSubstr("one scan"));
    EXPECT_THAT(commandLineOf({"--offscreen", "folder"}).fault, HasSubstr("script"));
    for (const char* option : {"--offscreen", "--script", "--window-size"}) {
        EXPECT_THAT(commandLineOf({option}).fault, HasSubstr(option));
        EXPECT_THAT(commandLineOf({option, ""}).fault, HasSubstr(option));
    }
    for (const char* size : {"640", "640x", "x480", "0x480", "640x-1", "640x480x2", "640 x 480", "99999x10", "axb"})
        EXPECT_THAT(commandLineOf({"--window-size", size}).fault, HasSubstr("--window-size")) << size;
}

} // namespace
} // namespace vqview::test
