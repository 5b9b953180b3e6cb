#include "Fixtures.h"

#include "core/DateText.h"

#include <gtest/gtest.h>

namespace quillon::test {

void addGolfer(Connection &c, const QString &last, const QString &first, const QString &gender,
               double handicap)
{
    Exec(c,
         QStringLiteral("INSERT INTO HandicapLog (LastName, FirstName, Gender, Handicap, HomeCourseName) "
                        "VALUES (?, ?, ?, ?, ?)"),
         {last, first, gender.isEmpty() ? QVariant() : QVariant(gender), handicap, QString()});
}

void addCourse(Connection &c, const CourseSpec &s)
{
    Transaction unit(c);
    int parOut = 0, parIn = 0;
    for (int i = 0; i < s.pars.size(); ++i)
        (i < 9 ? parOut : parIn) += s.pars.at(i);
    Exec(c,
         QStringLiteral("INSERT INTO CourseLog (CourseName, Tees, OverallRating, FrontRating, BackRating, "
                        "OverallSlope, FrontSlope, BackSlope, YardsIn, YardsOut, TotalYards, ParIn, ParOut, "
                        "TotalPar) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
         {s.name, s.tees, s.overallRating, s.frontRating, s.backRating, s.overallSlope, s.frontSlope,
          s.backSlope, 3200, 3150, 6350, parIn, parOut, parIn + parOut});
    for (int i = 0; i < s.pars.size(); ++i)
        Exec(c,
             QStringLiteral("INSERT INTO CourseDetails (CourseName, Tees, Hole, PAR, Handicap, Yards) "
                            "VALUES (?, ?, ?, ?, ?, ?)"),
             {s.name, s.tees, i + 1, s.pars.at(i), i + 1, 350});
    unit.commit();
}

qint64 addRound(Connection &c, const RoundSpec &r)
{
    Exec(c,
         QStringLiteral(
             "INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, "
             "AdjustedScore, Rating, Slope, Type, Differential, Used, Details, Penalties, LostBalls, "
             "Bunkers, SandSaves, AttemptedSaves, CombinedIndex) "
             "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, -1, -1, -1, -1, -1, 1)"),
         {r.last, r.first, r.course, r.tees, IsoDate(r.date), r.holes, r.score, r.adjusted, r.rating, r.slope,
          r.type.isEmpty() ? QVariant() : QVariant(r.type), r.differential, r.used, r.details ? 1 : 0});
    return LastInsertId(c);
}

void addWeeklyRounds(Connection &c, const QString &last, const QString &firstName, const QDate &first,
                     const QVector<double> &differentials)
{
    Transaction unit(c);
    RoundSpec r;
    r.last = last;
    r.first = firstName;
    r.date = first;
    for (const double d : differentials) {
        r.differential = d;
        addRound(c, r);
        r.date = r.date.addDays(7);
    }
    unit.commit();
}

void addHoleScores(Connection &c, const RoundSpec &r, qint64 scoreIndex, int firstHole,
                   const QVector<int> &scores, const QVector<int> &pars)
{
    Transaction unit(c);
    for (int i = 0; i < scores.size(); ++i)
        Exec(c,
             QStringLiteral(
                 "INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, "
                 "Hole, Score, Putts, PAR, Fairway, GreenInRegulation) "
                 "VALUES (?, ?, ?, ?, ?, ?, ?, ?, 2, ?, -1, 0)"),
             {r.last, r.first, r.course, r.tees, IsoDate(r.date), scoreIndex, firstHole + i, scores.at(i),
              pars.at(i)});
    unit.commit();
}

void addSeason(Connection &c, const RoundSpec &r, int rounds)
{
    Transaction unit(c);
    const qint64 before = Scalar(c, QStringLiteral("SELECT COALESCE(MAX(ScoreIndex), 0) FROM ScoreLog")).toLongLong();
    Exec(c,
         QStringLiteral(
             "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i + 1 < ?) "
             "INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, AdjustedScore, "
             "Rating, Slope, Type, Differential, Used, Details, Penalties, LostBalls, Bunkers, SandSaves, "
             "AttemptedSaves, CombinedIndex) "
             "SELECT ?, ?, ?, ?, date('2000-01-01', '+' || i || ' days'), '18-holes', 80 + i % 17, 80 + i % 15, "
             "?, ?, substr('AHT', 1 + i % 3, 1), 8.0 + (i % 90) / 10.0, substr('NNNY', 1 + i % 4, 1), 1, "
             "i % 4 - 1, i % 3 - 1, i % 5 - 1, i % 2 - 1, i % 3 - 1, 1 FROM n"),
         {rounds, r.last, r.first, r.course, r.tees, r.rating, r.slope});
    Exec(c,
         QStringLiteral(
             "WITH RECURSIVE h(hole) AS (SELECT 1 UNION ALL SELECT hole + 1 FROM h WHERE hole < 18) "
             "INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, Hole, Score, "
             "Putts, PAR, Fairway, GreenInRegulation) "
             "SELECT s.LastName, s.FirstName, s.CourseName, s.Tees, s.Date, s.ScoreIndex, h.hole, "
             "3 + (s.ScoreIndex + h.hole) % 4, 1 + (s.ScoreIndex * h.hole) % 3, 4, h.hole % 3 - 1, "
             "(3 + (s.ScoreIndex + h.hole) % 4) - (1 + (s.ScoreIndex * h.hole) % 3) <= 2 "
             "FROM ScoreLog AS s, h WHERE s.ScoreIndex > ? ORDER BY s.ScoreIndex, h.hole"),
         {before});
    unit.commit();
}

QStringList columnValues(Connection &c, const QString &sql, const Params &params)
{
    QStringList out;
    Recordset rs = Query(c, sql, params);
    for (const QSqlRecord &row : rs.rows()) {
        QStringList cells;
        for (int i = 0; i < row.count(); ++i)
            cells << row.value(i).toString();
        out << cells.join(QLatin1Char('|'));
    }
    return out;
}

} // namespace quillon::test
