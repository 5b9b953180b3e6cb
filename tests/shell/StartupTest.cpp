#include "shell/Startup.h"
#include "Fixtures.h"
#include "TestApp.h"
#include "Widgets.h"
#include "FileFixtures.h"
#include "shell/frmProgress.h"
#include "shell/MDIForm1.h"
#include "shell/SingleInstance.h"

#include <QAction>
#include <QApplication>
#include <QCryptographicHash>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QThread>
#include <QTimer>
#include <algorithm>

using namespace quillon;
using namespace quillon::test;

namespace {

const QString kMissing = QStringLiteral("Unable to locate the Quillon database.  You must restore your "
                                        "backup database or re-install Quillon for Golf.");

// Names, sizes, times and contents of every file in a directory.
QStringList snapshot(const QString &dir)
{
    QStringList out;
    for (const QFileInfo &fi :
         QDir(dir).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name)) {
        QFile f(fi.filePath());
        f.open(QIODevice::ReadOnly);
        out << QStringLiteral("%1 %2 %3 %4")
                   .arg(fi.fileName())
                   .arg(fi.size())
                   .arg(fi.lastModified().toMSecsSinceEpoch())
                   .arg(QString::fromLatin1(
                       QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha1).toHex()));
    }
    return out;
}

bool waitFor(const std::function<bool()> &condition, int ms = 15000, int pollMs = 20)
{
    QElapsedTimer t;
    t.start();
    while (!condition()) {
        if (t.elapsed() > ms)
            return false;
        QThread::msleep(pollMs);
    }
    return true;
}

// What the progress form showed while the start ran: looked at each time the work let the
// program's messages run.
class ProgressWatch {
public:
    struct Seen {
        QString title;
        QString description;
        QString status;
        int value = 0;
        int maximum = 0;
        bool centred = false;
    };

    ProgressWatch()
    {
        m_timer.setInterval(0);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
        m_timer.start();
    }
    void stop() { m_timer.stop(); }

    QVector<Seen> seen;

private:
    void look()
    {
        frmProgress *form = frmProgress::existing();
        if (!form || !form->isVisible())
            return;
        Seen s;
        s.title = form->findChild<QLabel *>(QStringLiteral("lblTitle"))->text();
        s.description = form->findChild<QLabel *>(QStringLiteral("lblDesc"))->text();
        s.status = form->findChild<QLabel *>(QStringLiteral("lblStatus"))->text();
        const auto *bar = form->findChild<QProgressBar *>(QStringLiteral("pbUpdate"));
        s.value = bar->value();
        s.maximum = bar->maximum();
        const QPoint centre = form->frameGeometry().center();
        const QPoint screen = QGuiApplication::primaryScreen()->availableGeometry().center();
        s.centred = (centre - screen).manhattanLength() <= 2;
        seen << s;
    }

    QTimer m_timer;
};

// The program itself, copied into the test's application directory and started there.
class RealInstance {
public:
    explicit RealInstance(const QString &dir, const QStringList &args = {})
    {
        const QString exe = QDir(dir).filePath(QStringLiteral("quillon"));
        QFile::remove(exe);
        EXPECT_TRUE(QFile::copy(QStringLiteral(QUILLON_APP_BINARY), exe));
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        m_process.setProcessEnvironment(env);
        m_process.setProgram(exe);
        m_process.setArguments(args);
        m_process.start();
        EXPECT_TRUE(m_process.waitForStarted());
    }
    ~RealInstance()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished();
        }
    }
    bool running() const { return m_process.state() == QProcess::Running; }
    void crash()
    {
        m_process.kill(); // SIGKILL: no clean-up of any kind
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
};

class Startup : public ::testing::Test {
protected:
    void TearDown() override { MDIForm1::unload(); }

    StartupOutcome start(const QString &commandLine = QString())
    {
        m_instance = std::make_unique<SingleInstance>(app.file(SingleInstance::defaultLockName()));
        return MDIForm1_Load(MDIForm1::instance(), *m_instance, commandLine);
    }

