#include "MDIForm1.h"

#include "DatabaseCommands.h"
#include "MenuRules.h"
#include "Program.h"
#include "ToolbarIcons.h"
#include "core/QuillonError.h"
#include "course/frmCourseInfo.h"
#include "course/frmDeleteCourse.h"
#include "course/frmHdcpCalculator.h"
#include "course/frmNewCourse.h"
#include "course/frmRSCalculator.h"
#include "golfer/frmDeleteGolfer.h"
#include "golfer/frmNewGolfer.h"
#include "handicap/Handicap.h"
#include "help/ApplicationIcon.h"
#include "help/frmAbout.h"
#include "help/frmHelp.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "print/FormPrintout.h"
#include "print/StatisticsPrintout.h"
#include "print/frmPrintScoreDetails.h"
#include "print/frmPrintScorecard.h"
#include "print/LogPrintouts.h"
#include "score/ScoreDelete.h"
#include "score/frmScore.h"
#include "graphs/frmGraphs.h"
#include "stats/frmGolferStats.h"
#include "ui/Guarded.h"
#include "views/frmScoreLog.h"
#include "views/frmScoringRecord.h"
#include "views/frmUltimateScore.h"
#include "views/frmViewScoreDetails.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <iterator>
#include <vector>

namespace quillon {

namespace {

enum class Kind { Command, Check, Separator, Popup };

struct MenuEntry {
    int level;
    const char *name;
    const char *caption;
    Kind kind = Kind::Command;
};

// The menu tree in the order it shows.  An entry followed by deeper entries is a sub-menu;
// the popup of the score log stands at the top level but not on the bar.
const MenuEntry kMenuTree[] = {
    {1, "mnuFile", "&File"},
    {2, "mnuFileNew", "&New"},
    {3, "mnuNewCourse", "&Course ..."},
    {3, "mnuNewGolfer", "&Golfer ..."},
    {3, "mnuNewScore", "&Score ..."},
    {2, "mnuFileSep1", "", Kind::Separator},
    {2, "mnuFilePrint", "&Print"},
    {3, "mnuPrintScorecard", "&Scorecard ..."},
    {3, "mnuPrintScoreLog", "Score &Log"},
    {3, "mnuPrintScoreDetails", "Score &Details"},
    {3, "mnuPrintScoringRecord", "Scoring &Record"},
    {3, "mnuPrintStatistics", "Sta&tistics"},
    {3, "mnuPrintGraph", "&Graph"},
    {3, "mnuPrintUltimateScorecard", "&Ultimate Scorecard"},
    {2, "mnuFilePrintSetup", "Print &Setup ..."},
    {2, "mnuFileSep2", "", Kind::Separator},
    {2, "mnuCourseExit", "E&xit"},
    {1, "mnuEdit", "&Edit"},
    {2, "mnuEditCourse", "&Course ..."},
    {2, "mnuEditScore", "&Score ..."},
    {1, "mnuView", "&View"},
    {2, "mnuViewScoreLog", "&Score Log", Kind::Check},
    {2, "mnuViewScoringRecord", "Scoring &Record", Kind::Check},
    {2, "mnuViewGolferStatistics", "Statis&tics", Kind::Check},
    {2, "mnuViewGraphs", "&Graphs", Kind::Check},
    {2, "mnuViewUltimateScorecard", "&Ultimate Scorecard", Kind::Check},
    {2, "mnuViewCourseInfo", "&Course Information", Kind::Check},
    {2, "mnuViewSep1", "", Kind::Separator},
    {2, "mnuViewAll", "View &All Scores", Kind::Check},
    {2, "mnuViewUsed", "Vie&w Used Scores", Kind::Check},
    {2, "mnuViewCurrent", "View Current &Year Scores", Kind::Check},
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
    {2, "mnuHelpSep", "", Kind::Separator},
    {2, "mnuHelpAbout", "&About"},
    {1, "mnuScoreLog", "Score Log Menu", Kind::Popup},
    {2, "mnuSLViewScoreDetails", "View Score Details"},
    {2, "mnuSLViewScoringRecord", "View Scoring Record"},
    {2, "mnuSLViewCourseInfo", "View Course Information"},
    {2, "mnuSLViewUltimateScorecard", "View Ultimate Scorecard"},
    {2, "mnSLSep1", "", Kind::Separator},
    {2, "mnuSLPrintScorecard", "Print Scorecard ..."},
    {2, "mnuSLPrintScoreLog", "Print Score Log"},
    {2, "mnuSLPrintScoreDetails", "Print Score Details"},
    {2, "mnuSLPrintScoringRecord", "Print Scoring Record"},
    {2, "mnuSLSep2", "", Kind::Separator},
    {2, "mnuSLDeleteScore", "Delete Score"},
};

struct ToolButton {
    const char *key;
    const char *caption;
    const char *item;
};

const ToolButton kToolbar[] = {
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

struct Panel {
    const char *key;
    const char *text;
    const char *toolTip;
    int stretch;
};

const Panel kPanels[] = {
    {"GolferName", "Golfer:", "", 1},
    {"ScoreDetails", "Score Details", "Score Details", 0},
    {"Handicap", "Handicap:  (not calculated)", "", 0},
};

QPointer<MDIForm1> &theInstance()
{
    static QPointer<MDIForm1> frame;
    return frame;
}

QString latin(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

MDIForm1 &MDIForm1::instance()
{
    QPointer<MDIForm1> &frame = theInstance();
    if (!frame) {
        // A top-level window must be gone before the application object is.
        static bool routineAdded = false;
        if (!routineAdded) {
            qAddPostRoutine(&MDIForm1::unload);
            routineAdded = true;
        }
        frame = new MDIForm1;
    }
    return *frame;
}

MDIForm1 *MDIForm1::existing()
{
    return theInstance().data();
}

void MDIForm1::unload()
{
    delete theInstance().data();
}

MDIForm1::MDIForm1()
{
    setObjectName(QStringLiteral("MDIForm1"));
    setWindowTitle(appTitle());
    // The frame can be moved, minimized and closed, never maximized.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);

    m_mdiArea = new QMdiArea(this);
    m_mdiArea->setObjectName(QStringLiteral("mdiArea"));
    setCentralWidget(m_mdiArea);

    setWindowIcon(ApplicationIcon());

    buildMenus();
    // The score log starts with all scores, and its View item says so.
    menuItem(QStringLiteral("mnuViewAll"))->setChecked(true);
    buildToolbar();
    buildStatusBar();
    placeOnScreen();

    m_views = new ViewHost(
        *m_mdiArea, [this](const QString &name) { return menuItem(name); }, this);
    m_views->registerView(QStringLiteral("frmScoreLog"), QStringLiteral("mnuViewScoreLog"), [this] {
        auto *log = new frmScoreLog;
        connect(log, &frmScoreLog::scoreDetailsRequested, this, &MDIForm1::ShowScoreDetails);
        return log;
    });
    // The details of a round stand over the log, which stays the checked view.
    m_views->registerView(QStringLiteral("frmViewScoreDetails"), QString(), [] { return new frmViewScoreDetails; });
    m_views->registerView(QStringLiteral("frmCourseInfo"), QStringLiteral("mnuViewCourseInfo"),
                          [] { return new frmCourseInfo; });
    m_views->registerView(QStringLiteral("frmGolferStats"), QStringLiteral("mnuViewGolferStatistics"),
                          [] { return new frmGolferStats; });
    m_views->registerView(QStringLiteral("frmGraphs"), QStringLiteral("mnuViewGraphs"), [] { return new frmGraphs; });
    m_views->registerView(QStringLiteral("frmScoringRecord"), QStringLiteral("mnuViewScoringRecord"),
                          [] { return new frmScoringRecord; });
    m_views->registerView(QStringLiteral("frmUltimateScore"), QStringLiteral("mnuViewUltimateScorecard"),
                          [] { return new frmUltimateScore; });
    wireCommands();

    LogGlobals &g = basLogGlobals();
    g.handicapDisplay = this;
    g.genderQuestion = &m_genderQuestion;
    g.frame = this;
    if (platformInstalled()) {
        platform().setDialogParent(this);
        platform().setHelpHandler([](const QString &anchor) { frmHelp::instance().ShowHelp(anchor); });
    }
    disableUnbuilt();
    mirrorToolbar();
}

MDIForm1::~MDIForm1()
{
    LogGlobals &g = basLogGlobals();
    if (g.handicapDisplay == this)
        g.handicapDisplay = nullptr;
    if (g.genderQuestion == &m_genderQuestion)
        g.genderQuestion = nullptr;
    if (g.frame == this)
        g.frame = nullptr;
    if (platformInstalled() && platform().dialogParent() == this) {
        platform().setDialogParent(nullptr);
        platform().setHelpHandler({});
    }
}

void MDIForm1::buildMenus()
{
    // open[i] is the menu that takes the entries of level i + 2.
    std::vector<QMenu *> open;
    const auto count = std::size(kMenuTree);
    for (std::size_t i = 0; i < count; ++i) {
        const MenuEntry &entry = kMenuTree[i];
        const QString name = latin(entry.name);
        const bool hasChildren = i + 1 < count && kMenuTree[i + 1].level > entry.level;
        QAction *action = nullptr;
        if (entry.level == 1 || hasChildren) {
            // A sub-menu belongs to the menu it opens from, so that the chain of owners is the
            // path the user walks to reach an item.
            QWidget *owner = entry.level > 1 ? static_cast<QWidget *>(open[entry.level - 2]) : this;
            auto *menu = new QMenu(latin(entry.caption), owner);
            menu->setObjectName(name);
            if (entry.level > 1)
                open[entry.level - 2]->addMenu(menu);
            else if (entry.kind != Kind::Popup)
                menuBar()->addMenu(menu);
            open.resize(entry.level);
            open[entry.level - 1] = menu;
            m_menus.insert(name, menu);
            action = menu->menuAction();
        } else if (entry.kind == Kind::Separator) {
            action = open[entry.level - 2]->addSeparator();
        } else {
            action = open[entry.level - 2]->addAction(latin(entry.caption));
            action->setCheckable(entry.kind == Kind::Check);
        }
        action->setObjectName(name);
        m_items.insert(name, action);
    }
}

void MDIForm1::onItem(const char *item, std::function<void()> handler)
{
    QAction *action = menuItem(QLatin1String(item));
    m_built.insert(action->objectName());
    connect(action, &QAction::triggered, this, [action, handler = std::move(handler)] {
        // A check mark is the command's to set, not the click's: the handler sees the item as
        // it stood before.
        if (action->isCheckable())
            action->setChecked(!action->isChecked());
        RunGuarded(handler);
    });
}

void MDIForm1::wireCommands()
{
    onItem("mnuCourseExit", [this] { close(); });
    onItem("mnuNewGolfer", [this] { mnuNewGolfer_Click(); });
    onItem("mnuFilePrintSetup", [] { platform().printSetup(); });
    for (const char *print : {"mnuPrintScorecard", "mnuPrintScoreLog", "mnuPrintScoreDetails", "mnuPrintScoringRecord",
                              "mnuPrintStatistics", "mnuPrintGraph", "mnuPrintUltimateScorecard"})
        onItem(print, [this, print] { PrintCommand(QLatin1String(print)); });
    onItem("mnuViewScoreLog", [this] { mnuViewScoreLog_Click(); });
    const struct {
        const char *item;
        ScoreLogSelection selection;
    } selections[] = {{"mnuViewAll", ScoreLogSelection::All},
                      {"mnuViewUsed", ScoreLogSelection::Used},
                      {"mnuViewCurrent", ScoreLogSelection::CurrentYear}};
    for (const auto &s : selections)
        onItem(s.item, [this, selection = s.selection] {
            if (auto *log = qobject_cast<frmScoreLog *>(m_views->loaded(QStringLiteral("frmScoreLog"))))
                log->ViewSelection(selection);
        });
    onItem("mnuDeleteGolfer", [] { frmDeleteGolfer::instance().DeleteGolfer(); });
    onItem("mnuNewCourse", [] { frmNewCourse::instance().NewCourse(); });
    onItem("mnuToolsRSCalculator", [] { frmRSCalculator::instance().ShowCalculator(frmNewCourse::existing()); });
    onItem("mnuEditCourse", [this] {
        QString course, tees;
        courseFromView(course, tees);
        frmNewCourse::instance().EditCourse(course, tees);
    });
    onItem("mnuViewCourseInfo", [this] { mnuViewCourseInfo_Click(); });
    onItem("mnuViewGolferStatistics", [this] { m_views->switchTo(QStringLiteral("frmGolferStats")); });
    onItem("mnuViewGraphs", [this] { m_views->switchTo(QStringLiteral("frmGraphs")); });
    onItem("mnuViewScoringRecord", [this] { m_views->switchTo(QStringLiteral("frmScoringRecord")); });
    onItem("mnuViewUltimateScorecard", [this] {
        if (menuItem(QStringLiteral("mnuViewUltimateScorecard"))->isChecked())
            return;
        QString course, tees;
        courseFromView(course, tees);
        Hourglass hourglass;
        const QString name = QStringLiteral("frmUltimateScore");
        if (loadFilled(name, [&](ViewForm &view) {
                return static_cast<frmUltimateScore &>(view).ShowUltimateScore(course, tees);
            }))
            m_views->switchTo(name);
    });
    onItem("mnuNewScore", [] { frmScore::instance().NewScore(); });
    onItem("mnuToolsCourseHdcpCalculator", [] { frmHdcpCalculator::instance().ShowCalculator(); });
    connect(menuItem(QStringLiteral("mnuSLViewScoreDetails")), &QAction::triggered, this, [this] {
        if (auto *log = qobject_cast<frmScoreLog *>(m_views->loaded(QStringLiteral("frmScoreLog"))))
            RunGuarded([log] { log->ShowScoreDetails(); });
    });
    onItem("mnuEditScore", [this] { mnuEditScore_Click(); });
    onItem("mnuDeleteScore", [this] { DeleteScore(); });
    onItem("mnuDeleteCourse", [this] {
        frmDeleteCourse::instance().DeleteCourse();
        RefreshActiveView();
    });
    connect(this, &MDIForm1::panelClicked, this, [this](const QString &key) {
        if (key == QLatin1String("ScoreDetails") && panel(key)->text() == QLatin1String("Score Details"))
            RunGuarded([this] { backToScoreDetails(); });
    });
    onItem("mnuDatabaseBackup", [] { mnuDatabaseBackup_Click(); });
    onItem("mnuDatabaseRestore", [this] { mnuDatabaseRestore_Click(*this); });
    onItem("mnuHelpContents", [] { frmHelp::instance().ShowHelp(QString()); });
    onItem("mnuHelpAbout", [] { frmAbout::instance().ShowAbout(); });
    // The popup's items run the command of the menu item they stand for.
    const struct {
        const char *popupItem;
        const char *item;
    } popup[] = {{"mnuSLViewScoringRecord", "mnuViewScoringRecord"},
                 {"mnuSLViewCourseInfo", "mnuViewCourseInfo"},
                 {"mnuSLViewUltimateScorecard", "mnuViewUltimateScorecard"},
                 {"mnuSLPrintScorecard", "mnuPrintScorecard"},
                 {"mnuSLPrintScoreLog", "mnuPrintScoreLog"},
                 {"mnuSLPrintScoreDetails", "mnuPrintScoreDetails"},
                 {"mnuSLPrintScoringRecord", "mnuPrintScoringRecord"},
                 {"mnuSLDeleteScore", "mnuDeleteScore"}};
    for (const auto &p : popup) {
        QAction *target = menuItem(QLatin1String(p.item));
        QAction *entry = menuItem(QLatin1String(p.popupItem));
        connect(entry, &QAction::triggered, target, &QAction::trigger);
        // The popup offers what its menu item offers.
        connect(target, &QAction::enabledChanged, entry, &QAction::setEnabled);
        entry->setEnabled(target->isEnabled());
    }
}

void MDIForm1::mnuNewGolfer_Click()
{
    {
        Hourglass hourglass;
        UnloadForms();
    }
    frmNewGolfer::instance().GetNewGolfer();
}

void MDIForm1::mnuViewScoreLog_Click()
{
    QAction *item = menuItem(QStringLiteral("mnuViewScoreLog"));
    if (item->isChecked()) {
        // Already the checked view: from score details, the log comes back.
        if (ActiveFormName() == QLatin1String("frmViewScoreDetails"))
            m_views->unload(QStringLiteral("frmViewScoreDetails"));
        return;
    }
    m_views->switchTo(QStringLiteral("frmScoreLog"));
}

bool MDIForm1::courseFromView(QString &course, QString &tees) const
{
    const QString active = m_views->activeFormName();
    ViewForm *view = m_views->loaded(active);
    return view && view->selectedCourse(course, tees);
}

void MDIForm1::mnuViewCourseInfo_Click()
{
    if (menuItem(QStringLiteral("mnuViewCourseInfo"))->isChecked())
        return;
    QString course, tees;
    courseFromView(course, tees);
    // From a round's details the card keeps a way back to them.
    ShowCourseInfo(course, tees, ActiveFormName() == QLatin1String("frmViewScoreDetails"));
}

void MDIForm1::mnuEditScore_Click()
{
    auto *log = qobject_cast<frmScoreLog *>(m_views->loaded(QStringLiteral("frmScoreLog")));
    if (!log || log->selectedRow() < 0)
        return;
    frmScore::instance().EditScore(
        log->selectedValue(QStringLiteral("CourseName")).toString(), log->selectedValue(QStringLiteral("Tees")).toString(),
        QDate::fromString(log->selectedValue(QStringLiteral("Date")).toString(), Qt::ISODate),
        log->selectedValue(QStringLiteral("ScoreIndex")).toLongLong());
}

void MDIForm1::DeleteScore()
{
    // The round that goes is the one selected in the log, also when its details stand in front.
    auto *log = qobject_cast<frmScoreLog *>(m_views->loaded(QStringLiteral("frmScoreLog")));
    if (!log || log->selectedRow() < 0)
        return;
    const qint64 scoreIndex = log->selectedValue(QStringLiteral("ScoreIndex")).toLongLong();
    const QDate date = QDate::fromString(log->selectedValue(QStringLiteral("Date")).toString(), Qt::ISODate);
    const QString course = log->selectedValue(QStringLiteral("CourseName")).toString();
    const QString tees = log->selectedValue(QStringLiteral("Tees")).toString();

    const QString details = QStringLiteral("frmViewScoreDetails");
    const bool detailsOpen = m_views->loaded(details) != nullptr;
    const QString question = detailsOpen
                                 ? QStringLiteral("Are you sure you want to delete this score?")
                                 : QStringLiteral("Are you sure you want to delete the selected score?");
    if (platform().messageBox(question, MsgIcon::Question, QStringLiteral("Delete Score"), MsgButtons::YesNo,
                              MsgAnswer::No) != MsgAnswer::Yes)
        return;

    LogGlobals &g = basLogGlobals();
    DeleteScoreRows(db(), g.gLastName, g.gFirstName, scoreIndex, date, course, tees);
    if (g.gScoreLog)
        g.gScoreLog->requery();
    ComputeHandicap();

    if (ActiveFormName() == QLatin1String("frmScoreLog")) {
        log->InitializeForm();
        log->selectRow(0);
    } else if (detailsOpen) {
        // The details of a round that is gone have nothing to show: the log takes their place.
        m_views->unload(details);
        menuItem(QStringLiteral("mnuViewScoreLog"))->setChecked(true);
        log->InitializeForm();
    }
}

void MDIForm1::ShowCourseInfo(const QString &course, const QString &tees, bool fromScoreDetails)
{
    Hourglass hourglass;
    const QString name = QStringLiteral("frmCourseInfo");
    if (!loadFilled(name, [&](ViewForm &view) {
            return static_cast<frmCourseInfo &>(view).ShowCourseInfo(course, tees, fromScoreDetails);
        }))
        return;
    if (fromScoreDetails) {
        // The card goes over the round it was asked from, which stays loaded beneath it: the
        // status bar's panel leads back there.
        m_views->show(name);
        m_views->checkOnly(name);
        return;
    }
    m_views->switchTo(name);
}

bool MDIForm1::loadFilled(const QString &formName, const std::function<bool(ViewForm &)> &fill)
{
    if (fill(m_views->load(formName)))
        return true;
    m_views->unload(formName);
    return false;
}

void MDIForm1::backToScoreDetails()
{
    m_views->unload(QStringLiteral("frmCourseInfo"));
    menuItem(QStringLiteral("mnuViewScoreLog"))->setChecked(true);
    menuItem(QStringLiteral("mnuViewCourseInfo"))->setChecked(false);
    menuItem(QStringLiteral("mnuViewUltimateScorecard"))->setChecked(false);
    UpdateMenus(QStringLiteral("frmScoreLog"));
}

QString MDIForm1::ActiveFormName() const
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal->objectName();
    return m_views->activeFormName();
}

void MDIForm1::AskForGolfer()
{
    frmNewGolfer::instance().GetNewGolfer();
}

void MDIForm1::ShowScoreLog()
{
    m_views->show(QStringLiteral("frmScoreLog"));
}

void MDIForm1::UnloadForms()
{
    m_views->unloadAllBut();
    // Entry forms go too.
    for (QMdiSubWindow *w : m_mdiArea->subWindowList()) {
        w->close();
        delete w;
    }
}

void MDIForm1::EndProgram()
{
    hide();
    quillon::EndProgram();
}

void MDIForm1::RefreshActiveView()
{
    const QString checked = m_views->checkedView(
        {QStringLiteral("frmScoreLog"), QStringLiteral("frmCourseInfo"), QStringLiteral("frmUltimateScore"),
         QStringLiteral("frmGolferStats"), QStringLiteral("frmGraphs")});
    if (checked.isEmpty())
        return;
    if (checked == QLatin1String("frmScoreLog")) {
        if (auto *details = qobject_cast<frmViewScoreDetails *>(m_views->loaded(QStringLiteral("frmViewScoreDetails")))) {
            details->UpdateDetails();
            return;
        }
    }
    if (checked == QLatin1String("frmUltimateScore")) {
        if (auto *card = qobject_cast<frmUltimateScore *>(m_views->loaded(checked))) {
            card->UpdateScorecard();
            return;
        }
        // The views were closed meanwhile (a golfer dialog cancelled): the card opens afresh.
        if (!loadFilled(checked, [](ViewForm &view) {
                return static_cast<frmUltimateScore &>(view).ShowUltimateScore(QString(), QString());
            }))
            return;
    }
    m_views->show(checked);
}

void MDIForm1::ShowScoreDetails(const QString &course, const QString &tees, const QDate &date, qint64 scoreIndex,
                                const QVariant &score)
{
    Hourglass hourglass;
    const QString name = QStringLiteral("frmViewScoreDetails");
    auto &details = static_cast<frmViewScoreDetails &>(m_views->load(name));
    details.ShowDetails(course, tees, date, scoreIndex, score);
    m_views->show(name);
}

void MDIForm1::ScoreSaved()
{
    // The open view that shows rounds reads them again; only one is served.
    if (auto *details = qobject_cast<frmViewScoreDetails *>(m_views->loaded(QStringLiteral("frmViewScoreDetails"))))
        details->UpdateDetails();
    else if (auto *card = qobject_cast<frmUltimateScore *>(m_views->loaded(QStringLiteral("frmUltimateScore"))))
        card->UpdateScorecard();
}

void MDIForm1::setPanelText(const QString &key, const QString &text)
{
    if (QLabel *p = panel(key))
        p->setText(text);
}

void MDIForm1::UpdateMenus(const QString &formName)
{
    LogGlobals &g = basLogGlobals();
    MenuInputs in;
    in.formName = formName;
    in.courseCount = g.gCourseCount;
    if (g.gConnection && !g.gLastName.isEmpty())
        in.detailsCount = Scalar(*g.gConnection,
                                 QStringLiteral("SELECT COUNT(*) FROM (SELECT DISTINCT Date, ScoreIndex FROM "
                                                "ScoreDetails WHERE Firstname = ? AND Lastname = ?)"),
                                 {g.gFirstName, g.gLastName})
                              .toInt();
    if (g.gScoreLog) {
        in.scoreLogRows = g.gScoreLog->rows().rowCount();
        in.scoreLogEmpty = in.scoreLogRows == 0;
    }
    if (formName != QLatin1String("frmCourseInfo")) {
        QLabel *details = panel(QStringLiteral("ScoreDetails"));
        details->setText(QString());
        details->setToolTip(QString());
        details->setFrameStyle(QFrame::NoFrame);
    }
    const MenuStates states = MenuRulesFor(in);
    for (auto it = states.cbegin(); it != states.cend(); ++it)
        if (QAction *item = menuItem(it.key()))
            item->setEnabled(it.value());
    disableUnbuilt();
    mirrorToolbar();
}

void MDIForm1::disableUnbuilt()
{
    // A command whose screen is not in this build is never offered: nothing a user can choose
    // does nothing.
    for (auto it = m_items.cbegin(); it != m_items.cend(); ++it) {
        QAction *a = it.value();
        if (a->menu() || a->isSeparator() || it.key().startsWith(QLatin1String("mnuSL")))
            continue;
        if (!m_built.contains(it.key()))
            a->setEnabled(false);
    }
}

void MDIForm1::mirrorToolbar()
{
    for (const ToolbarMirror &m : ToolbarMirrors())
        if (QAction *button = toolButton(m.key))
            button->setEnabled(menuItem(m.parent)->isEnabled() && menuItem(m.item)->isEnabled());
}

void MDIForm1::PrintCommand(const QString &item)
{
    const bool logOrRecord =
        item == QLatin1String("mnuPrintScoreLog") || item == QLatin1String("mnuPrintScoringRecord");
    if (platform().defaultPrinterName().isEmpty()) {
        platform().messageBox(
            logOrRecord
                ? QStringLiteral("Unable to obtain printer information from the system.  Make sure the "
                                 "printer is set up correctly.")
                : QStringLiteral("Unable to print.  You must configure your system with a default printer."),
            MsgIcon::Critical, appTitle());
        return;
    }
    LogGlobals &g = basLogGlobals();
    const ReportHead head{g.gFirstName + QLatin1Char(' ') + g.gLastName, panel(QStringLiteral("Handicap"))->text(),
                          g.gCommandString == QLatin1String("-h")};
    if (logOrRecord) {
        Hourglass hourglass;
        try {
            if (item == QLatin1String("mnuPrintScoreLog")) {
                if (g.gScoreLog)
                    platform().print(ScoreLogPrintout(g.gScoreLog->rows(), head));
            } else {
                platform().print(ScoringRecordPrintout(db(), g.gLastName, g.gFirstName, head));
            }
        } catch (const QuillonError &) {
            platform().messageBox(QStringLiteral("Unable to obtain printer information from the system.  Make sure "
                                                 "the printer is set up correctly."),
                                  MsgIcon::Critical, appTitle());
        }
        return;
    }
    if (item == QLatin1String("mnuPrintScorecard")) {
        QString course, tees;
        courseFromView(course, tees);
        frmPrintScorecard::instance().PrintScorecard(course, tees);
    } else if (item == QLatin1String("mnuPrintScoreDetails")) {
        // The round selected in the log, also when its details stand in front.
        auto *log = qobject_cast<frmScoreLog *>(m_views->loaded(QStringLiteral("frmScoreLog")));
        if (log && log->selectedRow() >= 0)
            frmPrintScoreDetails::instance().PrintDetails(
                log->selectedValue(QStringLiteral("CourseName")).toString(),
                log->selectedValue(QStringLiteral("Tees")).toString(), log->selectedValue(QStringLiteral("Date")).toString(),
                qint32(log->selectedValue(QStringLiteral("ScoreIndex")).toLongLong()));
    } else if (item == QLatin1String("mnuPrintStatistics")) {
        if (auto *stats = qobject_cast<frmGolferStats *>(m_views->loaded(QStringLiteral("frmGolferStats"))))
            PrintStats(*stats);
    } else if (item == QLatin1String("mnuPrintGraph")) {
        if (auto *graphs = qobject_cast<frmGraphs *>(m_views->loaded(QStringLiteral("frmGraphs"))))
            platform().print(FormPrintout(QStringLiteral("Graph"), *graphs->printGraph(), PageOrientation::AsSetUp));
    } else if (item == QLatin1String("mnuPrintUltimateScorecard")) {
        auto *ultimate = qobject_cast<frmUltimateScore *>(m_views->loaded(QStringLiteral("frmUltimateScore")));
        // No label written yet: a blank card prints as a blank card.
        frmPrintUltimate blank;
        QWidget &page = ultimate && ultimate->printForm() ? *ultimate->printForm() : blank;
        platform().print(FormPrintout(QStringLiteral("Ultimate Scorecard"), page, PageOrientation::AsSetUp));
    }
}

void MDIForm1::buildToolbar()
{
    m_toolbar = new QToolBar(this);
    m_toolbar->setObjectName(QStringLiteral("Toolbar1"));
    m_toolbar->setWindowTitle(QStringLiteral("Toolbar"));
    m_toolbar->setMovable(false);
    m_toolbar->setFloatable(false);
    m_toolbar->setIconSize(QSize(ToolbarIcons::kSize, ToolbarIcons::kSize));
    m_toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    addToolBar(Qt::TopToolBarArea, m_toolbar);

    for (const ToolButton &b : kToolbar) {
        const QString key = latin(b.key);
        QAction *button = m_toolbar->addAction(ToolbarIcons::icon(key), latin(b.caption));
        button->setObjectName(key);
        button->setToolTip(latin(b.caption));
        m_buttons.insert(key, button);
        m_buttonItems.insert(latin(b.caption), latin(b.item));
        connect(button, &QAction::triggered, this, [this, button] { Toolbar1_ButtonClick(button); });
    }
}

void MDIForm1::buildStatusBar()
{
    QStatusBar *bar = statusBar();
    bar->setObjectName(QStringLiteral("StatusBar1"));
    bar->setSizeGripEnabled(false); // the frame is not sized by the user
    for (const Panel &p : kPanels) {
        auto *label = new QLabel(latin(p.text), bar);
        label->setObjectName(latin(p.key));
        label->setToolTip(latin(p.toolTip));
        label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        label->setMargin(2);
        label->installEventFilter(this);
        bar->addWidget(label, p.stretch);
        m_panels.insert(label->objectName(), label);
    }
}

void MDIForm1::placeOnScreen()
{
    // The frame has one size: it can be moved and minimized but neither sized nor maximized,
    // and a fixed size is what every window manager honours (some ignore the missing maximize hint).
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize wanted(1000, 700);
    if (!screen) {
        setFixedSize(wanted);
        return;
    }
    const QRect available = screen->availableGeometry();
    QRect area(QPoint(), wanted.boundedTo(available.size()));
    area.moveCenter(available.center());
    setFixedSize(area.size());
    move(area.topLeft());
}

QAction *MDIForm1::menuItem(const QString &name) const
{
    return m_items.value(name);
}

QMenu *MDIForm1::menu(const QString &name) const
{
    return m_menus.value(name);
}

QAction *MDIForm1::toolButton(const QString &key) const
{
    return m_buttons.value(key);
}

QLabel *MDIForm1::panel(const QString &key) const
{
    return m_panels.value(key);
}

void MDIForm1::Toolbar1_ButtonClick(const QAction *button)
{
    if (QAction *item = menuItem(m_buttonItems.value(button->text())))
        item->trigger();
}

void MDIForm1::DatabaseMissing()
{
    platform().messageBox(
        QStringLiteral("Unable to locate the Quillon database.  You must restore your backup "
                       "database or re-install Quillon for Golf."),
        MsgIcon::Critical, QStringLiteral("Quillon for Golf -- Missing Component"));

    for (const char *name : {"mnuFileNew", "mnuFilePrint", "mnuEdit", "mnuView", "mnuToolsRSCalculator",
                             "mnuDatabaseBackup", "mnuToolsDelete"})
        menuItem(latin(name))->setEnabled(false);
    for (const char *name : {"mnuToolsDatabase", "mnuDatabaseRestore"})
        menuItem(latin(name))->setEnabled(true);

    for (const char *key : {"NewCourse", "NewGolfer", "NewScore", "EditCourse", "EditScore", "GolferStats",
                            "Graphs", "CourseInfo", "ScoreLog"})
        toolButton(latin(key))->setEnabled(false);
    disableUnbuilt();
}

void MDIForm1::ApplyCommandMode()
{
    if (basLogGlobals().gCommandString == QLatin1String("-h"))
        return;
    for (const char *name :
         {"mnuToolsCourseHdcpCalculator", "mnuViewUsed", "mnuViewScoringRecord", "mnuPrintScoringRecord"})
        menuItem(latin(name))->setVisible(false);
    panel(QStringLiteral("Handicap"))->setVisible(false);
}

void MDIForm1::setHandicapPanel(const QString &text)
{
    panel(QStringLiteral("Handicap"))->setText(text);
}

void MDIForm1::setCourseHdcpCalculatorEnabled(bool enabled)
{
    menuItem(QStringLiteral("mnuToolsCourseHdcpCalculator"))->setEnabled(enabled);
}

bool MDIForm1::unsavedInputStands() const
{
    // An entry form marks itself while it holds typed input that is not saved.
    for (QWidget *w : QApplication::allWidgets())
        if (w->isVisible() && w->property("unsavedInput").toBool())
            return true;
    return false;
}

void MDIForm1::closeEvent(QCloseEvent *event)
{
    if (unsavedInputStands() &&
        platform().messageBox(QStringLiteral("You have entered information that has not been saved.  Close "
                                             "Quillon for Golf and lose it?"),
                              MsgIcon::Question, appTitle(), MsgButtons::YesNo,
                              MsgAnswer::No) != MsgAnswer::Yes) {
        event->ignore();
        return;
    }
    // The views go with the frame, before what they read from is released.
    m_mdiArea->closeAllSubWindows();
    basLogGlobals().releaseAll();
    event->accept();
}

bool MDIForm1::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const QString key = watched->objectName();
        if (m_panels.value(key) == watched)
            emit panelClicked(key);
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace quillon
