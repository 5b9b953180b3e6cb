#pragma once

#include <QString>

namespace quillon {

class MDIForm1;
class SingleInstance;

enum class StartupOutcome {
    Exit,   // the process ends now (another instance runs, or the database cannot be opened or written)
    Locked, // no database: the frame stands with its menus locked down
    ChoosingGolfer, // the database is open and the frame stands; a golfer is asked for next
    Interrupted     // a fault was shown; the frame stays as far as it had got and the program goes on
};

// The load sequence of the main window, run at start and again after a restore.
// commandLine is read and, by design, ignored.
StartupOutcome MDIForm1_Load(MDIForm1 &frame, SingleInstance &instance, const QString &commandLine);

} // namespace quillon
