#pragma once

#include <QStringList>

class QBoxLayout;
class QComboBox;
class QWidget;

namespace quillon {

// The "Course:" and "Tees:" lists that head the views of one course and tees, in a row of
// their own: dbcboCourses and cboTees.
struct CourseTeesLists {
    QComboBox *courses = nullptr;
    QComboBox *tees = nullptr;
};
CourseTeesLists AddCourseTeesRow(QWidget *owner, QBoxLayout *into);

// Offer a course's sets of tees in `list`, the first one chosen.  A course without any is
// missing its data, which the user is told under `title`; false then.
bool OfferTees(QComboBox &list, const QStringList &tees, const QString &title);

} // namespace quillon
