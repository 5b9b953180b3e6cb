#include "GolferLedger.h"

#include "Fixtures.h"

namespace quillon::test {

namespace {

const QStringList kTables = {QStringLiteral("HandicapLog"), QStringLiteral("ScoreLog"),
                             QStringLiteral("ScoringRecord")};

QString orderOf(const QString &table)
{
    if (table == QLatin1String("HandicapLog"))
        return QString();
    return table == QLatin1String("ScoreLog") ? QStringLiteral(" ORDER BY ScoreIndex")
                                              : QStringLiteral(" ORDER BY Date, ScoreIndex");
}

} // namespace

QStringList GolferRows(Connection &c, const QString &last, const QString &first)
{
    QStringList all;
    for (const QString &t : kTables) {
        all << t;
        all << columnValues(
            c, QStringLiteral("SELECT * FROM %1 WHERE LastName = ? AND FirstName = ?").arg(t) + orderOf(t),
            {last, first});
    }
    return all;
}

void GolferLedger::keep(const QString &last, const QString &first)
{
    m_golfers[last + QLatin1Char('\n') + first] = {last, first, GolferRows(m_connection, last, first)};
}

QStringList GolferLedger::changed() const
{
    QStringList changed;
    qint64 keptRows = 0;
    for (const Kept &k : m_golfers) {
        if (GolferRows(m_connection, k.last, k.first) != k.rows)
            changed << k.last + QStringLiteral(", ") + k.first;
        keptRows += k.rows.size() - kTables.size();
    }
    qint64 rows = 0;
    for (const QString &t : kTables)
        rows += Scalar(m_connection, QStringLiteral("SELECT COUNT(*) FROM %1").arg(t)).toLongLong();
    if (rows != keptRows)
        changed << QStringLiteral("rows of no kept golfer");
    return changed;
}

} // namespace quillon::test
