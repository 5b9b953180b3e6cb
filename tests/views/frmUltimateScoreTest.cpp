#include "views/frmUltimateScore.h"
#include "FrameFixture.h"
#include "TestPrinting.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPushButton>
#include <QTableView>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

namespace {

// The pars of the fixture's course (CourseSpec): 36 out, 36 in.
const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

// Another child window of the frame, to put in front of the card and take away again.
class CoverForm : public ViewForm {
public:
    CoverForm() { setObjectName(QStringLiteral("frmCover")); }
    void FormActivate() override {}
};

const QString kNoRoundsMessage =
    QStringLiteral("You must enter scores with details before viewing the Ultimate Scorecard.");

class UltimateScorecard : public FrameFixture {
protected:
    frmUltimateScore *card() const
    {
        return qobject_cast<frmUltimateScore *>(frame->views().loaded(QStringLiteral("frmUltimateScore")));
    }
    QLabel *label(const QString &name) const { return findControl<QLabel>(card(), name); }
    QString text(const QString &name) const
    {
        QLabel *l = label(name);
        return l ? l->text() : QStringLiteral("(missing)");
    }
    // A label of the page that goes with the card.
    QString page(const QString &name) const
    {
        frmPrintUltimate *p = card() ? card()->printForm() : nullptr;
        QLabel *l = findControl<QLabel>(p, name);
        return l ? l->text() : QStringLiteral("(missing)");
    }
    QString cell(const char *row, int index) const
    {
        return text(QStringLiteral("%1_%2").arg(QLatin1String(row)).arg(index));
    }
    QString pageCell(const char *row, int index) const
    {
        return page(QStringLiteral("%1_%2").arg(QLatin1String(row)).arg(index));
    }
    // The mark of a score cell: "#ffff00" and so on, empty for the plain colour.
    QString colour(int index) const
    {
        QLabel *l = label(QStringLiteral("lblScore_%1").arg(index));
        return l ? l->property("scoreColour").toString() : QStringLiteral("(missing)");
    }
    QComboBox *courses() const { return findControl<QComboBox>(card(), QStringLiteral("dbcboCourses")); }
    QComboBox *tees() const { return findControl<QComboBox>(card(), QStringLiteral("cboTees")); }
    QCheckBox *currentYear() const
    {
        return findControl<QCheckBox>(card(), QStringLiteral("chkCurrentYear"));
    }
    static QStringList items(QComboBox *box) { return ListItems(box); }
    static void pick(QComboBox *box, const QString &text) { PickByKeyboard(box, text); }
    void openFromMenu() { item(QStringLiteral("mnuViewUltimateScorecard"))->trigger(); }

    // A round entered hole by hole: scores[i] on hole firstHole + i.
    void playRound(RoundSpec r, int firstHole, const QVector<int> &scores)
    {
        r.details = true;
        const qint64 index = addRound(app.db(), r);
        addHoleScores(app.db(), r, index, firstHole, scores, kPars.mid(firstHole - 1, scores.size()));
    }
    static RoundSpec on(const QDate &date, const QString &tees = QStringLiteral("White"),
                        const QString &course = QStringLiteral("Pebble Creek"))
    {
        RoundSpec r;
        r.date = date;
        r.tees = tees;
        r.course = course;
        return r;
    }
    static QVector<int> same(int score, int holes) { return QVector<int>(holes, score); }
    // The course of the fixture from another set of tees, with the same holes.
    void addTees(const QString &tees)
    {
        CourseSpec spec;
        spec.tees = tees;
        addCourse(app.db(), spec);
    }
    void expectNoMessages() { EXPECT_TRUE(app.platform().takeMessages().isEmpty()); }
};

} // namespace

TEST_F(UltimateScorecard, ThreeRoundsWithFourFourFiveShowFourAndParIsYellow)
{
    addCourse(app.db());
    playRound(on(QDate(2026, 2, 1)), 1, same(4, 18));
    playRound(on(QDate(2026, 3, 1)), 1, same(4, 18));
    QVector<int> worse = same(5, 18);
    playRound(on(QDate(2026, 4, 1)), 1, worse);
    // Another golfer's better score on the same hole is not Palmer's.
    RoundSpec other = on(QDate(2026, 4, 2));
    other.last = QStringLiteral("Nicklaus");
    other.first = QStringLiteral("Jack");
    playRound(other, 1, same(2, 18));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    expectNoMessages();
    EXPECT_EQ(card()->windowTitle(), QStringLiteral("Ultimate Scorecard"));
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("4"));
    EXPECT_EQ(cell("lblPar", 0), QStringLiteral("4"));
    EXPECT_EQ(colour(0), QStringLiteral("#ffff00"));
    EXPECT_EQ(text("lblNumRounds"), QStringLiteral("3 Rounds Played"));
}

