#pragma once

#include <QDialog>
#include <QPointer>

class QLabel;
class QLineEdit;
class QButtonGroup;
class QPushButton;
class QRadioButton;

namespace quillon {

class frmNewCourse;

// Estimates the rating and slope of unrated tees from the nearest rated tees of the course; from
// the course form the estimate can be accepted into its overall rating and slope.
class frmRSCalculator : public QDialog {
    Q_OBJECT
public:
    explicit frmRSCalculator(QWidget *parent = nullptr);
    static frmRSCalculator &instance();

    // Show the calculator modally; `target` is the open course form, if any.
    void ShowCalculator(frmNewCourse *target);
    void cmdCalculate_Click();

protected:
    void showEvent(QShowEvent *event) override;

private:
    QLineEdit *box(const char *name, int maxLength, QWidget *parent);
    void UpdateCalculateButton();
    void cmdClear_Click();
    void unsetGender();

    QButtonGroup *m_genders = nullptr;
    QRadioButton *m_male = nullptr;
    QRadioButton *m_female = nullptr;
    QLineEdit *m_txtRatedYards = nullptr;
    QLineEdit *m_txtRating = nullptr;
    QLineEdit *m_txtSlope = nullptr;
    QLineEdit *m_txtUnratedYards = nullptr;
    QLabel *m_lblRating = nullptr;
    QLabel *m_lblSlope = nullptr;
    QPushButton *m_cmdCalculate = nullptr;
    QPushButton *m_cmdAccept = nullptr;
    QPushButton *m_cmdClear = nullptr;
    QPushButton *m_cmdCancel = nullptr;
    QPointer<frmNewCourse> m_target;
};

} // namespace quillon
