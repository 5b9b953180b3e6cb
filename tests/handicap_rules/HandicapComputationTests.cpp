// The top of the engine: how many differentials count, the average, the cut to
// one decimal, the caps, and what is stored and shown.
#include "HandicapModel.h"
#include "HandicapRulesTest.h"
#include "handicap/Handicap.h"

using namespace quillon;
using namespace quillon::test;

namespace {

class HandicapComputation : public HandicapRulesTest {
protected:
    // Five 18-hole rounds whose lowest differential is `lowest`; the others stand well above it.
    void addFiveWithLowest(double lowest)
    {
        addEighteens(QDate(2026, 3, 1), {lowest + 3.0, lowest + 1.5, lowest, lowest + 2.2, lowest + 4.1});
    }
    void setGender(const QVariant &g)
    {
        Exec(db(), QStringLiteral("UPDATE HandicapLog SET Gender = ? WHERE LastName = ? AND FirstName = ?"),
             {g, last, first});
        choose(last, first);
    }
};

} // namespace

TEST_F(HandicapComputation, NoScoresLeaveNoHandicapAndDisableTheCalculator)
{
    Exec(db(), QStringLiteral("UPDATE HandicapLog SET Handicap = 12.3"));
    choose(last, first);

    ComputeHandicap();

    EXPECT_TRUE(record().isEmpty());
    expectNoHandicap();
    EXPECT_TRUE(gender.asked.isEmpty());
}

TEST_F(HandicapComputation, FourScoresGiveNoHandicapAndEveryRoundStaysUnused)
{
    const QVector<qint64> ids = addEighteens(QDate(2026, 2, 1), {12.0, 8.1, 15.5, 9.9});
    // Marks left from an earlier run must not survive either.
    Exec(db(), QStringLiteral("UPDATE ScoreLog SET Used = 'Y' WHERE ScoreIndex = ?"), {ids[1]});

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(rows[i].scoreIndex, ids[i]);
        EXPECT_EQ(rows[i].used, QStringLiteral("N"));
        EXPECT_EQ(mark(ids[i]), (LogMark{QStringLiteral("N"), 1}));
    }
    expectNoHandicap();
}

TEST_F(HandicapComputation, FiveScoresOfTenAndAboveUseOnlyTheLowest)
{
    const QVector<qint64> ids = addEighteens(QDate(2026, 2, 1), {14.3, 11.2, 10.0, 10.5, 17.8});

    ComputeHandicap();

    EXPECT_EQ(usedColumn(), (QStringList{"N", "N", "Y", "N", "N"}));
    QStringList recordUsed;
    for (const RecordRow &r : record())
        recordUsed << r.used;
    EXPECT_EQ(recordUsed, (QStringList{"N", "N", "Y", "N", "N"}));
    // 10.0 x 0.96 = 9.6
    expectHandicap(9.6, QStringLiteral("Handicap: 9.6"));
    EXPECT_EQ(AverageDifferentials(), 9.6f);
}

TEST_F(HandicapComputation, LowestOfNinePointTwoIsCutToEightPointEight)
{
    addFiveWithLowest(9.2);

    ComputeHandicap();

    // 9.2 x 0.96 = 8.832, cut and not rounded.
    expectHandicap(8.8, QStringLiteral("Handicap: 8.8"));
}

TEST_F(HandicapComputation, ProductOfExactlyTwelveShowsTwelvePointZero)
{
    addFiveWithLowest(12.5);

    ComputeHandicap();

    expectHandicap(12.0, QStringLiteral("Handicap: 12.0"));
}

TEST_F(HandicapComputation, ProductBelowOneShowsNoLeadingZero)
{
    addFiveWithLowest(0.5);

    ComputeHandicap();

    // 0.5 x 0.96 = 0.48
    expectHandicap(0.4, QStringLiteral("Handicap: .4"));
}

TEST_F(HandicapComputation, AverageOfSeveralDifferentialsIsCutNotRounded)
{
    // Seven scores: the two lowest count.  (7.4 + 7.7) / 2 x 0.96 = 7.248.
    addEighteens(QDate(2026, 1, 5), {7.7, 20.0, 18.2, 7.4, 9.0, 30.1, 11.1});

    ComputeHandicap();

    EXPECT_EQ(usedColumn(), (QStringList{"Y", "N", "N", "Y", "N", "N", "N"}));
    expectHandicap(7.2, QStringLiteral("Handicap: 7.2"));
}

