#include "FrameFixture.h"
#include "TestPrinting.h"
#include "score/ScoreDelete.h"
#include "store/DatabaseError.h"
#include "views/frmScoreLog.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QTableView>

using namespace quillon;
using namespace quillon::test;

namespace {

// Every row of the tables a deletion could touch, for comparing before and after.
QStringList allRows(Connection &c)
{
    QStringList out;
    for (const char *table : {"ScoreLog", "ScoreDetails", "ScoringRecord", "HandicapLog", "CourseLog"}) {
        const QString name = QLatin1String(table);
        for (const QString &row :
             columnValues(c, QStringLiteral("SELECT * FROM %1 ORDER BY rowid").arg(name)))
            out << name + QLatin1Char(':') + row;
    }
    return out;
}

int rowsOfRound(Connection &c, const char *table, qint64 scoreIndex)
{
    return Scalar(c, QStringLiteral("SELECT COUNT(*) FROM %1 WHERE ScoreIndex = ?").arg(QLatin1String(table)),
                  {scoreIndex})
        .toInt();
}

const QVector<int> kNine = {4, 5, 3, 6, 4, 5, 3, 4, 6};
const QVector<int> kNinePars = {4, 4, 3, 5, 4, 4, 3, 4, 5};

// A round with nine hole rows.
qint64 addDetailedRound(Connection &c, RoundSpec r)
{
    r.details = true;
    const qint64 index = addRound(c, r);
    addHoleScores(c, r, index, 1, kNine, kNinePars);
    return index;
}

void addRecordRow(Connection &c, const RoundSpec &r, qint64 scoreIndex, const QVariant &combinedIndex = {})
{
    Exec(c,
         QStringLiteral("INSERT INTO ScoringRecord (LastName, FirstName, CourseName, Date, ScoreIndex, "
                        "CombinedIndex, Score, Rating, Slope, Differential, Used, Details) "
                        "VALUES (?, ?, ?, ?, ?, ?, 90, 71.5, 125, 16.6, 'N', '')"),
         {r.last, r.first, r.course, r.date.toString(Qt::ISODate), scoreIndex, combinedIndex});
}

} // namespace

// --- the rows of one round -------------------------------------------------------------------

TEST(DeleteScoreRows, RemovesTheRoundsHoleRecordAndLogRowsAndNothingElse)
{
    TestApp app;
    RoundSpec mine;
    const qint64 gone = addDetailedRound(app.db(), mine);
    addRecordRow(app.db(), mine, gone);
    RoundSpec later = mine;
    later.date = QDate(2026, 2, 1);
    const qint64 kept = addDetailedRound(app.db(), later);
    addRecordRow(app.db(), later, kept);
    // Another golfer's round on the same course, tees and day.
    RoundSpec other = mine;
    other.last = QStringLiteral("Nicklaus");
    other.first = QStringLiteral("Jack");
    const qint64 others = addDetailedRound(app.db(), other);
    addRecordRow(app.db(), other, others);

    DeleteScoreRows(app.db(), mine.last, mine.first, gone, mine.date, mine.course, mine.tees);

    for (const char *table : {"ScoreLog", "ScoreDetails", "ScoringRecord"}) {
        SCOPED_TRACE(table);
        EXPECT_EQ(rowsOfRound(app.db(), table, gone), 0);
        EXPECT_EQ(rowsOfRound(app.db(), table, kept), table == QLatin1String("ScoreDetails") ? 9 : 1);
        EXPECT_EQ(rowsOfRound(app.db(), table, others), table == QLatin1String("ScoreDetails") ? 9 : 1);
    }
}

TEST(DeleteScoreRows, NamesWithApostrophesMatch)
{
    TestApp app;
    RoundSpec r;
    r.last = QStringLiteral("O'Brien");
    r.first = QStringLiteral("D'Arcy");
    r.course = QStringLiteral("St. Andrew's");
    r.tees = QStringLiteral("Men's");
    const qint64 index = addDetailedRound(app.db(), r);
    addRecordRow(app.db(), r, index);

    DeleteScoreRows(app.db(), r.last, r.first, index, r.date, r.course, r.tees);

    EXPECT_EQ(rowsOfRound(app.db(), "ScoreLog", index), 0);
    EXPECT_EQ(rowsOfRound(app.db(), "ScoreDetails", index), 0);
    EXPECT_EQ(rowsOfRound(app.db(), "ScoringRecord", index), 0);
}

