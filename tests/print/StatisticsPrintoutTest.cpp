#include "print/StatisticsPrintout.h"

#include "FrameFixture.h"
#include "PrintedPages.h"
#include "TestPrinting.h"
#include "stats/GolferStatistics.h"
#include "stats/frmGolferStats.h"

#include <QCheckBox>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

using namespace quillon;
using namespace quillon::test;

namespace {

// ---- The report as a table -------------------------------------------------------------

// Every label prints as its own name, so that the table shows which label stands where.
QString nameOf(const QString &label)
{
    return label;
}

StatisticsReportHead palmer()
{
    StatisticsReportHead head;
    head.firstName = QStringLiteral("Arnold");
    head.lastName = QStringLiteral("Palmer");
    head.today = QDate(2026, 11, 22);
    head.handicap = QStringLiteral("Handicap: 12.4");
    return head;
}

GolferStatistics counted(bool details, int rounds18, int front9, int back9)
{
    GolferStatistics s;
    s.HasDetails = details;
    s.Rounds18 = rounds18;
    s.RoundsFront9 = front9;
    s.RoundsBack9 = back9;
    return s;
}

// The line whose first text is `caption` (at any column), or nothing.
std::optional<ReportLine> lineOf(const QVector<ReportLine> &lines, const QString &caption)
{
    for (const ReportLine &l : lines)
        if (!l.isEmpty() && l.first().text == caption)
            return l;
    return std::nullopt;
}

// A line as "column:text" items, for compact comparison.
QStringList items(const std::optional<ReportLine> &line)
{
    QStringList out;
    if (line)
        for (const Tab &t : *line)
            out << QStringLiteral("%1:%2").arg(t.column).arg(t.text);
    return out;
}

// The section heads of a column: the texts standing at the head tab.
QStringList heads(const QVector<ReportLine> &lines, int column)
{
    QStringList out;
    for (const ReportLine &l : lines)
        if (l.size() == 1 && l.first().column == column)
            out << l.first().text;
    return out;
}

// The report made without a window; the footer notice reads the platform's today.
class StatisticsReportTable : public ::testing::Test {
protected:
    TestApp app{false};
};

} // namespace

TEST_F(StatisticsReportTable, HeadingDateAndTheHandicapLineOfTheFullProgram)
{
    const StatisticsReport full = BuildStatisticsReport(palmer(), nameOf, counted(true, 1, 0, 0));
    EXPECT_EQ(full.heading, QStringLiteral("Golf Statistics for Arnold Palmer"));
    EXPECT_EQ(full.date, QStringLiteral("Date: 11/22/2026"));
    EXPECT_EQ(full.handicapLine, QStringLiteral("Current Handicap: 12.4"));
    StatisticsReportHead plain = palmer();
    plain.handicapMode = false;
    EXPECT_EQ(BuildStatisticsReport(plain, nameOf, counted(true, 1, 0, 0)).handicapLine, QString());
}