TEST_F(HandicapComputation, NegativeAverageIsCutTowardZero)
{
    addFiveWithLowest(-1.3);

    ComputeHandicap();

    // -1.3 x 0.96 = -1.248
    expectHandicap(-1.2, QStringLiteral("Handicap: -1.2"));
}

TEST_F(HandicapComputation, SmallNegativeAverageShowsNoLeadingZero)
{
    addFiveWithLowest(-0.4);

    ComputeHandicap();

    // -0.4 x 0.96 = -0.384
    expectHandicap(-0.3, QStringLiteral("Handicap: -.3"));
}

TEST_F(HandicapComputation, DifferentialsThatCancelGiveZeroInEitherOrder)
{
    // Seven scores: the two lowest, -0.1 and 0.1, count.  Their single-precision sum leaves a
    // remainder near 1E-09, which must read as zero and not as the digits of its exponent form.
    addEighteens(QDate(2026, 1, 5), {-0.1, 20.0, 18.2, 0.1, 9.0, 30.1, 11.1});
    ComputeHandicap();
    EXPECT_EQ(usedColumn(), (QStringList{"Y", "N", "N", "Y", "N", "N", "N"}));
    expectHandicap(0.0, QStringLiteral("Handicap: .0"));

    Exec(db(), QStringLiteral(
                   "UPDATE ScoreLog SET Differential = -Differential WHERE Differential IN (-0.1, 0.1)"));
    ComputeHandicap();
    expectHandicap(0.0, QStringLiteral("Handicap: .0"));
}

TEST_F(HandicapComputation, ManAboveTheCapGetsThirtySixPointFour)
{
    addFiveWithLowest(38.1); // 36.576 -> 36.5

    ComputeHandicap();

    expectHandicap(36.4, QStringLiteral("Handicap: 36.4"));
}

TEST_F(HandicapComputation, ManAtExactlyTheCapKeepsThirtySixPointFour)
{
    addFiveWithLowest(38.0); // 36.48 -> 36.4

    ComputeHandicap();

    expectHandicap(36.4, QStringLiteral("Handicap: 36.4"));
}

TEST_F(HandicapComputation, ManJustBelowTheCapKeepsHisIndex)
{
    addFiveWithLowest(37.9); // 36.384 -> 36.3

    ComputeHandicap();

    expectHandicap(36.3, QStringLiteral("Handicap: 36.3"));
}

TEST_F(HandicapComputation, WomanAboveHerCapGetsFortyPointFour)
{
    setGender(QStringLiteral("F"));
    addFiveWithLowest(42.2); // 40.512 -> 40.5

    ComputeHandicap();

    expectHandicap(40.4, QStringLiteral("Handicap: 40.4"));
}

TEST_F(HandicapComputation, WomanAtThirtyEightKeepsIt)
{
    setGender(QStringLiteral("F"));
    addFiveWithLowest(39.6); // 38.016 -> 38.0

    ComputeHandicap();

    expectHandicap(38.0, QStringLiteral("Handicap: 38.0"));
}

TEST_F(HandicapComputation, WomanAtExactlyHerCapKeepsFortyPointFour)
{
    setGender(QStringLiteral("F"));
    addFiveWithLowest(42.1); // 40.416 -> 40.4

    ComputeHandicap();

    expectHandicap(40.4, QStringLiteral("Handicap: 40.4"));
}

TEST_F(HandicapComputation, GenderOtherThanCapitalFIsCappedAsAMan)
{
    for (const QString &g : {QStringLiteral("f"), QStringLiteral("W")}) {
        SCOPED_TRACE(g.toStdString());
        Exec(db(), QStringLiteral("DELETE FROM ScoreLog"));
        setGender(g);
        addFiveWithLowest(39.6); // 38.016 -> 38.0, above the 36.4 of everybody but "F"

        ComputeHandicap();

        expectHandicap(36.4, QStringLiteral("Handicap: 36.4"));
        EXPECT_EQ(storedGender().toString(), g);
    }
    EXPECT_TRUE(gender.asked.isEmpty());
}

