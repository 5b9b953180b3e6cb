#include "score/ScoreData.h"
#include "Fixtures.h"
#include "TestApp.h"
#include "TestPrinting.h"
#include "handicap/Handicap.h"
#include "score/ScoreEntry.h"

#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

const QString kLast = QStringLiteral("Palmer");
const QString kFirst = QStringLiteral("Arnold");
const QString kCourse = QStringLiteral("Pebble Creek");
const QString kTees = QStringLiteral("White");
const QString kDate = QStringLiteral("11/22/2026");
const QString kIsoDate = QStringLiteral("2026-11-22");

// The pars of the course the tests play: front 36, back 36, total 72.  Par 3s are holes 3, 7, 12, 16.
const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

// One column of every ScoreDetails row of a round, by hole, as text.
const char *const kDetailsSql =
    "SELECT LastName, FirstName, CourseName, Tees, Date, ScoreIndex, Hole, Score, Putts, PAR, Fairway, "
    "GreenInRegulation FROM ScoreDetails WHERE ScoreIndex = ? ORDER BY Hole";

class ScoreData : public ::testing::Test {
protected:
    void SetUp() override
    {
        addGolfer(app.db(), kLast, kFirst, QStringLiteral("M"), 12.4);
        app.setGolfer(kLast, kFirst);
        CourseSpec course;
        course.name = kCourse;
        course.tees = kTees;
        course.overallRating = 71.8;
        course.overallSlope = 113;
        course.frontRating = 35.7;
        course.frontSlope = 124;
        course.backRating = 35.8;
        course.backSlope = 126;
        course.pars = kPars;
        addCourse(app.db(), course);
    }

    // The form's texts for a round on the test course, typed as an Away round.
    static ScoreEntry entry(const QString &holes, const QString &total)
    {
        ScoreEntry e;
        e.course = kCourse;
        e.tees = kTees;
        e.date = kDate;
        e.holes = holes;
        e.type = 0;
        e.totalScore = total;
        return e;
    }

    // The grid as the form fills it: strokes from `firstHole` on, two putts each unless given, and
    // the fairway box hidden on a par 3.
    static void fillHoles(ScoreEntry &e, int firstHole, const QVector<int> &strokes,
                          const QVector<int> &putts = {})
    {
        for (int i = 0; i < strokes.size(); ++i) {
            const int hole = firstHole + i;
            e.score[hole - 1] = QString::number(strokes.at(i));
            e.putts[hole - 1] = QString::number(putts.isEmpty() ? 2 : putts.at(i));
        }
        for (int i = 0; i < 18; ++i)
            e.fairwayShown[i] = kPars.at(i) != 3;
    }

    // Par on every hole but those given (hole number -> strokes).
    static QVector<int> parsWith(const QVector<std::pair<int, int>> &holes)
    {
        QVector<int> strokes = kPars;
        for (const auto &[hole, score] : holes)
            strokes[hole - 1] = score;
        return strokes;
    }

    qint64 save(const ScoreEntry &e, bool details)
    {
        const qint64 index = SaveNewScore(app.db(), last, first, e, details);
        FinishScore(app.db(), last, first, index, e);
        return index;
    }

    void edit(qint64 index, ScoreEntry e, bool details)
    {
        e.editMode = true;
        SaveEditedScore(app.db(), last, first, index, e, details);
        FinishScore(app.db(), last, first, index, e);
    }

    void setHandicap(double handicap, const QString &gender)
    {
        Exec(app.db(), QStringLiteral("UPDATE HandicapLog SET Handicap = ?, Gender = ? WHERE LastName = ?"),
             {handicap, gender, last});
    }

    void setCourse(const QString &column, const QVariant &value)
    {
        Exec(app.db(), QStringLiteral("UPDATE CourseLog SET %1 = ? WHERE CourseName = ?").arg(column),
             {value, kCourse});
    }

    QVariant logColumn(qint64 index, const QString &column)
    {
        return Scalar(app.db(), QStringLiteral("SELECT %1 FROM ScoreLog WHERE ScoreIndex = ?").arg(column),
                      {index});
    }

    int adjusted(qint64 index) { return logColumn(index, QStringLiteral("AdjustedScore")).toInt(); }
    double differential(qint64 index) { return logColumn(index, QStringLiteral("Differential")).toDouble(); }

    int count(const QString &sql, const Params &params = {}) { return Scalar(app.db(), sql, params).toInt(); }

    int detailRows(qint64 index)
    {
        return count(QStringLiteral("SELECT COUNT(*) FROM ScoreDetails WHERE ScoreIndex = ?"), {index});
    }

    QStringList details(qint64 index) { return columnValues(app.db(), QLatin1String(kDetailsSql), {index}); }

    // Five earlier 18-hole rounds, a week apart, differentials 10.0 to 18.0: one counts, the 10.0,
    // and the index is 10.0 x 0.96 = 9.6.
    void addFiveRounds()
    {
        addWeeklyRounds(app.db(), last, first, QDate(2026, 1, 4), {10.0, 12.0, 14.0, 16.0, 18.0});
    }

    TestApp app;
    QString last = kLast;
    QString first = kFirst;
};

// ----- Equitable Stroke Control -----

TEST_F(ScoreData, Handicap12Point4OnSlope113CapsAHoleAt7)
{
    setHandicap(12.4, QStringLiteral("M"));
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("77"));
    fillHoles(e, 1, parsWith({{1, 9}})); // 72 - 4 + 9 = 77
    const qint64 index = save(e, true);
    // 12.4 x 113 / 113 = 12.4 -> 12 -> cap 7; hole 1: 9 - 7 = 2; 77 - 2 = 75
    EXPECT_EQ(adjusted(index), 75);
}

