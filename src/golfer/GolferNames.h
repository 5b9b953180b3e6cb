#pragma once

#include "store/basDatabase.h"

#include <QString>
#include <QStringList>

namespace quillon {

// A golfer's name as the dialogs read it from a typed text.
struct GolferName {
    QString last;
    QString first;
    bool operator==(const GolferName &o) const { return last == o.last && first == o.first; }
};

// "Smith, John" and "John Smith" both name John Smith; a text with neither a comma nor a blank
// leaves the name as it stood.  A double last name must be typed in the comma form.
GolferName ParseGolferName(const QString &text, const GolferName &before);

// A list item "<LastName>, <FirstName>" split at its comma.
GolferName SplitListItem(const QString &item);
QString ListItem(const QString &last, const QString &first);

// What the OK of the golfer dialog settles on: a stored golfer (a selected row, or a typed name
// that matches one without regard to case), or a new one.
struct GolferChoice {
    GolferName chosen; // the stored golfer, when !isNew
    GolferName parsed; // the typed name as parsed, kept for the next OK
    bool isNew = false;
};
GolferChoice ChooseGolfer(const QStringList &items, int selectedRow, const QString &typed,
                          const GolferName &parsedBefore);

// The golfers as the dialogs list them, in the order the table gives.
QStringList GolferListItems(Connection &c);
// A new golfer with no handicap yet.
void AddGolferRow(Connection &c, const GolferName &name, const QString &gender);
// A golfer's rounds with their holes and the golfer's own row, all or none.  The scoring
// record is left: the next handicap run of a golfer of that name replaces it.
void DeleteGolferRows(Connection &c, const QString &last, const QString &first);

} // namespace quillon