    // Leaf commands a user can reach: enabled, and every menu above them enabled too.
    QStringList reachableCommands()
    {
        QStringList out;
        MDIForm1 &f = MDIForm1::instance();
        for (QAction *a : f.findChildren<QAction *>()) {
            if (a->objectName().isEmpty() || a->isSeparator() || a->menu() || !a->isEnabled())
                continue;
            bool reachable = false;
            for (QObject *p = a->parent(); p; p = p->parent()) {
                auto *m = qobject_cast<QMenu *>(p);
                if (!m)
                    continue;
                if (!m->menuAction()->isEnabled() || m->objectName() == QLatin1String("mnuScoreLog")) {
                    reachable = false;
                    break;
                }
                reachable = true;
            }
            if (reachable)
                out << a->objectName();
        }
        out.sort();
        return out;
    }

    // "Quillon.qdl" with golfer O'Brien, Pat, a course and a season of detailed rounds; its rows.
    QStringList layWorkingWithSeason(int rounds)
    {
        app.layDatabase();
        auto c = OpenDatabase(app.file(QStringLiteral("Quillon.qdl")));
        EXPECT_NE(c, nullptr);
        if (!c)
            return {};
        addGolfer(*c, QStringLiteral("O'Brien"), QStringLiteral("Pat"));
        addCourse(*c);
        RoundSpec r;
        r.last = QStringLiteral("O'Brien");
        r.first = QStringLiteral("Pat");
        addSeason(*c, r, rounds);
        return DatabaseRows(*c);
    }

    TestApp app{false};
    std::unique_ptr<SingleInstance> m_instance;
};

} // namespace

TEST_F(Startup, FreshInstallTakesTheUpdateFileOverAndStandsReadyForAGolfer)
{
    app.layDatabase(QStringLiteral("Update.qdl"));
    EXPECT_EQ(start(), StartupOutcome::ChoosingGolfer);
    EXPECT_FALSE(QFile::exists(app.file(QStringLiteral("Update.qdl"))));
    EXPECT_TRUE(QFile::exists(app.file(QStringLiteral("Quillon.qdl"))));
    EXPECT_TRUE(app.platform().messages().isEmpty());
    ASSERT_NE(basLogGlobals().gConnection, nullptr);
    EXPECT_EQ(basLogGlobals().gCourseCount, 0);
    EXPECT_TRUE(basLogGlobals().gLastName.isEmpty());
    EXPECT_TRUE(basLogGlobals().gFirstName.isEmpty());
    EXPECT_TRUE(MDIForm1::instance().isVisible());
    EXPECT_EQ(MDIForm1::instance().windowTitle(), QStringLiteral("Quillon for Golf"));
    EXPECT_FALSE(MDIForm1::instance().windowFlags() & Qt::WindowMaximizeButtonHint);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "the hourglass is off";
}

