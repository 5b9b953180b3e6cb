#pragma once

#include "platform/Platform.h"
#include "store/Recordset.h"

#include <QString>

namespace quillon {

class Connection;

// What stands at the head of a golfer's printed tables.
struct ReportHead {
    QString golfer;       // "<first> <last>"
    QString handicap;     // the text of the status bar's handicap panel
    bool handicapMode = true; // the full program ("-h"): the handicap line and the differentials
};

// The score log as the view holds it (its rows and their order), 35 rows a page in landscape.
// The walk ends back on the first row.
PrintJob ScoreLogPrintout(Recordset &log, const ReportHead &head);

// The golfer's scoring record, newest first, in landscape.
PrintJob ScoringRecordPrintout(Connection &c, const QString &last, const QString &first, const ReportHead &head);

} // namespace quillon
