// Building the scoring record: the period, the walk, the pairing of 9-hole rounds
// and the limit of twenty rows.
#include "HandicapRulesTest.h"
#include "handicap/Handicap.h"

using namespace quillon;
using namespace quillon::test;

namespace {

const QString kFront = QStringLiteral("9-holes (front)");
const QString kBack = QStringLiteral("9-holes (back)");

class ScoringRecordBuild : public HandicapRulesTest {
protected:
    struct Added {
        RoundSpec played;
        qint64 index;
    };
    Added addNine(const QDate &date, double differential, const QString &type = QStringLiteral("A"),
                  const QString &holes = kFront)
    {
        const RoundSpec r = round(date, differential, holes, type);
        return {r, add(r)};
    }
    Added addEighteen(const QDate &date, double differential)
    {
        const RoundSpec r = round(date, differential);
        return {r, add(r)};
    }
    RecordRow combined(const Added &older, const Added &partner, const QString &used = QStringLiteral("N"))
    {
        return combinedRow(older.played, older.index, partner.played, partner.index, used);
    }
    RecordRow eighteen(const Added &a, const QString &used = QStringLiteral("N"))
    {
        return eighteenRow(a.played, a.index, used);
    }
};

} // namespace

TEST_F(ScoringRecordBuild, OnlyExcludedRoundsLeaveTheRecordEmpty)
{
    RoundSpec a = round(QDate(2026, 1, 3), 12.0);
    a.used = QStringLiteral("E");
    const qint64 ia = add(a);
    RoundSpec b = round(QDate(2026, 1, 4), 11.0, kFront);
    b.used = QStringLiteral("E");
    const qint64 ib = add(b);
    Exec(db(), QStringLiteral("UPDATE ScoreLog SET CombinedIndex = 77 WHERE ScoreIndex = ?"), {ib});

    ComputeHandicap();

    EXPECT_TRUE(record().isEmpty());
    EXPECT_EQ(mark(ia), (LogMark{QStringLiteral("E"), 1}));
    EXPECT_EQ(mark(ib), (LogMark{QStringLiteral("E"), 77}));
    expectNoHandicap();
}

TEST_F(ScoringRecordBuild, TenNineHoleRoundsWithoutEighteensMakeFiveCombinedRows)
{
    // Spread over years: with no 18-hole round every round is in the period.
    QVector<Added> nines;
    const QVector<QDate> dates = {
        QDate(2019, 5, 1),  QDate(2020, 7, 2), QDate(2021, 8, 3), QDate(2022, 9, 4),  QDate(2023, 1, 5),
        QDate(2023, 12, 6), QDate(2024, 2, 7), QDate(2025, 3, 8), QDate(2025, 10, 9), QDate(2026, 11, 10)};
    const QVector<double> diffs = {6.1, 5.0, 3.3, 4.4, 8.0, 5.5, 6.6, 4.1, 9.9, 5.2};
    for (int i = 0; i < 10; ++i)
        nines << addNine(dates[i], diffs[i], QStringLiteral("H"), i % 2 ? kBack : kFront);

    ComputeHandicap();

    // Five scores: the lowest combined differential, 3.3 + 4.4 = 7.7, counts.
    const QVector<RecordRow> expected = {combined(nines[0], nines[1]), combined(nines[2], nines[3], "Y"),
                                         combined(nines[4], nines[5]), combined(nines[6], nines[7]),
                                         combined(nines[8], nines[9])};
    EXPECT_EQ(record(), expected);
    EXPECT_EQ(expected[1].differential, 7.7);
    EXPECT_EQ(expected[0].details,
              std::optional<QString>(QStringLiteral("Combined 9-hole rounds from 5/1/2019 and 7/2/2020")));
    EXPECT_EQ(mark(nines[2].index), (LogMark{QStringLiteral("C"), nines[3].index}));
    EXPECT_EQ(mark(nines[3].index), (LogMark{QStringLiteral("C"), nines[2].index}));
    for (int i : {0, 1, 4, 5, 6, 7, 8, 9})
        EXPECT_EQ(mark(nines[i].index), (LogMark{QStringLiteral("N"), 1})) << i;
    // 7.7 x 0.96 = 7.392
    expectHandicap(7.3, QStringLiteral("Handicap: 7.3"));
}

TEST_F(ScoringRecordBuild, ThreeNineHoleRoundsPairTheFirstTwoAndLeaveTheThird)
{
    const Added a = addNine(QDate(2026, 5, 1), 4.2, QStringLiteral("T"));
    const Added b = addNine(QDate(2026, 5, 8), 5.1, QStringLiteral("T"), kBack);
    const Added c = addNine(QDate(2026, 5, 15), 3.3, QStringLiteral("T"));

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0], combined(a, b));
    EXPECT_EQ(rows[0].date, QDate(2026, 5, 8));
    EXPECT_EQ(rows[0].scoreIndex, b.index);
    EXPECT_EQ(rows[0].combinedIndex, std::optional<qint64>(a.index));
    EXPECT_EQ(rows[0].score, 90);
    EXPECT_EQ(rows[0].differential, 9.3);
    for (const Added &x : {a, b, c})
        EXPECT_EQ(mark(x.index), (LogMark{QStringLiteral("N"), 1}));
}

