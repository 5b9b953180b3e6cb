// Tools, Database, Backup and Restore, through the menus of the frame.
#include "FileFixtures.h"
#include "FrameFixture.h"
#include "golfer/frmGender.h"
#include "golfer/frmNewGolfer.h"
#include "shell/SingleInstance.h"
#include "shell/Startup.h"
#include "store/DatabaseFiles.h"
#include "ui/FormInstance.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

using namespace quillon;
using namespace quillon::test;

namespace {

const QString kBackupTitle = QStringLiteral("Database Backup");
const QString kRestoreTitle = QStringLiteral("Database Restore");
const QString kQuestion =
    QStringLiteral("This will load the backup database and restart Quillon for Golf.  Okay to proceed?");
const QString kFilter = QStringLiteral("Quillon Data (*.qdl)|*.qdl");

// The golfer dialog that every restore ends in, answered with Palmer, Arnold; `whenAsked` runs
// while it stands, with the restored database in place and open.
void answerGolferDialog(ModalScript &script, std::function<void()> whenAsked = {})
{
    script.expect(QStringLiteral("frmNewGolfer"), [whenAsked](QWidget *dialog) {
        EXPECT_EQ(findControl<QPushButton>(dialog, QStringLiteral("cmdCancel"))->text(), QStringLiteral("E&xit"));
        if (whenAsked)
            whenAsked();
        auto *box = findControl<QLineEdit>(dialog, QStringLiteral("txtGolfer"));
        box->setFocus();
        QTest::keyClicks(box, QStringLiteral("Palmer, Arnold"));
        findControl<QPushButton>(dialog, QStringLiteral("cmdOK"))->click();
    });
}

class DatabaseCommands : public FrameFixture {
protected:
    void SetUp() override
    {
        FrameFixture::SetUp();
        addGolfer(app.db(), QStringLiteral("Palmer"), QStringLiteral("Arnold"));
        addCourse(app.db());
        addSeason(app.db(), RoundSpec{}, 20);
        startWithPalmer();
    }

    QString working() const { return app.file(DatabaseFile::Working); }

    // A backup of the working database as it stands now, at `name`.
    QString backupNow(const QString &name = QStringLiteral("Backup.qdl"))
    {
        const QString path = app.file(name);
        EXPECT_TRUE(CopyDatabase(working(), path));
        return path;
    }

    void restoreFrom(const QString &path)
    {
        app.platform().answerOpenFile(path);
        item(QStringLiteral("mnuDatabaseRestore"))->trigger();
    }

    // A restore of `path` refused with one message, the working file as it was, the program going on.
    void expectRefused(const QString &path, const QString &text, MsgIcon icon, const QString &title)
    {
        const QByteArray before = FileBytes(working());
        restoreFrom(path);
        const auto shown = app.platform().takeMessages();
        ASSERT_EQ(shown.size(), 1);
        expectMessage(shown[0], text, icon, title);
        EXPECT_EQ(FileBytes(working()), before);
        EXPECT_FALSE(QFile::exists(app.file(DatabaseFile::SafetyCopy)));
        expectTheProgramGoesOn();
    }

    // The program went on as it was: the same golfer, the score log in front, the database open.
    void expectTheProgramGoesOn()
    {
        LogGlobals &g = basLogGlobals();
        ASSERT_NE(g.gConnection, nullptr) << "the program was left without its database";
        EXPECT_EQ(Scalar(*g.gConnection, QStringLiteral("SELECT COUNT(*) FROM ScoreLog")).toInt(), 20);
        EXPECT_EQ(g.gLastName, QStringLiteral("Palmer"));
        EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
        EXPECT_EQ(panelText(QStringLiteral("GolferName")), QStringLiteral("Golfer: Arnold Palmer"));
        // A change can still be saved.
        addGolfer(*g.gConnection, QStringLiteral("O'Brien"), QStringLiteral("Pat"));
    }
};

} // namespace

