#include "HandicapModel.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace quillon::test::model {

namespace {

const QString kEighteen = QStringLiteral("18-holes");

bool isNine(const Round &r)
{
    return r.holes == QLatin1String("9-holes (front)") || r.holes == QLatin1String("9-holes (back)");
}

bool byDateThenIndex(const Round *a, const Round *b)
{
    return a->date != b->date ? a->date < b->date : a->index < b->index;
}

double tenths(int t)
{
    return t / 10.0;
}

// A record row and the order in which it entered the record.
struct Entry {
    RecordRow row;
    int entered = 0;
};

QVector<RecordRow> buildRecord(const QString &last, const QString &first, const std::vector<Round> &rounds)
{
    std::vector<const Round *> live;
    for (const Round &r : rounds)
        if (r.used != QLatin1String("E"))
            live.push_back(&r);

    // The period starts at the 20th most recent 18-hole round, or the oldest one.
    std::vector<QDate> eighteenDates;
    for (const Round *r : live)
        if (r->holes == kEighteen)
            eighteenDates.push_back(r->date);
    std::sort(eighteenDates.rbegin(), eighteenDates.rend());
    QDate start; // invalid: no lower bound
    if (!eighteenDates.empty())
        start = eighteenDates[std::min<size_t>(20, eighteenDates.size()) - 1];
    const auto inPeriod = [&](const Round *r) { return !start.isValid() || r->date >= start; };

    std::vector<const Round *> walk;
    for (const Round *r : live)
        if (inPeriod(r))
            walk.push_back(r);
    std::sort(walk.begin(), walk.end(), byDateThenIndex);
    if (walk.empty())
        return {};
    start = walk.front()->date;

    std::vector<Entry> record;
    int entered = 0;
    const auto inRecord = [&](qint64 index) {
        for (const Entry &e : record)
            if (e.row.scoreIndex == index || e.row.combinedIndex == index)
                return true;
        return false;
    };
    const auto makeRoom = [&] {
        if (record.size() != 20)
            return;
        auto oldest = record.begin();
        for (auto it = record.begin(); it != record.end(); ++it)
            if (it->row.date < oldest->row.date ||
                (it->row.date == oldest->row.date && it->entered < oldest->entered))
                oldest = it;
        record.erase(oldest);
    };

    for (const Round *r : walk) {
        RecordRow row;
        row.lastName = last;
        row.firstName = first;
        row.used = QStringLiteral("N");
        if (r->holes == kEighteen) {
            row.courseName = r->course;
            row.date = r->date;
            row.scoreIndex = r->index;
            row.score = r->adjusted;
            row.rating = tenths(r->ratingTenths);
            row.slope = r->slope;
            row.differential = tenths(r->differentialTenths);
            row.details = QString(QLatin1String(""));
        } else {
            if (r->type.isEmpty())
                continue;
            std::vector<const Round *> candidates;
            for (const Round *c : live)
                if (c->index != r->index && isNine(*c) && c->type == r->type && c->date >= start)
                    candidates.push_back(c);
            std::sort(candidates.begin(), candidates.end(), byDateThenIndex);
            const Round *partner = nullptr;
            for (const Round *c : candidates)
                if (!inRecord(r->index) && !inRecord(c->index)) {
                    partner = c;
                    break;
                }
            if (!partner)
                continue;
            row.courseName = QStringLiteral("Combined");
            row.date = partner->date;
            row.scoreIndex = partner->index;
            row.combinedIndex = r->index;
            row.score = r->adjusted + partner->adjusted;
            row.rating = tenths(r->ratingTenths + partner->ratingTenths);
            row.slope = (r->slope + partner->slope) / 2;
            row.differential = tenths(r->differentialTenths + partner->differentialTenths);
            row.details = QStringLiteral("Combined 9-hole rounds from %1 and %2")
                              .arg(ShortDate(r->date), ShortDate(partner->date));
        }
        makeRoom();
        record.push_back({row, entered++});
    }

    QVector<RecordRow> rows;
    for (const Entry &e : record)
        rows.push_back(e.row);
    std::sort(rows.begin(), rows.end(), [](const RecordRow &a, const RecordRow &b) {
        return a.date != b.date ? a.date < b.date : a.scoreIndex < b.scoreIndex;
    });
    return rows;
}

// Marks the lowest `count` differentials; among equal values the newest rows first.
void markLowest(QVector<RecordRow> &record, int count)
{
    std::vector<int> order(record.size());
    for (int i = 0; i < record.size(); ++i)
        order[i] = i;
    // Lowest value first; within a value, newest (Date, then ScoreIndex, descending) first.
    std::sort(order.begin(), order.end(), [&](int a, int b) {
        const RecordRow &x = record[a];
        const RecordRow &y = record[b];
        if (x.differential != y.differential)
            return x.differential < y.differential;
        if (x.date != y.date)
            return x.date > y.date;
        return x.scoreIndex > y.scoreIndex;
    });
    for (int i = 0; i < count && i < int(order.size()); ++i)
        record[order[i]].used = QStringLiteral("Y");
}

QString cutToOneDecimal(const QString &text)
{
    const int point = text.indexOf(QLatin1Char('.'));
    if (point < 0)
        return text + QStringLiteral(".0");
    if (point == text.size() - 1)
        return text + QStringLiteral("0");
    return text.left(point + 2);
}

// "###.0": one decimal, no digit before the point below 1, no sign on zero.
QString formatOneDecimal(double v)
{
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.1f", v);
    QString s = QString::fromLatin1(buf);
    if (s == QLatin1String("-0.0") || s == QLatin1String("0.0"))
        return QStringLiteral(".0");
    if (s.startsWith(QLatin1String("0.")))
        return s.mid(1);
    if (s.startsWith(QLatin1String("-0.")))
        return QStringLiteral("-") + s.mid(2);
    return s;
}

QString indexFromSum(float sum, size_t count, const QString &gender)
{
    const double product = static_cast<double>(sum) / static_cast<double>(count) * 0.96;
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.15G", product);
    // A product within 1E-04 of zero is zero to one decimal, never a digit of its exponent form.
    if (std::strchr(buf, 'E'))
        std::snprintf(buf, sizeof buf, "%.15f", product);
    const QString cut = cutToOneDecimal(QString::fromLatin1(buf));
    const QByteArray cutBytes = cut.toLatin1();
    QString shown = formatOneDecimal(std::strtod(cutBytes.constData(), nullptr));
    const double number = shown.toDouble();
    if (gender == QLatin1String("F")) {
        if (number > 40.4)
            shown = QStringLiteral("40.4");
    } else if (number > 36.4) {
        shown = QStringLiteral("36.4");
    }
    return shown;
}

} // namespace

