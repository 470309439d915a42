// SPDX-License-Identifier: MIT
#include "VQDraw/filters/BoxRunSse2.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

namespace vq::test {
namespace {

TEST(BoxRun, EqualsThePortableLoopAndWritesNothingBesideTheRow)
{
    std::mt19937 generator(7);
    for (const std::size_t length : {0u, 1u, 2u, 3u, 4u, 5u, 63u, 64u, 65u, 130u})
        for (std::size_t start = 0; start < 8; ++start) {
            // Large sums and small steps up and down: no window leaves its 24 bits.
            std::vector<std::uint16_t> entering(start + 4 * length);
            std::vector<std::uint16_t> leaving(start + 4 * length);
            for (std::size_t i = 0; i < entering.size(); ++i) {
                entering[i] = static_cast<std::uint16_t>(generator() % 65026);
                leaving[i] = static_cast<std::uint16_t>(i % 8 < 4 ? 65025 - entering[i] : entering[i] / 2);
            }
            std::array<std::uint32_t, 4> window = {8'000'000, 8'100'000, 8'200'000, 8'300'000};
            std::array<std::uint32_t, 4> expectedWindow = window;
            std::vector<Channel> means(4 * length + 16, 0xAB);
            std::vector<Channel> expected = means;
            constexpr float kFactor = 1.0F / 65025;

            meansOfRunPortable<SmallSums>(entering.data() + start, leaving.data() + start, length, expectedWindow,
                                          kFactor, expected.data());
            meansOfRun<SmallSums>(entering.data() + start, leaving.data() + start, length, window, kFactor,
                                  means.data());

            ASSERT_EQ(means, expected) << "length " << length << ", start " << start;
            ASSERT_EQ(window, expectedWindow) << "length " << length << ", start " << start;
        }
}

} // namespace
} // namespace vq::test
