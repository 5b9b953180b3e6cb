#include "stats/StatisticsDisplay.h"

#include "TestPrinting.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace quillon;

namespace {

// A label's expected text, or nullptr where the label must stay out of the map.
struct Expected {
    const char *label;
    const char *text;
};

// Checks each listed label and that nothing else was written.
void ExpectTexts(const StatisticsTexts &texts, std::initializer_list<Expected> expected)
{
    QSet<QString> listed;
    for (const Expected &e : expected) {
        const QString label = QString::fromLatin1(e.label);
        EXPECT_FALSE(listed.contains(label)) << "listed twice: " << e.label;
        listed.insert(label);
        if (e.text) {
            ASSERT_TRUE(texts.labels.contains(label)) << e.label;
            EXPECT_EQ(texts.labels.value(label), QString::fromUtf8(e.text)) << e.label;
        } else {
            EXPECT_FALSE(texts.labels.contains(label))
                << e.label << " holds " << texts.labels.value(label).toStdString();
        }
    }
    for (auto it = texts.labels.cbegin(); it != texts.labels.cend(); ++it)
        EXPECT_TRUE(listed.contains(it.key())) << "written but not expected: " << it.key().toStdString();
}

// A golfer with details: three 18-hole rounds, two front and one back nine with details,
// 81 holes in all; eight 18-hole, four front and three back rounds in the score log.
GolferStatistics Season()
{
    GolferStatistics s;
    s.HasDetails = true;
    s.Rounds18 = 8;
    s.RoundsFront9 = 4;
    s.RoundsBack9 = 3;
    s.DetailRounds18 = 3;
    s.DetailRoundsFront9 = 2;
    s.DetailRoundsBack9 = 1;
    s.DetailHoles = 81;

    s.FairwaysHit = 25;
    s.FairwaysPossible = 40;
    s.GreensInReg = 20;
    s.GreensMissed = 61;
    s.PenaltyRounds9 = 3;
    s.PenaltyRounds18 = 4;
    s.TotalPenalties = 17;
    s.Penalties9 = 5;
    s.Penalties18 = 12;
    s.LostBallRounds9 = 0;
    s.LostBallRounds18 = 2;
    s.TotalLostBalls = 3;
    s.LostBalls18 = 3;
    s.BunkerRounds9 = 2;
    s.BunkerRounds18 = 5;
    s.TotalBunkers = 24;
    s.Bunkers9 = 5;
    s.Bunkers18 = 19;
    s.SandSaveHoles = 72;
    s.AttemptedSaveHoles = 90;
    s.TotalAttemptedSaves = 9;
    s.TotalSandSaves = 4;
    s.BestGreensPct = 7.0f / 9.0f;
    s.BestGreensDate = QDate(2024, 6, 15);
    s.BestFairwaysPct = 9.0f / 14.0f;
    s.BestFairwaysDate = QDate(2023, 9, 3);

    s.PuttsFront9 = 82;
    s.LowPuttsFront = 14;
    s.PuttsBack9 = 66;
    s.LowPuttsBack = 15;
    s.Putts18 = 100;
    s.LowPutts18 = 31;
    s.OnePutts = 18;
    s.TwoPutts = 45;
    s.ThreePutts = 12;
    s.ChipIns = 6;
    s.PuttRun = 4;
    s.BestPuttRun = 23;
    s.Par3Holes = 16;
    s.Par4Holes = 50;
    s.Par5Holes = 15;
    s.Par3Putts = 29;
    s.Par4Putts = 96;
    s.Par5Putts = 31;
    s.PuttsOnGreensInReg = 37;

    s.Best18 = 84;
    s.Worst18 = 103;
    s.BestFront9 = 38;
    s.WorstFront9 = 52;
    s.Broke40Front = 2;
    s.BestBack9 = 40;
    s.WorstBack9 = 49;
    s.Broke40Back = 0;
    s.TotalFront9Score = 307;
    s.TotalBack9Score = 269;
    s.Broke100 = 7;
    s.Broke90 = 3;
    s.Broke80 = 0;
    s.Broke70 = 0;
    s.Total18Score = 737;

    s.MostSubPars9 = 2;
    s.MostSubPars9Date = QDate(2024, 5, 4);
    s.MostPars9 = 5;
    s.MostPars9Date = QDate(2024, 7, 21);
    s.MostAbovePars9 = 0; // its date stays at day 1
    s.MostSubPars18 = 3;
    s.MostSubPars18Date = QDate(2023, 8, 12);
    s.MostPars18 = 9;
    s.MostPars18Date = QDate(2024, 10, 1);
    s.MostAbovePars18 = 11;
    s.MostAbovePars18Date = QDate(2023, 4, 30);
    s.StrokeRun = 5;
    s.BestStrokeRun = 27;
    s.Par3Strokes = 55;
    s.Par4Strokes = 236;
    s.Par5Strokes = 88;
    s.Scrambles = 13;
    s.BounceBacks = 4;
    s.BirdieConversions = 3;
    s.ParBreakers = 8;
    s.Par3Performance = 7;

    s.TotalEagles = 1;
    s.TotalBirdies = 6;
    s.TotalPars = 30;
    s.TotalBogeys = 27;
    s.TotalDoubleBogeys = 11;
    s.TotalTripleBogeys = 4;
    s.TotalOthers = 2;
    s.Birdies9 = 2;
    s.Birdies18 = 4;
    s.Pars9 = 10;
    s.Pars18 = 20;
    s.Bogeys9 = 9;
    s.Bogeys18 = 18;
    s.Par3Bogeys = 6;
    s.Par3Pars = 5;
    s.Par3Birdies = 1;
    s.Par4Bogeys = 17;
    s.Par4Pars = 20;
    s.Par4Birdies = 3;
    s.Par5Bogeys = 4;
    s.Par5Pars = 5;
    s.Par5Birdies = 2;
    return s;
}

} // namespace

