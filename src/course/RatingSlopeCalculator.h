#pragma once

#include "store/basDatabase.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace quillon {

// What the rating and slope calculator is given, as the texts of its boxes.
struct RatingSlopeInput {
    int gender = -1; // 0 male, 1 female, -1 none chosen
    QString ratedYards, rating, slope, unratedYards;
};

// One band of the corrections for unrated tees.
struct UnratedBand {
    float ratingChange = 0;
    qint16 slopeChange = 0;
};
// The band that holds a yardage difference for "Men" or "Women"; nothing when none does.
using BandLookup = std::function<std::optional<UnratedBand>(const QString &gender, int distance)>;
std::optional<UnratedBand> LookUpUnratedBand(Connection &c, const QString &gender, int distance);

struct RatingSlopeOutcome {
    QString warning;     // shown, and the calculation goes on
    QString stop;        // shown, and nothing is calculated
    bool noBand = false; // no band holds the difference: the critical message, and the form closes
    bool failed = false; // a text could not be converted: "Calculation error."
    int distance = 0;    // the difference looked up (halved above the threshold)
    bool doubled = false;
    int direction = 0;   // +1 the unrated tees are longer, -1 shorter or equal
    QString rating, slope; // the estimate, as shown
};

// The estimate for unrated tees from the nearest rated tees, in the fixed order of its checks.
RatingSlopeOutcome CalculateRatingSlope(const RatingSlopeInput &in, const BandLookup &lookup);

inline QString NoBandMessage()
{
    return QStringLiteral("Unable to calculate the rating and slope for these tees.");
}

} // namespace quillon
