#include "core/Format.h"

#include "TestPrinting.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace quillon {
namespace {

struct DoubleCase {
    double value;
    const char *pattern;
    const char *expected;
};

struct FloatCase {
    float value;
    const char *pattern;
    const char *expected;
};

void expectDoubleCases(std::initializer_list<DoubleCase> cases)
{
    for (const DoubleCase &c : cases) {
        SCOPED_TRACE(testing::Message() << "Format(" << c.value << ", \"" << c.pattern << "\")");
        EXPECT_EQ(Format(c.value, QString::fromLatin1(c.pattern)), QString::fromLatin1(c.expected));
    }
}

void expectFloatCases(std::initializer_list<FloatCase> cases)
{
    for (const FloatCase &c : cases) {
        SCOPED_TRACE(testing::Message() << "Format(" << c.value << "f, \"" << c.pattern << "\")");
        EXPECT_EQ(Format(c.value, QString::fromLatin1(c.pattern)), QString::fromLatin1(c.expected));
    }
}

TEST(Format, HashBeforePointDropsTheLeadingZero)
{
    expectDoubleCases({
        {0.5, "###.0", ".5"},
        {0.0, "###.0", ".0"},
        {-0.4, "###.0", "-.4"},
        {12.0, "###.0", "12.0"},
        {8.8, "###.0", "8.8"},
        {0.5, "##.0", ".5"},
        {7.0, "##.0", "7.0"},
    });
}

TEST(Format, ZeroBeforePointKeepsOneLeadingZero)
{
    expectDoubleCases({
        {0.5, "##0.0", "0.5"},
        {0.0, "##0.0", "0.0"},
        {-0.4, "##0.0", "-0.4"},
        {12.0, "##0.0", "12.0"},
        {3.0, "000.0", "003.0"},
        {1234.0, "00.0", "1234.0"},
    });
}

TEST(Format, AlwaysWritesThePatternsNumberOfDecimals)
{
    expectDoubleCases({
        {12.0, "###.00", "12.00"},
        {12.0, "###.000", "12.000"},
        {12.3456, "###.000", "12.346"},
        {12.3456, "###", "12"},
        {0.123456789012345678, "0.000000000000000000", "0.123456789012346000"},
    });
}

TEST(Format, DoubleHalvesRoundAwayFromZeroOnFifteenDigitText)
{
    expectDoubleCases({
        {0.25, "###.0", ".3"},
        {-0.25, "###.0", "-.3"},
        {14.25, "###.0", "14.3"},
        {-14.25, "###.0", "-14.3"},
        {2.675, "###.00", "2.68"}, // binary 2.67499999999999982
        {-2.675, "###.00", "-2.68"},
        {0.35, "###.0", ".4"},     // binary 0.34999999999999998
        {1.005, "###.00", "1.01"}, // binary 1.00499999999999989
        {0.05, "###.0", ".1"},
        {-0.05, "###.0", "-.1"},
        {2.5, "0", "3"},
        {-2.5, "0", "-3"},
        {14.24, "###.0", "14.2"},
        {-14.26, "###.0", "-14.3"},
        {0.5, "###", "1"},
        {-0.5, "###", "-1"},
        // 39.55f widened: its 15-digit text is 39.5499992370605
        {static_cast<double>(39.55f), "###.0", "39.5"},
    });
}

TEST(Format, FloatHalvesRoundAwayFromZeroOnSevenDigitText)
{
    expectFloatCases({
        {14.25f, "###.0", "14.3"},
        {-14.25f, "###.0", "-14.3"},
        {39.55f, "###.0", "39.6"}, // binary 39.5499992
        {-39.55f, "###.0", "-39.6"},
        {15.187f, "###.0", "15.2"},
        {8.8f, "###.0", "8.8"},
        {0.45f, "###.0", ".5"}, // binary 0.449999988
        {-0.45f, "###.0", "-.5"},
        {2.675f, "###.00", "2.68"},
        {0.05f, "##0.0", "0.1"},
        {14.24f, "###.0", "14.2"},
        {0.5f, "###.0", ".5"},
        {123456789.0f, "###.0", "123456800.0"}, // seven digits, then zeros
    });
}

TEST(Format, CarryPropagatesThroughNines)
{
    expectDoubleCases({
        {0.95, "###.0", "1.0"},
        {9.95, "##.0", "10.0"},
        {-9.95, "##.0", "-10.0"},
        {99.95, "##0.0", "100.0"},
        {999.9999, "###.00", "1000.00"},
        {0.96, "###", "1"},
    });
}

TEST(Format, ValueThatRoundsToZeroHasNoMinusSign)
{
    expectDoubleCases({
        {-0.04, "###.0", ".0"},
        {-0.04, "##0.0", "0.0"},
        {-0.0, "###.0", ".0"},
        {-0.004, "###.00", ".00"},
        {-1e-20, "###.0", ".0"},
        {-0.4, "###", ""},
    });
    expectFloatCases({
        {-0.04f, "###.0", ".0"},
        {-0.0f, "###.0", ".0"},
        {0.0f, "###.0", ".0"},
    });
}

TEST(Format, LargeValuesPrintAllIntegerDigits)
{
    expectDoubleCases({
        {1234.5, "###.0", "1234.5"},
        {1234.56, "##.0", "1234.6"},
        {-98765.43, "###.0", "-98765.4"},
        {1e20, "###.0", "100000000000000000000.0"},
        {123456789012345678.0, "0", "123456789012346000"},
    });
}

TEST(Format, TrailingHashDecimalsDropTheirZeros)
{
    expectDoubleCases({
        {1.5, "#.##", "1.5"},
        {1.0, "#.##", "1."},
        {1.05, "0.0#", "1.05"},
        {1.1, "0.0#", "1.1"},
        {1.104, "0.0#", "1.1"},
        {1.106, "0.0#", "1.11"},
    });
}

TEST(Format, TextAroundThePlaceholdersIsCopied)
{
    expectDoubleCases({
        {5.0, "$#0.0", "$5.0"},
        {-5.0, "$#0.0", "-$5.0"},
        {12.34, "##0.0 %", "12.3 %"},
        {0.5, "(##0.0)", "(0.5)"},
    });
}

TEST(Format, IntegerOverloadFormatsExactly)
{
    EXPECT_EQ(Format(7, QStringLiteral("##0.0")), QStringLiteral("7.0"));
    EXPECT_EQ(Format(-3, QStringLiteral("###.0")), QStringLiteral("-3.0"));
    EXPECT_EQ(Format(0, QStringLiteral("###.0")), QStringLiteral(".0"));
    EXPECT_EQ(Format(2147483647, QStringLiteral("0")), QStringLiteral("2147483647"));
}

TEST(Format, EmptyPatternGivesTheDefaultText)
{
    EXPECT_EQ(Format(0.1 + 0.2, QString()), QStringLiteral("0.3"));
    EXPECT_EQ(Format(8.8f, QString()), QStringLiteral("8.8"));
    EXPECT_EQ(Format(12, QString()), QStringLiteral("12"));
}

TEST(Format, PatternWithoutPlaceholdersOrWithTrailingOnesIsRejected)
{
    EXPECT_THROW(Format(1.0, QStringLiteral("abc")), std::invalid_argument);
    EXPECT_THROW(Format(1.0, QStringLiteral("#x#")), std::invalid_argument);
    EXPECT_THROW(Format(1.0f, QStringLiteral("0.0 .")), std::invalid_argument);
}

TEST(Format, NonFiniteValueOverflows)
{
    const QString pattern = QStringLiteral("###.0");
    EXPECT_EQ(errorNumberOf([&] { Format(std::numeric_limits<double>::infinity(), pattern); }), 6);
    EXPECT_EQ(errorNumberOf([&] { Format(-std::numeric_limits<double>::infinity(), pattern); }), 6);
    EXPECT_EQ(errorNumberOf([&] { Format(std::numeric_limits<double>::quiet_NaN(), pattern); }), 6);
    EXPECT_EQ(errorNumberOf([&] { Format(std::numeric_limits<float>::infinity(), pattern); }), 6);
}

} // namespace
} // namespace quillon
