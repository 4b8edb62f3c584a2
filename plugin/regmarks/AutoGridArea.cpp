#include "AutoGridArea.h"

#include <algorithm>

namespace Vandrell::Corvane {
namespace {

struct Span {
  double start, length;
};

Span AxisSpan(double pageLength, double origin, double artLow, double artHigh, double extent) {
  const double cell = AutoCellSize(extent);
  const double low = std::max(extent / 2 - origin, artLow - 3 * cell);
  const double high = std::min(pageLength - extent / 2 - origin, artHigh + 3 * cell);
  const double start = low - 2 * cell;
  return {start, high + 5 * cell - start};
}

}  // namespace

GridArea AutoGridArea(const PageGeometry& page, const AIRealRect& art, double extent) {
  const Span across = AxisSpan(page.width, page.origin.x, art.left, art.right, extent);
  const Span up = AxisSpan(page.height, page.origin.y, art.bottom, art.top, extent);
  return {across.start, up.start, across.length, up.length};
}

}  // namespace Vandrell::Corvane
