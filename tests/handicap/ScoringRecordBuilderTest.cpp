#include "handicap/ScoringRecordBuilder.h"

#include "TestPrinting.h"

#include <gtest/gtest.h>

using namespace quillon;

namespace {

LogRound round(qint64 index, const QString &date, const QString &holes = QStringLiteral("18-holes"),
               const QVariant &type = QStringLiteral("A"), double differential = 10.0)
{
    LogRound r;
    r.scoreIndex = index;
    r.lastName = QStringLiteral("Palmer");
    r.firstName = QStringLiteral("Arnold");
    r.courseName = QStringLiteral("Pebble Creek");
    r.date = date;
    r.holes = holes;
    r.type = type;
    r.adjustedScore = qlonglong(45);
    r.rating = 35.7;
    r.slope = qlonglong(124);
    r.differential = differential;
    r.used = QStringLiteral("N");
    r.combinedIndex = qlonglong(1);
    return r;
}

const QString kFront = QStringLiteral("9-holes (front)");
const QString kBack = QStringLiteral("9-holes (back)");

QVector<qint64> indexes(const QVector<RecordRow> &rows)
{
    QVector<qint64> out;
    for (const RecordRow &r : rows)
        out << r.scoreIndex;
    return out;
}

} // namespace

TEST(ScoringRecordBuilder, CombinedRowAddsTheTwoRoundsAndTakesThePartnersDateAndIndex)
{
    LogRound older = round(7, QStringLiteral("2026-03-05"), kFront, QStringLiteral("H"), 4.1);
    older.lastName = QStringLiteral("O'Brien");
    older.firstName = QStringLiteral("Seán");
    older.adjustedScore = qlonglong(44);
    older.rating = 35.7;
    older.slope = qlonglong(124);
    LogRound later = round(9, QStringLiteral("2026-03-12"), kBack, QStringLiteral("H"), 4.2);
    later.adjustedScore = qlonglong(47);
    later.rating = 35.8;
    later.slope = qlonglong(125);

    const QVector<RecordRow> rows = ScoringRecordBuilder().build({older, later});
    ASSERT_EQ(rows.size(), 1);
    const RecordRow &c = rows.at(0);
    EXPECT_EQ(c.lastName, QStringLiteral("O'Brien"));
    EXPECT_EQ(c.firstName, QStringLiteral("Seán"));
    EXPECT_EQ(c.courseName, QStringLiteral("Combined"));
    EXPECT_EQ(c.date, QStringLiteral("2026-03-12"));
    EXPECT_EQ(c.scoreIndex, 9);
    EXPECT_EQ(c.combinedIndex.toLongLong(), 7);
    EXPECT_EQ(c.score.toLongLong(), 91);
    EXPECT_EQ(c.rating.toDouble(), 71.5);
    EXPECT_EQ(c.slope.toLongLong(), 124);      // 124.5 truncated
    EXPECT_EQ(c.differential.toDouble(), 8.3); // not 8.299999999999999
    EXPECT_EQ(c.used, QStringLiteral("N"));
    EXPECT_EQ(c.details, QStringLiteral("Combined 9-hole rounds from 3/5/2026 and 3/12/2026"));
}

TEST(ScoringRecordBuilder, EighteenHoleRowCopiesTheRoundAndWritesNoCombinedIndex)
{
    LogRound r = round(3, QStringLiteral("2026-02-01"));
    r.adjustedScore = qlonglong(88);
    r.rating = 71.2;
    r.slope = qlonglong(125);
    r.differential = 15.2;
    const QVector<RecordRow> rows = ScoringRecordBuilder().build({r});
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.at(0).courseName, QStringLiteral("Pebble Creek"));
    EXPECT_TRUE(rows.at(0).combinedIndex.isNull());
    EXPECT_EQ(rows.at(0).score.toLongLong(), 88);
    EXPECT_EQ(rows.at(0).rating.toDouble(), 71.2);
    EXPECT_EQ(rows.at(0).slope.toLongLong(), 125);
    EXPECT_EQ(rows.at(0).differential.toDouble(), 15.2);
    EXPECT_FALSE(rows.at(0).details.isNull());
    EXPECT_TRUE(rows.at(0).details.isEmpty());
}

