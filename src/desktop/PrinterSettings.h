#pragma once

#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPrinter>
#include <QString>

namespace quillon {

// What the user chose in printer set-up, as a value: read from the printer the set-up
// dialog worked on and laid on each new printer, so that every document prints as set up.
struct PrinterSettings {
    QPrinter::OutputFormat outputFormat = QPrinter::NativeFormat;
    QString printerName;
    // Where "Print to File" writes; empty when printing to a printer.
    QString outputFileName;
    QPageSize pageSize = QPageSize(QPageSize::Letter);
    QPageLayout::Orientation orientation = QPageLayout::Portrait;
    QMarginsF margins;
    QPageLayout::Unit marginUnits = QPageLayout::Point;
    int copies = 1;
    bool collateCopies = true;
    QPrinter::ColorMode colorMode = QPrinter::Color;
    QPrinter::DuplexMode duplex = QPrinter::DuplexNone;
    QPrinter::PageOrder pageOrder = QPrinter::FirstPageFirst;
    QPrinter::PaperSource paperSource = QPrinter::Auto;
    bool fullPage = false;

    bool printsToFile() const { return outputFormat == QPrinter::PdfFormat && !outputFileName.isEmpty(); }

    friend bool operator==(const PrinterSettings &a, const PrinterSettings &b);
    friend bool operator!=(const PrinterSettings &a, const PrinterSettings &b) { return !(a == b); }
};

PrinterSettings readPrinterSettings(const QPrinter &printer);
// Lays the settings on a printer that has not begun printing.  A printer name the system
// does not know is left alone by Qt, as is a duplex mode the device cannot do.
void applyPrinterSettings(const PrinterSettings &settings, QPrinter &printer);

} // namespace quillon
