#include "core/Convert.h"

#include "TestPrinting.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>

namespace quillon {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

TEST(CInt, HalvesRoundToEven)
{
    const struct {
        double value;
        qint16 expected;
    } cases[] = {
        {2.5, 2},   {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0},         {-0.5, 0},          {1.5, 2},
        {-1.5, -2}, {2.4, 2}, {2.6, 3},   {-2.4, -2}, {-2.6, -3},       {0.0, 0},           {-0.0, 0},
        {4.5, 4},   {5.5, 6}, {12.0, 12}, {-7.0, -7}, {32766.5, 32766}, {-32767.5, -32768},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.value);
        EXPECT_EQ(CInt(c.value), c.expected);
    }
}

TEST(CInt, OverflowsOnlyWhenTheRoundedValueLeavesTheRange)
{
    const struct {
        double value;
        qint16 expected;
    } inRange[] = {
        {32767.0, 32767}, {32767.4, 32767}, {-32768.0, -32768}, {-32768.4, -32768}, {-32768.5, -32768},
    };
    for (const auto &c : inRange) {
        SCOPED_TRACE(c.value);
        EXPECT_EQ(CInt(c.value), c.expected);
    }
    for (const double value :
         {32767.5, 32768.0, -32768.6, -32769.0, -32769.5, 1e10, -1e10, infinity, notANumber}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(errorNumberOf([value] { CInt(value); }), 6);
    }
}

TEST(CLng, HalvesRoundToEvenAndOverflowsBeyondThirtyTwoBits)
{
    const struct {
        double value;
        qint32 expected;
    } cases[] = {
        {2.5, 2},
        {3.5, 4},
        {-2.5, -2},
        {70000.5, 70000},
        {70001.5, 70002},
        {2147483647.0, 2147483647},
        {2147483646.5, 2147483646},
        {-2147483648.0, std::numeric_limits<qint32>::min()},
        {-2147483648.5, std::numeric_limits<qint32>::min()},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.value);
        EXPECT_EQ(CLng(c.value), c.expected);
    }
    for (const double value :
         {2147483647.5, 2147483648.0, -2147483648.6, -2147483649.0, infinity, notANumber}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(errorNumberOf([value] { CLng(value); }), 6);
    }
}

TEST(CSng, RoundsToSinglePrecisionAndOverflowsBeyondItsRange)
{
    EXPECT_EQ(CSng(8.8), 8.8f);
    EXPECT_EQ(CSng(0.1), 0.1f);
    EXPECT_EQ(CSng(-39.55), -39.55f);
    EXPECT_EQ(CSng(1e-50), 0.0f);
    EXPECT_EQ(CSng(static_cast<double>(FLT_MAX)), FLT_MAX);
    // Just below the point where single precision rounds to infinity.
    const double roundsToInfinity = std::ldexp(1.0, 128) - std::ldexp(1.0, 103);
    EXPECT_EQ(CSng(std::nextafter(roundsToInfinity, 0.0)), FLT_MAX);
    EXPECT_EQ(CSng(-std::nextafter(roundsToInfinity, 0.0)), -FLT_MAX);
    for (const double value : {roundsToInfinity, -roundsToInfinity, 1e39, -1e39, infinity, notANumber}) {
        SCOPED_TRACE(value);
        EXPECT_EQ(errorNumberOf([value] { CSng(value); }), 6);
    }
}

TEST(Val, ReadsTheLeadingNumberAndIgnoresBlanks)
{
    const struct {
        const char *text;
        double expected;
    } cases[] = {
        {"  1 2 3", 123.0},
        {"12abc", 12.0},
        {"", 0.0},
        {"-3.5x", -3.5},
        {".5", 0.5},
        {"1e2", 100.0},
        {"abc", 0.0},
        {"+5", 5.0},
        {"- 3", -3.0},
        {"\t4\n2", 42.0},
        {"1 e 2", 100.0},
        {"1D2", 100.0},
        {"3.5E-1", 0.35},
        {"1.2.3", 1.2},
        {"1e", 1.0},
        {"1e+", 1.0},
        {"5,000", 5.0},
        {"12\r\n", 12.0}, // a carriage return is not a blank: it ends
                          // the number
        {"--5", 0.0},
        {"-", 0.0},
        {".", 0.0},
        {"   ", 0.0},
        {"007", 7.0},
        {"1e-400", 0.0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Val(QString::fromLatin1(c.text)), c.expected);
    }
}

