#pragma once

#include <QString>
#include <QStringList>
#include <array>

namespace quillon {

class Connection;

inline constexpr int kCardHoles = 18;

// What a printed scorecard holds beyond its fixed captions and lines: each text as its label
// shows it, blank where the card stays blank for the pen.
struct ScorecardData {
    // The names stand only on a card whose tees have hole rows.
    QString course, tees;
    // "<rating> / <slope>" as stored, where the rating is above 0.
    QString frontRating, backRating, overallRating;
    // From CourseLog, where not 0.
    QString outPar, inPar, totalPar;
    // By hole number, 1 to 18 (index 0 stays blank), as the card's label arrays count.
    std::array<QString, kCardHoles + 1> distance, par, handicap, fairway;
    // Summed from the holes, where above 0.
    QString outDistance, inDistance, totalDistance;
    // False when the tees have no hole rows: the card then holds ratings and par sums only.
    bool holesFound = false;
};

// The courses a card can be printed for: those with hole rows, in name order.
QStringList CoursesWithHoles(Connection &c);
// Whether a set of tees has any hole rows.
bool TeesHaveHoles(Connection &c, const QString &course, const QString &tees);

// The card of a course and tees as the database holds them.  A stored value that is not a
// number prints as nothing and counts nothing.  The distance sums are 16-bit counters: a sum
// beyond their range fails with Overflow.
ScorecardData ReadScorecard(Connection &c, const QString &course, const QString &tees);

// What the user is told when the tees have no hole rows; the card prints all the same.
QString IncompleteDetailsMessage(const QString &course, const QString &tees);

} // namespace quillon
