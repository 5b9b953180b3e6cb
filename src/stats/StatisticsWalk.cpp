#include "StatisticsWalk.h"

#include "core/Convert.h"
#include "core/DateText.h"
#include "core/QuillonError.h"

#include <QHash>
#include <QVector>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>
#include <tuple>
#include <vector>

namespace quillon {

namespace {

const QString kFront9 = QStringLiteral("9-holes (front)");
const QString kBack9 = QStringLiteral("9-holes (back)");
const QString k18 = QStringLiteral("18-holes");

enum class RoundKind { Other, Front9, Back9, Eighteen };

// A round is known by its Holes text, compared as written.
RoundKind kindOfText(const QString &holes)
{
    if (holes == kFront9)
        return RoundKind::Front9;
    if (holes == kBack9)
        return RoundKind::Back9;
    if (holes == k18)
        return RoundKind::Eighteen;
    return RoundKind::Other;
}

bool isNine(RoundKind k)
{
    return k == RoundKind::Front9 || k == RoundKind::Back9;
}

[[noreturn]] void invalidUseOfNull()
{
    throw QuillonError(94, QStringLiteral("Invalid use of Null"));
}

bool isNumeric(const QVariant &v)
{
    switch (v.typeId()) {
    case QMetaType::LongLong:
    case QMetaType::Int:
    case QMetaType::ULongLong:
    case QMetaType::UInt:
    case QMetaType::Double: return true;
    default: return false;
    }
}

// A value read as a number: a Null cannot be, and a text must be a number.
double numberOf(const QVariant &v)
{
    if (v.isNull())
        invalidUseOfNull();
    if (isNumeric(v))
        return v.toDouble();
    return CDbl(v.toString());
}

QString textOf(const QVariant &v)
{
    if (v.isNull())
        invalidUseOfNull();
    return v.toString();
}

QDate dateOf(const QVariant &v)
{
    const QDate d = ParseDateText(textOf(v));
    if (!d.isValid())
        throw QuillonError::typeMismatch();
    return d;
}

// The optional statistics of a round (Penalties and the rest) are taken as the number their text
// begins with; -1 (any number below 0) means the golfer did not record it.
std::optional<double> recorded(const QVariant &v)
{
    if (v.isNull())
        invalidUseOfNull();
    const double n = isNumeric(v) ? v.toDouble() : Val(v.toString());
    if (n >= 0)
        return n;
    return std::nullopt;
}

// A 16-bit counter plus a value read from the database: the sum is taken whole and then stored,
// so a fraction rounds once and a sum outside the range is the overflow failure.
void addTo(Int16 &counter, double value)
{
    counter = Int16(CInt(double(counter.value()) + value));
}

void lowerTo(Int16 &best, double value)
{
    if (value < best.value())
        best = Int16(CInt(value));
}

void raiseTo(Int16 &worst, double value)
{
    if (value > worst.value())
        worst = Int16(CInt(value));
}

// ---- the holes of one round ----

// The holes of a round are read with failures ignored: a statement that fails is skipped alone
// and the next one runs, so one bad row or one full counter leaves partial counts, not a stopped
// walk.  The two failures that happen in practice are told by value, not thrown: a value the row
// does not hold (a Null, or a text that is not a number) is an empty Value, and a statement that
// needs it does nothing; a 16-bit counter that would leave its range keeps its value.  A golfer
// with thousands of holes fills some counters on every hole, and a throw per hole would cost
// several times the walk itself.
using Value = std::optional<double>;

Value maybeNumber(const QVariant &v)
{
    if (v.isNull())
        return std::nullopt;
    if (isNumeric(v))
        return v.toDouble();
    try {
        return CDbl(v.toString());
    } catch (const QuillonError &) {
        return std::nullopt;
    }
}

// Runs one statement that may throw, and skips it when it does.
template <typename Run>
void attempt(Run &&statement)
{
    try {
        statement();
    } catch (const QuillonError &) {
    }
}

// counter = counter + amount, as one statement of a round.
void add(Int16 &counter, const Value &amount)
{
    if (!amount)
        return;
    const double sum = double(counter.value()) + *amount;
    if (sum >= -32768 && sum <= 32767 && sum == std::trunc(sum))
        counter = Int16(qint16(sum));
    else if (sum > -32769 && sum < 32768)
        attempt([&] { counter = Int16(CInt(sum)); }); // a fraction: CInt's rounding decides at the ends
    // Anything else (out of range, not a number) leaves the counter as it was.
}

void add(Int16 &counter, Int16 amount)
{
    add(counter, Value(amount.value()));
}

void inc(Int16 &counter)
{
    if (counter.value() < 32767)
        counter = Int16(qint16(counter.value() + 1));
}

// A hole's values, each empty when the row held none that reads as a number.
struct HoleRow {
    Value hole, score, putts, par, fairway, green;
};

// The working set of one round, cleared for each round.
struct RoundDetails {
    Int16 FrontScore, BackScore, FrontPutts, BackPutts;
    Int16 SubParHoles, ParHoles, AboveParHoles;
    Int16 GreensHit, FairwaysHitRound, FairwaysTried;
    Int16 HoleSum;
    bool OverParLastHole = false;
};

void lift(Int16 &best, Int16 run)
{
    if (run > best)
        best = run;
}

void addStrokeRun(GolferStatistics &s)
{
    inc(s.StrokeRun);
    lift(s.BestStrokeRun, s.StrokeRun);
}

// The count of the 9- or 18-hole rounds, by the kind the hole numbers gave.
void addSplit(RoundKind kind, Int16 &nine, Int16 &eighteen)
{
    if (isNine(kind))
        inc(nine);
    else if (kind == RoundKind::Eighteen)
        inc(eighteen);
}

void addByPar(double par, Int16 &par3, Int16 &par4, Int16 &par5)
{
    if (par == 3)
        inc(par3);
    else if (par == 4)
        inc(par4);
    else if (par == 5)
        inc(par5);
}

void scoreType(double d, double par, RoundKind kind, RoundDetails &r, GolferStatistics &s)
{
    if (d == -2) {
        inc(s.TotalEagles);
        inc(r.SubParHoles);
        addStrokeRun(s);
        inc(s.ParBreakers);
    } else if (d == -1) {
        inc(s.TotalBirdies);
        inc(r.SubParHoles);
        addSplit(kind, s.Birdies9, s.Birdies18);
        addByPar(par, s.Par3Birdies, s.Par4Birdies, s.Par5Birdies);
        addStrokeRun(s);
        inc(s.ParBreakers);
    } else if (d == 0) {
        inc(s.TotalPars);
        inc(r.ParHoles);
        addSplit(kind, s.Pars9, s.Pars18);
        addByPar(par, s.Par3Pars, s.Par4Pars, s.Par5Pars);
        addStrokeRun(s);
    } else if (d == 1) {
        inc(s.TotalBogeys);
        inc(r.AboveParHoles);
        addSplit(kind, s.Bogeys9, s.Bogeys18);
        addByPar(par, s.Par3Bogeys, s.Par4Bogeys, s.Par5Bogeys);
        addStrokeRun(s);
    } else if (d == 2) {
        inc(s.TotalDoubleBogeys);
        inc(r.AboveParHoles);
        s.StrokeRun = 0;
    } else if (d == 3) {
        inc(s.TotalTripleBogeys);
        inc(r.AboveParHoles);
        s.StrokeRun = 0;
    } else if (d <= -3) {
        inc(s.TotalOthers);
        inc(r.SubParHoles);
        addStrokeRun(s);
        inc(s.ParBreakers);
    } else if (d >= 4) {
        inc(s.TotalOthers);
        inc(r.AboveParHoles);
        s.StrokeRun = 0;
    }
    // A fractional difference is none of the kinds and counts nowhere.
}

void accumulateHole(const HoleRow &h, RoundKind kind, RoundDetails &r, GolferStatistics &s)
{
    // D, the strokes over par; empty when either is.
    Value d;
    if (h.score && h.par)
        d = *h.score - *h.par;

    inc(s.DetailHoles);

    if (h.hole && *h.hole <= 9) {
        add(r.FrontScore, h.score);
        add(r.FrontPutts, h.putts);
    } else if (h.hole) {
        add(r.BackScore, h.score);
        add(r.BackPutts, h.putts);
    }

    // A fairway of -1 (a par 3), or none, counts in nothing.
    if (h.fairway == 1.0) {
        inc(s.FairwaysHit);
        inc(s.FairwaysPossible);
        inc(r.FairwaysHitRound);
        inc(r.FairwaysTried);
    } else if (h.fairway == 0.0) {
        inc(s.FairwaysPossible);
        inc(r.FairwaysTried);
    }

    // Putts other than 0, 1 and 2, none entered included, are the three-putt case.
    Int16 *putt = nullptr;
    if (h.putts == 0.0)
        putt = &s.ChipIns;
    else if (h.putts == 1.0)
        putt = &s.OnePutts;
    else if (h.putts == 2.0)
        putt = &s.TwoPutts;
    if (putt) {
        inc(*putt);
        inc(s.PuttRun);
        lift(s.BestPuttRun, s.PuttRun);
    } else {
        inc(s.ThreePutts);
        s.PuttRun = 0;
    }

    if (h.green && *h.green != 0) {
        inc(s.GreensInReg);
        inc(r.GreensHit);
        add(s.PuttsOnGreensInReg, h.putts);
        if (d == -1.0)
            inc(s.BirdieConversions);
    } else if (h.green) {
        inc(s.GreensMissed);
        if (d && *d <= 0)
            inc(s.Scrambles);
    }

    // The flag belongs to the round, so a bounce back never reaches into the next round.
    if (d) {
        if (r.OverParLastHole && *d < 0)
            inc(s.BounceBacks);
        r.OverParLastHole = *d > 0;
        scoreType(*d, *h.par, kind, r, s);
    }

    if (h.par == 3.0) {
        add(s.Par3Strokes, h.score);
        inc(s.Par3Holes);
        add(s.Par3Performance, d);
        add(s.Par3Putts, h.putts);
    } else if (h.par == 4.0) {
        add(s.Par4Strokes, h.score);
        inc(s.Par4Holes);
        add(s.Par4Putts, h.putts);
    } else if (h.par == 5.0) {
        add(s.Par5Strokes, h.score);
        inc(s.Par5Holes);
        add(s.Par5Putts, h.putts);
    }
}

void mostOf(Int16 holes, Int16 &most, QDate &mostDate, const QDate &roundDate)
{
    // Only a strictly greater count replaces the record, so on a tie the older round keeps it.
    if (holes > most) {
        most = holes;
        mostDate = roundDate;
    }
}

void closeRound(RoundKind kind, const RoundDetails &r, const QDate &roundDate, GolferStatistics &s)
{
    // Ratios are compared as the single-precision values they are kept in, so that two equal
    // ratios (3 of 9 and 6 of 18) tie and the older round keeps the record.
    const float greens = float(double(r.GreensHit.value()) / (kind == RoundKind::Eighteen ? 18.0 : 9.0));
    if (greens > s.BestGreensPct) {
        s.BestGreensPct = greens;
        s.BestGreensDate = roundDate;
    }
    const float fairways =
        r.FairwaysTried > 0 ? float(double(r.FairwaysHitRound.value()) / r.FairwaysTried.value()) : 0.0f;
    if (fairways > s.BestFairwaysPct) {
        s.BestFairwaysPct = fairways;
        s.BestFairwaysDate = roundDate;
    }

    // An 18-hole round reaches the nine-hole scores only here; a 9-hole round got there from its
    // ScoreLog row already.
    if (kind == RoundKind::Eighteen) {
        add(s.TotalFront9Score, r.FrontScore);
        add(s.TotalBack9Score, r.BackScore);
        if (r.FrontScore > 0) {
            if (r.FrontScore < s.BestFront9)
                s.BestFront9 = r.FrontScore;
            if (r.FrontScore > s.WorstFront9)
                s.WorstFront9 = r.FrontScore;
            if (r.FrontScore < 40)
                inc(s.Broke40Front);
        }
        if (r.BackScore > 0) {
            if (r.BackScore < s.BestBack9)
                s.BestBack9 = r.BackScore;
            if (r.BackScore > s.WorstBack9)
                s.WorstBack9 = r.BackScore;
            if (r.BackScore < 40)
                inc(s.Broke40Back);
        }
    }

    // A round whose hole numbers make neither nine goes to the 18-hole records.
    if (isNine(kind)) {
        mostOf(r.SubParHoles, s.MostSubPars9, s.MostSubPars9Date, roundDate);
        mostOf(r.ParHoles, s.MostPars9, s.MostPars9Date, roundDate);
        mostOf(r.AboveParHoles, s.MostAbovePars9, s.MostAbovePars9Date, roundDate);
    } else {
        mostOf(r.SubParHoles, s.MostSubPars18, s.MostSubPars18Date, roundDate);
        mostOf(r.ParHoles, s.MostPars18, s.MostPars18Date, roundDate);
        mostOf(r.AboveParHoles, s.MostAbovePars18, s.MostAbovePars18Date, roundDate);
    }

    Int16 roundPutts;
    add(roundPutts, Value(double(r.FrontPutts.value()) + r.BackPutts.value()));

    if (r.BackPutts > 0 && r.BackPutts < s.LowPuttsBack)
        s.LowPuttsBack = r.BackPutts;
    if (r.FrontPutts > 0 && r.FrontPutts < s.LowPuttsFront)
        s.LowPuttsFront = r.FrontPutts;

    if (kind == RoundKind::Eighteen && roundPutts > 0) {
        if (roundPutts < s.LowPutts18)
            s.LowPutts18 = roundPutts;
        add(s.Putts18, roundPutts);
    }

    add(s.PuttsFront9, r.FrontPutts);
    add(s.PuttsBack9, r.BackPutts);
}

// One round's holes, in Hole order, into the record.
void accumulateRound(const HoleRow *holes, int count, const QDate &roundDate, GolferStatistics &s)
{
    RoundDetails r;

    // The kind of a round is what its hole numbers add up to, whatever its ScoreLog row says.
    for (int i = 0; i < count; ++i)
        add(r.HoleSum, holes[i].hole);
    RoundKind kind = RoundKind::Other;
    if (r.HoleSum == 45) {
        kind = RoundKind::Front9;
        inc(s.DetailRoundsFront9);
    } else if (r.HoleSum == 126) {
        kind = RoundKind::Back9;
        inc(s.DetailRoundsBack9);
    } else if (r.HoleSum == 171) {
        kind = RoundKind::Eighteen;
        inc(s.DetailRounds18);
    }

    for (int i = 0; i < count; ++i)
        accumulateHole(holes[i], kind, r, s);

    closeRound(kind, r, roundDate, s);
}

QString yearStart(const QDate &today)
{
    return IsoDate(QDate(today.year(), 1, 1));
}

HoleRow holeRow(const Statement &st, int firstColumn)
{
    return {maybeNumber(st.value(firstColumn)),     maybeNumber(st.value(firstColumn + 1)),
            maybeNumber(st.value(firstColumn + 2)), maybeNumber(st.value(firstColumn + 3)),
            maybeNumber(st.value(firstColumn + 4)), maybeNumber(st.value(firstColumn + 5))};
}

// Where a row sorts in "ORDER BY Hole, rowid": a Null hole first, then numbers by value, then
// texts by their bytes, then anything else by its bytes.
struct HoleOrder {
    int kind = 0;
    double number = 0;
    QByteArray bytes;
    qint64 rowid = 0;

