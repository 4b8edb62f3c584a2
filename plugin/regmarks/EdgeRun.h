// The marks of one side of an edge ring.
#pragma once

#include <cstdint>

#include "EdgeSides.h"
#include "PositionList.h"

namespace Vandrell::Corvane {

// Appends the positions of `side` whose strip to the artboard's edge is free of art, with 10 mm more on
// every side of the mark. A free position at which a mark of `extent` does not fit on the artboard adds one
// to `failures`; an occupied one does not. A side with a count of 0 has no positions, whatever its mode.
void EdgeRun(PositionList& positions, std::int32_t& failures, const AIRealRect& artboard, double extent,
             const EdgeSide& side);

}  // namespace Vandrell::Corvane
