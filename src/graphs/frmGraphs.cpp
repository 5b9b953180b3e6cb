#include "frmGraphs.h"

#include "print/ReportPainter.h"

#include "platform/Hourglass.h"
#include "shell/basLogGlobals.h"
#include "ui/Guarded.h"

#include <QApplication>
#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QHBoxLayout>
#include <QLabel>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPieSeries>
#include <QPieSlice>
#include <QValueAxis>
#include <QVBoxLayout>

namespace quillon {

namespace {

QFont titleFont()
{
    QFont font;
    font.setFamilies({QStringLiteral("MS Sans Serif"), QStringLiteral("DejaVu Sans")});
    font.setPointSize(14);
    return font;
}

QFont axisFont()
{
    QFont font;
    font.setPointSize(10);
    return font;
}

bool darkDesktop()
{
    const QColor window = QApplication::palette().color(QPalette::Window);
    return window.lightnessF() < 0.5;
}

QChartView *newChartView(QWidget *parent)
{
    auto *view = new QChartView(parent);
    view->setObjectName(QStringLiteral("crtStats"));
    view->setRenderHint(QPainter::Antialiasing);
    view->setMinimumSize(480, 320);
    return view;
}

} // namespace

void DrawChart(QChartView &view, const ChartData &data)
{
    auto *chart = new QChart;
    chart->setTheme(darkDesktop() ? QChart::ChartThemeDark : QChart::ChartThemeLight);
    chart->setTitle(data.entry.title);
    chart->setTitleFont(titleFont());
    chart->setAnimationOptions(QChart::NoAnimation);
    if (data.entry.kind == ChartKind::Trend) {
        const TrendData &t = data.trend;
        auto *line = new QLineSeries(chart);
        for (int i = 0; i < t.values.size(); ++i)
            line->append(i + 1, t.values.at(i));
        chart->addSeries(line);
        chart->legend()->hide();
        auto *x = new QValueAxis(chart);
        x->setTitleText(t.caption);
        x->setTitleFont(axisFont());
        x->setRange(1, qMax(1, t.rowCount));
        // Every row label is empty; the labels keep their room so that the caption is not cut.
        x->setLabelsColor(Qt::transparent);
        x->setTickCount(2);
        auto *y = new QValueAxis(chart);
        y->setTitleText(t.valueTitle);
        y->setTitleFont(axisFont());
        y->setRange(t.scale.minimum, t.scale.maximum);
        y->setLabelFormat(QStringLiteral("%d"));
        y->setTickCount(t.scale.majorDivision > 0 ? t.scale.majorDivision + 1 : 2);
        y->setMinorTickCount(0);
        chart->addAxis(x, Qt::AlignBottom);
        chart->addAxis(y, Qt::AlignLeft);
        line->attachAxis(x);
        line->attachAxis(y);
    } else {
        auto *pie = new QPieSeries(chart);
        for (const PiePart &part : data.pie.parts) {
            const double value = part.data.toDouble();
            QPieSlice *slice = pie->append(QStringLiteral("%1%").arg(value, 0, 'f', 1), value);
            slice->setLabelVisible(part.labelOutside && value > 0);
            slice->setLabelPosition(QPieSlice::LabelOutside);
            QFont font = slice->labelFont();
            font.setPointSize(10);
            font.setBold(true);
            slice->setLabelFont(font);
        }
        chart->addSeries(pie);
        chart->legend()->setVisible(true);
        chart->legend()->setAlignment(Qt::AlignRight);
        // The legend names the parts; the labels on the pie carry the figures.
        const QList<QLegendMarker *> markers = chart->legend()->markers(pie);
        for (int i = 0; i < markers.size() && i < data.pie.parts.size(); ++i)
            markers.at(i)->setLabel(data.pie.parts.at(i).legend);
    }
    QChart *old = view.chart();
    view.setChart(chart);
    delete old;
}

frmPrintGraph::frmPrintGraph(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("frmPrintGraph"));
    setWindowTitle(QStringLiteral("Graph"));
    auto *layout = new QVBoxLayout(this);
    m_lblDesc = new QLabel(QStringLiteral("Description:"), this);
    m_lblDesc->setObjectName(QStringLiteral("lblDesc"));
    m_crtStats = newChartView(this);
    layout->addWidget(m_crtStats, 1);
    layout->addWidget(m_lblDesc);
    auto *footer = new QLabel(FooterNotice(), this);
    footer->setObjectName(QStringLiteral("lblFooterNotice"));
    layout->addWidget(footer);
    resize(960, 640);
    // Never on the screen, yet shown: a chart lays out its legend and axes only while shown,
    // and the page must be ready whenever it is printed.  It keeps no program alive.
    setAttribute(Qt::WA_DontShowOnScreen);
    setAttribute(Qt::WA_QuitOnClose, false);
    show();
}

