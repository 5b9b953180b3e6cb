#include "RandomUser.h"

#include "FrameFixture.h"

#include "handicap/Handicap.h"
#include "shell/MDIForm1.h"
#include "shell/SingleInstance.h"
#include "shell/Startup.h"
#include "shell/basLogGlobals.h"
#include "store/DatabaseFiles.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSqlRecord>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <QThread>
#include <QToolBar>
#include <QWindow>
#include <chrono>
#include <csignal>
#include <signal.h>
#include <cstdio>
#include <cstring>
#include <thread>
#include <numeric>
#include <algorithm>

namespace quillon::test {

namespace {

// The action log is written to a file as it grows, so that a crash or a hang still leaves the
// list that led there; the handlers below name the file and print its end.
char g_logPath[1024] = {0};

void printLogTail(const char *why)
{
    std::fprintf(stderr, "\nrandom user: %s\nthe actions so far are in %s; the last ones:\n", why, g_logPath);
    if (FILE *f = std::fopen(g_logPath, "r")) {
        std::fseek(f, 0, SEEK_END);
        const long size = std::ftell(f);
        std::fseek(f, size > 6000 ? size - 6000 : 0, SEEK_SET);
        char buffer[6001];
        const size_t n = std::fread(buffer, 1, 6000, f);
        buffer[n] = 0;
        std::fputs(buffer, stderr);
        std::fclose(f);
    }
    std::fflush(stderr);
}

// A key that no widget takes is the normal lot of a random user, not news.
QtMessageHandler g_previousHandler = nullptr;
void quietHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.startsWith(QLatin1String("Keyboard event not accepted")) ||
        message.startsWith(QLatin1String("This plugin does not support")))
        return;
    if (g_previousHandler)
        g_previousHandler(type, context, message);
}

// What stood before ours, so that a sanitizer's own handler still prints its report after the list.
struct sigaction g_previousSegv;
struct sigaction g_previousAbrt;

void onFatalSignal(int sig)
{
    printLogTail(sig == SIGSEGV ? "crashed (SIGSEGV)" : sig == SIGABRT ? "aborted (SIGABRT)" : "died on a signal");
    sigaction(sig, sig == SIGSEGV ? &g_previousSegv : &g_previousAbrt, nullptr);
    std::raise(sig);
}

const char *const kToolbarKeys[] = {"NewCourse", "NewGolfer", "NewScore",    "EditCourse", "EditScore",
                                    "ScoreLog",  "CourseInfo", "GolferStats", "Graphs",     "Help"};

QString answerName(MsgAnswer a)
{
    switch (a) {
    case MsgAnswer::OK: return QStringLiteral("OK");
    case MsgAnswer::Cancel: return QStringLiteral("Cancel");
    case MsgAnswer::Yes: return QStringLiteral("Yes");
    case MsgAnswer::No: return QStringLiteral("No");
    }
    return QString();
}

