#include "CourseEntries.h"
#include "Fixtures.h"
#include "TestApp.h"
#include "course/CourseData.h"
#include "course/CourseTotals.h"

#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

const char *const kLogSql =
    "SELECT CourseName, Tees, OverallRating, OverallSlope, FrontRating, FrontSlope, BackRating, BackSlope, "
    "YardsIn, YardsOut, TotalYards, ParIn, ParOut, TotalPar FROM CourseLog WHERE CourseName = ? AND Tees = ?";
const char *const kHolesSql =
    "SELECT Hole, PAR, Handicap, Yards FROM CourseDetails WHERE CourseName = ? AND Tees = ? ORDER BY Hole";

class CourseData : public ::testing::Test {
protected:
    QStringList logRow(const QString &course = "Pebble Creek", const QString &tees = "White")
    {
        return columnValues(app.db(), QLatin1String(kLogSql), {course, tees});
    }
    QStringList holes(const QString &course = "Pebble Creek", const QString &tees = "White")
    {
        return columnValues(app.db(), QLatin1String(kHolesSql), {course, tees});
    }
    int rows(const char *sql)
    {
        return Scalar(app.db(), QLatin1String(sql)).toInt();
    }
    TestApp app;
};

} // namespace

TEST_F(CourseData, NewWithDetailsWritesEveryColumnAndEighteenHoleRows)
{
    CourseEntry e = CompleteCourseEntry();
    DeriveTotals(e);
    EXPECT_EQ(SaveNewCourse(app.db(), e, true), 1);
    EXPECT_EQ(logRow(), (QStringList{"Pebble Creek|White|71.5|125|35.7|124|35.8|126|3870|3060|6930|36|36|72"}));
    const QStringList h = holes();
    ASSERT_EQ(h.size(), 18);
    EXPECT_EQ(h.first(), QStringLiteral("1|4|1|300"));
    EXPECT_EQ(h.last(), QStringLiteral("18|5|18|470"));
}

TEST_F(CourseData, NewWithDetailsAndABlankBackNineLeavesTheBackTotalsUnwritten)
{
    CourseEntry e = CompleteCourseEntry();
    BlankNine(e, 9);
    e.backRating.clear();
    e.backSlope.clear();
    DeriveTotals(e);
    SaveNewCourse(app.db(), e, true);
    // YardsIn and ParIn unwritten; the totals hold the front nine's sums.
    EXPECT_EQ(logRow(), (QStringList{"Pebble Creek|White|71.5|125|35.7|124||||3060|3060||36|36"}));
    EXPECT_EQ(holes().size(), 9);
    EXPECT_EQ(rows("SELECT MAX(Hole) FROM CourseDetails"), 9);
}

TEST_F(CourseData, NewWithoutDetailsWritesTheNamesAndRatingsOnly)
{
    CourseEntry e = CompleteCourseEntry();
    e.frontRating.clear();
    e.frontSlope.clear();
    e.backRating.clear();
    e.backSlope.clear();
    DeriveTotals(e);
    SaveNewCourse(app.db(), e, false);
    EXPECT_EQ(logRow(), (QStringList{"Pebble Creek|White|71.5|125||||||||||"}));
    EXPECT_TRUE(Scalar(app.db(), "SELECT TotalPar FROM CourseLog").isNull());
    EXPECT_EQ(rows("SELECT COUNT(*) FROM CourseDetails"), 0) << "whatever the grid held";
}

TEST_F(CourseData, NewDropsASlopeEnteredWithoutItsRatingAndWritesABlankSlopeBesideARating)
{
    CourseEntry e = CompleteCourseEntry();
    e.frontRating.clear();   // the slope 124 beside it goes unwritten
    e.backSlope.clear();     // the rating 35.8 is written with its blank slope
    SaveNewCourse(app.db(), e, false);
    EXPECT_EQ(logRow(), (QStringList{"Pebble Creek|White|71.5|125|||35.8|||||||"}));
}

TEST_F(CourseData, NewCountsEverySetOfTeesNotCourses)
{
    SaveNewCourse(app.db(), CompleteCourseEntry("Pebble Creek", "White"), false);
    EXPECT_EQ(SaveNewCourse(app.db(), CompleteCourseEntry("Pebble Creek", "Blue"), false), 2);
    EXPECT_EQ(CountCourseRows(app.db()), 2);
    EXPECT_EQ(CourseNames(app.db()), QStringList{"Pebble Creek"});
}

