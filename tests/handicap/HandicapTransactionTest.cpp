#include "HandicapFixture.h"
#include "handicap/Handicap.h"

#include <QFile>

using namespace quillon;
using namespace quillon::test;

namespace {

// Everything a handicap run may change, as text.
struct Snapshot {
    QStringList record;
    QStringList log;
    QStringList golfer;
};

} // namespace

class HandicapTransaction : public HandicapFixture {
protected:
    Snapshot snapshot()
    {
        return {columnValues(db(), QStringLiteral("SELECT rowid, * FROM ScoringRecord ORDER BY rowid")),
                columnValues(db(), QStringLiteral("SELECT * FROM ScoreLog ORDER BY ScoreIndex")),
                columnValues(db(), QStringLiteral("SELECT * FROM HandicapLog"))};
    }
};

TEST_F(HandicapTransaction, DivisionByZeroLeavesThePreviousRecordMarksAndHandicap)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    for (int day = 1; day <= 6; ++day)
        addRoundOn(day, 12.0 + day);
    addRoundOn(7, 5.1, QStringLiteral("9-holes (front)"));
    addRoundOn(8, 5.2, QStringLiteral("9-holes (back)"));
    ComputeHandicap();
    // seven scores, two used: the pair 10.3 and 13.0; 11.65 x 0.96 = 11.184
    ASSERT_EQ(display.panel, QStringLiteral("Handicap: 11.1"));
    ASSERT_EQ(Scalar(db(), QStringLiteral("SELECT COUNT(*) FROM ScoreLog WHERE Used IN ('Y', 'C')")).toInt(),
              3);

    // Stored with more digits than a single keeps: no value the scan holds finds these rows again,
    // and with ten scores they are the three lowest.
    for (int day = 9; day <= 11; ++day)
        addRoundOn(day, 1.123456789 + day - 9);
    const Snapshot before = snapshot();
    try {
        ComputeHandicap();
        FAIL() << "the run did not fail";
    } catch (const QuillonError &e) {
        EXPECT_EQ(e.number(), 11);
    }
    const Snapshot after = snapshot();
    EXPECT_EQ(after.record, before.record);
    EXPECT_EQ(after.log, before.log);
    EXPECT_EQ(after.golfer, before.golfer);
    EXPECT_EQ(storedHandicap().toDouble(), 11.1);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 11.1"));
    EXPECT_TRUE(gender.asked.isEmpty());
}

TEST_F(HandicapTransaction, DivisionByZeroOnAFirstRunLeavesNoRecord)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    for (int day = 1; day <= 5; ++day)
        addRoundOn(day, 10.123456789 + day);
    const Snapshot before = snapshot();
    EXPECT_THROW(ComputeHandicap(), QuillonError);
    const Snapshot after = snapshot();
    EXPECT_TRUE(after.record.isEmpty());
    EXPECT_EQ(after.log, before.log);
    EXPECT_EQ(storedHandicap().toDouble(), -1000.0);
    EXPECT_TRUE(display.panel.isEmpty());
}

TEST_F(HandicapTransaction, ADatabaseFaultMidRunLeavesEverythingAsBefore)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    for (int day = 1; day <= 6; ++day)
        addRoundOn(day, 12.0 + day);
    ComputeHandicap();
    ASSERT_EQ(display.panel, QStringLiteral("Handicap: 12.4")); // 13.0 x 0.96 = 12.48
    // The user excludes the oldest round and adds a new one; the rebuilt record
    // is written row by row until the newest round's row fails.
    Exec(db(), QStringLiteral("UPDATE ScoreLog SET Used = 'E' WHERE ScoreIndex = 1"));
    const qint64 newest = addRoundOn(7, 8.0);
    Exec(db(), QStringLiteral("CREATE TRIGGER RecordFull BEFORE INSERT ON ScoringRecord "
                              "WHEN NEW.ScoreIndex = %1 BEGIN SELECT RAISE(ABORT, 'record full'); END")
                   .arg(newest));
    const Snapshot before = snapshot();
    try {
        ComputeHandicap();
        FAIL() << "the run did not fail";
    } catch (const QuillonError &e) {
        EXPECT_TRUE(e.description().contains(QStringLiteral("record full"))) << e.message().toStdString();
    }
    const Snapshot after = snapshot();
    EXPECT_EQ(after.record, before.record);
    EXPECT_EQ(after.log, before.log);
    EXPECT_EQ(after.golfer, before.golfer);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 12.4"));

    // Nothing is left open: the next run, without the fault, goes through.
    Exec(db(), QStringLiteral("DROP TRIGGER RecordFull"));
    ComputeHandicap();
    EXPECT_EQ(record().size(), 6);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 7.6")); // six scores, one used: 8.0 x 0.96 = 7.68
}

