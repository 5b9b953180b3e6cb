#pragma once

#include <QString>
#include <QVector>
#include <optional>

namespace quillon {

// One hole of a round as the details view shows it: the texts of its score and putts labels,
// the par of the course's row (none without a row), and the fairway mark.
struct DetailHole {
    QString score;
    QString putts;
    std::optional<int> par;
    bool fairway = false;
};

// The derived numbers of a round.  A text that could not be computed (a percentage over no
// hole with a par) is empty in `has...` terms: its label keeps what it held.
struct RoundStatistics {
    int putts = 0;
    int chipIns = 0, onePutts = 0, twoPutts = 0, threePlusPutts = 0;
    int eagles = 0, birdies = 0, pars = 0, bogeys = 0, doubleBogeys = 0, tripleBogeys = 0, others = 0;
    std::optional<QString> greens;   // "##0.0%" over the holes with a par of 3, 4 or 5
    QString fairways;                // "##0.0%" over the par 4 and 5 holes, or "N/A"
    QString avgPar3, avgPar4, avgPar5; // "##0.0"; 0 without such a hole
};

// The numbers over the holes that have a score, 18 entries, index 0 for hole 1.
RoundStatistics ComputeRoundStatistics(const QVector<DetailHole> &holes);

} // namespace quillon