TEST(DeleteScoreRows, CombinedRowHoldingTheRoundAsPartnerStays)
{
    TestApp app;
    RoundSpec front;
    front.holes = QStringLiteral("9-holes (front)");
    const qint64 first = addRound(app.db(), front);
    RoundSpec back = front;
    back.holes = QStringLiteral("9-holes (back)");
    back.date = QDate(2026, 1, 8);
    const qint64 second = addRound(app.db(), back);
    // The pair's row is filed under the later round, the earlier one is its partner.
    addRecordRow(app.db(), back, second, first);

    DeleteScoreRows(app.db(), front.last, front.first, first, front.date, front.course, front.tees);

    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT ScoreIndex, CombinedIndex FROM ScoringRecord")),
              QStringList{QStringLiteral("%1|%2").arg(second).arg(first)});
    EXPECT_EQ(rowsOfRound(app.db(), "ScoreLog", first), 0);
}

TEST(DeleteScoreRows, FailureRemovesNothing)
{
    TestApp app;
    RoundSpec r;
    const qint64 index = addDetailedRound(app.db(), r);
    addRecordRow(app.db(), r, index);
    Exec(app.db(),
         QStringLiteral("CREATE TRIGGER t BEFORE DELETE ON ScoreLog BEGIN SELECT RAISE(ABORT, 'kept'); END"));
    const QStringList before = allRows(app.db());

    EXPECT_EQ(
        errorNumberOf([&] { DeleteScoreRows(app.db(), r.last, r.first, index, r.date, r.course, r.tees); }),
        kEngineErrorBase + engine::Constraint);

    EXPECT_EQ(allRows(app.db()), before);
    EXPECT_EQ(rowsOfRound(app.db(), "ScoreDetails", index), 9);
}

// --- the command -----------------------------------------------------------------------------

namespace {

class DeleteScore : public FrameFixture {
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        addCourse(app.db());
    }
    frmScoreLog *log() const
    {
        return qobject_cast<frmScoreLog *>(frame->views().loaded(QStringLiteral("frmScoreLog")));
    }
    QTableView *grid() const { return findControl<QTableView>(log(), QStringLiteral("DBGrid1")); }
    QLabel *message() const { return findControl<QLabel>(log(), QStringLiteral("lblMessage")); }
    // Select the log's row of a round.
    void select(qint64 scoreIndex)
    {
        ASSERT_NE(log(), nullptr);
        for (int r = 0; r < grid()->model()->rowCount(); ++r) {
            log()->selectRow(r);
            if (log()->selectedValue(QStringLiteral("ScoreIndex")).toLongLong() == scoreIndex)
                return;
        }
        FAIL() << "round " << scoreIndex << " not in the log";
    }
    // Run a delete item with the question answered; what was shown comes back.
    QVector<ShownMessage> deleteWith(MsgAnswer answer, const char *menuItem = "mnuDeleteScore")
    {
        app.platform().answer(answer);
        item(QLatin1String(menuItem))->trigger();
        return app.platform().takeMessages();
    }
    QStringList loggedRounds()
    {
        return columnValues(app.db(), QStringLiteral("SELECT ScoreIndex FROM ScoreLog ORDER BY ScoreIndex"));
    }
    // ScoreIndex|Used of the golfer's rounds, oldest first.
    QStringList usedMarks()
    {
        return columnValues(app.db(),
                            QStringLiteral("SELECT ScoreIndex, Used FROM ScoreLog WHERE LastName = 'Palmer' "
                                           "ORDER BY Date"));
    }
    QVariant storedHandicap()
    {
        return Scalar(app.db(),
                      QStringLiteral("SELECT Handicap FROM HandicapLog WHERE LastName = 'Palmer' AND "
                                     "FirstName = 'Arnold'"));
    }
    QStringList indexes(const QVector<qint64> &all) const
    {
        QStringList out;
        for (const qint64 i : all)
            out << QString::number(i);
        return out;
    }
    static void expectQuestion(const QVector<ShownMessage> &shown)
    {
        ASSERT_EQ(shown.size(), 1);
        EXPECT_EQ(shown[0].text, QStringLiteral("Are you sure you want to delete the selected score?"));
        EXPECT_EQ(shown[0].icon, MsgIcon::Question);
        EXPECT_EQ(shown[0].title, QStringLiteral("Delete Score"));
        EXPECT_EQ(shown[0].buttons, MsgButtons::YesNo);
        EXPECT_EQ(shown[0].defaultButton, MsgAnswer::No);
    }
};

} // namespace

