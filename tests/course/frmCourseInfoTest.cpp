#include "course/frmCourseInfo.h"
#include "FrameFixture.h"
#include "TestPrinting.h"
#include "course/CourseData.h"

#include <QComboBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QRegularExpression>
#include <QTableView>
#include <QTest>


using namespace quillon;
using namespace quillon::test;

namespace {

// The columns of a CourseLog row that the card shows, by name.
using LogValues = QList<QPair<QString, QVariant>>;

// Another child window of the frame, to put in front of the card and take away again.
class CoverForm : public ViewForm {
public:
    CoverForm() { setObjectName(QStringLiteral("frmCover")); }
    void FormActivate() override {}
};

class CourseInformation : public FrameFixture {
protected:
    // One CourseLog row with only the values given; the rest stay Null.
    void insertTees(const QString &course, const QString &tees, const LogValues &values)
    {
        QStringList columns = {"CourseName", "Tees"};
        Params params = {course, tees};
        for (const auto &v : values) {
            columns << v.first;
            params << v.second;
        }
        Exec(app.db(),
             QStringLiteral("INSERT INTO CourseLog (%1) VALUES (%2)")
                 .arg(columns.join(QStringLiteral(", ")),
                      QStringList(columns.size(), QStringLiteral("?")).join(QStringLiteral(", "))),
             params);
    }
    // Hole rows 1..n; a negative value is stored as Null.
    void insertHoles(const QString &course, const QString &tees, const QVector<int> &pars,
                     const QVector<int> &yards, const QVector<int> &hdcps)
    {
        const auto value = [](int v) { return v < 0 ? QVariant() : QVariant(v); };
        for (int i = 0; i < pars.size(); ++i)
            Exec(app.db(),
                 QStringLiteral("INSERT INTO CourseDetails (CourseName, Tees, Hole, PAR, Yards, Handicap) "
                                "VALUES (?, ?, ?, ?, ?, ?)"),
                 {course, tees, i + 1, value(pars.at(i)), value(yards.at(i)), value(hdcps.at(i))});
    }
    void start() { startWithPalmer(); }
    frmCourseInfo *info() const
    {
        return qobject_cast<frmCourseInfo *>(frame->views().loaded(QStringLiteral("frmCourseInfo")));
    }
    QString text(const QString &label) const
    {
        QLabel *l = findControl<QLabel>(info(), label);
        return l ? l->text() : QStringLiteral("(missing)");
    }
    QComboBox *courses() const { return findControl<QComboBox>(info(), QStringLiteral("dbcboCourses")); }
    QComboBox *tees() const { return findControl<QComboBox>(info(), QStringLiteral("cboTees")); }
    static QStringList items(QComboBox *box) { return ListItems(box); }
    static void pick(QComboBox *box, const QString &text) { PickByKeyboard(box, text); }
    void openFromMenu() { item(QStringLiteral("mnuViewCourseInfo"))->trigger(); }
    QString panelTip() const { return frame->panel(QStringLiteral("ScoreDetails"))->toolTip(); }

    // Two courses: Pebble Creek with White (first) and Yellow tees, and Augusta with one set.
    void addTwoCourses()
    {
        insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("White"),
                   {{"OverallRating", 70.2},
                    {"OverallSlope", 121},
                    {"FrontRating", 35.1},
                    {"FrontSlope", 120},
                    {"BackRating", 35.1},
                    {"BackSlope", 122}});
        insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("Yellow"),
                   {{"OverallRating", 72.8},
                    {"OverallSlope", 131},
                    {"FrontRating", 36.3},
                    {"FrontSlope", 130},
                    {"BackRating", 36.5},
                    {"BackSlope", 132}});
        insertTees(QStringLiteral("Augusta"), QStringLiteral("Red"),
                   {{"OverallRating", 68.4}, {"OverallSlope", 112}});
    }
};

const QStringList kTwelve = {"lblOverallRating", "lblOverallSlope", "lblFrontRating", "lblFrontSlope",
                             "lblBackRating",    "lblBackSlope",    "lblParOut",      "lblYardsOut",
                             "lblParIn",         "lblYardsIn",      "lblTotalPar",    "lblTotalYards"};

} // namespace

