#include "help/frmAbout.h"
#include "TestApp.h"
#include "Widgets.h"
#include "help/SystemInformation.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace quillon;
using test::findControl;
using test::ModalScript;

namespace {

// Clicks a button once the current handler has returned, so that a dialog the click opens
// runs its own loop while the test's script is still polling.
void clickLater(QWidget *dialog, const char *name)
{
    QPushButton *button = findControl<QPushButton>(dialog, QLatin1String(name));
    if (button)
        QTimer::singleShot(0, button, &QPushButton::click);
}

class frmAboutTest : public ::testing::Test {
protected:
    void TearDown() override { frmAbout::instance().setSysInfoSource(SystemInformationText); }

    test::TestApp app{false};
};

TEST_F(frmAboutTest, ShowsTitleWithTrademarkSign)
{
    frmAbout &form = frmAbout::instance();
    EXPECT_EQ(form.objectName(), "frmAbout");
    EXPECT_EQ(findControl<QLabel>(&form, "lblTitle")->text(), QStringLiteral("Quillon for Golf\u2122"));
    EXPECT_EQ(&frmAbout::instance(), &form);
}

TEST_F(frmAboutTest, VersionIsTheProjectVersion)
{
    EXPECT_EQ(findControl<QLabel>(&frmAbout::instance(), "lblVersion")->text(),
              QStringLiteral("Version " QUILLON_TEST_VERSION));
    EXPECT_EQ(VersionText(), QStringLiteral("Version " QUILLON_TEST_VERSION));
}

TEST_F(frmAboutTest, NoticesAreShown)
{
    frmAbout &form = frmAbout::instance();
    const QString disclaimer = findControl<QLabel>(&form, "lblDisclaimer")->text();
    const QString copyright = findControl<QLabel>(&form, "lblCopyright")->text();
    EXPECT_TRUE(disclaimer.contains("USGA")) << disclaimer.toStdString();
    EXPECT_TRUE(disclaimer.contains("not an official")) << disclaimer.toStdString();
    EXPECT_TRUE(copyright.startsWith(QStringLiteral("Copyright \u00a9"))) << copyright.toStdString();
    EXPECT_TRUE(copyright.contains("Quillon for Golf")) << copyright.toStdString();
}

TEST_F(frmAboutTest, ButtonsCarryTheirCaptions)
{
    frmAbout &form = frmAbout::instance();
    QPushButton *ok = findControl<QPushButton>(&form, "cmdOK");
    QPushButton *sysInfo = findControl<QPushButton>(&form, "cmdSysInfo");
    ASSERT_TRUE(ok && sysInfo);
    EXPECT_EQ(ok->text(), "OK");
    EXPECT_TRUE(ok->isDefault());
    EXPECT_EQ(sysInfo->text(), "&System Info...");
    EXPECT_FALSE(sysInfo->isDefault());
}

TEST_F(frmAboutTest, OKClosesTheBox)
{
    bool wasModal = false;
    ModalScript script;
    script.expect("frmAbout", [&wasModal](QWidget *dialog) {
        wasModal = dialog->isModal() && dialog->isVisible();
        findControl<QPushButton>(dialog, "cmdOK")->click();
    });
    frmAbout::instance().ShowAbout();
    EXPECT_TRUE(wasModal);
    EXPECT_FALSE(frmAbout::instance().isVisible());
    EXPECT_EQ(script.answered(), QStringList{"frmAbout"});
}

TEST_F(frmAboutTest, EnterClosesTheBox)
{
    ModalScript script;
    script.expect("frmAbout", [](QWidget *dialog) { QTest::keyClick(dialog, Qt::Key_Return); });
    frmAbout::instance().ShowAbout();
    EXPECT_FALSE(frmAbout::instance().isVisible());
    EXPECT_EQ(script.pending(), 0);
}

TEST_F(frmAboutTest, ShowsAgainAfterClosing)
{
    for (int time = 1; time <= 2; ++time) {
        ModalScript script;
        script.expect("frmAbout",
                      [](QWidget *dialog) { findControl<QPushButton>(dialog, "cmdOK")->click(); });
        frmAbout::instance().ShowAbout();
        EXPECT_EQ(script.answered(), QStringList{"frmAbout"}) << "time " << time;
        EXPECT_FALSE(frmAbout::instance().isVisible());
    }
}

TEST_F(frmAboutTest, CentresOnTheMainWindow)
{
    QWidget mainWindow;
    mainWindow.setGeometry(60, 40, 900, 700);
    app.platform().setDialogParent(&mainWindow);

    QRect seen;
    ModalScript script;
    script.expect("frmAbout", [&seen](QWidget *dialog) {
        seen = dialog->frameGeometry();
        findControl<QPushButton>(dialog, "cmdOK")->click();
    });
    frmAbout::instance().ShowAbout();
    app.platform().setDialogParent(nullptr);

    const QRect outer = mainWindow.frameGeometry();
    EXPECT_NEAR(seen.left() + seen.width() / 2.0, outer.left() + outer.width() / 2.0, 1.0);
    EXPECT_NEAR(seen.top() + seen.height() / 2.0, outer.top() + outer.height() / 2.0, 1.0);
    EXPECT_TRUE(outer.contains(seen));
}

TEST_F(frmAboutTest, SystemInfoShowsWhatTheSystemReports)
{
    QString shown;
    bool readOnly = false;
    bool modal = false;
    ModalScript script;
    script.expect("frmAbout", [](QWidget *dialog) { clickLater(dialog, "cmdSysInfo"); })
        .expect("frmSysInfo",
                [&](QWidget *dialog) {
                    auto *text = findControl<QPlainTextEdit>(dialog, "txtSysInfo");
                    if (text) {
                        shown = text->toPlainText();
                        readOnly = text->isReadOnly();
                    }
                    modal = dialog->isModal();
                    findControl<QPushButton>(dialog, "cmdClose")->click();
                })
        // Back in the About box once the information is closed.
        .expect("frmAbout", [](QWidget *dialog) { findControl<QPushButton>(dialog, "cmdOK")->click(); });
    frmAbout::instance().ShowAbout();

    EXPECT_EQ(script.pending(), 0);
    EXPECT_TRUE(readOnly);
    EXPECT_TRUE(modal);
    EXPECT_TRUE(shown.contains(QString::fromLatin1(qVersion()))) << shown.toStdString();
    EXPECT_TRUE(shown.contains(QSysInfo::prettyProductName())) << shown.toStdString();
    EXPECT_TRUE(shown.contains(app.dir())) << shown.toStdString();
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST_F(frmAboutTest, UnavailableSystemInfoIsTold)
{
    frmAbout::instance().setSysInfoSource([] { return QString(); });
    ModalScript script;
    script.expect("frmAbout", [](QWidget *dialog) {
        // The message comes through the platform and does not block; the box is then closed.
        QTimer::singleShot(0, dialog, [dialog] {
            findControl<QPushButton>(dialog, "cmdSysInfo")->click();
            findControl<QPushButton>(dialog, "cmdOK")->click();
        });
    });
    frmAbout::instance().ShowAbout();

    const QVector<test::ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown[0].text, "System information is unavailable at this time.");
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, "Quillon for Golf");
    EXPECT_EQ(script.answered(), QStringList{"frmAbout"});
}

} // namespace