TEST_F(Startup, FreshInstallAsksForTheFirstGolferWithAnEmptyListAndExit)
{
    app.layDatabase(QStringLiteral("Update.qdl"));
    ASSERT_EQ(start(), StartupOutcome::ChoosingGolfer);
    int rows = -1;
    QString cancel;
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *dialog) {
        rows = findControl<QListWidget>(dialog, QStringLiteral("lstGolferList"))->count();
        cancel = findControl<QPushButton>(dialog, QStringLiteral("cmdCancel"))->text();
        // Leave without a choice, as "E&xit" does, but keep this test's program running.
        static_cast<QDialog *>(dialog)->done(QDialog::Rejected);
    });
    MDIForm1::instance().AskForGolfer();
    EXPECT_EQ(rows, 0);
    EXPECT_EQ(cancel, QStringLiteral("E&xit"));
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST_F(Startup, UpdateFileBesideAnExistingDatabaseIsUpgradedOnScreenBeforeTheGolferIsAsked)
{
    const QStringList before = layWorkingWithSeason(1600);
    app.layDatabase(QStringLiteral("Update.qdl"));

    ProgressWatch watch;
    EXPECT_EQ(start(), StartupOutcome::ChoosingGolfer);
    watch.stop();

    // The form stood centred with its texts while the rows moved, the bar moving with them.
    ASSERT_FALSE(watch.seen.isEmpty()) << "no progress form was seen";
    QStringList statuses;
    QList<int> values;
    for (const ProgressWatch::Seen &s : watch.seen) {
        EXPECT_EQ(s.title, QStringLiteral("New database detected.  Update in progress ..."));
        EXPECT_EQ(s.description, QStringLiteral("Loading Quillon for Golf"));
        EXPECT_TRUE(s.centred);
        if (statuses.isEmpty() || statuses.last() != s.status)
            statuses << s.status;
        if (s.maximum > 0 && (values.isEmpty() || values.last() != s.value))
            values << s.value;
    }
    EXPECT_EQ(statuses, (QStringList{"", "Copying handicap data", "Copying course data", "Copying score data",
                                     "Restoring ..."}));
    EXPECT_EQ(watch.seen.last().maximum, 1 + 1 + 18 + 1600 + 1600 * 18);
    EXPECT_GE(values.size(), 4) << "the bar moved as the rounds went";
    EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
    EXPECT_EQ(values.last(), 1 + 1 + 18 + 1600);
    EXPECT_EQ(frmProgress::existing(), nullptr) << "the form is gone once the work is done";

    EXPECT_FALSE(QFile::exists(app.file(QStringLiteral("Update.qdl"))));
    EXPECT_TRUE(QFile::exists(app.file(QStringLiteral("quillon.bak"))));
    EXPECT_TRUE(app.platform().messages().isEmpty());
    EXPECT_EQ(DatabaseRows(*basLogGlobals().gConnection), before);

    // Then the golfer dialog, over the upgraded rows.
    QStringList golfers;
    ModalScript script;
    script.expect(QStringLiteral("frmNewGolfer"), [&](QWidget *dialog) {
        auto *list = findControl<QListWidget>(dialog, QStringLiteral("lstGolferList"));
        for (int i = 0; i < list->count(); ++i)
            golfers << list->item(i)->text();
        static_cast<QDialog *>(dialog)->done(QDialog::Rejected);
    });
    MDIForm1::instance().AskForGolfer();
    EXPECT_EQ(golfers, QStringList{"O'Brien, Pat"});
}

