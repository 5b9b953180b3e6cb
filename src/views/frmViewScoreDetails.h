#pragma once

#include "ScoreDetailsCard.h"
#include "ui/ViewHost.h"

#include <QDate>

class QLabel;
class QPushButton;

namespace quillon {

// One saved round as a scorecard: the header, the statistics typed with it, hole scores coloured
// by how they stand to par, putts and fairways, the sums, and the numbers derived from the holes.
// It changes nothing in the database.
class frmViewScoreDetails : public ViewForm {
    Q_OBJECT
public:
    explicit frmViewScoreDetails(QWidget *parent = nullptr);

    void ShowDetails(const QString &courseName, const QString &tees, const QDate &scoreDate, qint64 scoreIndex,
                     const QVariant &adjustedScore);
    // Read the round again, after it was saved.
    void UpdateDetails();
    qint64 ScoreIndex() const { return m_scoreIndex; }
    void FormActivate() override;
    bool selectedCourse(QString &course, QString &tees) const override;

private:
    void FillScoreDetails();
    void ComputeRoundStatistics();
    QLabel *value(const QString &name) const { return m_card.value(name); }

    qint64 m_scoreIndex = 0;
    QDate m_scoreDate;
    ScoreDetailsCard m_card;
    QPushButton *m_cmdOK = nullptr;
};

} // namespace quillon
