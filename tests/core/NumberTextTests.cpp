#include "core/NumberText.h"

#include "TestPrinting.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillon {
namespace {

struct SingleCase {
    float value;
    const char *expected;
};

struct DoubleCase {
    double value;
    const char *expected;
};

void expectSingleCases(std::initializer_list<SingleCase> cases)
{
    for (const SingleCase &c : cases) {
        SCOPED_TRACE(testing::Message() << "SingleText(" << c.value << "f)");
        EXPECT_EQ(SingleText(c.value), QString::fromLatin1(c.expected));
    }
}

void expectDoubleCases(std::initializer_list<DoubleCase> cases)
{
    for (const DoubleCase &c : cases) {
        SCOPED_TRACE(testing::Message() << "DoubleText(" << c.value << ")");
        EXPECT_EQ(DoubleText(c.value), QString::fromLatin1(c.expected));
    }
}

TEST(SingleText, ShowsAtMostSevenDigitsWithoutTrailingZeros)
{
    expectSingleCases({
        {12.3f, "12.3"},
        {9.0f, "9"},
        {0.5f, "0.5"},
        {-1.2f, "-1.2"},
        {8.8f, "8.8"},
        {14.592f, "14.592"},
        {0.1f, "0.1"},
        {1.0f / 3.0f, "0.3333333"},
        {2.0f / 3.0f, "0.6666667"},
        {-2.0f / 3.0f, "-0.6666667"},
        {1234567.0f, "1234567"},
        {9999999.0f, "9999999"},
        {0.0001f, "0.0001"},
    });
}

TEST(SingleText, ZeroOfEitherSignIsZero)
{
    expectSingleCases({{0.0f, "0"}, {-0.0f, "0"}});
}

TEST(SingleText, SwitchesToExponentBeyondSevenDigits)
{
    expectSingleCases({
        {12345678.0f, "1.234568E+07"},
        {16777216.0f, "1.677722E+07"},
        {-1e10f, "-1E+10"},
        {3.4e38f, "3.4E+38"},
        {0.00001f, "1E-05"},
        {1.5e-5f, "1.5E-05"},
        {-2.5e-7f, "-2.5E-07"},
        {10000000.0f, "1E+07"},
    });
}

TEST(DoubleText, ShowsAtMostFifteenDigitsWithoutTrailingZeros)
{
    expectDoubleCases({
        {8.7999999999999998, "8.8"},
        {0.1 + 0.2, "0.3"},
        {14.592, "14.592"},
        {12.0, "12"},
        {-2.5, "-2.5"},
        {1.0 / 3.0, "0.333333333333333"},
        {static_cast<double>(0.1f), "0.100000001490116"},
        {123456789012345.0, "123456789012345"},
        {999999999999999.0, "999999999999999"},
        {0.0001, "0.0001"},
        {0.0, "0"},
        {-0.0, "0"},
    });
}

TEST(DoubleText, SwitchesToExponentBeyondFifteenDigits)
{
    expectDoubleCases({
        {1e15, "1E+15"},
        {9999999999999999.0, "1E+16"},
        {-1.5e20, "-1.5E+20"},
        {1e100, "1E+100"},
        {1e-5, "1E-05"},
        {1.5e-300, "1.5E-300"},
    });
}

TEST(NumberText, NonFiniteValueOverflows)
{
    EXPECT_EQ(errorNumberOf([] { SingleText(std::numeric_limits<float>::infinity()); }), 6);
    EXPECT_EQ(errorNumberOf([] { SingleText(std::numeric_limits<float>::quiet_NaN()); }), 6);
    EXPECT_EQ(errorNumberOf([] { DoubleText(-std::numeric_limits<double>::infinity()); }), 6);
    EXPECT_EQ(errorNumberOf([] { DoubleText(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

} // namespace
} // namespace quillon