TEST_F(ScoreData, Handicap9Point9OnSlope125FloorsTo10AndCapsAt7)
{
    setHandicap(9.9, QStringLiteral("M"));
    setCourse(QStringLiteral("OverallSlope"), 125);
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("81"));
    fillHoles(e, 1, parsWith({{1, 9}, {3, 7}})); // 72 + 5 + 4 = 81
    const qint64 index = save(e, true);
    // 9.9 x 125 / 113 = 10.95 -> 10 -> cap 7: hole 1 gives 2, the par 3 of 7 nothing; 81 - 2 = 79
    // (par plus 2 would have taken 3 + 2)
    EXPECT_EQ(adjusted(index), 79);
}

TEST_F(ScoreData, Handicap8Point9OnSlope120FloorsTo9AndCapsAtParPlus2)
{
    setHandicap(8.9, QStringLiteral("M"));
    setCourse(QStringLiteral("OverallSlope"), 120);
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("79"));
    fillHoles(e, 1, parsWith({{1, 7}, {3, 7}})); // 72 + 3 + 4 = 79
    const qint64 index = save(e, true);
    // 8.9 x 120 / 113 = 9.45 -> 9 -> par + 2: hole 3 (par 3) 7 - 5 = 2, hole 1 (par 4) 7 - 6 = 1;
    // 79 - 3 = 76
    EXPECT_EQ(adjusted(index), 76);
}

TEST_F(ScoreData, NoHandicapManOnSlope130Uses36Point4AndCapsAt10)
{
    setHandicap(-1000, QStringLiteral("M"));
    setCourse(QStringLiteral("OverallSlope"), 130);
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("86"));
    fillHoles(e, 1, parsWith({{1, 12}, {4, 11}})); // 72 + 8 + 6 = 86
    const qint64 index = save(e, true);
    // 36.4 x 130 / 113 = 41.88 -> 41 -> cap 10: (12 - 10) + (11 - 10) = 3; 86 - 3 = 83
    EXPECT_EQ(adjusted(index), 83);
}

TEST_F(ScoreData, NoHandicapWomanOnSlope113Uses40Point4AndCapsAt10)
{
    setHandicap(-1000, QStringLiteral("F"));
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("86"));
    fillHoles(e, 1, parsWith({{1, 12}, {4, 11}})); // 72 + 8 + 6 = 86
    const qint64 woman = save(e, true);
    // 40.4 x 113 / 113 = 40.4 -> 40 -> cap 10: 2 + 1 = 3; 86 - 3 = 83
    EXPECT_EQ(adjusted(woman), 83);

    // A man on the same slope: 36.4 -> 36 -> cap 9: (12 - 9) + (11 - 9) = 5; 86 - 5 = 81
    setHandicap(-1000, QStringLiteral("M"));
    const qint64 man = save(e, true);
    EXPECT_EQ(adjusted(man), 81);
}

TEST_F(ScoreData, NineHoleRoundTakesItsCourseHandicapFromTheSlopeOfThatNine)
{
    setHandicap(9.9, QStringLiteral("M"));
    setCourse(QStringLiteral("FrontSlope"), 113);
    setCourse(QStringLiteral("OverallSlope"), 125);
    ScoreEntry e = entry(QStringLiteral("9-holes (front)"), QStringLiteral("39"));
    fillHoles(e, 1, {7, 4, 3, 5, 4, 4, 3, 4, 5}); // 36 - 4 + 7 = 39
    const qint64 index = save(e, true);
    // Front slope: 9.9 x 113 / 113 = 9.9 -> 9 -> par + 2: hole 1 7 - 6 = 1; 39 - 1 = 38
    // (the overall slope would give 10.95 -> 10 -> cap 7, no reduction)
    EXPECT_EQ(adjusted(index), 38);
}

TEST_F(ScoreData, RoundWithoutHoleDetailsKeepsItsTotalHoweverHigh)
{
    setHandicap(-1000, QStringLiteral("M"));
    setCourse(QStringLiteral("OverallSlope"), 130); // cap 10 on any hole, were there holes
    const qint64 index = save(entry(QStringLiteral("18-holes"), QStringLiteral("150")), false);
    EXPECT_EQ(detailRows(index), 0);
    EXPECT_EQ(adjusted(index), 150);
    EXPECT_EQ(logColumn(index, QStringLiteral("Score")).toInt(), 150);
}

// ----- Differential -----

TEST_F(ScoreData, DifferentialOf88OnRating71Point2Slope125IsStoredAs15Point2)
{
    setCourse(QStringLiteral("OverallRating"), 71.2);
    setCourse(QStringLiteral("OverallSlope"), 125);
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("90"));
    // Hole 1 a 9, holes 2 to 14 one over par: 72 + 5 + 13 = 90
    QVector<int> strokes = parsWith({{1, 9}});
    for (int hole = 2; hole <= 14; ++hole)
        ++strokes[hole - 1];
    fillHoles(e, 1, strokes);
    const qint64 index = save(e, true);
    // 12.4 x 125 / 113 = 13.7 -> 13 -> cap 7: 90 - (9 - 7) = 88
    EXPECT_EQ(adjusted(index), 88);
    // (88 - 71.2) x 113 / 125 = 15.187 -> 15.2
    EXPECT_EQ(differential(index), 15.2);
    EXPECT_EQ(logColumn(index, QStringLiteral("Rating")).toDouble(), 71.2);
    EXPECT_EQ(logColumn(index, QStringLiteral("Slope")).toInt(), 125);
}