TEST_F(HandicapComputation, NullGenderIsAskedOnceWhenFiveScoresAreReached)
{
    setGender(QVariant());
    gender.answer = QStringLiteral("F");
    addEighteens(QDate(2026, 4, 1), {39.6, 41.0, 42.5, 44.0});

    ComputeHandicap(); // four scores: nobody asks
    EXPECT_TRUE(gender.asked.isEmpty());
    EXPECT_TRUE(storedGender().isNull());
    expectNoHandicap();

    add(round(QDate(2026, 4, 9), 45.0));
    ComputeHandicap();
    ASSERT_EQ(gender.asked.size(), 1);
    EXPECT_EQ(gender.asked[0], first + QLatin1Char(' ') + last);
    EXPECT_EQ(storedGender().toString(), QStringLiteral("F"));
    expectHandicap(38.0, QStringLiteral("Handicap: 38.0")); // a woman's cap

    // The stored answer stands from now on; a different answer would show in the cap.
    gender.answer = QStringLiteral("M");
    add(round(QDate(2026, 4, 10), 46.0));
    ComputeHandicap();
    EXPECT_EQ(gender.asked.size(), 1);
    EXPECT_EQ(storedGender().toString(), QStringLiteral("F"));
    expectHandicap(38.0, QStringLiteral("Handicap: 38.0"));
}

TEST_F(HandicapComputation, GolferWithFewerThanFiveScoresIsNeverAskedHisGender)
{
    setGender(QVariant());
    addEighteens(QDate(2026, 4, 1), {10.0, 11.0});
    ComputeHandicap();
    add(round(QDate(2026, 4, 5), 12.0));
    add(round(QDate(2026, 4, 6), 13.0, QStringLiteral("9-holes (front)")));
    add(round(QDate(2026, 4, 7), 14.0, QStringLiteral("9-holes (back)")));
    ComputeHandicap(); // four scores, one of them combined

    EXPECT_EQ(record().size(), 4);
    EXPECT_TRUE(gender.asked.isEmpty());
    EXPECT_TRUE(storedGender().isNull());
    expectNoHandicap();
}

TEST_F(HandicapComputation, TwentyFiveScoresCannotOccur)
{
    QVector<double> diffs;
    for (int i = 0; i < 25; ++i)
        diffs << 10.0 + (i * 7 % 25) / 2.0; // 25 distinct values, in no order
    const QVector<qint64> ids = addEighteens(QDate(2025, 6, 1), diffs);

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 20);
    EXPECT_EQ(rows.front().scoreIndex, ids[5]);
    EXPECT_EQ(rows.back().scoreIndex, ids[24]);
    int used = 0;
    for (const RecordRow &r : rows)
        used += r.used == QLatin1String("Y");
    EXPECT_EQ(used, 10);
    EXPECT_EQ(usedColumn().count(QStringLiteral("Y")), 10);
    // The five oldest rounds stand outside the record and are never marked.
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(mark(ids[i]), (LogMark{QStringLiteral("N"), 1}));
}

TEST_F(HandicapComputation, DifferentialsUsedFollowsTheTable)
{
    const QVector<int> expected = {0, 0, 0, 0, 0, 1, 1, 2,  2,  3,  3,  4,  4,
                                   5, 5, 6, 6, 7, 8, 9, 10, 10, 10, 10, 10, 10};
    for (int scores = 0; scores < expected.size(); ++scores)
        EXPECT_EQ(DifferentialsUsed(scores), expected[scores]) << scores << " scores";
}

TEST_F(HandicapComputation, PublishingAValueStoresItAndEnablesTheCalculator)
{
    PublishHandicap(14.2f);

    expectHandicap(14.2, QStringLiteral("Handicap: 14.2"));

    PublishHandicap(kNoHandicap);

    expectNoHandicap();
}

TEST_F(HandicapComputation, RunningSumIsRoundedToSingleAfterEachAdditionInDateOrder)
{
    // Seven scores, two count: -4.4 and 11.9, true average 3.75, times 0.96 exactly 3.6.
    // Oldest first: single(-4.4) + 11.9 = 7.49999990... rounds to the single 7.5 -> 3.6.
    addEighteens(QDate(2026, 1, 5), {-4.4, 11.9, 20.0, 21.0, 22.0, 23.0, 24.0});
    ComputeHandicap();
    expectHandicap(3.6, QStringLiteral("Handicap: 3.6"));

    // The other way round: single(11.9) - 4.4 = 7.49999961... rounds to the single
    // just below 7.5, and the cut gives 3.5.
    Exec(db(), QStringLiteral("DELETE FROM ScoreLog"));
    addEighteens(QDate(2026, 1, 5), {11.9, -4.4, 20.0, 21.0, 22.0, 23.0, 24.0});
    ComputeHandicap();
    expectHandicap(3.5, QStringLiteral("Handicap: 3.5"));
}
