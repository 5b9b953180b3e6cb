#pragma once

#include "core/QuillonError.h"

#include <QString>
#include <QVariant>
#include <QVector>
#include <array>
#include <optional>

namespace quillon {

// The rules of the ultimate scorecard: the best score the golfer ever had on each hole of one set
// of tees.  No widgets and no database: the view reads the rows, hands them over and shows what
// comes back.

inline constexpr int kUltimateHoles = 18;

// The Score of each ScoreDetails row of one set of tees, by hole (index 0 is hole 1), the rows of a
// hole in the order they were stored.
using ScoresByHole = std::array<QVector<QVariant>, kUltimateHoles>;
// The captions of the par cells, as the card shows them (blank where the hole has no par).
using ParCaptions = std::array<QString, kUltimateHoles>;

// The best of one hole's scores: the first row's Score, then every lower one.  A tie changes
// nothing; a Null or empty score is passed over.  Stays Null when the first row's Score is Null.
QVariant BestScore(const QVector<QVariant> &scores);

// A stored number as a cell shows it ("4"); Null shows blank.
QString CellText(const QVariant &value);

// The caption of lblNumRounds for a hole's row count: "1 Round Played", "<n> Rounds Played";
// none (the label hidden) below 1.
std::optional<QString> RoundsPlayedText(int rows);

// How a pass over the holes ends, and which nine the card then clears.
enum class UltimateOutcome {
    BothNines, // nothing more to clear
    FrontOnly, // the back sum is 0: the back nine is cleared
    BackOnly,  // the front sum is 0: the front nine is cleared
    NoScores,  // both sums are 0: the golfer is told, and the pass is not Ok
};

struct UltimateHole {
    // The hole has rows: its cell shows `best`.  Otherwise the cell keeps what it showed.
    bool played = false;
    QString best;
    // Best minus par, for the colour; none where the pass stopped at this hole.
    std::optional<int> toPar;
};

// What one pass over the 18 holes leaves on the card.
struct UltimatePass {
    std::array<UltimateHole, kUltimateHoles> holes;
    // The row count of the last hole that has any: the label is rewritten at each hole, so it
    // counts rounds on that hole, not rounds on the course.  None when no hole has rows.
    std::optional<int> roundsPlayed;
    // Written after the loop; none when the pass stopped before.
    std::optional<qint16> out, in, total;
    UltimateOutcome outcome = UltimateOutcome::NoScores;
    // The fault that stopped the pass, a blank or non-numeric caption (13) or a sum out of the
    // 16-bit range (6).  What the holes before it show stands; later holes are untouched.
    std::optional<QuillonError> failure;

    bool ok() const { return !failure && outcome != UltimateOutcome::NoScores; }
};

// The best score of every hole, the nine sums and their total, and how the card ends.
UltimatePass BestScores(const ScoresByHole &scores, const ParCaptions &pars);

} // namespace quillon