TEST_F(ScoreData, NegativeDifferentialIsStoredAsAnOrdinaryValue)
{
    setCourse(QStringLiteral("OverallRating"), 71.0);
    const qint64 index = save(entry(QStringLiteral("18-holes"), QStringLiteral("68")), false);
    EXPECT_EQ(adjusted(index), 68);
    // (68 - 71.0) x 113 / 113 = -3.0
    EXPECT_EQ(differential(index), -3.0);
    EXPECT_FALSE(logColumn(index, QStringLiteral("Differential")).isNull());
}

TEST_F(ScoreData, DifferentialsBelowOneAndRoundingToZeroAreStoredAsNumbers)
{
    setCourse(QStringLiteral("OverallRating"), 71.6);
    const qint64 belowOne = save(entry(QStringLiteral("18-holes"), QStringLiteral("72")), false);
    // (72 - 71.6) x 113 / 113 = 0.4, formatted ".4"
    EXPECT_EQ(differential(belowOne), 0.4);

    setCourse(QStringLiteral("OverallRating"), 72.0);
    const qint64 zero = save(entry(QStringLiteral("18-holes"), QStringLiteral("72")), false);
    // (72 - 72.0) x 113 / 113 = 0, formatted ".0"
    const QVariant stored = logColumn(zero, QStringLiteral("Differential"));
    EXPECT_FALSE(stored.isNull());
    EXPECT_EQ(stored.toDouble(), 0.0);
}

TEST_F(ScoreData, BackNineRoundUsesTheBackRatingAndSlope)
{
    ScoreEntry e = entry(QStringLiteral("9-holes (back)"), QStringLiteral("42"));
    fillHoles(e, 10, {5, 5, 4, 6, 5, 4, 4, 4, 5}); // 5+5+4+6+5+4+4+4+5 = 42
    const qint64 index = save(e, true);
    // 12.4 x 126 / 113 = 13.8 -> 13 -> cap 7: no hole above it, 42
    EXPECT_EQ(adjusted(index), 42);
    EXPECT_EQ(logColumn(index, QStringLiteral("Rating")).toDouble(), 35.8);
    EXPECT_EQ(logColumn(index, QStringLiteral("Slope")).toInt(), 126);
    // (42 - 35.8) x 113 / 126 = 5.56 -> 5.6
    EXPECT_EQ(differential(index), 5.6);
    EXPECT_EQ(details(index).size(), 9);
    EXPECT_EQ(count(QStringLiteral("SELECT MIN(Hole) FROM ScoreDetails WHERE ScoreIndex = ?"), {index}), 10);
    EXPECT_EQ(count(QStringLiteral("SELECT MAX(Hole) FROM ScoreDetails WHERE ScoreIndex = ?"), {index}), 18);
}

// ----- The rows of a new round -----

TEST_F(ScoreData, NewRoundWritesEveryScoreLogColumn)
{
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("81"));
    e.type = 2;
    e.penalties = QStringLiteral("2");
    e.lostBalls = QStringLiteral("1");
    e.bunkers = QStringLiteral("3");
    e.sandSaves = QStringLiteral("1");
    e.attemptedSaves = QStringLiteral("3");
    // Front 5+4+3+6+4+5+4+4+5 = 40, back par 36 with a 9 on hole 10 (par 4): 41; 81
    fillHoles(e, 1, {5, 4, 3, 6, 4, 5, 4, 4, 5, 9, 4, 3, 5, 4, 4, 3, 4, 5});
    const qint64 index = save(e, true);

    const Recordset row =
        Query(app.db(), QStringLiteral("SELECT * FROM ScoreLog WHERE ScoreIndex = ?"), {index});
    ASSERT_EQ(row.rowCount(), 1);
    EXPECT_EQ(row.value("LastName").toString(), kLast);
    EXPECT_EQ(row.value("FirstName").toString(), kFirst);
    EXPECT_EQ(row.value("CourseName").toString(), kCourse);
    EXPECT_EQ(row.value("Tees").toString(), kTees);
    EXPECT_EQ(row.value("Date").toString(), kIsoDate);
    EXPECT_EQ(row.value("ScoreIndex").toLongLong(), index);
    EXPECT_EQ(row.value("Holes").toString(), QStringLiteral("18-holes"));
    EXPECT_EQ(row.value("Score").toInt(), 81);
    // 12.4 x 113 / 113 -> 12 -> cap 7: hole 10 gives 9 - 7 = 2; 81 - 2 = 79
    EXPECT_EQ(row.value("AdjustedScore").toInt(), 79);
    // The rating is held in single precision yet stored as its own text: 71.8, not 71.80000305
    EXPECT_EQ(row.value("Rating").toDouble(), 71.8);
    EXPECT_EQ(row.value("Rating").toString(), QStringLiteral("71.8"));
    EXPECT_EQ(row.value("Slope").toInt(), 113);
    EXPECT_EQ(row.value("Type").toString(), QStringLiteral("T"));
    // (79 - 71.8) x 113 / 113 = 7.2
    EXPECT_EQ(row.value("Differential").toDouble(), 7.2);
    EXPECT_EQ(row.value("Used").toString(), QStringLiteral("N"));
    EXPECT_EQ(row.value("Details").toInt(), 1);
    EXPECT_EQ(row.value("Penalties").toInt(), 2);
    EXPECT_EQ(row.value("LostBalls").toInt(), 1);
    EXPECT_EQ(row.value("Bunkers").toInt(), 3);
    EXPECT_EQ(row.value("SandSaves").toInt(), 1);
    EXPECT_EQ(row.value("AttemptedSaves").toInt(), 3);
    EXPECT_EQ(row.value("CombinedIndex").toInt(), 1);
}

