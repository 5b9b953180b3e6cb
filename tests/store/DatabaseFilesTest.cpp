// Copies of whole databases: backups taken while the program works, the checks a backup passes
// before it may stand in for the working database, and its putting in place.
#include "FileFixtures.h"
#include "Fixtures.h"
#include "TestApp.h"
#include "store/DatabaseError.h"
#include "store/DatabaseFiles.h"

#include <QDir>
#include <QFile>

using namespace quillon;
using namespace quillon::test;

namespace {

class DatabaseFiles : public ::testing::Test {
protected:
    QString file(const QString &name) const { return app.file(name); }
    QString working() const { return file(DatabaseFile::Working); }

    // A database of ours at `name` with a golfer and a few detailed rounds.
    void layFilled(const QString &name, const QString &golfer = QStringLiteral("O'Brien"))
    {
        app.layDatabase(name);
        ConnectionPtr c = OpenDatabase(file(name));
        ASSERT_NE(c, nullptr);
        addGolfer(*c, golfer, QStringLiteral("Pat"));
        addCourse(*c);
        RoundSpec r;
        r.last = golfer;
        r.first = QStringLiteral("Pat");
        addSeason(*c, r, 20);
    }

    QStringList filesLeft() const
    {
        return QDir(app.dir()).entryList(QDir::Files | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    int versionError(const QString &path)
    {
        try {
            ReadDatabaseVersion(path);
        } catch (const QuillonError &e) {
            description = e.description();
            return e.number();
        }
        return 0;
    }

    TestApp app{false};
    QString description;
};

} // namespace

TEST_F(DatabaseFiles, CopyWhileTheProgramHoldsAnUnfinishedChangeIsTheLastWholeState)
{
    layFilled(DatabaseFile::Working);
    app.openDatabase();
    const QStringList committed = DatabaseRows(app.db());
    {
        // The program is in the middle of a change when the copy is taken.
        Transaction change(app.db());
        addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
        Exec(app.db(), QStringLiteral("DELETE FROM ScoreDetails WHERE ScoreIndex < 5"));
        ASSERT_TRUE(CopyDatabase(working(), file(QStringLiteral("Backup.qdl"))));
        change.commit();
    }
    EXPECT_EQ(DatabaseRows(file(QStringLiteral("Backup.qdl"))), committed);
    EXPECT_EQ(ReadDatabaseVersion(file(QStringLiteral("Backup.qdl"))), 1) << "the copy is sound";
    // The program's own change went on undisturbed.
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM HandicapLog")).toInt(), 2);
}

TEST_F(DatabaseFiles, CopyReplacesAnEarlierFileOnlyWhenItIsWhole)
{
    layFilled(DatabaseFile::Working);
    const QString backup = file(QStringLiteral("Backup.qdl"));
    WriteBytes(backup, QByteArray("last week's backup"));
    WriteBytes(file(QStringLiteral("Broken.qdl")), QByteArray("no database here\n").repeated(100));
    EXPECT_THROW(CopyDatabase(file(QStringLiteral("Broken.qdl")), backup), QuillonError);
    EXPECT_EQ(FileBytes(backup), QByteArray("last week's backup"));
    EXPECT_EQ(filesLeft(), (QStringList{"Backup.qdl", "Broken.qdl", "Quillon.qdl"})) << "no half-made copy is left";

    ASSERT_TRUE(CopyDatabase(working(), backup));
    ConnectionPtr w = OpenDatabase(working());
    EXPECT_EQ(DatabaseRows(backup), DatabaseRows(*w));
}

TEST_F(DatabaseFiles, CopyIntoAFolderThatIsNotThereFails)
{
    layFilled(DatabaseFile::Working);
    EXPECT_FALSE(CopyDatabase(working(), file(QStringLiteral("no such folder/Backup.qdl"))));
    EXPECT_EQ(filesLeft(), QStringList{"Quillon.qdl"});
}

TEST_F(DatabaseFiles, SoundDatabaseOfOursGivesItsVersionAndIsNotChanged)
{
    layFilled(QStringLiteral("Backup.qdl"));
    const QByteArray before = FileBytes(file(QStringLiteral("Backup.qdl")));
    EXPECT_EQ(ReadDatabaseVersion(file(QStringLiteral("Backup.qdl"))), 1);
    EXPECT_EQ(FileBytes(file(QStringLiteral("Backup.qdl"))), before);
    EXPECT_EQ(filesLeft(), QStringList{"Backup.qdl"});
}

TEST_F(DatabaseFiles, FileOfOtherBytesIsNoDatabase)
{
    const QByteArray junk = QByteArray("a letter, not a database\n").repeated(100);
    WriteBytes(file(QStringLiteral("Letter.qdl")), junk);
    EXPECT_EQ(versionError(file(QStringLiteral("Letter.qdl"))), kEngineErrorBase + 26);
    EXPECT_EQ(description, QStringLiteral("file is not a database"));
    EXPECT_EQ(FileBytes(file(QStringLiteral("Letter.qdl"))), junk);
}

TEST_F(DatabaseFiles, ForeignDatabaseLacksOurTables)
{
    LayForeignDatabase(file(QStringLiteral("Photos.qdl")));
    EXPECT_EQ(versionError(file(QStringLiteral("Photos.qdl"))), kEngineErrorBase + engine::Error);
    EXPECT_EQ(description, QStringLiteral("no such table: HandicapLog"));
}

TEST_F(DatabaseFiles, DamagedDatabaseFailsTheIntegrityCheck)
{
    layFilled(QStringLiteral("Backup.qdl"));
    const QString path = file(QStringLiteral("Backup.qdl"));
    // Cut off the last pages, where the rounds' holes stand.
    WriteBytes(path, FileBytes(path).left(FileBytes(path).size() * 2 / 3));
    EXPECT_EQ(versionError(path), kEngineErrorBase + engine::Corrupt);
    EXPECT_TRUE(description.startsWith(QStringLiteral("database disk image is malformed"))) << description.toStdString();
}

TEST_F(DatabaseFiles, DatabaseWithoutItsVersionRowIsRefused)
{
    app.layDatabase(QStringLiteral("Backup.qdl"));
    {
        ConnectionPtr c = OpenDatabase(file(QStringLiteral("Backup.qdl")));
        Exec(*c, QStringLiteral("DELETE FROM DBVersion"));
    }
    EXPECT_EQ(versionError(file(QStringLiteral("Backup.qdl"))), 3021);
}

TEST_F(DatabaseFiles, MissingFileIsNotFoundAndNotMade)
{
    EXPECT_EQ(versionError(file(QStringLiteral("Gone.qdl"))), 53);
    EXPECT_FALSE(QFile::exists(file(QStringLiteral("Gone.qdl"))));
}

TEST_F(DatabaseFiles, RestoreKeepsTheWorkingFileAsSafetyCopyAndPutsTheBackupInPlace)
{
    layFilled(QStringLiteral("Backup.qdl"), QStringLiteral("Backup"));
    layFilled(DatabaseFile::Working, QStringLiteral("Working"));
    const QByteArray working = FileBytes(this->working());
    ASSERT_TRUE(RestoreDatabaseFile(file(QStringLiteral("Backup.qdl")), this->working(), file(DatabaseFile::SafetyCopy)));
    EXPECT_EQ(DatabaseRows(this->working()), DatabaseRows(file(QStringLiteral("Backup.qdl"))));
    EXPECT_EQ(FileBytes(file(DatabaseFile::SafetyCopy)), working);
    EXPECT_EQ(filesLeft(), (QStringList{"Backup.qdl", "Quillon.qdl", "quillon.bak"}));
}

TEST_F(DatabaseFiles, RestoreWithoutAWorkingFileKeepsNoSafetyCopy)
{
    layFilled(QStringLiteral("Backup.qdl"));
    ASSERT_TRUE(RestoreDatabaseFile(file(QStringLiteral("Backup.qdl")), working(), file(DatabaseFile::SafetyCopy)));
    EXPECT_EQ(DatabaseRows(working()), DatabaseRows(file(QStringLiteral("Backup.qdl"))));
    EXPECT_EQ(filesLeft(), (QStringList{"Backup.qdl", "Quillon.qdl"}));
}

TEST_F(DatabaseFiles, JournalLeftByTheOldFileIsNotPlayedIntoTheRestoredOne)
{
    layFilled(QStringLiteral("Backup.qdl"));
    layFilled(DatabaseFile::Working, QStringLiteral("Working"));
    WriteBytes(working() + QStringLiteral("-journal"), QByteArray(4096, '\x5a'));
    ASSERT_TRUE(RestoreDatabaseFile(file(QStringLiteral("Backup.qdl")), working(), file(DatabaseFile::SafetyCopy)));
    EXPECT_FALSE(QFile::exists(working() + QStringLiteral("-journal")));
    EXPECT_EQ(ReadDatabaseVersion(working()), 1);
    EXPECT_EQ(DatabaseRows(working()), DatabaseRows(file(QStringLiteral("Backup.qdl"))));
}

TEST_F(DatabaseFiles, RestoreThatCannotKeepTheSafetyCopyChangesNothing)
{
    layFilled(QStringLiteral("Backup.qdl"), QStringLiteral("Backup"));
    layFilled(DatabaseFile::Working, QStringLiteral("Working"));
    const QByteArray working = FileBytes(this->working());
    // Something that is no file stands where the safety copy goes.
    ASSERT_TRUE(QDir(app.dir()).mkpath(QStringLiteral("quillon.bak/photos")));
    EXPECT_THROW(RestoreDatabaseFile(file(QStringLiteral("Backup.qdl")), this->working(), file(DatabaseFile::SafetyCopy)),
                 QuillonError);
    EXPECT_EQ(FileBytes(this->working()), working);
    EXPECT_EQ(filesLeft(), (QStringList{"Backup.qdl", "Quillon.qdl"}));
}

TEST_F(DatabaseFiles, RestoreFromABackupThatCannotBeReadChangesNothing)
{
    layFilled(DatabaseFile::Working);
    const QByteArray working = FileBytes(this->working());
    WriteBytes(file(QStringLiteral("Letter.qdl")), QByteArray("a letter\n").repeated(500));
    EXPECT_THROW(RestoreDatabaseFile(file(QStringLiteral("Letter.qdl")), this->working(), file(DatabaseFile::SafetyCopy)),
                 QuillonError);
    EXPECT_EQ(FileBytes(this->working()), working);
    EXPECT_EQ(filesLeft(), (QStringList{"Letter.qdl", "Quillon.qdl"}));
}
