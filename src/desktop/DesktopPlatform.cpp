#include "DesktopPlatform.h"

#include "core/QuillonError.h"

#include "PrinterSettings.h"
#include "platform/FileFilter.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>

namespace quillon {

DesktopPlatform::DesktopPlatform() = default;

DesktopPlatform::~DesktopPlatform()
{
    delete m_progress.data();
    if (m_cursorPushed)
        QGuiApplication::restoreOverrideCursor();
}

MsgAnswer DesktopPlatform::showMessageBox(const QString &text, MsgIcon icon, const QString &title,
                                          MsgButtons buttons, MsgAnswer defaultButton)
{
    QMessageBox box(dialogParent());
    box.setText(text);
    box.setWindowTitle(title);
    switch (icon) {
    case MsgIcon::None: box.setIcon(QMessageBox::NoIcon); break;
    case MsgIcon::Critical: box.setIcon(QMessageBox::Critical); break;
    case MsgIcon::Exclamation: box.setIcon(QMessageBox::Warning); break;
    case MsgIcon::Question: box.setIcon(QMessageBox::Question); break;
    case MsgIcon::Information: box.setIcon(QMessageBox::Information); break;
    }
    switch (buttons) {
    case MsgButtons::OK: box.setStandardButtons(QMessageBox::Ok); break;
    case MsgButtons::OKCancel: box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel); break;
    case MsgButtons::YesNo: box.setStandardButtons(QMessageBox::Yes | QMessageBox::No); break;
    }
    switch (defaultButton) {
    case MsgAnswer::OK: box.setDefaultButton(QMessageBox::Ok); break;
    case MsgAnswer::Cancel: box.setDefaultButton(QMessageBox::Cancel); break;
    case MsgAnswer::Yes: box.setDefaultButton(QMessageBox::Yes); break;
    case MsgAnswer::No: box.setDefaultButton(QMessageBox::No); break;
    }
    switch (box.exec()) {
    case QMessageBox::Cancel: return MsgAnswer::Cancel;
    case QMessageBox::Yes: return MsgAnswer::Yes;
    case QMessageBox::No: return MsgAnswer::No;
    default: break;
    }
    // Closing an OK/Cancel or Yes/No box by its frame counts as the safe answer.
    if (buttons == MsgButtons::OKCancel)
        return box.clickedButton() == box.button(QMessageBox::Ok) ? MsgAnswer::OK : MsgAnswer::Cancel;
    if (buttons == MsgButtons::YesNo)
        return MsgAnswer::No;
    return MsgAnswer::OK;
}

QString DesktopPlatform::showSaveFileDialog(const QString &title, const QString &filter,
                                            const QString &defaultName)
{
    return QFileDialog::getSaveFileName(dialogParent(), title, defaultName, toQtFileFilter(filter));
}

QString DesktopPlatform::showOpenFileDialog(const QString &title, const QString &filter)
{
    return QFileDialog::getOpenFileName(dialogParent(), title, QString(), toQtFileFilter(filter));
}

QString DesktopPlatform::defaultPrinterName()
{
    // A PDF file chosen in printer set-up stands in for a printer, so that a machine without one
    // can still print.
    if (m_setupPrinter && readPrinterSettings(*m_setupPrinter).printsToFile())
        return QStringLiteral("PDF file");
    return QPrinterInfo::defaultPrinter().printerName();
}

QPrinter &DesktopPlatform::setupPrinter()
{
    // Made on first use: a printer wants the application object to exist.
    if (!m_setupPrinter)
        m_setupPrinter = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *m_setupPrinter;
}

bool DesktopPlatform::showPrintSetup()
{
    QPrintDialog dialog(&setupPrinter(), dialogParent());
    return dialog.exec() == QDialog::Accepted;
}

std::unique_ptr<QPagedPaintDevice> DesktopPlatform::openPrinter(const QString &documentName)
{
    const PrinterSettings settings = readPrinterSettings(setupPrinter());
    if (!settings.printsToFile() && settings.printerName.isEmpty() && defaultPrinterName().isEmpty())
        return nullptr;
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    applyPrinterSettings(settings, *printer);
    printer->setDocName(documentName);
    return printer;
}

std::unique_ptr<QPagedPaintDevice> DesktopPlatform::openPdfPrinter(const QString &path,
                                                                   const QString &documentName)
{
    // The page as set up (size, orientation, margins), written to the file asked for.
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    applyPrinterSettings(readPrinterSettings(setupPrinter()), *printer);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(path);
    printer->setDocName(documentName);
    return printer;
}

bool DesktopPlatform::showPrintPreview(const PrintJob &job)
{
    std::unique_ptr<QPagedPaintDevice> device = openPrinter(job.documentName);
    if (!device)
        throw QuillonError(482, QStringLiteral("Printer error"));
    auto *printer = static_cast<QPrinter *>(device.get());
    if (readPrinterSettings(*printer).printsToFile()) {
        // Each printout goes to a file of its own, beside the one set up and named after the
        // printout; the print dialog of the preview lets the user name it otherwise.
        printer->setOutputFileName(
            QFileInfo(printer->outputFileName()).dir().filePath(job.documentName + QStringLiteral(".pdf")));
    }
    if (job.orientation != PageOrientation::AsSetUp)
        printer->setPageOrientation(job.orientation == PageOrientation::Landscape ? QPageLayout::Landscape
                                                                                  : QPageLayout::Portrait);
    QPrintPreviewDialog preview(printer, dialogParent());
    preview.setWindowTitle(job.documentName);
    if (dialogParent())
        preview.resize(dialogParent()->size() * 0.9);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&job](QPrinter *p) { job.paint(*p); });
    return preview.exec() == QDialog::Accepted;
}

QDate DesktopPlatform::today()
{
    return QDate::currentDate();
}

QString DesktopPlatform::appDir()
{
    return QCoreApplication::applicationDirPath();
}

void DesktopPlatform::progress(int value, int maximum, const QString &text)
{
    if (!m_progress) {
        m_progress = new QProgressDialog(dialogParent());
        m_progress->setWindowTitle(appTitle());
        // The work cannot be stopped half-way, so there is nothing to cancel.
        m_progress->setCancelButton(nullptr);
        m_progress->setAutoClose(false);
        m_progress->setAutoReset(false);
        m_progress->setMinimumDuration(0);
        m_progress->setWindowModality(Qt::ApplicationModal);
    }
    m_progress->setRange(0, maximum);
    m_progress->setLabelText(text);
    m_progress->setValue(value);
    if (!m_progress->isVisible())
        m_progress->show();
    // Long work runs on the event thread: let the dialog paint.
    QCoreApplication::processEvents();
}

void DesktopPlatform::progressDone()
{
    delete m_progress.data();
}

void DesktopPlatform::showHelp(const QString &anchor)
{
    // Until the frame installs its help window there is nowhere to show help.
    callHelpHandler(anchor);
}

void DesktopPlatform::showBusyPointer(bool busy)
{
    if (busy) {
        if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
            return;
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
        m_cursorPushed = true;
    } else if (m_cursorPushed) {
        QGuiApplication::restoreOverrideCursor();
        m_cursorPushed = false;
    }
}

} // namespace quillon
