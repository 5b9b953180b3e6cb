#include "GolferGenerator.h"

#include "Fixtures.h"

#include <random>

namespace quillon::test {

namespace {

const QString kHoles[] = {QStringLiteral("18-holes"), QStringLiteral("9-holes (front)"),
                          QStringLiteral("9-holes (back)")};
const QString kTypes[] = {QStringLiteral("A"), QStringLiteral("H"), QStringLiteral("T")};
const QString kCourses[] = {QStringLiteral("Pebble Creek"), QStringLiteral("St. Andrew's"),
                            QStringLiteral("Oak Hollow")};

class Dice {
public:
    explicit Dice(quint32 seed) : m_rng(seed) {}
    int between(int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(m_rng); }
    bool chance(int percent) { return between(1, 100) <= percent; }

private:
    std::mt19937 m_rng;
};

qint64 storeRound(Connection &c, const GeneratedGolfer &g, const model::Round &r)
{
    RoundSpec s;
    s.last = g.last;
    s.first = g.first;
    s.course = r.course;
    s.date = r.date;
    s.holes = r.holes;
    s.score = r.adjusted + 2;
    s.adjusted = r.adjusted;
    s.rating = r.ratingTenths / 10.0;
    s.slope = r.slope;
    s.type = r.type;
    s.differential = r.differentialTenths / 10.0;
    s.used = r.used;
    const qint64 index = addRound(c, s);
    if (r.combinedIndex != 1)
        Exec(c, QStringLiteral("UPDATE ScoreLog SET CombinedIndex = ? WHERE ScoreIndex = ?"),
             {r.combinedIndex, index});
    return index;
}

void storeHandicapRow(Connection &c, const GeneratedGolfer &g)
{
    addGolfer(c, g.last, g.first, g.gender.value_or(QString()), g.previousHandicap);
}

} // namespace

GeneratedGolfer GenerateGolfer(quint32 seed, int number)
{
    Dice dice(seed);
    GeneratedGolfer g;
    g.last =
        number % 5 == 2 ? QStringLiteral("O'Brien %1").arg(number) : QStringLiteral("Golfer %1").arg(number);
    g.first = number % 3 == 1 ? QStringLiteral("D'Arcy") : QStringLiteral("Pat");
    const int genderRoll = dice.between(1, 100);
    if (genderRoll <= 35)
        g.gender = QStringLiteral("M");
    else if (genderRoll <= 70)
        g.gender = QStringLiteral("F");
    else if (genderRoll <= 95)
        g.gender = std::nullopt;
    else
        g.gender = QStringLiteral("f");
    g.answer = dice.chance(50) ? QStringLiteral("F") : QStringLiteral("M");
    g.previousHandicap = dice.chance(50) ? -1000.0 : dice.between(-50, 400) / 10.0;

    const int count = dice.between(0, 45);
    const int eighteenShare = std::vector<int>{0, 20, 50, 80, 100}[dice.between(0, 4)];
    const int level = dice.between(-60, 420); // tenths of the golfer's usual 18-hole differential
    const int spread = dice.between(0, 150);
    // Some golfers play a season in a few weeks, or nearly always the same type:
    // crowded days and long runs of one type make the record fill and push pairs out.
    const int dayRange = dice.chance(25) ? 40 : 730;
    const int usualType = dice.chance(30) ? dice.between(0, 2) : -1;
    std::vector<QDate> days;
    std::vector<int> played; // differentials already met, for ties
    for (int i = 0; i < count; ++i) {
        model::Round r;
        r.date = !days.empty() && dice.chance(25) ? days[dice.between(0, int(days.size()) - 1)]
                                                  : QDate(2024, 1, 1).addDays(dice.between(0, dayRange - 1));
        days.push_back(r.date);
        r.holes = dice.chance(eighteenShare) ? kHoles[0] : kHoles[dice.between(1, 2)];
        const bool nine = r.holes != kHoles[0];
        if (dice.chance(5))
            r.type = QString();
        else
            r.type = kTypes[usualType >= 0 && dice.chance(85) ? usualType : dice.between(0, 2)];
        r.course = kCourses[dice.between(0, 2)];
        if (!played.empty() && dice.chance(30)) {
            r.differentialTenths = played[dice.between(0, int(played.size()) - 1)];
        } else {
            const int d = level + dice.between(0, spread);
            r.differentialTenths = nine ? d / 2 : d;
            played.push_back(r.differentialTenths);
        }
        r.adjusted = nine ? dice.between(36, 60) : dice.between(68, 120);
        r.ratingTenths = nine ? dice.between(320, 380) : dice.between(640, 770);
        r.slope = dice.between(55, 155);
        r.used = dice.chance(10)
                     ? QStringLiteral("E")
                     : std::vector<QString>{QStringLiteral("N"), QStringLiteral("N"), QStringLiteral("Y"),
                                            QStringLiteral("C")}[dice.between(0, 3)];
        r.combinedIndex = dice.chance(60) ? 1 : dice.between(2, 99999);
        g.rounds.push_back(r);
    }
    return g;
}

void StoreGolfer(Connection &c, GeneratedGolfer &g)
{
    Transaction t(c);
    storeHandicapRow(c, g);
    for (model::Round &r : g.rounds)
        r.index = storeRound(c, g, r);
    t.commit();
}

GeneratedGolfer StoreTwin(Connection &c, GeneratedGolfer &g, const QString &last, const QString &first)
{
    GeneratedGolfer twin = g;
    twin.last = last;
    twin.first = first;
    Transaction t(c);
    storeHandicapRow(c, g);
    storeHandicapRow(c, twin);
    for (size_t i = 0; i < g.rounds.size(); ++i) {
        g.rounds[i].index = storeRound(c, g, g.rounds[i]);
        twin.rounds[i].index = storeRound(c, twin, twin.rounds[i]);
    }
    t.commit();
    return twin;
}

} // namespace quillon::test
