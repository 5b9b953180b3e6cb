// What one run may touch: the current golfer's rows only, whatever the names hold,
// and the messages it gives when the golfer's handicap row is missing.
#include "GolferLedger.h"
#include "HandicapRulesTest.h"
#include "handicap/Handicap.h"

using namespace quillon;
using namespace quillon::test;

namespace {

class HandicapRun : public HandicapRulesTest {};

} // namespace

TEST_F(HandicapRun, MissingHandicapRecordIsReportedAndThePanelStillSet)
{
    choose(QStringLiteral("Nobody"), QStringLiteral("Known"));
    const QVector<qint64> ids = addEighteens(QDate(2026, 2, 1), {10.0, 11.0, 12.0});

    ComputeHandicap();

    expectOneMessage(QStringLiteral("Database Error: Unable to locate golfer's handicap record."),
                     MsgIcon::Exclamation);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: (not calculated)"));
    EXPECT_EQ(display.calculatorEnabled, std::optional<bool>(false));
    EXPECT_EQ(record().size(), 3);
    EXPECT_EQ(Scalar(db(), QStringLiteral("SELECT COUNT(*) FROM HandicapLog")).toInt(), 1);
    EXPECT_EQ(Scalar(db(), QStringLiteral("SELECT Handicap FROM HandicapLog")).toDouble(), -1000.0);
}

TEST_F(HandicapRun, PublishingWithoutAHandicapRecordStillShowsTheValue)
{
    choose(QStringLiteral("Nobody"), QStringLiteral("Known"));

    PublishHandicap(8.8f);

    expectOneMessage(QStringLiteral("Database Error: Unable to locate golfer's handicap record."),
                     MsgIcon::Exclamation);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 8.8"));
    EXPECT_EQ(display.calculatorEnabled, std::optional<bool>(true));
    EXPECT_EQ(Scalar(db(), QStringLiteral("SELECT COUNT(*) FROM HandicapLog")).toInt(), 1);
}

