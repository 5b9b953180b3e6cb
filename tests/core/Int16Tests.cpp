#include "core/Int16.h"

#include "TestPrinting.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace quillon {
namespace {

// Rounding belongs to CInt: a floating-point value must not slip in.
static_assert(std::is_constructible_v<Int16, int>);
static_assert(!std::is_constructible_v<Int16, double>);
static_assert(!std::is_constructible_v<Int16, float>);

TEST(Int16, ConstructionChecksTheRange)
{
    EXPECT_EQ(Int16().value(), 0);
    EXPECT_EQ(Int16(32767).value(), 32767);
    EXPECT_EQ(Int16(-32768).value(), -32768);
    EXPECT_EQ(Int16(qint16(-5)).value(), -5);
    EXPECT_EQ(Int16(std::uint8_t(200)).value(), 200);
    EXPECT_EQ(Int16(32767u).value(), 32767);
    EXPECT_EQ(Int16(qint64(-32768)).value(), -32768);
    EXPECT_EQ(errorNumberOf([] { Int16(32768); }), 6);
    EXPECT_EQ(errorNumberOf([] { Int16(-32769); }), 6);
    EXPECT_EQ(errorNumberOf([] { Int16(70000L); }), 6);
    EXPECT_EQ(errorNumberOf([] { Int16(65535u); }), 6);
    EXPECT_EQ(errorNumberOf([] { Int16(std::uint16_t(32768)); }), 6);
    EXPECT_EQ(errorNumberOf([] { Int16(std::numeric_limits<qint64>::min()); }), 6);
    // Would read as -1 if the comparison wrapped.
    EXPECT_EQ(errorNumberOf([] { Int16(std::numeric_limits<unsigned long long>::max()); }), 6);
}

enum class Op { Add, Subtract, Multiply };

struct ArithmeticCase {
    int a;
    Op op;
    int b;
    int expected; // ignored when overflows
    bool overflows;
};

const char *opName(Op op)
{
    return op == Op::Add ? "+" : op == Op::Subtract ? "-" : "*";
}

const ArithmeticCase arithmeticCases[] = {
    {32766, Op::Add, 1, 32767, false},        {32767, Op::Add, 1, 0, true},
    {-32768, Op::Add, -1, 0, true},           {-32768, Op::Add, 32767, -1, false},
    {20000, Op::Add, 20000, 0, true},         {-20000, Op::Add, -12768, -32768, false},
    {-32767, Op::Subtract, 1, -32768, false}, {-32768, Op::Subtract, 1, 0, true},
    {32767, Op::Subtract, -1, 0, true},       {0, Op::Subtract, -32768, 0, true},
    {-1, Op::Subtract, -32768, 32767, false}, {181, Op::Multiply, 181, 32761, false},
    {182, Op::Multiply, 181, 0, true},        {-256, Op::Multiply, 128, -32768, false},
    {256, Op::Multiply, 128, 0, true},        {-1, Op::Multiply, -32768, 0, true},
    {-32768, Op::Multiply, 1, -32768, false}, {300, Op::Multiply, -300, 0, true},
    {0, Op::Multiply, -32768, 0, false},
};

TEST(Int16, BinaryOperatorsOverflowOutsideTheRange)
{
    for (const ArithmeticCase &c : arithmeticCases) {
        SCOPED_TRACE(testing::Message() << c.a << ' ' << opName(c.op) << ' ' << c.b);
        const Int16 a(c.a);
        const Int16 b(c.b);
        Int16 result;
        const int error = errorNumberOf([&] {
            result = c.op == Op::Add ? a + b : c.op == Op::Subtract ? a - b : a * b;
        });
        EXPECT_EQ(error, c.overflows ? 6 : 0);
        if (!c.overflows) {
            EXPECT_EQ(result.value(), c.expected);
        }
    }
}

TEST(Int16, CompoundAssignmentOverflowsAndLeavesTheValueUnchanged)
{
    for (const ArithmeticCase &c : arithmeticCases) {
        SCOPED_TRACE(testing::Message() << c.a << ' ' << opName(c.op) << "= " << c.b);
        Int16 target(c.a);
        const int error = errorNumberOf([&] {
            if (c.op == Op::Add)
                target += Int16(c.b);
            else if (c.op == Op::Subtract)
                target -= Int16(c.b);
            else
                target *= Int16(c.b);
        });
        EXPECT_EQ(error, c.overflows ? 6 : 0);
        EXPECT_EQ(target.value(), c.overflows ? c.a : c.expected);
    }
}

TEST(Int16, IncrementOverflowsPastTheMaximum)
{
    Int16 count(32766);
    EXPECT_EQ((count++).value(), 32766);
    EXPECT_EQ(count.value(), 32767);
    EXPECT_EQ(errorNumberOf([&] { ++count; }), 6);
    EXPECT_EQ(errorNumberOf([&] { count++; }), 6);
    EXPECT_EQ(count.value(), 32767);

    Int16 fromBelow(-1);
    EXPECT_EQ((++fromBelow).value(), 0);
}

TEST(Int16, DecrementOverflowsPastTheMinimum)
{
    Int16 count(-32767);
    EXPECT_EQ((count--).value(), -32767);
    EXPECT_EQ(count.value(), -32768);
    EXPECT_EQ(errorNumberOf([&] { --count; }), 6);
    EXPECT_EQ(errorNumberOf([&] { count--; }), 6);
    EXPECT_EQ(count.value(), -32768);
}

TEST(Int16, NegatingTheMinimumOverflows)
{
    EXPECT_EQ((-Int16(5)).value(), -5);
    EXPECT_EQ((-Int16(32767)).value(), -32767);
    EXPECT_EQ(errorNumberOf([] { -Int16(-32768); }), 6);
}

TEST(Int16, ComparesByValueAndWithPlainIntegers)
{
    const Int16 three(3);
    const Int16 four(4);
    EXPECT_TRUE(three < four);
    EXPECT_TRUE(three <= four);
    EXPECT_TRUE(four > three);
    EXPECT_TRUE(four >= three);
    EXPECT_TRUE(three != four);
    EXPECT_TRUE(three == Int16(3));
    EXPECT_FALSE(three == four);
    EXPECT_FALSE(three > four);
    EXPECT_TRUE(three == 3);
    EXPECT_TRUE(5 > four);
    EXPECT_TRUE(three + 1 == four);
    EXPECT_EQ(errorNumberOf([&] { (void)(three < 40000); }), 6);
}

} // namespace
} // namespace quillon
