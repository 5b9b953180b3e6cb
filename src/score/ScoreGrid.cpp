#include "ScoreGrid.h"

#include "core/Convert.h"
#include "core/Int16.h"
#include "store/Encodings.h"

namespace quillon {

qint16 NineScoreSum(const QStringList &boxes, int from)
{
    Int16 sum;
    for (int i = from; i < from + 9; ++i)
        sum += CInt(Val(boxes.at(i)));
    return sum.value();
}

QString SumText(int sum)
{
    return sum < 1 ? QString() : QString::number(sum);
}

QString TotalOfNines(const QString &out, const QString &in)
{
    const Int16 total = Int16(CInt(Val(out))) + Int16(CInt(Val(in)));
    return SumText(total.value());
}

HolesOffer HolesOffered(double overallRating, double frontRating, double backRating, bool hasHole1, bool hasHole10)
{
    HolesOffer offer;
    if (frontRating > 0)
        offer.items << Holes::FrontNine;
    if (backRating > 0)
        offer.items << Holes::BackNine;
    if (overallRating > 0) {
        offer.items << Holes::Eighteen;
        offer.chosen = int(offer.items.size()) - 1;
        // A nine without its own rating is still offered where its holes are there.
        if (!(frontRating > 0) && hasHole1)
            offer.items << Holes::FrontNine;
        if (!(backRating > 0) && hasHole10)
            offer.items << Holes::BackNine;
    }
    if (offer.chosen < 0 && !offer.items.isEmpty())
        offer.chosen = 0;
    return offer;
}

GridArrangement ArrangeGridFor(const QString &holes, int detailRows, bool hasHole1, bool hasHole11)
{
    GridArrangement g;
    if (holes == Holes::FrontNine) {
        g.nine = true;
        g.front = hasHole1;
    } else if (holes == Holes::BackNine) {
        g.nine = true;
        g.back = hasHole11;
    } else if (holes == Holes::Eighteen) {
        g.front = g.back = detailRows == 18;
    }
    return g;
}

QHash<StatBox, QString> StatConsequences(StatBox box, const QString &text)
{
    QHash<StatBox, QString> out;
    if (Val(text) != 0)
        return out;
    const QString zero = QStringLiteral("0");
    switch (box) {
    case StatBox::Penalties: out.insert(StatBox::LostBalls, zero); break;
    case StatBox::Bunkers:
        out.insert(StatBox::AttemptedSaves, zero);
        out.insert(StatBox::SandSaves, zero);
        break;
    case StatBox::AttemptedSaves: out.insert(StatBox::SandSaves, zero); break;
    case StatBox::LostBalls:
    case StatBox::SandSaves: break;
    }
    return out;
}

QString ScoreBoxLeft(int index, const QString &score, const QString &putts)
{
    if (score == QLatin1String("0"))
        return QStringLiteral("Invalid score on Hole #%1!  You must enter a score greater than zero.").arg(index + 1);
    if (!score.isEmpty() && !putts.isEmpty() && !(Val(score) > Val(putts)))
        return QStringLiteral("The score on Hole #%1 must be greater than the number of putts.").arg(index + 1);
    return QString();
}

QString PuttsBoxLeft(int index, const QString &score, const QString &putts)
{
    if (!score.isEmpty() && !putts.isEmpty() && !(Val(score) > Val(putts)))
        return QStringLiteral("The number of putts on Hole #%1 must be less than the score.").arg(index + 1);
    return QString();
}

} // namespace quillon
