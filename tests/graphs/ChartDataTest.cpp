#include "graphs/ChartData.h"
#include "Fixtures.h"
#include "TestApp.h"
#include "TestPrinting.h"
#include "core/DateText.h"

#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

// Quotes in the names: every value reaches the database bound, never spliced into the text.
const QString kLast = QStringLiteral("O'Brien");
const QString kFirst = QStringLiteral("Pat");
const QString kCourse = QStringLiteral("St. Andrew's");
const QString kTees = QStringLiteral("White");

// Par 3s are holes 3, 7, 12 and 16; par 5s are 4, 9, 13 and 18.
const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

struct Hole {
    int hole;
    int score;
    int putts = 2;
    int fairway = -1;
    int green = 0;
};

class ChartDataTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        addGolfer(app.db(), kLast, kFirst);
        CourseSpec course;
        course.name = kCourse;
        course.tees = kTees;
        course.pars = kPars;
        addCourse(app.db(), course);
    }

    RoundSpec spec(const QDate &date, const QString &holes = QStringLiteral("18-holes"), int score = 90,
                   bool details = false)
    {
        RoundSpec r;
        r.last = kLast;
        r.first = kFirst;
        r.course = kCourse;
        r.tees = kTees;
        r.date = date;
        r.holes = holes;
        r.score = score;
        r.adjusted = score;
        r.details = details;
        return r;
    }

    qint64 round(const QDate &date, const QString &holes = QStringLiteral("18-holes"), int score = 90,
                 bool details = false)
    {
        return addRound(app.db(), spec(date, holes, score, details));
    }

    // A round with details and exactly these hole rows.
    qint64 detailRound(const QDate &date, const QVector<Hole> &holes, const QString &kind = QStringLiteral("18-holes"),
                       int score = 90)
    {
        const RoundSpec r = spec(date, kind, score, true);
        const qint64 index = addRound(app.db(), r);
        for (const Hole &h : holes)
            Exec(app.db(),
                 QStringLiteral("INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, "
                                "Hole, Score, Putts, PAR, Fairway, GreenInRegulation) "
                                "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                 {r.last, r.first, r.course, r.tees, IsoDate(r.date), index, h.hole, h.score, h.putts,
                  kPars.at(h.hole - 1), h.fairway, h.green});
        return index;
    }

    // Par on every hole of a nine (1 or 10 first) or of the round, with the given putts.
    static QVector<Hole> parHoles(int from, int to, int putts = 2)
    {
        QVector<Hole> holes;
        for (int h = from; h <= to; ++h)
            holes.push_back({h, kPars.at(h - 1), putts});
        return holes;
    }

    void setPenalties(qint64 index, int penalties)
    {
        Exec(app.db(), QStringLiteral("UPDATE ScoreLog SET Penalties = ? WHERE ScoreIndex = ?"), {penalties, index});
    }

    ChartData chart(const QString &entry) { return BuildChart(app.db(), entry, kLast, kFirst); }

    static QStringList data(const ChartData &c)
    {
        QStringList out;
        for (const PiePart &p : c.pie.parts)
            out << p.data;
        return out;
    }
    static QStringList legends(const ChartData &c)
    {
        QStringList out;
        for (const PiePart &p : c.pie.parts)
            out << p.legend;
        return out;
    }
    static QVector<bool> outside(const ChartData &c)
    {
        QVector<bool> out;
        for (const PiePart &p : c.pie.parts)
            out << p.labelOutside;
        return out;
    }

    TestApp app;
};

const QDate kDay(2026, 3, 1);

// ---- Catalogue and scale ------------------------------------------------------------------------