TEST(StatisticsDisplay, EveryMeasureOfTheFiveTablesForOneRecord)
{
    const StatisticsTexts texts = DisplayStatistics(Season());
    EXPECT_TRUE(texts.pagesWithDetails);
    ExpectTexts(texts,
                {
                    // Accuracy
                    {"lblFairwaysInRegPercentage", "62.5%"}, // 25 / 40 = 0.625
                    {"lblGreensInRegPercentage", "24.7%"},   // 20 / 81 = 0.24691
                    {"lblTotalPenalties", "17"},             // both kinds of rounds have penalties
                    {"lblAvgPenalties9", "1.7"},             // 5 / 3 = 1.667
                    {"lblAvgPenalties18", "3.0"},            // 12 / 4
                    {"lblTotalLostBalls", "3"},              // only 18-hole rounds have lost balls
                    {"lblAvgLostBalls9", nullptr},           // LostBallRounds9 = 0
                    {"lblAvgLostBalls18", "1.5"},            // 3 / 2
                    {"lblTotalBunkers", "24"},
                    {"lblAverageBunkers9", "2.5"},               // 5 / 2
                    {"lblAverageBunkers18", "3.8"},              // 19 / 5
                    {"lblAttemptedSandSavePercentage", "37.5%"}, // 9 / 24 = 0.375
                    {"lblSandSavePercentage", "44.4%"},          // 4 / 9 = 0.4444
                    {"lblBestGRPercentage", "77.8%"},            // 7/9 in single precision, x100 = 77.77778
                    {"lblBestGRDate", "6/15/2024"},
                    {"lblBestFairwaysPercentage", "64.3%"}, // 9/14 in single precision, x100 = 64.28571
                    {"lblBestFairwaysDate", "9/3/2023"},
                    // Putting
                    {"lblAvgFront9Putts", "16.4"}, // 82 / (3 + 2)
                    {"lblLowPuttsFront", "14"},
                    {"lblAvgBack9Putts", "16.5"}, // 66 / (3 + 1)
                    {"lblLowPuttsBack", "15"},
                    {"lblAvg18HolePutts", "33.3"}, // 100 / 3 = 33.33
                    {"lblAvgPuttsPerHole", "1.9"}, // 100 / (3 * 18) = 1.852
                    {"lblLowPutts18", "31"},
                    {"lblOnePuttsPercentage", "22.2%"},   // 18 / 81 = 0.2222
                    {"lblTwoPuttsPercentage", "55.6%"},   // 45 / 81 = 0.5556
                    {"lblThreePuttsPercentage", "14.8%"}, // 12 / 81 = 0.1481
                    {"lblChipInsPercentage", "7.4%"},     // 6 / 81 = 0.0741
                    {"lblConsecutivePutts", "23"},        // the best run, not the current one (4)
                    {"lblPar3Putts", "1.8"},              // 29 / 16 = 1.8125
                    {"lblPar4Putts", "1.9"},              // 96 / 50 = 1.92
                    {"lblPar5Putts", "2.1"},              // 31 / 15 = 2.067
                    {"lblAvgPuttsGR", "1.9"},             // 37 / 20 = 1.85, the half rounds away from zero
                    // Scoring
                    {"lbl18HoleRoundsPlayed", "8"},
                    {"lbl9HoleRoundsPlayed", "7"}, // 4 + 3
                    {"lblBest18HoleScore", "84"},
                    {"lblWorst18HoleScore", "103"},
                    {"lblBestFrontScore", "38"},
                    {"lblWorstFrontScore", "52"},
                    {"lblBroke40Front", "2"},
                    {"lblBestBackScore", "40"},
                    {"lblWorstBackScore", "49"},
                    {"lblBroke40Back", "0"},
                    {"lblBroke40FrontPercentage", "28.6%"}, // 2 / (4 + 3) = 0.2857
                    {"lblStrokeAvgFront", "43.9"},          // 307 / (4 + 3) = 43.857
                    {"lblBroke40BackPercentage", "0.0%"},   // 0 / (3 + 3)
                    {"lblStrokeAvgBack", "44.8"},           // 269 / (3 + 3) = 44.833
                    {"lblBroke100", "7"},
                    {"lblBroke90", "3"},
                    {"lblBroke80", "0"},
                    {"lblBroke70", "0"},
                    {"lblBroke100Percentage", "87.5%"}, // 7 / 8
                    {"lblBroke90Percentage", "37.5%"},  // 3 / 8
                    {"lblBroke80Percentage", "0.0%"},   // 0 / 8
                    {"lblBroke70Percentage", "0.0%"},
                    {"lblStrokeAvg18", "92.1"}, // 737 / 8 = 92.125
                    // Hole-by-Hole
                    {"lblSubParHoles9", "2"},
                    {"lblMostSubPars9Date", "5/4/2024"},
                    {"lblMostPars9", "5"},
                    {"lblMostPars9Date", "7/21/2024"},
                    {"lblAboveParHoles9", "0"},
                    {"lblMostAbovePars9Date", nullptr}, // still day 1
                    {"lblSubParHoles18", "3"},
                    {"lblMostSubPars18Date", "8/12/2023"},
                    {"lblMostPars18", "9"},
                    {"lblMostPars18Date", "10/1/2024"},
                    {"lblAboveParHoles18", "11"},
                    {"lblMostAbovePars18Date", "4/30/2023"},
                    {"lblConsecutiveStrokes", "27"},  // the best run, not the current one (5)
                    {"lblPar3StrokeAvg", "3.4"},      // 55 / 16 = 3.4375
                    {"lblPar4StrokeAvg", "4.7"},      // 236 / 50 = 4.72
                    {"lblPar5StrokeAvg", "5.9"},      // 88 / 15 = 5.867
                    {"lblScrambling", "21.3%"},       // 13 / 61 = 0.2131
                    {"lblBounceBack", "4"},           // a count
                    {"lblBirdieConversion", "15.0%"}, // 3 / 20
                    {"lblParBreakers", "9.9%"},       // 8 / 81 = 0.0988
                    {"lblPar3Performance", "7"},
                    // Overall Totals
                    {"lblTotalEagles", "1"},
                    {"lblTotalBirdies", "6"},
                    {"lblTotalPars", "30"},
                    {"lblTotalBogeys", "27"},
                    {"lblTotalDoubleBogeys", "11"},
                    {"lblTotalTripleBogeys", "4"},
                    {"lblTotalOthers", "2"},
                    {"lblEaglePercentage", "1.2%"},        // 1 / 81 = 0.0123
                    {"lblBirdiePercentage", "7.4%"},       // 6 / 81 = 0.0741
                    {"lblParPercentage", "37.0%"},         // 30 / 81 = 0.3704
                    {"lblBogeyPercentage", "33.3%"},       // 27 / 81 = 0.3333
                    {"lblDoubleBogeyPercentage", "13.6%"}, // 11 / 81 = 0.1358
                    {"lblTripleBogeyPercentage", "4.9%"},  // 4 / 81 = 0.0494
                    {"lblOtherPercentage", "2.5%"},        // 2 / 81 = 0.0247
                    {"lblAvgBirdies9", "0.7"},             // 2 / (2 + 1) = 0.667
                    {"lblAvgBirdies18", "1.3"},            // 4 / 3 = 1.333
                    {"lblAvgPars9", "3.3"},                // 10 / (2 + 1) = 3.333
                    {"lblAvgPars18", "6.7"},               // 20 / 3 = 6.667
                    {"lblAvgBogeys9", "3.0"},              // 9 / (2 + 1)
                    {"lblAvgBogeys18", "6.0"},             // 18 / 3
                    {"lblPar3BogeyPercentage", "37.5%"},   // 6 / 16 = 0.375
                    {"lblPar3ParPercentage", "31.3%"},     // 5 / 16 = 0.3125, the half rounds away from zero
                    {"lblPar3BirdiePercentage", "6.3%"},   // 1 / 16 = 0.0625
                    {"lblPar4BogeyPercentage", "34.0%"},   // 17 / 50
                    {"lblPar4ParPercentage", "40.0%"},     // 20 / 50
                    {"lblPar4BirdiePercentage", "6.0%"},   // 3 / 50
                    {"lblPar5BogeyPercentage", "26.7%"},   // 4 / 15 = 0.2667
                    {"lblPar5ParPercentage", "33.3%"},     // 5 / 15 = 0.3333
                    {"lblPar5BirdiePercentage", "13.3%"},  // 2 / 15 = 0.1333
                });
}

