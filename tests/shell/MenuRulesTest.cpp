#include "shell/MenuRules.h"
#include "FrameFixture.h"

#include <QToolBar>

using namespace quillon;
using namespace quillon::test;

namespace {

// One row of the table: the item and its state in each column ('1' on, '0' off, '-' left, 'c' count).
struct Row {
    const char *item;
    const char *logRows, *logEmpty, *courseInfo, *stats, *graphs, *record, *ultimate, *details;
};

// Columns: score log with rows, score log empty, course info, statistics, graphs, scoring record,
// ultimate scorecard, score details.  Inputs of the "with rows" column: details count 1, 5 rows.
const Row kTable[] = {
    {"mnuFileNew", "1", "1", "1", "1", "1", "1", "1", "1"},
    {"mnuNewScore", "c", "c", "c", "c", "c", "c", "c", "-"},
    {"mnuFilePrint", "1", "0", "1", "1", "1", "1", "1", "1"},
    {"mnuPrintScoreLog", "1", "-", "-", "-", "-", "-", "-", "-"},
    {"mnuPrintScorecard", "1", "-", "-", "-", "-", "-", "-", "-"},
    {"mnuPrintScoreDetails", "1", "-", "0", "0", "0", "0", "0", "1"},
    {"mnuPrintStatistics", "0", "-", "0", "1", "0", "0", "0", "0"},
    {"mnuPrintGraph", "0", "-", "0", "0", "1", "0", "0", "0"},
    {"mnuPrintUltimateScorecard", "0", "-", "0", "0", "0", "0", "1", "0"},
    {"mnuEdit", "1", "c", "1", "0", "0", "0", "1", "1"},
    {"mnuEditCourse", "c", "c", "1", "0", "0", "0", "1", "1"},
    {"mnuEditScore", "1", "0", "0", "0", "0", "0", "0", "1"},
    {"mnuView", "1", "1", "1", "1", "1", "1", "1", "1"},
    {"mnuViewAll", "1", "0", "0", "0", "0", "0", "0", "0"},
    {"mnuViewCurrent", "1", "0", "0", "0", "0", "0", "0", "0"},
    {"mnuViewUsed", "1", "0", "0", "0", "0", "0", "0", "0"},
    {"mnuViewGolferStatistics", "1", "0", "-", "-", "-", "-", "-", "-"},
    {"mnuViewCourseInfo", "c", "c", "-", "-", "-", "-", "-", "-"},
    {"mnuTools", "1", "1", "1", "1", "1", "1", "1", "1"},
    {"mnuToolsDelete", "1", "1", "1", "1", "1", "1", "1", "1"},
    {"mnuToolsDatabase", "1", "1", "-", "1", "1", "1", "1", "1"},
    {"mnuDeleteCourse", "c", "c", "1", "1", "1", "1", "1", "1"},
    {"mnuDeleteGolfer", "1", "1", "1", "1", "1", "1", "1", "1"},
    {"mnuDeleteScore", "1", "0", "0", "0", "0", "0", "0", "1"},
};

MenuInputs inputsFor(int column, qint16 courses)
{
    static const char *forms[] = {"frmScoreLog",      "frmScoreLog",        "frmCourseInfo",
                                  "frmGolferStats",   "frmGraphs",          "frmScoringRecord",
                                  "frmUltimateScore", "frmViewScoreDetails"};
    MenuInputs in;
    in.formName = QLatin1String(forms[column]);
    in.courseCount = courses;
    in.detailsCount = column == 1 ? 0 : 1;
    in.scoreLogRows = column == 1 ? 0 : 5;
    in.scoreLogEmpty = column == 1;
    return in;
}

} // namespace

TEST(MenuRules, EveryItemOfTheTableForEveryViewAndCourseCount)
{
    for (const qint16 courses : {qint16(0), qint16(3)}) {
        for (int column = 0; column < 8; ++column) {
            const MenuStates s = MenuRulesFor(inputsFor(column, courses));
            for (const Row &row : kTable) {
                const char *cells[] = {row.logRows, row.stats,  row.courseInfo, row.stats,
                                       row.graphs,  row.record, row.ultimate,   row.details};
                cells[1] = row.logEmpty;
                const char cell = cells[column][0];
                const QString item = QLatin1String(row.item);
                SCOPED_TRACE(std::string(row.item) + " column " + std::to_string(column) + " courses " +
                             std::to_string(courses));
                if (cell == '-') {
                    EXPECT_FALSE(s.contains(item));
                    continue;
                }
                ASSERT_TRUE(s.contains(item));
                const bool expected = cell == 'c' ? courses != 0 : cell == '1';
                // mnuEdit on an empty log follows its two items: Edit Course alone, by the count.
                EXPECT_EQ(s.value(item), expected);
            }
        }
    }
}

