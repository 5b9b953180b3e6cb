#include "SystemInformation.h"

#include "platform/Platform.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>

namespace quillon {

namespace {

QString line(const QString &name, const QString &value)
{
    return name + QStringLiteral(": ") + (value.isEmpty() ? QStringLiteral("(not reported)") : value);
}

QString applicationDirectory()
{
    if (platformInstalled())
        return platform().appDir();
    return QCoreApplication::applicationDirPath();
}

} // namespace

QString VersionText()
{
    return QStringLiteral("Version %1.%2.%3")
        .arg(QUILLON_VERSION_MAJOR)
        .arg(QUILLON_VERSION_MINOR)
        .arg(QUILLON_VERSION_PATCH);
}

QString SystemInformationText()
{
    QStringList lines;
    lines << appTitle() + QLatin1Char(' ') + VersionText();
    lines << QString();
    lines << line(QStringLiteral("Operating system"), QSysInfo::prettyProductName());
    lines << line(QStringLiteral("Kernel"),
                  QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion());
    lines << line(QStringLiteral("Processor architecture"), QSysInfo::currentCpuArchitecture());
    lines << line(QStringLiteral("Qt version"),
                  QString::fromLatin1(qVersion()) +
                      QStringLiteral(" (built with %1)").arg(QStringLiteral(QT_VERSION_STR)));
    lines << line(QStringLiteral("Build"), QSysInfo::buildAbi());

    // Only a GUI application has a platform plugin and screens to tell of.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        lines << line(QStringLiteral("Platform plugin"), QGuiApplication::platformName());
        const QList<QScreen *> screens = QGuiApplication::screens();
        if (screens.isEmpty())
            lines << line(QStringLiteral("Screen"), QStringLiteral("none"));
        for (qsizetype i = 0; i < screens.size(); ++i) {
            const QScreen *screen = screens.at(i);
            const QSize size = screen->size();
            QString value = QStringLiteral("%1 x %2 pixels").arg(size.width()).arg(size.height());
            if (screen->devicePixelRatio() != 1.0)
                value += QStringLiteral(", scale %1").arg(screen->devicePixelRatio());
            if (!screen->name().isEmpty())
                value += QStringLiteral(" (%1)").arg(screen->name());
            const QString name =
                screens.size() == 1 ? QStringLiteral("Screen") : QStringLiteral("Screen %1").arg(i + 1);
            lines << line(name, value);
        }
    }

    lines << line(QStringLiteral("Application directory"), QDir::toNativeSeparators(applicationDirectory()));
    return lines.join(QLatin1Char('\n'));
}

} // namespace quillon
