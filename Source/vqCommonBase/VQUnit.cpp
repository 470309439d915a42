// SPDX-License-Identifier: MIT
#include "vqCommonBase/VQUnit.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

struct Unit
{
    const wchar_t* name;
    int decimals;
};

/// In the order of `eVQUnit`.
constexpr std::array<Unit, VQ_UNIT_END> kUnits{{{L"\u00B0", 2}, {L" mm", 3}, {L" mm\u00B2", 3}, {L" mm\u00B3", 3}}};

constexpr Unit kNoUnit{L"", 2};

constexpr int kMostDecimals = 1074; // the smallest double is 2^-1074

Unit unitOf(eVQUnit unit)
{
    const auto index = static_cast<std::size_t>(unit);
    return index < kUnits.size() ? kUnits[index] : kNoUnit;
}

CString nameOfNonFinite(double value)
{
    return std::isnan(value) ? L"nan" : value < 0 ? L"-inf" : L"inf";
}

CString digitsOf(double magnitude, int decimals)
{
    CString digits;
    digits.Format(L"%.*f", decimals, magnitude);
    return digits;
}

bool isZero(const CString& digits)
{
    return digits.SpanIncluding(L"0.").GetLength() == digits.GetLength();
}

void dropTrailingZeros(CString& digits)
{
    if (digits.Find(L'.') < 0)
        return;
    digits.TrimRight(L'0');
    digits.TrimRight(L'.');
}

void separateThousandsOf(CString& digits)
{
    const int point = digits.Find(L'.');
    for (int place = (point < 0 ? digits.GetLength() : point) - 3; place > 0; place -= 3)
        digits.Insert(place, L',');
}

} // namespace

CString CVQUnit::GetDeciPointedString(double value, bool unitDecimals, eVQUnit unit, bool separateThousands,
                                      bool unitName, bool trailingZeros, int precision)
{
    if (!std::isfinite(value))
        return nameOfNonFinite(value);
    const Unit measure = unitOf(unit);
    const int usual = (unitDecimals ? measure : kNoUnit).decimals;
    CString text = digitsOf(std::fabs(value), precision < 0 ? usual : std::min(precision, kMostDecimals));
    const bool isNegative = std::signbit(value) && !isZero(text);
    if (!trailingZeros)
        dropTrailingZeros(text);
    if (separateThousands)
        separateThousandsOf(text);
    if (isNegative)
        text.Insert(0, L'-');
    if (unitName)
        text += measure.name;
    return text;
}
