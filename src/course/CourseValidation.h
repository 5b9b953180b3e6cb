#pragma once

#include "CourseEntry.h"
#include "platform/Platform.h"

#include <QString>
#include <functional>

namespace quillon {

// Whether a course already has a set of tees of that name (the database's comparison).
using TeesLookup = std::function<bool(const QString &course, const QString &tees)>;

// The first problem of a course entry, as an outcome code: -1 to -17 for the problems, 0 to
// save with hole details, 1 to save without.  Only texts are tested, untrimmed; a slope that
// is not a number throws a type mismatch.
int ValidateCourse(const CourseEntry &entry, const TeesLookup &teesExist);

// What the Save button does with an outcome.
enum class CourseSaveStep {
    Stop,              // show the message, move the focus, save nothing
    AskThenSaveBare,   // OK saves without hole details, Cancel stops
    SaveWithDetails,
    SaveWithoutDetails,
};

struct CourseOutcome {
    CourseSaveStep step = CourseSaveStep::Stop;
    QString message; // empty: nothing is shown
    MsgIcon icon = MsgIcon::None;
    // The control that takes the focus after the message; empty: the focus stays.
    QString focus;
};

// The treatment of an outcome; the title of every message is "Save Course Data".
CourseOutcome CourseOutcomeFor(int outcome, bool editMode);

QString SaveCourseTitle();

} // namespace quillon
