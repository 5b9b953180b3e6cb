#pragma once

#include "golfer/GenderDialogQuestion.h"
#include "shell/basLogGlobals.h"
#include "ui/ViewHost.h"

#include <QHash>
#include <QMainWindow>
#include <QSet>
#include <QString>
#include <functional>

class QAction;
class QLabel;
class QMdiArea;
class QMenu;
class QToolBar;

namespace quillon {

// The frame: the menu tree, the toolbar and the status bar are the program's whole
// command surface, and every view is a maximized child of its MDI area.
// The commands themselves are wired by the forms they open; the frame only knows Exit.
class MDIForm1 : public QMainWindow, public HandicapDisplay, public FrameServices {
    Q_OBJECT
public:
    // The one frame, created on first use.
    static MDIForm1 &instance();
    // The frame if it has been created, else null.
    static MDIForm1 *existing();
    // Destroy the frame (a restart of the program's state, and between tests).
    static void unload();

    ~MDIForm1() override;

    // A menu item by name (mnuNewScore, mnuFileNew, mnuFileSep1, ...); sub-menus answer with
    // their menu action, whose Enabled and Visible govern the whole sub-menu.  Null if unknown.
    QAction *menuItem(const QString &name) const override;
    // A sub-menu (mnuFile, mnuToolsDatabase, ...) or the popup mnuScoreLog; null if unknown.
    QMenu *menu(const QString &name) const override;
    // A toolbar button by key (NewCourse, ..., Help); null if unknown.
    QAction *toolButton(const QString &key) const;
    // A status-bar panel by key (GolferName, ScoreDetails, Handicap); null if unknown.
    QLabel *panel(const QString &key) const override;
    QMdiArea *mdiArea() const { return m_mdiArea; }

    // No database to work on: say so, and leave only printer set-up, Exit, the course
    // handicap calculator, Restore and Help usable.
    void DatabaseMissing();
    // The handicap-free layout when the command string is not "-h".
    void ApplyCommandMode();

    // HandicapDisplay
    void setHandicapPanel(const QString &text) override;
    void setCourseHdcpCalculatorEnabled(bool enabled) override;

    // FrameServices
    void UpdateMenus(const QString &formName) override;
    void RefreshActiveView() override;
    void setPanelText(const QString &key, const QString &text) override;
    void ShowScoreLog() override;
    void UnloadForms() override;
    void unloadView(const QString &formName) override { m_views->unload(formName); }
    void EndProgram() override;
    QWidget *frameWidget() override { return this; }
    void openChild(ViewForm *form) override { m_views->openChild(form); }

    ViewHost &views() { return *m_views; }
    // The name of the active form: a modal dialog up, else the active view; empty when none.
    QString ActiveFormName() const;

    // The course card of a course (its first tees), as the View item and score details open it.
    void ShowCourseInfo(const QString &course, const QString &tees, bool fromScoreDetails);
    // The details of a round, over the score log.
    void ShowScoreDetails(const QString &course, const QString &tees, const QDate &date, qint64 scoreIndex,
                          const QVariant &score);
    void ScoreSaved() override;
    // The course and tees of the view in front; false when it has none.
    bool courseFromView(QString &course, QString &tees) const;

    // Step 14 of the start: ask for a golfer.  "E&xit" there ends the program.
    void AskForGolfer();

    // A print command: the printer check first, then the printout.
    void PrintCommand(const QString &item);
    // Whether a command has its handler in this build; an item without one is never enabled.
    bool isBuilt(const QString &item) const { return m_built.contains(item); }

signals:
    // A click on a status-bar panel, by key.
    void panelClicked(const QString &key);

protected:
    // The unload handler: releases the golfer's rows and the connection, asks nothing.
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    // The toolbar is part of the frame: no menu to hide it.
    QMenu *createPopupMenu() override { return nullptr; }

private:
    MDIForm1();

    void buildMenus();
    void buildToolbar();
    void buildStatusBar();
    void placeOnScreen();
    // The toolbar's click handler: the button's caption names the menu item it runs.
    void Toolbar1_ButtonClick(const QAction *button);
    void wireCommands();
    // Run a menu item's command under the error trap; the item is then counted as built.
    void onItem(const char *item, std::function<void()> handler);
    void mnuNewGolfer_Click();
    void mnuViewScoreLog_Click();
    void mnuViewCourseInfo_Click();
    // Load a view and let it fill itself; a view with nothing to show goes again, and false.
    bool loadFilled(const QString &formName, const std::function<bool(ViewForm &)> &fill);
    // Edit, Score: the round selected in the score log.
    void mnuEditScore_Click();
    // Tools, Delete, Score: the round selected in the score log goes, after a question.
    void DeleteScore();
    // The status bar's way back from the course card to the round it was opened from.
    void backToScoreDetails();
    void disableUnbuilt();
    void mirrorToolbar();
    bool unsavedInputStands() const;

    QMdiArea *m_mdiArea = nullptr;
    QToolBar *m_toolbar = nullptr;
    QHash<QString, QAction *> m_items;
    QHash<QString, QMenu *> m_menus;
    QHash<QString, QAction *> m_buttons;
    QHash<QString, QString> m_buttonItems; // caption -> menu item name
    QHash<QString, QLabel *> m_panels;
    GenderDialogQuestion m_genderQuestion;
    ViewHost *m_views = nullptr;
    QSet<QString> m_built;
};

} // namespace quillon
