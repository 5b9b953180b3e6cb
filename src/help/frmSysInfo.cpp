#include "frmSysInfo.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillon {

frmSysInfo::frmSysInfo(const QString &text, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmSysInfo"));
    setWindowTitle(QStringLiteral("System Information"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setModal(true);

    m_txtSysInfo = new QPlainTextEdit(this);
    m_txtSysInfo->setObjectName(QStringLiteral("txtSysInfo"));
    m_txtSysInfo->setReadOnly(true);
    m_txtSysInfo->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_txtSysInfo->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_txtSysInfo->setPlainText(text);

    m_cmdClose = new QPushButton(QStringLiteral("&Close"), this);
    m_cmdClose->setObjectName(QStringLiteral("cmdClose"));
    m_cmdClose->setDefault(true);
    connect(m_cmdClose, &QPushButton::clicked, this, &QDialog::accept);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_cmdClose);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_txtSysInfo);
    layout->addLayout(buttons);

    // Wide enough for the longest line without scrolling, within reason.
    const QFontMetrics metrics(m_txtSysInfo->font());
    int widest = 0;
    for (const QString &row : text.split(QLatin1Char('\n')))
        widest = qMax(widest, metrics.horizontalAdvance(row));
    const int lines = text.count(QLatin1Char('\n')) + 1;
    m_txtSysInfo->setMinimumSize(qBound(360, widest + 40, 900),
                                 qBound(120, (lines + 2) * metrics.lineSpacing(), 600));
    m_cmdClose->setFocus();
}

} // namespace quillon
