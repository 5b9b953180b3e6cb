#include "FrameFixture.h"
#include "TestPrinting.h"
#include "score/frmScore.h"
#include "store/Encodings.h"
#include "views/frmScoreLog.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QFrame>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

namespace {

const int kScores[18] = {5, 4, 3, 6, 5, 4, 4, 5, 6, 4, 5, 3, 6, 5, 4, 3, 5, 9};
const int kPutts[18] = {2, 2, 1, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 1, 2, 2, 3};
const int kPars[18] = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};
const QList<int> kFairwaysHit = {0, 4, 8, 10, 16};

class ScoreForm : public FrameFixture {
public:
    void SetUp() override
    {
        FrameFixture::SetUp();
        addCourse(app.db(), CourseSpec{});
        CourseSpec links;
        links.name = QStringLiteral("St. Andrew's");
        links.tees = QStringLiteral("Blue");
        addCourse(app.db(), links);
        startWithPalmer();
    }

    void openNew()
    {
        item(QStringLiteral("mnuNewScore"))->trigger();
        form = frmScore::existing();
        ASSERT_NE(form, nullptr);
    }
    // Choose an item of a list as the user does.
    void choose(const QString &list, const QString &text) { ChooseItem(findControl<QComboBox>(form, list), text); }
    void openNewOn(const QString &course, const QString &tees = QStringLiteral("White"))
    {
        openNew();
        choose(QStringLiteral("cboCourses"), course);
        choose(QStringLiteral("cboTees"), tees);
    }
    QLineEdit *box(const QString &name) const { return findControl<QLineEdit>(form, name); }
    QString text(const QString &name) const
    {
        if (auto *label = form->findChild<QLabel *>(name))
            return label->text();
        if (auto *list = form->findChild<QComboBox *>(name))
            return list->currentText();
        return box(name)->text();
    }
    // Type into a box as a user does, then leave it with Tab so that its checks run.
    void type(const QString &name, const QString &typed) const
    {
        QLineEdit *b = box(name);
        b->setFocus();
        QTest::keyClicks(b, typed);
    }
    void leave(const QString &name) const
    {
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(box(name), &out);
    }
    QCheckBox *fairway(int i) const { return findControl<QCheckBox>(form, QStringLiteral("chkFairway_%1").arg(i)); }
    QRadioButton *option(int i) const { return findControl<QRadioButton>(form, QStringLiteral("optType_%1").arg(i)); }
    void save() const { findControl<QPushButton>(form, QStringLiteral("cmdSave"))->click(); }
    void settle() const
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    bool formOpen() const
    {
        settle();
        return frmScore::existing() != nullptr;
    }
    QVector<ShownMessage> messages() { return app.platform().takeMessages(); }
    QStringList logRows()
    {
        return columnValues(app.db(), QStringLiteral("SELECT LastName, FirstName, CourseName, Tees, Date, Holes, Score, "
                                                     "AdjustedScore, Rating, Slope, Type, Differential, Used, Details, "
                                                     "Penalties, LostBalls, Bunkers, SandSaves, AttemptedSaves, "
                                                     "CombinedIndex FROM ScoreLog ORDER BY ScoreIndex"));
    }
    QStringList holeRows()
    {
        return columnValues(app.db(), QStringLiteral("SELECT Hole, Score, Putts, PAR, Fairway, GreenInRegulation FROM "
                                                     "ScoreDetails ORDER BY ScoreIndex, Hole"));
    }
    // Type the round of the card into holes first .. first + count - 1, checking the sums as it goes.
    void typeHoles(int first, int count)
    {
        int scoreSum = 0, puttSum = 0;
        for (int i = first; i < first + count; ++i) {
            type(QStringLiteral("txtScore_%1").arg(i), QStringLiteral("a-") + QString::number(kScores[i]));
            leave(QStringLiteral("txtScore_%1").arg(i));
            type(QStringLiteral("txtPutts_%1").arg(i), QStringLiteral(".") + QString::number(kPutts[i]));
            leave(QStringLiteral("txtPutts_%1").arg(i));
            if (kFairwaysHit.contains(i))
                fairway(i)->click();
            scoreSum += kScores[i];
            puttSum += kPutts[i];
            EXPECT_EQ(text(QStringLiteral("txtScore_%1").arg(i)), QString::number(kScores[i])) << "letters stay out";
            EXPECT_EQ(text(i < 9 ? "txtOut" : "txtIn"), QString::number(scoreSum)) << "hole " << i + 1;
            EXPECT_EQ(text(i < 9 ? "lblOutPutts" : "lblInPutts"), QString::number(puttSum)) << "hole " << i + 1;
            if (i == 8 || i == 17)
                scoreSum = puttSum = 0;
        }
    }

