// Points of a QSO by contest and band.
#pragma once

#include <optional>
#include <string_view>

namespace geo {

/// What a contest does behind the value of the band.
enum class PointsTail {
    nothing,
    prefix,        ///< only Romanian calls count, others get 0, on every band
    duplicateFlag  ///< a QSO marked as the duplicate that keeps no points gets 0
};

/// The points that the distance gives, and what follows. Without points the last value stays.
struct PointsRule {
    std::optional<long> points;
    PointsTail tail = PointsTail::nothing;
};

/// Points of one QSO by the rule of the contest. `bandMHz` is 144 to 76000, `km` a whole distance. No points when the
/// rule has no value for this band.
PointsRule pointsFor(int contest, long bandMHz, long km);

/// True for calls that begin with YO, YR, YQ or YP.
bool isRomanianCall(std::string_view call);

/// Band multiplier that the summary announces; nothing where none is announced.
std::optional<int> MultBand(int contest, long bandMHz);

/// `Qrb` to `PctCur`.
void ClcPct();

}  // namespace geo