TEST_F(UltimateScorecard, ScoresOnlyOnTheFrontNineLeaveTheBackNineAndTotalsBlank)
{
    addCourse(app.db());
    RoundSpec front = on(QDate(2026, 5, 1));
    front.holes = QStringLiteral("9-holes (front)");
    playRound(front, 1, {5, 4, 3, 6, 5, 4, 4, 5, 5});
    front.date = QDate(2026, 5, 8);
    playRound(front, 1, {4, 5, 4, 5, 4, 5, 3, 6, 6});
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    expectNoMessages();
    // Bests 4 4 3 5 4 4 3 5 5.
    EXPECT_EQ(text("lblOut"), QStringLiteral("37"));
    EXPECT_EQ(text("lblParOut"), QStringLiteral("36"));
    EXPECT_EQ(page("lblOut"), QStringLiteral("37 "));
    EXPECT_EQ(page("lblParOut"), QStringLiteral("36 "));
    for (const char *blank : {"lblIn", "lblParIn", "lblTotal", "lblTotalPar"}) {
        EXPECT_EQ(text(QLatin1String(blank)), QString()) << blank;
        EXPECT_EQ(page(QLatin1String(blank)), QString()) << blank;
    }
    for (int i = 9; i < 18; ++i)
        for (const char *row : {"lblScore", "lblPar", "lblHdcp"}) {
            EXPECT_EQ(cell(row, i), QString()) << row << i;
            EXPECT_EQ(pageCell(row, i), QString()) << row << i;
        }
    EXPECT_EQ(cell("lblScore", 7), QStringLiteral("5"));
    EXPECT_EQ(cell("lblHdcp", 7), QStringLiteral("8"));
    EXPECT_EQ(text("lblNumRounds"), QStringLiteral("2 Rounds Played"));
}

TEST_F(UltimateScorecard, ScoresOnlyOnTheBackNineLeaveTheFrontNineAndTotalsBlank)
{
    addCourse(app.db());
    RoundSpec back = on(QDate(2026, 6, 1));
    back.holes = QStringLiteral("9-holes (back)");
    playRound(back, 10, {4, 4, 3, 6, 5, 3, 4, 5, 6});
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    expectNoMessages();
    EXPECT_EQ(text("lblIn"), QStringLiteral("40"));
    EXPECT_EQ(text("lblParIn"), QStringLiteral("36"));
    EXPECT_EQ(page("lblIn"), QStringLiteral("40 "));
    for (const char *blank : {"lblOut", "lblParOut", "lblTotal", "lblTotalPar"}) {
        EXPECT_EQ(text(QLatin1String(blank)), QString()) << blank;
        EXPECT_EQ(page(QLatin1String(blank)), QString()) << blank;
    }
    for (int i = 0; i < 9; ++i)
        for (const char *row : {"lblScore", "lblPar", "lblHdcp"})
            EXPECT_EQ(cell(row, i), QString()) << row << i;
    EXPECT_EQ(cell("lblScore", 17), QStringLiteral("6"));
    EXPECT_EQ(cell("lblPar", 17), QStringLiteral("5"));
    EXPECT_EQ(text("lblNumRounds"), QStringLiteral("1 Round Played"));
}