TEST(GraphCatalogue, SeventeenEntriesInListOrderWithTheirKindsTitlesAndDescriptions)
{
    const QVector<ChartEntry> &c = GraphCatalogue();
    ASSERT_EQ(c.size(), 17);
    const QStringList entries = {"18 Hole Penalty Trend", "Greens in Regulation Trend", "Fairways in Regulation Trend",
                                 "Front 9 Putting Trend", "Back 9 Putting Trend", "18 Hole Putting Trend",
                                 "Putting Breakdown", "Front 9 Scoring Trend", "Back 9 Scoring Trend",
                                 "18 Hole Scoring Trend", "Front 9 Scoring Breakdown", "Back 9 Scoring Breakdown",
                                 "18 Hole Scoring Breakdown by Round", "Scoring Breakdown by Hole",
                                 "Par 3 Scoring Breakdown", "Par 4 Scoring Breakdown", "Par 5 Scoring Breakdown"};
    const QVector<int> parts = {0, 0, 0, 0, 0, 0, 4, 0, 0, 0, 2, 2, 5, 7, 4, 4, 4};
    for (int i = 0; i < 17; ++i) {
        SCOPED_TRACE(entries.at(i).toStdString());
        EXPECT_EQ(c.at(i).entry, entries.at(i));
        EXPECT_EQ(c.at(i).kind, parts.at(i) ? ChartKind::Pie : ChartKind::Trend);
        EXPECT_EQ(c.at(i).parts, parts.at(i));
        EXPECT_EQ(c.at(i).title, i == 0 ? QStringLiteral("Penalties per 18-hole Round Trend") : entries.at(i));
    }
    EXPECT_EQ(c.at(0).description,
              "Charts total number of penalties over time (last 36 rounds) for each 18-hole round.");
    EXPECT_EQ(c.at(1).description,
              "Charts the percentage of greens in regulation over time (last 36 rounds) for each 18-hole round.");
    EXPECT_EQ(c.at(2).description,
              "Charts the percentage of fairways in regulation per round over time (last 36 rounds).");
    EXPECT_EQ(c.at(3).description,
              "Charts the total number of putts over time for each front 9 played (last 36 rounds).");
    EXPECT_EQ(c.at(4).description,
              "Charts the total number of putts over time for each back 9 played (last 36 rounds).");
    EXPECT_EQ(c.at(5).description,
              "Charts the total number of putts per 18-hole round over time (last 36 rounds).");
    EXPECT_EQ(c.at(6).description, "Charts the percentage of putts by type (see legend) for each hole played.");
    EXPECT_EQ(c.at(7).description, "Charts front 9 scores over time (last 36 rounds).");
    EXPECT_EQ(c.at(8).description, "Charts back 9 scores over time (last 36 rounds).");
    EXPECT_EQ(c.at(9).description, "Charts 18-hole scores over time (last 36 rounds).");
    EXPECT_EQ(c.at(10).description,
              "Charts the percentage of scores in the ranges defined by the legend for all front nine scores.");
    EXPECT_EQ(c.at(11).description,
              "Charts the percentage of scores in the ranges defined by the legend for all back nine scores.");
    EXPECT_EQ(c.at(12).description,
              "Charts the percentage of scores in the ranges defined by the legend for all 18-hole rounds played.");
    EXPECT_EQ(c.at(13).description,
              "Charts the percentage of hole scores by type (see legend) for all holes played.");
    EXPECT_EQ(c.at(14).description,
              "Charts the percentage of scores by type (see legend) for each par 3 hole played.");
    EXPECT_EQ(c.at(15).description,
              "Charts the percentage of scores by type (see legend) for each par 4 hole played.");
    EXPECT_EQ(c.at(16).description,
              "Charts the percentage of scores by type (see legend) for each par 5 hole played.");
}

TEST(IsPrimeSpan, ZeroAndOneArePrimeTwoAndNegativesAreNot)
{
    EXPECT_TRUE(IsPrimeSpan(0));
    EXPECT_TRUE(IsPrimeSpan(1));
    EXPECT_FALSE(IsPrimeSpan(2));
    EXPECT_FALSE(IsPrimeSpan(-1));
    EXPECT_FALSE(IsPrimeSpan(-7));
    EXPECT_TRUE(IsPrimeSpan(3));
    EXPECT_FALSE(IsPrimeSpan(4));
    EXPECT_TRUE(IsPrimeSpan(23));
    EXPECT_FALSE(IsPrimeSpan(25));
    EXPECT_FALSE(IsPrimeSpan(49));
    EXPECT_TRUE(IsPrimeSpan(53));
    EXPECT_FALSE(IsPrimeSpan(57));
}

TEST(SetTrendAxes, SpanZeroGivesMajorDivisionZero)
{
    const TrendScale s = SetTrendAxes(80, 80);
    EXPECT_EQ(s.minimum, 80);
    EXPECT_EQ(s.maximum, 80);
    EXPECT_EQ(s.minorDivision, 1);
    EXPECT_EQ(s.majorDivision, 0);
}

TEST(SetTrendAxes, PrimeSpan23RaisesTheMaximumAndTakesTwelveSteps)
{
    const TrendScale s = SetTrendAxes(10, 33);
    EXPECT_EQ(s.minimum, 10);
    EXPECT_EQ(s.maximum, 34);
    EXPECT_EQ(s.majorDivision, 12);
}

TEST(SetTrendAxes, Span38SearchesToThirtyNineInThirteenSteps)
{
    const TrendScale s = SetTrendAxes(0, 38);
    EXPECT_EQ(s.minimum, 0);
    EXPECT_EQ(s.maximum, 39);
    EXPECT_EQ(s.majorDivision, 13);
}

TEST(SetTrendAxes, NoCandidateLeavesTheScaleAsGiven)
{
    // Span 200: T runs 200..204 and T / K stays above 18 for every K up to 10.
    const TrendScale s = SetTrendAxes(0, 200);
    EXPECT_EQ(s.maximum, 200);
    EXPECT_EQ(s.majorDivision, 0);
}

