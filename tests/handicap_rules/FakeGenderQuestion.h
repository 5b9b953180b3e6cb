#pragma once

#include "shell/basLogGlobals.h"

#include <QString>
#include <QVector>

namespace quillon::test {

// Stands for the gender dialog: answers what the test scripted and remembers who was asked.
class FakeGenderQuestion : public GenderQuestion {
public:
    struct Asked {
        QString first;
        QString last;
    };

    QString GetGender(const QString &first, const QString &last) override
    {
        asked.push_back({first, last});
        return answer;
    }

    QString answer = QStringLiteral("M");
    QVector<Asked> asked;
};

} // namespace quillon::test
