// The upgrade of a user's database into the new empty one a release lays beside the program.
#include "FileFixtures.h"
#include "Fixtures.h"
#include "TestApp.h"
#include "store/DatabaseFiles.h"
#include "store/Upgrade.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <functional>

using namespace quillon;
using namespace quillon::test;

namespace {

// Records what the upgrade tells its watcher, and can fail on a chosen event as a full disk or a
// broken source would, half-way through the work.
class RecordingProgress : public UpgradeProgress {
public:
    void Show() override { record(QStringLiteral("Show")); }
    void SetRange(int maximum) override
    {
        range = maximum;
        record(QStringLiteral("Range %1").arg(maximum));
    }
    void SetStatus(const QString &text) override
    {
        statuses << text;
        record(QStringLiteral("Status ") + text);
    }
    void SetValue(int value) override
    {
        EXPECT_GE(value, lastValue) << "the bar never goes back";
        EXPECT_LE(value, range) << "the bar never passes its end";
        lastValue = value;
        record(QStringLiteral("Value %1").arg(value));
    }
    void Unload() override { record(QStringLiteral("Unload")); }

    QStringList events;
    QStringList statuses;
    int range = -1;
    int lastValue = 0;
    // Called with each event as it comes; a throw there stops the upgrade at that point.
    std::function<void(const QString &event)> failAt;

private:
    void record(const QString &event)
    {
        events << event;
        if (failAt)
            failAt(event);
    }
};

QuillonError diskFull()
{
    return QuillonError(61, QStringLiteral("Disk full"));
}

// A raw connection for files that are no Quillon database of today: older schemas, broken rows.
class RawFile {
public:
    explicit RawFile(const QString &path)
    {
        m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("raw-upgrade"));
        m_db.setDatabaseName(path);
        EXPECT_TRUE(m_db.open());
    }
    ~RawFile()
    {
        m_db.close();
        m_db = QSqlDatabase();
        QSqlDatabase::removeDatabase(QStringLiteral("raw-upgrade"));
    }
    void run(const QString &sql, const QVariantList &values = {})
    {
        QSqlQuery q(m_db);
        ASSERT_TRUE(q.prepare(sql)) << sql.toStdString();
        for (int i = 0; i < values.size(); ++i)
            q.bindValue(i, values.at(i));
        ASSERT_TRUE(q.exec()) << sql.toStdString();
    }

private:
    QSqlDatabase m_db;
};

