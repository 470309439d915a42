// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQUnit.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <string>

namespace {

/// The arguments behind the value, with what most tests want of them.
struct Format
{
    bool unitDecimals = false;
    eVQUnit unit = VQ_UNIT_LENGTH;
    bool thousands = false;
    bool unitName = false;
    bool zeros = true;
    int precision = -1;
};

CString text(double value, const Format& format = {})
{
    return CVQUnit::GetDeciPointedString(value, format.unitDecimals, format.unit, format.thousands, format.unitName,
                                         format.zeros, format.precision);
}

TEST(CVQUnit, NumbersUnitsByTheirDimension)
{
    EXPECT_EQ(VQ_UNIT_ANGLE, 0);
    EXPECT_EQ(VQ_UNIT_LENGTH, 1);
    EXPECT_EQ(VQ_UNIT_AREA, 2);
    EXPECT_EQ(VQ_UNIT_VOLUME, 3);
}

TEST(CVQUnit, HasTwoDecimalsUnlessTheUnitOrThePrecisionSaysOtherwise)
{
    EXPECT_EQ(text(1.23456), L"1.23");
    EXPECT_EQ(text(1.23456, {.unitDecimals = true, .unit = VQ_UNIT_ANGLE}), L"1.23");
    EXPECT_EQ(text(1.23456, {.unitDecimals = true, .unit = VQ_UNIT_LENGTH}), L"1.235");
    EXPECT_EQ(text(1.23456, {.unitDecimals = true, .unit = VQ_UNIT_AREA}), L"1.235");
    EXPECT_EQ(text(1.23456, {.unitDecimals = true, .unit = VQ_UNIT_VOLUME}), L"1.235");
    EXPECT_EQ(text(1.23456, {.unitDecimals = true, .precision = 4}), L"1.2346");
    EXPECT_EQ(text(1.23456, {.precision = 0}), L"1");
    EXPECT_EQ(text(1.23456, {.precision = -7}), L"1.23");
}

TEST(CVQUnit, NamesTheUnit)
{
    EXPECT_EQ(text(1, {.unit = VQ_UNIT_ANGLE, .unitName = true}), L"1.00\u00B0");
    EXPECT_EQ(text(1, {.unit = VQ_UNIT_LENGTH, .unitName = true}), L"1.00 mm");
    EXPECT_EQ(text(1, {.unit = VQ_UNIT_AREA, .unitName = true}), L"1.00 mm\u00B2");
    EXPECT_EQ(text(1, {.unit = VQ_UNIT_VOLUME, .unitName = true}), L"1.00 mm\u00B3");
}

TEST(CVQUnit, AUnitThatDoesNotExistHasNeitherNameNorDecimals)
{
    for (const int unit : {-1, 4, 1000, std::numeric_limits<int>::min()})
        EXPECT_EQ(text(1.23456, {.unitDecimals = true, .unit = static_cast<eVQUnit>(unit), .unitName = true}), L"1.23");
}

TEST(CVQUnit, GroupsTheDigitsBeforeThePointInThrees)
{
    const Format grouped{.thousands = true};
    EXPECT_EQ(text(0.5, grouped), L"0.50");
    EXPECT_EQ(text(999, grouped), L"999.00");
    EXPECT_EQ(text(1000, grouped), L"1,000.00");
    EXPECT_EQ(text(-123456, grouped), L"-123,456.00");
    EXPECT_EQ(text(-1234567.891, grouped), L"-1,234,567.89");
    EXPECT_EQ(text(999.999, grouped), L"1,000.00") << "rounded first";
    EXPECT_EQ(text(1234567, {.thousands = true, .precision = 0}), L"1,234,567");
    EXPECT_EQ(text(1234.5678, {.thousands = true, .precision = 4}), L"1,234.5678") << "not behind the point";
}

TEST(CVQUnit, DropsTrailingZerosAndABarePoint)
{
    const Format shortest{.zeros = false, .precision = 4};
    EXPECT_EQ(text(1.5, shortest), L"1.5");
    EXPECT_EQ(text(1.0625, shortest), L"1.0625");
    EXPECT_EQ(text(100, shortest), L"100");
    EXPECT_EQ(text(0, shortest), L"0");
    EXPECT_EQ(text(1200, {.zeros = false, .precision = 0}), L"1200") << "zeros before the point stay";
    EXPECT_EQ(text(1200, {.thousands = true, .unitName = true, .zeros = false}), L"1,200 mm");
}

/// Every combination of the flags, with the pieces put together here from what each flag promises.
TEST(CVQUnit, FlagsAreIndependent)
{
    const struct
    {
        const wchar_t* name;
        int decimals;
    } units[] = {{L"\u00B0", 2}, {L" mm", 3}, {L" mm\u00B2", 3}, {L" mm\u00B3", 3}};
    for (int bits = 0; bits < 16; ++bits)
        for (int unit = 0; unit < 4; ++unit)
            for (const int precision : {-1, 0, 1, 5}) {
                const bool unitDecimals = bits & 1;
                const bool thousands = bits & 2;
                const bool unitName = bits & 4;
                const bool zeros = bits & 8;
                const int decimals = precision >= 0 ? precision : unitDecimals ? units[unit].decimals : 2;
                CString expected = thousands ? L"-7,654,321" : L"-7654321"; // of -7654321.5
                if (decimals == 0)
                    expected = thousands ? L"-7,654,322" : L"-7654322"; // half to even
                else
                    expected += L".5" + CString(L'0', zeros ? decimals - 1 : 0);
                if (unitName)
                    expected += units[unit].name;
                EXPECT_EQ(
                    text(-7654321.5, {unitDecimals, static_cast<eVQUnit>(unit), thousands, unitName, zeros, precision}),
                    expected)
                    << "flags " << bits << ", unit " << unit << ", precision " << precision;
            }
}

TEST(CVQUnit, RoundsTheBinaryValueAndTiesToEven)
{
    EXPECT_EQ(text(0.125), L"0.12");
    EXPECT_EQ(text(0.375), L"0.38");
    EXPECT_EQ(text(1.005), L"1.00"); // a little below 1.005
    EXPECT_EQ(text(2.5, {.precision = 0}), L"2");
}

TEST(CVQUnit, WhatRoundsToZeroHasNoSign)
{
    EXPECT_EQ(text(-0.0), L"0.00");
    EXPECT_EQ(text(-0.004), L"0.00");
    EXPECT_EQ(text(-0.004, {.zeros = false}), L"0");
    EXPECT_EQ(text(-0.006), L"-0.01");
}

TEST(CVQUnit, WhatIsNotFiniteHasNoUnit)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const Format all{.unitDecimals = true, .thousands = true, .unitName = true, .zeros = false};
    EXPECT_EQ(text(infinity, all), L"inf");
    EXPECT_EQ(text(-infinity, all), L"-inf");
    EXPECT_EQ(text(std::nan(""), all), L"nan");
    EXPECT_EQ(text(-std::nan(""), all), L"nan");
}

TEST(CVQUnit, WritesTheLargestAndTheSmallestNumbersInFull)
{
    const CString largest = text(std::numeric_limits<double>::max(), {.thousands = true, .precision = 0});
    EXPECT_EQ(largest.GetLength(), 309 + 102);
    EXPECT_EQ(largest.Left(11), L"179,769,313");
    const CString smallest = text(std::numeric_limits<double>::denorm_min(), {.precision = 100000});
    EXPECT_EQ(smallest.GetLength(), 2 + 1074);
    EXPECT_EQ(smallest.Right(3), L"625") << "the last digits of a power of 1 / 2";
}

TEST(CVQUnit, IsTheSameInEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C", "C.UTF-8", "de_DE.UTF-8", "de_DE.utf8", "de_DE", "German"}) {
        if (!std::setlocale(LC_ALL, locale))
            continue;
        EXPECT_EQ(text(1234.5, {.unitDecimals = true, .thousands = true, .unitName = true}), L"1,234.500 mm") << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}

} // namespace
