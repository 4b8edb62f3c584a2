// Chooses the cells of a hit mask.
#pragma once

#include "HitCells.h"
#include "HitClips.h"
#include "HitShapes.h"

namespace host {

// Cells over the main region of the shapes, at most `mostCells` and 32,000 each way. They are as small as
// serves the edges there are, unless marking them would then take too long: large shapes in great number
// make them coarser. No cells if there are no shapes.
CellFrame chooseFrame(const HitShapes& shapes, const HitClips& clips, std::size_t mostCells);

}  // namespace host
