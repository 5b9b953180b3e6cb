#include "shell/MDIForm1.h"
#include "TestApp.h"
#include "shell/ToolbarIcons.h"

#include <QAction>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QSet>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>
#include <gtest/gtest.h>

using namespace quillon;

namespace {

struct MenuRow {
    int level;
    QString name;
    QString caption; // "-" for a separator
    bool checkable = false;

    bool operator==(const MenuRow &o) const
    {
        return level == o.level && name == o.name && caption == o.caption && checkable == o.checkable;
    }
};

std::ostream &operator<<(std::ostream &os, const MenuRow &r)
{
    return os << r.level << " " << r.name.toStdString() << " \"" << r.caption.toStdString() << "\""
              << (r.checkable ? " checkable" : "");
}

const QVector<MenuRow> kExpectedBar = {
    {1, "mnuFile", "&File"},
    {2, "mnuFileNew", "&New"},
    {3, "mnuNewCourse", "&Course ..."},
    {3, "mnuNewGolfer", "&Golfer ..."},
    {3, "mnuNewScore", "&Score ..."},
    {2, "mnuFileSep1", "-"},
    {2, "mnuFilePrint", "&Print"},
    {3, "mnuPrintScorecard", "&Scorecard ..."},
    {3, "mnuPrintScoreLog", "Score &Log"},
    {3, "mnuPrintScoreDetails", "Score &Details"},
    {3, "mnuPrintScoringRecord", "Scoring &Record"},
    {3, "mnuPrintStatistics", "Sta&tistics"},
    {3, "mnuPrintGraph", "&Graph"},
    {3, "mnuPrintUltimateScorecard", "&Ultimate Scorecard"},
    {2, "mnuFilePrintSetup", "Print &Setup ..."},
    {2, "mnuFileSep2", "-"},
    {2, "mnuCourseExit", "E&xit"},
    {1, "mnuEdit", "&Edit"},
    {2, "mnuEditCourse", "&Course ..."},
    {2, "mnuEditScore", "&Score ..."},
    {1, "mnuView", "&View"},
    {2, "mnuViewScoreLog", "&Score Log", true},
    {2, "mnuViewScoringRecord", "Scoring &Record", true},
    {2, "mnuViewGolferStatistics", "Statis&tics", true},
    {2, "mnuViewGraphs", "&Graphs", true},
    {2, "mnuViewUltimateScorecard", "&Ultimate Scorecard", true},
    {2, "mnuViewCourseInfo", "&Course Information", true},
    {2, "mnuViewSep1", "-"},
    {2, "mnuViewAll", "View &All Scores", true},
    {2, "mnuViewUsed", "Vie&w Used Scores", true},
    {2, "mnuViewCurrent", "View Current &Year Scores", true},
    {1, "mnuTools", "&Tools"},
    {2, "mnuToolsCourseHdcpCalculator", "&Course Handicap Calculator"},
    {2, "mnuToolsRSCalculator", "&Rating/Slope Calculator"},
    {2, "mnuToolsDatabase", "D&atabase"},
    {3, "mnuDatabaseBackup", "&Backup"},
    {3, "mnuDatabaseRestore", "&Restore"},
    {2, "mnuToolsDelete", "&Delete"},
    {3, "mnuDeleteCourse", "&Course ..."},
    {3, "mnuDeleteGolfer", "&Golfer ..."},
    {3, "mnuDeleteScore", "&Score"},
    {1, "mnuHelp", "&Help"},
    {2, "mnuHelpContents", "&Contents"},
    {2, "mnuHelpSep", "-"},
    {2, "mnuHelpAbout", "&About"},
};

const QVector<MenuRow> kExpectedPopup = {
    {2, "mnuSLViewScoreDetails", "View Score Details"},
    {2, "mnuSLViewScoringRecord", "View Scoring Record"},
    {2, "mnuSLViewCourseInfo", "View Course Information"},
    {2, "mnuSLViewUltimateScorecard", "View Ultimate Scorecard"},
    {2, "mnSLSep1", "-"},
    {2, "mnuSLPrintScorecard", "Print Scorecard ..."},
    {2, "mnuSLPrintScoreLog", "Print Score Log"},
    {2, "mnuSLPrintScoreDetails", "Print Score Details"},
    {2, "mnuSLPrintScoringRecord", "Print Scoring Record"},
    {2, "mnuSLSep2", "-"},
    {2, "mnuSLDeleteScore", "Delete Score"},
};

struct ButtonRow {
    QString key;
    QString caption;
    QString item;
};

const QVector<ButtonRow> kExpectedToolbar = {
    {"NewCourse", "New Course", "mnuNewCourse"},
    {"NewGolfer", "New Golfer", "mnuNewGolfer"},
    {"NewScore", "New Score", "mnuNewScore"},
    {"EditCourse", "Edit Course", "mnuEditCourse"},
    {"EditScore", "Edit Score", "mnuEditScore"},
    {"ScoreLog", "Score Log", "mnuViewScoreLog"},
    {"CourseInfo", "Course Info", "mnuViewCourseInfo"},
    {"GolferStats", "Statistics", "mnuViewGolferStatistics"},
    {"Graphs", "Graphs", "mnuViewGraphs"},
    {"Help", "Help", "mnuHelpContents"},
};

MenuRow rowOf(const QAction *a, int level)
{
    return {level, a->objectName(), a->isSeparator() ? QStringLiteral("-") : a->text(), a->isCheckable()};
}

// The rows of a menu as the user walks it, depth first.
void walk(const QMenu *menu, int level, QVector<MenuRow> &rows)
{
    for (QAction *a : menu->actions()) {
        rows << rowOf(a, level);
        if (a->menu())
            walk(a->menu(), level + 1, rows);
    }
}

QVector<MenuRow> barRows(MDIForm1 &frame)
{
    QVector<MenuRow> rows;
    for (QAction *a : frame.menuBar()->actions()) {
        rows << rowOf(a, 1);
        if (a->menu())
            walk(a->menu(), 2, rows);
    }
    return rows;
}

// Commands the user can reach: a leaf item enabled under enabled menus all the way up.
void collectReachable(const QMenu *menu, QSet<QString> &out)
{
    for (QAction *a : menu->actions()) {
        if (a->isSeparator() || !a->isEnabled() || !a->isVisible())
            continue;
        if (a->menu())
            collectReachable(a->menu(), out);
        else
            out.insert(a->objectName());
    }
}

QSet<QString> reachableCommands(MDIForm1 &frame)
{
    QSet<QString> out;
    for (QAction *a : frame.menuBar()->actions())
        if (a->isEnabled() && a->isVisible() && a->menu())
            collectReachable(a->menu(), out);
    return out;
}

class MDIForm1Test : public ::testing::Test {
protected:
    void TearDown() override { MDIForm1::unload(); }

