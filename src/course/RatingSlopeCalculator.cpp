#include "RatingSlopeCalculator.h"

#include "CourseTotals.h"
#include "core/Convert.h"
#include "core/Int16.h"
#include "core/NumberText.h"
#include "core/QuillonError.h"

namespace quillon {

std::optional<UnratedBand> LookUpUnratedBand(Connection &c, const QString &gender, int distance)
{
    Statement s = c.run(QStringLiteral("SELECT RatingChange, SlopeChange FROM UnratedTees WHERE Gender = ? AND "
                                       "MaxDistance >= ? AND MinDistance <= ?"),
                        {gender, distance, distance});
    if (!s.next())
        return std::nullopt;
    return UnratedBand{CSng(s.value(0).toDouble()), CInt(s.value(1).toDouble())};
}

RatingSlopeOutcome CalculateRatingSlope(const RatingSlopeInput &in, const BandLookup &lookup)
{
    RatingSlopeOutcome out;
    const auto stop = [&out](const char *message) {
        out.stop = QString::fromLatin1(message);
        return out;
    };
    QString gender;
    if (in.gender == 0)
        gender = QStringLiteral("Men");
    else if (in.gender == 1)
        gender = QStringLiteral("Women");
    else
        return stop("Please indicate your gender.");
    if (in.rating.isEmpty())
        return stop("Please enter the rating for the nearest set of rated tees.");
    if (in.slope.isEmpty())
        return stop("Please enter the slope for the nearest set of rated tees.");
    try {
        const double slope = CDbl(in.slope);
        if (slope < 55 || slope > 155)
            out.warning = QStringLiteral("Invalid slope!  Please enter a value from 55 to 155.");
        if (in.ratedYards.isEmpty())
            return stop("Please enter the yardage for the nearest set of rated tees.");
        if (!(CDbl(in.ratedYards) > 0))
            return stop("Invalid value for rated yards.  Please enter a number greater than zero.");
        if (in.unratedYards.isEmpty())
            return stop("Please enter the yardage for the unrated tees.");
        if (!(CDbl(in.unratedYards) > 0))
            return stop("Invalid value for unrated yards.  Please enter a number greater than zero.");

        // Longer unrated tees raise both figures, shorter ones lower them; equal ones subtract.
        Int16 d = Int16(CInt(CDbl(in.ratedYards))) - Int16(CInt(CDbl(in.unratedYards)));
        out.direction = -1;
        if (d.value() < 0) {
            out.direction = 1;
            d = -d;
        }
        // Beyond the table's reach half the difference is looked up and its corrections doubled.
        if ((gender == QLatin1String("Men") && d.value() > 802) ||
            (gender == QLatin1String("Women") && d.value() > 1250)) {
            out.doubled = true;
            d = Int16(CInt(d.value() / 2.0));
        }
        out.distance = d.value();
        const std::optional<UnratedBand> band = lookup(gender, out.distance);
        if (!band) {
            out.noBand = true;
            return out;
        }
        float ratingChange = band->ratingChange;
        Int16 slopeChange = band->slopeChange;
        if (out.doubled) {
            ratingChange *= 2;
            slopeChange = slopeChange * Int16(2);
        }
        const qint16 newSlope = CInt(Val(in.slope) + out.direction * slopeChange.value());
        const float newRating = float(Val(in.rating)) + float(out.direction) * ratingChange;
        out.rating = RatingText(double(newRating));
        out.slope = QString::number(newSlope);
    } catch (const QuillonError &) {
        out.failed = true;
    }
    return out;
}

} // namespace quillon
