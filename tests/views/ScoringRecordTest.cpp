#include "FrameFixture.h"
#include "store/Encodings.h"
#include "views/frmScoringRecord.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMdiSubWindow>
#include <QTableView>
#include <QTest>

#include <algorithm>

using namespace quillon;
using namespace quillon::test;

TEST(ScoringRecordQuery, StatementBindsTheGolferAndBreaksTiesByScoreIndex)
{
    SqlStatement s =
        ScoringRecordStatement(QStringLiteral("O'Brien"), QStringLiteral("Pat"), QStringLiteral("Date DESC"));
    EXPECT_EQ(s.sql, QStringLiteral("SELECT * FROM ScoringRecord WHERE LastName = ? AND FirstName = ? "
                                    "ORDER BY Date DESC, ScoreIndex DESC"));
    EXPECT_EQ(s.params, (Params{"O'Brien", "Pat"}));
    s = ScoringRecordStatement(QStringLiteral("O'Brien"), QStringLiteral("Pat"), QStringLiteral("Score ASC"));
    EXPECT_TRUE(s.sql.endsWith(QStringLiteral(" ORDER BY Score ASC, ScoreIndex"))) << s.sql.toStdString();
}

TEST(ScoringRecordQuery, OnlyTheSevenColumnsWithASortTextSort)
{
    QStringList sorts;
    for (int c = 0; c < 11; ++c)
        sorts << ScoringRecordSortColumn(c);
    EXPECT_EQ(sorts, (QStringList{"", "", "", "Date", "", "Score", "Rating", "Slope", "Differential", "Used",
                                  "Details"}));
}

TEST(ScoringRecordQuery, ColumnsFieldsAndFormats)
{
    const auto columns = ScoringRecordColumns();
    ASSERT_EQ(columns.size(), 11);
    QStringList fields;
    for (const GridColumn &c : columns)
        fields << c.field;
    EXPECT_EQ(fields, (QStringList{"LastName", "FirstName", "CourseName", "Date", "ScoreIndex", "Score",
                                   "Rating", "Slope", "Differential", "Used", "Details"}));
    EXPECT_EQ(columns[6].format(QVariant(71.0)), QStringLiteral("71.0"));
    EXPECT_EQ(columns[8].format(QVariant(15.25)), QStringLiteral("15.3"));
    EXPECT_EQ(columns[8].format(QVariant(0.4)), QStringLiteral(".4"));
    EXPECT_EQ(columns[3].format(QVariant(QStringLiteral("2025-05-10"))), QStringLiteral("5/10/2025"));
    EXPECT_FALSE(columns[9].format); // the stored letter shows as it is
}

namespace {

// Golfer O'Brien, Pat with four 18-hole rounds and a pair of 9-hole rounds of one type, which
// the handicap run, at the choice of the golfer, turns into a record of five scores:
//   date       course         score  rating  slope  differential  used
//   3/1/2025   Pebble Creek   88     71.0    125    15.25         N
//   4/1/2025   Augusta        80     72.3    131    6.8           N
//   5/10/2025  Combined       89     71.5    125    17.3          N   (5/1 front + 5/10 back)
//   6/1/2025   Cypress        76     70.1    118    0.4           Y   (five scores: the lowest one)
//   7/1/2025   St Andrews     84     72.3    131    11.0          N
class ScoringRecord : public FrameFixture {
protected:
    static RoundSpec round(const QDate &date, const QString &course, int adjusted, double rating, int slope,
                           double differential, const QString &holes = Holes::Eighteen)
    {
        RoundSpec r;
        r.last = QStringLiteral("O'Brien");
        r.first = QStringLiteral("Pat");
        r.date = date;
        r.course = course;
        r.holes = holes;
        r.score = adjusted;
        r.adjusted = adjusted;
        r.rating = rating;
        r.slope = slope;
        r.differential = differential;
        r.type = QStringLiteral("H");
        return r;
    }
    void addRecordRounds()
    {
        Transaction t(app.db());
        pebble = addRound(app.db(), round(QDate(2025, 3, 1), "Pebble Creek", 88, 71.0, 125, 15.25));
        augusta = addRound(app.db(), round(QDate(2025, 4, 1), "Augusta", 80, 72.3, 131, 6.8));
        front = addRound(app.db(),
                         round(QDate(2025, 5, 1), "Pebble Creek", 45, 35.7, 124, 9.1, Holes::FrontNine));
        back = addRound(app.db(), round(QDate(2025, 5, 10), "Cypress", 44, 35.8, 127, 8.2, Holes::BackNine));
        cypress = addRound(app.db(), round(QDate(2025, 6, 1), "Cypress", 76, 70.1, 118, 0.4));
        standrews = addRound(app.db(), round(QDate(2025, 7, 1), "St Andrews", 84, 72.3, 131, 11.0));
        t.commit();
    }
    void choose()
    {
        addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"));
        chooseGolfer(QStringLiteral("O'Brien, Pat"));
    }
    frmScoringRecord *record() const
    {
        return qobject_cast<frmScoringRecord *>(frame->views().loaded(QStringLiteral("frmScoringRecord")));
    }
    QTableView *grid() const { return findControl<QTableView>(record(), QStringLiteral("DBGrid1")); }
    QStringList column(int c) const
    {
        QStringList out;
        for (int r = 0; r < grid()->model()->rowCount(); ++r)
            out << grid()->model()->index(r, c).data().toString();
        return out;
    }
    QStringList courses() const { return column(2); }
    QList<QStringList> allCells() const
    {
        QList<QStringList> out;
        for (int c = 0; c < grid()->model()->columnCount(); ++c)
            out << column(c);
        return out;
    }
    int currentRow() const
    {
        const QModelIndexList rows = grid()->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.first().row() : -1;
    }
    void clickHeading(int c)
    {
        // The grid is wider than the frame: bring the heading into sight first.
        grid()->scrollTo(grid()->model()->index(0, c));
        QHeaderView *h = grid()->horizontalHeader();
        const QPoint at(h->sectionViewportPosition(c) + h->sectionSize(c) / 2, h->height() / 2);
        ASSERT_TRUE(h->viewport()->rect().contains(at)) << "heading " << c << " out of sight";
        QTest::mouseClick(h->viewport(), Qt::LeftButton, {}, at);
    }
    // The record opened from the View menu over the golfer's score log.
    void openRecord()
    {
        addRecordRounds();
        choose();
        ASSERT_TRUE(enabled("mnuViewScoringRecord"));
        item("mnuViewScoringRecord")->trigger();
        ASSERT_NE(record(), nullptr);
    }