frmGraphs::frmGraphs(QWidget *parent) : ViewForm(parent)
{
    setObjectName(QStringLiteral("frmGraphs"));
    setWindowTitle(QStringLiteral("Graphs"));
    auto *layout = new QVBoxLayout(this);
    auto *row = new QHBoxLayout;
    auto *caption = new QLabel(QStringLiteral("Select Graph:"), this);
    caption->setObjectName(QStringLiteral("lblGraphCaption"));
    m_cboGraphs = new QComboBox(this);
    m_cboGraphs->setObjectName(QStringLiteral("cboGraphs"));
    caption->setBuddy(m_cboGraphs);
    for (const ChartEntry &e : GraphCatalogue())
        m_cboGraphs->addItem(e.entry);
    m_cboGraphs->setCurrentIndex(-1);
    row->addWidget(caption);
    row->addWidget(m_cboGraphs);
    row->addStretch(1);
    layout->addLayout(row);
    m_lblDesc = new QLabel(this);
    m_lblDesc->setObjectName(QStringLiteral("lblDesc"));
    m_lblDesc->setWordWrap(true);
    layout->addWidget(m_lblDesc);
    m_crtStats = newChartView(this);
    layout->addWidget(m_crtStats, 1);
    m_lblMessage = new QLabel(QStringLiteral("(No Data to Display)"), this);
    m_lblMessage->setObjectName(QStringLiteral("lblMessage"));
    m_lblMessage->setAlignment(Qt::AlignCenter);
    m_lblMessage->hide();
    layout->addWidget(m_lblMessage, 1);
    // The print page lives as long as the view and is never shown.
    m_print = new frmPrintGraph;

    connect(m_cboGraphs, &QComboBox::activated, this, [this] { cboGraphs_Click(); });
}

frmGraphs::~frmGraphs()
{
    delete m_print.data();
}

void frmGraphs::FormActivate()
{
    RunGuarded([] { frame().UpdateMenus(QStringLiteral("frmGraphs")); });
    if (m_cboGraphs->currentIndex() < 0)
        m_cboGraphs->setCurrentIndex(0);
    // Rebuilt from the database at every activation: a round just added shows at once.
    cboGraphs_Click();
}

void frmGraphs::cboGraphs_Click()
{
    Hourglass hourglass;
    // The window is painted meanwhile; the user's clicks wait for the chart, as the hourglass
    // says, since a command run now would close views under the activation still going on.
    // Should anything close this view all the same, there is nothing left to draw.
    const QPointer<frmGraphs> self(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!self)
        return;
    RunGuarded([this] {
        const LogGlobals &g = basLogGlobals();
        show(BuildChart(db(), m_cboGraphs->currentText(), g.gLastName, g.gFirstName));
    });
}

void frmGraphs::show(const ChartData &data)
{
    m_data = data;
    m_lblDesc->setText(data.entry.description);
    m_print->description()->setText(QStringLiteral("Description: ") + data.entry.description);
    if (data.empty) {
        // The print page keeps the chart of before.
        m_lblMessage->show();
        m_crtStats->hide();
        return;
    }
    m_lblMessage->hide();
    m_crtStats->show();
    DrawChart(*m_crtStats, data);
    DrawChart(*m_print->chart(), data);
}

} // namespace quillon