TEST(SetTrendAxes, EverySpanFromZeroToSixtyAboveSeventy)
{
    struct Row {
        int span, maximum, major;
    };
    // Minimum 70 throughout.  The step applied is in the comment.
    const Row rows[] = {
        {0, 70, 0},    {1, 71, 1},    {2, 72, 2},    {3, 73, 3},    {4, 74, 4},   {5, 75, 5},
        {6, 76, 6},    {7, 77, 7},    {8, 78, 8},    {9, 79, 9},    {10, 80, 10}, {11, 81, 11},
        {12, 82, 12},  {13, 83, 13},  {14, 84, 14},  {15, 85, 15},  {16, 86, 16}, {17, 87, 17},
        {18, 88, 18}, // 0-18: below 19, major = span
        {19, 90, 10},  // prime, half 10: max + 1, (19 + 1) / 2
        {20, 90, 10},  // even, 10 <= 18: span / 2
        {21, 91, 7},   // half 11, not prime: search T 21, K 3 -> 7
        {22, 92, 11},  // even: 11
        {23, 94, 12},  // prime: max + 1, 12
        {24, 94, 12},  // even: 12
        {25, 95, 5},   // not prime: T 25, K 5 -> 5
        {26, 96, 13},  // even: 13
        {27, 97, 9},   // not prime: T 27, K 3 -> 9
        {28, 98, 14},  // even: 14
        {29, 100, 15}, // prime: max + 1, 15
        {30, 100, 15}, // even: 15
        {31, 102, 16}, // prime: max + 1, 16
        {32, 102, 16}, // even: 16
        {33, 103, 11}, // not prime: T 33, K 3 -> 11
        {34, 104, 17}, // even: 17
        {35, 105, 7},  // not prime: T 35, K 5 -> 7
        {36, 106, 18}, // even: 18
        {37, 109, 13}, // half 19 > 18, prime: search from T 38; 38 fails, T 39 K 3 -> 13
        {38, 109, 13}, // even, half 19: T 38 fails, T 39 K 3 -> 13
        {39, 109, 13}, // T 39 K 3 -> 13
        {40, 110, 10}, // T 40 K 4 -> 10
        {41, 112, 14}, // prime: search from T 42, K 3 -> 14
        {42, 112, 14}, // T 42 K 3 -> 14
        {43, 114, 11}, // prime: search from T 44, K 4 -> 11
        {44, 114, 11}, // T 44 K 4 -> 11
        {45, 115, 15}, // T 45 K 3 -> 15
        {46, 118, 16}, // T 46 and 47 fail, T 48 K 3 -> 16
        {47, 118, 16}, // prime: search from T 48, K 3 -> 16
        {48, 118, 16}, // T 48 K 3 -> 16
        {49, 119, 7},  // T 49 K 7 -> 7
        {50, 120, 10}, // T 50 K 5 -> 10
        {51, 121, 17}, // T 51 K 3 -> 17
        {52, 122, 13}, // T 52 K 4 -> 13
        {53, 124, 18}, // prime: search from T 54, K 3 -> 18
        {54, 124, 18}, // T 54 K 3 -> 18
        {55, 125, 11}, // T 55 K 5 -> 11
        {56, 126, 14}, // T 56 K 4 -> 14
        {57, 130, 15}, // T 57 (K 3 gives 19), 58, 59 fail; T 60 K 4 -> 15
        {58, 130, 15}, // T 58, 59 fail; T 60 K 4 -> 15
        {59, 130, 15}, // prime: search from T 60, K 4 -> 15
        {60, 130, 15}, // T 60 K 3 gives 20; K 4 -> 15
    };
    int seen = 0;
    for (const Row &r : rows) {
        SCOPED_TRACE(r.span);
        EXPECT_EQ(seen, r.span);
        ++seen;
        const TrendScale s = SetTrendAxes(70, qint16(70 + r.span));
        EXPECT_EQ(s.minimum, 70);
        EXPECT_EQ(s.minorDivision, 1);
        EXPECT_EQ(s.maximum, r.maximum);
        EXPECT_EQ(s.majorDivision, r.major);
    }
    EXPECT_EQ(seen, 61);
}

// ---- Frame --------------------------------------------------------------------------------------

TEST_F(ChartDataTest, GolferWithoutRoundsHasNoDataInEveryChart)
{
    // Another golfer's rounds are not this golfer's.
    addGolfer(app.db(), QStringLiteral("Obrien"), kFirst);
    RoundSpec other = spec(kDay, QStringLiteral("18-holes"), 85, false);
    other.last = QStringLiteral("Obrien");
    addRound(app.db(), other);
    for (const ChartEntry &e : GraphCatalogue()) {
        SCOPED_TRACE(e.entry.toStdString());
        const ChartData c = chart(e.entry);
        EXPECT_TRUE(c.empty);
        EXPECT_EQ(c.entry.entry, e.entry);
    }
}

TEST_F(ChartDataTest, AnUnknownEntryBuildsNothing)
{
    round(kDay);
    const ChartData c = chart(QStringLiteral("Chipping Trend"));
    EXPECT_TRUE(c.empty);
    EXPECT_TRUE(c.entry.entry.isEmpty());
}

TEST_F(ChartDataTest, BuildingAgainSeesARoundJustAdded)
{
    round(kDay, QStringLiteral("18-holes"), 88);
    EXPECT_EQ(chart("18 Hole Scoring Trend").trend.rowCount, 1);
    round(kDay.addDays(1), QStringLiteral("18-holes"), 84);
    const ChartData c = chart("18 Hole Scoring Trend");
    EXPECT_EQ(c.trend.rowCount, 2);
    EXPECT_EQ(c.trend.values, (QVector<double>{88, 84}));
}

