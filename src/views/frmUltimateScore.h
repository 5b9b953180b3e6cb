#pragma once

#include "UltimateCard.h"
#include "frmPrintUltimate.h"
#include "ui/ViewHost.h"

#include <memory>

class QCheckBox;
class QComboBox;
class QLabel;

namespace quillon {

// The golfer's best score on each hole of one course and tees, as if all those holes had been
// played in one round.  Only rounds entered hole by hole count.  While it fills its labels it
// fills those of its page, frmPrintUltimate, which goes when the view closes.
class frmUltimateScore : public ViewForm {
    Q_OBJECT
public:
    explicit frmUltimateScore(QWidget *parent = nullptr);
    ~frmUltimateScore() override;

    // Fill the course list and show the course and tees asked for (either may be blank); false,
    // after saying why, when the golfer has no rounds to show.
    bool ShowUltimateScore(const QString &courseName, const QString &tees);
    // Read the card of the chosen tees again, after data changed under it.
    void UpdateScorecard();
    void FormActivate() override;
    // The course and tees boxes, when neither is empty.
    bool selectedCourse(QString &course, QString &tees) const override;
    // The page, once something was written into it; null before.
    frmPrintUltimate *printForm() const { return m_print.get(); }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void courseChanged();
    void teesChosen();
    // One pass over the holes; false when there was nothing to show.
    bool ShowBestScores();
    // Blank the front nine (1), the back nine (2) or both (3), on both forms.
    void ClearScorecard(int which);
    // Read the lists again, keeping the course and tees chosen where they still are.
    void refreshLists();
    frmPrintUltimate &page();

    QComboBox *m_dbcboCourses = nullptr;
    QComboBox *m_cboTees = nullptr;
    QCheckBox *m_chkCurrentYear = nullptr;
    QLabel *m_lblDescription = nullptr;
    QLabel *m_lblNumRounds = nullptr;
    UltimateCardLabels m_card;
    std::unique_ptr<frmPrintUltimate> m_print;
};

} // namespace quillon
