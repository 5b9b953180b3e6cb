#pragma once

#include "ScriptedPlatform.h"

#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QVector>
#include <atomic>
#include <functional>
#include <random>

class QWidget;

namespace quillon::test {

struct RandomUserOptions {
    quint32 seed = 1;
    int actions = 1000;
    // The invariants are checked at the first quiet moment after every this many actions.
    int checkEvery = 100;
    // The run stops acting when this much time has gone, whatever its count.
    int timeLimitMs = 60000;
    // No action for this long is a hang: the action list is printed and the process aborts.
    int hangLimitMs = 30000;
};

struct RandomUserOutcome {
    int actionsRun = 0;
    qint64 elapsedMs = 0;
    int invariantChecks = 0;
    bool timedOut = false;
    // Every broken promise, with the number of the action after which it was seen.
    QStringList faults;
    // The actions in order, each with the message boxes it met and how they were answered.
    QStringList actionLog;
    // The row counts of the four tables at each check of the invariants, told apart: how much
    // the run really changed the database.
    QSet<QString> tableCounts;
    // How often each critical message was shown.
    QHash<QString, int> criticalMessages;
};

// A user who knows nothing of the program: from a seed, it clicks, types, pastes, opens
// menus, answers every message box and dialog at random, and restarts the program when it
// ends.  It drives the real frame offscreen from a timer, so that it goes on acting inside
// every modal dialog's own event loop and never waits on one.
//
// The program must stand in `platform`'s application directory, with "Quillon.qdl" laid and
// no connection open: the first action starts it.
class RandomUser : public QObject {
public:
    RandomUser(ScriptedPlatform &platform, RandomUserOptions options);
    ~RandomUser() override;

    RandomUserOutcome run();

private:
    struct Action {
        QString description;
        std::function<void()> perform;
    };

    void tick();
    Action choose();
    void perform(Action action);
    void afterAction();
    void finishStep();
    void fault(const QString &what);
    // Runs the work; an exception that escapes it is a fault, told with its text.
    void runCatching(const std::function<void()> &work, const QString &what);

    // The kinds of action.
    Action startProgram();
    Action menuCommand();
    Action toolbarButton();
    Action widgetAction(QWidget *root);
    Action popupAction(QWidget *popup);
    Action closeWindow(QWidget *window);
    Action panelClick();
    Action closeChildWindow();
    Action fillEmptyBoxes(QWidget *root);

    // Where the user acts: the modal dialog in front, else the active child window of the frame
    // (or another window the program has open beside the frame).
    QWidget *actingRoot();
    QString randomText();
    int pick(int n) { return n <= 0 ? 0 : int(std::uniform_int_distribution<int>(0, n - 1)(m_rng)); }
    bool chance(int percent) { return pick(100) < percent; }
    QString describe(const QWidget *w) const;
    void prepareForCommand(const QString &item);
    MsgAnswer answer(const ShownMessage &m);

    void checkOwnership();
    void checkInvariants();

    ScriptedPlatform &m_platform;
    RandomUserOptions m_options;
    std::mt19937 m_rng;
    QTimer m_ticker;
    QElapsedTimer m_clock;
    RandomUserOutcome m_outcome;
    bool m_pending = false;
    bool m_finishing = false;
    bool m_done = false;
    int m_depth = 0;
    // The event loop level at the start of each action still running, innermost last.
    QVector<int> m_loopLevels;
    int m_nextCheck = 0;
    int m_backups = 0;
    QString m_current;
    std::atomic<qint64> m_lastProgressMs{0};
};

} // namespace quillon::test