    frmScore *form = nullptr;
};

} // namespace

TEST_F(ScoreForm, NewModeWithoutAnyCourseSaysSoAndCloses)
{
    Exec(app.db(), QStringLiteral("DELETE FROM CourseLog"));
    frmScore::instance().NewScore();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0],
                  "You must enter course data before entering a new score.  Please select New Course from the File "
                  "menu to enter course data.",
                  MsgIcon::Critical, "New Score");
    EXPECT_FALSE(formOpen());
}

TEST_F(ScoreForm, NewModeOpensWithTodayTheCoursesAndTheOtherCommandsLocked)
{
    openNew();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("New Score"));
    EXPECT_EQ(text("txtDate"), QStringLiteral("11/22/2026"));
    auto *courses = findControl<QComboBox>(form, "cboCourses");
    EXPECT_EQ(courses->count(), 2);
    EXPECT_EQ(courses->itemText(0), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(courses->itemText(1), QStringLiteral("St. Andrew's"));
    EXPECT_FALSE(findControl<QPushButton>(form, "cmdSave")->isEnabled());
    EXPECT_FALSE(findControl<QLabel>(form, "lblCourse")->isVisibleTo(form));
    EXPECT_TRUE(findControl<QPushButton>(form, "cmdCalendar")->isVisibleTo(form));
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScore"));
    for (const char *menu : {"mnuFileNew", "mnuFilePrint", "mnuEdit", "mnuView", "mnuTools"})
        EXPECT_FALSE(enabled(QLatin1String(menu))) << menu;
    EXPECT_EQ(box("txtPenalties")->toolTip(), QStringLiteral("Number of strokes penalized during the round."));
    EXPECT_EQ(box("txtLostBalls")->toolTip(),
              QStringLiteral("Number of balls lost during the round including balls lost in hazards."));
    EXPECT_EQ(box("txtTotalBunkers")->toolTip(), QStringLiteral("Number of times the ball landed in a bunker."));
    EXPECT_EQ(box("txtSandSaves")->toolTip(),
              QStringLiteral("Number of times par or better was achieved after playing from a green-side bunker."));
    EXPECT_EQ(fairway(0)->toolTip(), QStringLiteral("Check if you landed in the fairway off the tee box."));
    EXPECT_EQ(option(0)->text(), QStringLiteral("&Away"));
    EXPECT_EQ(option(1)->text(), QStringLiteral("&Home"));
    EXPECT_EQ(option(2)->text(), QStringLiteral("&Tournament"));

    findControl<QPushButton>(form, "cmdCancel")->click();
    EXPECT_FALSE(formOpen());
    EXPECT_TRUE(enabled("mnuView")) << "the menus come back with the log";
    EXPECT_TRUE(logRows().isEmpty());
}

TEST_F(ScoreForm, TheHomeCourseSelectsHomeAndAnyOtherCourseAway)
{
    Exec(app.db(), QStringLiteral("UPDATE HandicapLog SET HomeCourseName = ?"), {QStringLiteral("St. Andrew's")});
    openNew();
    choose(QStringLiteral("cboCourses"), QStringLiteral("St. Andrew's"));
    EXPECT_TRUE(option(1)->isChecked());
    EXPECT_EQ(text("cboTees"), QStringLiteral("Blue")) << "the first tees come with the course";
    EXPECT_EQ(text("cboHoles"), Holes::Eighteen);
    choose(QStringLiteral("cboCourses"), QStringLiteral("Pebble Creek"));
    EXPECT_TRUE(option(0)->isChecked());
}