TEST_F(StatisticsReportTable, WithDetailsTheTwoColumnsHoldTheirSectionsAtTheirTabs)
{
    const StatisticsReport r = BuildStatisticsReport(palmer(), nameOf, counted(true, 3, 2, 4));
    EXPECT_EQ(heads(r.left, 5), (QStringList{"Accuracy", "Putting", "Scoring"}));
    EXPECT_EQ(heads(r.right, 65), (QStringList{"Hole-by-Hole", "Overall Totals"}));
    // A blank line stands before each section.
    for (const QVector<ReportLine> *column : {&r.left, &r.right})
        for (int i = 0; i < column->size(); ++i)
            if (column->at(i).size() == 1 &&
                (column->at(i).first().column == 5 || column->at(i).first().column == 65)) {
                ASSERT_GT(i, 0);
                EXPECT_TRUE(column->at(i - 1).isEmpty()) << column->at(i).first().text.toStdString();
            }
    EXPECT_EQ(items(lineOf(r.left, "Total Penalties")),
              (QStringList{"10:Total Penalties", "42:lblTotalPenalties"}));
    EXPECT_EQ(items(lineOf(r.left, "Avg. Lost Balls 18-hole round)")),
              (QStringList{"10:Avg. Lost Balls 18-hole round)", "42:lblAvgLostBalls18"}));
    // A caption of two lines: the second indented, with the figures on it.
    EXPECT_EQ(items(lineOf(r.left, "Best Greens in Regulation")),
              QStringList{"10:Best Greens in Regulation"});
    EXPECT_EQ(items(lineOf(r.left, "Percentage (single round)")),
              (QStringList{"12:Percentage (single round)", "42:lblBestGRPercentage", "50:lblBestGRDate"}));
    EXPECT_EQ(items(lineOf(r.left, "(Driving Accuracy)")),
              (QStringList{"12:(Driving Accuracy)", "42:lblFairwaysInRegPercentage"}));
    EXPECT_EQ(items(lineOf(r.left, "without 3 or more putts")),
              (QStringList{"12:without 3 or more putts", "42:lblConsecutivePutts"}));
    // The round counts come from the record; the nine-hole rounds add front and back.
    EXPECT_EQ(items(lineOf(r.left, "18 Hole Rounds")), (QStringList{"10:18 Hole Rounds", "42:3"}));
    EXPECT_EQ(items(lineOf(r.left, "9 Hole Rounds")), (QStringList{"10:9 Hole Rounds", "42:6"}));
    EXPECT_EQ(items(lineOf(r.left, "Total Scores Under 40 (Front 9)")),
              (QStringList{"10:Total Scores Under 40 (Front 9)", "42:lblBroke40Front",
                           "50:(lblBroke40FrontPercentage)"}));
    EXPECT_EQ(items(lineOf(r.left, "Total Scores Under 70")),
              (QStringList{"10:Total Scores Under 70", "42:lblBroke70", "50:(lblBroke70Percentage)"}));
    // The right column.
    EXPECT_EQ(items(lineOf(r.right, "Most sub-par holes")), QStringList{"70:Most sub-par holes"});
    int at18 = 0;
    for (const ReportLine &l : r.right)
        if (!l.isEmpty() && l.first().text == QLatin1String("Single 18-hole round"))
            ++at18;
    EXPECT_EQ(at18, 3);
    EXPECT_EQ(items(lineOf(r.right, "Single 9-hole round")),
              (QStringList{"72:Single 9-hole round", "102:lblSubParHoles9", "110:lblMostSubPars9Date"}));
    EXPECT_EQ(items(lineOf(r.right, "a double bogey or greater")),
              (QStringList{"72:a double bogey or greater", "102:lblConsecutiveStrokes"}));
    EXPECT_EQ(items(lineOf(r.right, "Total Others")),
              (QStringList{"70:Total Others", "102:lblTotalOthers", "110:(lblOtherPercentage)"}));
    EXPECT_EQ(items(lineOf(r.right, "Bogeys on Par 5's")),
              (QStringList{"70:Bogeys on Par 5's", "102:lblPar5BogeyPercentage"}));
    // Three blank lines, then the footer notice at tab 70.
    const int footer =
        int(std::find_if(r.right.cbegin(), r.right.cend(),
                         [](const ReportLine &l) {
                             return !l.isEmpty() && l.first().text.startsWith(QStringLiteral("Printed with"));
                         }) -
            r.right.cbegin());
    ASSERT_LT(footer, r.right.size());
    EXPECT_EQ(r.right.at(footer).first().column, 70);
    EXPECT_TRUE(r.right.at(footer - 1).isEmpty() && r.right.at(footer - 2).isEmpty() &&
                r.right.at(footer - 3).isEmpty());
    EXPECT_EQ(items(std::optional<ReportLine>(r.right.at(footer - 4))),
              (QStringList{"70:Bogeys on Par 5's", "102:lblPar5BogeyPercentage"}));
}

TEST_F(StatisticsReportTable, WithoutDetailsOneScoringSectionWithItsRoundCountsAndNoFooter)
{
    const StatisticsReport r = BuildStatisticsReport(palmer(), nameOf, counted(false, 5, 1, 2));
    EXPECT_TRUE(r.right.isEmpty());
    EXPECT_EQ(heads(r.left, 5), QStringList{"Scoring"});
    EXPECT_EQ(items(lineOf(r.left, "Number of 18 Hole Rounds")),
              (QStringList{"10:Number of 18 Hole Rounds", "42:5"}));
    EXPECT_EQ(items(lineOf(r.left, "Number of 9 Hole Rounds")),
              (QStringList{"10:Number of 9 Hole Rounds", "42:3"}));
    EXPECT_FALSE(lineOf(r.left, "18 Hole Rounds"));
    EXPECT_EQ(items(lineOf(r.left, "Total Scores Under 40 (Back 9)")),
              (QStringList{"10:Total Scores Under 40 (Back 9)", "42:lblBroke40Back"}));
    EXPECT_EQ(items(lineOf(r.left, "Total Scores Under 100")),
              (QStringList{"10:Total Scores Under 100", "42:lblBroke100", "50:(lblBroke100Percentage)"}));
    QStringList captions;
    for (const ReportLine &l : r.left)
        if (!l.isEmpty() && l.first().column == 10)
            captions << l.first().text;
    EXPECT_EQ(captions.size(), 17);
    EXPECT_EQ(captions.first(), QStringLiteral("Number of 18 Hole Rounds"));
    EXPECT_EQ(captions.at(2), QStringLiteral("Best 18 Hole Score"));
    EXPECT_EQ(captions.last(), QStringLiteral("Total Scores Under 70"));
    for (const ReportLine &l : r.left)
        for (const Tab &t : l)
            EXPECT_FALSE(t.text.startsWith(QStringLiteral("Printed with")));
}

TEST_F(StatisticsReportTable, NineHoleRoundsPastTheCounterFailWithOverflow)
{
    EXPECT_EQ(errorNumberOf([] { BuildStatisticsReport(palmer(), nameOf, counted(true, 0, 32767, 1)); }), 6);
    EXPECT_EQ(errorNumberOf([] { BuildStatisticsReport(palmer(), nameOf, counted(false, 0, 32766, 1)); }), 0);
}

// ---- The report printed from the statistics screen --------------------------------------

