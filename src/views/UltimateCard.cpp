#include "UltimateCard.h"

#include "core/Convert.h"
#include "core/Int16.h"
#include "core/VariantKind.h"

namespace quillon {

namespace {

// The number a stored value stands for: a number, or a text that reads strictly as one.
std::optional<double> numberOf(const QVariant &value)
{
    if (IsNumber(value))
        return value.toDouble();
    if (value.isNull() || value.typeId() != QMetaType::QString)
        return std::nullopt;
    try {
        return CDbl(value.toString());
    } catch (const QuillonError &) {
        return std::nullopt;
    }
}

// The best as a stroke count for the sums: rounded to a whole number, and a text that is no
// number is a type mismatch, as adding it would be.
Int16 strokes(const QVariant &best)
{
    if (IsNumber(best))
        return Int16(CInt(best.toDouble()));
    return Int16(CIntText(best.toString()));
}

} // namespace

QVariant BestScore(const QVector<QVariant> &scores)
{
    if (scores.isEmpty())
        return QVariant();
    QVariant best = scores.first();
    for (const QVariant &score : scores) {
        const std::optional<double> candidate = numberOf(score);
        // Null and empty scores are passed over; nothing compares as below a Null best.
        if (!candidate || best.isNull())
            continue;
        const std::optional<double> current = numberOf(best);
        // A number stands below a text that is none, as in the comparisons of the original.
        if (!current || *candidate < *current)
            best = score;
    }
    return best;
}

QString CellText(const QVariant &value)
{
    if (value.isNull())
        return QString();
    if (IsIntegral(value))
        return QString::number(value.toLongLong());
    if (IsNumber(value))
        return QString::number(value.toDouble(), 'g', 15);
    return value.toString();
}

std::optional<QString> RoundsPlayedText(int rows)
{
    if (rows < 1)
        return std::nullopt;
    if (rows == 1)
        return QStringLiteral("1 Round Played");
    return QStringLiteral("%1 Rounds Played").arg(rows);
}

UltimatePass BestScores(const ScoresByHole &scores, const ParCaptions &pars)
{
    UltimatePass pass;
    Int16 front, back;
    try {
        for (int i = 0; i < kUltimateHoles; ++i) {
            const QVector<QVariant> &rows = scores[i];
            if (rows.isEmpty())
                continue;
            UltimateHole &hole = pass.holes[i];
            const QVariant best = BestScore(rows);
            hole.played = true;
            hole.best = CellText(best);
            pass.roundsPlayed = int(rows.size());
            // A Null best adds nothing here; its blank cell fails the conversion below.
            if (!best.isNull())
                (i < 9 ? front : back) += strokes(best);
            hole.toPar = int(CIntText(hole.best)) - int(CIntText(pars[i]));
        }
        pass.out = front.value();
        pass.in = back.value();
        pass.total = (front + back).value();
    } catch (const QuillonError &error) {
        pass.failure = error;
        return pass;
    }
    if (front == 0 && back == 0)
        pass.outcome = UltimateOutcome::NoScores;
    else if (back == 0)
        pass.outcome = UltimateOutcome::FrontOnly;
    else if (front == 0)
        pass.outcome = UltimateOutcome::BackOnly;
    else
        pass.outcome = UltimateOutcome::BothNines;
    return pass;
}

} // namespace quillon