TEST(StatisticsDisplay, WithoutDetailsOnlyScoringIsUsableAndShowsNumbersOrNA)
{
    GolferStatistics s;
    s.Rounds18 = 4;
    s.RoundsFront9 = 0;
    s.RoundsBack9 = 2;
    s.Best18 = 88;
    s.Worst18 = 97;
    s.Broke100 = 4;
    s.Broke90 = 1;
    s.Total18Score = 370;
    s.BestBack9 = 44;
    s.WorstBack9 = 47;
    s.TotalBack9Score = 91;
    // Round-level counters that the other pages would show: not written in this mode.
    s.PenaltyRounds18 = 2;
    s.TotalPenalties = 3;
    s.BunkerRounds9 = 1;
    s.TotalBunkers = 2;

    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_FALSE(texts.pagesWithDetails);
    ExpectTexts(texts, {
                           {"lbl18HoleRoundsPlayed", "4"},
                           {"lbl9HoleRoundsPlayed", "2"}, // 0 + 2
                           {"lblBest18HoleScore", "88"},
                           {"lblWorst18HoleScore", "97"},
                           {"lblBroke100Percentage", "100.0%"}, // 4 / 4
                           {"lblBroke90Percentage", "25.0%"},   // 1 / 4
                           {"lblBroke80Percentage", "0.0%"},
                           {"lblBroke70Percentage", "0.0%"},
                           {"lblStrokeAvg18", "92.5"}, // 370 / 4
                           {"lblBroke100", "4"},
                           {"lblBroke90", "1"},
                           {"lblBroke80", "0"},
                           {"lblBroke70", "0"},
                           {"lblBestFrontScore", "N/A"},
                           {"lblWorstFrontScore", "N/A"},
                           {"lblBroke40Front", "N/A"},
                           {"lblBroke40FrontPercentage", "N/A"},
                           {"lblStrokeAvgFront", "N/A"},
                           {"lblBestBackScore", "44"},
                           {"lblWorstBackScore", "47"},
                           {"lblBroke40Back", "0"},
                           {"lblBroke40BackPercentage", "0.0%"}, // 0 / 2
                           {"lblStrokeAvgBack", "45.5"},         // 91 / 2
                       });
}

