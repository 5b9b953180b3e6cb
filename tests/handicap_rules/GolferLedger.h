#pragma once

#include "store/basDatabase.h"

#include <QMap>
#include <QStringList>

namespace quillon::test {

// Every column of every row that belongs to a golfer in HandicapLog, ScoreLog and
// ScoringRecord, in a stable order.
QStringList GolferRows(Connection &c, const QString &last, const QString &first);

// The rows of golfers as they stood when last kept, so that later runs for other
// golfers can be shown to have left them alone.
class GolferLedger {
public:
    explicit GolferLedger(Connection &c) : m_connection(c) {}

    // Remember the golfer's rows as they stand now.
    void keep(const QString &last, const QString &first);

    // The kept golfers whose rows differ now, and "rows of no kept golfer" when a
    // table holds more rows than the kept golfers account for.
    QStringList changed() const;

private:
    struct Kept {
        QString last;
        QString first;
        QStringList rows;
    };
    Connection &m_connection;
    QMap<QString, Kept> m_golfers;
};

} // namespace quillon::test