    friend bool operator<(const HoleOrder &a, const HoleOrder &b)
    {
        return std::tie(a.kind, a.number, a.bytes, a.rowid) < std::tie(b.kind, b.number, b.bytes, b.rowid);
    }
};

HoleOrder holeOrder(const QVariant &hole, qint64 rowid)
{
    if (hole.isNull())
        return {0, 0, {}, rowid};
    if (isNumeric(hole))
        return {1, hole.toDouble(), {}, rowid};
    if (hole.typeId() == QMetaType::QString)
        return {2, 0, hole.toString().toUtf8(), rowid};
    return {3, 0, hole.toByteArray(), rowid};
}

// The holes of all the golfer's rounds with details, read by one statement and grouped by round.
//
// Why: the rules open one ScoreDetails statement per round, and with the driver's cost of a
// statement, a golfer with thousands of rounds waits for those statements more than for anything
// else.  One statement over the same rows gives the same holes: its conditions are those of a
// round's own statement, with the round's values taken from its ScoreLog row inside the statement
// (the same NOCASE comparisons of names, course and tees, the date compared as the stored text),
// and each round's rows are put in the order its own statement gives (Hole, then rowid).  The
// rows come round by round as the engine joins them; the statement has no ORDER BY because
// sorting all the rows costs more than the rest of the walk, and a round's few rows are sorted
// here.  A round whose stored date is not the ISO text its own statement would bind still goes
// through AccumulateRoundDetails, and so does every round when this statement fails or the rows
// of a round do not come together.
class GolferHoles {
public:
    // Nothing when the rows cannot be read whole.
    static std::optional<GolferHoles> read(Connection &c, const QString &last, const QString &first,
                                           bool currentYearOnly, const QDate &today, int rounds)
    {
        QString sql = QStringLiteral(
            "SELECT d.ScoreIndex, d.Hole, d.Score, d.Putts, d.PAR, d.Fairway, d.GreenInRegulation, d.rowid "
            "FROM ScoreLog l JOIN ScoreDetails d ON d.ScoreIndex = l.ScoreIndex "
            "WHERE l.LastName = ? AND l.FirstName = ? AND l.Details <> 0 "
            "AND d.LastName = ? AND d.FirstName = ? AND d.Date = l.Date AND d.CourseName = l.CourseName "
            "AND d.Tees = l.Tees");
        Params params{last, first, last, first};
        if (currentYearOnly) {
            sql += QStringLiteral(" AND l.Date >= ? AND d.Date >= ?");
            params << yearStart(today) << yearStart(today);
        }

        GolferHoles g;
        g.m_holes.reserve(std::size_t(rounds) * 18);
        std::vector<HoleOrder> order; // of the round being read
        try {
            Statement st = c.run(sql, params);
            qint64 current = 0;
            int begin = 0;
            while (st.next()) {
                const qint64 index = st.value(0).toLongLong();
                const int at = int(g.m_holes.size());
                if (at > 0 && index != current) {
                    if (!g.close(current, begin, order))
                        return std::nullopt;
                    begin = at;
                    order.clear();
                }
                current = index;
                order.push_back(holeOrder(st.value(1), st.value(7).toLongLong()));
                g.m_holes.push_back(holeRow(st, 1));
            }
            if (!g.m_holes.empty() && !g.close(current, begin, order))
                return std::nullopt;
        } catch (const QuillonError &) {
            return std::nullopt;
        }
        return g;
    }

