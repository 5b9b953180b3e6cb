#pragma once

#include "store/basDatabase.h"

#include <QDate>
#include <QString>
#include <QVector>
#include <optional>

namespace quillon::test {

// One golfer row; handicap -1000 means none yet, an empty gender is stored as Null.
void addGolfer(Connection &c, const QString &last, const QString &first, const QString &gender = "M",
               double handicap = -1000.0);

struct CourseSpec {
    QString name = QStringLiteral("Pebble Creek");
    QString tees = QStringLiteral("White");
    double overallRating = 71.5, frontRating = 35.7, backRating = 35.8;
    int overallSlope = 125, frontSlope = 124, backSlope = 126;
    QVector<int> pars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};
};
// A set of tees with its 18 holes in CourseDetails.
void addCourse(Connection &c, const CourseSpec &spec = {});

struct RoundSpec {
    QString last = QStringLiteral("Palmer");
    QString first = QStringLiteral("Arnold");
    QString course = QStringLiteral("Pebble Creek");
    QString tees = QStringLiteral("White");
    QDate date = QDate(2026, 1, 1);
    QString holes = QStringLiteral("18-holes");
    int score = 90;
    int adjusted = 90;
    double rating = 71.5;
    int slope = 125;
    QString type = QStringLiteral("A"); // empty: Null
    double differential = 16.6;
    QString used = QStringLiteral("N");
    bool details = false;
};
// One ScoreLog row; returns the ScoreIndex the database gave it.
qint64 addRound(Connection &c, const RoundSpec &r);
// Rounds of a golfer a week apart from `first`, one a differential, in one transaction.
void addWeeklyRounds(Connection &c, const QString &last, const QString &firstName, const QDate &first,
                     const QVector<double> &differentials);
// ScoreDetails rows of a round: scores[i] on hole firstHole + i, with the given pars.
void addHoleScores(Connection &c, const RoundSpec &r, qint64 scoreIndex, int firstHole,
                   const QVector<int> &scores, const QVector<int> &pars);

// A season of `rounds` 18-hole rounds of a golfer on one set of tees, a day apart from 1 January
// 2000, each with its 18 holes, written set by set so that large databases are made quickly.
void addSeason(Connection &c, const RoundSpec &r, int rounds);

// Column values of every row of a query, as text, for compact assertions.
QStringList columnValues(Connection &c, const QString &sql, const Params &params = {});

} // namespace quillon::test
