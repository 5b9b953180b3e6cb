// Marking the lowest differentials in the scoring record and carrying the marks to the score log.
#include "HandicapRulesTest.h"
#include "handicap/Handicap.h"

using namespace quillon;
using namespace quillon::test;

namespace {

class UsedMarks : public HandicapRulesTest {
protected:
    Recordset recordsByDate()
    {
        return Query(db(),
                     QStringLiteral("SELECT * FROM ScoringRecord WHERE LastName = ? AND FirstName = ? "
                                    "ORDER BY Date, ScoreIndex"),
                     {last, first});
    }
    QStringList recordUsed()
    {
        QStringList used;
        for (const RecordRow &r : record())
            used << r.used;
        return used;
    }
};

} // namespace

TEST_F(UsedMarks, SixScoresMarkOnlyTheSevenPointZero)
{
    const QVector<qint64> ids = addEighteens(QDate(2026, 3, 1), {10.0, 9.0, 8.0, 7.0, 11.0, 12.0});

    ComputeHandicap();

    EXPECT_EQ(recordUsed(), (QStringList{"N", "N", "N", "Y", "N", "N"}));
    EXPECT_EQ(usedColumn(), (QStringList{"N", "N", "N", "Y", "N", "N"}));
    EXPECT_EQ(mark(ids[3]), (LogMark{QStringLiteral("Y"), 1}));
    // 7.0 x 0.96 = 6.72
    expectHandicap(6.7, QStringLiteral("Handicap: 6.7"));
}

TEST_F(UsedMarks, TwelveEqualDifferentialsMarkTheTenNewest)
{
    const QSet<int> fifteens = {0, 1, 3, 4, 6, 8, 9, 11, 13, 15, 17, 19};
    QVector<double> diffs;
    double other = 16.0;
    for (int i = 0; i < 20; ++i)
        diffs << (fifteens.contains(i) ? 15.0 : other++);
    const QVector<qint64> ids = addEighteens(QDate(2026, 1, 10), diffs);

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 20);
    for (int i = 0; i < 20; ++i) {
        // The two oldest rows of the value, days 0 and 1, stay out.
        const QString used = fifteens.contains(i) && i > 1 ? QStringLiteral("Y") : QStringLiteral("N");
        EXPECT_EQ(mark(ids[i]), (LogMark{used, 1})) << i;
        EXPECT_EQ(rows[i].used, used) << i;
    }
    // 15.0 x 0.96 = 14.4
    expectHandicap(14.4, QStringLiteral("Handicap: 14.4"));
}

TEST_F(UsedMarks, EqualDifferentialsOnOneDayMarkTheLaterScoreIndexFirst)
{
    const qint64 a = add(round(QDate(2026, 2, 1), 8.0));
    const qint64 b = add(round(QDate(2026, 2, 1), 8.0));
    addEighteens(QDate(2026, 2, 2), {9.0, 10.0, 11.0});

    ComputeHandicap(); // five scores, one counts

    EXPECT_EQ(mark(a), (LogMark{QStringLiteral("N"), 1}));
    EXPECT_EQ(mark(b), (LogMark{QStringLiteral("Y"), 1}));
    EXPECT_EQ(recordUsed(), (QStringList{"N", "Y", "N", "N", "N"}));
}

TEST_F(UsedMarks, UsedCombinedRowMarksBothNineHoleRoundsWithEachOther)
{
    const qint64 r0 = add(round(QDate(2026, 4, 1), 20.0));
    const RoundSpec a = round(QDate(2026, 4, 2), 3.0, QStringLiteral("9-holes (front)"), QStringLiteral("H"));
    const qint64 ia = add(a);
    const RoundSpec b = round(QDate(2026, 4, 3), 3.5, QStringLiteral("9-holes (back)"), QStringLiteral("H"));
    const qint64 ib = add(b);
    const QVector<qint64> later = addEighteens(QDate(2026, 4, 4), {22.0, 21.0, 23.0});

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 5);
    EXPECT_EQ(rows[1], combinedRow(a, ia, b, ib, QStringLiteral("Y")));
    EXPECT_EQ(mark(ia), (LogMark{QStringLiteral("C"), ib}));
    EXPECT_EQ(mark(ib), (LogMark{QStringLiteral("C"), ia}));
    EXPECT_EQ(mark(r0), (LogMark{QStringLiteral("N"), 1}));
    for (qint64 id : later)
        EXPECT_EQ(mark(id), (LogMark{QStringLiteral("N"), 1}));
    // 6.5 x 0.96 = 6.24
    expectHandicap(6.2, QStringLiteral("Handicap: 6.2"));
}

