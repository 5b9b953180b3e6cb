#include "ScoreData.h"

#include "core/Convert.h"
#include "core/DateText.h"
#include "core/NumberText.h"
#include "handicap/AdjustedScore.h"
#include "handicap/Handicap.h"
#include "shell/basLogGlobals.h"
#include "store/Encodings.h"

namespace quillon {

namespace {

const char *const kStatColumns[] = {"Penalties", "LostBalls", "Bunkers", "SandSaves", "AttemptedSaves"};

// An optional statistic: an empty box is stored as -1, "not recorded".
QVariant statValue(const QString &text)
{
    return text.isEmpty() ? QVariant(-1) : QVariant(CDbl(text));
}

QVariant numberOrNull(const QString &text)
{
    return text.isEmpty() ? QVariant() : QVariant(CDbl(text));
}

QStringList statTexts(const ScoreEntry &e)
{
    return {e.penalties, e.lostBalls, e.bunkers, e.sandSaves, e.attemptedSaves};
}

// The hole indexes a round's details cover.
std::pair<int, int> holeRange(const QString &holes)
{
    if (holes == Holes::FrontNine)
        return {0, 8};
    if (holes == Holes::BackNine)
        return {9, 17};
    return {0, 17};
}

// One hole row's values: Score, Putts, PAR, Fairway, GreenInRegulation.
Params holeValues(const ScoreEntry &e, int i, qint16 par)
{
    const QVariant score = numberOrNull(e.score.at(i));
    const QVariant putts = numberOrNull(e.putts.at(i));
    const int fairway = !e.fairwayShown.at(i) ? -1 : (e.fairway.at(i) ? 1 : 0);
    const bool green = Val(e.score.at(i)) - Val(e.putts.at(i)) <= par - 2;
    return {score, putts, par, fairway, green ? 1 : 0};
}

} // namespace

TeesHoles LoadTeesHoles(Connection &c, const QString &course, const QString &tees)
{
    TeesHoles h;
    Statement s = c.run(QStringLiteral("SELECT Hole FROM CourseDetails WHERE CourseName = ? AND Tees = ?"),
                        {course, tees});
    while (s.next()) {
        ++h.rows;
        const int hole = s.value(0).toInt();
        h.hole1 = h.hole1 || hole == 1;
        h.hole10 = h.hole10 || hole == 10;
        h.hole11 = h.hole11 || hole == 11;
    }
    return h;
}

QVector<qint16> LoadHolePars(Connection &c, const QString &course, const QString &tees, QVector<qint16> pars)
{
    pars.resize(18);
    Statement s = c.run(QStringLiteral("SELECT Hole, PAR FROM CourseDetails WHERE CourseName = ? AND Tees = ?"),
                        {course, tees});
    while (s.next()) {
        const int index = s.value(0).toInt() - 1;
        if (index >= 0 && index < 18)
            pars[index] = s.value(1).isNull() ? 0 : CInt(s.value(1).toDouble());
    }
    return pars;
}

QVector<bool> FairwayBoxes(Connection &c, const QString &course, const QString &tees)
{
    QVector<bool> shown(18, false);
    Statement s = c.run(QStringLiteral("SELECT Hole, PAR FROM CourseDetails WHERE CourseName = ? AND Tees = ?"),
                        {course, tees});
    while (s.next()) {
        const int index = s.value(0).toInt() - 1;
        if (index >= 0 && index < 18)
            shown[index] = s.value(1).toInt() != 3; // no fairway to hit on a par 3
    }
    return shown;
}

std::optional<TeesRatings> LoadTeesRatings(Connection &c, const QString &course, const QString &tees)
{
    Statement s = c.run(QStringLiteral("SELECT OverallRating, FrontRating, BackRating FROM CourseLog "
                                       "WHERE CourseName = ? AND Tees = ?"),
                        {course, tees});
    if (!s.next())
        return std::nullopt;
    return TeesRatings{s.value(0).toDouble(), s.value(1).toDouble(), s.value(2).toDouble()};
}

std::optional<StoredRound> LoadRound(Connection &c, qint64 scoreIndex, const QString &last, const QString &first,
                                     const QString &course, const QString &tees, const QDate &date)
{
    Statement s = c.run(QStringLiteral("SELECT Holes, Type, Used, Details, Score, Rating, Slope, Penalties, "
                                       "LostBalls, Bunkers, SandSaves, AttemptedSaves FROM ScoreLog "
                                       "WHERE ScoreIndex = ? AND LastName = ? AND FirstName = ? "
                                       "AND CourseName = ? AND Tees = ? AND Date = ?"),
                        {scoreIndex, last, first, course, tees, IsoDate(date)});
    if (!s.next())
        return std::nullopt;
    StoredRound r;
    r.holes = s.value(0).toString();
    r.type = s.value(1).toString();
    r.used = s.value(2).toString();
    r.details = s.value(3).toInt() != 0;
    r.score = s.value(4);
    r.rating = s.value(5);
    r.slope = s.value(6);
    for (int i = 0; i < 5; ++i) {
        const QVariant v = s.value(7 + i);
        r.stats << ((v.isNull() || v.toInt() == -1) ? QString() : v.toString());
    }
    return r;
}

void LoadHoleDetails(Connection &c, qint64 scoreIndex, const QString &last, const QString &first,
                     const QString &course, const QString &tees, const QDate &date, ScoreEntry &entry)
{
    Statement s = c.run(QStringLiteral("SELECT Hole, Score, Putts, Fairway FROM ScoreDetails WHERE ScoreIndex = ? "
                                       "AND LastName = ? AND FirstName = ? AND Date = ? AND CourseName = ? "
                                       "AND Tees = ? ORDER BY Hole"),
                        {scoreIndex, last, first, IsoDate(date), course, tees});
    while (s.next()) {
        const int i = s.value(0).toInt() - 1;
        if (i < 0 || i > 17)
            continue;
        entry.score[i] = s.value(1).toString();
        entry.putts[i] = s.value(2).toString();
        entry.fairway[i] = s.value(3).toInt() == 1;
    }
}

QString TypeLetter(int type)
{
    switch (type) {
    case 0: return QStringLiteral("A");
    case 1: return QStringLiteral("H");
    case 2: return QStringLiteral("T");
    default: return QString();
    }
}

int TypeIndex(const QString &letter)
{
    if (letter == QLatin1String("A"))
        return 0;
    if (letter == QLatin1String("H"))
        return 1;
    if (letter == QLatin1String("T"))
        return 2;
    return -1;
}

qint64 SaveNewScore(Connection &c, const QString &last, const QString &first, const ScoreEntry &e, bool details)
{
    const QDate date = ParseDateText(e.date);
    // A text other than the two nines counts as 18 holes for the rating and slope.
    const QString ratedHoles = (e.holes == Holes::FrontNine || e.holes == Holes::BackNine) ? e.holes : Holes::Eighteen;
    const RatingSlope rated = CourseRatingSlope(c, e.course, e.tees, ratedHoles).value_or(RatingSlope{});
    const QVector<qint16> pars = details ? LoadHolePars(c, e.course, e.tees, {}) : QVector<qint16>();
    Params values = {last,
                     first,
                     e.course,
                     e.tees,
                     IsoDate(date),
                     e.holes,
                     CDbl(e.totalScore),
                     1,
                     CDbl(SingleText(CSng(rated.rating))), // held in single precision, stored as its text
                     CInt(rated.slope),
                     TypeLetter(e.type).isEmpty() ? QVariant() : QVariant(TypeLetter(e.type)),
                     UsedMark::NotUsed,
                     details ? 1 : 0};
    for (const QString &stat : statTexts(e))
        values << statValue(stat);
    values << NoPair;

    Transaction t(c);
    Exec(c,
         QStringLiteral("INSERT INTO ScoreLog (LastName, FirstName, CourseName, Tees, Date, Holes, Score, AdjustedScore, "
                        "Rating, Slope, Type, Used, Details, Penalties, LostBalls, Bunkers, SandSaves, "
                        "AttemptedSaves, CombinedIndex) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
                        "?, ?)"),
         values);
    const qint64 scoreIndex = LastInsertId(c);
    if (details) {
        for (int i = 0; i < 18; ++i) {
            if (e.score.at(i).isEmpty())
                continue;
            Exec(c,
                 QStringLiteral("INSERT INTO ScoreDetails (LastName, FirstName, CourseName, Tees, Date, ScoreIndex, "
                                "Hole, Score, Putts, PAR, Fairway, GreenInRegulation) "
                                "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                 Params{last, first, e.course, e.tees, IsoDate(date), scoreIndex, i + 1} + holeValues(e, i, pars.at(i)));
        }
    }
    t.commit();
    return scoreIndex;
}

void SaveEditedScore(Connection &c, const QString &last, const QString &first, qint64 scoreIndex,
                     const ScoreEntry &e, bool details)
{
    const QDate date = ParseDateText(e.date);
    Params values = {CDbl(e.totalScore), details ? 1 : 0};
    for (const QString &stat : statTexts(e))
        values << statValue(stat);
    values << (TypeLetter(e.type).isEmpty() ? QVariant() : QVariant(TypeLetter(e.type)));

    Transaction t(c);
    if (details) {
        const QVector<qint16> pars = LoadHolePars(c, e.course, e.tees, {});
        const auto [from, to] = holeRange(e.holes);
        for (int i = from; i <= to; ++i) {
            const Params key = {scoreIndex, last, first, IsoDate(date), e.course, e.tees, i + 1};
            const bool stored = Scalar(c,
                                       QStringLiteral("SELECT COUNT(*) FROM ScoreDetails WHERE ScoreIndex = ? AND "
                                                      "LastName = ? AND FirstName = ? AND Date = ? AND "
                                                      "CourseName = ? AND Tees = ? AND Hole = ?"),
                                       key)
                                    .toInt() > 0;
            if (!stored)
                Exec(c,
                     QStringLiteral("INSERT INTO ScoreDetails (ScoreIndex, LastName, FirstName, Date, CourseName, "
                                    "Tees, Hole) VALUES (?, ?, ?, ?, ?, ?, ?)"),
                     key);
            Exec(c,
                 QStringLiteral("UPDATE ScoreDetails SET Score = ?, Putts = ?, PAR = ?, Fairway = ?, "
                                "GreenInRegulation = ? WHERE ScoreIndex = ? AND LastName = ? AND FirstName = ? "
                                "AND Date = ? AND CourseName = ? AND Tees = ? AND Hole = ?"),
                 holeValues(e, i, pars.at(i)) + key);
        }
    }
    Exec(c,
         QStringLiteral("UPDATE ScoreLog SET Score = ?, Details = ?, Penalties = ?, LostBalls = ?, Bunkers = ?, "
                        "SandSaves = ?, AttemptedSaves = ?, Type = ? WHERE ScoreIndex = ?"),
         values + Params{scoreIndex});
    t.commit();
}

void FinishScore(Connection &c, const QString &last, const QString &first, qint64 scoreIndex, const ScoreEntry &e)
{
    const QDate date = ParseDateText(e.date);
    // Every saved Home round makes its course the golfer's home course.
    if (e.type == 1)
        Exec(c, QStringLiteral("UPDATE HandicapLog SET HomeCourseName = ? WHERE LastName = ? AND FirstName = ?"),
             {e.course, last, first});

    const qint16 total = CInt(Val(e.totalScore));
    const qint16 adjusted = ComputeAdjustedScore(total, scoreIndex, e.course, e.tees, date, e.holes);
    RatingSlope rated;
    if (e.editMode) {
        // An edit keeps the rating and slope the round was first saved with.
        const Recordset stored =
            Query(c, QStringLiteral("SELECT Rating, Slope FROM ScoreLog WHERE ScoreIndex = ?"), {scoreIndex});
        if (!stored.isEmpty())
            rated = {stored.value(0).toDouble(), CInt(stored.value(1).toDouble())};
    } else {
        rated = CourseRatingSlope(c, e.course, e.tees, e.holes).value_or(RatingSlope{});
    }
    const float differential = ComputeDifferential(adjusted, double(CSng(rated.rating)), rated.slope, e.holes);
    // The mark goes with the derived numbers: a fault before this leaves the row as the first stage wrote it.
    Exec(c, QStringLiteral("UPDATE ScoreLog SET Used = ?, Differential = ?, AdjustedScore = ? WHERE ScoreIndex = ?"),
         {e.exclude ? UsedMark::Excluded : UsedMark::NotUsed, CDbl(DifferentialText(differential)), adjusted,
          scoreIndex});
}

qint64 SaveScore(Connection &c, const QString &last, const QString &first, qint64 scoreIndex, const ScoreEntry &e,
                 bool details)
{
    if (e.editMode)
        SaveEditedScore(c, last, first, scoreIndex, e, details);
    else
        scoreIndex = SaveNewScore(c, last, first, e, details);
    FinishScore(c, last, first, scoreIndex, e);
    LogGlobals &g = basLogGlobals();
    if (g.gCommandString == QLatin1String("-h")) {
        ComputeHandicap(); // it reads the golfer's held rows again itself
    } else {
        if (g.gScoreLog)
            g.gScoreLog->requery();
        if (g.gHandicapLog)
            g.gHandicapLog->requery();
    }
    return scoreIndex;
}

} // namespace quillon