TEST(StatisticsDisplay, WithoutDetailsOrEighteenHoleRoundsTheEighteenHoleGroupShowsNA)
{
    GolferStatistics s;
    s.RoundsFront9 = 1;
    s.BestFront9 = 45;
    s.WorstFront9 = 45;
    s.TotalFront9Score = 45;

    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_FALSE(texts.pagesWithDetails);
    ExpectTexts(texts, {
                           {"lbl18HoleRoundsPlayed", "0"},
                           {"lbl9HoleRoundsPlayed", "1"},
                           {"lblBest18HoleScore", "N/A"},
                           {"lblWorst18HoleScore", "N/A"},
                           {"lblBroke100Percentage", "N/A"},
                           {"lblBroke90Percentage", "N/A"},
                           {"lblBroke80Percentage", "N/A"},
                           {"lblBroke70Percentage", "N/A"},
                           {"lblStrokeAvg18", "N/A"},
                           {"lblBroke100", "N/A"},
                           {"lblBroke90", "N/A"},
                           {"lblBroke80", "N/A"},
                           {"lblBroke70", "N/A"},
                           {"lblBestFrontScore", "45"},
                           {"lblWorstFrontScore", "45"},
                           {"lblBroke40Front", "0"},
                           {"lblBroke40FrontPercentage", "0.0%"}, // 0 / 1
                           {"lblStrokeAvgFront", "45.0"},         // 45 / 1
                           {"lblBestBackScore", "N/A"},
                           {"lblWorstBackScore", "N/A"},
                           {"lblBroke40Back", "N/A"},
                           {"lblBroke40BackPercentage", "N/A"},
                           {"lblStrokeAvgBack", "N/A"},
                       });
}