TEST_F(ScoreData, NewRoundsGetIncreasingScoreIndexes)
{
    const qint64 a = save(entry(QStringLiteral("18-holes"), QStringLiteral("80")), false);
    const qint64 b = save(entry(QStringLiteral("18-holes"), QStringLiteral("82")), false);
    EXPECT_GT(b, a);
    EXPECT_EQ(logColumn(a, QStringLiteral("Score")).toInt(), 80);
    EXPECT_EQ(logColumn(b, QStringLiteral("Score")).toInt(), 82);
}

TEST_F(ScoreData, RoundTypeIsStoredAsItsLetter)
{
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("85"));
    e.type = 0;
    EXPECT_EQ(logColumn(save(e, false), QStringLiteral("Type")).toString(), QStringLiteral("A"));
    e.type = 1;
    EXPECT_EQ(logColumn(save(e, false), QStringLiteral("Type")).toString(), QStringLiteral("H"));
    e.type = 2;
    EXPECT_EQ(logColumn(save(e, false), QStringLiteral("Type")).toString(), QStringLiteral("T"));
    e.type = -1;
    EXPECT_TRUE(logColumn(save(e, false), QStringLiteral("Type")).isNull());
}

TEST_F(ScoreData, NewEighteenHoleRoundWithoutDetailsWritesOneRowAndNoHoles)
{
    const qint64 index = save(entry(QStringLiteral("18-holes"), QStringLiteral("95")), false);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM ScoreLog")), 1);
    EXPECT_EQ(logColumn(index, QStringLiteral("Details")).toInt(), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM ScoreDetails")), 0);
    EXPECT_EQ(logColumn(index, QStringLiteral("Score")).toInt(), 95);
    EXPECT_EQ(adjusted(index), 95);
}

TEST_F(ScoreData, NewFrontNineRoundWithDetailsWritesNineHoleRows)
{
    ScoreEntry e = entry(QStringLiteral("9-holes (front)"), QStringLiteral("40"));
    // 5+4+3+6+4+5+4+4+5 = 40
    fillHoles(e, 1, {5, 4, 3, 6, 4, 5, 4, 4, 5}, {2, 2, 1, 2, 2, 2, 2, 1, 2});
    e.fairway[0] = true;
    e.fairway[3] = true;
    e.fairway[7] = true;
    const qint64 index = save(e, true);

    const QString keys = QStringLiteral("Palmer|Arnold|Pebble Creek|White|2026-11-22|%1|").arg(index);
    // Hole|Score|Putts|PAR|Fairway|GreenInRegulation.  Green in regulation: strokes - putts <= par - 2.
    EXPECT_EQ(details(index), (QStringList{
                                  keys + "1|5|2|4|1|0",  // 3 <= 2 no
                                  keys + "2|4|2|4|0|1",  // 2 <= 2 yes
                                  keys + "3|3|1|3|-1|0", // par 3: 2 <= 1 no
                                  keys + "4|6|2|5|1|0",  // 4 <= 3 no
                                  keys + "5|4|2|4|0|1",  // 2 <= 2 yes
                                  keys + "6|5|2|4|0|0",  // 3 <= 2 no
                                  keys + "7|4|2|3|-1|0", // par 3: 2 <= 1 no
                                  keys + "8|4|1|4|1|0",  // 3 <= 2 no
                                  keys + "9|5|2|5|0|1",  // 3 <= 3 yes
                              }));
    EXPECT_EQ(logColumn(index, QStringLiteral("Holes")).toString(), QStringLiteral("9-holes (front)"));
    EXPECT_EQ(logColumn(index, QStringLiteral("Rating")).toDouble(), 35.7);
    EXPECT_EQ(logColumn(index, QStringLiteral("Slope")).toInt(), 124);
    // 12.4 x 124 / 113 = 13.6 -> 13 -> cap 7, no hole above: 40
    EXPECT_EQ(adjusted(index), 40);
    // (40 - 35.7) x 113 / 124 = 3.92 -> 3.9
    EXPECT_EQ(differential(index), 3.9);
}

TEST_F(ScoreData, ParThreeHoleStoresFairwayMinusOneWhateverTheBoxHeld)
{
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("72"));
    fillHoles(e, 1, kPars);
    e.fairway[0] = true;  // hole 1, par 4, hit
    e.fairway[1] = false; // hole 2, par 4, missed
    e.fairway[2] = true;  // hole 3, par 3: checked before the box was hidden
    e.fairway[6] = false; // hole 7, par 3
    const qint64 index = save(e, true);
    const QStringList fairways = columnValues(
        app.db(),
        QStringLiteral(
            "SELECT Hole, PAR, Fairway FROM ScoreDetails WHERE ScoreIndex = ? AND Hole IN (1, 2, 3, 7) "
            "ORDER BY Hole"),
        {index});
    EXPECT_EQ(fairways, (QStringList{"1|4|1", "2|4|0", "3|3|-1", "7|3|-1"}));
}

