#include "EdgeRun.h"

#include <algorithm>

#include "CurrentDocument.h"
#include "MarkSquare.h"
#include "ProbeArea.h"

namespace Vandrell::Corvane {
namespace {

constexpr double kClearance = 28.34645669291339;  // points: 10 mm

AIRealRect StripBetween(const AIRealPoint& a, const AIRealPoint& b, double margin) {
  return {std::min(a.x, b.x) - margin, std::max(a.y, b.y) + margin, std::max(a.x, b.x) + margin,
          std::min(a.y, b.y) - margin};
}

AIRealRect MovedBy(const AIRealRect& rect, const AIRealPoint& step) {
  return {rect.left + step.x, rect.top + step.y, rect.right + step.x, rect.bottom + step.y};
}

// The step from position `index` to the next.
AIRealPoint StepAfter(std::int64_t index, const EdgeSide& side) {
  const bool isHalf = side.mode == kRunWithOneMore && index < 2;
  return isHalf ? AIRealPoint{side.step.x / 2, side.step.y / 2} : side.step;
}

}  // namespace

void EdgeRun(PositionList& positions, std::int32_t& failures, const AIRealRect& artboard, double extent,
             const EdgeSide& side) {
  if (side.count <= 0) return;
  const std::int64_t total = std::int64_t{side.count} + (side.mode == kRunWithOneMore ? 1 : 0);
  const double margin = kClearance / GetDocumentScale() + extent * 0.5;

  AIRealPoint position = side.start;
  AIRealRect strip = StripBetween(side.start, side.edge, margin);
  for (std::int64_t index = 0; index < total; ++index) {
    const bool isPassedOver = side.mode == kRunWithoutSecond && index == 1;
    if (!isPassedOver && ProbeArea(strip) == kFree) {
      if (FitsOnArtboard(position, extent, artboard)) {
        positions.push_back(position);
      } else {
        ++failures;
      }
    }
    const AIRealPoint step = StepAfter(index, side);
    position = {position.x + step.x, position.y + step.y};
    strip = MovedBy(strip, step);
  }
}

}  // namespace Vandrell::Corvane