TEST_F(ScoreForm, TeesWithoutAnOverallRatingOfferTheFrontNineAlone)
{
    Exec(app.db(), QStringLiteral("INSERT INTO CourseLog (CourseName, Tees, FrontRating, FrontSlope) "
                                  "VALUES ('Short Links', 'Red', 33.2, 110)"));
    openNewOn(QStringLiteral("Short Links"), QStringLiteral("Red"));
    auto *holes = findControl<QComboBox>(form, "cboHoles");
    EXPECT_EQ(holes->count(), 1);
    EXPECT_EQ(holes->currentText(), Holes::FrontNine);
    EXPECT_TRUE(box("txtTotalScore")->isVisibleTo(form)) << "no hole data: the total is typed";
    EXPECT_FALSE(box("txtScore_0")->isEnabled());
}

TEST_F(ScoreForm, AWholeRoundTypedHoleByHoleIsSavedColumnByColumn)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    EXPECT_FALSE(box("txtTotalScore")->isVisibleTo(form)) << "the grid carries the total";
    for (int i : {2, 6, 11, 15})
        EXPECT_FALSE(fairway(i)->isVisibleTo(form)) << "no fairway on the par 3 hole " << i + 1;
    typeHoles(0, 18);
    EXPECT_EQ(text("txtTotal"), QStringLiteral("86"));
    EXPECT_EQ(text("lblTotalPutts"), QStringLiteral("35"));
    EXPECT_EQ(text("txtTotalScore"), QStringLiteral("86"));
    EXPECT_FALSE(box("txtOut")->isEnabled()) << "locked to the sums";
    EXPECT_FALSE(box("txtTotal")->isEnabled());
    EXPECT_TRUE(messages().isEmpty());
    save();
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_FALSE(formOpen());
    // No handicap yet: index 36.4 for a man, course handicap floor(36.4 x 125 / 113) = 40, cap 10:
    // the 9 on the 18th stands.  Differential (86 - 71.5) x 113 / 125 = 13.108, stored 13.1.
    EXPECT_EQ(logRows(), QStringList{"Palmer|Arnold|Pebble Creek|White|2026-11-22|18-holes|86|86|71.5|125|A|13.1|N|1|"
                                     "-1|-1|-1|-1|-1|1"});
    EXPECT_EQ(holeRows(), (QStringList{"1|5|2|4|1|0",  "2|4|2|4|0|1",  "3|3|1|3|-1|0",  "4|6|2|5|0|0",
                                       "5|5|2|4|1|0",  "6|4|2|4|0|1",  "7|4|2|3|-1|0",  "8|5|2|4|0|0",
                                       "9|6|2|5|1|0",  "10|4|2|4|0|1", "11|5|2|4|1|0",  "12|3|2|3|-1|1",
                                       "13|6|2|5|0|0", "14|5|2|4|0|0", "15|4|1|4|0|0",  "16|3|2|3|-1|1",
                                       "17|5|2|4|1|0", "18|9|3|5|0|0"}));
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT DISTINCT LastName, FirstName, CourseName, Tees, Date, "
                                                    "ScoreIndex FROM ScoreDetails")),
              columnValues(app.db(), QStringLiteral("SELECT LastName, FirstName, CourseName, Tees, Date, ScoreIndex "
                                                    "FROM ScoreLog")));
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT Handicap FROM HandicapLog")).toDouble(), -1000.0);
    EXPECT_EQ(panelText(QStringLiteral("Handicap")), QStringLiteral("Handicap: (not calculated)"));
    auto *log = qobject_cast<frmScoreLog *>(frame->views().loaded(QStringLiteral("frmScoreLog")));
    ASSERT_NE(log, nullptr);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_EQ(log->selectedValue(QStringLiteral("AdjustedScore")).toInt(), 86) << "the log shows the round";
}

TEST_F(ScoreForm, AFrontNineRoundKeepsItsNineHoles)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    choose(QStringLiteral("cboHoles"), Holes::FrontNine);
    EXPECT_EQ(text("lblHoles"), Holes::FrontNine);
    EXPECT_TRUE(box("txtScore_8")->isEnabled());
    EXPECT_FALSE(box("txtScore_9")->isEnabled());
    EXPECT_FALSE(box("txtTotal")->isVisibleTo(form)) << "a nine has no total row";
    option(2)->click();
    typeHoles(0, 9);
    EXPECT_EQ(text("txtTotalScore"), QStringLiteral("42"));
    save();
    EXPECT_TRUE(messages().isEmpty());
    // Front slope 124, rating 35.7: (42 - 35.7) x 113 / 124 = 5.741, stored 5.7.
    EXPECT_EQ(logRows(), QStringList{"Palmer|Arnold|Pebble Creek|White|2026-11-22|9-holes (front)|42|42|35.7|124|T|5.7|N|1|"
                                     "-1|-1|-1|-1|-1|1"});
    EXPECT_EQ(holeRows().size(), 9);
    EXPECT_EQ(holeRows().last(), QStringLiteral("9|6|2|5|1|0"));
}