TEST_F(ScoreData, GreenInRegulationIsStrokesLessPuttsAtMostParLessTwo)
{
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("73"));
    fillHoles(e, 1, parsWith({{1, 5}})); // 72 + 1 = 73, two putts each
    const qint64 index = save(e, true);
    const QStringList greens = columnValues(
        app.db(),
        QStringLiteral(
            "SELECT Hole, Score, Putts, PAR, GreenInRegulation FROM ScoreDetails WHERE ScoreIndex = ? "
            "AND Hole IN (1, 2) ORDER BY Hole"),
        {index});
    // Hole 1: 5 - 2 = 3 > 4 - 2: false.  Hole 2: 4 - 2 = 2 <= 4 - 2: true.
    EXPECT_EQ(greens, (QStringList{"1|5|2|4|0", "2|4|2|4|1"}));
}

TEST_F(ScoreData, EmptyStatisticsAreStoredAsMinusOneAndTypedZeroStaysZero)
{
    const QStringList stats = {"Penalties", "LostBalls", "Bunkers", "SandSaves", "AttemptedSaves"};
    const qint64 empty = save(entry(QStringLiteral("18-holes"), QStringLiteral("85")), false);
    for (const QString &column : stats) {
        EXPECT_EQ(logColumn(empty, column).toInt(), -1) << column.toStdString();
        EXPECT_FALSE(logColumn(empty, column).isNull()) << column.toStdString();
    }

    ScoreEntry zeros = entry(QStringLiteral("18-holes"), QStringLiteral("85"));
    zeros.penalties = zeros.lostBalls = zeros.bunkers = zeros.sandSaves = zeros.attemptedSaves =
        QStringLiteral("0");
    const qint64 typed = save(zeros, false);
    for (const QString &column : stats) {
        EXPECT_EQ(logColumn(typed, column).toInt(), 0) << column.toStdString();
        EXPECT_FALSE(logColumn(typed, column).isNull()) << column.toStdString();
    }
}

TEST_F(ScoreData, HomeRoundOnAnotherCourseReplacesTheHomeCourse)
{
    Exec(app.db(), QStringLiteral("UPDATE HandicapLog SET HomeCourseName = 'Augusta' WHERE LastName = ?"),
         {last});
    const QString home = QStringLiteral("SELECT HomeCourseName FROM HandicapLog WHERE LastName = ?");

    ScoreEntry away = entry(QStringLiteral("18-holes"), QStringLiteral("85"));
    save(away, false);
    EXPECT_EQ(Scalar(app.db(), home, {last}).toString(), QStringLiteral("Augusta"))
        << "an Away round leaves it";

    ScoreEntry homeRound = away;
    homeRound.type = 1;
    save(homeRound, false);
    EXPECT_EQ(Scalar(app.db(), home, {last}).toString(), kCourse);
}

// ----- Excluded rounds and the handicap -----

TEST_F(ScoreData, ExcludedRoundIsMarkedEKeptOutOfTheRecordAndStillGetsItsDifferential)
{
    addFiveRounds();
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("76"));
    e.exclude = true;
    const qint64 index = save(e, false);
    ComputeHandicap();

    EXPECT_EQ(logColumn(index, QStringLiteral("Used")).toString(), QStringLiteral("E"));
    // (76 - 71.8) x 113 / 113 = 4.2
    EXPECT_EQ(differential(index), 4.2);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM ScoringRecord WHERE ScoreIndex = ?"), {index}), 0);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM ScoringRecord")), 5);
    // Counted, the 4.2 would be the lowest and give 4.2 x 0.96 = 4.0; the five others give 10.0 x 0.96
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT Handicap FROM HandicapLog")).toDouble(), 9.6);
}

TEST_F(ScoreData, ExcludedRoundEditedWithTheBoxClearedCountsAgain)
{
    addFiveRounds();
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("76"));
    e.exclude = true;
    const qint64 index = save(e, false);
    ComputeHandicap();
    ASSERT_EQ(Scalar(app.db(), QStringLiteral("SELECT Handicap FROM HandicapLog")).toDouble(), 9.6);

    e.exclude = false;
    edit(index, e, false);
    EXPECT_EQ(logColumn(index, QStringLiteral("Used")).toString(), QStringLiteral("N"));

    ComputeHandicap();
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM ScoringRecord WHERE ScoreIndex = ?"), {index}), 1);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM ScoringRecord")), 6);
    // Six scores use one differential, the lowest: 4.2, marked used; 4.2 x 0.96 = 4.032 -> 4.0
    EXPECT_EQ(logColumn(index, QStringLiteral("Used")).toString(), QStringLiteral("Y"));
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT Handicap FROM HandicapLog")).toDouble(), 4.0);
}

TEST_F(ScoreData, EditOfAUsedRoundClearsItsMarkUntilTheHandicapRunRestoresIt)
{
    addFiveRounds();
    const qint64 index = save(entry(QStringLiteral("18-holes"), QStringLiteral("76")), false);
    ComputeHandicap();
    ASSERT_EQ(logColumn(index, QStringLiteral("Used")).toString(), QStringLiteral("Y"));

    edit(index, entry(QStringLiteral("18-holes"), QStringLiteral("77")), false);
    EXPECT_EQ(logColumn(index, QStringLiteral("Used")).toString(), QStringLiteral("N"));
    // (77 - 71.8) x 113 / 113 = 5.2, still the lowest of the six
    EXPECT_EQ(differential(index), 5.2);
    ComputeHandicap();
    EXPECT_EQ(logColumn(index, QStringLiteral("Used")).toString(), QStringLiteral("Y"));
    // 5.2 x 0.96 = 4.992, cut to 4.9
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT Handicap FROM HandicapLog")).toDouble(), 4.9);
}

