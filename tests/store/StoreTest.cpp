#include "Fixtures.h"
#include "TestApp.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>

using namespace quillon;
using namespace quillon::test;

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(bytes);
}

} // namespace

TEST(Database, ApostropheNamesAreWrittenAndReadBack)
{
    TestApp app;
    addGolfer(app.db(), QStringLiteral("O'Brien"), QStringLiteral("Seán"), QStringLiteral("M"));
    const auto rs =
        OpenRecordset(app.db(),
                      QStringLiteral("SELECT LastName, FirstName, Gender, Handicap FROM HandicapLog "
                                     "WHERE LastName = ? AND FirstName = ?"),
                      {QStringLiteral("O'Brien"), QStringLiteral("Seán")});
    ASSERT_TRUE(rs.has_value());
    ASSERT_EQ(rs->rowCount(), 1);
    EXPECT_EQ(rs->value("LastName").toString(), QStringLiteral("O'Brien"));
    EXPECT_EQ(rs->value("FirstName").toString(), QStringLiteral("Seán"));
    EXPECT_EQ(rs->value("Handicap").toDouble(), -1000.0);

    // The next statements on the same golfer work too.
    RoundSpec r;
    r.last = QStringLiteral("O'Brien");
    r.first = QStringLiteral("Seán");
    r.course = QStringLiteral("St. Andrew's");
    addRound(app.db(), r);
    EXPECT_EQ(
        columnValues(app.db(),
                     QStringLiteral("SELECT CourseName FROM ScoreLog WHERE LastName = ? AND FirstName = ?"),
                     {r.last, r.first}),
        QStringList{"St. Andrew's"});
}

TEST(Database, EmptyTableIsAtBothEndsAtOnce)
{
    TestApp app;
    const auto rs = OpenRecordset(app.db(), QStringLiteral("SELECT * FROM HandicapLog"));
    ASSERT_TRUE(rs.has_value());
    EXPECT_TRUE(rs->eof());
    EXPECT_TRUE(rs->bof());
    EXPECT_EQ(rs->rowCount(), 0);
}

TEST(Database, RowWalkVisitsEveryRowInOrder)
{
    TestApp app;
    for (const char *name : {"Ames", "Baker", "Cole"})
        addGolfer(app.db(), QString::fromLatin1(name), QStringLiteral("X"));
    auto rs = OpenRecordset(app.db(), QStringLiteral("SELECT LastName FROM HandicapLog ORDER BY LastName"));
    ASSERT_TRUE(rs.has_value());
    QStringList seen;
    ASSERT_FALSE(rs->eof());
    rs->moveFirst();
    while (!rs->eof()) {
        seen << rs->value("LastName").toString();
        EXPECT_EQ(rs->absolutePosition(), seen.size());
        rs->moveNext();
    }
    EXPECT_EQ(seen, (QStringList{"Ames", "Baker", "Cole"}));
    rs->moveLast();
    EXPECT_EQ(rs->value(0).toString(), QStringLiteral("Cole"));
    rs->movePrevious();
    EXPECT_EQ(rs->value(0).toString(), QStringLiteral("Baker"));
}

TEST(Database, ReadingPastTheEndIsAFault)
{
    TestApp app;
    Recordset rs = Query(app.db(), QStringLiteral("SELECT * FROM HandicapLog"));
    EXPECT_THROW(rs.value("LastName"), QuillonError);
}

TEST(Database, MissingFileGivesNothingAndNoMessage)
{
    TestApp app(false);
    const QString path = app.file(QStringLiteral("Nowhere.qdl"));
    EXPECT_EQ(OpenDatabase(path), nullptr);
    EXPECT_FALSE(QFile::exists(path)) << "opening must not create the file";
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST(Database, FileOfOtherBytesIsNotOpened)
{
    TestApp app(false);
    const QString path = app.file(QStringLiteral("Quillon.qdl"));
    const QByteArray junk = QByteArray("This is not a database at all.\n").repeated(200);
    writeBytes(path, junk);
    EXPECT_EQ(OpenDatabase(path), nullptr);
    EXPECT_EQ(bytesOf(path), junk) << "a damaged file is left as it was";
}

TEST(Database, DamagedDatabaseIsNotOpened)
{
    TestApp app(false);
    app.layDatabase();
    const QString path = app.file(QStringLiteral("Quillon.qdl"));
    QByteArray bytes = bytesOf(path);
    // Overwrite the catalogue page with noise: the header survives, the tables do not.
    for (int i = 100; i < 4096 && i < bytes.size(); ++i)
        bytes[i] = char(i * 7);
    writeBytes(path, bytes);
    EXPECT_EQ(OpenDatabase(path), nullptr);
    EXPECT_EQ(bytesOf(path), bytes);
}

TEST(Database, ForeignSqliteFileIsNotOpened)
{
    TestApp app(false);
    const QString path = app.file(QStringLiteral("Quillon.qdl"));
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("foreign"));
        other.setDatabaseName(path);
        ASSERT_TRUE(other.open());
        QSqlQuery(other).exec(QStringLiteral("CREATE TABLE Recipes (Name TEXT)"));
        other.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("foreign"));
    const QByteArray before = bytesOf(path);
    EXPECT_EQ(OpenDatabase(path), nullptr);
    EXPECT_EQ(bytesOf(path), before);
}

