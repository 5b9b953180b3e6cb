// The desktop side of the seam, with real dialogs answered from the event loop.
#include "desktop/DesktopPlatform.h"
#include "ModalAnswer.h"
#include "PrinterSettingsPrinting.h"
#include "TestPrinting.h"
#include "core/QuillonError.h"
#include "desktop/PrinterSettings.h"
#include "platform/Hourglass.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QFileInfo>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <optional>

namespace quillon::test {
namespace {

class DesktopPlatformTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_dir.isValid());
        auto p = std::make_unique<DesktopPlatform>();
        m_platform = p.get();
        installPlatform(std::move(p));
        ASSERT_EQ(QGuiApplication::overrideCursor(), nullptr) << "a cursor was left over";
    }
    void TearDown() override
    {
        installPlatform(nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "the platform left its cursor behind";
    }

    DesktopPlatform &desktop() { return *m_platform; }
    QString file(const QString &name) const { return m_dir.filePath(name); }

private:
    QTemporaryDir m_dir;
    DesktopPlatform *m_platform = nullptr;
};

std::optional<Qt::CursorShape> overrideShape()
{
    const QCursor *cursor = QGuiApplication::overrideCursor();
    return cursor ? std::optional<Qt::CursorShape>(cursor->shape()) : std::nullopt;
}

QByteArray head(const QString &path, int size)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(size) : QByteArray();
}

// The text of a PDF file, or nothing when pdftotext is not installed.
std::optional<QString> pdfText(const QString &path)
{
    const QString tool = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
    if (tool.isEmpty())
        return std::nullopt;
    QProcess process;
    process.start(tool, {QStringLiteral("-layout"), path, QStringLiteral("-")});
    if (!process.waitForFinished(10000))
        return QString();
    // Ligatures ("fi" drawn as one glyph) come back as their letters.
    return QString::fromUtf8(process.readAllStandardOutput()).normalized(QString::NormalizationForm_KC);
}

void paintPage(QPagedPaintDevice &device, const QString &text)
{
    QPainter painter(&device);
    ASSERT_TRUE(painter.isActive()) << "the device did not start painting";
    QFont font = painter.font();
    font.setPointSize(14);
    painter.setFont(font);
    painter.drawText(QRect(0, 0, device.width(), device.height() / 4), Qt::AlignLeft | Qt::AlignTop, text);
    EXPECT_TRUE(painter.end());
}

TEST_F(DesktopPlatformTest, HourglassSetsTheWaitCursorForItsScope)
{
    {
        const Hourglass hourglass;
        EXPECT_EQ(overrideShape(), Qt::WaitCursor);
        EXPECT_TRUE(desktop().pointerBusy());
    }
    EXPECT_EQ(overrideShape(), std::nullopt);
}

TEST_F(DesktopPlatformTest, MessageBoxIsShownWithTheNormalCursorUnderTheHourglass)
{
    const Hourglass hourglass;
    std::optional<Qt::CursorShape> whileUp = Qt::WaitCursor;
    QString textShown;
    answerNextModal<QMessageBox>([&](QMessageBox &box) {
        whileUp = overrideShape();
        textShown = box.text();
        box.button(QMessageBox::Yes)->click();
    });
    const MsgAnswer answer = desktop().messageBox(QStringLiteral("Replace the database?"), MsgIcon::Question,
                                                  appTitle(), MsgButtons::YesNo, MsgAnswer::No);
    EXPECT_EQ(answer, MsgAnswer::Yes);
    EXPECT_EQ(textShown, QStringLiteral("Replace the database?"));
    EXPECT_EQ(whileUp, std::nullopt) << "the hourglass covered the message box";
    EXPECT_EQ(overrideShape(), Qt::WaitCursor) << "the hourglass did not come back";
}