// ----- Editing -----

TEST_F(ScoreData, EditKeepsTheStoredRatingAndSlopeAfterTheCourseChanged)
{
    const qint64 index = save(entry(QStringLiteral("18-holes"), QStringLiteral("80")), false);
    // (80 - 71.8) x 113 / 113 = 8.2
    ASSERT_EQ(differential(index), 8.2);

    setCourse(QStringLiteral("OverallRating"), 74.0);
    setCourse(QStringLiteral("OverallSlope"), 140);
    edit(index, entry(QStringLiteral("18-holes"), QStringLiteral("85")), false);

    EXPECT_EQ(logColumn(index, QStringLiteral("Rating")).toDouble(), 71.8);
    EXPECT_EQ(logColumn(index, QStringLiteral("Slope")).toInt(), 113);
    EXPECT_EQ(logColumn(index, QStringLiteral("Score")).toInt(), 85);
    EXPECT_EQ(adjusted(index), 85);
    // (85 - 71.8) x 113 / 113 = 13.2; the changed course would give (85 - 74) x 113 / 140 = 8.9
    EXPECT_EQ(differential(index), 13.2);
}

TEST_F(ScoreData, EditCapsHolesByTheCoursesCurrentSlopeAndDividesByTheStoredOne)
{
    setHandicap(9.9, QStringLiteral("M"));
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("75"));
    fillHoles(e, 1, parsWith({{1, 7}})); // 72 - 4 + 7 = 75
    const qint64 index = save(e, true);
    // 9.9 x 113 / 113 -> 9 -> par + 2: hole 1 7 - 6 = 1; 74; (74 - 71.8) x 113 / 113 = 2.2
    ASSERT_EQ(adjusted(index), 74);
    ASSERT_EQ(differential(index), 2.2);

    setCourse(QStringLiteral("OverallRating"), 74.0);
    setCourse(QStringLiteral("OverallSlope"), 140);
    edit(index, e, true);
    // 9.9 x 140 / 113 = 12.27 -> 12 -> cap 7: no reduction, 75; (75 - 71.8) x 113 / 113 = 3.2
    EXPECT_EQ(adjusted(index), 75);
    EXPECT_EQ(differential(index), 3.2);
}

TEST_F(ScoreData, EditAddsMissingHoleRowsAndUpdatesExistingOnes)
{
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("81"));
    const qint64 index = save(e, false);
    ASSERT_EQ(detailRows(index), 0);

    // Front 5+4+3+6+4+5+4+4+5 = 40, back 4+5+3+5+5+4+3+5+7 = 41; 81
    fillHoles(e, 1, {5, 4, 3, 6, 4, 5, 4, 4, 5, 4, 5, 3, 5, 5, 4, 3, 5, 7});
    e.fairway[9] = true;
    edit(index, e, true);
    const QString keys = QStringLiteral("Palmer|Arnold|Pebble Creek|White|2026-11-22|%1|").arg(index);
    QStringList rows = details(index);
    ASSERT_EQ(rows.size(), 18);
    EXPECT_EQ(rows.at(0), keys + "1|5|2|4|0|0");    // 3 <= 2 no
    EXPECT_EQ(rows.at(9), keys + "10|4|2|4|1|1");   // 2 <= 2 yes
    EXPECT_EQ(rows.at(11), keys + "12|3|2|3|-1|1"); // par 3: 1 <= 1 yes
    EXPECT_EQ(rows.at(17), keys + "18|7|2|5|0|0");  // 5 <= 3 no
    EXPECT_EQ(logColumn(index, QStringLiteral("Details")).toInt(), 1);

    // A second edit: hole 1 a 4 with one putt, hole 18 a 6; 81 - 1 - 1 = 79
    e.score[0] = QStringLiteral("4");
    e.putts[0] = QStringLiteral("1");
    e.fairway[0] = true;
    e.score[17] = QStringLiteral("6");
    e.totalScore = QStringLiteral("79");
    edit(index, e, true);
    rows = details(index);
    ASSERT_EQ(rows.size(), 18) << "rows updated, none added";
    EXPECT_EQ(rows.at(0), keys + "1|4|1|4|1|0");   // 3 <= 2 no
    EXPECT_EQ(rows.at(17), keys + "18|6|2|5|0|0"); // 4 <= 3 no
    EXPECT_EQ(logColumn(index, QStringLiteral("Score")).toInt(), 79);
}

TEST_F(ScoreData, EditOfABackNineRoundWritesOnlyHolesTenToEighteen)
{
    ScoreEntry e = entry(QStringLiteral("9-holes (back)"), QStringLiteral("36"));
    fillHoles(e, 10, {4, 4, 3, 5, 4, 4, 3, 4, 5}); // par: 36
    const qint64 index = save(e, true);
    e.score[9] = QStringLiteral("6"); // hole 10: 36 + 2 = 38
    e.totalScore = QStringLiteral("38");
    edit(index, e, true);
    EXPECT_EQ(detailRows(index), 9);
    EXPECT_EQ(count(QStringLiteral("SELECT MIN(Hole) FROM ScoreDetails WHERE ScoreIndex = ?"), {index}), 10);
    EXPECT_EQ(
        count(QStringLiteral("SELECT Score FROM ScoreDetails WHERE ScoreIndex = ? AND Hole = 10"), {index}),
        6);
}

