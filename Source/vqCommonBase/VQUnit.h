// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "vqCommonBase/Export.h"

/// What a value measures. The number is the dimension: lengths 1, areas 2, volumes 3; an angle has none.
enum eVQUnit : int {
    VQ_UNIT_ANGLE,  ///< degrees: "45.00°", two decimals
    VQ_UNIT_LENGTH, ///< millimetres: "12.500 mm", three decimals
    VQ_UNIT_AREA,   ///< square millimetres: "12.500 mm²", three decimals
    VQ_UNIT_VOLUME, ///< cubic millimetres: "12.500 mm³", three decimals
    VQ_UNIT_END
};

/// Numbers as text for people. No locale has an influence.
class VQCOMMONBASE_API CVQUnit
{
public:
    /// A number in decimal digits with a point, rounded to the nearest, the exact binary value's ties to even.
    ///
    /// What rounds to zero has no sign. What is not finite is "nan", "inf" or "-inf", without a unit. The value is
    /// taken as it is: units are not converted.
    ///
    /// @param unitDecimals the unit says how many decimals there are; otherwise there are two
    /// @param unit one that does not exist has no name, and two decimals
    /// @param separateThousands groups the digits before the point in threes: "1,234,567.00"
    /// @param unitName appends the unit: " mm", " mm²", " mm³", or "°" without a blank
    /// @param trailingZeros keeps zeros at the end of the decimals; otherwise they go, and the point with the last
    /// @param precision the number of decimals, whatever the unit says, of which there are at most 1074 (no double has
    /// more); negative: as `unitDecimals` says
    static CString GetDeciPointedString(double value, bool unitDecimals, eVQUnit unit, bool separateThousands,
                                        bool unitName, bool trailingZeros, int precision);
};
