#pragma once

#include "GolferStatistics.h"
#include "ui/ViewHost.h"

#include <QHash>

class QCheckBox;
class QLabel;
class QTabWidget;

namespace quillon {

// The current golfer's statistics on five pages, computed afresh each time the view becomes
// active or the current-year box is clicked.
class frmGolferStats : public ViewForm {
    Q_OBJECT
public:
    explicit frmGolferStats(QWidget *parent = nullptr);

    void FormActivate() override;
    // The walk and the display; labels with no value in the period keep their last text.
    void CalculateStatistics();
    const GolferStatistics &statistics() const { return m_stats; }

private:
    QWidget *buildPage(int page);

    GolferStatistics m_stats;
    QTabWidget *m_tabStats = nullptr;
    QCheckBox *m_chkCurrentYear = nullptr;
    QHash<QString, QLabel *> m_values;
};

} // namespace quillon
