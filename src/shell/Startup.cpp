#include "Startup.h"

#include "MDIForm1.h"
#include "SingleInstance.h"
#include "basLogGlobals.h"
#include "frmProgress.h"
#include "core/Int16.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "store/Upgrade.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace quillon {

namespace {

void openAndCount(LogGlobals &g)
{
    // Forget any golfer: after a restore the user chooses again.
    g.gLastName = QString();
    g.gFirstName = QString();

    const Recordset courses = Query(
        *g.gConnection, QStringLiteral("SELECT DISTINCT CourseName FROM CourseLog ORDER BY CourseName"));
    g.gCourseCount = Int16(courses.rowCount()).value();
}

// A database the program cannot write is told now, before a user types a round that could not be saved.
bool writable(LogGlobals &g)
{
    switch (CheckWritable(*g.gConnection)) {
    case Writability::Writable: return true;
    case Writability::ReadOnly:
        platform().messageBox(
            QStringLiteral(
                "The Quillon database cannot be changed.  Make sure that you may write to the file "
                "%1 and to the folder it is in, then start Quillon for Golf again.")
                .arg(QDir::toNativeSeparators(g.gConnection->path())),
            MsgIcon::Critical, appTitle());
        return false;
    case Writability::InUse:
        platform().messageBox(QStringLiteral("The Quillon database is in use by another program.  Close that "
                                             "program and start Quillon for Golf again."),
                              MsgIcon::Critical, appTitle());
        return false;
    }
    return false;
}

} // namespace

StartupOutcome MDIForm1_Load(MDIForm1 &frame, SingleInstance &instance, const QString &commandLine)
{
    LogGlobals &g = basLogGlobals();

    if (instance.previousInstance()) {
        platform().messageBox(QStringLiteral("Quillon for Golf is already running."), MsgIcon::Information,
                              appTitle());
        return StartupOutcome::Exit;
    }

    try {
        Hourglass hourglass;

        // The frame can be moved, minimized and closed, never maximized.
        frame.setWindowFlag(Qt::WindowMaximizeButtonHint, false);

        // Whatever the program was started with is read and then set aside: "-h" is the
        // full program with its handicap features, and no argument changes that.
        g.gCommandString = commandLine;
        g.gCommandString = QStringLiteral("-h");
        frame.ApplyCommandMode();

        g.gHelpFile = appFile(QStringLiteral("help/index.html"));

        // A failed upgrade has changed no file; the start goes on with the database that stands.
        try {
            CheckForUpdate(platform().appDir(), frmProgress::instance());
        } catch (const std::exception &) {
            platform().messageBox(QStringLiteral("Unable to update the Quillon database.  Please contact "
                                                 "Harrowmere Systems for assistance."),
                                  MsgIcon::Critical, appTitle());
        }
        frmProgress::unload();

        const QString path = appFile(QStringLiteral("Quillon.qdl"));
        if (!QFileInfo::exists(path)) {
            frame.DatabaseMissing();
            return StartupOutcome::Locked;
        }

        g.releaseAll();
        g.gConnection = OpenDatabase(path);
        if (!g.gConnection) {
            platform().messageBox(QStringLiteral("Unable to open the Quillon database."), MsgIcon::Critical,
                                  appTitle());
            return StartupOutcome::Exit;
        }

        if (!writable(g)) {
            g.releaseAll();
            return StartupOutcome::Exit;
        }

        openAndCount(g);

        hourglass.release();
        frame.show();
        QCoreApplication::processEvents();

        // Next the user names a golfer; the golfer dialog takes over from here.
        return StartupOutcome::ChoosingGolfer;
    } catch (const QuillonError &e) {
        platform().messageBox(e.message(), MsgIcon::Critical, appTitle());
    } catch (const std::exception &e) {
        platform().messageBox(QStringLiteral("Error 51: %1").arg(QString::fromLocal8Bit(e.what())),
                              MsgIcon::Critical, appTitle());
    }
    return StartupOutcome::Interrupted;
}

} // namespace quillon