TEST_F(UltimateScorecard, ColoursMarkParBirdieAndEagleOnly)
{
    addCourse(app.db());
    // Holes 1-9 are par 4 4 3 5 4 4 3 4 5.
    playRound(on(QDate(2026, 7, 1)), 1, {1, 2, 2, 5, 5, 4, 3, 3, 3});
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    expectNoMessages();
    EXPECT_EQ(colour(0), QString()) << "a hole-in-one on a par 4 is three under: plain";
    EXPECT_EQ(colour(1), QStringLiteral("#00ffff")) << "two under";
    EXPECT_EQ(colour(2), QStringLiteral("#00ff00")) << "one under";
    EXPECT_EQ(colour(3), QStringLiteral("#ffff00")) << "par";
    EXPECT_EQ(colour(4), QString()) << "a bogey";
    EXPECT_EQ(colour(7), QStringLiteral("#00ff00"));
    EXPECT_EQ(colour(8), QStringLiteral("#00ffff"));
    // The page carries the scores without the colours.
    QLabel *onPage = findControl<QLabel>(card()->printForm(), QStringLiteral("lblScore_1"));
    ASSERT_NE(onPage, nullptr);
    EXPECT_EQ(onPage->text(), QStringLiteral("2"));
    EXPECT_FALSE(onPage->property("scoreColour").isValid());
}

TEST_F(UltimateScorecard, SumsAreTheBestOfEachNineAndTheirTotal)
{
    addCourse(app.db());
    playRound(on(QDate(2026, 2, 1)), 1, {5, 5, 4, 6, 5, 5, 4, 5, 6, 4, 5, 3, 6, 5, 5, 4, 5, 6});
    playRound(on(QDate(2026, 3, 1)), 1, {4, 6, 3, 6, 6, 4, 4, 4, 7, 5, 4, 4, 5, 5, 4, 4, 4, 5});
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    expectNoMessages();
    // Front bests 4 5 3 6 5 4 4 4 6 = 41; back 4 4 3 5 5 4 4 4 5 = 38.
    EXPECT_EQ(text("lblOut"), QStringLiteral("41"));
    EXPECT_EQ(text("lblIn"), QStringLiteral("38"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("79"));
    EXPECT_EQ(text("lblParOut"), QStringLiteral("36"));
    EXPECT_EQ(text("lblParIn"), QStringLiteral("36"));
    EXPECT_EQ(text("lblTotalPar"), QStringLiteral("72"));
    EXPECT_EQ(page("lblOut"), QStringLiteral("41 "));
    EXPECT_EQ(page("lblIn"), QStringLiteral("38 "));
    EXPECT_EQ(page("lblTotal"), QStringLiteral("79 "));
    EXPECT_EQ(page("lblTotalPar"), QStringLiteral("72 "));
    EXPECT_EQ(page("lblParIn"), QStringLiteral("36 "));
}

TEST_F(UltimateScorecard, RoundsPlayedCountsTheLastHoleWithRowsNotTheRounds)
{
    addCourse(app.db());
    playRound(on(QDate(2026, 2, 1)), 1, same(5, 18));
    playRound(on(QDate(2026, 3, 1)), 1, same(5, 18));
    RoundSpec front = on(QDate(2026, 4, 1));
    front.holes = QStringLiteral("9-holes (front)");
    playRound(front, 1, same(4, 9));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    expectNoMessages();
    // Three rounds, of which two reach hole 18.
    EXPECT_EQ(text("lblNumRounds"), QStringLiteral("2 Rounds Played"));
    EXPECT_EQ(page("lblNumRounds"), QStringLiteral("2 Rounds Played"));
    EXPECT_FALSE(label(QStringLiteral("lblNumRounds"))->isHidden());
    EXPECT_FALSE(findControl<QLabel>(card()->printForm(), QStringLiteral("lblNumRounds"))->isHidden());
    EXPECT_EQ(text("lblOut"), QStringLiteral("36"));
    EXPECT_EQ(text("lblIn"), QStringLiteral("45"));
}

TEST_F(UltimateScorecard, PageIsFilledAlongsideTheCard)
{
    addCourse(app.db());
    playRound(on(QDate(2026, 2, 1)), 1, {3, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5});
    startWithPalmer();
    frame->setHandicapPanel(QStringLiteral("Handicap: 12.4"));
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    expectNoMessages();
    ASSERT_NE(card()->printForm(), nullptr);
    EXPECT_FALSE(card()->printForm()->isVisible());
    EXPECT_EQ(page("lblCourse"), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(page("lblTees"), QStringLiteral("White"));
    EXPECT_EQ(page("lblGolfer"), QStringLiteral("Arnold Palmer"));
    EXPECT_EQ(page("lblHandicap"), QStringLiteral("12.4"));
    EXPECT_EQ(page("lblDate"), QStringLiteral("11/22/2026"));
    for (int i = 0; i < 18; ++i) {
        EXPECT_EQ(pageCell("lblPar", i), QString::number(kPars.at(i))) << i;
        EXPECT_EQ(pageCell("lblHdcp", i), QString::number(i + 1)) << i;
    }
    EXPECT_EQ(pageCell("lblScore", 0), QStringLiteral("3"));
    EXPECT_EQ(pageCell("lblScore", 17), QStringLiteral("5"));
    EXPECT_EQ(page("lblParOut"), QStringLiteral("36 "));
    EXPECT_EQ(page("lblOut"), QStringLiteral("35 "));
    EXPECT_EQ(page("lblIn"), QStringLiteral("36 "));
    EXPECT_EQ(page("lblTotal"), QStringLiteral("71 "));
    EXPECT_EQ(page("lblNumRounds"), QStringLiteral("1 Round Played"));
}

TEST_F(UltimateScorecard, ParToolTipTellsTheYards)
{
    addCourse(app.db());
    Exec(app.db(), QStringLiteral("UPDATE CourseDetails SET Yards = 412 WHERE Hole = 1"));
    Exec(app.db(), QStringLiteral("UPDATE CourseDetails SET Yards = NULL WHERE Hole = 2"));
    playRound(on(QDate(2026, 2, 1)), 1, same(4, 18));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    EXPECT_EQ(label(QStringLiteral("lblPar_0"))->toolTip(), QStringLiteral("412 yards"));
    EXPECT_EQ(label(QStringLiteral("lblPar_1"))->toolTip(), QString());
    EXPECT_EQ(label(QStringLiteral("lblPar_17"))->toolTip(), QStringLiteral("350 yards"));
}

TEST_F(UltimateScorecard, CurrentYearBoxIsDisabledAndClearedWithNoRoundThisYear)
{
    addCourse(app.db());
    addTees(QStringLiteral("Blue"));
    playRound(on(QDate(2026, 1, 1), QStringLiteral("White")), 1, same(4, 18)); // this year's first day
    playRound(on(QDate(2025, 12, 31), QStringLiteral("Blue")), 1, same(5, 18));
    startWithPalmer();
    // The course comes up at its first tees, Blue, with no round this year.
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    ASSERT_EQ(tees()->currentText(), QStringLiteral("Blue"));
    EXPECT_FALSE(currentYear()->isEnabled());
    EXPECT_FALSE(currentYear()->isChecked());
    EXPECT_EQ(currentYear()->text(), QStringLiteral("Show ultimate scorecard for current year only"));

    pick(tees(), QStringLiteral("White"));
    EXPECT_TRUE(currentYear()->isEnabled());
    currentYear()->click();
    ASSERT_TRUE(currentYear()->isChecked());
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("4"));

    pick(tees(), QStringLiteral("Blue"));
    EXPECT_FALSE(currentYear()->isChecked());
    EXPECT_FALSE(currentYear()->isEnabled());
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("5"));
    expectNoMessages();
}

