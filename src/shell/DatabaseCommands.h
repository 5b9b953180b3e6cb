#pragma once

#include <QString>

namespace quillon {

class MDIForm1;

// Tools, Database, Backup: the working database copied whole to a file the user names, while
// the program goes on using it.
void mnuDatabaseBackup_Click();

// Tools, Database, Restore: a backup the user names, once checked, takes the working database's
// place (which is kept as "quillon.bak"), and the program starts over on it in the same process.
// A refused or cancelled restore leaves the program as it was, its database open.
void mnuDatabaseRestore_Click(MDIForm1 &frame);

// Whether the database at `path` may replace the working one: a sound database of ours, of the
// working database's version (when there is a working database to compare with).  Says why not
// and answers false.
bool CheckRestoreVersion(const QString &path);

} // namespace quillon
