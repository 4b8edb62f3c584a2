#include "FifthMark.h"

namespace Vandrell::Corvane {

std::optional<AIRealPoint> FifthMark(const AIRealRect& frame, double extent, double distance) {
  const double width = frame.right - frame.left;
  const double height = frame.top - frame.bottom;
  if (width - distance >= 2 * extent) return AIRealPoint{frame.left + distance, frame.bottom};
  if (width > 4 * extent) return AIRealPoint{(frame.left + frame.right) * 0.5, frame.bottom};
  if (height <= width) return std::nullopt;
  if (height - distance >= 2 * extent) return AIRealPoint{frame.right, frame.bottom + distance};
  if (height > 4 * extent) return AIRealPoint{frame.right, (frame.top + frame.bottom) * 0.5};
  return std::nullopt;
}

}  // namespace Vandrell::Corvane
