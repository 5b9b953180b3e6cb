#include "PrinterSettings.h"

namespace quillon {

bool operator==(const PrinterSettings &a, const PrinterSettings &b)
{
    return a.outputFormat == b.outputFormat && a.printerName == b.printerName &&
           a.outputFileName == b.outputFileName && a.pageSize.isEquivalentTo(b.pageSize) &&
           a.pageSize.id() == b.pageSize.id() && a.orientation == b.orientation && a.margins == b.margins &&
           a.marginUnits == b.marginUnits && a.copies == b.copies && a.collateCopies == b.collateCopies &&
           a.colorMode == b.colorMode && a.duplex == b.duplex && a.pageOrder == b.pageOrder &&
           a.paperSource == b.paperSource && a.fullPage == b.fullPage;
}

PrinterSettings readPrinterSettings(const QPrinter &printer)
{
    PrinterSettings s;
    s.outputFormat = printer.outputFormat();
    s.printerName = printer.printerName();
    s.outputFileName = printer.outputFileName();
    const QPageLayout layout = printer.pageLayout();
    s.pageSize = layout.pageSize();
    s.orientation = layout.orientation();
    s.margins = layout.margins();
    s.marginUnits = layout.units();
    s.copies = printer.copyCount();
    s.collateCopies = printer.collateCopies();
    s.colorMode = printer.colorMode();
    s.duplex = printer.duplex();
    s.pageOrder = printer.pageOrder();
    s.paperSource = printer.paperSource();
    s.fullPage = printer.fullPage();
    return s;
}

void applyPrinterSettings(const PrinterSettings &settings, QPrinter &printer)
{
    // The format and the device first: changing either gives the printer a new engine.
    printer.setOutputFormat(settings.outputFormat);
    if (!settings.printerName.isEmpty())
        printer.setPrinterName(settings.printerName);
    if (settings.outputFormat == QPrinter::PdfFormat || !settings.outputFileName.isEmpty())
        printer.setOutputFileName(settings.outputFileName);

    printer.setPageLayout(
        QPageLayout(settings.pageSize, settings.orientation, settings.margins, settings.marginUnits));
    // Full page is the layout's mode: set after the layout, which would reset it.
    printer.setFullPage(settings.fullPage);
    printer.setCopyCount(settings.copies);
    printer.setCollateCopies(settings.collateCopies);
    printer.setColorMode(settings.colorMode);
    printer.setDuplex(settings.duplex);
    printer.setPageOrder(settings.pageOrder);
    printer.setPaperSource(settings.paperSource);
}

} // namespace quillon