TEST(Database, DirectoryInPlaceOfTheFileIsNotOpened)
{
    TestApp app(false);
    ASSERT_TRUE(QDir(app.dir()).mkdir(QStringLiteral("Quillon.qdl")));
    EXPECT_EQ(OpenDatabase(app.file(QStringLiteral("Quillon.qdl"))), nullptr);
}

TEST(Database, FailedStatementGivesNothingSilentlyWithItsError)
{
    TestApp app;
    EXPECT_FALSE(OpenRecordset(app.db(), QStringLiteral("SELECT * FROM NoSuchTable")).has_value());
    EXPECT_TRUE(LastDatabaseError().description().contains(QStringLiteral("NoSuchTable")));
    EXPECT_NE(LastDatabaseError().number(), 0);
    EXPECT_FALSE(Execute(app.db(), QStringLiteral("DELETE FROM NoSuchTable")));
    EXPECT_TRUE(app.platform().messages().isEmpty());
}

TEST(Database, ThrowingFormsCarryTheDriversNumberAndText)
{
    TestApp app;
    try {
        Query(app.db(), QStringLiteral("SELECT Nonsense FROM HandicapLog"));
        FAIL() << "no fault";
    } catch (const QuillonError &e) {
        EXPECT_EQ(e.number(), 3201); // the engine's "SQL error", numbered clear of the language's own
        EXPECT_TRUE(e.message().startsWith(QStringLiteral("Error 3201: ")));
        EXPECT_TRUE(e.description().contains(QStringLiteral("Nonsense")));
    }
}

TEST(Database, TransactionNotCommittedLeavesNothing)
{
    TestApp app;
    {
        Transaction t(app.db());
        addGolfer(app.db(), QStringLiteral("Temp"), QStringLiteral("Rary"));
    }
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT COUNT(*) FROM HandicapLog")), QStringList{"0"});
    {
        Transaction t(app.db());
        addGolfer(app.db(), QStringLiteral("Kept"), QStringLiteral("Row"));
        t.commit();
    }
    EXPECT_EQ(columnValues(app.db(), QStringLiteral("SELECT LastName FROM HandicapLog")),
              QStringList{"Kept"});
}

TEST(Database, InnerUnitIsUndoneAloneAndKeptWithTheOuterOne)
{
    TestApp app;
    {
        Transaction outer(app.db());
        addGolfer(app.db(), QStringLiteral("Outer"), QStringLiteral("A"));
        {
            Transaction inner(app.db());
            addGolfer(app.db(), QStringLiteral("Inner"), QStringLiteral("B"));
        }
        {
            Transaction inner(app.db());
            addGolfer(app.db(), QStringLiteral("Inner"), QStringLiteral("C"));
            inner.commit();
        }
        outer.commit();
    }
    EXPECT_EQ(
        columnValues(app.db(), QStringLiteral("SELECT LastName || FirstName FROM HandicapLog ORDER BY 1")),
        (QStringList{"InnerC", "OuterA"}));
}

TEST(Database, CommittedDataLivesInTheFileItself)
{
    TestApp app;
    addGolfer(app.db(), QStringLiteral("Whole"), QStringLiteral("File"));
    // No write-ahead log: a copy of the file alone holds every committed row.
    EXPECT_EQ(Scalar(app.db(), QStringLiteral("PRAGMA journal_mode")).toString().toLower(),
              QStringLiteral("delete"));
    const QString copy = app.file(QStringLiteral("Copy.qdl"));
    ASSERT_TRUE(QFile::copy(app.file(QStringLiteral("Quillon.qdl")), copy));
    auto other = OpenDatabase(copy);
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(columnValues(*other, QStringLiteral("SELECT LastName FROM HandicapLog")), QStringList{"Whole"});
}

TEST(Database, HeldRecordsetSeesNewRowsOnRequery)
{
    TestApp app;
    HeldRecordset held(basLogGlobals().gConnection,
                       QStringLiteral("SELECT LastName FROM HandicapLog WHERE LastName = ?"),
                       {QStringLiteral("O'Neil")});
    EXPECT_TRUE(held.rows().eof());
    int signals_ = 0;
    QObject::connect(&held, &HeldRecordset::requeried, [&] { ++signals_; });
    addGolfer(app.db(), QStringLiteral("O'Neil"), QStringLiteral("Tip"));
    held.requery();
    EXPECT_EQ(held.rows().rowCount(), 1);
    EXPECT_EQ(signals_, 1);
}
