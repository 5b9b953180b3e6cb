#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace quillon {

// The texts and marks of the score form, as the rules read them.  Hole arrays have 18 entries,
// index 0 for hole 1.
struct ScoreEntry {
    bool editMode = false;
    QString course, tees, date, holes;
    int type = -1; // 0 Away, 1 Home, 2 Tournament; -1 none chosen
    bool exclude = false;
    QString totalScore;
    bool totalScoreVisible = true; // false while the grid carries the total
    QString penalties, lostBalls, bunkers, sandSaves, attemptedSaves;
    QStringList score = QStringList(18, QString());
    QStringList putts = QStringList(18, QString());
    QVector<bool> fairway = QVector<bool>(18, false);
    QVector<bool> fairwayShown = QVector<bool>(18, true);
    QString out, in, total;
};

} // namespace quillon
