#include "handicap/UsedScoreMarker.h"
#include "core/QuillonError.h"

#include "TestPrinting.h"

#include <gtest/gtest.h>

using namespace quillon;

namespace {

RecordRow row(qint64 index, const QString &date, const QVariant &differential,
              const QString &course = QStringLiteral("Pebble Creek"), const QVariant &combined = QVariant())
{
    RecordRow r;
    r.scoreIndex = index;
    r.date = date;
    r.differential = differential;
    r.courseName = course;
    r.combinedIndex = combined;
    return r;
}

QStringList usedOf(const QVector<RecordRow> &rows)
{
    QStringList out;
    for (const RecordRow &r : rows)
        out << r.used;
    return out;
}

const auto everyRound = [](qint64) { return true; };

} // namespace

TEST(LowestDifferentials, KeepsTheCountLowestValues)
{
    EXPECT_EQ(UsedScoreMarker::LowestDifferentials(1, {10, 9, 8, 7, 11, 12}), (QVector<float>{7}));
    QVector<float> three = UsedScoreMarker::LowestDifferentials(3, {15, 3, 9, 1, 12, 4, 20});
    std::sort(three.begin(), three.end());
    EXPECT_EQ(three, (QVector<float>{1, 3, 4}));
    QVector<float> ties = UsedScoreMarker::LowestDifferentials(3, {5, 5, 5, 5, 1});
    std::sort(ties.begin(), ties.end());
    EXPECT_EQ(ties, (QVector<float>{1, 5, 5}));
    QVector<float> negative = UsedScoreMarker::LowestDifferentials(2, {-1.5f, 2, -3.2f, 0});
    std::sort(negative.begin(), negative.end());
    EXPECT_EQ(negative, (QVector<float>{-3.2f, -1.5f}));
}

TEST(LowestDifferentials, EntriesTheScanNeverFillsStayZeroAndCountZeroIsEmpty)
{
    EXPECT_EQ(UsedScoreMarker::LowestDifferentials(3, {9}), (QVector<float>{9, 0, 0}));
    EXPECT_TRUE(UsedScoreMarker::LowestDifferentials(0, {9, 8}).isEmpty());
}

TEST(UsedScoreMarkerMark, EqualValuesMarkTheNewestRowsFirst)
{
    QVector<RecordRow> rows = {row(1, "2026-01-01", 15.0), row(2, "2026-01-02", 15.0),
                               row(5, "2026-01-02", 15.0), row(3, "2026-01-03", 16.0)};
    const QVector<LogMark> marks = UsedScoreMarker::Mark({15.0f, 15.0f}, rows, everyRound);
    EXPECT_EQ(usedOf(rows), (QStringList{"N", "Y", "Y", "N"}));
    ASSERT_EQ(marks.size(), 2);
    EXPECT_EQ(marks.at(0).scoreIndex, 5); // same day: the higher ScoreIndex is the newer
    EXPECT_EQ(marks.at(0).used, QStringLiteral("Y"));
    EXPECT_FALSE(marks.at(0).setsCombinedIndex);
    EXPECT_EQ(marks.at(1).scoreIndex, 2);
}

TEST(UsedScoreMarkerMark, AValueWithoutItsStoredRowMarksNothing)
{
    QVector<RecordRow> rows = {row(1, "2026-01-01", 10.123456789), row(2, "2026-01-02", 12.0)};
    const QVector<LogMark> marks = UsedScoreMarker::Mark(
        UsedScoreMarker::LowestDifferentials(1, {10.123456789f, 12.0f}), rows, everyRound);
    EXPECT_EQ(usedOf(rows), (QStringList{"N", "N"}));
    EXPECT_TRUE(marks.isEmpty());
}

TEST(UsedScoreMarkerMark, ACombinedRowMarksBothRoundsPointingAtEachOther)
{
    QVector<RecordRow> rows = {row(12, "2026-01-05", 8.3, QStringLiteral("Combined"), qlonglong(11))};
    const QVector<LogMark> marks = UsedScoreMarker::Mark({8.3f}, rows, everyRound);
    EXPECT_EQ(usedOf(rows), (QStringList{"Y"}));
    ASSERT_EQ(marks.size(), 2);
    EXPECT_EQ(marks.at(0).scoreIndex, 12);
    EXPECT_EQ(marks.at(0).used, QStringLiteral("C"));
    EXPECT_EQ(marks.at(0).combinedIndex.toLongLong(), 11);
    EXPECT_EQ(marks.at(1).scoreIndex, 11);
    EXPECT_EQ(marks.at(1).used, QStringLiteral("C"));
    EXPECT_EQ(marks.at(1).combinedIndex.toLongLong(), 12);
}

TEST(UsedScoreMarkerMark, ARoundMissingFromTheLogKeepsOnlyTheRecordMark)
{
    QVector<RecordRow> rows = {row(12, "2026-01-05", 8.3, QStringLiteral("Combined"), qlonglong(11))};
    const QVector<LogMark> marks = UsedScoreMarker::Mark({8.3f}, rows, [](qint64 i) { return i != 12; });
    EXPECT_EQ(usedOf(rows), (QStringList{"Y"}));
    EXPECT_TRUE(marks.isEmpty());
}

TEST(UsedScoreMarkerMark, ANullDifferentialIsInvalidUseOfNull)
{
    try {
        UsedScoreMarker::ScanValue(QVariant());
        FAIL() << "no fault";
    } catch (const QuillonError &e) {
        EXPECT_EQ(e.number(), 94);
    }
}
