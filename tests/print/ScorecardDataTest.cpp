#include "print/ScorecardData.h"

#include "Fixtures.h"
#include "ScorecardFixtures.h"
#include "TestApp.h"
#include "TestPrinting.h"
#include "core/QuillonError.h"

#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

const QString kCourse = QStringLiteral("Pebble Creek");
const QString kTees = QStringLiteral("White");

class ScorecardDataTest : public ::testing::Test {
protected:
    // Set one column of one hole row of the fixture's tees.
    void setHole(int hole, const char *column, const QVariant &value)
    {
        Exec(app.db(),
             QStringLiteral("UPDATE CourseDetails SET %1 = ? WHERE CourseName = ? AND Tees = ? AND Hole = ?")
                 .arg(QLatin1String(column)),
             {value, kCourse, kTees, hole});
    }
    void setLog(const char *column, const QVariant &value)
    {
        Exec(app.db(),
             QStringLiteral("UPDATE CourseLog SET %1 = ? WHERE CourseName = ? AND Tees = ?")
                 .arg(QLatin1String(column)),
             {value, kCourse, kTees});
    }
    ScorecardData read() { return ReadScorecard(app.db(), kCourse, kTees); }

    TestApp app;
};

// Pars of the fixture course: par 3 on holes 3, 7, 12 and 16.
const QVector<int> kPars = CourseSpec().pars;

} // namespace

TEST_F(ScorecardDataTest, RatingsStandAsStoredWithTheirSlopes)
{
    addCourse(app.db());
    const ScorecardData card = read();
    EXPECT_EQ(card.frontRating, QStringLiteral("35.7 / 124"));
    EXPECT_EQ(card.backRating, QStringLiteral("35.8 / 126"));
    EXPECT_EQ(card.overallRating, QStringLiteral("71.5 / 125"));
}

TEST_F(ScorecardDataTest, ARatingOfZeroOrNullLeavesItsLabelBlankAndANullSlopeStandsAsNothing)
{
    addCourse(app.db());
    setLog("FrontRating", 0);
    setLog("BackRating", QVariant());
    setLog("OverallRating", 72);
    setLog("OverallSlope", QVariant());
    const ScorecardData card = read();
    EXPECT_EQ(card.frontRating, QString());
    EXPECT_EQ(card.backRating, QString());
    EXPECT_EQ(card.overallRating, QStringLiteral("72 / "));
}

TEST_F(ScorecardDataTest, ParSumsComeFromCourseLogNotFromTheHoles)
{
    addCourse(app.db());
    setLog("ParOut", 35);
    setLog("ParIn", 0);
    setLog("TotalPar", QVariant());
    const ScorecardData card = read();
    EXPECT_EQ(card.outPar, QStringLiteral("35")); // the holes make 36
    EXPECT_EQ(card.inPar, QString());
    EXPECT_EQ(card.totalPar, QString());
}

TEST_F(ScorecardDataTest, HolesStandUnderTheirOwnNumbers)
{
    addCourse(app.db());
    for (int hole = 1; hole <= 18; ++hole)
        setHole(hole, "Yards", 300 + hole * 10);
    const ScorecardData card = read();
    EXPECT_EQ(card.distance[0], QString());
    for (int hole = 1; hole <= 18; ++hole) {
        EXPECT_EQ(card.distance[hole], QString::number(300 + hole * 10)) << hole;
        EXPECT_EQ(card.par[hole], QString::number(kPars.at(hole - 1))) << hole;
        EXPECT_EQ(card.handicap[hole], QString::number(hole)) << hole;
    }
    EXPECT_EQ(card.course, kCourse);
    EXPECT_EQ(card.tees, kTees);
    EXPECT_TRUE(card.holesFound);
}