TEST(ScoringRecordBuilder, MakingRoomDropsTheOldestAndOfOneDateTheFirstEntered)
{
    QVector<LogRound> walk;
    walk << round(5, QStringLiteral("2026-01-01")) << round(4, QStringLiteral("2026-01-01"));
    // the walk comes by Date, then ScoreIndex
    std::swap(walk[0], walk[1]);
    for (int i = 0; i < 19; ++i)
        walk << round(10 + i, QStringLiteral("2026-02-%1").arg(i + 1, 2, 10, QLatin1Char('0')));
    const QVector<RecordRow> rows = ScoringRecordBuilder().build(walk);
    ASSERT_EQ(rows.size(), 20);
    EXPECT_FALSE(indexes(rows).contains(4));
    EXPECT_TRUE(indexes(rows).contains(5));
    // rows keep the order in which they entered
    EXPECT_EQ(rows.first().scoreIndex, 5);
    EXPECT_EQ(rows.last().scoreIndex, 28);
}

TEST(ScoringRecordBuilder, APairPushedOutFreesItsRoundsForALaterPartner)
{
    QVector<LogRound> walk;
    walk << round(1, QStringLiteral("2026-01-01"), kFront) << round(2, QStringLiteral("2026-01-02"), kFront);
    for (int i = 0; i < 20; ++i)
        walk << round(10 + i, QStringLiteral("2026-02-%1").arg(i + 1, 2, 10, QLatin1Char('0')));
    walk << round(40, QStringLiteral("2026-03-01"), kBack);
    const QVector<RecordRow> rows = ScoringRecordBuilder().build(walk);
    ASSERT_EQ(rows.size(), 20);
    // the pair (1, 2) gave way to the twentieth 18-hole round; 40 then pairs with 1, the oldest free one
    EXPECT_EQ(rows.last().scoreIndex, 1);
    EXPECT_EQ(rows.last().combinedIndex.toLongLong(), 40);
}

TEST(ScoringRecordBuilder, RoundsHeldByAnotherGolfersRowAreTaken)
{
    const QVector<LogRound> walk = {round(1, QStringLiteral("2026-01-01"), kFront),
                                    round(2, QStringLiteral("2026-01-02"), kFront),
                                    round(3, QStringLiteral("2026-01-03"), kBack)};
    const QVector<RecordRow> rows = ScoringRecordBuilder({2}).build(walk);
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows.at(0).combinedIndex.toLongLong(), 1);
    EXPECT_EQ(rows.at(0).scoreIndex, 3);
}

TEST(ScoringRecordBuilder, TypesMeetAsTheDatabaseComparesThemAndNullNeverPairs)
{
    const QVector<LogRound> walk = {
        round(1, QStringLiteral("2026-01-01"), kFront, QVariant()),
        round(2, QStringLiteral("2026-01-02"), kFront, QVariant()),
        round(3, QStringLiteral("2026-01-03"), kFront, QStringLiteral("t")),
        round(4, QStringLiteral("2026-01-04"), kBack, QStringLiteral("T")),
        round(5, QStringLiteral("2026-01-05"), kFront, QStringLiteral("")),
        round(6, QStringLiteral("2026-01-06"), kBack, QStringLiteral("")),
    };
    const QVector<RecordRow> rows = ScoringRecordBuilder().build(walk);
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows.at(0).scoreIndex, 4);
    EXPECT_EQ(rows.at(0).combinedIndex.toLongLong(), 3);
    EXPECT_EQ(rows.at(1).scoreIndex, 6);
    EXPECT_EQ(rows.at(1).combinedIndex.toLongLong(), 5);
}

TEST(ScoringRecordBuilder, NullValuesOfAPairStayNull)
{
    LogRound a = round(1, QStringLiteral("2026-01-01"), kFront);
    LogRound b = round(2, QStringLiteral("2026-01-02"), kBack);
    a.rating = QVariant();
    b.slope = QVariant();
    const QVector<RecordRow> rows = ScoringRecordBuilder().build({a, b});
    ASSERT_EQ(rows.size(), 1);
    EXPECT_TRUE(rows.at(0).rating.isNull());
    EXPECT_TRUE(rows.at(0).slope.isNull());
    EXPECT_EQ(rows.at(0).differential.toDouble(), 20.0);
}