// Send one mouse event as the window system would, to a widget that may be gone.
void mouse(QWidget *w, QEvent::Type type, Qt::MouseButton button, QPoint at)
{
    if (!w)
        return;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::MouseButtons(button);
    QMouseEvent e(type, QPointF(at), QPointF(w->mapToGlobal(at)), button, held, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

void click(QPointer<QWidget> w, QPoint at, Qt::MouseButton button = Qt::LeftButton)
{
    mouse(w, QEvent::MouseButtonPress, button, at);
    mouse(w, QEvent::MouseButtonRelease, button, at);
    if (button == Qt::RightButton && w) {
        // The window system follows a right click with the request for a context menu.
        QContextMenuEvent menu(QContextMenuEvent::Mouse, at, w->mapToGlobal(at));
        QApplication::sendEvent(w, &menu);
    }
}

void doubleClick(QPointer<QWidget> w, QPoint at)
{
    click(w, at);
    mouse(w, QEvent::MouseButtonDblClick, Qt::LeftButton, at);
    mouse(w, QEvent::MouseButtonRelease, Qt::LeftButton, at);
}

// One key, pressed and released; the release goes only to a widget that survived the press.
void key(QPointer<QWidget> w, Qt::Key code, const QString &text = QString(),
         Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    if (!w)
        return;
    QTest::sendKeyEvent(QTest::Press, w, code, text, modifiers);
    if (w)
        QTest::sendKeyEvent(QTest::Release, w, code, text, modifiers);
}

// Where keys go: the focus widget, else the window named.
QWidget *keyTarget(QWidget *fallback)
{
    QWidget *focus = QApplication::focusWidget();
    return focus ? focus : fallback;
}

void typeText(QPointer<QWidget> fallback, const QString &text)
{
    const QList<uint> codePoints = text.toUcs4();
    for (uint cp : codePoints) {
        QPointer<QWidget> target = keyTarget(fallback);
        if (!target)
            return;
        const QString one = QString::fromUcs4(reinterpret_cast<const char32_t *>(&cp), 1);
        if (cp < 128 && cp >= 32)
            key(target, QTest::asciiToKey(char(cp)), one);
        else
            key(target, Qt::Key_unknown, one);
    }
}

void focusOn(QWidget *w)
{
    if (!w)
        return;
    w->window()->activateWindow();
    w->setFocus(Qt::MouseFocusReason);
}

bool isInput(QWidget *w)
{
    if (auto *e = qobject_cast<QLineEdit *>(w))
        return !e->isReadOnly();
    return qobject_cast<QAbstractSpinBox *>(w) || qobject_cast<QPlainTextEdit *>(w) ||
           qobject_cast<QTextEdit *>(w);
}

bool usable(const QWidget *w)
{
    return w && w->isVisible() && w->isEnabled();
}

// A point inside a view where one of its items stands, or a random point when it has none.
QPoint itemPoint(QAbstractItemView *view, int row, int column)
{
    QAbstractItemModel *model = view->model();
    if (model && model->rowCount(view->rootIndex()) > 0 && model->columnCount(view->rootIndex()) > 0) {
        const QModelIndex index = model->index(row % model->rowCount(view->rootIndex()),
                                               column % model->columnCount(view->rootIndex()), view->rootIndex());
        view->scrollTo(index);
        const QRect r = view->visualRect(index);
        if (r.isValid() && !r.isEmpty())
            return r.center();
    }
    const QSize s = view->viewport()->size();
    return QPoint(s.width() > 0 ? (row * 37) % s.width() : 0, s.height() > 0 ? (column * 53) % s.height() : 0);
}


// Answers the gender question of a golfer never asked, when the handicap is computed afresh.
class NoteGender : public GenderQuestion {
public:
    QString GetGender(const QString &first, const QString &last) override
    {
        asked << first + QLatin1Char(' ') + last;
        return QStringLiteral("M");
    }
    QStringList asked;
};

QString rowText(const QSqlRecord &r)
{
    QStringList parts;
    for (int i = 0; i < r.count(); ++i)
        parts << (r.value(i).isNull() ? QStringLiteral("Null") : r.value(i).toString());
    return parts.join(QLatin1Char('|'));
}

} // namespace

RandomUser::RandomUser(ScriptedPlatform &platform, RandomUserOptions options)
    : m_platform(platform), m_options(options), m_rng(options.seed)
{
    m_ticker.setInterval(1);
    connect(&m_ticker, &QTimer::timeout, this, [this] { tick(); });
    const QString log = QDir(QDir::tempPath()).filePath(QStringLiteral("quillon-random-user-%1.log").arg(options.seed));
    std::strncpy(g_logPath, QFile::encodeName(log).constData(), sizeof g_logPath - 1);
    QFile::remove(log);
}

RandomUser::~RandomUser()
{
    m_platform.answerer = nullptr;
}

RandomUserOutcome RandomUser::run()
{
    m_platform.answerer = [this](const ShownMessage &m) { return answer(m); };
    m_nextCheck = m_options.checkEvery;
    g_previousHandler = qInstallMessageHandler(quietHandler);
    struct sigaction ours = {};
    ours.sa_handler = onFatalSignal;
    sigemptyset(&ours.sa_mask);
    sigaction(SIGSEGV, &ours, &g_previousSegv);
    sigaction(SIGABRT, &ours, &g_previousAbrt);

    std::atomic<bool> stop{false};
    m_clock.start();
    const auto started = std::chrono::steady_clock::now();
    std::thread watchdog([this, &stop, started] {
        while (!stop) {
            std::this_thread::sleep_for(std::chrono::milliseconds(200));
            const qint64 now =
                std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - started).count();
            if (!stop && now - m_lastProgressMs > m_options.hangLimitMs) {
                printLogTail("hung: the program stopped taking events");
                std::_Exit(3);
            }
        }
    });

    QEventLoop loop;
    connect(this, &QObject::objectNameChanged, &loop, &QEventLoop::quit);
    m_ticker.start();
    runCatching([&loop] { loop.exec(); }, QStringLiteral("an exception left the event loop"));
    m_ticker.stop();
    if (m_depth == 0)
        checkInvariants();
    // The program ends with the run, as its process would: the next run starts it anew.
    DestroyForms();
    basLogGlobals().releaseAll();
    stop = true;
    watchdog.join();
    sigaction(SIGSEGV, &g_previousSegv, nullptr);
    sigaction(SIGABRT, &g_previousAbrt, nullptr);
    qInstallMessageHandler(g_previousHandler);
    m_platform.answerer = nullptr;
    m_platform.takeMessages();
    m_outcome.elapsedMs = m_clock.elapsed();
    return m_outcome;
}

void RandomUser::tick()
{
    // Only a new action counts as progress: a wait that never ends is a hang.
    if (m_pending || m_done)
        return;
    // Inside a command that only lets pending events run (no dialog of its own), a user's clicks
    // wait for the command to end, as the hourglass says: act only where a new loop stands.
    if (!m_loopLevels.isEmpty() && QThread::currentThread()->loopLevel() <= m_loopLevels.constLast())
        return;
    if (!m_finishing && (m_outcome.actionsRun >= m_options.actions || m_clock.elapsed() > m_options.timeLimitMs ||
                         !m_outcome.faults.isEmpty())) {
        m_finishing = true;
        m_outcome.timedOut = m_outcome.actionsRun < m_options.actions && m_outcome.faults.isEmpty();
    }
    if (m_finishing) {
        m_lastProgressMs = m_clock.elapsed();
        finishStep();
        return;
    }
    // Under the hourglass the program lets only its own pending events run, never the user's
    // input: a real click waits until the pointer is back, and so does this user.
    if (m_platform.pointerBusy())
        return;
    if (m_depth == 0 && m_outcome.actionsRun >= m_nextCheck) {
        checkInvariants();
        m_nextCheck = m_outcome.actionsRun + m_options.checkEvery;
        if (!m_outcome.faults.isEmpty())
            return;
    }
    Action a = choose();
    m_pending = true;
    QTimer::singleShot(0, this, [this, a = std::move(a)] {
        m_pending = false;
        // The action may come due inside a command's own wait under the hourglass.
        if (m_platform.pointerBusy())
            return;
        perform(a);
    });
}

void RandomUser::finishStep()
{
    // Every dialog is closed in turn, so that each modal loop unwinds to the test.
    static int stuck = 0;
    if (QWidget *popup = QApplication::activePopupWidget()) {
        popup->close();
        return;
    }
    if (QWidget *modal = QApplication::activeModalWidget()) {
        if (++stuck > 2000) {
            fault(QStringLiteral("the modal dialog \"%1\" would not close").arg(modal->objectName()));
            modal->hide();
        }
        if (auto *d = qobject_cast<QDialog *>(modal))
            d->reject();
        else
            modal->close();
        return;
    }
    if (m_depth > 0)
        return;
    stuck = 0;
    m_done = true;
    m_ticker.stop();
    setObjectName(QStringLiteral("done")); // ends the run's loop
}