TEST_F(CourseInformation, RatingsShowWithOneDecimalAndSlopesAsStored)
{
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("White"),
               {{"OverallRating", 71},
                {"OverallSlope", 113},
                {"FrontRating", 35.5},
                {"FrontSlope", 109},
                {"BackRating", 35.5},
                {"BackSlope", 117}});
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    EXPECT_EQ(info()->windowTitle(), QStringLiteral("Course Information"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("71.0"));
    EXPECT_EQ(text("lblOverallSlope"), QStringLiteral("113"));
    EXPECT_EQ(text("lblFrontRating"), QStringLiteral("35.5"));
    EXPECT_EQ(text("lblFrontSlope"), QStringLiteral("109"));
    EXPECT_EQ(text("lblBackRating"), QStringLiteral("35.5"));
    EXPECT_EQ(text("lblBackSlope"), QStringLiteral("117"));
}

TEST_F(CourseInformation, RatingAndSlopeWrittenAsZeroOrLeftNullShowBlank)
{
    // An edit writes 0 for a box left blank; a new course leaves the column Null.
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("White"),
               {{"OverallRating", 0},
                {"OverallSlope", 0},
                {"FrontRating", 36.1},
                {"FrontSlope", 130},
                {"BackRating", QVariant()},
                {"BackSlope", QVariant()},
                {"ParOut", 0},
                {"TotalYards", 0}});
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    EXPECT_EQ(text("lblOverallRating"), QString());
    EXPECT_EQ(text("lblOverallSlope"), QString());
    EXPECT_EQ(text("lblBackRating"), QString());
    EXPECT_EQ(text("lblBackSlope"), QString());
    EXPECT_EQ(text("lblParOut"), QString());
    EXPECT_EQ(text("lblTotalYards"), QString());
    EXPECT_EQ(text("lblFrontRating"), QStringLiteral("36.1"));
    EXPECT_EQ(text("lblFrontSlope"), QStringLiteral("130"));
}

TEST_F(CourseInformation, NineHoleSetShowsBlanksInTheOverallAndBackFrames)
{
    insertTees(QStringLiteral("Short Nine"), QStringLiteral("White"),
               {{"FrontRating", 34.2}, {"FrontSlope", 118}, {"ParOut", 35}, {"YardsOut", 2950}});
    insertHoles(QStringLiteral("Short Nine"), QStringLiteral("White"), {4, 4, 3, 5, 4, 4, 3, 4, 4},
                {380, 365, 160, 510, 340, 395, 175, 300, 325}, {1, 3, 9, 5, 7, 2, 8, 6, 4});
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    for (const char *blank : {"lblOverallRating", "lblOverallSlope", "lblBackRating", "lblBackSlope",
                              "lblParIn", "lblYardsIn", "lblTotalPar", "lblTotalYards"})
        EXPECT_EQ(text(QLatin1String(blank)), QString()) << blank;
    EXPECT_EQ(text("lblFrontRating"), QStringLiteral("34.2"));
    EXPECT_EQ(text("lblFrontSlope"), QStringLiteral("118"));
    EXPECT_EQ(text("lblParOut"), QStringLiteral("35"));
    EXPECT_EQ(text("lblYardsOut"), QStringLiteral("2950"));
    EXPECT_EQ(text("lblPar_8"), QStringLiteral("4"));
    EXPECT_EQ(text("lblYards_3"), QStringLiteral("510"));
    for (int i = 9; i < 18; ++i) {
        EXPECT_EQ(text(QStringLiteral("lblPar_%1").arg(i)), QString()) << i;
        EXPECT_EQ(text(QStringLiteral("lblYards_%1").arg(i)), QString()) << i;
        EXPECT_EQ(text(QStringLiteral("lblHdcp_%1").arg(i)), QString()) << i;
    }
}

TEST_F(CourseInformation, HoleLabelsShowParYardsAndHandicapOfEachHole)
{
    QVector<int> pars, yards, hdcps;
    for (int i = 0; i < 18; ++i) {
        pars << 3 + i % 3;
        yards << 150 + 20 * i;
        hdcps << 18 - i;
    }
    yards[6] = -1; // a hole without its yardage
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("White"), {{"OverallRating", 70.0}});
    insertHoles(QStringLiteral("Pebble Creek"), QStringLiteral("White"), pars, yards, hdcps);
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    for (int i = 0; i < 18; ++i) {
        EXPECT_EQ(text(QStringLiteral("lblPar_%1").arg(i)), QString::number(pars.at(i))) << i;
        EXPECT_EQ(text(QStringLiteral("lblHdcp_%1").arg(i)), QString::number(hdcps.at(i))) << i;
        EXPECT_EQ(text(QStringLiteral("lblYards_%1").arg(i)),
                  i == 6 ? QString() : QString::number(yards.at(i)))
            << i;
    }
}

