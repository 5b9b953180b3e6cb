#include "DatabaseCommands.h"

#include "MDIForm1.h"
#include "Program.h"
#include "basLogGlobals.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "store/DatabaseFiles.h"

#include <QAction>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <optional>

namespace quillon {

namespace {

const QString kFilter = QStringLiteral("Quillon Data (*.qdl)|*.qdl");
const QString kBackupTitle = QStringLiteral("Database Backup");
const QString kRestoreTitle = QStringLiteral("Database Restore");

QString workingPath()
{
    return appFile(DatabaseFile::Working);
}

// A description as the sentence of a message goes on after it.
QString withoutFullStop(QString description)
{
    while (description.endsWith(QLatin1Char('.')))
        description.chop(1);
    return description;
}

// The version of the database the program works on; nothing when there is none to compare with
// (no working file, or one that cannot be read, which a restore is there to replace).
std::optional<int> workingVersion()
{
    LogGlobals &g = basLogGlobals();
    if (g.gConnection)
        return Scalar(*g.gConnection, QStringLiteral("SELECT DatabaseVersion FROM DBVersion")).toInt();
    if (!QFileInfo::exists(workingPath()))
        return std::nullopt;
    try {
        return ReadDatabaseVersion(workingPath());
    } catch (const QuillonError &) {
        return std::nullopt;
    }
}

} // namespace

void mnuDatabaseBackup_Click()
{
    const QString fileName = platform().getSaveFileName(kBackupTitle, kFilter, QStringLiteral("Backup.qdl"));
    if (fileName.isEmpty()) {
        platform().messageBox(QStringLiteral("Please specify a file name."), MsgIcon::Exclamation, kBackupTitle);
        return;
    }
    const QString working = workingPath();
    // The working file under any spelling of its name, or under another path to the same file.
    const QFileInfo chosen(fileName);
    if (QDir::cleanPath(chosen.absoluteFilePath()).toLower() == QDir::cleanPath(working).toLower() ||
        (chosen.exists() && chosen.canonicalFilePath() == QFileInfo(working).canonicalFilePath())) {
        platform().messageBox(QStringLiteral("Quillon.qdl is currently in use.  Please specify a different name "
                                             "for the backup database."),
                              MsgIcon::Exclamation, kBackupTitle);
        return;
    }
    try {
        bool copied = false;
        {
            Hourglass hourglass;
            // The program keeps the database open: the engine copies what it holds, whole.
            copied = CopyDatabase(working, fileName);
        }
        QCoreApplication::processEvents();
        platform().messageBox(copied ? QStringLiteral("Database backup complete!")
                                     : QStringLiteral("Database backup failed!"),
                              MsgIcon::Information, kBackupTitle);
    } catch (const QuillonError &e) {
        platform().messageBox(QStringLiteral("Database backup failed!  Error: %1").arg(e.description()),
                              MsgIcon::Critical, kBackupTitle);
    }
}

bool CheckRestoreVersion(const QString &path)
{
    try {
        const int chosen = ReadDatabaseVersion(path);
        const std::optional<int> current = workingVersion();
        if (current && *current != chosen) {
            platform().messageBox(QStringLiteral("Invalid Database!  The database you have selected to restore is "
                                                 "not compatible with this version of Quillon for Golf."),
                                  MsgIcon::Critical, QStringLiteral("Database Restore Error"));
            return false;
        }
        return true;
    } catch (const QuillonError &e) {
        platform().messageBox(QStringLiteral("Error %1: %2.  Unable to restore the database.")
                                  .arg(e.number())
                                  .arg(withoutFullStop(e.description())),
                              MsgIcon::Critical, appTitle());
        return false;
    }
}

void mnuDatabaseRestore_Click(MDIForm1 &frame)
{
    const QString fileName = platform().getOpenFileName(kRestoreTitle, kFilter);
    if (fileName.isEmpty()) {
        platform().messageBox(QStringLiteral("Please specify a file name."), MsgIcon::None, kRestoreTitle);
        return;
    }
    const QString working = workingPath();
    const QString shown = QDir::toNativeSeparators(fileName);
    if (fileName == working) {
        platform().messageBox(
            QStringLiteral("Invalid database! The database %1 is currently in use by Quillon.").arg(shown),
            MsgIcon::Exclamation, kRestoreTitle);
        return;
    }
    // Checked while the working database stays open: a refusal or a No leaves the program as it was.
    if (!CheckRestoreVersion(fileName))
        return;
    if (platform().messageBox(QStringLiteral("This will load the backup database and restart Quillon for Golf.  "
                                             "Okay to proceed?"),
                              MsgIcon::Question, kRestoreTitle, MsgButtons::YesNo, MsgAnswer::No) != MsgAnswer::Yes)
        return;

    try {
        bool restored = false;
        {
            Hourglass hourglass;
            // Every form goes, then what they read from: nothing holds the file when it is replaced.
            frame.UnloadForms();
            basLogGlobals().releaseAll();
            restored = RestoreDatabaseFile(fileName, working, appFile(DatabaseFile::SafetyCopy));
        }
        QCoreApplication::processEvents();
        platform().messageBox(restored ? QStringLiteral("Database restore succeeded!")
                                       : QStringLiteral("Database restore failed!"),
                              MsgIcon::Information, kRestoreTitle);
    } catch (const QuillonError &e) {
        platform().messageBox(
            e.number() == QuillonError::PermissionDenied
                ? QStringLiteral("Database Restore failed! The database %1 is currently in use by Quillon.").arg(shown)
                : QStringLiteral("Database Restore failed!"),
            MsgIcon::Exclamation, kRestoreTitle);
    }
    // The program starts over on whatever database now stands, restored or not.
    frame.menuItem(QStringLiteral("mnuDatabaseBackup"))->setEnabled(true);
    RestartProgram();
}

} // namespace quillon