TEST_F(DatabaseCommands, BackupWritesACompleteCopyWhileTheProgramRuns)
{
    const QStringList rows = DatabaseRows(app.db());
    app.platform().answerSaveFile(app.file(QStringLiteral("Backup.qdl")));
    ASSERT_TRUE(enabled(QStringLiteral("mnuDatabaseBackup")));
    item(QStringLiteral("mnuDatabaseBackup"))->trigger();
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], QStringLiteral("Database backup complete!"), MsgIcon::Information, kBackupTitle);
    EXPECT_FALSE(shown[0].pointerBusy);
    EXPECT_EQ(app.platform().fileFilters(), QStringList{kFilter});
    EXPECT_EQ(app.platform().saveDefaultNames(), QStringList{"Backup.qdl"});
    EXPECT_EQ(DatabaseRows(app.file(QStringLiteral("Backup.qdl"))), rows);
    // The program works on, on its own database.
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"));
    EXPECT_EQ(DatabaseRows(app.file(QStringLiteral("Backup.qdl"))), rows);
}

TEST_F(DatabaseCommands, BackupReplacesAnEarlierBackup)
{
    const QString path = app.file(QStringLiteral("Backup.qdl"));
    WriteBytes(path, QByteArray("last year's backup"));
    app.platform().answerSaveFile(path);
    item(QStringLiteral("mnuDatabaseBackup"))->trigger();
    expectMessages(app.platform(), {QStringLiteral("Database backup complete!")});
    EXPECT_EQ(DatabaseRows(path), DatabaseRows(app.db()));
}

TEST_F(DatabaseCommands, BackupWithoutAFileNameIsRefused)
{
    item(QStringLiteral("mnuDatabaseBackup"))->trigger();
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], QStringLiteral("Please specify a file name."), MsgIcon::Exclamation, kBackupTitle);
}

TEST_F(DatabaseCommands, BackupOntoTheWorkingFileInAnySpellingIsRefused)
{
    const QByteArray before = FileBytes(working());
    for (const QString &name :
         {working(), app.file(QStringLiteral("QUILLON.QDL")), app.file(QStringLiteral("quillon.qdl")),
          app.dir() + QStringLiteral("/./Quillon.qdl")}) {
        app.platform().answerSaveFile(name);
        item(QStringLiteral("mnuDatabaseBackup"))->trigger();
        const auto shown = app.platform().takeMessages();
        ASSERT_EQ(shown.size(), 1) << name.toStdString();
        expectMessage(shown[0],
                      QStringLiteral("Quillon.qdl is currently in use.  Please specify a different name for the "
                                     "backup database."),
                      MsgIcon::Exclamation, kBackupTitle);
    }
    EXPECT_EQ(FileBytes(working()), before);
    EXPECT_FALSE(QFile::exists(app.file(QStringLiteral("quillon.qdl"))));
    EXPECT_FALSE(QFile::exists(app.file(QStringLiteral("QUILLON.QDL"))));
}

TEST_F(DatabaseCommands, BackupIntoAFolderThatIsNotThereFails)
{
    app.platform().answerSaveFile(app.file(QStringLiteral("gone/Backup.qdl")));
    item(QStringLiteral("mnuDatabaseBackup"))->trigger();
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], QStringLiteral("Database backup failed!"), MsgIcon::Information, kBackupTitle);
}

TEST_F(DatabaseCommands, BackupOfADamagedDatabaseFailsWithTheEnginesWords)
{
    // The file on disk is damaged behind the program's back, past its catalogue.
    QByteArray bytes = FileBytes(working());
    for (int i = 3 * 4096; i < bytes.size(); ++i)
        bytes[i] = char(i * 13);
    WriteBytes(working(), bytes);
    app.platform().answerSaveFile(app.file(QStringLiteral("Backup.qdl")));
    item(QStringLiteral("mnuDatabaseBackup"))->trigger();
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_TRUE(shown[0].text.startsWith(QStringLiteral("Database backup failed!  Error: "))) << shown[0].text.toStdString();
    EXPECT_TRUE(shown[0].text.contains(QStringLiteral("malformed"))) << shown[0].text.toStdString();
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, kBackupTitle);
    EXPECT_FALSE(QFile::exists(app.file(QStringLiteral("Backup.qdl"))));
}

