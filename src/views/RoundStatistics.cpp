#include "RoundStatistics.h"

#include "core/Convert.h"
#include "core/Format.h"

namespace quillon {

namespace {

QString percent(float part, float whole)
{
    return Format(part / whole * 100.0f, QStringLiteral("##0.0")) + QLatin1Char('%');
}

QString average(float sum, int count)
{
    return Format(count == 0 ? 0.0f : sum / float(count), QStringLiteral("##0.0"));
}

} // namespace

RoundStatistics ComputeRoundStatistics(const QVector<DetailHole> &holes)
{
    RoundStatistics s;
    int par3 = 0, par4 = 0, par5 = 0;
    float sum3 = 0, sum4 = 0, sum5 = 0;
    float greens = 0, fairways = 0;
    for (const DetailHole &h : holes) {
        if (h.score.isEmpty())
            continue;
        const int score = int(Val(h.score));
        s.putts += int(Val(h.putts));
        // The putts are told by their text: anything but 0, 1 or 2, an empty box too, is 3 or more.
        if (h.putts == QLatin1String("0"))
            ++s.chipIns;
        else if (h.putts == QLatin1String("1"))
            ++s.onePutts;
        else if (h.putts == QLatin1String("2"))
            ++s.twoPutts;
        else
            ++s.threePlusPutts;
        if (h.fairway)
            ++fairways;
        if (!h.par)
            continue; // without a course row a hole has no par to count by
        const int par = *h.par;
        switch (par) {
        case 3: ++par3; sum3 += float(score); break;
        case 4: ++par4; sum4 += float(score); break;
        case 5: ++par5; sum5 += float(score); break;
        default: break;
        }
        switch (score - par) {
        case -2: ++s.eagles; break;
        case -1: ++s.birdies; break;
        case 0: ++s.pars; break;
        case 1: ++s.bogeys; break;
        case 2: ++s.doubleBogeys; break;
        case 3: ++s.tripleBogeys; break;
        default: ++s.others; break;
        }
        if (score - Val(h.putts) <= par - 2)
            ++greens;
    }
    const int regulation = par3 + par4 + par5;
    if (regulation > 0)
        s.greens = percent(greens, float(regulation));
    s.fairways = par4 + par5 > 0 ? percent(fairways, float(par4 + par5)) : QStringLiteral("N/A");
    s.avgPar3 = average(sum3, par3);
    s.avgPar4 = average(sum4, par4);
    s.avgPar5 = average(sum5, par5);
    return s;
}

} // namespace quillon
