#pragma once

#include <QVector>
#include <QWidget>

class QBoxLayout;
class QLabel;

namespace quillon {

// The value labels of an ultimate scorecard: the same on the screen and on the page.
struct UltimateCardLabels {
    QVector<QLabel *> par, hdcp, score; // index 0 is hole 1
    QLabel *parOut = nullptr;
    QLabel *parIn = nullptr;
    QLabel *totalPar = nullptr;
    QLabel *out = nullptr;
    QLabel *in = nullptr;
    QLabel *total = nullptr;
};

// Lay out the frames "Front Nine" and "Back Nine" in `into`: the holes under the row captions
// "Par", "Handicap" and "Score", with the Out column in the front frame and In and Total in the
// back.  The labels are named as the card's controls (lblPar_0 ... lblTotal).
UltimateCardLabels BuildUltimateNines(QWidget *parent, QBoxLayout *into);

// The ultimate scorecard as a page: a form that is never shown.  It computes nothing; the
// view fills its labels while it fills its own, so that printing has only to print.
class frmPrintUltimate : public QWidget {
    Q_OBJECT
public:
    explicit frmPrintUltimate(QWidget *parent = nullptr);

    UltimateCardLabels &card() { return m_card; }
    QLabel *lblCourse() const { return m_lblCourse; }
    QLabel *lblTees() const { return m_lblTees; }
    QLabel *lblGolfer() const { return m_lblGolfer; }
    QLabel *lblHandicap() const { return m_lblHandicap; }
    QLabel *lblDate() const { return m_lblDate; }
    QLabel *lblNumRounds() const { return m_lblNumRounds; }

private:
    UltimateCardLabels m_card;
    QLabel *m_lblCourse = nullptr;
    QLabel *m_lblTees = nullptr;
    QLabel *m_lblGolfer = nullptr;
    QLabel *m_lblHandicap = nullptr;
    QLabel *m_lblDate = nullptr;
    QLabel *m_lblNumRounds = nullptr;
};

} // namespace quillon
