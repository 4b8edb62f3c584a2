// An even spread of marks over a grid, from more candidates than are wanted.
#pragma once

#include <cstdint>

#include "AutoGridArea.h"
#include "PositionList.h"

namespace Vandrell::Corvane {

struct SectorLayout {
  std::int64_t columns, rows;
  double width, height;  // of one sector, document units
};

// `count` sectors along the long side of the area, and as many as fit their proportion, but at least 2,
// along the other. Without a count of 1 or more there are none.
SectorLayout SectorsOf(const GridArea& area, std::int64_t count);

// One candidate a sector at most: the one nearest to the sector's target, if it is nearer than the
// sector's diagonal; of equally near ones the first. Targets run from corner to opposite corner of the
// area, so that the outer sectors pull outwards. Column by column from the left, upwards in each.
// Candidates beyond the last column or row are dropped.
PositionList PickPerSector(const PositionList& candidates, const GridArea& area, std::int64_t count);

}  // namespace Vandrell::Corvane
