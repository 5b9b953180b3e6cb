#pragma once

#include "platform/Platform.h"

#include <QPointer>
#include <QProgressDialog>
#include <memory>

class QPrinter;

namespace quillon {

// The real desktop: Qt message boxes, file dialogs, printers, the wait cursor and a
// progress dialog.
class DesktopPlatform : public Platform {
public:
    DesktopPlatform();
    ~DesktopPlatform() override;

    QString defaultPrinterName() override;
    std::unique_ptr<QPagedPaintDevice> openPrinter(const QString &documentName) override;
    std::unique_ptr<QPagedPaintDevice> openPdfPrinter(const QString &path,
                                                      const QString &documentName) override;
    QDate today() override;
    QString appDir() override;
    void progress(int value, int maximum, const QString &text) override;
    void progressDone() override;
    void showHelp(const QString &anchor) override;

    // The printer that printer set-up works on; its settings outlive the dialog and are
    // laid on every printer opened afterwards.
    QPrinter &setupPrinter();
    // The progress dialog while progress is shown; null otherwise.
    QProgressDialog *progressDialog() const { return m_progress; }

protected:
    MsgAnswer showMessageBox(const QString &text, MsgIcon icon, const QString &title, MsgButtons buttons,
                             MsgAnswer defaultButton) override;
    QString showSaveFileDialog(const QString &title, const QString &filter,
                               const QString &defaultName) override;
    QString showOpenFileDialog(const QString &title, const QString &filter) override;
    bool showPrintSetup() override;
    bool showPrintPreview(const PrintJob &job) override;
    void showBusyPointer(bool busy) override;

private:
    std::unique_ptr<QPrinter> m_setupPrinter;
    QPointer<QProgressDialog> m_progress;
    bool m_cursorPushed = false;
};

} // namespace quillon
