#pragma once

#include "core/Int16.h"

#include <QDate>
#include <QtGlobal>

namespace quillon {

// The day that marks a record no round has set (the date value 1.0, 12/31/1899).
inline QDate NoRecordDate()
{
    return QDate(1899, 12, 31);
}

// What one walk over a golfer's rounds adds up: the accumulator the statistics screen shows.
// Counters of the Int16 kind raise an overflow when they leave the signed 16-bit range; the
// plain counters grow as needed.  Start values are those InitStatistics gives.
struct GolferStatistics {
    // Set by any walked round with details; InitStatistics leaves it alone.
    bool HasDetails = false;

    qint64 PenaltyRounds9 = 0, PenaltyRounds18 = 0;
    qint64 LostBallRounds9 = 0, LostBallRounds18 = 0;
    qint64 BunkerRounds9 = 0, BunkerRounds18 = 0;
    qint64 SandSaveHoles = 0, AttemptedSaveHoles = 0;

    Int16 Best18 = 1000, Worst18 = 0;
    Int16 TotalPenalties, Penalties9, Penalties18;
    Int16 TotalLostBalls, LostBalls9, LostBalls18;
    Int16 Broke100, Broke90, Broke80, Broke70;
    Int16 TotalBunkers, Bunkers9, Bunkers18;
    Int16 TotalSandSaves, TotalAttemptedSaves;
    Int16 Total18Score;
    // Counted by the walk's first pass, before InitStatistics, which leaves them alone.
    Int16 Rounds18, RoundsFront9, RoundsBack9;
    Int16 DetailHoles;
    Int16 DetailRounds18, DetailRoundsFront9, DetailRoundsBack9;
    Int16 Putts18, PuttsOnGreensInReg, PuttsFront9, PuttsBack9;
    Int16 BestFront9 = 1000, WorstFront9 = 0, BestBack9 = 1000, WorstBack9 = 0;
    Int16 Broke40Front, Broke40Back;
    Int16 TotalFront9Score, TotalBack9Score;
    Int16 OnePutts, TwoPutts, ThreePutts, ChipIns;
    Int16 LowPuttsBack = 1000, LowPuttsFront = 1000, LowPutts18 = 1000;
    Int16 FairwaysHit, GreensInReg;
    Int16 PuttRun, BestPuttRun;
    Int16 TotalTripleBogeys, TotalDoubleBogeys;
    Int16 TotalBogeys, Bogeys9, Bogeys18;
    Int16 TotalPars, Pars9, Pars18;
    Int16 TotalBirdies, Birdies9, Birdies18;
    Int16 TotalEagles, TotalOthers;
    Int16 Par3Birdies, Par4Birdies, Par5Birdies;
    Int16 Par3Pars, Par4Pars, Par5Pars;
    Int16 Par3Bogeys, Par4Bogeys, Par5Bogeys;
    Int16 Par3Strokes, Par4Strokes, Par5Strokes;
    Int16 Par3Holes, Par4Holes, Par5Holes;
    Int16 MostSubPars9, MostPars9, MostAbovePars9;
    Int16 MostSubPars18, MostPars18, MostAbovePars18;
    Int16 StrokeRun, BestStrokeRun;
    Int16 FairwaysPossible;
    Int16 ParBreakers;
    Int16 Par3Performance;
    Int16 Scrambles, GreensMissed;
    Int16 BirdieConversions, BounceBacks;
    Int16 Par3Putts, Par4Putts, Par5Putts;
    float BestFairwaysPct = 0;
    QDate BestFairwaysDate = NoRecordDate();
    float BestGreensPct = 0;
    QDate BestGreensDate = NoRecordDate();
    QDate MostSubPars9Date = NoRecordDate(), MostPars9Date = NoRecordDate(), MostAbovePars9Date = NoRecordDate();
    QDate MostSubPars18Date = NoRecordDate(), MostPars18Date = NoRecordDate(), MostAbovePars18Date = NoRecordDate();
};

// Every field to its start value, but HasDetails and the three round counters.
void InitStatistics(GolferStatistics &s);

} // namespace quillon