TEST_F(ScoreData, EditRewritesScoreStatisticsTypeAndDetailsMarkButNotTheKeys)
{
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("85"));
    e.penalties = QStringLiteral("3");
    e.sandSaves = QStringLiteral("2");
    const qint64 index = save(e, false);

    e.totalScore = QStringLiteral("87");
    e.penalties.clear();
    e.sandSaves = QStringLiteral("0");
    e.bunkers = QStringLiteral("4");
    e.type = 2;
    edit(index, e, false);

    EXPECT_EQ(logColumn(index, QStringLiteral("Score")).toInt(), 87);
    EXPECT_EQ(logColumn(index, QStringLiteral("Penalties")).toInt(), -1);
    EXPECT_EQ(logColumn(index, QStringLiteral("SandSaves")).toInt(), 0);
    EXPECT_EQ(logColumn(index, QStringLiteral("Bunkers")).toInt(), 4);
    EXPECT_EQ(logColumn(index, QStringLiteral("LostBalls")).toInt(), -1);
    EXPECT_EQ(logColumn(index, QStringLiteral("Type")).toString(), QStringLiteral("T"));
    EXPECT_EQ(logColumn(index, QStringLiteral("Details")).toInt(), 0);
    EXPECT_EQ(logColumn(index, QStringLiteral("Date")).toString(), kIsoDate);
    EXPECT_EQ(logColumn(index, QStringLiteral("CourseName")).toString(), kCourse);
    // (87 - 71.8) x 113 / 113 = 15.2
    EXPECT_EQ(differential(index), 15.2);
    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM ScoreLog")), 1);
}

TEST_F(ScoreData, EditClearingAllDetailsKeepsTheHoleRowsAndTheirReduction)
{
    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("77"));
    fillHoles(e, 1, parsWith({{1, 9}})); // 72 + 5 = 77
    const qint64 index = save(e, true);
    // cap 7 (handicap 12.4, slope 113): 77 - 2 = 75
    ASSERT_EQ(adjusted(index), 75);

    ScoreEntry cleared = entry(QStringLiteral("18-holes"), QStringLiteral("78"));
    edit(index, cleared, false);
    EXPECT_EQ(logColumn(index, QStringLiteral("Details")).toInt(), 0);
    EXPECT_EQ(detailRows(index), 18);
    EXPECT_EQ(
        count(QStringLiteral("SELECT Score FROM ScoreDetails WHERE ScoreIndex = ? AND Hole = 1"), {index}),
        9);
    // The old hole 1 still counts: 78 - (9 - 7) = 76
    EXPECT_EQ(adjusted(index), 76);
}

// ----- Faults and names -----

TEST_F(ScoreData, NineWithoutRatingAndSlopeFailsWithDivisionByZeroAndLeavesTheRowHalfWritten)
{
    CourseSpec nine;
    nine.name = QStringLiteral("Short Links");
    nine.tees = kTees;
    nine.pars = {4, 4, 3, 5, 4, 4, 3, 4, 5}; // holes 1 to 9 only
    addCourse(app.db(), nine);
    Exec(app.db(),
         QStringLiteral("UPDATE CourseLog SET FrontRating = NULL, FrontSlope = NULL WHERE CourseName = ?"),
         {nine.name});

    ScoreEntry e = entry(QStringLiteral("9-holes (front)"), QStringLiteral("36"));
    e.course = nine.name;
    fillHoles(e, 1, {4, 4, 3, 5, 4, 4, 3, 4, 5});
    const qint64 index = SaveNewScore(app.db(), last, first, e, true);
    EXPECT_EQ(errorNumberOf([&] { FinishScore(app.db(), last, first, index, e); }),
              int(QuillonError::DivisionByZero));

    EXPECT_EQ(count(QStringLiteral("SELECT COUNT(*) FROM ScoreLog")), 1);
    EXPECT_EQ(adjusted(index), 1);
    EXPECT_TRUE(logColumn(index, QStringLiteral("Differential")).isNull());
    EXPECT_EQ(detailRows(index), 9);

    // The exclude mark goes with the derived numbers, so the fault leaves the first stage's "N".
    ScoreEntry excluded = e;
    excluded.exclude = true;
    const qint64 second = SaveNewScore(app.db(), last, first, excluded, true);
    EXPECT_EQ(errorNumberOf([&] { FinishScore(app.db(), last, first, second, excluded); }),
              int(QuillonError::DivisionByZero));
    EXPECT_EQ(logColumn(second, QStringLiteral("Used")).toString(), QStringLiteral("N"));
}

TEST_F(ScoreData, NamesWithApostrophesAreSavedAndFound)
{
    last = QStringLiteral("O'Brien");
    first = QStringLiteral("Pat");
    addGolfer(app.db(), last, first, QStringLiteral("M"), 12.4);
    app.setGolfer(last, first);
    CourseSpec course;
    course.name = QStringLiteral("St. Andrew's");
    course.tees = QStringLiteral("Old");
    course.overallRating = 72.0;
    course.overallSlope = 113;
    course.pars = kPars;
    addCourse(app.db(), course);

    ScoreEntry e = entry(QStringLiteral("18-holes"), QStringLiteral("77"));
    e.course = course.name;
    e.tees = course.tees;
    e.type = 1;
    fillHoles(e, 1, parsWith({{1, 9}})); // 72 + 5 = 77
    const qint64 index = save(e, true);

    EXPECT_EQ(logColumn(index, QStringLiteral("LastName")).toString(), QStringLiteral("O'Brien"));
    EXPECT_EQ(logColumn(index, QStringLiteral("CourseName")).toString(), QStringLiteral("St. Andrew's"));
    EXPECT_EQ(detailRows(index), 18);
    // The hole rows were found: 12.4 -> 12 -> cap 7; 77 - 2 = 75; (75 - 72) x 113 / 113 = 3.0
    EXPECT_EQ(adjusted(index), 75);
    EXPECT_EQ(differential(index), 3.0);
    EXPECT_EQ(
        Scalar(app.db(), QStringLiteral("SELECT HomeCourseName FROM HandicapLog WHERE LastName = ?"), {last})
            .toString(),
        QStringLiteral("St. Andrew's"));

    const std::optional<StoredRound> round =
        LoadRound(app.db(), index, last, first, course.name, course.tees, QDate(2026, 11, 22));
    ASSERT_TRUE(round.has_value());
    EXPECT_EQ(round->score.toInt(), 77);
    ScoreEntry loaded;
    LoadHoleDetails(app.db(), index, last, first, course.name, course.tees, QDate(2026, 11, 22), loaded);
    EXPECT_EQ(loaded.score.at(0), QStringLiteral("9"));
}