TEST_F(CourseInformation, TotalsShownAreTheStoredOnesNotSumsOfTheHoles)
{
    // The holes sum to par 36 and 3150 yards on each nine; the stored totals say otherwise.
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("White"),
               {{"OverallRating", 72.0},
                {"ParOut", 35},
                {"YardsOut", 3012},
                {"ParIn", 37},
                {"YardsIn", 3298},
                {"TotalPar", 71},
                {"TotalYards", 6401}});
    insertHoles(QStringLiteral("Pebble Creek"), QStringLiteral("White"), QVector<int>(18, 4),
                QVector<int>(18, 350), {1, 3, 5, 7, 9, 11, 13, 15, 17, 2, 4, 6, 8, 10, 12, 14, 16, 18});
    // A set saved without details: no totals and an empty grid, and nothing to say about it.
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("Yellow"), {{"OverallRating", 73.1}});
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    EXPECT_EQ(text("lblParOut"), QStringLiteral("35"));
    EXPECT_EQ(text("lblYardsOut"), QStringLiteral("3012"));
    EXPECT_EQ(text("lblParIn"), QStringLiteral("37"));
    EXPECT_EQ(text("lblYardsIn"), QStringLiteral("3298"));
    EXPECT_EQ(text("lblTotalPar"), QStringLiteral("71"));
    EXPECT_EQ(text("lblTotalYards"), QStringLiteral("6401"));

    pick(tees(), QStringLiteral("Yellow"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("73.1"));
    for (const char *total :
         {"lblParOut", "lblYardsOut", "lblParIn", "lblYardsIn", "lblTotalPar", "lblTotalYards"})
        EXPECT_EQ(text(QLatin1String(total)), QString()) << total;
    for (int i = 0; i < 18; ++i)
        EXPECT_EQ(text(QStringLiteral("lblPar_%1").arg(i)), QString()) << i;
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
}

