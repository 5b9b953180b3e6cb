#include "StatisticsDisplay.h"

#include "core/DateText.h"
#include "core/Format.h"
#include "core/QuillonError.h"

#include <stdexcept>
#include <string>

namespace quillon {

namespace {

using Stats = GolferStatistics;

// ---- Formats --------------------------------------------------------------

QString Int(Int16 value)
{
    return QString::number(value.value());
}

QString Avg(double quotient)
{
    return Format(quotient, QStringLiteral("##0.0"));
}

QString Pct(double quotient)
{
    return Format(quotient * 100, QStringLiteral("##0.0")) + QLatin1Char('%');
}

// The best-round ratios are 32-bit floats; they are scaled in their own precision.
QString Pct(float ratio)
{
    const float percent = ratio * 100.0f;
    return Format(percent, QStringLiteral("##0.0")) + QLatin1Char('%');
}

QString Date(const QDate &date)
{
    return StatisticsDate(date);
}

// ---- Values ---------------------------------------------------------------

double Number(Int16 value)
{
    return value.value();
}

double Number(qint64 value)
{
    return static_cast<double>(value);
}

// A quotient as a double.  A zero denominator is the division-by-zero failure: it must
// skip the measure, never show an infinity or NaN.
template <typename N, typename D>
double Quotient(N numerator, D denominator)
{
    const double divisor = Number(denominator);
    if (divisor == 0)
        throw QuillonError::divisionByZero();
    return Number(numerator) / divisor;
}

// ---- Catalogue ------------------------------------------------------------

// One measure as its table lists it: the label, when it is filled, and its text (format
// applied to value).  The text may throw the overflow or division-by-zero failure.
struct Measure {
    const char *label;
    bool (*filled)(const Stats &);
    QString (*text)(const Stats &);
};

#define WHEN(condition) []([[maybe_unused]] const Stats &s) -> bool { return condition; }
#define SHOW(value) []([[maybe_unused]] const Stats &s) -> QString { return value; }

const Measure kAccuracy[] = {
    {"lblFairwaysInRegPercentage", WHEN(s.FairwaysPossible > 0),
     SHOW(Pct(Quotient(s.FairwaysHit, s.FairwaysPossible)))},
    {"lblGreensInRegPercentage", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.GreensInReg, s.DetailHoles)))},
    {"lblTotalPenalties", WHEN(s.PenaltyRounds9 > 0 || s.PenaltyRounds18 > 0), SHOW(Int(s.TotalPenalties))},
    {"lblAvgPenalties9", WHEN(s.PenaltyRounds9 > 0), SHOW(Avg(Quotient(s.Penalties9, s.PenaltyRounds9)))},
    {"lblAvgPenalties18", WHEN(s.PenaltyRounds18 > 0), SHOW(Avg(Quotient(s.Penalties18, s.PenaltyRounds18)))},
    {"lblTotalLostBalls", WHEN(s.LostBallRounds9 > 0 || s.LostBallRounds18 > 0), SHOW(Int(s.TotalLostBalls))},
    {"lblAvgLostBalls9", WHEN(s.LostBallRounds9 > 0), SHOW(Avg(Quotient(s.LostBalls9, s.LostBallRounds9)))},
    {"lblAvgLostBalls18", WHEN(s.LostBallRounds18 > 0),
     SHOW(Avg(Quotient(s.LostBalls18, s.LostBallRounds18)))},
    {"lblTotalBunkers", WHEN(s.BunkerRounds9 > 0 || s.BunkerRounds18 > 0), SHOW(Int(s.TotalBunkers))},
    {"lblAverageBunkers9", WHEN(s.BunkerRounds9 > 0), SHOW(Avg(Quotient(s.Bunkers9, s.BunkerRounds9)))},
    {"lblAverageBunkers18", WHEN(s.BunkerRounds18 > 0), SHOW(Avg(Quotient(s.Bunkers18, s.BunkerRounds18)))},
    {"lblAttemptedSandSavePercentage", WHEN(s.AttemptedSaveHoles > 0 && s.TotalBunkers > 0),
     SHOW(Pct(Quotient(s.TotalAttemptedSaves, s.TotalBunkers)))},
    {"lblSandSavePercentage", WHEN(s.AttemptedSaveHoles > 0),
     SHOW(s.TotalAttemptedSaves < 1 ? QStringLiteral("0.0%")
                                    : Pct(Quotient(s.TotalSandSaves, s.TotalAttemptedSaves)))},
    {"lblBestGRPercentage", WHEN(true), SHOW(Pct(s.BestGreensPct))},
    {"lblBestGRDate", WHEN(true), SHOW(Date(s.BestGreensDate))},
    {"lblBestFairwaysPercentage", WHEN(true), SHOW(Pct(s.BestFairwaysPct))},
    {"lblBestFairwaysDate", WHEN(true), SHOW(Date(s.BestFairwaysDate))},
};

