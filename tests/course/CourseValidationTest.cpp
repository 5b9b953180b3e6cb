#include "CourseEntries.h"
#include "course/CourseValidation.h"

#include "core/QuillonError.h"

#include <functional>
#include <gtest/gtest.h>

using namespace quillon;
using namespace quillon::test;

namespace {

void blankGrid(CourseEntry &e)
{
    BlankNine(e, 0);
    BlankNine(e, 9);
}

bool noTees(const QString &, const QString &)
{
    return false;
}

int validate(const CourseEntry &e, const TeesLookup &exists = noTees)
{
    return ValidateCourse(e, exists);
}

struct Case {
    const char *name;
    std::function<void(CourseEntry &)> change;
    int outcome;
};

} // namespace

TEST(ValidateCourse, EveryOutcomeInItsOrderOfPrecedence)
{
    const Case cases[] = {
        {"a complete card saves with details", [](CourseEntry &) {}, 0},
        {"blank course", [](CourseEntry &e) { e.course.clear(); }, -1},
        {"blank course comes before blank tees", [](CourseEntry &e) { e.course.clear(); e.tees.clear(); }, -1},
        {"blank tees", [](CourseEntry &e) { e.tees.clear(); }, -2},
        {"names are not trimmed: a blank is a name", [](CourseEntry &e) { e.course = " "; e.tees = " "; }, 0},
        {"one blank par on the front", [](CourseEntry &e) { e.par[4].clear(); }, -5},
        {"one blank yardage on the front", [](CourseEntry &e) { e.yards[0].clear(); }, -5},
        {"one blank handicap on the front", [](CourseEntry &e) { e.hdcp[8].clear(); }, -5},
        {"a front nine filled on its first hole only", [](CourseEntry &e) { BlankNine(e, 0); e.par[0] = "4"; e.yards[0] = "400"; e.hdcp[0] = "1"; }, -5},
        {"one blank box on the back", [](CourseEntry &e) { e.yards[17].clear(); }, -14},
        {"the front prompt comes before the back one", [](CourseEntry &e) { e.par[1].clear(); e.par[10].clear(); }, -5},
        {"a missing nine comes before missing ratings", [](CourseEntry &e) { BlankRatings(e); e.par[3].clear(); }, -5},
        {"18 handicaps summing to 170", [](CourseEntry &e) { e.hdcp[17] = "17"; }, -7},
        {"18 handicaps that repeat but sum to 171", [](CourseEntry &e) { e.hdcp[0] = "2"; e.hdcp[1] = "1"; e.hdcp[2] = "2"; e.hdcp[3] = "5"; }, 0},
        {"the front alone summing to 45", [](CourseEntry &e) { BlankNine(e, 9); }, 0},
        {"the front alone with 1, 1, 3 in place of 2, 2, 2", [](CourseEntry &e) { BlankNine(e, 9); e.hdcp[0] = "1"; e.hdcp[1] = "1"; e.hdcp[2] = "3"; e.hdcp[3]="2"; e.hdcp[4]="5"; e.hdcp[5]="6"; e.hdcp[6]="7"; e.hdcp[7]="8"; e.hdcp[8]="12"; }, 0},
        {"the back alone with its 10 to 18", [](CourseEntry &e) { BlankNine(e, 0); }, -7},
        {"the back alone summing to 45", [](CourseEntry &e) { BlankNine(e, 0); for (int i = 9; i < 18; ++i) e.hdcp[i] = QString::number(i - 8); }, 0},
        {"the handicap error comes before missing ratings", [](CourseEntry &e) { BlankRatings(e); e.hdcp[0] = "18"; }, -7},
        {"no rating at all", [](CourseEntry &e) { BlankRatings(e); e.overallSlope = "125"; }, -15},
        {"no slope at all", [](CourseEntry &e) { BlankRatings(e); e.overallRating = "71.5"; }, -16},
        {"missing ratings come before missing slopes", [](CourseEntry &e) { BlankRatings(e); }, -15},
        {"overall rating without overall slope", [](CourseEntry &e) { e.overallSlope.clear(); }, -4},
        {"overall slope 54", [](CourseEntry &e) { e.overallSlope = "54"; }, -6},
        {"overall slope 156", [](CourseEntry &e) { e.overallSlope = "156"; }, -6},
        {"overall slope 55 is valid", [](CourseEntry &e) { e.overallSlope = "55"; }, 0},
        {"overall slope 155 is valid", [](CourseEntry &e) { e.overallSlope = "155"; }, 0},
        {"with an overall pair: front slope without front rating", [](CourseEntry &e) { e.frontRating.clear(); }, -8},
        {"with an overall pair: front rating without front slope", [](CourseEntry &e) { e.frontSlope.clear(); }, -9},
        {"with an overall pair: front slope 200", [](CourseEntry &e) { e.frontSlope = "200"; }, -12},
        {"with overall and front pairs the back slope 200 is not looked at", [](CourseEntry &e) { e.backSlope = "200"; }, 0},
        {"with overall and front pairs a back rating alone is not looked at", [](CourseEntry &e) { e.backSlope.clear(); }, 0},
        {"with an overall pair and no front: back slope without rating", [](CourseEntry &e) { e.frontRating.clear(); e.frontSlope.clear(); e.backRating.clear(); }, -10},
        {"with an overall pair and no front: back rating without slope", [](CourseEntry &e) { e.frontRating.clear(); e.frontSlope.clear(); e.backSlope.clear(); }, -11},
        {"with an overall pair and no front: back slope 40", [](CourseEntry &e) { e.frontRating.clear(); e.frontSlope.clear(); e.backSlope = "40"; }, -13},
        {"no overall rating: front 70.0 without slope and a complete back pair", [](CourseEntry &e) { e.overallRating.clear(); e.overallSlope.clear(); e.frontRating = "70.0"; e.frontSlope.clear(); }, -9},
        {"no overall rating: front pair fine, back slope 156", [](CourseEntry &e) { e.overallRating.clear(); e.overallSlope.clear(); e.backSlope = "156"; }, -13},
        {"no overall rating: both pairs complete and no overall slope", [](CourseEntry &e) { e.overallRating.clear(); e.overallSlope.clear(); }, -4},
        {"overall rating given, both pairs complete, no overall slope", [](CourseEntry &e) { e.overallSlope.clear(); }, -4},
        {"both pairs complete with an overall slope but no overall rating", [](CourseEntry &e) { e.overallRating.clear(); }, -3},
        {"a front pair alone on a nine-hole card", [](CourseEntry &e) { BlankNine(e, 9); e.overallRating.clear(); e.overallSlope.clear(); e.backRating.clear(); e.backSlope.clear(); }, 0},
        {"a blank grid with a valid overall pair saves without details", [](CourseEntry &e) { blankGrid(e); e.frontRating.clear(); e.frontSlope.clear(); e.backRating.clear(); e.backSlope.clear(); }, 1},
        {"ratings have no range", [](CourseEntry &e) { e.overallRating = "7.2"; e.frontRating = "999"; }, 0},
    };
    for (const Case &c : cases) {
        CourseEntry e = CompleteCourseEntry();
        c.change(e);
        EXPECT_EQ(validate(e), c.outcome) << c.name;
    }
}

