#include "Handicap.h"

#include "GolferScores.h"
#include "IndexText.h"
#include "ScoringRecordBuilder.h"
#include "UsedScoreMarker.h"
#include "core/Format.h"
#include "platform/Platform.h"
#include "shell/basLogGlobals.h"
#include "store/Encodings.h"

#include <QHash>
#include <algorithm>
#include <numeric>

namespace quillon {

namespace {

constexpr int kMinimumScores = 5;

GolferScores currentGolfer()
{
    const LogGlobals &g = basLogGlobals();
    return GolferScores(db(), g.gLastName, g.gFirstName);
}

void requery(const std::unique_ptr<HeldRecordset> &held)
{
    if (held)
        held->requery();
}

// The period's rounds and the record built from them, in the order the rows entered it.
struct BuiltRecord {
    QVector<LogRound> rounds;
    QVector<RecordRow> rows;
};

// Deletes the golfer's record, resets the marks before the period and builds
// the new record in memory; nothing of the period is written yet.
BuiltRecord buildRecord(GolferScores &scores)
{
    scores.deleteRecord();
    const QVariant start = scores.periodStart();
    scores.resetMarksBefore(start);
    BuiltRecord built;
    built.rounds = scores.periodRounds(start);
    built.rows = ScoringRecordBuilder(scores.roundsHeldInRecord()).build(built.rounds);
    return built;
}

bool storedAs(const QVariant &stored, const QString &text)
{
    return stored.typeId() == QMetaType::QString && stored.toString() == text;
}

bool storedAs(const QVariant &stored, const QVariant &number)
{
    if (stored.isNull() || number.isNull())
        return stored.isNull() && number.isNull();
    return (stored.typeId() == QMetaType::LongLong || stored.typeId() == QMetaType::Int) &&
           stored.toLongLong() == number.toLongLong();
}

// Every round of the period ends "N" and 1 unless a mark says otherwise; only
// rows whose stored marks differ from that are written.
void writePeriodMarks(GolferScores &scores, const QVector<LogRound> &rounds, const QVector<LogMark> &marks)
{
    QHash<qint64, LogMark> final;
    for (const LogRound &r : rounds)
        final.insert(r.scoreIndex, {r.scoreIndex, UsedMark::NotUsed, true, qlonglong(NoPair)});
    for (const LogMark &m : marks) {
        LogMark &f = final[m.scoreIndex];
        f.used = m.used;
        if (m.setsCombinedIndex)
            f.combinedIndex = m.combinedIndex;
    }
    for (const LogRound &r : rounds) {
        const LogMark &f = final[r.scoreIndex];
        if (!storedAs(r.used, f.used) || !storedAs(r.combinedIndex, f.combinedIndex))
            scores.writeMark(f);
    }
}

// Positions of the rows by Date, then ScoreIndex: the order the record is read in.
QVector<int> dateOrder(const QVector<RecordRow> &rows)
{
    QVector<int> order(rows.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&rows](int a, int b) {
        const RecordRow &x = rows.at(a);
        const RecordRow &y = rows.at(b);
        return x.date != y.date ? x.date < y.date : x.scoreIndex < y.scoreIndex;
    });
    return order;
}

// A golfer never asked for a gender is asked once, and the answer kept.  The question is a
// modal dialog: a run that meets it inside its transaction gives the transaction up, and the
// question is asked with no write under way.
struct GenderNeeded {};

enum class WhenUnknown { Ask, GiveUp };

QString askGender(GolferScores &scores)
{
    GenderQuestion *question = basLogGlobals().genderQuestion;
    if (!question)
        throw QuillonError(91, QStringLiteral("Object variable or With block variable not set"));
    const QString answer = question->GetGender(scores.firstName(), scores.lastName());
    scores.storeGender(answer);
    return answer;
}

// The gender the cap goes by.
QString genderFor(GolferScores &scores, WhenUnknown whenUnknown)
{
    const std::optional<QVariant> stored = scores.gender();
    if (!stored) // no golfer row: PublishHandicap will say so
        return QString();
    if (!stored->isNull())
        return stored->toString();
    if (whenUnknown == WhenUnknown::GiveUp)
        throw GenderNeeded();
    return askGender(scores);
}

float indexFromUsed(GolferScores &scores, const QVector<QVariant> &used, WhenUnknown whenUnknown)
{
    QVector<double> differentials;
    differentials.reserve(used.size());
    for (const QVariant &d : used)
        differentials.append(UsedScoreMarker::StoredValue(d));
    const QString text =
        IndexText::FromSum(IndexText::SumOfDifferentials(differentials), differentials.size());
    return IndexText::Value(IndexText::Capped(text, genderFor(scores, whenUnknown)));
}

// The part of PublishHandicap that shows: the message when the golfer has no
// row, the held row read again, and the status-bar panel with the calculator item.
void showHandicap(float value, bool rowFound)
{
    LogGlobals &g = basLogGlobals();
    if (!rowFound)
        platform().messageBox(QStringLiteral("Database Error: Unable to locate golfer's handicap record."),
                              MsgIcon::Exclamation, appTitle(), MsgButtons::OK, MsgAnswer::OK);
    requery(g.gHandicapLog);
    ShowHandicap(value);
}

} // namespace