TEST_F(DeleteScore, AsksWhetherTheSelectedScoreShouldGoWithNoAsTheDefault)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addRound(app.db(), RoundSpec{});
    startWithPalmer();

    expectQuestion(deleteWith(MsgAnswer::No));
}

TEST_F(DeleteScore, AnsweringNoLeavesEveryTableAsItWas)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addWeeklyRounds(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"), QDate(2026, 1, 1),
                    {14.0, 12.5, 20.1, 11.0, 16.3, 18.0});
    RoundSpec detailed;
    detailed.date = QDate(2026, 3, 1);
    const qint64 index = addDetailedRound(app.db(), detailed);
    startWithPalmer();
    select(index);
    const QStringList before = allRows(app.db());
    ASSERT_EQ(rowsOfRound(app.db(), "ScoringRecord", index), 1);

    expectQuestion(deleteWith(MsgAnswer::No));

    EXPECT_EQ(allRows(app.db()), before);
    EXPECT_EQ(grid()->model()->rowCount(), 7);
}

TEST_F(DeleteScore, YesRemovesTheSelectedRoundOnlyAndSelectsTheFirstRow)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addGolfer(app.db(), QStringLiteral("Nicklaus"), QStringLiteral("Jack"));
    RoundSpec r;
    const qint64 first = addDetailedRound(app.db(), r);
    r.date = QDate(2026, 2, 1);
    const qint64 second = addDetailedRound(app.db(), r);
    r.date = QDate(2026, 3, 1);
    const qint64 third = addDetailedRound(app.db(), r);
    RoundSpec jack = r;
    jack.last = QStringLiteral("Nicklaus");
    jack.first = QStringLiteral("Jack");
    jack.date = QDate(2026, 2, 1); // the same day, course and tees as the one that goes
    const qint64 jacks = addDetailedRound(app.db(), jack);
    addRecordRow(app.db(), jack, jacks);
    startWithPalmer();
    ASSERT_EQ(rowsOfRound(app.db(), "ScoringRecord", second), 1);
    select(second);
    ASSERT_EQ(log()->selectedRow(), 1);

    expectQuestion(deleteWith(MsgAnswer::Yes));

    EXPECT_EQ(loggedRounds(), indexes({first, third, jacks}));
    EXPECT_EQ(rowsOfRound(app.db(), "ScoreDetails", second), 0);
    EXPECT_EQ(rowsOfRound(app.db(), "ScoringRecord", second), 0);
    for (const qint64 kept : {first, third, jacks})
        EXPECT_EQ(rowsOfRound(app.db(), "ScoreDetails", kept), 9) << kept;
    EXPECT_EQ(rowsOfRound(app.db(), "ScoringRecord", jacks), 1);
    // The log shows what is left, newest first, with its first row selected.
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
    ASSERT_EQ(grid()->model()->rowCount(), 2);
    EXPECT_EQ(log()->selectedRow(), 0);
    EXPECT_EQ(log()->selectedValue(QStringLiteral("ScoreIndex")).toLongLong(), third);
}