// ---- Trend charts -------------------------------------------------------------------------------

TEST_F(ChartDataTest, FewerThan36RoundsCaptionCountsTheRoundsThereAre)
{
    round(QDate(2026, 1, 5), QStringLiteral("18-holes"), 92);
    round(QDate(2026, 2, 14), QStringLiteral("18-holes"), 85);
    round(QDate(2026, 3, 1), QStringLiteral("18-holes"), 101);
    const ChartData c = chart("18 Hole Scoring Trend");
    ASSERT_FALSE(c.empty);
    EXPECT_EQ(c.trend.caption, "From 1/5/2026 to 3/1/2026 (3 rounds)");
    EXPECT_EQ(c.trend.valueTitle, "Score");
    EXPECT_EQ(c.trend.values, (QVector<double>{92, 85, 101}));
    EXPECT_EQ(c.trend.minValue, 85);
    EXPECT_EQ(c.trend.maxValue, 101);
    // Span 16: below 19.
    EXPECT_EQ(c.trend.scale.minimum, 85);
    EXPECT_EQ(c.trend.scale.maximum, 101);
    EXPECT_EQ(c.trend.scale.majorDivision, 16);
}

TEST_F(ChartDataTest, SingleRoundHasOneDateAndSpanZero)
{
    round(QDate(2026, 4, 9), QStringLiteral("18-holes"), 87);
    const ChartData c = chart("18 Hole Scoring Trend");
    EXPECT_EQ(c.trend.caption, "From 4/9/2026 to 4/9/2026 (1 rounds)");
    EXPECT_EQ(c.trend.minValue, 87);
    EXPECT_EQ(c.trend.maxValue, 87);
    EXPECT_EQ(c.trend.scale.majorDivision, 0);
}

TEST_F(ChartDataTest, Top36KeepsRowsTiedWithThe36th)
{
    // 36 rounds on 36 days, the oldest on kDay with adjusted score 90 ...
    for (int i = 0; i < 36; ++i)
        round(kDay.addDays(i), QStringLiteral("18-holes"), 80 + i % 10);
    // ... one more on kDay tied on date, course, adjusted score and differential: it is returned too;
    RoundSpec tied = spec(kDay, QStringLiteral("18-holes"), 111);
    tied.adjusted = 80;
    addRound(app.db(), tied);
    // one on kDay ordered after it (higher adjusted score) is not, nor one on the day before.
    RoundSpec after = spec(kDay, QStringLiteral("18-holes"), 120);
    after.adjusted = 95;
    addRound(app.db(), after);
    round(kDay.addDays(-1), QStringLiteral("18-holes"), 130);

    const ChartData c = chart("18 Hole Scoring Trend");
    EXPECT_EQ(c.trend.rowCount, 37);
    EXPECT_EQ(c.trend.values.size(), 37);
    EXPECT_EQ(c.trend.caption, "From 3/1/2026 to 4/5/2026 (37 rounds)");
    EXPECT_TRUE(c.trend.values.contains(111));
    EXPECT_FALSE(c.trend.values.contains(120));
    EXPECT_FALSE(c.trend.values.contains(130));
    // Newest last.
    EXPECT_EQ(c.trend.values.last(), 80 + 35 % 10);
}

TEST_F(ChartDataTest, Top36WithoutTiesStopsAt36)
{
    for (int i = 0; i < 40; ++i)
        round(kDay.addDays(i), QStringLiteral("18-holes"), 70 + i);
    const ChartData c = chart("18 Hole Scoring Trend");
    EXPECT_EQ(c.trend.rowCount, 36);
    EXPECT_EQ(c.trend.values.first(), 74); // rounds 4..39
    EXPECT_EQ(c.trend.values.last(), 109);
}

TEST_F(ChartDataTest, OnlyNineHoleRoundsLeaveThe18HoleTrendEmptyAndTheNineTrendsWork)
{
    round(kDay, QStringLiteral("9-holes (front)"), 44);
    round(kDay.addDays(1), QStringLiteral("9-holes (back)"), 47);
    round(kDay.addDays(2), QStringLiteral("9-holes (front)"), 41);
    EXPECT_TRUE(chart("18 Hole Scoring Trend").empty);
    const ChartData front = chart("Front 9 Scoring Trend");
    ASSERT_FALSE(front.empty);
    EXPECT_EQ(front.trend.values, (QVector<double>{44, 41}));
    EXPECT_EQ(front.trend.caption, "From 3/1/2026 to 3/3/2026 (2 rounds)");
    const ChartData back = chart("Back 9 Scoring Trend");
    EXPECT_EQ(back.trend.values, (QVector<double>{47}));
    EXPECT_EQ(back.trend.valueTitle, "Score");
}