TEST_F(DatabaseCommands, RoundTripOfTwoHundredDetailedRoundsGivesBackEveryRowOfEveryTable)
{
    addSeason(app.db(), RoundSpec{}, 180);
    // The golfer is opened again so that the scoring record and handicap stand for all 200 rounds.
    chooseGolfer(QStringLiteral("Palmer, Arnold"));
    ASSERT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreLog")).toInt(), 200);
    ASSERT_EQ(Scalar(app.db(), QStringLiteral("SELECT COUNT(*) FROM ScoreDetails")).toInt(), 200 * 18);
    const QStringList before = DatabaseRows(app.db());

    // Backed up while the program has the database open, with the score log in front.
    const QString backup = app.file(QStringLiteral("Palmer's season.qdl"));
    app.platform().answerSaveFile(backup);
    item(QStringLiteral("mnuDatabaseBackup"))->trigger();
    expectMessages(app.platform(), {QStringLiteral("Database backup complete!")});

    // The working database changes afterwards.
    Exec(app.db(), QStringLiteral("DELETE FROM ScoreDetails WHERE ScoreIndex > 150"));
    Exec(app.db(), QStringLiteral("DELETE FROM ScoreLog WHERE ScoreIndex > 150"));
    Exec(app.db(), QStringLiteral("UPDATE CourseLog SET OverallRating = 70.1"));
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Pat"));
    const QStringList changed = DatabaseRows(app.db());
    ASSERT_NE(changed, before);

    QStringList restored;
    ModalScript script;
    answerGolferDialog(script, [&] { restored = DatabaseRows(*basLogGlobals().gConnection); });
    app.platform().answer(MsgAnswer::Yes);
    restoreFrom(backup);

    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 2);
    expectMessage(shown[0], kQuestion, MsgIcon::Question, kRestoreTitle, MsgButtons::YesNo);
    expectMessage(shown[1], QStringLiteral("Database restore succeeded!"), MsgIcon::Information, kRestoreTitle);
    EXPECT_EQ(app.platform().fileFilters(), (QStringList{kFilter, kFilter}));
    EXPECT_EQ(restored, before);
    // The working file as it stood is kept.
    EXPECT_EQ(DatabaseRows(app.file(DatabaseFile::SafetyCopy)), changed);
    // The start ran again: a golfer chosen anew, the score log in front, every row as backed up.
    EXPECT_EQ(basLogGlobals().gLastName, QStringLiteral("Palmer"));
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_EQ(DatabaseRows(app.db()), before);
    EXPECT_TRUE(enabled(QStringLiteral("mnuDatabaseBackup")));
}

TEST_F(DatabaseCommands, RestoreWithoutAFileNameIsRefused)
{
    item(QStringLiteral("mnuDatabaseRestore"))->trigger();
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], QStringLiteral("Please specify a file name."), MsgIcon::None, kRestoreTitle);
    expectTheProgramGoesOn();
}

TEST_F(DatabaseCommands, RestoreOfTheWorkingFileUnderItsExactPathIsRefused)
{
    expectRefused(working(),
                  QStringLiteral("Invalid database! The database %1 is currently in use by Quillon.").arg(working()),
                  MsgIcon::Exclamation, kRestoreTitle);
}

TEST_F(DatabaseCommands, RestoreOfTheWorkingFileNameInAnotherCaseIsNotRefusedByItsPath)
{
    const QString other = backupNow(QStringLiteral("QUILLON.QDL"));
    app.platform().answer(MsgAnswer::No);
    restoreFrom(other);
    // Checked and asked about like any backup: the next thing is the question.
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], kQuestion, MsgIcon::Question, kRestoreTitle, MsgButtons::YesNo);
    expectTheProgramGoesOn();
}

