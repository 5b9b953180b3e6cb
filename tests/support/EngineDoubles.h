#pragma once

#include "shell/basLogGlobals.h"

#include <QStringList>
#include <optional>

namespace quillon::test {

// Stands for the frame in a handicap run: what the "Handicap" panel and the
// calculator item were last set to (nothing, when the engine never touched them).
class RecordingHandicapDisplay : public HandicapDisplay {
public:
    void setHandicapPanel(const QString &text) override { panel = text; }
    void setCourseHdcpCalculatorEnabled(bool enabled) override { calculatorEnabled = enabled; }

    QString panel;
    std::optional<bool> calculatorEnabled;
};

// Stands for the gender dialog: answers with a fixed letter and remembers whom it
// asked, as "<first> <last>".
class ScriptedGenderQuestion : public GenderQuestion {
public:
    explicit ScriptedGenderQuestion(QString answer = QStringLiteral("M")) : answer(std::move(answer)) {}
    QString GetGender(const QString &first, const QString &last) override
    {
        asked << first + QLatin1Char(' ') + last;
        return answer;
    }

    QString answer;
    QStringList asked;
};

} // namespace quillon::test
