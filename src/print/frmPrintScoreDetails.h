#pragma once

#include "views/ScoreDetailsCard.h"

#include <QDate>
#include <QWidget>

class QLabel;

namespace quillon {

// The details of one round as a printed page: a form that is never shown, holding the labels of
// the details view filled by the same rules, in black and white, under a title and the golfer's
// name and above the footer notice.  It exists for one printout and goes when it is done.
class frmPrintScoreDetails : public QWidget {
    Q_OBJECT
public:
    explicit frmPrintScoreDetails(QWidget *parent = nullptr);

    static frmPrintScoreDetails &instance();

    // Fill the page with the current golfer's round, print it (through the preview), and unload
    // the form, whatever the outcome; a fault is shown as "Error <number>: <description>".
    // `scoreDate` is the round's date as the score log shows it.
    void PrintDetails(const QString &course, const QString &tees, const QString &scoreDate,
                      qint32 scoreIndex);

private:
    void FillPrintDetails();
    void ComputePrintStatistics();

    qint32 m_scoreIndex = 0;
    QDate m_scoreDate;
    ScoreDetailsCard m_card;
    QLabel *m_lblTitle = nullptr;
    QLabel *m_lblGolfer = nullptr;
    QLabel *m_lblFooterNotice = nullptr;
};

} // namespace quillon