const Measure kPutting[] = {
    {"lblAvgFront9Putts", WHEN(s.DetailRoundsFront9 > 0 || s.DetailRounds18 > 0),
     SHOW(Avg(Quotient(s.PuttsFront9, s.DetailRounds18 + s.DetailRoundsFront9)))},
    {"lblLowPuttsFront", WHEN(s.DetailRoundsFront9 > 0 || s.DetailRounds18 > 0), SHOW(Int(s.LowPuttsFront))},
    {"lblAvgBack9Putts", WHEN(s.DetailRoundsBack9 > 0),
     SHOW(Avg(Quotient(s.PuttsBack9, s.DetailRounds18 + s.DetailRoundsBack9)))},
    {"lblLowPuttsBack", WHEN(s.DetailRoundsBack9 > 0), SHOW(Int(s.LowPuttsBack))},
    {"lblAvg18HolePutts", WHEN(s.DetailRounds18 > 0), SHOW(Avg(Quotient(s.Putts18, s.DetailRounds18)))},
    {"lblAvgPuttsPerHole", WHEN(s.DetailRounds18 > 0), SHOW(Avg(Quotient(s.Putts18, s.DetailRounds18 * 18)))},
    {"lblLowPutts18", WHEN(s.DetailHoles > 0), SHOW(Int(s.LowPutts18))},
    {"lblOnePuttsPercentage", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.OnePutts, s.DetailHoles)))},
    {"lblTwoPuttsPercentage", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.TwoPutts, s.DetailHoles)))},
    {"lblThreePuttsPercentage", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.ThreePutts, s.DetailHoles)))},
    {"lblChipInsPercentage", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.ChipIns, s.DetailHoles)))},
    {"lblConsecutivePutts", WHEN(s.DetailHoles > 0), SHOW(Int(s.BestPuttRun))},
    {"lblPar3Putts", WHEN(s.DetailHoles > 0 && s.Par3Holes > 0),
     SHOW(Avg(Quotient(s.Par3Putts, s.Par3Holes)))},
    {"lblPar4Putts", WHEN(s.DetailHoles > 0 && s.Par4Holes > 0),
     SHOW(Avg(Quotient(s.Par4Putts, s.Par4Holes)))},
    {"lblPar5Putts", WHEN(s.DetailHoles > 0 && s.Par5Holes > 0),
     SHOW(Avg(Quotient(s.Par5Putts, s.Par5Holes)))},
    {"lblAvgPuttsGR", WHEN(s.GreensInReg > 0), SHOW(Avg(Quotient(s.PuttsOnGreensInReg, s.GreensInReg)))},
};