TEST_F(DesktopPlatformTest, OpenFileDialogFiltersInQtFormAndReturnsTheChosenFile)
{
    const QString chosen = file(QStringLiteral("Old.qdl"));
    QFile data(chosen);
    ASSERT_TRUE(data.open(QIODevice::WriteOnly));
    data.close();

    QStringList filters;
    answerNextModal<QFileDialog>([&](QFileDialog &dialog) {
        filters = dialog.nameFilters();
        // Typed as the user would: selectFile() leaves a focused name box alone.
        auto *name = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        if (name)
            name->setText(chosen);
        else
            ADD_FAILURE() << "the file dialog has no file name box";
        static_cast<QDialog &>(dialog).accept();
    });
    const QString path = desktop().getOpenFileName(
        QStringLiteral("Restore"), QStringLiteral("Quillon Data (*.qdl)|*.qdl|All Files|*.*"));
    EXPECT_EQ(filters, QStringList({"Quillon Data (*.qdl)", "All Files (*.*)"}));
    EXPECT_EQ(path, chosen);
}

TEST_F(DesktopPlatformTest, SaveFileDialogCancelledGivesNothing)
{
    QStringList filters;
    answerNextModal<QFileDialog>([&](QFileDialog &dialog) {
        filters = dialog.nameFilters();
        dialog.reject();
    });
    const QString path = desktop().getSaveFileName(
        QStringLiteral("Backup"), QStringLiteral("Quillon Data|*.qdl"), file(QStringLiteral("Backup.qdl")));
    EXPECT_EQ(filters, QStringList({"Quillon Data (*.qdl)"}));
    EXPECT_EQ(path, QString());
}

TEST_F(DesktopPlatformTest, ProgressShowsADialogThatGoesWhenDone)
{
    desktop().progress(0, 4, QStringLiteral("Upgrading the database"));
    QProgressDialog *dialog = desktop().progressDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->maximum(), 4);
    EXPECT_EQ(dialog->value(), 0);
    EXPECT_EQ(dialog->labelText(), QStringLiteral("Upgrading the database"));

    desktop().progress(3, 4, QStringLiteral("Copying rounds"));
    EXPECT_EQ(desktop().progressDialog(), dialog) << "one dialog for the whole work";
    EXPECT_EQ(dialog->value(), 3);
    EXPECT_EQ(dialog->labelText(), QStringLiteral("Copying rounds"));

    desktop().progressDone();
    EXPECT_EQ(desktop().progressDialog(), nullptr);
    for (QWidget *w : QApplication::topLevelWidgets())
        EXPECT_EQ(qobject_cast<QProgressDialog *>(w), nullptr) << "a progress dialog was left behind";
    desktop().progressDone();
}

TEST_F(DesktopPlatformTest, HelpGoesToTheHandlerTheFrameInstalled)
{
    desktop().showHelp(QStringLiteral("nobody-listens"));

    QStringList opened;
    desktop().setHelpHandler([&opened](const QString &anchor) { opened << anchor; });
    desktop().showHelp(QStringLiteral("enter-score"));
    desktop().setHelpHandler(nullptr);
    desktop().showHelp(QStringLiteral("after-the-frame"));
    EXPECT_EQ(opened, QStringList({QStringLiteral("enter-score")}));
}

TEST_F(DesktopPlatformTest, DefaultPrinterNameIsTheSystemsAndEmptyWhenThereIsNone)
{
    EXPECT_EQ(desktop().defaultPrinterName(), QPrinterInfo::defaultPrinter().printerName());
    if (QPrinterInfo::defaultPrinter().isNull()) {
        EXPECT_EQ(desktop().defaultPrinterName(), QString());
    }
}

TEST_F(DesktopPlatformTest, NoPrinterAndNoPrintToFileMeansNoDevice)
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "this machine has a printer";
    EXPECT_EQ(desktop().openPrinter(QStringLiteral("Score Log")), nullptr);
}