int DifferentialsUsed(int scores)
{
    if (scores >= 20)
        return 10;
    switch (scores) {
    case 19: return 9;
    case 18: return 8;
    case 17: return 7;
    case 16:
    case 15: return 6;
    case 14:
    case 13: return 5;
    case 12:
    case 11: return 4;
    case 10:
    case 9: return 3;
    case 8:
    case 7: return 2;
    case 6:
    case 5: return 1;
    default: return 0;
    }
}

QString ShortDate(const QDate &d)
{
    return QStringLiteral("%1/%2/%3").arg(d.month()).arg(d.day()).arg(d.year());
}

QString IndexText(const std::vector<double> &used, const QString &gender)
{
    float sum = 0;
    for (double d : used)
        sum = static_cast<float>(static_cast<double>(sum) + d);
    return indexFromSum(sum, used.size(), gender);
}

QString IndexTextSingleAddends(const std::vector<double> &used, const QString &gender)
{
    float sum = 0;
    for (double d : used)
        sum = sum + static_cast<float>(d);
    return indexFromSum(sum, used.size(), gender);
}

Outcome Expect(const QString &last, const QString &first, const std::vector<Round> &rounds,
               const std::optional<QString> &storedGender, const QString &answer)
{
    Outcome o;
    o.record = buildRecord(last, first, rounds);
    const int scores = o.record.size();
    markLowest(o.record, DifferentialsUsed(scores));

    for (const Round &r : rounds)
        o.marks[r.index] =
            r.used == QLatin1String("E") ? LogMark{r.used, r.combinedIndex} : LogMark{QStringLiteral("N"), 1};
    for (const RecordRow &row : o.record) {
        if (row.used != QLatin1String("Y"))
            continue;
        o.usedDifferentials.push_back(row.differential);
        if (row.courseName == QLatin1String("Combined")) {
            o.marks[row.scoreIndex] = {QStringLiteral("C"), row.combinedIndex};
            o.marks[*row.combinedIndex] = {QStringLiteral("C"), row.scoreIndex};
        } else {
            o.marks[row.scoreIndex] = {QStringLiteral("Y"), 1};
        }
    }

    o.computed = scores >= 5;
    o.asksGender = o.computed && !storedGender;
    o.gender = storedGender ? *storedGender : (o.computed ? answer : QString());
    if (o.computed)
        o.indexText = IndexText(o.usedDifferentials, o.gender);
    return o;
}

QString PanelText(const Outcome &o)
{
    return o.computed ? QStringLiteral("Handicap: ") + o.indexText
                      : QStringLiteral("Handicap: (not calculated)");
}

} // namespace quillon::test::model
