#pragma once

#include "store/basDatabase.h"

#include <QByteArray>
#include <QStringList>

namespace quillon::test {

// The rows of one table as text, one line a row in rowid order: "<table>: v1|v2|...", Null as
// "<null>".  `columns` limits each row to its first columns (-1: all).
QStringList TableRows(Connection &c, const QString &table, int columns = -1);

// Every row of every table of a database, the tables by name, the engine's own numbering of
// ScoreIndex included: two databases that give the same lines hold the same data.
QStringList DatabaseRows(Connection &c);
// The same for a file, opened without changing it.
QStringList DatabaseRows(const QString &path);

// The bytes of a file; empty when there is none.
QByteArray FileBytes(const QString &path);
// Write a file with exactly these bytes.
void WriteBytes(const QString &path, const QByteArray &bytes);

// An SQLite database of another program (a table of photos) at `path`.
void LayForeignDatabase(const QString &path);

} // namespace quillon::test