TEST_F(ScoreForm, ATotalAloneIsSavedWithoutDetailsAndTheStatisticsAsTyped)
{
    Exec(app.db(), QStringLiteral("DELETE FROM CourseDetails"));
    openNewOn(QStringLiteral("Pebble Creek"));
    ASSERT_TRUE(box("txtTotalScore")->isVisibleTo(form));
    type("txtTotalScore", QStringLiteral("1x07"));
    EXPECT_EQ(text("txtTotalScore"), QStringLiteral("107"));
    type("txtPenalties", QStringLiteral("2"));
    type("txtLostBalls", QStringLiteral("1"));
    type("txtTotalBunkers", QStringLiteral("0"));
    findControl<QCheckBox>(form, "chkExclude")->click();
    save();
    EXPECT_TRUE(messages().isEmpty());
    // Without hole rows the adjusted score is the total, however high: (107 - 71.5) x 113 / 125 = 32.09.
    EXPECT_EQ(logRows(), QStringList{"Palmer|Arnold|Pebble Creek|White|2026-11-22|18-holes|107|107|71.5|125|A|32.1|E|0|"
                                     "2|1|0|0|0|1"});
    EXPECT_TRUE(holeRows().isEmpty());
}

TEST_F(ScoreForm, ValidationMessagesShowWithTheFormsTitleAndMoveTheFocus)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    box("txtDate")->clear();
    type("txtDate", QStringLiteral("13/45/2003"));
    typeHoles(0, 18);
    save();
    QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], "Invalid Date!  Please enter a date in the format mm/dd/yyyy.", MsgIcon::Exclamation,
                  "New Score");
    EXPECT_EQ(frame->focusWidget(), box("txtDate"));
    EXPECT_TRUE(formOpen());
    EXPECT_EQ(text("txtScore_17"), QStringLiteral("9")) << "nothing typed is lost";

    box("txtDate")->clear();
    type("txtDate", QStringLiteral("31/02"));
    save();
    shown = messages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Invalid Date!  Please enter a date in the format mm/dd/yyyy."));

    box("txtDate")->clear();
    type("txtDate", QStringLiteral("3/7/2026"));
    type("txtLostBalls", QStringLiteral("1"));
    save();
    shown = messages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text,
              QStringLiteral("Invalid Misc. Stat!  You have recorded a lost ball without recording a penalty."));
    EXPECT_EQ(frame->focusWidget(), box("txtPenalties"));

    // Penalties typed as 0 after the lost ball write 0 to the lost balls, and the round passes.
    type("txtPenalties", QStringLiteral("0"));
    EXPECT_EQ(text("txtLostBalls"), QStringLiteral("0"));
    save();
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT Date, Penalties, LostBalls FROM ScoreLog")),
              QStringList{"2026-03-07|0|0"});
}

TEST_F(ScoreForm, AnIncompleteNineIsRefusedAndNothingIsSaved)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    typeHoles(0, 9);
    box("txtPutts_4")->clear();
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0],
                  "Unable to accept incomplete score details.  Please enter all score details for the front 9 or clear "
                  "the details you have entered.",
                  MsgIcon::Exclamation, "New Score");
    EXPECT_TRUE(formOpen());
    EXPECT_TRUE(logRows().isEmpty());
}

TEST_F(ScoreForm, HoleChecksOnLeavingABoxEmptyItAndKeepTheFocus)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    type(QStringLiteral("txtPutts_0"), QStringLiteral("4"));
    type(QStringLiteral("txtScore_0"), QStringLiteral("4"));
    leave(QStringLiteral("txtScore_0"));
    QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], "The score on Hole #1 must be greater than the number of putts.", MsgIcon::Exclamation,
                  "New Score");
    EXPECT_EQ(text("txtScore_0"), QString());
    EXPECT_EQ(frame->focusWidget(), box("txtScore_0"));

    type(QStringLiteral("txtScore_1"), QStringLiteral("3"));
    type(QStringLiteral("txtPutts_1"), QStringLiteral("3"));
    leave(QStringLiteral("txtPutts_1"));
    shown = messages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("The number of putts on Hole #2 must be less than the score."));
    EXPECT_EQ(text("txtPutts_1"), QString());

    type(QStringLiteral("txtScore_2"), QStringLiteral("0"));
    leave(QStringLiteral("txtScore_2"));
    shown = messages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Invalid score on Hole #3!  You must enter a score greater than zero."));
    EXPECT_EQ(text("txtScore_2"), QString());

    type(QStringLiteral("txtScore_3"), QStringLiteral("00"));
    leave(QStringLiteral("txtScore_3"));
    EXPECT_TRUE(messages().isEmpty()) << "00 is not the text 0";
    EXPECT_EQ(text("txtScore_3"), QStringLiteral("00"));
}