// Front and back nines of 18-hole rounds reach the averages and percentages through
// DetailRounds18, but the best and worst nines look at 9-hole rounds alone.
const Measure kScoring[] = {
    {"lbl18HoleRoundsPlayed", WHEN(true), SHOW(Int(s.Rounds18))},
    {"lbl9HoleRoundsPlayed", WHEN(true), SHOW(Int(s.RoundsFront9 + s.RoundsBack9))},
    {"lblBest18HoleScore", WHEN(s.Rounds18 > 0), SHOW(Int(s.Best18))},
    {"lblWorst18HoleScore", WHEN(s.Rounds18 > 0), SHOW(Int(s.Worst18))},
    {"lblBestFrontScore", WHEN(s.RoundsFront9 > 0), SHOW(Int(s.BestFront9))},
    {"lblWorstFrontScore", WHEN(s.RoundsFront9 > 0), SHOW(Int(s.WorstFront9))},
    {"lblBroke40Front", WHEN(s.RoundsFront9 > 0), SHOW(Int(s.Broke40Front))},
    {"lblBestBackScore", WHEN(s.RoundsBack9 > 0), SHOW(Int(s.BestBack9))},
    {"lblWorstBackScore", WHEN(s.RoundsBack9 > 0), SHOW(Int(s.WorstBack9))},
    {"lblBroke40Back", WHEN(s.RoundsBack9 > 0), SHOW(Int(s.Broke40Back))},
    {"lblBroke40FrontPercentage", WHEN(s.RoundsFront9 > 0 || s.DetailRounds18 > 0),
     SHOW(Pct(Quotient(s.Broke40Front, s.RoundsFront9 + s.DetailRounds18)))},
    {"lblStrokeAvgFront", WHEN(s.RoundsFront9 > 0 || s.DetailRounds18 > 0),
     SHOW(Avg(Quotient(s.TotalFront9Score, s.RoundsFront9 + s.DetailRounds18)))},
    {"lblBroke40BackPercentage", WHEN(s.RoundsBack9 > 0 || s.DetailRounds18 > 0),
     SHOW(Pct(Quotient(s.Broke40Back, s.RoundsBack9 + s.DetailRounds18)))},
    {"lblStrokeAvgBack", WHEN(s.RoundsBack9 > 0 || s.DetailRounds18 > 0),
     SHOW(Avg(Quotient(s.TotalBack9Score, s.RoundsBack9 + s.DetailRounds18)))},
    {"lblBroke100", WHEN(true), SHOW(Int(s.Broke100))},
    {"lblBroke90", WHEN(true), SHOW(Int(s.Broke90))},
    {"lblBroke80", WHEN(true), SHOW(Int(s.Broke80))},
    {"lblBroke70", WHEN(true), SHOW(Int(s.Broke70))},
    {"lblBroke100Percentage", WHEN(s.Rounds18 > 0), SHOW(Pct(Quotient(s.Broke100, s.Rounds18)))},
    {"lblBroke90Percentage", WHEN(s.Rounds18 > 0), SHOW(Pct(Quotient(s.Broke90, s.Rounds18)))},
    {"lblBroke80Percentage", WHEN(s.Rounds18 > 0), SHOW(Pct(Quotient(s.Broke80, s.Rounds18)))},
    {"lblBroke70Percentage", WHEN(s.Rounds18 > 0), SHOW(Pct(Quotient(s.Broke70, s.Rounds18)))},
    {"lblStrokeAvg18", WHEN(s.Rounds18 > 0), SHOW(Avg(Quotient(s.Total18Score, s.Rounds18)))},
};

// A record date still at day 1 was set by no round.
bool Set(const QDate &date)
{
    return date != NoRecordDate();
}

const Measure kHoleByHole[] = {
    {"lblSubParHoles9", WHEN(s.DetailHoles > 0), SHOW(Int(s.MostSubPars9))},
    {"lblMostSubPars9Date", WHEN(s.DetailHoles > 0 && Set(s.MostSubPars9Date)),
     SHOW(Date(s.MostSubPars9Date))},
    {"lblMostPars9", WHEN(s.DetailHoles > 0), SHOW(Int(s.MostPars9))},
    {"lblMostPars9Date", WHEN(s.DetailHoles > 0 && Set(s.MostPars9Date)), SHOW(Date(s.MostPars9Date))},
    {"lblAboveParHoles9", WHEN(s.DetailHoles > 0), SHOW(Int(s.MostAbovePars9))},
    {"lblMostAbovePars9Date", WHEN(s.DetailHoles > 0 && Set(s.MostAbovePars9Date)),
     SHOW(Date(s.MostAbovePars9Date))},
    {"lblSubParHoles18", WHEN(s.DetailHoles > 0), SHOW(Int(s.MostSubPars18))},
    {"lblMostSubPars18Date", WHEN(s.DetailHoles > 0 && Set(s.MostSubPars18Date)),
     SHOW(Date(s.MostSubPars18Date))},
    {"lblMostPars18", WHEN(s.DetailHoles > 0), SHOW(Int(s.MostPars18))},
    {"lblMostPars18Date", WHEN(s.DetailHoles > 0 && Set(s.MostPars18Date)), SHOW(Date(s.MostPars18Date))},
    {"lblAboveParHoles18", WHEN(s.DetailHoles > 0), SHOW(Int(s.MostAbovePars18))},
    {"lblMostAbovePars18Date", WHEN(s.DetailHoles > 0 && Set(s.MostAbovePars18Date)),
     SHOW(Date(s.MostAbovePars18Date))},
    {"lblConsecutiveStrokes", WHEN(s.DetailHoles > 0), SHOW(Int(s.BestStrokeRun))},
    {"lblPar3StrokeAvg", WHEN(s.DetailHoles > 0 && s.Par3Holes > 0),
     SHOW(Avg(Quotient(s.Par3Strokes, s.Par3Holes)))},
    {"lblPar4StrokeAvg", WHEN(s.DetailHoles > 0 && s.Par4Holes > 0),
     SHOW(Avg(Quotient(s.Par4Strokes, s.Par4Holes)))},
    {"lblPar5StrokeAvg", WHEN(s.DetailHoles > 0 && s.Par5Holes > 0),
     SHOW(Avg(Quotient(s.Par5Strokes, s.Par5Holes)))},
    {"lblScrambling", WHEN(s.DetailHoles > 0),
     SHOW(s.GreensMissed < 1 ? QStringLiteral("N/A") : Pct(Quotient(s.Scrambles, s.GreensMissed)))},
    {"lblBounceBack", WHEN(s.DetailHoles > 0), SHOW(Int(s.BounceBacks))},
    {"lblBirdieConversion", WHEN(s.DetailHoles > 0),
     SHOW(s.GreensInReg < 1 ? QStringLiteral("0.0%") : Pct(Quotient(s.BirdieConversions, s.GreensInReg)))},
    {"lblParBreakers", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.ParBreakers, s.DetailHoles)))},
    {"lblPar3Performance", WHEN(s.DetailHoles > 0), SHOW(Int(s.Par3Performance))},
};