TEST_F(ChartDataTest, NineScoringTrendsTakeTheNinesOfDetailedRoundsOnly)
{
    round(kDay, QStringLiteral("18-holes"), 90, false); // no details: never shown
    QVector<Hole> holes = parHoles(1, 18);
    holes[0].score = 6; // front nine 36 + 2 = 38
    holes[17].score = 3; // back nine 36 - 2 = 34
    detailRound(kDay.addDays(1), holes, QStringLiteral("18-holes"), 90);
    const ChartData front = chart("Front 9 Scoring Trend");
    EXPECT_EQ(front.trend.rowCount, 1);
    EXPECT_EQ(front.trend.values, (QVector<double>{38}));
    const ChartData back = chart("Back 9 Scoring Trend");
    EXPECT_EQ(back.trend.values, (QVector<double>{34}));
}

TEST_F(ChartDataTest, PuttingTrendSkipsRoundsWithoutHoleRowsButCountsThem)
{
    detailRound(kDay, parHoles(1, 18, 2));               // 36 putts
    round(kDay.addDays(1), QStringLiteral("18-holes"), 90, true); // details flagged, no rows
    QVector<Hole> holes = parHoles(1, 18, 1);
    holes[4].putts = 3;                                  // 17 + 3 = 20
    detailRound(kDay.addDays(2), holes);
    const ChartData c = chart("18 Hole Putting Trend");
    EXPECT_EQ(c.trend.rowCount, 3);
    EXPECT_EQ(c.trend.values, (QVector<double>{36, 20}));
    EXPECT_EQ(c.trend.minValue, 20);
    EXPECT_EQ(c.trend.maxValue, 36);
    EXPECT_EQ(c.trend.valueTitle, "Putts");
    EXPECT_EQ(c.trend.caption, "From 3/1/2026 to 3/3/2026 (3 rounds)");
}

TEST_F(ChartDataTest, FrontNinePuttingTakesFrontNinesOfFullRoundsAndExcludesBackNines)
{
    detailRound(kDay, parHoles(1, 18, 2));                                      // front 18 putts
    detailRound(kDay.addDays(1), parHoles(10, 18, 1), QStringLiteral("9-holes (back)"), 40);
    detailRound(kDay.addDays(2), parHoles(1, 9, 3), QStringLiteral("9-holes (front)"), 40); // 27
    const ChartData front = chart("Front 9 Putting Trend");
    EXPECT_EQ(front.trend.rowCount, 2);
    EXPECT_EQ(front.trend.values, (QVector<double>{18, 27}));
    const ChartData back = chart("Back 9 Putting Trend");
    EXPECT_EQ(back.trend.values, (QVector<double>{18, 9}));
}

TEST_F(ChartDataTest, PenaltiesOfMinusOneOnAllRoundsShowNoData)
{
    setPenalties(round(kDay), -1);
    setPenalties(round(kDay.addDays(1)), -1);
    EXPECT_TRUE(chart("18 Hole Penalty Trend").empty);
}

TEST_F(ChartDataTest, PenaltyTrendLeavesOutRoundsWithoutACount)
{
    setPenalties(round(kDay), 2);
    setPenalties(round(kDay.addDays(1)), -1);
    setPenalties(round(kDay.addDays(2)), 0);
    setPenalties(round(kDay.addDays(3), QStringLiteral("9-holes (front)"), 45), 1);
    const ChartData c = chart("18 Hole Penalty Trend");
    EXPECT_EQ(c.entry.title, "Penalties per 18-hole Round Trend");
    EXPECT_EQ(c.trend.rowCount, 2);
    EXPECT_EQ(c.trend.values, (QVector<double>{2, 0}));
    EXPECT_EQ(c.trend.valueTitle, "Penalties");
    EXPECT_EQ(c.trend.caption, "From 3/1/2026 to 3/3/2026 (2 rounds)");
}

TEST_F(ChartDataTest, AllGreensHitInANineHoleRoundIsOneHundred)
{
    QVector<Hole> holes = parHoles(1, 9);
    for (Hole &h : holes)
        h.green = 1;
    detailRound(kDay, holes, QStringLiteral("9-holes (front)"), 36);
    const ChartData c = chart("Greens in Regulation Trend");
    EXPECT_EQ(c.trend.values, (QVector<double>{100.0}));
    EXPECT_EQ(c.trend.valueTitle, "Percent of Greens in Regulation");
    EXPECT_EQ(c.trend.minValue, 0);
    EXPECT_EQ(c.trend.maxValue, 100);
    // Span 100: search T 100, K 10 -> 10 steps.
    EXPECT_EQ(c.trend.scale.maximum, 100);
    EXPECT_EQ(c.trend.scale.majorDivision, 10);
}

TEST_F(ChartDataTest, GreensOfAFullRoundAreCountedAgainstEighteen)
{
    QVector<Hole> holes = parHoles(1, 18);
    for (int i = 0; i < 7; ++i)
        holes[i].green = 1; // 7 / 18 = 38.88.. -> 38.9
    detailRound(kDay, holes);
    const ChartData c = chart("Greens in Regulation Trend");
    EXPECT_EQ(c.trend.values, (QVector<double>{38.9}));
}

