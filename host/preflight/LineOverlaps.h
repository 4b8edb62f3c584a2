// Where lines lie over each other.
//
// Lines are cut into short pieces. A piece is doubled if another one runs along its middle, whichever way
// round, and a stretch of doubled pieces is an overlap. So it does not matter how a curve is divided into
// segments, or where a closed path starts.
#pragma once

#include <cstddef>
#include <vector>

#include "Art.h"

namespace host {

struct LineOverlap {
  std::size_t path;     // index
  double length;        // of its longest doubled stretch
  AIRealPoint start{};  // of that
};

// Lengths in the unit of the paths.
struct OverlapLimits {
  double distance;  // lines closer than this are one
  double least;     // overlap that counts; of a shorter path nearly all of it
};

// In ascending order of paths; a path may run over itself. Takes time in the order of n log n for the lines'
// total number of segments.
std::vector<LineOverlap> findOverlaps(const std::vector<const PathGeometry*>& paths,
                                      const OverlapLimits& limits);

}  // namespace host
