#pragma once

#include "CourseEntry.h"
#include "store/basDatabase.h"

#include <QStringList>
#include <QVariant>
#include <QVector>

namespace quillon {

// The names of all courses, in name order.
QStringList CourseNames(Connection &c);
// The sets of tees of a course, in the order they were entered.
QStringList TeesOf(Connection &c, const QString &course);
bool TeesExist(Connection &c, const QString &course, const QString &tees);
// The number of CourseLog rows, so of sets of tees.
qint16 CountCourseRows(Connection &c);
// Whether any golfer's round was played from these tees.
bool TeesHaveScores(Connection &c, const QString &course, const QString &tees);
// Remove a set of tees and its hole rows.
void DeleteTees(Connection &c, const QString &course, const QString &tees);

// One set of tees as stored: the CourseLog values by column name and the hole values, Null
// where nothing is stored.
struct CourseCard {
    static const QStringList &logColumns(); // OverallRating ... TotalYards
    QVariantMap log;
    QVector<QVariant> par = QVector<QVariant>(18);
    QVector<QVariant> yards = QVector<QVariant>(18);
    QVector<QVariant> hdcp = QVector<QVariant>(18);
};
CourseCard LoadCourseCard(Connection &c, const QString &course, const QString &tees);

// A stored value is "not entered" when it is 0 or Null.
bool IsEntered(const QVariant &value);
// A stored number as an entry box shows it.
QString StoredText(const QVariant &value);

// Write a new set of tees from the form's texts; returns the count of CourseLog rows after it.
// A rating that is blank leaves its rating and slope unwritten; without details no totals and
// no hole rows are written.  A text that is not a number fails before anything is written.
qint16 SaveNewCourse(Connection &c, const CourseEntry &entry, bool withDetails);
// Write an edited set of tees (or a further set of an existing course): blank boxes write 0;
// with details the hole rows are added, changed or deleted to match the grid.
void SaveEditedCourse(Connection &c, const CourseEntry &entry, bool withDetails);

} // namespace quillon