TEST_F(CourseData, ATextThatIsNotANumberFailsBeforeAnythingIsWritten)
{
    CourseEntry e = CompleteCourseEntry();
    e.overallRating = QStringLiteral("7.2.3");
    DeriveTotals(e);
    try {
        SaveNewCourse(app.db(), e, true);
        ADD_FAILURE() << "saved";
    } catch (const QuillonError &error) {
        EXPECT_EQ(error.number(), QuillonError::TypeMismatch);
    }
    EXPECT_EQ(rows("SELECT COUNT(*) FROM CourseLog"), 0);
    EXPECT_EQ(rows("SELECT COUNT(*) FROM CourseDetails"), 0);

    e = CompleteCourseEntry();
    DeriveTotals(e);
    SaveNewCourse(app.db(), e, true);
    e.editMode = true;
    e.yards[4] = QStringLiteral("4x");
    e.frontRating = QStringLiteral("36.0");
    try {
        SaveEditedCourse(app.db(), e, true);
        ADD_FAILURE() << "saved";
    } catch (const QuillonError &error) {
        EXPECT_EQ(error.number(), QuillonError::TypeMismatch);
    }
    EXPECT_EQ(Scalar(app.db(), "SELECT FrontRating FROM CourseLog").toDouble(), 35.7) << "nothing changed";
}

TEST_F(CourseData, EditWithTheFrontRatingAndSlopeBlankedWritesZeroes)
{
    CourseEntry e = CompleteCourseEntry();
    DeriveTotals(e);
    SaveNewCourse(app.db(), e, true);
    e.editMode = true;
    e.frontRating.clear();
    e.frontSlope.clear();
    SaveEditedCourse(app.db(), e, false);
    EXPECT_EQ(logRow(), (QStringList{"Pebble Creek|White|71.5|125|0|0|35.8|126|3870|3060|6930|36|36|72"}));
    const CourseCard card = LoadCourseCard(app.db(), "Pebble Creek", "White");
    EXPECT_FALSE(IsEntered(card.log.value("FrontRating")));
    EXPECT_FALSE(IsEntered(card.log.value("FrontSlope")));
    EXPECT_TRUE(IsEntered(card.log.value("BackSlope")));
}

TEST_F(CourseData, EditWithDetailsAndTheBackNineBlankedDeletesItsHoles)
{
    CourseEntry e = CompleteCourseEntry();
    DeriveTotals(e);
    SaveNewCourse(app.db(), e, true);
    e.editMode = true;
    BlankNine(e, 9);
    DeriveTotals(e);
    SaveEditedCourse(app.db(), e, true);
    EXPECT_EQ(logRow(), (QStringList{"Pebble Creek|White|71.5|125|35.7|124|35.8|126|0|3060|3060|0|36|36"}));
    EXPECT_EQ(holes().size(), 9);
    EXPECT_EQ(rows("SELECT COUNT(*) FROM CourseDetails WHERE Hole > 9"), 0);
}

TEST_F(CourseData, EditWithDetailsAddsChangesAndRemovesHoleRows)
{
    CourseEntry e = CompleteCourseEntry();
    BlankNine(e, 9);
    for (int i = 0; i < 9; ++i)
        e.hdcp[i] = QString::number(i + 1);
    DeriveTotals(e);
    SaveNewCourse(app.db(), e, true);

    e = CompleteCourseEntry();
    e.editMode = true;
    e.par[2] = QStringLiteral("4");  // changed
    e.yards[2] = QStringLiteral("333");
    DeriveTotals(e);
    SaveEditedCourse(app.db(), e, true);
    const QStringList h = holes();
    ASSERT_EQ(h.size(), 18);
    EXPECT_EQ(h.at(2), QStringLiteral("3|4|3|333"));
    EXPECT_EQ(h.at(9), QStringLiteral("10|4|10|390"));
    EXPECT_EQ(Scalar(app.db(), "SELECT TotalPar FROM CourseLog").toInt(), 73);
}

TEST_F(CourseData, EditWithoutDetailsLeavesTotalsAndHolesAsTheyWere)
{
    CourseEntry e = CompleteCourseEntry();
    DeriveTotals(e);
    SaveNewCourse(app.db(), e, true);
    e.editMode = true;
    for (int i = 0; i < 18; ++i)
        e.par[i] = e.yards[i] = e.hdcp[i] = QString();
    DeriveTotals(e);
    e.overallRating = QStringLiteral("72.0");
    SaveEditedCourse(app.db(), e, false);
    EXPECT_EQ(logRow(), (QStringList{"Pebble Creek|White|72|125|35.7|124|35.8|126|3870|3060|6930|36|36|72"}));
    EXPECT_EQ(holes().size(), 18);
}

