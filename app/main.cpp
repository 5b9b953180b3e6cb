#include "platform/DesktopPlatform.h"
#include "shell/MDIForm1.h"
#include "shell/SingleInstance.h"
#include "shell/Startup.h"

#include <QApplication>

int main(int argc, char **argv)
{
    using namespace quillon;

    // Qt reads options of its own from the command line (-reverse, -style …); the program
    // takes none, so Qt is handed the program name alone.
    int qtArgc = 1;
    QApplication app(qtArgc, argv);
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);

    installPlatform(std::make_unique<DesktopPlatform>());
    SingleInstance instance(appFile(SingleInstance::defaultLockName()));

    MDIForm1 &frame = MDIForm1::instance();
    const StartupOutcome outcome = MDIForm1_Load(frame, instance, arguments.join(QLatin1Char(' ')));
    if (outcome == StartupOutcome::Exit) {
        MDIForm1::unload();
        return 0;
    }
    frame.show();
    const int rc = app.exec();
    MDIForm1::unload();
    return rc;
}