TEST_F(ChartDataTest, FairwaysArePercentOfFairwayHolesWithOneDecimal)
{
    QVector<Hole> holes = parHoles(1, 18);
    int tried = 0;
    for (Hole &h : holes)
        if (kPars.at(h.hole - 1) != 3)
            h.fairway = (tried++ < 9) ? 1 : 0; // 14 fairway holes, 9 hit: 64.28.. -> 64.3
    detailRound(kDay, holes);
    const ChartData c = chart("Fairways in Regulation Trend");
    EXPECT_EQ(c.trend.values, (QVector<double>{64.3}));
    EXPECT_EQ(c.trend.valueTitle, "Percent of Fairways in Regulation");
    EXPECT_EQ(c.trend.minValue, 0);
    EXPECT_EQ(c.trend.maxValue, 100);
}

TEST_F(ChartDataTest, FairwaysOfARoundWithoutFairwayHolesFailWithDivisionByZero)
{
    detailRound(kDay, parHoles(1, 18)); // every Fairway -1
    EXPECT_EQ(errorNumberOf([&] { chart("Fairways in Regulation Trend"); }), QuillonError::DivisionByZero);
}

// ---- Breakdown charts ---------------------------------------------------------------------------

TEST_F(ChartDataTest, NoDetailedRoundsLeaveTheHolePieEmptyButTheRoundPieWorks)
{
    round(kDay, QStringLiteral("18-holes"), 95);
    EXPECT_TRUE(chart("Scoring Breakdown by Hole").empty);
    const ChartData c = chart("18 Hole Scoring Breakdown by Round");
    ASSERT_FALSE(c.empty);
    EXPECT_EQ(data(c), (QStringList{"0", "100.0", "0", "0", "0"}));
}

TEST_F(ChartDataTest, DetailedRoundsWithoutPar3HolesGiveAPar3PieOfZeros)
{
    QVector<Hole> holes;
    for (int h : {1, 2, 4, 5})
        holes.push_back({h, kPars.at(h - 1)});
    detailRound(kDay, holes);
    const ChartData c = chart("Par 3 Scoring Breakdown");
    ASSERT_FALSE(c.empty);
    EXPECT_EQ(data(c), (QStringList{"0", "0", "0", "0"}));
    EXPECT_FALSE(c.pie.manySmall);
}

TEST_F(ChartDataTest, LastPartAbsorbsTheRounding)
{
    // Par 3s: a birdie, a par and a double bogey ("Others").
    detailRound(kDay, {{3, 2}, {7, 3}, {12, 5}});
    const ChartData c = chart("Par 3 Scoring Breakdown");
    EXPECT_EQ(data(c), (QStringList{"33.3", "33.3", "0", "33.4"}));
}

TEST_F(ChartDataTest, AllItemsInOneClassThatIsNotTheLast)
{
    // Pars on all ten par 4s.
    detailRound(kDay, parHoles(1, 18));
    const ChartData c = chart("Par 4 Scoring Breakdown");
    EXPECT_EQ(data(c), (QStringList{"0", "100.0", "0", "0"}));
    EXPECT_EQ(outside(c), (QVector<bool>{true, true, true, true}));
}

TEST_F(ChartDataTest, OnlyTheLastClassShowsTheWholeRemainder)
{
    round(kDay, QStringLiteral("18-holes"), 68);
    round(kDay.addDays(1), QStringLiteral("18-holes"), 65);
    const ChartData c = chart("18 Hole Scoring Breakdown by Round");
    EXPECT_EQ(data(c), (QStringList{"0", "0", "0", "0", "100"}));
}

TEST_F(ChartDataTest, TwoSmallPartsMoveToTheLegend)
{
    // Twelve par 3s over three rounds: 1 birdie, 10 pars, 1 bogey -> 8.3, 83.3, 8.3, 0.
    detailRound(kDay, {{3, 2}, {7, 3}, {12, 3}, {16, 3}});
    detailRound(kDay.addDays(1), {{3, 3}, {7, 3}, {12, 3}, {16, 3}});
    detailRound(kDay.addDays(2), {{3, 3}, {7, 3}, {12, 3}, {16, 4}});
    const ChartData c = chart("Par 3 Scoring Breakdown");
    EXPECT_EQ(data(c), (QStringList{"8.3", "83.3", "8.3", "0"}));
    EXPECT_TRUE(c.pie.manySmall);
    // A part of 0 is "0 or more and below 10" too.
    EXPECT_EQ(legends(c), (QStringList{"Birdies (8.3%)  ", "Pars", "Bogeys (8.3%)  ", "Others (0%)  "}));
    EXPECT_EQ(outside(c), (QVector<bool>{false, true, false, false}));
}

