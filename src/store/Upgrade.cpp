#include "Upgrade.h"

#include "DatabaseError.h"
#include "DatabaseFiles.h"
#include "basDatabase.h"
#include "core/QuillonError.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlRecord>
#include <QStringList>
#include <algorithm>
#include <functional>
#include <limits>

namespace quillon {

namespace {

// The new file while it is being filled.  A run that was killed leaves it behind; the next run
// throws it away and starts afresh from "Update.qdl".
const QString kFilling = QStringLiteral("Update.qdl.part");

// Rows per statement: few enough that the bar moves several times a second on a large database.
constexpr int kRowsPerStep = 4000;
constexpr int kRoundsPerStep = 500;

const QString kHandicapLog = QStringLiteral("HandicapLog");
const QString kCourseLog = QStringLiteral("CourseLog");
const QString kCourseDetails = QStringLiteral("CourseDetails");
const QString kScoreLog = QStringLiteral("ScoreLog");
const QString kScoreDetails = QStringLiteral("ScoreDetails");

QString quoted(QString identifier)
{
    return QLatin1Char('"') + identifier.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

// The column names of a table in their order; a table that is not there is a fault.
QStringList columnsOf(Connection &c, const QString &schema, const QString &table)
{
    QStringList names;
    for (const QSqlRecord &row :
         Query(c, QStringLiteral("PRAGMA %1.table_info(%2)").arg(schema, quoted(table))).rows())
        names << row.value(QStringLiteral("name")).toString();
    if (names.isEmpty())
        throw QuillonError(kEngineErrorBase + engine::Error, QStringLiteral("no such table: %1").arg(table));
    return names;
}

int position(const QStringList &columns, const QString &name)
{
    for (int i = 0; i < columns.size(); ++i)
        if (columns.at(i).compare(name, Qt::CaseInsensitive) == 0)
            return i;
    return -1;
}

// A source column as it goes into the new file: a Used mark keeps only its first letter, so that
// the new file holds one letter however an older one spelled it.
QString carried(const QString &alias, const QString &column)
{
    const QString value = alias + QLatin1Char('.') + quoted(column);
    if (column.compare(QLatin1String("Used"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("substr(%1, 1, 1)").arg(value);
    return value;
}

// The bar: one step for each row of the tables copied here.  The rows of ScoreDetails are in the
// maximum but travel with their rounds, so the bar stops short of its end.
class Bar {
public:
    Bar(UpgradeProgress &progress, int maximum) : m_progress(progress), m_maximum(maximum) {}
    void step(int rows)
    {
        m_value = int(std::min<qint64>(qint64(m_value) + rows, m_maximum));
        m_progress.SetValue(m_value);
    }

private:
    UpgradeProgress &m_progress;
    int m_maximum;
    int m_value = 0;
};

// Walk the rows of a table in steps of `size`, by rowid: each step is the range (after, upTo].
void forEachStep(Connection &c, const QString &table, int size, const std::function<void(qint64, qint64)> &step)
{
    const QString next =
        QStringLiteral("SELECT MAX(rowid) FROM (SELECT rowid FROM %1 WHERE rowid > ? ORDER BY rowid LIMIT ?)")
            .arg(table);
    qint64 after = std::numeric_limits<qint64>::min();
    for (;;) {
        const QVariant upTo = Scalar(c, next, {after, size});
        if (upTo.isNull())
            return;
        step(after, upTo.toLongLong());
        after = upTo.toLongLong();
    }
}

// Rows go column by column by position, whatever the names: a new schema only adds columns at
// the end of a table, and an older file's extra columns have no place to go.
void copyTable(Connection &c, const QString &table, Bar &bar)
{
    const QStringList from = columnsOf(c, QStringLiteral("source"), table);
    const QStringList to = columnsOf(c, QStringLiteral("main"), table);
    const int n = int(std::min(from.size(), to.size()));
    QStringList targets, values;
    for (int i = 0; i < n; ++i) {
        targets << quoted(to.at(i));
        values << carried(QStringLiteral("s"), from.at(i));
    }
    const QString insert = QStringLiteral("INSERT INTO main.%1 (%2) SELECT %3 FROM source.%1 AS s "
                                          "WHERE s.rowid > ? AND s.rowid <= ? ORDER BY s.rowid")
                               .arg(quoted(table), targets.join(QStringLiteral(", ")),
                                    values.join(QStringLiteral(", ")));
    forEachStep(c, QStringLiteral("source.") + quoted(table), kRowsPerStep,
                [&](qint64 after, qint64 upTo) { bar.step(Exec(c, insert, {after, upTo})); });
}

// The rounds, each with its holes.  A round's holes are found as the old file tied them: by the
// golfer, date, course and tees, and by its old `Round` number when that is positive, else by its
// old ScoreIndex.  They arrive under the round's number in the new file: its old ScoreIndex,
// or, in a file that had none, the next number of the new file.
void copyRounds(Connection &c, Bar &bar)
{
    const QString s = QStringLiteral("source");
    const QStringList from = columnsOf(c, s, kScoreLog);
    const QStringList to = columnsOf(c, QStringLiteral("main"), kScoreLog);
    const QStringList holesFrom = columnsOf(c, s, kScoreDetails);
    const QStringList holesTo = columnsOf(c, QStringLiteral("main"), kScoreDetails);
    const QString scoreIndex = QStringLiteral("ScoreIndex");
    const int fromIndex = position(from, scoreIndex);
    const int fromRound = position(from, QStringLiteral("Round"));
    const int fromDetails = position(from, QStringLiteral("Details"));
    const int toIndex = position(to, scoreIndex);

    c.runOnce(QStringLiteral("CREATE TEMP TABLE UpgradeRounds (SourceRow INTEGER PRIMARY KEY, OldIndex INTEGER, "
                             "RoundNo INTEGER, HasDetails INTEGER, NewIndex INTEGER)"));
    Exec(c, QStringLiteral("INSERT INTO temp.UpgradeRounds (SourceRow, OldIndex, RoundNo, HasDetails) "
                           "SELECT s.rowid, %1, %2, %3 FROM source.ScoreLog AS s")
                .arg(fromIndex >= 0 ? QStringLiteral("CAST(s.%1 AS INTEGER)").arg(quoted(from.at(fromIndex)))
                                    : QStringLiteral("NULL"),
                     fromRound >= 0 ? QStringLiteral("CAST(s.%1 AS INTEGER)").arg(quoted(from.at(fromRound)))
                                    : QStringLiteral("NULL"),
                     fromDetails >= 0 ? QStringLiteral("COALESCE(s.%1 <> 0, 0)").arg(quoted(from.at(fromDetails)))
                                      : QStringLiteral("0")));
    Exec(c, QStringLiteral("UPDATE temp.UpgradeRounds SET NewIndex = OldIndex WHERE OldIndex >= 1"));
    const qint64 highest =
        Scalar(c, QStringLiteral("SELECT MAX(COALESCE((SELECT MAX(NewIndex) FROM temp.UpgradeRounds), 0), "
                                 "COALESCE((SELECT MAX(rowid) FROM main.ScoreLog), 0))"))
            .toLongLong();
    Exec(c,
         QStringLiteral("UPDATE temp.UpgradeRounds SET NewIndex = ? + r.n FROM (SELECT SourceRow, row_number() "
                        "OVER (ORDER BY SourceRow) AS n FROM temp.UpgradeRounds WHERE NewIndex IS NULL) AS r "
                        "WHERE r.SourceRow = UpgradeRounds.SourceRow"),
         {highest});

    // The rounds: the new file's ScoreIndex is the round's number, whatever stood at its place.
    QStringList targets, values;
    const int n = int(std::min(from.size(), to.size()));
    for (int i = 0; i < n; ++i) {
        targets << quoted(to.at(i));
        values << (i == toIndex ? QStringLiteral("m.NewIndex") : carried(QStringLiteral("s"), from.at(i)));
    }
    if (toIndex >= n) {
        targets << quoted(to.at(toIndex));
        values << QStringLiteral("m.NewIndex");
    }
    const QString insertRounds =
        QStringLiteral("INSERT INTO main.ScoreLog (%1) SELECT %2 FROM temp.UpgradeRounds AS m "
                       "JOIN source.ScoreLog AS s ON s.rowid = m.SourceRow "
                       "WHERE m.SourceRow > ? AND m.SourceRow <= ? ORDER BY m.SourceRow")
            .arg(targets.join(QStringLiteral(", ")), values.join(QStringLiteral(", ")));

    // The holes, in the order of their rounds: the columns by position, the ScoreIndex the round's.
    QStringList holeTargets, holeValues;
    const int k = int(std::min(holesFrom.size(), holesTo.size()));
    const int toHoleIndex = position(holesTo, scoreIndex);
    for (int i = 0; i < k; ++i) {
        holeTargets << quoted(holesTo.at(i));
        holeValues << (i == toHoleIndex ? QStringLiteral("m.NewIndex")
                                        : QStringLiteral("d.%1").arg(quoted(holesFrom.at(i))));
    }
    if (toHoleIndex >= k) {
        holeTargets << quoted(holesTo.at(toHoleIndex));
        holeValues << QStringLiteral("m.NewIndex");
    }
    QStringList picked, aliased;
    for (int i = 0; i < holeValues.size(); ++i) {
        picked << QStringLiteral("v%1").arg(i);
        aliased << QStringLiteral("%1 AS v%2").arg(holeValues.at(i)).arg(i);
    }
    const QString sameRound = QStringLiteral(
        "d.LastName = s.LastName COLLATE NOCASE AND d.FirstName = s.FirstName COLLATE NOCASE "
        "AND d.Date = s.Date AND d.CourseName = s.CourseName COLLATE NOCASE AND d.Tees = s.Tees COLLATE NOCASE");
    const QString branch =
        QStringLiteral("SELECT %1, m.SourceRow AS UpgradeRound, d.rowid AS UpgradeHole FROM temp.UpgradeRounds AS m "
                       "JOIN source.ScoreLog AS s ON s.rowid = m.SourceRow JOIN source.ScoreDetails AS d ON %2 AND %3 "
                       "WHERE m.HasDetails AND %4 AND m.SourceRow > ? AND m.SourceRow <= ?")
            .arg(aliased.join(QStringLiteral(", ")), sameRound);
    QStringList branches;
    int branchCount = 0;
    if (position(holesFrom, scoreIndex) >= 0) {
        branches << branch.arg(QStringLiteral("d.ScoreIndex = m.OldIndex"),
                               QStringLiteral("NOT COALESCE(m.RoundNo > 0, 0)"));
        ++branchCount;
    }
    if (position(holesFrom, QStringLiteral("Round")) >= 0) {
        branches << branch.arg(QStringLiteral("d.Round = m.RoundNo"), QStringLiteral("m.RoundNo > 0"));
        ++branchCount;
    }
    const QString insertHoles =
        branches.isEmpty()
            ? QString()
            : QStringLiteral("INSERT INTO main.ScoreDetails (%1) SELECT %2 FROM (%3) ORDER BY UpgradeRound, UpgradeHole")
                  .arg(holeTargets.join(QStringLiteral(", ")), picked.join(QStringLiteral(", ")),
                       branches.join(QStringLiteral(" UNION ALL ")));

    forEachStep(c, QStringLiteral("temp.UpgradeRounds"), kRoundsPerStep, [&](qint64 after, qint64 upTo) {
        const int rounds = Exec(c, insertRounds, {after, upTo});
        if (!insertHoles.isEmpty()) {
            Params range;
            for (int i = 0; i < branchCount; ++i)
                range << after << upTo;
            Exec(c, insertHoles, range);
        }
        bar.step(rounds);
    });
}

// Unloads the progress however the upgrade ends.
class ShownProgress {
public:
    explicit ShownProgress(UpgradeProgress &progress) : m_progress(progress) {}
    ~ShownProgress()
    {
        try {
            m_progress.Unload();
        } catch (...) {
            // Taking the form away cannot be allowed to hide the upgrade's own outcome.
        }
    }
    ShownProgress(const ShownProgress &) = delete;
    ShownProgress &operator=(const ShownProgress &) = delete;

private:
    UpgradeProgress &m_progress;
};

// The half-filled new file goes unless it was put in place.
class Scratch {
public:
    explicit Scratch(QString path) : m_path(std::move(path)) {}
    ~Scratch()
    {
        if (m_kept)
            return;
        try {
            RemoveDatabaseFile(m_path);
        } catch (...) {
            // Left behind, it is thrown away by the next run.
        }
    }
    Scratch(const Scratch &) = delete;
    Scratch &operator=(const Scratch &) = delete;
    void keep() { m_kept = true; }

private:
    QString m_path;
    bool m_kept = false;
};

} // namespace

void UpdateDatabase(const QString &dir, UpgradeProgress &progress)
{
    const QDir folder(dir);
    const QString working = folder.filePath(DatabaseFile::Working);
    const QString update = folder.filePath(DatabaseFile::Update);
    const QString filling = folder.filePath(kFilling);
    ShownProgress shown(progress);
    progress.Show();
    // The engine would make a missing file up when it is attached.
    if (!QFileInfo(working).isFile())
        throw QuillonError(53, QStringLiteral("File not found: %1").arg(working));

    RemoveDatabaseFile(filling);
    CopyFileWhole(update, filling);
    Scratch scratch(filling);
    {
        ConnectionPtr target = OpenDatabaseFile(filling);
        Connection &c = *target;
        // Until it is renamed into place the new file is scratch: its journal stays in memory and
        // nothing waits for the disk; it is made durable once, before the rename.
        for (const char *pragma : {"PRAGMA journal_mode = MEMORY", "PRAGMA synchronous = OFF",
                                   "PRAGMA temp_store = MEMORY", "PRAGMA cache_size = -65536"})
            c.runOnce(QLatin1String(pragma));
        Exec(c, QStringLiteral("ATTACH DATABASE ? AS source"), {working});

        qint64 total = 0;
        for (const QString &table : {kHandicapLog, kCourseLog, kCourseDetails, kScoreLog, kScoreDetails})
            total += Scalar(c, QStringLiteral("SELECT COUNT(*) FROM source.%1").arg(quoted(table))).toLongLong();
        // The old file has been read, so no journal of a broken run waits to be played back into
        // it: its bytes are the user's data, and they are kept as they stand.
        CopyFileWhole(working, folder.filePath(DatabaseFile::SafetyCopy));

        const int maximum = int(std::min<qint64>(total, std::numeric_limits<int>::max()));
        progress.SetRange(maximum);
        Bar bar(progress, maximum);
        {
            Transaction fill(c);
            progress.SetStatus(QStringLiteral("Copying handicap data"));
            copyTable(c, kHandicapLog, bar);
            progress.SetStatus(QStringLiteral("Copying course data"));
            copyTable(c, kCourseLog, bar);
            copyTable(c, kCourseDetails, bar);
            progress.SetStatus(QStringLiteral("Copying score data"));
            copyRounds(c, bar);
            fill.commit();
        }
        c.runOnce(QStringLiteral("DETACH DATABASE source"));
    }
    progress.SetStatus(QStringLiteral("Restoring ..."));
    PutInPlace(filling, working);
    scratch.keep();
    RemoveDatabaseFile(update);
}

void CheckForUpdate(const QString &dir, UpgradeProgress &progress)
{
    const QDir folder(dir);
    const QString update = folder.filePath(DatabaseFile::Update);
    if (!QFileInfo::exists(update))
        return;
    const QString working = folder.filePath(DatabaseFile::Working);
    if (QFileInfo::exists(working)) {
        UpdateDatabase(dir, progress);
        return;
    }
    // A fresh install: the new file simply becomes the working one.
    CopyFileWhole(update, working);
    RemoveDatabaseFile(update);
}

} // namespace quillon