// An older schema: no ScoreIndex, the rounds of a day told apart by `Round` in its place, Used
// spelled out, no statistics columns, no version table.
void layOldDatabase(const QString &path)
{
    RawFile f(path);
    f.run(QStringLiteral("CREATE TABLE HandicapLog (LastName TEXT, FirstName TEXT, Gender TEXT, Handicap REAL)"));
    f.run(QStringLiteral(
        "CREATE TABLE ScoreLog (LastName TEXT, FirstName TEXT, CourseName TEXT, Tees TEXT, Date TEXT, Round INTEGER, "
        "Holes TEXT, Score NUMERIC, AdjustedScore INTEGER, Rating REAL, Slope INTEGER, Type TEXT, Differential REAL, "
        "Used TEXT, Details INTEGER)"));
    f.run(QStringLiteral("CREATE TABLE ScoreDetails (LastName TEXT, FirstName TEXT, CourseName TEXT, Tees TEXT, "
                         "Date TEXT, Round INTEGER, Hole INTEGER, Score NUMERIC, Putts NUMERIC, PAR INTEGER)"));
    f.run(QStringLiteral("CREATE TABLE CourseLog (CourseName TEXT, Tees TEXT, OverallRating NUMERIC, FrontRating "
                         "NUMERIC, BackRating NUMERIC, OverallSlope NUMERIC, FrontSlope NUMERIC, BackSlope NUMERIC, "
                         "YardsIn NUMERIC, YardsOut NUMERIC, TotalYards NUMERIC, ParIn NUMERIC, ParOut NUMERIC, "
                         "TotalPar NUMERIC)"));
    f.run(QStringLiteral("CREATE TABLE CourseDetails (CourseName TEXT, Tees TEXT, Hole NUMERIC, PAR NUMERIC, "
                         "Handicap NUMERIC, Yards NUMERIC)"));
    f.run(QStringLiteral("INSERT INTO HandicapLog VALUES ('O''Brien', 'Pat', NULL, 12.4)"));
    f.run(QStringLiteral("INSERT INTO CourseLog VALUES ('St. Andrew''s', 'White', 71.5, 35.7, 35.8, 125, 124, 126, "
                         "3200, 3150, 6350, 36, 36, 72)"));
    for (int hole = 1; hole <= 18; ++hole)
        f.run(QStringLiteral("INSERT INTO CourseDetails VALUES ('St. Andrew''s', 'White', ?, 4, ?, 350)"),
              {hole, hole});
    // Two rounds on one day, told apart by Round; a round of another day; one without holes.
    // A true Details is -1, as the old engine stored it.
    const QString round = QStringLiteral(
        "INSERT INTO ScoreLog VALUES ('O''Brien', 'Pat', 'St. Andrew''s', 'White', ?, ?, ?, ?, ?, 71.5, 125, 'A', "
        "?, ?, ?)");
    f.run(round, {"2001-05-01", 1, "18-holes", 90, 90, 16.6, "Yes", -1});
    f.run(round, {"2001-05-01", 2, "9-holes (front)", 45, 45, 8.1, "No", -1});
    f.run(round, {"2001-05-08", 1, "18-holes", 88, 88, 14.8, "Excluded", -1});
    f.run(round, {"2001-05-15", 1, "18-holes", 93, 92, 18.7, "Combined", 0});
    const QString hole = QStringLiteral(
        "INSERT INTO ScoreDetails VALUES ('O''Brien', 'Pat', 'St. Andrew''s', 'White', ?, ?, ?, ?, 2, 4)");
    for (int h = 1; h <= 18; ++h)
        f.run(hole, {"2001-05-01", 1, h, 5});
    for (int h = 1; h <= 9; ++h)
        f.run(hole, {"2001-05-01", 2, h, 6});
    for (int h = 1; h <= 18; ++h)
        f.run(hole, {"2001-05-08", 1, h, 4});
}

class Upgrade : public ::testing::Test {
protected:
    QString file(const QString &name) const { return app.file(name); }
    QString working() const { return file(DatabaseFile::Working); }
    QString update() const { return file(DatabaseFile::Update); }
    QString safety() const { return file(DatabaseFile::SafetyCopy); }

    // The working database of today's schema with a golfer, a course and a season of rounds.
    void layWorking(int rounds = 12)
    {
        app.layDatabase();
        ConnectionPtr c = OpenDatabase(working());
        ASSERT_NE(c, nullptr);
        addGolfer(*c, QStringLiteral("O'Brien"), QStringLiteral("Pat"), QStringLiteral("M"), 12.4);
        addGolfer(*c, QStringLiteral("Palmer"), QStringLiteral("Arnold"), QString());
        addCourse(*c, CourseSpec{QStringLiteral("St. Andrew's"), QStringLiteral("White")});
        addCourse(*c, CourseSpec{QStringLiteral("Pebble Creek"), QStringLiteral("Blue")});
        RoundSpec r;
        r.last = QStringLiteral("O'Brien");
        r.first = QStringLiteral("Pat");
        r.course = QStringLiteral("St. Andrew's");
        addSeason(*c, r, rounds);
        // A round without holes, and one excluded by the user.
        RoundSpec plain;
        plain.used = QStringLiteral("E");
        plain.date = QDate(2026, 3, 1);
        addRound(*c, plain);
    }

    // The new empty database of the next release: today's schema with columns added at the end.
    void layNextRelease()
    {
        app.layDatabase(DatabaseFile::Update);
        RawFile f(update());
        f.run(QStringLiteral("ALTER TABLE ScoreLog ADD COLUMN Weather TEXT"));
        f.run(QStringLiteral("ALTER TABLE ScoreDetails ADD COLUMN Wind INTEGER"));
        f.run(QStringLiteral("UPDATE DBVersion SET DatabaseVersion = 2"));
    }

