#include "ScoringRecordBuilder.h"

#include "NoCase.h"
#include "core/DateText.h"
#include "core/VariantKind.h"
#include "store/Encodings.h"

#include <QHash>
#include <cmath>
#include <vector>

namespace quillon {

namespace {

QVariant sumOfScores(const QVariant &a, const QVariant &b)
{
    if (a.isNull() || b.isNull())
        return QVariant();
    if (IsIntegral(a) && IsIntegral(b))
        return a.toLongLong() + b.toLongLong();
    return a.toDouble() + b.toDouble();
}

// Two one-decimal values added: stored as the double nearest the one-decimal
// sum, so that a look-up by the value's text finds the row (4.1 + 4.2 is 8.3).
QVariant sumOfTenths(const QVariant &a, const QVariant &b)
{
    if (a.isNull() || b.isNull())
        return QVariant();
    return std::round((a.toDouble() + b.toDouble()) * 10.0) / 10.0;
}

QVariant meanSlope(const QVariant &a, const QVariant &b)
{
    if (a.isNull() || b.isNull())
        return QVariant();
    return qlonglong(std::trunc((a.toDouble() + b.toDouble()) / 2.0));
}

QString dateText(const QString &iso)
{
    return DateText(QDate::fromString(iso, Qt::ISODate));
}

RecordRow eighteenHoleRow(const LogRound &r)
{
    RecordRow row;
    row.lastName = r.lastName;
    row.firstName = r.firstName;
    row.courseName = r.courseName;
    row.date = r.date;
    row.scoreIndex = r.scoreIndex;
    row.score = r.adjustedScore;
    row.rating = r.rating;
    row.slope = r.slope;
    row.differential = r.differential;
    row.details = QStringLiteral("");
    return row;
}

// older: the round the walk stands on; partner: the later one found for it.
RecordRow combinedRow(const LogRound &older, const LogRound &partner)
{
    RecordRow row;
    row.lastName = older.lastName;
    row.firstName = older.firstName;
    row.courseName = CombinedCourse;
    row.date = partner.date;
    row.scoreIndex = partner.scoreIndex;
    row.combinedIndex = older.scoreIndex;
    row.score = sumOfScores(older.adjustedScore, partner.adjustedScore);
    row.rating = sumOfTenths(older.rating, partner.rating);
    row.slope = meanSlope(older.slope, partner.slope);
    row.differential = sumOfTenths(older.differential, partner.differential);
    row.details = QStringLiteral("Combined 9-hole rounds from %1 and %2")
                      .arg(dateText(older.date), dateText(partner.date));
    return row;
}

// The record while the walk goes on, with the round numbers its rows refer to.
class RecordInProgress {
public:
    explicit RecordInProgress(const QSet<qint64> &heldElsewhere) : m_heldElsewhere(heldElsewhere) {}

    // True when a row of the table refers to the round, as ScoreIndex or CombinedIndex.
    bool holds(qint64 scoreIndex) const
    {
        return m_refs.value(scoreIndex) > 0 || m_heldElsewhere.contains(scoreIndex);
    }

    void add(RecordRow row)
    {
        makeRoom();
        refer(row, +1);
        m_entries.push_back({std::move(row), m_entered++});
    }

    QVector<RecordRow> rows() const
    {
        QVector<RecordRow> out;
        out.reserve(int(m_entries.size()));
        for (const Entry &e : m_entries)
            out.append(e.row);
        return out;
    }

private:
    struct Entry {
        RecordRow row;
        int entered;
    };

    // The oldest row gives way to a new one; of rows of one date, the one that came first.
    void makeRoom()
    {
        if (int(m_entries.size()) < ScoringRecordBuilder::kMaxRows)
            return;
        auto oldest = m_entries.begin();
        for (auto it = m_entries.begin(); it != m_entries.end(); ++it) {
            if (it->row.date < oldest->row.date ||
                (it->row.date == oldest->row.date && it->entered < oldest->entered))
                oldest = it;
        }
        refer(oldest->row, -1);
        m_entries.erase(oldest);
    }

    void refer(const RecordRow &row, int delta)
    {
        m_refs[row.scoreIndex] += delta;
        if (!row.combinedIndex.isNull())
            m_refs[row.combinedIndex.toLongLong()] += delta;
    }

    const QSet<qint64> &m_heldElsewhere;
    std::vector<Entry> m_entries;
    QHash<qint64, int> m_refs;
    int m_entered = 0;
};

bool isNine(const LogRound &r)
{
    return SameNoCase(r.holes, Holes::FrontNine) || SameNoCase(r.holes, Holes::BackNine);
}

} // namespace

ScoringRecordBuilder::ScoringRecordBuilder(QSet<qint64> heldElsewhere)
    : m_heldElsewhere(std::move(heldElsewhere))
{
}

QVector<RecordRow> ScoringRecordBuilder::build(const QVector<LogRound> &walk) const
{
    // Partner candidates by Type (as the database compares it), in walk order.
    QHash<QString, QVector<int>> ninesByType;
    for (int i = 0; i < walk.size(); ++i) {
        const LogRound &r = walk.at(i);
        if (!r.type.isNull() && isNine(r))
            ninesByType[FoldNoCase(r.type.toString())].append(i);
    }

    RecordInProgress record(m_heldElsewhere);
    for (const LogRound &round : walk) {
        if (round.holes == Holes::Eighteen) {
            record.add(eighteenHoleRow(round));
            continue;
        }
        // A round without a Type never pairs; nor does one that a row already holds.
        if (round.type.isNull() || record.holds(round.scoreIndex))
            continue;
        const auto candidates = ninesByType.constFind(FoldNoCase(round.type.toString()));
        if (candidates == ninesByType.constEnd())
            continue;
        // Only rounds that some row holds are passed over, so the search stays short.
        for (const int i : *candidates) {
            const LogRound &candidate = walk.at(i);
            if (candidate.scoreIndex == round.scoreIndex || record.holds(candidate.scoreIndex))
                continue;
            record.add(combinedRow(round, candidate));
            break;
        }
    }
    return record.rows();
}

} // namespace quillon