namespace {

const QVector<int> kPars = {4, 4, 3, 5, 4, 4, 3, 4, 5, 4, 4, 3, 5, 4, 4, 3, 4, 5};

// A printed word with its place on the page, in points.
struct Word {
    int page = 0;
    QString text;
    double x = 0, y = 0, right = 0;
};

struct Printed {
    QVector<Word> words;
    QVector<double> pageWidths;
};

// The words of a PDF with their boxes, as `pdftotext -bbox` reads them.
Printed PrintedWords(const QString &pdf)
{
    Printed out;
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    if (!p.waitForFinished(30000) || p.exitCode() != 0) {
        ADD_FAILURE() << "pdftotext could not read " << pdf.toStdString();
        return out;
    }
    const QString html = QString::fromUtf8(p.readAllStandardOutput());
    static const QRegularExpression item(QStringLiteral(
        "<page width=\"([0-9.]+)\"|<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" "
        "yMax=\"[0-9.]+\">([^<]*)</word>"));
    for (auto it = item.globalMatch(html); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        if (!m.captured(1).isEmpty()) {
            out.pageWidths << m.captured(1).toDouble();
            continue;
        }
        QString text = m.captured(5);
        text.replace(QStringLiteral("&apos;"), QStringLiteral("'"))
            .replace(QStringLiteral("&quot;"), QStringLiteral("\""))
            .replace(QStringLiteral("&lt;"), QStringLiteral("<"))
            .replace(QStringLiteral("&gt;"), QStringLiteral(">"))
            .replace(QStringLiteral("&amp;"), QStringLiteral("&"));
        out.words << Word{int(out.pageWidths.size()) - 1, text, m.captured(2).toDouble(),
                          m.captured(3).toDouble(), m.captured(4).toDouble()};
    }
    return out;
}

bool sameLine(const Word &a, const Word &b)
{
    return a.page == b.page && std::abs(a.y - b.y) < 1.0;
}

// A phrase printed as consecutive words on one line: its first word's place, with the right
// edge of its last; the `nth` occurrence, from 0.
std::optional<Word> phrase(const Printed &p, const QString &text, int nth = 0)
{
    const QStringList parts = text.split(QLatin1Char(' '));
    for (int i = 0; i + parts.size() <= p.words.size(); ++i) {
        bool match = true;
        for (int k = 0; k < parts.size() && match; ++k)
            match = p.words[i + k].text == parts[k] && sameLine(p.words[i + k], p.words[i]);
        if (match && nth-- == 0) {
            Word w = p.words[i];
            w.text = text;
            w.right = p.words[i + parts.size() - 1].right;
            return w;
        }
    }
    return std::nullopt;
}

// The words printed after a phrase on its line and in its column (its half of the page), in order.
QVector<Word> after(const Printed &p, const Word &caption)
{
    const double middle = p.pageWidths.value(caption.page) / 2;
    QVector<Word> out;
    for (const Word &w : p.words)
        if (sameLine(w, caption) && w.x > caption.right + 0.5 && (w.x < middle) == (caption.x < middle))
            out << w;
    std::sort(out.begin(), out.end(), [](const Word &a, const Word &b) { return a.x < b.x; });
    return out;
}

QStringList texts(const QVector<Word> &words)
{
    QStringList out;
    for (const Word &w : words)
        out << w.text;
    return out;
}

// Where the character columns of the page fall: the left edge of column 0 and the width of one.
struct Grid {
    double origin = 0, unit = 0;
    double x(int column) const { return origin + column * unit; }
};

class StatsPrint : public FrameFixture {
public:
    void SetUp() override
    {
        FrameFixture::SetUp();
        addCourse(app.db(), CourseSpec{});
    }
    // An 18-hole round with every hole at par plus `over`, two putts each.
    qint64 detailedRound(const QDate &date, int over, const QString &holes = QStringLiteral("18-holes"))
    {
        RoundSpec r;
        r.date = date;
        r.details = true;
        r.holes = holes;
        const int first = holes == QLatin1String("9-holes (back)") ? 10 : 1;
        const int count = holes == QLatin1String("18-holes") ? 18 : 9;
        QVector<int> scores;
        for (int h = first; h < first + count; ++h)
            scores << kPars.at(h - 1) + over;
        r.score = r.adjusted = std::accumulate(scores.cbegin(), scores.cend(), 0);
        const qint64 index = addRound(app.db(), r);
        addHoleScores(app.db(), r, index, first, scores, kPars.mid(first - 1, count));
        return index;
    }
    void plainRound(const QDate &date, int score)
    {
        RoundSpec r;
        r.date = date;
        r.score = r.adjusted = score;
        addRound(app.db(), r);
    }
    frmGolferStats *stats() const
    {
        return qobject_cast<frmGolferStats *>(frame->views().loaded(QStringLiteral("frmGolferStats")));
    }
    void open()
    {
        item(QStringLiteral("mnuViewGolferStatistics"))->trigger();
        ASSERT_NE(stats(), nullptr);
    }
    QString label(const QString &name) const { return findControl<QLabel>(stats(), name)->text(); }
    // Print the open screen's report and read its words back.
    Printed print()
    {
        PrintStats(*stats());
        EXPECT_EQ(app.platform().printedFiles().size(), 1);
        EXPECT_EQ(app.platform().previewed, QStringList{"Statistics"});
        return app.platform().printedFiles().isEmpty() ? Printed()
                                                       : PrintedWords(app.platform().printedFiles().last());
    }
    QStringList pages() { return PrintedPages(app.platform().printedFiles().value(0)); }
    // The columns as two heads of known tabs give them.
    static Grid grid(const Printed &p, const QString &head1, int tab1, const QString &head2, int tab2)
    {
        const std::optional<Word> a = phrase(p, head1), b = phrase(p, head2);
        EXPECT_TRUE(a && b);
        if (!a || !b)
            return {};
        const double unit = (b->x - a->x) / (tab2 - tab1);
        return {a->x - tab1 * unit, unit};
    }
};

} // namespace

