#include "ScoreLogQuery.h"

#include "core/DateText.h"
#include "core/Format.h"

namespace quillon {

SqlStatement ScoreLogStatement(const QString &last, const QString &first, ScoreLogSelection selection,
                               int currentYear, const QString &order)
{
    SqlStatement s;
    s.sql = QStringLiteral("SELECT * FROM ScoreLog WHERE LastName = ? AND FirstName = ?");
    s.params = {last, first};
    switch (selection) {
    case ScoreLogSelection::Used: s.sql += QStringLiteral(" AND (Used='Y' OR Used='C')"); break;
    case ScoreLogSelection::CurrentYear:
        s.sql += QStringLiteral(" AND Date>=?");
        s.params << IsoDate(QDate(currentYear, 1, 1));
        break;
    case ScoreLogSelection::All: break;
    }
    s.sql += OrderByWithTiebreak(order);
    return s;
}

QString OrderByWithTiebreak(const QString &order)
{
    if (order.isEmpty())
        return QString();
    const bool descending = order.endsWith(QLatin1String(" DESC"), Qt::CaseInsensitive);
    return QStringLiteral(" ORDER BY ") + order + QStringLiteral(", ScoreIndex") +
           (descending ? QStringLiteral(" DESC") : QString());
}

QString OneDecimalCell(const QVariant &value)
{
    return Format(value.toDouble(), QStringLiteral("###.0"));
}

QString DateCell(const QVariant &value)
{
    return DateText(ParseDateText(value.toString()));
}

QString ScoreLogSortColumn(int position)
{
    switch (position) {
    case 2: return QStringLiteral("Coursename");
    case 3: return QStringLiteral("Tees");
    case 4: return QStringLiteral("Date");
    case 6: return QStringLiteral("Holes");
    case 7: return QStringLiteral("AdjustedScore");
    case 8: return QStringLiteral("Rating");
    case 9: return QStringLiteral("Slope");
    case 11: return QStringLiteral("Differential");
    default: return QString();
    }
}

QString NextSortOrder(const QString &current, const QString &column)
{
    if (current.compare(column + QStringLiteral(" ASC"), Qt::CaseInsensitive) == 0)
        return column + QStringLiteral(" DESC");
    return column + QStringLiteral(" ASC");
}

QString EmptyScoreLogMessage(ScoreLogSelection selection, int currentYear)
{
    switch (selection) {
    case ScoreLogSelection::CurrentYear:
        return QStringLiteral(
                   "No scores have been recorded for %1.\nSelect View\\View All Scores on the Quillon "
                   "menu to view all recorded scores.")
            .arg(currentYear);
    case ScoreLogSelection::Used:
        return QStringLiteral(
            "No scores have been used to calculate your handicap. You must record 5 scores to "
            "obtain a handicap.");
    case ScoreLogSelection::All: break;
    }
    return QStringLiteral("(No scores have been entered)");
}

QVector<GridColumn> ScoreLogColumns(bool handicapMode)
{
    const auto oneDecimal = &OneDecimalCell;
    const auto date = &DateCell;
    const Qt::Alignment right = Qt::AlignRight | Qt::AlignVCenter;
    const Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;
    const Qt::Alignment centre = Qt::AlignCenter;
    QVector<GridColumn> c = {
        {QStringLiteral("LastName"), QStringLiteral("LastName"), {}, left, true},
        {QStringLiteral("FirstName"), QStringLiteral("FirstName"), {}, left, true},
        {QStringLiteral("CourseName"), QStringLiteral("Course"), {}, left},
        {QStringLiteral("Tees"), QStringLiteral("Tees"), {}, left},
        {QStringLiteral("Date"), QStringLiteral("Date"), date, right},
        {QStringLiteral("ScoreIndex"), QStringLiteral("ScoreIndex"), {}, right, true},
        {QStringLiteral("Holes"), QStringLiteral("Holes"), {}, left},
        {QStringLiteral("AdjustedScore"), QStringLiteral("Adj. Score"), {}, right},
        {QStringLiteral("Rating"), QStringLiteral("Course Rating"), oneDecimal, right},
        {QStringLiteral("Slope"), QStringLiteral("Slope Rating"), {}, right},
        // "Yes/No" does nothing to a text: the stored letter shows.
        {QStringLiteral("Type"), QStringLiteral("Type"), {}, centre},
        {QStringLiteral("Differential"), QStringLiteral("Differential"), oneDecimal, right},
        {QStringLiteral("Used"), QStringLiteral("Used"), {}, centre},
        {QStringLiteral("Penalties"), QStringLiteral("Penalties"), {}, right},
        {QStringLiteral("LostBalls"), QStringLiteral("LostBalls"), {}, right},
        {QStringLiteral("Bunkers"), QStringLiteral("Bunkers"), {}, right},
        {QStringLiteral("SandSaves"), QStringLiteral("SandSaves"), {}, right},
        {QStringLiteral("AttemptedSaves"), QStringLiteral("AttemptedSaves"), {}, right},
    };
    if (!handicapMode) {
        c[7].field = QStringLiteral("Score");
        c[7].header = QStringLiteral("Score");
        c[11].hidden = true;
        c[12].hidden = true;
    }
    return c;
}

} // namespace quillon