TEST_F(ScorecardDataTest, DistancesAreSummedFromTheHolesIntoOutInAndTotal)
{
    addCourse(app.db());
    for (int hole = 1; hole <= 18; ++hole)
        setHole(hole, "Yards", 300 + hole * 10);
    // What CourseLog holds is not what the card shows.
    setLog("YardsOut", 1);
    setLog("YardsIn", 1);
    setLog("TotalYards", 1);
    const ScorecardData card = read();
    EXPECT_EQ(card.outDistance, QStringLiteral("3150")); // 9 * 300 + 10 * (1 + ... + 9)
    EXPECT_EQ(card.inDistance, QStringLiteral("3960"));  // 9 * 300 + 10 * (10 + ... + 18)
    EXPECT_EQ(card.totalDistance, QStringLiteral("7110"));
}

TEST_F(ScorecardDataTest, ParThreeHolesHoldNAInTheFairwayRowAndNoOtherHoleDoes)
{
    addCourse(app.db());
    const ScorecardData card = read();
    for (int hole = 1; hole <= 18; ++hole)
        EXPECT_EQ(card.fairway[hole], kPars.at(hole - 1) == 3 ? QStringLiteral("N/A") : QString()) << hole;
    EXPECT_EQ(card.fairway[3], QStringLiteral("N/A"));
    EXPECT_EQ(card.fairway[4], QString());
}

TEST_F(ScorecardDataTest, ANineHoleCourseLeavesTheInColumnAndTheBackHolesBlankAndTheTotalIsTheOutSum)
{
    CourseSpec nine;
    nine.pars = {4, 4, 3, 5, 4, 4, 3, 4, 5};
    addCourse(app.db(), nine);
    const ScorecardData card = read();
    for (int hole = 10; hole <= 18; ++hole) {
        EXPECT_EQ(card.distance[hole], QString()) << hole;
        EXPECT_EQ(card.par[hole], QString()) << hole;
        EXPECT_EQ(card.handicap[hole], QString()) << hole;
        EXPECT_EQ(card.fairway[hole], QString()) << hole;
    }
    EXPECT_EQ(card.outDistance, QStringLiteral("3150")); // nine holes of 350
    EXPECT_EQ(card.inDistance, QString());
    EXPECT_EQ(card.inPar, QString()); // ParIn is 0
    EXPECT_EQ(card.outPar, QStringLiteral("36"));
    EXPECT_EQ(card.totalDistance, card.outDistance);
}

TEST_F(ScorecardDataTest, NullHoleValuesPrintNothingAndCountNothing)
{
    addCourse(app.db());
    setHole(5, "Yards", QVariant());
    setHole(3, "PAR", QVariant());
    setHole(8, "Handicap", QVariant());
    const ScorecardData card = read();
    EXPECT_EQ(card.distance[5], QString());
    EXPECT_EQ(card.outDistance, QStringLiteral("2800")); // eight holes of 350
    EXPECT_EQ(card.par[3], QString());
    EXPECT_EQ(card.fairway[3], QString()); // without a par there is no par 3
    EXPECT_EQ(card.handicap[8], QString());
    EXPECT_EQ(card.totalDistance, QStringLiteral("5950"));
}

TEST_F(ScorecardDataTest, OddStoredValuesPrintNothingAndCountNothing)
{
    addCourse(app.db());
    setHole(2, "Yards", QStringLiteral("long"));
    setHole(4, "PAR", QStringLiteral("x"));
    setHole(6, "Handicap", QStringLiteral("?"));
    setLog("FrontRating", QStringLiteral("n/a"));
    // A row of a hole the card has no column for, and one without a hole number.
    Exec(app.db(),
         QStringLiteral("INSERT INTO CourseDetails (CourseName, Tees, Hole, PAR, Handicap, Yards) VALUES "
                        "(?, ?, 19, 4, 19, 500), (?, ?, NULL, 4, 1, 500)"),
         {kCourse, kTees, kCourse, kTees});
    const ScorecardData card = read();
    EXPECT_EQ(card.distance[2], QString());
    EXPECT_EQ(card.par[4], QString());
    EXPECT_EQ(card.handicap[6], QString());
    EXPECT_EQ(card.frontRating, QString());
    EXPECT_EQ(card.outDistance, QStringLiteral("2800"));
    EXPECT_EQ(card.inDistance, QStringLiteral("3150"));
}