TEST_F(StatsPrint, WithDetailsTheTwoColumnsStandAtTheirTabsOnOnePage)
{
    detailedRound(QDate(2026, 3, 1), 1);
    detailedRound(QDate(2026, 4, 1), 0);
    startWithPalmer();
    open();
    const Printed p = print();
    ASSERT_EQ(p.pageWidths.size(), 1);
    const Grid g = grid(p, QStringLiteral("Accuracy"), 5, QStringLiteral("Hole-by-Hole"), 65);
    ASSERT_GT(g.unit, 0);
    const auto expectAt = [&](const QString &text, int column, int nth = 0) {
        const std::optional<Word> w = phrase(p, text, nth);
        ASSERT_TRUE(w) << text.toStdString();
        EXPECT_NEAR(w->x, g.x(column), 0.6) << text.toStdString();
    };
    for (const char *head : {"Putting", "Scoring"})
        expectAt(QLatin1String(head), 5);
    expectAt(QStringLiteral("Overall Totals"), 65);
    for (const char *caption :
         {"Total Penalties", "Avg. Lost Balls 18-hole round)", "Best Greens in Regulation",
          "Avg. Putts (Front 9)", "18 Hole Rounds", "Total Scores Under 70"})
        expectAt(QLatin1String(caption), 10);
    expectAt(QStringLiteral("Percentage (single round)"), 12);
    expectAt(QStringLiteral("without 3 or more putts"), 12);
    for (const char *caption : {"Most sub-par holes", "Bounce Back", "Total Eagles", "Bogeys on Par 5's"})
        expectAt(QLatin1String(caption), 70);
    expectAt(QStringLiteral("Single 9-hole round"), 72);
    expectAt(QStringLiteral("a double bogey or greater"), 72);
    expectAt(QStringLiteral("Printed with Quillon for Golf."), 70);

    // Figures: the left at 42 and 50, the right at 102 and 110.
    const auto figures = [&](const QString &caption, int nth = 0) {
        const std::optional<Word> w = phrase(p, caption, nth);
        EXPECT_TRUE(w) << caption.toStdString();
        return w ? after(p, *w) : QVector<Word>();
    };
    const QVector<Word> best = figures(QStringLiteral("Best 18 Hole Score"));
    ASSERT_EQ(texts(best), QStringList{"72"});
    EXPECT_NEAR(best[0].x, g.x(42), 0.6);
    const QVector<Word> under100 = figures(QStringLiteral("Total Scores Under 100"));
    ASSERT_EQ(texts(under100), (QStringList{"2", "(100.0%)"}));
    EXPECT_NEAR(under100[0].x, g.x(42), 0.6);
    EXPECT_NEAR(under100[1].x, g.x(50), 0.6);
    const QVector<Word> pars = figures(QStringLiteral("Total Pars"));
    ASSERT_EQ(texts(pars), (QStringList{"18", "(50.0%)"}));
    EXPECT_NEAR(pars[0].x, g.x(102), 0.6);
    EXPECT_NEAR(pars[1].x, g.x(110), 0.6);
    const QVector<Word> mostPars18 = figures(QStringLiteral("Single 18-hole round"), 1);
    ASSERT_EQ(texts(mostPars18), (QStringList{"18", "4/1/2026"}));
    EXPECT_NEAR(mostPars18[1].x, g.x(110), 0.6);

    // Both columns start at one height; sections in order down each column.
    EXPECT_NEAR(phrase(p, QStringLiteral("Accuracy"))->y, phrase(p, QStringLiteral("Hole-by-Hole"))->y, 0.5);
    EXPECT_LT(phrase(p, QStringLiteral("Accuracy"))->y, phrase(p, QStringLiteral("Putting"))->y);
    EXPECT_LT(phrase(p, QStringLiteral("Putting"))->y, phrase(p, QStringLiteral("Scoring"))->y);
    EXPECT_LT(phrase(p, QStringLiteral("Hole-by-Hole"))->y, phrase(p, QStringLiteral("Overall Totals"))->y);
    // The footer stands four lines below the right column's last line.
    const double lineHeight =
        phrase(p, QStringLiteral("Total Birdies"))->y - phrase(p, QStringLiteral("Total Eagles"))->y;
    EXPECT_NEAR(phrase(p, QStringLiteral("Printed with"))->y -
                    phrase(p, QStringLiteral("Bogeys on Par 5's"))->y,
                4 * lineHeight, 0.5);
}

