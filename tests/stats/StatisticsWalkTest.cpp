#include "stats/StatisticsWalk.h"
#include "Fixtures.h"
#include "TestApp.h"
#include "TestPrinting.h"
#include "core/DateText.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace quillon;
using namespace quillon::test;

namespace {

const QString kLast = QStringLiteral("Palmer");
const QString kFirst = QStringLiteral("Arnold");
const QString k18 = QStringLiteral("18-holes");
const QString kFront = QStringLiteral("9-holes (front)");
const QString kBack = QStringLiteral("9-holes (back)");

// The walk's "today": the current year is 2026.
const QDate kToday(2026, 6, 15);

// The pars of the course: front 36, back 36.  Par 3s are holes 3, 7, 12, 16; par 5s 4, 9, 13, 18.
const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

// One ScoreDetails row.  Fairway -1 is "not a fairway hole"; green is GreenInRegulation.
struct Hole {
    int hole;
    QVariant score;
    QVariant putts;
    int par;
    int fairway = -1;
    int green = 0;
};

// Holes first..last played at par with two putts, no fairway, green missed.
QVector<Hole> atPar(int first, int last)
{
    QVector<Hole> holes;
    for (int h = first; h <= last; ++h)
        holes.append({h, kPars.at(h - 1), 2, kPars.at(h - 1)});
    return holes;
}

// Hole `hole` of a list made by atPar, to change.
Hole &hole(QVector<Hole> &holes, int number)
{
    for (Hole &h : holes)
        if (h.hole == number)
            return h;
    ADD_FAILURE() << "no hole " << number;
    return holes.first();
}

class StatisticsWalk : public ::testing::Test {
protected:
    void SetUp() override { addGolfer(app.db(), kLast, kFirst); }

    RoundSpec spec(const QDate &date, const QString &holes = k18, int score = 90) const
    {
        RoundSpec r;
        r.last = last;
        r.first = first;
        r.course = course;
        r.tees = tees;
        r.date = date;
        r.holes = holes;
        r.score = score;
        r.adjusted = score;
        return r;
    }

    // A round without details.
    qint64 round(const QDate &date, const QString &holes = k18, int score = 90)
    {
        return addRound(app.db(), spec(date, holes, score));
    }

    // A round with its hole rows; the ScoreLog score is the sum of the holes unless given.
    qint64 detailed(const QDate &date, const QVector<Hole> &holes, const QString &holesText = k18,
                    int score = -1)
    {
        if (score < 0) {
            score = 0;
            for (const Hole &h : holes)
                score += h.score.toInt();
        }
        RoundSpec r = spec(date, holesText, score);
        r.details = true;
        const qint64 index = addRound(app.db(), r);
        addHoles(r, index, holes);
        return index;
    }

    void addHoles(const RoundSpec &r, qint64 index, const QVector<Hole> &holes)
    {
        Transaction unit(app.db());
        for (const Hole &h : holes)
            Exec(app.db(),
                 QStringLiteral(
                     "INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, "
                     "Hole, Score, Putts, PAR, Fairway, GreenInRegulation) "
                     "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                 {r.last, r.first, r.course, r.tees, IsoDate(r.date), index, h.hole, h.score, h.putts, h.par,
                  h.fairway, h.green});
        unit.commit();
    }

    void setLog(qint64 index, const QString &column, const QVariant &value)
    {
        Exec(app.db(), QStringLiteral("UPDATE ScoreLog SET %1 = ? WHERE ScoreIndex = ?").arg(column),
             {value, index});
    }

    GolferStatistics walk(bool currentYearOnly = false, const QDate &today = kToday)
    {
        GolferStatistics s;
        outcome = CalculateStatistics(app.db(), last, first, currentYearOnly, today, s);
        return s;
    }