TEST(ValidateCourse, ExistingTeesAreRefusedInNewModeOnlyAndBeforeTheGrid)
{
    CourseEntry e = CompleteCourseEntry();
    e.par[0].clear(); // would be -5
    QStringList asked;
    const TeesLookup exists = [&](const QString &course, const QString &tees) {
        asked << course + "|" + tees;
        return true;
    };
    EXPECT_EQ(validate(e, exists), -17);
    EXPECT_EQ(asked, QStringList{"Pebble Creek|White"});

    e.editMode = true;
    asked.clear();
    EXPECT_EQ(validate(e, exists), -5);
    EXPECT_TRUE(asked.isEmpty());

    e.editMode = false;
    e.tees.clear();
    EXPECT_EQ(validate(e, exists), -2) << "the tees are asked for before the database is";
}

TEST(ValidateCourse, SameCourseNameWithOtherTeesIsAccepted)
{
    const TeesLookup onlyWhite = [](const QString &course, const QString &tees) {
        return course == "Pebble Creek" && tees == "White";
    };
    CourseEntry e = CompleteCourseEntry();
    e.tees = QStringLiteral("Blue");
    EXPECT_EQ(validate(e, onlyWhite), 0);
}

TEST(ValidateCourse, PastedTextThatIsNotANumberIsATypeMismatch)
{
    const std::function<void(CourseEntry &)> pastes[] = {
        [](CourseEntry &e) { e.overallSlope = "abc"; },
        [](CourseEntry &e) { e.frontSlope = "1x"; },
        [](CourseEntry &e) { e.hdcp[3] = "x"; },
    };
    for (const auto &paste : pastes) {
        CourseEntry e = CompleteCourseEntry();
        paste(e);
        try {
            validate(e);
            ADD_FAILURE() << "no failure";
        } catch (const QuillonError &error) {
            EXPECT_EQ(error.number(), QuillonError::TypeMismatch);
        }
    }
}

