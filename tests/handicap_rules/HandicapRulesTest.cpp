#include "HandicapRulesTest.h"

#include <QSqlRecord>

namespace quillon::test {

HandicapRulesTest::HandicapRulesTest()
{
    basLogGlobals().handicapDisplay = &display;
    basLogGlobals().genderQuestion = &gender;
    addGolfer(db(), last, first, QStringLiteral("M"));
    choose(last, first);
}

void HandicapRulesTest::choose(const QString &lastName, const QString &firstName)
{
    last = lastName;
    first = firstName;
    app.setGolfer(last, first);
    LogGlobals &g = basLogGlobals();
    g.gScoreLog = std::make_unique<HeldRecordset>(
        g.gConnection, QStringLiteral("SELECT * FROM ScoreLog WHERE LastName = ? AND FirstName = ?"),
        Params{last, first});
    g.gHandicapLog = std::make_unique<HeldRecordset>(
        g.gConnection, QStringLiteral("SELECT * FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
        Params{last, first});
}

RoundSpec HandicapRulesTest::round(const QDate &date, double differential, const QString &holes,
                                   const QString &type) const
{
    RoundSpec r;
    r.last = last;
    r.first = first;
    r.date = date;
    r.holes = holes;
    r.type = type;
    r.differential = OneDecimal(differential);
    if (holes != QLatin1String("18-holes")) {
        r.score = r.adjusted = 45;
        r.rating = 35.7;
        r.slope = 124;
    }
    return r;
}

QVector<qint64> HandicapRulesTest::addEighteens(const QDate &firstDay, const QVector<double> &differentials)
{
    QVector<qint64> indexes;
    for (int i = 0; i < differentials.size(); ++i)
        indexes << add(round(firstDay.addDays(i), differentials.at(i)));
    return indexes;
}

RecordRow HandicapRulesTest::eighteenRow(const RoundSpec &r, qint64 index, const QString &used)
{
    RecordRow row;
    row.lastName = r.last;
    row.firstName = r.first;
    row.courseName = r.course;
    row.date = r.date;
    row.scoreIndex = index;
    row.score = r.adjusted;
    row.rating = r.rating;
    row.slope = r.slope;
    row.differential = r.differential;
    row.used = used;
    row.details = QString(QLatin1String(""));
    return row;
}

RecordRow HandicapRulesTest::combinedRow(const RoundSpec &older, qint64 olderIndex, const RoundSpec &partner,
                                         qint64 partnerIndex, const QString &used)
{
    RecordRow row;
    row.lastName = older.last;
    row.firstName = older.first;
    row.courseName = QStringLiteral("Combined");
    row.date = partner.date;
    row.scoreIndex = partnerIndex;
    row.combinedIndex = olderIndex;
    row.score = older.adjusted + partner.adjusted;
    row.rating = OneDecimal(older.rating + partner.rating);
    row.slope = (older.slope + partner.slope) / 2;
    row.differential = OneDecimal(older.differential + partner.differential);
    row.used = used;
    row.details = QStringLiteral("Combined 9-hole rounds from %1/%2/%3 and %4/%5/%6")
                      .arg(older.date.month())
                      .arg(older.date.day())
                      .arg(older.date.year())
                      .arg(partner.date.month())
                      .arg(partner.date.day())
                      .arg(partner.date.year());
    return row;
}

QVariant HandicapRulesTest::storedHandicap()
{
    return Scalar(db(),
                  QStringLiteral("SELECT Handicap FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
                  {last, first});
}

QVariant HandicapRulesTest::storedGender()
{
    return Scalar(db(), QStringLiteral("SELECT Gender FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
                  {last, first});
}

QStringList HandicapRulesTest::usedColumn()
{
    return columnValues(db(),
                        QStringLiteral("SELECT Used FROM ScoreLog WHERE LastName = ? AND FirstName = ? "
                                       "ORDER BY ScoreIndex"),
                        {last, first});
}

std::map<qint64, LogMark> HandicapRulesTest::marksOf(const QString &lastName, const QString &firstName)
{
    std::map<qint64, LogMark> marks;
    const Recordset rs = Query(db(),
                               QStringLiteral("SELECT ScoreIndex, Used, CombinedIndex FROM ScoreLog "
                                              "WHERE LastName = ? AND FirstName = ?"),
                               {lastName, firstName});
    for (const QSqlRecord &row : rs.rows()) {
        const QVariant ci = row.value(QStringLiteral("CombinedIndex"));
        marks[row.value(QStringLiteral("ScoreIndex")).toLongLong()] = {
            row.value(QStringLiteral("Used")).toString(),
            ci.isNull() ? std::nullopt : std::optional<qint64>(ci.toLongLong())};
    }
    return marks;
}

QStringList HandicapRulesTest::roundsApartFromMarks(const QString &lastName, const QString &firstName)
{
    return columnValues(
        db(),
        QStringLiteral("SELECT LastName, FirstName, CourseName, Tees, Date, ScoreIndex, Holes, Score, "
                       "AdjustedScore, Rating, Slope, Type, Differential, Details, Penalties, "
                       "LostBalls, Bunkers, SandSaves, AttemptedSaves FROM ScoreLog "
                       "WHERE LastName = ? AND FirstName = ? ORDER BY ScoreIndex"),
        {lastName, firstName});
}

void HandicapRulesTest::expectNoHandicap()
{
    EXPECT_EQ(storedHandicap().toDouble(), -1000.0);
    EXPECT_EQ(display.panel, QStringLiteral("Handicap: (not calculated)"));
    EXPECT_EQ(display.calculatorEnabled, std::optional<bool>(false));
}

void HandicapRulesTest::expectHandicap(double stored, const QString &panel)
{
    EXPECT_EQ(storedHandicap().toDouble(), stored);
    EXPECT_EQ(display.panel, panel);
    EXPECT_EQ(display.calculatorEnabled, std::optional<bool>(true));
}

void HandicapRulesTest::expectOneMessage(const QString &text, MsgIcon icon)
{
    const QVector<ShownMessage> shown = app.platform().takeMessages();
    ASSERT_EQ(shown.size(), 1);
    EXPECT_EQ(shown.front().text, text);
    EXPECT_EQ(shown.front().icon, icon);
    EXPECT_EQ(shown.front().title, QStringLiteral("Quillon for Golf"));
    EXPECT_EQ(shown.front().buttons, MsgButtons::OK);
}

} // namespace quillon::test