TEST_F(DesktopPlatformTest, PdfIsWrittenWithNoPrinterInstalled)
{
    const QString path = file(QStringLiteral("Score Card.pdf"));
    {
        std::unique_ptr<QPagedPaintDevice> device =
            desktop().openPdfPrinter(path, QStringLiteral("Score Card"));
        ASSERT_NE(device, nullptr);
        paintPage(*device, QStringLiteral("Quillon test page"));
    }
    EXPECT_EQ(head(path, 4), QByteArray("%PDF"));
    if (const auto text = pdfText(path)) {
        EXPECT_TRUE(text->contains(QStringLiteral("Quillon test page"))) << text->toStdString();
    }
}

TEST_F(DesktopPlatformTest, PrintToFileChosenInSetUpPrintsEveryDocumentThereAsSetUp)
{
    const QString path = file(QStringLiteral("out.pdf"));
    // Stands for the set-up dialog, whose choices land on the same printer.
    QPrinter &setup = desktop().setupPrinter();
    setup.setOutputFormat(QPrinter::PdfFormat);
    setup.setOutputFileName(path);
    setup.setPageSize(QPageSize(QPageSize::A5));
    setup.setPageOrientation(QPageLayout::Landscape);
    setup.setCopyCount(2);
    setup.setColorMode(QPrinter::GrayScale);

    std::unique_ptr<QPagedPaintDevice> device = desktop().openPrinter(QStringLiteral("Score Log"));
    ASSERT_NE(device, nullptr);
    auto *printer = dynamic_cast<QPrinter *>(device.get());
    ASSERT_NE(printer, nullptr);
    EXPECT_EQ(readPrinterSettings(*printer), readPrinterSettings(setup));
    EXPECT_EQ(printer->outputFormat(), QPrinter::PdfFormat);
    EXPECT_EQ(printer->outputFileName(), path);
    EXPECT_EQ(printer->pageLayout().pageSize().id(), QPageSize::A5);
    EXPECT_EQ(printer->pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(printer->copyCount(), 2);
    EXPECT_EQ(printer->colorMode(), QPrinter::GrayScale);
    EXPECT_EQ(printer->docName(), QStringLiteral("Score Log"));

    paintPage(*device, QStringLiteral("Score Log printed to file"));
    device.reset();
    EXPECT_EQ(head(path, 4), QByteArray("%PDF"));
    if (const auto text = pdfText(path)) {
        EXPECT_TRUE(text->contains(QStringLiteral("Score Log printed to file"))) << text->toStdString();
    }
}

TEST_F(DesktopPlatformTest, PdfPrinterKeepsThePageSetUp)
{
    QPrinter &setup = desktop().setupPrinter();
    setup.setPageSize(QPageSize(QPageSize::Legal));
    setup.setPageOrientation(QPageLayout::Landscape);

    std::unique_ptr<QPagedPaintDevice> device =
        desktop().openPdfPrinter(file(QStringLiteral("x.pdf")), QStringLiteral("Graph"));
    ASSERT_NE(device, nullptr);
    EXPECT_EQ(device->pageLayout().pageSize().id(), QPageSize::Legal);
    EXPECT_EQ(device->pageLayout().orientation(), QPageLayout::Landscape);
}

TEST_F(DesktopPlatformTest, PrintSetUpDialogChoicesReachTheNextPrinter)
{
    const QString path = file(QStringLiteral("setup.pdf"));
    bool answered = false;
    answerNextModal<QPrintDialog>([&](QPrintDialog &dialog) {
        auto *copies = dialog.findChild<QSpinBox *>(QStringLiteral("copies"));
        auto *fileName = dialog.findChild<QLineEdit *>(QStringLiteral("filename"));
        if (copies && fileName) {
            copies->setValue(3);
            fileName->setText(path);
            answered = true;
        }
        dialog.accept();
    });
    const bool accepted = desktop().printSetup();
    ASSERT_TRUE(answered) << "the print dialog has no copies box or file name box";
    ASSERT_TRUE(accepted);

    std::unique_ptr<QPagedPaintDevice> device = desktop().openPrinter(QStringLiteral("Score Log"));
    ASSERT_NE(device, nullptr);
    auto *printer = dynamic_cast<QPrinter *>(device.get());
    ASSERT_NE(printer, nullptr);
    EXPECT_EQ(printer->copyCount(), 3);
    EXPECT_EQ(printer->outputFormat(), QPrinter::PdfFormat);
    EXPECT_EQ(printer->outputFileName(), path);
    paintPage(*device, QStringLiteral("after set-up"));
    device.reset();
    EXPECT_EQ(head(path, 4), QByteArray("%PDF"));
}

TEST_F(DesktopPlatformTest, PrintSetUpCancelledKeepsTheEarlierSettings)
{
    QPrinter &setup = desktop().setupPrinter();
    setup.setPageOrientation(QPageLayout::Landscape);
    setup.setCopyCount(4);
    const PrinterSettings before = readPrinterSettings(setup);

    answerNextModal<QPrintDialog>([](QPrintDialog &dialog) {
        if (auto *copies = dialog.findChild<QSpinBox *>(QStringLiteral("copies")))
            copies->setValue(1);
        dialog.reject();
    });
    EXPECT_FALSE(desktop().printSetup());
    EXPECT_EQ(readPrinterSettings(desktop().setupPrinter()), before);
}

} // namespace
} // namespace quillon::test

