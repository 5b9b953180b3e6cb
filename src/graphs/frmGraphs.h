#pragma once

#include "ChartData.h"
#include "ui/ViewHost.h"

#include <QPointer>

class QChartView;
class QComboBox;
class QLabel;

namespace quillon {

// The hidden page the printed graph is taken from: the same chart and its description, kept in
// step with the view.
class frmPrintGraph : public QWidget {
    Q_OBJECT
public:
    explicit frmPrintGraph(QWidget *parent = nullptr);
    QChartView *chart() const { return m_crtStats; }
    QLabel *description() const { return m_lblDesc; }

private:
    QLabel *m_lblDesc = nullptr;
    QChartView *m_crtStats = nullptr;
};

// One chart at a time of the current golfer, chosen from a list of seventeen, rebuilt from the
// database at every choice and every activation.
class frmGraphs : public ViewForm {
    Q_OBJECT
public:
    explicit frmGraphs(QWidget *parent = nullptr);
    ~frmGraphs() override;

    void FormActivate() override;
    // The list's choice: build the chosen chart and show it (under the error trap).
    void cboGraphs_Click();
    frmPrintGraph *printGraph() const { return m_print; }
    // The data of the chart shown last.
    const ChartData &shown() const { return m_data; }

private:
    void show(const ChartData &data);

    QComboBox *m_cboGraphs = nullptr;
    QLabel *m_lblDesc = nullptr;
    QLabel *m_lblMessage = nullptr;
    QChartView *m_crtStats = nullptr;
    QPointer<frmPrintGraph> m_print;
    ChartData m_data;
};

// Draw a chart's data into a chart view: a line with its scale, or a pie with its labels and legend.
void DrawChart(QChartView &view, const ChartData &data);

} // namespace quillon
