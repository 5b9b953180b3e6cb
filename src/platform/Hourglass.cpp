#include "Hourglass.h"

#include "Platform.h"

namespace quillon {

Hourglass::Hourglass()
{
    if (platformInstalled()) {
        Platform &p = platform();
        m_platformSerial = p.m_serial;
        p.beginBusy();
    }
}

Hourglass::~Hourglass()
{
    release();
}

void Hourglass::release()
{
    // The platform this began on may have been replaced meanwhile (tests do so); a
    // replacement never held this share of the pointer.
    if (m_platformSerial != 0 && platformInstalled() && platform().m_serial == m_platformSerial)
        platform().endBusy();
    m_platformSerial = 0;
}

} // namespace quillon
