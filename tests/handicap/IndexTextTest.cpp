#include "handicap/IndexText.h"
#include "core/QuillonError.h"
#include "handicap/Handicap.h"

#include "TestPrinting.h"

#include <gtest/gtest.h>

using namespace quillon;

namespace {

struct ScoresToCount {
    int scores;
    int used;
};

const ScoresToCount kUsedTable[] = {
    {0, 0},  {1, 0},  {2, 0},   {3, 0},   {4, 0},   {5, 1},   {6, 1},   {7, 2},   {8, 2},
    {9, 3},  {10, 3}, {11, 4},  {12, 4},  {13, 5},  {14, 5},  {15, 6},  {16, 6},  {17, 7},
    {18, 8}, {19, 9}, {20, 10}, {21, 10}, {22, 10}, {23, 10}, {24, 10}, {25, 10},
};

} // namespace

TEST(DifferentialsUsed, FollowsTheTableForZeroToTwentyFiveScores)
{
    for (const ScoresToCount &row : kUsedTable)
        EXPECT_EQ(DifferentialsUsed(row.scores), row.used) << row.scores << " scores";
}

TEST(IndexTextCut, TruncatesTheTextToOneDecimal)
{
    const struct {
        const char *text;
        const char *cut;
    } table[] = {
        {"8.832", "8.8"},  {"12", "12.0"},     {"12.", "12.0"}, {"0.48", "0.4"},      {"-1.23", "-1.2"},
        {"-0.48", "-0.4"}, {"14.592", "14.5"}, {"8.8", "8.8"},  {"36.49999", "36.4"},
    };
    for (const auto &row : table)
        EXPECT_EQ(IndexText::CutToOneDecimal(QString::fromLatin1(row.text)), QString::fromLatin1(row.cut))
            << row.text;
}

// The text steps from a product: 15 significant digits, the cut, then "###.0".
TEST(IndexTextFromProduct, ProductsBecomeTheShownText)
{
    const struct {
        double product;
        const char *shown;
    } table[] = {
        {8.832, "8.8"},
        {12.0, "12.0"},
        {0.48, ".4"},
        {8.7999999999999998, "8.8"},
        {-1.23, "-1.2"},
        {-0.48, "-.4"},
        {14.592, "14.5"},
        {0.0, ".0"},
        {36.49, "36.4"},
        {8.8499999, "8.8"},
        {100.96, "100.9"},
        // Leftovers of a sum that cancels out (-0.1 and 0.1) are zero, not a digit of their exponent form.
        {-7.15255737304688e-10, ".0"},
        {3.0e-5, ".0"},
        {-0.00009, ".0"},
        {0.0001, ".0"},
    };
    for (const auto &row : table)
        EXPECT_EQ(IndexText::FromProduct(row.product), QString::fromLatin1(row.shown)) << row.product;
}

TEST(IndexTextFromSum, AveragesAndMultipliesByPointNineSix)
{
    const struct {
        float sum;
        int count;
        const char *shown;
    } table[] = {
        {9.2f, 1, "8.8"},   // 8.832
        {12.5f, 1, "12.0"}, // 12
        {0.5f, 1, ".4"},    // 0.48
        {-0.5f, 1, "-.4"},  // -0.48
        {45.6f, 3, "14.5"}, // 15.2 x 0.96 = 14.592
        {90.0f, 10, "8.6"}, // 8.64
    };
    for (const auto &row : table)
        EXPECT_EQ(IndexText::FromSum(row.sum, row.count), QString::fromLatin1(row.shown))
            << row.sum << " / " << row.count;
}

TEST(IndexTextFromSum, NoRowsIsDivisionByZero)
{
    try {
        IndexText::FromSum(0.0f, 0);
        FAIL() << "no fault";
    } catch (const QuillonError &e) {
        EXPECT_EQ(e.number(), 11);
    }
}

// Each addition is made in double precision from the single sum and the stored
// value, and rounded to single: neither a double sum nor single addends give these.
TEST(IndexTextFromSum, SumsInSinglePrecisionAfterEveryAddition)
{
    const QVector<double> four = {18.5, 30.1, -1.7, 15.6};
    EXPECT_EQ(IndexText::SumOfDifferentials(four), 62.499996185302734f);
    EXPECT_EQ(IndexText::FromSum(IndexText::SumOfDifferentials(four), 4), QStringLiteral("14.9")); // not 15.0

    const QVector<double> two = {-4.9, 12.4};
    EXPECT_EQ(IndexText::FromSum(IndexText::SumOfDifferentials(two), 2), QStringLiteral("3.6")); // not 3.5
}

TEST(IndexTextCap, CapsAtAndAroundTheLimits)
{
    const struct {
        const char *text;
        const char *gender;
        const char *capped;
    } table[] = {
        {"36.3", "M", "36.3"}, {"36.4", "M", "36.4"}, {"36.5", "M", "36.4"}, {"40.5", "M", "36.4"},
        {"38.0", "F", "38.0"}, {"40.3", "F", "40.3"}, {"40.4", "F", "40.4"}, {"40.5", "F", "40.4"},
        {"45.0", "F", "40.4"}, {"36.5", "f", "36.4"}, {"38.0", "X", "36.4"}, {"36.4", "", "36.4"},
        {"36.5", "", "36.4"},  {"-3.2", "M", "-3.2"}, {".4", "F", ".4"},
    };
    for (const auto &row : table)
        EXPECT_EQ(IndexText::Capped(QString::fromLatin1(row.text), QString::fromLatin1(row.gender)),
                  QString::fromLatin1(row.capped))
            << row.text << " " << row.gender;
}

TEST(IndexTextValue, ReadsTheShownTextAsASingle)
{
    EXPECT_EQ(IndexText::Value(QStringLiteral("8.8")), 8.8f);
    EXPECT_EQ(IndexText::Value(QStringLiteral(".4")), 0.4f);
    EXPECT_EQ(IndexText::Value(QStringLiteral("-.4")), -0.4f);
    EXPECT_EQ(IndexText::Value(QStringLiteral("36.4")), 36.4f);
}
