#pragma once

#include "RecordRow.h"

#include <QDate>
#include <QString>
#include <map>
#include <optional>
#include <vector>

// A plain model of the handicap rules, written apart from the engine so that the
// two can be compared on many golfers.  It holds one-decimal values in tenths,
// so that its sums are exact.
namespace quillon::test::model {

struct Round {
    qint64 index = 0;
    QDate date;
    QString holes; // "18-holes", "9-holes (front)", "9-holes (back)"
    QString type;  // empty stands for Null
    QString course;
    int adjusted = 0;
    int ratingTenths = 0;
    int slope = 0;
    int differentialTenths = 0;
    QString used;             // as stored before the run
    qint64 combinedIndex = 1; // as stored before the run
};

struct Outcome {
    QVector<RecordRow> record;             // by Date, then ScoreIndex
    std::map<qint64, LogMark> marks;       // every round of the golfer, by ScoreIndex
    std::vector<double> usedDifferentials; // the "Y" rows, by Date then ScoreIndex
    bool computed = false;                 // five scores or more
    bool asksGender = false;
    QString gender;    // what the caps go by
    QString indexText; // "###.0" text of the index, when computed
};

// Differentials that count for a number of scores in the record.
int DifferentialsUsed(int scores);

// The whole run for one golfer.  storedGender nullopt: Gender is Null and the
// golfer answers `answer` when asked.
Outcome Expect(const QString &last, const QString &first, const std::vector<Round> &rounds,
               const std::optional<QString> &storedGender, const QString &answer);

// The index text from the used differentials: sum in single precision, average,
// times 0.96, 15 significant digits, cut to one decimal, "###.0", caps.
QString IndexText(const std::vector<double> &used, const QString &gender);

// The same with every differential first rounded to single precision and added in
// single precision: only to tell, when the engine differs, which reading it took.
QString IndexTextSingleAddends(const std::vector<double> &used, const QString &gender);

// "Handicap: <index>" or "Handicap: (not calculated)".
QString PanelText(const Outcome &o);

// "M/d/yyyy".
QString ShortDate(const QDate &d);

} // namespace quillon::test::model