TEST_F(CourseData, EditWithNewTeesAddsASetAndLeavesTheOldOne)
{
    CourseEntry e = CompleteCourseEntry();
    DeriveTotals(e);
    SaveNewCourse(app.db(), e, true);
    const QStringList whiteBefore = logRow();
    const QStringList whiteHoles = holes();

    e.editMode = true;
    e.tees = QStringLiteral("Blue");
    for (int i = 0; i < 18; ++i)
        e.yards[i] = QString::number(350 + 10 * i);
    e.overallRating = QStringLiteral("73.1");
    DeriveTotals(e);
    SaveEditedCourse(app.db(), e, true);

    EXPECT_EQ(logRow(), whiteBefore);
    EXPECT_EQ(holes(), whiteHoles);
    EXPECT_EQ(logRow("Pebble Creek", "Blue"),
              (QStringList{"Pebble Creek|Blue|73.1|125|35.7|124|35.8|126|4320|3510|7830|36|36|72"}));
    EXPECT_EQ(holes("Pebble Creek", "Blue").size(), 18);
    EXPECT_EQ(TeesOf(app.db(), "Pebble Creek"), (QStringList{"White", "Blue"})) << "in the order entered";
}

TEST_F(CourseData, ANameWithAnApostropheIsStoredFoundAndDeleted)
{
    CourseEntry e = CompleteCourseEntry(QStringLiteral("St. Andrew's"), QStringLiteral("Old 'Tom' Tees"));
    DeriveTotals(e);
    SaveNewCourse(app.db(), e, true);
    EXPECT_TRUE(TeesExist(app.db(), "St. Andrew's", "Old 'Tom' Tees"));
    EXPECT_EQ(CourseNames(app.db()), QStringList{"St. Andrew's"});
    EXPECT_EQ(LoadCourseCard(app.db(), "St. Andrew's", "Old 'Tom' Tees").par.at(17).toInt(), 5);
    DeleteTees(app.db(), "St. Andrew's", "Old 'Tom' Tees");
    EXPECT_EQ(CountCourseRows(app.db()), 0);
    EXPECT_EQ(rows("SELECT COUNT(*) FROM CourseDetails"), 0);
}

TEST_F(CourseData, ExistingTeesAreFoundAsTheDatabaseComparesThemWithoutCase)
{
    SaveNewCourse(app.db(), CompleteCourseEntry(), false);
    EXPECT_TRUE(TeesExist(app.db(), "pebble creek", "WHITE"));
    EXPECT_FALSE(TeesExist(app.db(), "Pebble Creek", "White "));
    EXPECT_FALSE(TeesExist(app.db(), "Pebble Creek", "Blue"));
}

TEST_F(CourseData, ScoresOfAnyGolferHoldTheTees)
{
    SaveNewCourse(app.db(), CompleteCourseEntry(), false);
    EXPECT_FALSE(TeesHaveScores(app.db(), "Pebble Creek", "White"));
    RoundSpec r;
    r.last = QStringLiteral("Sorenstam");
    r.first = QStringLiteral("Annika");
    addRound(app.db(), r);
    EXPECT_TRUE(TeesHaveScores(app.db(), "Pebble Creek", "White"));
    EXPECT_FALSE(TeesHaveScores(app.db(), "Pebble Creek", "Blue"));
}

TEST_F(CourseData, StoredValuesReadAsTheBoxesShowThem)
{
    EXPECT_EQ(StoredText(QVariant(71.0)), QStringLiteral("71"));
    EXPECT_EQ(StoredText(QVariant(71.5)), QStringLiteral("71.5"));
    EXPECT_EQ(StoredText(QVariant(113)), QStringLiteral("113"));
    EXPECT_EQ(StoredText(QVariant()), QString());
    EXPECT_FALSE(IsEntered(QVariant()));
    EXPECT_FALSE(IsEntered(QVariant(0)));
    EXPECT_FALSE(IsEntered(QVariant(0.0)));
    EXPECT_TRUE(IsEntered(QVariant(0.1)));
}
