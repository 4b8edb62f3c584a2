// One ring of marks along the edge of an artboard.
#pragma once

#include <cstdint>

#include "PositionList.h"

namespace Vandrell::Corvane {

// Appends the free positions of all four sides, counter-clockwise from the bottom one. `inset`, `depth` and
// `spacing` are those of EdgeSides, `failures` that of EdgeRun.
void EdgeRing(PositionList& positions, std::int32_t& failures, const AIRealRect& artboard, double extent,
              double inset, double depth, double spacing);

}  // namespace Vandrell::Corvane