TEST_F(ChartDataTest, OneSmallPartKeepsItsLabel)
{
    // 1 birdie and 11 pars: 8.3 and 91.7.
    detailRound(kDay, {{3, 2}, {7, 3}, {12, 3}, {16, 3}});
    detailRound(kDay.addDays(1), {{3, 3}, {7, 3}, {12, 3}, {16, 3}});
    detailRound(kDay.addDays(2), {{3, 3}, {7, 3}, {12, 3}, {16, 3}});
    const ChartData c = chart("Par 3 Scoring Breakdown");
    EXPECT_EQ(data(c), (QStringList{"8.3", "91.7", "0", "0"}));
    EXPECT_FALSE(c.pie.manySmall);
    EXPECT_EQ(legends(c), (QStringList{"Birdies", "Pars", "Bogeys", "Others"}));
    EXPECT_EQ(outside(c), (QVector<bool>{true, true, true, true}));
}

TEST_F(ChartDataTest, RoundScoresOnTheClassLimits)
{
    round(kDay, QStringLiteral("18-holes"), 100);
    round(kDay.addDays(1), QStringLiteral("18-holes"), 99);
    round(kDay.addDays(2), QStringLiteral("18-holes"), 69);
    round(kDay.addDays(3), QStringLiteral("9-holes (front)"), 30); // not an 18-hole round
    const ChartData c = chart("18 Hole Scoring Breakdown by Round");
    EXPECT_EQ(legends(c),
              (QStringList{"100 and over", "90 to 99", "80 to 89", "70 to 79", "Scores under 70   "}));
    EXPECT_EQ(data(c), (QStringList{"33.3", "33.3", "0", "0", "33.4"}));
}

TEST_F(ChartDataTest, NineOfExactlyFortyIsFortyAndAbove)
{
    round(kDay, QStringLiteral("9-holes (front)"), 40);
    QVector<Hole> holes = parHoles(1, 18);
    holes[0].score = 5; // front 37
    detailRound(kDay.addDays(1), holes);
    round(kDay.addDays(2), QStringLiteral("9-holes (back)"), 39); // not a front nine
    const ChartData c = chart("Front 9 Scoring Breakdown");
    EXPECT_EQ(legends(c), (QStringList{"Scores 40 and above    ", "Scores under 40"}));
    EXPECT_EQ(data(c), (QStringList{"50.0", "50"}));
    const ChartData back = chart("Back 9 Scoring Breakdown");
    // Back: the 39 and the 36 of the full round.
    EXPECT_EQ(data(back), (QStringList{"0", "100"}));
}

TEST_F(ChartDataTest, NineOfARoundWithoutHoleRowsCarriesThePreviousTotal)
{
    round(kDay, QStringLiteral("9-holes (front)"), 44);
    round(kDay.addDays(1), QStringLiteral("18-holes"), 80, true); // flagged, no rows: classed as 44
    round(kDay.addDays(2), QStringLiteral("9-holes (front)"), 38);
    round(kDay.addDays(3), QStringLiteral("9-holes (front)"), 39);
    // 3 of 4 are under 40 without the carry-over; with it 2 of 4 are 40 and above.
    EXPECT_EQ(data(chart("Front 9 Scoring Breakdown")), (QStringList{"50.0", "50"}));
}

TEST_F(ChartDataTest, FirstNineWithoutHoleRowsCountsAsZero)
{
    round(kDay, QStringLiteral("18-holes"), 80, true);
    round(kDay.addDays(1), QStringLiteral("9-holes (back)"), 45);
    // Under 40 (the 0) and 40 and above (the 45).
    EXPECT_EQ(data(chart("Back 9 Scoring Breakdown")), (QStringList{"50.0", "50"}));
}

TEST_F(ChartDataTest, PuttingBreakdownLegendsKeepTheirTrailingBlanks)
{
    QVector<Hole> holes = parHoles(1, 4, 0); // 4 chip-ins
    for (int h = 5; h <= 8; ++h)
        holes.push_back({h, 4, 1}); // 4 one putts
    holes.push_back({9, 5, 2});     // 1 two putt
    holes.push_back({10, 6, 3});    // 1 three putt
    detailRound(kDay, holes);
    const ChartData c = chart("Putting Breakdown");
    // 40.0, 40.0, 10.0 and the remaining 10: no part is below 10.
    EXPECT_EQ(legends(c), (QStringList{"Chip-ins", "One Putts", "Two Putts", "Three or more Putts   "}));
    EXPECT_EQ(data(c), (QStringList{"40.0", "40.0", "10.0", "10"}));
    EXPECT_FALSE(c.pie.manySmall);
}

TEST_F(ChartDataTest, BreakdownByHoleClassesEveryHole)
{
    // On par: eagle, birdie, par x3, bogey, double, triple, and a quadruple and an albatross in Others.
    detailRound(kDay, {{4, 3}, {1, 3}, {2, 4}, {5, 4}, {6, 4}, {8, 5}, {10, 6}, {11, 7}, {14, 8}, {9, 2}});
    const ChartData c = chart("Scoring Breakdown by Hole");
    EXPECT_EQ(legends(c),
              (QStringList{"Eagles", "Birdies", "Pars", "Bogeys", "Double Bogeys", "Triple Bogeys", "Others"}));
    // Of 10: 1, 1, 3, 1, 1, 1, 2 -> 10.0 each but pars 30.0, Others the remaining 20.
    EXPECT_EQ(data(c), (QStringList{"10.0", "10.0", "30.0", "10.0", "10.0", "10.0", "20"}));
}

} // namespace