    qint64 pebble = 0, augusta = 0, front = 0, back = 0, cypress = 0, standrews = 0;
};

const QStringList kNewestFirst{"St Andrews", "Cypress", "Combined", "Augusta", "Pebble Creek"};

QStringList reversed(QStringList list)
{
    std::reverse(list.begin(), list.end());
    return list;
}

} // namespace

TEST_F(ScoringRecord, NoRecordRowsLeavesTheViewUnreachable)
{
    choose();
    EXPECT_FALSE(enabled("mnuViewScoringRecord"));
    EXPECT_FALSE(enabled("mnuSLViewScoringRecord"));
    item("mnuViewScoringRecord")->trigger();
    item("mnuSLViewScoringRecord")->trigger();
    EXPECT_EQ(record(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
}

TEST_F(ScoringRecord, ExcludedRoundsAloneGiveNoRecordAndNoView)
{
    // The score log has rows, but none of them counts for the handicap.
    RoundSpec r = round(QDate(2025, 3, 1), "Pebble Creek", 88, 71.0, 125, 15.25);
    r.used = UsedMark::Excluded;
    addRound(app.db(), r);
    choose();
    EXPECT_TRUE(enabled("mnuViewAll")); // the log shows its row
    EXPECT_FALSE(enabled("mnuViewScoringRecord"));
}

TEST_F(ScoringRecord, OpenedFromTheViewMenuWithCaptionsAndInstructions)
{
    openRecord();
    EXPECT_EQ(record()->windowTitle(), QStringLiteral("Scoring Record"));
    EXPECT_EQ(qobject_cast<QMdiSubWindow *>(record()->parentWidget())->windowTitle(),
              QStringLiteral("Scoring Record"));
    EXPECT_EQ(
        findControl<QLabel>(record(), QStringLiteral("lblInstructions"))->text(),
        QStringLiteral("Single-click on a column heading to sort in ascending order (click again to sort "
                       "in descending order)."));
    QStringList captions;
    for (int c = 0; c < grid()->model()->columnCount(); ++c) {
        captions << grid()->model()->headerData(c, Qt::Horizontal).toString();
        EXPECT_FALSE(grid()->isColumnHidden(c)) << c;
    }
    EXPECT_EQ(captions, (QStringList{"LastName", "FirstName", "Course", "Date", "ScoreIndex", "Adj. Score",
                                     "Course Rating", "Slope Rating", "Differential", "Used", "Details"}));
}

TEST_F(ScoringRecord, OnlyItsViewItemIsCheckedAndTheLogIsUnloaded)
{
    openRecord();
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoringRecord"});
    EXPECT_EQ(frame->views().loaded(QStringLiteral("frmScoreLog")), nullptr);
    EXPECT_EQ(frame->views().activeFormName(), QStringLiteral("frmScoringRecord"));
    // Checked already: the item does nothing, the same form stays.
    frmScoringRecord *shown = record();
    item("mnuViewScoringRecord")->trigger();
    EXPECT_EQ(record(), shown);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoringRecord"});
}

TEST_F(ScoringRecord, OpenedFromTheScoreLogPopup)
{
    addRecordRounds();
    choose();
    ASSERT_TRUE(enabled("mnuSLViewScoringRecord"));
    item("mnuSLViewScoringRecord")->trigger();
    ASSERT_NE(record(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoringRecord"});
    EXPECT_EQ(frame->views().loaded(QStringLiteral("frmScoreLog")), nullptr);
    EXPECT_EQ(courses(), kNewestFirst);
}

TEST_F(ScoringRecord, RowsShowNewestFirstWithTheirFormats)
{
    openRecord();
    EXPECT_EQ(record()->sortOrder(), QStringLiteral("Date DESC"));
    EXPECT_EQ(column(0), QStringList(5, QStringLiteral("O'Brien")));
    EXPECT_EQ(column(1), QStringList(5, QStringLiteral("Pat")));
    EXPECT_EQ(courses(), kNewestFirst);
    EXPECT_EQ(column(3), (QStringList{"7/1/2025", "6/1/2025", "5/10/2025", "4/1/2025", "3/1/2025"}));
    // A combined row bears the index of its later round.
    EXPECT_EQ(column(4),
              (QStringList{QString::number(standrews), QString::number(cypress), QString::number(back),
                           QString::number(augusta), QString::number(pebble)}));
    EXPECT_EQ(column(5), (QStringList{"84", "76", "89", "80", "88"}));
    EXPECT_EQ(column(6), (QStringList{"72.3", "70.1", "71.5", "72.3", "71.0"}));
    EXPECT_EQ(column(7), (QStringList{"131", "118", "125", "131", "125"}));
    EXPECT_EQ(column(8), (QStringList{"11.0", ".4", "17.3", "6.8", "15.3"}));
    EXPECT_EQ(column(9), (QStringList{"N", "Y", "N", "N", "N"}));
    EXPECT_EQ(column(10),
              (QStringList{"", "", "Combined 9-hole rounds from 5/1/2025 and 5/10/2025", "", ""}));
    EXPECT_EQ(currentRow(), 0);
}

TEST_F(ScoringRecord, ActivationHandsItsNameToTheMenuRules)
{
    addRecordRounds();
    choose();
    // In the log with rows, its selections are offered; in the record they are not.
    ASSERT_TRUE(enabled("mnuViewAll"));
    ASSERT_TRUE(enabled("mnuEditScore"));
    item("mnuViewScoringRecord")->trigger();
    ASSERT_NE(record(), nullptr);
    EXPECT_TRUE(enabled("mnuView"));
    EXPECT_FALSE(enabled("mnuViewAll"));
    EXPECT_FALSE(enabled("mnuViewCurrent"));
    EXPECT_FALSE(enabled("mnuViewUsed"));
    EXPECT_FALSE(enabled("mnuEdit"));
    EXPECT_FALSE(enabled("mnuEditScore"));
    EXPECT_FALSE(enabled("mnuDeleteScore"));
    EXPECT_TRUE(enabled("mnuViewScoreLog"));
}

TEST_F(ScoringRecord, DateHeadingClickedTwiceSortsAscendingThenDescending)
{
    openRecord();
    clickHeading(3);
    EXPECT_EQ(record()->sortOrder(), QStringLiteral("Date ASC"));
    EXPECT_EQ(courses(), reversed(kNewestFirst));
    clickHeading(3);
    EXPECT_EQ(record()->sortOrder(), QStringLiteral("Date DESC"));
    EXPECT_EQ(courses(), kNewestFirst);
    // A new heading always starts ascending.
    clickHeading(5);
    EXPECT_EQ(record()->sortOrder(), QStringLiteral("Score ASC"));
    EXPECT_EQ(column(5), (QStringList{"76", "80", "84", "88", "89"}));
    clickHeading(3);
    EXPECT_EQ(record()->sortOrder(), QStringLiteral("Date ASC"));
}

TEST_F(ScoringRecord, HeadingClickMovesToTheFirstRow)
{
    openRecord();
    grid()->selectRow(3);
    ASSERT_EQ(currentRow(), 3);
    clickHeading(8);
    EXPECT_EQ(currentRow(), 0);
    EXPECT_EQ(column(8).first(), QStringLiteral(".4"));
}

TEST_F(ScoringRecord, CombinedRowsSortWithTheOthersOnEverySortableColumn)
{
    openRecord();
    // Course names by the order each heading gives, ascending; ties stand by ScoreIndex.
    const struct {
        int column;
        QStringList ascending;
    } cases[] = {
        {3, {"Pebble Creek", "Augusta", "Combined", "Cypress", "St Andrews"}},
        {5, {"Cypress", "Augusta", "St Andrews", "Pebble Creek", "Combined"}},
        {6, {"Cypress", "Pebble Creek", "Combined", "Augusta", "St Andrews"}},
        {7, {"Cypress", "Pebble Creek", "Combined", "Augusta", "St Andrews"}},
        {8, {"Cypress", "Augusta", "St Andrews", "Pebble Creek", "Combined"}},
        {9, {"Pebble Creek", "Augusta", "Combined", "St Andrews", "Cypress"}},
        {10, {"Pebble Creek", "Augusta", "Cypress", "St Andrews", "Combined"}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.column);
        clickHeading(c.column);
        EXPECT_EQ(courses(), c.ascending);
        clickHeading(c.column);
        EXPECT_EQ(courses(), reversed(c.ascending));
    }
}

TEST_F(ScoringRecord, HeadingWithoutSortTextChangesNothing)
{
    openRecord();
    clickHeading(5);
    ASSERT_EQ(record()->sortOrder(), QStringLiteral("Score ASC"));
    grid()->selectRow(2);
    const QList<QStringList> before = allCells();
    for (const int c : {0, 1, 2, 4}) {
        SCOPED_TRACE(c);
        clickHeading(c);
        EXPECT_EQ(record()->sortOrder(), QStringLiteral("Score ASC"));
        EXPECT_EQ(allCells(), before);
        EXPECT_EQ(currentRow(), 2);
    }
    // The last sort still stands: its heading turns it round.
    clickHeading(5);
    EXPECT_EQ(column(5), (QStringList{"89", "88", "84", "80", "76"}));
}

TEST_F(ScoringRecord, OrderIsNotKeptAcrossActivations)
{
    openRecord();
    clickHeading(8);
    ASSERT_EQ(courses().first(), QStringLiteral("Cypress"));
    // Shown again, the same form starts over from the newest.
    frmScoringRecord *shown = record();
    frame->views().show(QStringLiteral("frmScoringRecord"));
    ASSERT_EQ(record(), shown);
    EXPECT_EQ(record()->sortOrder(), QStringLiteral("Date DESC"));
    EXPECT_EQ(courses(), kNewestFirst);
    // And by way of the score log.
    clickHeading(5);
    ASSERT_EQ(record()->sortOrder(), QStringLiteral("Score ASC"));
    item("mnuViewScoreLog")->trigger();
    EXPECT_EQ(record(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
    item("mnuViewScoringRecord")->trigger();
    ASSERT_NE(record(), nullptr);
    EXPECT_EQ(record()->sortOrder(), QStringLiteral("Date DESC"));
    EXPECT_EQ(courses(), kNewestFirst);
}

TEST_F(ScoringRecord, RefreshingTheActiveViewLeavesTheRecordAlone)
{
    openRecord();
    clickHeading(5);
    frame->RefreshActiveView();
    EXPECT_EQ(record()->sortOrder(), QStringLiteral("Score ASC"));
    EXPECT_EQ(column(5), (QStringList{"76", "80", "84", "88", "89"}));
}

TEST_F(ScoringRecord, RowsOfOneDayStandByScoreIndex)
{
    openRecord();
    // Rows of one day written in an order of their own, then read again at the next activation.
    Exec(app.db(), QStringLiteral("DELETE FROM ScoringRecord"));
    for (const int index : {7, 3, 9})
        Exec(app.db(),
             QStringLiteral(
                 "INSERT INTO ScoringRecord (LastName, FirstName, CourseName, Date, ScoreIndex, Score, "
                 "Rating, Slope, Differential, Used, Details) VALUES (?, ?, ?, ?, ?, 85, 72.0, 125, "
                 "12.0, 'N', '')"),
             {QStringLiteral("O'Brien"), QStringLiteral("Pat"), QStringLiteral("Course %1").arg(index),
              QStringLiteral("2025-08-02"), index});
    frame->views().show(QStringLiteral("frmScoringRecord"));
    EXPECT_EQ(column(4), (QStringList{"9", "7", "3"}));
    clickHeading(3);
    EXPECT_EQ(column(4), (QStringList{"3", "7", "9"}));
    clickHeading(7); // every slope alike
    EXPECT_EQ(column(4), (QStringList{"3", "7", "9"}));
    clickHeading(7);
    EXPECT_EQ(column(4), (QStringList{"9", "7", "3"}));
}
