#pragma once

#include "ui/ViewHost.h"

#include <QHash>
#include <QVector>

class QComboBox;
class QLabel;

namespace quillon {

// The read-only card of a course and tees: ratings, slopes, yardages, pars and hole
// handicaps as they were stored.  Opened from the View menu, or from score details with a way
// back through the status bar.
class frmCourseInfo : public ViewForm {
    Q_OBJECT
public:
    explicit frmCourseInfo(QWidget *parent = nullptr);

    // Fill the course list and show the course asked for (its first tees); false when there is
    // no course to show, after saying so.
    bool ShowCourseInfo(const QString &courseName, const QString &tees, bool fromScoreDetails);
    void FormActivate() override;
    bool selectedCourse(QString &course, QString &tees) const override;

private:
    void courseChanged();
    // Read the course and tees lists again, keeping the course and tees shown where they still are.
    void refreshLists();
    void teesChosen();
    void ClearCourseInfo();
    void clearReturnPanel();

    QComboBox *m_dbcboCourses = nullptr;
    QComboBox *m_cboTees = nullptr;
    QHash<QString, QLabel *> m_labels; // the twelve value labels by column name
    QVector<QLabel *> m_lblPar, m_lblYards, m_lblHdcp;
    QString m_returnCourse, m_returnTees;
};

} // namespace quillon