TEST_F(Startup, FailedUpgradeIsToldAndTheStartGoesOnWithTheDatabaseThatStands)
{
    app.layDatabase();
    {
        auto c = OpenDatabase(app.file(QStringLiteral("Quillon.qdl")));
        ASSERT_NE(c, nullptr);
        addGolfer(*c, QStringLiteral("O'Brien"), QStringLiteral("Pat"));
        addCourse(*c);
    }
    // The new file is damaged: the upgrade cannot be carried out.
    const QString update = app.file(QStringLiteral("Update.qdl"));
    {
        QFile f(update);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(QByteArray("half a download\n").repeated(200));
    }
    const QStringList before = snapshot(app.dir());

    EXPECT_EQ(start(), StartupOutcome::ChoosingGolfer);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Unable to update the Quillon database.  Please contact Harrowmere "
                                            "Systems for assistance."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
    EXPECT_FALSE(shown[0].pointerBusy);
    EXPECT_EQ(frmProgress::existing(), nullptr);
    QStringList after = snapshot(app.dir());
    after.removeIf([](const QString &s) { return s.startsWith(QStringLiteral("Quillon.lock")); });
    EXPECT_EQ(after, before) << "the working file and the update file are as they were";
    EXPECT_EQ(columnValues(*basLogGlobals().gConnection, QStringLiteral("SELECT LastName FROM HandicapLog")),
              QStringList{"O'Brien"});
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Startup, ProgramKilledHalfWayThroughAnUpgradeLosesNothingAndTheNextStartUpgradesCleanly)
{
    const QStringList before = layWorkingWithSeason(8000);
    const QByteArray oldBytes = FileBytes(app.file(QStringLiteral("Quillon.qdl")));
    app.layDatabase(QStringLiteral("Update.qdl"));
    const QByteArray updateBytes = FileBytes(app.file(QStringLiteral("Update.qdl")));
    {
        RealInstance first(app.dir());
        // Killed while it fills the new file, which takes it some hundreds of milliseconds.
        ASSERT_TRUE(waitFor([&] { return QFile::exists(app.file(QStringLiteral("Update.qdl.part"))); }, 15000, 1));
        QThread::msleep(30);
        first.crash();
    }
    ASSERT_TRUE(QFile::exists(app.file(QStringLiteral("Update.qdl")))) << "the kill came after the upgrade";
    EXPECT_EQ(FileBytes(app.file(QStringLiteral("Quillon.qdl"))), oldBytes);
    EXPECT_EQ(FileBytes(app.file(QStringLiteral("Update.qdl"))), updateBytes);

    EXPECT_EQ(start(), StartupOutcome::ChoosingGolfer);
    EXPECT_TRUE(app.platform().messages().isEmpty());
    EXPECT_FALSE(QFile::exists(app.file(QStringLiteral("Update.qdl"))));
    EXPECT_FALSE(QFile::exists(app.file(QStringLiteral("Update.qdl.part"))));
    EXPECT_EQ(DatabaseRows(*basLogGlobals().gConnection), before);
}

TEST_F(Startup, NoDatabaseShowsTheMissingMessageAndLocksTheFrame)
{
    EXPECT_EQ(start(), StartupOutcome::Locked);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, kMissing);
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf -- Missing Component"));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    MDIForm1 &f = MDIForm1::instance();
    // Of these, the commands whose screens are in this build; the others stand disabled.
    QStringList usable = {"mnuCourseExit", "mnuDatabaseRestore", "mnuFilePrintSetup",
                          "mnuHelpAbout",  "mnuHelpContents",    "mnuToolsCourseHdcpCalculator"};
    usable.removeIf([&f](const QString &item) { return !f.isBuilt(item); });
    EXPECT_TRUE(usable.contains("mnuCourseExit") && usable.contains("mnuHelpContents"));
    EXPECT_EQ(reachableCommands(), usable);
    for (const char *key : {"NewCourse", "NewGolfer", "NewScore", "EditCourse", "EditScore", "GolferStats",
                            "Graphs", "CourseInfo", "ScoreLog"})
        EXPECT_FALSE(f.toolButton(QString::fromLatin1(key))->isEnabled()) << key;
    EXPECT_TRUE(f.toolButton(QStringLiteral("Help"))->isEnabled());
    EXPECT_EQ(basLogGlobals().gConnection, nullptr);
    EXPECT_FALSE(QFile::exists(app.file(QStringLiteral("Quillon.qdl")))) << "no database is made up";
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Startup, CorruptDatabaseEndsTheProgramAndIsLeftAsItWas)
{
    QFile f(app.file(QStringLiteral("Quillon.qdl")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray("garbage, not a database\n").repeated(500));
    f.close();
    const QStringList before = snapshot(app.dir());
    EXPECT_EQ(start(), StartupOutcome::Exit);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Unable to open the Quillon database."));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
    QStringList after = snapshot(app.dir());
    after.removeIf([](const QString &s) { return s.startsWith(QStringLiteral("Quillon.lock")); });
    EXPECT_EQ(after, before);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Startup, SqliteFileWithoutOurTablesEndsTheProgram)
{
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("notours"));
        other.setDatabaseName(app.file(QStringLiteral("Quillon.qdl")));
        ASSERT_TRUE(other.open());
        QSqlQuery(other).exec(QStringLiteral("CREATE TABLE Photos (Path TEXT)"));
        other.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("notours"));
    EXPECT_EQ(start(), StartupOutcome::Exit);
    expectMessages(app.platform(), {QStringLiteral("Unable to open the Quillon database.")});
    EXPECT_EQ(basLogGlobals().gConnection, nullptr);
}

