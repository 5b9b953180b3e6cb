#include "FrameFixture.h"
#include "TestPrinting.h"
#include "core/DateText.h"
#include "score/frmScore.h"
#include "views/frmScoreLog.h"
#include "views/frmViewScoreDetails.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

namespace {

class ScoreDetails : public FrameFixture {
public:
    void SetUp() override
    {
        FrameFixture::SetUp();
        addCourse(app.db(), CourseSpec{});
        Exec(app.db(), QStringLiteral("UPDATE CourseDetails SET Yards = 300 + Hole, Handicap = 19 - Hole"));
    }
    // A round of the golfer with hole rows on `firstHole` onwards.
    qint64 addRoundWithHoles(const RoundSpec &r, int firstHole, const QVector<int> &scores, const QVector<int> &putts,
                             const QList<int> &fairwayHoles = {})
    {
        const qint64 index = addRound(app.db(), r);
        for (int k = 0; k < scores.size(); ++k) {
            const int hole = firstHole + k;
            Exec(app.db(),
                 QStringLiteral("INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, Hole, "
                                "Score, Putts, PAR, Fairway, GreenInRegulation) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, "
                                "(SELECT PAR FROM CourseDetails WHERE Hole = ?), ?, 0)"),
                 {r.last, r.first, r.course, r.tees, IsoDate(r.date), index, hole, scores.at(k), putts.at(k), hole,
                  fairwayHoles.contains(hole) ? 1 : 0});
        }
        return index;
    }
    frmScoreLog *log() const { return qobject_cast<frmScoreLog *>(frame->views().loaded(QStringLiteral("frmScoreLog"))); }
    frmViewScoreDetails *details() const
    {
        return qobject_cast<frmViewScoreDetails *>(frame->views().loaded(QStringLiteral("frmViewScoreDetails")));
    }
    // Open the details of the log's row `row` by a double-click, as a user does.
    void open(int row = 0)
    {
        log()->selectRow(row);
        auto *grid = findControl<QTableView>(log(), QStringLiteral("DBGrid1"));
        const QModelIndex cell = grid->model()->index(row, 2);
        emit grid->doubleClicked(cell);
        ASSERT_NE(details(), nullptr);
    }
    QString text(const QString &name) const { return findControl<QLabel>(details(), name)->text(); }
    QString colour(int i) const
    {
        return findControl<QLabel>(details(), QStringLiteral("lblScore_%1").arg(i))->property("scoreColour").toString();
    }
    void settle() const
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
};

RoundSpec round(int score, const QDate &date = QDate(2026, 10, 1))
{
    RoundSpec r;
    r.score = r.adjusted = score;
    r.date = date;
    r.details = true;
    return r;
}

} // namespace

