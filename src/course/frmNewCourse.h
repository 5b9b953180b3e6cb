#pragma once

#include "CourseEntry.h"
#include "CourseCardLayout.h"
#include "ui/EntryForm.h"

#include <QHash>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace quillon {

class BoxArray;

// The one form through which course data enters: a new set of tees (of a new or a known
// course), or an existing set changed, or a further set added to a known course.  Every
// value lives as the text of its control until it is saved.
class frmNewCourse : public EntryForm {
    Q_OBJECT
public:
    explicit frmNewCourse(QWidget *parent = nullptr);
    // The open form, created when none is.
    static frmNewCourse &instance();
    static frmNewCourse *existing();

    void NewCourse();
    void EditCourse(const QString &courseName, const QString &tees);
    void FormActivate() override;
    bool editMode() const { return m_editMode; }

    // The form's texts as the rules read them.
    CourseEntry entry() const;
    // Save as the Save button does: validate, ask, write, close.
    void cmdSave_Click();
    // What the rating and slope calculator writes when its estimate is accepted.
    void acceptRatingAndSlope(const QString &rating, const QString &slope);

protected:
    // The help page and place for the mode.
    QString helpAnchor() const override { return m_helpAnchor; }

private:
    QWidget *ratingCell(CardNine nine, bool slope);
    // False when the course has no tees and the form closed.
    bool courseChosen(const QString &course);
    void teesChosen(const QString &tees);
    void ClearCourseFields();
    void UpdateSaveButton();
    void rowChanged(CardRow row, int index);
    void hdcpChanged(int index);
    bool save(bool withDetails);

    bool m_editMode = false;
    QString m_helpAnchor;
    QLineEdit *m_txtCourse = nullptr;
    QComboBox *m_cboCourses = nullptr;
    QComboBox *m_cboTees = nullptr;
    QHash<QString, QLineEdit *> m_ratingBoxes; // txtOverallRating ... txtBackSlope
    BoxArray *m_par = nullptr;
    BoxArray *m_yards = nullptr;
    BoxArray *m_hdcp = nullptr;
    QHash<QString, QLabel *> m_sums; // lblParOut ... lblYardsTotal
    QPushButton *m_cmdCalculate = nullptr;
    QVector<QWidget *> m_tabOrder;
};

} // namespace quillon