    // The rows of the tables an upgrade carries over, each cut to the columns the old file had.
    QStringList carriedRows(Connection &c, int scoreLogColumns = -1, int scoreDetailsColumns = -1)
    {
        return TableRows(c, QStringLiteral("HandicapLog")) + TableRows(c, QStringLiteral("CourseLog")) +
               TableRows(c, QStringLiteral("CourseDetails")) +
               TableRows(c, QStringLiteral("ScoreLog"), scoreLogColumns) +
               TableRows(c, QStringLiteral("ScoreDetails"), scoreDetailsColumns);
    }
    QStringList carriedRows(const QString &path, int scoreLogColumns = -1, int scoreDetailsColumns = -1)
    {
        ConnectionPtr c = OpenDatabaseFile(path, OpenMode::ReadOnly);
        return carriedRows(*c, scoreLogColumns, scoreDetailsColumns);
    }

    // Upgrade the working database into the shipped empty one, and open the result.
    ConnectionPtr upgradeToShipped()
    {
        app.layDatabase(DatabaseFile::Update);
        RecordingProgress progress;
        CheckForUpdate(app.dir(), progress);
        return OpenDatabase(working());
    }

    QStringList filesLeft() const
    {
        return QDir(app.dir()).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    TestApp app{false};
};

constexpr int kTodaysScoreLogColumns = 21;
constexpr int kTodaysScoreDetailsColumns = 12;

} // namespace

TEST_F(Upgrade, UpdateFileAloneIsTakenOverWithoutProgressOrSafetyCopy)
{
    app.layDatabase(DatabaseFile::Update);
    const QByteArray shipped = FileBytes(update());
    RecordingProgress progress;
    CheckForUpdate(app.dir(), progress);
    EXPECT_EQ(FileBytes(working()), shipped);
    EXPECT_FALSE(QFile::exists(update()));
    EXPECT_TRUE(progress.events.isEmpty()) << progress.events.join(QLatin1Char(',')).toStdString();
    EXPECT_EQ(filesLeft(), QStringList{"Quillon.qdl"}) << "no safety copy of a database that did not exist";
}

TEST_F(Upgrade, NoUpdateFileChangesNothing)
{
    layWorking();
    const QByteArray before = FileBytes(working());
    RecordingProgress progress;
    CheckForUpdate(app.dir(), progress);
    EXPECT_EQ(FileBytes(working()), before);
    EXPECT_TRUE(progress.events.isEmpty());
    EXPECT_EQ(filesLeft(), QStringList{"Quillon.qdl"});
}

TEST_F(Upgrade, UsersRowsAreCarriedColumnByColumnIntoTheNewSchema)
{
    layWorking();
    const QStringList before = carriedRows(working());
    layNextRelease();
    RecordingProgress progress;
    CheckForUpdate(app.dir(), progress);

    ConnectionPtr c = OpenDatabase(working());
    ASSERT_NE(c, nullptr);
    // Every row, with every old column, in its place; the new columns stand empty.
    EXPECT_EQ(carriedRows(*c, kTodaysScoreLogColumns, kTodaysScoreDetailsColumns), before);
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT COUNT(*) FROM ScoreLog WHERE Weather IS NOT NULL")),
              QStringList{"0"});
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT COUNT(*) FROM ScoreDetails WHERE Wind IS NOT NULL")),
              QStringList{"0"});
    // What the new file brings is its own: its version, its reference rows; the scoring record is
    // rebuilt when a golfer is opened.
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT DatabaseVersion FROM DBVersion")), QStringList{"2"});
    EXPECT_GT(Scalar(*c, QStringLiteral("SELECT COUNT(*) FROM UnratedTees")).toInt(), 0);
    EXPECT_EQ(Scalar(*c, QStringLiteral("SELECT COUNT(*) FROM ScoringRecord")).toInt(), 0);
    // Numbers go on after the carried ones and are never given twice.
    addRound(*c, RoundSpec{});
    EXPECT_EQ(Scalar(*c, QStringLiteral("SELECT MAX(ScoreIndex) FROM ScoreLog")).toInt(), 14);
}

TEST_F(Upgrade, DatabaseWithoutRowsIsUpgradedToo)
{
    app.layDatabase();
    layNextRelease();
    RecordingProgress progress;
    CheckForUpdate(app.dir(), progress);
    EXPECT_EQ(progress.range, 0);
    EXPECT_EQ(progress.statuses.last(), QStringLiteral("Restoring ..."));
    ConnectionPtr c = OpenDatabase(working());
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT DatabaseVersion FROM DBVersion")), QStringList{"2"});
    EXPECT_FALSE(QFile::exists(update()));
}

