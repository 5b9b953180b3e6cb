#include "EntryForm.h"

#include "platform/Platform.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace quillon {

void EntryForm::addSaveAndCancel(QBoxLayout *row)
{
    row->addStretch(1);
    m_cmdSave = new QPushButton(QStringLiteral("&Save"), this);
    m_cmdSave->setObjectName(QStringLiteral("cmdSave"));
    m_cmdSave->setEnabled(false);
    m_cmdCancel = new QPushButton(QStringLiteral("&Cancel"), this);
    m_cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    row->addWidget(m_cmdSave);
    row->addWidget(m_cmdCancel);
    connect(m_cmdCancel, &QPushButton::clicked, this, [this] { closeForm(); });
}

void EntryForm::applyTabOrder(const QVector<QWidget *> &order)
{
    for (int i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));
}

void EntryForm::closeForm()
{
    markUnsaved(false);
    if (parentWidget())
        parentWidget()->close(); // the child window, and the form with it
    else
        deleteLater(); // never shown
}

void EntryForm::markUnsaved(bool unsaved)
{
    if (unsaved && m_filling)
        return;
    setProperty("unsavedInput", unsaved);
}

void EntryForm::keyPressEvent(QKeyEvent *event)
{
    // Keys no box took.
    if (event->key() == Qt::Key_F1) {
        platform().showHelp(helpAnchor());
        return;
    }
    if (event->key() == Qt::Key_Escape) {
        m_cmdCancel->click();
        return;
    }
    ViewForm::keyPressEvent(event);
}

} // namespace quillon
