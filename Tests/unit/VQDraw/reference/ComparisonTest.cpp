// SPDX-License-Identifier: MIT
// The comparison itself: it sees what it is there for, and shrinks it.
#include "Operations.h"

#include <gmock/gmock.h>

namespace vq::reference {
namespace {

using testing::HasSubstr;

Operation nothing(std::function<void(Call&)> run)
{
    return {"Nothing", [](Model&) {}, {{"wrong", std::move(run)}}, {choose::any}};
}

Trial ofSize(Number width, Number height)
{
    Trial trial;
    trial.width = width;
    trial.height = height;
    trial.arguments[0] = 12345;
    return trial;
}

TEST(Comparison, FindsNothingWhereNothingIsWrong)
{
    EXPECT_EQ(fault(nothing([](Call&) {}), ofSize(3, 3)), "");
    EXPECT_TRUE(agrees(nothing([](Call&) {}), ofSize(3, 3)));
}

TEST(Comparison, NamesTheFirstWrongPixel)
{
    const Operation operation = nothing([](Call& c) { c.image(2, 1) ^= 1; });

    EXPECT_THAT(fault(operation, ofSize(5, 4)), HasSubstr("wrong: pixel (2, 1) of the image is "));
}

TEST(Comparison, SeesWritesBesideThePixels)
{
    EXPECT_THAT(fault(nothing([](Call& c) { *(c.image.GetImageBuffer() - 1) = 0; }), ofSize(3, 3)),
                HasSubstr("beside"));
    EXPECT_THAT(fault(nothing([](Call& c) { c.image.GetImageBuffer()[9] = 0; }), ofSize(3, 3)), HasSubstr("beside"));
    EXPECT_THAT(fault(nothing([](Call& c) { c.image.GetImageBuffer()[9 + 15] = 0; }), ofSize(3, 3)),
                HasSubstr("beside"));
}

TEST(Comparison, SeesAChangedSource)
{
    Operation operation = nothing([](Call& c) { c.source(1, 1) ^= 0x80; });
    operation.readsSource = true;

    Trial trial = ofSize(2, 2);
    trial.sourceWidth = trial.sourceHeight = 2;

    EXPECT_THAT(fault(operation, trial), HasSubstr("pixel (1, 1) of the source"));
}

TEST(Comparison, SeesAWrongResult)
{
    EXPECT_THAT(fault(nothing([](Call& c) { c.results = {7}; }), ofSize(2, 2)), HasSubstr("told 7 instead of"));
}

TEST(Comparison, ShrinksToTheSmallestSizeThatFails)
{
    const Operation operation = nothing([](Call& c) {
        if (c.image.GetWidth() > 16 && c.image.GetHeight() >= 3)
            c.image(16, 2) ^= 1;
    });

    const Trial smallest = shrunk(operation, ofSize(300, 40));

    EXPECT_EQ(smallest.width, 17);
    EXPECT_EQ(smallest.height, 3);
    EXPECT_EQ(smallest.arguments[0], 0);
}

TEST(Comparison, KeepsTheArgumentsThatAFailureNeeds)
{
    const Operation operation = nothing([](Call& c) {
        if (c.argument[0] > 256)
            c.image(0, 0) ^= 1;
    });

    const Trial smallest = shrunk(operation, ofSize(30, 4));

    EXPECT_EQ(smallest.width, 1);
    EXPECT_EQ(smallest.height, 1);
    EXPECT_GT(smallest.arguments[0], 256);
    EXPECT_LE(smallest.arguments[0], 513);
}

TEST(Comparison, AFailureTellsSeedSizeArgumentsAndTheSmallestCase)
{
    const testing::AssertionResult result = agrees(nothing([](Call& c) { c.image(0, 0) ^= 1; }), ofSize(30, 4));

    EXPECT_FALSE(result);
    EXPECT_THAT(result.message(), HasSubstr("seed 1, 30 x 4 (random)"));
    EXPECT_THAT(result.message(), HasSubstr("arguments 12345 0 0 0 0 0"));
    EXPECT_THAT(result.message(), HasSubstr("seed 1, 1 x 1 (random)"));
}

} // namespace
} // namespace vq::reference
