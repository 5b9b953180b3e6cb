#include "StatisticsPrintout.h"

#include "core/DateText.h"
#include "core/Int16.h"
#include "platform/Hourglass.h"
#include "shell/basLogGlobals.h"
#include "stats/frmGolferStats.h"
#include "ui/Guarded.h"

#include <QLabel>
#include <algorithm>

namespace quillon {

namespace {

// Where a column of the report puts its section heads, captions and values.
struct Tabs {
    int head, caption, value, second;
};
constexpr Tabs kLeft{5, 10, 42, 50};
constexpr Tabs kRight{65, 70, 102, 110};
constexpr int kFooterColumn = 70;

// The two round counts come from the record, not from a label.
const char *const kRounds18 = "=Rounds18";
const char *const kRounds9 = "=Rounds9";

// One entry of a section: its caption, a second caption line indented under it, and the values
// on the last of these lines.  An entry without a first caption continues the entry above it.
struct Entry {
    const char *caption;
    const char *indented;
    const char *value;
    const char *second = "";
    bool bracketed = false; // the second value is a percentage, printed in brackets
};

struct Section {
    const char *head;
    QVector<Entry> entries;
};

const Section &accuracy()
{
    static const Section s{
        "Accuracy",
        {{"Total Penalties", "", "lblTotalPenalties"},
         {"Avg. Penalties (18-hole round)", "", "lblAvgPenalties18"},
         {"Avg. Penalties (9-hole round)", "", "lblAvgPenalties9"},
         {"Total Lost Balls", "", "lblTotalLostBalls"},
         // The opening bracket has always been missing here; the printout keeps its words.
         {"Avg. Lost Balls 18-hole round)", "", "lblAvgLostBalls18"},
         {"Avg. Lost Balls (9-hole round)", "", "lblAvgLostBalls9"},
         {"Greens in Regulation", "", "lblGreensInRegPercentage"},
         {"Best Greens in Regulation", "Percentage (single round)", "lblBestGRPercentage", "lblBestGRDate"},
         {"Fairways in Regulation", "(Driving Accuracy)", "lblFairwaysInRegPercentage"},
         {"Best Fairways in Regulation", "Percentage (single round)", "lblBestFairwaysPercentage",
          "lblBestFairwaysDate"},
         {"Total Bunker Shots", "", "lblTotalBunkers"},
         {"Avg. Bunkers (18-hole round)", "", "lblAverageBunkers18"},
         {"Avg. Bunkers (9-hole round)", "", "lblAverageBunkers9"},
         {"Attempted Sand Saves", "", "lblAttemptedSandSavePercentage"},
         {"Sand Save Percentage", "", "lblSandSavePercentage"}}};
    return s;
}

const Section &putting()
{
    static const Section s{
        "Putting",
        {{"Avg. Putts (Front 9)", "", "lblAvgFront9Putts"},
         {"Avg. Putts (Back 9)", "", "lblAvgBack9Putts"},
         {"Avg. Putts (18 Holes)", "", "lblAvg18HolePutts"},
         {"Avg. Putts per Hole", "", "lblAvgPuttsPerHole"},
         {"Avg. Putts (Greens in Reg.)", "", "lblAvgPuttsGR"},
         {"Putting Average Par 3's", "", "lblPar3Putts"},
         {"Putting Average Par 4's", "", "lblPar4Putts"},
         {"Putting Average Par 5's", "", "lblPar5Putts"},
         {"Low Putts Front 9", "", "lblLowPuttsFront"},
         {"Low Putts Back 9", "", "lblLowPuttsBack"},
         {"Low Putts 18 Holes", "", "lblLowPutts18"},
         {"Chip-ins", "", "lblChipInsPercentage"},
         {"1 Putts", "", "lblOnePuttsPercentage"},
         {"2 Putts", "", "lblTwoPuttsPercentage"},
         {"3 Putts or More", "", "lblThreePuttsPercentage"},
         {"Most consecutive holes played", "without 3 or more putts", "lblConsecutivePutts"}}};
    return s;
}

// The scoring section; the report without details names its round counts differently and
// gives the two nine-hole rows under 40 no percentage.
Section scoring(bool withDetails)
{
    const char *percentage40Front = withDetails ? "lblBroke40FrontPercentage" : "";
    const char *percentage40Back = withDetails ? "lblBroke40BackPercentage" : "";
    return {"Scoring",
            {{withDetails ? "18 Hole Rounds" : "Number of 18 Hole Rounds", "", kRounds18},
             {withDetails ? "9 Hole Rounds" : "Number of 9 Hole Rounds", "", kRounds9},
             {"Best 18 Hole Score", "", "lblBest18HoleScore"},
             {"Worst 18 Hole Score", "", "lblWorst18HoleScore"},
             {"Best Front 9 Score", "", "lblBestFrontScore"},
             {"Worst Front 9 Score", "", "lblWorstFrontScore"},
             {"Best Back 9 Score", "", "lblBestBackScore"},
             {"Worst Back 9 Score", "", "lblWorstBackScore"},
             {"Avg. Score (Front 9)", "", "lblStrokeAvgFront"},
             {"Avg. Score (Back 9)", "", "lblStrokeAvgBack"},
             {"Avg. Score (18 Holes)", "", "lblStrokeAvg18"},
             {"Total Scores Under 40 (Front 9)", "", "lblBroke40Front", percentage40Front, withDetails},
             {"Total Scores Under 40 (Back 9)", "", "lblBroke40Back", percentage40Back, withDetails},
             {"Total Scores Under 100", "", "lblBroke100", "lblBroke100Percentage", true},
             {"Total Scores Under 90", "", "lblBroke90", "lblBroke90Percentage", true},
             {"Total Scores Under 80", "", "lblBroke80", "lblBroke80Percentage", true},
             {"Total Scores Under 70", "", "lblBroke70", "lblBroke70Percentage", true}}};
}

const Section &holeByHole()
{
    static const Section s{
        "Hole-by-Hole",
        {{"Most sub-par holes", "Single 9-hole round", "lblSubParHoles9", "lblMostSubPars9Date"},
         {"", "Single 18-hole round", "lblSubParHoles18", "lblMostSubPars18Date"},
         {"Most pars", "Single 9-hole round", "lblMostPars9", "lblMostPars9Date"},
         {"", "Single 18-hole round", "lblMostPars18", "lblMostPars18Date"},
         {"Most above-par holes", "Single 9-hole round", "lblAboveParHoles9", "lblMostAbovePars9Date"},
         {"", "Single 18-hole round", "lblAboveParHoles18", "lblMostAbovePars18Date"},
         {"Bounce Back", "", "lblBounceBack"},
         {"Birdie Conversion", "", "lblBirdieConversion"},
         {"Scrambling", "", "lblScrambling"},
         {"Par Breakers", "", "lblParBreakers"},
         {"Par 3 Performance", "", "lblPar3Performance"},
         {"Stroke Average Par 3's", "", "lblPar3StrokeAvg"},
         {"Stroke Average Par 4's", "", "lblPar4StrokeAvg"},
         {"Stroke Average Par 5's", "", "lblPar5StrokeAvg"},
         {"Most consecutive holes without", "a double bogey or greater", "lblConsecutiveStrokes"}}};
    return s;
}

const Section &overallTotals()
{
    static const Section s{
        "Overall Totals",
        {{"Total Eagles", "", "lblTotalEagles", "lblEaglePercentage", true},
         {"Total Birdies", "", "lblTotalBirdies", "lblBirdiePercentage", true},
         {"Total Pars", "", "lblTotalPars", "lblParPercentage", true},
         {"Total Bogeys", "", "lblTotalBogeys", "lblBogeyPercentage", true},
         {"Total Double Bogeys", "", "lblTotalDoubleBogeys", "lblDoubleBogeyPercentage", true},
         {"Total Triple Bogeys", "", "lblTotalTripleBogeys", "lblTripleBogeyPercentage", true},
         {"Total Others", "", "lblTotalOthers", "lblOtherPercentage", true},
         {"Avg. Birdies (18-hole round)", "", "lblAvgBirdies18"},
         {"Avg. Birdies (9-hole round)", "", "lblAvgBirdies9"},
         {"Avg. Pars (18-hole round)", "", "lblAvgPars18"},
         {"Avg. Pars (9-hole round)", "", "lblAvgPars9"},
         {"Avg. Bogeys (18-hole round)", "", "lblAvgBogeys18"},
         {"Avg. Bogeys (9-hole round)", "", "lblAvgBogeys9"},
         {"Birdies on Par 3's", "", "lblPar3BirdiePercentage"},
         {"Birdies on Par 4's", "", "lblPar4BirdiePercentage"},
         {"Birdies on Par 5's", "", "lblPar5BirdiePercentage"},
         {"Pars on Par 3's", "", "lblPar3ParPercentage"},
         {"Pars on Par 4's", "", "lblPar4ParPercentage"},
         {"Pars on Par 5's", "", "lblPar5ParPercentage"},
         {"Bogeys on Par 3's", "", "lblPar3BogeyPercentage"},
         {"Bogeys on Par 4's", "", "lblPar4BogeyPercentage"},
         {"Bogeys on Par 5's", "", "lblPar5BogeyPercentage"}}};
    return s;
}

// Writes sections into lines, each after a blank line, its figures from the labels.
class SectionWriter {
public:
    SectionWriter(const LabelCaption &caption, const GolferStatistics &stats)
        : m_caption(caption), m_stats(stats)
    {
        // Added as the counters add: a sum past their range is the overflow failure.
        m_rounds9 = QString::number((stats.RoundsFront9 + stats.RoundsBack9).value());
    }

