#include "EdgeRing.h"

#include "EdgeRun.h"
#include "EdgeSides.h"

namespace Vandrell::Corvane {

void EdgeRing(PositionList& positions, std::int32_t& failures, const AIRealRect& artboard, double extent,
              double inset, double depth, double spacing) {
  for (const EdgeSide& side : EdgeSides(artboard, inset, depth, spacing)) {
    EdgeRun(positions, failures, artboard, extent, side);
  }
}

}  // namespace Vandrell::Corvane
