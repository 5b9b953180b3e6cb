#pragma once

#include "ReportPainter.h"
#include "platform/Platform.h"

#include <QDate>
#include <QString>
#include <QVector>
#include <functional>

namespace quillon {

class frmGolferStats;
struct GolferStatistics;

// One printed line: texts at their character columns; no texts is a blank line.
using ReportLine = QVector<Tab>;

// The statistics report as text: the centred heading and date, the handicap line of the full
// program, and the lines of the body.  With details the body has two columns, the right one
// starting at the height where the left one starts, and ends with the footer notice; without
// details it is one column and has no footer.
struct StatisticsReport {
    QString heading;
    QString date;
    QString handicapLine; // empty: none is printed
    QVector<ReportLine> left;
    QVector<ReportLine> right;
};

// What the head of the report is made of.
struct StatisticsReportHead {
    QString firstName;
    QString lastName;
    QDate today;
    bool handicapMode = true; // the full program ("-h"), which prints the current handicap
    QString handicap;         // the text of the status bar's handicap panel
};

// The text of one of the statistics screen's value labels, by its name.
using LabelCaption = std::function<QString(const QString &labelName)>;

// The report of what the statistics screen shows: every figure is the current caption of its
// value label, blank labels included; only the two round counts come from the record.  Fails
// with an overflow when the front and back nine rounds add up past the counter's range.
StatisticsReport BuildStatisticsReport(const StatisticsReportHead &head, const LabelCaption &caption,
                                       const GolferStatistics &stats);

// The report on pages in the printer's own orientation; a body longer than a page runs on to
// the next by itself.
PrintJob StatisticsPrintout(const StatisticsReport &report);

// Print the statistics shown on the form, under the hourglass; a fault is shown as
// "Error <number>: <description>" once the pointer is back to normal.
void PrintStats(frmGolferStats &form);

} // namespace quillon