TEST(MenuRules, UsedScoresNeedFiveRows)
{
    MenuInputs in = inputsFor(0, 1);
    in.scoreLogRows = 4;
    EXPECT_FALSE(MenuRulesFor(in).value("mnuViewUsed"));
    in.scoreLogRows = 5;
    EXPECT_TRUE(MenuRulesFor(in).value("mnuViewUsed"));
}

TEST(MenuRules, DetailedRoundsOpenTheUltimateScorecardAndThenTheGraphs)
{
    for (const char *form : {"frmScoreLog", "frmNewGolfer", "frmScore", "frmGraphs"}) {
        MenuInputs in;
        in.formName = QLatin1String(form);
        in.detailsCount = 0;
        EXPECT_FALSE(MenuRulesFor(in).value("mnuViewUltimateScorecard")) << form;
        in.detailsCount = 1;
        EXPECT_TRUE(MenuRulesFor(in).value("mnuViewUltimateScorecard")) << form;
        EXPECT_FALSE(MenuRulesFor(in).value("mnuViewGraphs")) << form;
        in.detailsCount = 2;
        EXPECT_TRUE(MenuRulesFor(in).value("mnuViewGraphs")) << form;
    }
}

TEST(MenuRules, EntryFormLocksEveryOtherCommand)
{
    for (const char *form : {"frmScore", "frmNewCourse"}) {
        MenuInputs in = inputsFor(0, 3);
        in.formName = QLatin1String(form);
        const MenuStates s = MenuRulesFor(in);
        for (const char *item : {"mnuFileNew", "mnuFilePrint", "mnuEdit", "mnuView", "mnuTools"})
            EXPECT_FALSE(s.value(QLatin1String(item), true)) << form << " " << item;
        EXPECT_FALSE(s.contains("mnuEditScore")) << "the items below stay as they are";
    }
}

TEST(MenuRules, DialogsChangeNoMenu)
{
    for (const char *form : {"frmAbout", "frmRSCalculator", "DeleteCourse", "frmDeleteGolfer", "frmNewGolfer",
                             "frmHdcpCalculator"}) {
        MenuInputs in = inputsFor(0, 3);
        in.formName = QLatin1String(form);
        EXPECT_EQ(MenuRulesFor(in).keys().size(), 3) << form; // the two view items and the calculator
    }
    MenuInputs in = inputsFor(0, 3);
    in.formName = QStringLiteral("frmDeleteCourse"); // not the literal the delete form hands in
    EXPECT_EQ(MenuRulesFor(in).keys().size(), 3);
}

namespace {
class FrameMenus : public FrameFixture {};
} // namespace

TEST_F(FrameMenus, NoCoursesLeaveNewScoreCourseInfoEditAndDeleteCourseDisabled)
{
    EXPECT_EQ(basLogGlobals().gCourseCount, 0);
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    for (const char *item : {"mnuNewScore", "mnuViewCourseInfo", "mnuEditCourse", "mnuDeleteCourse"})
        EXPECT_FALSE(enabled(QLatin1String(item))) << item;
}

TEST_F(FrameMenus, EntryFormActiveLocksTheMenusAndTheViewBehindRulesAgainAfter)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    frame->UpdateMenus(QStringLiteral("frmScore"));
    for (const char *item : {"mnuFileNew", "mnuFilePrint", "mnuEdit", "mnuView", "mnuTools"})
        EXPECT_FALSE(enabled(QLatin1String(item))) << item;
    for (const char *key : {"NewCourse", "NewGolfer", "NewScore", "ScoreLog"})
        EXPECT_FALSE(frame->toolButton(QLatin1String(key))->isEnabled()) << key;
    frame->views().loaded(QStringLiteral("frmScoreLog"))->FormActivate();
    for (const char *item : {"mnuFileNew", "mnuView", "mnuTools"})
        EXPECT_TRUE(enabled(QLatin1String(item))) << item;
    EXPECT_TRUE(frame->toolButton(QStringLiteral("NewGolfer"))->isEnabled());
}

