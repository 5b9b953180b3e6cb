#include "help/SystemInformation.h"
#include "TestApp.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>
#include <gtest/gtest.h>

using namespace quillon;

namespace {

class SystemInformationTest : public ::testing::Test {
protected:
    test::TestApp app{false};
    const QString text = SystemInformationText();

    void expectLine(const QString &line) const
    {
        EXPECT_TRUE(text.split(QLatin1Char('\n')).contains(line))
            << "no line \"" << line.toStdString() << "\" in:\n"
            << text.toStdString();
    }
};

TEST_F(SystemInformationTest, StartsWithTheProgramAndItsVersion)
{
    EXPECT_TRUE(text.startsWith(QStringLiteral("Quillon for Golf Version " QUILLON_TEST_VERSION "\n")))
        << text.toStdString();
}

TEST_F(SystemInformationTest, TellsTheQtVersion)
{
    EXPECT_TRUE(text.contains(QStringLiteral("Qt version: ") + QString::fromLatin1(qVersion())))
        << text.toStdString();
}

TEST_F(SystemInformationTest, TellsTheOperatingSystem)
{
    ASSERT_FALSE(QSysInfo::prettyProductName().isEmpty());
    expectLine(QStringLiteral("Operating system: ") + QSysInfo::prettyProductName());
    expectLine(QStringLiteral("Kernel: %1 %2").arg(QSysInfo::kernelType(), QSysInfo::kernelVersion()));
    expectLine(QStringLiteral("Processor architecture: ") + QSysInfo::currentCpuArchitecture());
}

TEST_F(SystemInformationTest, TellsThePlatformPluginAndScreen)
{
    expectLine(QStringLiteral("Platform plugin: ") + QGuiApplication::platformName());
    QScreen *screen = QGuiApplication::primaryScreen();
    ASSERT_NE(screen, nullptr);
    const QString size =
        QStringLiteral("%1 x %2 pixels").arg(screen->size().width()).arg(screen->size().height());
    EXPECT_TRUE(text.contains(QStringLiteral("Screen: ") + size) ||
                text.contains(QStringLiteral("Screen 1: ") + size))
        << text.toStdString();
}

TEST_F(SystemInformationTest, TellsTheApplicationDirectory)
{
    expectLine(QStringLiteral("Application directory: ") + QDir::toNativeSeparators(app.dir()));
}

} // namespace
