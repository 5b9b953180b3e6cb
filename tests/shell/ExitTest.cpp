// Every way out of the program, run as a real process: the status it ends with and what it said.
#include "FileFixtures.h"
#include "Fixtures.h"
#include "TestApp.h"
#include "shell/SingleInstance.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <unistd.h>

using namespace quillon;
using namespace quillon::test;

namespace {

struct Ended {
    bool finished = false;
    QProcess::ExitStatus exitStatus = QProcess::CrashExit;
    int exitCode = -1;
    QStringList messages; // "<title>|<text>"
    QStringList lines;
    QString errors;
};

// The program with its scripted user, copied beside the database and started there.
Ended runProgram(const QString &dir, const QString &golfer, const QString &action,
                 const QString &answers = QString(), bool asAnotherUser = false)
{
    const QString exe = QDir(dir).filePath(QStringLiteral("quillon"));
    QFile::remove(exe);
    EXPECT_TRUE(QFile::copy(QStringLiteral(QUILLON_PROBE_BINARY), exe));
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("QUILLON_PROBE_GOLFER"), golfer);
    env.insert(QStringLiteral("QUILLON_PROBE_ACTION"), action);
    env.insert(QStringLiteral("QUILLON_PROBE_ANSWERS"), answers);
    env.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    p.setProcessEnvironment(env);
    if (asAnotherUser) {
        p.setProgram(QStringLiteral("setpriv"));
        p.setArguments({QStringLiteral("--reuid=nobody"), QStringLiteral("--regid=nogroup"),
                        QStringLiteral("--clear-groups"), exe});
    } else {
        p.setProgram(exe);
    }
    p.start();
    Ended e;
    e.finished = p.waitForStarted() && p.waitForFinished(20000);
    if (!e.finished) {
        p.kill();
        p.waitForFinished();
    }
    e.exitStatus = p.exitStatus();
    e.exitCode = p.exitCode();
    e.lines = QString::fromLocal8Bit(p.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : e.lines)
        if (line.startsWith(QLatin1String("MESSAGE|")))
            e.messages << line.section(QLatin1Char('|'), 1, 2);
    e.errors = QString::fromLocal8Bit(p.readAllStandardError());
    return e;
}

// Ended as a program should: on its own, normally, with status 0, and nothing left in use.
void expectCleanEnd(const Ended &e)
{
    EXPECT_TRUE(e.finished) << "the program did not end";
    EXPECT_EQ(e.exitStatus, QProcess::NormalExit) << e.errors.toStdString();
    EXPECT_EQ(e.exitCode, 0) << e.errors.toStdString();
    EXPECT_FALSE(e.errors.contains(QLatin1String("removeDatabase"))) << e.errors.toStdString();
    EXPECT_FALSE(e.errors.contains(QLatin1String("still in use"))) << e.errors.toStdString();
    EXPECT_FALSE(e.errors.contains(QLatin1String("QObject::"))) << e.errors.toStdString();
}

class ExitPaths : public ::testing::Test {
protected:
    void withGolfer()
    {
        app.layDatabase();
        app.openDatabase();
        addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"), QStringLiteral("M"));
        RoundSpec r;
        r.last = QStringLiteral("O'Brien");
        r.first = QStringLiteral("Pat");
        addRound(app.db(), r);
        basLogGlobals().releaseAll();
    }
    TestApp app{false};
};

} // namespace

TEST_F(ExitPaths, FileExitEndsWithStatusZero)
{
    withGolfer();
    const Ended e = runProgram(app.dir(), QStringLiteral("O'Brien, Pat"), QStringLiteral("exit-menu"));
    expectCleanEnd(e);
    EXPECT_TRUE(e.lines.contains(QStringLiteral("ACTION|exit-menu")));
    EXPECT_TRUE(e.lines.contains(QStringLiteral("STATUS|0")));
    EXPECT_TRUE(e.messages.isEmpty()) << e.messages.join('\n').toStdString();
}

TEST_F(ExitPaths, CloseBoxEndsWithStatusZero)
{
    withGolfer();
    const Ended e = runProgram(app.dir(), QStringLiteral("pat o'brien"), QStringLiteral("close"));
    expectCleanEnd(e);
    EXPECT_TRUE(e.lines.contains(QStringLiteral("ACTION|close")));
}

TEST_F(ExitPaths, QuitFromAnywhereEndsWithStatusZero)
{
    withGolfer();
    const Ended e = runProgram(app.dir(), QStringLiteral("O'Brien, Pat"), QStringLiteral("quit"));
    expectCleanEnd(e);
    EXPECT_TRUE(e.lines.contains(QStringLiteral("ACTION|quit")));
}

TEST_F(ExitPaths, NewGolferAddedThenExitEndsWithStatusZero)
{
    withGolfer();
    const Ended e = runProgram(app.dir(), QStringLiteral("D'Arcy, Anne"), QStringLiteral("exit-menu"));
    expectCleanEnd(e);
    EXPECT_EQ(e.messages, QStringList{"New Golfer|Add golfer Anne D'Arcy?"});
}

TEST_F(ExitPaths, ExitOfTheGolferDialogEndsAtOnceWithStatusZero)
{
    withGolfer();
    const Ended e = runProgram(app.dir(), QStringLiteral("Exit"), QStringLiteral("close"));
    expectCleanEnd(e);
    EXPECT_FALSE(e.lines.contains(QStringLiteral("ACTION|close"))) << "the program ran on after Exit";
}

