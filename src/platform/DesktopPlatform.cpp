#include "DesktopPlatform.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

namespace quillon {

namespace {

QString toQtFilter(const QString &filter)
{
    // "Quillon Data (*.qdl)|*.qdl" — the description part is what Qt wants.
    const auto parts = filter.split(QLatin1Char('|'));
    QStringList out;
    for (int i = 0; i < parts.size(); i += 2)
        out << parts.at(i);
    return out.join(QStringLiteral(";;"));
}

QPrinter &sharedPrinter()
{
    static QPrinter printer(QPrinter::HighResolution);
    return printer;
}

} // namespace

MsgAnswer DesktopPlatform::messageBox(const QString &text, MsgIcon icon, const QString &title,
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

QString DesktopPlatform::getSaveFileName(const QString &title, const QString &filter,
                                         const QString &defaultName)
{
    return QFileDialog::getSaveFileName(dialogParent(), title, defaultName, toQtFilter(filter));
}

QString DesktopPlatform::getOpenFileName(const QString &title, const QString &filter)
{
    return QFileDialog::getOpenFileName(dialogParent(), title, QString(), toQtFilter(filter));
}

QString DesktopPlatform::defaultPrinterName()
{
    return QPrinterInfo::defaultPrinter().printerName();
}

bool DesktopPlatform::printSetup()
{
    QPrintDialog dialog(&sharedPrinter(), dialogParent());
    return dialog.exec() == QDialog::Accepted;
}

std::unique_ptr<QPagedPaintDevice> DesktopPlatform::openPrinter(const QString &documentName)
{
    const QString name = defaultPrinterName();
    if (name.isEmpty())
        return nullptr;
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPrinterName(sharedPrinter().printerName().isEmpty() ? name : sharedPrinter().printerName());
    printer->setDocName(documentName);
    return printer;
}

QDate DesktopPlatform::today()
{
    return QDate::currentDate();
}

QString DesktopPlatform::appDir()
{
    return QCoreApplication::applicationDirPath();
}

} // namespace quillon