    TestApp app;
    QString last = kLast;
    QString first = kFirst;
    QString course = QStringLiteral("Pebble Creek");
    QString tees = QStringLiteral("White");
    WalkOutcome outcome;
};

// ----- what the walk covers -----

TEST_F(StatisticsWalk, NoRoundInThePeriodLeavesTheRecordButTheRoundCounts)
{
    round(QDate(2025, 8, 1));
    GolferStatistics s;
    s.Best18 = 77;
    s.TotalPenalties = 5;
    s.DetailHoles = 18;
    s.BestGreensPct = 0.5f;
    s.Rounds18 = 4;
    s.RoundsFront9 = 2;
    outcome = CalculateStatistics(app.db(), last, first, true, kToday, s);
    EXPECT_FALSE(outcome.ran);
    EXPECT_EQ(s.Best18.value(), 77);
    EXPECT_EQ(s.TotalPenalties.value(), 5);
    EXPECT_EQ(s.DetailHoles.value(), 18);
    EXPECT_EQ(s.BestGreensPct, 0.5f);
    // The three round counts are cleared before the rounds are looked for.
    EXPECT_EQ(s.Rounds18.value(), 0);
    EXPECT_EQ(s.RoundsFront9.value(), 0);
}

TEST_F(StatisticsWalk, AGolferWithoutRoundsDoesNotRun)
{
    last = QStringLiteral("Nobody");
    GolferStatistics s;
    s.Worst18 = 101;
    outcome = CalculateStatistics(app.db(), last, first, false, kToday, s);
    EXPECT_FALSE(outcome.ran);
    EXPECT_EQ(s.Worst18.value(), 101);
}

TEST_F(StatisticsWalk, CurrentYearCountsOnlyRoundsFromTheFirstOfJanuary)
{
    round(QDate(2025, 12, 31), k18, 100);
    round(QDate(2026, 1, 1), k18, 90);
    round(QDate(2026, 5, 1), k18, 80);

    GolferStatistics year = walk(true);
    EXPECT_TRUE(outcome.ran);
    EXPECT_EQ(year.Rounds18.value(), 2);
    EXPECT_EQ(year.Total18Score.value(), 170); // 90 + 80
    EXPECT_EQ(year.Worst18.value(), 90);

    GolferStatistics all = walk(false);
    EXPECT_EQ(all.Rounds18.value(), 3);
    EXPECT_EQ(all.Total18Score.value(), 270); // 100 + 90 + 80
    EXPECT_EQ(all.Worst18.value(), 100);
}

TEST_F(StatisticsWalk, CurrentYearComesFromTodayNotTheClock)
{
    round(QDate(2026, 5, 1), k18, 80);
    walk(true, QDate(2027, 1, 5));
    EXPECT_FALSE(outcome.ran);
    GolferStatistics s = walk(true, QDate(2026, 12, 31));
    EXPECT_TRUE(outcome.ran);
    EXPECT_EQ(s.Rounds18.value(), 1);
}

TEST_F(StatisticsWalk, CurrentYearStillReadsTheHolesOfThisYearsRounds)
{
    detailed(QDate(2026, 3, 1), atPar(1, 9), kFront);
    GolferStatistics s = walk(true);
    EXPECT_EQ(s.DetailHoles.value(), 9);
    EXPECT_EQ(s.TotalPars.value(), 9);
}

TEST_F(StatisticsWalk, YearBoxIsOffWhenTheLatestRoundIsBeforeThisYear)
{
    round(QDate(2024, 4, 1));
    round(QDate(2025, 12, 31));
    walk();
    EXPECT_TRUE(outcome.ran);
    EXPECT_FALSE(outcome.yearBoxEnabled); // 1/1/2026 to 12/31/2025 is -1 day

    round(QDate(2026, 1, 1));
    walk();
    EXPECT_TRUE(outcome.yearBoxEnabled); // 0 days
}

TEST_F(StatisticsWalk, YearBoxGoesByTodaysYear)
{
    round(QDate(2025, 12, 31));
    walk(false, QDate(2025, 12, 31));
    EXPECT_TRUE(outcome.yearBoxEnabled);
    walk(false, QDate(2026, 1, 1));
    EXPECT_FALSE(outcome.yearBoxEnabled);
}

TEST_F(StatisticsWalk, OnlyTheGolfersRoundsAreWalked)
{
    round(QDate(2026, 2, 1), k18, 85);
    RoundSpec other = spec(QDate(2026, 2, 2), k18, 70);
    other.first = QStringLiteral("Gary");
    addRound(app.db(), other);
    GolferStatistics s = walk();
    EXPECT_EQ(s.Rounds18.value(), 1);
    EXPECT_EQ(s.Best18.value(), 85);
}

TEST_F(StatisticsWalk, NamesAndCoursesWithApostrophes)
{
    last = QStringLiteral("O'Brien");
    first = QStringLiteral("Pat");
    course = QStringLiteral("St. Andrew's");
    tees = QStringLiteral("Champ's");
    addGolfer(app.db(), last, first);
    QVector<Hole> holes = atPar(1, 9);
    hole(holes, 1).score = 3; // birdie on a par 4
    detailed(QDate(2026, 4, 2), holes, kFront);
    // Another O'Brien on the same day, not walked.
    RoundSpec sean = spec(QDate(2026, 4, 2), kFront, 50);
    sean.first = QStringLiteral("Sean");
    addRound(app.db(), sean);

    GolferStatistics s = walk();
    EXPECT_EQ(s.RoundsFront9.value(), 1);
    EXPECT_EQ(s.WorstFront9.value(), 35); // 36 - 1
    EXPECT_EQ(s.DetailHoles.value(), 9);
    EXPECT_EQ(s.TotalBirdies.value(), 1);
    EXPECT_EQ(s.TotalPars.value(), 8);
}

TEST_F(StatisticsWalk, HolesOfAnotherCourseUnderTheSameIndexAreNotRead)
{
    RoundSpec r = spec(QDate(2026, 3, 3), kFront, 36);
    r.details = true;
    const qint64 index = addRound(app.db(), r);
    r.course = QStringLiteral("Other Links");
    addHoles(r, index, atPar(1, 9));
    GolferStatistics s = walk();
    EXPECT_TRUE(s.HasDetails);
    EXPECT_EQ(s.DetailHoles.value(), 0);
    EXPECT_EQ(s.DetailRoundsFront9.value(), 0);
}

// ----- the rounds of ScoreLog -----

TEST_F(StatisticsWalk, RoundsAreCountedByTheirHolesText)
{
    round(QDate(2026, 1, 2), k18);
    round(QDate(2026, 1, 3), k18);
    round(QDate(2026, 1, 4), kFront, 45);
    round(QDate(2026, 1, 5), kBack, 46);
    round(QDate(2026, 1, 6), kBack, 47);
    round(QDate(2026, 1, 7), kBack, 48);
    round(QDate(2026, 1, 8), QStringLiteral("27-holes"), 130);
    GolferStatistics s = walk();
    // Counted before InitStatistics and kept by it.
    EXPECT_EQ(s.Rounds18.value(), 2);
    EXPECT_EQ(s.RoundsFront9.value(), 1);
    EXPECT_EQ(s.RoundsBack9.value(), 3);
    // The 27-hole text is no kind: none of its score reaches a total.
    EXPECT_EQ(s.Total18Score.value(), 180);    // 90 + 90
    EXPECT_EQ(s.TotalBack9Score.value(), 141); // 46 + 47 + 48
}

TEST_F(StatisticsWalk, BrokeCountsAreStrictlyUnderEachThreshold)
{
    for (int score : {100, 99, 90, 89, 80, 79, 70, 69})
        round(QDate(2026, 2, 1).addDays(score), k18, score);
    GolferStatistics s = walk();
    EXPECT_EQ(s.Broke100.value(), 7); // all but 100
    EXPECT_EQ(s.Broke90.value(), 5);  // 89, 80, 79, 70, 69
    EXPECT_EQ(s.Broke80.value(), 3);  // 79, 70, 69
    EXPECT_EQ(s.Broke70.value(), 1);  // 69
    EXPECT_EQ(s.Best18.value(), 69);
    EXPECT_EQ(s.Worst18.value(), 100);
    EXPECT_EQ(s.Total18Score.value(), 676); // 100 + 99 + 90 + 89 + 80 + 79 + 70 + 69
}

TEST_F(StatisticsWalk, SeventyNineBreaksAllButSeventyAndEightyDoesNotBreakEighty)
{
    round(QDate(2026, 2, 1), k18, 79);
    GolferStatistics s = walk();
    EXPECT_EQ(s.Broke100.value(), 1);
    EXPECT_EQ(s.Broke90.value(), 1);
    EXPECT_EQ(s.Broke80.value(), 1);
    EXPECT_EQ(s.Broke70.value(), 0);

    last = QStringLiteral("Nicklaus");
    addGolfer(app.db(), last, first);
    round(QDate(2026, 2, 1), k18, 80);
    s = walk();
    EXPECT_EQ(s.Broke90.value(), 1);
    EXPECT_EQ(s.Broke80.value(), 0);
}

TEST_F(StatisticsWalk, FortyOnAFrontNineIsNotUnderFortyButThirtyNineIs)
{
    round(QDate(2026, 3, 1), kFront, 40);
    round(QDate(2026, 3, 2), kFront, 39);
    round(QDate(2026, 3, 3), kBack, 40);
    GolferStatistics s = walk();
    EXPECT_EQ(s.Broke40Front.value(), 1);
    EXPECT_EQ(s.BestFront9.value(), 39);
    EXPECT_EQ(s.WorstFront9.value(), 40);
    EXPECT_EQ(s.TotalFront9Score.value(), 79); // 40 + 39
    EXPECT_EQ(s.Broke40Back.value(), 0);
    EXPECT_EQ(s.BestBack9.value(), 40);
}

TEST_F(StatisticsWalk, PenaltiesOfMinusOneAreNotRecordedAndZeroIs)
{
    setLog(round(QDate(2026, 1, 10), k18), QStringLiteral("Penalties"), -1);
    setLog(round(QDate(2026, 1, 11), k18), QStringLiteral("Penalties"), 0);
    setLog(round(QDate(2026, 1, 12), kFront, 45), QStringLiteral("Penalties"), 2);
    GolferStatistics s = walk();
    EXPECT_EQ(s.TotalPenalties.value(), 2); // 0 + 2
    EXPECT_EQ(s.PenaltyRounds18, 1);        // the 0; the -1 counts in neither
    EXPECT_EQ(s.Penalties18.value(), 0);
    EXPECT_EQ(s.PenaltyRounds9, 1);
    EXPECT_EQ(s.Penalties9.value(), 2);
}

TEST_F(StatisticsWalk, LostBallsAndBunkersSplitByKind)
{
    const qint64 a = round(QDate(2026, 1, 10), k18);
    const qint64 b = round(QDate(2026, 1, 11), kBack, 45);
    const qint64 c = round(QDate(2026, 1, 12), kFront, 44);
    setLog(a, QStringLiteral("LostBalls"), 3);
    setLog(b, QStringLiteral("LostBalls"), 1);
    setLog(a, QStringLiteral("Bunkers"), 4);
    setLog(c, QStringLiteral("Bunkers"), 0);
    GolferStatistics s = walk();
    EXPECT_EQ(s.TotalLostBalls.value(), 4); // 3 + 1
    EXPECT_EQ(s.LostBallRounds18, 1);
    EXPECT_EQ(s.LostBalls18.value(), 3);
    EXPECT_EQ(s.LostBallRounds9, 1);
    EXPECT_EQ(s.LostBalls9.value(), 1);
    EXPECT_EQ(s.TotalBunkers.value(), 4); // 4 + 0
    EXPECT_EQ(s.BunkerRounds18, 1);
    EXPECT_EQ(s.Bunkers18.value(), 4);
    EXPECT_EQ(s.BunkerRounds9, 1);
    EXPECT_EQ(s.Bunkers9.value(), 0);
}

TEST_F(StatisticsWalk, SandSavesCountTheHolesOfTheRoundsThatRecordedThem)
{
    const qint64 a = round(QDate(2026, 1, 10), k18);
    const qint64 b = round(QDate(2026, 1, 11), kFront, 45);
    const qint64 c = round(QDate(2026, 1, 12), kBack, 44);
    setLog(a, QStringLiteral("SandSaves"), 1);
    setLog(b, QStringLiteral("SandSaves"), 2);
    setLog(a, QStringLiteral("AttemptedSaves"), 3);
    setLog(c, QStringLiteral("AttemptedSaves"), 0);
    GolferStatistics s = walk();
    EXPECT_EQ(s.TotalSandSaves.value(), 3); // 1 + 2
    EXPECT_EQ(s.SandSaveHoles, 27);         // 18 + 9
    EXPECT_EQ(s.TotalAttemptedSaves.value(), 3);
    EXPECT_EQ(s.AttemptedSaveHoles, 27); // 18 + 9 for the recorded 0
}

TEST_F(StatisticsWalk, RecordedReadsTheNumberTheTextBeginsWith)
{
    setLog(round(QDate(2026, 1, 10), k18), QStringLiteral("Penalties"), QStringLiteral("2 (water)"));
    setLog(round(QDate(2026, 1, 11), k18), QStringLiteral("Penalties"), QStringLiteral("-1"));
    setLog(round(QDate(2026, 1, 12), k18), QStringLiteral("Penalties"), QStringLiteral("none"));
    GolferStatistics s = walk();
    // "2 (water)" is 2; "-1" is not recorded; "none" begins with no number and reads as a recorded 0.
    EXPECT_EQ(s.TotalPenalties.value(), 2);
    EXPECT_EQ(s.PenaltyRounds18, 2);
}

TEST_F(StatisticsWalk, ARoundWithoutDetailsReachesNoHoleCounter)
{
    round(QDate(2026, 2, 1), k18, 80);
    GolferStatistics s = walk();
    EXPECT_FALSE(s.HasDetails);
    EXPECT_EQ(s.DetailHoles.value(), 0);
    EXPECT_EQ(s.TotalPars.value(), 0);
    EXPECT_EQ(s.BestGreensDate, NoRecordDate());
}

TEST_F(StatisticsWalk, HasDetailsOutlivesTheNextWalk)
{
    detailed(QDate(2026, 2, 1), atPar(1, 9), kFront);
    GolferStatistics s;
    CalculateStatistics(app.db(), last, first, false, kToday, s);
    EXPECT_TRUE(s.HasDetails);

    addGolfer(app.db(), QStringLiteral("Nicklaus"), first);
    RoundSpec plain = spec(QDate(2026, 2, 2));
    plain.last = QStringLiteral("Nicklaus");
    addRound(app.db(), plain);
    CalculateStatistics(app.db(), plain.last, first, false, kToday, s);
    EXPECT_TRUE(s.HasDetails);
    EXPECT_EQ(s.DetailHoles.value(), 0); // everything else started again
}

// ----- the nines of an 18-hole round -----

TEST_F(StatisticsWalk, AnEighteenHoleRoundReachesTheNinesOnlyWithDetails)
{
    round(QDate(2026, 2, 1), k18, 75); // no details: no nine
    QVector<Hole> holes = atPar(1, 18);
    hole(holes, 1).score = 3;                // par 4: -1
    hole(holes, 2).score = 6;                // par 4: +2, front 36 - 1 + 2 = 37
    hole(holes, 10).score = 6;               // par 4: +2
    hole(holes, 11).score = 8;               // par 4: +4, back 36 + 2 + 4 = 42
    detailed(QDate(2026, 2, 2), holes, k18); // 37 + 42 = 79
    GolferStatistics s = walk();
    EXPECT_EQ(s.BestFront9.value(), 37);
    EXPECT_EQ(s.WorstFront9.value(), 37);
    EXPECT_EQ(s.Broke40Front.value(), 1);
    EXPECT_EQ(s.TotalFront9Score.value(), 37);
    EXPECT_EQ(s.BestBack9.value(), 42);
    EXPECT_EQ(s.Broke40Back.value(), 0);
    EXPECT_EQ(s.TotalBack9Score.value(), 42);
    EXPECT_EQ(s.Total18Score.value(), 154); // 75 + 79
}

TEST_F(StatisticsWalk, ANineHoleRoundWithDetailsIsNotCountedTwice)
{
    detailed(QDate(2026, 2, 2), atPar(1, 9), kFront); // 36
    GolferStatistics s = walk();
    EXPECT_EQ(s.TotalFront9Score.value(), 36);
    EXPECT_EQ(s.Broke40Front.value(), 1);
    EXPECT_EQ(s.DetailRoundsFront9.value(), 1);
}

TEST_F(StatisticsWalk, EighteenHoleRowWithOnlyTheFrontHolesIsAFrontNineAtHoleLevel)
{
    detailed(QDate(2026, 2, 3), atPar(1, 9), k18, 85);
    GolferStatistics s = walk();
    EXPECT_EQ(s.Rounds18.value(), 1);
    EXPECT_EQ(s.RoundsFront9.value(), 0);
    EXPECT_EQ(s.Best18.value(), 85);
    EXPECT_EQ(s.DetailRoundsFront9.value(), 1); // holes 1 to 9 sum to 45
    EXPECT_EQ(s.DetailRounds18.value(), 0);
    EXPECT_EQ(s.Pars9.value(), 9);
    EXPECT_EQ(s.Pars18.value(), 0);
    EXPECT_EQ(s.MostPars9.value(), 9);
    EXPECT_EQ(s.MostPars18.value(), 0);
    // Its front nine reaches no nine-hole score field: it is not an 18-hole round by its holes, and
    // its ScoreLog row is not a 9-hole one.
    EXPECT_EQ(s.BestFront9.value(), 1000);
    EXPECT_EQ(s.TotalFront9Score.value(), 0);
    EXPECT_EQ(s.LowPuttsFront.value(), 18); // 9 x 2: the low putts take every round
    EXPECT_EQ(s.LowPutts18.value(), 1000);
    EXPECT_EQ(s.Putts18.value(), 0);
}

TEST_F(StatisticsWalk, ElevenHoleRoundIsNoKindAndGoesToTheEighteenHoleRecords)
{
    QVector<Hole> holes = atPar(1, 11);
    for (Hole &h : holes)
        h.green = 1;
    detailed(QDate(2026, 2, 4), holes, k18); // holes 1..11 sum to 66
    GolferStatistics s = walk();
    EXPECT_EQ(s.DetailRounds18.value(), 0);
    EXPECT_EQ(s.DetailRoundsFront9.value(), 0);
    EXPECT_EQ(s.DetailRoundsBack9.value(), 0);
    EXPECT_EQ(s.BestGreensPct, float(11.0 / 9.0)); // over 9, above 1
    EXPECT_GT(s.BestGreensPct, 1.0f);
    EXPECT_EQ(s.TotalPars.value(), 11);
    EXPECT_EQ(s.Pars9.value(), 0); // no kind: neither split
    EXPECT_EQ(s.Pars18.value(), 0);
    EXPECT_EQ(s.MostPars18.value(), 11);
    EXPECT_EQ(s.MostPars18Date, QDate(2026, 2, 4));
    EXPECT_EQ(s.MostPars9.value(), 0);
    EXPECT_EQ(s.BestFront9.value(), 1000);
    EXPECT_EQ(s.BestBack9.value(), 1000);
    EXPECT_EQ(s.TotalFront9Score.value(), 0);
    EXPECT_EQ(s.TotalBack9Score.value(), 0);
    EXPECT_EQ(s.PuttsFront9.value(), 18); // holes 1-9, 2 each
    EXPECT_EQ(s.PuttsBack9.value(), 4);   // holes 10-11
    EXPECT_EQ(s.LowPutts18.value(), 1000);
}

// ----- the holes -----

// Hole by hole (par, score, putts, fairway, green):
//  1: 4 4 2  1 1   par, green                  10: 4 4 2  1 1   par
//  2: 4 5 2  0 0   bogey                       11: 4 7 2  0 0   triple
//  3: 3 4 2 -1 0   bogey                       12: 3 2 1 -1 1   birdie, green, bounce back
//  4: 5 4 1  1 1   birdie, green, bounce back  13: 5 3 0  1 1   eagle, chip-in, green
//  5: 4 6 3  0 0   double, three putts         14: 4 8 2  0 0   other (+4)
//  6: 4 3 1  1 1   birdie, green, bounce back  15: 4 5 2  1 0   bogey
//  7: 3 3 2 -1 1   par, green                  16: 3 3 2 -1 1   par, green
//  8: 4 4 2  1 0   par, scramble               17: 4 4 2  1 1   par, green
//  9: 5 5 2  0 1   par, green                  18: 5 6 2  0 0   bogey
// Front 38 (17 putts), back 42 (15 putts): 80.
QVector<Hole> fullRound()
{
    return {{1, 4, 2, 4, 1, 1},  {2, 5, 2, 4, 0, 0},  {3, 4, 2, 3, -1, 0}, {4, 4, 1, 5, 1, 1},
            {5, 6, 3, 4, 0, 0},  {6, 3, 1, 4, 1, 1},  {7, 3, 2, 3, -1, 1}, {8, 4, 2, 4, 1, 0},
            {9, 5, 2, 5, 0, 1},  {10, 4, 2, 4, 1, 1}, {11, 7, 2, 4, 0, 0}, {12, 2, 1, 3, -1, 1},
            {13, 3, 0, 5, 1, 1}, {14, 8, 2, 4, 0, 0}, {15, 5, 2, 4, 1, 0}, {16, 3, 2, 3, -1, 1},
            {17, 4, 2, 4, 1, 1}, {18, 6, 2, 5, 0, 0}};
}

// What the holes of fullRound() put in a record that started empty.
void expectFullRound(const GolferStatistics &s, const QDate &date)
{
    EXPECT_EQ(s.DetailHoles.value(), 18);
    EXPECT_EQ(s.DetailRounds18.value(), 1);

    // Score types: pars 1,7,8,9,10,16,17; bogeys 2,3,15,18; birdies 4,6,12; eagle 13; double 5;
    // triple 11; other 14.
    EXPECT_EQ(s.TotalPars.value(), 7);
    EXPECT_EQ(s.Pars18.value(), 7);
    EXPECT_EQ(s.Pars9.value(), 0);
    EXPECT_EQ(s.Par3Pars.value(), 2); // 7, 16
    EXPECT_EQ(s.Par4Pars.value(), 4); // 1, 8, 10, 17
    EXPECT_EQ(s.Par5Pars.value(), 1); // 9
    EXPECT_EQ(s.TotalBogeys.value(), 4);
    EXPECT_EQ(s.Bogeys18.value(), 4);
    EXPECT_EQ(s.Par3Bogeys.value(), 1); // 3
    EXPECT_EQ(s.Par4Bogeys.value(), 2); // 2, 15
    EXPECT_EQ(s.Par5Bogeys.value(), 1); // 18
    EXPECT_EQ(s.TotalBirdies.value(), 3);
    EXPECT_EQ(s.Birdies18.value(), 3);
    EXPECT_EQ(s.Par3Birdies.value(), 1); // 12
    EXPECT_EQ(s.Par4Birdies.value(), 1); // 6
    EXPECT_EQ(s.Par5Birdies.value(), 1); // 4
    EXPECT_EQ(s.TotalEagles.value(), 1);
    EXPECT_EQ(s.TotalDoubleBogeys.value(), 1);
    EXPECT_EQ(s.TotalTripleBogeys.value(), 1);
    EXPECT_EQ(s.TotalOthers.value(), 1);
    EXPECT_EQ(s.ParBreakers.value(), 4); // 3 birdies + 1 eagle
    EXPECT_EQ(s.MostSubPars18.value(), 4);
    EXPECT_EQ(s.MostPars18.value(), 7);
    EXPECT_EQ(s.MostAbovePars18.value(), 7); // 4 bogeys, double, triple, other
    EXPECT_EQ(s.MostSubPars18Date, date);
    EXPECT_EQ(s.MostAbovePars18Date, date);

    // Runs: stroke run broken on 5, 11, 14 -> 4, 5 (6-10), 2, then 4 (15-18); putt run broken on 5.
    EXPECT_EQ(s.BestStrokeRun.value(), 5);
    EXPECT_EQ(s.StrokeRun.value(), 4);
    EXPECT_EQ(s.BestPuttRun.value(), 13); // 6-18
    EXPECT_EQ(s.PuttRun.value(), 13);

    // Putts: chip-in 13; one putt 4, 6, 12; three putts 5; two putts the other 13 holes.
    EXPECT_EQ(s.ChipIns.value(), 1);
    EXPECT_EQ(s.OnePutts.value(), 3);
    EXPECT_EQ(s.TwoPutts.value(), 13);
    EXPECT_EQ(s.ThreePutts.value(), 1);

    // Fairways: hit 1,4,6,8,10,13,15,17; missed 2,5,9,11,14,18.
    EXPECT_EQ(s.FairwaysHit.value(), 8);
    EXPECT_EQ(s.FairwaysPossible.value(), 14);
    EXPECT_EQ(s.BestFairwaysPct, float(8.0 / 14.0));
    EXPECT_EQ(s.BestFairwaysDate, date);

    // Greens: hit 1,4,6,7,9,10,12,13,16,17.
    EXPECT_EQ(s.GreensInReg.value(), 10);
    EXPECT_EQ(s.GreensMissed.value(), 8);
    EXPECT_EQ(s.BestGreensPct, float(10.0 / 18.0));
    EXPECT_EQ(s.BestGreensDate, date);
    EXPECT_EQ(s.PuttsOnGreensInReg.value(), 15); // 2+1+1+2+2+2+1+0+2+2
    EXPECT_EQ(s.BirdieConversions.value(), 3);   // 4, 6, 12
    EXPECT_EQ(s.Scrambles.value(), 1);           // 8: the only missed green at par or better
    EXPECT_EQ(s.BounceBacks.value(), 3);         // 4 after 3, 6 after 5, 12 after 11

    // By par: par 3s are 3, 7, 12, 16 (4+3+2+3 strokes); par 5s 4, 9, 13, 18 (4+5+3+6).
    EXPECT_EQ(s.Par3Holes.value(), 4);
    EXPECT_EQ(s.Par3Strokes.value(), 12);
    EXPECT_EQ(s.Par3Performance.value(), 0); // +1 0 -1 0
    EXPECT_EQ(s.Par3Putts.value(), 7);       // 2+2+1+2
    EXPECT_EQ(s.Par4Holes.value(), 10);
    EXPECT_EQ(s.Par4Strokes.value(), 50); // 4+5+6+3+4+4+7+8+5+4
    EXPECT_EQ(s.Par4Putts.value(), 20);   // 2+2+3+1+2+2+2+2+2+2
    EXPECT_EQ(s.Par5Holes.value(), 4);
    EXPECT_EQ(s.Par5Strokes.value(), 18);
    EXPECT_EQ(s.Par5Putts.value(), 5); // 1+2+0+2

    // The nines and the putts of the round.
    EXPECT_EQ(s.TotalFront9Score.value(), 38);
    EXPECT_EQ(s.TotalBack9Score.value(), 42);
    EXPECT_EQ(s.BestFront9.value(), 38);
    EXPECT_EQ(s.Broke40Front.value(), 1);
    EXPECT_EQ(s.WorstBack9.value(), 42);
    EXPECT_EQ(s.Broke40Back.value(), 0);
    EXPECT_EQ(s.LowPuttsFront.value(), 17);
    EXPECT_EQ(s.LowPuttsBack.value(), 15);
    EXPECT_EQ(s.LowPutts18.value(), 32); // 17 + 15
    EXPECT_EQ(s.Putts18.value(), 32);
    EXPECT_EQ(s.PuttsFront9.value(), 17);
    EXPECT_EQ(s.PuttsBack9.value(), 15);
}

TEST_F(StatisticsWalk, AFullRoundFillsEveryHoleCounter)
{
    const QDate date(2026, 5, 9);
    detailed(date, fullRound(), k18);
    GolferStatistics s = walk();
    EXPECT_EQ(s.Best18.value(), 80);
    EXPECT_EQ(s.Broke90.value(), 1);
    EXPECT_EQ(s.Broke80.value(), 0);
    expectFullRound(s, date);
}

TEST_F(StatisticsWalk, OneRoundsDetailsAloneFillTheSameCounters)
{
    const QDate date(2026, 5, 9);
    const qint64 index = detailed(date, fullRound(), k18);
    GolferStatistics s;
    AccumulateRoundDetails(app.db(), last, first, index, date, course, tees, false, kToday, s);
    expectFullRound(s, date);
    EXPECT_EQ(s.Best18.value(), 1000); // the ScoreLog row is not this routine's
}

TEST_F(StatisticsWalk, OneRoundsDetailsWithTheYearBoxFindNothingBeforeThisYear)
{
    const QDate date(2025, 5, 9);
    const qint64 index = detailed(date, fullRound(), k18);
    GolferStatistics s;
    AccumulateRoundDetails(app.db(), last, first, index, date, course, tees, true, kToday, s);
    EXPECT_EQ(s.DetailHoles.value(), 0);
    AccumulateRoundDetails(app.db(), last, first, index, date, course, tees, false, kToday, s);
    EXPECT_EQ(s.DetailHoles.value(), 18);
}

TEST_F(StatisticsWalk, AFullRoundStoredWithAnotherDateTextGivesTheSameCounters)
{
    // A ScoreLog date that reads as the same day but is not stored as ISO text: the round's holes
    // are still those of that day.
    const QDate date(2026, 5, 9);
    const qint64 index = detailed(date, fullRound(), k18);
    setLog(index, QStringLiteral("Date"), QStringLiteral("5/9/2026"));
    GolferStatistics s = walk();
    expectFullRound(s, date);
}

TEST_F(StatisticsWalk, HolesAreTakenInHoleOrderWhateverTheOrderOfEntry)
{
    // Entered from hole 9 down to hole 1.  In Hole order the birdie on 6 follows the double bogey
    // on 5: one bounce back; in the order of entry it would come before it.
    QVector<Hole> holes = atPar(1, 9);
    hole(holes, 5).score = 6;
    hole(holes, 6).score = 3;
    hole(holes, 2).putts = 3;
    std::reverse(holes.begin(), holes.end());
    detailed(QDate(2026, 5, 1), holes, kFront);
    GolferStatistics s = walk();
    EXPECT_EQ(s.BounceBacks.value(), 1);
    EXPECT_EQ(s.PuttRun.value(), 7);   // holes 3-9 after the three putts on 2
    EXPECT_EQ(s.StrokeRun.value(), 4); // holes 6-9 after the double on 5
    EXPECT_EQ(s.BestStrokeRun.value(), 4);
}

TEST_F(StatisticsWalk, AHoleEnteredTwiceComesInTheOrderOfEntry)
{
    // Hole 2 twice: a double bogey entered first, then a birdie; then the par of hole 3.
    QVector<Hole> holes = atPar(1, 3);
    hole(holes, 2).score = 6;
    holes.insert(2, {2, 3, 2, 4});
    const qint64 index = detailed(QDate(2026, 5, 1), holes, kFront, 13);
    GolferStatistics walked = walk();
    // Double then birdie: one bounce back; the stroke run is broken and then 2 (birdie, par).
    EXPECT_EQ(walked.BounceBacks.value(), 1);
    EXPECT_EQ(walked.StrokeRun.value(), 2);

    GolferStatistics alone;
    AccumulateRoundDetails(app.db(), last, first, index, QDate(2026, 5, 1), course, tees, false, kToday,
                           alone);
    EXPECT_EQ(alone.BounceBacks.value(), 1);
    EXPECT_EQ(alone.StrokeRun.value(), 2);
}

TEST_F(StatisticsWalk, ScoreOfOneOnAParFourIsAnOtherNotAnEagle)
{
    QVector<Hole> holes = atPar(1, 9);
    hole(holes, 2).score = 1; // D = -3
    detailed(QDate(2026, 3, 1), holes, kFront);
    GolferStatistics s = walk();
    EXPECT_EQ(s.TotalOthers.value(), 1);
    EXPECT_EQ(s.TotalEagles.value(), 0);
    EXPECT_EQ(s.ParBreakers.value(), 1);
    EXPECT_EQ(s.MostSubPars9.value(), 1); // the round's SubParHoles
    EXPECT_EQ(s.StrokeRun.value(), 9);    // the run grew through it
    EXPECT_EQ(s.BestStrokeRun.value(), 9);
    EXPECT_EQ(s.TotalBirdies.value(), 0);
}

TEST_F(StatisticsWalk, HoleInOneOnAParThreeIsAPlainEagle)
{
    QVector<Hole> holes = atPar(1, 9);
    hole(holes, 3).score = 1; // par 3, D = -2
    detailed(QDate(2026, 3, 1), holes, kFront);
    GolferStatistics s = walk();
    EXPECT_EQ(s.TotalEagles.value(), 1);
    EXPECT_EQ(s.TotalOthers.value(), 0);
    EXPECT_EQ(s.ParBreakers.value(), 1);
    EXPECT_EQ(s.Par3Performance.value(), -2);
}

TEST_F(StatisticsWalk, EightOnAParFourIsAnOtherAndEndsTheStrokeRun)
{
    QVector<Hole> holes = atPar(1, 9);
    hole(holes, 8).score = 8; // D = 4 after seven pars
    detailed(QDate(2026, 3, 1), holes, kFront);
    GolferStatistics s = walk();
    EXPECT_EQ(s.TotalOthers.value(), 1);
    EXPECT_EQ(s.MostAbovePars9.value(), 1);
    EXPECT_EQ(s.TotalTripleBogeys.value(), 0);
    EXPECT_EQ(s.BestStrokeRun.value(), 7);
    EXPECT_EQ(s.StrokeRun.value(), 1); // hole 9 only
}

TEST_F(StatisticsWalk, NoBounceBackFromTheLastHoleOfOneRoundToTheNext)
{
    QVector<Hole> back = atPar(10, 18);
    hole(back, 18).score = 7; // double bogey on the par 5
    detailed(QDate(2026, 4, 1), back, kBack);
    QVector<Hole> front = atPar(1, 9);
    hole(front, 1).score = 3; // birdie
    detailed(QDate(2026, 4, 2), front, kFront);
    GolferStatistics s = walk();
    EXPECT_EQ(s.TotalDoubleBogeys.value(), 1);
    EXPECT_EQ(s.TotalBirdies.value(), 1);
    EXPECT_EQ(s.BounceBacks.value(), 0);
}

TEST_F(StatisticsWalk, BounceBackIsOnlyTheVeryNextHole)
{
    QVector<Hole> holes = atPar(1, 9);
    hole(holes, 1).score = 5; // bogey
    hole(holes, 2).score = 4; // par
    hole(holes, 3).score = 2; // birdie, one hole too late
    hole(holes, 5).score = 6; // double
    hole(holes, 6).score = 3; // birdie right after
    detailed(QDate(2026, 4, 1), holes, kFront);
    GolferStatistics s = walk();
    EXPECT_EQ(s.BounceBacks.value(), 1);
}

TEST_F(StatisticsWalk, PuttRunOfThirtyOverTwoRoundsAndARoundWithoutDetails)
{
    QVector<Hole> first18 = atPar(1, 18);
    hole(first18, 6).putts = 3; // the run starts again after hole 6: 12 holes left
    detailed(QDate(2026, 5, 1), first18, k18);
    round(QDate(2026, 5, 2), k18, 95); // no details: does not break the run
    detailed(QDate(2026, 5, 3), atPar(1, 18), k18);
    GolferStatistics s = walk();
    EXPECT_EQ(s.BestPuttRun.value(), 30); // 12 + 18
    EXPECT_EQ(s.PuttRun.value(), 30);
    EXPECT_EQ(s.ThreePutts.value(), 1);
}

TEST_F(StatisticsWalk, StrokeRunCarriesAcrossRoundsAndPastARoundWithoutDetails)
{
    QVector<Hole> back = atPar(10, 18);
    hole(back, 12).score = 5; // double bogey on the par 3: 6 holes left (13-18)
    detailed(QDate(2026, 5, 1), back, kBack);
    round(QDate(2026, 5, 2), k18, 110);
    QVector<Hole> all18 = atPar(1, 18);
    hole(all18, 15).score = 7; // triple: 6 + 14 holes before it
    detailed(QDate(2026, 5, 3), all18, k18);
    GolferStatistics s = walk();
    EXPECT_EQ(s.BestStrokeRun.value(), 20); // 6 + 14
    EXPECT_EQ(s.StrokeRun.value(), 3);      // 16-18
}

TEST_F(StatisticsWalk, RunsAreOlderRoundsFirst)
{
    // Entered out of date order: the walk goes by date.
    QVector<Hole> later = atPar(1, 9);
    hole(later, 1).putts = 3;
    detailed(QDate(2026, 6, 2), later, kFront); // run: 8 after hole 1
    detailed(QDate(2026, 6, 1), atPar(1, 9), kFront);
    GolferStatistics s = walk();
    // By date: 9 holes, then the three-putt on hole 1 of the later round, then 8.
    EXPECT_EQ(s.BestPuttRun.value(), 9);
    EXPECT_EQ(s.PuttRun.value(), 8);
}

TEST_F(StatisticsWalk, EqualBestFairwayAndGreenRatiosKeepTheOlderDate)
{
    // Older: a front nine, fairways 2 of 4, greens 3 of 9.
    QVector<Hole> a = atPar(1, 9);
    hole(a, 1).fairway = 1;
    hole(a, 2).fairway = 1;
    hole(a, 4).fairway = 0;
    hole(a, 5).fairway = 0;
    for (int h : {1, 2, 3})
        hole(a, h).green = 1;
    detailed(QDate(2026, 3, 1), a, kFront);
    // Newer: 18 holes, fairways 3 of 6 and greens 6 of 18, the same ratios.
    QVector<Hole> b = atPar(1, 18);
    for (int h : {1, 2, 4})
        hole(b, h).fairway = 1;
    for (int h : {5, 6, 8})
        hole(b, h).fairway = 0;
    for (int h : {1, 2, 3, 10, 11, 12})
        hole(b, h).green = 1;
    detailed(QDate(2026, 4, 1), b, k18);
    // Newest: lower ratios.
    QVector<Hole> c = atPar(1, 9);
    hole(c, 1).fairway = 1;
    hole(c, 2).fairway = 0;
    hole(c, 4).fairway = 0;
    hole(c, 1).green = 1;
    detailed(QDate(2026, 5, 1), c, kFront);

    GolferStatistics s = walk();
    EXPECT_EQ(s.BestFairwaysPct, 0.5f);
    EXPECT_EQ(s.BestFairwaysDate, QDate(2026, 3, 1));
    EXPECT_EQ(s.BestGreensPct, float(1.0 / 3.0));
    EXPECT_EQ(s.BestGreensDate, QDate(2026, 3, 1));
}

TEST_F(StatisticsWalk, MostRecordsKeepTheOldestRoundOnATie)
{
    QVector<Hole> a = atPar(1, 9);
    for (int h : {1, 2, 3, 4})
        hole(a, h).score = kPars.at(h - 1) + 1; // 5 pars, 4 bogeys
    detailed(QDate(2026, 2, 1), a, kFront);
    QVector<Hole> b = atPar(1, 9);
    hole(b, 1).score = 3;
    hole(b, 2).score = 3; // 2 birdies
    hole(b, 3).score = 4;
    hole(b, 4).score = 6; // 2 bogeys: 5 pars
    detailed(QDate(2026, 3, 1), b, kFront);
    GolferStatistics s = walk();
    EXPECT_EQ(s.MostPars9.value(), 5);
    EXPECT_EQ(s.MostPars9Date, QDate(2026, 2, 1));
    EXPECT_EQ(s.MostAbovePars9.value(), 4);
    EXPECT_EQ(s.MostAbovePars9Date, QDate(2026, 2, 1));
    EXPECT_EQ(s.MostSubPars9.value(), 2);
    EXPECT_EQ(s.MostSubPars9Date, QDate(2026, 3, 1));
    EXPECT_EQ(s.MostPars18Date, NoRecordDate());
}

TEST_F(StatisticsWalk, LowPuttsByNineTakeNineHoleRoundsAndLowPutts18OnlyEighteen)
{
    QVector<Hole> back9 = atPar(10, 18);
    for (int h : {10, 11, 12, 13})
        hole(back9, h).putts = 1; // 4 + 5 x 2 = 14
    detailed(QDate(2026, 2, 1), back9, kBack);
    QVector<Hole> full = atPar(1, 18);
    for (int h : {1, 2})
        hole(full, h).putts = 1; // front 16, back 18
    detailed(QDate(2026, 2, 2), full, k18);
    GolferStatistics s = walk();
    EXPECT_EQ(s.LowPuttsBack.value(), 14);
    EXPECT_EQ(s.LowPuttsFront.value(), 16);
    EXPECT_EQ(s.LowPutts18.value(), 34); // 16 + 18
    EXPECT_EQ(s.Putts18.value(), 34);
    EXPECT_EQ(s.PuttsBack9.value(), 32); // 14 + 18
    EXPECT_EQ(s.PuttsFront9.value(), 16);
}

TEST_F(StatisticsWalk, SplitsByNineAndEighteenGoByTheHoleNumbers)
{
    QVector<Hole> nine = atPar(10, 18);
    hole(nine, 10).score = 3; // birdie
    hole(nine, 11).score = 5; // bogey
    detailed(QDate(2026, 2, 1), nine, kBack);
    QVector<Hole> full = atPar(1, 18);
    hole(full, 1).score = 3;
    hole(full, 2).score = 3;
    hole(full, 18).score = 6;
    detailed(QDate(2026, 2, 2), full, k18);
    GolferStatistics s = walk();
    EXPECT_EQ(s.Birdies9.value(), 1);
    EXPECT_EQ(s.Bogeys9.value(), 1);
    EXPECT_EQ(s.Pars9.value(), 7);
    EXPECT_EQ(s.Birdies18.value(), 2);
    EXPECT_EQ(s.Bogeys18.value(), 1);
    EXPECT_EQ(s.Pars18.value(), 15);
    EXPECT_EQ(s.DetailRoundsBack9.value(), 1);
    EXPECT_EQ(s.DetailRounds18.value(), 1);
}

// ----- failures -----

TEST_F(StatisticsWalk, OverflowInThePassOverTheRoundsEndsTheWalk)
{
    round(QDate(2026, 2, 1), k18, 20000);
    round(QDate(2026, 2, 2), k18, 20000); // Total18Score 40000 > 32767
    GolferStatistics s;
    EXPECT_EQ(errorNumberOf([&] { CalculateStatistics(app.db(), last, first, false, kToday, s); }),
              QuillonError::Overflow);
}

TEST_F(StatisticsWalk, OverflowOfPenaltiesEndsTheWalk)
{
    setLog(round(QDate(2026, 2, 1)), QStringLiteral("Penalties"), 30000);
    setLog(round(QDate(2026, 2, 2)), QStringLiteral("Penalties"), 3000); // 33000
    GolferStatistics s;
    EXPECT_EQ(errorNumberOf([&] { CalculateStatistics(app.db(), last, first, false, kToday, s); }),
              QuillonError::Overflow);
}

TEST_F(StatisticsWalk, NullScoreOfARoundEndsTheWalk)
{
    setLog(round(QDate(2026, 2, 1)), QStringLiteral("Score"), QVariant());
    GolferStatistics s;
    EXPECT_EQ(errorNumberOf([&] { CalculateStatistics(app.db(), last, first, false, kToday, s); }), 94);
}

TEST_F(StatisticsWalk, OverflowInsideARoundSkipsOnlyThatStatement)
{
    QVector<Hole> first9 = atPar(1, 9);
    hole(first9, 1).score = 20000;
    hole(first9, 2).score = 20000; // Par4Strokes 20000 + 20000 overflows: that addition is skipped
    detailed(QDate(2026, 2, 1), first9, kFront, 40);
    QVector<Hole> second9 = atPar(1, 9);
    hole(second9, 1).score = 5;
    detailed(QDate(2026, 2, 2), second9, kFront, 37);
    GolferStatistics s;
    ASSERT_EQ(errorNumberOf([&] { CalculateStatistics(app.db(), last, first, false, kToday, s); }), 0);
    // Par 4s of the front nine: holes 1, 2, 5, 6, 8.  First round: 20000, (skipped), 4, 4, 4;
    // second round: 5, 4, 4, 4, 4.
    EXPECT_EQ(s.Par4Holes.value(), 10);
    EXPECT_EQ(s.Par4Strokes.value(), 20033); // 20000 + 12 + 21
    EXPECT_EQ(s.DetailHoles.value(), 18);
    EXPECT_EQ(s.TotalOthers.value(), 2); // D = 19996 twice
    EXPECT_EQ(s.TotalBogeys.value(), 1);
    EXPECT_EQ(s.TotalPars.value(), 15); // 7 + 8
    EXPECT_EQ(s.PuttsFront9.value(), 36);
    EXPECT_EQ(s.DetailRoundsFront9.value(), 2);
}

TEST_F(StatisticsWalk, HolesWithoutPuttsAreThreePuttCasesAndCountNoPutts)
{
    QVector<Hole> holes = atPar(1, 9);
    hole(holes, 5).putts = QVariant(); // not entered
    detailed(QDate(2026, 2, 1), holes, kFront);
    GolferStatistics s = walk();
    EXPECT_EQ(s.ThreePutts.value(), 1);
    EXPECT_EQ(s.TwoPutts.value(), 8);
    EXPECT_EQ(s.BestPuttRun.value(), 4);
    EXPECT_EQ(s.PuttRun.value(), 4);
    EXPECT_EQ(s.PuttsFront9.value(), 16); // 8 x 2
    EXPECT_EQ(s.Par4Putts.value(), 8);    // holes 1, 2, 6, 8
    EXPECT_EQ(s.TotalPars.value(), 9);
}

TEST_F(StatisticsWalk, AHoleWithoutAScoreIsSkippedWhereItsScoreIsNeeded)
{
    QVector<Hole> holes = atPar(1, 9);
    hole(holes, 2).score = QVariant();
    detailed(QDate(2026, 2, 1), holes, kFront, 32);
    GolferStatistics s = walk();
    EXPECT_EQ(s.DetailHoles.value(), 9);
    EXPECT_EQ(s.TotalPars.value(), 8);
    EXPECT_EQ(s.Par4Holes.value(), 5);
    EXPECT_EQ(s.Par4Strokes.value(), 16);  // holes 1, 5, 6, 8
    EXPECT_EQ(s.BestStrokeRun.value(), 8); // the hole without a score neither adds nor breaks
    EXPECT_EQ(s.TwoPutts.value(), 9);
}

} // namespace
