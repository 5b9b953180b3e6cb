#pragma once

#include "UpgradeProgress.h"

#include <QString>

namespace quillon {

// A new release lays "Update.qdl", an empty database of its schema, beside the executable (in
// `dir`).  Alone, it simply becomes "Quillon.qdl".  Beside an existing "Quillon.qdl" the user's
// rows are carried into a copy of it (UpdateDatabase), which then takes the working file's place.
// Throws QuillonError on any failure; the files are then as they were.
void CheckForUpdate(const QString &dir, UpgradeProgress &progress);

// Carry the rows of "Quillon.qdl" into a new file made from "Update.qdl" and put it in place,
// keeping the old file as "quillon.bak".  All or nothing: the new file is filled in one
// transaction under another name and renamed over "Quillon.qdl" only when whole, so a failure at
// any step, or a killed process, leaves "Quillon.qdl" and "Update.qdl" as they were.
void UpdateDatabase(const QString &dir, UpgradeProgress &progress);

} // namespace quillon