TEST_F(Startup, UnreadableDatabaseEndsTheProgram)
{
    ASSERT_TRUE(QDir(app.dir()).mkdir(QStringLiteral("Quillon.qdl"))); // there, but no file to read
    EXPECT_EQ(start(), StartupOutcome::Exit);
    expectMessages(app.platform(), {QStringLiteral("Unable to open the Quillon database.")});
}

TEST_F(Startup, CommandLineArgumentsChangeNothing)
{
    for (const QString &args :
         {QString(), QStringLiteral("-h"), QStringLiteral("-x"), QStringLiteral("-x -y z")}) {
        app.layDatabase();
        EXPECT_EQ(start(args), StartupOutcome::ChoosingGolfer) << args.toStdString();
        EXPECT_EQ(basLogGlobals().gCommandString, QStringLiteral("-h"));
        MDIForm1 &f = MDIForm1::instance();
        for (const char *item :
             {"mnuToolsCourseHdcpCalculator", "mnuViewUsed", "mnuViewScoringRecord", "mnuPrintScoringRecord"})
            EXPECT_TRUE(f.menuItem(QString::fromLatin1(item))->isVisible()) << item;
        EXPECT_FALSE(f.panel(QStringLiteral("Handicap"))->isHidden());
        MDIForm1::unload();
        m_instance.reset();
    }
}

TEST_F(Startup, CountsDistinctCourseNames)
{
    app.layDatabase();
    {
        auto c = OpenDatabase(app.file(QStringLiteral("Quillon.qdl")));
        ASSERT_NE(c, nullptr);
        for (const char *tees : {"Blue", "White", "Red"})
            addCourse(*c, CourseSpec{QStringLiteral("Pebble Creek"), QString::fromLatin1(tees)});
        addCourse(*c, CourseSpec{QStringLiteral("O'Malley's Links"), QStringLiteral("White")});
    }
    EXPECT_EQ(start(), StartupOutcome::ChoosingGolfer);
    EXPECT_EQ(basLogGlobals().gCourseCount, 2);
}

TEST_F(Startup, ShutDownWritesNothing)
{
    app.layDatabase();
    const QStringList before = snapshot(app.dir());
    EXPECT_EQ(start(), StartupOutcome::ChoosingGolfer);
    MDIForm1::instance().close();
    EXPECT_EQ(basLogGlobals().gConnection, nullptr);
    EXPECT_EQ(basLogGlobals().gScoreLog, nullptr);
    EXPECT_EQ(basLogGlobals().gHandicapLog, nullptr);
    QStringList after = snapshot(app.dir());
    after.removeIf([](const QString &s) { return s.startsWith(QStringLiteral("Quillon.lock")); });
    EXPECT_EQ(after, before);
}