TEST(CourseOutcomeFor, MessagesIconsAndFocusOfEveryOutcome)
{
    struct Row {
        int outcome;
        CourseSaveStep step;
        const char *message;
        MsgIcon icon;
        const char *focus;
    };
    const Row rows[] = {
        {-1, CourseSaveStep::Stop, "Please enter the course name.", MsgIcon::Exclamation, "txtCourse"},
        {-2, CourseSaveStep::Stop, "Please enter the tees.", MsgIcon::Exclamation, "cboTees"},
        {-3, CourseSaveStep::Stop, "Please enter the overall (18-hole) course rating.", MsgIcon::Exclamation, "txtOverallRating"},
        {-4, CourseSaveStep::Stop, "Please enter the overall (18-hole) course slope.", MsgIcon::Exclamation, "txtOverallSlope"},
        {-5, CourseSaveStep::AskThenSaveBare, "Hole details for the front 9 are missing.  Press OK to save course data WITHOUT details or Cancel to enter missing details.", MsgIcon::None, ""},
        {-6, CourseSaveStep::Stop, "Invalid overall (18-hole) slope.  Please enter a value from 55 to 155.", MsgIcon::Exclamation, "txtOverallSlope"},
        {-7, CourseSaveStep::Stop, "Handicap error!  Please make sure that the same handicap has not been assigned to more than one hole.", MsgIcon::Exclamation, ""},
        {-8, CourseSaveStep::SaveWithoutDetails, "", MsgIcon::None, ""},
        {-9, CourseSaveStep::SaveWithoutDetails, "", MsgIcon::None, ""},
        {-10, CourseSaveStep::SaveWithoutDetails, "", MsgIcon::None, ""},
        {-11, CourseSaveStep::SaveWithoutDetails, "", MsgIcon::None, ""},
        {-12, CourseSaveStep::Stop, "Invalid front 9 slope.  Please enter a value from 55 to 155.", MsgIcon::Exclamation, "txtFrontSlope"},
        {-13, CourseSaveStep::Stop, "Invalid back 9 slope.  Please enter a value from 55 to 155.", MsgIcon::Exclamation, "txtBackSlope"},
        {-14, CourseSaveStep::AskThenSaveBare, "Hole details for the back 9 are missing.  Press OK to save course data WITHOUT details or Cancel to enter missing details.", MsgIcon::None, ""},
        {-15, CourseSaveStep::Stop, "Please enter course rating information for either the overall (18-hole) course, the front 9, or the back 9.", MsgIcon::Exclamation, "txtOverallRating"},
        {-16, CourseSaveStep::Stop, "Please enter course slope information for either the overall (18-hole) course, the front 9 or the back 9.", MsgIcon::Exclamation, "txtOverallRating"},
        {-17, CourseSaveStep::Stop, "Course already exists.  Please change the course name or select a different set of tees.", MsgIcon::Exclamation, "txtCourse"},
        {0, CourseSaveStep::SaveWithDetails, "", MsgIcon::None, ""},
        {1, CourseSaveStep::SaveWithoutDetails, "", MsgIcon::None, ""},
    };
    for (const Row &r : rows) {
        const CourseOutcome o = CourseOutcomeFor(r.outcome, false);
        EXPECT_EQ(o.step, r.step) << r.outcome;
        EXPECT_EQ(o.message, QString::fromLatin1(r.message)) << r.outcome;
        EXPECT_EQ(o.icon, r.icon) << r.outcome;
        EXPECT_EQ(o.focus, QString::fromLatin1(r.focus)) << r.outcome;
    }
    EXPECT_EQ(CourseOutcomeFor(-1, true).focus, QStringLiteral("cboCourses"));
    EXPECT_EQ(SaveCourseTitle(), QStringLiteral("Save Course Data"));
}