TEST_F(Upgrade, AfterASuccessfulRunNoUpdateFileIsLeftAndTheSafetyCopyHoldsTheOldData)
{
    layWorking();
    const QByteArray old = FileBytes(working());
    layNextRelease();
    RecordingProgress progress;
    CheckForUpdate(app.dir(), progress);
    EXPECT_FALSE(QFile::exists(update()));
    EXPECT_EQ(FileBytes(safety()), old);
    EXPECT_EQ(filesLeft(), (QStringList{"Quillon.qdl", "quillon.bak"})) << "no working copy is left";
}

TEST_F(Upgrade, ProgressCountsTheRowsAndSaysWhatItCopies)
{
    layWorking(12);
    app.layDatabase(DatabaseFile::Update);
    RecordingProgress progress;
    CheckForUpdate(app.dir(), progress);

    // 2 golfers, 2 tees with 18 holes each, 13 rounds of which 12 have 18 holes.
    const int stepped = 2 + 2 + 36 + 13;
    const int total = stepped + 12 * 18;
    EXPECT_EQ(progress.range, total);
    EXPECT_EQ(progress.events.first(), QStringLiteral("Show"));
    EXPECT_EQ(progress.events.at(1), QStringLiteral("Range %1").arg(total));
    EXPECT_EQ(progress.events.last(), QStringLiteral("Unload"));
    EXPECT_EQ(progress.statuses, (QStringList{"Copying handicap data", "Copying course data", "Copying score data",
                                              "Restoring ..."}));
    // The rows of the four tables step the bar; the holes travel with their rounds unstepped.
    EXPECT_EQ(progress.lastValue, stepped);
    const int handicapStatus = progress.events.indexOf(QStringLiteral("Status Copying handicap data"));
    EXPECT_EQ(progress.events.at(handicapStatus + 1), QStringLiteral("Value 2"));
}

TEST_F(Upgrade, LongUsedWordsAreCutToOneLetter)
{
    layOldDatabase(working());
    ConnectionPtr c = upgradeToShipped();
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT Used FROM ScoreLog ORDER BY ScoreIndex")),
              (QStringList{"Y", "N", "E", "C"}));
}

TEST_F(Upgrade, OldRoundColumnTiesEachRoundToItsOwnHoles)
{
    layOldDatabase(working());
    ConnectionPtr c = upgradeToShipped();
    ASSERT_NE(c, nullptr);

    // The rounds in their order, each numbered by the new file; the columns by position.
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT ScoreIndex, Date, Holes, Score, Differential, Details, "
                                              "Penalties IS NULL FROM ScoreLog ORDER BY rowid")),
              (QStringList{"1|2001-05-01|18-holes|90|16.6|-1|1", "2|2001-05-01|9-holes (front)|45|8.1|-1|1",
                           "3|2001-05-08|18-holes|88|14.8|-1|1", "4|2001-05-15|18-holes|93|18.7|0|1"}));
    // The two rounds of one day keep their own holes: Round 1's 18 fives, Round 2's 9 sixes.
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT ScoreIndex, COUNT(*), MIN(Score), MAX(Score), MIN(Hole), "
                                              "MAX(Hole) FROM ScoreDetails GROUP BY ScoreIndex ORDER BY ScoreIndex")),
              (QStringList{"1|18|5|5|1|18", "2|9|6|6|1|9", "3|18|4|4|1|18"}));
    // The hole rows follow their round, the old file's columns by position and the new ones empty.
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT ScoreIndex, Hole FROM ScoreDetails ORDER BY rowid LIMIT 2 "
                                              "OFFSET 17")),
              (QStringList{"1|18", "2|1"}));
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT DISTINCT LastName, Putts, PAR, Fairway IS NULL, "
                                              "GreenInRegulation IS NULL FROM ScoreDetails")),
              QStringList{"O'Brien|2|4|1|1"});
    // The golfer's row keeps the gender it never had and its handicap.
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT LastName, FirstName, Gender IS NULL, Handicap FROM "
                                              "HandicapLog")),
              QStringList{"O'Brien|Pat|1|12.4"});
    EXPECT_EQ(Scalar(*c, QStringLiteral("SELECT COUNT(*) FROM CourseDetails")).toInt(), 18);
}

