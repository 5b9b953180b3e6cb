#include "frmGolferStats.h"

#include "StatisticsDisplay.h"
#include "StatisticsWalk.h"
#include "platform/Hourglass.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "ui/Guarded.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

namespace quillon {

namespace {

// One line of a page: a caption (an element of the page's caption array, or of the second array
// where `second` is set), its value label, and the label beside it (a date or a percentage).
struct Line {
    int index;
    const char *caption;
    const char *value;
    const char *beside = "";
    bool second = false;
};

struct Page {
    const char *title;
    const char *container;
    const char *captions;       // the caption array
    const char *secondCaptions; // the second caption array, if any
    QVector<Line> lines;
};

const QVector<Page> &pages()
{
    static const QVector<Page> all = {
        {"Accuracy",
         "picAccuracy",
         "lblAccuracyLabel",
         "",
         {{0, "Fairways in Regulation (Driving Accuracy)", "lblFairwaysInRegPercentage"},
          {1, "Greens in Regulation", "lblGreensInRegPercentage"},
          {2, "Total Penalties", "lblTotalPenalties"},
          {3, "Average Penalties (9-hole round)", "lblAvgPenalties9"},
          {4, "Average Penalties (18-hole round)", "lblAvgPenalties18"},
          {5, "Total Lost Balls", "lblTotalLostBalls"},
          {9, "Average Lost Balls (9-hole round)", "lblAvgLostBalls9"},
          {10, "Average Lost Balls (18-hole round)", "lblAvgLostBalls18"},
          {6, "Total Bunker Shots", "lblTotalBunkers"},
          {11, "Average Bunkers (9-hole round)", "lblAverageBunkers9"},
          {12, "Average Bunkers (18-hole round)", "lblAverageBunkers18"},
          {7, "Percentage of Attempted Sand Saves", "lblAttemptedSandSavePercentage"},
          {8, "Sand Save Percentage", "lblSandSavePercentage"},
          {13, "Best Greens in Regulation Percentage (single round)", "lblBestGRPercentage", "lblBestGRDate"},
          {14, "Best Fairways in Regulation Percentage (single round)", "lblBestFairwaysPercentage",
           "lblBestFairwaysDate"}}},
        {"Putting",
         "picPutting",
         "lblPuttingLabel",
         "",
         {{0, "Average Putts (Front 9)", "lblAvgFront9Putts"},
          {1, "Low Putts Front 9", "lblLowPuttsFront"},
          {2, "Average Putts (Back 9)", "lblAvgBack9Putts"},
          {3, "Low Putts Back 9", "lblLowPuttsBack"},
          {5, "Average Putts (18 Holes)", "lblAvg18HolePutts"},
          {6, "Average Putts per Hole", "lblAvgPuttsPerHole"},
          {7, "Low Putts 18 Holes", "lblLowPutts18"},
          {8, "1 Putts", "lblOnePuttsPercentage"},
          {9, "2 Putts", "lblTwoPuttsPercentage"},
          {10, "3 Putts or More", "lblThreePuttsPercentage"},
          {11, "Chip-ins", "lblChipInsPercentage"},
          {12, "Most consecutive holes played without 3 or more putts", "lblConsecutivePutts"},
          {13, "Putting Average Par 3's", "lblPar3Putts"},
          {14, "Putting Average Par 4's", "lblPar4Putts"},
          {15, "Putting Average Par 5's", "lblPar5Putts"},
          {4, "Average Putts (Greens in Reg.)", "lblAvgPuttsGR"}}},
        {"Scoring",
         "picScoring",
         "lblScoringLabel",
         "",
         {{0, "18 Hole Rounds Played", "lbl18HoleRoundsPlayed"},
          {1, "9 Hole Rounds Played", "lbl9HoleRoundsPlayed"},
          {2, "Best 18 Hole Score", "lblBest18HoleScore"},
          {3, "Worst 18 Hole Score", "lblWorst18HoleScore"},
          {4, "Average Score (18 Holes)", "lblStrokeAvg18"},
          {5, "Best Front 9 Score", "lblBestFrontScore"},
          {6, "Worst Front 9 Score", "lblWorstFrontScore"},
          {7, "Average Score (Front 9)", "lblStrokeAvgFront"},
          {8, "Total Scores Under 40 (Front 9)", "lblBroke40Front", "lblBroke40FrontPercentage"},
          {9, "Best Back 9 Score", "lblBestBackScore"},
          {10, "Worst Back 9 Score", "lblWorstBackScore"},
          {11, "Average Score (Back 9)", "lblStrokeAvgBack"},
          {12, "Total Scores Under 40 (Back 9)", "lblBroke40Back", "lblBroke40BackPercentage"},
          {13, "Total Scores Under 100", "lblBroke100", "lblBroke100Percentage"},
          {14, "Total Scores Under 90", "lblBroke90", "lblBroke90Percentage"},
          {15, "Total Scores Under 80", "lblBroke80", "lblBroke80Percentage"},
          {16, "Total Scores Under 70", "lblBroke70", "lblBroke70Percentage"}}},
        {"Hole-by-Hole",
         "picHolebyHole",
         "lblHolebyHoleLabel",
         "lblHolebyHole",
         {{0, "Most sub-par holes", ""},
          {0, "Single 9-hole round", "lblSubParHoles9", "lblMostSubPars9Date", true},
          {1, "Single 18-hole round", "lblSubParHoles18", "lblMostSubPars18Date", true},
          {1, "Most pars", ""},
          {2, "Single 9-hole round", "lblMostPars9", "lblMostPars9Date", true},
          {3, "Single 18-hole round", "lblMostPars18", "lblMostPars18Date", true},
          {2, "Most above-par holes", ""},
          {4, "Single 9-hole round", "lblAboveParHoles9", "lblMostAbovePars9Date", true},
          {5, "Single 18-hole round", "lblAboveParHoles18", "lblMostAbovePars18Date", true},
          {3, "Most consecutive holes without a double bogey or greater", "lblConsecutiveStrokes"},
          {4, "Stroke Average Par 3's", "lblPar3StrokeAvg"},
          {5, "Stroke Average Par 4's", "lblPar4StrokeAvg"},
          {6, "Stroke Average Par 5's", "lblPar5StrokeAvg"},
          {9, "Scrambling", "lblScrambling"},
          {7, "Bounce Back", "lblBounceBack"},
          {8, "Birdie Conversion", "lblBirdieConversion"},
          {10, "Par Breakers", "lblParBreakers", "", true},
          {11, "Par 3 Performance", "lblPar3Performance", "", true}}},
        {"Overall Totals",
         "picMiscTotals",
         "MiscTotalsLabel",
         "",
         {{0, "Total Eagles", "lblTotalEagles", "lblEaglePercentage"},
          {1, "Total Birdies", "lblTotalBirdies", "lblBirdiePercentage"},
          {2, "Total Pars", "lblTotalPars", "lblParPercentage"},
          {3, "Total Bogeys", "lblTotalBogeys", "lblBogeyPercentage"},
          {4, "Total Double Bogeys", "lblTotalDoubleBogeys", "lblDoubleBogeyPercentage"},
          {5, "Total Triple Bogeys", "lblTotalTripleBogeys", "lblTripleBogeyPercentage"},
          {6, "Total Others", "lblTotalOthers", "lblOtherPercentage"},
          {7, "Avg. Birdies (9-hole round)", "lblAvgBirdies9"},
          {8, "Avg. Birdies (18-hole round)", "lblAvgBirdies18"},
          {9, "Avg. Pars (9-hole round)", "lblAvgPars9"},
          {10, "Avg. Pars (18-hole round)", "lblAvgPars18"},
          {11, "Avg. Bogeys (9-hole round)", "lblAvgBogeys9"},
          {12, "Avg. Bogeys (18-hole round)", "lblAvgBogeys18"},
          {13, "Birdies on Par 3's", "lblPar3BirdiePercentage"},
          {14, "Pars on Par 3's", "lblPar3ParPercentage"},
          {15, "Bogeys on Par 3's", "lblPar3BogeyPercentage"},
          {16, "Birdies on Par 4's", "lblPar4BirdiePercentage"},
          {17, "Pars on Par 4's", "lblPar4ParPercentage"},
          {18, "Bogeys on Par 4's", "lblPar4BogeyPercentage"},
          {19, "Birdies on Par 5's", "lblPar5BirdiePercentage"},
          {20, "Pars on Par 5's", "lblPar5ParPercentage"},
          {21, "Bogeys on Par 5's", "lblPar5BogeyPercentage"}}},
    };
    return all;
}

// The tool tips, on the value label and on its caption.
const struct {
    const char *value;
    const char *text;
} kToolTips[] = {
    {"lblGreensInRegPercentage",
     "The number of times the ball reached the putting surface in two or more strokes under par."},
    {"lblTotalBunkers", "The number of times the ball landed in a bunker."},
    {"lblSandSavePercentage",
     "The percentage of time par or better was achieved after playing from a green-side bunker."},
    {"lblAttemptedSandSavePercentage",
     "Green-side bunker shots made while it was still possible to score par or better on the hole."},
    {"lblFairwaysInRegPercentage",
     "The number of times the ball landed in the fairway off the tee (excluding par 3's)."},
    {"lblAvgPuttsGR", "Putting average when the green was reached in regulation."},
    {"lblBounceBack", "The number of times you were over par on one hole and under par on the next."},
    {"lblParBreakers", "The percent of time you scored under par on a hole."},
    {"lblPar3Performance", "The total number of strokes under or over par for all par 3's played to date."},
    {"lblBirdieConversion", "The percent of time you scored a birdie after reaching the green in regulation."},
    {"lblScrambling", "The percent of time you missed the green in regulation but still scored par or better."},
};

QLabel *valueLabel(QWidget *parent, const QString &name)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(QStringLiteral("00/00/00000")) + 10);
    return label;
}

} // namespace

