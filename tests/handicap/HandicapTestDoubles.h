#pragma once

#include "TestPrinting.h"
#include "shell/basLogGlobals.h"

#include <QStringList>

namespace quillon::test {

// The frame's side of a handicap run: what the panel and the calculator item were set to.
class RecordingHandicapDisplay : public HandicapDisplay {
public:
    void setHandicapPanel(const QString &text) override { panel = text; }
    void setCourseHdcpCalculatorEnabled(bool enabled) override { calculatorEnabled = enabled; }

    QString panel;
    bool calculatorEnabled = false;
};

// Answers the gender question with a fixed letter and remembers who was asked.
class ScriptedGenderQuestion : public GenderQuestion {
public:
    explicit ScriptedGenderQuestion(QString answer) : m_answer(std::move(answer)) {}
    QString GetGender(const QString &first, const QString &last) override
    {
        asked << first + QLatin1Char(' ') + last;
        return m_answer;
    }

    QStringList asked;

private:
    QString m_answer;
};

} // namespace quillon::test