void RandomUser::perform(Action action)
{
    const int number = ++m_outcome.actionsRun;
    // The depth tells inside how many commands still running (modal dialogs) the action came.
    m_current = QStringLiteral("%1. %2%3").arg(number).arg(QString(m_depth * 2, QLatin1Char(' ')), action.description);
    m_outcome.actionLog << m_current;
    if (FILE *f = std::fopen(g_logPath, "a")) {
        std::fputs(m_current.toUtf8().constData(), f);
        std::fputc('\n', f);
        std::fclose(f);
    }
    m_lastProgressMs = m_clock.elapsed();
    ++m_depth;
    m_loopLevels << QThread::currentThread()->loopLevel();
    runCatching(action.perform, QStringLiteral("uncaught exception"));
    m_loopLevels.removeLast();
    --m_depth;
    afterAction();
}

void RandomUser::afterAction()
{
    checkOwnership();
    if (m_depth == 0) {
        if (QWidget *modal = QApplication::activeModalWidget())
            fault(QStringLiteral("the modal dialog \"%1\" stands with no command waiting on it")
                      .arg(modal->objectName()));
    }
    m_platform.takeMessages();
}

void RandomUser::runCatching(const std::function<void()> &work, const QString &what)
{
    try {
        work();
    } catch (const std::exception &e) {
        fault(QStringLiteral("%1: %2").arg(what, QString::fromLocal8Bit(e.what())));
    } catch (...) {
        fault(what + QStringLiteral(" of unknown type"));
    }
}

void RandomUser::fault(const QString &what)
{
    m_outcome.faults << QStringLiteral("after action %1: %2").arg(m_outcome.actionsRun).arg(what);
}

MsgAnswer RandomUser::answer(const ShownMessage &m)
{
    MsgAnswer a = MsgAnswer::OK;
    switch (m.buttons) {
    case MsgButtons::OK: a = MsgAnswer::OK; break;
    case MsgButtons::OKCancel: a = chance(50) ? MsgAnswer::OK : MsgAnswer::Cancel; break;
    case MsgButtons::YesNo: a = chance(50) ? MsgAnswer::Yes : MsgAnswer::No; break;
    }
    QString line = QStringLiteral("      message \"%1\" -> %2").arg(m.text, answerName(a));
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    m_outcome.actionLog << line;
    if (FILE *f = std::fopen(g_logPath, "a")) {
        std::fputs(line.toUtf8().constData(), f);
        std::fputc('\n', f);
        std::fclose(f);
    }
    if (m.icon == MsgIcon::Critical)
        ++m_outcome.criticalMessages[m.text];
    return a;
}

RandomUser::Action RandomUser::choose()
{
    MDIForm1 *frame = MDIForm1::existing();
    const bool running = frame && frame->isVisible();
    if (m_depth == 0 && !running)
        return startProgram();
    if (QWidget *popup = QApplication::activePopupWidget())
        return popupAction(popup);
    if (QWidget *modal = QApplication::activeModalWidget()) {
        if (chance(7))
            return closeWindow(modal);
        if (chance(5))
            return fillEmptyBoxes(modal);
        return widgetAction(modal);
    }
    if (!running)
        return {QStringLiteral("wait"), [] {}};
    const int r = pick(100);
    if (r < 22)
        return menuCommand();
    if (r < 30)
        return toolbarButton();
    if (r < 32)
        return panelClick();
    if (r < 34)
        return closeChildWindow();
    if (r < 35)
        return closeWindow(frame);
    QWidget *root = actingRoot();
    if (!root)
        return menuCommand();
    if (r < 45)
        return fillEmptyBoxes(root);
    if (r < 48 && root->isWindow() && root != frame)
        return closeWindow(root);
    return widgetAction(root);
}

QWidget *RandomUser::actingRoot()
{
    MDIForm1 *frame = MDIForm1::existing();
    QList<QWidget *> others;
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w != frame && w->isVisible() && !(w->windowFlags() & Qt::Popup) && !qobject_cast<QMenu *>(w))
            others << w;
    QWidget *child = nullptr;
    if (frame) {
        if (QMdiSubWindow *sub = frame->mdiArea()->activeSubWindow())
            child = sub->widget();
        else if (!frame->mdiArea()->subWindowList().isEmpty())
            child = frame->mdiArea()->subWindowList().constLast()->widget();
    }
    if (child && (others.isEmpty() || chance(75)))
        return child;
    if (!others.isEmpty())
        return others.at(pick(others.size()));
    return child;
}

RandomUser::Action RandomUser::startProgram()
{
    return {QStringLiteral("start the program"), [] {
                // As a new process finds it: no form, no global left from the last run.
                DestroyForms();
                LogGlobals &g = basLogGlobals();
                g.releaseAll();
                g = LogGlobals();
                MDIForm1 &frame = MDIForm1::instance();
                frame.show();
                SingleInstance instance(appFile(SingleInstance::defaultLockName()));
                if (MDIForm1_Load(frame, instance, QString()) == StartupOutcome::ChoosingGolfer)
                    frame.AskForGolfer();
                else if (!basLogGlobals().gConnection)
                    frame.hide();
            }};
}