TEST_F(ScoringRecordBuild, NineHoleRoundsOfDifferentTypeDoNotCombine)
{
    addNine(QDate(2026, 5, 1), 4.2, QStringLiteral("H"));
    addNine(QDate(2026, 5, 2), 5.1, QStringLiteral("A"), kBack);
    addNine(QDate(2026, 5, 3), 5.1, QStringLiteral("T"), kBack);

    ComputeHandicap();

    EXPECT_TRUE(record().isEmpty());
}

TEST_F(ScoringRecordBuild, NineHoleRoundWithoutTypeNeverPairs)
{
    const Added a = addNine(QDate(2026, 5, 1), 4.2, QString());
    const Added b = addNine(QDate(2026, 5, 2), 5.1, QString(), kBack);
    const Added c = addNine(QDate(2026, 5, 3), 6.0, QStringLiteral("H"));
    const Added d = addNine(QDate(2026, 5, 4), 6.5, QStringLiteral("H"));

    ComputeHandicap();

    EXPECT_EQ(record(), QVector<RecordRow>{combined(c, d)});
    EXPECT_EQ(mark(a.index), (LogMark{QStringLiteral("N"), 1}));
    EXPECT_EQ(mark(b.index), (LogMark{QStringLiteral("N"), 1}));
}

TEST_F(ScoringRecordBuild, FrontNinePairsWithFrontNine)
{
    const Added a = addNine(QDate(2026, 6, 1), 4.0, QStringLiteral("A"), kFront);
    const Added b = addNine(QDate(2026, 6, 2), 4.5, QStringLiteral("A"), kFront);

    ComputeHandicap();

    EXPECT_EQ(record(), QVector<RecordRow>{combined(a, b)});
}

TEST_F(ScoringRecordBuild, NineHoleRoundOlderThanTheTwentiethEighteenIsOutsideThePeriod)
{
    const Added old = addNine(QDate(2025, 12, 31), 4.0);
    QVector<Added> eighteens;
    for (int i = 0; i < 20; ++i)
        eighteens << addEighteen(QDate(2026, 1, 1).addDays(i), 10.0 + i);
    const Added late = addNine(QDate(2026, 3, 1), 4.4);

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 20);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(rows[i], eighteen(eighteens[i], i < 10 ? "Y" : "N")) << i;
    EXPECT_EQ(mark(old.index), (LogMark{QStringLiteral("N"), 1}));
    EXPECT_EQ(mark(late.index), (LogMark{QStringLiteral("N"), 1}));
}

TEST_F(ScoringRecordBuild, ThirtyEighteenHoleRoundsKeepTheNewestTwenty)
{
    QVector<Added> eighteens;
    for (int i = 0; i < 30; ++i)
        eighteens << addEighteen(QDate(2025, 3, 1).addDays(3 * i), 30.0 - i * 0.5);
    // A 9-hole pair before the 20th most recent round is outside the period.
    addNine(QDate(2025, 3, 2), 1.0, QStringLiteral("H"));
    addNine(QDate(2025, 3, 3), 1.0, QStringLiteral("H"));

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 20);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(rows[i], eighteen(eighteens[10 + i], i >= 10 ? "Y" : "N")) << i;
    EXPECT_EQ(rows.front().date, eighteens[10].played.date);
}

TEST_F(ScoringRecordBuild, TwoNewerNineHoleRoundsPushOutTheOldestOfTwentyEighteens)
{
    QVector<Added> eighteens;
    for (int i = 0; i < 20; ++i)
        eighteens << addEighteen(QDate(2026, 1, 1).addDays(i), 20.0 - i * 0.3);
    const Added a = addNine(QDate(2026, 2, 1), 6.0, QStringLiteral("T"));
    const Added b = addNine(QDate(2026, 2, 2), 6.2, QStringLiteral("T"), kBack);

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 20);
    EXPECT_EQ(rows.front().scoreIndex, eighteens[1].index);
    EXPECT_EQ(rows.back(), combined(a, b, "Y")); // 12.2 is the lowest
    EXPECT_EQ(mark(eighteens[0].index), (LogMark{QStringLiteral("N"), 1}));
    EXPECT_EQ(mark(a.index), (LogMark{QStringLiteral("C"), b.index}));
    EXPECT_EQ(mark(b.index), (LogMark{QStringLiteral("C"), a.index}));
}

