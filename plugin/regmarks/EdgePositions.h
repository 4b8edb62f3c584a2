// Marks along the edge of the active artboard, wherever the art leaves room.
#pragma once

#include <cstdint>

#include "PositionList.h"

namespace Vandrell::Corvane {

// Appends two rings for marks of `extent`: one 10 mm inside the edge, and a staggered one 40 mm inside. Adds
// to `failures` what is free but does not fit on the artboard, which takes marks of more than 20 mm. Leaves
// the view alone. Returns the host's code.
AIErr EdgePositions(double extent, PositionList& positions, std::int32_t& failures);

}  // namespace Vandrell::Corvane