void RandomUser::prepareForCommand(const QString &item)
{
    const QDir dir(m_platform.appDir());
    if (item == QLatin1String("mnuDatabaseBackup")) {
        const int r = pick(10);
        if (r < 6)
            m_platform.answerSaveFile(dir.filePath(QStringLiteral("backups/b%1.qdl").arg(++m_backups)));
        else if (r < 7)
            m_platform.answerSaveFile(dir.filePath(QStringLiteral("Quillon.qdl")));
        else if (r < 8)
            m_platform.answerSaveFile(dir.filePath(QStringLiteral("no such folder/b.qdl")));
    } else if (item == QLatin1String("mnuDatabaseRestore")) {
        const int r = pick(10);
        if (r < 6) {
            const int n = pick(m_backups + 1);
            m_platform.answerOpenFile(
                dir.filePath(n == 0 ? QStringLiteral("backups/start.qdl") : QStringLiteral("backups/b%1.qdl").arg(n)));
        } else if (r < 7) {
            m_platform.answerOpenFile(dir.filePath(QStringLiteral("Quillon.qdl")));
        } else if (r < 8) {
            const QString junk = dir.filePath(QStringLiteral("junk.qdl"));
            QFile f(junk);
            if (f.open(QIODevice::WriteOnly))
                f.write(randomText().toUtf8().repeated(50));
            m_platform.answerOpenFile(junk);
        } else if (r < 9) {
            m_platform.answerOpenFile(dir.filePath(QStringLiteral("missing.qdl")));
        }
    } else if (item.startsWith(QLatin1String("mnuPrint")) || item.startsWith(QLatin1String("mnuSLPrint"))) {
        m_platform.printerName = chance(10) ? QString() : QStringLiteral("Scripted PDF Printer");
        m_platform.previewAnswer = chance(70);
        // Pages already read are of no further use; they only fill the folder.
        for (const QString &p : m_platform.printedFiles())
            QFile::remove(p);
    } else if (item == QLatin1String("mnuFilePrintSetup")) {
        m_platform.printSetupAnswer = chance(50);
    }
}

RandomUser::Action RandomUser::menuCommand()
{
    MDIForm1 *frame = MDIForm1::existing();
    QList<QAction *> reachable;
    std::function<void(QMenu *)> walk = [&](QMenu *menu) {
        for (QAction *a : menu->actions()) {
            if (a->isSeparator() || !a->isVisible() || !a->isEnabled())
                continue;
            if (a->menu())
                walk(a->menu());
            else
                reachable << a;
        }
    };
    for (QAction *top : frame->menuBar()->actions())
        if (top->menu() && top->isVisible() && top->isEnabled())
            walk(top->menu());
    if (reachable.isEmpty())
        return {QStringLiteral("nothing to choose in the menus"), [] {}};
    QPointer<QAction> a = reachable.at(pick(reachable.size()));
    const QString name = a->objectName();
    return {QStringLiteral("menu %1").arg(name), [this, a, name] {
                prepareForCommand(name);
                if (a && a->isEnabled())
                    a->trigger();
            }};
}

RandomUser::Action RandomUser::toolbarButton()
{
    MDIForm1 *frame = MDIForm1::existing();
    auto *bar = frame->findChild<QToolBar *>(QStringLiteral("Toolbar1"));
    QList<QAbstractButton *> buttons;
    for (const char *key : kToolbarKeys)
        if (QAction *a = frame->toolButton(QLatin1String(key)); a && a->isEnabled() && a->isVisible())
            if (auto *b = qobject_cast<QAbstractButton *>(bar ? bar->widgetForAction(a) : nullptr))
                buttons << b;
    if (buttons.isEmpty())
        return {QStringLiteral("toolbar: nothing enabled"), [] {}};
    QPointer<QAbstractButton> b = buttons.at(pick(buttons.size()));
    return {QStringLiteral("toolbar %1").arg(b->text()), [b] {
                if (b)
                    b->click();
            }};
}

RandomUser::Action RandomUser::panelClick()
{
    const char *keys[] = {"GolferName", "ScoreDetails", "Handicap"};
    const QString key = QLatin1String(keys[pick(3)]);
    return {QStringLiteral("click the status bar panel %1").arg(key), [key] {
                if (MDIForm1 *frame = MDIForm1::existing())
                    if (QLabel *panel = frame->panel(key))
                        click(panel, panel->rect().center());
            }};
}

RandomUser::Action RandomUser::closeChildWindow()
{
    MDIForm1 *frame = MDIForm1::existing();
    QPointer<QMdiSubWindow> sub = frame->mdiArea()->activeSubWindow();
    if (!sub)
        return menuCommand();
    return {QStringLiteral("close the child window %1").arg(describe(sub->widget())), [sub] {
                if (sub)
                    sub->close();
            }};
}

RandomUser::Action RandomUser::closeWindow(QWidget *window)
{
    QPointer<QWidget> w = window;
    if (chance(50))
        return {QStringLiteral("Escape in %1").arg(describe(window)), [w] { key(w, Qt::Key_Escape); }};
    return {QStringLiteral("close the window %1").arg(describe(window)), [w] {
                if (w)
                    w->close();
            }};
}

RandomUser::Action RandomUser::popupAction(QWidget *popup)
{
    QPointer<QWidget> p = popup;
    if (auto *menu = qobject_cast<QMenu *>(popup)) {
        QList<QAction *> items;
        for (QAction *a : menu->actions())
            if (!a->isSeparator() && a->isVisible() && a->isEnabled())
                items << a;
        if (!items.isEmpty() && chance(80)) {
            QAction *a = items.at(pick(items.size()));
            const QPoint at = menu->actionGeometry(a).center();
            const QString name = a->objectName().isEmpty() ? a->text() : a->objectName();
            if (QAction *target = MDIForm1::existing() ? MDIForm1::existing()->menuItem(name) : nullptr)
                Q_UNUSED(target);
            return {QStringLiteral("popup item %1").arg(name), [this, p, at, name] {
                        prepareForCommand(name);
                        click(p, at);
                    }};
        }
        return {QStringLiteral("Escape in the popup menu"), [p] { key(p, Qt::Key_Escape); }};
    }
    // A list dropped from a box, a calendar: choose in it, or leave it.
    QList<QAbstractItemView *> views;
    for (QAbstractItemView *v : popup->findChildren<QAbstractItemView *>())
        if (usable(v))
            views << v;
    if (!views.isEmpty() && chance(70)) {
        QAbstractItemView *v = views.at(pick(views.size()));
        const QPoint at = itemPoint(v, pick(50), pick(8));
        QPointer<QWidget> viewport = v->viewport();
        return {QStringLiteral("click in the popup %1").arg(describe(popup)), [viewport, at] { click(viewport, at); }};
    }
    return {QStringLiteral("Escape in the popup %1").arg(describe(popup)), [p] { key(p, Qt::Key_Escape); }};
}

