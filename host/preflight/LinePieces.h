// Lines, cut into short pieces that are nearly straight.
#pragma once

#include <cstdint>
#include <vector>

#include "Art.h"
#include "LineOverlaps.h"

namespace host {

struct LinePiece {
  AIRealPoint from, to;
  double along;        // from the start of its path to the piece's middle
  std::uint32_t path;  // index
};

struct LinePieces {
  struct Course {
    double length;
    bool closed;
  };

  std::vector<LinePiece> pieces;  // along one path after the other
  std::vector<Course> courses;    // by path
  double longest = 0;             // that a piece may be

  // Whether they follow each other on one path, so that one goes on with the other.
  bool areNeighbours(const LinePiece& a, const LinePiece& b, double apart) const;
};

// At most some hundred thousand pieces more than the paths have segments. Paths without a finite length have
// none.
LinePieces cutIntoPieces(const std::vector<const PathGeometry*>& paths, const OverlapLimits& limits);

}  // namespace host