TEST_F(ScoringRecordBuild, CombinedRowPushedOutFreesItsRoundsForALaterPairing)
{
    // A and B are walked before R0 on the same first day, so their combined row
    // entered the record first and is the first to leave it.
    const Added a = addNine(QDate(2026, 1, 1), 3.0, QStringLiteral("T"));
    const Added b = addNine(QDate(2026, 1, 1), 3.5, QStringLiteral("T"), kBack);
    const Added r0 = addEighteen(QDate(2026, 1, 1), 25.0);
    QVector<Added> eighteens;
    for (int i = 0; i < 18; ++i)
        eighteens << addEighteen(QDate(2026, 1, 2).addDays(i), 20.0 + i * 0.1);
    // A home pair fills the twentieth place: the record is full and A+B goes.
    const Added p = addNine(QDate(2026, 1, 20), 8.0, QStringLiteral("H"));
    const Added q = addNine(QDate(2026, 1, 21), 8.4, QStringLiteral("H"));
    // C finds A free again: the oldest candidate.  R0 makes room for it.
    const Added c = addNine(QDate(2026, 1, 22), 4.0, QStringLiteral("T"));

    ComputeHandicap();

    QVector<RecordRow> expected;
    // Partner A carries the row's date and ScoreIndex; C, the round walked, is its CombinedIndex.
    expected << combined(c, a, "Y");
    for (int i = 0; i < 18; ++i)
        expected << eighteen(eighteens[i], i < 8 ? "Y" : "N");
    expected << combined(p, q, "Y");
    EXPECT_EQ(record(), expected);
    EXPECT_EQ(expected.front().details,
              std::optional<QString>(QStringLiteral("Combined 9-hole rounds from 1/22/2026 and 1/1/2026")));
    EXPECT_EQ(mark(a.index), (LogMark{QStringLiteral("C"), c.index}));
    EXPECT_EQ(mark(c.index), (LogMark{QStringLiteral("C"), a.index}));
    EXPECT_EQ(mark(b.index), (LogMark{QStringLiteral("N"), 1}));
    EXPECT_EQ(mark(r0.index), (LogMark{QStringLiteral("N"), 1}));
}

TEST_F(ScoringRecordBuild, SlopesOneThirteenAndOneTwentyCombineToOneSixteen)
{
    RoundSpec a = round(QDate(2026, 7, 1), 4.0, kFront);
    a.slope = 113;
    a.rating = 35.1;
    a.adjusted = 44;
    RoundSpec b = round(QDate(2026, 7, 2), 5.3, kBack);
    b.slope = 120;
    b.rating = 35.2;
    b.adjusted = 47;
    const qint64 ia = add(a);
    const qint64 ib = add(b);

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0], combinedRow(a, ia, b, ib));
    EXPECT_EQ(rows[0].slope, 116);
    EXPECT_EQ(rows[0].score, 91);
    EXPECT_EQ(rows[0].rating, 70.3);
    EXPECT_EQ(rows[0].differential, 9.3);
}

TEST_F(ScoringRecordBuild, CombinedRowIsDatedOnTheLaterRound)
{
    // The oldest 18-hole round opens the period.
    const Added r0 = addEighteen(QDate(2026, 7, 31), 16.0);
    const Added a = addNine(QDate(2026, 8, 1), 5.0);
    const Added r = addEighteen(QDate(2026, 8, 2), 15.0);
    const Added b = addNine(QDate(2026, 8, 3), 5.5, QStringLiteral("A"), kBack);

    ComputeHandicap();

    EXPECT_EQ(record(), (QVector<RecordRow>{eighteen(r0), eighteen(r), combined(a, b)}));
    const QStringList byDate = columnValues(
        db(),
        QStringLiteral(
            "SELECT CourseName FROM ScoringRecord WHERE LastName = ? AND FirstName = ? ORDER BY Date"),
        {last, first});
    EXPECT_EQ(byDate, (QStringList{"Pebble Creek", "Pebble Creek", "Combined"}));
}

TEST_F(ScoringRecordBuild, EveryRunStartsFromNothing)
{
    const Added r = addEighteen(QDate(2026, 8, 31), 15.0);
    const Added a = addNine(QDate(2026, 9, 1), 5.0);
    const Added b = addNine(QDate(2026, 9, 2), 5.5, QStringLiteral("A"), kBack);
    // Marks and rows of an earlier state of the log.
    Exec(db(), QStringLiteral("UPDATE ScoreLog SET Used = 'C', CombinedIndex = 999 WHERE ScoreIndex = ?"),
         {a.index});
    Exec(db(), QStringLiteral("UPDATE ScoreLog SET Used = 'Y', CombinedIndex = 0 WHERE ScoreIndex = ?"),
         {r.index});
    Exec(db(),
         QStringLiteral(
             "INSERT INTO ScoringRecord (LastName, FirstName, CourseName, Date, ScoreIndex, Score, Rating, "
             "Slope, Differential, Used, Details) VALUES (?, ?, 'Gone', '2026-09-01', 4242, 80, 70, 113, "
             "3.0, 'Y', '')"),
         {last, first});

    ComputeHandicap();

    EXPECT_EQ(record(), (QVector<RecordRow>{eighteen(r), combined(a, b)}));
    for (const Added &x : {a, b, r})
        EXPECT_EQ(mark(x.index), (LogMark{QStringLiteral("N"), 1}));
}
