#pragma once

#include "GolferStatistics.h"

#include <QHash>
#include <QString>

namespace quillon {

// What the display of a record writes: label objectName -> text.  A label that is not in the map
// keeps the text it had (a measure whose condition fails, or whose statement overflowed or
// divided by zero).
struct StatisticsTexts {
    QHash<QString, QString> labels;
    // False in the mode without details: every page but "Scoring" is disabled.
    bool pagesWithDetails = true;
};

StatisticsTexts DisplayStatistics(const GolferStatistics &stats);

// The "short date" of the statistics screen: M/d/yyyy.
QString StatisticsDate(const QDate &date);

} // namespace quillon
