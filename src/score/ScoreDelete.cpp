#include "ScoreDelete.h"

#include "core/DateText.h"

namespace quillon {

void DeleteScoreRows(Connection &c, const QString &last, const QString &first, qint64 scoreIndex,
                     const QDate &date, const QString &course, const QString &tees)
{
    // One unit: a failure half-way must not leave a round that claims hole rows it no longer has.
    Transaction unit(c);
    Exec(c,
         QStringLiteral("DELETE FROM ScoreDetails WHERE ScoreIndex = ? AND LastName = ? AND FirstName = ? "
                        "AND Date = ? AND CourseName = ? AND Tees = ?"),
         {scoreIndex, last, first, IsoDate(date), course, tees});
    Exec(c,
         QStringLiteral("DELETE FROM ScoringRecord WHERE LastName = ? AND FirstName = ? AND ScoreIndex = ?"),
         {last, first, scoreIndex});
    Exec(c, QStringLiteral("DELETE FROM ScoreLog WHERE LastName = ? AND FirstName = ? AND ScoreIndex = ?"),
         {last, first, scoreIndex});
    unit.commit();
}

} // namespace quillon