frmGolferStats::frmGolferStats(QWidget *parent) : ViewForm(parent)
{
    setObjectName(QStringLiteral("frmGolferStats"));
    setWindowTitle(QStringLiteral("Statistics"));
    auto *layout = new QVBoxLayout(this);
    m_chkCurrentYear = new QCheckBox(QStringLiteral("Show stats for current year only"), this);
    m_chkCurrentYear->setObjectName(QStringLiteral("chkCurrentYear"));
    layout->addWidget(m_chkCurrentYear);
    m_tabStats = new QTabWidget(this);
    m_tabStats->setObjectName(QStringLiteral("tabStats"));
    for (int p = 0; p < pages().size(); ++p)
        m_tabStats->addTab(buildPage(p), QLatin1String(pages().at(p).title));
    m_tabStats->setCurrentIndex(0);
    layout->addWidget(m_tabStats, 1);

    for (const auto &tip : kToolTips) {
        QLabel *value = m_values.value(QLatin1String(tip.value));
        value->setToolTip(QLatin1String(tip.text));
        if (auto *caption = value->property("caption").value<QLabel *>())
            caption->setToolTip(QLatin1String(tip.text));
    }
    connect(m_chkCurrentYear, &QCheckBox::clicked, this, [this] { CalculateStatistics(); });
}

