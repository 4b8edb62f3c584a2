#include "Thinning.h"

#include <algorithm>
#include <cmath>

namespace Vandrell::Corvane {

void ThinOut(PositionList& positions, double least) {
  auto keptEnd = positions.begin();
  for (const AIRealPoint& position : positions) {
    const auto isTooClose = [&](const AIRealPoint& kept) {
      return std::abs(position.x - kept.x) + std::abs(position.y - kept.y) < least;
    };
    if (std::none_of(positions.begin(), keptEnd, isTooClose)) *keptEnd++ = position;
  }
  positions.erase(keptEnd, positions.end());
}

}  // namespace Vandrell::Corvane
