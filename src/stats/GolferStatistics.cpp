#include "GolferStatistics.h"

namespace quillon {

void InitStatistics(GolferStatistics &s)
{
    GolferStatistics fresh;
    fresh.HasDetails = s.HasDetails;
    fresh.Rounds18 = s.Rounds18;
    fresh.RoundsFront9 = s.RoundsFront9;
    fresh.RoundsBack9 = s.RoundsBack9;
    s = fresh;
}

} // namespace quillon