TEST(Val, ReadsHexAndOctalAsSixteenThenThirtyTwoBitValues)
{
    const struct {
        const char *text;
        double expected;
    } cases[] = {
        {"&H1F", 31.0},
        {"&O17", 15.0},
        {"&17", 15.0},
        {"&hff", 255.0},
        {"&H7FFF", 32767.0},
        {"&H8000", -32768.0},
        {"&HFFFF", -1.0},
        {"&H10000", 65536.0},
        {"&H7FFFFFFF", 2147483647.0},
        {"&HFFFFFFFF", -1.0},
        {"&H100000000", 4294967296.0},
        {"&H1G", 1.0},
        {"&O8", 0.0},
        {"&H", 0.0},
        {"&", 0.0},
        {" & H 1 F", 31.0},
        {"&H10000000000000000", 18446744073709551616.0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(Val(QString::fromLatin1(c.text)), c.expected);
    }
}

TEST(Val, NeverThrowsAndGivesNoNegativeZero)
{
    EXPECT_EQ(Val(QStringLiteral("1e400")), infinity);
    EXPECT_EQ(Val(QStringLiteral("-1e400")), -infinity);
    EXPECT_FALSE(std::signbit(Val(QStringLiteral("-0"))));
    EXPECT_FALSE(std::signbit(Val(QStringLiteral("-1e-400"))));
    // Digits of other scripts are not numbers.
    EXPECT_EQ(Val(QStringLiteral("\u0661\u0662")), 0.0);
    EXPECT_EQ(Val(QStringLiteral("7\u00e9")), 7.0);
}

TEST(CDbl, AcceptsSignedDecimalsWithSurroundingBlanks)
{
    const struct {
        const char *text;
        double expected;
    } cases[] = {
        {"12", 12.0}, {" 12 ", 12.0}, {"\t-3.5\t", -3.5}, {"+.5", 0.5},
        {"5.", 5.0},  {"1e2", 100.0}, {"1E-2", 0.01},     {"-1.5e+3", -1500.0},
        {"0.1", 0.1}, {"8.8", 8.8},   {"1e-400", 0.0},    {"007", 7.0},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(CDbl(QString::fromLatin1(c.text)), c.expected);
    }
    EXPECT_FALSE(std::signbit(CDbl(QStringLiteral("-0"))));
}

TEST(CDbl, RejectsAnythingButANumberWithTypeMismatch)
{
    const char *const cases[] = {
        "",      "   ",  "12abc", "abc", ".",   "-",  "1e",  "1e+",  "1 2",
        "1.2.3", "&H1F", "1D2",   "--5", "+-5", "5-", "1,5", "12\n", "e5",
    };
    for (const char *text : cases) {
        SCOPED_TRACE(text);
        EXPECT_EQ(errorNumberOf([text] { CDbl(QString::fromLatin1(text)); }), 13);
    }
    EXPECT_EQ(errorNumberOf([] { CDbl(QStringLiteral("\u0661\u0662")); }), 13);
}

TEST(CDbl, BeyondDoubleRangeOverflows)
{
    EXPECT_EQ(errorNumberOf([] { CDbl(QStringLiteral("1e400")); }), 6);
    EXPECT_EQ(errorNumberOf([] { CDbl(QStringLiteral("-1e400")); }), 6);
}

TEST(CSngText, ReadsStrictlyAndRoundsToSingle)
{
    EXPECT_EQ(CSng(QStringLiteral("8.8")), 8.8f);
    EXPECT_EQ(CSng(QStringLiteral("39.55")), 39.55f);
    EXPECT_EQ(CSng(QStringLiteral(" 0.1 ")), 0.1f);
    EXPECT_EQ(CSng(QStringLiteral("-14.25")), -14.25f);
    EXPECT_EQ(errorNumberOf([] { CSng(QStringLiteral("1e39")); }), 6);
    EXPECT_EQ(errorNumberOf([] { CSng(QStringLiteral("abc")); }), 13);
    EXPECT_EQ(errorNumberOf([] { CSng(QString()); }), 13);
}

TEST(CIntText, ReadsStrictlyThenRoundsHalvesToEven)
{
    const struct {
        const char *text;
        qint16 expected;
    } cases[] = {
        {"2.5", 2}, {"3.5", 4}, {" -2.5 ", -2}, {"32767", 32767}, {"-32768.5", -32768}, {"72", 72},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(CIntText(QString::fromLatin1(c.text)), c.expected);
    }
    const struct {
        const char *text;
        int error;
    } failures[] = {
        {"32767.5", 6}, {"32768", 6}, {"-32769", 6}, {"1e400", 6}, {"12abc", 13}, {"", 13}, {"7 2", 13},
    };
    for (const auto &f : failures) {
        SCOPED_TRACE(f.text);
        EXPECT_EQ(errorNumberOf([&f] { CIntText(QString::fromLatin1(f.text)); }), f.error);
    }
}

TEST(Conversion, StrictAndLenientReadTheSameTextsDifferently)
{
    const struct {
        const char *text;
        double lenient;
        int strictError; // 0: strict reading succeeds with the lenient value
    } cases[] = {
        {"12abc", 12.0, 13}, {"", 0.0, 13},     {"  1 2 3", 123.0, 13}, {"-3.5x", -3.5, 13},
        {".5", 0.5, 0},      {"1e2", 100.0, 0}, {"&H1F", 31.0, 13},     {"abc", 0.0, 13},
        {" 42 ", 42.0, 0},   {"1e", 1.0, 13},   {"-7", -7.0, 0},        {".", 0.0, 13},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.text);
        const QString text = QString::fromLatin1(c.text);
        EXPECT_EQ(Val(text), c.lenient);
        EXPECT_EQ(errorNumberOf([&text] { CDbl(text); }), c.strictError);
        if (c.strictError == 0) {
            EXPECT_EQ(CDbl(text), c.lenient);
        }
    }
}

} // namespace
} // namespace quillon
