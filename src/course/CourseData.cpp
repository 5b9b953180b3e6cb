#include "CourseData.h"

#include "core/Convert.h"
#include "core/Int16.h"
#include "core/NumberText.h"

namespace quillon {

QStringList CourseNames(Connection &c)
{
    return FirstColumn(c, QStringLiteral("SELECT DISTINCT CourseName FROM CourseLog ORDER BY CourseName"));
}

QStringList TeesOf(Connection &c, const QString &course)
{
    // In the order they were entered, so that a course's first tees are the first it was given.
    return FirstColumn(
        c, QStringLiteral("SELECT Tees FROM CourseLog WHERE CourseName = ? GROUP BY Tees ORDER BY MIN(rowid)"),
        {course});
}

bool TeesExist(Connection &c, const QString &course, const QString &tees)
{
    Statement s = c.run(QStringLiteral("SELECT 1 FROM CourseLog WHERE CourseName = ? AND Tees = ?"), {course, tees});
    return s.next();
}

qint16 CountCourseRows(Connection &c)
{
    return Int16(Scalar(c, QStringLiteral("SELECT COUNT(*) FROM CourseLog")).toLongLong()).value();
}

bool TeesHaveScores(Connection &c, const QString &course, const QString &tees)
{
    Statement s = c.run(QStringLiteral("SELECT 1 FROM ScoreLog WHERE CourseName = ? AND Tees = ?"), {course, tees});
    return s.next();
}

void DeleteTees(Connection &c, const QString &course, const QString &tees)
{
    Transaction t(c);
    Exec(c, QStringLiteral("DELETE FROM CourseDetails WHERE CourseName = ? AND Tees = ?"), {course, tees});
    Exec(c, QStringLiteral("DELETE FROM CourseLog WHERE CourseName = ? AND Tees = ?"), {course, tees});
    t.commit();
}

const QStringList &CourseCard::logColumns()
{
    static const QStringList columns = {"OverallRating", "OverallSlope", "FrontRating", "FrontSlope",
                                        "BackRating",    "BackSlope",    "ParIn",       "ParOut",
                                        "TotalPar",      "YardsIn",      "YardsOut",    "TotalYards"};
    return columns;
}

CourseCard LoadCourseCard(Connection &c, const QString &course, const QString &tees)
{
    CourseCard card;
    {
        Statement s = c.run(QStringLiteral("SELECT %1 FROM CourseLog WHERE CourseName = ? AND Tees = ?")
                                .arg(CourseCard::logColumns().join(QStringLiteral(", "))),
                            {course, tees});
        if (s.next())
            for (int i = 0; i < CourseCard::logColumns().size(); ++i)
                card.log.insert(CourseCard::logColumns().at(i), s.value(i));
    }
    Statement s = c.run(
        QStringLiteral("SELECT Hole, PAR, Yards, Handicap FROM CourseDetails WHERE CourseName = ? AND Tees = ?"),
        {course, tees});
    while (s.next()) {
        const int index = s.value(0).toInt() - 1;
        if (index < 0 || index > 17)
            continue; // a hole the card has no place for
        card.par[index] = s.value(1);
        card.yards[index] = s.value(2);
        card.hdcp[index] = s.value(3);
    }
    return card;
}

bool IsEntered(const QVariant &value)
{
    return !value.isNull() && value.toDouble() != 0;
}

QString StoredText(const QVariant &value)
{
    if (value.isNull())
        return QString();
    bool number = false;
    const double d = value.toDouble(&number);
    return number ? DoubleText(d) : value.toString();
}

namespace {

// A box's text as its numeric column takes it: blank as `blank`, a number as its value, and
// anything else a type mismatch.
QVariant columnValue(const QString &text, const QVariant &blank)
{
    if (text.isEmpty())
        return blank;
    return CDbl(text);
}

struct HoleValues {
    QVariant par, hdcp, yards;
};

// The hole rows to write, checked whole before anything is written.
QVector<HoleValues> holeValues(const CourseEntry &e)
{
    QVector<HoleValues> holes(18);
    for (int i = 0; i < 18; ++i)
        holes[i] = {columnValue(e.par.at(i), QVariant()), columnValue(e.hdcp.at(i), QVariant()),
                    columnValue(e.yards.at(i), QVariant())};
    return holes;
}

} // namespace

qint16 SaveNewCourse(Connection &c, const CourseEntry &e, bool withDetails)
{
    QStringList columns = {"CourseName", "Tees"};
    Params values = {e.course, e.tees};
    const auto set = [&](const char *column, const QString &text) {
        columns << QLatin1String(column);
        values << columnValue(text, QVariant());
    };
    // The rating alone decides: the slope beside it is written as it stands.
    if (!e.overallRating.isEmpty()) {
        set("OverallRating", e.overallRating);
        set("OverallSlope", e.overallSlope);
    }
    if (!e.frontRating.isEmpty()) {
        set("FrontRating", e.frontRating);
        set("FrontSlope", e.frontSlope);
    }
    if (!e.backRating.isEmpty()) {
        set("BackRating", e.backRating);
        set("BackSlope", e.backSlope);
    }
    QVector<HoleValues> holes;
    if (withDetails) {
        const auto setIfShown = [&](const char *column, const QString &label) {
            if (!label.isEmpty())
                set(column, label);
        };
        setIfShown("YardsIn", e.yardsIn);
        setIfShown("YardsOut", e.yardsOut);
        setIfShown("ParIn", e.parIn);
        setIfShown("ParOut", e.parOut);
        set("TotalYards", e.yardsTotal);
        set("TotalPar", e.parTotal);
        holes = holeValues(e);
    }

    Transaction t(c);
    Exec(c,
         QStringLiteral("INSERT INTO CourseLog (%1) VALUES (%2)")
             .arg(columns.join(QStringLiteral(", ")), QStringList(columns.size(), QStringLiteral("?")).join(", ")),
         values);
    for (int i = 0; i < holes.size(); ++i) {
        if (e.par.at(i).isEmpty())
            continue;
        Exec(c,
             QStringLiteral("INSERT INTO CourseDetails (CourseName, Tees, Hole, PAR, Handicap, Yards) "
                            "VALUES (?, ?, ?, ?, ?, ?)"),
             {e.course, e.tees, i + 1, holes[i].par, holes[i].hdcp, holes[i].yards});
    }
    const qint16 count = CountCourseRows(c);
    t.commit();
    return count;
}

void SaveEditedCourse(Connection &c, const CourseEntry &e, bool withDetails)
{
    // Blank boxes write 0, which clears the column for every reader.
    const QVariant zero(0);
    QStringList columns = {"OverallRating", "OverallSlope", "FrontRating", "FrontSlope", "BackRating", "BackSlope"};
    Params values = {columnValue(e.overallRating, zero), columnValue(e.overallSlope, zero),
                     columnValue(e.frontRating, zero),   columnValue(e.frontSlope, zero),
                     columnValue(e.backRating, zero),    columnValue(e.backSlope, zero)};
    QVector<HoleValues> holes;
    if (withDetails) {
        columns << QStringList{"YardsIn", "YardsOut", "TotalYards", "ParIn", "ParOut", "TotalPar"};
        values << columnValue(e.yardsIn, zero) << columnValue(e.yardsOut, zero) << columnValue(e.yardsTotal, zero)
               << columnValue(e.parIn, zero) << columnValue(e.parOut, zero) << columnValue(e.parTotal, zero);
        holes = holeValues(e);
    }

    Transaction t(c);
    if (!TeesExist(c, e.course, e.tees)) {
        // New tees typed for an existing course: a further set of tees joins it.
        Exec(c, QStringLiteral("INSERT INTO CourseLog (CourseName, Tees) VALUES (?, ?)"), {e.course, e.tees});
    }
    QStringList assignments;
    for (const QString &column : columns)
        assignments << column + QStringLiteral(" = ?");
    Exec(c,
         QStringLiteral("UPDATE CourseLog SET %1 WHERE CourseName = ? AND Tees = ?")
             .arg(assignments.join(QStringLiteral(", "))),
         values + Params{e.course, e.tees});

    for (int i = 0; i < holes.size(); ++i) {
        const Params key = {e.course, e.tees, i + 1};
        const bool stored = Scalar(c,
                                   QStringLiteral("SELECT COUNT(*) FROM CourseDetails WHERE CourseName = ? AND "
                                                  "Tees = ? AND Hole = ?"),
                                   key)
                                .toInt() > 0;
        if (e.par.at(i).isEmpty()) {
            if (stored)
                Exec(c, QStringLiteral("DELETE FROM CourseDetails WHERE CourseName = ? AND Tees = ? AND Hole = ?"),
                     key);
        } else if (stored) {
            Exec(c,
                 QStringLiteral("UPDATE CourseDetails SET PAR = ?, Handicap = ?, Yards = ? WHERE CourseName = ? "
                                "AND Tees = ? AND Hole = ?"),
                 Params{holes[i].par, holes[i].hdcp, holes[i].yards} + key);
        } else {
            Exec(c,
                 QStringLiteral("INSERT INTO CourseDetails (CourseName, Tees, Hole, PAR, Handicap, Yards) "
                                "VALUES (?, ?, ?, ?, ?, ?)"),
                 key + Params{holes[i].par, holes[i].hdcp, holes[i].yards});
        }
    }
    t.commit();
}

} // namespace quillon
