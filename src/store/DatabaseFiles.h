#pragma once

#include <QString>

namespace quillon {

// The files of the program's directory that hold data.
namespace DatabaseFile {
inline const QString Working = QStringLiteral("Quillon.qdl");
// A new empty database laid by an installer; its presence starts an upgrade.
inline const QString Update = QStringLiteral("Update.qdl");
// The working database as it stood before the last upgrade or restore replaced it.
inline const QString SafetyCopy = QStringLiteral("quillon.bak");
} // namespace DatabaseFile

// Every routine here replaces a file in one step: the new content is written beside the target
// under another name, made durable, and renamed over it, so that a failure or a killed process
// leaves the target as it was.  Faults are QuillonError: 70 when the system refuses the access,
// 75 for another failure of a file operation, the engine's numbers for a database fault.

// A byte-for-byte copy of a closed file.
void CopyFileWhole(const QString &source, const QString &target);

// A complete, consistent copy of a database, taken through the engine, so that it is right even
// while the program has the file open.  False when the place of target cannot take a new file
// (a folder that is missing or cannot be written); a fault reading the database throws.
bool CopyDatabase(const QString &source, const QString &target);

// The version of a database that may stand in for the working one: it must be sound through the
// engine's integrity check and hold every table of ours.  Never changes the file.  Throws the
// reason it is not.
int ReadDatabaseVersion(const QString &path);

// Put the database at `backup` in place of `working`, after keeping `working` (when there is one)
// as `safetyCopy`.  False when the copy cannot be made beside `working`; nothing has changed then.
bool RestoreDatabaseFile(const QString &backup, const QString &working, const QString &safetyCopy);

// Remove a database file with the journal the engine may have left beside it.
void RemoveDatabaseFile(const QString &path);

// Rename `ready` over `target` in one step, made durable; throws when the system refuses.
void PutInPlace(const QString &ready, const QString &target);

} // namespace quillon