TEST_F(DeleteScore, PopupItemDeletesTheSelectedRoundToo)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    RoundSpec r;
    const qint64 first = addDetailedRound(app.db(), r);
    r.date = QDate(2026, 2, 1);
    const qint64 second = addDetailedRound(app.db(), r);
    startWithPalmer();
    select(first);

    expectQuestion(deleteWith(MsgAnswer::Yes, "mnuSLDeleteScore"));

    EXPECT_EQ(loggedRounds(), indexes({second}));
    EXPECT_EQ(rowsOfRound(app.db(), "ScoreDetails", first), 0);
    EXPECT_EQ(rowsOfRound(app.db(), "ScoreDetails", second), 9);
    EXPECT_EQ(grid()->model()->rowCount(), 1);
}

TEST_F(DeleteScore, NamesWithApostrophesAreDeleted)
{
    addCourse(app.db(), CourseSpec{QStringLiteral("St. Andrew's"), QStringLiteral("Men's")});
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"));
    RoundSpec r;
    r.last = QStringLiteral("O'Brien");
    r.first = QStringLiteral("Pat");
    r.course = QStringLiteral("St. Andrew's");
    r.tees = QStringLiteral("Men's");
    const qint64 gone = addDetailedRound(app.db(), r);
    r.date = QDate(2026, 2, 1);
    const qint64 kept = addDetailedRound(app.db(), r);
    chooseGolfer(QStringLiteral("O'Brien, Pat"));
    select(gone);

    expectQuestion(deleteWith(MsgAnswer::Yes));

    EXPECT_EQ(loggedRounds(), indexes({kept}));
    EXPECT_EQ(rowsOfRound(app.db(), "ScoreDetails", gone), 0);
    EXPECT_EQ(rowsOfRound(app.db(), "ScoreDetails", kept), 9);
}

TEST_F(DeleteScore, DeletingTheFifthScoreLeavesNoHandicap)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addWeeklyRounds(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"), QDate(2026, 1, 1),
                    {10.0, 11.0, 12.0, 13.0, 14.0});
    startWithPalmer();
    // Five scores: the lowest counts, 10.0 x 0.96 = 9.6.
    ASSERT_EQ(storedHandicap().toDouble(), 9.6);
    ASSERT_EQ(panelText(QStringLiteral("Handicap")), QStringLiteral("Handicap: 9.6"));

    expectQuestion(deleteWith(MsgAnswer::Yes));

    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreLog")).toInt(), 4);
    EXPECT_EQ(storedHandicap().toDouble(), -1000.0);
    EXPECT_EQ(panelText(QStringLiteral("Handicap")), QStringLiteral("Handicap: (not calculated)"));
}

TEST_F(DeleteScore, DeletingAUsedScoreLetsTheNextLowestDifferentialTakeItsPlace)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addWeeklyRounds(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"), QDate(2026, 1, 1),
                    {14.0, 12.5, 20.1, 11.0, 16.3, 18.0});
    const QStringList rounds = columnValues(
        app.db(), QStringLiteral("SELECT ScoreIndex FROM ScoreLog WHERE LastName = 'Palmer' ORDER BY Date"));
    ASSERT_EQ(rounds.size(), 6);
    startWithPalmer();
    // Six scores: one counts, the fourth round's 11.0; 11.0 x 0.96 = 10.56.
    const auto mark = [&rounds](int i, const char *used) { return rounds[i] + QLatin1Char('|') + used; };
    ASSERT_EQ(usedMarks(), (QStringList{mark(0, "N"), mark(1, "N"), mark(2, "N"), mark(3, "Y"), mark(4, "N"),
                                        mark(5, "N")}));
    ASSERT_EQ(panelText(QStringLiteral("Handicap")), QStringLiteral("Handicap: 10.5"));
    select(rounds[3].toLongLong());

    expectQuestion(deleteWith(MsgAnswer::Yes));

    // Five scores left: one still counts, now the second round's 12.5; 12.5 x 0.96 = 12.0.
    EXPECT_EQ(usedMarks(),
              (QStringList{mark(0, "N"), mark(1, "Y"), mark(2, "N"), mark(4, "N"), mark(5, "N")}));
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT ScoreIndex FROM ScoringRecord WHERE Used = 'Y'")),
              QStringList{rounds[1]});
    EXPECT_EQ(storedHandicap().toDouble(), 12.0);
    EXPECT_EQ(panelText(QStringLiteral("Handicap")), QStringLiteral("Handicap: 12.0"));
    // The grid reads the new marks.
    const int usedColumn = 12;
    QStringList shown;
    for (int r = 0; r < grid()->model()->rowCount(); ++r)
        shown << grid()->model()->index(r, usedColumn).data().toString();
    EXPECT_EQ(shown, (QStringList{"N", "N", "N", "Y", "N"}));
}