TEST_F(ScoreForm, ClearingANinesScoresEmptiesItsTotalWhichCanBeTypedAgain)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    type(QStringLiteral("txtScore_0"), QStringLiteral("5"));
    type(QStringLiteral("txtScore_1"), QStringLiteral("4"));
    EXPECT_EQ(text("txtOut"), QStringLiteral("9"));
    EXPECT_FALSE(box("txtOut")->isEnabled());
    EXPECT_FALSE(box("txtIn")->isEnabled());
    box("txtScore_0")->clear();
    box("txtScore_1")->clear();
    EXPECT_EQ(text("txtOut"), QString());
    EXPECT_TRUE(box("txtOut")->isEnabled());
    EXPECT_TRUE(box("txtIn")->isEnabled());
    EXPECT_TRUE(box("txtTotal")->isEnabled());
    type(QStringLiteral("txtOut"), QStringLiteral("41"));
    type(QStringLiteral("txtIn"), QStringLiteral("43"));
    EXPECT_EQ(text("txtTotal"), QStringLiteral("84"));
    EXPECT_EQ(text("txtTotalScore"), QStringLiteral("84"));
    save();
    EXPECT_TRUE(messages().isEmpty()) << "nine totals typed without holes need no question";
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT Score, Details FROM ScoreLog")), QStringList{"84|0"});
}

TEST_F(ScoreForm, TotalsThatDisagreeWithTheHolesAreAskedAboutAndOkTakesTheSums)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    type(QStringLiteral("txtIn"), QStringLiteral("45"));
    typeHoles(0, 9);
    EXPECT_EQ(text("txtTotalScore"), QStringLiteral("87"));
    app.platform().answer(MsgAnswer::OK);
    app.platform().answer(MsgAnswer::OK);
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0].text, QStringLiteral("Quillon has calculated a back nine score of 0 rather than 45.  Press OK "
                                            "to accept this total or Cancel to return to the Add Score screen."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Question);
    EXPECT_EQ(shown[0].buttons, MsgButtons::OKCancel);
    EXPECT_EQ(shown[1].text, QStringLiteral("Quillon has calculated a total score of 42 rather than 87.  Press OK to "
                                            "accept this total or Cancel to return to the Add Score screen."));
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT Score FROM ScoreLog")), QStringList{"42"});
}

TEST_F(ScoreForm, CancelAtATotalQuestionKeepsTheFormOpen)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    type(QStringLiteral("txtIn"), QStringLiteral("45"));
    typeHoles(0, 9);
    app.platform().answer(MsgAnswer::Cancel);
    save();
    ASSERT_EQ(messages().size(), 1);
    EXPECT_TRUE(formOpen());
    EXPECT_TRUE(logRows().isEmpty());
}

TEST_F(ScoreForm, ABackNineOnACourseWithoutARowForHoleElevenOffersNoGrid)
{
    Exec(app.db(), QStringLiteral("DELETE FROM CourseDetails WHERE Hole = 11 AND CourseName = 'Pebble Creek'"));
    openNewOn(QStringLiteral("Pebble Creek"));
    choose(QStringLiteral("cboHoles"), Holes::BackNine);
    EXPECT_FALSE(box("txtScore_9")->isEnabled());
    EXPECT_FALSE(box("txtScore_0")->isEnabled());
    EXPECT_TRUE(box("txtTotalScore")->isVisibleTo(form));
}