TEST_F(UltimateScorecard, CurrentYearClickRunsThePassAgainWithoutClearingTheCard)
{
    addCourse(app.db());
    playRound(on(QDate(2025, 6, 1)), 1, same(4, 18));
    // This year's round has no row for hole 1.
    playRound(on(QDate(2026, 6, 1)), 2, same(5, 17));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    ASSERT_EQ(text("lblOut"), QStringLiteral("36"));
    ASSERT_EQ(colour(0), QStringLiteral("#ffff00"));
    ASSERT_EQ(text("lblNumRounds"), QStringLiteral("2 Rounds Played"));

    currentYear()->click();
    ASSERT_TRUE(currentYear()->isChecked());
    // Hole 1 keeps last year's 4 and its colour while the sum leaves it out: 8 x 5.
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("4"));
    EXPECT_EQ(colour(0), QStringLiteral("#ffff00"));
    EXPECT_EQ(cell("lblScore", 1), QStringLiteral("5"));
    EXPECT_EQ(colour(1), QString());
    EXPECT_EQ(text("lblOut"), QStringLiteral("40"));
    EXPECT_EQ(text("lblIn"), QStringLiteral("45"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("85"));
    EXPECT_EQ(page("lblOut"), QStringLiteral("40 "));
    EXPECT_EQ(text("lblNumRounds"), QStringLiteral("1 Round Played"));

    currentYear()->click();
    EXPECT_FALSE(currentYear()->isChecked());
    EXPECT_EQ(cell("lblScore", 1), QStringLiteral("4"));
    EXPECT_EQ(text("lblOut"), QStringLiteral("36"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("72"));

    // The next tees choice clears the card first.
    currentYear()->click();
    ASSERT_EQ(text("lblOut"), QStringLiteral("40"));
    card()->UpdateScorecard();
    EXPECT_EQ(cell("lblScore", 0), QString());
    EXPECT_EQ(colour(0), QString());
    EXPECT_EQ(text("lblOut"), QStringLiteral("40"));
    expectNoMessages();
}

TEST_F(UltimateScorecard, NothingEnteredForTheGolferSaysSoAndTheFormCloses)
{
    addCourse(app.db());
    startWithPalmer();
    // The menu rule keeps the item off without detailed rounds.
    ASSERT_FALSE(enabled(QStringLiteral("mnuViewUltimateScorecard")));
    auto &view = static_cast<frmUltimateScore &>(frame->views().load(QStringLiteral("frmUltimateScore")));
    EXPECT_FALSE(view.ShowUltimateScore(QString(), QString()));
    auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, kNoRoundsMessage);
    EXPECT_EQ(shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(shown[0].title, QStringLiteral("Ultimate Scorecard"));
    frame->views().unload(QStringLiteral("frmUltimateScore"));

    // Through the frame's handler, as if the item were on: the view goes again.
    item(QStringLiteral("mnuViewUltimateScorecard"))->setEnabled(true);
    openFromMenu();
    shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, kNoRoundsMessage);
    EXPECT_EQ(card(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
}

TEST_F(UltimateScorecard, SelectedRoundWithoutDetailsSaysThereAreNoScoresWithDetailsThere)
{
    addCourse(app.db());
    CourseSpec augusta;
    augusta.name = QStringLiteral("Augusta");
    augusta.tees = QStringLiteral("Red");
    addCourse(app.db(), augusta);
    playRound(on(QDate(2026, 2, 1)), 1, same(4, 18));
    // The newest round, selected in the log, was entered without holes.
    addRound(app.db(), on(QDate(2026, 3, 1), QStringLiteral("Red"), QStringLiteral("Augusta")));
    startWithPalmer();
    ASSERT_TRUE(enabled(QStringLiteral("mnuViewUltimateScorecard")));
    openFromMenu();
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text,
              QStringLiteral("You have not entered any scores with details on the selected course."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(shown[0].title, QStringLiteral("Ultimate Scorecard"));
    EXPECT_EQ(card(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
}

TEST_F(UltimateScorecard, CourseWithoutDetailsSaysSoAndTheFormStaysOpenForAnotherChoice)
{
    addCourse(app.db());
    // The Blue tees have their CourseLog row and no hole rows.
    Exec(app.db(), QStringLiteral("INSERT INTO CourseLog (CourseName, Tees, OverallRating, OverallSlope) "
                                  "VALUES ('Pebble Creek', 'Blue', 72.3, 130)"));
    playRound(on(QDate(2026, 2, 1), QStringLiteral("Blue")), 1, same(5, 18));
    playRound(on(QDate(2026, 1, 5), QStringLiteral("White")), 1, same(4, 18));
    startWithPalmer();
    frame->views().load(QStringLiteral("frmUltimateScore"));
    ASSERT_TRUE(card()->ShowUltimateScore(QStringLiteral("Pebble Creek"), QStringLiteral("White")));
    frame->views().switchTo(QStringLiteral("frmUltimateScore"));
    // The course comes up at its first tees, Blue.
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text,
              QStringLiteral("Course details for the Blue tees at Pebble Creek are incomplete.  "
                             "Unable to display an ultimate scorecard.  Please select Edit Course "
                             "off the menu to enter course details."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Information);
    EXPECT_EQ(shown[0].title, QStringLiteral("Ultimate Scorecard"));
    ASSERT_NE(card(), nullptr);
    EXPECT_EQ(tees()->currentText(), QStringLiteral("Blue"));
    for (int i = 0; i < 18; ++i)
        for (const char *row : {"lblScore", "lblPar", "lblHdcp"})
            EXPECT_EQ(cell(row, i), QString()) << row << i;
    for (const char *blank : {"lblOut", "lblIn", "lblTotal", "lblNumRounds"})
        EXPECT_EQ(text(QLatin1String(blank)), QString()) << blank;

    pick(tees(), QStringLiteral("White"));
    expectNoMessages();
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("4"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("72"));
}

TEST_F(UltimateScorecard, CourseComesUpAtItsFirstTeesWhicheverTeesWereAsked)
{
    addCourse(app.db());
    addTees(QStringLiteral("Blue"));
    playRound(on(QDate(2026, 2, 1), QStringLiteral("Blue")), 1, same(5, 18));
    playRound(on(QDate(2026, 3, 1), QStringLiteral("White")), 1, same(4, 18));
    startWithPalmer();
    // The log's newest round was played from the White tees.
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(items(tees()), (QStringList{"Blue", "White"}));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("Blue"));
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("5"));
    expectNoMessages();
}

TEST_F(UltimateScorecard, CourseListHoldsEachCoursePlayedHoleByHoleOnce)
{
    addCourse(app.db());
    addTees(QStringLiteral("Blue"));
    CourseSpec augusta;
    augusta.name = QStringLiteral("Augusta");
    augusta.tees = QStringLiteral("Red");
    addCourse(app.db(), augusta);
    CourseSpec bandon;
    bandon.name = QStringLiteral("Bandon");
    addCourse(app.db(), bandon);
    playRound(on(QDate(2026, 2, 1), QStringLiteral("Blue")), 1, same(5, 18));
    playRound(on(QDate(2026, 3, 1), QStringLiteral("White")), 1, same(4, 18));
    playRound(on(QDate(2026, 4, 1), QStringLiteral("Red"), QStringLiteral("Augusta")), 1, same(6, 18));
    addRound(app.db(), on(QDate(2026, 1, 1), QStringLiteral("White"), QStringLiteral("Bandon"))); // no holes
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    EXPECT_EQ(items(courses()), (QStringList{"Augusta", "Pebble Creek"}));
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Augusta"));
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("6"));
    pick(courses(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(items(tees()), (QStringList{"Blue", "White"}));
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("5"));
    pick(tees(), QStringLiteral("White"));
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("4"));
    expectNoMessages();
}

TEST_F(UltimateScorecard, CourseAndTeesWithApostrophesWork)
{
    CourseSpec spec;
    spec.name = QStringLiteral("St. Andrew's");
    spec.tees = QStringLiteral("Members'");
    addCourse(app.db(), spec);
    playRound(on(QDate(2026, 8, 1), spec.tees, spec.name), 1, same(4, 18));
    playRound(on(QDate(2026, 8, 2), spec.tees, spec.name), 1, same(3, 18));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    expectNoMessages();
    EXPECT_EQ(courses()->currentText(), QStringLiteral("St. Andrew's"));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("Members'"));
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("3"));
    EXPECT_EQ(cell("lblPar", 0), QStringLiteral("4"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("54"));
    EXPECT_EQ(text("lblNumRounds"), QStringLiteral("2 Rounds Played"));
    EXPECT_TRUE(currentYear()->isEnabled());
    EXPECT_EQ(page("lblCourse"), QStringLiteral("St. Andrew's"));
}

TEST_F(UltimateScorecard, BothSumsZeroSayThereIsNothingToShow)
{
    addCourse(app.db());
    playRound(on(QDate(2026, 2, 1)), 1, same(0, 18));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text,
              QStringLiteral("Unable to show the ultimate scorecard for the White tees at Pebble "
                             "Creek -- you have not entered any score details rounds played on "
                             "this course.  Please select a different course and/or tees."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Exclamation);
    EXPECT_EQ(shown[0].title, QStringLiteral("Ultimate Scorecard"));
    for (const char *blank :
         {"lblScore_0", "lblPar_0", "lblOut", "lblIn", "lblTotal", "lblNumRounds", "lblTotalPar"})
        EXPECT_EQ(text(QLatin1String(blank)), QString()) << blank;
    EXPECT_EQ(page("lblOut"), QString());
}

TEST_F(UltimateScorecard, NullParUnderAScoreReachesTheLastLineOfDefence)
{
    addCourse(app.db());
    Exec(app.db(), QStringLiteral("UPDATE CourseDetails SET PAR = NULL WHERE Hole = 3"));
    playRound(on(QDate(2026, 2, 1)), 1, same(4, 18));
    startWithPalmer();
    openFromMenu();
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Run-time error '13':\n\nType mismatch"));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
    // The program goes on with the card as far as it got: hole 3 written, nothing after it.
    ASSERT_NE(card(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewUltimateScorecard"});
    EXPECT_EQ(cell("lblScore", 1), QStringLiteral("4"));
    EXPECT_EQ(colour(1), QStringLiteral("#ffff00"));
    EXPECT_EQ(cell("lblScore", 2), QStringLiteral("4"));
    EXPECT_EQ(cell("lblPar", 2), QString());
    EXPECT_EQ(colour(2), QString());
    EXPECT_EQ(cell("lblScore", 3), QString());
    EXPECT_EQ(text("lblOut"), QString());
    EXPECT_EQ(text("lblNumRounds"), QStringLiteral("1 Round Played"));

    // Another choice works as before.
    Exec(app.db(), QStringLiteral("UPDATE CourseDetails SET PAR = 3 WHERE Hole = 3"));
    card()->UpdateScorecard();
    expectNoMessages();
    EXPECT_EQ(text("lblOut"), QStringLiteral("36"));
}

TEST_F(UltimateScorecard, ViewMenuOpensTheCardOfTheRoundSelectedInTheLog)
{
    addCourse(app.db());
    CourseSpec augusta;
    augusta.name = QStringLiteral("Augusta");
    augusta.tees = QStringLiteral("Red");
    addCourse(app.db(), augusta);
    playRound(on(QDate(2026, 2, 1)), 1, same(4, 18));
    playRound(on(QDate(2026, 3, 1), QStringLiteral("Red"), QStringLiteral("Augusta")), 1, same(6, 18));
    startWithPalmer();
    auto *grid = findControl<QTableView>(frame->views().loaded(QStringLiteral("frmScoreLog")),
                                         QStringLiteral("DBGrid1"));
    ASSERT_NE(grid, nullptr);
    ASSERT_EQ(grid->model()->rowCount(), 2);
    // Newest first: the older round, on Pebble Creek, is chosen.
    grid->selectRow(1);
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    expectNoMessages();
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("White"));
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("4"));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewUltimateScorecard"});
    EXPECT_EQ(frame->views().loaded(QStringLiteral("frmScoreLog")), nullptr);
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmUltimateScore"));
    // The menus are those of the card.
    EXPECT_FALSE(enabled(QStringLiteral("mnuViewAll")));
    EXPECT_FALSE(enabled(QStringLiteral("mnuEditScore")));
    EXPECT_TRUE(enabled(QStringLiteral("mnuEditCourse")));
    // The commands that take a course from the view in front take the card's.
    QString course, tees;
    ASSERT_TRUE(frame->courseFromView(course, tees));
    EXPECT_EQ(course, QStringLiteral("Pebble Creek"));
    EXPECT_EQ(tees, QStringLiteral("White"));

    // Chosen again while it is checked: nothing happens.
    QPointer<frmUltimateScore> before = card();
    pick(courses(), QStringLiteral("Augusta"));
    openFromMenu();
    EXPECT_EQ(card(), before.data());
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Augusta"));
    expectNoMessages();

    // The score log takes its place again.
    item(QStringLiteral("mnuViewScoreLog"))->trigger();
    EXPECT_EQ(card(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
}

TEST_F(UltimateScorecard, ClosingTheViewTakesItsPageWithIt)
{
    addCourse(app.db());
    playRound(on(QDate(2026, 2, 1)), 1, same(4, 18));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    QPointer<frmPrintUltimate> page = card()->printForm();
    ASSERT_FALSE(page.isNull());
    item(QStringLiteral("mnuViewScoreLog"))->trigger();
    EXPECT_EQ(card(), nullptr);
    EXPECT_TRUE(page.isNull());
}

TEST_F(UltimateScorecard, RefreshActiveViewReadsTheCardAgainAfterANewRound)
{
    addCourse(app.db());
    playRound(on(QDate(2026, 2, 1)), 1, same(5, 18));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    ASSERT_EQ(text("lblTotal"), QStringLiteral("90"));
    QVector<int> better = same(5, 18);
    better[4] = 3;  // hole 5, par 4
    better[12] = 4; // hole 13, par 5
    playRound(on(QDate(2026, 3, 1)), 1, better);
    frame->RefreshActiveView();
    expectNoMessages();
    EXPECT_EQ(cell("lblScore", 4), QStringLiteral("3"));
    EXPECT_EQ(colour(4), QStringLiteral("#00ff00"));
    EXPECT_EQ(colour(12), QStringLiteral("#00ff00"));
    EXPECT_EQ(text("lblOut"), QStringLiteral("43"));
    EXPECT_EQ(text("lblIn"), QStringLiteral("44"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("87"));
    EXPECT_EQ(text("lblNumRounds"), QStringLiteral("2 Rounds Played"));
    EXPECT_EQ(page("lblTotal"), QStringLiteral("87 "));
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewUltimateScorecard"});
}

TEST_F(UltimateScorecard, SavedRoundReadsTheOpenCardAgain)
{
    addCourse(app.db());
    playRound(on(QDate(2026, 2, 1)), 1, same(5, 18));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    QVector<int> better = same(5, 18);
    better[0] = 4;
    playRound(on(QDate(2026, 3, 1)), 1, better);
    frame->ScoreSaved();
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("4"));
    EXPECT_EQ(text("lblOut"), QStringLiteral("44"));
    expectNoMessages();
}

TEST_F(UltimateScorecard, GolferDialogCancelledBringsTheCardBack)
{
    addCourse(app.db());
    playRound(on(QDate(2026, 2, 1)), 1, same(4, 18));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [](QWidget *dialog) {
        findControl<QPushButton>(dialog, QStringLiteral("cmdCancel"))->click();
    });
    item(QStringLiteral("mnuNewGolfer"))->trigger();
    EXPECT_EQ(script.pending(), 0);
    ASSERT_NE(card(), nullptr);
    expectNoMessages();
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewUltimateScorecard"});
    EXPECT_EQ(items(courses()), QStringList{"Pebble Creek"});
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmUltimateScore"));
}

TEST_F(UltimateScorecard, DescriptionTellsWhatTheCardShows)
{
    addCourse(app.db());
    playRound(on(QDate(2026, 2, 1)), 1, same(4, 18));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    EXPECT_EQ(text("lblDescription"),
              QStringLiteral(
                  "The Ultimate Scorecard shows your golfing potential!  Your scores on each hole at the "
                  "specified course and tees are examined, and the best score for each hole is entered "
                  "on the Ultimate Scorecard.  The result is the score you would achieve if you golfed "
                  "your best on each hole!"));
}

TEST_F(UltimateScorecard, CourseFirstPlayedWhileAnotherFormWasInFrontJoinsTheList)
{
    addCourse(app.db());
    CourseSpec augusta;
    augusta.name = QStringLiteral("Augusta");
    augusta.tees = QStringLiteral("Red");
    addCourse(app.db(), augusta);
    playRound(on(QDate(2026, 2, 1)), 1, same(4, 18));
    startWithPalmer();
    openFromMenu();
    ASSERT_NE(card(), nullptr);
    ASSERT_EQ(items(courses()), QStringList{"Pebble Creek"});

    auto *cover = new CoverForm;
    frame->openChild(cover);
    playRound(on(QDate(2026, 3, 1), QStringLiteral("Red"), QStringLiteral("Augusta")), 1, same(6, 18));
    auto *coverWindow = qobject_cast<QMdiSubWindow *>(cover->parentWidget());
    ASSERT_NE(coverWindow, nullptr);
    coverWindow->close();
    QApplication::processEvents();
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmUltimateScore"));
    EXPECT_EQ(items(courses()), (QStringList{"Augusta", "Pebble Creek"}));
    // The card shown stays as it was.
    EXPECT_EQ(courses()->currentText(), QStringLiteral("Pebble Creek"));
    EXPECT_EQ(tees()->currentText(), QStringLiteral("White"));
    EXPECT_EQ(cell("lblScore", 0), QStringLiteral("4"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("72"));
    pick(courses(), QStringLiteral("Augusta"));
    EXPECT_EQ(text("lblTotal"), QStringLiteral("108"));
    expectNoMessages();
}