// The 9-hole and 18-hole averages have no test of their own: without rounds of that kind
// they divide by zero and are skipped.  The nine par breakdowns test their own hole count
// instead of DetailHoles.
const Measure kOverallTotals[] = {
    {"lblTotalEagles", WHEN(s.DetailHoles > 0), SHOW(Int(s.TotalEagles))},
    {"lblTotalBirdies", WHEN(s.DetailHoles > 0), SHOW(Int(s.TotalBirdies))},
    {"lblTotalPars", WHEN(s.DetailHoles > 0), SHOW(Int(s.TotalPars))},
    {"lblTotalBogeys", WHEN(s.DetailHoles > 0), SHOW(Int(s.TotalBogeys))},
    {"lblTotalDoubleBogeys", WHEN(s.DetailHoles > 0), SHOW(Int(s.TotalDoubleBogeys))},
    {"lblTotalTripleBogeys", WHEN(s.DetailHoles > 0), SHOW(Int(s.TotalTripleBogeys))},
    {"lblTotalOthers", WHEN(s.DetailHoles > 0), SHOW(Int(s.TotalOthers))},
    {"lblEaglePercentage", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.TotalEagles, s.DetailHoles)))},
    {"lblBirdiePercentage", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.TotalBirdies, s.DetailHoles)))},
    {"lblParPercentage", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.TotalPars, s.DetailHoles)))},
    {"lblBogeyPercentage", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.TotalBogeys, s.DetailHoles)))},
    {"lblDoubleBogeyPercentage", WHEN(s.DetailHoles > 0),
     SHOW(Pct(Quotient(s.TotalDoubleBogeys, s.DetailHoles)))},
    {"lblTripleBogeyPercentage", WHEN(s.DetailHoles > 0),
     SHOW(Pct(Quotient(s.TotalTripleBogeys, s.DetailHoles)))},
    {"lblOtherPercentage", WHEN(s.DetailHoles > 0), SHOW(Pct(Quotient(s.TotalOthers, s.DetailHoles)))},
    {"lblAvgBirdies9", WHEN(s.DetailHoles > 0),
     SHOW(Avg(Quotient(s.Birdies9, s.DetailRoundsFront9 + s.DetailRoundsBack9)))},
    {"lblAvgBirdies18", WHEN(s.DetailHoles > 0), SHOW(Avg(Quotient(s.Birdies18, s.DetailRounds18)))},
    {"lblAvgPars9", WHEN(s.DetailHoles > 0),
     SHOW(Avg(Quotient(s.Pars9, s.DetailRoundsFront9 + s.DetailRoundsBack9)))},
    {"lblAvgPars18", WHEN(s.DetailHoles > 0), SHOW(Avg(Quotient(s.Pars18, s.DetailRounds18)))},
    {"lblAvgBogeys9", WHEN(s.DetailHoles > 0),
     SHOW(Avg(Quotient(s.Bogeys9, s.DetailRoundsFront9 + s.DetailRoundsBack9)))},
    {"lblAvgBogeys18", WHEN(s.DetailHoles > 0), SHOW(Avg(Quotient(s.Bogeys18, s.DetailRounds18)))},
    {"lblPar3BogeyPercentage", WHEN(s.Par3Holes > 0), SHOW(Pct(Quotient(s.Par3Bogeys, s.Par3Holes)))},
    {"lblPar3ParPercentage", WHEN(s.Par3Holes > 0), SHOW(Pct(Quotient(s.Par3Pars, s.Par3Holes)))},
    {"lblPar3BirdiePercentage", WHEN(s.Par3Holes > 0), SHOW(Pct(Quotient(s.Par3Birdies, s.Par3Holes)))},
    {"lblPar4BogeyPercentage", WHEN(s.Par4Holes > 0), SHOW(Pct(Quotient(s.Par4Bogeys, s.Par4Holes)))},
    {"lblPar4ParPercentage", WHEN(s.Par4Holes > 0), SHOW(Pct(Quotient(s.Par4Pars, s.Par4Holes)))},
    {"lblPar4BirdiePercentage", WHEN(s.Par4Holes > 0), SHOW(Pct(Quotient(s.Par4Birdies, s.Par4Holes)))},
    {"lblPar5BogeyPercentage", WHEN(s.Par5Holes > 0), SHOW(Pct(Quotient(s.Par5Bogeys, s.Par5Holes)))},
    {"lblPar5ParPercentage", WHEN(s.Par5Holes > 0), SHOW(Pct(Quotient(s.Par5Pars, s.Par5Holes)))},
    {"lblPar5BirdiePercentage", WHEN(s.Par5Holes > 0), SHOW(Pct(Quotient(s.Par5Birdies, s.Par5Holes)))},
};