QString RandomUser::describe(const QWidget *w) const
{
    if (!w)
        return QStringLiteral("(none)");
    QString name = w->objectName();
    const QWidget *up = w;
    while (name.isEmpty() && up->parentWidget()) {
        up = up->parentWidget();
        if (!up->objectName().isEmpty())
            name = QStringLiteral("%1 in %2").arg(QString::fromLatin1(w->metaObject()->className()), up->objectName());
    }
    if (name.isEmpty())
        name = QString::fromLatin1(w->metaObject()->className());
    const QWidget *window = w->window();
    if (window != w && !window->objectName().isEmpty() && !name.contains(window->objectName()))
        name += QStringLiteral(" of ") + window->objectName();
    return name;
}

QString RandomUser::randomText()
{
    switch (pick(16)) {
    case 0: return QString();
    case 1: return QString::number(pick(10));
    case 2: return QString::number(pick(200));
    case 3: return QString::number(pick(100000));
    case 4: {
        QString digits;
        for (int i = 0; i < 40; ++i)
            digits += QChar(u'0' + (i == 0 ? 1 + pick(9) : pick(10)));
        return digits;
    }
    case 5: return QStringLiteral("-%1").arg(pick(1000));
    case 6: return QStringLiteral("O'Brien");
    case 7: return QStringLiteral("\"quoted\"");
    case 8: return QStringLiteral("a;b; DROP TABLE ScoreLog;--");
    case 9: return QStringLiteral("\U0001F3CC\U0001F600");
    case 10: return QStringLiteral("%1.%2").arg(pick(100)).arg(pick(10));
    case 11: return QStringLiteral("Smith, John");
    case 12: {
        static const char *const words[] = {"Pebble", "white", "Blue", "x", "Zz", "St. Andrew's", "  ", "%", "_", "\\"};
        return QLatin1String(words[pick(10)]);
    }
    case 13: return QStringLiteral("%1/%2/%3").arg(1 + pick(13)).arg(1 + pick(32)).arg(1990 + pick(50));
    case 14: return QStringLiteral("1e308");
    default: return QStringLiteral("'");
    }
}