QWidget *frmGolferStats::buildPage(int p)
{
    const Page &page = pages().at(p);
    auto *scroll = new QScrollArea(m_tabStats);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto *container = new QWidget(scroll);
    container->setObjectName(QLatin1String(page.container));
    auto *grid = new QGridLayout(container);
    grid->setHorizontalSpacing(16);
    grid->setColumnStretch(3, 1); // the figures stand beside their captions, the room is left at the right
    int row = 0;
    for (const Line &line : page.lines) {
        const char *array = line.second ? page.secondCaptions : page.captions;
        auto *caption = new QLabel(QLatin1String(line.caption), container);
        caption->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(array)).arg(line.index));
        const bool sub = line.second && *line.value && QByteArray(line.caption).startsWith("Single");
        grid->addWidget(caption, row, 0, Qt::AlignLeft);
        if (sub)
            caption->setIndent(24);
        if (*line.value) {
            QLabel *value = valueLabel(container, QLatin1String(line.value));
            value->setProperty("caption", QVariant::fromValue(caption));
            m_values.insert(value->objectName(), value);
            grid->addWidget(value, row, 1);
        }
        if (*line.beside) {
            QLabel *beside = valueLabel(container, QLatin1String(line.beside));
            m_values.insert(beside->objectName(), beside);
            grid->addWidget(beside, row, 2);
        }
        ++row;
    }
    grid->setRowStretch(row, 1);
    scroll->setWidget(container);
    return scroll;
}

void frmGolferStats::FormActivate()
{
    RunGuarded([this] {
        frame().UpdateMenus(QStringLiteral("frmGolferStats"));
        CalculateStatistics();
    });
}

void frmGolferStats::CalculateStatistics()
{
    Hourglass hourglass;
    const LogGlobals &g = basLogGlobals();
    GolferStatistics walked = m_stats;
    try {
        const WalkOutcome outcome = quillon::CalculateStatistics(db(), g.gLastName, g.gFirstName,
                                                                 m_chkCurrentYear->isChecked(), platform().today(), walked);
        if (!outcome.ran)
            return; // nothing in the period: the form stays as it was
        m_chkCurrentYear->setEnabled(outcome.yearBoxEnabled);
    } catch (const QuillonError &error) {
        platform().messageBox(error.message(), MsgIcon::Critical, appTitle());
        return;
    }
    m_stats = walked;
    const StatisticsTexts texts = DisplayStatistics(m_stats);
    if (!texts.pagesWithDetails)
        for (int p : {0, 1, 3, 4})
            m_tabStats->setTabEnabled(p, false); // not enabled again while the form stays open
    for (auto it = texts.labels.cbegin(); it != texts.labels.cend(); ++it)
        if (QLabel *label = m_values.value(it.key()))
            label->setText(it.value());
}

} // namespace quillon
