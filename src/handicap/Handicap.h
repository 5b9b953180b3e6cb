#pragma once

#include "store/Recordset.h"

#include <QString>

namespace quillon {

// HandicapLog.Handicap of a golfer who has no handicap yet.
inline constexpr float kNoHandicap = -1000.0f;

// Rebuilds the current golfer's scoring record, marks the differentials used and
// publishes the handicap index.  Works on basLogGlobals(); takes and returns nothing.
// A database fault or a division by zero throws QuillonError and leaves the
// previous record, marks and handicap as they were.
void ComputeHandicap();

// The steps of ComputeHandicap, each usable on its own.
void BuildScoringRecord();
void MarkUsedScores(qint16 &count, Recordset &records);
float AverageDifferentials();
void PublishHandicap(float value);
// The "Handicap" panel and the course handicap calculator item for an index (or kNoHandicap).
void ShowHandicap(float value);

// How many differentials count for a number of scores in the record.
qint16 DifferentialsUsed(int scores);

} // namespace quillon