RandomUser::Action RandomUser::widgetAction(QWidget *root)
{
    QList<QWidget *> all;
    all << root;
    for (QWidget *w : root->findChildren<QWidget *>())
        if (usable(w) && w->window() == root->window())
            all << w;
    QList<QAbstractButton *> buttons;
    QList<QWidget *> inputs;
    QList<QComboBox *> combos;
    QList<QAbstractItemView *> views;
    QList<QTabBar *> tabs;
    for (QWidget *w : all) {
        if (auto *b = qobject_cast<QAbstractButton *>(w))
            buttons << b;
        else if (isInput(w))
            inputs << w;
        else if (auto *c = qobject_cast<QComboBox *>(w))
            combos << c;
        else if (auto *v = qobject_cast<QAbstractItemView *>(w))
            views << v;
        else if (auto *t = qobject_cast<QTabBar *>(w); t && t->count() > 1)
            tabs << t;
    }
    QPointer<QWidget> rootPtr = root;
    for (int attempt = 0; attempt < 8; ++attempt) {
        const int r = pick(100);
        if (r < 24 && !buttons.isEmpty()) {
            QPointer<QAbstractButton> b = buttons.at(pick(buttons.size()));
            return {QStringLiteral("click %1 \"%2\"").arg(describe(b), b->text()), [b] {
                        if (usable(b))
                            b->click();
                    }};
        }
        if (r < 48) {
            const QString text = randomText();
            QPointer<QWidget> target;
            if (!inputs.isEmpty() && chance(65)) {
                target = inputs.at(pick(inputs.size()));
            } else if (QWidget *f = QApplication::focusWidget(); f && f->window() == root->window()) {
                target = f;
            } else if (!inputs.isEmpty()) {
                target = inputs.at(pick(inputs.size()));
            } else {
                continue;
            }
            const bool replace = chance(40);
            return {QStringLiteral("type \"%1\" into %2%3").arg(text, describe(target), replace ? " over its text" : ""),
                    [target, text, replace] {
                        if (!usable(target))
                            return;
                        if (QApplication::focusWidget() != target)
                            focusOn(target);
                        if (replace && target)
                            key(target, Qt::Key_A, QString(), Qt::ControlModifier);
                        typeText(target, text);
                    }};
        }
        if (r < 55 && !inputs.isEmpty()) {
            QPointer<QWidget> target = inputs.at(pick(inputs.size()));
            const QString text = randomText();
            return {QStringLiteral("paste \"%1\" into %2").arg(text, describe(target)), [target, text] {
                        if (!usable(target))
                            return;
                        focusOn(target);
                        QGuiApplication::clipboard()->setText(text);
                        key(keyTarget(target), Qt::Key_V, QString(), Qt::ControlModifier);
                    }};
        }
        if (r < 66) {
            static const struct {
                Qt::Key code;
                Qt::KeyboardModifiers modifiers;
                const char *name;
            } keys[] = {{Qt::Key_Return, Qt::NoModifier, "Enter"},  {Qt::Key_Escape, Qt::NoModifier, "Escape"},
                        {Qt::Key_Tab, Qt::NoModifier, "Tab"},       {Qt::Key_Backtab, Qt::ShiftModifier, "Shift+Tab"},
                        {Qt::Key_Up, Qt::NoModifier, "Up"},         {Qt::Key_Down, Qt::NoModifier, "Down"},
                        {Qt::Key_Home, Qt::NoModifier, "Home"},     {Qt::Key_End, Qt::NoModifier, "End"},
                        {Qt::Key_PageDown, Qt::NoModifier, "PageDown"}, {Qt::Key_Delete, Qt::NoModifier, "Delete"},
                        {Qt::Key_Backspace, Qt::NoModifier, "Backspace"}, {Qt::Key_Space, Qt::NoModifier, "Space"},
                        {Qt::Key_F1, Qt::NoModifier, "F1"},         {Qt::Key_F4, Qt::NoModifier, "F4"},
                        {Qt::Key_A, Qt::ControlModifier, "Ctrl+A"}, {Qt::Key_Z, Qt::ControlModifier, "Ctrl+Z"},
                        {Qt::Key_X, Qt::ControlModifier, "Ctrl+X"}, {Qt::Key_Down, Qt::AltModifier, "Alt+Down"}};
            const auto &k = keys[pick(int(std::size(keys)))];
            QWidget *f = QApplication::focusWidget();
            QPointer<QWidget> target = f && f->window() == root->window() ? f : root;
            const QString text = k.code == Qt::Key_Space ? QStringLiteral(" ")
                                 : k.code == Qt::Key_Return ? QStringLiteral("\r")
                                 : k.code == Qt::Key_Escape ? QStringLiteral("\x1b")
                                                            : QString();
            return {QStringLiteral("key %1 in %2").arg(QLatin1String(k.name), describe(target)),
                    [target, k, text] { key(target, k.code, text, k.modifiers); }};
        }
        if (r < 86 && !views.isEmpty()) {
            QAbstractItemView *v = views.at(pick(views.size()));
            QPointer<QWidget> viewport = v->viewport();
            const int row = pick(60), column = pick(12);
            const int how = pick(10);
            const QPoint at = itemPoint(v, row, column);
            const QString where = QStringLiteral("%1 at row %2, column %3").arg(describe(v)).arg(row).arg(column);
            if (how < 5)
                return {QStringLiteral("click ") + where, [viewport, at] { click(viewport, at); }};
            if (how < 8)
                return {QStringLiteral("double-click ") + where, [viewport, at] { doubleClick(viewport, at); }};
            return {QStringLiteral("right-click ") + where, [viewport, at] { click(viewport, at, Qt::RightButton); }};
        }
        if (r < 93 && !combos.isEmpty()) {
            QPointer<QComboBox> c = combos.at(pick(combos.size()));
            if (chance(40))
                return {QStringLiteral("open the list %1").arg(describe(c)), [c] {
                            if (usable(c)) {
                                focusOn(c);
                                c->showPopup();
                            }
                        }};
            const int steps = 1 + pick(3);
            const Qt::Key dir = chance(70) ? Qt::Key_Down : Qt::Key_Up;
            return {QStringLiteral("%1 %2 times in the list %3")
                        .arg(dir == Qt::Key_Down ? "Down" : "Up")
                        .arg(steps)
                        .arg(describe(c)),
                    [c, steps, dir] {
                        for (int i = 0; i < steps && usable(c); ++i) {
                            focusOn(c);
                            key(c.data(), dir);
                        }
                    }};
        }
        if (r < 96 && !tabs.isEmpty()) {
            QPointer<QTabBar> t = tabs.at(pick(tabs.size()));
            const int index = pick(t->count());
            return {QStringLiteral("tab %1 of %2").arg(index).arg(describe(t)), [t, index] {
                        if (usable(t) && index < t->count())
                            click(t.data(), t->tabRect(index).center());
                    }};
        }
        if (r < 100) {
            QPointer<QWidget> w = all.at(pick(all.size()));
            const QPoint at(w->width() / 2, w->height() / 2);
            if (chance(50))
                return {QStringLiteral("right-click %1").arg(describe(w)), [w, at] { click(w, at, Qt::RightButton); }};
            return {QStringLiteral("click %1").arg(describe(w)), [w, at] { click(w, at); }};
        }
    }
    return {QStringLiteral("key Tab"), [rootPtr] { key(keyTarget(rootPtr), Qt::Key_Tab); }};
}