TEST_F(DatabaseCommands, RestoreOfAnotherVersionIsRefusedAndTheProgramGoesOn)
{
    const QString backup = backupNow();
    {
        ConnectionPtr c = OpenDatabase(backup);
        Exec(*c, QStringLiteral("UPDATE DBVersion SET DatabaseVersion = 2"));
    }
    expectRefused(backup,
                  QStringLiteral("Invalid Database!  The database you have selected to restore is not compatible "
                                 "with this version of Quillon for Golf."),
                  MsgIcon::Critical, QStringLiteral("Database Restore Error"));
}

TEST_F(DatabaseCommands, RestoreOfAForeignDatabaseIsRefusedAndTheProgramGoesOn)
{
    const QString foreign = app.file(QStringLiteral("Photos.qdl"));
    LayForeignDatabase(foreign);
    expectRefused(foreign, QStringLiteral("Error 3201: no such table: HandicapLog.  Unable to restore the database."),
                  MsgIcon::Critical, QStringLiteral("Quillon for Golf"));
}

TEST_F(DatabaseCommands, RestoreOfAFileOfOtherBytesIsRefusedAndTheProgramGoesOn)
{
    const QString letter = app.file(QStringLiteral("Letter.qdl"));
    WriteBytes(letter, QByteArray("Dear Pat, see you on the first tee.\n").repeated(100));
    expectRefused(letter, QStringLiteral("Error 3226: file is not a database.  Unable to restore the database."),
                  MsgIcon::Critical, QStringLiteral("Quillon for Golf"));
}

TEST_F(DatabaseCommands, RestoreOfADamagedBackupIsRefusedAndTheProgramGoesOn)
{
    const QString backup = backupNow();
    WriteBytes(backup, FileBytes(backup).left(FileBytes(backup).size() / 2));
    const QByteArray before = FileBytes(working());
    restoreFrom(backup);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_TRUE(shown[0].text.startsWith(QStringLiteral("Error 3211: database disk image is malformed")))
        << shown[0].text.toStdString();
    EXPECT_TRUE(shown[0].text.endsWith(QStringLiteral(".  Unable to restore the database.")));
    EXPECT_EQ(shown[0].icon, MsgIcon::Critical);
    EXPECT_EQ(shown[0].title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(FileBytes(working()), before);
    expectTheProgramGoesOn();
}

TEST_F(DatabaseCommands, RestoreAnsweredNoChangesNothingAndTheProgramGoesOn)
{
    const QString backup = backupNow();
    Exec(app.db(), QStringLiteral("DELETE FROM ScoreDetails WHERE ScoreIndex = 1"));
    const QByteArray before = FileBytes(working());
    app.platform().answer(MsgAnswer::No);
    restoreFrom(backup);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    expectMessage(shown[0], kQuestion, MsgIcon::Question, kRestoreTitle, MsgButtons::YesNo);
    EXPECT_EQ(shown[0].defaultButton, MsgAnswer::No);
    EXPECT_EQ(FileBytes(working()), before);
    EXPECT_FALSE(QFile::exists(app.file(DatabaseFile::SafetyCopy)));
    expectTheProgramGoesOn();
}

TEST_F(DatabaseCommands, FailedRestoreStillStartsAgainOnTheDatabaseThatStands)
{
    const QString backup = backupNow();
    Exec(app.db(), QStringLiteral("DELETE FROM ScoreDetails WHERE ScoreIndex = 1"));
    const QStringList standing = DatabaseRows(app.db());
    // Something that is no file stands where the working file is to be kept.
    ASSERT_TRUE(QDir(app.dir()).mkpath(QStringLiteral("quillon.bak/photos")));

    QStringList atRestart;
    ModalScript script;
    answerGolferDialog(script, [&] { atRestart = DatabaseRows(*basLogGlobals().gConnection); });
    app.platform().answer(MsgAnswer::Yes);
    restoreFrom(backup);
    const auto shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 2);
    expectMessage(shown[1], QStringLiteral("Database Restore failed!"), MsgIcon::Exclamation, kRestoreTitle);
    EXPECT_EQ(atRestart, standing);
    EXPECT_EQ(basLogGlobals().gLastName, QStringLiteral("Palmer"));
    EXPECT_EQ(frame->ActiveFormName(), QStringLiteral("frmScoreLog"));
    EXPECT_TRUE(enabled(QStringLiteral("mnuDatabaseBackup")));
}

