#include "FrameFixture.h"
#include "TestPrinting.h"
#include "core/DateText.h"
#include "graphs/frmGraphs.h"

#include <QChart>
#include <QChartView>
#include <QComboBox>
#include <QLabel>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPieSeries>
#include <QPieSlice>
#include <QTest>
#include <QTimer>
#include <QValueAxis>

using namespace quillon;
using namespace quillon::test;

namespace {

const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

class GraphsView : public FrameFixture {
public:
    void SetUp() override
    {
        FrameFixture::SetUp();
        addCourse(app.db(), CourseSpec{});
    }
    // A detailed round: every hole at par plus over[i % over.size()], putts by the same pattern.
    void round(const QDate &date, const QString &holes, const QVector<int> &over, int penalties)
    {
        RoundSpec r;
        r.date = date;
        r.holes = holes;
        r.details = true;
        const int first = holes == QLatin1String("9-holes (back)") ? 10 : 1;
        const int count = holes == QLatin1String("18-holes") ? 18 : 9;
        int total = 0;
        QVector<int> scores, pars;
        for (int k = 0; k < count; ++k) {
            const int par = kPars.at(first - 1 + k);
            scores << par + over.at(k % over.size());
            pars << par;
            total += scores.last();
        }
        r.score = r.adjusted = total;
        const qint64 index = addRound(app.db(), r);
        Exec(app.db(), QStringLiteral("UPDATE ScoreLog SET Penalties = ? WHERE ScoreIndex = ?"), {penalties, index});
        addHoleScores(app.db(), r, index, first, scores, pars);
        Exec(app.db(),
             QStringLiteral("UPDATE ScoreDetails SET Putts = 1 + (Hole % 3), Fairway = CASE WHEN PAR = 3 THEN -1 "
                            "ELSE Hole % 2 END, GreenInRegulation = CASE WHEN Score - (1 + (Hole % 3)) <= PAR - 2 "
                            "THEN 1 ELSE 0 END WHERE ScoreIndex = ?"),
             {index});
    }
    void season()
    {
        round(QDate(2026, 3, 1), QStringLiteral("18-holes"), {0, 1, 2, -1}, 2);
        round(QDate(2026, 3, 15), QStringLiteral("18-holes"), {1, 0, 1}, 0);
        round(QDate(2026, 4, 2), QStringLiteral("9-holes (front)"), {0, 1}, 1);
        round(QDate(2026, 4, 20), QStringLiteral("9-holes (back)"), {2, 0, -1}, -1);
        round(QDate(2026, 5, 9), QStringLiteral("18-holes"), {0, 0, 1, 3, -2}, 3);
    }
    frmGraphs *graphs() const { return qobject_cast<frmGraphs *>(frame->views().loaded(QStringLiteral("frmGraphs"))); }
    QComboBox *list() const { return findControl<QComboBox>(graphs(), QStringLiteral("cboGraphs")); }
    QChartView *view() const { return findControl<QChartView>(graphs(), QStringLiteral("crtStats")); }
    QLabel *message() const { return findControl<QLabel>(graphs(), QStringLiteral("lblMessage")); }
    void choose(int index)
    {
        ChooseItem(list(), GraphCatalogue().at(index).entry);
    }
};

// The drawn chart agrees with the data it was drawn from.
void expectDrawn(QChartView *view, const ChartData &data)
{
    QChart *chart = view->chart();
    ASSERT_NE(chart, nullptr);
    EXPECT_EQ(chart->title(), data.entry.title);
    ASSERT_EQ(chart->series().size(), 1);
    if (data.entry.kind == ChartKind::Trend) {
        auto *line = qobject_cast<QLineSeries *>(chart->series().first());
        ASSERT_NE(line, nullptr);
        ASSERT_EQ(line->count(), data.trend.values.size());
        for (int i = 0; i < line->count(); ++i) {
            EXPECT_EQ(line->at(i).x(), i + 1);
            EXPECT_DOUBLE_EQ(line->at(i).y(), data.trend.values.at(i));
        }
        auto *y = qobject_cast<QValueAxis *>(chart->axes(Qt::Vertical).first());
        auto *x = qobject_cast<QValueAxis *>(chart->axes(Qt::Horizontal).first());
        EXPECT_EQ(y->min(), data.trend.scale.minimum);
        EXPECT_EQ(y->max(), data.trend.scale.maximum);
        EXPECT_EQ(y->titleText(), data.trend.valueTitle);
        EXPECT_EQ(x->titleText(), data.trend.caption);
        EXPECT_FALSE(chart->legend()->isVisible());
    } else {
        auto *pie = qobject_cast<QPieSeries *>(chart->series().first());
        ASSERT_NE(pie, nullptr);
        ASSERT_EQ(pie->count(), data.pie.parts.size());
        const QList<QLegendMarker *> markers = chart->legend()->markers(pie);
        for (int i = 0; i < pie->count(); ++i) {
            EXPECT_DOUBLE_EQ(pie->slices().at(i)->value(), data.pie.parts.at(i).data.toDouble());
            EXPECT_EQ(markers.at(i)->label(), data.pie.parts.at(i).legend);
        }
        EXPECT_TRUE(chart->legend()->isVisible());
    }
}

} // namespace