TEST_F(UsedMarks, CombinedRowNotAmongTheLowestLeavesItsRoundsUnused)
{
    add(round(QDate(2026, 4, 1), 20.0));
    const RoundSpec a =
        round(QDate(2026, 4, 2), 15.0, QStringLiteral("9-holes (front)"), QStringLiteral("H"));
    const qint64 ia = add(a);
    const RoundSpec b = round(QDate(2026, 4, 3), 15.0, QStringLiteral("9-holes (back)"), QStringLiteral("H"));
    const qint64 ib = add(b);
    // Left over from a run in which the pair was used.
    Exec(db(), QStringLiteral("UPDATE ScoreLog SET Used = 'C', CombinedIndex = ? WHERE ScoreIndex = ?"),
         {ib, ia});
    Exec(db(), QStringLiteral("UPDATE ScoreLog SET Used = 'C', CombinedIndex = ? WHERE ScoreIndex = ?"),
         {ia, ib});
    const QVector<qint64> later = addEighteens(QDate(2026, 4, 4), {18.0, 21.0, 23.0});

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 5);
    EXPECT_EQ(rows[1], combinedRow(a, ia, b, ib));
    EXPECT_EQ(mark(ia), (LogMark{QStringLiteral("N"), 1}));
    EXPECT_EQ(mark(ib), (LogMark{QStringLiteral("N"), 1}));
    EXPECT_EQ(mark(later[0]), (LogMark{QStringLiteral("Y"), 1}));
    // 18.0 x 0.96 = 17.28
    expectHandicap(17.2, QStringLiteral("Handicap: 17.2"));
}

TEST_F(UsedMarks, NegativeDifferentialIsMarkedLikeAnyOther)
{
    const QVector<qint64> ids = addEighteens(QDate(2026, 5, 1), {-2.3, 5.0, -0.5, 8.0, 3.1, 12.0, 10.4});

    ComputeHandicap(); // seven scores, two count

    EXPECT_EQ(usedColumn(), (QStringList{"Y", "N", "Y", "N", "N", "N", "N"}));
    EXPECT_EQ(record()[0].differential, -2.3);
    // (-2.3 - 0.5) / 2 x 0.96 = -1.344
    expectHandicap(-1.3, QStringLiteral("Handicap: -1.3"));
}

TEST_F(UsedMarks, OnlyNegativeDifferentialsEnterAndLeaveTheLowest)
{
    // The scan's maximum starts at -1000, below every one of these.
    const QVector<qint64> ids =
        addEighteens(QDate(2026, 5, 1), {-5.5, -3.2, -6.1, -1.0, -4.4, -2.2, -7.0, -0.1, -3.3});

    ComputeHandicap(); // nine scores, three count: -7.0, -6.1, -5.5

    EXPECT_EQ(usedColumn(), (QStringList{"Y", "N", "Y", "N", "N", "N", "Y", "N", "N"}));
    // -18.6 / 3 x 0.96 = -5.952
    expectHandicap(-5.9, QStringLiteral("Handicap: -5.9"));
}

TEST_F(UsedMarks, EmptyRecordsWithACountSayErrorComputingHandicap)
{
    const qint64 id = add(round(QDate(2026, 6, 1), 10.0));
    qint16 count = 3;
    Recordset empty = recordsByDate();
    ASSERT_TRUE(empty.isEmpty());

    MarkUsedScores(count, empty);

    expectOneMessage(QStringLiteral("Error computing handicap."), MsgIcon::Critical);
    EXPECT_EQ(mark(id), (LogMark{QStringLiteral("N"), 1}));
    EXPECT_TRUE(record().isEmpty());
}

TEST_F(UsedMarks, CountZeroMarksNothingAndACountMarksThatMany)
{
    const QVector<qint64> ids = addEighteens(QDate(2026, 6, 1), {12.0, 9.5, 14.0, 9.4, 20.0});
    BuildScoringRecord();
    EXPECT_EQ(recordUsed(), (QStringList{"N", "N", "N", "N", "N"}));

    qint16 none = 0;
    Recordset records = recordsByDate();
    MarkUsedScores(none, records);
    EXPECT_EQ(recordUsed(), (QStringList{"N", "N", "N", "N", "N"}));
    EXPECT_EQ(usedColumn(), (QStringList{"N", "N", "N", "N", "N"}));

    qint16 two = 2;
    records = recordsByDate();
    MarkUsedScores(two, records);
    EXPECT_EQ(recordUsed(), (QStringList{"N", "Y", "N", "Y", "N"}));
    EXPECT_EQ(usedColumn(), (QStringList{"N", "Y", "N", "Y", "N"}));
    // (9.5 + 9.4) / 2 x 0.96 = 9.072
    EXPECT_EQ(AverageDifferentials(), 9.0f);
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST_F(UsedMarks, ValueThatMatchesNoRowIsLeftOutOfTheAverage)
{
    // An old database may hold a differential with the noise of single precision:
    // its text "8.8" then compares unequal to the stored column.
    const QVector<qint64> ids = addEighteens(QDate(2026, 7, 1), {12.0, 9.0, 13.0, 14.0, 15.0, 16.0, 17.0});
    const double noisy = static_cast<double>(8.8f);
    ASSERT_NE(noisy, 8.8);
    Exec(db(), QStringLiteral("UPDATE ScoreLog SET Differential = ? WHERE ScoreIndex = ?"), {noisy, ids[0]});

    ComputeHandicap(); // seven scores: 8.8 and 9.0 are the two lowest, only 9.0 is found

    EXPECT_EQ(usedColumn(), (QStringList{"N", "Y", "N", "N", "N", "N", "N"}));
    EXPECT_EQ(record()[0].used, QStringLiteral("N"));
    // 9.0 / 1 x 0.96 = 8.64
    expectHandicap(8.6, QStringLiteral("Handicap: 8.6"));
    EXPECT_TRUE(app.platform().messages().isEmpty());
}
