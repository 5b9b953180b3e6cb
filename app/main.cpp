#include "desktop/DesktopPlatform.h"
#include "shell/Program.h"

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
    const int status = RunProgram(arguments);
    installPlatform(nullptr);
    return status;
}