// The frame locked down because its database is missing: a restore is the way back.
class RestoreFromTheLockedState : public ::testing::Test {
protected:
    void TearDown() override
    {
        MDIForm1::unload();
        FormInstance<frmNewGolfer>::destroy();
        FormInstance<frmGender>::destroy();
    }
    TestApp app{false};
};

TEST_F(RestoreFromTheLockedState, BackupTakesThePlaceOfTheMissingDatabaseAndTheProgramStarts)
{
    // A backup made in better days, kept in a folder of its own.
    ASSERT_TRUE(QDir(app.dir()).mkdir(QStringLiteral("backups")));
    const QString backup = app.file(QStringLiteral("backups/Backup.qdl"));
    app.layDatabase(QStringLiteral("backups/Backup.qdl"));
    QStringList backedUp;
    {
        ConnectionPtr c = OpenDatabase(backup);
        addGolfer(*c, QStringLiteral("Palmer"), QStringLiteral("Arnold"));
        addCourse(*c);
        addSeason(*c, RoundSpec{}, 10);
        backedUp = DatabaseRows(*c);
    }

    MDIForm1 &frame = MDIForm1::instance();
    {
        // The start holds the installation's lock for its own span here; the restart takes it again.
        SingleInstance instance(app.file(SingleInstance::defaultLockName()));
        ASSERT_EQ(MDIForm1_Load(frame, instance, QString()), StartupOutcome::Locked);
    }
    expectMessages(app.platform(),
                   {QStringLiteral("Unable to locate the Quillon database.  You must restore your backup "
                                   "database or re-install Quillon for Golf.")});
    ASSERT_TRUE(frame.menuItem(QStringLiteral("mnuToolsDatabase"))->isEnabled());
    ASSERT_TRUE(frame.menuItem(QStringLiteral("mnuDatabaseRestore"))->isEnabled());
    ASSERT_FALSE(frame.menuItem(QStringLiteral("mnuDatabaseBackup"))->isEnabled());

    QStringList restored;
    ModalScript script;
    answerGolferDialog(script, [&] { restored = DatabaseRows(*basLogGlobals().gConnection); });
    app.platform().answerOpenFile(backup);
    app.platform().answer(MsgAnswer::Yes);
    frame.menuItem(QStringLiteral("mnuDatabaseRestore"))->trigger();

    expectMessages(app.platform(), {kQuestion, QStringLiteral("Database restore succeeded!")});
    EXPECT_EQ(restored, backedUp);
    EXPECT_FALSE(QFile::exists(app.file(DatabaseFile::SafetyCopy))) << "there was no working file to keep";
    // The program runs on the restored database, its menus open again.
    ASSERT_NE(basLogGlobals().gConnection, nullptr);
    EXPECT_EQ(basLogGlobals().gLastName, QStringLiteral("Palmer"));
    EXPECT_EQ(frame.ActiveFormName(), QStringLiteral("frmScoreLog"));
    for (const char *item : {"mnuDatabaseBackup", "mnuFileNew", "mnuView", "mnuEdit", "mnuToolsDelete"})
        EXPECT_TRUE(frame.menuItem(QLatin1String(item))->isEnabled()) << item;
    EXPECT_TRUE(frame.toolButton(QStringLiteral("ScoreLog"))->isEnabled());
    EXPECT_EQ(FileBytes(backup).isEmpty(), false) << "the backup itself stays";
}
