#include "MarkSquare.h"

#include "AIRealMath.h"

namespace Vandrell::Corvane {

AIRealRect SquareAround(const AIRealPoint& center, double side) {
  const double half = side / 2;
  return {center.x - half, center.y + half, center.x + half, center.y - half};
}

bool FitsOnArtboard(const AIRealPoint& center, double extent, const AIRealRect& artboard) {
  const AIRealRect square = SquareAround(center, extent);
  return sAIRealMath->AIRealRectInAIRealRect(&square, &artboard) != 0;
}

}  // namespace Vandrell::Corvane
