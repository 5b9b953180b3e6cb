#include "help/frmHelp.h"
#include "TestApp.h"
#include "Widgets.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>
#include <QTextBrowser>
#include <gtest/gtest.h>

using namespace quillon;
using test::findControl;

namespace {

const QString kHelpSource = QStringLiteral(QUILLON_TEST_HELP_SOURCE);

// Lays the help pages into the test's application directory, as an install does.
void installHelp(const QString &appDir)
{
    const QDir source(kHelpSource);
    ASSERT_TRUE(source.exists()) << kHelpSource.toStdString();
    const QDir target(QDir(appDir).filePath(QStringLiteral("help")));
    ASSERT_TRUE(QDir().mkpath(target.path()));
    for (const QString &name : source.entryList(QDir::Files))
        ASSERT_TRUE(QFile::copy(source.filePath(name), target.filePath(name))) << name.toStdString();
}

class frmHelpTest : public ::testing::Test {
protected:
    void TearDown() override { frmHelp::instance().close(); }

    QTextBrowser *browser() { return findControl<QTextBrowser>(&frmHelp::instance(), "txtHelp"); }
    QAction *action(const char *name)
    {
        return findControl<QAction>(&frmHelp::instance(), QLatin1String(name));
    }
    QString shownPage() { return QFileInfo(browser()->source().toLocalFile()).fileName(); }
    QString shownText() { return browser()->toPlainText(); }
    QString helpDir() const { return QDir(app.dir()).filePath(QStringLiteral("help")); }