TEST(StatisticsDisplay, EmptyRecordWithDetailsWritesOnlyTheUnconditionalLabels)
{
    GolferStatistics s;
    s.HasDetails = true;
    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_TRUE(texts.pagesWithDetails);
    ExpectTexts(texts, {
                           {"lbl18HoleRoundsPlayed", "0"},
                           {"lbl9HoleRoundsPlayed", "0"},
                           {"lblBroke100", "0"},
                           {"lblBroke90", "0"},
                           {"lblBroke80", "0"},
                           {"lblBroke70", "0"},
                           {"lblBestGRPercentage", "0.0%"},
                           {"lblBestGRDate", "12/31/1899"},
                           {"lblBestFairwaysPercentage", "0.0%"},
                           {"lblBestFairwaysDate", "12/31/1899"},
                       });
}

TEST(StatisticsDisplay, DetailsOnlyForNineHoleRoundsShowLowPutts18AtItsStartValue)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.RoundsFront9 = 1;
    s.DetailRoundsFront9 = 1;
    s.DetailHoles = 9;
    s.PuttsFront9 = 16;
    s.LowPuttsFront = 16;

    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblLowPutts18"), "1000"); // the start value: its test looks at DetailHoles
    EXPECT_FALSE(texts.labels.contains("lblAvg18HolePutts"));
    EXPECT_FALSE(texts.labels.contains("lblAvgPuttsPerHole"));
    EXPECT_EQ(texts.labels.value("lblAvgFront9Putts"), "16.0"); // 16 / (0 + 1)
    EXPECT_EQ(texts.labels.value("lblLowPuttsFront"), "16");
    EXPECT_FALSE(texts.labels.contains("lblAvgBack9Putts"));
    EXPECT_FALSE(texts.labels.contains("lblLowPuttsBack"));
}

