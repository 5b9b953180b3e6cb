#pragma once

#include <QSqlDatabase>
#include <QString>

namespace quillon {

// Run a schema script (statements separated by ";", "--" comments) on an open database.
// Returns false with the failing statement in *error.
bool RunSqlScript(QSqlDatabase &db, const QString &script, QString *error);

} // namespace quillon