    // The holes of a round in Hole order: the first and the count, 0 when it has none.
    std::pair<const HoleRow *, int> of(qint64 scoreIndex) const
    {
        const auto it = m_rounds.constFind(scoreIndex);
        if (it == m_rounds.constEnd())
            return {nullptr, 0};
        return {m_holes.data() + it->first, it->second - it->first};
    }

private:
    // The rows from `begin` to the end are the whole of one round: kept in Hole order.  False when
    // the round already had rows, that is when its rows did not come together.
    bool close(qint64 scoreIndex, int begin, const std::vector<HoleOrder> &order)
    {
        const int end = int(m_holes.size());
        if (m_rounds.contains(scoreIndex))
            return false;
        m_rounds.insert(scoreIndex, {begin, end});
        if (std::is_sorted(order.begin(), order.end()))
            return true;
        std::vector<int> by(order.size());
        std::iota(by.begin(), by.end(), 0);
        std::sort(by.begin(), by.end(), [&](int a, int b) { return order[a] < order[b]; });
        std::vector<HoleRow> sorted;
        sorted.reserve(by.size());
        for (int i : by)
            sorted.push_back(m_holes[std::size_t(begin + i)]);
        std::copy(sorted.begin(), sorted.end(), m_holes.begin() + begin);
        return true;
    }