TEST_F(GraphsView, EveryChartIsDrawnFromItsDataOnTheViewAndThePrintPage)
{
    season();
    startWithPalmer();
    ASSERT_TRUE(enabled(QStringLiteral("mnuViewGraphs"))) << "two detailed rounds or more";
    item(QStringLiteral("mnuViewGraphs"))->trigger();
    ASSERT_NE(graphs(), nullptr);
    EXPECT_EQ(graphs()->windowTitle(), QStringLiteral("Graphs"));
    EXPECT_EQ(list()->count(), 17);
    EXPECT_EQ(list()->currentText(), QStringLiteral("18 Hole Penalty Trend")) << "the first entry comes up";
    for (int i = 0; i < 17; ++i) {
        choose(i);
        const ChartEntry &entry = GraphCatalogue().at(i);
        const ChartData expected = BuildChart(app.db(), entry.entry, QStringLiteral("Palmer"), QStringLiteral("Arnold"));
        ASSERT_FALSE(expected.empty) << entry.entry.toStdString();
        EXPECT_FALSE(message()->isVisibleTo(graphs())) << entry.entry.toStdString();
        EXPECT_TRUE(view()->isVisibleTo(graphs()));
        EXPECT_EQ(findControl<QLabel>(graphs(), QStringLiteral("lblDesc"))->text(), entry.description);
        EXPECT_EQ(graphs()->printGraph()->description()->text(), QStringLiteral("Description: ") + entry.description);
        SCOPED_TRACE(entry.entry.toStdString());
        expectDrawn(view(), expected);
        expectDrawn(graphs()->printGraph()->chart(), expected);
    }
    EXPECT_TRUE(app.platform().takeMessages().isEmpty());
}

TEST_F(GraphsView, AGolferWithoutRoundsSeesNoDataOnEveryChart)
{
    startWithPalmer();
    frame->views().switchTo(QStringLiteral("frmGraphs"));
    ASSERT_NE(graphs(), nullptr);
    for (int i = 0; i < 17; ++i) {
        choose(i);
        EXPECT_TRUE(message()->isVisibleTo(graphs())) << i;
        EXPECT_EQ(message()->text(), QStringLiteral("(No Data to Display)"));
        EXPECT_FALSE(view()->isVisibleTo(graphs())) << i;
    }
}

TEST_F(GraphsView, ComingBackRebuildsTheChosenChart)
{
    season();
    startWithPalmer();
    item(QStringLiteral("mnuViewGraphs"))->trigger();
    ChooseItem(list(), QStringLiteral("18 Hole Scoring Trend"));
    const int before = qobject_cast<QLineSeries *>(view()->chart()->series().first())->count();
    item(QStringLiteral("mnuViewScoreLog"))->trigger();
    round(QDate(2026, 6, 1), QStringLiteral("18-holes"), {0}, 0);
    item(QStringLiteral("mnuViewGraphs"))->trigger();
    ASSERT_NE(graphs(), nullptr);
    graphs()->FormActivate();
    EXPECT_EQ(list()->currentText(), QStringLiteral("18 Hole Penalty Trend")) << "a new view starts at the first entry";
    ChooseItem(list(), QStringLiteral("18 Hole Scoring Trend"));
    EXPECT_EQ(qobject_cast<QLineSeries *>(view()->chart()->series().first())->count(), before + 1);
    // The view open and active again: the same chart is rebuilt with what the database holds now.
    round(QDate(2026, 6, 8), QStringLiteral("18-holes"), {1}, 0);
    graphs()->FormActivate();
    EXPECT_EQ(list()->currentText(), QStringLiteral("18 Hole Scoring Trend"));
    EXPECT_EQ(qobject_cast<QLineSeries *>(view()->chart()->series().first())->count(), before + 2);
}

TEST_F(GraphsView, AViewClosedWhileItsPendingEventsRunIsNotDrawnAfterwards)
{
    season();
    startWithPalmer();
    item(QStringLiteral("mnuViewGraphs"))->trigger();
    ASSERT_NE(graphs(), nullptr);
    // The user picks another view while a chart is being made: the graphs view goes while its
    // chart waits on the pending events.
    QTimer::singleShot(0, frame, [this] { item(QStringLiteral("mnuViewGolferStatistics"))->trigger(); });
    choose(3);
    EXPECT_EQ(graphs(), nullptr);
    EXPECT_EQ(checkedViews(), QStringList{QStringLiteral("mnuViewGolferStatistics")});
}