TEST_F(HandicapTransaction, AFaultWhileMarkingIsUndoneToo)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    for (int day = 1; day <= 5; ++day)
        addRoundOn(day, 12.0 + day);
    ComputeHandicap();
    addRoundOn(6, 9.0);
    Exec(db(), QStringLiteral("CREATE TRIGGER NoMarks BEFORE UPDATE OF Used ON ScoreLog "
                              "WHEN NEW.Used = 'Y' BEGIN SELECT RAISE(ABORT, 'no marks'); END"));
    const Snapshot before = snapshot();
    EXPECT_THROW(ComputeHandicap(), QuillonError);
    const Snapshot after = snapshot();
    EXPECT_EQ(after.record, before.record);
    EXPECT_EQ(after.log, before.log);
    EXPECT_EQ(after.golfer, before.golfer);
}

TEST_F(HandicapTransaction, ARunInsideACallersTransactionIsPartOfIt)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    for (int day = 1; day <= 5; ++day)
        addRoundOn(day, 12.0 + day);
    {
        Transaction caller(db());
        ComputeHandicap();
        EXPECT_EQ(storedHandicap().toDouble(), 12.4);
        // the caller gives up: the run goes with it
    }
    EXPECT_EQ(storedHandicap().toDouble(), -1000.0);
    EXPECT_TRUE(record().isEmpty());
    {
        Transaction caller(db());
        ComputeHandicap();
        caller.commit();
    }
    EXPECT_EQ(storedHandicap().toDouble(), 12.4);
    EXPECT_EQ(record().size(), 5);
}

TEST_F(HandicapTransaction, TheDatabaseStaysInRollbackJournalMode)
{
    addGolfer(db(), spec.last, spec.first, QStringLiteral("M"));
    for (int day = 1; day <= 5; ++day)
        addRoundOn(day, 12.0 + day);
    ComputeHandicap();
    EXPECT_EQ(Scalar(db(), QStringLiteral("PRAGMA journal_mode")).toString(), QStringLiteral("delete"));
    EXPECT_FALSE(QFile::exists(app().file(QStringLiteral("Quillon.qdl-wal"))));
    EXPECT_FALSE(QFile::exists(app().file(QStringLiteral("Quillon.qdl-journal"))));
}

namespace {

// Answers the gender question and notes whether, at that moment, another program could
// have written to the file: a modal question must never stand while a write lock is held.
class LockCheckingQuestion : public GenderQuestion {
public:
    explicit LockCheckingQuestion(QString path) : m_path(std::move(path)) {}
    QString GetGender(const QString &, const QString &) override
    {
        ++asked;
        ConnectionPtr other = OpenDatabase(m_path);
        writableWhileAsked = other && CheckWritable(*other) == Writability::Writable;
        return QStringLiteral("F");
    }
    int asked = 0;
    bool writableWhileAsked = false;

private:
    QString m_path;
};

} // namespace

TEST_F(HandicapTransaction, GenderIsAskedWithNoWriteUnderWayAndTheRunThenCompletes)
{
    addGolfer(db(), spec.last, spec.first, QString());
    for (int day = 1; day <= 5; ++day)
        addRoundOn(day, 40.0 + day);
    LockCheckingQuestion question(db().path());
    basLogGlobals().genderQuestion = &question;

    ComputeHandicap();

    EXPECT_EQ(question.asked, 1);
    EXPECT_TRUE(question.writableWhileAsked) << "the question stood while the run held the file";
    EXPECT_EQ(storedGender().toString(), QStringLiteral("F"));
    // 41.0 is the one used of five: 41.0 x 0.96 = 39.36, under a woman's cap.
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: 39.3"));
    EXPECT_EQ(Scalar(db(), QStringLiteral("SELECT COUNT(*) FROM ScoringRecord")).toInt(), 5);
}
