#pragma once

#include <QDialog>

class QComboBox;
class QListWidget;
class QPushButton;

namespace quillon {

// Removes one or more sets of tees of one course; tees that any golfer's score uses are
// refused.  A course goes with its last set of tees.
class frmDeleteCourse : public QDialog {
    Q_OBJECT
public:
    explicit frmDeleteCourse(QWidget *parent = nullptr);
    static frmDeleteCourse &instance();

    // Show the dialog modally over the frame, or say there is nothing to delete.
    void DeleteCourse();
    void cmdOK_Click();

private:
    void courseChosen();
    // After a delete: the view again, or the state of an empty course list.
    void afterDelete();

    QComboBox *m_dblstCourses = nullptr;
    QListWidget *m_lstTees = nullptr;
    QPushButton *m_cmdOK = nullptr;
    QPushButton *m_cmdCancel = nullptr;
    bool m_deleted = false;
};

} // namespace quillon
