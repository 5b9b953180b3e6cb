// The form that stands while an upgrade carries the user's rows into a new database.
#include "TestApp.h"
#include "Widgets.h"
#include "shell/frmProgress.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

namespace {

class ProgressForm : public ::testing::Test {
protected:
    void TearDown() override { frmProgress::unload(); }
    TestApp app{false};
};

} // namespace

TEST_F(ProgressForm, ShowsItsTextsCentredOnTheScreen)
{
    frmProgress &form = frmProgress::instance();
    form.Show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    EXPECT_EQ(form.objectName(), QStringLiteral("frmProgress"));
    EXPECT_EQ(findControl<QLabel>(&form, QStringLiteral("lblTitle"))->text(),
              QStringLiteral("New database detected.  Update in progress ..."));
    EXPECT_EQ(findControl<QLabel>(&form, QStringLiteral("lblDesc"))->text(), QStringLiteral("Loading Quillon for Golf"));
    EXPECT_EQ(findControl<QLabel>(&form, QStringLiteral("lblStatus"))->text(), QString());
    EXPECT_FALSE(findControl<QLabel>(&form, QStringLiteral("picIcon"))->pixmap().isNull());
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint centre = form.frameGeometry().center();
    EXPECT_LE(std::abs(centre.x() - screen.center().x()), 1);
    EXPECT_LE(std::abs(centre.y() - screen.center().y()), 1);
}

TEST_F(ProgressForm, StatusAndBarFollowTheWork)
{
    frmProgress &form = frmProgress::instance();
    form.Show();
    form.SetRange(250);
    auto *bar = findControl<QProgressBar>(&form, QStringLiteral("pbUpdate"));
    EXPECT_EQ(bar->minimum(), 0);
    EXPECT_EQ(bar->maximum(), 250);
    EXPECT_EQ(bar->value(), 0);
    form.SetStatus(QStringLiteral("Copying score data"));
    form.SetValue(120);
    EXPECT_EQ(findControl<QLabel>(&form, QStringLiteral("lblStatus"))->text(), QStringLiteral("Copying score data"));
    EXPECT_EQ(bar->value(), 120);
}

TEST_F(ProgressForm, BarStandsEmptyUntilThereAreRowsToCount)
{
    frmProgress &form = frmProgress::instance();
    form.Show();
    auto *bar = findControl<QProgressBar>(&form, QStringLiteral("pbUpdate"));
    // Not the busy bar of an empty range: nothing has moved yet.
    EXPECT_GT(bar->maximum(), bar->minimum());
    EXPECT_EQ(bar->value(), 0);
    form.SetRange(0);
    EXPECT_GT(bar->maximum(), bar->minimum());
    EXPECT_EQ(bar->value(), 0);
}

TEST_F(ProgressForm, CannotBeClosedOrCancelledWhileTheWorkRuns)
{
    frmProgress &form = frmProgress::instance();
    form.Show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    EXPECT_FALSE(form.windowFlags() & Qt::WindowCloseButtonHint);
    form.close();
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
    form.Unload();
    EXPECT_FALSE(form.isVisible());
}