RandomUser::Action RandomUser::fillEmptyBoxes(QWidget *root)
{
    // A diligent user: every empty box gets a value of the kind its name asks for, and then,
    // often, the form's own button.  Random keys alone would seldom get a round or a course saved.
    QList<QPointer<QLineEdit>> boxes;
    QStringList values;
    // The user picks from the lists first (a course, its tees, the holes), as the form asks.
    QList<QPointer<QComboBox>> lists;
    QVector<int> choices;
    for (QComboBox *c : root->findChildren<QComboBox *>()) {
        if (!usable(c) || c->count() == 0 || c->window() != root->window() || !chance(60))
            continue;
        lists << c;
        choices << pick(c->count());
    }
    // Hole handicaps are a shuffle of 1 to 18, as on a real card.
    QVector<int> handicaps(18);
    std::iota(handicaps.begin(), handicaps.end(), 1);
    std::shuffle(handicaps.begin(), handicaps.end(), m_rng);
    // A hole's putts stay below its score, as on a real card.
    QVector<int> strokes(18);
    for (int &n : strokes)
        n = 3 + pick(5);
    for (QLineEdit *e : root->findChildren<QLineEdit *>()) {
        if (!usable(e) || e->isReadOnly() || !e->text().isEmpty() || e->window() != root->window())
            continue;
        QString name = e->objectName();
        if (name.isEmpty() && e->parentWidget())
            name = e->parentWidget()->objectName();
        QString value;
        const int hole = name.section(QLatin1Char('_'), 1).toInt();
        if (name.contains(QLatin1String("Hdcp")))
            value = QString::number(handicaps.at(qBound(0, hole, 17)));
        // Figures that agree with one another: lost balls within penalties, saves within tries
        // within bunkers.
        else if (name.contains(QLatin1String("Penalties")))
            value = QString::number(2 + pick(2));
        else if (name.contains(QLatin1String("LostBalls")) || name.contains(QLatin1String("SandSaves")))
            value = QString::number(pick(2));
        else if (name.contains(QLatin1String("AttemptedSaves")))
            value = QString::number(1 + pick(2));
        else if (name.contains(QLatin1String("Bunkers")))
            value = QString::number(3 + pick(2));
        else if (name.contains(QLatin1String("Rating")))
            value = QStringLiteral("%1.%2").arg(60 + pick(15)).arg(pick(10));
        else if (name.contains(QLatin1String("Slope")))
            value = QString::number(55 + pick(101));
        else if (name.contains(QLatin1String("Par")))
            value = QString::number(3 + pick(3));
        else if (name.contains(QLatin1String("Putts")))
            value = QString::number(1 + pick(qMin(3, strokes.at(qBound(0, hole, 17)) - 1)));
        else if (name.startsWith(QLatin1String("txtScore_")))
            value = QString::number(strokes.at(qBound(0, hole, 17)));
        else if (name.contains(QLatin1String("Total")))
            value = QString::number(70 + pick(40));
        else if (name.contains(QLatin1String("Score")) || name.contains(QLatin1String("Hole")))
            value = QString::number(3 + pick(5));
        else if (name.contains(QLatin1String("Golfer")))
            value = chance(50) ? QStringLiteral("Palmer, Arnold") : QStringLiteral("Doe, Jane%1").arg(pick(3));
        else if (name.contains(QLatin1String("Course")))
            value = chance(50) ? QStringLiteral("Pebble Creek") : QStringLiteral("Course %1").arg(pick(4));
        else if (name.contains(QLatin1String("Tees")))
            value = chance(50) ? QStringLiteral("White") : QStringLiteral("Red");
        else if (name.contains(QLatin1String("Date")))
            value = QStringLiteral("%1/%2/2026").arg(1 + pick(11)).arg(1 + pick(28));
        else if (name.contains(QLatin1String("Yard")) || name.contains(QLatin1String("Distance")))
            value = QString::number(100 + pick(450));
        else
            value = QString::number(1 + pick(99));
        // Totals come last, and only where typing the holes left them empty: the form sums as
        // the user types.
        if (name.endsWith(QLatin1String("Out")) || name.endsWith(QLatin1String("In")) ||
            name.startsWith(QLatin1String("txtTotal"))) {
            boxes.append(e);
            values.append(value);
        } else {
            boxes.prepend(e);
            values.prepend(value);
        }
    }
    QPointer<QAbstractButton> button;
    if (chance(80))
        for (const char *name : {"cmdSave", "cmdOK", "cmdCalculate", "cmdPrint", "cmdDelete"})
            if (auto *b = root->findChild<QAbstractButton *>(QLatin1String(name)); usable(b)) {
                button = b;
                break;
            }
    QStringList picked;
    for (int i = 0; i < lists.size(); ++i)
        picked << QStringLiteral("%1 item %2").arg(lists.at(i)->objectName()).arg(choices.at(i));
    return {QStringLiteral("%1fill %2 empty boxes of %3 with %4%5")
                .arg(picked.isEmpty() ? QString() : QStringLiteral("choose ") + picked.join(QStringLiteral(", ")) +
                                                        QStringLiteral(", then "))
                .arg(boxes.size())
                .arg(describe(root), values.join(QLatin1Char(' ')),
                     button ? QStringLiteral(", then click ") + button->objectName() : QString()),
            [lists, choices, boxes, values, button] {
                for (int i = 0; i < lists.size(); ++i) {
                    QComboBox *list = lists.at(i);
                    if (!usable(list) || choices.at(i) >= list->count())
                        continue;
                    list->setCurrentIndex(choices.at(i));
                    emit list->activated(choices.at(i));
                }
                for (int i = 0; i < boxes.size(); ++i) {
                    if (!usable(boxes.at(i)) || !boxes.at(i)->text().isEmpty())
                        continue;
                    focusOn(boxes.at(i));
                    typeText(boxes.at(i).data(), values.at(i));
                }
                if (usable(button))
                    button->click();
            }};
}

void RandomUser::checkOwnership()
{
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (!w->isVisible() || w->windowModality() == Qt::NonModal || qobject_cast<QMenu *>(w))
            continue;
        // An owner keeps the dialog above the window it holds up; without one a window manager
        // may put it behind the frame, which then takes no input and shows no reason.
        const QWindow *handle = w->windowHandle();
        if (!w->parentWidget() && !(handle && handle->transientParent()))
            fault(QStringLiteral("the modal dialog \"%1\" has no owner window").arg(w->objectName()));
    }
}