TEST_F(Upgrade, RoundWithoutScoreIndexGetsItsHolesUnderTheNumberTheNewFileGaveIt)
{
    {
        layOldDatabase(working());
        RawFile f(working());
        // Only the round of the second day keeps holes now: number 3 in the new file, Round 1 in the old.
        f.run(QStringLiteral("DELETE FROM ScoreDetails WHERE Date = '2001-05-01'"));
        f.run(QStringLiteral("UPDATE ScoreLog SET Details = 0 WHERE Date = '2001-05-01'"));
    }
    ConnectionPtr c = upgradeToShipped();
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT ScoreIndex FROM ScoreLog WHERE Date = '2001-05-08'")),
              QStringList{"3"});
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT ScoreIndex, Date, COUNT(*) FROM ScoreDetails GROUP BY "
                                              "ScoreIndex")),
              QStringList{"3|2001-05-08|18"});
}

TEST_F(Upgrade, RoundNumberDecidesOverAnOldScoreIndexThatWasNeverFilledIn)
{
    // A schema between the two: ScoreIndex in its place, Round added at the end of both tables,
    // and hole rows whose ScoreIndex was left 0.
    app.layDatabase();
    {
        RawFile f(working());
        f.run(QStringLiteral("ALTER TABLE ScoreDetails ADD COLUMN Round INTEGER"));
        f.run(QStringLiteral("ALTER TABLE ScoreLog ADD COLUMN Round INTEGER"));
        const QString round = QStringLiteral(
            "INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, Holes, Score, Used, "
            "Details, Round) VALUES ('Palmer', 'Arnold', 'Augusta', 'Blue', '2010-04-01', ?, '9-holes (front)', ?, "
            "'N', 1, ?)");
        f.run(round, {7, 40, 1});
        f.run(round, {9, 44, 2});
        const QString hole = QStringLiteral(
            "INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, Hole, Score, Round) "
            "VALUES ('Palmer', 'Arnold', 'Augusta', 'Blue', '2010-04-01', 0, ?, ?, ?)");
        for (int h = 1; h <= 9; ++h) {
            f.run(hole, {h, 4, 1});
            f.run(hole, {h, 5, 2});
        }
    }
    ConnectionPtr c = upgradeToShipped();
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT ScoreIndex, Score FROM ScoreLog ORDER BY ScoreIndex")),
              (QStringList{"7|40", "9|44"}));
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT ScoreIndex, COUNT(*), SUM(Score) FROM ScoreDetails GROUP BY "
                                              "ScoreIndex ORDER BY ScoreIndex")),
              (QStringList{"7|9|36", "9|9|45"}));
}

TEST_F(Upgrade, HolesOfARoundWithoutDetailsStayBehind)
{
    layWorking(2);
    {
        ConnectionPtr c = OpenDatabase(working());
        Exec(*c, QStringLiteral("UPDATE ScoreLog SET Details = 0 WHERE ScoreIndex = 2"));
    }
    ConnectionPtr c = upgradeToShipped();
    ASSERT_NE(c, nullptr);
    EXPECT_EQ(columnValues(*c, QStringLiteral("SELECT DISTINCT ScoreIndex FROM ScoreDetails")), QStringList{"1"});
    EXPECT_EQ(Scalar(*c, QStringLiteral("SELECT COUNT(*) FROM ScoreLog")).toInt(), 3);
}

// A failure at every step of the work, then the next start.
class UpgradeFailure : public Upgrade, public ::testing::WithParamInterface<const char *> {};