TEST(StatisticsDisplay, EighteenHoleDetailRoundsGiveNineHoleAveragesButNoBestNine)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.Rounds18 = 2;
    s.DetailRounds18 = 2;
    s.DetailHoles = 36;
    s.BestFront9 = 41; // set by the walk from the 18-hole rounds, yet not shown
    s.WorstFront9 = 47;
    s.Broke40Front = 1;
    s.TotalFront9Score = 88;
    s.TotalBack9Score = 90;
    s.PuttsFront9 = 30;
    s.PuttsBack9 = 34;

    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblStrokeAvgFront"), "44.0");          // 88 / (0 + 2)
    EXPECT_EQ(texts.labels.value("lblBroke40FrontPercentage"), "50.0%"); // 1 / (0 + 2)
    EXPECT_EQ(texts.labels.value("lblStrokeAvgBack"), "45.0");           // 90 / (0 + 2)
    EXPECT_EQ(texts.labels.value("lblBroke40BackPercentage"), "0.0%");   // 0 / (0 + 2)
    for (const char *label : {"lblBestFrontScore", "lblWorstFrontScore", "lblBroke40Front",
                              "lblBestBackScore", "lblWorstBackScore", "lblBroke40Back"})
        EXPECT_FALSE(texts.labels.contains(label)) << label;
    // The front putts look at 18-hole rounds too, the back putts only at back nines.
    EXPECT_EQ(texts.labels.value("lblAvgFront9Putts"), "15.0"); // 30 / (2 + 0)
    EXPECT_FALSE(texts.labels.contains("lblAvgBack9Putts"));
}

TEST(StatisticsDisplay, AllGreensHitLeaveScramblingNA)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.DetailHoles = 18;
    s.GreensInReg = 18;
    s.GreensMissed = 0;
    s.BirdieConversions = 4;

    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblScrambling"), "N/A");
    EXPECT_EQ(texts.labels.value("lblBirdieConversion"), "22.2%"); // 4 / 18 = 0.2222
}

TEST(StatisticsDisplay, NoGreenHitGivesBirdieConversionZero)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.DetailHoles = 9;
    s.GreensInReg = 0;
    s.GreensMissed = 9;
    s.Scrambles = 2;

    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblBirdieConversion"), "0.0%");
    EXPECT_EQ(texts.labels.value("lblScrambling"), "22.2%"); // 2 / 9 = 0.2222
    EXPECT_FALSE(texts.labels.contains("lblAvgPuttsGR"));
}

TEST(StatisticsDisplay, BestGreensStillZeroShowsZeroPercentAndDayOne)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.DetailHoles = 9;
    s.GreensMissed = 9;

    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblBestGRPercentage"), "0.0%");
    EXPECT_EQ(texts.labels.value("lblBestGRDate"), "12/31/1899");
    EXPECT_EQ(texts.labels.value("lblBestFairwaysPercentage"), "0.0%");
    EXPECT_EQ(texts.labels.value("lblBestFairwaysDate"), "12/31/1899");
}

TEST(StatisticsDisplay, AllGreensOfARoundGiveOneHundredPercent)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.DetailHoles = 9;
    s.BestGreensPct = 9.0f / 9.0f; // nine of nine
    s.BestGreensDate = QDate(2025, 4, 12);
    s.BestFairwaysPct = 17.0f / 18.0f; // single precision 0.9444444, x100 = 94.44444
    EXPECT_EQ(DisplayStatistics(s).labels.value("lblBestGRPercentage"), "100.0%");
    EXPECT_EQ(DisplayStatistics(s).labels.value("lblBestGRDate"), "4/12/2025");
    EXPECT_EQ(DisplayStatistics(s).labels.value("lblBestFairwaysPercentage"), "94.4%");

    s.DetailHoles = 18;
    s.BestGreensPct = 18.0f / 18.0f; // eighteen of eighteen
    EXPECT_EQ(DisplayStatistics(s).labels.value("lblBestGRPercentage"), "100.0%");
}