namespace {

// Everything a pie shows, for comparing two readings of the same data.
QStringList pieFigures(const ChartData &c)
{
    QStringList out{c.entry.entry, c.empty ? "empty" : "data", QString::number(c.failure),
                    c.pie.manySmall ? "many small" : "few small"};
    for (const PiePart &p : c.pie.parts)
        out << p.legend + '|' + p.data + '|' + (p.labelOutside ? "out" : "in");
    return out;
}

} // namespace

TEST_F(ChartDataTest, QuickAndStatementReadingsGiveTheSamePiesOverAVariedSeason)
{
    // Nines alone of both kinds, full rounds with and without details, a full round whose details
    // lack a nine, a round flagged with details but without hole rows, a nine in other case, and
    // holes from eagles to sevens with every putt count.
    QDate day(2025, 3, 1);
    const auto next = [&day] { return day = day.addDays(3); };
    round(next(), QStringLiteral("9-holes (front)"), 41);
    round(next(), QStringLiteral("9-holes (back)"), 38);
    round(next(), QStringLiteral("18-holes"), 84);
    detailRound(next(), {});
    round(next(), QStringLiteral("9-HOLES (FRONT)"), 36);
    for (int r = 0; r < 40; ++r) {
        QVector<Hole> holes;
        const int last = r % 7 == 0 ? 9 : 18;
        for (int h = 1; h <= last; ++h)
            holes.push_back({h, kPars.at(h - 1) + (r * 7 + h * 3) % 6 - 2, (r + h) % 5});
        detailRound(next(), holes, r % 11 == 0 ? QStringLiteral("9-holes (front)") : QStringLiteral("18-holes"),
                    70 + r);
        if (r % 9 == 0)
            detailRound(next(), parHoles(10, 18, 1), QStringLiteral("9-holes (back)"), 36);
    }
    const QVector<ChartData> quick = BuildAllCharts(app.db(), kLast, kFirst, ChartReading::Quick);
    const QVector<ChartData> statements = BuildAllCharts(app.db(), kLast, kFirst, ChartReading::ByStatements);
    ASSERT_EQ(quick.size(), 17);
    int pies = 0;
    for (int i = 0; i < quick.size(); ++i) {
        if (quick.at(i).entry.kind != ChartKind::Pie)
            continue;
        ++pies;
        EXPECT_FALSE(quick.at(i).empty) << quick.at(i).entry.entry.toStdString();
        EXPECT_EQ(pieFigures(quick.at(i)), pieFigures(statements.at(i)));
    }
    EXPECT_EQ(pies, 8);
}

TEST_F(ChartDataTest, HoleValuesThatDoNotPackAreReadByTheStatementsWithTheSameResult)
{
    detailRound(QDate(2025, 4, 1), parHoles(1, 18));
    const qint64 odd = detailRound(QDate(2025, 4, 8), parHoles(1, 18, 1));
    // A hole without putts, a fractional score and a score past two digits.
    Exec(app.db(), QStringLiteral("UPDATE ScoreDetails SET Putts = NULL WHERE ScoreIndex = ? AND Hole = 1"), {odd});
    Exec(app.db(), QStringLiteral("UPDATE ScoreDetails SET Score = 4.5 WHERE ScoreIndex = ? AND Hole = 2"), {odd});
    Exec(app.db(), QStringLiteral("UPDATE ScoreDetails SET Score = 104 WHERE ScoreIndex = ? AND Hole = 10"), {odd});

    const ChartData putting = chart(QStringLiteral("Putting Breakdown"));
    // 36 holes: 17 one-putts, 18 two-putts, and the hole without putts among the last part.
    // The last part is what single precision leaves of 100.
    EXPECT_EQ(data(putting), (QStringList{"0", "47.2", "50.0", "2.799999"}));
    const ChartData byHole = chart(QStringLiteral("Scoring Breakdown by Hole"));
    // 33 pars; 4.5 and 104 less par match no class and go with the others.
    EXPECT_EQ(data(byHole), (QStringList{"0", "0", "94.4", "0", "0", "0", "5.6"}));
    const ChartData back = chart(QStringLiteral("Back 9 Scoring Breakdown"));
    // The back nines: 36 in the first round, 136 in the second.
    EXPECT_EQ(data(back), (QStringList{"50.0", "50"}));
    for (const QString &entry : {QStringLiteral("Putting Breakdown"), QStringLiteral("Scoring Breakdown by Hole"),
                                 QStringLiteral("Front 9 Scoring Breakdown"), QStringLiteral("Back 9 Scoring Breakdown"),
                                 QStringLiteral("Par 4 Scoring Breakdown")})
        EXPECT_EQ(pieFigures(chart(entry)),
                  pieFigures(BuildChart(app.db(), entry, kLast, kFirst, ChartReading::ByStatements)));
}