    test::TestApp app;
    MDIForm1 &frame = MDIForm1::instance();
};

TEST_F(MDIForm1Test, FrameIsNamedAndCaptioned)
{
    EXPECT_EQ(frame.objectName(), "MDIForm1");
    EXPECT_EQ(frame.windowTitle(), "Quillon for Golf");
    EXPECT_EQ(frame.centralWidget(), frame.mdiArea());
    EXPECT_NE(frame.mdiArea(), nullptr);
}

TEST_F(MDIForm1Test, TheScoreLogStartsWithAllScoresChecked)
{
    EXPECT_TRUE(frame.menuItem("mnuViewAll")->isChecked());
    EXPECT_FALSE(frame.menuItem("mnuViewUsed")->isChecked());
    EXPECT_FALSE(frame.menuItem("mnuViewCurrent")->isChecked());
}

TEST_F(MDIForm1Test, OneFrameCreatedOnFirstUse)
{
    EXPECT_EQ(MDIForm1::existing(), &frame);
    EXPECT_EQ(&MDIForm1::instance(), &frame);
    MDIForm1::unload();
    EXPECT_EQ(MDIForm1::existing(), nullptr);
}

TEST_F(MDIForm1Test, FrameCannotBeMaximized)
{
    const Qt::WindowFlags flags = frame.windowFlags();
    EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(flags.testFlag(Qt::CustomizeWindowHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
    EXPECT_TRUE(flags.testFlag(Qt::WindowTitleHint));
    // One size only, which is what makes every window manager drop its maximize command.
    EXPECT_EQ(frame.minimumSize(), frame.maximumSize());
    frame.showMaximized();
    EXPECT_EQ(frame.size(), frame.minimumSize());
}

TEST_F(MDIForm1Test, FrameStandsCentredOnTheScreen)
{
    const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(frame.size(), QSize(1000, 700).boundedTo(available.size()));
    EXPECT_LE((frame.geometry().center() - available.center()).manhattanLength(), 2);
}

TEST_F(MDIForm1Test, MenuBarHoldsTheWholeTreeInOrder)
{
    const QVector<MenuRow> rows = barRows(frame);
    ASSERT_EQ(rows.size(), kExpectedBar.size());
    for (int i = 0; i < rows.size(); ++i)
        EXPECT_EQ(rows[i], kExpectedBar[i]) << "row " << i;
}

TEST_F(MDIForm1Test, EveryItemIsFoundByItsName)
{
    for (const MenuRow &row : kExpectedBar + kExpectedPopup) {
        QAction *item = frame.menuItem(row.name);
        ASSERT_NE(item, nullptr) << row;
        EXPECT_EQ(item->objectName(), row.name);
        if (row.caption != "-")
            EXPECT_EQ(item->text(), row.caption) << row;
        else
            EXPECT_TRUE(item->isSeparator()) << row;
    }
    EXPECT_EQ(frame.menuItem("mnuNoSuchItem"), nullptr);
}

TEST_F(MDIForm1Test, SubMenusAreMenusOfTheirName)
{
    const QStringList subMenus = {"mnuFile",  "mnuFileNew",       "mnuFilePrint",   "mnuEdit", "mnuView",
                                  "mnuTools", "mnuToolsDatabase", "mnuToolsDelete", "mnuHelp", "mnuScoreLog"};
    for (const QString &name : subMenus) {
        QMenu *menu = frame.menu(name);
        ASSERT_NE(menu, nullptr) << name.toStdString();
        EXPECT_EQ(menu->objectName(), name);
        EXPECT_EQ(menu->menuAction(), frame.menuItem(name));
        EXPECT_EQ(menu->menuAction()->objectName(), name);
    }
    EXPECT_EQ(frame.menu("mnuNewScore"), nullptr);
}

// Walking up the owners of an item passes through the menus the user opens to reach it.
void expectOwnedAlongThePath(const QMenu *menu)
{
    for (QAction *a : menu->actions()) {
        const QObject *owner = a->menu() ? a->menu()->parent() : a->parent();
        EXPECT_EQ(owner, menu) << a->objectName().toStdString();
        if (a->menu())
            expectOwnedAlongThePath(a->menu());
    }
}

TEST_F(MDIForm1Test, ItemsBelongToTheMenuTheyOpenFrom)
{
    for (QAction *a : frame.menuBar()->actions()) {
        ASSERT_NE(a->menu(), nullptr);
        EXPECT_EQ(a->menu()->parent(), &frame);
        expectOwnedAlongThePath(a->menu());
    }
    expectOwnedAlongThePath(frame.menu("mnuScoreLog"));
    EXPECT_EQ(frame.menu("mnuNewScore"), nullptr);
    EXPECT_EQ(frame.menuItem("mnuNewScore")->parent(), frame.menu("mnuFileNew"));
}

TEST_F(MDIForm1Test, ScoreLogPopupIsOffTheBarWithItsItems)
{
    QMenu *popup = frame.menu("mnuScoreLog");
    ASSERT_NE(popup, nullptr);
    EXPECT_EQ(popup->title(), "Score Log Menu");
    EXPECT_FALSE(frame.menuBar()->actions().contains(popup->menuAction()));
    QVector<MenuRow> rows;
    walk(popup, 2, rows);
    EXPECT_EQ(rows, kExpectedPopup);
}

TEST_F(MDIForm1Test, ToolbarButtonsHaveKeysCaptionsAndPictures)
{
    auto *toolbar = frame.findChild<QToolBar *>("Toolbar1");
    ASSERT_NE(toolbar, nullptr);
    EXPECT_EQ(toolbar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    const QList<QAction *> buttons = toolbar->actions();
    ASSERT_EQ(buttons.size(), kExpectedToolbar.size());
    for (int i = 0; i < buttons.size(); ++i) {
        const ButtonRow &expected = kExpectedToolbar[i];
        EXPECT_EQ(buttons[i]->objectName(), expected.key);
        EXPECT_EQ(buttons[i]->text(), expected.caption);
        EXPECT_FALSE(buttons[i]->icon().isNull()) << expected.key.toStdString();
        EXPECT_EQ(frame.toolButton(expected.key), buttons[i]);
    }
    EXPECT_EQ(frame.toolButton("NoSuchButton"), nullptr);
}

TEST_F(MDIForm1Test, ToolbarPicturesAreDistinctDrawingsOnTransparentGround)
{
    QVector<QImage> images;
    for (const ButtonRow &b : kExpectedToolbar) {
        const QImage image = ToolbarIcons::pixmap(b.key).toImage();
        ASSERT_EQ(image.size(), QSize(32, 32)) << b.key.toStdString();
        int opaque = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                opaque += qAlpha(image.pixel(x, y)) > 128 ? 1 : 0;
        // Enough ink to be seen, and the corners left clear.
        EXPECT_GT(opaque, 150) << b.key.toStdString();
        EXPECT_LT(opaque, 32 * 32 - 50) << b.key.toStdString();
        for (const QImage &other : images)
            EXPECT_NE(image, other) << b.key.toStdString();
        images << image;
    }
    EXPECT_TRUE(ToolbarIcons::pixmap("NoSuchButton").isNull());
}

// The items of the toolbar, enabled and with their commands taken off, so that only the
// dispatch of the buttons is watched.
void detachToolbarItems(MDIForm1 &frame)
{
    for (const ButtonRow &b : kExpectedToolbar) {
        QAction *item = frame.menuItem(b.item);
        QObject::disconnect(item, &QAction::triggered, nullptr, nullptr);
        item->setEnabled(true);
        frame.toolButton(b.key)->setEnabled(true);
    }
}

TEST_F(MDIForm1Test, EachToolbarButtonRunsItsMenuItem)
{
    detachToolbarItems(frame);
    QHash<QString, std::shared_ptr<QSignalSpy>> spies;
    for (const ButtonRow &b : kExpectedToolbar)
        spies.insert(b.item, std::make_shared<QSignalSpy>(frame.menuItem(b.item), &QAction::triggered));

    for (const ButtonRow &b : kExpectedToolbar) {
        frame.toolButton(b.key)->trigger();
        for (const ButtonRow &other : kExpectedToolbar) {
            const int expected = other.item == b.item ? 1 : 0;
            EXPECT_EQ(spies[other.item]->count(), expected)
                << "button " << b.key.toStdString() << ", item " << other.item.toStdString();
        }
        for (auto &spy : spies)
            spy->clear();
    }
}

TEST_F(MDIForm1Test, ToolbarRunsTheItemNamedByTheButtonCaption)
{
    // The click handler reads the caption, not the key: a button captioned "Graphs" runs Graphs.
    detachToolbarItems(frame);
    QSignalSpy graphs(frame.menuItem("mnuViewGraphs"), &QAction::triggered);
    QSignalSpy help(frame.menuItem("mnuHelpContents"), &QAction::triggered);
    QAction *button = frame.toolButton("Help");
    button->setText("Graphs");
    button->trigger();
    EXPECT_EQ(graphs.count(), 1);
    EXPECT_EQ(help.count(), 0);
}

TEST_F(MDIForm1Test, ClickingAButtonOnTheToolbarRunsItsItem)
{
    frame.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    detachToolbarItems(frame);
    frame.toolButton("NewScore")->setEnabled(true);
    QSignalSpy spy(frame.menuItem("mnuNewScore"), &QAction::triggered);
    auto *toolbar = frame.findChild<QToolBar *>("Toolbar1");
    QWidget *button = toolbar->widgetForAction(frame.toolButton("NewScore"));
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(MDIForm1Test, StatusBarHasThreePanelsLeftToRight)
{
    QStatusBar *bar = frame.statusBar();
    EXPECT_EQ(bar->objectName(), "StatusBar1");
    const QStringList keys = {"GolferName", "ScoreDetails", "Handicap"};
    const QStringList texts = {"Golfer:", "Score Details", "Handicap:  (not calculated)"};
    for (int i = 0; i < keys.size(); ++i) {
        QLabel *panel = frame.panel(keys[i]);
        ASSERT_NE(panel, nullptr) << keys[i].toStdString();
        EXPECT_EQ(panel, bar->findChild<QLabel *>(keys[i]));
        EXPECT_EQ(panel->text(), texts[i]);
        EXPECT_EQ(panel->frameShadow(), QFrame::Sunken);
    }
    EXPECT_EQ(frame.panel("ScoreDetails")->toolTip(), "Score Details");

    frame.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    const QLabel *golfer = frame.panel("GolferName");
    const QLabel *details = frame.panel("ScoreDetails");
    const QLabel *handicap = frame.panel("Handicap");
    EXPECT_LT(golfer->x(), details->x());
    EXPECT_LT(details->x(), handicap->x());
    // The golfer's name takes the room that is left.
    EXPECT_GT(golfer->width(), details->width());
    EXPECT_GT(golfer->width(), handicap->width());
}

TEST_F(MDIForm1Test, ClickOnAPanelIsReportedByKey)
{
    frame.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    QSignalSpy spy(&frame, &MDIForm1::panelClicked);
    QTest::mouseClick(frame.panel("ScoreDetails"), Qt::LeftButton);
    QTest::mouseClick(frame.panel("Handicap"), Qt::LeftButton);
    ASSERT_EQ(spy.count(), 2);
    EXPECT_EQ(spy[0][0].toString(), "ScoreDetails");
    EXPECT_EQ(spy[1][0].toString(), "Handicap");
}

TEST_F(MDIForm1Test, FrameInstallsItselfForTheEngineAndTheDialogs)
{
    LogGlobals &g = basLogGlobals();
    EXPECT_EQ(g.handicapDisplay, &frame);
    EXPECT_NE(g.genderQuestion, nullptr);
    EXPECT_EQ(app.platform().dialogParent(), &frame);

    g.handicapDisplay->setHandicapPanel("Handicap: 12.3");
    EXPECT_EQ(frame.panel("Handicap")->text(), "Handicap: 12.3");
    g.handicapDisplay->setCourseHdcpCalculatorEnabled(false);
    EXPECT_FALSE(frame.menuItem("mnuToolsCourseHdcpCalculator")->isEnabled());
    g.handicapDisplay->setCourseHdcpCalculatorEnabled(true);
    EXPECT_TRUE(frame.menuItem("mnuToolsCourseHdcpCalculator")->isEnabled());

    MDIForm1::unload();
    EXPECT_EQ(g.handicapDisplay, nullptr);
    EXPECT_EQ(g.genderQuestion, nullptr);
    EXPECT_EQ(app.platform().dialogParent(), nullptr);
}

TEST_F(MDIForm1Test, ExitClosesTheFrameAndReleasesTheGlobals)
{
    LogGlobals &g = basLogGlobals();
    ASSERT_NE(g.gConnection, nullptr);
    g.gScoreLog = std::make_unique<HeldRecordset>(g.gConnection, "SELECT * FROM ScoreLog", Params{});
    g.gHandicapLog = std::make_unique<HeldRecordset>(g.gConnection, "SELECT * FROM HandicapLog", Params{});
    QPointer<QMdiSubWindow> view = frame.mdiArea()->addSubWindow(new QWidget);
    frame.show();
    view->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));

    frame.menuItem("mnuCourseExit")->trigger();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_FALSE(frame.isVisible());
    EXPECT_EQ(g.gHandicapLog, nullptr);
    EXPECT_EQ(g.gScoreLog, nullptr);
    EXPECT_EQ(g.gConnection, nullptr);
    EXPECT_TRUE(view.isNull()) << "the views close with the frame";
}

TEST_F(MDIForm1Test, ClosingTheFrameReleasesTheConnection)
{
    frame.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&frame));
    EXPECT_TRUE(frame.close());
    EXPECT_EQ(basLogGlobals().gConnection, nullptr);
}

TEST_F(MDIForm1Test, DatabaseMissingLeavesOnlyRestoreHelpAndExit)
{
    ASSERT_TRUE(reachableCommands(frame).contains("mnuNewGolfer"));

    frame.DatabaseMissing();

    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text,
              "Unable to locate the Quillon database.  You must restore your backup database or "
              "re-install Quillon for Golf.");
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, "Quillon for Golf -- Missing Component");
    EXPECT_EQ(shown[0].buttons, MsgButtons::OK);

    // Of these, the commands whose screens are in this build; the others stand disabled.
    QSet<QString> expected = {"mnuFilePrintSetup",  "mnuCourseExit",   "mnuToolsCourseHdcpCalculator",
                              "mnuDatabaseRestore", "mnuHelpContents", "mnuHelpAbout"};
    expected.removeIf([this](const QString &item) { return !frame.isBuilt(item); });
    EXPECT_TRUE(expected.contains("mnuCourseExit") && expected.contains("mnuHelpAbout"));
    EXPECT_EQ(reachableCommands(frame), expected);

    for (const ButtonRow &b : kExpectedToolbar)
        EXPECT_EQ(frame.toolButton(b.key)->isEnabled(), b.key == "Help") << b.key.toStdString();
}