namespace quillon::test {

TEST_F(DesktopPlatformTest, PdfChosenInSetUpStandsInForAPrinter)
{
    QPrinter &setup = desktop().setupPrinter();
    setup.setOutputFormat(QPrinter::PdfFormat);
    setup.setOutputFileName(file(QStringLiteral("set up.pdf")));
    EXPECT_EQ(desktop().defaultPrinterName(), QStringLiteral("PDF file"));
}

TEST_F(DesktopPlatformTest, WithPdfChosenEachPrintoutIsPreviewedForAFileOfItsOwnAndClosingPrintsNothing)
{
    QPrinter &setup = desktop().setupPrinter();
    setup.setOutputFormat(QPrinter::PdfFormat);
    setup.setOutputFileName(file(QStringLiteral("set up.pdf")));
    QString target;
    QString title;
    answerNextModal<QPrintPreviewDialog>([&](QPrintPreviewDialog &preview) {
        target = preview.printer()->outputFileName();
        title = preview.windowTitle();
        preview.reject();
    });
    int painted = 0;
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    PrintJob job{QStringLiteral("Score Log"), PageOrientation::Landscape, [&](QPagedPaintDevice &device) {
                     ++painted;
                     orientation = device.pageLayout().orientation();
                     QPainter painter(&device);
                     painter.drawText(100, 100, QStringLiteral("a page"));
                 }};
    EXPECT_FALSE(platform().print(job));
    EXPECT_EQ(title, QStringLiteral("Score Log"));
    EXPECT_EQ(target, file(QStringLiteral("Score Log.pdf")));
    EXPECT_GE(painted, 1) << "the preview draws the pages";
    EXPECT_EQ(orientation, QPageLayout::Landscape);
    EXPECT_FALSE(QFile::exists(file(QStringLiteral("Score Log.pdf"))));
    EXPECT_EQ(setup.outputFileName(), file(QStringLiteral("set up.pdf"))) << "the set-up stays as chosen";
}

TEST_F(DesktopPlatformTest, WithoutAPrinterOrPdfChosenPrintingFailsWithAPrinterError)
{
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "this machine has a printer";
    PrintJob job{QStringLiteral("Score Log"), PageOrientation::AsSetUp, [](QPagedPaintDevice &) {}};
    try {
        platform().print(job);
        FAIL() << "printed without a printer";
    } catch (const QuillonError &e) {
        EXPECT_EQ(e.number(), 482);
    }
}

} // namespace quillon::test