    test::TestApp app{false};
};

class InstalledHelpTest : public frmHelpTest {
protected:
    void SetUp() override { installHelp(app.dir()); }
};

TEST_F(InstalledHelpTest, EmptyAnchorShowsTheContents)
{
    frmHelp::instance().ShowHelp();
    frmHelp &form = frmHelp::instance();
    EXPECT_EQ(form.objectName(), "frmHelp");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(browser()->source(), QUrl::fromLocalFile(QDir(helpDir()).filePath("index.html")));
    EXPECT_TRUE(shownText().contains("Quillon for Golf Help")) << shownText().toStdString();
    EXPECT_TRUE(shownText().contains("The Score Log"));
    EXPECT_EQ(form.windowTitle(), "Quillon for Golf Help - Contents");
}

TEST_F(InstalledHelpTest, IsNotModal)
{
    frmHelp::instance().ShowHelp(QString());
    frmHelp &form = frmHelp::instance();
    EXPECT_TRUE(form.isWindow());
    EXPECT_FALSE(form.isModal());
    EXPECT_EQ(form.windowModality(), Qt::NonModal);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    // Reading help must not keep the program alive after its main window has closed.
    EXPECT_FALSE(form.testAttribute(Qt::WA_QuitOnClose));
}

TEST_F(InstalledHelpTest, AnchorOpensItsPage)
{
    frmHelp::instance().ShowHelp("scorelog");
    EXPECT_EQ(shownPage(), "scorelog.html");
    EXPECT_TRUE(shownText().contains("Adj. Score"));
    EXPECT_TRUE(shownText().contains("View Current Year Scores"));
    EXPECT_EQ(frmHelp::instance().windowTitle(), "Quillon for Golf Help - The Score Log");
}

TEST_F(InstalledHelpTest, AnchorWithAPlaceOpensThePageThere)
{
    frmHelp::instance().ShowHelp("golfer#add");
    EXPECT_EQ(shownPage(), "golfer.html");
    EXPECT_EQ(browser()->source().fragment(), "add");
    EXPECT_TRUE(shownText().contains("Add golfer John Smith?"));
}

TEST_F(InstalledHelpTest, MissingPageIsTold)
{
    frmHelp::instance().ShowHelp("nosuchpage");
    EXPECT_TRUE(frmHelp::instance().isVisible());
    EXPECT_TRUE(shownText().contains("The help page nosuchpage.html was not found"))
        << shownText().toStdString();
    EXPECT_TRUE(shownText().contains(QDir::toNativeSeparators(helpDir())));
}

TEST_F(InstalledHelpTest, PageShownBeforeAMissingOneShowsAgain)
{
    frmHelp::instance().ShowHelp();
    ASSERT_EQ(shownPage(), "index.html");
    frmHelp::instance().ShowHelp("nosuchpage");
    ASSERT_TRUE(shownText().contains("was not found"));

    action("cmdContents")->trigger();
    EXPECT_TRUE(shownText().contains("Quillon for Golf Help")) << shownText().toStdString();
    EXPECT_EQ(frmHelp::instance().windowTitle(), "Quillon for Golf Help - Contents");

    frmHelp::instance().ShowHelp("nosuchpage");
    frmHelp::instance().ShowHelp("index#nowhere");
    EXPECT_TRUE(shownText().contains("Quillon for Golf Help")) << shownText().toStdString();
}

TEST_F(InstalledHelpTest, ContentsBackAndForward)
{
    frmHelp::instance().ShowHelp("handicap");
    ASSERT_EQ(shownPage(), "handicap.html");

    action("cmdContents")->trigger();
    EXPECT_EQ(shownPage(), "index.html");

    ASSERT_TRUE(action("cmdBack")->isEnabled());
    action("cmdBack")->trigger();
    EXPECT_EQ(shownPage(), "handicap.html");
    EXPECT_TRUE(shownText().contains("Equitable Stroke Control"));

    ASSERT_TRUE(action("cmdForward")->isEnabled());
    action("cmdForward")->trigger();
    EXPECT_EQ(shownPage(), "index.html");
    EXPECT_FALSE(action("cmdForward")->isEnabled());
}

TEST_F(InstalledHelpTest, LinksAreFollowed)
{
    frmHelp::instance().ShowHelp("menus");
    // As a click on a link in the page does.
    emit browser()->anchorClicked(QUrl(QStringLiteral("golfer.html#delete")));
    EXPECT_EQ(shownPage(), "golfer.html");
    EXPECT_EQ(browser()->source().fragment(), "delete");

    emit browser()->anchorClicked(QUrl(QStringLiteral("index.html")));
    EXPECT_EQ(shownPage(), "index.html");
}

TEST_F(InstalledHelpTest, OutsideLinksAreNotFollowed)
{
    frmHelp::instance().ShowHelp("about");
    emit browser()->anchorClicked(QUrl(QStringLiteral("https://example.com/")));
    EXPECT_EQ(shownPage(), "about.html");
}

TEST_F(InstalledHelpTest, EscapeClosesTheWindow)
{
    frmHelp &form = frmHelp::instance();
    form.ShowHelp();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    QTest::keyClick(browser(), Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(frmHelpTest, MissingHelpFolderIsTold)
{
    ASSERT_FALSE(QFileInfo::exists(helpDir()));
    frmHelp::instance().ShowHelp();
    EXPECT_TRUE(frmHelp::instance().isVisible());
    EXPECT_TRUE(shownText().contains("The help files were not found in the folder " +
                                     QDir::toNativeSeparators(helpDir())))
        << shownText().toStdString();
    EXPECT_FALSE(action("cmdBack")->isEnabled());
    EXPECT_FALSE(action("cmdForward")->isEnabled());
}

TEST_F(frmHelpTest, MissingHelpFolderIsToldForAnyAnchor)
{
    frmHelp::instance().ShowHelp("scorelog");
    EXPECT_TRUE(shownText().contains("The help files were not found")) << shownText().toStdString();
    // Contents asks again, and finds the same.
    action("cmdContents")->trigger();
    EXPECT_TRUE(shownText().contains("The help files were not found"));
}

TEST_F(frmHelpTest, HelpInstalledLaterIsFound)
{
    frmHelp::instance().ShowHelp();
    ASSERT_TRUE(shownText().contains("not found"));
    installHelp(app.dir());
    action("cmdContents")->trigger();
    EXPECT_EQ(shownPage(), "index.html");
    EXPECT_TRUE(shownText().contains("Quillon for Golf Help"));
}

TEST(frmHelpAnchorTest, AnchorsNamePagesInTheHelpFolder)
{
    test::TestApp app{false};
    const QDir help(QDir(app.dir()).filePath("help"));
    EXPECT_EQ(frmHelp::anchorUrl(""), QUrl::fromLocalFile(help.filePath("index.html")));
    EXPECT_EQ(frmHelp::anchorUrl("scorelog"), QUrl::fromLocalFile(help.filePath("scorelog.html")));
    EXPECT_EQ(frmHelp::anchorUrl("scorelog.html"), QUrl::fromLocalFile(help.filePath("scorelog.html")));
    QUrl add = QUrl::fromLocalFile(help.filePath("golfer.html"));
    add.setFragment("add");
    EXPECT_EQ(frmHelp::anchorUrl("golfer#add"), add);
    // A help anchor never leads out of the help folder.
    EXPECT_EQ(frmHelp::anchorUrl("../Quillon.qdl"), QUrl::fromLocalFile(help.filePath("Quillon.qdl.html")));
}

} // namespace