TEST_F(MDIForm1Test, DatabaseMissingOpensTheDatabaseMenuEvenIfItWasClosed)
{
    frame.menuItem("mnuToolsDatabase")->setEnabled(false);
    frame.menuItem("mnuDatabaseRestore")->setEnabled(false);
    frame.DatabaseMissing();
    app.platform().takeMessages();
    EXPECT_TRUE(frame.menuItem("mnuToolsDatabase")->isEnabled());
    EXPECT_EQ(reachableCommands(frame).contains("mnuDatabaseRestore"), frame.isBuilt("mnuDatabaseRestore"));
    EXPECT_FALSE(reachableCommands(frame).contains("mnuDatabaseBackup"));
}

const QStringList kHandicapItems = {"mnuToolsCourseHdcpCalculator", "mnuViewUsed", "mnuViewScoringRecord",
                                    "mnuPrintScoringRecord"};

TEST_F(MDIForm1Test, CommandModeHShowsEverything)
{
    basLogGlobals().gCommandString = "-h";
    frame.ApplyCommandMode();
    for (const QString &name : kHandicapItems)
        EXPECT_TRUE(frame.menuItem(name)->isVisible()) << name.toStdString();
    EXPECT_FALSE(frame.panel("Handicap")->isHidden());
}

TEST_F(MDIForm1Test, OtherCommandModeHidesTheHandicapItems)
{
    basLogGlobals().gCommandString = "-x";
    frame.ApplyCommandMode();
    for (const QString &name : kHandicapItems)
        EXPECT_FALSE(frame.menuItem(name)->isVisible()) << name.toStdString();
    EXPECT_TRUE(frame.panel("Handicap")->isHidden());
    // Everything else stays.
    EXPECT_TRUE(frame.menuItem("mnuViewAll")->isVisible());
    EXPECT_TRUE(frame.menuItem("mnuPrintScoreLog")->isVisible());
    EXPECT_FALSE(frame.panel("GolferName")->isHidden());
    EXPECT_FALSE(frame.panel("ScoreDetails")->isHidden());
}

} // namespace