TEST_F(ScorecardDataTest, DecimalYardsAreKeptInTheSixteenBitCounterStepByStep)
{
    addCourse(app.db());
    // 0.5 rounds to the even neighbour at each step: 350.5 -> 350, 700.5 -> 700, ...
    for (int hole = 1; hole <= 9; ++hole)
        setHole(hole, "Yards", 350.5);
    const ScorecardData card = read();
    EXPECT_EQ(card.distance[1], QStringLiteral("350.5"));
    EXPECT_EQ(card.outDistance, QStringLiteral("3150"));
}

TEST_F(ScorecardDataTest, ANineSumBeyondTheCounterOverflows)
{
    addCourse(app.db());
    for (int hole = 1; hole <= 9; ++hole)
        setHole(hole, "Yards", 4000);
    EXPECT_EQ(errorNumberOf([&] { read(); }), 6);
}

TEST_F(ScorecardDataTest, ATotalBeyondTheCounterOverflows)
{
    addCourse(app.db());
    for (int hole = 1; hole <= 18; ++hole)
        setHole(hole, "Yards", hole == 1 || hole == 10 ? 20000 : 0);
    EXPECT_EQ(errorNumberOf([&] { read(); }), 6);
}

TEST_F(ScorecardDataTest, TeesWithoutHoleRowsGiveRatingsAndParSumsButNoNames)
{
    addCourse(app.db());
    addTeesWithoutHoles(app.db(), kCourse, QStringLiteral("Blue"));
    const ScorecardData card = ReadScorecard(app.db(), kCourse, QStringLiteral("Blue"));
    EXPECT_FALSE(card.holesFound);
    EXPECT_EQ(card.overallRating, QStringLiteral("73.1 / 131"));
    EXPECT_EQ(card.totalPar, QStringLiteral("72"));
    EXPECT_EQ(card.course, QString());
    EXPECT_EQ(card.tees, QString());
    EXPECT_EQ(card.outDistance, QString());
    EXPECT_EQ(card.totalDistance, QString());
    EXPECT_FALSE(TeesHaveHoles(app.db(), kCourse, QStringLiteral("Blue")));
    EXPECT_TRUE(TeesHaveHoles(app.db(), kCourse, kTees));
}

TEST_F(ScorecardDataTest, OnlyCoursesWithHoleRowsAreOfferedInNameOrder)
{
    addTees(app.db(), QStringLiteral("Briar Ridge"), QStringLiteral("White"));
    addTeesWithoutHoles(app.db(), QStringLiteral("Apple Hill"), QStringLiteral("White"));
    addCourse(app.db());
    addTees(app.db(), kCourse, QStringLiteral("Red")); // a second set of tees lists its course once
    EXPECT_EQ(CoursesWithHoles(app.db()), (QStringList{"Briar Ridge", "Pebble Creek"}));
}

TEST_F(ScorecardDataTest, NamesWithApostrophesAreBoundNotSpliced)
{
    const QString course = QStringLiteral("O'Brien's Links");
    const QString tees = QStringLiteral("Men's Blue");
    addTees(app.db(), course, tees);
    EXPECT_EQ(CoursesWithHoles(app.db()), QStringList{course});
    EXPECT_TRUE(TeesHaveHoles(app.db(), course, tees));
    const ScorecardData card = ReadScorecard(app.db(), course, tees);
    EXPECT_TRUE(card.holesFound);
    EXPECT_EQ(card.course, course);
    EXPECT_EQ(card.tees, tees);
    EXPECT_EQ(card.overallRating, QStringLiteral("71.5 / 125"));
    EXPECT_EQ(card.outDistance, QStringLiteral("3150"));
}

TEST_F(ScorecardDataTest, TheIncompleteDetailsMessageNamesTheTeesAndTheCourse)
{
    EXPECT_EQ(
        IncompleteDetailsMessage(QStringLiteral("O'Brien's Links"), QStringLiteral("Blue")),
        QStringLiteral("Course details for the Blue tees at O'Brien's Links are incomplete.  Unable to print "
                       "a scorecard for this course.  Please select Edit Course off the menu to enter course "
                       "details."));
}
