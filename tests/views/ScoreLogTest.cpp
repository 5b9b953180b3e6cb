#include "FrameFixture.h"
#include "views/ScoreLogQuery.h"
#include "views/frmScoreLog.h"

#include <QHeaderView>
#include <QLabel>
#include <QMdiArea>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

TEST(ScoreLogQuery, SortOrderTogglesOnTheSameHeadingAndStartsAscendingOnANewOne)
{
    EXPECT_EQ(NextSortOrder(QStringLiteral("Date DESC"), QStringLiteral("Date")), QStringLiteral("Date ASC"));
    EXPECT_EQ(NextSortOrder(QStringLiteral("Date ASC"), QStringLiteral("Date")), QStringLiteral("Date DESC"));
    EXPECT_EQ(NextSortOrder(QStringLiteral("date asc"), QStringLiteral("Date")), QStringLiteral("Date DESC"));
    EXPECT_EQ(NextSortOrder(QStringLiteral("Date ASC"), QStringLiteral("Tees")), QStringLiteral("Tees ASC"));
}

TEST(ScoreLogQuery, OnlyTheEightColumnsSort)
{
    QStringList sorts;
    for (int c = 0; c < 18; ++c)
        sorts << ScoreLogSortColumn(c);
    EXPECT_EQ(sorts, (QStringList{"", "", "Coursename", "Tees", "Date", "", "Holes", "AdjustedScore",
                                  "Rating", "Slope", "", "Differential", "", "", "", "", "", ""}));
}

TEST(ScoreLogQuery, StatementsOfTheThreeSelections)
{
    SqlStatement s = ScoreLogStatement("O'Brien", "Pat", ScoreLogSelection::All, 2026, "Date DESC");
    EXPECT_EQ(s.sql,
              QStringLiteral("SELECT * FROM ScoreLog WHERE LastName = ? AND FirstName = ? ORDER BY Date "
                             "DESC, ScoreIndex DESC"));
    EXPECT_EQ(s.params, (Params{"O'Brien", "Pat"}));
    s = ScoreLogStatement("O'Brien", "Pat", ScoreLogSelection::Used, 2026, "Tees ASC");
    EXPECT_TRUE(s.sql.contains(QStringLiteral("AND (Used='Y' OR Used='C') ORDER BY Tees ASC, ScoreIndex")));
    s = ScoreLogStatement("O'Brien", "Pat", ScoreLogSelection::CurrentYear, 2026, QString());
    EXPECT_TRUE(s.sql.endsWith(QStringLiteral("AND Date>=?")));
    EXPECT_EQ(s.params.value(2).toString(), QStringLiteral("2026-01-01"));
}

TEST(ScoreLogQuery, ColumnsCaptionsFormatsAndHiddenOnes)
{
    const auto columns = ScoreLogColumns(true);
    ASSERT_EQ(columns.size(), 18);
    QStringList captions, hidden;
    for (const GridColumn &c : columns) {
        captions << c.header;
        if (c.hidden)
            hidden << c.field;
    }
    EXPECT_EQ(captions,
              (QStringList{"LastName", "FirstName", "Course", "Tees", "Date", "ScoreIndex", "Holes",
                           "Adj. Score", "Course Rating", "Slope Rating", "Type", "Differential", "Used",
                           "Penalties", "LostBalls", "Bunkers", "SandSaves", "AttemptedSaves"}));
    EXPECT_EQ(hidden, (QStringList{"LastName", "FirstName", "ScoreIndex"}));
    EXPECT_EQ(columns[8].format(QVariant(71.0)), QStringLiteral("71.0"));
    EXPECT_EQ(columns[11].format(QVariant(0.4)), QStringLiteral(".4"));
    const auto plain = ScoreLogColumns(false);
    EXPECT_EQ(plain[7].header, QStringLiteral("Score"));
    EXPECT_TRUE(plain[11].hidden && plain[12].hidden);
}

namespace {

class ScoreLog : public FrameFixture {
protected:
    void addRounds(int n, const QString &used = QStringLiteral("N"))
    {
        Transaction t(app.db());
        for (int i = 0; i < n; ++i) {
            RoundSpec r;
            r.last = QStringLiteral("O'Brien");
            r.first = QStringLiteral("Pat");
            r.date = QDate(2025, 6, 1).addDays(i * 40);
            r.course = i % 2 ? QStringLiteral("Augusta") : QStringLiteral("Pebble Creek");
            r.adjusted = 80 + i;
            r.used = used;
            addRound(app.db(), r);
        }
        t.commit();
    }
    void choose()
    {
        addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"));
        chooseGolfer(QStringLiteral("O'Brien, Pat"));
    }
    frmScoreLog *log()
    {
        return qobject_cast<frmScoreLog *>(frame->views().loaded(QStringLiteral("frmScoreLog")));
    }
    QTableView *grid() { return findControl<QTableView>(log(), QStringLiteral("DBGrid1")); }
    QLabel *message() { return findControl<QLabel>(log(), QStringLiteral("lblMessage")); }
    QStringList column(int c)
    {
        QStringList out;
        for (int r = 0; r < grid()->model()->rowCount(); ++r)
            out << grid()->model()->index(r, c).data().toString();
        return out;
    }
    void clickHeading(int c)
    {
        QHeaderView *h = grid()->horizontalHeader();
        QTest::mouseClick(h->viewport(), Qt::LeftButton, {},
                          QPoint(h->sectionViewportPosition(c) + h->sectionSize(c) / 2, h->height() / 2));
    }
};

} // namespace

