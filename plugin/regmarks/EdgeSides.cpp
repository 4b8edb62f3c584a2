#include "EdgeSides.h"

#include "Truncation.h"

namespace Vandrell::Corvane {
namespace {

std::int32_t StepCount(double artboardLength, double inset, double spacing) {
  return TruncToInt32((artboardLength - 2 * inset + spacing) / spacing);
}

double StepLength(double length, std::int32_t count) {
  return count > 0 ? length / count : 0;
}

}  // namespace

std::array<EdgeSide, 4> EdgeSides(const AIRealRect& artboard, double inset, double depth, double spacing) {
  const double left = artboard.left + inset;
  const double right = artboard.right - inset;
  const double bottom = artboard.bottom + inset;
  const double top = artboard.top - inset;

  const std::int32_t across = StepCount(artboard.right - artboard.left, inset, spacing);
  const std::int32_t up = StepCount(artboard.top - artboard.bottom, inset, spacing);
  const double dx = StepLength(right - left, across);
  const double dy = StepLength(top - bottom, up);

  const bool isStaggered = depth > inset;
  const double inwards = isStaggered ? depth - inset : 0;
  const double alongX = isStaggered ? dx / 2 : 0;
  const double alongY = isStaggered ? dy / 2 : 0;

  const AIRealPoint bottomStart{left + alongX, bottom + inwards};
  const AIRealPoint rightStart{right - inwards, bottom + alongY};
  const AIRealPoint topStart{right - alongX, top - inwards};
  const AIRealPoint leftStart{left + inwards, top - alongY};
  return {{
      {across,
       isStaggered ? kRunWithOneMore : kRunWithoutSecond,
       bottomStart,
       {bottomStart.x, artboard.bottom},
       {dx, 0}},
      {up, kPlainRun, rightStart, {artboard.right, rightStart.y}, {0, dy}},
      {across, kPlainRun, topStart, {topStart.x, artboard.top}, {-dx, 0}},
      {up, kPlainRun, leftStart, {artboard.left, leftStart.y}, {0, -dy}},
  }};
}

}  // namespace Vandrell::Corvane
