#pragma once

#include "Platform.h"

namespace quillon {

// The real desktop: Qt message boxes, file dialogs and printers.
class DesktopPlatform : public Platform {
public:
    MsgAnswer messageBox(const QString &text, MsgIcon icon, const QString &title, MsgButtons buttons,
                         MsgAnswer defaultButton) override;
    QString getSaveFileName(const QString &title, const QString &filter, const QString &defaultName) override;
    QString getOpenFileName(const QString &title, const QString &filter) override;
    QString defaultPrinterName() override;
    bool printSetup() override;
    std::unique_ptr<QPagedPaintDevice> openPrinter(const QString &documentName) override;
    QDate today() override;
    QString appDir() override;
};

} // namespace quillon