TEST_F(ScoreForm, EditShowsTheRoundAndWritesWhatChanged)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    typeHoles(0, 18);
    type(QStringLiteral("txtTotalBunkers"), QStringLiteral("3"));
    type(QStringLiteral("txtAttemptedSaves"), QStringLiteral("2"));
    type(QStringLiteral("txtSandSaves"), QStringLiteral("1"));
    findControl<QCheckBox>(form, "chkExclude")->click();
    save();
    ASSERT_TRUE(messages().isEmpty());
    const qint64 index = Scalar(app.db(), QStringLiteral("SELECT ScoreIndex FROM ScoreLog")).toLongLong();

    frmScore::instance().EditScore(QStringLiteral("Pebble Creek"), QStringLiteral("White"), QDate(2026, 11, 22), index);
    form = frmScore::existing();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Edit Score"));
    EXPECT_EQ(text("lblCourse"), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(text("lblDate"), QStringLiteral("11/22/2026"));
    EXPECT_EQ(text("lblHoles"), Holes::Eighteen);
    EXPECT_FALSE(findControl<QComboBox>(form, "cboCourses")->isVisibleTo(form));
    EXPECT_FALSE(findControl<QPushButton>(form, "cmdCalendar")->isVisibleTo(form));
    EXPECT_TRUE(option(0)->isChecked());
    EXPECT_TRUE(findControl<QCheckBox>(form, "chkExclude")->isChecked());
    EXPECT_EQ(text("txtScore_17"), QStringLiteral("9"));
    EXPECT_EQ(text("txtPutts_14"), QStringLiteral("1"));
    EXPECT_TRUE(fairway(16)->isChecked());
    EXPECT_EQ(text("txtTotalBunkers"), QStringLiteral("3"));
    EXPECT_EQ(text("txtPenalties"), QString()) << "-1 shows as an empty box";
    EXPECT_FALSE(findControl<QPushButton>(form, "cmdSave")->isEnabled());

    box("txtScore_17")->clear();
    type(QStringLiteral("txtScore_17"), QStringLiteral("6"));
    findControl<QCheckBox>(form, "chkExclude")->click();
    save();
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_FALSE(formOpen());
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT Score, AdjustedScore, Used, Details, Bunkers FROM ScoreLog")),
              QStringList{"83|83|N|1|3"});
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT Score FROM ScoreDetails WHERE Hole = 18")), QStringList{"6"});
    EXPECT_EQ(holeRows().size(), 18);
}

TEST_F(ScoreForm, AnEditedRoundWhoseCourseLostItsHoleDataStillLoadsItsHoles)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    typeHoles(0, 18);
    save();
    ASSERT_TRUE(messages().isEmpty());
    const qint64 index = Scalar(app.db(), QStringLiteral("SELECT ScoreIndex FROM ScoreLog")).toLongLong();
    Exec(app.db(), QStringLiteral("DELETE FROM CourseDetails WHERE CourseName = 'Pebble Creek'"));
    frmScore::instance().EditScore(QStringLiteral("Pebble Creek"), QStringLiteral("White"), QDate(2026, 11, 22), index);
    form = frmScore::existing();
    ASSERT_NE(form, nullptr);
    for (int i = 0; i < 18; ++i)
        EXPECT_EQ(text(QStringLiteral("txtScore_%1").arg(i)), QString::number(kScores[i])) << i;
    EXPECT_EQ(text("txtPutts_17"), QStringLiteral("3"));
    EXPECT_EQ(text("txtTotalScore"), QStringLiteral("86"));
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(ScoreForm, EditFromTheLogTakesTheSelectedRound)
{
    RoundSpec r;
    r.score = r.adjusted = 93;
    const qint64 index = addRound(app.db(), r);
    frame->RefreshActiveView();
    auto *log = qobject_cast<frmScoreLog *>(frame->views().loaded(QStringLiteral("frmScoreLog")));
    ASSERT_NE(log, nullptr);
    log->InitializeForm();
    log->selectRow(0);
    frame->UpdateMenus(QStringLiteral("frmScoreLog"));
    ASSERT_TRUE(enabled("mnuEditScore"));
    item(QStringLiteral("mnuEditScore"))->trigger();
    form = frmScore::existing();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(text("lblCourse"), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(text("lblDate"), QStringLiteral("1/1/2026"));
    EXPECT_EQ(text("txtTotal"), QStringLiteral("93")) << "the course has hole data: the grid carries the total";
    EXPECT_EQ(text("txtTotalScore"), QStringLiteral("93"));
    Q_UNUSED(index);
}

TEST_F(ScoreForm, ADivisionByZeroWhileFinishingKeepsTheFormAndTheFirstStage)
{
    // A front nine offered by its hole rows, with no rating or slope of its own.
    Exec(app.db(), QStringLiteral("UPDATE CourseLog SET FrontRating = 0, FrontSlope = 0 WHERE CourseName = 'Pebble Creek'"));
    openNewOn(QStringLiteral("Pebble Creek"));
    choose(QStringLiteral("cboHoles"), Holes::FrontNine);
    typeHoles(0, 9);
    save();
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], "Error 11: Division by zero", MsgIcon::Critical, "Quillon for Golf");
    EXPECT_TRUE(formOpen());
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT AdjustedScore, Differential FROM ScoreLog")),
              QStringList{"1|"});
}