TEST_F(HandicapRun, OtherGolfersRowsAreUntouched)
{
    // Jack has rounds that would pair with, or tie with, Arnold's if a statement forgot whose rows it reads.
    const QString jackLast = QStringLiteral("Nicklaus");
    const QString jackFirst = QStringLiteral("Jack");
    addGolfer(db(), jackLast, jackFirst, QStringLiteral("M"), 4.2);
    RoundSpec j = round(QDate(2026, 3, 1), 7.0);
    j.last = jackLast;
    j.first = jackFirst;
    for (int i = 0; i < 6; ++i) {
        j.date = QDate(2026, 3, 1).addDays(i);
        j.differential = 7.0 + i;
        addRound(db(), j);
    }
    j.holes = QStringLiteral("9-holes (front)");
    j.date = QDate(2026, 3, 3);
    addRound(db(), j);
    j.used = QStringLiteral("E");
    addRound(db(), j);
    choose(jackLast, jackFirst);
    ComputeHandicap();
    ASSERT_EQ(record().size(), 6);
    const QStringList jackBefore = GolferRows(db(), jackLast, jackFirst);

    choose(QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addEighteens(QDate(2026, 3, 1), {7.0, 8.0, 9.0, 10.0, 11.0});
    add(round(QDate(2026, 3, 4), 2.0, QStringLiteral("9-holes (back)")));
    ComputeHandicap();

    EXPECT_EQ(record().size(), 5);
    EXPECT_EQ(usedColumn(), (QStringList{"Y", "N", "N", "N", "N", "N"}));
    EXPECT_EQ(GolferRows(db(), jackLast, jackFirst), jackBefore);
    expectHandicap(6.7, QStringLiteral("Handicap: 6.7"));
}

TEST_F(HandicapRun, ExcludedRoundsSurviveEveryRun)
{
    RoundSpec e1 = round(QDate(2026, 5, 1), 1.0);
    e1.used = QStringLiteral("E");
    const qint64 i1 = add(e1);
    RoundSpec e2 = round(QDate(2026, 5, 2), 1.5, QStringLiteral("9-holes (front)"));
    e2.used = QStringLiteral("E");
    const qint64 i2 = add(e2);
    Exec(db(), QStringLiteral("UPDATE ScoreLog SET CombinedIndex = 31 WHERE ScoreIndex = ?"), {i2});
    addEighteens(QDate(2026, 5, 3), {10.0, 11.0, 12.0, 13.0, 14.0});
    add(round(QDate(2026, 5, 8), 2.0, QStringLiteral("9-holes (back)")));

    ComputeHandicap();
    ComputeHandicap();

    EXPECT_EQ(mark(i1), (LogMark{QStringLiteral("E"), 1}));
    EXPECT_EQ(mark(i2), (LogMark{QStringLiteral("E"), 31}));
    for (const RecordRow &r : record()) {
        EXPECT_NE(r.scoreIndex, i1);
        EXPECT_NE(r.scoreIndex, i2);
        EXPECT_NE(r.combinedIndex, std::optional<qint64>(i2));
    }
    // The excluded 1.0 is not the lowest: 10.0 is.
    expectHandicap(9.6, QStringLiteral("Handicap: 9.6"));
}

TEST_F(HandicapRun, ApostropheInTheGolfersNameWorks)
{
    addGolfer(db(), QStringLiteral("O'Brien"), QStringLiteral("D'Arcy"), QString());
    choose(QStringLiteral("O'Brien"), QStringLiteral("D'Arcy"));
    gender.answer = QStringLiteral("F");
    RoundSpec r = round(QDate(2026, 6, 1), 12.0);
    r.course = QStringLiteral("St. Andrew's");
    const qint64 first18 = add(r);
    addEighteens(QDate(2026, 6, 2), {13.0, 14.0, 15.0});
    const RoundSpec a = round(QDate(2026, 6, 6), 4.0, QStringLiteral("9-holes (front)"), QStringLiteral("T"));
    const qint64 ia = add(a);
    const RoundSpec b = round(QDate(2026, 6, 7), 4.1, QStringLiteral("9-holes (back)"), QStringLiteral("T"));
    const qint64 ib = add(b);

    ComputeHandicap();

    const QVector<RecordRow> rows = record();
    ASSERT_EQ(rows.size(), 5);
    EXPECT_EQ(rows.front(), eighteenRow(r, first18));
    EXPECT_EQ(rows.back(), combinedRow(a, ia, b, ib, QStringLiteral("Y")));
    EXPECT_EQ(mark(ia), (LogMark{QStringLiteral("C"), ib}));
    EXPECT_EQ(mark(ib), (LogMark{QStringLiteral("C"), ia}));
    ASSERT_EQ(gender.asked.size(), 1);
    EXPECT_EQ(gender.asked[0], QStringLiteral("D'Arcy") + QLatin1Char(' ') + QStringLiteral("O'Brien"));
    EXPECT_EQ(storedGender().toString(), QStringLiteral("F"));
    // 8.1 x 0.96 = 7.776
    expectHandicap(7.7, QStringLiteral("Handicap: 7.7"));
}

TEST_F(HandicapRun, HeldScoreLogShowsTheNewMarks)
{
    const QVector<qint64> ids = addEighteens(QDate(2026, 2, 1), {10.0, 9.0, 11.0, 12.0, 13.0});
    choose(last, first); // the held rows are read before the run, all "N"
    int requeried = 0;
    QObject::connect(basLogGlobals().gScoreLog.get(), &HeldRecordset::requeried, [&] { ++requeried; });

    ComputeHandicap();

    EXPECT_GE(requeried, 1);
    QStringList held;
    for (const QSqlRecord &row : basLogGlobals().gScoreLog->rows().rows())
        held << row.value(QStringLiteral("Used")).toString();
    EXPECT_EQ(held, (QStringList{"N", "Y", "N", "N", "N"}));
}
