#include "HandicapFixture.h"

namespace quillon::test {

void HandicapFixture::SetUp()
{
    m_app = std::make_unique<TestApp>();
    m_app->setGolfer(spec.last, spec.first);
    basLogGlobals().handicapDisplay = &display;
    basLogGlobals().genderQuestion = &gender;
}

void HandicapFixture::TearDown()
{
    m_app.reset();
}

qint64 HandicapFixture::addRoundOn(int day, double differential, const QString &holes, const QString &type,
                                   const QString &used)
{
    RoundSpec r = spec;
    r.date = dayOf(day);
    r.differential = differential;
    r.holes = holes;
    r.type = type;
    r.used = used;
    if (holes != QLatin1String("18-holes")) {
        r.score = r.adjusted = 45;
        r.rating = holes == QLatin1String("9-holes (front)") ? 35.7 : 35.8;
        r.slope = holes == QLatin1String("9-holes (front)") ? 124 : 126;
    }
    return addRound(db(), r);
}

QStringList HandicapFixture::record()
{
    return columnValues(
        db(),
        QStringLiteral("SELECT LastName, FirstName, CourseName, Date, ScoreIndex, CombinedIndex, "
                       "Score, Rating, Slope, Differential, Used, Details FROM ScoringRecord "
                       "WHERE LastName = ? AND FirstName = ? ORDER BY Date, ScoreIndex"),
        {basLogGlobals().gLastName, basLogGlobals().gFirstName});
}

QStringList HandicapFixture::marks()
{
    return columnValues(
        db(), QStringLiteral("SELECT ScoreIndex, Used, CombinedIndex FROM ScoreLog ORDER BY ScoreIndex"));
}

QVariant HandicapFixture::storedHandicap()
{
    return Scalar(db(),
                  QStringLiteral("SELECT Handicap FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
                  {basLogGlobals().gLastName, basLogGlobals().gFirstName});
}

QVariant HandicapFixture::storedGender()
{
    return Scalar(db(), QStringLiteral("SELECT Gender FROM HandicapLog WHERE LastName = ? AND FirstName = ?"),
                  {basLogGlobals().gLastName, basLogGlobals().gFirstName});
}

} // namespace quillon::test
