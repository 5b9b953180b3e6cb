#include "Fixtures.h"
#include "TestApp.h"
#include "TestPrinting.h"
#include "core/DateText.h"
#include "stats/StatisticsDisplay.h"
#include "stats/StatisticsWalk.h"

#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

struct Hole {
    int score, putts, fairway; // fairway -1 on a par 3
};

// A season of five rounds over two years on one par-72 card:
//  R1 2025-06-01 front nine, details: 4 3 3 5 5 4 3 4 7 (38), putts 2 1 2 2 2 2 1 2 2, fairways 4 of 7,
//     greens on 1 2 3 4 6 8; statistics penalties 1, lost balls 0, bunkers 2, sand saves 1, attempted 1.
//  R2 2025-07-01 18 holes, details: 5 3 3 5 4 4 2 4 5 | 4 1 3 5 4 5 3 4 6 (70), a hole-in-one on the
//     par-4 11th, a birdie straight after the bogey on 1 (a bounce back), putts 2 except 1 on 7, 0 on
//     11 and 3 on 18; fairways 8 of 14; greens missed on 1 and 15 only; no statistics.
//  R3 2026-04-01 18 holes, no details, 85; penalties 2, lost balls 1, bunkers 3, sand saves 0, attempted 1.
//  R4 2026-05-01 back nine, no details, 41; no statistics.
//  R5 2026-06-01 18 holes, details: par on every hole with two putts, every fairway and green (72).
// The putt run goes 9 holes on R1 and 17 more on R2 before its three-putt: 26 across two rounds.
class AGolfersSeason : public ::testing::Test {
protected:
    void SetUp() override
    {
        addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
        addCourse(app.db(), CourseSpec{});
        round(QDate(2025, 6, 1), QStringLiteral("9-holes (front)"), 38, {1, 0, 2, 1, 1}, 1,
              {{4, 2, 1}, {3, 1, 1}, {3, 2, -1}, {5, 2, 0}, {5, 2, 0}, {4, 2, 1}, {3, 1, -1}, {4, 2, 1}, {7, 2, 0}});
        round(QDate(2025, 7, 1), QStringLiteral("18-holes"), 70, {-1, -1, -1, -1, -1}, 1,
              {{5, 2, 0}, {3, 2, 1}, {3, 2, -1}, {5, 2, 1}, {4, 2, 1}, {4, 2, 0}, {2, 1, -1}, {4, 2, 1}, {5, 2, 0},
               {4, 2, 1}, {1, 0, 1}, {3, 2, -1}, {5, 2, 0}, {4, 2, 1}, {5, 2, 0}, {3, 2, -1}, {4, 2, 1}, {6, 3, 0}});
        round(QDate(2026, 4, 1), QStringLiteral("18-holes"), 85, {2, 1, 3, 0, 1}, 1, {});
        round(QDate(2026, 5, 1), QStringLiteral("9-holes (back)"), 41, {-1, -1, -1, -1, -1}, 10, {});
        QVector<Hole> pars;
        for (int par : kPars)
            pars.append({par, 2, par == 3 ? -1 : 1});
        round(QDate(2026, 6, 1), QStringLiteral("18-holes"), 72, {-1, -1, -1, -1, -1}, 1, pars);
    }

    // A round with its statistics (penalties, lost balls, bunkers, sand saves, attempted saves) and,
    // when holes are given, its hole rows from `firstHole` on; the green mark follows the rule of
    // score entry: strokes less putts at most par less 2.
    void round(const QDate &date, const QString &holes, int score, const QVector<int> &stats, int firstHole,
               const QVector<Hole> &rows)
    {
        RoundSpec r;
        r.date = date;
        r.holes = holes;
        r.score = r.adjusted = score;
        r.details = !rows.isEmpty();
        const qint64 index = addRound(app.db(), r);
        Exec(app.db(),
             QStringLiteral("UPDATE ScoreLog SET Penalties = ?, LostBalls = ?, Bunkers = ?, SandSaves = ?, "
                            "AttemptedSaves = ? WHERE ScoreIndex = ?"),
             {stats[0], stats[1], stats[2], stats[3], stats[4], index});
        for (int k = 0; k < rows.size(); ++k) {
            const int hole = firstHole + k;
            const int par = kPars.at(hole - 1);
            const Hole &h = rows.at(k);
            Exec(app.db(),
                 QStringLiteral("INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, "
                                "Hole, Score, Putts, PAR, Fairway, GreenInRegulation) "
                                "VALUES ('Palmer', 'Arnold', 'Pebble Creek', 'White', ?, ?, ?, ?, ?, ?, ?, ?)"),
                 {IsoDate(date), index, hole, h.score, h.putts, par, h.fairway, h.score - h.putts <= par - 2 ? 1 : 0});
        }
    }

    TestApp app;
};

} // namespace

