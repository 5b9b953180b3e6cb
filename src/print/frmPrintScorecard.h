#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QStringListModel;

namespace quillon {

class frmScorecard;

// Chooses what scorecard to print: one filled in with the data of a course and tees, or a
// blank generic card.  Shown without blocking the frame.
class frmPrintScorecard : public QDialog {
    Q_OBJECT
public:
    explicit frmPrintScorecard(QWidget *parent = nullptr);
    static frmPrintScorecard &instance();

    // Offer the courses with hole rows and show the dialog, with the course and tees of the
    // view in front chosen when they have hole rows; either may be blank.
    void PrintScorecard(const QString &course, const QString &tees);

private:
    void courseChanged();
    void updatePrintButton();
    void optionChanged();
    void cmdPrint_Click();
    // The values of the chosen course and tees on the card.
    void FillScorecard(frmScorecard &card);
    // The dialog as it first comes up, before anything was chosen.
    void reset();

    QStringListModel *m_rdcCourses = nullptr;
    QRadioButton *m_optSelectedCourse = nullptr;
    QRadioButton *m_optGenericCourse = nullptr;
    QLabel *m_lblCourse = nullptr;
    QComboBox *m_dbcboCourses = nullptr;
    QLabel *m_lblTees = nullptr;
    QComboBox *m_cboTees = nullptr;
    QPushButton *m_cmdPrint = nullptr;
    QPushButton *m_cmdCancel = nullptr;
};

} // namespace quillon
