#pragma once

#include <QString>

namespace quillon {

// What an upgrade tells whoever watches it (the progress form on screen, a test, a benchmark).
// Calls come in this order: Show, SetRange, then SetStatus and SetValue as the rows move, and
// Unload at the end, also when the upgrade fails.
class UpgradeProgress {
public:
    virtual ~UpgradeProgress() = default;
    virtual void Show() = 0;
    // The rows to move; the value starts at 0.
    virtual void SetRange(int maximum) = 0;
    virtual void SetStatus(const QString &text) = 0;
    virtual void SetValue(int value) = 0;
    virtual void Unload() = 0;
};

} // namespace quillon