#undef WHEN
#undef SHOW

// Without details only the scoring page is usable; its measures come in three groups, each
// shown as a whole or as "N/A" by the rounds it rests on.
struct ScoringGroup {
    bool (*usable)(const Stats &);
    const char *labels[11]; // the largest group; a shorter one ends at the first null
};

const ScoringGroup kScoringGroups[] = {
    {[](const Stats &s) { return s.Rounds18 >= 1; },
     {"lblBest18HoleScore", "lblWorst18HoleScore", "lblBroke100Percentage", "lblBroke90Percentage",
      "lblBroke80Percentage", "lblBroke70Percentage", "lblStrokeAvg18", "lblBroke100", "lblBroke90",
      "lblBroke80", "lblBroke70"}},
    {[](const Stats &s) { return s.RoundsFront9 >= 1 || s.DetailRounds18 >= 1; },
     {"lblBestFrontScore", "lblWorstFrontScore", "lblBroke40Front", "lblBroke40FrontPercentage",
      "lblStrokeAvgFront"}},
    {[](const Stats &s) { return s.RoundsBack9 >= 1 || s.DetailRounds18 >= 1; },
     {"lblBestBackScore", "lblWorstBackScore", "lblBroke40Back", "lblBroke40BackPercentage",
      "lblStrokeAvgBack"}},
};

const Measure &ScoringMeasure(const char *label)
{
    for (const Measure &measure : kScoring) {
        if (qstrcmp(measure.label, label) == 0)
            return measure;
    }
    throw std::logic_error(std::string("No scoring measure ") + label);
}

// One statement of the display: an overflow or a division by zero skips it, and the label
// keeps what it held.  Any other failure ends the display.
void Write(StatisticsTexts &texts, const Measure &measure, const Stats &s)
{
    try {
        texts.labels.insert(QString::fromLatin1(measure.label), measure.text(s));
    } catch (const QuillonError &error) {
        if (error.number() != QuillonError::Overflow && error.number() != QuillonError::DivisionByZero)
            throw;
    }
}

template <std::size_t N>
void WriteTable(StatisticsTexts &texts, const Measure (&table)[N], const Stats &s)
{
    for (const Measure &measure : table) {
        if (measure.filled(s))
            Write(texts, measure, s);
    }
}

} // namespace

StatisticsTexts DisplayStatistics(const GolferStatistics &stats)
{
    StatisticsTexts texts;
    if (!stats.HasDetails) {
        texts.pagesWithDetails = false;
        Write(texts, ScoringMeasure("lbl18HoleRoundsPlayed"), stats);
        Write(texts, ScoringMeasure("lbl9HoleRoundsPlayed"), stats);
        for (const ScoringGroup &group : kScoringGroups) {
            const bool usable = group.usable(stats);
            for (const char *label : group.labels) {
                if (!label)
                    break;
                if (usable)
                    Write(texts, ScoringMeasure(label), stats);
                else
                    texts.labels.insert(QString::fromLatin1(label), QStringLiteral("N/A"));
            }
        }
        return texts;
    }

    WriteTable(texts, kAccuracy, stats);
    WriteTable(texts, kPutting, stats);
    WriteTable(texts, kScoring, stats);
    WriteTable(texts, kHoleByHole, stats);
    WriteTable(texts, kOverallTotals, stats);
    return texts;
}

QString StatisticsDate(const QDate &date)
{
    return DateText(date);
}

} // namespace quillon