TEST(StatisticsDisplay, NegativeParThreePerformanceShowsItsSign)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.DetailHoles = 4;
    s.Par3Holes = 4;
    s.Par3Strokes = 10;
    s.Par3Performance = -2; // 10 strokes on four par 3's: 10 - 12
    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblPar3Performance"), "-2");
    EXPECT_EQ(texts.labels.value("lblPar3StrokeAvg"), "2.5"); // 10 / 4
}

TEST(StatisticsDisplay, SandSavePercentageNeedsAttemptedSaveHoles)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.BunkerRounds18 = 1;
    s.TotalBunkers = 3;
    s.Bunkers18 = 3;

    // No round recorded attempted saves.
    StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblTotalBunkers"), "3");
    EXPECT_FALSE(texts.labels.contains("lblSandSavePercentage"));
    EXPECT_FALSE(texts.labels.contains("lblAttemptedSandSavePercentage"));

    // A round recorded 0 attempted saves.
    s.AttemptedSaveHoles = 18;
    texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblSandSavePercentage"), "0.0%");
    EXPECT_EQ(texts.labels.value("lblAttemptedSandSavePercentage"), "0.0%"); // 0 / 3

    // Saves attempted from a green-side bunker, but no bunker shot recorded.
    s.TotalAttemptedSaves = 2;
    s.TotalSandSaves = 1;
    s.BunkerRounds18 = 0;
    s.TotalBunkers = 0;
    s.Bunkers18 = 0;
    texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblSandSavePercentage"), "50.0%"); // 1 / 2
    EXPECT_FALSE(texts.labels.contains("lblAttemptedSandSavePercentage"));
    EXPECT_FALSE(texts.labels.contains("lblTotalBunkers"));
}

TEST(StatisticsDisplay, EitherKindOfRoundFillsTheTotals)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.PenaltyRounds18 = 2;
    s.TotalPenalties = 3;
    s.Penalties18 = 3;
    s.LostBallRounds9 = 1;
    s.TotalLostBalls = 2;
    s.LostBalls9 = 2;

    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblTotalPenalties"), "3");
    EXPECT_EQ(texts.labels.value("lblAvgPenalties18"), "1.5"); // 3 / 2
    EXPECT_FALSE(texts.labels.contains("lblAvgPenalties9"));
    EXPECT_EQ(texts.labels.value("lblTotalLostBalls"), "2");
    EXPECT_EQ(texts.labels.value("lblAvgLostBalls9"), "2.0"); // 2 / 1
    EXPECT_FALSE(texts.labels.contains("lblAvgLostBalls18"));
    EXPECT_FALSE(texts.labels.contains("lblTotalBunkers"));
}

TEST(StatisticsDisplay, NineHoleRoundsThatOverflowLeaveOnlyTheirLabelBlank)
{
    GolferStatistics s;
    s.Rounds18 = 2;
    s.Best18 = 90;
    s.RoundsFront9 = 20000;
    s.RoundsBack9 = 15000; // 35000 is beyond 32767
    s.BestFront9 = 41;

    for (const bool details : {false, true}) {
        s.HasDetails = details;
        const StatisticsTexts texts = DisplayStatistics(s);
        EXPECT_FALSE(texts.labels.contains("lbl9HoleRoundsPlayed")) << details;
        EXPECT_EQ(texts.labels.value("lbl18HoleRoundsPlayed"), "2") << details;
        EXPECT_EQ(texts.labels.value("lblBest18HoleScore"), "90") << details;
        EXPECT_EQ(texts.labels.value("lblBestFrontScore"), "41") << details;
    }
}

