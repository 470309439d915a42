// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/MixColumnsSse2.h"

#include "CompositorPictures.h"

#include <array>
#include <span>

namespace vq::gdiplus::mixColumnsTests {

namespace {

constexpr std::size_t kGuard = 8;
constexpr std::uint16_t kUntouched = 0xABCD;

struct Columns
{
    std::vector<std::int32_t> index;
    std::vector<std::uint16_t> laneWeight;
};

Columns randomColumns(std::size_t count, std::size_t rowLength, std::uint32_t seed)
{
    std::mt19937 generator(seed);
    constexpr std::array<std::uint16_t, 4> kWeights{0, 1, 0x8000, 0xFFFF};
    Columns columns;
    for (std::size_t i = 0; i < count; ++i) {
        columns.index.push_back(static_cast<std::int32_t>(generator() % (rowLength - 1)));
        const auto any = static_cast<std::uint16_t>(generator());
        columns.laneWeight.insert(columns.laneWeight.end(), 4, i % 3 == 0 ? kWeights[any % 4] : any);
    }
    return columns;
}

std::vector<std::uint16_t> guardedLanes(std::size_t count)
{
    return std::vector<std::uint16_t>(4 * count + kGuard, kUntouched);
}

} // namespace

TEST(MixColumns, GivesTheLanesOfThePortableLoopAndWritesNothingBehindThem)
{
    const test::Pixels row = test::opaquePixels(50, 1);
    for (std::size_t count = 0; count <= kColumnBlock; ++count) {
        const Columns columns = randomColumns(count, row.size(), static_cast<std::uint32_t>(count));
        auto lanes = guardedLanes(count);
        auto expected = guardedLanes(count);

        EXPECT_TRUE(mixColumns(row.data(), columns.index.data(), columns.laneWeight.data(), count, lanes.data()));
        EXPECT_TRUE(
            mixColumnsPortable(row.data(), columns.index.data(), columns.laneWeight.data(), count, expected.data()));

        ASSERT_EQ(lanes, expected) << count;
    }
}

TEST(MixColumns, SeesOnePixelThatIsNotOpaque)
{
    for (std::size_t count = 1; count <= kColumnBlock; ++count)
        for (std::size_t hole = 0; hole <= count; ++hole) {
            test::Pixels row = test::opaquePixels(count + 1, 2);
            row[hole] = 0xFEFFFFFF;
            Columns columns = randomColumns(count, row.size(), 3);
            for (std::size_t i = 0; i < count; ++i)
                columns.index[i] = static_cast<std::int32_t>(i);
            auto lanes = guardedLanes(count);

            ASSERT_FALSE(mixColumns(row.data(), columns.index.data(), columns.laneWeight.data(), count, lanes.data()))
                << count << ", " << hole;
        }
}

TEST(MixedLane, IsBelowTheExactValueByLessThanThreeAndKeepsEqualChannels)
{
    std::mt19937 generator(4);
    for (int i = 0; i < 100000; ++i) {
        const auto first = static_cast<std::uint16_t>(generator() % 65281);
        const auto second = static_cast<std::uint16_t>(generator() % 65281);
        const auto weight = static_cast<std::uint16_t>(generator());
        const double exact = first + static_cast<double>(second - first) * weight / 65536;
        const int lane = mixedLane(first, second, weight);
        ASSERT_LE(lane, exact);
        ASSERT_GT(lane, exact - 3);
        const auto channel = static_cast<Channel>(first);
        const auto raised = static_cast<std::uint16_t>(channel << 8);
        const std::uint16_t once = mixedLane(raised, raised, weight);
        ASSERT_EQ(byteOf(mixedLane(once, once, static_cast<std::uint16_t>(generator()))), channel);
    }
}

} // namespace vq::gdiplus::mixColumnsTests