TEST_F(ScoreLog, NewGolferSeesTheNoScoresTextAndNoGrid)
{
    choose();
    ASSERT_NE(log(), nullptr);
    EXPECT_EQ(log()->windowTitle(), QStringLiteral("Score Log"));
    EXPECT_TRUE(message()->isVisible());
    EXPECT_EQ(message()->text(), QStringLiteral("(No scores have been entered)"));
    EXPECT_FALSE(grid()->isVisible());
    EXPECT_FALSE(findControl<QLabel>(log(), QStringLiteral("lblInstructions"))->isVisible());
}

TEST_F(ScoreLog, RowsShowNewestFirstWithTheirFormats)
{
    addRounds(3);
    choose();
    EXPECT_TRUE(grid()->isVisible());
    EXPECT_FALSE(message()->isVisible());
    EXPECT_EQ(column(4), (QStringList{"8/20/2025", "7/11/2025", "6/1/2025"}));
    EXPECT_EQ(column(8), (QStringList{"71.5", "71.5", "71.5"}));
    EXPECT_EQ(column(10), (QStringList{"A", "A", "A"}));
    EXPECT_TRUE(grid()->isColumnHidden(0) && grid()->isColumnHidden(1) && grid()->isColumnHidden(5));
    EXPECT_EQ(log()->selectedRow(), 0);
}

TEST_F(ScoreLog, DateHeadingClickedTwiceSortsAscendingThenDescending)
{
    addRounds(3);
    choose();
    clickHeading(4);
    EXPECT_EQ(log()->ScoreLogSort(), QStringLiteral("Date ASC"));
    EXPECT_EQ(column(4), (QStringList{"6/1/2025", "7/11/2025", "8/20/2025"}));
    clickHeading(4);
    EXPECT_EQ(log()->ScoreLogSort(), QStringLiteral("Date DESC"));
    EXPECT_EQ(column(4), (QStringList{"8/20/2025", "7/11/2025", "6/1/2025"}));
    clickHeading(2);
    EXPECT_EQ(log()->ScoreLogSort(), QStringLiteral("Coursename ASC"));
    EXPECT_EQ(column(2).first(), QStringLiteral("Augusta"));
    clickHeading(10); // Type: no sort column
    EXPECT_EQ(log()->ScoreLogSort(), QStringLiteral("Coursename ASC"));
}

TEST_F(ScoreLog, SameRowIsSelectedAgainOnReturn)
{
    addRounds(4);
    choose();
    log()->selectRow(2);
    const QString date = log()->selectedValue(QStringLiteral("Date")).toString();
    // A round edited elsewhere, and the view activated again.
    Exec(app.db(), QStringLiteral("UPDATE ScoreLog SET AdjustedScore = 99 WHERE Date = ?"), {date});
    log()->FormActivate();
    EXPECT_EQ(log()->selectedRow(), 2);
    EXPECT_EQ(log()->selectedValue(QStringLiteral("AdjustedScore")).toInt(), 99);
}

TEST_F(ScoreLog, UsedViewWithNoneUsedShowsTheTwoSentences)
{
    // Five rounds, all excluded by the golfer: none can be used.
    addRounds(5, QStringLiteral("E"));
    choose();
    ASSERT_TRUE(enabled("mnuViewUsed"));
    item("mnuViewUsed")->trigger();
    EXPECT_TRUE(item("mnuViewUsed")->isChecked());
    EXPECT_FALSE(item("mnuViewAll")->isChecked());
    EXPECT_EQ(message()->text(),
              QStringLiteral("No scores have been used to calculate your handicap. You must "
                             "record 5 scores to obtain a handicap."));
    EXPECT_FALSE(grid()->isVisible());
    item("mnuViewAll")->trigger();
    EXPECT_TRUE(grid()->isVisible());
    EXPECT_EQ(grid()->model()->rowCount(), 5);
}

TEST_F(ScoreLog, CurrentYearViewTellsTheYearWhenEmpty)
{
    addRounds(2);
    choose();
    item("mnuViewCurrent")->trigger();
    EXPECT_EQ(message()->text(),
              QStringLiteral("No scores have been recorded for 2026.\nSelect View\\View All "
                             "Scores on the Quillon menu to view all recorded scores."));
}

TEST_F(ScoreLog, DoubleClickAndEnterAskForTheDetailsOfTheRow)
{
    addRounds(2);
    choose();
    QSignalSpy spy(log(), &frmScoreLog::scoreDetailsRequested);
    log()->selectRow(1);
    QTest::keyClick(grid(), Qt::Key_Return);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).toString(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(spy.at(0).at(2).toDate(), QDate(2025, 6, 1));
    EXPECT_EQ(spy.at(0).at(4).toInt(), 80);
    const QRect cell = grid()->visualRect(grid()->model()->index(0, 2));
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(grid()->viewport(), Qt::LeftButton, {}, cell.center());
    EXPECT_EQ(spy.count(), 2);
}
