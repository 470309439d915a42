// SPDX-License-Identifier: MIT
#include "ExpectedPreferences.h"
#include "StoredPreferences.h"

#include <limits>
#include <map>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

eVQCalcTolResult result(int number)
{
    return static_cast<eVQCalcTolResult>(number);
}

eGDBEntityType type(int number)
{
    return static_cast<eGDBEntityType>(number);
}

using Entities = Preferences;
using Results = Preferences;

TEST_F(Entities, HaveTheColoursOfTheirTypes)
{
    std::map<int, int> colours;
    for (const auto& row : kExpectedEntityColours)
        colours[row.type] = row.colour;
    for (int number = -100; number <= 1000; ++number) {
        const auto row = colours.find(number);
        const int expected = row == colours.end() ? DPC_END : row->second;
        EXPECT_EQ(Store::GetDrawPropOfEntity(type(number)), expected) << number;
        EXPECT_EQ(Store::Get4fvOfEntity(type(number)), expected == DPC_END ? nullptr : Store::m_fColor[expected]);
    }
}

TEST_F(Entities, OfOtherTypesAreOpaqueBlackAndHaveNoRow)
{
    for (const int number : {kLeast, -1, 0, 21, 28, 42, 55, 57, kMost}) {
        EXPECT_EQ(Store::GetColorOfEntity(type(number)).GetPacked(), 0xFF000000u) << number;
        EXPECT_EQ(Store::Get4fvOfEntity(type(number)), nullptr) << number;
    }
}

TEST_F(Entities, ShowTheColourThatTheirRowHas)
{
    const float colour[] = {0.5f, 1.0f, 0.0f, 0.25f};
    Store::Set4fvOfEntity(type(56), colour);
    EXPECT_EQ(std::to_array(Store::m_fColor[DPC_PROBEPOINT]), std::to_array(colour));
    EXPECT_EQ(Store::GetColorOfEntity(type(56)), CVQColor(127, 255, 0, 63)); // truncated
}

TEST_F(Entities, WithoutAColourTakeNone)
{
    const float colour[] = {0.5f, 1.0f, 0.0f, 0.25f};
    Store::Set4fvOfEntity(type(28), colour);
    Store::Set4fvOfEntity(type(56), nullptr);
    EXPECT_TRUE(StoredPreferences::now() == preferencesAtStart());
}

TEST_F(Results, HaveTheRowsBehindTheFailedOne)
{
    EXPECT_EQ(Store::GetResultColor(result(0)), Store::m_fColor[116]);
    EXPECT_EQ(Store::GetResultColor(result(1)), Store::m_fColor[117]);
    EXPECT_EQ(Store::GetResultColor(result(2)), Store::m_fColor[118]);
    EXPECT_EQ(Store::GetResultColor(result(3)), Store::m_fColor[119]);
    EXPECT_EQ(Store::GetResultColor(result(4)), Store::m_fColor[125]);
    EXPECT_EQ(Store::GetResultColor(result(5)), Store::m_fColor[121]);
    EXPECT_EQ(Store::GetResultColor(result(-1)), Store::m_fColor[115]);
    EXPECT_EQ(Store::GetResultColor(result(39)), Store::m_fColor[155]);
    EXPECT_EQ(Store::GetResultColor(result(-116)), Store::m_fColor[0]);
}

TEST_F(Results, OutsideTheTableHaveNone)
{
    for (const int number : {kLeast, -117, 40, kMost}) {
        EXPECT_EQ(Store::GetResultColor(result(number)), nullptr) << number;
        EXPECT_EQ(Store::GetResultVQColor(result(number)), CVQColor()) << number;
    }
}

TEST_F(Results, AreColoursOfFourBytesToo)
{
    EXPECT_EQ(Store::GetResultVQColor(VQ_TOL_FAIL), Store::GetDPCVQColor(DPC_FAIL));
    EXPECT_EQ(Store::GetResultVQColor(VQ_TOL_PASS), CVQColor(0, 200, 0)); // 0.785 * 255 = 200.175
    EXPECT_EQ(Store::GetResultVQColor(VQ_TOL_IGNORED), CVQColor::White);
}

} // namespace
} // namespace vq::test
