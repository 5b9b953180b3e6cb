#include "UsedScoreMarker.h"

#include "NoCase.h"
#include "core/NumberText.h"
#include "core/QuillonError.h"
#include "core/VariantKind.h"
#include "store/Encodings.h"

namespace quillon {

namespace {

// The look-up compares the column with the value's single-precision text.
double lookupValue(float value)
{
    return SingleText(value).toDouble();
}

bool newer(const RecordRow &a, const RecordRow &b)
{
    return a.date != b.date ? a.date > b.date : a.scoreIndex > b.scoreIndex;
}

RecordRow *newestNotUsedWith(double value, QVector<RecordRow> &rows)
{
    RecordRow *found = nullptr;
    for (RecordRow &row : rows) {
        if (!SameNoCase(row.used, UsedMark::NotUsed) || !IsNumber(row.differential) ||
            row.differential.toDouble() != value)
            continue;
        if (!found || newer(row, *found))
            found = &row;
    }
    return found;
}

} // namespace

double UsedScoreMarker::StoredValue(const QVariant &differential)
{
    if (differential.isNull())
        throw QuillonError(94, QStringLiteral("Invalid use of Null"));
    return differential.toDouble();
}

QVector<float> UsedScoreMarker::LowestDifferentials(int count, const QVector<float> &differentials)
{
    QVector<float> best(qMax(count, 0), 0.0f);
    if (count <= 0)
        return best;
    float high = -1000.0f;
    int filled = 0;
    for (const float d : differentials) {
        if (filled < count) {
            if (d > high)
                high = d;
            best[filled++] = d;
            continue;
        }
        // A value equal to the present maximum does not enter.
        if (!(d < high))
            continue;
        const int at = best.indexOf(high);
        if (at < 0)
            continue;
        best[at] = d;
        high = d;
        for (const float b : best)
            if (b > high)
                high = b;
    }
    return best;
}

QVector<LogMark> UsedScoreMarker::Mark(const QVector<float> &best, QVector<RecordRow> &rows,
                                       const LogHasRound &logHas)
{
    QVector<LogMark> marks;
    for (const float value : best) {
        RecordRow *row = newestNotUsedWith(lookupValue(value), rows);
        if (!row)
            continue;
        row->used = UsedMark::Used;
        if (!logHas(row->scoreIndex))
            continue;
        if (row->courseName == CombinedCourse) {
            // Each 9-hole round of the pair points to the other.
            marks.append({row->scoreIndex, UsedMark::CombinedUsed, true, row->combinedIndex});
            if (!row->combinedIndex.isNull() && logHas(row->combinedIndex.toLongLong()))
                marks.append(
                    {row->combinedIndex.toLongLong(), UsedMark::CombinedUsed, true, row->scoreIndex});
        } else {
            marks.append({row->scoreIndex, UsedMark::Used, false, QVariant()});
        }
    }
    return marks;
}

} // namespace quillon