TEST_F(CourseInformation, CoursesAreListedInNameOrderAndTheFirstTeesComeUp)
{
    addTwoCourses();
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    EXPECT_EQ(items(courses()), (QStringList{"Augusta", "Pebble Creek"}));
    pick(courses(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(items(tees()), (QStringList{"White", "Yellow"}));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("White"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("70.2"));
    EXPECT_EQ(text("lblOverallSlope"), QStringLiteral("121"));
    pick(tees(), QStringLiteral("Yellow"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("72.8"));
    EXPECT_EQ(text("lblBackSlope"), QStringLiteral("132"));
    pick(courses(), QStringLiteral("Augusta"));
    EXPECT_EQ(items(tees()), (QStringList{"Red"}));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("68.4"));
    // Nothing of the other course stays behind.
    EXPECT_EQ(text("lblFrontRating"), QString());
    EXPECT_EQ(text("lblBackSlope"), QString());
}

TEST_F(CourseInformation, ViewMenuFromTheScoreLogOpensTheSelectedRoundsCourseAtItsFirstTees)
{
    addTwoCourses();
    RoundSpec older;
    older.course = QStringLiteral("Pebble Creek");
    older.tees = QStringLiteral("Yellow");
    older.date = QDate(2026, 1, 10);
    addRound(app.db(), older);
    RoundSpec newer;
    newer.course = QStringLiteral("Augusta");
    newer.tees = QStringLiteral("Red");
    newer.date = QDate(2026, 3, 1);
    addRound(app.db(), newer);
    start();
    auto *grid = findControl<QTableView>(frame->views().loaded(QStringLiteral("frmScoreLog")),
                                         QStringLiteral("DBGrid1"));
    ASSERT_NE(grid, nullptr);
    ASSERT_EQ(grid->model()->rowCount(), 2);
    // The newest round stands first; the older one, on Pebble Creek, is chosen.
    ASSERT_EQ(grid->model()->index(1, 2).data().toString(), QStringLiteral("Pebble Creek"));
    grid->selectRow(1);
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Pebble Creek"));
    // The round was played from the Yellow tees; the card comes up at the course's first.
    EXPECT_EQ(tees()->currentText(), QStringLiteral("White"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("70.2"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewCourseInfo"});
    EXPECT_EQ(frame->views().loaded(QStringLiteral("frmScoreLog")), nullptr);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmCourseInfo"));
    EXPECT_EQ(panelText(QStringLiteral("ScoreDetails")), QString());
}

TEST_F(CourseInformation, CardIsReadAgainWhenTheViewComesBackFromTheScoreLog)
{
    addTwoCourses();
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    pick(courses(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("70.2"));
    Exec(app.db(),
         QStringLiteral(
             "UPDATE CourseLog SET OverallRating = 69.6 WHERE CourseName = 'Augusta' AND Tees = 'Red'"));
    item(QStringLiteral("mnuViewScoreLog"))->trigger();
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
    EXPECT_EQ(info(), nullptr);
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Augusta"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("69.6"));
}

TEST_F(CourseInformation, CardIsReadAgainEachTimeTheViewBecomesActive)
{
    addTwoCourses();
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    pick(courses(), QStringLiteral("Pebble Creek"));
    pick(tees(), QStringLiteral("Yellow"));
    QPointer<frmCourseInfo> card = info();

    // Another window in front while the row changes; the card is in front again when it goes.
    Exec(app.db(), QStringLiteral("UPDATE CourseLog SET OverallRating = 73.4, BackSlope = 0 "
                                  "WHERE CourseName = 'Pebble Creek' AND Tees = 'Yellow'"));
    auto *cover = new CoverForm;
    frame->openChild(cover);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmCover"));
    auto *coverWindow = qobject_cast<QMdiSubWindow *>(cover->parentWidget());
    ASSERT_NE(coverWindow, nullptr);
    coverWindow->close();
    QApplication::processEvents();
    ASSERT_EQ(info(), card.data());
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmCourseInfo"));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("Yellow"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("73.4"));
    EXPECT_EQ(text("lblBackSlope"), QString());

    // The frame re-shows the checked view after a change made elsewhere.
    insertHoles(QStringLiteral("Pebble Creek"), QStringLiteral("Yellow"), {5}, {540}, {7});
    frame->RefreshActiveView();
    EXPECT_EQ(info(), card.data());
    EXPECT_EQ(text("lblPar_0"), QStringLiteral("5"));
    EXPECT_EQ(text("lblYards_0"), QStringLiteral("540"));
    EXPECT_EQ(text("lblHdcp_0"), QStringLiteral("7"));
}

TEST_F(CourseInformation, FromScoreDetailsThePanelOffersTheWayBack)
{
    addTwoCourses();
    start();
    frame->ShowCourseInfo(QStringLiteral("Pebble Creek"), QStringLiteral("White"), true);
    ASSERT_NE(info(), nullptr);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmCourseInfo"));
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("White"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("70.2"));
    EXPECT_EQ(panelText(QStringLiteral("ScoreDetails")), QStringLiteral("Score Details"));
    EXPECT_EQ(panelTip(), QStringLiteral("Returns to the Score Details screen"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewCourseInfo"});
}

TEST_F(CourseInformation, FromScoreDetailsTheCourseComesUpAtItsFirstTees)
{
    addTwoCourses();
    start();
    // The round was played from the Yellow tees; those are only remembered.
    frame->ShowCourseInfo(QStringLiteral("Pebble Creek"), QStringLiteral("Yellow"), true);
    ASSERT_NE(info(), nullptr);
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("White"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("70.2"));
    EXPECT_EQ(text("lblOverallSlope"), QStringLiteral("121"));
}

TEST_F(CourseInformation, OpenedFromTheMenuThePanelIsEmptied)
{
    addTwoCourses();
    start();
    frame->ShowCourseInfo(QStringLiteral("Pebble Creek"), QStringLiteral("White"), true);
    ASSERT_EQ(panelText(QStringLiteral("ScoreDetails")), QStringLiteral("Score Details"));
    // The same course and tees, asked for without the way back.
    frame->ShowCourseInfo(QStringLiteral("Pebble Creek"), QStringLiteral("White"), false);
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("White"));
    EXPECT_EQ(panelText(QStringLiteral("ScoreDetails")), QString());
    EXPECT_EQ(panelTip(), QString());
}

TEST_F(CourseInformation, OtherTeesEmptyThePanelAndTheOriginalTeesDoNotRestoreIt)
{
    addTwoCourses();
    start();
    frame->ShowCourseInfo(QStringLiteral("Pebble Creek"), QStringLiteral("White"), true);
    ASSERT_EQ(panelText(QStringLiteral("ScoreDetails")), QStringLiteral("Score Details"));
    pick(tees(), QStringLiteral("Yellow"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("72.8"));
    EXPECT_EQ(panelText(QStringLiteral("ScoreDetails")), QString());
    EXPECT_EQ(panelTip(), QString());
    pick(tees(), QStringLiteral("White"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("70.2"));
    EXPECT_EQ(panelText(QStringLiteral("ScoreDetails")), QString());
    EXPECT_EQ(panelTip(), QString());
    // With the panel empty a click on it leads nowhere.
    emit frame->panelClicked(QStringLiteral("ScoreDetails"));
    EXPECT_NE(info(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewCourseInfo"});
}

TEST_F(CourseInformation, AnotherCourseEmptiesThePanel)
{
    addTwoCourses();
    // Tees of the same name on another course: the course alone makes the difference.
    insertTees(QStringLiteral("Cypress Point"), QStringLiteral("White"), {{"OverallRating", 72.4}});
    start();
    frame->ShowCourseInfo(QStringLiteral("Pebble Creek"), QStringLiteral("White"), true);
    ASSERT_EQ(panelText(QStringLiteral("ScoreDetails")), QStringLiteral("Score Details"));
    pick(courses(), QStringLiteral("Cypress Point"));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("White"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("72.4"));
    EXPECT_EQ(panelText(QStringLiteral("ScoreDetails")), QString());
    EXPECT_EQ(panelTip(), QString());
}

TEST_F(CourseInformation, ClickOnTheScoreDetailsPanelLeavesTheCard)
{
    addTwoCourses();
    start();
    frame->ShowCourseInfo(QStringLiteral("Pebble Creek"), QStringLiteral("White"), true);
    ASSERT_NE(info(), nullptr);
    item(QStringLiteral("mnuViewUltimateScorecard"))->setChecked(true);
    emit frame->panelClicked(QStringLiteral("ScoreDetails"));
    EXPECT_EQ(info(), nullptr);
    EXPECT_TRUE(item(QStringLiteral("mnuViewScoreLog"))->isChecked());
    EXPECT_FALSE(item(QStringLiteral("mnuViewCourseInfo"))->isChecked());
    EXPECT_FALSE(item(QStringLiteral("mnuViewUltimateScorecard"))->isChecked());
    EXPECT_EQ(panelText(QStringLiteral("ScoreDetails")), QString());
    // The view the card was asked from is in front again.
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
}

TEST_F(CourseInformation, MouseReleaseOnTheScoreDetailsPanelLeavesTheCard)
{
    addTwoCourses();
    start();
    frame->ShowCourseInfo(QStringLiteral("Pebble Creek"), QStringLiteral("White"), true);
    ASSERT_NE(info(), nullptr);
    QLabel *panel = frame->panel(QStringLiteral("ScoreDetails"));
    QTest::mouseClick(panel, Qt::LeftButton, {}, panel->rect().center());
    EXPECT_EQ(info(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
}

TEST_F(CourseInformation, ClickOnTheEmptyPanelKeepsTheCard)
{
    addTwoCourses();
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    QLabel *panel = frame->panel(QStringLiteral("ScoreDetails"));
    QTest::mouseClick(panel, Qt::LeftButton, {}, panel->rect().center());
    EXPECT_NE(info(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewCourseInfo"});
}

TEST_F(CourseInformation, NoCourseSaysThereAreNoCourseStatistics)
{
    start();
    frame->ShowCourseInfo(QString(), QString(), false);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text,
              QStringLiteral("There are no course statistics in the database.  Please select New "
                             "Course from the File menu to enter course statistics."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, QStringLiteral("Course Information"));
    EXPECT_EQ(info(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
}

TEST_F(CourseInformation, CourseGoneMeanwhileSaysCourseDataIsNotAvailable)
{
    addTwoCourses();
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    ASSERT_EQ(courses()->currentText(), QStringLiteral("Augusta"));
    Exec(app.db(), QStringLiteral("DELETE FROM CourseLog WHERE CourseName = 'Pebble Creek'"));
    pick(courses(), QStringLiteral("Pebble Creek"));
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Course data is not available."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, QStringLiteral("Course Information"));
    EXPECT_EQ(tees()->count(), 0);
}

TEST_F(CourseInformation, CourseAndTeesWithApostrophesAreShown)
{
    insertTees(QStringLiteral("St. Andrew's"), QStringLiteral("Members'"),
               {{"OverallRating", 72.1}, {"OverallSlope", 129}, {"TotalPar", 72}});
    insertHoles(QStringLiteral("St. Andrew's"), QStringLiteral("Members'"), {4, 4}, {376, 411}, {9, 3});
    RoundSpec round;
    round.course = QStringLiteral("St. Andrew's");
    round.tees = QStringLiteral("Members'");
    addRound(app.db(), round);
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
    EXPECT_EQ(courses()->currentText(), QStringLiteral("St. Andrew's"));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("Members'"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("72.1"));
    EXPECT_EQ(text("lblOverallSlope"), QStringLiteral("129"));
    EXPECT_EQ(text("lblTotalPar"), QStringLiteral("72"));
    EXPECT_EQ(text("lblYards_1"), QStringLiteral("411"));
    EXPECT_EQ(text("lblHdcp_0"), QStringLiteral("9"));
}

TEST_F(CourseInformation, DatabaseFailureWhileOpeningShowsTheError)
{
    addTwoCourses();
    start();
    Exec(app.db(), QStringLiteral("DROP TABLE CourseLog"));
    frame->ShowCourseInfo(QStringLiteral("Augusta"), QString(), false);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_TRUE(
        QRegularExpression(QStringLiteral("^Error \\d+: .*CourseLog")).match(shown[0].text).hasMatch())
        << shown[0].text.toStdString();
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
}

TEST_F(CourseInformation, EveryValueLabelIsBlankedBeforeTheNextTeesAreShown)
{
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("White"),
               {{"OverallRating", 70.1},
                {"OverallSlope", 121},
                {"FrontRating", 35.1},
                {"FrontSlope", 120},
                {"BackRating", 35.0},
                {"BackSlope", 122},
                {"ParOut", 36},
                {"YardsOut", 3100},
                {"ParIn", 36},
                {"YardsIn", 3200},
                {"TotalPar", 72},
                {"TotalYards", 6300}});
    insertHoles(QStringLiteral("Pebble Creek"), QStringLiteral("White"), QVector<int>(18, 4),
                QVector<int>(18, 300), QVector<int>(18, 1));
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("Yellow"), {{"YardsIn", 2800}});
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    for (const QString &label : kTwelve)
        ASSERT_FALSE(text(label).isEmpty()) << label.toStdString();
    pick(tees(), QStringLiteral("Yellow"));
    for (const QString &label : kTwelve)
        EXPECT_EQ(text(label), label == QLatin1String("lblYardsIn") ? QStringLiteral("2800") : QString())
            << label.toStdString();
    for (int i = 0; i < 18; ++i)
        for (const char *row : {"lblPar_%1", "lblYards_%1", "lblHdcp_%1"})
            EXPECT_EQ(text(QString::fromLatin1(row).arg(i)), QString()) << row << i;
}

TEST_F(CourseInformation, TheFirstTeesAreTheFirstEnteredNotTheFirstByName)
{
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("White"), {{"OverallRating", 70.2}, {"OverallSlope", 121}});
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("Blue"), {{"OverallRating", 72.8}, {"OverallSlope", 131}});
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    EXPECT_EQ(items(tees()), (QStringList{"White", "Blue"}));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("White"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("70.2"));
}

TEST_F(CourseInformation, ListsAreReadAgainWhenTheViewComesBackAfterADelete)
{
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("White"), {{"OverallRating", 70.2}, {"OverallSlope", 121}});
    insertTees(QStringLiteral("Pebble Creek"), QStringLiteral("Blue"), {{"OverallRating", 72.8}, {"OverallSlope", 131}});
    insertTees(QStringLiteral("Augusta"), QStringLiteral("Gold"), {{"OverallRating", 74.0}, {"OverallSlope", 140}});
    start();
    openFromMenu();
    ASSERT_NE(info(), nullptr);
    pick(courses(), QStringLiteral("Pebble Creek"));
    pick(tees(), QStringLiteral("Blue"));
    ASSERT_EQ(text("lblOverallRating"), QStringLiteral("72.8"));

    // The tees shown go while the card stays open, and a new course comes.
    DeleteTees(app.db(), QStringLiteral("Pebble Creek"), QStringLiteral("Blue"));
    insertTees(QStringLiteral("Bandon"), QStringLiteral("Green"), {{"OverallRating", 71.0}, {"OverallSlope", 128}});
    frame->RefreshActiveView();
    EXPECT_EQ(items(courses()), (QStringList{"Augusta", "Bandon", "Pebble Creek"}));
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(items(tees()), QStringList{"White"});
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("70.2")) << "the course's remaining tees";

    // The whole course goes: the first course comes up.
    DeleteTees(app.db(), QStringLiteral("Pebble Creek"), QStringLiteral("White"));
    frame->RefreshActiveView();
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Augusta"));
    EXPECT_EQ(text("lblOverallRating"), QStringLiteral("74.0"));
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
}