// ----- Reading a round back -----

TEST_F(ScoreData, LoadRoundReadsTheStoredRoundWithMinusOneAsEmpty)
{
    ScoreEntry e = entry(QStringLiteral("9-holes (front)"), QStringLiteral("36"));
    e.type = 1;
    e.exclude = true;
    e.penalties = QStringLiteral("2");
    e.bunkers = QStringLiteral("0");
    fillHoles(e, 1, {4, 4, 3, 5, 4, 4, 3, 4, 5});
    const qint64 index = save(e, true);

    const std::optional<StoredRound> r =
        LoadRound(app.db(), index, last, first, kCourse, kTees, QDate(2026, 11, 22));
    ASSERT_TRUE(r.has_value());
    EXPECT_EQ(r->holes, QStringLiteral("9-holes (front)"));
    EXPECT_EQ(r->type, QStringLiteral("H"));
    EXPECT_EQ(r->used, QStringLiteral("E"));
    EXPECT_TRUE(r->details);
    EXPECT_EQ(r->score.toInt(), 36);
    EXPECT_EQ(r->rating.toDouble(), 35.7);
    EXPECT_EQ(r->slope.toInt(), 124);
    EXPECT_EQ(r->stats, (QStringList{"2", "", "0", "", ""}));

    EXPECT_FALSE(LoadRound(app.db(), index, last, first, kCourse, kTees, QDate(2026, 11, 23)).has_value());
    EXPECT_FALSE(
        LoadRound(app.db(), index + 1, last, first, kCourse, kTees, QDate(2026, 11, 22)).has_value());
}

TEST_F(ScoreData, LoadHoleDetailsFillsScoresPuttsAndFairwaysByHole)
{
    ScoreEntry e = entry(QStringLiteral("9-holes (back)"), QStringLiteral("38"));
    fillHoles(e, 10, {5, 4, 3, 6, 4, 4, 3, 4, 5}, {2, 1, 2, 3, 2, 2, 2, 2, 2}); // 36 + 1 + 1 = 38
    e.fairway[9] = true;
    e.fairway[11] = true; // par 3, hidden: stored -1, read back unchecked
    const qint64 index = save(e, true);

    ScoreEntry loaded;
    LoadHoleDetails(app.db(), index, last, first, kCourse, kTees, QDate(2026, 11, 22), loaded);
    EXPECT_EQ(loaded.score.mid(0, 9), QStringList(9, QString()));
    EXPECT_EQ(loaded.score.mid(9), (QStringList{"5", "4", "3", "6", "4", "4", "3", "4", "5"}));
    EXPECT_EQ(loaded.putts.mid(9), (QStringList{"2", "1", "2", "3", "2", "2", "2", "2", "2"}));
    EXPECT_TRUE(loaded.fairway.at(9));
    EXPECT_FALSE(loaded.fairway.at(10));
    EXPECT_FALSE(loaded.fairway.at(11));
}

TEST_F(ScoreData, HoleParsAndFairwayBoxesFollowTheCourseRows)
{
    CourseSpec nine;
    nine.name = QStringLiteral("Short Links");
    nine.tees = kTees;
    nine.pars = {3, 4, 5, 4, 3, 4, 5, 4, 4}; // holes 1 to 9 only
    addCourse(app.db(), nine);

    const QVector<qint16> pars = LoadHolePars(app.db(), nine.name, kTees, QVector<qint16>(18, 7));
    EXPECT_EQ(pars.mid(0, 9), (QVector<qint16>{3, 4, 5, 4, 3, 4, 5, 4, 4}));
    EXPECT_EQ(pars.mid(9, 9), QVector<qint16>(9, 7)) << "holes without a row keep what they held";

    const QVector<bool> boxes = FairwayBoxes(app.db(), nine.name, kTees);
    EXPECT_EQ(boxes.mid(0, 9), (QVector<bool>{false, true, true, true, false, true, true, true, true}));
    EXPECT_EQ(boxes.mid(9), QVector<bool>(9, false));

    const TeesHoles holes = LoadTeesHoles(app.db(), nine.name, kTees);
    EXPECT_EQ(holes.rows, 9);
    EXPECT_TRUE(holes.hole1);
    EXPECT_FALSE(holes.hole10);
    EXPECT_FALSE(holes.hole11);
    const TeesHoles full = LoadTeesHoles(app.db(), kCourse, kTees);
    EXPECT_EQ(full.rows, 18);
    EXPECT_TRUE(full.hole10 && full.hole11);
}

} // namespace
