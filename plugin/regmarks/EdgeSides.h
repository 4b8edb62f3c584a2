// The four sides of one ring of marks along the edge of an artboard.
#pragma once

#include <array>
#include <cstdint>

#include "AITypes.h"

namespace Vandrell::Corvane {

enum EdgeRunMode : std::int32_t {
  kPlainRun = 0,
  kRunWithoutSecond = 1,  // the second position is passed over
  kRunWithOneMore = 2     // the first two steps are half steps, so there is one position more
};

// Positions at start, start + step and so on. A mark at a position needs the strip from there to the
// artboard's edge free; for the first position the strip ends at `edge`.
struct EdgeSide {
  std::int32_t count;
  EdgeRunMode mode;
  AIRealPoint start;
  AIRealPoint edge;
  AIRealPoint step;
};

// Bottom, right, top and left, counter-clockwise, so that the end of one side is the start of the next.
// The marks stand `inset` from the corners and `depth` from the edges, evenly and at least `spacing`
// apart; a depth greater than the inset staggers them by half a step against the ring that has none. All
// in document units. A side too short for a step has a count of 0. The bottom side alone has a mode, which
// breaks the symmetry of the ring: without it a turned sheet looks like one that lies right.
std::array<EdgeSide, 4> EdgeSides(const AIRealRect& artboard, double inset, double depth, double spacing);

}  // namespace Vandrell::Corvane
