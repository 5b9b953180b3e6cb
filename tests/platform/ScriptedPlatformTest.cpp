// The scripted platform that every other test relies on.
#include "ScriptedPlatform.h"
#include "TestApp.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace quillon::test {
namespace {

TEST(ScriptedPlatform, AnswersMessagesFromItsQueueThenWithTheDefaultButton)
{
    TestApp app(false);
    ScriptedPlatform &p = app.platform();
    p.answer(MsgAnswer::Yes);
    EXPECT_EQ(p.messageBox(QStringLiteral("Delete?"), MsgIcon::Question, appTitle(), MsgButtons::YesNo,
                           MsgAnswer::No),
              MsgAnswer::Yes);
    EXPECT_EQ(p.messageBox(QStringLiteral("Again?"), MsgIcon::Question, appTitle(), MsgButtons::YesNo,
                           MsgAnswer::No),
              MsgAnswer::No);
    const QVector<ShownMessage> shown = p.takeMessages();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown[0].text, QStringLiteral("Delete?"));
    EXPECT_EQ(shown[0].icon, MsgIcon::Question);
    EXPECT_EQ(shown[0].title, appTitle());
    EXPECT_EQ(shown[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(shown[0].defaultButton, MsgAnswer::No);
    EXPECT_TRUE(p.messages().isEmpty());
}

TEST(ScriptedPlatform, FailsTheTestOnAMessageNoTestTook)
{
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedPlatform p(QDir::tempPath());
            p.messageBox(QStringLiteral("Nobody looked"), MsgIcon::None, QStringLiteral("Quillon"));
        },
        "unexpected message box: \"Nobody looked\"");
}

TEST(ScriptedPlatform, FileDialogsAnswerFromTheirQueuesAndRecordTheFilters)
{
    TestApp app(false);
    ScriptedPlatform &p = app.platform();
    p.answerSaveFile(app.file(QStringLiteral("Backup.qdl")));
    p.answerOpenFile(app.file(QStringLiteral("Old.qdl")));
    const QString filter = QStringLiteral("Quillon Data (*.qdl)|*.qdl");
    EXPECT_EQ(p.getSaveFileName(QStringLiteral("Backup"), filter, QStringLiteral("Backup.qdl")),
              app.file(QStringLiteral("Backup.qdl")));
    EXPECT_EQ(p.getSaveFileName(QStringLiteral("Backup"), filter, QStringLiteral("Backup.qdl")), QString());
    EXPECT_EQ(p.getOpenFileName(QStringLiteral("Restore"), filter), app.file(QStringLiteral("Old.qdl")));
    EXPECT_EQ(p.getOpenFileName(QStringLiteral("Restore"), filter), QString());
    EXPECT_EQ(p.fileFilters(), QStringList({filter, filter, filter, filter}));
}

TEST(ScriptedPlatform, TodayIsFixed)
{
    TestApp app(false);
    EXPECT_EQ(app.platform().today(), QDate(2026, 11, 22));
}

TEST(ScriptedPlatform, PrinterWritesNumberedPdfFilesIntoTheAppDirectory)
{
    TestApp app(false);
    ScriptedPlatform &p = app.platform();
    EXPECT_EQ(p.defaultPrinterName(), QStringLiteral("Scripted PDF Printer"));
    for (int i = 0; i < 2; ++i) {
        std::unique_ptr<QPagedPaintDevice> device = p.openPrinter(QStringLiteral("Score Log"));
        ASSERT_NE(device, nullptr);
        QPainter painter(device.get());
        painter.drawText(100, 100, QStringLiteral("page"));
    }
    EXPECT_EQ(p.printedFiles(), QStringList({app.file(QStringLiteral("printed-1.pdf")),
                                             app.file(QStringLiteral("printed-2.pdf"))}));
    QFile first(app.file(QStringLiteral("printed-1.pdf")));
    ASSERT_TRUE(first.open(QIODevice::ReadOnly));
    EXPECT_TRUE(first.read(4) == "%PDF");
}

TEST(ScriptedPlatform, NoPrinterMeansNoDeviceButPdfStillWorks)
{
    TestApp app(false);
    ScriptedPlatform &p = app.platform();
    p.printerName.clear();
    EXPECT_EQ(p.defaultPrinterName(), QString());
    EXPECT_EQ(p.openPrinter(QStringLiteral("Score Log")), nullptr);

    const QString path = app.file(QStringLiteral("card.pdf"));
    {
        std::unique_ptr<QPagedPaintDevice> device = p.openPdfPrinter(path, QStringLiteral("Score Card"));
        ASSERT_NE(device, nullptr);
        QPainter painter(device.get());
        painter.drawText(100, 100, QStringLiteral("card"));
    }
    EXPECT_EQ(p.printedFiles(), QStringList({path}));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.read(4) == "%PDF");
}

TEST(ScriptedPlatform, PrintSetupAnswersAsToldAndCounts)
{
    TestApp app(false);
    ScriptedPlatform &p = app.platform();
    EXPECT_TRUE(p.printSetup());
    p.printSetupAnswer = false;
    EXPECT_FALSE(p.printSetup());
    EXPECT_EQ(p.printSetupCount, 2);
}

TEST(ScriptedPlatform, RecordsProgressUntilItIsTakenAway)
{
    TestApp app(false);
    ScriptedPlatform &p = app.platform();
    EXPECT_FALSE(p.progressShowing());
    p.progress(0, 3, QStringLiteral("Copying golfers"));
    p.progress(2, 3, QStringLiteral("Copying rounds"));
    EXPECT_TRUE(p.progressShowing());
    p.progressDone();
    EXPECT_FALSE(p.progressShowing());
    ASSERT_EQ(p.progressSteps().size(), 2);
    EXPECT_EQ(p.progressSteps()[0].value, 0);
    EXPECT_EQ(p.progressSteps()[0].maximum, 3);
    EXPECT_EQ(p.progressSteps()[0].text, QStringLiteral("Copying golfers"));
    EXPECT_EQ(p.progressSteps()[1].value, 2);
    EXPECT_EQ(p.progressSteps()[1].text, QStringLiteral("Copying rounds"));
    EXPECT_EQ(p.progressDoneCount(), 1);
}

TEST(ScriptedPlatform, RecordsHelpAnchorsAndPassesThemToTheFramesHandler)
{
    TestApp app(false);
    ScriptedPlatform &p = app.platform();
    p.showHelp(QStringLiteral("before-the-frame"));

    QStringList opened;
    p.setHelpHandler([&opened](const QString &anchor) { opened << anchor; });
    p.showHelp(QStringLiteral("enter-score"));
    p.showHelp(QStringLiteral("handicap-index"));
    p.setHelpHandler(nullptr);

    EXPECT_EQ(p.helpAnchors(), QStringList({QStringLiteral("before-the-frame"), QStringLiteral("enter-score"),
                                            QStringLiteral("handicap-index")}));
    EXPECT_EQ(opened, QStringList({QStringLiteral("enter-score"), QStringLiteral("handicap-index")}));
}

} // namespace
} // namespace quillon::test
