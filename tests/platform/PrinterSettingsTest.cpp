// Printer settings as a value: read from one printer, laid on another, nothing lost.
#include "desktop/PrinterSettings.h"
#include "PrinterSettingsPrinting.h"
#include "TestPrinting.h"

#include <QPrinterInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace quillon {
namespace {

// Every setting away from a new printer's default, as far as a PDF device keeps it
// (a PDF device knows no duplex and no printer name).
void setUpPdf(QPrinter &p, const QString &file)
{
    p.setOutputFormat(QPrinter::PdfFormat);
    p.setOutputFileName(file);
    p.setPageLayout(QPageLayout(QPageSize(QPageSize::A5), QPageLayout::Landscape, QMarginsF(12, 15, 18, 20),
                                QPageLayout::Millimeter));
    p.setFullPage(true);
    p.setCopyCount(3);
    p.setCollateCopies(false);
    p.setColorMode(QPrinter::GrayScale);
    p.setPageOrder(QPrinter::LastPageFirst);
    p.setPaperSource(QPrinter::Manual);
}

TEST(PrinterSettings, ReadTakesEverySettingOfThePrinter)
{
    QTemporaryDir dir;
    QPrinter printer(QPrinter::HighResolution);
    setUpPdf(printer, dir.filePath(QStringLiteral("a.pdf")));

    const PrinterSettings s = readPrinterSettings(printer);
    EXPECT_EQ(s.outputFormat, QPrinter::PdfFormat);
    EXPECT_EQ(s.outputFileName, dir.filePath(QStringLiteral("a.pdf")));
    EXPECT_TRUE(s.printsToFile());
    EXPECT_EQ(s.pageSize.id(), QPageSize::A5);
    EXPECT_EQ(s.orientation, QPageLayout::Landscape);
    EXPECT_EQ(s.margins, QMarginsF(12, 15, 18, 20));
    EXPECT_EQ(s.marginUnits, QPageLayout::Millimeter);
    EXPECT_EQ(s.copies, 3);
    EXPECT_FALSE(s.collateCopies);
    EXPECT_EQ(s.colorMode, QPrinter::GrayScale);
    EXPECT_EQ(s.pageOrder, QPrinter::LastPageFirst);
    EXPECT_EQ(s.paperSource, QPrinter::Manual);
    EXPECT_TRUE(s.fullPage);
}

TEST(PrinterSettings, ApplyToANewPrinterRoundTripsEverySetting)
{
    QTemporaryDir dir;
    QPrinter original(QPrinter::HighResolution);
    setUpPdf(original, dir.filePath(QStringLiteral("a.pdf")));
    const PrinterSettings settings = readPrinterSettings(original);

    QPrinter copy(QPrinter::HighResolution);
    ASSERT_NE(readPrinterSettings(copy), settings) << "a new printer already had every setting";
    applyPrinterSettings(settings, copy);
    EXPECT_EQ(readPrinterSettings(copy), settings);
    EXPECT_EQ(copy.pageLayout().fullRectPoints(), original.pageLayout().fullRectPoints());
}

TEST(PrinterSettings, CustomPageSizeRoundTrips)
{
    QTemporaryDir dir;
    QPrinter original(QPrinter::HighResolution);
    original.setOutputFormat(QPrinter::PdfFormat);
    original.setOutputFileName(dir.filePath(QStringLiteral("card.pdf")));
    original.setPageSize(QPageSize(QSizeF(100, 150), QPageSize::Millimeter, QStringLiteral("Score card")));

    QPrinter copy(QPrinter::HighResolution);
    applyPrinterSettings(readPrinterSettings(original), copy);
    EXPECT_EQ(readPrinterSettings(copy), readPrinterSettings(original));
    EXPECT_EQ(copy.pageLayout().pageSize().size(QPageSize::Millimeter), QSizeF(100, 150));
}

TEST(PrinterSettings, TheValueCopiesAndComparesByEveryField)
{
    PrinterSettings a;
    a.printerName = QStringLiteral("Office Laser");
    a.copies = 2;
    PrinterSettings b = a;
    EXPECT_EQ(a, b);
    b.duplex = QPrinter::DuplexLongSide;
    EXPECT_NE(a, b);
    b = a;
    b.printerName = QStringLiteral("Other");
    EXPECT_NE(a, b);
    b = a;
    b.pageSize = QPageSize(QPageSize::A4);
    EXPECT_NE(a, b);
}

TEST(PrinterSettings, PrinterSettingsOfAnInstalledPrinterRoundTrip)
{
    const QList<QPrinterInfo> printers = QPrinterInfo::availablePrinters();
    if (printers.isEmpty())
        GTEST_SKIP() << "no printer is installed here; a PDF device keeps no printer name or duplex";
    const QPrinterInfo &info = printers.last();

    QPrinter original(info, QPrinter::HighResolution);
    original.setCopyCount(2);
    original.setPageOrientation(QPageLayout::Landscape);
    if (info.supportedDuplexModes().contains(QPrinter::DuplexLongSide))
        original.setDuplex(QPrinter::DuplexLongSide);
    const PrinterSettings settings = readPrinterSettings(original);
    EXPECT_EQ(settings.printerName, info.printerName());
    EXPECT_EQ(settings.outputFormat, QPrinter::NativeFormat);

    QPrinter copy(QPrinter::HighResolution);
    applyPrinterSettings(settings, copy);
    EXPECT_EQ(readPrinterSettings(copy), settings);
}

} // namespace
} // namespace quillon
