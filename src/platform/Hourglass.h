#pragma once

namespace quillon {

// The busy pointer for long work.  Held by scope, so that no way out of a
// handler (return, exception) leaves the hourglass on.
class Hourglass {
public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass &) = delete;
    Hourglass &operator=(const Hourglass &) = delete;

    // Restore the pointer before the scope ends (start-up does so before showing its frame).
    void release();

private:
    bool m_active = false;
};

} // namespace quillon