TEST_F(StatsPrint, ThePrintedFiguresAreTheLabelsOfTheForm)
{
    detailedRound(QDate(2026, 3, 1), 1);
    startWithPalmer();
    open();
    // Each value label gets a text of its own; the report must carry each one once.
    QStringList values;
    const QRegularExpression captionArray(QStringLiteral("_[0-9]+$"));
    int k = 0;
    for (QLabel *l : stats()->findChildren<QLabel *>()) {
        const QString name = l->objectName();
        if (!name.startsWith(QStringLiteral("lbl")) || name.contains(captionArray))
            continue;
        l->setText(QStringLiteral("v%1").arg(++k));
        if (name != QLatin1String("lbl18HoleRoundsPlayed") && name != QLatin1String("lbl9HoleRoundsPlayed"))
            values << l->text();
    }
    ASSERT_EQ(values.size(), 104);
    const Printed p = print();
    QStringList printed;
    for (const Word &w : p.words)
        printed << w.text;
    for (const QString &v : values)
        EXPECT_EQ(printed.count(v) + printed.count(QLatin1Char('(') + v + QLatin1Char(')')), 1)
            << v.toStdString();
    // Each by place: the figures on a caption's line are the texts of its labels, a percentage in
    // brackets.
    const struct {
        const char *caption;
        int nth;
        const char *value;
        const char *second;
        bool bracketed;
    } expected[] = {
        {"Total Penalties", 0, "lblTotalPenalties", "", false},
        {"Avg. Penalties (18-hole round)", 0, "lblAvgPenalties18", "", false},
        {"Avg. Penalties (9-hole round)", 0, "lblAvgPenalties9", "", false},
        {"Total Lost Balls", 0, "lblTotalLostBalls", "", false},
        {"Avg. Lost Balls 18-hole round)", 0, "lblAvgLostBalls18", "", false},
        {"Avg. Lost Balls (9-hole round)", 0, "lblAvgLostBalls9", "", false},
        {"Greens in Regulation", 0, "lblGreensInRegPercentage", "", false},
        {"Percentage (single round)", 0, "lblBestGRPercentage", "lblBestGRDate", false},
        {"(Driving Accuracy)", 0, "lblFairwaysInRegPercentage", "", false},
        {"Percentage (single round)", 1, "lblBestFairwaysPercentage", "lblBestFairwaysDate", false},
        {"Total Bunker Shots", 0, "lblTotalBunkers", "", false},
        {"Avg. Bunkers (18-hole round)", 0, "lblAverageBunkers18", "", false},
        {"Avg. Bunkers (9-hole round)", 0, "lblAverageBunkers9", "", false},
        {"Attempted Sand Saves", 0, "lblAttemptedSandSavePercentage", "", false},
        {"Sand Save Percentage", 0, "lblSandSavePercentage", "", false},
        {"Avg. Putts (Front 9)", 0, "lblAvgFront9Putts", "", false},
        {"Avg. Putts (Back 9)", 0, "lblAvgBack9Putts", "", false},
        {"Avg. Putts (18 Holes)", 0, "lblAvg18HolePutts", "", false},
        {"Avg. Putts per Hole", 0, "lblAvgPuttsPerHole", "", false},
        {"Avg. Putts (Greens in Reg.)", 0, "lblAvgPuttsGR", "", false},
        {"Putting Average Par 3's", 0, "lblPar3Putts", "", false},
        {"Putting Average Par 4's", 0, "lblPar4Putts", "", false},
        {"Putting Average Par 5's", 0, "lblPar5Putts", "", false},
        {"Low Putts Front 9", 0, "lblLowPuttsFront", "", false},
        {"Low Putts Back 9", 0, "lblLowPuttsBack", "", false},
        {"Low Putts 18 Holes", 0, "lblLowPutts18", "", false},
        {"Chip-ins", 0, "lblChipInsPercentage", "", false},
        {"1 Putts", 0, "lblOnePuttsPercentage", "", false},
        {"2 Putts", 0, "lblTwoPuttsPercentage", "", false},
        {"3 Putts or More", 0, "lblThreePuttsPercentage", "", false},
        {"without 3 or more putts", 0, "lblConsecutivePutts", "", false},
        {"Best 18 Hole Score", 0, "lblBest18HoleScore", "", false},
        {"Worst 18 Hole Score", 0, "lblWorst18HoleScore", "", false},
        {"Best Front 9 Score", 0, "lblBestFrontScore", "", false},
        {"Worst Front 9 Score", 0, "lblWorstFrontScore", "", false},
        {"Best Back 9 Score", 0, "lblBestBackScore", "", false},
        {"Worst Back 9 Score", 0, "lblWorstBackScore", "", false},
        {"Avg. Score (Front 9)", 0, "lblStrokeAvgFront", "", false},
        {"Avg. Score (Back 9)", 0, "lblStrokeAvgBack", "", false},
        {"Avg. Score (18 Holes)", 0, "lblStrokeAvg18", "", false},
        {"Total Scores Under 40 (Front 9)", 0, "lblBroke40Front", "lblBroke40FrontPercentage", true},
        {"Total Scores Under 40 (Back 9)", 0, "lblBroke40Back", "lblBroke40BackPercentage", true},
        {"Total Scores Under 100", 0, "lblBroke100", "lblBroke100Percentage", true},
        {"Total Scores Under 90", 0, "lblBroke90", "lblBroke90Percentage", true},
        {"Total Scores Under 80", 0, "lblBroke80", "lblBroke80Percentage", true},
        {"Total Scores Under 70", 0, "lblBroke70", "lblBroke70Percentage", true},
        {"Single 9-hole round", 0, "lblSubParHoles9", "lblMostSubPars9Date", false},
        {"Single 18-hole round", 0, "lblSubParHoles18", "lblMostSubPars18Date", false},
        {"Single 9-hole round", 1, "lblMostPars9", "lblMostPars9Date", false},
        {"Single 18-hole round", 1, "lblMostPars18", "lblMostPars18Date", false},
        {"Single 9-hole round", 2, "lblAboveParHoles9", "lblMostAbovePars9Date", false},
        {"Single 18-hole round", 2, "lblAboveParHoles18", "lblMostAbovePars18Date", false},
        {"Bounce Back", 0, "lblBounceBack", "", false},
        {"Birdie Conversion", 0, "lblBirdieConversion", "", false},
        {"Scrambling", 0, "lblScrambling", "", false},
        {"Par Breakers", 0, "lblParBreakers", "", false},
        {"Par 3 Performance", 0, "lblPar3Performance", "", false},
        {"Stroke Average Par 3's", 0, "lblPar3StrokeAvg", "", false},
        {"Stroke Average Par 4's", 0, "lblPar4StrokeAvg", "", false},
        {"Stroke Average Par 5's", 0, "lblPar5StrokeAvg", "", false},
        {"a double bogey or greater", 0, "lblConsecutiveStrokes", "", false},
        {"Total Eagles", 0, "lblTotalEagles", "lblEaglePercentage", true},
        {"Total Birdies", 0, "lblTotalBirdies", "lblBirdiePercentage", true},
        {"Total Pars", 0, "lblTotalPars", "lblParPercentage", true},
        {"Total Bogeys", 0, "lblTotalBogeys", "lblBogeyPercentage", true},
        {"Total Double Bogeys", 0, "lblTotalDoubleBogeys", "lblDoubleBogeyPercentage", true},
        {"Total Triple Bogeys", 0, "lblTotalTripleBogeys", "lblTripleBogeyPercentage", true},
        {"Total Others", 0, "lblTotalOthers", "lblOtherPercentage", true},
        {"Avg. Birdies (18-hole round)", 0, "lblAvgBirdies18", "", false},
        {"Avg. Birdies (9-hole round)", 0, "lblAvgBirdies9", "", false},
        {"Avg. Pars (18-hole round)", 0, "lblAvgPars18", "", false},
        {"Avg. Pars (9-hole round)", 0, "lblAvgPars9", "", false},
        {"Avg. Bogeys (18-hole round)", 0, "lblAvgBogeys18", "", false},
        {"Avg. Bogeys (9-hole round)", 0, "lblAvgBogeys9", "", false},
        {"Birdies on Par 3's", 0, "lblPar3BirdiePercentage", "", false},
        {"Birdies on Par 4's", 0, "lblPar4BirdiePercentage", "", false},
        {"Birdies on Par 5's", 0, "lblPar5BirdiePercentage", "", false},
        {"Pars on Par 3's", 0, "lblPar3ParPercentage", "", false},
        {"Pars on Par 4's", 0, "lblPar4ParPercentage", "", false},
        {"Pars on Par 5's", 0, "lblPar5ParPercentage", "", false},
        {"Bogeys on Par 3's", 0, "lblPar3BogeyPercentage", "", false},
        {"Bogeys on Par 4's", 0, "lblPar4BogeyPercentage", "", false},
        {"Bogeys on Par 5's", 0, "lblPar5BogeyPercentage", "", false},
    };
    int labelsPlaced = 0;
    for (const auto &e : expected) {
        const std::optional<Word> caption = phrase(p, QLatin1String(e.caption), e.nth);
        ASSERT_TRUE(caption) << e.caption;
        QStringList want{label(QLatin1String(e.value))};
        ++labelsPlaced;
        if (*e.second) {
            const QString second = label(QLatin1String(e.second));
            want << (e.bracketed ? "(" + second + ")" : second);
            ++labelsPlaced;
        }
        EXPECT_EQ(texts(after(p, *caption)), want) << e.caption << " " << e.nth;
    }
    EXPECT_EQ(labelsPlaced, values.size());
    const auto beside = [&](const char *caption) {
        return texts(after(p, *phrase(p, QLatin1String(caption))));
    };
    // The round counts come from the record, not from the screen's labels.
    EXPECT_EQ(beside("18 Hole Rounds"), QStringList{"1"});
    EXPECT_EQ(beside("9 Hole Rounds"), QStringList{"0"});
}

