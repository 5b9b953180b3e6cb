#pragma once

#include "store/basDatabase.h"

#include <QString>
#include <QVector>

namespace quillon {

enum class ChartKind { Trend, Pie };

// One entry of the graphs list, in the list's order.
struct ChartEntry {
    QString entry;       // the text of the list
    ChartKind kind;
    QString title;       // the title drawn on the chart
    QString description; // the one-line description under the list
    int parts = 0;       // parts of a pie
};
const QVector<ChartEntry> &GraphCatalogue();

// The prime test of the trend scale: 0 and 1 count as prime, 2 and negatives do not (kept so).
bool IsPrimeSpan(int span);

// The Y axis of a trend chart: whole steps, at most 18 major divisions.
struct TrendScale {
    int minimum = 0;
    int maximum = 0;
    int minorDivision = 1;
    int majorDivision = 0;
};
TrendScale SetTrendAxes(qint16 minValue, qint16 maxValue);

// A finished trend chart: one value per plotted round, oldest first.  `rowCount` is the number of
// rounds the statement returned: rounds without detail rows take no value, so the last rows of
// the chart may stay unset.
struct TrendData {
    QVector<double> values;
    int rowCount = 0;
    QString caption;    // "From <oldest> to <newest> (<rows> rounds)", the X axis title
    QString valueTitle; // the Y axis title
    qint16 minValue = 1000;
    qint16 maxValue = 0;
    TrendScale scale;
};

// One part of a pie: its legend text, the text written as its value, and whether its label stands
// outside the pie (else it has none and the legend carries the figure).
struct PiePart {
    QString legend;
    QString data;
    bool labelOutside = true;
};
struct PieData {
    QVector<PiePart> parts;
    bool manySmall = false;
};

// Everything one chart shows.  `empty`: the statement had no rows, "(No Data to Display)".
struct ChartData {
    ChartEntry entry;
    bool empty = true;
    TrendData trend;
    PieData pie;
    int failure = 0; // BuildAllCharts: the error number that stopped this chart; 0 for none
};

// How the pies read the golfer's holes: Quick packs each hole into one number and falls back to
// the statements when a value does not fit; ByStatements always runs the statements.  Both give
// the same charts.
enum class ChartReading { Quick, ByStatements };

// Build the chart named by a list entry for a golfer from the database.  Failures of the chart
// (a division by zero in a fairways chart, a value that cannot be read) throw QuillonError.
ChartData BuildChart(Connection &c, const QString &entry, const QString &last, const QString &first,
                     ChartReading reading = ChartReading::Quick);

// The data of all the charts, in the list's order, for a report of them all: the holes of the pies
// are read once.  A chart that fails carries its error number and the others go on.
QVector<ChartData> BuildAllCharts(Connection &c, const QString &last, const QString &first,
                                  ChartReading reading = ChartReading::Quick);

} // namespace quillon
