#include "ChartData.h"

#include "core/Convert.h"
#include "core/DateText.h"
#include "core/Format.h"
#include "core/Int16.h"
#include "core/NumberText.h"
#include "core/QuillonError.h"

#include <QHash>
#include <functional>
#include <optional>

namespace quillon {

namespace {

const QString k18 = QStringLiteral("18-holes");
const QString kFront = QStringLiteral("9-holes (front)");
const QString kBack = QStringLiteral("9-holes (back)");

ChartEntry trend(const char *entry, const char *title, const char *description)
{
    return {QString::fromLatin1(entry), ChartKind::Trend, QString::fromLatin1(title ? title : entry),
            QString::fromLatin1(description), 0};
}

ChartEntry pie(const char *entry, int parts, const char *description)
{
    return {QString::fromLatin1(entry), ChartKind::Pie, QString::fromLatin1(entry), QString::fromLatin1(description),
            parts};
}

// ---------------------------------------------------------------------------------------------
// Trend charts

// "SELECT TOP 36": the newest 36 rows in the statement's order, and every row after them that ties
// with the 36th on all the order columns, as the original database returned them.
constexpr int kTop = 36;

// Texts of a NOCASE column compare as the database compares them: ASCII letters without case.
bool equalsNoCase(const QString &x, const QString &y)
{
    if (x.size() != y.size())
        return false;
    for (int i = 0; i < x.size(); ++i) {
        QChar p = x.at(i), q = y.at(i);
        if (p.unicode() < 128)
            p = p.toLower();
        if (q.unicode() < 128)
            q = q.toLower();
        if (p != q)
            return false;
    }
    return true;
}

// The order columns compare as the database compares them: texts of a NOCASE column fold ASCII
// case, numbers compare by value, Null ties with Null.
bool sameKey(const QVariant &a, const QVariant &b, bool noCase)
{
    if (a.isNull() || b.isNull())
        return a.isNull() && b.isNull();
    const bool aText = a.typeId() == QMetaType::QString, bText = b.typeId() == QMetaType::QString;
    if (aText != bText)
        return false;
    if (aText)
        return noCase ? equalsNoCase(a.toString(), b.toString()) : a.toString() == b.toString();
    return a.toDouble() == b.toDouble();
}

enum class TrendValue {
    DetailSum,   // the sum of one detail column
    RowScore,    // the Score of the ScoreLog row
    NineScore,   // a nine-hole round's own Score, else the sum of that nine's hole scores
    Penalties,   // the Penalties of the row, -1 taking no value
    Greens,      // percent of greens hit
    Fairways,    // percent of fairways hit
};

struct OrderKey {
    const char *column;
    bool noCase;
};

struct TrendSpec {
    const char *entry;
    bool penaltyFilter;        // "WHERE Penalties <> -1" before the golfer
    const char *conditions;    // after the golfer, with ? for the values below
    QVariantList values;
    QVector<OrderKey> order;   // first key descending, the rest ascending
    TrendValue value;
    const char *detailColumn;  // the ScoreDetails column summed or counted
    const char *holeCondition; // the nine of a detail statement
    const QString *nineHoles;  // the Holes of a round that takes its own Score
    const char *yTitle;
};

const QVector<OrderKey> kRoundOrder = {
    {"Date", false}, {"CourseName", true}, {"AdjustedScore", false}, {"Differential", false}};
const QVector<OrderKey> kScoreOrder = {{"Date", false}, {"Score", false}};

const QVector<TrendSpec> &trendSpecs()
{
    static const QVector<TrendSpec> specs = {
        {"18 Hole Putting Trend", false, "AND Details <> 0 AND Holes = ?", {k18}, kRoundOrder,
         TrendValue::DetailSum, "Putts", "", nullptr, "Putts"},
        {"Front 9 Putting Trend", false, "AND Details <> 0 AND Holes <> ?", {kBack}, kRoundOrder,
         TrendValue::DetailSum, "Putts", " AND Hole <= 9", nullptr, "Putts"},
        {"Back 9 Putting Trend", false, "AND Details <> 0 AND Holes <> ?", {kFront}, kRoundOrder,
         TrendValue::DetailSum, "Putts", " AND Hole > 9", nullptr, "Putts"},
        {"18 Hole Scoring Trend", false, "AND Holes = ?", {k18}, kRoundOrder, TrendValue::RowScore, "", "",
         nullptr, "Score"},
        {"Front 9 Scoring Trend", false, "AND (Holes = ? OR (Holes = ? AND Details <> 0))", {kFront, k18},
         kScoreOrder, TrendValue::NineScore, "Score", " AND Hole <= 9", &kFront, "Score"},
        {"Back 9 Scoring Trend", false, "AND (Holes = ? OR (Holes = ? AND Details <> 0))", {kBack, k18},
         kScoreOrder, TrendValue::NineScore, "Score", " AND Hole > 9", &kBack, "Score"},
        {"18 Hole Penalty Trend", true, "AND Holes = ?", {k18}, kRoundOrder, TrendValue::Penalties, "", "",
         nullptr, "Penalties"},
        {"Greens in Regulation Trend", false, "AND Details <> 0", {}, kRoundOrder, TrendValue::Greens,
         "GreenInRegulation", "", nullptr, "Percent of Greens in Regulation"},
        {"Fairways in Regulation Trend", false, "AND Details <> 0", {}, kRoundOrder, TrendValue::Fairways,
         "Fairway", "", nullptr, "Percent of Fairways in Regulation"},
    };
    return specs;
}

// Columns every trend statement reads, so that one walk serves all nine; the order keys follow.
enum TrendColumn { cDate, cScoreIndex, cCourse, cTees, cHoles, cScore, cPenalties, cKeys };

QString dateCaption(const QString &iso)
{
    const QDate d = ParseDateText(iso);
    return d.isValid() ? DateText(d) : iso;
}

// A percentage as the chart plots it: "##0.0", then a 32-bit float written as text.
double plottedPercent(double percent)
{
    return Val(SingleText(CSng(Format(percent, QStringLiteral("##0.0")))));
}

void buildTrend(Connection &c, const TrendSpec &s, const QString &last, const QString &first, ChartData &out)
{
    QString sql = QStringLiteral("SELECT Date, ScoreIndex, CourseName, Tees, Holes, Score, Penalties");
    for (const OrderKey &k : s.order)
        sql += QStringLiteral(", ") + QLatin1String(k.column);
    sql += QStringLiteral(" FROM ScoreLog WHERE ");
    Params params;
    if (s.penaltyFilter) {
        sql += QStringLiteral("Penalties <> ? AND ");
        params << -1;
    }
    sql += QStringLiteral("FirstName = ? AND LastName = ? ") + QLatin1String(s.conditions) +
           QStringLiteral(" ORDER BY ");
    params << first << last << s.values;
    for (int i = 0; i < s.order.size(); ++i)
        sql += (i ? QStringLiteral(", ") : QString()) + QLatin1String(s.order.at(i).column) +
               (i ? QString() : QStringLiteral(" DESC"));

    // Newest first, cut after the 36th row and the rows tied with it.
    QVector<QVector<QVariant>> rows;
    {
        Statement st = c.run(sql, params);
        const int columns = cKeys + s.order.size();
        while (st.next()) {
            QVector<QVariant> row(columns);
            for (int i = 0; i < columns; ++i)
                row[i] = st.value(i);
            if (rows.size() >= kTop) {
                const QVector<QVariant> &cut = rows.at(kTop - 1);
                bool tied = true;
                for (int k = 0; k < s.order.size() && tied; ++k)
                    tied = sameKey(row.at(cKeys + k), cut.at(cKeys + k), s.order.at(k).noCase);
                if (!tied)
                    break;
            }
            rows << row;
        }
    }
    if (rows.isEmpty())
        return;
    out.empty = false;

    TrendData &t = out.trend;
    t.rowCount = rows.size();
    const QString newest = rows.first().at(cDate).toString();
    const QString oldest = rows.last().at(cDate).toString();
    Int16 minValue = 1000, maxValue = 0;
    auto limit = [&](Int16 v) {
        if (v > maxValue)
            maxValue = v;
        if (v < minValue)
            minValue = v;
    };

    const QString detailSql = QStringLiteral("SELECT %1 FROM ScoreDetails WHERE FirstName = ? AND LastName = ? "
                                             "AND Date = ? AND CourseName = ? AND Tees = ? AND ScoreIndex = ?%2")
                                  .arg(QLatin1String(s.detailColumn), QLatin1String(s.holeCondition));
    // The detail column of a round's holes; empty when the round has none.
    auto details = [&](const QVector<QVariant> &row) {
        QVector<QVariant> v;
        Statement st = c.run(detailSql, {first, last, row.at(cDate), row.at(cCourse), row.at(cTees),
                                         row.at(cScoreIndex)});
        while (st.next())
            v << st.value(0);
        return v;
    };
    auto sum = [](const QVector<QVariant> &v) {
        Int16 total = 0;
        for (const QVariant &x : v)
            total += CInt(x.toDouble());
        return total;
    };

    for (int r = rows.size() - 1; r >= 0; --r) {
        const QVector<QVariant> &row = rows.at(r);
        switch (s.value) {
        case TrendValue::DetailSum: {
            const QVector<QVariant> v = details(row);
            if (v.isEmpty())
                break;
            const Int16 total = sum(v);
            t.values << total.value();
            limit(total);
            break;
        }
        case TrendValue::RowScore: {
            const double score = row.at(cScore).toDouble();
            t.values << score;
            limit(CInt(score));
            break;
        }
        case TrendValue::NineScore: {
            if (row.at(cHoles).toString() == *s.nineHoles) {
                const double score = row.at(cScore).toDouble();
                t.values << score;
                limit(CInt(score));
                break;
            }
            const QVector<QVariant> v = details(row);
            if (v.isEmpty())
                break;
            const Int16 total = sum(v);
            t.values << total.value();
            limit(total);
            break;
        }
        case TrendValue::Penalties: {
            const double penalties = row.at(cPenalties).toDouble();
            if (penalties == -1)
                break;
            t.values << penalties;
            limit(CInt(penalties));
            break;
        }
        case TrendValue::Greens: {
            const QVector<QVariant> v = details(row);
            if (v.isEmpty())
                break;
            Int16 hit = 0;
            for (const QVariant &x : v)
                if (!x.isNull() && x.toDouble() != 0)
                    ++hit;
            const QString holes = row.at(cHoles).toString();
            const double divisor = (holes == kFront || holes == kBack) ? 9.0 : 18.0;
            t.values << plottedPercent(hit.value() / divisor * 100.0);
            maxValue = 100;
            minValue = 0;
            break;
        }
        case TrendValue::Fairways: {
            const QVector<QVariant> v = details(row);
            if (v.isEmpty())
                break;
            Int16 hit = 0, tried = 0;
            for (const QVariant &x : v) {
                if (x.isNull())
                    continue;
                if (x.toDouble() == 1)
                    ++hit;
                if (x.toDouble() != -1)
                    ++tried;
            }
            // A round of par 3s only (or no fairway entered) has nothing to divide by.
            if (tried.value() == 0)
                throw QuillonError::divisionByZero();
            t.values << plottedPercent(double(hit.value()) / tried.value() * 100.0);
            maxValue = 100;
            minValue = 0;
            break;
        }
        }
    }

    t.caption = QStringLiteral("From %1 to %2 (%3 rounds)")
                    .arg(dateCaption(oldest), dateCaption(newest))
                    .arg(t.rowCount);
    t.valueTitle = QString::fromLatin1(s.yTitle);
    t.minValue = minValue.value();
    t.maxValue = maxValue.value();
    t.scale = SetTrendAxes(t.minValue, t.maxValue);
}

// ---------------------------------------------------------------------------------------------
// Breakdown charts

// The shares of a pie from its class counts: every part but the last is its rounded share, and the
// last takes what is left of 100, so the parts add up to 100 whatever the rounding did.
PieData finishPie(const QStringList &legends, const QVector<Int16> &counts, Int16 total)
{
    PieData p;
    float remaining = 100.0f;
    bool smallSeen = false;
    const int n = legends.size();
    for (int i = 0; i < n; ++i) {
        PiePart part;
        part.legend = legends.at(i);
        if (counts.at(i) < 1) {
            part.data = QStringLiteral("0");
        } else if (i == n - 1) {
            part.data = SingleText(remaining);
        } else {
            part.data = Format(double(counts.at(i).value()) / total.value() * 100.0, QStringLiteral("##0.0"));
            const double value = Val(part.data);
            if (value < 10) {
                if (smallSeen)
                    p.manySmall = true;
                else
                    smallSeen = true;
            }
            remaining = CSng(double(remaining) - value);
        }
        p.parts << part;
    }
    // Labels: with several small parts these carry their figure in the legend instead of on the pie.
    if (p.manySmall) {
        for (PiePart &part : p.parts) {
            const double value = Val(part.data);
            if (value >= 0 && value < 10) {
                part.labelOutside = false;
                part.legend = part.legend.trimmed() + QStringLiteral(" (") + part.data + QStringLiteral("%)  ");
            }
        }
    }
    return p;
}

enum class PieSource { Holes, Nines, Rounds };

struct PieSpec {
    const char *entry;
    PieSource source;
    const char *holeValue;     // Holes: the value classed, per hole row
    QVariantList classValues;  // Holes: the value of each part but the last, which takes the rest
    int par;                   // Holes: only holes of this par; 0 for all
    int nine;                  // Nines: 0 the front, 1 the back
    QStringList legends;
    std::function<int(const QVariant &)> classify; // the part an item falls in
};

int byNine(const QVariant &total)
{
    return total.toDouble() >= 40 ? 0 : 1;
}

int byRound(const QVariant &score)
{
    const double v = score.toDouble();
    return v >= 100 ? 0 : v >= 90 ? 1 : v >= 80 ? 2 : v >= 70 ? 3 : 4;
}

const QVector<PieSpec> &pieSpecs()
{
    const QStringList parHole = {"Birdies", "Pars", "Bogeys", "Others"};
    const QStringList nines = {"Scores 40 and above    ", "Scores under 40"};
    static const QVector<PieSpec> specs = {
        {"Putting Breakdown", PieSource::Holes, "d.Putts", {0, 1, 2}, 0, 0,
         {"Chip-ins", "One Putts", "Two Putts", "Three or more Putts   "}, nullptr},
        {"Front 9 Scoring Breakdown", PieSource::Nines, "", {}, 0, 0, nines, byNine},
        {"Back 9 Scoring Breakdown", PieSource::Nines, "", {}, 0, 1, nines, byNine},
        {"18 Hole Scoring Breakdown by Round", PieSource::Rounds, "", {}, 0, 0,
         {"100 and over", "90 to 99", "80 to 89", "70 to 79", "Scores under 70   "}, byRound},
        {"Scoring Breakdown by Hole", PieSource::Holes, "d.Score - d.PAR", {-2, -1, 0, 1, 2, 3}, 0, 0,
         {"Eagles", "Birdies", "Pars", "Bogeys", "Double Bogeys", "Triple Bogeys", "Others"}, nullptr},
        {"Par 3 Scoring Breakdown", PieSource::Holes, "d.Score - d.PAR", {-1, 0, 1}, 3, 0, parHole, nullptr},
        {"Par 4 Scoring Breakdown", PieSource::Holes, "d.Score - d.PAR", {-1, 0, 1}, 4, 0, parHole, nullptr},
        {"Par 5 Scoring Breakdown", PieSource::Holes, "d.Score - d.PAR", {-1, 0, 1}, 5, 0, parHole, nullptr},
    };
    return specs;
}

// The detail rows of a round are those of its golfer, date, course, tees and index.  The rounds
// are joined to their holes in one statement instead of one detail statement per round: a golfer
// of thousands of rounds would otherwise cost thousands of statements, and the counts, the
// order of the rounds and the carry-over below come out the same.  Rows whose value is Null
// fall in the last part, as any value that matches no other.
const char *const kJoin = " FROM ScoreLog l LEFT JOIN ScoreDetails d ON d.ScoreIndex = l.ScoreIndex "
                          "AND d.FirstName = ? AND d.LastName = ? AND d.Date = l.Date "
                          "AND d.CourseName = l.CourseName AND d.Tees = l.Tees";

// The hole rows of a golfer's rounds with details, for every pie by hole: counted by the values the
// pies class them by (score to par, putts, par), so that a golfer of thousands of rounds comes back
// as a few dozen groups.
struct HoleRow {
    QVariant toPar, putts, par;
    int weight = 0; // holes with these values
};
struct GolferHoles {
    qint64 rounds = 0; // rounds with details; none means no data
    QVector<HoleRow> rows;
};

// What the pies of a golfer are drawn from: the holes, and for each nine (front, back) the total
// each counted round is classed by, oldest round first.
struct GolferPies {
    GolferHoles holes;
    QVector<QVariant> nines[2];
};

GolferHoles LoadGolferHoles(Connection &c, const QString &last, const QString &first)
{
    GolferHoles h;
    Statement st = c.run(QStringLiteral("SELECT d.Score - d.PAR, d.Putts, d.PAR, COUNT(d.rowid), COUNT(*)") +
                             QLatin1String(kJoin) +
                             QStringLiteral(" WHERE l.FirstName = ? AND l.LastName = ? AND l.Details <> 0 "
                                            "GROUP BY 1, 2, 3"),
                         {first, last, first, last});
    while (st.next()) {
        ++h.rounds;
        if (st.value(3).toInt() > 0)
            h.rows.append({st.value(0), st.value(1), st.value(2), st.value(3).toInt()});
    }
    return h;
}

const QString &nineHoles(int nine)
{
    return nine == 0 ? kFront : kBack;
}

// Rounds walk oldest first; a round of 18 holes without detail rows keeps the nine total of the
// round before it (0 at the first), as the chart always did.  The nine is summed by a subquery for
// the 18-hole rounds only; no sum means no hole rows.
QVector<QVariant> LoadNineTotals(Connection &c, int nine, const QString &last, const QString &first)
{
    const QString sql =
        QStringLiteral("SELECT l.Holes, l.Score, CASE WHEN l.Holes = ? THEN NULL ELSE "
                       "(SELECT SUM(d.Score) FROM ScoreDetails d WHERE d.ScoreIndex = l.ScoreIndex "
                       "AND d.FirstName = ? AND d.LastName = ? AND d.Date = l.Date "
                       "AND d.CourseName = l.CourseName AND d.Tees = l.Tees") +
        (nine == 0 ? QStringLiteral(" AND d.Hole <= 9") : QStringLiteral(" AND d.Hole > 9")) +
        QStringLiteral(") END FROM ScoreLog l WHERE l.FirstName = ? AND l.LastName = ? AND (l.Holes = ? OR "
                       "(l.Holes = ? AND l.Details <> 0)) ORDER BY l.Date, l.ScoreIndex");
    Statement st = c.run(sql, {nineHoles(nine), first, last, first, last, nineHoles(nine), k18});
    QVector<QVariant> totals;
    QVariant total = 0;
    while (st.next()) {
        if (st.value(0).toString() == nineHoles(nine))
            total = st.value(1);
        else if (!st.value(2).isNull())
            total = st.value(2);
        totals << total;
    }
    return totals;
}

GolferPies LoadPiesByStatements(Connection &c, const QString &last, const QString &first)
{
    GolferPies p;
    p.holes = LoadGolferHoles(c, last, first);
    for (int nine = 0; nine < 2; ++nine)
        p.nines[nine] = LoadNineTotals(c, nine, last, first);
    return p;
}

// The same in two walks, one over the golfer's rounds and one over their holes, with each hole's
// four values packed in one whole number beside its round's index (score, par, putts, hole: two
// decimal digits each).  A golfer of thousands of rounds has some hundred thousand holes, and
// one number a hole is what keeps reading them quick.  A value that does not fit (Null, a
// fraction, text, a number past 99) makes the number Null or fractional, and then the pies are
// read by their statements instead.
constexpr qint64 kHoleCodeSpan = 100000000;

std::optional<GolferPies> LoadPiesQuickly(Connection &c, const QString &last, const QString &first)
{
    struct Round {
        qint64 index;
        QString holes;
        QVariant score;
        bool details;
        bool holesSeen[2] = {false, false};
        qint64 holeTotals[2] = {0, 0};
    };
    QVector<Round> rounds;
    {
        Statement st = c.run(QStringLiteral("SELECT ScoreIndex, Holes, Score, Details FROM ScoreLog WHERE "
                                            "FirstName = ? AND LastName = ? ORDER BY Date, ScoreIndex"),
                             {first, last});
        while (st.next()) {
            const QVariant details = st.value(3);
            // "Details <> 0": Null is not, text always differs from a number.
            const bool hasDetails = !details.isNull() &&
                                    (details.typeId() == QMetaType::QString || details.toDouble() != 0);
            rounds.append({st.value(0).toLongLong(), st.value(1).toString(), st.value(2), hasDetails});
        }
    }

    GolferPies p;
    QHash<qint64, int> byValues; // (score - par, putts, par) packed, and how many holes have them
    {
        Statement st = c.run(
            QStringLiteral("SELECT l.ScoreIndex * ? + CASE WHEN d.Score BETWEEN 0 AND 99 AND d.PAR BETWEEN 0 AND 99 "
                           "AND d.Putts BETWEEN 0 AND 99 AND d.Hole BETWEEN 0 AND 99 THEN "
                           "((d.Score * 100 + d.PAR) * 100 + d.Putts) * 100 + d.Hole END "
                           "FROM ScoreLog l JOIN ScoreDetails d ON d.ScoreIndex = l.ScoreIndex "
                           "AND d.FirstName = ? AND d.LastName = ? AND d.Date = l.Date "
                           "AND d.CourseName = l.CourseName AND d.Tees = l.Tees "
                           "WHERE l.FirstName = ? AND l.LastName = ? AND l.Details <> 0 ORDER BY l.Date, l.ScoreIndex"),
            {kHoleCodeSpan, first, last, first, last});
        int r = 0;
        while (st.next()) {
            const QVariant v = st.value(0);
            if (v.typeId() != QMetaType::LongLong)
                return std::nullopt;
            const qint64 packed = v.toLongLong();
            const qint64 index = packed / kHoleCodeSpan;
            const int code = int(packed % kHoleCodeSpan);
            // The holes come in the rounds' order.
            while (r < rounds.size() && rounds.at(r).index != index)
                ++r;
            if (r == rounds.size())
                return std::nullopt;
            const int hole = code % 100, putts = code / 100 % 100, par = code / 10000 % 100,
                      score = code / 1000000;
            const int nine = hole <= 9 ? 0 : 1;
            rounds[r].holesSeen[nine] = true;
            rounds[r].holeTotals[nine] += score;
            ++byValues[(qint64(score - par + 200) * 1000 + putts) * 1000 + par];
        }
    }

    for (const Round &round : rounds)
        if (round.details)
            ++p.holes.rounds;
    for (auto it = byValues.cbegin(); it != byValues.cend(); ++it) {
        const qint64 key = it.key();
        p.holes.rows.append(
            {QVariant(key / 1000000 - 200), QVariant(key / 1000 % 1000), QVariant(key % 1000), it.value()});
    }

    // The rounds each nine is classed over, as the statement chooses them: that nine played alone,
    // or 18 holes with details.  A nine of other case in its Holes text counts, and keeps the total.
    for (int nine = 0; nine < 2; ++nine) {
        QVariant total = 0;
        for (const Round &round : rounds) {
            const bool isNine = equalsNoCase(round.holes, nineHoles(nine));
            if (!isNine && !(equalsNoCase(round.holes, k18) && round.details))
                continue;
            if (round.holes == nineHoles(nine))
                total = round.score;
            else if (!isNine && round.holesSeen[nine])
                total = round.holeTotals[nine];
            p.nines[nine] << total;
        }
    }
    return p;
}

GolferPies LoadPies(Connection &c, const QString &last, const QString &first, ChartReading reading)
{
    if (reading == ChartReading::Quick)
        if (std::optional<GolferPies> quick = LoadPiesQuickly(c, last, first))
            return *quick;
    return LoadPiesByStatements(c, last, first);
}

void buildPie(Connection &c, const PieSpec &s, const QString &last, const QString &first, ChartData &out,
              const GolferPies &pies)
{
    const int n = out.entry.parts;
    QVector<int> counts(n, 0);
    int total = 0;
    bool anyRound = false;

    switch (s.source) {
    case PieSource::Holes: {
        anyRound = pies.holes.rounds > 0;
        for (const HoleRow &h : pies.holes.rows) {
            if (s.par && (h.par.isNull() || h.par.toDouble() != s.par))
                continue;
            total += h.weight;
            // The class of a hole by its value; a value that matches no class, Null included, is the last.
            const QVariant value = QLatin1String(s.holeValue) == QLatin1String("d.Putts") ? h.putts : h.toPar;
            int part = n - 1;
            for (int i = 0; i + 1 < n; ++i)
                if (!value.isNull() && value.toDouble() == s.classValues.at(i).toDouble()) {
                    part = i;
                    break;
                }
            counts[part] += h.weight;
        }
        break;
    }
    case PieSource::Nines: {
        for (const QVariant &nine : pies.nines[s.nine]) {
            anyRound = true;
            ++counts[s.classify(nine)];
            ++total;
        }
        break;
    }
    case PieSource::Rounds: {
        Statement st = c.run(QStringLiteral("SELECT Score FROM ScoreLog WHERE FirstName = ? AND LastName = ? "
                                            "AND Holes = ?"),
                             {first, last, k18});
        while (st.next()) {
            anyRound = true;
            ++counts[s.classify(st.value(0))];
            ++total;
        }
        break;
    }
    }
    if (!anyRound)
        return;
    out.empty = false;
    // The counters are 16-bit: past 32,767 items the chart fails with Overflow, as it always did.
    const Int16 totalCount = total;
    QVector<Int16> classCounts;
    for (const int k : counts)
        classCounts << Int16(k);
    out.pie = finishPie(s.legends, classCounts, totalCount);
}

} // namespace

const QVector<ChartEntry> &GraphCatalogue()
{
    static const QVector<ChartEntry> catalogue = {
        trend("18 Hole Penalty Trend", "Penalties per 18-hole Round Trend",
              "Charts total number of penalties over time (last 36 rounds) for each 18-hole round."),
        trend("Greens in Regulation Trend", nullptr,
              "Charts the percentage of greens in regulation over time (last 36 rounds) for each 18-hole round."),
        trend("Fairways in Regulation Trend", nullptr,
              "Charts the percentage of fairways in regulation per round over time (last 36 rounds)."),
        trend("Front 9 Putting Trend", nullptr,
              "Charts the total number of putts over time for each front 9 played (last 36 rounds)."),
        trend("Back 9 Putting Trend", nullptr,
              "Charts the total number of putts over time for each back 9 played (last 36 rounds)."),
        trend("18 Hole Putting Trend", nullptr,
              "Charts the total number of putts per 18-hole round over time (last 36 rounds)."),
        pie("Putting Breakdown", 4, "Charts the percentage of putts by type (see legend) for each hole played."),
        trend("Front 9 Scoring Trend", nullptr, "Charts front 9 scores over time (last 36 rounds)."),
        trend("Back 9 Scoring Trend", nullptr, "Charts back 9 scores over time (last 36 rounds)."),
        trend("18 Hole Scoring Trend", nullptr, "Charts 18-hole scores over time (last 36 rounds)."),
        pie("Front 9 Scoring Breakdown", 2,
            "Charts the percentage of scores in the ranges defined by the legend for all front nine scores."),
        pie("Back 9 Scoring Breakdown", 2,
            "Charts the percentage of scores in the ranges defined by the legend for all back nine scores."),
        pie("18 Hole Scoring Breakdown by Round", 5,
            "Charts the percentage of scores in the ranges defined by the legend for all 18-hole rounds played."),
        pie("Scoring Breakdown by Hole", 7,
            "Charts the percentage of hole scores by type (see legend) for all holes played."),
        pie("Par 3 Scoring Breakdown", 4,
            "Charts the percentage of scores by type (see legend) for each par 3 hole played."),
        pie("Par 4 Scoring Breakdown", 4,
            "Charts the percentage of scores by type (see legend) for each par 4 hole played."),
        pie("Par 5 Scoring Breakdown", 4,
            "Charts the percentage of scores by type (see legend) for each par 5 hole played."),
    };
    return catalogue;
}

bool IsPrimeSpan(int span)
{
    if (span < 0 || span == 2)
        return false;
    for (int d = 2; d < span; ++d)
        if (span % d == 0)
            return false;
    return true;
}

TrendScale SetTrendAxes(qint16 minValue, qint16 maxValue)
{
    TrendScale s;
    s.minimum = minValue;
    s.maximum = maxValue;
    s.minorDivision = 1;
    int max = maxValue;
    const int span = max - minValue;
    const bool prime = IsPrimeSpan(span);
    if (span < 19) {
        s.majorDivision = span;
        return s;
    }
    if (span % 2 == 0 && span / 2 <= 18) {
        s.majorDivision = span / 2;
        return s;
    }
    const double half = (max + 1 - minValue) / 2.0;
    if (half > 18) {
        if (prime)
            max += 1;
    } else if (prime) {
        s.maximum = max + 1;
        s.majorDivision = (max + 1 - minValue) / 2;
        return s;
    }
    // The first whole step count of at most 18 within a few values above the span.
    for (int t = max - minValue; t <= max - minValue + 4; ++t)
        for (int k = 3; k <= 10; ++k)
            if (t % k == 0 && t / k <= 18) {
                s.maximum = t + minValue;
                s.majorDivision = t / k;
                return s;
            }
    return s;
}

namespace {

ChartData buildOne(Connection &c, const QString &entry, const QString &last, const QString &first,
                   const std::function<const GolferPies &()> &pies)
{
    ChartData out;
    for (const ChartEntry &e : GraphCatalogue())
        if (e.entry == entry)
            out.entry = e;
    if (out.entry.entry.isEmpty())
        return out; // a text that names no chart builds nothing
    if (out.entry.kind == ChartKind::Trend) {
        for (const TrendSpec &s : trendSpecs())
            if (entry == QLatin1String(s.entry))
                buildTrend(c, s, last, first, out);
    } else {
        for (const PieSpec &s : pieSpecs())
            if (entry == QLatin1String(s.entry))
                buildPie(c, s, last, first, out,
                         s.source == PieSource::Rounds ? GolferPies() : pies());
    }
    return out;
}

} // namespace

ChartData BuildChart(Connection &c, const QString &entry, const QString &last, const QString &first,
                     ChartReading reading)
{
    GolferPies pies;
    return buildOne(c, entry, last, first, [&]() -> const GolferPies & {
        pies = LoadPies(c, last, first, reading);
        return pies;
    });
}

QVector<ChartData> BuildAllCharts(Connection &c, const QString &last, const QString &first, ChartReading reading)
{
    std::optional<GolferPies> pies;
    const auto loaded = [&]() -> const GolferPies & {
        if (!pies)
            pies = LoadPies(c, last, first, reading);
        return *pies;
    };
    QVector<ChartData> all;
    for (const ChartEntry &e : GraphCatalogue()) {
        try {
            all.append(buildOne(c, e.entry, last, first, loaded));
        } catch (const QuillonError &error) {
            ChartData failed;
            failed.entry = e;
            failed.failure = error.number();
            all.append(failed);
        }
    }
    return all;
}

} // namespace quillon