TEST_F(AGolfersSeason, EveryMeasureOfTheFivePages)
{
    GolferStatistics stats;
    const WalkOutcome outcome = CalculateStatistics(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"),
                                                    false, QDate(2026, 11, 22), stats);
    ASSERT_TRUE(outcome.ran);
    EXPECT_TRUE(outcome.yearBoxEnabled);
    const StatisticsTexts texts = DisplayStatistics(stats);
    EXPECT_TRUE(texts.pagesWithDetails);

    // 45 holes with details: 9 + 18 + 18.  Eagles 0, birdies 3 (R1 2nd; R2 2nd and 7th), pars 36,
    // bogeys 4 (R1 5th; R2 1st, 15th, 18th), double bogeys 1 (R1 9th), others 1 (the ace).
    const QHash<QString, QString> expected = {
        // Accuracy
        {"lblFairwaysInRegPercentage", "74.3%"},   // 4 + 8 + 14 = 26 of 7 + 14 + 14 = 35
        {"lblGreensInRegPercentage", "88.9%"},     // 6 + 16 + 18 = 40 of 45
        {"lblTotalPenalties", "3"},                // 1 + 2
        {"lblAvgPenalties9", "1.0"},               // 1 / 1
        {"lblAvgPenalties18", "2.0"},              // 2 / 1
        {"lblTotalLostBalls", "1"},                // 0 + 1
        {"lblAvgLostBalls9", "0.0"},               // 0 / 1
        {"lblAvgLostBalls18", "1.0"},              // 1 / 1
        {"lblTotalBunkers", "5"},                  // 2 + 3
        {"lblAverageBunkers9", "2.0"},             // 2 / 1
        {"lblAverageBunkers18", "3.0"},            // 3 / 1
        {"lblAttemptedSandSavePercentage", "40.0%"}, // 2 attempted of 5 bunker shots
        {"lblSandSavePercentage", "50.0%"},        // 1 save of 2 attempted
        {"lblBestGRPercentage", "100.0%"},         // R5: 18 of 18
        {"lblBestGRDate", "6/1/2026"},
        {"lblBestFairwaysPercentage", "100.0%"},   // R5: 14 of 14
        {"lblBestFairwaysDate", "6/1/2026"},
        // Putting
        {"lblAvgFront9Putts", "17.0"},             // 16 + 17 + 18 = 51 over 2 + 1 rounds
        {"lblLowPuttsFront", "16"},                // R1
        {"lblAvg18HolePutts", "35.0"},             // 34 + 36 = 70 over 2
        {"lblAvgPuttsPerHole", "1.9"},             // 70 / 36 = 1.94
        {"lblLowPutts18", "34"},                   // R2
        {"lblOnePuttsPercentage", "6.7%"},         // 3 of 45
        {"lblTwoPuttsPercentage", "88.9%"},        // 40 of 45
        {"lblThreePuttsPercentage", "2.2%"},       // 1 of 45
        {"lblChipInsPercentage", "2.2%"},          // the ace
        {"lblConsecutivePutts", "26"},             // 9 on R1 and 17 on R2
        {"lblPar3Putts", "1.8"},                   // 3 + 7 + 8 = 18 over 10 par 3s
        {"lblPar4Putts", "1.9"},                   // 9 + 18 + 20 = 47 over 25 par 4s = 1.88
        {"lblPar5Putts", "2.1"},                   // 4 + 9 + 8 = 21 over 10 par 5s
        {"lblAvgPuttsGR", "1.9"},                  // 11 + 30 + 36 = 77 over 40 greens = 1.925
        // Scoring
        {"lbl18HoleRoundsPlayed", "3"},
        {"lbl9HoleRoundsPlayed", "2"},
        {"lblBest18HoleScore", "70"},
        {"lblWorst18HoleScore", "85"},
        {"lblBestFrontScore", "35"},               // R2's front nine beats R1's 38
        {"lblWorstFrontScore", "38"},
        {"lblBroke40Front", "3"},                  // 38, 35, 36
        {"lblBestBackScore", "35"},                // R2's back nine
        {"lblWorstBackScore", "41"},               // R4
        {"lblBroke40Back", "2"},                   // 35, 36
        {"lblBroke40FrontPercentage", "100.0%"},   // 3 of 1 + 2
        {"lblStrokeAvgFront", "36.3"},             // 38 + 35 + 36 = 109 over 3
        {"lblBroke40BackPercentage", "66.7%"},     // 2 of 1 + 2
        {"lblStrokeAvgBack", "37.3"},              // 35 + 41 + 36 = 112 over 3
        {"lblBroke100", "3"},
        {"lblBroke90", "3"},
        {"lblBroke80", "2"},                       // 70 and 72
        {"lblBroke70", "0"},                       // 70 is not under 70
        {"lblBroke100Percentage", "100.0%"},
        {"lblBroke90Percentage", "100.0%"},
        {"lblBroke80Percentage", "66.7%"},
        {"lblBroke70Percentage", "0.0%"},
        {"lblStrokeAvg18", "75.7"},                // 70 + 85 + 72 = 227 over 3
        // Hole-by-Hole
        {"lblSubParHoles9", "1"},
        {"lblMostSubPars9Date", "6/1/2025"},
        {"lblMostPars9", "6"},
        {"lblMostPars9Date", "6/1/2025"},
        {"lblAboveParHoles9", "2"},
        {"lblMostAbovePars9Date", "6/1/2025"},
        {"lblSubParHoles18", "3"},                 // R2: birdies on 2 and 7, the ace
        {"lblMostSubPars18Date", "7/1/2025"},
        {"lblMostPars18", "18"},                   // R5
        {"lblMostPars18Date", "6/1/2026"},
        {"lblAboveParHoles18", "3"},               // R2
        {"lblMostAbovePars18Date", "7/1/2025"},
        {"lblConsecutiveStrokes", "36"},           // all of R2 and R5
        {"lblPar3StrokeAvg", "2.9"},               // 6 + 11 + 12 = 29 over 10
        {"lblPar4StrokeAvg", "3.9"},               // 20 + 38 + 40 = 98 over 25 = 3.92
        {"lblPar5StrokeAvg", "5.3"},               // 12 + 21 + 20 = 53 over 10
        {"lblScrambling", "20.0%"},                // par on R1's 7th of 5 greens missed
        {"lblBounceBack", "1"},                    // R2: bogey on 1, birdie on 2
        {"lblBirdieConversion", "7.5%"},           // 3 birdies on greens of 40
        {"lblParBreakers", "8.9%"},                // 4 of 45
        {"lblPar3Performance", "-1"},              // R2's 2 on the 7th
        // Overall Totals
        {"lblTotalEagles", "0"},
        {"lblTotalBirdies", "3"},
        {"lblTotalPars", "36"},
        {"lblTotalBogeys", "4"},
        {"lblTotalDoubleBogeys", "1"},
        {"lblTotalTripleBogeys", "0"},
        {"lblTotalOthers", "1"},
        {"lblEaglePercentage", "0.0%"},
        {"lblBirdiePercentage", "6.7%"},
        {"lblParPercentage", "80.0%"},
        {"lblBogeyPercentage", "8.9%"},
        {"lblDoubleBogeyPercentage", "2.2%"},
        {"lblTripleBogeyPercentage", "0.0%"},
        {"lblOtherPercentage", "2.2%"},
        {"lblAvgBirdies9", "1.0"},                 // 1 over the one nine with details
        {"lblAvgBirdies18", "1.0"},                // 2 over 2
        {"lblAvgPars9", "6.0"},
        {"lblAvgPars18", "15.0"},                  // 12 + 18 over 2
        {"lblAvgBogeys9", "1.0"},
        {"lblAvgBogeys18", "1.5"},                 // 3 over 2
        {"lblPar3BogeyPercentage", "0.0%"},
        {"lblPar3ParPercentage", "90.0%"},         // 2 + 3 + 4 of 10
        {"lblPar3BirdiePercentage", "10.0%"},
        {"lblPar4BogeyPercentage", "12.0%"},       // 1 + 2 of 25
        {"lblPar4ParPercentage", "76.0%"},         // 3 + 6 + 10 of 25
        {"lblPar4BirdiePercentage", "8.0%"},       // 1 + 1 of 25
        {"lblPar5BogeyPercentage", "10.0%"},
        {"lblPar5ParPercentage", "80.0%"},         // 1 + 3 + 4 of 10
        {"lblPar5BirdiePercentage", "0.0%"},
    };
    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        EXPECT_EQ(texts.labels.value(it.key(), QStringLiteral("(not written)")), it.value()) << it.key().toStdString();
    // The back-nine putting measures need a back nine with details, which this golfer has not.
    EXPECT_FALSE(texts.labels.contains(QStringLiteral("lblAvgBack9Putts")));
    EXPECT_FALSE(texts.labels.contains(QStringLiteral("lblLowPuttsBack")));
    EXPECT_EQ(texts.labels.size(), expected.size());
}

