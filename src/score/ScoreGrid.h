#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace quillon {

// The sum of the nine score (or putts) boxes from index `from`, each read as a number and an
// empty box as 0, in a checked 16-bit integer.
qint16 NineScoreSum(const QStringList &boxes, int from);
// A sum as its box or caption shows it: blank below 1.
QString SumText(int sum);
// The total of the two nine boxes, as txtTotal takes it: blank unless above 0.
QString TotalOfNines(const QString &out, const QString &in);

// What the holes list of a set of tees offers, in order, and which item is chosen: 18 holes when
// the tees have an overall rating, else the first item (-1 when there is none).
struct HolesOffer {
    QStringList items;
    int chosen = -1;
};
// By the ratings of the tees, with a second chance for a nine that has hole rows but no rating.
HolesOffer HolesOffered(double overallRating, double frontRating, double backRating, bool hasHole1,
                        bool hasHole10);

// Which nines of the hole grid take entries for the holes played.
struct GridArrangement {
    bool front = false;
    bool back = false;
    bool nine = false; // a nine-hole arrangement: the total row goes
};
// `detailRows` is the number of CourseDetails rows of the tees; `hasHole1` and `hasHole11` whether
// the rows of those holes exist.  A back nine is looked for by hole 11, kept so: a course without
// that row offers no back-nine grid.
GridArrangement ArrangeGridFor(const QString &holes, int detailRows, bool hasHole1, bool hasHole11);

// The optional statistics keep each other consistent while typing: the boxes that take a new
// text when `box` changes to `text` (an empty box counts as 0).
enum class StatBox { Penalties, LostBalls, Bunkers, SandSaves, AttemptedSaves };
QHash<StatBox, QString> StatConsequences(StatBox box, const QString &text);

// The hole checks on leaving a box; empty when the box may be left.
QString ScoreBoxLeft(int index, const QString &score, const QString &putts);
QString PuttsBoxLeft(int index, const QString &score, const QString &putts);

} // namespace quillon
