#include "Program.h"

#include "MDIForm1.h"
#include "SingleInstance.h"
#include "Startup.h"
#include "basLogGlobals.h"
#include "platform/Platform.h"

#include <QApplication>
#include <QWidget>

namespace quillon {

namespace {

bool &endRequested()
{
    static bool requested = false;
    return requested;
}

// Whether the program's event loop runs: before it does (the golfer dialog of the start) an end
// is carried out by not starting it.
bool &loopRunning()
{
    static bool running = false;
    return running;
}

// The run under way: its hold on the installation and what it was started with, which a
// restart takes over.
struct Run {
    SingleInstance *instance = nullptr;
    QString commandLine;
};

Run &currentRun()
{
    static Run run;
    return run;
}

// Everything the program holds goes while the application object stands: the windows, the
// golfer's rows, then the connection.
void releaseEverything()
{
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w != MDIForm1::existing())
            w->hide();
    basLogGlobals().releaseAll();
    MDIForm1::unload();
}

} // namespace

void EndProgram()
{
    endRequested() = true;
    basLogGlobals().releaseAll();
    if (loopRunning())
        QCoreApplication::exit(0);
}

int RunProgram(const QStringList &arguments)
{
    endRequested() = false;
    SingleInstance instance(appFile(SingleInstance::defaultLockName()));
    MDIForm1 &frame = MDIForm1::instance();
    currentRun() = Run{&instance, arguments.join(QLatin1Char(' '))};
    const StartupOutcome outcome = MDIForm1_Load(frame, instance, currentRun().commandLine);
    if (outcome == StartupOutcome::ChoosingGolfer)
        frame.AskForGolfer();
    int status = 0;
    if (outcome != StartupOutcome::Exit && !endRequested()) {
        frame.show();
        loopRunning() = true;
        status = QApplication::exec();
        loopRunning() = false;
    }
    releaseEverything();
    currentRun() = Run();
    return status;
}

void RestartProgram()
{
    // A frame started without RunProgram holds no lock of a run: the restart takes the
    // installation's lock for its own span, as a start would.
    SingleInstance own(appFile(SingleInstance::defaultLockName()));
    Run &run = currentRun();
    MDIForm1 &frame = MDIForm1::instance();
    switch (MDIForm1_Load(frame, run.instance ? *run.instance : own, run.commandLine)) {
    case StartupOutcome::ChoosingGolfer: frame.AskForGolfer(); break;
    case StartupOutcome::Exit: frame.EndProgram(); break;
    case StartupOutcome::Locked:
    case StartupOutcome::Interrupted: break;
    }
}

} // namespace quillon