    void write(QVector<ReportLine> &lines, const Section &section, const Tabs &tabs, bool blankBefore) const
    {
        if (blankBefore)
            lines << ReportLine();
        lines << ReportLine{{tabs.head, QLatin1String(section.head)}};
        for (const Entry &e : section.entries) {
            if (*e.caption && *e.indented)
                lines << ReportLine{{tabs.caption, QLatin1String(e.caption)}};
            // An indented line stands two places behind its caption's tab.
            ReportLine line = *e.indented ? ReportLine{{tabs.caption + 2, QLatin1String(e.indented)}}
                                          : ReportLine{{tabs.caption, QLatin1String(e.caption)}};
            line << Tab{tabs.value, value(e.value)};
            if (*e.second) {
                const QString second = m_caption(QLatin1String(e.second));
                line << Tab{tabs.second, e.bracketed ? QLatin1Char('(') + second + QLatin1Char(')') : second};
            }
            lines << line;
        }
    }

private:
    QString value(const char *name) const
    {
        if (qstrcmp(name, kRounds18) == 0)
            return QString::number(m_stats.Rounds18.value());
        if (qstrcmp(name, kRounds9) == 0)
            return m_rounds9;
        return m_caption(QLatin1String(name));
    }

    const LabelCaption &m_caption;
    const GolferStatistics &m_stats;
    QString m_rounds9;
};

// How many character columns the widest line reaches, so that nothing falls off the paper.
int columnsReached(const StatisticsReport &report)
{
    int reach = 0;
    for (const QVector<ReportLine> *lines : {&report.left, &report.right})
        for (const ReportLine &line : *lines)
            for (const Tab &t : line)
                reach = std::max(reach, t.column + int(t.text.size()));
    // Figures are wider than the average character the columns are counted in.
    return reach + 2;
}

} // namespace

StatisticsReport BuildStatisticsReport(const StatisticsReportHead &head, const LabelCaption &caption,
                                       const GolferStatistics &stats)
{
    StatisticsReport report;
    report.heading = QStringLiteral("Golf Statistics for %1 %2").arg(head.firstName, head.lastName);
    report.date = QStringLiteral("Date: ") + DateText(head.today);
    if (head.handicapMode)
        report.handicapLine = QStringLiteral("Current ") + head.handicap;
    const SectionWriter writer(caption, stats);
    if (!stats.HasDetails) {
        writer.write(report.left, scoring(false), kLeft, false);
        return report;
    }
    writer.write(report.left, accuracy(), kLeft, true);
    writer.write(report.left, putting(), kLeft, true);
    writer.write(report.left, scoring(true), kLeft, true);
    writer.write(report.right, holeByHole(), kRight, true);
    writer.write(report.right, overallTotals(), kRight, true);
    report.right << ReportLine() << ReportLine() << ReportLine();
    // The notice stands at the right column's tab a sentence a line: in one line it would reach
    // far past the figures, and the whole page would have to be drawn smaller to hold it.
    for (const QString &sentence : FooterNotice().split(QStringLiteral("  "), Qt::SkipEmptyParts))
        report.right << ReportLine{{kFooterColumn, sentence}};
    return report;
}

PrintJob StatisticsPrintout(const StatisticsReport &report)
{
    PrintJob job;
    job.documentName = QStringLiteral("Statistics");
    job.paint = [report](QPagedPaintDevice &device) {
        ReportPainter r(device, columnsReached(report));
        r.line();
        r.line();
        r.line();
        r.centred(report.heading);
        r.centred(report.date);
        r.line();
        if (!report.handicapLine.isEmpty())
            r.line({{0, report.handicapLine}});
        r.line();
        // Both columns start at this height; a column that runs past the foot of the page goes
        // on over the next, and the other then starts there at the same height.
        const double top = r.y();
        for (const ReportLine &line : report.left)
            r.line(line);
        if (report.right.isEmpty())
            return;
        r.setY(top);
        for (const ReportLine &line : report.right)
            r.line(line);
    };
    return job;
}

void PrintStats(frmGolferStats &form)
{
    // The hourglass is held inside the trap, so that it has gone when a fault is shown.
    RunGuarded([&form] {
        const Hourglass hourglass;
        const LogGlobals &g = basLogGlobals();
        StatisticsReportHead head;
        head.firstName = g.gFirstName;
        head.lastName = g.gLastName;
        head.today = platform().today();
        head.handicapMode = g.gCommandString == QLatin1String("-h");
        if (head.handicapMode)
            if (const QLabel *panel = frame().panel(QStringLiteral("Handicap")))
                head.handicap = panel->text();
        const LabelCaption caption = [&form](const QString &name) {
            const QLabel *label = form.findChild<QLabel *>(name);
            return label ? label->text() : QString();
        };
        platform().print(StatisticsPrintout(BuildStatisticsReport(head, caption, form.statistics())));
    });
}

} // namespace quillon