    std::vector<HoleRow> m_holes;
    QHash<qint64, std::pair<int, int>> m_rounds; // ScoreIndex -> [begin, end) in m_holes
};

// ---- the rounds ----

// The ScoreLog columns the walk reads, in the order of kLogColumns.
struct LogRow {
    QVariant scoreIndex, date, course, tees, holes, score, details;
    QVariant penalties, lostBalls, sandSaves, bunkers, attemptedSaves;
};

const char *const kLogColumns =
    "ScoreIndex, Date, CourseName, Tees, Holes, Score, Details, Penalties, LostBalls, "
    "SandSaves, Bunkers, AttemptedSaves";

QVector<LogRow> readRounds(Connection &c, const QString &last, const QString &first, bool currentYearOnly,
                           const QDate &today)
{
    // Oldest first; ScoreIndex after Date only makes the order of rounds of one day the same at
    // every walk (the order of entry), so that ties on a record always go the same way.
    QString sql = QStringLiteral("SELECT %1 FROM ScoreLog WHERE LastName = ? AND FirstName = ?")
                      .arg(QLatin1String(kLogColumns));
    Params params{last, first};
    if (currentYearOnly) {
        sql += QStringLiteral(" AND Date >= ?");
        params << yearStart(today);
    }
    sql += QStringLiteral(" ORDER BY Date, ScoreIndex");

    QVector<LogRow> rows;
    Statement st = c.run(sql, params);
    while (st.next()) {
        rows.append({st.value(0), st.value(1), st.value(2), st.value(3), st.value(4), st.value(5),
                     st.value(6), st.value(7), st.value(8), st.value(9), st.value(10), st.value(11)});
    }
    return rows;
}

// Penalties, lost balls and bunkers: the sum over all rounds, and the count and sum by kind.
void addRecorded(const QVariant &value, RoundKind kind, Int16 &total, qint64 &rounds9, Int16 &sum9,
                 qint64 &rounds18, Int16 &sum18)
{
    const std::optional<double> n = recorded(value);
    if (!n)
        return;
    addTo(total, *n);
    if (isNine(kind)) {
        ++rounds9;
        addTo(sum9, *n);
    } else if (kind == RoundKind::Eighteen) {
        ++rounds18;
        addTo(sum18, *n);
    }
}

// Sand saves and attempted saves: the sum, and the holes of the rounds that recorded them.
void addRecordedHoles(const QVariant &value, RoundKind kind, Int16 &total, qint64 &holes)
{
    const std::optional<double> n = recorded(value);
    if (!n)
        return;
    addTo(total, *n);
    if (isNine(kind))
        holes += 9;
    else if (kind == RoundKind::Eighteen)
        holes += 18;
}

} // namespace

WalkOutcome CalculateStatistics(Connection &c, const QString &last, const QString &first,
                                bool currentYearOnly, const QDate &today, GolferStatistics &stats)
{
    WalkOutcome outcome;
    stats.Rounds18 = 0;
    stats.RoundsFront9 = 0;
    stats.RoundsBack9 = 0;

    // The rows are held between the two passes; a golfer's rounds are a few thousand at most.
    const QVector<LogRow> rows = readRounds(c, last, first, currentYearOnly, today);
    if (rows.isEmpty())
        return outcome;
    outcome.ran = true;

    // The box for this year only is of no use when the latest round is older than this year.
    outcome.yearBoxEnabled = QDate(today.year(), 1, 1).daysTo(dateOf(rows.constLast().date)) >= 0;

    for (const LogRow &row : rows) {
        switch (kindOfText(textOf(row.holes))) {
        case RoundKind::Front9: ++stats.RoundsFront9; break;
        case RoundKind::Back9: ++stats.RoundsBack9; break;
        case RoundKind::Eighteen: ++stats.Rounds18; break;
        case RoundKind::Other: break;
        }
    }

    // After the first pass, which InitStatistics leaves alone.
    InitStatistics(stats);

    // Read at the first round with details, so that a golfer without any pays nothing for them.
    std::optional<GolferHoles> holes;
    bool holesRead = false;
    for (const LogRow &row : rows) {
        const RoundKind kind = kindOfText(textOf(row.holes));
        if (kind == RoundKind::Eighteen) {
            const double score = numberOf(row.score);
            lowerTo(stats.Best18, score);
            raiseTo(stats.Worst18, score);
            if (score < 100)
                ++stats.Broke100;
            if (score < 90)
                ++stats.Broke90;
            if (score < 80)
                ++stats.Broke80;
            if (score < 70)
                ++stats.Broke70;
            addTo(stats.Total18Score, score);
        } else if (kind == RoundKind::Front9) {
            const double score = numberOf(row.score);
            lowerTo(stats.BestFront9, score);
            raiseTo(stats.WorstFront9, score);
            if (score < 40)
                ++stats.Broke40Front;
            addTo(stats.TotalFront9Score, score);
        } else if (kind == RoundKind::Back9) {
            const double score = numberOf(row.score);
            lowerTo(stats.BestBack9, score);
            raiseTo(stats.WorstBack9, score);
            if (score < 40)
                ++stats.Broke40Back;
            addTo(stats.TotalBack9Score, score);
        }

        addRecorded(row.penalties, kind, stats.TotalPenalties, stats.PenaltyRounds9, stats.Penalties9,
                    stats.PenaltyRounds18, stats.Penalties18);
        addRecorded(row.lostBalls, kind, stats.TotalLostBalls, stats.LostBallRounds9, stats.LostBalls9,
                    stats.LostBallRounds18, stats.LostBalls18);
        addRecordedHoles(row.sandSaves, kind, stats.TotalSandSaves, stats.SandSaveHoles);
        addRecorded(row.bunkers, kind, stats.TotalBunkers, stats.BunkerRounds9, stats.Bunkers9,
                    stats.BunkerRounds18, stats.Bunkers18);
        addRecordedHoles(row.attemptedSaves, kind, stats.TotalAttemptedSaves, stats.AttemptedSaveHoles);

        if (numberOf(row.details) != 0) {
            stats.HasDetails = true;
            const qint64 index = row.scoreIndex.toLongLong();
            const QDate date = dateOf(row.date);
            const QString course = textOf(row.course);
            const QString tees = textOf(row.tees);
            if (!holesRead) {
                holes = GolferHoles::read(c, last, first, currentYearOnly, today, int(rows.size()));
                holesRead = true;
            }
            if (holes && textOf(row.date) == IsoDate(date)) {
                const auto [begin, count] = holes->of(index);
                if (count > 0)
                    accumulateRound(begin, count, date, stats);
            } else {
                AccumulateRoundDetails(c, last, first, index, date, course, tees, currentYearOnly, today,
                                       stats);
            }
        }
    }
    return outcome;
}

void AccumulateRoundDetails(Connection &c, const QString &last, const QString &first, qint64 scoreIndex,
                            const QDate &scoreDate, const QString &course, const QString &tees,
                            bool currentYearOnly, const QDate &today, GolferStatistics &stats)
{
    QString sql =
        QStringLiteral("SELECT Hole, Score, Putts, PAR, Fairway, GreenInRegulation FROM ScoreDetails "
                       "WHERE ScoreIndex = ? AND LastName = ? AND FirstName = ? AND Date = ? "
                       "AND CourseName = ? AND Tees = ?");
    Params params{scoreIndex, last, first, IsoDate(scoreDate), course, tees};
    // Redundant beside the exact date, and kept so the statement stays the one the screen runs.
    if (currentYearOnly) {
        sql += QStringLiteral(" AND Date >= ?");
        params << yearStart(today);
    }
    // rowid after Hole only puts a hole entered twice in the same order at every walk.
    sql += QStringLiteral(" ORDER BY Hole, rowid");

    // A date that cannot be read finds no holes.
    if (!scoreDate.isValid())
        return;
    // A statement that cannot run, or rows that stop coming, leave the round with what was read.
    std::vector<HoleRow> holes;
    try {
        Statement st = c.run(sql, params);
        while (st.next())
            holes.push_back(holeRow(st, 0));
    } catch (const QuillonError &) {
    }
    if (holes.empty())
        return;
    // Every row carries the date bound above, so the date of the last row read is the round's.
    accumulateRound(holes.data(), int(holes.size()), scoreDate, stats);
}

} // namespace quillon