TEST_F(DeleteScore, DeletingTheOnlyRowShowsTheEmptyLog)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    const qint64 only = addDetailedRound(app.db(), RoundSpec{});
    startWithPalmer();
    ASSERT_TRUE(grid()->isVisible());
    ASSERT_TRUE(enabled(QStringLiteral("mnuDeleteScore")));

    expectQuestion(deleteWith(MsgAnswer::Yes));

    EXPECT_EQ(rowsOfRound(app.db(), "ScoreLog", only), 0);
    EXPECT_EQ(rowsOfRound(app.db(), "ScoreDetails", only), 0);
    EXPECT_TRUE(message()->isVisible());
    EXPECT_EQ(message()->text(), QStringLiteral("(No scores have been entered)"));
    EXPECT_FALSE(grid()->isVisible());
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    // Nothing left to delete.
    EXPECT_FALSE(enabled(QStringLiteral("mnuDeleteScore")));
    EXPECT_FALSE(enabled(QStringLiteral("mnuSLDeleteScore")));
}

TEST_F(DeleteScore, FailureIsReportedAndLeavesTheRoundWhole)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    const qint64 index = addDetailedRound(app.db(), RoundSpec{});
    startWithPalmer();
    Exec(app.db(),
         QStringLiteral("CREATE TRIGGER t BEFORE DELETE ON ScoreLog BEGIN SELECT RAISE(ABORT, 'kept'); END"));
    const QStringList before = allRows(app.db());

    const QVector<ShownMessage> shown = deleteWith(MsgAnswer::Yes);

    ASSERT_EQ(shown.size(), 2);
    expectQuestion({shown[0]});
    EXPECT_EQ(shown[1].text, QStringLiteral("Error %1: kept").arg(kEngineErrorBase + engine::Constraint));
    EXPECT_EQ(shown[1].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[1].title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(shown[1].buttons, MsgButtons::OK);
    EXPECT_EQ(rowsOfRound(app.db(), "ScoreDetails", index), 9);
    EXPECT_EQ(allRows(app.db()), before);
    // The program goes on: the log still offers the round.
    EXPECT_EQ(grid()->model()->rowCount(), 1);
    EXPECT_TRUE(enabled(QStringLiteral("mnuDeleteScore")));
}

TEST_F(DeleteScore, ItemIsOfferedOnlyWhenTheLogHasRows)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addGolfer(app.db(), QStringLiteral("Nicklaus"), QStringLiteral("Jack"));
    addRound(app.db(), RoundSpec{});
    startWithPalmer();
    EXPECT_TRUE(enabled(QStringLiteral("mnuDeleteScore")));
    EXPECT_TRUE(enabled(QStringLiteral("mnuSLDeleteScore")));

    chooseGolfer(QStringLiteral("Nicklaus, Jack"));

    EXPECT_FALSE(enabled(QStringLiteral("mnuDeleteScore")));
    EXPECT_FALSE(enabled(QStringLiteral("mnuSLDeleteScore")));
}

TEST_F(DeleteScore, NothingSelectedAsksNothingAndDeletesNothing)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addRound(app.db(), RoundSpec{});
    startWithPalmer();
    grid()->selectionModel()->clear();
    ASSERT_EQ(log()->selectedRow(), -1);
    const QStringList before = allRows(app.db());

    EXPECT_TRUE(deleteWith(MsgAnswer::Yes).isEmpty());

    EXPECT_EQ(allRows(app.db()), before);
}
