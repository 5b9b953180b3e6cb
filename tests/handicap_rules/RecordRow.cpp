#include "RecordRow.h"

#include <QSqlRecord>
#include <cmath>
#include <iomanip>

namespace quillon::test {

namespace {

std::optional<qint64> optionalIndex(const QVariant &v)
{
    if (v.isNull())
        return std::nullopt;
    return v.toLongLong();
}

std::string text(const std::optional<qint64> &v)
{
    return v ? std::to_string(*v) : std::string("Null");
}

} // namespace

bool operator==(const RecordRow &a, const RecordRow &b)
{
    return a.lastName == b.lastName && a.firstName == b.firstName && a.courseName == b.courseName &&
           a.date == b.date && a.scoreIndex == b.scoreIndex && a.combinedIndex == b.combinedIndex &&
           a.score == b.score && a.rating == b.rating && a.slope == b.slope &&
           a.differential == b.differential && a.used == b.used && a.details == b.details;
}

void PrintTo(const RecordRow &r, std::ostream *os)
{
    *os << std::setprecision(17) << "{" << r.lastName.toStdString() << ", " << r.firstName.toStdString()
        << ", " << r.courseName.toStdString() << ", " << r.date.toString(Qt::ISODate).toStdString() << ", #"
        << r.scoreIndex << ", combined " << text(r.combinedIndex) << ", score " << r.score << ", rating "
        << r.rating << ", slope " << r.slope << ", diff " << r.differential << ", used "
        << r.used.toStdString() << ", details "
        << (r.details ? "\"" + r.details->toStdString() + "\"" : std::string("Null")) << "}";
}

QVector<RecordRow> ReadScoringRecord(Connection &c, const QString &last, const QString &first)
{
    // typeof() tells a Null column from an empty text without relying on the driver's variants.
    const Recordset rs =
        Query(c,
              QStringLiteral(
                  "SELECT LastName, FirstName, CourseName, Date, ScoreIndex, CombinedIndex, Score, Rating, "
                  "Slope, Differential, Used, Details, typeof(CombinedIndex) AS ciType, "
                  "typeof(Details) AS detailsType FROM ScoringRecord WHERE LastName = ? AND FirstName = ? "
                  "ORDER BY Date, ScoreIndex"),
              {last, first});
    QVector<RecordRow> rows;
    for (const QSqlRecord &q : rs.rows()) {
        RecordRow r;
        r.lastName = q.value(QStringLiteral("LastName")).toString();
        r.firstName = q.value(QStringLiteral("FirstName")).toString();
        r.courseName = q.value(QStringLiteral("CourseName")).toString();
        r.date = QDate::fromString(q.value(QStringLiteral("Date")).toString(), Qt::ISODate);
        r.scoreIndex = q.value(QStringLiteral("ScoreIndex")).toLongLong();
        if (q.value(QStringLiteral("ciType")).toString() != QLatin1String("null"))
            r.combinedIndex = q.value(QStringLiteral("CombinedIndex")).toLongLong();
        r.score = q.value(QStringLiteral("Score")).toInt();
        r.rating = q.value(QStringLiteral("Rating")).toDouble();
        r.slope = q.value(QStringLiteral("Slope")).toInt();
        r.differential = q.value(QStringLiteral("Differential")).toDouble();
        r.used = q.value(QStringLiteral("Used")).toString();
        if (q.value(QStringLiteral("detailsType")).toString() != QLatin1String("null"))
            r.details = q.value(QStringLiteral("Details")).toString();
        rows.push_back(r);
    }
    return rows;
}

bool operator==(const LogMark &a, const LogMark &b)
{
    return a.used == b.used && a.combinedIndex == b.combinedIndex;
}

void PrintTo(const LogMark &m, std::ostream *os)
{
    *os << "{" << m.used.toStdString() << ", " << text(m.combinedIndex) << "}";
}

LogMark ReadLogMark(Connection &c, qint64 scoreIndex)
{
    const Recordset rs = Query(
        c, QStringLiteral("SELECT Used, CombinedIndex FROM ScoreLog WHERE ScoreIndex = ?"), {scoreIndex});
    if (rs.isEmpty())
        return {QStringLiteral("<no row>"), std::nullopt};
    return {rs.value(QStringLiteral("Used")).toString(),
            optionalIndex(rs.value(QStringLiteral("CombinedIndex")))};
}

double OneDecimal(double value)
{
    // The tenths are whole; dividing a whole number by ten gives the double nearest the decimal text.
    return std::round(value * 10.0) / 10.0;
}

} // namespace quillon::test