TEST_F(Startup, RunningTheSequenceAgainOverTheChangedWindowIsHarmless)
{
    app.layDatabase();
    EXPECT_EQ(start(), StartupOutcome::ChoosingGolfer);
    app.setGolfer(QStringLiteral("Palmer"), QStringLiteral("Arnold"));
    const int actions = MDIForm1::instance().findChildren<QAction *>().size();
    // A restore runs the load sequence again in the same process, with the lock already held.
    EXPECT_EQ(MDIForm1_Load(MDIForm1::instance(), *m_instance, QString()), StartupOutcome::ChoosingGolfer);
    EXPECT_TRUE(basLogGlobals().gLastName.isEmpty());
    EXPECT_TRUE(basLogGlobals().gFirstName.isEmpty());
    EXPECT_FALSE(MDIForm1::instance().windowFlags() & Qt::WindowMaximizeButtonHint);
    EXPECT_EQ(MDIForm1::instance().findChildren<QAction *>().size(), actions);
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST_F(Startup, ExitChosenWhileTheFrameFirstPaintsEndsWithoutTheGolferDialog)
{
    app.layDatabase();
    // The frame paints before the golfer dialog opens; File, Exit is chosen in that moment.
    bool exitChosen = false;
    QTimer::singleShot(0, [&exitChosen] {
        QAction *exit = MDIForm1::instance().menuItem(QStringLiteral("mnuCourseExit"));
        exitChosen = exit->isEnabled();
        exit->trigger();
    });
    EXPECT_EQ(start(), StartupOutcome::ChoosingGolfer);
    ASSERT_TRUE(exitChosen);
    EXPECT_EQ(basLogGlobals().gConnection, nullptr);

    QString shown;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&shown] {
        if (QWidget *modal = QApplication::activeModalWidget()) {
            shown = modal->objectName();
            modal->close();
        }
    });
    watch.start(20);
    MDIForm1::instance().AskForGolfer();
    watch.stop();
    EXPECT_EQ(shown, QString()) << "no golfer can be chosen once the database is closed";
    EXPECT_EQ(basLogGlobals().gConnection, nullptr);
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST_F(Startup, FaultDuringTheSequenceIsShownAndTheFrameStays)
{
    app.layDatabase();
    {
        QSqlDatabase c = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("mangle"));
        c.setDatabaseName(app.file(QStringLiteral("Quillon.qdl")));
        ASSERT_TRUE(c.open());
        QSqlQuery q(c);
        ASSERT_TRUE(q.exec(QStringLiteral("DROP TABLE CourseLog")));
        ASSERT_TRUE(q.exec(QStringLiteral("CREATE TABLE CourseLog (Something TEXT)")));
        c.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("mangle"));
    EXPECT_EQ(start(), StartupOutcome::Interrupted);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_TRUE(shown[0].text.startsWith(QStringLiteral("Error 3201: "))) << shown[0].text.toStdString();
    EXPECT_TRUE(shown[0].text.contains(QStringLiteral("CourseName")));
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Startup, SecondInstanceIsRefusedAndTouchesNoFile)
{
    app.layDatabase(QStringLiteral("Update.qdl"));
    RealInstance first(app.dir(), {QStringLiteral("-x")});
    // The first run holds its lock before it takes the update file over.
    ASSERT_TRUE(waitFor([&] { return !QFile::exists(app.file(QStringLiteral("Update.qdl"))); }));
    QThread::msleep(300);
    ASSERT_TRUE(first.running());
    const QStringList before = snapshot(app.dir());

    EXPECT_EQ(start(), StartupOutcome::Exit);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, QStringLiteral("Quillon for Golf is already running."));
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(shown[0].icon, MsgIcon::Information);
    EXPECT_EQ(snapshot(app.dir()), before);
    EXPECT_EQ(basLogGlobals().gConnection, nullptr);
    EXPECT_FALSE(MDIForm1::instance().isVisible());
    EXPECT_TRUE(first.running());
}

TEST_F(Startup, LockOfACrashedRunIsTakenOver)
{
    app.layDatabase(QStringLiteral("Update.qdl"));
    RealInstance first(app.dir());
    ASSERT_TRUE(waitFor([&] { return !QFile::exists(app.file(QStringLiteral("Update.qdl"))); }));
    QThread::msleep(300);
    first.crash();
    ASSERT_TRUE(QFile::exists(app.file(SingleInstance::defaultLockName())))
        << "the crash leaves its lock file";
    EXPECT_EQ(start(), StartupOutcome::ChoosingGolfer);
    EXPECT_TRUE(app.platform().messages().isEmpty());
    // And now this run is the one that refuses others.
    SingleInstance other(app.file(SingleInstance::defaultLockName()));
    EXPECT_TRUE(other.previousInstance());
}
