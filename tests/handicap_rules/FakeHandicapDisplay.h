#pragma once

#include "shell/basLogGlobals.h"

#include <QString>
#include <optional>

namespace quillon::test {

// Stands for the frame: keeps what the engine last put on the "Handicap" panel
// and whether it left the course handicap calculator usable.
class FakeHandicapDisplay : public HandicapDisplay {
public:
    void setHandicapPanel(const QString &text) override { panel = text; }
    void setCourseHdcpCalculatorEnabled(bool enabled) override { calculatorEnabled = enabled; }

    QString panel;
    std::optional<bool> calculatorEnabled;
};

} // namespace quillon::test