TEST_F(StatsPrint, ABlankLabelPrintsNothingBesideItsCaptionAndABlankPercentageEmptyBrackets)
{
    // Details for the back nine alone: nothing of the front nine, and no penalties recorded.
    detailedRound(QDate(2026, 3, 1), 1, QStringLiteral("9-holes (back)"));
    startWithPalmer();
    open();
    ASSERT_EQ(label("lblTotalPenalties"), QString());
    ASSERT_EQ(label("lblBroke40Front"), QString());
    ASSERT_EQ(label("lblBroke40FrontPercentage"), QString());
    ASSERT_FALSE(label("lblBroke40BackPercentage").isEmpty());
    const Printed p = print();
    EXPECT_TRUE(after(p, *phrase(p, QStringLiteral("Total Penalties"))).isEmpty());
    EXPECT_TRUE(after(p, *phrase(p, QStringLiteral("Best Front 9 Score"))).isEmpty());
    const QVector<Word> front = after(p, *phrase(p, QStringLiteral("Total Scores Under 40 (Front 9)")));
    ASSERT_EQ(texts(front), QStringList{"()"});
    const Grid g = grid(p, QStringLiteral("Accuracy"), 5, QStringLiteral("Hole-by-Hole"), 65);
    EXPECT_NEAR(front[0].x, g.x(50), 0.6);
    EXPECT_EQ(texts(after(p, *phrase(p, QStringLiteral("Total Scores Under 40 (Back 9)")))),
              (QStringList{label("lblBroke40Back"), "(" + label("lblBroke40BackPercentage") + ")"}));
}

