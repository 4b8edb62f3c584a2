// Outlines as chords (see flatten in Geometry.h).
#pragma once

#include <algorithm>
#include <vector>

#include "Vector.h"

namespace host {

// From a point to the nearest of a chord.
inline double distanceToChord(AIRealPoint point, AIRealPoint a, AIRealPoint b) {
  const double size = squaredLength(b - a);
  const double along = size > 0 ? std::clamp(dot(point - a, b - a) / size, 0.0, 1.0) : 0;
  return length(point - (a + (b - a) * along));
}

// How often a ring, whose last point is its first, goes round a point, counterclockwise counted up (Sunday's
// winding number). Of a point on the ring it may be either side's.
int windingOf(const std::vector<AIRealPoint>& ring, AIRealPoint point);

// Whether a fill covers what several rings wind round that often together.
inline bool isInside(int winding, bool evenOdd) {
  return evenOdd ? winding % 2 != 0 : winding != 0;
}

}  // namespace host
