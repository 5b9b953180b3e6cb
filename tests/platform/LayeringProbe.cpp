// Links the data layer alone; the layering test reads which libraries it loads.
#include "platform/Hourglass.h"
#include "store/basDatabase.h"

int main(int argc, char **argv)
{
    // The store and the seam are used as the program uses them, so that their code is linked in.
    const quillon::Hourglass hourglass;
    const auto connection =
        quillon::OpenDatabase(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(":memory:"));
    return connection ? 0 : 1;
}
