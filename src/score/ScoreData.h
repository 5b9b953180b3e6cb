#pragma once

#include "ScoreEntry.h"
#include "store/basDatabase.h"

#include <QDate>
#include <QVariant>
#include <QVector>
#include <optional>

namespace quillon {

// What the hole data of a set of tees holds, for arranging the grid.
struct TeesHoles {
    int rows = 0;
    bool hole1 = false, hole10 = false, hole11 = false;
};
TeesHoles LoadTeesHoles(Connection &c, const QString &course, const QString &tees);

// The pars of the holes, index 0 for hole 1; a hole without a row keeps what `pars` held.
QVector<qint16> LoadHolePars(Connection &c, const QString &course, const QString &tees, QVector<qint16> pars);
// Whether each hole has a fairway to hit: not on a par 3, nor on a hole without a row.
QVector<bool> FairwayBoxes(Connection &c, const QString &course, const QString &tees);

// The ratings of a set of tees that decide which holes can be played; nothing when the tees
// are not there.
struct TeesRatings {
    double overall = 0, front = 0, back = 0;
};
std::optional<TeesRatings> LoadTeesRatings(Connection &c, const QString &course, const QString &tees);

// A stored round as the edit form shows it.
struct StoredRound {
    QString holes;
    QString type; // "A", "H", "T" or empty
    QString used;
    bool details = false;
    QVariant score;
    QVariant rating, slope;
    QStringList stats; // Penalties, LostBalls, Bunkers, SandSaves, AttemptedSaves; -1 as empty
};
std::optional<StoredRound> LoadRound(Connection &c, qint64 scoreIndex, const QString &last, const QString &first,
                                     const QString &course, const QString &tees, const QDate &date);
// The hole rows of a round, into the entry's score, putts and fairway marks.
void LoadHoleDetails(Connection &c, qint64 scoreIndex, const QString &last, const QString &first,
                     const QString &course, const QString &tees, const QDate &date, ScoreEntry &entry);

// The letter of a round type by its option index; empty for none.
QString TypeLetter(int type);
int TypeIndex(const QString &letter);

// The first stage of saving: the entered data.  A new round's row and its hole rows are added
// (AdjustedScore 1 stands by), and the ScoreIndex the database gave it is returned.
qint64 SaveNewScore(Connection &c, const QString &last, const QString &first, const ScoreEntry &entry,
                    bool details);
// An edited round: its hole rows of the holes played written (added where missing), and its
// score, details mark, statistics and type.
void SaveEditedScore(Connection &c, const QString &last, const QString &first, qint64 scoreIndex,
                     const ScoreEntry &entry, bool details);
// The second stage: Used by the exclude box, the home course for a Home round, then the
// adjusted score and the differential.  In edit mode the rating and slope are those the round
// was first saved with.
void FinishScore(Connection &c, const QString &last, const QString &first, qint64 scoreIndex,
                 const ScoreEntry &entry);

// The whole save of a round as the Save button does it, once the checks have passed: the first
// stage (new or edited), the second, then the handicap run, which reads the golfer's held rows
// again.  Returns the round's ScoreIndex.
qint64 SaveScore(Connection &c, const QString &last, const QString &first, qint64 scoreIndex, const ScoreEntry &entry,
                 bool details);

} // namespace quillon