TEST_F(ExitPaths, SecondInstanceEndsWithStatusZeroAfterItsMessage)
{
    withGolfer();
    SingleInstance first(app.file(SingleInstance::defaultLockName()));
    ASSERT_FALSE(first.previousInstance());
    const Ended e = runProgram(app.dir(), QStringLiteral("O'Brien, Pat"), QStringLiteral("close"));
    expectCleanEnd(e);
    EXPECT_EQ(e.messages, QStringList{"Quillon for Golf|Quillon for Golf is already running."});
}

TEST_F(ExitPaths, DatabaseThatCannotBeOpenedEndsWithStatusZeroAfterItsMessage)
{
    QFile f(app.file(QStringLiteral("Quillon.qdl")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("not a database at all");
    f.close();
    const Ended e = runProgram(app.dir(), QStringLiteral("O'Brien, Pat"), QStringLiteral("close"));
    expectCleanEnd(e);
    EXPECT_EQ(e.messages, QStringList{"Quillon for Golf|Unable to open the Quillon database."});
}

TEST_F(ExitPaths, MissingDatabaseLeavesALockedFrameThatClosesWithStatusZero)
{
    const Ended e = runProgram(app.dir(), QStringLiteral("O'Brien, Pat"), QStringLiteral("close"));
    expectCleanEnd(e);
    ASSERT_EQ(e.messages.size(), 1);
    EXPECT_TRUE(e.messages[0].startsWith(QStringLiteral("Quillon for Golf -- Missing Component|")));
    EXPECT_TRUE(e.lines.contains(QStringLiteral("ACTION|close")));
}

TEST_F(ExitPaths, ReadOnlyDatabaseIsToldAtStartBeforeAnyRoundIsTyped)
{
    withGolfer();
    const bool root = ::geteuid() == 0;
    // The user of the program may read the file and its folder but write neither.
    QFile::setPermissions(app.file(QStringLiteral("Quillon.qdl")),
                          QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    QFile::setPermissions(app.dir(), QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner |
                                         QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther |
                                         QFile::ExeOther);
    if (!root)
        QFile::setPermissions(app.dir(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup |
                                             QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    // The probe must exist before the folder is closed to writing by a user that is not root.
    const Ended e =
        runProgram(app.dir(), QStringLiteral("O'Brien, Pat"), QStringLiteral("close"), QString(), root);
    QFile::setPermissions(app.dir(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    expectCleanEnd(e);
    ASSERT_EQ(e.messages.size(), 1) << e.lines.join('\n').toStdString();
    EXPECT_TRUE(
        e.messages[0].startsWith(QStringLiteral("Quillon for Golf|The Quillon database cannot be changed.")))
        << e.messages[0].toStdString();
    EXPECT_FALSE(e.lines.contains(QStringLiteral("ACTION|close"))) << "no golfer may be chosen";
}

TEST_F(ExitPaths, DatabaseLockedByAnotherProgramIsToldAfterAShortWait)
{
    withGolfer();
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("holder"));
        other.setDatabaseName(app.file(QStringLiteral("Quillon.qdl")));
        ASSERT_TRUE(other.open());
        QSqlQuery q(other);
        // Another program writing: it reads on, but no one else may write.
        ASSERT_TRUE(q.exec(QStringLiteral("BEGIN IMMEDIATE")));
        const Ended e = runProgram(app.dir(), QStringLiteral("O'Brien, Pat"), QStringLiteral("close"));
        expectCleanEnd(e);
        EXPECT_EQ(e.messages,
                  QStringList{"Quillon for Golf|The Quillon database is in use by another program.  "
                              "Close that program and start Quillon for Golf again."});
        q.exec(QStringLiteral("ROLLBACK"));
        other.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("holder"));
}

TEST_F(ExitPaths, FolderNotWritableAtStartIsToldAndTheDatabaseIsLeftAsItWas)
{
    withGolfer();
    const QString path = app.file(QStringLiteral("Quillon.qdl"));
    const QStringList before = DatabaseRows(path);
    const bool root = ::geteuid() == 0;
    // The file may be written by anyone, its folder by its owner only: the engine could change the
    // file but not lay its journal beside it, so a save would fail halfway through the user's work.
    // Root writes anywhere, so as root the program runs as a user that does not own the folder.
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup |
                                    QFile::ReadOther | QFile::WriteOther);
    QFile::setPermissions(app.dir(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                         QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther);
    if (!root)
        QFile::setPermissions(app.dir(), QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup |
                                             QFile::ReadOther | QFile::ExeOther);
    const Ended e =
        runProgram(app.dir(), QStringLiteral("O'Brien, Pat"), QStringLiteral("close"), QString(), root);
    QFile::setPermissions(app.dir(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    expectCleanEnd(e);
    EXPECT_EQ(e.messages,
              QStringList{QStringLiteral("Quillon for Golf|The Quillon database cannot be changed.  Make sure that you "
                                         "may write to the file %1 and to the folder it is in, then start Quillon for "
                                         "Golf again.")
                              .arg(QDir::toNativeSeparators(path))})
        << e.lines.join('\n').toStdString();
    EXPECT_FALSE(e.lines.contains(QStringLiteral("ACTION|close"))) << "no golfer may be chosen";
    EXPECT_EQ(DatabaseRows(path), before);
}
