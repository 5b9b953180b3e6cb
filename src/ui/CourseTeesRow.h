#pragma once

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

} // namespace quillon