TEST_F(ScoreForm, TabAndEnterMoveThroughTheGridInPlayingOrder)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    QApplication::setActiveWindow(frame);
    box("txtScore_0")->setFocus();
    QStringList visited;
    for (int i = 0; i < 12; ++i) {
        visited << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), i % 2 ? Qt::Key_Tab : Qt::Key_Return);
    }
    EXPECT_EQ(visited, (QStringList{"txtScore_0", "txtPutts_0", "chkFairway_0", "txtScore_1", "txtPutts_1",
                                    "chkFairway_1", "txtScore_2", "txtPutts_2", "txtScore_3", "txtPutts_3",
                                    "chkFairway_3", "txtScore_4"}))
        << "the par 3 third has no fairway box";
}

TEST_F(ScoreForm, TheCalendarWritesTheChosenDay)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    findControl<QPushButton>(form, "cmdCalendar")->click();
    auto *calendar = findControl<QCalendarWidget>(form, "Calendar1");
    EXPECT_TRUE(calendar->isVisible());
    emit calendar->clicked(QDate(2026, 10, 3));
    EXPECT_EQ(text("txtDate"), QStringLiteral("10/3/2026"));
    EXPECT_FALSE(calendar->isVisible());
}

TEST_F(ScoreForm, EnterOnADayOfTheCalendarWritesIt)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    findControl<QPushButton>(form, "cmdCalendar")->click();
    auto *calendar = findControl<QCalendarWidget>(form, "Calendar1");
    calendar->setSelectedDate(QDate(2026, 10, 3));
    QTest::keyClick(calendar->focusWidget() ? calendar->focusWidget() : calendar, Qt::Key_Right);
    QTest::keyClick(calendar->focusWidget() ? calendar->focusWidget() : calendar, Qt::Key_Return);
    EXPECT_EQ(text("txtDate"), QStringLiteral("10/4/2026"));
    EXPECT_FALSE(calendar->isVisible());
    EXPECT_EQ(form->window()->focusWidget(), findControl<QLineEdit>(form, "txtDate"));
}

TEST_F(ScoreForm, KeysTypedInTheCalendarOpenNoDateBoxOfItsOwn)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    findControl<QPushButton>(form, "cmdCalendar")->click();
    auto *calendar = findControl<QCalendarWidget>(form, "Calendar1");
    const auto shownFrames = [calendar] {
        int n = 0;
        for (QFrame *f : calendar->findChildren<QFrame *>(QString(), Qt::FindDirectChildrenOnly))
            n += f->isVisible() ? 1 : 0;
        return n;
    };
    const int before = shownFrames();
    QTest::keyClicks(calendar->focusWidget() ? calendar->focusWidget() : calendar, QStringLiteral("12"));
    EXPECT_EQ(shownFrames(), before);
    EXPECT_TRUE(calendar->isVisible());
    // The form closes at once, the calendar with it: nothing of it may be left behind.
    findControl<QPushButton>(form, "cmdCancel")->click();
}

TEST_F(ScoreForm, ClosingTheProgramWithTypedInputAsksFirst)
{
    openNewOn(QStringLiteral("Pebble Creek"));
    type(QStringLiteral("txtScore_0"), QStringLiteral("5"));
    app.platform().answer(MsgAnswer::No);
    EXPECT_FALSE(frame->close());
    const QVector<ShownMessage> shown = messages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("You have entered information that has not been saved.  Close Quillon "
                                            "for Golf and lose it?"));
    EXPECT_TRUE(formOpen());
}