TEST_P(UpgradeFailure, LeavesBothFilesAsTheyWereAndTheNextStartUpgradesCleanly)
{
    layWorking(1200);
    const QByteArray oldBytes = FileBytes(working());
    const QStringList oldRows = carriedRows(working());
    app.layDatabase(DatabaseFile::Update);
    const QByteArray updateBytes = FileBytes(update());

    const QString failAt = QLatin1String(GetParam());
    RecordingProgress failing;
    bool failed = false;
    failing.failAt = [&](const QString &event) {
        if (failed)
            return;
        // "half-way": once the first rounds have gone into the new file.
        if (failAt == QLatin1String("half-way") ? failing.statuses.contains(QStringLiteral("Copying score data")) &&
                                                      event.startsWith(QStringLiteral("Value")) &&
                                                      failing.lastValue > 40 + 500
                                                : event.startsWith(failAt)) {
            failed = true;
            throw diskFull();
        }
    };
    EXPECT_THROW(CheckForUpdate(app.dir(), failing), QuillonError);
    ASSERT_TRUE(failed);
    EXPECT_EQ(failing.events.last(), QStringLiteral("Unload")) << "the form goes also on failure";
    EXPECT_EQ(FileBytes(working()), oldBytes);
    EXPECT_EQ(FileBytes(update()), updateBytes);
    for (const QString &left : filesLeft())
        EXPECT_TRUE(left == QLatin1String("Quillon.qdl") || left == QLatin1String("Update.qdl") ||
                    left == QLatin1String("quillon.bak"))
            << left.toStdString() << " was left behind";

    RecordingProgress next;
    CheckForUpdate(app.dir(), next);
    EXPECT_EQ(next.statuses.last(), QStringLiteral("Restoring ..."));
    EXPECT_FALSE(QFile::exists(update()));
    // Nothing doubled, nothing lost: every row once, as it was.
    EXPECT_EQ(carriedRows(working()), oldRows);
    EXPECT_EQ(FileBytes(safety()), oldBytes);
}

INSTANTIATE_TEST_SUITE_P(EveryStep, UpgradeFailure,
                         ::testing::Values("Show", "Range", "Status Copying handicap data",
                                           "Status Copying course data", "half-way", "Status Restoring ..."));

TEST_F(Upgrade, WorkingCopyOfAKilledRunIsThrownAwayAndTheNextStartUpgradesCleanly)
{
    layWorking();
    const QStringList oldRows = carriedRows(working());
    app.layDatabase(DatabaseFile::Update);
    // What a run killed half-way leaves: a half-written new file and its journal.
    WriteBytes(file(QStringLiteral("Update.qdl.part")), FileBytes(update()).left(3000));
    WriteBytes(file(QStringLiteral("Update.qdl.part-journal")), QByteArray(512, 'x'));

    RecordingProgress progress;
    CheckForUpdate(app.dir(), progress);
    EXPECT_EQ(carriedRows(working()), oldRows);
    EXPECT_EQ(filesLeft(), (QStringList{"Quillon.qdl", "quillon.bak"}));
}

TEST_F(Upgrade, CorruptSourceRowStopsTheUpgradeAndChangesNoFile)
{
    layOldDatabase(working());
    {
        // Two golfers that are one to the new file, which tells names apart without case.
        RawFile f(working());
        f.run(QStringLiteral("INSERT INTO HandicapLog VALUES ('O''BRIEN', 'PAT', 'M', 9.9)"));
    }
    const QByteArray oldBytes = FileBytes(working());
    app.layDatabase(DatabaseFile::Update);
    const QByteArray updateBytes = FileBytes(update());
    RecordingProgress progress;
    try {
        CheckForUpdate(app.dir(), progress);
        ADD_FAILURE() << "the upgrade went through";
    } catch (const QuillonError &e) {
        EXPECT_EQ(e.number(), QuillonError::DuplicateKey);
    }
    EXPECT_EQ(progress.events.last(), QStringLiteral("Unload"));
    EXPECT_EQ(FileBytes(working()), oldBytes);
    EXPECT_EQ(FileBytes(update()), updateBytes);
    EXPECT_FALSE(QFile::exists(file(QStringLiteral("Update.qdl.part"))));
}

TEST_F(Upgrade, SourceThatIsNoDatabaseStopsTheUpgradeAndChangesNoFile)
{
    WriteBytes(working(), QByteArray("not a database\n").repeated(300));
    const QByteArray oldBytes = FileBytes(working());
    app.layDatabase(DatabaseFile::Update);
    const QByteArray updateBytes = FileBytes(update());
    RecordingProgress progress;
    EXPECT_THROW(CheckForUpdate(app.dir(), progress), QuillonError);
    EXPECT_EQ(FileBytes(working()), oldBytes);
    EXPECT_EQ(FileBytes(update()), updateBytes);
    EXPECT_EQ(filesLeft(), (QStringList{"Quillon.qdl", "Update.qdl"}));
}