TEST_F(FrameMenus, FileNewOffTurnsOffAllThreeNewButtons)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    ASSERT_TRUE(frame->toolButton(QStringLiteral("NewGolfer"))->isEnabled());
    item("mnuFileNew")->setEnabled(false);
    frame->UpdateMenus(QStringLiteral("frmNewGolfer")); // a dialog: no item changes, the toolbar mirrors
    for (const char *key : {"NewCourse", "NewGolfer", "NewScore"})
        EXPECT_FALSE(frame->toolButton(QLatin1String(key))->isEnabled()) << key;
}

TEST_F(FrameMenus, EditScoreIsOffWhenTheScoreLogIsNotTheActiveForm)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    RoundSpec r;
    r.last = QStringLiteral("Palmer");
    r.first = QStringLiteral("Arnold");
    addRound(app.db(), r);
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    frame->UpdateMenus(QStringLiteral("frmGolferStats"));
    EXPECT_FALSE(enabled("mnuEditScore"));
    EXPECT_FALSE(frame->toolButton(QStringLiteral("EditScore"))->isEnabled());
    item("mnuEditScore")->trigger(); // cannot run
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST_F(FrameMenus, ChoosingTheCheckedViewChangesNothing)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    QWidget *before = frame->views().loaded(QStringLiteral("frmScoreLog"));
    item("mnuViewScoreLog")->trigger();
    EXPECT_EQ(frame->views().loaded(QStringLiteral("frmScoreLog")), before);
    EXPECT_EQ(checkedViews(), QStringList{"mnuViewScoreLog"});
}

TEST_F(FrameMenus, WithoutADefaultPrinterEveryPrintItemAnswersWithABoxAndNoPage)
{
    app.platform().printerName.clear();
    for (const char *item : {"mnuPrintScorecard", "mnuPrintScoreDetails", "mnuPrintStatistics",
                             "mnuPrintGraph", "mnuPrintUltimateScorecard"}) {
        frame->PrintCommand(QLatin1String(item));
        const auto shown = app.platform().takeMessages();
        ASSERT_EQ(shown.size(), 1) << item;
        EXPECT_EQ(shown[0].text,
                  QStringLiteral("Unable to print.  You must configure your system with a default printer."));
        EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
        EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
    }
    for (const char *item : {"mnuPrintScoreLog", "mnuPrintScoringRecord"}) {
        frame->PrintCommand(QLatin1String(item));
        const auto shown = app.platform().takeMessages();
        ASSERT_EQ(shown.size(), 1) << item;
        EXPECT_EQ(shown[0].text,
                  QStringLiteral("Unable to obtain printer information from the system.  Make sure "
                                 "the printer is set up correctly."));
    }
    EXPECT_TRUE(app.platform().printedFiles().isEmpty());
}

TEST_F(FrameMenus, InTheScoreLogThePrintItemsFollowTheLogAndItsDetailedRounds)
{
    addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    addCourse(app.db());
    addRound(app.db(), RoundSpec{});
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    EXPECT_TRUE(enabled(QStringLiteral("mnuPrintScorecard")));
    EXPECT_TRUE(enabled(QStringLiteral("mnuPrintScoreLog")));
    EXPECT_FALSE(enabled(QStringLiteral("mnuPrintScoreDetails"))) << "no round has details";
    for (const char *item : {"mnuPrintStatistics", "mnuPrintGraph", "mnuPrintUltimateScorecard"})
        EXPECT_FALSE(enabled(QLatin1String(item))) << item;

    RoundSpec detailed;
    detailed.date = QDate(2026, 2, 1);
    detailed.details = true;
    const qint64 index = addRound(app.db(), detailed);
    addHoleScores(app.db(), detailed, index, 1, QVector<int>(18, 4), QVector<int>(18, 4));
    frame->UpdateMenus(QStringLiteral("frmScoreLog"));
    EXPECT_TRUE(enabled(QStringLiteral("mnuPrintScoreDetails")));
}

TEST_F(FrameMenus, ClosingWithUnsavedInputAsksAndKeepsTheFrameOnNo)
{
    QWidget entry(frame);
    entry.setProperty("unsavedInput", true);
    entry.show();
    app.platform().answer(MsgAnswer::No);
    EXPECT_FALSE(frame->close());
    expectMessages(app.platform(),
                   {"You have entered information that has not been saved.  Close Quillon for "
                    "Golf and lose it?"});
    EXPECT_TRUE(frame->isVisible());
    EXPECT_NE(basLogGlobals().gConnection, nullptr);
    entry.setProperty("unsavedInput", false);
    EXPECT_TRUE(frame->close());
    EXPECT_TRUE(app.platform().messages().isEmpty());
}
