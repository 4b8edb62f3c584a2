// The part of the page that automatic marks are looked for in.
#pragma once

#include <cstdint>

#include "AITypes.h"

namespace Vandrell::Corvane {

struct PageGeometry {
  double width, height;  // document units
  AIRealPoint origin;    // of the document coordinates, in page coordinates
};

// A rectangle by its lower left corner, in document coordinates. Art far off the page can make a width or
// height negative.
struct GridArea {
  double x, y, width, height;
};

// Side of a cell for marks of this extent: a tenth of room about each mark.
inline double AutoCellSize(double extent) {
  return 1.1 * extent;
}

// The artwork with three cells around it, held to where a whole mark stays on the page, and then widened by
// the cells that only serve as neighbours: two to the left and below, five to the right and above.
GridArea AutoGridArea(const PageGeometry& page, const AIRealRect& art, double extent);

}  // namespace Vandrell::Corvane