void ShowHandicap(float value)
{
    HandicapDisplay *display = basLogGlobals().handicapDisplay;
    if (!display)
        return;
    const bool calculated = value != kNoHandicap;
    display->setHandicapPanel(calculated
                                  ? QStringLiteral("Handicap: ") + Format(value, QStringLiteral("###.0"))
                                  : QStringLiteral("Handicap: (not calculated)"));
    display->setCourseHdcpCalculatorEnabled(calculated);
}

qint16 DifferentialsUsed(int scores)
{
    // The USGA table as it stands: single steps from 17 up, pairs below.
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

namespace {

// One run in one transaction: all or nothing, so a failed run leaves the previous record,
// marks and handicap.  Throws GenderNeeded, having changed nothing, when the cap needs a
// gender that was never asked.
void runHandicap()
{
    LogGlobals &g = basLogGlobals();
    GolferScores scores = currentGolfer();
    Transaction run(db());

    BuiltRecord built = buildRecord(scores);
    QVector<RecordRow> &rows = built.rows;
    const QVector<int> byDate = dateOrder(rows);

    const qint16 count = DifferentialsUsed(rows.size());
    QVector<LogMark> marks;
    if (count > 0) {
        QVector<float> scanned;
        scanned.reserve(rows.size());
        for (const int i : byDate)
            scanned.append(UsedScoreMarker::ScanValue(rows.at(i).differential));
        QSet<qint64> inPeriod;
        for (const LogRound &r : built.rounds)
            inPeriod.insert(r.scoreIndex);
        marks = UsedScoreMarker::Mark(UsedScoreMarker::LowestDifferentials(count, scanned), rows,
                                      [&inPeriod](qint64 index) { return inPeriod.contains(index); });
    }
    scores.insertRecord(rows);
    writePeriodMarks(scores, built.rounds, marks);

    float value = kNoHandicap;
    if (rows.size() >= kMinimumScores) {
        QVector<QVariant> used;
        for (const int i : byDate)
            if (rows.at(i).used == UsedMark::Used)
                used.append(rows.at(i).differential);
        value = indexFromUsed(scores, used, WhenUnknown::GiveUp);
    }
    const bool rowFound = scores.storeHandicap(value);
    run.commit();

    requery(g.gScoreLog);
    showHandicap(value, rowFound);
}

} // namespace

void ComputeHandicap()
{
    try {
        runHandicap();
    } catch (const GenderNeeded &) {
        GolferScores scores = currentGolfer();
        askGender(scores);
        try {
            runHandicap();
        } catch (const GenderNeeded &) {
            // The answer did not stay (the golfer's row went meanwhile): no run without a gender.
            throw QuillonError(3021, QStringLiteral("No current record."));
        }
    }
}

void BuildScoringRecord()
{
    GolferScores scores = currentGolfer();
    const BuiltRecord built = buildRecord(scores);
    scores.insertRecord(built.rows);
    writePeriodMarks(scores, built.rounds, {});
}

void MarkUsedScores(qint16 &count, Recordset &records)
{
    if (count <= 0)
        return;
    if (records.isEmpty()) {
        platform().messageBox(QStringLiteral("Error computing handicap."), MsgIcon::Critical,
                              QStringLiteral("Quillon for Golf"), MsgButtons::OK, MsgAnswer::OK);
        return;
    }
    QVector<float> scanned;
    for (records.moveFirst(); !records.eof(); records.moveNext())
        scanned.append(UsedScoreMarker::ScanValue(records.value(QStringLiteral("Differential"))));

    GolferScores scores = currentGolfer();
    QVector<RecordRow> rows = scores.readRecord();
    const QVector<RecordRow> before = rows;
    const QVector<LogMark> marks =
        UsedScoreMarker::Mark(UsedScoreMarker::LowestDifferentials(count, scanned), rows,
                              [&scores](qint64 index) { return scores.logHasRound(index); });
    for (int i = 0; i < rows.size(); ++i)
        if (rows.at(i).used != before.at(i).used)
            scores.setRecordRowUsed(rows.at(i).rowId, rows.at(i).used);
    for (const LogMark &m : marks)
        scores.writeMark(m);
    requery(basLogGlobals().gScoreLog);
}

float AverageDifferentials()
{
    GolferScores scores = currentGolfer();
    return indexFromUsed(scores, scores.usedDifferentials(), WhenUnknown::Ask);
}

void PublishHandicap(float value)
{
    showHandicap(value, currentGolfer().storeHandicap(value));
}

} // namespace quillon
