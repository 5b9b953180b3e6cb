#include "GolferScores.h"

#include "core/NumberText.h"

#include <QSqlQuery>

namespace quillon {

GolferScores::GolferScores(Connection &connection, QString last, QString first)
    : m_connection(connection), m_last(std::move(last)), m_first(std::move(first))
{
}

QVariant GolferScores::periodStart()
{
    const Recordset newest =
        Query(m_connection,
              QStringLiteral("SELECT Date FROM ScoreLog WHERE LastName = ? AND FirstName = ? "
                             "AND Holes = '18-holes' AND Used <> 'E' "
                             "ORDER BY Date DESC LIMIT 20"),
              golfer());
    if (newest.isEmpty())
        return QVariant(QStringLiteral(""));
    const QVariant date = newest.rows().constLast().value(0);
    return date.isNull() ? QVariant() : QVariant(date.toString());
}

void GolferScores::resetMarksBefore(const QVariant &start)
{
    Exec(m_connection,
         QStringLiteral("UPDATE ScoreLog SET Used = 'N', CombinedIndex = 1 "
                        "WHERE LastName = ? AND FirstName = ? AND Used <> 'E' AND (Date >= ?) IS NOT 1 "
                        "AND (Used <> 'N' COLLATE BINARY OR CombinedIndex IS NOT 1)"),
         {m_last, m_first, start});
}

QVector<LogRound> GolferScores::periodRounds(const QVariant &start)
{
    Statement q = m_connection.run(
        QStringLiteral(
            "SELECT ScoreIndex, LastName, FirstName, CourseName, Date, Holes, Type, AdjustedScore, "
            "Rating, Slope, Differential, Used, CombinedIndex FROM ScoreLog "
            "WHERE LastName = ? AND FirstName = ? AND Used <> 'E' AND Date >= ? "
            "ORDER BY Date, ScoreIndex"),
        {m_last, m_first, start});
    QVector<LogRound> rounds;
    while (q.next()) {
        LogRound r;
        r.scoreIndex = q.value(0).toLongLong();
        r.lastName = q.value(1).toString();
        r.firstName = q.value(2).toString();
        r.courseName = q.value(3).toString();
        r.date = q.value(4).toString();
        r.holes = q.value(5).toString();
        r.type = q.value(6);
        r.adjustedScore = q.value(7);
        r.rating = q.value(8);
        r.slope = q.value(9);
        r.differential = q.value(10);
        r.used = q.value(11);
        r.combinedIndex = q.value(12);
        rounds.append(std::move(r));
    }
    return rounds;
}

void GolferScores::deleteRecord()
{
    Exec(m_connection, QStringLiteral("DELETE FROM ScoringRecord WHERE LastName = ? AND FirstName = ?"),
         golfer());
}

QSet<qint64> GolferScores::roundsHeldInRecord()
{
    QSet<qint64> held;
    Statement q = m_connection.run(QStringLiteral("SELECT ScoreIndex, CombinedIndex FROM ScoringRecord"));
    while (q.next()) {
        for (int i = 0; i < 2; ++i)
            if (!q.value(i).isNull())
                held.insert(q.value(i).toLongLong());
    }
    return held;
}

void GolferScores::insertRecord(const QVector<RecordRow> &rows)
{
    for (const RecordRow &r : rows)
        Exec(m_connection,
             QStringLiteral("INSERT INTO ScoringRecord (LastName, FirstName, CourseName, Date, ScoreIndex, "
                            "CombinedIndex, Score, Rating, Slope, Differential, Used, Details) "
                            "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
             {r.lastName, r.firstName, r.courseName, r.date, r.scoreIndex, r.combinedIndex, r.score, r.rating,
              r.slope, r.differential, r.used, r.details});
}

QVector<RecordRow> GolferScores::readRecord()
{
    Statement q = m_connection.run(
        QStringLiteral(
            "SELECT rowid, LastName, FirstName, CourseName, Date, ScoreIndex, CombinedIndex, Score, "
            "Rating, Slope, Differential, Used, Details FROM ScoringRecord "
            "WHERE LastName = ? AND FirstName = ? ORDER BY Date, ScoreIndex"),
        golfer());
    QVector<RecordRow> rows;
    while (q.next()) {
        RecordRow r;
        r.rowId = q.value(0).toLongLong();
        r.lastName = q.value(1).toString();
        r.firstName = q.value(2).toString();
        r.courseName = q.value(3).toString();
        r.date = q.value(4).toString();
        r.scoreIndex = q.value(5).toLongLong();
        r.combinedIndex = q.value(6);
        r.score = q.value(7);
        r.rating = q.value(8);
        r.slope = q.value(9);
        r.differential = q.value(10);
        r.used = q.value(11).toString();
        r.details = q.value(12).toString();
        rows.append(std::move(r));
    }
    return rows;
}

void GolferScores::setRecordRowUsed(qint64 rowId, const QString &used)
{
    Exec(m_connection, QStringLiteral("UPDATE ScoringRecord SET Used = ? WHERE rowid = ?"), {used, rowId});
}

QVector<QVariant> GolferScores::usedDifferentials()
{
    QVector<QVariant> values;
    Statement q = m_connection.run(QStringLiteral("SELECT Differential FROM ScoringRecord "
                                                  "WHERE LastName = ? AND FirstName = ? AND Used = 'Y' "
                                                  "ORDER BY Date, ScoreIndex"),
                                   golfer());
    while (q.next())
        values.append(q.value(0));
    return values;
}

bool GolferScores::logHasRound(qint64 scoreIndex)
{
    return !Scalar(m_connection, QStringLiteral("SELECT 1 FROM ScoreLog WHERE ScoreIndex = ?"), {scoreIndex})
                .isNull();
}

void GolferScores::writeMark(const LogMark &mark)
{
    if (mark.setsCombinedIndex)
        Exec(m_connection,
             QStringLiteral("UPDATE ScoreLog SET Used = ?, CombinedIndex = ? WHERE ScoreIndex = ?"),
             {mark.used, mark.combinedIndex, mark.scoreIndex});
    else
        Exec(m_connection, QStringLiteral("UPDATE ScoreLog SET Used = ? WHERE ScoreIndex = ?"),
             {mark.used, mark.scoreIndex});
}

std::optional<QVariant> GolferScores::gender()
{
    const Recordset row = Query(
        m_connection, QStringLiteral("SELECT Gender FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
        golfer());
    if (row.isEmpty())
        return std::nullopt;
    return row.rows().constFirst().value(0);
}

void GolferScores::storeGender(const QString &gender)
{
    Exec(m_connection,
         QStringLiteral("UPDATE HandicapLog SET Gender = ? WHERE LastName = ? AND FirstName = ?"),
         {gender, m_last, m_first});
}

bool GolferScores::storeHandicap(float value)
{
    // The double nearest the single's own text: 8.8f is stored as 8.8.
    return Exec(m_connection,
                QStringLiteral("UPDATE HandicapLog SET Handicap = ? WHERE LastName = ? AND FirstName = ?"),
                {SingleText(value).toDouble(), m_last, m_first}) > 0;
}

} // namespace quillon