void RandomUser::checkInvariants()
{
    ++m_outcome.invariantChecks;
    const QString working = QDir(m_platform.appDir()).filePath(QStringLiteral("Quillon.qdl"));
    if (!QFileInfo::exists(working))
        return; // no database: the program stands locked until a restore, and there is nothing to hold
    LogGlobals &live = basLogGlobals();
    const QString copyPath = QDir(m_platform.appDir()).filePath(QStringLiteral("invariants.qdl"));
    try {
        {
            ConnectionPtr own = live.gConnection ? live.gConnection : OpenDatabaseFile(working, OpenMode::ReadOnly);
            const QString verdict = Scalar(*own, QStringLiteral("PRAGMA integrity_check")).toString();
            if (verdict != QLatin1String("ok"))
                fault(QStringLiteral("integrity check: %1").arg(verdict));
            if (live.gConnection && !live.gLastName.isEmpty()) {
                const int distinct =
                    Scalar(*own, QStringLiteral("SELECT COUNT(*) FROM (SELECT DISTINCT CourseName FROM CourseLog)")).toInt();
                const int rows = Scalar(*own, QStringLiteral("SELECT COUNT(*) FROM CourseLog")).toInt();
                // The count is taken as distinct courses at the start and as rows of tees after a
                // change; the menus only ever test it against zero.
                if ((live.gCourseCount != distinct && live.gCourseCount != rows) ||
                    (live.gCourseCount != 0) != (distinct != 0))
                    fault(QStringLiteral("gCourseCount is %1 with %2 courses in %3 rows of tees")
                              .arg(live.gCourseCount)
                              .arg(distinct)
                              .arg(rows));
            }
        }
        QFile::remove(copyPath);
        if (!CopyDatabase(working, copyPath)) {
            fault(QStringLiteral("the database could not be copied for the invariants"));
            return;
        }
        ConnectionPtr copy = OpenDatabase(copyPath);
        if (!copy) {
            fault(QStringLiteral("the copy of the database does not open"));
            return;
        }
        m_outcome.tableCounts.insert(
            rowText(Query(*copy, QStringLiteral("SELECT (SELECT COUNT(*) FROM HandicapLog), (SELECT COUNT(*) FROM "
                                                "CourseLog), (SELECT COUNT(*) FROM ScoreLog), (SELECT COUNT(*) FROM "
                                                "ScoreDetails)"))
                        .rows()
                        .first()));
        for (const QSqlRecord &r :
             Query(*copy, QStringLiteral("SELECT DISTINCT s.LastName, s.FirstName FROM ScoreLog s WHERE NOT EXISTS "
                                         "(SELECT 1 FROM HandicapLog h WHERE h.LastName = s.LastName AND "
                                         "h.FirstName = s.FirstName)"))
                 .rows())
            fault(QStringLiteral("ScoreLog holds rounds of %1, who is not in HandicapLog").arg(rowText(r)));
        for (const QSqlRecord &r :
             Query(*copy, QStringLiteral("SELECT d.ScoreIndex, d.LastName, d.FirstName, d.Hole FROM ScoreDetails d "
                                         "WHERE NOT EXISTS (SELECT 1 FROM ScoreLog s WHERE s.ScoreIndex = "
                                         "d.ScoreIndex AND s.LastName = d.LastName AND s.FirstName = d.FirstName)"))
                 .rows())
            fault(QStringLiteral("ScoreDetails row %1 belongs to no ScoreLog row").arg(rowText(r)));

        const QVector<QSqlRecord> golfers =
            Query(*copy, QStringLiteral("SELECT LastName, FirstName, Handicap FROM HandicapLog ORDER BY LastName, "
                                        "FirstName"))
                .rows();
        const QString marksSql = QStringLiteral(
            "SELECT ScoreIndex, Used FROM ScoreLog WHERE LastName = ? AND FirstName = ? ORDER BY ScoreIndex");
        QHash<QString, QStringList> before;
        for (const QSqlRecord &g : golfers) {
            QStringList marks;
            for (const QSqlRecord &m : Query(*copy, marksSql, {g.value(0), g.value(1)}).rows())
                marks << rowText(m);
            before.insert(rowText(g), marks);
        }
        // A fresh computation on the copy, with globals of its own: the program's stay as they are.
        NoteGender gender;
        LogGlobals saved = std::move(live);
        live = LogGlobals();
        live.gConnection = copy;
        live.gCommandString = QStringLiteral("-h");
        live.genderQuestion = &gender;
        QStringList computeFaults;
        for (const QSqlRecord &g : golfers) {
            live.gLastName = g.value(0).toString();
            live.gFirstName = g.value(1).toString();
            try {
                ComputeHandicap();
            } catch (const QuillonError &e) {
                computeFaults << QStringLiteral("ComputeHandicap of %1 fails: %2").arg(rowText(g), e.message());
            }
        }
        live.gConnection.reset();
        live = std::move(saved);
        for (const QString &f : computeFaults)
            fault(f);
        for (const QSqlRecord &g : golfers) {
            const QVector<QSqlRecord> now =
                Query(*copy, QStringLiteral("SELECT LastName, FirstName, Handicap FROM HandicapLog WHERE LastName = ? "
                                            "AND FirstName = ?"),
                      {g.value(0), g.value(1)})
                    .rows();
            const QString stored = rowText(g);
            const QString fresh = now.isEmpty() ? QStringLiteral("(gone)") : rowText(now.first());
            if (stored != fresh)
                fault(QStringLiteral("stored handicap %1, a fresh computation gives %2").arg(stored, fresh));
            QStringList marks;
            for (const QSqlRecord &m : Query(*copy, marksSql, {g.value(0), g.value(1)}).rows())
                marks << rowText(m);
            if (marks != before.value(stored))
                fault(QStringLiteral("used marks of %1 are %2, a fresh computation gives %3")
                          .arg(stored, before.value(stored).join(QLatin1Char(' ')), marks.join(QLatin1Char(' '))));
        }
        if (!gender.asked.isEmpty())
            fault(QStringLiteral("a fresh computation had to ask the gender of %1").arg(gender.asked.join(", ")));
        copy->close();
    } catch (const QuillonError &e) {
        fault(QStringLiteral("the invariants could not be read: %1").arg(e.message()));
    }
    m_platform.takeMessages();
    QFile::remove(copyPath);
}

} // namespace quillon::test
