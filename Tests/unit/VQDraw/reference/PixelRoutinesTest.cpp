// SPDX-License-Identifier: MIT
// Every pixel routine, by every way in, against a plain one that takes one pixel at a time.
#include "Operations.h"

#include <utility>

namespace vq::reference {
namespace {

class PixelRoutine : public testing::TestWithParam<Operation>
{
};

TEST_P(PixelRoutine, EqualsItsReferenceAtEverySizeUpToFortyByForty)
{
    for (Number height = 1; height <= 40; ++height)
        for (Number width = 1; width <= 40; ++width) {
            const auto seed = static_cast<std::uint32_t>(1'000'000 + 100 * height + width);
            ASSERT_TRUE(agrees(GetParam(), randomTrial(GetParam(), seed, width, height)));
        }
}

TEST_P(PixelRoutine, EqualsItsReferenceAtWidthsAroundEveryMultipleOfSixteen)
{
    for (Number multiple = 16; multiple <= 608; multiple += 16)
        for (Number width = multiple - 1; width <= multiple + 1; ++width) {
            const auto seed = static_cast<std::uint32_t>(2'000'000 + width);
            const Number height = 1 + width % 7;
            ASSERT_TRUE(agrees(GetParam(), randomTrial(GetParam(), seed, width, height)));
        }
}

TEST_P(PixelRoutine, EqualsItsReferenceByEveryWayInOnRandomPictures)
{
    const auto last = 3'000'000 + static_cast<std::uint32_t>(rounds());
    for (std::uint32_t seed = 3'000'000; seed < last; ++seed) {
        Dice dice(seed);
        Trial trial = randomTrial(GetParam(), seed, dice.between(1, 70), dice.between(1, 30));
        for (trial.way = 0; trial.way < GetParam().ways.size(); ++trial.way)
            for (const bool simd : {true, false}) {
                trial.simd = simd;
                ASSERT_TRUE(agrees(GetParam(), trial));
            }
    }
}

TEST_P(PixelRoutine, EqualsItsReferenceOnEveryKindOfContent)
{
    for (const Content content : kContents)
        for (const Content sourceContent : kContents) {
            const auto seed = static_cast<std::uint32_t>(4'000'000 + 16 * static_cast<int>(content)) +
                              static_cast<std::uint32_t>(sourceContent);
            Trial trial = randomTrial(GetParam(), seed, 67, 9);
            trial.content = content;
            trial.sourceContent = sourceContent;
            ASSERT_TRUE(agrees(GetParam(), trial));
        }
}

/// Larger than the blocks and strips in which a fast routine may work.
TEST_P(PixelRoutine, EqualsItsReferenceOnLargePictures)
{
    std::uint32_t seed = 5'000'000;
    for (const auto& [width, height] : {std::pair{1030, 37}, {515, 70}, {3, 900}, {4100, 5}, {256, 257}})
        for (int round = 0; round < 3; ++round)
            ASSERT_TRUE(agrees(GetParam(), randomTrial(GetParam(), seed++, width, height)));
}

INSTANTIATE_TEST_SUITE_P(Every, PixelRoutine, testing::ValuesIn(everyOperation()),
                         [](const testing::TestParamInfo<Operation>& each) { return each.param.name; });

} // namespace
} // namespace vq::reference
