#pragma once

#include <QtGlobal>

namespace quillon {

// The busy pointer for long work.  Held by scope, so that no way out of a
// handler (return, exception) leaves the hourglass on.  It goes through the
// installed platform, which keeps it off while a message box is up; with no
// platform installed it does nothing.
class Hourglass {
public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass &) = delete;
    Hourglass &operator=(const Hourglass &) = delete;

    // Restore the pointer before the scope ends (start-up does so before showing its frame).
    void release();

private:
    // The platform this hourglass began on; 0 when it holds none.
    quint64 m_platformSerial = 0;
};

} // namespace quillon
