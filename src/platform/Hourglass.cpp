#include "Hourglass.h"

#include <QCursor>
#include <QGuiApplication>

namespace quillon {

Hourglass::Hourglass()
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
        m_active = true;
    }
}

Hourglass::~Hourglass()
{
    release();
}

void Hourglass::release()
{
    if (m_active) {
        QGuiApplication::restoreOverrideCursor();
        m_active = false;
    }
}

} // namespace quillon