TEST_F(StatsPrint, WithTheCurrentYearBoxCheckedTheReportCoversTheCurrentYearAndTheHeadingDoesNotSaySo)
{
    detailedRound(QDate(2025, 6, 1), 0);
    detailedRound(QDate(2026, 6, 1), 1);
    startWithPalmer();
    open();
    auto *box = findControl<QCheckBox>(stats(), QStringLiteral("chkCurrentYear"));
    ASSERT_TRUE(box->isEnabled());
    box->click();
    ASSERT_EQ(label("lbl18HoleRoundsPlayed"), QStringLiteral("1"));
    const Printed p = print();
    EXPECT_EQ(texts(after(p, *phrase(p, QStringLiteral("18 Hole Rounds")))), QStringList{"1"});
    EXPECT_EQ(texts(after(p, *phrase(p, QStringLiteral("Best 18 Hole Score")))), QStringList{"90"});
    EXPECT_EQ(texts(after(p, *phrase(p, QStringLiteral("Total Pars")))), (QStringList{"0", "(0.0%)"}));
    const QStringList lines = TextLines(pages().value(0));
    ASSERT_GE(lines.size(), 2);
    EXPECT_EQ(lines.at(0).trimmed(), QStringLiteral("Golf Statistics for Arnold Palmer"));
    EXPECT_EQ(lines.at(1).trimmed(), QStringLiteral("Date: 11/22/2026"));
    EXPECT_FALSE(pages().value(0).contains(QStringLiteral("year"), Qt::CaseInsensitive));
}

TEST_F(StatsPrint, WithoutTheHandicapMarkerNoHandicapLineIsPrinted)
{
    detailedRound(QDate(2026, 3, 1), 1);
    startWithPalmer();
    open();
    basLogGlobals().gCommandString = QString();
    print();
    EXPECT_FALSE(pages().value(0).contains(QStringLiteral("Current")));
    EXPECT_FALSE(pages().value(0).contains(QStringLiteral("Handicap:")));
}

TEST_F(StatsPrint, TheFullProgramPrintsTheHandicapOfTheStatusBar)
{
    detailedRound(QDate(2026, 3, 1), 1);
    startWithPalmer();
    open();
    frame->setPanelText(QStringLiteral("Handicap"), QStringLiteral("Handicap: 12.4"));
    const Printed p = print();
    const std::optional<Word> line = phrase(p, QStringLiteral("Current Handicap: 12.4"));
    ASSERT_TRUE(line);
    // At the left edge, between the date and the first section.
    EXPECT_LT(line->x, phrase(p, QStringLiteral("Accuracy"))->x);
    EXPECT_GT(line->y, phrase(p, QStringLiteral("Date:"))->y);
    EXPECT_LT(line->y, phrase(p, QStringLiteral("Accuracy"))->y);
}

TEST_F(StatsPrint, TheHeadingAndTheDateAreCentredUnderThreeBlankLines)
{
    detailedRound(QDate(2026, 3, 1), 1);
    startWithPalmer();
    open();
    const Printed p = print();
    ASSERT_EQ(p.pageWidths.size(), 1);
    const std::optional<Word> heading = phrase(p, QStringLiteral("Golf Statistics for Arnold Palmer"));
    const std::optional<Word> date = phrase(p, QStringLiteral("Date: 11/22/2026"));
    ASSERT_TRUE(heading && date);
    const double middle = p.pageWidths[0] / 2;
    EXPECT_NEAR((heading->x + heading->right) / 2, middle, 1.0);
    EXPECT_NEAR((date->x + date->right) / 2, middle, 1.0);
    // Three blank lines above the heading; the page's margin is that of its left edge.
    const double lineHeight = date->y - heading->y;
    const Grid g = grid(p, QStringLiteral("Accuracy"), 5, QStringLiteral("Hole-by-Hole"), 65);
    EXPECT_NEAR(heading->y - g.origin, 3 * lineHeight, 1.5);
}

