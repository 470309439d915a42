// SPDX-License-Identifier: MIT
// printf-like formatting.
#include "Platform/afx/CString.h"

#include "PrintCString.h"

#include <array>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <string_view>

namespace {

template <typename... Arguments>
CString formatted(LPCTSTR format, const Arguments&... arguments)
{
    CString text;
    text.Format(format, arguments...);
    return text;
}

CString formattedFromList(LPCTSTR format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    CString text;
    text.FormatV(format, arguments);
    va_end(arguments);
    return text;
}

TEST(CStringFormat, WritesPlainTextAndPercentSigns)
{
    EXPECT_EQ(formatted(L"plain"), L"plain");
    EXPECT_EQ(formatted(L"100%%"), L"100%");
    EXPECT_EQ(formatted(L""), L"");
    EXPECT_EQ(formatted(nullptr), L"");
    EXPECT_EQ(formatted(L"end%"), L"end");
    EXPECT_EQ(formatted(L"%y%5"), L"y") << "a letter without meaning stands for itself";
}

TEST(CStringFormat, SmallSTakesWideTextAndCapitalSNarrowText)
{
    EXPECT_EQ(formatted(L"<%s>", L"w\u00EFde\u20AC"), L"<w\u00EFde\u20AC>");
    EXPECT_EQ(formatted(L"<%ls|%ws|%lS>", L"1", L"2", L"3"), L"<1|2|3>");
    EXPECT_EQ(formatted(L"<%S|%hs|%hS>", "1", "2", "3"), L"<1|2|3>");
    EXPECT_EQ(formatted(L"%S", "\xE4\x80"), L"\u00E4\u20AC");
    EXPECT_EQ(formatted(L"%c%lc%C%hc", L'\u20AC', L'w', 'n', 'h'), L"\u20ACwnh");
}

TEST(CStringFormat, PadsAndCutsText)
{
    EXPECT_EQ(formatted(L"<%5s|%-5s|%.2s|%5.1s|%-*.*s>", L"abc", L"abc", L"abc", L"abc", 4, 2, L"abc"),
              L"<  abc|abc  |ab|    a|ab  >");
    EXPECT_EQ(formatted(L"<%*s>", -5, L"abc"), L"<abc  >");
    EXPECT_EQ(formatted(L"<%.*s>", -1, L"abc"), L"<abc>");
    EXPECT_EQ(formatted(L"<%.s|%.0S>", L"abc", "abc"), L"<|>");
    EXPECT_EQ(formatted(L"<%3c|%-3c>", L'x', L'y'), L"<  x|y  >");
}

TEST(CStringFormat, ReadsNoCharacterBehindThePrecision)
{
    const std::array<wchar_t, 3> wide{L'a', L'b', L'c'}; // no terminator: AddressSanitizer watches
    const std::array<char, 3> narrow{'a', 'b', 'c'};
    EXPECT_EQ(formatted(L"%.3s", wide.data()), L"abc");
    EXPECT_EQ(formatted(L"%.3S", narrow.data()), L"abc");
}

TEST(CStringFormat, ShowsNullText)
{
    EXPECT_EQ(formatted(L"%s|%S|%.3s", nullptr, nullptr, nullptr), L"(null)|(null)|(nu");
}

TEST(CStringFormat, TakesStringsAsTheyAre)
{
    CString name(L"name");
    EXPECT_EQ(formatted(L"%s=%d", name, 5), L"name=5");
    name.Format(L"%s, %s", name, name);
    EXPECT_EQ(name, L"name, name");
    name.AppendFormat(L"; %s", name);
    EXPECT_EQ(name, L"name, name; name, name");
}

TEST(CStringFormat, ANullCharacterIsPartOfTheText)
{
    const CString text = formatted(L"a%cb", 0);
    EXPECT_EQ(text.GetLength(), 3);
    EXPECT_EQ(text[2], L'b');
}

TEST(CStringFormat, KnowsTheWidthsOfIntegers)
{
    const std::int64_t big = 0x123456789ABCDEF0;
    EXPECT_EQ(formatted(L"%I64d|%lld|%jd", big, big, big),
              L"1311768467463790320|1311768467463790320|1311768467463790320");
    EXPECT_EQ(formatted(L"%I64X|%llx", big, big), L"123456789ABCDEF0|123456789abcdef0");
    EXPECT_EQ(formatted(L"%I32d|%d|%i", -5, -6, -7), L"-5|-6|-7");
    EXPECT_EQ(formatted(L"%hd|%hu|%hhd|%hhu", 70000, 70000, 300, 300), L"4464|4464|44|44");
    EXPECT_EQ(formatted(L"%Id|%zu|%td", INT_PTR{-1}, sizeof(void*), INT_PTR{2}), L"-1|8|2");
    EXPECT_EQ(formatted(L"%d|%u", std::numeric_limits<int>::min(), 0xFFFFFFFFu), L"-2147483648|4294967295");
    EXPECT_EQ(formatted(L"%I64d", std::numeric_limits<std::int64_t>::min()), L"-9223372036854775808");
}

TEST(CStringFormat, SmallLIsThirtyTwoBitsOnEverySystem)
{
    EXPECT_EQ(formatted(L"%ld|%lu|%lX", LONG{-1}, ULONG{0xFFFFFFFF}, ULONG{0x80000000}), L"-1|4294967295|80000000");
    EXPECT_EQ(formattedFromList(L"%ld %s", LONG{-123}, L"next"), L"-123 next");
}

TEST(CStringFormat, WritesPointersWithAllDigits)
{
    EXPECT_EQ(formatted(L"%p", reinterpret_cast<void*>(std::uintptr_t{0xABCDEF})), L"0000000000ABCDEF");
}

TEST(CStringFormat, NumberOfCharactersIsNotWritten)
{
    int untouched = 5;
    EXPECT_EQ(formatted(L"a%nb%d", &untouched, 1), L"ab1");
    EXPECT_EQ(untouched, 5);
}

TEST(CStringFormat, ReadsManyArgumentsInTheirOrder)
{
    EXPECT_EQ(formattedFromList(L"%d %f %s %c %I64d %f %d %s %f %d %d %f %f %f %f %f %f", 1, 2.0, L"3", L'4',
                                std::int64_t{5}, 6.0, 7, L"8", 9.0, 10, 11, 12.0, 13.0, 14.0, 15.0, 16.0, 17.0),
              L"1 2.000000 3 4 5 6.000000 7 8 9.000000 10 11 12.000000 13.000000 14.000000 15.000000 16.000000 "
              L"17.000000");
}

/// Wine has the German locale; a Linux system has it where somebody installed it.
TEST(CStringFormat, FloatingPointUsesAPointInEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* locale : {"C", "de_DE.UTF-8", "de_DE.utf8", "de_DE", "German"}) {
        if (!std::setlocale(LC_ALL, locale))
            continue;
        EXPECT_EQ(formatted(L"%.2f|%g|%e|%.1Lf", 1234.5, 0.5, 2.5, 1.25L), L"1234.50|0.5|2.500000e+00|1.2") << locale;
        EXPECT_EQ(formatted(L"%S %C", "\xE4", '\xE4'), L"\u00E4 \u00E4") << locale;
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(CStringFormat, WritesWhatIsNoNumberWithoutZeros)
{
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(formatted(L"%f|%E|%+g|%06.1f", infinity, -infinity, infinity, infinity), L"inf|-INF|+inf|   inf");
    EXPECT_EQ(formatted(L"%f|%G", std::nan(""), std::nan("")), L"nan|NAN");
}

TEST(CStringFormat, LargePrecisionsAndWidthsAreExact)
{
    const CString text = formatted(L"%.3000f", 0.1);
    EXPECT_EQ(text.GetLength(), 3002);
    EXPECT_EQ(text.Left(20), L"0.100000000000000005");
    EXPECT_EQ(text.Right(100), CString(L'0', 100));
    EXPECT_EQ(formatted(L"%.2000e", 1e300).Right(7), L"00e+300");
    EXPECT_EQ(formatted(L"%.2000e", 1e300).GetLength(), 2 + 2000 + 5);
    EXPECT_EQ(formatted(L"%5000d", 1), CString(L' ', 4999) + L"1");
    EXPECT_EQ(formatted(L"%.5000d", 1), CString(L'0', 4999) + L"1");
    EXPECT_EQ(formatted(L"%f", std::numeric_limits<double>::max()).GetLength(), 309 + 7);
}

class Sweep : public testing::Test
{
protected:
    /// The C library's result in the "C" locale: its own code, an independent judge.
    template <typename Value>
    static CString judged(const std::string& format, Value value)
    {
        std::array<char, 2048> buffer{};
        std::snprintf(buffer.data(), buffer.size(), format.c_str(), value);
        return CString(buffer.data());
    }

    template <typename Value>
    static void compare(const std::string& field, const char* length, char conversion, Value value)
    {
        const std::string format = std::string("%").append(field).append(length) + conversion;
        ASSERT_EQ(formatted(CString(format.c_str()), value), judged(format, value)) << format << " of " << value;
    }

    std::string anyField(const char* flags)
    {
        std::string field;
        for (const char flag : std::string_view(flags))
            if (m_random() % 4 == 0)
                field += flag;
        if (m_random() % 2)
            field += std::to_string(m_random() % 30);
        if (m_random() % 2)
            field.append(".").append(std::to_string(m_random() % 25));
        return field;
    }

    std::mt19937_64 m_random{20240612};
};

TEST_F(Sweep, IntegersAgreeWithTheCLibrary)
{
    for (int i = 0; i < 50000 && !HasFatalFailure(); ++i) {
        const auto value = static_cast<std::int64_t>(m_random()) >> m_random() % 64;
        const char conversion = "diuoxX"[m_random() % 6];
        const bool isSigned = conversion == 'd' || conversion == 'i';
        const std::string field = anyField(isSigned ? "-+ 0" : conversion == 'u' ? "-0" : "-#0");
        compare(field, "ll", conversion, static_cast<long long>(value));
        compare(field, "", conversion, static_cast<int>(value & 0x7FFFFFFF));
    }
}

TEST_F(Sweep, FloatingPointAgreesWithTheCLibrary)
{
    std::uniform_real_distribution<double> exponent(-20, 20), mantissa(-10, 10);
    for (int i = 0; i < 50000 && !HasFatalFailure(); ++i) {
        double value = mantissa(m_random) * std::pow(10.0, std::round(exponent(m_random)));
        if (m_random() % 8 == 0)
            value = std::round(mantissa(m_random)) / 4;
        compare(anyField("-+ #0"), "", "eEfFgG"[m_random() % 6], value);
    }
    for (const double value : {0.0, -0.0, 5e-324, 1e308, 0.00001, 0.0001, 123456.0, 1e6, 0.5, 1.5, 2.5})
        for (const char* field : {"", "#", "#.0", ".0", ".1", "#.3", ".20", "020", "+.2"})
            for (const char conversion : {'e', 'f', 'g', 'G'})
                compare(field, "", conversion, value);
}

TEST(CStringFormat, AlternateGeneralFormKeepsItsZerosWhenRoundingCarries)
{
    EXPECT_EQ(formatted(L"%#g|%g", 999999.5, 999999.5), L"1.00000e+06|1e+06"); // glibc 2.36 drops the zeros
}

TEST(CStringFormat, HexadecimalFloatsAreReadBackExactly)
{
    EXPECT_EQ(formatted(L"%a|%A|%.2a", 1.0, 0.15625, 1.0), L"0x1p+0|0X1.4P-3|0x1.00p+0");
    EXPECT_EQ(formatted(L"%10a|%-10a|%010a", -1.0, 1.0, 1.0), L"   -0x1p+0|0x1p+0    |0x00001p+0");
}

} // namespace