TEST_F(AGolfersSeason, TheCurrentYearAloneHasOneDetailedRound)
{
    GolferStatistics stats;
    const WalkOutcome outcome = CalculateStatistics(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"),
                                                    true, QDate(2026, 11, 22), stats);
    ASSERT_TRUE(outcome.ran);
    const StatisticsTexts texts = DisplayStatistics(stats);
    EXPECT_EQ(texts.labels.value("lbl18HoleRoundsPlayed"), QStringLiteral("2"));   // R3 and R5
    EXPECT_EQ(texts.labels.value("lbl9HoleRoundsPlayed"), QStringLiteral("1"));    // R4
    EXPECT_EQ(texts.labels.value("lblTotalPars"), QStringLiteral("18"));
    EXPECT_EQ(texts.labels.value("lblConsecutivePutts"), QStringLiteral("18"));
    EXPECT_FALSE(texts.labels.contains(QStringLiteral("lblBestFrontScore"))) << "no front nine this year";
    EXPECT_EQ(texts.labels.value("lblStrokeAvgFront"), QStringLiteral("36.0")) << "R5's front nine alone";
    EXPECT_EQ(texts.labels.value("lblBounceBack"), QStringLiteral("0")) << "R2's bounce back was last year";
    EXPECT_EQ(texts.labels.value("lblTotalPenalties"), QStringLiteral("2"));
}
