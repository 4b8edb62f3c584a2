#include "Chords.h"

namespace host {

int windingOf(const std::vector<AIRealPoint>& ring, AIRealPoint point) {
  int winding = 0;
  for (std::size_t i = 1; i < ring.size(); ++i) {
    const AIRealPoint a = ring[i - 1], b = ring[i];
    if ((a.y <= point.y) == (b.y <= point.y)) continue;
    const double side = cross(b - a, point - a);
    if (a.y <= point.y && side > 0) ++winding;
    if (b.y <= point.y && side < 0) --winding;
  }
  return winding;
}

}  // namespace host
