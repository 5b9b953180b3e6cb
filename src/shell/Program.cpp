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
    const StartupOutcome outcome = MDIForm1_Load(frame, instance, arguments.join(QLatin1Char(' ')));
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
    return status;
}

} // namespace quillon
