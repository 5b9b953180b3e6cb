#include "frmProgress.h"

#include "help/ApplicationIcon.h"
#include "platform/Platform.h"
#include "ui/FormInstance.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace quillon {

frmProgress::frmProgress(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmProgress"));
    setWindowTitle(appTitle());
    // Nothing to cancel: no close button, no help button.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);

    m_picIcon = new QLabel(this);
    m_picIcon->setObjectName(QStringLiteral("picIcon"));
    m_picIcon->setPixmap(ApplicationIcon().pixmap(48, 48));
    m_picIcon->setAlignment(Qt::AlignTop | Qt::AlignHCenter);

    m_lblTitle = new QLabel(QStringLiteral("New database detected.  Update in progress ..."), this);
    m_lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont titleFont = m_lblTitle->font();
    titleFont.setBold(true);
    m_lblTitle->setFont(titleFont);

    m_lblDesc = new QLabel(QStringLiteral("Loading Quillon for Golf"), this);
    m_lblDesc->setObjectName(QStringLiteral("lblDesc"));

    m_lblStatus = new QLabel(this);
    m_lblStatus->setObjectName(QStringLiteral("lblStatus"));
    // The status line keeps its height while it is still empty, so the form does not jump.
    m_lblStatus->setMinimumHeight(m_lblStatus->fontMetrics().height());

    m_pbUpdate = new QProgressBar(this);
    m_pbUpdate->setObjectName(QStringLiteral("pbUpdate"));
    // Empty until the rows are counted (a range of 0 to 0 would show a busy bar instead).
    m_pbUpdate->setRange(0, 1);
    m_pbUpdate->setValue(0);
    m_pbUpdate->setTextVisible(false);
    m_pbUpdate->setMinimumWidth(360);

    auto *text = new QVBoxLayout;
    text->addWidget(m_lblTitle);
    text->addWidget(m_lblDesc);
    text->addSpacing(8);
    text->addWidget(m_lblStatus);
    text->addWidget(m_pbUpdate);

    auto *layout = new QHBoxLayout(this);
    layout->addWidget(m_picIcon, 0, Qt::AlignTop);
    layout->addSpacing(10);
    layout->addLayout(text, 1);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

frmProgress &frmProgress::instance()
{
    return FormInstance<frmProgress>::get();
}

frmProgress *frmProgress::existing()
{
    return FormInstance<frmProgress>::existing();
}

void frmProgress::unload()
{
    FormInstance<frmProgress>::destroy();
}

void frmProgress::Show()
{
    m_working = true;
    m_lblStatus->clear();
    m_pbUpdate->setRange(0, 1);
    m_pbUpdate->setValue(0);
    ensurePolished();
    layout()->activate();
    adjustSize();
    centreOnScreen();
    show();
    raise();
    letMessagesRun();
}

void frmProgress::SetRange(int maximum)
{
    // A database with no rows at all still shows an empty bar, not a busy one.
    m_pbUpdate->setRange(0, std::max(maximum, 1));
    m_pbUpdate->setValue(0);
    letMessagesRun();
}

void frmProgress::SetStatus(const QString &text)
{
    m_lblStatus->setText(text);
    letMessagesRun();
}

void frmProgress::SetValue(int value)
{
    m_pbUpdate->setValue(value);
    letMessagesRun();
}

void frmProgress::Unload()
{
    m_working = false;
    hide();
}

void frmProgress::closeEvent(QCloseEvent *event)
{
    // The upgrade cannot be stopped half-way; the form goes when the work is done.
    if (m_working)
        event->ignore();
    else
        QDialog::closeEvent(event);
}

void frmProgress::keyPressEvent(QKeyEvent *event)
{
    // Escape would reject the dialog; there is nothing to cancel.
    if (event->key() == Qt::Key_Escape)
        return;
    QDialog::keyPressEvent(event);
}

void frmProgress::centreOnScreen()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen)
        return;
    // The window must exist for its border to count in its own outer size.
    winId();
    const QRect available = screen->availableGeometry();
    QRect outer(QPoint(), frameGeometry().size());
    outer.moveCenter(available.center());
    move(outer.topLeft());
}

void frmProgress::letMessagesRun()
{
    QCoreApplication::processEvents();
}

} // namespace quillon