TEST_F(ScoreDetails, AFullRoundShowsItsCardSumsColoursAndNumbers)
{
    // Pars 4 4 3 5 4 4 3 4 5 on both nines.
    addRoundWithHoles(round(80), 1, {4, 3, 3, 5, 5, 4, 2, 4, 6, 5, 4, 3, 5, 4, 4, 3, 5, 7},
                      {2, 1, 2, 2, 2, 2, 0, 2, 3, 2, 2, 2, 2, 2, 1, 2, 2, 2}, {1, 2, 5, 10, 14});
    startWithPalmer();
    open();
    EXPECT_EQ(details()->windowTitle(), QStringLiteral("Score Details"));
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmViewScoreDetails"));
    EXPECT_EQ(text("lblCourse"), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(text("lblTees"), QStringLiteral("White"));
    EXPECT_EQ(text("lblDate"), QStringLiteral("10/1/2026"));
    EXPECT_EQ(text("lblHoles"), QStringLiteral("18-holes"));
    EXPECT_EQ(text("lblType"), QStringLiteral("Away"));
    EXPECT_EQ(text("lblExcluded"), QStringLiteral("No"));
    EXPECT_EQ(text("lblAdjustedScore"), QStringLiteral("80"));
    // Front 4+3+3+5+5+4+2+4+6 = 36, back 5+4+3+5+4+4+3+5+7 = 40; putts 16 and 17.
    EXPECT_EQ(text("lblOut"), QStringLiteral("36"));
    EXPECT_EQ(text("lblIn"), QStringLiteral("40"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("76"));
    EXPECT_EQ(text("lblOutPutts"), QStringLiteral("16"));
    EXPECT_EQ(text("lblInPutts"), QStringLiteral("17"));
    EXPECT_EQ(text("lblTotalPutts"), QStringLiteral("33"));
    EXPECT_EQ(text("lblScore_6"), QStringLiteral("2"));
    EXPECT_EQ(colour(0), QStringLiteral("#ffff00")) << "par";
    EXPECT_EQ(colour(1), QStringLiteral("#00ff00")) << "birdie";
    EXPECT_EQ(colour(6), QStringLiteral("#00ff00")) << "birdie on a par 3";
    EXPECT_EQ(colour(4), QString()) << "bogey keeps the plain colour";
    EXPECT_EQ(findControl<QLabel>(details(), QStringLiteral("lblScore_0"))->toolTip(),
              QStringLiteral("Par 4, 301 yards, Handicap 18"));
    EXPECT_FALSE(findControl<QCheckBox>(details(), QStringLiteral("chkFairway_2"))->isVisibleTo(details()));
    EXPECT_TRUE(findControl<QCheckBox>(details(), QStringLiteral("chkFairway_0"))->isChecked());
    EXPECT_FALSE(findControl<QCheckBox>(details(), QStringLiteral("chkFairway_3"))->isChecked());
    // To par: 0 -1 0 0 +1 0 -1 0 +1 | +1 0 0 0 0 0 0 +1 +2.
    // Counts: chip-in on 7; one-putts on 2 and 15; three on 9; the rest two.
    EXPECT_EQ(text("lblChipIns"), QStringLiteral("1"));
    EXPECT_EQ(text("lblOnePutts"), QStringLiteral("2"));
    EXPECT_EQ(text("lblTwoPutts"), QStringLiteral("14"));
    EXPECT_EQ(text("lblThreePlusPutts"), QStringLiteral("1"));
    EXPECT_EQ(text("lblEagles"), QStringLiteral("0"));
    EXPECT_EQ(text("lblBirdies"), QStringLiteral("2"));
    EXPECT_EQ(text("lblPars"), QStringLiteral("11"));
    EXPECT_EQ(text("lblBogeys"), QStringLiteral("4"));
    EXPECT_EQ(text("lblDoubleBogeys"), QStringLiteral("1"));
    // Fairways hit on 1, 2, 5, 10, 14 of the 14 par 4 and 5 holes: 35.7%.
    EXPECT_EQ(text("lblFairways"), QStringLiteral("35.7%"));
    EXPECT_EQ(findControl<QLabel>(details(), QStringLiteral("lblBirdies"))->toolTip(),
              QStringLiteral("Number of hole scores that were one under par"));
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
}

TEST_F(ScoreDetails, ARoundWithoutDetailsShowsItsHeaderAndABlankCard)
{
    RoundSpec r = round(91);
    r.details = false;
    r.type = QStringLiteral("T");
    r.used = QStringLiteral("E");
    addRound(app.db(), r);
    Exec(app.db(), QStringLiteral("UPDATE ScoreLog SET Penalties = 2, LostBalls = 0, Bunkers = -1"));
    startWithPalmer();
    open();
    EXPECT_EQ(text("lblType"), QStringLiteral("Tournament"));
    EXPECT_EQ(text("lblExcluded"), QStringLiteral("Yes"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("91"));
    EXPECT_EQ(text("lblPenalties"), QStringLiteral("2"));
    EXPECT_EQ(text("lblLostBalls"), QStringLiteral("0")) << "a stored 0 shows";
    EXPECT_EQ(text("lblTotalBunkers"), QString()) << "-1 is not recorded";
    for (int i = 0; i < 18; ++i)
        EXPECT_EQ(text(QStringLiteral("lblScore_%1").arg(i)), QString());
    for (const char *name : {"lblOut", "lblIn", "lblTotalPutts", "lblGreens", "lblFairways", "lblPars", "lblAvgPar4"})
        EXPECT_EQ(text(QLatin1String(name)), QString()) << name;
}

TEST_F(ScoreDetails, AFrontNineRoundFillsTheFrontAndCountsOverNineHoles)
{
    RoundSpec r = round(40);
    r.holes = QStringLiteral("9-holes (front)");
    addRoundWithHoles(r, 1, {5, 4, 3, 6, 5, 4, 4, 5, 6}, {2, 2, 1, 2, 2, 2, 2, 2, 2}, {1, 5, 9});
    startWithPalmer();
    open();
    EXPECT_EQ(text("lblScore_8"), QStringLiteral("6"));
    EXPECT_EQ(text("lblScore_9"), QString());
    EXPECT_EQ(text("lblIn"), QString());
    EXPECT_EQ(text("lblOut"), QStringLiteral("42"));
    EXPECT_EQ(text("lblGreens"), QStringLiteral("22.2%")) << "2 of 9 holes";
    EXPECT_EQ(text("lblFairways"), QStringLiteral("42.9%")) << "3 of 7 holes";
}

TEST_F(ScoreDetails, ACardWithoutParFourOrFiveReadsNotApplicableForFairways)
{
    Exec(app.db(), QStringLiteral("UPDATE CourseDetails SET PAR = 3"));
    RoundSpec r = round(27);
    r.holes = QStringLiteral("9-holes (front)");
    addRoundWithHoles(r, 1, {3, 3, 3, 3, 3, 3, 3, 3, 3}, {2, 2, 2, 2, 2, 2, 2, 2, 2});
    startWithPalmer();
    open();
    EXPECT_EQ(text("lblFairways"), QStringLiteral("N/A"));
    EXPECT_EQ(text("lblAvgPar3"), QStringLiteral("3.0"));
}

TEST_F(ScoreDetails, ColoursOnAParFive)
{
    RoundSpec r = round(14);
    addRoundWithHoles(r, 4, {5}, {2});   // par 5: par
    r.date = QDate(2026, 10, 2);
    addRoundWithHoles(r, 4, {4}, {1});   // birdie
    r.date = QDate(2026, 10, 3);
    addRoundWithHoles(r, 4, {3}, {1});   // eagle
    r.date = QDate(2026, 10, 4);
    addRoundWithHoles(r, 4, {2}, {0});   // three under: the plain colour
    startWithPalmer();
    const QStringList expected = {"#ffff00", "#00ff00", "#00ffff", ""};
    // The log stands newest first.
    for (int row = 0; row < 4; ++row) {
        frame->views().unload(QStringLiteral("frmViewScoreDetails"));
        open(3 - row);
        EXPECT_EQ(colour(3), expected.at(row)) << row;
        EXPECT_EQ(text("lblScore_3"), QString::number(5 - row));
    }
}

TEST_F(ScoreDetails, OkAndTheScoreLogItemBringTheLogBack)
{
    addRoundWithHoles(round(4), 1, {4}, {2});
    startWithPalmer();
    open();
    findControl<QPushButton>(details(), QStringLiteral("cmdOK"))->click();
    settle();
    EXPECT_EQ(details(), nullptr);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    open();
    item(QStringLiteral("mnuViewScoreLog"))->trigger();
    settle();
    EXPECT_EQ(details(), nullptr);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
}

TEST_F(ScoreDetails, ThePopupAndEnterOpenTheDetailsToo)
{
    addRoundWithHoles(round(4), 1, {4}, {2});
    startWithPalmer();
    log()->selectRow(0);
    item(QStringLiteral("mnuSLViewScoreDetails"))->trigger();
    ASSERT_NE(details(), nullptr);
    frame->views().unload(QStringLiteral("frmViewScoreDetails"));
    auto *grid = findControl<QTableView>(log(), QStringLiteral("DBGrid1"));
    QTest::keyClick(grid, Qt::Key_Return);
    EXPECT_NE(details(), nullptr);
}

TEST_F(ScoreDetails, TheMenusOfTheDetailsViewLetTheRoundBeEditedOrDeleted)
{
    addRoundWithHoles(round(4), 1, {4}, {2});
    startWithPalmer();
    open();
    EXPECT_TRUE(enabled(QStringLiteral("mnuEditScore")));
    EXPECT_TRUE(enabled(QStringLiteral("mnuDeleteScore")));
    EXPECT_TRUE(enabled(QStringLiteral("mnuEditCourse")));
    EXPECT_FALSE(enabled(QStringLiteral("mnuViewAll")));
    app.platform().answer(MsgAnswer::Yes);
    item(QStringLiteral("mnuDeleteScore"))->trigger();
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Are you sure you want to delete this score?"));
    settle();
    EXPECT_EQ(details(), nullptr) << "the details of a deleted round close";
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreLog")).toInt(), 0);
}

TEST_F(ScoreDetails, AnEditedRoundShowsItsNewValuesInTheOpenView)
{
    addRoundWithHoles(round(76), 1, {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5},
                      {2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2});
    startWithPalmer();
    open();
    ASSERT_EQ(text("lblScore_17"), QStringLiteral("5"));
    item(QStringLiteral("mnuEditScore"))->trigger();
    frmScore *form = frmScore::existing();
    ASSERT_NE(form, nullptr);
    auto *box = findControl<QLineEdit>(form, QStringLiteral("txtScore_17"));
    box->clear();
    box->setFocus();
    QTest::keyClicks(box, QStringLiteral("7"));
    findControl<QPushButton>(form, QStringLiteral("cmdSave"))->click();
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
    settle();
    ASSERT_NE(details(), nullptr);
    EXPECT_EQ(text("lblScore_17"), QStringLiteral("7"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("74"));
    EXPECT_EQ(text("lblDoubleBogeys"), QStringLiteral("1"));
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmViewScoreDetails"));
}

TEST_F(ScoreDetails, TheCourseCardOpensWithAWayBackToTheRound)
{
    addRoundWithHoles(round(4), 1, {4}, {2});
    startWithPalmer();
    open();
    item(QStringLiteral("mnuViewCourseInfo"))->trigger();
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmCourseInfo"));
    EXPECT_EQ(panelText(QStringLiteral("ScoreDetails")), QStringLiteral("Score Details"));
    emit frame->panelClicked(QStringLiteral("ScoreDetails"));
    settle();
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmViewScoreDetails"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
}