TEST_F(StatsPrint, WithoutDetailsTheReportIsOneScoringSectionWithoutFooter)
{
    plainRound(QDate(2026, 3, 1), 95);
    plainRound(QDate(2026, 4, 1), 88);
    startWithPalmer();
    open();
    const Printed p = print();
    const QString page = pages().value(0);
    SCOPED_TRACE(page.toStdString());
    EXPECT_FALSE(page.contains(QStringLiteral("Accuracy")));
    EXPECT_FALSE(page.contains(QStringLiteral("Overall Totals")));
    EXPECT_FALSE(page.contains(QStringLiteral("Printed with")));
    const Grid g = grid(p, QStringLiteral("Scoring"), 5, QStringLiteral("Number of 18 Hole Rounds"), 10);
    const QVector<Word> rounds = after(p, *phrase(p, QStringLiteral("Number of 18 Hole Rounds")));
    ASSERT_EQ(texts(rounds), QStringList{"2"});
    EXPECT_NEAR(rounds[0].x, g.x(42), 0.6);
    EXPECT_EQ(texts(after(p, *phrase(p, QStringLiteral("Number of 9 Hole Rounds")))), QStringList{"0"});
    // No nine-hole round: the front and back figures read "N/A", without a percentage.
    EXPECT_EQ(texts(after(p, *phrase(p, QStringLiteral("Total Scores Under 40 (Front 9)")))),
              QStringList{"N/A"});
    const QVector<Word> under90 = after(p, *phrase(p, QStringLiteral("Total Scores Under 90")));
    ASSERT_EQ(texts(under90), (QStringList{"1", "(50.0%)"}));
    EXPECT_NEAR(under90[1].x, g.x(50), 0.6);
    EXPECT_EQ(texts(after(p, *phrase(p, QStringLiteral("Best 18 Hole Score")))),
              QStringList{label("lblBest18HoleScore")});
}

TEST_F(StatsPrint, ALongReportRunsOnOverPagesByItself)
{
    detailedRound(QDate(2026, 3, 1), 1);
    startWithPalmer();
    open();
    const StatisticsReport report = BuildStatisticsReport(
        palmer(), [this](const QString &name) { return label(name); }, stats()->statistics());
    // A page as wide as the usual one and far too short for the report.
    const QString path = app.file(QStringLiteral("short.pdf"));
    {
        QPdfWriter writer(path);
        writer.setPageSize(QPageSize(QSizeF(210, 100), QPageSize::Millimeter));
        StatisticsPrintout(report).paint(writer);
    }
    const QStringList printed = PrintedPages(path);
    ASSERT_GE(printed.size(), 2);
    const QString all = printed.join(QLatin1Char('\n'));
    // What stands apart on the lines: texts two blanks or more from their neighbours.
    QStringList cells;
    for (const QString &line : TextLines(all))
        cells << line.trimmed().split(QRegularExpression(QStringLiteral("\\s{2,}")));
    // Every line of the report is there.
    for (const QVector<ReportLine> *column : {&report.left, &report.right})
        for (const ReportLine &line : *column)
            if (!line.isEmpty())
                EXPECT_TRUE(all.contains(line.first().text)) << line.first().text.toStdString();
    for (const char *text :
         {"Golf Statistics for Arnold Palmer", "Accuracy", "Putting", "Scoring", "Hole-by-Hole",
          "Overall Totals", "Total Scores Under 70", "Bogeys on Par 5's", "All rights reserved."})
        EXPECT_EQ(cells.count(QLatin1String(text)), 1) << text;
    // The first page ends within the left column: the rest of it comes on the next.
    EXPECT_TRUE(printed[0].contains(QStringLiteral("Accuracy")));
    EXPECT_FALSE(printed[0].contains(QStringLiteral("Total Scores Under 70")));
}

TEST_F(StatsPrint, AFailingPrinterShowsTheErrorWithTheNormalPointer)
{
    detailedRound(QDate(2026, 3, 1), 1);
    startWithPalmer();
    open();
    const int before = app.platform().pointerChanges().size();
    app.platform().printerName.clear();
    PrintStats(*stats());
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], QStringLiteral("Error 482: Printer error"), MsgIcon::Critical,
                  QStringLiteral("Quillon for Golf"));
    EXPECT_FALSE(shown[0].pointerBusy);
    const QVector<bool> changes = app.platform().pointerChanges().mid(before);
    ASSERT_FALSE(changes.isEmpty());
    EXPECT_TRUE(changes.first()) << "the hourglass while the report is made";
    EXPECT_FALSE(changes.last());
    EXPECT_FALSE(app.platform().pointerBusy());
    EXPECT_TRUE(app.platform().printedFiles().isEmpty());
}
