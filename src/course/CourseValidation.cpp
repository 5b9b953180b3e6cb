#include "CourseValidation.h"

#include "core/Convert.h"
#include "core/Int16.h"

namespace quillon {

namespace {

// The blank count and handicap sum of one nine, hole by hole.  A nine is valid only when all
// its 27 boxes are filled or all are blank.
struct NineCheck {
    bool valid = true;
    bool details = false;
    Int16 hdcpSum;
};

NineCheck checkNine(const CourseEntry &e, int from)
{
    NineCheck nine;
    int blanks = 0;
    for (int hole = 0; hole < 9; ++hole) {
        const int i = from + hole;
        for (const QString *box : {&e.par.at(i), &e.hdcp.at(i), &e.yards.at(i)})
            if (box->isEmpty())
                ++blanks;
        if (!e.hdcp.at(i).isEmpty())
            nine.hdcpSum += CIntText(e.hdcp.at(i));
        if (blanks == 0) {
            nine.details = true;
        } else if (blanks == 3 * (hole + 1)) {
            nine.details = false;
        } else {
            nine.valid = false;
            return nine;
        }
    }
    return nine;
}

bool outOfRange(const QString &slope)
{
    const double value = CDbl(slope);
    return value < 55 || value > 155;
}

// The tests of one nine's rating and slope: 0 when they pass.
int checkPair(const QString &rating, const QString &slope, int ratingBlank, int slopeBlank, int slopeRange)
{
    if (rating.isEmpty())
        return ratingBlank;
    if (slope.isEmpty())
        return slopeBlank;
    if (outOfRange(slope))
        return slopeRange;
    return 0;
}

int checkFront(const CourseEntry &e)
{
    return checkPair(e.frontRating, e.frontSlope, -8, -9, -12);
}

int checkBack(const CourseEntry &e)
{
    return checkPair(e.backRating, e.backSlope, -10, -11, -13);
}

} // namespace

int ValidateCourse(const CourseEntry &e, const TeesLookup &teesExist)
{
    if (e.course.isEmpty())
        return -1;
    if (e.tees.isEmpty())
        return -2;
    if (!e.editMode && teesExist(e.course, e.tees))
        return -17;

    const NineCheck front = checkNine(e, 0);
    if (!front.valid)
        return -5;
    const NineCheck back = checkNine(e, 9);
    if (!back.valid)
        return -14;

    // The sum is the whole test for repeated handicaps: the values are not compared.
    if (front.details && back.details) {
        if ((front.hdcpSum + back.hdcpSum).value() != 171)
            return -7;
    } else if (front.details || back.details) {
        if ((front.details ? front.hdcpSum : back.hdcpSum).value() != 45)
            return -7;
    }

    if (e.overallRating.isEmpty() && e.frontRating.isEmpty() && e.backRating.isEmpty())
        return -15;
    if (e.overallSlope.isEmpty() && e.frontSlope.isEmpty() && e.backSlope.isEmpty())
        return -16;

    const bool frontGiven = !e.frontRating.isEmpty() || !e.frontSlope.isEmpty();
    const bool backGiven = !e.backRating.isEmpty() || !e.backSlope.isEmpty();
    if (!e.overallRating.isEmpty()) {
        if (e.overallSlope.isEmpty())
            return -4;
        if (outOfRange(e.overallSlope))
            return -6;
        // With front values present the back values are not looked at.
        if (frontGiven) {
            if (const int r = checkFront(e))
                return r;
        } else if (backGiven) {
            if (const int r = checkBack(e))
                return r;
        }
    } else {
        if (frontGiven)
            if (const int r = checkFront(e))
                return r;
        if (backGiven)
            if (const int r = checkBack(e))
                return r;
    }

    if (!e.frontSlope.isEmpty() && !e.backSlope.isEmpty()) {
        if (e.overallSlope.isEmpty())
            return -4;
        if (e.overallRating.isEmpty())
            return -3;
    }
    return front.details || back.details ? 0 : 1;
}

QString SaveCourseTitle()
{
    return QStringLiteral("Save Course Data");
}

CourseOutcome CourseOutcomeFor(int outcome, bool editMode)
{
    const auto stop = [](const char *message, const char *focus) {
        return CourseOutcome{CourseSaveStep::Stop, QString::fromLatin1(message), MsgIcon::Exclamation,
                             QString::fromLatin1(focus)};
    };
    const auto missing = [](const char *nine) {
        return CourseOutcome{CourseSaveStep::AskThenSaveBare,
                             QStringLiteral("Hole details for the %1 are missing.  Press OK to save course data "
                                            "WITHOUT details or Cancel to enter missing details.")
                                 .arg(QLatin1String(nine)),
                             MsgIcon::None, QString()};
    };
    switch (outcome) {
    case -1: return stop("Please enter the course name.", editMode ? "cboCourses" : "txtCourse");
    case -2: return stop("Please enter the tees.", "cboTees");
    case -3: return stop("Please enter the overall (18-hole) course rating.", "txtOverallRating");
    case -4: return stop("Please enter the overall (18-hole) course slope.", "txtOverallSlope");
    case -5: return missing("front 9");
    case -6:
        return stop("Invalid overall (18-hole) slope.  Please enter a value from 55 to 155.", "txtOverallSlope");
    case -7:
        return stop("Handicap error!  Please make sure that the same handicap has not been assigned to more "
                    "than one hole.",
                    "");
    case -8:
    case -9:
    case -10:
    case -11:
    case 1: return CourseOutcome{CourseSaveStep::SaveWithoutDetails, QString(), MsgIcon::None, QString()};
    case -12: return stop("Invalid front 9 slope.  Please enter a value from 55 to 155.", "txtFrontSlope");
    case -13: return stop("Invalid back 9 slope.  Please enter a value from 55 to 155.", "txtBackSlope");
    case -14: return missing("back 9");
    case -15:
        return stop("Please enter course rating information for either the overall (18-hole) course, the front "
                    "9, or the back 9.",
                    "txtOverallRating");
    case -16:
        // The focus goes to the rating box, not to a slope box.
        return stop("Please enter course slope information for either the overall (18-hole) course, the front "
                    "9 or the back 9.",
                    "txtOverallRating");
    case -17:
        return stop("Course already exists.  Please change the course name or select a different set of tees.",
                    "txtCourse");
    default: return CourseOutcome{CourseSaveStep::SaveWithDetails, QString(), MsgIcon::None, QString()};
    }
}

} // namespace quillon
