#pragma once

#include "HandicapModel.h"
#include "store/basDatabase.h"

#include <optional>
#include <vector>

namespace quillon::test {

// A golfer with a random history: 0 to 45 rounds over two years or a few weeks, 18- and 9-hole
// rounds in a mix of the golfer's own, the three types and a few without one,
// about one round in ten excluded, repeated days, equal and negative differentials,
// and stale marks from an imagined earlier run.  The same seed gives the same golfer.
struct GeneratedGolfer {
    QString last;
    QString first;
    std::optional<QString> gender; // nullopt: Null, asked on the first run that reaches five scores
    QString answer;                // what the golfer answers when asked
    double previousHandicap = -1000.0;
    std::vector<model::Round> rounds; // ScoreIndex filled in by StoreGolfer
};

GeneratedGolfer GenerateGolfer(quint32 seed, int number);

// Writes the golfer's HandicapLog row and rounds, in the generated order, and
// fills in the ScoreIndex each round received.
void StoreGolfer(Connection &c, GeneratedGolfer &g);

// Writes the rounds of `g` a second time for another golfer, interleaved so that
// both keep the same order of ScoreIndex; returns the copy.
GeneratedGolfer StoreTwin(Connection &c, GeneratedGolfer &g, const QString &last, const QString &first);

} // namespace quillon::test