TEST(StatisticsDisplay, NineHoleAveragesAreSkippedWithoutNineHoleDetailRounds)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.Rounds18 = 2;
    s.DetailRounds18 = 2;
    s.DetailHoles = 36;
    s.Birdies18 = 3;
    s.Pars18 = 17;
    s.Bogeys18 = 12;

    StatisticsTexts texts = DisplayStatistics(s);
    // 0 / (0 + 0) fails and the label keeps its text; the statement after it still runs.
    EXPECT_FALSE(texts.labels.contains("lblAvgBirdies9"));
    EXPECT_FALSE(texts.labels.contains("lblAvgPars9"));
    EXPECT_FALSE(texts.labels.contains("lblAvgBogeys9"));
    EXPECT_EQ(texts.labels.value("lblAvgBirdies18"), "1.5");       // 3 / 2
    EXPECT_EQ(texts.labels.value("lblAvgPars18"), "8.5");          // 17 / 2
    EXPECT_EQ(texts.labels.value("lblAvgBogeys18"), "6.0");        // 12 / 2
    EXPECT_FALSE(texts.labels.contains("lblPar3BogeyPercentage")); // no par 3 counted

    // And the other way round: only nines with details.
    s.Rounds18 = 0;
    s.DetailRounds18 = 0;
    s.RoundsBack9 = 2;
    s.DetailRoundsBack9 = 2;
    s.DetailHoles = 18;
    s.Birdies18 = 0;
    s.Pars18 = 0;
    s.Bogeys18 = 0;
    s.Birdies9 = 1;
    s.Pars9 = 7;
    s.Bogeys9 = 6;
    texts = DisplayStatistics(s);
    EXPECT_EQ(texts.labels.value("lblAvgBirdies9"), "0.5"); // 1 / (0 + 2)
    EXPECT_EQ(texts.labels.value("lblAvgPars9"), "3.5");    // 7 / (0 + 2)
    EXPECT_EQ(texts.labels.value("lblAvgBogeys9"), "3.0");  // 6 / (0 + 2)
    EXPECT_FALSE(texts.labels.contains("lblAvgBirdies18"));
    EXPECT_FALSE(texts.labels.contains("lblAvgPars18"));
    EXPECT_FALSE(texts.labels.contains("lblAvgBogeys18"));
}

TEST(StatisticsDisplay, DenominatorThatOverflowsSkipsOnlyItsMeasure)
{
    GolferStatistics s;
    s.HasDetails = true;
    s.DetailRounds18 = 2000; // 2000 * 18 = 36000 is beyond 32767
    s.DetailHoles = 32000;
    s.Putts18 = 30000;
    s.RoundsFront9 = 31000; // 31000 + 2000 = 33000 is beyond 32767
    s.DetailRoundsFront9 = 31000;
    s.BestFront9 = 36;
    s.LowPuttsFront = 12;

    const StatisticsTexts texts = DisplayStatistics(s);
    EXPECT_FALSE(texts.labels.contains("lblAvgPuttsPerHole"));
    EXPECT_EQ(texts.labels.value("lblAvg18HolePutts"), "15.0"); // 30000 / 2000
    EXPECT_FALSE(texts.labels.contains("lblAvgFront9Putts"));
    EXPECT_EQ(texts.labels.value("lblLowPuttsFront"), "12");
    EXPECT_FALSE(texts.labels.contains("lblBroke40FrontPercentage"));
    EXPECT_FALSE(texts.labels.contains("lblStrokeAvgFront"));
    EXPECT_EQ(texts.labels.value("lblBestFrontScore"), "36");
}

TEST(StatisticsDate, IsMonthDayYear)
{
    EXPECT_EQ(StatisticsDate(QDate(2026, 3, 7)), "3/7/2026");
    EXPECT_EQ(StatisticsDate(QDate(2024, 12, 25)), "12/25/2024");
    EXPECT_EQ(StatisticsDate(NoRecordDate()), "12/31/1899");
}
